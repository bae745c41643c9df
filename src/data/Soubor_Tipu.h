#pragma once
// Tip files (.tip): one image of the tip store, 950 tickets of 10 columns of 6 numbers, the two
// counters and the name of the bettors' list that goes with the tips.

#include "app/Pole_Od_1.h"

#include <QString>

#include <cstdint>

// One column of a ticket: six numbers 1..49, 0 empty. A column whose first number is 0 is empty.
using Tip = Pole_Od_1<uint8_t, 6>;

// A ticket of ten columns, 64 bytes on disk.
struct Tiket {
    Pole_Od_1<Tip, 10> Cisla;
    int32_t Cislo_Tiketu = 0;
    friend bool operator==(const Tiket&, const Tiket&) = default;
};

inline constexpr int Max_Tiketu = 950;
inline constexpr int Sloupcu_Tiketu = 10;
