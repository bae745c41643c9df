// Builds the tables of the built-in wheels and writes src/generator/Tabulky_Rozpisu.cpp.
//
//   build/tools/hledani_rozpisu [--seminko S] [--behu R] [--kroku K] > src/generator/Tabulky_Rozpisu.cpp
//   clang-format -i src/generator/Tabulky_Rozpisu.cpp
//
// Four wheels (2, 7, 10, 13) are data as they have always stood and are copied. For every other
// wheel the catalogue fixes the tutovky T, the numbers N, the columns C, the first row and how a row
// is made of groups (favourites, pairs, triples). Within those rules each row is searched by
// simulated annealing: a move swaps one position of one row for another of the same group, and the
// search maximises the triples of the wheel's numbers that some tip holds (each such triple drawn is
// a fifth-tier win), keeping every position used and no two rows alike. Of R runs with seeds S,
// S+1, ... the table kept is the best by its exact guarantees ("3 z m" with the smallest m first,
// then "4 z m", ...) and then by the exact chance of a fifth-tier win per draw (Spocti_Zaruky). The
// same seed gives the same tables. Progress and the figures of each table go to stderr.
#include "generator/Zaruky_Rozpisu.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <map>
#include <random>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

using modRozpisy::Radek_Rozpisu;

namespace {

// A group of positions from which a row takes `Vezme` units; a unit is one position, or a whole pair.
struct Skupina {
    std::vector<std::vector<int>> Jednotky;
    std::vector<int> Vezme; // per row type
};

struct Zadani {
    int Cislo, T, N, C;
    std::vector<int> Prvni;       // positions of the first row
    std::vector<Skupina> Skupiny; // a single group "any s of 1..N" when the wheel has no structure
    std::vector<int> Typy;        // per row type: how many rows (the first row is of type 0)
    int Pocet_Tipu;               // what the store's count says
    int Dira = -1;                // index of the kept empty row
};

Skupina Rozsah(int od, int do_, std::vector<int> vezme) {
    Skupina s;
    for (int i = od; i <= do_; ++i)
        s.Jednotky.push_back({i});
    s.Vezme = std::move(vezme);
    return s;
}

std::vector<Zadani> Zadani_Rozpisu() {
    std::vector<Zadani> z;
    const auto prosty = [&](int cislo, int t, int n, int c, std::vector<int> prvni) {
        z.push_back({cislo, t, n, c, std::move(prvni), {Rozsah(1, n, {6 - t})}, {c}, c});
    };
    prosty(3, 1, 24, 38, {1, 2, 3, 4, 24});
    prosty(4, 1, 31, 27, {1, 3, 6, 8, 15});
    z.push_back({5, 1, 18, 68, {1, 2, 3, 12, 18}, {Rozsah(1, 9, {3, 2}), Rozsah(10, 18, {2, 3})}, {47, 21}, 68});
    prosty(6, 2, 12, 27, {1, 2, 3, 5});
    prosty(8, 3, 20, 31, {1, 3, 7});
    prosty(9, 3, 25, 31, {1, 5, 8});
    z.back().Pocet_Tipu = 27;
    z[z.size() - 2].Pocet_Tipu = 27;
    prosty(11, 0, 14, 19, {1, 2, 3, 5, 8, 10});
    prosty(12, 0, 15, 46, {1, 2, 3, 4, 7, 8});
    prosty(14, 0, 18, 41, {1, 2, 5, 6, 11, 14});
    prosty(15, 0, 19, 15, {1, 2, 3, 11, 13, 16});
    prosty(16, 0, 26, 24, {1, 2, 8, 9, 20, 22});
    prosty(17, 0, 27, 30, {1, 3, 4, 7, 8, 20});
    prosty(18, 0, 30, 35, {1, 2, 13, 20, 21, 29});
    z.push_back({19, 0, 30, 72, {1, 2, 6, 20, 23, 28}, {Rozsah(1, 12, {3}), Rozsah(13, 30, {3})}, {72}, 72});
    // The first row is the six favourites; the other 60 take three of them and three of the rest.
    z.push_back({20, 0, 36, 61, {1, 2, 3, 4, 5, 6}, {Rozsah(1, 6, {6, 3}), Rozsah(7, 36, {0, 3})}, {1, 60}, 61});
    prosty(21, 0, 36, 99, {1, 2, 7, 10, 16, 17});
    Skupina dvojice;
    for (int p = 1; p <= 29; p += 2)
        dvojice.Jednotky.push_back({p, p + 1});
    dvojice.Vezme = {3};
    z.push_back({22, 0, 30, 35, {1, 2, 3, 4, 27, 28}, {dvojice}, {35}, 35});
    z.push_back({23, 0, 15, 77, {1, 2, 3, 8, 9, 12}, {Rozsah(1, 7, {3}), Rozsah(8, 15, {3})}, {76}, 77, 41});
    z.push_back({24,
                 0,
                 16,
                 36,
                 {1, 4, 9, 11, 13, 15},
                 {Rozsah(1, 3, {1}), Rozsah(4, 6, {1}), Rozsah(7, 9, {1}), Rozsah(10, 12, {1}), Rozsah(13, 14, {1}),
                  Rozsah(15, 16, {1})},
                 {36},
                 36});
    return z;
}

// A row as the units it takes from each group; its positions as a mask.
struct Radek {
    int Typ = 0;
    std::vector<std::vector<int>> Vybrane; // per group: indices of units
    uint64_t Maska = 0;
};

struct Hledani {
    const Zadani& Z;
    std::mt19937_64 Nahoda;
    std::vector<Radek> Radky;
    std::unordered_map<uint64_t, int> Trojice, Dvojice; // how many rows hold each
    std::set<uint64_t> Masky;
    std::vector<int> Pouziti;
    int64_t Pokryto = 0; // triples of the wheel's numbers held by some tip
    int Nepouzito = 0;

