#pragma once
// modAnalyza_Tipu: the work of the tip list's first two panels on the tip store. The tips are
// counted by pattern (even and odd, runs of neighbouring numbers, pairs at one distance) and struck
// out by the same patterns, by the numbers they hold and by how many of their numbers share a
// column of the grid; the store is compacted after each strike. For the tip being entered by hand,
// the listed tips that share numbers with it. No window: the panels bind their labels to this.
//
// Every walk goes ticket by ticket, column by column, and ends at the first column whose first
// number is 0: the tips stand without gaps.

#include "core/Prubeh.h"
#include "data/Soubor_Tipu.h"

#include <QString>
#include <array>
#include <optional>

namespace modAnalyza_Tipu {

// Index i as lblPomer_SL(i): the tips with 6 - i even numbers (6/0 first, 0/6 last).
using Pocty_Pomeru = std::array<int, 7>;
// Index as lblSousedni_Cisla: 0, 1, 2 one, two, three runs of two; 3, 4 one, two runs of three;
// 5, 6, 7 a run of four, five, six.
using Pocty_Sousednich = std::array<int, 8>;
// 1 marks the label of the same index; the tips that count there are struck out.
using Znacky_Pomeru = std::array<uint8_t, 7>;
using Znacky_Sousednich = std::array<uint8_t, 8>;
// Index 0..3: the listed tips that share 3, 4, 5, 6 numbers with the tip being entered.
using Shody = std::array<int, 4>;

inline const QString Text_Nesetrideno = QStringLiteral("Pro kompletní analýzu k výběru tipů provedte setřídění typů !");

// The label of the even/odd ratio that a tip counts in.
int Index_Pomeru(const Tip& tip);

// The cells of the run table that a tip counts in: none, one, or two (a long run with a pair).
struct Bunky_Tipu {
    int Pocet = 0;
    std::array<int, 2> Index{};
};
// Reads the numbers as stored, so an unsorted tip is judged by its stored neighbours.
Bunky_Tipu Bunky_Sousednich(const Tip& tip);

// Whether the tip has two pairs of numbers at one distance (and fewer than two neighbours);
// none for a tip whose numbers fall somewhere, which cannot be judged before it is sorted.
std::optional<bool> Ma_Pary(const Tip& tip);

struct Vysledek_Paru {
    int Pocet = 0;      // tips with pairs; when the walk stopped, those before the unsorted tip
    bool Zmena = false; // some tip was struck out
    QString Zprava;     // Text_Nesetrideno when an unsorted tip stopped the analysis
    bool Ok() const { return Zprava.isEmpty(); }
};

// The counting forms walk the store and leave it alone.
Pocty_Pomeru Analyza_Pomeru(const Zaznam_Tipu& tipy, const Prubeh& prubeh = {});
Pocty_Sousednich Analyza_Sousednich(const Zaznam_Tipu& tipy, const Prubeh& prubeh = {});
// Stops at the first unsorted tip.
Vysledek_Paru Analyza_Paru(const Zaznam_Tipu& tipy, const Prubeh& prubeh = {});

// The striking forms erase the tips that count under a mark (a tip of two cells goes when either is
// marked) and, if any went, compact the store: the counts and pocet_tipu_aktivni follow. True when
// a tip was struck out.
bool Analyza_Pomeru(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, const Znacky_Pomeru& znacky,
                    const Prubeh& prubeh = {});
bool Analyza_Sousednich(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, const Znacky_Sousednich& znacky,
                        const Prubeh& prubeh = {});
// Erases the tips with pairs. An unsorted tip anywhere refuses the whole strike with
// Text_Nesetrideno before any tip is touched.
Vysledek_Paru Analyza_Paru(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, const Prubeh& prubeh = {});
// Erases each tip holding a number that stands in the text as a token between blanks.
bool Odstran_Tipy_S_Cisly(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, const QString& text,
                          const Prubeh& prubeh = {});
// Erases each tip with more than `limit` numbers in one column of the grid. A limit below 1 would
// erase every tip and is taken as no limit.
bool Odstran_Tipy_Nad_Max(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, int limit, const Prubeh& prubeh = {});

// Moves every tip left (a column whose first two numbers are set) to the next free place from the
// start and erases the rest. The first ticket keeps its number; every ticket that the moving
// opens after it takes the number of its place. Tickets left over are emptied whole. Pocet_Tipu,
// pocet_tipu_aktivni and Pocet_Tiketu take the new counts.
void Zhustit_Tipy(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni);

// The tips that hold the number.
int Pocet_Tipu_S_Cislem(const Zaznam_Tipu& tipy, int cislo, const Prubeh& prubeh = {});
// Of the first `pocet_tipu_celkem` tips, how many share 3, 4, 5, 6 numbers with the numbers of the
// blank-separated text.
Shody Shoda_S_Tipy(const Zaznam_Tipu& tipy, int pocet_tipu_celkem, const QString& text, const Prubeh& prubeh = {});
// The numbers 1..49 that stand in no tip, "1, 7, 49"; empty when every number is used.
QString Neobsazena_Cisla(const Zaznam_Tipu& tipy, const Prubeh& prubeh = {});

} // namespace modAnalyza_Tipu
