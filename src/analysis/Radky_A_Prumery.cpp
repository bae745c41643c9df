// How the numbers of a draw lie on the ticket's grid, the even/odd split of a draw, the numbers
// drawn less or more often than their fair share, the sum of a draw and the gaps between two
// drawings of a number, each over a slice of the first and of the second draws.
//
// Counters are 16-bit as they have always been: one that would pass 32767 is the statistic's
// run-time fault, and so is a sum without a counter or a number outside 1..49 where a statistic
// indexes by it. The run then ends and only the statistic's name is reported.

#include "analysis/Analyza_Tahu.h"

#include "core/Vb.h"
#include "core/pTikety.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace {

constexpr int Cisel = 49;
constexpr int Max_Citac = std::numeric_limits<int16_t>::max();

const QString Slova_Rad[2] = {QStringLiteral("\nPrvní tah"), QStringLiteral("\nDruhý tah")};

// The slice lies inside its list; a slice that does not is an index out of range.
bool Platna(const Rada_Tahu& r) {
    return r.Tahy != nullptr && r.Rozsah_Tahu >= 0 && r.Pocet_Tahy - r.Rozsah_Tahu >= 1 &&
           r.Pocet_Tahy < int(r.Tahy->size());
}

bool Platny_Pocet_Cisel(const Zadani_Analyzy& z) {
    return z.Cisel_V_Tahu >= 1 && z.Cisel_V_Tahu <= Tah::Pocet();
}

bool Platne(const Zadani_Analyzy& z) {
    return Platna(z.Rady[0]) && Platna(z.Rady[1]) && Platny_Pocet_Cisel(z);
}

Vysledek_Analyzy Selhani(const char* proces) {
    Vysledek_Analyzy v;
    v.Selhala = true;
    v.Chyba_Proces = QString::fromLatin1(proces);
    return v;
}

int64_t Tahu_V_Rade(const Rada_Tahu& r) {
    return int64_t(r.Rozsah_Tahu) + 1;
}

// A 16-bit counter cell; false when it would overflow.
bool Pricti(int& citac) {
    if (citac >= Max_Citac)
        return false;
    ++citac;
    return true;
}

// Walks the rows of one series, oldest first; `krok(tah)` returns false on a fault, which ends
// the walk. Progress runs over both series, `hotovo` carries the steps done so far.
template <class Krok> bool Projdi_Radu(const Rada_Tahu& r, Sledovani_Prubehu& sledovani, int64_t& hotovo, Krok krok) {
    for (int t = r.Pocet_Tahy - r.Rozsah_Tahu; t <= r.Pocet_Tahy; ++t) {
        if (!krok((*r.Tahy)[std::size_t(t)]))
            return false;
        sledovani.Krok(++hotovo);
    }
    return true;
}

int64_t Tahu_Celkem(const Zadani_Analyzy& z) {
    return Tahu_V_Rade(z.Rady[0]) + Tahu_V_Rade(z.Rady[1]);
}

// ---- Rows, columns and diagonals ----------------------------------------------------------------

// A pattern is the list of the non-zero counts of the lines of a direction, largest first. Its
// counts never pass 7, so three bits a count make a key that is equal exactly when the texts
// " 4 1 1" of two patterns are equal.
using Vzor = std::initializer_list<int>;

uint32_t Klic(const int* pocty, int n) {
    uint32_t k = 0;
    for (int i = 0; i < n; ++i)
        k = k * 8 + uint32_t(pocty[i]);
    return k;
}

struct Seznam_Vzoru {
    std::vector<uint32_t> Klice;
    QStringList Texty; // without the leading blank, as the report shows them
};

Seznam_Vzoru Udelej_Seznam(std::initializer_list<Vzor> vzory) {
    Seznam_Vzoru s;
    for (const Vzor& v : vzory) {
        std::vector<int> p(v);
        s.Klice.push_back(Klic(p.data(), int(p.size())));
        QString text;
        for (const int n : p)
            text += Vb::Str(int64_t(n));
        s.Texty.append(text.mid(1));
    }
    return s;
}