    Hledani(const Zadani& z, uint64_t seminko) : Z(z), Nahoda(seminko), Pouziti(std::size_t(z.N + 1), 0) {
        Nepouzito = z.N;
    }

    uint64_t Maska(const Radek& r) const {
        uint64_t m = 0;
        for (std::size_t g = 0; g < r.Vybrane.size(); ++g)
            for (int u : r.Vybrane[g])
                for (int p : Z.Skupiny[g].Jednotky[std::size_t(u)])
                    m |= 1ULL << p;
        return m;
    }

    // Adds or removes the row's pairs and triples; a triple of positions is one triple of the
    // wheel's numbers, a pair is T of them (with each tutovka).
    void Zapocti(uint64_t m, int znamenko) {
        std::vector<int> p;
        for (int i = 1; i <= Z.N; ++i)
            if (m >> i & 1)
                p.push_back(i);
        for (std::size_t a = 0; a < p.size(); ++a) {
            int& u = Pouziti[std::size_t(p[a])];
            if (znamenko > 0 && u++ == 0)
                --Nepouzito;
            if (znamenko < 0 && --u == 0)
                ++Nepouzito;
            for (std::size_t b = a + 1; b < p.size(); ++b) {
                const uint64_t d = (1ULL << p[a]) | (1ULL << p[b]);
                int& n = Dvojice[d];
                if (znamenko > 0 && n++ == 0)
                    Pokryto += Z.T;
                if (znamenko < 0 && --n == 0)
                    Pokryto -= Z.T;
                for (std::size_t c = b + 1; c < p.size(); ++c) {
                    int& t = Trojice[d | (1ULL << p[c])];
                    if (znamenko > 0 && t++ == 0)
                        ++Pokryto;
                    if (znamenko < 0 && --t == 0)
                        --Pokryto;
                }
            }
        }
    }

    double Hodnota() const { return double(Pokryto) - 1000.0 * Nepouzito; }

    Radek Nahodny(int typ) {
        Radek r;
        r.Typ = typ;
        for (const Skupina& s : Z.Skupiny) {
            std::vector<int> u(s.Jednotky.size());
            for (std::size_t i = 0; i < u.size(); ++i)
                u[i] = int(i);
            std::shuffle(u.begin(), u.end(), Nahoda);
            u.resize(std::size_t(s.Vezme[std::size_t(typ)]));
            r.Vybrane.push_back(u);
        }
        r.Maska = Maska(r);
        return r;
    }

