#include "core/pTikety.h"


#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Uhlopricky = std::array<std::array<int, 5>, 12>;

// The diagonals of the grid as they stand on the paper ticket. They are listed, not computed:
// a run that would wrap over the edge of the grid is not a diagonal, and one-cell runs do not count.
constexpr Uhlopricky Lev_Do_Prav = {{
    {4, 10},
    {3, 9, 15},
    {2, 8, 14, 20},
    {1, 7, 13, 19, 25},
    {6, 12, 18, 24, 30},
    {11, 17, 23, 29, 35},
    {16, 22, 28, 34, 40},
    {21, 27, 33, 39, 45},
    {26, 32, 38, 44},
    {31, 37, 43, 49},
    {36, 42, 48},
    {41, 47},
}};

constexpr Uhlopricky Prav_Do_Lev = {{
    {2, 6},
    {3, 7, 11},
    {4, 8, 12, 16},
    {5, 9, 13, 17, 21},
    {10, 14, 18, 22, 26},
    {15, 19, 23, 27, 31},
    {20, 24, 28, 32, 36},
    {25, 29, 33, 37, 41},
    {30, 34, 38, 42, 46},
    {35, 39, 43, 47},
    {40, 44, 48},
    {45, 49},
}};

void Zapocitej_Uhlopricku(const Uhlopricky& tabulka, int cislo, Pole_Od_1<int, 12>& k) {
    if (cislo <= 0)
        return;
    for (int u = 0; u < 12; ++u)
        if (std::find(tabulka[std::size_t(u)].begin(), tabulka[std::size_t(u)].end(), cislo) !=
            tabulka[std::size_t(u)].end()) {
            ++k[u + 1];
            return;
        }
}

struct Pasmo {
    double Od, Do;
    int Cislo;
};

// The first band that holds the value, 0 if none; both ends count.
template <std::size_t N> int Najdi_Pasmo(const std::array<Pasmo, N>& pasma, double hodnota) {
    for (const Pasmo& p : pasma)
        if (hodnota >= p.Od && hodnota <= p.Do)
            return p.Cislo;
    return 0;
}

constexpr std::array<Pasmo, 10> Radky_Cisel = {{{75, 315, 1},
                                                {450, 675, 2},
                                                {765, 1050, 3},
                                                {1150, 1380, 4},
                                                {1470, 1740, 5},
                                                {1800, 2040, 6},
                                                {2160, 2415, 7},
                                                {2505, 2745, 8},
                                                {2850, 3090, 9},
                                                {3195, 3450, 10}}};
constexpr std::array<Pasmo, 5> Sloupce_Cisel = {
    {{70, 345, 1}, {465, 690, 2}, {765, 1005, 3}, {1130, 1380, 4}, {1450, 1710, 5}}};

constexpr std::array<Pasmo, 4> Volba_U = {{{60, 340, 1}, {420, 700, 2}, {765, 1045, 3}, {1440, 1720, 4}}};
// Bands 3 and 4 overlap; the earlier one wins.
constexpr std::array<Pasmo, 7> Volba_V = {{{240, 520, 1},
                                           {600, 880, 2},
                                           {1215, 1495, 3},
                                           {1440, 1720, 4},
                                           {1800, 2080, 5},
                                           {2175, 2455, 6},
                                           {2520, 2800, 7}}};
// Field of the draw-choice box by band v (rows) and u (columns); 0 where the box has no field.
constexpr int Pole_Volby[7][4] = {
    {1, 0, 0, 3}, {2, 0, 0, 0}, {4, 0, 0, 0}, {14, 0, 0, 0}, {5, 6, 7, 15}, {8, 9, 10, 16}, {11, 12, 13, 17},
};

} // namespace

void pTikety::Pumpuj() {
    if (Pumpa)
        Pumpa();
}

bool pTikety::Procenta(double a, double b, double c, double& d, double e, double& f) {
    const double p = double(Vb::Div(100 * ((a + b) - (c - d)), e));
    Pumpuj();
    if (f < p) {
        f = p;
        return true;
    }
    return false;
}

double pTikety::Ti() {
    const double tipy = Pocet_Tipu_Vysledek;
    const double t = double(Vb::Div(tipy, Sloupcu_Na_Tiketu));
    if (t == 0 && tipy > 0)
        return 1;
    if (Vb::Mod(tipy, Sloupcu_Na_Tiketu) > 0)
        return t + 1;
    return t;
}