const Seznam_Vzoru& Vzory_Radku() {
    static const Seznam_Vzoru s = Udelej_Seznam({{5, 1}, {4, 2}, {4, 1, 1}, {3, 3}, {3, 2, 1}, {3, 1, 1, 1},
                                                 {2, 2, 2}, {2, 2, 1, 1}, {2, 1, 1, 1, 1}, {1, 1, 1, 1, 1, 1}});
    return s;
}

const Seznam_Vzoru& Vzory_Sloupcu() {
    static const Seznam_Vzoru s = Udelej_Seznam({{6}, {5, 1}, {4, 2}, {4, 1, 1}, {3, 3}, {3, 2, 1}, {3, 1, 1, 1},
                                                 {2, 2, 2}, {2, 2, 1, 1}, {2, 1, 1, 1, 1}});
    return s;
}

const Seznam_Vzoru& Vzory_Krizu() {
    static const Seznam_Vzoru s = Udelej_Seznam({{4, 2}, {4, 1, 1}, {3, 3}, {3, 2, 1}, {3, 1, 1, 1}, {2, 2, 2},
                                                 {2, 2, 1, 1}, {2, 1, 1, 1, 1}, {1, 1, 1, 1, 1, 1}});
    return s;
}

// The four directions in the order a draw is examined.
enum Smer { Radky, Zleva, Zprava, Sloupce, Smeru };

// For each direction and number 0..255, its line (0 for none), taken once from the ticket's own
// grid counting so that the grid stays in one place.
struct Mrizka {
    std::array<std::array<uint8_t, 256>, Smeru> Cara{};
    std::array<int, Smeru> Car{10, 12, 12, 5};
};

template <int N, class Pocitej> void Zjisti_Cary(std::array<uint8_t, 256>& cara, Pocitej pocitej) {
    for (int cislo = 1; cislo <= Cisel; ++cislo) {
        Pole_Od_1<int, N> citace{};
        pocitej(cislo, citace);
        for (int i = 1; i <= N; ++i)
            if (citace[i] != 0)
                cara[std::size_t(cislo)] = uint8_t(i);
    }
}

const Mrizka& Mrizka_Tiketu() {
    static const Mrizka m = [] {
        Mrizka m;
        Zjisti_Cary<10>(m.Cara[Radky], &pTikety::Tip_Rad_Poc_Cis);
        Zjisti_Cary<12>(m.Cara[Zleva], &pTikety::Tip_Kriz_LevDoPrav);
        Zjisti_Cary<12>(m.Cara[Zprava], &pTikety::Tip_Kriz_PravDoLev);
        Zjisti_Cary<5>(m.Cara[Sloupce], &pTikety::Tip_Slo_Poc_Cis);
        return m;
    }();
    return m;
}

const Seznam_Vzoru& Vzory(int smer) {
    switch (smer) {
    case Radky: return Vzory_Radku();
    case Sloupce: return Vzory_Sloupcu();
    default: return Vzory_Krizu();
    }
}

using Citace_Vzoru = std::array<std::array<int, 10>, Smeru>;

// Adds the draw to the counter of its pattern in each direction; a pattern outside the list of its
// direction counts nowhere.
bool Zapocitej_Vzory(const Tah& tah, int cisel, Citace_Vzoru& citace) {
    const Mrizka& m = Mrizka_Tiketu();
    for (int smer = 0; smer < Smeru; ++smer) {
        std::array<int, 12> pocty{};
        for (int p = 1; p <= cisel; ++p) {
            const int cara = m.Cara[std::size_t(smer)][tah[p]];
            if (cara != 0)
                ++pocty[std::size_t(cara - 1)];
        }
        const int car = m.Car[std::size_t(smer)];
        std::sort(pocty.begin(), pocty.begin() + car, std::greater<>());
        const int nenulovych = int(std::count_if(pocty.begin(), pocty.begin() + car, [](int n) { return n != 0; }));
        const uint32_t klic = Klic(pocty.data(), nenulovych);
        const Seznam_Vzoru& vzory = Vzory(smer);
        for (std::size_t i = 0; i < vzory.Klice.size(); ++i) {
            if (vzory.Klice[i] == klic) {
                if (!Pricti(citace[std::size_t(smer)][i]))
                    return false;
                break;
            }
        }
    }
    return true;
}