    Radek Prvni() {
        Radek r;
        r.Typ = 0;
        uint64_t m = 0;
        for (int p : Z.Prvni)
            m |= 1ULL << p;
        for (const Skupina& s : Z.Skupiny) {
            std::vector<int> u;
            for (std::size_t i = 0; i < s.Jednotky.size(); ++i)
                if (m >> s.Jednotky[i][0] & 1)
                    u.push_back(int(i));
            r.Vybrane.push_back(u);
        }
        r.Maska = Maska(r);
        if (r.Maska != m)
            std::abort();
        return r;
    }

    void Zacni() {
        Radky.push_back(Prvni());
        std::vector<int> typy;
        for (std::size_t t = 0; t < Z.Typy.size(); ++t)
            for (int i = 0; i < Z.Typy[t] - (t == 0 ? 1 : 0); ++i)
                typy.push_back(int(t));
        for (int typ : typy) {
            Radek r;
            do
                r = Nahodny(typ);
            while (Masky.count(r.Maska) || r.Maska == Radky[0].Maska);
            Radky.push_back(r);
        }
        for (const Radek& r : Radky) {
            Masky.insert(r.Maska);
            Zapocti(r.Maska, +1);
        }
    }

    void Zihej(int64_t kroku) {
        const double t0 = 2.0, t1 = 0.02;
        std::uniform_int_distribution<std::size_t> radek(1, Radky.size() - 1);
        std::uniform_real_distribution<double> u01(0, 1);
        for (int64_t k = 0; k < kroku; ++k) {
            const double teplota = t0 * std::pow(t1 / t0, double(k) / double(kroku));
            Radek& r = Radky[radek(Nahoda)];
            const std::size_t g = std::uniform_int_distribution<std::size_t>(0, Z.Skupiny.size() - 1)(Nahoda);
            const Skupina& s = Z.Skupiny[g];
            auto& vybrane = r.Vybrane[g];
            if (vybrane.empty() || vybrane.size() == s.Jednotky.size())
                continue;
            const std::size_t ven = std::uniform_int_distribution<std::size_t>(0, vybrane.size() - 1)(Nahoda);
            int dovnitr;
            do
                dovnitr = int(std::uniform_int_distribution<std::size_t>(0, s.Jednotky.size() - 1)(Nahoda));
            while (std::find(vybrane.begin(), vybrane.end(), dovnitr) != vybrane.end());
            const int stary = vybrane[ven];
            vybrane[ven] = dovnitr;
            const uint64_t nova = Maska(r);
            if (Masky.count(nova)) {
                vybrane[ven] = stary;
                continue;
            }
            const double pred = Hodnota();
            Zapocti(r.Maska, -1);
            Zapocti(nova, +1);
            const double rozdil = Hodnota() - pred;
            if (rozdil >= 0 || u01(Nahoda) < std::exp(rozdil / teplota)) {
                Masky.erase(r.Maska);
                Masky.insert(nova);
                r.Maska = nova;
            } else {
                Zapocti(nova, -1);
                Zapocti(r.Maska, +1);
                vybrane[ven] = stary;
            }
        }
    }

