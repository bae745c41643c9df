#pragma once
// The tip tests of the generator. Each takes the candidate Aktualni_Tip (six distinct numbers
// 1..49, the tutovky first) and the limits as the numbers that Val read from their boxes, and
// returns true to throw the candidate out; Omezeni_Prunik alone returns true to keep it. None of
// them copies the tip or allocates: they run on every candidate of a run.

#include "core/Pole_Od_1.h"
#include "data/Archiv_Tahu.h"
#include "data/Soubor_Tipu.h"

#include <cstdint>
#include <vector>

namespace modOkruh_Cisel {

// Grid rows and both families of diagonals above their limit, or the OR of the five grid-column
// counts above sloupce. Positions from pocet_tutovek + 1 count.
bool Omezeni_Rad_Slo_Kriz(const Tip& tip, int pocet_tutovek, double sloupce, double radky, double krize);

// More than `limit` earlier tips of tickets 1..tiket share three or more numbers with the candidate.
// The walk ends at the first empty column.
bool Omezeni_Treti_Ceny(const Zaznam_Tipu& soubor, const Tip& tip, int tiket, double limit);

// Walks the first draws 1..od_1 and the second draws 1..od_2 (indexes from 1, newest last) for a
// first or second prize, as the box always has; the hit count is cleared for every drawn number,
// so a tip of distinct numbers is never thrown out, and the walk is the whole of its effect.
bool Omezeni_Ceny(const Tip& tip, const std::vector<Tah>& tahy_1, double od_1, const std::vector<Tah>& tahy_2,
                  double od_2);

// Even count outside sude +- rozptyl, or odd count outside liche +- rozptyl.
bool Omezeni_Sud_Lich(const Tip& tip, double sude, double liche, double rozptyl);

// More pairs of neighbours (numbers differing by 1) than max_dvojic allows.
bool Omezeni_Dvojice(const Tip& tip, double max_dvojic);

// More runs of three consecutive numbers than `limit`.
bool Omezeni_Trojice(const Tip& tip, double limit);

// The sum (16-bit) not strictly between od and do_.
bool Omezeni_Suma(const Tip& tip, double od, double do_);

// Whether Omezeni_Prunik can see the tip before the candidate: column 1 of a later ticket refers to
// column 255 of the ticket before, which is out of range and ends the run.
bool Prunik_V_Mezich(int tiket, int sloupec);

// Keeps the candidate when exactly `pocet` of the drawn numbers (positions pocet_tutovek + 1..6) of
// the tip before it are among the candidate's drawn numbers. Column 1 of ticket 1 is always kept.
// Call only when Prunik_V_Mezich holds.
bool Omezeni_Prunik(const Zaznam_Tipu& soubor, const Tip& tip, int pocet_tutovek, int pocet, int tiket, int sloupec);

} // namespace modOkruh_Cisel
