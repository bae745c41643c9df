#pragma once
// The number pools of the generator: the numbers to use, to leave out or to wheel, the test list
// that the run reads, and every way of filling them that needs no window (a click on the grid, a
// range, a random set, the key over the last draws, the text of the status band).
// The txtTutovka boxes belong to the window; these functions take their values as an array of
// three numbers, 0 for an empty box, and write it back where the boxes change.

#include "core/Pole_Od_1.h"
#include "core/Vysledek.h"

#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

class Random;
struct Archiv_Tahu;

using Seznam_Cisel = Pole_Od_1<uint8_t, 49>;
// Values of txtTutovka(0..2); 0 is an empty box.
using Boxy_Tutovek = std::array<uint8_t, 3>;

// Colours of a mark on the grid.
inline constexpr int Barva_Cerna = 0;
inline constexpr int Barva_Cervena = 12; // a tutovka

struct Vyber_Cisel {
    Seznam_Cisel Cisla_Pouzit{};
    int Pocet_Pouzit = 0;
    Seznam_Cisel Cisla_Vynechat{};
    int Pocet_Vynechat = 0;
    Seznam_Cisel Cisla_Rozpisu{}; // the wheel's input; after Priprav_Okruh its tutovky stand last
    int Pocet_Rozpisu = 0;
    Seznam_Cisel Okruh_Cisel{}; // the test list of the run; its tutovky stand behind Pocet_Okruhu
    int Pocet_Okruhu = 0;
    Seznam_Cisel Cisla_Pomocne{}; // what Zamichej_Cisla draws from

    bool Pouzit_Vybrana = false;
    bool Vynechat_Vybrana = false;
    bool Rozpis_Aktivni = false;
    int Volba_Vybrana = 0; // index of optVybrana_Cisla: 0 "Bez výběru", 1 "Použít", 2 "Vynechat"

    int Cisla_Potreba = 49;        // numbers the mode needs: 49 without a wheel
    int Pocet_Tutovek_Rozpisu = 0; // tutovky of the chosen wheel
    int Tutovka_Index = 0;         // next free txtTutovka box
};

// The list in force and its count: the wheel's in wheel mode, else that of "Vynechat", else that
// of "Použít" (which "Bez výběru" fills too).
Seznam_Cisel& Seznam_V_Platnosti(Vyber_Cisel& v);
int& Pocet_V_Platnosti(Vyber_Cisel& v);
int Pocet_V_Platnosti(const Vyber_Cisel& v);
// What txtZbytek_Cisel shows: Cisla_Potreba minus the count of the list in force.
int Zbytek_Cisel(const Vyber_Cisel& v);

// What Serad_Seznam hands to Nastav_Status: the numbers in Str form, " 5 12 33", and their count.
struct Stav_Vyberu {
    QString Rozpis;
    int Pocet = 0;
};
// Sorts the first `pocet` numbers of the list in force ascending.
Stav_Vyberu Serad_Seznam(Vyber_Cisel& v, int pocet);

// Number n (1..49) clicked or applied in colour `barva`. Adds it to the list in force or takes it
// out, and moves the tutovky between the boxes; the window then redraws the grid from the lists and
// the boxes (Prekresli_Seznam), reads the boxes (Nacti_Tutovky) and shows the returned status.
Stav_Vyberu Klik_Cislo(Vyber_Cisel& v, int n, int barva, Boxy_Tutovek& boxy);

// Empties the list in force, as cmdOpakovat does without a wheel file; the boxes stay.
void Vymaz_Seznam(Vyber_Cisel& v);

// cmdOK: builds Okruh_Cisel and Cisla_Pomocne from the list in force and moves the wheel's tutovky
// behind its numbers. Returns the count of numbers without tutovky, Pocet_Okruhu.
int Priprav_Okruh(Vyber_Cisel& v, const Boxy_Tutovek& boxy);

// Puts the first `pocet` numbers of Cisla_Pomocne into Cisla_Rozpisu in random order. Seeded from
// `seminko` when given (a run with a typed seed), else from the clock.
void Zamichej_Cisla(Vyber_Cisel& v, int pocet, Random& random, std::optional<double> seminko = {});

// cmdZamenitCisla: swaps the lists "Použít" and "Vynechat"; the window then selects the other option.
void Zamen_Cisla(Vyber_Cisel& v);

// optRozsah_Cisel(0..3): "vše", "1 - 25", "13 - 37", "25 - 49".
struct Meze_Rozsahu {
    int Dolni_Mez = 1;
    int Horni_Mez = 49;
};
Meze_Rozsahu Rozsah_Cisel(int index);
// The range index that stands: with a wheel, one too small for Cisla_Potreba falls back to 0.
int Platny_Rozsah(const Vyber_Cisel& v, int index);
// Without a wheel a range fills the list in force with its numbers.
Stav_Vyberu Vypln_Rozsah(Vyber_Cisel& v, int index, Boxy_Tutovek& boxy);

// A random set of Cisla_Potreba numbers in the range (Cisla_Nahodna). With `pevna_tutovka` and a
// first box that is not empty, the filled boxes take the first places; with tutovky typed but not
// fixed, their numbers are not drawn. Empty when the range cannot give that many numbers.
std::vector<uint8_t> Nahodna_Sada(const Vyber_Cisel& v, int rozsah, const Boxy_Tutovek& boxy, bool pevna_tutovka,
                                  Random& random, std::optional<double> seminko = {});
// Applies a set in wheel mode: empties the wheel list and the boxes, then the first
// Pocet_Tutovek_Rozpisu numbers go in as tutovky, the rest in black.
Stav_Vyberu Pouzij_Nahodnou_Sadu(Vyber_Cisel& v, const std::vector<uint8_t>& sada, Boxy_Tutovek& boxy);

// cmdVyberPodleKlice: the numbers of the first draws 4, 6, 9, 13 ... back (key 3..9), ascending,
// at most Cisla_Potreba of them. A key that reaches behind the first draw is refused.
Vysledek Vyber_Podle_Klice(const Vyber_Cisel& v, const Archiv_Tahu& archiv, int klic, std::vector<uint8_t>& cisla);

// Nacti_Cisla_Do_Generatoru: the text of txtRozpisAktivni, " 5 12 33", into Cisla_Pouzit by Val,
// from its second blank-separated piece on (at most 49).
void Nacti_Cisla_Z_Textu(Vyber_Cisel& v, const QString& text);

// The pool's part of Kontrola: enough numbers to use, not too many to leave out, a whole wheel.
// `zbytek` is Val of txtZbytek_Cisel.
Vysledek Kontrola_Vyberu(const Vyber_Cisel& v, int cislo_rozpisu, int zbytek);
