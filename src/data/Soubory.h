#pragma once
// Plain file helpers that every file format uses: a whole file in, a whole file out.
// A file is written through QSaveFile, so it is replaced whole or not at all: a full disk or a
// crash never leaves half an archive, tip file or tombi.cfg behind. Every failure is told in
// Czech, with the reason the system gave.

#include "core/Vysledek.h"

#include <QByteArray>
#include <QString>

#include <optional>

// Joins a directory and a file name with exactly one separator. The directory may end with a
// separator or not, and may be a path of the old Windows program ("C:\Tombi\").
QString Spoj_Cestu(const QString& adresar, const QString& jmeno);

// Each program calls this first: a write past the file-size limit (RLIMIT_FSIZE) then fails
// with a message instead of SIGXFSZ ending the program.
void Priprav_Zapis_Souboru();

inline constexpr qint64 Mebibajt = 1024 * 1024;
// What a reader takes in when its caller names no limit of its own: plenty for any text file.
inline constexpr qint64 Nejvic_Textu = 64 * Mebibajt;

// A whole file, or why it could not be had.
struct Nacteny_Soubor {
    QByteArray Data;
    QString Duvod;              // empty when the file was read; otherwise the Czech reason
    bool Nelze_Otevrit = false; // missing or unreadable, rather than refused for what it is
    bool Ok() const { return Duvod.isEmpty(); }
    // "Soubor "jmeno" nelze načíst: " and the reason.
    QString Zprava(const QString& jmeno) const;
};

// Reads the whole file. Reading never touches the file's permissions. Only a regular file of at
// most `nejvic` bytes is read: a folder, a device, a pipe or an oversized file is refused before a
// byte of it is taken in.
Nacteny_Soubor Nacti_Soubor(const QString& cesta, qint64 nejvic);

// Replaces the file with `data` atomically. A symbolic link is followed, so the file it names is
// replaced and the link stays; the file keeps its mode and group. A file the user made read-only is
// refused with a message that says so. The message names the file and the reason.
Vysledek Uloz_Soubor(const QString& cesta, const QByteArray& data);

// Replaces the file with `data` and keeps what it replaced as `zaloha`, which is replaced in turn;
// links are followed and mode and group kept as by Uloz_Soubor. The new content is written aside
// under a name of this process alone; then the live file is linked (or copied) aside the backup and
// renamed over it; last the new content is renamed straight over the live file. So at every
// instant the file's name holds the old or the new content, and the backup's name a whole backup.
// A failed write leaves both files as they were. A file that is not there yet is simply written,
// and the backup stays.
Vysledek Uloz_Se_Zalohou(const QString& cesta, const QByteArray& data, const QString& zaloha);

// The names that Uloz_Se_Zalohou writes aside start with the file's or the backup's name and this.
inline constexpr char16_t Pripona_Rozepsaneho[] = u".nova";

// For tests of an interrupted save: called after each step of Uloz_Se_Zalohou with its number,
// 1 the new content written aside, 2 the backup linked aside, 3 the backup in place, 4 the new
// content in place. Nothing by default.
void Sleduj_Kroky_Zapisu(void (*sledovani)(int krok));

// The file a path names, symbolic links followed (also a link to a file not there yet).
QString Skutecna_Cesta(const QString& cesta);

// Renames, replacing the target if there is one; a failure leaves both as they were.
Vysledek Prejmenuj_Soubor(const QString& z, const QString& na);
// Removes the file; a file that is not there counts as removed.
Vysledek Smaz_Soubor(const QString& cesta);

// The file is there.
bool Je_Soubor(const QString& adresar, const QString& jmeno);

// The name without directory: "C:\a\b.c.tip" and "/a/b.c.tip" both give "b.c.tip".
QString Jmeno_Bez_Adresare(const QString& cesta);

// The lines of a text file of numbers (CR LF, LF and a lone CR each end a line), each turned to
// capitals (`velka`) or trimmed, without the lines that hold "REM" (a comment), each kept line
// followed by CR LF.
QByteArray Radky_Bez_Poznamek(const QByteArray& soubor, bool velka);
