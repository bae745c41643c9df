#pragma once
// What the bettors' window prints or exports, as text: the whole list with its sums
// (_!_seznam.txt), one bettor's page with the tips they share in, and the tips alone. The file
// texts end their lines with CR LF and go out in code page 1250; the paper pages of the window
// print the same lines.

#include "bettors/Seznam_Sazejicich.h"
#include "data/Soubor_Tipu.h"

#include <QString>
#include <QStringList>
#include <array>

namespace Vypisy_Seznamu {

inline const QString Soubor_Celkoveho = QStringLiteral("_!_seznam.txt");

// What every printout says of the list besides its bettors.
struct Hlavicka {
    QString Tah_Dne;
    QString Provize; // per cent, as typed
    Penize_Seznamu Penize;
    QString Soubor_Tipu; // the tip file's name, as the window shows it
};

// Vypis_Celkovy: the title with the date, the head, a line a bettor, the sums and the tip file.
QStringList Celkovy(const std::vector<Sazejici>& seznam, const Hlavicka& h);
// Vypis_Jednotlive, one bettor: the title, the head, the bettor's line and the tips.
QStringList Jednotlivy(const Sazejici& s, const Hlavicka& h, const Zaznam_Tipu& tipy);
// The file of one bettor: the name, "_", the tip file's name, ".txt"; a character a file name cannot
// hold becomes "_".
QString Soubor_Jednotliveho(const Sazejici& s, const QString& soubor_tipu);
// Vypis_Tipu_Text: each ticket's position on a line, then its tips five a line, each number
// followed by three blanks if it has one digit and one otherwise, a tab after each tip.
QStringList Tipy(const Zaznam_Tipu& tipy);

// The lines as a file: CR LF after each, code page 1250.
QByteArray Do_Souboru(const QStringList& radky);

// The leaflet: one raw print file a printer model (optTiskarna), kept in the program's folder and
// sent to the printer unchanged.
inline constexpr int Pocet_Letaku = 9;
extern const std::array<QString, Pocet_Letaku> Soubory_Letaku;
// The leaflet file of model `index` in `adresar`, found whatever the case of its letters; empty
// when it is not there.
QString Najdi_Letak(const QString& adresar, int index);
// The command that sends a file to a printer unchanged: lp [-d PRINTER] -o raw -- FILE; without a
// printer's name the system's default printer takes it.
QStringList Prikaz_Letaku(const QString& tiskarna, const QString& cesta);

} // namespace Vypisy_Seznamu
