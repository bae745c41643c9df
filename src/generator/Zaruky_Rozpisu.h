#pragma once
// What a wheel promises, computed exactly from its tips: the guarantees ("3 z 4": whenever any 4
// of the wheel's numbers are drawn, some tip holds at least 3 of them) and the chance per draw of
// at least a fifth-tier and a fourth-tier win, beside the same chances of as many random tips.

#include "core/Prubeh.h"
#include "generator/Tabulky_Rozpisu.h"

#include <QString>
#include <array>
#include <span>
#include <vector>

struct Zaruky_Rozpisu {
    int Cisel = 0; // distinct numbers the tips use
    // Zaruka[k], k = 3..6: the smallest m (k <= m <= 6, m <= Cisel) such that any m of the wheel's
    // numbers drawn put at least k of them in one tip; 0 when even m = 6 does not.
    std::array<int, 7> Zaruka{};
    double P3 = 0;         // chance that a uniform draw of 6 from 49 puts 3 or more numbers in some tip
    double P4 = 0;         // ... 4 or more
    double P3_Nahodne = 0; // the same for as many tips drawn at random
    double P4_Nahodne = 0;
};

// What the generator shows beside the chosen wheel, in Czech: the guarantees, then the chances of a
// fifth- and a fourth-tier win per draw beside those of as many random tips.
QString Text_Zaruk(const Zaruky_Rozpisu& z);

// Over tips of numbers 1..49; cells of 0 are ignored, rows of zeros too. The walk reports its
// progress but cannot be stopped halfway.
Zaruky_Rozpisu Spocti_Zaruky(std::span<const modRozpisy::Radek_Rozpisu> tipy, const Prubeh& prubeh = {});

// The tips of a built-in table over the positions themselves: position k is number k, tutovka Ti
// is number N + i.
std::vector<modRozpisy::Radek_Rozpisu> Tipy_Tabulky(const modRozpisy::Tabulka_Rozpisu& tabulka);