// The rows of one direction: pattern, two tabs ("1 1 1 1 1 1" has one), "-" and its count.
void Vypis_Vzoru(QString& text, const Seznam_Vzoru& vzory, const std::array<int, 10>& citace) {
    for (qsizetype i = 0; i < vzory.Texty.size(); ++i) {
        text += u'\n';
        text += vzory.Texty[i];
        text += vzory.Texty[i] == u"1 1 1 1 1 1" ? QStringLiteral("\t-") : QStringLiteral("\t\t-");
        text += Vb::Str(int64_t(citace[std::size_t(i)]));
    }
}

QString Text_Vzoru(int s, const Citace_Vzoru& c) {
    QString text;
    text.reserve(640);
    text += s == 0 ? QStringLiteral("\nPrvní tah kombinace v :") : QStringLiteral("\nDruhý tah kombinace v :");
    text += s == 0 ? QStringLiteral("\nřádku  \t\tpočet") : QStringLiteral("\nřádku\t\tpočet");
    Vypis_Vzoru(text, Vzory_Radku(), c[Radky]);
    text += u'\n';
    text += s == 0 ? QStringLiteral("\nsloupci \t\tpočet") : QStringLiteral("\nsloupci\t\tpočet");
    Vypis_Vzoru(text, Vzory_Sloupcu(), c[Sloupce]);
    text += QStringLiteral("\n\nkříži zleva doprava dolů\n\t\tpočet");
    Vypis_Vzoru(text, Vzory_Krizu(), c[Zleva]);
    text += QStringLiteral("\n\nkříži zprava doleva dolů\n\t\tpočet");
    Vypis_Vzoru(text, Vzory_Krizu(), c[Zprava]);
    return text;
}

// ---- Intervals ----------------------------------------------------------------------------------

struct Interval {
    int Nejnizsi = 100;
    int Nejvyssi = 0;
    int Soucet = 0; // the sum of the gaps, then their average rounded half to even
    int Mezer = 0;
    int Pred = 0;
    int Mezery_Celkem = 0; // the sum of the gaps, kept for the chart
};

// The gaps of each number 1..49 in one series, in draws of the slice; nullopt when a 16-bit
// value would overflow.
std::optional<std::array<Interval, Cisel + 1>> Intervaly(const Rada_Tahu& r, int cisel, Sledovani_Prubehu& sledovani,
                                                         int64_t& hotovo) {
    std::array<Interval, Cisel + 1> vysledek{};
    const int prvni = r.Pocet_Tahy - r.Rozsah_Tahu;
    for (int v = 1; v <= Cisel; ++v) {
        Interval& i = vysledek[std::size_t(v)];
        int posledni = 0;
        int vyskytu = 0;
        int k = 0;
        for (int t = prvni; t <= r.Pocet_Tahy; ++t) {
            ++k;
            const Tah& tah = (*r.Tahy)[std::size_t(t)];
            for (int p = 1; p <= cisel; ++p) {
                if (tah[p] != v)
                    continue;
                if (!Pricti(vyskytu))
                    return std::nullopt;
                if (vyskytu > 1) {
                    const int g = k - posledni;
                    i.Nejvyssi = std::max(i.Nejvyssi, g);
                    i.Nejnizsi = std::min(i.Nejnizsi, g);
                    if (i.Soucet + g > Max_Citac || !Pricti(i.Mezer))
                        return std::nullopt;
                    i.Soucet += g;
                }
                posledni = k;
            }
        }
        if (k - posledni + 1 > Max_Citac)
            return std::nullopt;
        i.Pred = k - posledni + 1;
        i.Mezery_Celkem = i.Soucet;
        if (i.Mezer > 0)
            i.Soucet = int(Vb::Zaokrouhli(double(i.Soucet) / i.Mezer));
        sledovani.Krok(++hotovo);
    }
    return vysledek;
}

} // namespace

