#pragma once
// The 23 built-in wheels as data: for each, its rows of six cells. A cell is a position 1..N in the
// user's list of wheel numbers or a tutovka T1..T3 (the first, second or third tutovka of the tip).
// Rows are tips in order; row r goes to ticket (r-1)/10 + 1, column (r-1)%10 + 1. A row of zeros is
// a hole that the expansion leaves unwritten (row 42 of wheel 23).

#include <array>
#include <cstdint>
#include <span>

namespace modRozpisy {

inline constexpr uint8_t T1 = 101; // cell codes of the tutovky
inline constexpr uint8_t T2 = 102;
inline constexpr uint8_t T3 = 103;

using Radek_Rozpisu = std::array<uint8_t, 6>;

struct Tabulka_Rozpisu {
    int Tutovek = 0;    // T
    int Cisel = 0;      // N, numbers without the tutovky
    int Sloupcu = 0;    // C, what the dispatcher returns: the rows written, holes included
    int Pocet_Tipu = 0; // what the expansion sets as the store's tip count (27 for wheels 8 and 9)
    std::span<const Radek_Rozpisu> Radky; // C rows
};

// The table of built-in wheel `cislo` (2..24), or nullptr for any other value.
const Tabulka_Rozpisu* Tabulka(int cislo);

} // namespace modRozpisy
