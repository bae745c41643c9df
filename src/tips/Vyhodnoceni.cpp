#include "tips/Vyhodnoceni.h"

#include <algorithm>
#include <bit>

void Vysledek_Vyhodnoceni::Vycisti() {
    Vyhry_1Tah = {};
    Vyhry_2Tah = {};
    Vyherni_Zaznamy.clear();
    Preteceni = false;
    Zastaveno = false;
}

bool Zarad_Vyhru(Vyhry& vyhry, int h, int s, int& poradi) {
    switch (h) {
    case 3:
        poradi = 5;
        break;
    case 4:
        poradi = 4;
        break;
    case 5:
        poradi = s == 0 ? 3 : 2;
        break;
    case 6:
        poradi = 1;
        break;
    default:
        return false;
    }
    ++vyhry[std::size_t(poradi)];
    return true;
}

std::optional<int> Opakovane_Cislo(const Radek_Tahu& radek) {
    for (std::size_t i = 0; i < radek.size(); ++i)
        for (std::size_t j = i + 1; j < radek.size(); ++j)
            if (radek[i] != 0 && radek[i] == radek[j])
                return radek[i];
    return std::nullopt;
}

int Pocet_Cisel(const Radek_Tahu& radek) {
    return int(std::count_if(radek.begin(), radek.end(), [](int c) { return c != 0; }));
}

namespace {

// Steps of a loop for the progress callback: the callback hears only of grown percentages, and a
// false answer stops the loop.
class Kroky final {
public:
    Kroky(const Prubeh& prubeh, int64_t celkem) : Sledovani(prubeh, std::max<int64_t>(celkem, 1)) {}
    bool Dalsi() { return Sledovani.Krok(++Hotovo); }

private:
    Sledovani_Prubehu Sledovani;
    int64_t Hotovo = 0;
};

void Zapis_Vyhru(Vysledek_Vyhodnoceni& v, int32_t cislo_tiketu, int sloupec, int poradi, int tah) {
    Vyherni_Zaznam z;
    z.Cislo_Tiketu = cislo_tiketu;
    z.Sloupce[sloupec] = {uint8_t(poradi), uint8_t(tah)};
    v.Vyherni_Zaznamy.push_back(z);
}

// One row of boxes against the whole store. False when the loop was stopped.
bool Radek_V_Tipech(const Zaznam_Tipu& tipy, const Radek_Tahu& boxy, int tah, Vyhry& vyhry, Barvy_Radku& barvy,
                    Vysledek_Vyhodnoceni& v, Kroky& kroky) {
    int poradi = 0;
    for (int i = 1; i <= tipy.Pocet_Tiketu; ++i) {
        const Tiket& tiket = tipy.Tikety[i];
        for (int c = 1; c <= Sloupcu_Tiketu; ++c) {
            const Tip& tip = tiket.Cisla[c];
            if (tip[1] == 0)
                return true;
            int h = 0;
            int s = 0;
            for (int k = 1; k <= 6; ++k) {
                const int t = tip[k];
                for (std::size_t b = 0; b < 6; ++b) {
                    if (boxy[b] == 0)
                        continue;
                    if (boxy[b] == t) {
                        barvy[b] = Barva_Boxu::Zasah;
                        ++h;
                    }
                    if ((boxy[b] == t + 1 || boxy[b] == t - 1) && barvy[b] != Barva_Boxu::Zasah)
                        barvy[b] = Barva_Boxu::Vedle;
                }
                if (boxy[6] != 0 && boxy[6] == t) {
                    barvy[6] = Barva_Boxu::Zasah;
                    ++s;
                }
            }
            if (h > 2 && Zarad_Vyhru(vyhry, h, s, poradi))
                Zapis_Vyhru(v, tiket.Cislo_Tiketu, c, poradi, tah);
        }
        if (!kroky.Dalsi()) {
            v.Zastaveno = true;
            return false;
        }
    }
    return true;
}

// A row of boxes taken as a tip against one draw: h, s.
void Radek_Proti_Tahu(const Radek_Tahu& boxy, const Tah& tah, int& h, int& s) {
    h = 0;
    s = 0;
    std::size_t konec = 6; // the box where the search of a position ended
    for (int p = 1; p <= 6; ++p) {
        konec = 6;
        for (std::size_t b = 0; b < 6; ++b) {
            if (boxy[b] == tah[p]) {
                ++h;
                konec = b;
                break;
            }
        }
        if (konec == 6 && boxy[6] != 0 && boxy[6] == tah[p])
            ++s;
    }
    // An empty box is no number: against a draw without its supplementary number (0) it is no hit.
    if (boxy[konec] != 0 && boxy[konec] == tah[7])
        ++s;
}

// A tip against one draw, number by number: h, s.
void Tip_Proti_Tahu(const Tip& tip, const Tah& tah, int& h, int& s) {
    h = 0;
    s = 0;
    for (int k = 1; k <= 6; ++k) {
        const uint8_t t = tip[k];
        bool zasah = false;
        for (int p = 1; p <= 6 && !zasah; ++p)
            zasah = tah[p] == t;
        if (zasah)
            ++h;
        else if (t != 0 && t == tah[7])
            ++s;
    }
}

// The tips of the store in order up to the first empty column; the masks stand apart so that the
// hot loop walks one dense array.
struct Tipy_Souboru {
    std::vector<uint64_t> Masky; // 0 for a tip the straightforward comparison takes
    std::vector<const Tip*> Cisla;
    std::vector<int32_t> Cislo_Tiketu;
    std::vector<int16_t> Sloupec;

