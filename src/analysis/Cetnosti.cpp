// How often numbers, supplementary numbers, adjacent pairs, adjacent triples and any pairs were
// drawn in a slice of each series, listed in groups by count, the rarest first.
//
// Counters are 16-bit as they have always been. A number outside 1..49 where a statistic indexes
// by it, or a counter that would pass 32767, is the run-time fault of the statistic: the run ends
// and only the statistic's name is reported.

#include "analysis/Analyza_Tahu.h"

#include "core/Vb.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace {

constexpr int Cisel = 49;
constexpr int Trojic = 47; // the consecutive triples 1-2-3 .. 47-48-49

const QString Slova_Rad[2] = {QStringLiteral("\nPrvní tah"), QStringLiteral("\nDruhý tah")};

// Str of the numbers 1..49, made once: the triple listing with threshold 0 writes thousands.
const QString& Str_Cisla(int n) {
    static const auto texty = [] {
        std::array<QString, Cisel + 1> t;
        for (int i = 0; i <= Cisel; ++i)
            t[std::size_t(i)] = Vb::Str(int64_t(i));
        return t;
    }();
    return texty[std::size_t(n)];
}

// A counter cell; false when it would overflow its 16 bits.
bool Pricti(int16_t& citac) {
    if (citac == std::numeric_limits<int16_t>::max())
        return false;
    ++citac;
    return true;
}

bool Je_Cislo(int n) {
    return n >= 1 && n <= Cisel;
}

// Both slices lie inside their lists and the positions read lie inside a row; anything else is
// an index out of range.
bool Platne(const Zadani_Analyzy& z) {
    const auto platna = [](const Rada_Tahu& r) {
        return r.Tahy != nullptr && r.Rozsah_Tahu >= 0 && r.Pocet_Tahy - r.Rozsah_Tahu >= 1 &&
               r.Pocet_Tahy < int(r.Tahy->size());
    };
    return platna(z.Rady[0]) && platna(z.Rady[1]) && z.Cisel_V_Tahu >= 1 && z.Cisel_V_Tahu <= Tah::Pocet();
}

// Walks the rows of both series, oldest first, reporting progress after each row. `krok(s, tah)`
// gets a copy of the row, which the pair and triple statistics reorder while they read it: the
// archive stays as drawn. It returns false on a fault, which ends the walk.
template <class Krok> bool Projdi_Tahy(const Zadani_Analyzy& z, const Prubeh& prubeh, Krok krok) {
    const int64_t celkem = int64_t(z.Rady[0].Rozsah_Tahu) + 1 + z.Rady[1].Rozsah_Tahu + 1;
    Sledovani_Prubehu sledovani(prubeh, celkem);
    int64_t hotovo = 0;
    for (int s = 0; s < 2; ++s) {
        const Rada_Tahu& r = z.Rady[std::size_t(s)];
        for (int t = r.Pocet_Tahy - r.Rozsah_Tahu; t <= r.Pocet_Tahy; ++t) {
            Tah radek = (*r.Tahy)[std::size_t(t)];
            if (!krok(s, radek))
                return false;
            sledovani.Krok(++hotovo);
        }
    }
    return true;
}

Vysledek_Analyzy Selhani(const char* proces) {
    Vysledek_Analyzy v;
    v.Selhala = true;
    v.Chyba_Proces = QString::fromLatin1(proces);
    return v;
}

// The first count of a listing that starts at the threshold: counts are whole and never negative,
// and a count above 32767 cannot exist.
int Od_Prahu(double prah) {
    if (!(prah > 0))
        return 0;
    return prah > 40000 ? 40000 : int(std::ceil(prah));
}

// Groups "<line end> 12x - 3, 17, 44," from the lowest count to the highest, skipping counts
// below the threshold and counts that no number has.
void Skupiny_Cetnosti(QString& text, const std::array<int16_t, Cisel + 1>& pocty, int nejnizsi, int nejvyssi,
                      double prah) {
    for (int c = nejnizsi; c <= nejvyssi; ++c) {
        if (c < prah)
            continue;
        bool hlava = false;
        for (int n = 1; n <= Cisel; ++n) {
            if (pocty[std::size_t(n)] != c)
                continue;
            if (!hlava) {
                text += u'\n' + Vb::Str(int64_t(c)) + QStringLiteral("x -");
                hlava = true;
            }
            text += Str_Cisla(n) + u',';
        }
    }
}

// Counts over the numbers 1..49, one set per series, and the chart that shows them.
using Pocty_Cisel = std::array<std::array<int16_t, Cisel + 1>, 2>;

