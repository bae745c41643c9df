#pragma once
// A tip and a draw as numbers on the ticket, and their bitmasks: bit x stands for number x, so two
// of them meet in one AND and a popcount. The generator's filters and the evaluation share these.

#include "core/Pole_Od_1.h"

#include <cstdint>

// One column of a ticket: six numbers 1..49, 0 empty. A column whose first number is 0 is empty.
using Tip = Pole_Od_1<uint8_t, 6>;

// One draw: six drawn numbers and the supplementary number, 0 meaning no number.
using Tah = Pole_Od_1<uint8_t, 7>;

// Bit x set for each number x of positions od..6; an empty cell sets nothing.
uint64_t Maska_Tipu(const Tip& tip, int od = 1);

// The mask of a tip whose six numbers are distinct and 1..49; 0 for any other tip, which callers
// then compare number by number.
uint64_t Maska_Cisteho_Tipu(const Tip& tip);

// The six drawn numbers of a draw that lie in 1..49; the supplementary number is left out.
uint64_t Maska_Tahu(const Tah& tah);