Vysledek_Analyzy A_Sloupce_Radky(const Zadani_Analyzy& z, const Prubeh& prubeh) {
    if (!Platny_Pocet_Cisel(z))
        return Selhani("A_Sloupce_Radky");
    Vysledek_Analyzy v;
    v.Nadpis = QStringLiteral("Počet čísel ve směru - řádky, sloupce, kříže");
    Sledovani_Prubehu sledovani(prubeh, Tahu_Celkem(z));
    int64_t hotovo = 0;
    for (int s = 0; s < 2; ++s) {
        // The first text goes to the report file before the second series is read, so a fault in
        // the second series comes back with the title and the first text already made.
        const Rada_Tahu& r = z.Rady[std::size_t(s)];
        Citace_Vzoru citace{};
        if (!Platna(r) || !Projdi_Radu(r, sledovani, hotovo, [&](const Tah& tah) {
                return Zapocitej_Vzory(tah, z.Cisel_V_Tahu, citace);
            })) {
            v.Selhala = true;
            v.Chyba_Proces = QStringLiteral("A_Sloupce_Radky");
            return v;
        }
        (s == 0 ? v.Text_1 : v.Text_2) = Text_Vzoru(s, citace);
    }
    return v;
}

Vysledek_Analyzy A_Suda_Licha(const Zadani_Analyzy& z, const Prubeh& prubeh) {
    if (!Platne(z))
        return Selhani("A_Suda_Licha");
    const int n = z.Cisel_V_Tahu;
    // By the number of even values in the draw; an empty place, a 0, is even.
    std::array<std::array<int, Tah::Pocet() + 1>, 2> citace{};
    Sledovani_Prubehu sledovani(prubeh, Tahu_Celkem(z));
    int64_t hotovo = 0;
    for (int s = 0; s < 2; ++s) {
        const bool dobehlo = Projdi_Radu(z.Rady[std::size_t(s)], sledovani, hotovo, [&](const Tah& tah) {
            int sudych = 0;
            for (int p = 1; p <= n; ++p)
                if (tah[p] % 2 == 0)
                    ++sudych;
            return Pricti(citace[std::size_t(s)][std::size_t(sudych)]);
        });
        if (!dobehlo)
            return Selhani("A_Suda_Licha");
    }

    Vysledek_Analyzy v;
    v.Nadpis = QStringLiteral("Poměr čísel sudých k lichým");
    v.Graf.Nazev = v.Nadpis;
    QStringList popisky;
    for (int sude = 0; sude <= n; ++sude) {
        popisky.append(Vb::Str(int64_t(sude)) + QStringLiteral(" /") + Vb::Str(int64_t(n - sude)) +
                       QStringLiteral("  -"));
        v.Graf.Popisky.append(QString::number(sude) + QStringLiteral(" / ") + QString::number(n - sude));
    }
    for (int s = 0; s < 2; ++s) {
        QString& text = s == 0 ? v.Text_1 : v.Text_2;
        text.reserve(160);
        text += Slova_Rad[s];
        for (int sude = 0; sude <= n; ++sude) {
            const int pocet = citace[std::size_t(s)][std::size_t(sude)];
            text += u'\n' + popisky[sude] + Vb::Str(int64_t(pocet)) + u'x';
            v.Graf.Hodnoty[std::size_t(s)].push_back(pocet);
        }
    }
    return v;
}