Graf_Analyzy Graf_Cetnosti(const QString& nazev, const Pocty_Cisel& pocty, bool s_prumerem) {
    Graf_Analyzy g;
    g.Nazev = nazev;
    g.Popisky.reserve(Cisel);
    for (int n = 1; n <= Cisel; ++n)
        g.Popisky.append(QString::number(n));
    for (int s = 0; s < 2; ++s) {
        double soucet = 0;
        for (int n = 1; n <= Cisel; ++n) {
            g.Hodnoty[std::size_t(s)].push_back(pocty[std::size_t(s)][std::size_t(n)]);
            soucet += pocty[std::size_t(s)][std::size_t(n)];
        }
        if (s_prumerem)
            g.Prumer[std::size_t(s)] = soucet / Cisel;
    }
    return g;
}

// The counts of every pair of numbers (smaller, greater) of one series.
using Citac_Dvojic = std::array<std::array<int16_t, Cisel + 1>, Cisel + 1>;

// The pair listing of both pair statistics: for each count from `od` to `do_`, its head
// "<line end> 3x<tab>", then the pairs " 4, 5,<tab>" five to a line, a continuation line starting
// with a tab. Only the second series leaves out pairs never drawn.
void Vypis_Dvojic(QString& text, const Citac_Dvojic& citac, int od, int do_, double prah, bool druha_rada) {
    for (int c = od; c <= do_; ++c) {
        bool radek_zacat = false;
        int bunek_v_radku = 0;
        for (int i = 1; i < Cisel; ++i) {
            for (int j = i + 1; j <= Cisel; ++j) {
                const int n = citac[std::size_t(i)][std::size_t(j)];
                if (n != c || n < prah || (druha_rada && n < 1))
                    continue;
                if (!radek_zacat) {
                    text += u'\n' + Vb::Str(int64_t(n)) + QStringLiteral("x\t");
                    radek_zacat = true;
                    bunek_v_radku = 0;
                }
                if (bunek_v_radku == 5) {
                    text += QStringLiteral("\n\t");
                    bunek_v_radku = 0;
                }
                text += Str_Cisla(i) + u',' + Str_Cisla(j) + QStringLiteral(",\t");
                ++bunek_v_radku;
            }
        }
    }
}

// Width of a text in twips in the report's font (8-point MS Sans Serif on a 96-dpi screen:
// 15 twips a pixel, digits 6 pixels, blank and comma 3). Only the triple cells are measured.
int Sirka_V_Twipech(const QString& text) {
    int pixelu = 0;
    for (const QChar z : text)
        pixelu += z.isDigit() ? 6 : 3;
    return pixelu * 15;
}

// A cell narrower than this gets a second tab, so that the next triple starts on the same tab
// stop as in the lines with wider cells.
constexpr int Uzka_Bunka = 670;

// The report of a frequency: the lowest and highest count of each series from their starting
// values (both tests run for every number), the groups, and the chart.
Vysledek_Analyzy Cetnosti(const QString& nadpis, const Pocty_Cisel& pocty, int nejnizsi_od, int nejvyssi_od,
                          double prah, bool s_prumerem) {
    Vysledek_Analyzy v;
    v.Nadpis = nadpis;
    for (int s = 0; s < 2; ++s) {
        const auto& p = pocty[std::size_t(s)];
        int nejnizsi = nejnizsi_od;
        int nejvyssi = nejvyssi_od;
        for (int n = 1; n <= Cisel; ++n) {
            if (p[std::size_t(n)] > nejvyssi)
                nejvyssi = p[std::size_t(n)];
            if (p[std::size_t(n)] < nejnizsi)
                nejnizsi = p[std::size_t(n)];
        }
        QString& text = s == 0 ? v.Text_1 : v.Text_2;
        text.reserve(1024);
        text += Slova_Rad[s];
        Skupiny_Cetnosti(text, p, nejnizsi, nejvyssi, prah);
        v.Min_Pocet[std::size_t(s)] = nejnizsi;
        v.Max_Pocet[std::size_t(s)] = nejvyssi;
    }
    v.Graf = Graf_Cetnosti(v.Nadpis, pocty, s_prumerem);
    return v;
}

} // namespace

Vysledek_Analyzy A_Cetnost_Cisel(const Zadani_Analyzy& z, const Prubeh& prubeh) {
    if (!Platne(z))
        return Selhani("A_Cetnost_Cisel");
    Pocty_Cisel pocty{};
    const bool dobehlo = Projdi_Tahy(z, prubeh, [&](int s, const Tah& tah) {
        for (int p = 1; p <= z.Cisel_V_Tahu; ++p) {
            const int n = tah[p];
            if (n == 0)
                continue;
            if (!Je_Cislo(n) || !Pricti(pocty[std::size_t(s)][std::size_t(n)]))
                return false;
        }
        return true;
    });
    if (!dobehlo)
        return Selhani("A_Cetnost_Cisel");

    return Cetnosti(QStringLiteral("Četnost tažených čísel"), pocty, 100, 1, z.Prah, true);
}