    std::vector<Radek_Rozpisu> Tabulka() const {
        std::vector<Radek_Rozpisu> t;
        for (const Radek& r : Radky) {
            Radek_Rozpisu radek{};
            int i = 0;
            for (int k = 0; k < Z.T; ++k)
                radek[std::size_t(i++)] = uint8_t(modRozpisy::T1 + k);
            for (int p = 1; p <= Z.N; ++p)
                if (r.Maska >> p & 1)
                    radek[std::size_t(i++)] = uint8_t(p);
            t.push_back(radek);
        }
        // The first row stands first; the others in rising order, so a person can read the table.
        std::sort(t.begin() + 1, t.end());
        if (Z.Dira >= 0)
            t.insert(t.begin() + Z.Dira, Radek_Rozpisu{});
        return t;
    }
};

// The guarantees as a key that sorts the better wheel first: 3 z m with the smallest m, then 4 z m...
std::array<double, 5> Klic(const Zaruky_Rozpisu& z) {
    std::array<double, 5> k{};
    for (int i = 3; i <= 6; ++i)
        k[std::size_t(i - 3)] = z.Zaruka[std::size_t(i)] == 0 ? 7 : z.Zaruka[std::size_t(i)];
    k[4] = -z.P3;
    return k;
}

// The four wheels that are data as they stand.
const std::map<int, std::pair<std::array<int, 3>, std::vector<std::string>>> Dane = {
    {2,
     {{1, 15, 14},
      {"T1, 1, 2, 6, 10, 12", "T1, 1, 3, 7, 12, 13", "T1, 1, 4, 8, 13, 14", "T1, 1, 5, 9, 14, 15", "T1, 2, 3, 4, 5, 11",
       "T1, 2, 3, 7, 10, 14", "T1, 2, 3, 8, 12, 15", "T1, 2, 8, 9, 10, 13", "T1, 3, 6, 7, 9, 11", "T1, 4, 6, 7, 10, 15",
       "T1, 4, 7, 9, 11, 12", "T1, 5, 6, 11, 13, 15", "T1, 5, 7, 8, 10, 12", "T1, 6, 8, 11, 12, 14"}}},
    {7,
     {{2, 18, 15},
      {"T1, T2, 1, 3, 6, 7", "T1, T2, 1, 5, 11, 14", "T1, T2, 1, 10, 15, 17", "T1, T2, 2, 4, 8, 12",
       "T1, T2, 2, 4, 13, 18", "T1, T2, 2, 9, 13, 16", "T1, T2, 3, 5, 7, 10", "T1, T2, 3, 7, 11, 15",
       "T1, T2, 3, 7, 14, 17", "T1, T2, 4, 8, 9, 16", "T1, T2, 5, 6, 15, 17", "T1, T2, 6, 10, 11, 14",
       "T1, T2, 8, 12, 13, 18", "T1, T2, 9, 12, 16, 18", "T1, T2, 11, 14, 15, 17"}}},
    {10,
     {{0, 10, 5},
      {"1, 2, 3, 4, 8, 9", "1, 2, 5, 6, 8, 10", "1, 4, 6, 7, 9, 10", "2, 3, 4, 5, 6, 7", "3, 5, 7, 8, 9, 10"}}},
    {13,
     {{0, 16, 6},
      {"1, 2, 3, 6, 11, 13", "1, 7, 9, 10, 11, 14", "2, 8, 9, 10, 11, 14", "3, 6, 8, 9, 10, 15", "4, 5, 7, 12, 15, 16",
       "4, 5, 8, 12, 13, 16"}}},
};

std::string Bunka(uint8_t b) {
    return b >= modRozpisy::T1 ? "T" + std::to_string(b - modRozpisy::T1 + 1) : std::to_string(b);
}

} // namespace