Vysledek_Analyzy A_Prumerne_Tazeno(const Zadani_Analyzy& z, const Prubeh& prubeh) {
    // The statistic has no handler of its own: a fault here is still reported under its name.
    if (!Platne(z))
        return Selhani("A_Prumerne_Tazeno");
    std::array<std::array<int, Cisel + 1>, 2> pocty{};
    Sledovani_Prubehu sledovani(prubeh, Tahu_Celkem(z));
    int64_t hotovo = 0;
    for (int s = 0; s < 2; ++s) {
        const bool dobehlo = Projdi_Radu(z.Rady[std::size_t(s)], sledovani, hotovo, [&](const Tah& tah) {
            for (int p = 1; p <= z.Cisel_V_Tahu; ++p) {
                const int c = tah[p];
                if (c == 0)
                    continue;
                if (c > Cisel || !Pricti(pocty[std::size_t(s)][std::size_t(c)]))
                    return false;
            }
            return true;
        });
        if (!dobehlo)
            return Selhani("A_Prumerne_Tazeno");
    }

    Vysledek_Analyzy v;
    v.Nadpis = QStringLiteral("Průměrně tažená čísla ");
    const bool nad = z.Rezim_Prumeru == 1;
    for (int s = 0; s < 2; ++s) {
        const auto& p = pocty[std::size_t(s)];
        const auto [nejnizsi, nejvyssi] = std::minmax_element(p.begin() + 1, p.end());
        v.Min_Pocet[std::size_t(s)] = *nejnizsi;
        v.Max_Pocet[std::size_t(s)] = *nejvyssi;
        // The fair share of one number: always six numbers a draw, over one draw fewer than the
        // slice holds.
        const int prumer = int(Vb::Int(z.Rady[std::size_t(s)].Rozsah_Tahu * 6.0 / 49.0));

        QString& text = s == 0 ? v.Text_1 : v.Text_2;
        text.reserve(512);
        text += s == 0 ? QStringLiteral("\nPrvní tah") : QStringLiteral("\nDruhý tah");
        text += nad ? QStringLiteral(" - vyšší průměr než  >") : QStringLiteral(" - menší průměr než  <");
        text += Vb::Str(int64_t(prumer)) + u'x';
        for (int c = *nejnizsi; c <= *nejvyssi; ++c) {
            if (nad ? c < prumer : (c < 1 || c > prumer))
                continue;
            QString bunka;
            for (int n = 1; n <= Cisel; ++n) {
                if (p[std::size_t(n)] != c)
                    continue;
                if (bunka.isEmpty())
                    bunka = Vb::Str(int64_t(c)) + QStringLiteral("x - ");
                bunka += Vb::Str(int64_t(n)) + u',';
            }
            if (!bunka.isEmpty())
                text += u'\n' + bunka;
        }
    }
    return v;
}

Vysledek_Analyzy A_Suma_Tahu(const Zadani_Analyzy& z, const Prubeh& prubeh) {
    if (!Platne(z))
        return Selhani("A_Suma_Tahu");
    // Counters for the lowest sum of six numbers up to the highest of seven.
    constexpr int Od_Sumy = 21;
    constexpr int Do_Sumy = 322;
    std::array<std::array<int, Do_Sumy + 1>, 2> citace{};
    Sledovani_Prubehu sledovani(prubeh, Tahu_Celkem(z));
    int64_t hotovo = 0;
    for (int s = 0; s < 2; ++s) {
        const bool dobehlo = Projdi_Radu(z.Rady[std::size_t(s)], sledovani, hotovo, [&](const Tah& tah) {
            int suma = 0;
            for (int p = 1; p <= z.Cisel_V_Tahu; ++p)
                suma += tah[p];
            return suma >= Od_Sumy && suma <= Do_Sumy && Pricti(citace[std::size_t(s)][std::size_t(suma)]);
        });
        if (!dobehlo)
            return Selhani("A_Suma_Tahu");
    }

    Vysledek_Analyzy v;
    v.Nadpis = QStringLiteral("Suma tahu - součet čísel v tahu");
    for (int s = 0; s < 2; ++s)
        v.Max_Pocet[std::size_t(s)] =
            *std::max_element(citace[std::size_t(s)].begin() + Od_Sumy, citace[std::size_t(s)].end());
    // Each series lists its counts up to its own highest: bounding the second by the first would
    // leave out its most frequent sums, which the chart shows.
    for (int s = 0; s < 2; ++s) {
        const auto& c = citace[std::size_t(s)];
        const int do_poctu = v.Max_Pocet[std::size_t(s)];
        QString& text = s == 0 ? v.Text_1 : v.Text_2;
        text.reserve(2048);
        text += s == 0 ? QStringLiteral("\nPrvní tah :") : QStringLiteral("\nDruhý tah :");
        for (int pocet = 1; pocet <= do_poctu; ++pocet) {
            bool zacato = false;
            for (int suma = Od_Sumy; suma <= Do_Sumy; ++suma) {
                if (c[std::size_t(suma)] != pocet)
                    continue;
                if (!zacato) {
                    text += u'\n' + QString::number(pocet) + QStringLiteral("x\n  ");
                    zacato = true;
                }
                text += Vb::Str(int64_t(suma)) + u',';
            }
        }
    }

    // The chart runs over the sums drawn in either series.
    int od = Do_Sumy + 1;
    int do_ = Od_Sumy - 1;
    for (int suma = Od_Sumy; suma <= Do_Sumy; ++suma) {
        if (citace[0][std::size_t(suma)] != 0 || citace[1][std::size_t(suma)] != 0) {
            od = std::min(od, suma);
            do_ = std::max(do_, suma);
        }
    }
    v.Graf.Nazev = v.Nadpis;
    for (int suma = od; suma <= do_; ++suma) {
        v.Graf.Popisky.append(QString::number(suma));
        for (int s = 0; s < 2; ++s)
            v.Graf.Hodnoty[std::size_t(s)].push_back(citace[std::size_t(s)][std::size_t(suma)]);
    }
    return v;
}

