#include "generator/Zaruky_Rozpisu.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

double Kombinace(int n, int k) {
    if (k < 0 || n < k)
        return 0;
    double c = 1;
    for (int i = 1; i <= k; ++i)
        c = c * (n - k + i) / i;
    return c;
}

// Walks every set of at most six of the wheel's numbers, adding one number at a time and keeping
// for each tip how many of the set it holds, and for each k how many tips hold k or more.
struct Prochazka {
    int U = 0;
    std::vector<std::vector<int>> Tipy_Cisla;         // for each number, the tips that hold it
    std::vector<int> V_Tipu;                          // per tip: numbers of the set it holds
    std::array<int, 7> Tipu_Aspon{};                  // per k: tips holding at least k of the set
    std::array<std::array<double, 7>, 7> Nepokryto{}; // [k][m]: m-sets no tip holds k of
    std::array<double, 7> Vaha_3{}, Vaha_4{};         // [m]: m-sets some tip holds 3 (4) of
    Sledovani_Prubehu* Sledovani = nullptr;

    void Pridej(int cislo, int znamenko) {
        for (int t : Tipy_Cisla[std::size_t(cislo)]) {
            int& v = V_Tipu[std::size_t(t)];
            if (znamenko > 0) {
                ++v;
                if (v >= 3)
                    ++Tipu_Aspon[std::size_t(v)];
            } else {
                if (v >= 3)
                    --Tipu_Aspon[std::size_t(v)];
                --v;
            }
        }
    }

    void Zapocti(int m) {
        for (int k = 3; k <= 6; ++k) {
            if (Tipu_Aspon[std::size_t(k)] == 0)
                Nepokryto[std::size_t(k)][std::size_t(m)] += 1;
            else if (k == 3)
                Vaha_3[std::size_t(m)] += 1;
            else if (k == 4)
                Vaha_4[std::size_t(m)] += 1;
        }
    }

    void Jdi(int od, int m) {
        Zapocti(m);
        if (m == 6)
            return;
        for (int c = od; c < U; ++c) {
            // Half a walk would give wrong figures, so a request to stop is not heeded.
            if (m == 0 && Sledovani)
                Sledovani->Krok(c);
            Pridej(c, +1);
            Jdi(c + 1, m + 1);
            Pridej(c, -1);
        }
    }
};

} // namespace

Zaruky_Rozpisu Spocti_Zaruky(std::span<const modRozpisy::Radek_Rozpisu> tipy, const Prubeh& prubeh) {
    std::array<int, 256> index;
    index.fill(-1);
    Prochazka p;
    int pocet_tipu = 0;
    for (const auto& radek : tipy) {
        bool prazdny = true;
        for (uint8_t c : radek) {
            if (c == 0)
                continue;
            prazdny = false;
            if (index[c] < 0) {
                index[c] = p.U++;
                p.Tipy_Cisla.emplace_back();
            }
            auto& seznam = p.Tipy_Cisla[std::size_t(index[c])];
            // A number written twice in one row still counts once in that tip.
            if (seznam.empty() || seznam.back() != pocet_tipu)
                seznam.push_back(pocet_tipu);
        }
        if (!prazdny)
            ++pocet_tipu;
    }
    p.V_Tipu.assign(std::size_t(pocet_tipu), 0);
    Sledovani_Prubehu sledovani(prubeh, p.U);
    p.Sledovani = &sledovani;
    p.Jdi(0, 0);

    Zaruky_Rozpisu z;
    z.Cisel = p.U;
    for (int k = 3; k <= 6; ++k)
        for (int m = k; m <= std::min(6, p.U); ++m)
            if (p.Nepokryto[std::size_t(k)][std::size_t(m)] == 0) {
                z.Zaruka[std::size_t(k)] = m;
                break;
            }
    const double tahu = Kombinace(49, 6);
    for (int m = 0; m <= 6; ++m) {
        const double vaha = Kombinace(49 - p.U, 6 - m);
        z.P3 += p.Vaha_3[std::size_t(m)] * vaha / tahu;
        z.P4 += p.Vaha_4[std::size_t(m)] * vaha / tahu;
    }
    // A tip drawn at random wins against any fixed draw with the same chance, so as many tips drawn
    // independently all miss with that chance's complement to the power of their count.
    double q3 = 0, q4 = 0;
    for (int i = 3; i <= 6; ++i) {
        const double q = Kombinace(6, i) * Kombinace(43, 6 - i) / tahu;
        q3 += q;
        if (i >= 4)
            q4 += q;
    }
    z.P3_Nahodne = 1 - std::pow(1 - q3, pocet_tipu);
    z.P4_Nahodne = 1 - std::pow(1 - q4, pocet_tipu);
    return z;
}

QString Text_Zaruk(const Zaruky_Rozpisu& z) {
    const auto procenta = [](double p) -> QString {
        return QString::number(100 * p, 'f', 1).replace(u'.', u',') + u" %"_qs;
    };
    QStringList zaruky;
    for (int k = 3; k <= 6; ++k)
        if (z.Zaruka[std::size_t(k)] != 0)
            zaruky << u"%1 z %2"_qs.arg(k).arg(z.Zaruka[std::size_t(k)]);
    const QString zaruka =
        zaruky.isEmpty()
            ? u"Záruka: žádná, ani šest tažených z %1 čísel rozpisu nemusí dát 3 v jednom tipu."_qs.arg(z.Cisel)
            : u"Záruka: "_qs + zaruky.join(u", "_qs) + u" (z tažených čísel rozpisu)."_qs;
    return zaruka + u"\nŠance na výhru v jednom tahu: aspoň 5. pořadí "_qs + procenta(z.P3) +
           u" (náhodné tipy za stejné peníze "_qs + procenta(z.P3_Nahodne) + u"), aspoň 4. pořadí "_qs +
           procenta(z.P4) + u" ("_qs + procenta(z.P4_Nahodne) + u")."_qs;
}

std::vector<modRozpisy::Radek_Rozpisu> Tipy_Tabulky(const modRozpisy::Tabulka_Rozpisu& tabulka) {
    std::vector<modRozpisy::Radek_Rozpisu> tipy;
    tipy.reserve(tabulka.Radky.size());
    for (modRozpisy::Radek_Rozpisu radek : tabulka.Radky) {
        for (uint8_t& c : radek)
            if (c >= modRozpisy::T1 && c <= modRozpisy::T3)
                c = uint8_t(tabulka.Cisel + (c - modRozpisy::T1) + 1);
        tipy.push_back(radek);
    }
    return tipy;
}
