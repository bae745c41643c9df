#pragma once
// _Analyza.txt: the reports of the draw analysis as they pile up from session to session, in
// sections with a head of asterisks and the time. Every line is written as a quoted string; the
// cleaning after each run turns the quotes into blanks. Code page 1250, CR LF.

#include "core/Vysledek.h"

#include <QDateTime>
#include <QString>

struct Nastaveni_Zaznam;

inline const QString Soubor_Analyzy = QStringLiteral("_Analyza.txt");
inline const QString Text_Aktivni_Zapis = QStringLiteral("Aktivní zápis do souboru \"Analyza.txt\"");

// The file in the folder of analyses (Adresare[3]).
QString Cesta_Analyzy(const Nastaveni_Zaznam& nastaveni);

// One report text into the file, if the export is on and the series `typ` (0 both, 1 the first,
// 2 the second) is the one chosen to be written. Line ends "\n" of the text become CR LF.
Vysledek Zapis_Analyza(const Nastaveni_Zaznam& nastaveni, int typ, const QString& text_1, const QString& text_2,
                       const QString& text_oba);

// Starts a section: without joining the file starts empty; the first head of a session carries the
// date, later ones only the time (`analyza_zahlavi` is the session's flag of that).
Vysledek Zahlavi_Analyza(const Nastaveni_Zaznam& nastaveni, bool& analyza_zahlavi, const QDateTime& kdy);

// Every double quote of the file becomes a blank; the length stays.
Vysledek Ocisti_Analyza(const Nastaveni_Zaznam& nastaveni);