Vysledek_Analyzy A_Interval_Cisla(const Zadani_Analyzy& z, const Prubeh& prubeh) {
    if (!Platne(z))
        return Selhani("A_Interval_Cisla");
    // A threshold above 999 means none.
    const double prah = z.Prah > 999 ? 0 : z.Prah;
    Sledovani_Prubehu sledovani(prubeh, 2 * Cisel);
    int64_t hotovo = 0;

    Vysledek_Analyzy v;
    v.Nadpis = QStringLiteral("Týdenní interval tažení čísla");
    v.Graf.Nazev = v.Nadpis;
    for (int n = 1; n <= Cisel; ++n)
        v.Graf.Popisky.append(QString::number(n));
    for (int s = 0; s < 2; ++s) {
        const auto intervaly = Intervaly(z.Rady[std::size_t(s)], z.Cisel_V_Tahu, sledovani, hotovo);
        if (!intervaly)
            return Selhani("A_Interval_Cisla");
        QString& text = s == 0 ? v.Text_1 : v.Text_2;
        text.reserve(1536);
        text += Slova_Rad[s];
        text += QStringLiteral("\nčís.   nejnižší / nejvyšší\ttaženo před\tprůměr");
        int64_t soucet_mezer = 0;
        int64_t mezer = 0;
        for (int n = 1; n <= Cisel; ++n) {
            const Interval& i = (*intervaly)[std::size_t(n)];
            // The chart shows the exact average gap, the report its rounded value.
            v.Graf.Hodnoty[std::size_t(s)].push_back(i.Mezer > 0 ? double(i.Mezery_Celkem) / i.Mezer : 0.0);
            soucet_mezer += i.Mezery_Celkem;
            mezer += i.Mezer;
            if (i.Pred < prah || i.Nejvyssi < 1)
                continue;
            text += u'\n' + Vb::Str(int64_t(n)) + QStringLiteral(",\t") + Vb::Str(int64_t(i.Nejnizsi)) + u'\t' +
                    Vb::Str(int64_t(i.Nejvyssi)) + u'\t' +
                    (i.Nejvyssi < i.Pred ? QStringLiteral("<") : QStringLiteral("  ")) + Vb::Str(int64_t(i.Pred)) +
                    QStringLiteral("\t\t") + Vb::Str(int64_t(i.Soucet));
        }
        v.Graf.Prumer[std::size_t(s)] = mezer > 0 ? double(soucet_mezer) / double(mezer) : NAN;
    }
    return v;
}