    explicit Tipy_Souboru(const Zaznam_Tipu& tipy) {
        for (int i = 1; i <= tipy.Pocet_Tiketu; ++i) {
            const Tiket& tiket = tipy.Tikety[i];
            for (int c = 1; c <= Sloupcu_Tiketu; ++c) {
                if (tiket.Cisla[c][1] == 0)
                    return;
                Masky.push_back(Maska_Cisteho_Tipu(tiket.Cisla[c]));
                Cisla.push_back(&tiket.Cisla[c]);
                Cislo_Tiketu.push_back(tiket.Cislo_Tiketu);
                Sloupec.push_back(int16_t(c));
            }
        }
    }
};

// The hot loop: the places of the tips with at least three numbers in the draw's mask, and of those
// without a mask. Built twice where the processor may lack the popcount instruction.
#if defined(__GNUC__) && defined(__x86_64__) && !defined(__clang__)
[[gnu::target_clones("popcnt", "default")]]
#endif
std::size_t
Kandidati(const std::vector<uint64_t>& masky, uint64_t hlavni, std::vector<uint32_t>& kandidati) {
    std::size_t pocet = 0;
    for (std::size_t j = 0; j < masky.size(); ++j) {
        kandidati[pocet] = uint32_t(j);
        pocet += (masky[j] == 0 || std::popcount(masky[j] & hlavni) >= 3) ? 1 : 0;
    }
    return pocet;
}

} // namespace

void Vyh_Tah_V_Tipech(const Zaznam_Tipu& tipy, const Radek_Tahu& tah1, const Radek_Tahu& tah2,
                      Vysledek_Vyhodnoceni& vysledek, Barvy_Radku& barvy1, Barvy_Radku& barvy2, const Prubeh& prubeh) {
    const bool prvni = Pocet_Cisel(tah1) > 2;
    const bool druhy = Pocet_Cisel(tah2) > 2;
    Kroky kroky(prubeh, int64_t(tipy.Pocet_Tiketu) * ((prvni ? 1 : 0) + (druhy ? 1 : 0)));
    if (prvni) {
        vysledek.Vyherni_Zaznamy.clear();
        if (!Radek_V_Tipech(tipy, tah1, 1, vysledek.Vyhry_1Tah, barvy1, vysledek, kroky))
            return;
    }
    if (druhy)
        Radek_V_Tipech(tipy, tah2, 2, vysledek.Vyhry_2Tah, barvy2, vysledek, kroky);
}

Rozsah_Tahu Rozsah_Archivu(const Archiv_Tahu& archiv, int n1, int n2) {
    Rozsah_Tahu r;
    r.Tahy_1 = &archiv.Tahy_1;
    r.Tahy_2 = &archiv.Tahy_2;
    r.Pocet_Tahy_1 = std::min(archiv.Pocet_Tahy_1, int(archiv.Tahy_1.size()) - 1);
    r.Pocet_Tahy_2 = std::min(archiv.Pocet_Tahy_2, int(archiv.Tahy_2.size()) - 1);
    r.N1 = std::clamp(n1, 0, r.Pocet_Tahy_1);
    r.N2 = std::clamp(n2, 0, r.Pocet_Tahy_2);
    return r;
}

