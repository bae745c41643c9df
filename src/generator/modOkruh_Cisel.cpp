#include "generator/modOkruh_Cisel.h"

#include "core/pTikety.h"

#include <algorithm>
#include <array>
#include <bit>

namespace modOkruh_Cisel {

namespace {

// Diagonal (1..12, 0 none) of each number, taken once from the ticket's own tables.
struct Uhlopricky_Cisel {
    std::array<uint8_t, 50> Lev_Do_Prav{};
    std::array<uint8_t, 50> Prav_Do_Lev{};
    Uhlopricky_Cisel() {
        for (int x = 1; x <= 49; ++x) {
            Pole_Od_1<int, 12> l, p;
            pTikety::Tip_Kriz_LevDoPrav(x, l);
            pTikety::Tip_Kriz_PravDoLev(x, p);
            for (int u = 1; u <= 12; ++u) {
                if (l[u] != 0)
                    Lev_Do_Prav[std::size_t(x)] = uint8_t(u);
                if (p[u] != 0)
                    Prav_Do_Lev[std::size_t(x)] = uint8_t(u);
            }
        }
    }
};

const Uhlopricky_Cisel& Uhlopricky() {
    static const Uhlopricky_Cisel u;
    return u;
}

} // namespace

bool Omezeni_Rad_Slo_Kriz(const Tip& tip, int pocet_tutovek, double sloupce, double radky, double krize) {
    const Uhlopricky_Cisel& u = Uhlopricky();
    std::array<int, 11> rady{};
    std::array<int, 13> lev{}, prav{};
    std::array<int, 5> sloupy{};
    for (int i = pocet_tutovek + 1; i <= 6; ++i) {
        const int x = tip[i];
        if (x < 1 || x > 49)
            continue;
        ++rady[std::size_t((x - 1) / 5 + 1)];
        ++lev[u.Lev_Do_Prav[std::size_t(x)]];
        ++prav[u.Prav_Do_Lev[std::size_t(x)]];
        ++sloupy[std::size_t((x - 1) % 5)];
    }
    for (int r = 1; r <= 10; ++r)
        if (rady[std::size_t(r)] > radky)
            return true;
    for (int k = 1; k <= 12; ++k)
        if (lev[std::size_t(k)] > krize)
            return true;
    for (int k = 1; k <= 12; ++k)
        if (prav[std::size_t(k)] > krize)
            return true;
    // An OR, not a maximum: it has always caught mixes such as 4 and 2 as well as a single 4.
    return (sloupy[0] | sloupy[1] | sloupy[2] | sloupy[3] | sloupy[4]) > sloupce;
}

bool Omezeni_Treti_Ceny(const Zaznam_Tipu& soubor, const Tip& tip, int tiket, double limit) {
    const uint64_t m = Maska_Tipu(tip);
    int pocet = 0;
    tiket = std::min(tiket, Max_Tiketu);
    for (int t = 1; t <= tiket; ++t)
        for (int s = 1; s <= Sloupcu_Tiketu; ++s) {
            const Tip& d = soubor.Tikety[t].Cisla[s];
            if (d[1] == 0)
                return false;
            // The candidate holds each number once, so the equal pairs are its numbers among the cells.
            int shod = 0;
            for (int i = 1; i <= 6; ++i)
                shod += int((m >> (d[i] & 63)) & 1);
            if (shod > 2 && ++pocet > limit)
                return true;
        }
    return false;
}

namespace {

bool Ceny_V_Seznamu(const Tip& tip, const std::vector<Tah>& tahy, double od) {
    const int n = int(std::min<double>(od, double(tahy.size()) - 1));
    for (int d = 1; d <= n; ++d) {
        const Tah& tah = tahy[std::size_t(d)];
        for (int k = 1; k <= 6; ++k) {
            int h = 0, c6 = 0, c5 = 0;
            bool b = false;
            for (int p = 1; p <= 6; ++p) {
                if (tah[7] == tip[p]) {
                    b = true;
                } else if (tah[k] == tip[p]) {
                    ++h;
                } else if (h > 4) {
                    if (h == 6)
                        ++c6;
                    if (h == 5)
                        ++c5;
                    if (c6 == 1 || (c5 == 1 && b))
                        return true;
                }
            }
        }
    }
    return false;
}

} // namespace

bool Omezeni_Ceny(const Tip& tip, const std::vector<Tah>& tahy_1, double od_1, const std::vector<Tah>& tahy_2,
                  double od_2) {
    return Ceny_V_Seznamu(tip, tahy_1, od_1) || Ceny_V_Seznamu(tip, tahy_2, od_2);
}

bool Omezeni_Sud_Lich(const Tip& tip, double sude, double liche, double rozptyl) {
    int e = 0;
    for (int i = 1; i <= 6; ++i)
        e += int(tip[i] % 2 == 0);
    const int o = 6 - e;
    return e < sude - rozptyl || e > sude + rozptyl || o > liche + rozptyl || o < liche - rozptyl;
}

bool Omezeni_Dvojice(const Tip& tip, double max_dvojic) {
    const uint64_t m = Maska_Tipu(tip);
    return max_dvojic < std::popcount(m & (m >> 1));
}

bool Omezeni_Trojice(const Tip& tip, double limit) {
    // Each run x, x+1, x+2 is one triple of positions whatever their order.
    const uint64_t m = Maska_Tipu(tip);
    return std::popcount(m & (m >> 1) & (m >> 2)) > limit;
}

bool Omezeni_Suma(const Tip& tip, double od, double do_) {
    int16_t s = 0;
    for (int i = 1; i <= 6; ++i)
        s = int16_t(s + tip[i]);
    return !(s > od && s < do_);
}

bool Prunik_V_Mezich(int tiket, int sloupec) {
    return sloupec > 1 || tiket <= 1;
}

bool Omezeni_Prunik(const Zaznam_Tipu& soubor, const Tip& tip, int pocet_tutovek, int pocet, int tiket, int sloupec) {
    if (tiket == 1 && sloupec == 1)
        return true;
    const Tip& predchozi = soubor.Tikety[tiket].Cisla[sloupec - 1];
    // Whole numbers of the drawn part, as the search in their text finds them.
    const uint64_t m = Maska_Tipu(tip, pocet_tutovek + 1);
    int nalezeno = 0;
    for (int i = pocet_tutovek + 1; i <= 6; ++i)
        nalezeno += int((m >> (predchozi[i] & 63)) & 1);
    return nalezeno == pocet;
}

} // namespace modOkruh_Cisel
