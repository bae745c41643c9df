#pragma once
// The geometry of the Sportka paper ticket and the arithmetic of tickets, columns and money.
// One instance lives for the whole session; callers set the input members, then call the operations.
// It holds no file and no window: the event pump of long loops is handed in as a callback.

#include "core/Pole_Od_1.h"
#include "core/Vb.h"
#include "core/Vysledek.h"
#include "core/Tip.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

class pTikety final {
public:
    // Money arithmetic: inputs.
    double Cena_Tipu = 0;         // price of one tip (column)
    double Cena_Tiketu = 0;       // charged per ticket besides the tips
    double Sloupcu_Na_Tiketu = 0; // callers set 10
    Vb::Mena Castka;              // the sum to be spent
    double Poplatek = 0;          // taken off the sum once
    // Money arithmetic: the last results.
    double Pocet_Tipu_Vysledek = 0;
    double Pocet_Tiketu_Vysledek = 0;
    double Zbytek_Vysledek = 0;

    int16_t Pocet_Tahu_1 = 0; // first draws in the loaded archive
    int16_t Pocet_Tahu_2 = 0; // second draws in the loaded archive
    double Procenta_Celkem = 0;
    double Procenta_Dilci = 0;
    uint8_t Den_Tahu = 0;    // 1 Wednesday, 2 Friday, 0 Sunday
    bool Zmena_Dat = false;  // data changed and not saved
    bool Zrusit_Beh = false; // long jobs read it after each pump of events
    Vb::Mena Vklad;          // stake of the tip file for one draw day
    Vb::Mena Vklad_Sance;    // the Šance part of Vklad

    // Row (1..10) and grid column (1..5) found by the last Cislo_Ve_Sloupci, 0 where none.
    int Radek_Mys = 0;
    int Sloupec_Mys = 0;

    // Lets the window's events run; empty in the engine and in tests.
    std::function<void()> Pumpa;

    // Progress: p = Int((100 * ((a + b) - (c - d))) \ e). True (and f = p) only when p exceeds f,
    // so a loop repaints its bar at most 100 times. Pumps events once per call.
    bool Procenta(double a, double b, double c, double& d, double e, double& f);

    double Ti();           // tickets needed for Pocet_Tipu_Vysledek tips
    double Pocet_Tipu();   // tips that Castka pays for
    double Pocet_Tiketu(); // tickets for them; also stores both results
    double Zbytek();       // the money left over, from the stored results
    static double Faktorial(int n);

    // List arithmetic over a list of 12 lines per ticket.
    static void Zjisti_Tik_Slo(int index, int na_tiket, int& tiket, int& sloupec);
    static void Poradi_Tip_CelkSlo(int druh, int radek, int& celkem, int& sloupec);
    // druh 2: the file name without extension (up to the first dot); otherwise with it.
    static QString Dej_Jmeno_Souboru(int druh, const QString& cesta);
    // True when the numbers of the text (at most 7) are out of ascending order.
    static bool Setridit(const QString& text);

    static bool Dvojice_Je(int a, int b);
    static bool Trojice_Je(int a, int b, int c);
    // druh 2 counts pairs, druh 3 triples of numbers of the tip standing above each other in the grid;
    // true when the count exceeds the limit.
    static bool Cisla_Pod_Sebou(int druh, int limit, const Tip& aktualni_tip);

    // Grid counting: one counter goes up, the one the number falls into.
    static void Tip_Slo_Poc_Cis(int cislo, Pole_Od_1<int, 5>& s);
    static void Tip_Rad_Poc_Cis(int cislo, Pole_Od_1<int, 10>& r);
    static void Tip_Kriz_LevDoPrav(int cislo, Pole_Od_1<int, 12>& k);
    static void Tip_Kriz_PravDoLev(int cislo, Pole_Od_1<int, 12>& k);
    // Zero-based row and column of the number in the grid.
    static void Dej_Rad_Sloup(int cislo, int& rad, int& sloup);

    // Points on the ticket picture, in twips.
    uint8_t Cislo_Ve_Sloupci(double x, double y);
    static void Volba_Slosovani_ATD(double x, double y, int& volba, bool& nalezeno);

    // The number in the last pocet_tydnu + 1 draws of each list (element 0 unused, newest last):
    // how many draws ago it last fell and how often, as texts.
    Vysledek Analyzuj_Cislo(int cislo, int pocet_tydnu, const std::vector<Tah>& tahy_1, const std::vector<Tah>& tahy_2,
                            QString& posledni_1, QString& posledni_2, QString& pocet_1, QString& pocet_2);

private:
    void Pumpuj();
};
