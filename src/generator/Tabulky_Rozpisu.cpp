#include "generator/Tabulky_Rozpisu.h"

namespace modRozpisy {

namespace {

using R = Radek_Rozpisu;

constexpr R Rozpis_2[] = {
    {T1, 1, 2, 6, 10, 12},  {T1, 1, 3, 7, 12, 13},  {T1, 1, 4, 8, 13, 14}, {T1, 1, 5, 9, 14, 15},
    {T1, 2, 3, 4, 5, 11},   {T1, 2, 3, 7, 10, 14},  {T1, 2, 3, 8, 12, 15}, {T1, 2, 8, 9, 10, 13},
    {T1, 3, 6, 7, 9, 11},   {T1, 4, 6, 7, 10, 15},  {T1, 4, 7, 9, 11, 12}, {T1, 5, 6, 11, 13, 15},
    {T1, 5, 7, 8, 10, 12},  {T1, 6, 8, 11, 12, 14},
};

constexpr R Rozpis_7[] = {
    {T1, T2, 1, 3, 6, 7},    {T1, T2, 1, 5, 11, 14},  {T1, T2, 1, 10, 15, 17}, {T1, T2, 2, 4, 8, 12},
    {T1, T2, 2, 4, 13, 18},  {T1, T2, 2, 9, 13, 16},  {T1, T2, 3, 5, 7, 10},   {T1, T2, 3, 7, 11, 15},
    {T1, T2, 3, 7, 14, 17},  {T1, T2, 4, 8, 9, 16},   {T1, T2, 5, 6, 15, 17},  {T1, T2, 6, 10, 11, 14},
    {T1, T2, 8, 12, 13, 18}, {T1, T2, 9, 12, 16, 18}, {T1, T2, 11, 14, 15, 17},
};

constexpr R Rozpis_10[] = {
    {1, 2, 3, 4, 8, 9}, {1, 2, 5, 6, 8, 10}, {1, 4, 6, 7, 9, 10}, {2, 3, 4, 5, 6, 7}, {3, 5, 7, 8, 9, 10},
};

constexpr R Rozpis_13[] = {
    {1, 2, 3, 6, 11, 13}, {1, 7, 9, 10, 11, 14}, {2, 8, 9, 10, 11, 14},
    {3, 6, 8, 9, 10, 15}, {4, 5, 7, 12, 15, 16}, {4, 5, 8, 12, 13, 16},
};

constexpr Tabulka_Rozpisu Tabulky[] = {
    {1, 15, 14, 14, Rozpis_2},
    {2, 18, 15, 15, Rozpis_7},
    {0, 10, 5, 5, Rozpis_10},
    {0, 16, 6, 6, Rozpis_13},
};
constexpr int Cisla_Tabulek[] = {2, 7, 10, 13};

} // namespace

const Tabulka_Rozpisu* Tabulka(int cislo) {
    for (std::size_t i = 0; i < std::size(Cisla_Tabulek); ++i)
        if (Cisla_Tabulek[i] == cislo)
            return &Tabulky[i];
    return nullptr;
}

} // namespace modRozpisy