double pTikety::Pocet_Tipu() {
    const double castka = Castka.Korun();
    auto zbytek = [&](double tipy, double tikety) {
        return castka - Cena_Tipu * tipy - Cena_Tiketu * tikety - Poplatek;
    };
    // No price, no tips: the division below and the loop of step 4 would never end.
    double tipy = Cena_Tipu > 0 ? std::max(0.0, Vb::Int((castka - Poplatek) / Cena_Tipu)) : 0.0;
    Pocet_Tipu_Vysledek = tipy;
    double tikety = Ti();
    Zbytek_Vysledek = zbytek(tipy, tikety);
    if (Cena_Tipu > 0 && (Zbytek_Vysledek < 0 || Zbytek_Vysledek > 12)) {
        // A rest between 0 and 12 is held as 12 here; Zbytek() works out the true one afterwards.
        while (Zbytek_Vysledek < Cena_Tipu && tipy > 0 && tipy - 1 != tipy) {
            tipy -= 1;
            Pocet_Tipu_Vysledek = tipy;
            tikety = Ti();
            Zbytek_Vysledek = zbytek(tipy, tikety);
            if (Zbytek_Vysledek > 0 && Zbytek_Vysledek < 12)
                Zbytek_Vysledek = 12;
        }
    }
    return tipy;
}

double pTikety::Pocet_Tiketu() {
    const double tipy = Pocet_Tipu();
    Pocet_Tipu_Vysledek = tipy;
    double t = double(Vb::Div(tipy, Sloupcu_Na_Tiketu));
    if (Vb::Mod(tipy, Sloupcu_Na_Tiketu) > 0)
        t += 1;
    Pocet_Tiketu_Vysledek = t;
    return t;
}

double pTikety::Zbytek() {
    return Castka.Korun() - Cena_Tipu * Pocet_Tipu_Vysledek - Cena_Tiketu * Pocet_Tiketu_Vysledek - Poplatek;
}

double pTikety::Faktorial(int n) {
    double f = 1;
    for (int i = 2; i <= n && std::isfinite(f); ++i)
        f *= i;
    return f;
}

void pTikety::Zjisti_Tik_Slo(int index, int na_tiket, int& tiket, int& sloupec) {
    if (na_tiket == 0) {
        tiket = 1;
        sloupec = 0;
        return;
    }
    tiket = 1 + int(std::floor(double(index) / na_tiket));
    sloupec = index % na_tiket;
}

void pTikety::Poradi_Tip_CelkSlo(int druh, int radek, int& celkem, int& sloupec) {
    auto cela_deleni = [](int a, int b) { return int(std::floor(double(a) / b)); };
    if (druh == 0) {
        celkem = radek % 12 + 10 * cela_deleni(radek, 12);
        sloupec = celkem - 10 * cela_deleni(celkem, 10);
    } else if (druh == 1) {
        sloupec = radek - 10 * cela_deleni(radek, 10);
    }
    if (sloupec == 0)
        sloupec = 10;
}

QString pTikety::Dej_Jmeno_Souboru(int druh, const QString& cesta) {
    const QString jmeno = cesta.mid(std::max(cesta.lastIndexOf(u'/'), cesta.lastIndexOf(u'\\')) + 1);
    if (druh == 2)
        return jmeno.section(u'.', 0, 0);
    return jmeno;
}

bool pTikety::Setridit(const QString& text) {
    std::vector<int> cisla;
    const QStringList kusy = text.split(u' ', Qt::SkipEmptyParts);
    for (const QString& kus : kusy) {
        const double v = Vb::Val(kus);
        if (v > 0 && cisla.size() < 7)
            cisla.push_back(int(std::clamp<int64_t>(Vb::Zaokrouhli(v), 0, 255)));
    }
    return !std::is_sorted(cisla.begin(), cisla.end());
}

bool pTikety::Dvojice_Je(int a, int b) { return b == a + 1 || b == a - 1; }

bool pTikety::Trojice_Je(int a, int b, int c) {
    return (b == a + 1 && c == a + 2) || (b == a + 2 && c == a + 1) || (b == a - 1 && c == a + 1) ||
           (b == a + 1 && c == a - 1) || (b == a - 2 && c == a - 1) || (b == a - 1 && c == a - 2);
}

