#pragma once
// The draw archive: one file a draw day (SpS_tahy.sez Wednesday, SpN_tahy.sez Sunday), a record
// of 956 bytes a year, read whole into memory, and the two flat lists of first and second draws.

#include "app/Pole_Od_1.h"

#include <QString>

#include <cstdint>
#include <vector>

// One draw: six drawn numbers and the supplementary number, 0 meaning no number.
using Tah = Pole_Od_1<uint8_t, 7>;

// A week of the archive, 18 bytes on disk.
struct Tyden_Zaznam {
    Tah Tah1;
    Tah Tah2;
    int16_t Je_Tah1 = 0; // only -1 counts as true
    int16_t Je_Tah2 = 0;
    friend bool operator==(const Tyden_Zaznam&, const Tyden_Zaznam&) = default;
};

// A year of the archive, 956 bytes on disk. Rok 0 marks the end of the data.
struct Rok_Zaznam {
    int16_t Rok = 0;
    Pole_Od_1<Tyden_Zaznam, 53> Tyden;
    friend bool operator==(const Rok_Zaznam&, const Rok_Zaznam&) = default;
};

inline constexpr int Delka_Tydne = 18;
inline constexpr int Delka_Roku = 2 + 53 * Delka_Tydne; // 956
