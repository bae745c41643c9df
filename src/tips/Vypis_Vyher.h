#pragma once
// The wins as the tip list shows them: the lines of the win list and their way back to a tip, and
// the money of the wins (prizes by tier, sums of the draws, stake, profit in per cent, the
// estimated time of a run against the archive). No window.

#include "core/Vb.h"
#include "tips/Vyhodnoceni.h"

#include <QString>
#include <QStringList>
#include <array>
#include <optional>
#include <string>
#include <vector>

inline const QString Hlavicka_Vyher = QStringLiteral("Čís.tik.     sloup.  tah/poř.");
inline constexpr double Max_Ceny = 500000000; // the largest prize a box takes

// One win as the list shows it, in the order found: by draw, ticket, column.
struct Misto_Vyhry {
    int32_t Cislo_Tiketu = 0;
    int Sloupec = 0;
    int Tah = 0;
    int Poradi = 0;
};
std::vector<Misto_Vyhry> Mista_Vyher(const Vysledek_Vyhodnoceni& vysledek);

// One line of lstTiketyVypis: the ticket " 000 000     ", the column "##00        ", the draw,
// " / ", the tier. The last character is the tier; the value of the last five is the draw. The
// window keeps the places beside the lines, so a line leads back to its tip without reading it.
QString Radek_Vyhry(const Misto_Vyhry& misto);
// The same line in UTF-8, appended to `cil` with its line end: the command line writes hundreds of
// thousands of them, so the usual numbers are put down digit by digit, byte for byte as above.
void Pripis_Radek_Vyhry(const Misto_Vyhry& misto, std::string& cil);
// Each win of the result in the order of the list, without gathering them first.
template <class Akce> void Pro_Kazdou_Vyhru(const Vysledek_Vyhodnoceni& vysledek, Akce&& akce) {
    for (const Vyherni_Zaznam& z : vysledek.Vyherni_Zaznamy)
        for (int c = 1; c <= Sloupcu_Tiketu; ++c)
            if (z.Sloupce[c].Poradi > 0)
                akce(Misto_Vyhry{z.Cislo_Tiketu, c, z.Sloupce[c].Tah, z.Sloupce[c].Poradi});
}

// Prizes of one draw, tiers 1..5 at indices 0..4.
using Ceny_Tahu = std::array<double, 5>;
// A prize table of the settings (Ceny_Nedele or Ceny_Streda) as the prizes of the first and second draw.
std::array<Ceny_Tahu, 2> Ceny_Dne(const std::array<Vb::Mena, 10>& ceny);

// The sum of a draw, count * prize over the tiers won; exact for any count and prize a box takes.
double Soucet_Tahu(const Vyhry& vyhry, const Ceny_Tahu& ceny);

// ((total - stake) / stake) * 100; none with a stake of 0.
std::optional<double> Zisk_Procent(double vyhra, double vklad);

// lblCasZpracovani: (n1 + n2, added in 16 bits) * tips * 0.00011 s, formatted "0" and " s".
QString Odhad_Casu(int n1, int n2, int pocet_tipu);