Vysledek_Analyzy A_Cetnost_Dodatkovych(const Zadani_Analyzy& z, const Prubeh& prubeh) {
    // Its handler has always reported the pair statistic's name.
    if (!Platne(z))
        return Selhani("A_Dvojice_Cisel");
    Pocty_Cisel pocty{};
    const bool dobehlo = Projdi_Tahy(z, prubeh, [&](int s, const Tah& tah) {
        const int n = tah[7];
        return n == 0 || (Je_Cislo(n) && Pricti(pocty[std::size_t(s)][std::size_t(n)]));
    });
    if (!dobehlo)
        return Selhani("A_Dvojice_Cisel");

    return Cetnosti(QStringLiteral("Četnost tažených dodatkových čísel"), pocty, 10, 0, z.Prah, false);
}

Vysledek_Analyzy A_Dvojice_Cisel(const Zadani_Analyzy& z, const Prubeh& prubeh) {
    if (!Platne(z))
        return Selhani("A_Dvojice_Cisel");
    std::array<Citac_Dvojic, 2> citace{};
    // A pair found out of order is swapped in the row's copy, and the later comparisons of the
    // same row see the swapped numbers, as the counts have always been made.
    const bool dobehlo = Projdi_Tahy(z, prubeh, [&](int s, Tah& tah) {
        for (int i = 1; i < z.Cisel_V_Tahu; ++i) {
            for (int j = i + 1; j <= z.Cisel_V_Tahu; ++j) {
                if (tah[i] == 0 || std::abs(tah[i] - tah[j]) != 1)
                    continue;
                if (tah[i] > tah[j])
                    std::swap(tah[i], tah[j]);
                const int mensi = tah[i];
                const int vetsi = tah[j];
                if (!Je_Cislo(mensi) || !Je_Cislo(vetsi) ||
                    !Pricti(citace[std::size_t(s)][std::size_t(mensi)][std::size_t(vetsi)]))
                    return false;
            }
        }
        return true;
    });
    if (!dobehlo)
        return Selhani("A_Dvojice_Cisel");

    Vysledek_Analyzy v;
    v.Nadpis = QStringLiteral("Dvojice čísel ležící vedle sebe");
    for (int s = 0; s < 2; ++s) {
        const Citac_Dvojic& c = citace[std::size_t(s)];
        int nejnizsi = std::numeric_limits<int16_t>::max();
        int nejvyssi = 0;
        for (int i = 1; i < Cisel; ++i) {
            for (int j = i + 1; j <= Cisel; ++j) {
                nejvyssi = std::max<int>(nejvyssi, c[std::size_t(i)][std::size_t(j)]);
                nejnizsi = std::min<int>(nejnizsi, c[std::size_t(i)][std::size_t(j)]);
            }
        }
        QString& text = s == 0 ? v.Text_1 : v.Text_2;
        text.reserve(2048);
        text += Slova_Rad[s];
        Vypis_Dvojic(text, c, Od_Prahu(z.Prah), nejvyssi, z.Prah, s == 1);
        v.Min_Pocet[std::size_t(s)] = nejnizsi;
        v.Max_Pocet[std::size_t(s)] = nejvyssi;
    }
    return v;
}