bool pTikety::Cisla_Pod_Sebou(int druh, int limit, const Tip& aktualni_tip) {
    const Tip& t = aktualni_tip;
    int pocet = 0;
    if (druh == 2) {
        for (int i = 1; i <= 5; ++i)
            for (int j = i + 1; j <= 6; ++j)
                if (t[j] == t[i] + 5 || t[j] == t[i] - 5)
                    ++pocet;
    } else if (druh == 3) {
        // The five shapes are kept as the filter has always had them; on a sorted tip only the
        // second one can fire.
        for (int i = 1; i <= 4; ++i) {
            const int a = t[i];
            for (int j = i + 1; j <= 5; ++j)
                for (int k = j + 1; k <= 6; ++k)
                    if ((t[k] == a - 5 && t[j] == a + 5) || (t[k] == a + 10 && t[j] == a + 5) ||
                        (t[k] == a - 10 && t[j] == a + 5) || (t[k] == a - 5 && t[j] == a + 10) ||
                        (t[k] == a - 10 && t[j] == a + 10))
                        ++pocet;
        }
    } else {
        return false;
    }
    return pocet > limit;
}

void pTikety::Tip_Slo_Poc_Cis(int cislo, Pole_Od_1<int, 5>& s) {
    if (cislo >= 1 && cislo <= 49)
        ++s[(cislo - 1) % 5 + 1];
}

void pTikety::Tip_Rad_Poc_Cis(int cislo, Pole_Od_1<int, 10>& r) {
    if (cislo >= 1 && cislo <= 49)
        ++r[(cislo - 1) / 5 + 1];
}

void pTikety::Tip_Kriz_LevDoPrav(int cislo, Pole_Od_1<int, 12>& k) { Zapocitej_Uhlopricku(Lev_Do_Prav, cislo, k); }

void pTikety::Tip_Kriz_PravDoLev(int cislo, Pole_Od_1<int, 12>& k) { Zapocitej_Uhlopricku(Prav_Do_Lev, cislo, k); }

void pTikety::Dej_Rad_Sloup(int cislo, int& rad, int& sloup) {
    rad = int(std::floor(cislo / 5.0));
    sloup = cislo % 5 - 1;
    if (sloup == -1) {
        sloup = 4;
        rad = rad - 1;
    }
}

uint8_t pTikety::Cislo_Ve_Sloupci(double x, double y) {
    Radek_Mys = Najdi_Pasmo(Radky_Cisel, y);
    Sloupec_Mys = Najdi_Pasmo(Sloupce_Cisel, x);
    if (Radek_Mys == 0 || Sloupec_Mys == 0)
        return 0;
    // The empty cell after 49 gives 50; the callers refuse it.
    return uint8_t(5 * Radek_Mys - (5 - Sloupec_Mys));
}

void pTikety::Volba_Slosovani_ATD(double x, double y, int& volba, bool& nalezeno) {
    const int u = Najdi_Pasmo(Volba_U, x);
    const int v = Najdi_Pasmo(Volba_V, y);
    if (u > 0 && v > 0 && Pole_Volby[v - 1][u - 1] != 0)
        volba = Pole_Volby[v - 1][u - 1];
    nalezeno = volba != 0;
}

Vysledek pTikety::Analyzuj_Cislo(int cislo, int pocet_tydnu, const std::vector<Tah>& tahy_1,
                                 const std::vector<Tah>& tahy_2, QString& posledni_1, QString& posledni_2,
                                 QString& pocet_1, QString& pocet_2) {
    if (pocet_tydnu == 0)
        // The weeks come from the settings window: the user hears where to set them.
        return Vysledek::Chyba(
            u"Pro analýzu v tazích, nastavte počet týdnů v \"Nastavení - TiP\" (Program - Nastavení, stránka "
            u"Analýza tahů, Počet týdnů analýzy tipů)."_qs);
    posledni_1.clear();
    posledni_2.clear();
    pocet_1.clear();
    pocet_2.clear();
    if (cislo == 0)
        return Vysledek::Uspech();
    auto projdi = [&](const std::vector<Tah>& tahy, QString& posledni, QString& pocet) {
        const int n = int(tahy.size()) - 1;
        // A count beyond the archive stops at its first draw.
        const int od = std::max(1, n - pocet_tydnu);
        for (int i = n; i >= od; --i) {
            for (int p = 1; p <= 6; ++p)
                if (tahy[std::size_t(i)][p] == cislo) {
                    pocet = Vb::Text(Vb::Val(pocet) + 1);
                    if (Vb::Val(posledni) == 0)
                        posledni = Vb::Text(n - i + 1);
                }
            Pumpuj();
        }
    };
    projdi(tahy_1, posledni_1, pocet_1);
    projdi(tahy_2, posledni_2, pocet_2);
    return Vysledek::Uspech();
}