void Vyh_Cisla_V_Tazich(const Radek_Tahu& tah1, const Radek_Tahu& tah2, bool radek1, bool radek2,
                        const Rozsah_Tahu& rozsah, Vysledek_Vyhodnoceni& vysledek, const Prubeh& prubeh) {
    std::vector<const Radek_Tahu*> radky;
    if (radek1 && Kontrola_Cisel(tah1))
        radky.push_back(&tah1);
    if (radek2 && Kontrola_Cisel(tah2))
        radky.push_back(&tah2);
    Kroky kroky(prubeh, int64_t(radky.size()) * (rozsah.N1 + rozsah.N2));
    int poradi = 0;
    for (const Radek_Tahu* radek : radky) {
        for (int tah = 1; tah <= 2; ++tah) {
            const std::vector<Tah>& tahy = rozsah.Tahy(tah);
            Vyhry& vyhry = vysledek.Vyhry_Tahu(tah);
            for (int d = rozsah.Od(tah); d <= rozsah.Do(tah); ++d) {
                int h = 0;
                int s = 0;
                Radek_Proti_Tahu(*radek, tahy[std::size_t(d)], h, s);
                if (h > 2)
                    Zarad_Vyhru(vyhry, h, s, poradi);
                if (!kroky.Dalsi()) {
                    vysledek.Zastaveno = true;
                    return;
                }
            }
        }
    }
}

void Vyh_Soubor_V_Tazich(const Zaznam_Tipu& tipy, const Rozsah_Tahu& rozsah, Vysledek_Vyhodnoceni& vysledek,
                         const Prubeh& prubeh, std::size_t max_zaznamu) {
    vysledek.Vyherni_Zaznamy.clear();
    const Tipy_Souboru seznam(tipy);
    std::vector<uint32_t> kandidati(seznam.Masky.size());
    Kroky kroky(prubeh, int64_t(rozsah.N1) + rozsah.N2);
    int poradi = 0;
    for (int tah = 1; tah <= 2; ++tah) {
        const std::vector<Tah>& tahy = rozsah.Tahy(tah);
        Vyhry& vyhry = vysledek.Vyhry_Tahu(tah);
        for (int d = rozsah.Od(tah); d <= rozsah.Do(tah); ++d) {
            const Tah& tah_d = tahy[std::size_t(d)];
            const uint64_t hlavni = Maska_Tahu(tah_d);
            const uint8_t dodatkove = tah_d[7];
            const uint64_t dodatek = dodatkove >= 1 && dodatkove <= 49 ? uint64_t(1) << dodatkove : 0;
            const std::size_t pocet_kandidatu = Kandidati(seznam.Masky, hlavni, kandidati);
            for (std::size_t k = 0; k < pocet_kandidatu; ++k) {
                const uint32_t j = kandidati[k];
                const uint64_t maska = seznam.Masky[j];
                int h = 0;
                int s = 0;
                if (maska != 0) {
                    h = std::popcount(maska & hlavni);
                    s = (maska & ~hlavni & dodatek) != 0 ? 1 : 0;
                } else {
                    Tip_Proti_Tahu(*seznam.Cisla[j], tah_d, h, s);
                }
                if (h < 3 || !Zarad_Vyhru(vyhry, h, s, poradi) || max_zaznamu == Bez_Zaznamu)
                    continue;
                if (vysledek.Vyherni_Zaznamy.size() >= max_zaznamu) {
                    // The win counted; its record has no room, so the run ends here.
                    vysledek.Preteceni = true;
                    return;
                }
                Zapis_Vyhru(vysledek, seznam.Cislo_Tiketu[j], seznam.Sloupec[j], poradi, tah);
            }
            if (!kroky.Dalsi()) {
                vysledek.Zastaveno = true;
                return;
            }
        }
    }
}

void Vyh_Soubor_V_Tazich_Prosty(const Zaznam_Tipu& tipy, const Rozsah_Tahu& rozsah, Vysledek_Vyhodnoceni& vysledek) {
    vysledek.Vyherni_Zaznamy.clear();
    int poradi = 0;
    for (int tah = 1; tah <= 2; ++tah) {
        const std::vector<Tah>& tahy = rozsah.Tahy(tah);
        Vyhry& vyhry = vysledek.Vyhry_Tahu(tah);
        for (int d = rozsah.Od(tah); d <= rozsah.Do(tah); ++d) {
            bool dalsi_tah = false;
            for (int i = 1; i <= tipy.Pocet_Tiketu && !dalsi_tah; ++i) {
                for (int c = 1; c <= Sloupcu_Tiketu; ++c) {
                    const Tip& tip = tipy.Tikety[i].Cisla[c];
                    if (tip[1] == 0) {
                        dalsi_tah = true;
                        break;
                    }
                    int h = 0;
                    int s = 0;
                    Tip_Proti_Tahu(tip, tahy[std::size_t(d)], h, s);
                    if (h > 2 && Zarad_Vyhru(vyhry, h, s, poradi))
                        Zapis_Vyhru(vysledek, tipy.Tikety[i].Cislo_Tiketu, c, poradi, tah);
                }
            }
        }
    }
}
