#pragma once
// Where the printer puts its marks on the operator's paper ticket: a cross in each box a player
// would mark by hand (the numbers of each column, the choice boxes below them) and, if wanted, the
// ticket's number. All places are in twips (1440 to the inch) of the printed page. The engine
// knows no printer: the window draws the marks it returns, tombi-cli lists them.

#include "data/Soubor_Tipu.h"

#include <QString>
#include <array>
#include <optional>
#include <vector>

namespace Tisk_Tiketu {

inline constexpr int Sirka_Bloku = 1410; // one column block across
inline constexpr int Vyska_Pasma = 2475; // one band of columns down
inline constexpr int Krok_X = 235;       // pitch of the cells across
inline constexpr int Krok_Y = 225;       // and down
inline constexpr int Rameno = 90;        // a cross spans this much each way
inline constexpr int Vychozi_Zaklad_X = 2882;
inline constexpr int Vychozi_Zaklad_Y = 444;
inline constexpr double Twipu_Na_Mm = 56.5;
inline constexpr int Nejvic_Mm = 200; // the shift boxes take -200 to 200 mm
inline constexpr int Pocet_Voleb = 17;

// A choice box of the ticket: where its mark stands on the window's picture, where its cross goes
// on the ticket (from the origin X0, Y0), and for the system plays 5 to 13 the price text.
struct Volba_Tiketu {
    int Obrazek_X = 0, Obrazek_Y = 0;
    int Tiket_X = 0, Tiket_Y = 0;
    QString Cena;
};
// Index 1..17; index 0 is unused.
const std::array<Volba_Tiketu, Pocet_Voleb + 1>& Volby_Tiketu();

// The stored place of the first cell of column 1 and the shift of the two boxes.
struct Kalibrace {
    int Zaklad_X = Vychozi_Zaklad_X;
    int Zaklad_Y = Vychozi_Zaklad_Y;
    int Posun_X = 0;
    int Posun_Y = 0;
    int X0() const { return Zaklad_X + Posun_X; }
    int Y0() const { return Zaklad_Y + Posun_Y; }
};

// The shift of a box's text in millimetres as twips (rounded down), or nothing when the text is no
// number of -200..200 ("-" alone while typing, say): the shift then stays as it stood.
std::optional<int> Posun_Z_Mm(const QString& text);

struct Znacka {
    bool Je_Text = false; // the ticket's number; otherwise a cross from (X, Y) to (X + 90, Y + 90)
    int X = 0, Y = 0;
    QString Text;
};

struct Stranka {
    int Tiket = 0; // place of the ticket in the file
    int Cislo_Tiketu = 0;
    std::vector<Znacka> Znacky; // in the order they are drawn
};

struct Zadani_Tisku {
    Kalibrace Poloha;
    std::array<bool, Pocet_Voleb + 1> Oznaceno{}; // the crossed choice boxes
    bool Cisla_Tiketu = false;                    // Check2: print each ticket's number
    bool Jen_Volby = false;                       // a system play: one page of the choice boxes
    int Pocet_Tipu_Aktivni = 0;                   // tips beyond this count are not printed
};

// The choice boxes as the window crosses them on load: the draw day (box 1 Wednesday, box 2
// otherwise) and "Šance – Ne" (box 3) when the tips are played without Šance.
std::array<bool, Pocet_Voleb + 1> Volby_Pri_Nacteni(bool streda, bool sance);

// The pages of Tisk_Tiketu(od, pocet): tickets od, od + 1, ... of the file, pocet + 1 of them at
// most (pocet 0 prints one), each with its crosses and choice boxes.
std::vector<Stranka> Stranky(const Zaznam_Tipu& soubor, int od, int pocet, const Zadani_Tisku& zadani);

// The test page: a cross in every cell of the ten column blocks, the number "123 456" when the
// ticket numbers are printed and a cross beside it, and a cross in each choice box.
Stranka Testovaci_Stranka(const Kalibrace& poloha, bool cisla_tiketu);

// The calibration page: a cross at the four corner cells and the middle cell of column block 1,
// each with its place from the sheet's corner in millimetres written beside it, so a ruler on the
// printed sheet tells how far the printer puts a cross from where it was meant.
Stranka Kalibracni_Stranka(const Kalibrace& poloha);

} // namespace Tisk_Tiketu
