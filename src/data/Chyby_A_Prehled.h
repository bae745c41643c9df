#pragma once
// Two small text files: ErrorFile.txt, the report of an internal error that the user is asked to
// send in, and _Prehled.txt, the running overview of which bettors' list went with which tip file.

#include "core/Vysledek.h"

#include <QDateTime>
#include <QString>

class Dialogy;

inline const QString Soubor_Chyby = QStringLiteral("ErrorFile.txt");
inline const QString Soubor_Prehledu = QStringLiteral("_Prehled.txt");
inline const QString Adresa_Podpory = QStringLiteral("podpora@tombi.cz");

// Replaces ErrorFile.txt in the data directory with the three lines of the report, then tells the
// user with a stop box (also when the file could not be written; the result says so). A procedure
// whose name holds "Vyh_" counts winning tickets, so `hodnota` is their number; for any other it is
// the path it worked on. Without `dialogy` (tombi-cli) only the file is written.
Vysledek Zapis_Chybu(const QString& adresar_dat, const QString& proces, const QString& hodnota, const QString& popis,
                     Dialogy* dialogy);

// Adds a line to _Prehled.txt in the list directory: the list's name, the tip file's name and when
// it was saved. A missing file is made anew with its head. The file is never trimmed.
Vysledek Pridej_Do_Prehledu(const QString& adresar_seznamu, const QString& soubor_tipu, const QString& seznam,
                            const QDateTime& kdy);
