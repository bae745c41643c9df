#pragma once
// Plain file helpers that every file format uses: a whole file in, a whole file out.
// A file is written through QSaveFile, so it is replaced whole or not at all: a full disk or a
// crash never leaves half an archive, tip file or tombi.cfg behind.

#include "app/Vysledek.h"

#include <QByteArray>
#include <QString>

#include <optional>

// Joins a directory and a file name with exactly one separator. The directory may end with a
// separator or not, and may be a path of the old Windows program ("C:\Tombi\").
QString Spoj_Cestu(const QString& adresar, const QString& jmeno);

// Reads the whole file; nothing if it is missing or cannot be read. Clears the read-only flag
// first, as the old program did, so that the file can later be replaced.
std::optional<QByteArray> Nacti_Soubor(const QString& cesta);

// Replaces the file with `data` atomically. The message names the file when the write fails.
Vysledek Uloz_Soubor(const QString& cesta, const QByteArray& data);

// The file is there (and is made writable).
bool Je_Soubor(const QString& adresar, const QString& jmeno);

// The name without directory: "C:\a\b.c.tip" and "/a/b.c.tip" both give "b.c.tip".
QString Jmeno_Bez_Adresare(const QString& cesta);
