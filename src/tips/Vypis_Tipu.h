#pragma once
// The tip list as text and the changes made through it: the lines of List1 built from the store
// (a head line a ticket, a line a tip, a blank line after each ticket, 12 lines a ticket), a tip
// added by hand, a tip deleted with the gap closed, and ticket numbers changed. No window: the
// tip list binds its controls to these.

#include "core/Prubeh.h"
#include "core/Vysledek.h"
#include "data/Soubor_Tipu.h"

#include <QStringList>

#include <array>

inline constexpr int Max_Tipu = Max_Tiketu * Sloupcu_Tiketu; // 9500
inline constexpr int Radku_Na_Tiket = 12;

struct Vypis_Tipu {
    QStringList Radky;                    // every line of List1, in order
    int Pocet_Tipu_Celkem = 0;            // tip lines listed
    std::array<bool, 50> Pouzita_Cisla{}; // [n]: number n stands in some listed tip
    bool Netrideno = false;               // a tip line is out of order: the sort is worth offering
};

// The head line of a ticket: "číslo tiketu - " and its number.
QString Hlavicka_Tiketu(int32_t cislo_tiketu);
// A tip line: four blanks, then each number followed by five blanks if it has one digit (0
// included) and three if it has two, so that the numbers stand in cells of one width.
QString Radek_Tipu(const Tip& tip);

// Lists the store ticket by ticket. An empty column ends the listing at once; once more tips than
// `pocet_tipu_aktivni` are listed, the remaining columns are skipped.
Vypis_Tipu Vypis_Tipu_Do_Listu(const Zaznam_Tipu& tipy, int pocet_tipu_aktivni, const Prubeh& prubeh = {});

// The used numbers as the status band shows them (" 1 5 17 …") and how many they are.
QString Text_Pouzitych_Cisel(const std::array<bool, 50>& pouzita, int& pocet);

// Adds the tip, sorted, right after the last tip present in the store, opening a new ticket on its
// first column; pocet_tipu_aktivni and Pocet_Tipu become the tips present. At 9500 tips nothing
// changes and the message says so.
Vysledek Pridej_Tip(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, Tip tip);

// Deletes the tip at ticket, column (1-based) and closes the gap: every tip behind it moves one
// place forward, a ticket emptied at the end goes, and the counts follow. The first ticket keeps
// its number and each following one takes the number after the one before.
void Zrus_Tip(Zaznam_Tipu& tipy, int tiket, int sloupec);

// Whether some ticket of the store bears the number.
bool Cislo_Tiketu_Pouzito(const Zaznam_Tipu& tipy, int32_t cislo);
// Every ticket numbered `stare` takes `nove`; refused when `nove` is borne already (also when it
// equals `stare`).
Vysledek Zmen_Cislo_Tiketu(Zaznam_Tipu& tipy, int32_t stare, int32_t nove);