Vysledek_Analyzy A_Trojice_Cisel(const Zadani_Analyzy& z, const Prubeh& prubeh) {
    if (!Platne(z))
        return Selhani("A_Trojice_Cisel");
    // Only a consecutive triple a, a + 1, a + 2 is ever counted, so one cell per a holds the
    // counter of the triple; every other triple has count 0.
    std::array<std::array<int16_t, Trojic + 1>, 2> citace{};
    const bool dobehlo = Projdi_Tahy(z, prubeh, [&](int s, Tah& tah) {
        const int n = z.Cisel_V_Tahu;
        for (int i = 1; i <= n - 2; ++i) {
            for (int j = i + 1; j <= n - 1; ++j) {
                for (int k = j + 1; k <= n; ++k) {
                    if (tah[k] == 0)
                        continue;
                    std::array<uint8_t, 3> t{tah[i], tah[j], tah[k]};
                    std::sort(t.begin(), t.end());
                    if (t[1] != t[0] + 1 || t[2] != t[0] + 2)
                        continue;
                    // The three are put in order inside the row's copy.
                    tah[i] = t[0];
                    tah[j] = t[1];
                    tah[k] = t[2];
                    if (t[0] < 1 || t[0] > Trojic || !Pricti(citace[std::size_t(s)][t[0]]))
                        return false;
                }
            }
        }
        return true;
    });
    if (!dobehlo)
        return Selhani("A_Trojice_Cisel");

    Vysledek_Analyzy v;
    v.Nadpis = QStringLiteral("Trojice čísel ležící vedle sebe");
    for (int s = 0; s < 2; ++s) {
        const auto& c = citace[std::size_t(s)];
        int nejvyssi = 0;
        for (int a = 1; a <= Trojic; ++a)
            nejvyssi = std::max<int>(nejvyssi, c[std::size_t(a)]);
        QString& text = s == 0 ? v.Text_1 : v.Text_2;
        text.reserve(1024);
        text += Slova_Rad[s];
        for (int pocet = Od_Prahu(z.Prah); pocet <= nejvyssi; ++pocet) {
            bool radek_zacat = false;
            int bunek_v_radku = 0;
            for (int a = 1; a <= Cisel - 2; ++a) {
                for (int b = a + 1; b <= Cisel - 1; ++b) {
                    for (int cc = b + 1; cc <= Cisel; ++cc) {
                        const int n = (b == a + 1 && cc == a + 2) ? c[std::size_t(a)] : 0;
                        if (n != pocet || n < z.Prah)
                            continue;
                        if (!radek_zacat) {
                            text += u'\n' + Vb::Str(int64_t(n)) + QStringLiteral("x\n  ");
                            radek_zacat = true;
                            bunek_v_radku = 0;
                        }
                        if (bunek_v_radku == 3) {
                            text += QStringLiteral("\n  ");
                            bunek_v_radku = 0;
                        }
                        const QString bunka = Str_Cisla(a) + u',' + Str_Cisla(b) + u',' + Str_Cisla(cc);
                        text += bunka;
                        text += Sirka_V_Twipech(bunka) < Uzka_Bunka ? QStringLiteral(",\t\t") : QStringLiteral(",\t");
                        ++bunek_v_radku;
                    }
                }
            }
        }
        v.Max_Pocet[std::size_t(s)] = nejvyssi;
    }
    return v;
}

Vysledek_Analyzy A_Dvojice_Cisel_Volne(const Zadani_Analyzy& z, const Prubeh& prubeh) {
    if (!Platne(z))
        return Selhani("A_Dvojice_Cisel_Volne");
    std::array<Citac_Dvojic, 2> citace{};
    // Each ordered pair of different numbers of a draw: an unordered pair lands in both its cells.
    // A position that is no number 1..49 adds nothing on its own, but as a partner it indexes
    // out of range (the 0 of a missing supplementary number, for one).
    const bool dobehlo = Projdi_Tahy(z, prubeh, [&](int s, const Tah& tah) {
        for (int i = 1; i <= z.Cisel_V_Tahu; ++i) {
            const int a = tah[i];
            if (!Je_Cislo(a))
                continue;
            for (int j = 1; j <= z.Cisel_V_Tahu; ++j) {
                const int b = tah[j];
                if (b == a)
                    continue;
                if (!Je_Cislo(b) || !Pricti(citace[std::size_t(s)][std::size_t(a)][std::size_t(b)]))
                    return false;
            }
        }
        return true;
    });
    if (!dobehlo)
        return Selhani("A_Dvojice_Cisel_Volne");

    Vysledek_Analyzy v;
    v.Nadpis = QStringLiteral("Dvojice čísel volné");
    for (int s = 0; s < 2; ++s) {
        const Citac_Dvojic& c = citace[std::size_t(s)];
        // A count that raises the highest is not tested for the lowest, so a pair rarer than the
        // lowest found this way drops out of the list.
        int nejnizsi = 1000;
        int nejvyssi = 0;
        for (int i = 1; i < Cisel; ++i) {
            for (int j = i + 1; j <= Cisel; ++j) {
                const int n = c[std::size_t(i)][std::size_t(j)];
                if (n <= 0)
                    continue;
                if (n > nejvyssi)
                    nejvyssi = n;
                else if (n < nejnizsi)
                    nejnizsi = n;
            }
        }
        QString& text = s == 0 ? v.Text_1 : v.Text_2;
        text.reserve(8192);
        text += Slova_Rad[s];
        Vypis_Dvojic(text, c, nejnizsi, nejvyssi + 2, z.Prah, s == 1);
        v.Min_Pocet[std::size_t(s)] = nejnizsi;
        v.Max_Pocet[std::size_t(s)] = nejvyssi;
    }
    return v;
}
