#pragma once
// What the generator window keeps between its openings in one session: the filter boxes and their
// limits, the number pools and tutovky, the wheel choice, the Šance box, the seed of the last run.
// The session owns it; the window reads it on load and writes it as its controls change.

#include "generator/Generator.h"
#include "generator/Vyber_Cisel.h"

#include <array>
#include <cstdint>
#include <optional>

struct Stav_Generatoru {
    // Index of lstSportka; -1 until the window has been opened once in this session.
    int Cislo_Rozpisu = -1;

    // Stav_Omezeni(0..10) in Check1 and every limit in its field; the pool, counts and seed of
    // this record are not used.
    Zadani_Generatoru Omezeni;

    Vyber_Cisel Vyber;
    Boxy_Tutovek Tutovky{};
    int Rozsah_Pouzit = 0; // remembered optRozsah_Cisel of "Použít" and "Vynechat"
    int Rozsah_Vynechat = 0;

    bool Stav_Sance = false;
    bool Spojovat_Rozpisy = false;

    int Pocet_Tipu_Hotovo = 0;            // tips made by the last run
    std::optional<uint64_t> Seminko_Behu; // the seed of the last run
};