int main(int argc, char** argv) {
    uint64_t seminko = 1;
    int behu = 6;
    int64_t kroku = 400000;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (!std::strcmp(argv[i], "--seminko"))
            seminko = std::strtoull(argv[i + 1], nullptr, 10);
        else if (!std::strcmp(argv[i], "--behu"))
            behu = std::atoi(argv[i + 1]);
        else if (!std::strcmp(argv[i], "--kroku"))
            kroku = std::atoll(argv[i + 1]);
    }
    const auto zacatek = std::chrono::steady_clock::now();
    std::map<int, std::pair<const Zadani*, std::vector<Radek_Rozpisu>>> nalezene;
    const std::vector<Zadani> zadani = Zadani_Rozpisu();
    for (const Zadani& z : zadani) {
        const auto start = std::chrono::steady_clock::now();
        std::vector<Radek_Rozpisu> nejlepsi;
        std::array<double, 5> nejlepsi_klic{};
        Zaruky_Rozpisu nejlepsi_z;
        for (int b = 0; b < behu; ++b) {
            Hledani h(z, seminko + uint64_t(b) * 1000003ULL + uint64_t(z.Cislo));
            h.Zacni();
            h.Zihej(kroku);
            if (h.Nepouzito != 0)
                continue;
            const std::vector<Radek_Rozpisu> t = h.Tabulka();
            modRozpisy::Tabulka_Rozpisu tab{z.T, z.N, z.C + (z.Dira >= 0 ? 1 : 0), z.Pocet_Tipu, t};
            const Zaruky_Rozpisu zar = Spocti_Zaruky(Tipy_Tabulky(tab));
            if (nejlepsi.empty() || Klic(zar) < nejlepsi_klic) {
                nejlepsi = t;
                nejlepsi_klic = Klic(zar);
                nejlepsi_z = zar;
            }
        }
        if (nejlepsi.empty()) {
            std::fprintf(stderr, "rozpis %d: nenalezen\n", z.Cislo);
            return 1;
        }
        const double sekund = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        std::fprintf(
            stderr,
            "rozpis %2d T %d N %2d C %2d zaruka 3z%d 4z%d 5z%d 6z%d p3 %.6f p4 %.6f nahodne p3 %.6f p4 %.6f (%.1f s)\n",
            z.Cislo, z.T, z.N, int(nejlepsi.size()), nejlepsi_z.Zaruka[3], nejlepsi_z.Zaruka[4], nejlepsi_z.Zaruka[5],
            nejlepsi_z.Zaruka[6], nejlepsi_z.P3, nejlepsi_z.P4, nejlepsi_z.P3_Nahodne, nejlepsi_z.P4_Nahodne, sekund);
        nalezene[z.Cislo] = {&z, nejlepsi};
    }

    std::printf(
        "// Written by tools/Hledani_Rozpisu.cpp (build/tools/hledani_rozpisu --seminko %llu --behu %d --kroku %lld);\n"
        "// rebuild it with the same arguments, run clang-format on it and compare. Wheels 2, 7, 10 and 13 are\n"
                "// copied as they stand.\n"
        "#include \"generator/Tabulky_Rozpisu.h\"\n\nnamespace modRozpisy {\n\nnamespace {\n\n",
        static_cast<unsigned long long>(seminko), behu, static_cast<long long>(kroku));
    std::string tabulky;
    for (int w = 2; w <= 24; ++w) {
        std::printf("constexpr Radek_Rozpisu Rozpis_%d[] = {\n", w);
        int t, n, c, pocet;
        if (const auto d = Dane.find(w); d != Dane.end()) {
            for (const std::string& r : d->second.second)
                std::printf("    {%s},\n", r.c_str());
            t = d->second.first[0];
            n = d->second.first[1];
            c = d->second.first[2];
            pocet = c;
        } else {
            const auto& [z, radky] = nalezene.at(w);
            for (const Radek_Rozpisu& r : radky) {
                std::string text;
                for (std::size_t i = 0; i < 6; ++i)
                    text += (i ? ", " : "") + Bunka(r[i]);
                std::printf("    {%s},\n", text.c_str());
            }
            t = z->T;
            n = z->N;
            c = int(radky.size());
            pocet = z->Pocet_Tipu;
        }
        std::printf("};\n\n");
        tabulky += "    {" + std::to_string(t) + ", " + std::to_string(n) + ", " + std::to_string(c) + ", " +
                   std::to_string(pocet) + ", Rozpis_" + std::to_string(w) + "},\n";
    }
    std::printf("// Index 0 is wheel 2.\nconstexpr Tabulka_Rozpisu Tabulky[] = {\n%s};\n\n} // namespace\n\n"
                "const Tabulka_Rozpisu* Tabulka(int cislo) {\n"
                "    return cislo >= 2 && cislo <= 24 ? &Tabulky[cislo - 2] : nullptr;\n}\n\n"
                "} // namespace modRozpisy\n",
                tabulky.c_str());
    std::fprintf(stderr, "celkem %.1f s\n",
                 std::chrono::duration<double>(std::chrono::steady_clock::now() - zacatek).count());
    return 0;
}
