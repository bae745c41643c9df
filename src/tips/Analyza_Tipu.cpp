#include "tips/Analyza_Tipu.h"

#include "core/modTombi_Zaklad.h"
#include "core/pTikety.h"

#include <QSet>
#include <algorithm>
#include <utility>

namespace modAnalyza_Tipu {

namespace {

int Pocet_Tiketu(const Zaznam_Tipu& tipy) {
    return std::clamp<int>(tipy.Pocet_Tiketu, 0, Max_Tiketu);
}

// Walks the tips in order up to the first empty column. `krok` answers false to stop the walk.
// The progress is told once a ticket; a walk that strikes tips out goes to its end regardless.
template <class Zaznam, class Krok> void Projdi(Zaznam& tipy, const Prubeh& prubeh, Krok krok) {
    const int pocet = Pocet_Tiketu(tipy);
    Sledovani_Prubehu sledovani(prubeh, pocet);
    for (int t = 1; t <= pocet; ++t) {
        for (int s = 1; s <= Sloupcu_Tiketu; ++s) {
            auto& tip = tipy.Tikety[t].Cisla[s];
            if (tip[1] == 0 || !krok(tip))
                return;
        }
        sledovani.Krok(t);
    }
}

// Erases every tip that `vyradit` picks, and compacts the store if one went.
template <class Vyradit>
bool Odstran(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, const Prubeh& prubeh, Vyradit vyradit) {
    bool zmena = false;
    Projdi(tipy, prubeh, [&](Tip& tip) {
        if (vyradit(std::as_const(tip))) {
            tip = Tip{};
            zmena = true;
        }
        return true;
    });
    if (zmena)
        Zhustit_Tipy(tipy, pocet_tipu_aktivni);
    return zmena;
}

// Whether the numbers at positions od..do_ follow one another by one.
bool Rada(const Tip& t, int od, int do_) {
    for (int i = od; i < do_; ++i)
        if (t[i + 1] != t[i] + 1)
            return false;
    return true;
}

// Neighbours: the positions i (1..5) whose next number is one higher.
int Sousedu(const Tip& t) {
    int p = 0;
    for (int i = 1; i <= 5; ++i)
        if (t[i + 1] == t[i] + 1)
            ++p;
    return p;
}

bool Trojice(const Tip& t) {
    return Rada(t, 1, 3) || Rada(t, 2, 4) || Rada(t, 3, 5) || Rada(t, 4, 6);
}

Bunky_Tipu Jedna(int a) {
    return {1, {a, 0}};
}

Bunky_Tipu Dve(int a, int b) {
    return {2, {a, b}};
}

// The numbers of a blank-separated text: tokens that are a number 1..49 written plainly.
QSet<int> Cisla_Textu(const QString& text) {
    QSet<int> cisla;
    for (const QString& kus : text.split(u' ', Qt::SkipEmptyParts)) {
        bool ok = false;
        const int n = kus.toInt(&ok);
        if (ok && n >= 1 && n <= 49 && kus == QString::number(n))
            cisla.insert(n);
    }
    return cisla;
}

} // namespace

int Index_Pomeru(const Tip& tip) {
    int sudych = 0;
    for (const uint8_t cislo : tip)
        if (modTombi::Je_Sude(cislo))
            ++sudych;
    return 6 - sudych;
}

Bunky_Tipu Bunky_Sousednich(const Tip& t) {
    // The tests go from the longest run down; the first that fits decides.
    if (Rada(t, 1, 6))
        return Jedna(7);
    if (Rada(t, 1, 5) || Rada(t, 2, 6))
        return Jedna(6);
    const bool par_12 = t[2] == t[1] + 1;
    const bool par_56 = t[6] == t[5] + 1;
    if ((Rada(t, 1, 4) && !par_56) || (Rada(t, 3, 6) && !par_12) || Rada(t, 2, 5))
        return Jedna(5);
    if ((Rada(t, 1, 4) && par_56) || (par_12 && Rada(t, 3, 6)))
        return Dve(5, 0);
    // No run of four is left, so a run of three is two neighbours and anything beyond is another run.
    const int p = Sousedu(t);
    if (Trojice(t) && p == 2)
        return Jedna(3);
    if (Rada(t, 1, 3) && Rada(t, 4, 6))
        return Jedna(4);
    if (Trojice(t) && p == 3)
        return Dve(3, 0);
    switch (p) {
    case 1:
        return Jedna(0);
    case 2:
        return Jedna(1);
    case 3:
        return Jedna(2);
    default:
        return {};
    }
}

std::optional<bool> Ma_Pary(const Tip& t) {
    std::array<int, 6> d{}; // d[1..5]
    for (int i = 1; i <= 5; ++i) {
        d[std::size_t(i)] = t[i + 1] - t[i];
        if (d[std::size_t(i)] < 0)
            return std::nullopt;
    }
    if (Sousedu(t) >= 2)
        return false;
    return d[1] == d[3] || d[1] == d[4] || d[1] == d[5] || d[2] == d[4] || d[2] == d[5] || d[3] == d[5];
}

Pocty_Pomeru Analyza_Pomeru(const Zaznam_Tipu& tipy, const Prubeh& prubeh) {
    Pocty_Pomeru pocty{};
    Projdi(tipy, prubeh, [&](const Tip& tip) {
        ++pocty[std::size_t(Index_Pomeru(tip))];
        return true;
    });
    return pocty;
}

Pocty_Sousednich Analyza_Sousednich(const Zaznam_Tipu& tipy, const Prubeh& prubeh) {
    Pocty_Sousednich pocty{};
    Projdi(tipy, prubeh, [&](const Tip& tip) {
        const Bunky_Tipu bunky = Bunky_Sousednich(tip);
        for (int i = 0; i < bunky.Pocet; ++i)
            ++pocty[std::size_t(bunky.Index[std::size_t(i)])];
        return true;
    });
    return pocty;
}

Vysledek_Paru Analyza_Paru(const Zaznam_Tipu& tipy, const Prubeh& prubeh) {
    Vysledek_Paru vysledek;
    Projdi(tipy, prubeh, [&](const Tip& tip) {
        const std::optional<bool> pary = Ma_Pary(tip);
        if (!pary) {
            vysledek.Zprava = Text_Nesetrideno;
            return false;
        }
        if (*pary)
            ++vysledek.Pocet;
        return true;
    });
    return vysledek;
}

bool Analyza_Pomeru(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, const Znacky_Pomeru& znacky, const Prubeh& prubeh) {
    return Odstran(tipy, pocet_tipu_aktivni, prubeh,
                   [&](const Tip& tip) { return znacky[std::size_t(Index_Pomeru(tip))] == 1; });
}

bool Analyza_Sousednich(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, const Znacky_Sousednich& znacky,
                        const Prubeh& prubeh) {
    return Odstran(tipy, pocet_tipu_aktivni, prubeh, [&](const Tip& tip) {
        const Bunky_Tipu bunky = Bunky_Sousednich(tip);
        for (int i = 0; i < bunky.Pocet; ++i)
            if (znacky[std::size_t(bunky.Index[std::size_t(i)])] == 1)
                return true;
        return false;
    });
}

Vysledek_Paru Analyza_Paru(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, const Prubeh& prubeh) {
    // An unsorted tip is found before anything is erased, so a refused strike leaves the store whole.
    Vysledek_Paru vysledek = Analyza_Paru(std::as_const(tipy));
    if (!vysledek.Ok())
        return vysledek;
    vysledek.Zmena = Odstran(tipy, pocet_tipu_aktivni, prubeh, [](const Tip& tip) { return Ma_Pary(tip) == true; });
    return vysledek;
}

bool Odstran_Tipy_S_Cisly(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, const QString& text, const Prubeh& prubeh) {
    const QSet<int> cisla = Cisla_Textu(text);
    if (cisla.isEmpty())
        return false;
    return Odstran(tipy, pocet_tipu_aktivni, prubeh, [&](const Tip& tip) {
        return std::any_of(tip.begin(), tip.end(), [&](uint8_t c) { return cisla.contains(c); });
    });
}

bool Odstran_Tipy_Nad_Max(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, int limit, const Prubeh& prubeh) {
    if (limit < 1)
        return false;
    return Odstran(tipy, pocet_tipu_aktivni, prubeh, [&](const Tip& tip) {
        Pole_Od_1<int, 5> sloupce{};
        for (const uint8_t cislo : tip)
            pTikety::Tip_Slo_Poc_Cis(cislo, sloupce);
        return std::any_of(sloupce.begin(), sloupce.end(), [&](int n) { return n > limit; });
    });
}

void Zhustit_Tipy(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni) {
    const int pocet_tiketu = Pocet_Tiketu(tipy);
    int tiket = 1;   // the next free place
    int sloupec = 0; // columns filled on that ticket
    int pocet = 0;
    for (int t = 1; t <= pocet_tiketu; ++t)
        for (int s = 1; s <= Sloupcu_Tiketu; ++s) {
            const Tip tip = tipy.Tikety[t].Cisla[s];
            // An erased tip has zeroed numbers; both of the first two are tested.
            if (tip[1] == 0 || tip[2] == 0)
                continue;
            if (sloupec == Sloupcu_Tiketu) {
                ++tiket;
                sloupec = 0;
                tipy.Tikety[tiket].Cislo_Tiketu = tiket;
            }
            tipy.Tikety[tiket].Cisla[++sloupec] = tip;
            ++pocet;
        }
    // The rest of the last ticket and every ticket behind it are emptied.
    for (int s = sloupec + 1; s <= Sloupcu_Tiketu && pocet_tiketu > 0; ++s)
        tipy.Tikety[tiket].Cisla[s] = Tip{};
    const int novych = sloupec == 0 ? tiket - 1 : tiket;
    for (int t = novych + 1; t <= pocet_tiketu; ++t)
        tipy.Tikety[t] = Tiket{};
    tipy.Pocet_Tiketu = int16_t(novych);
    tipy.Pocet_Tipu = int16_t(pocet);
    pocet_tipu_aktivni = int16_t(pocet);
}

int Pocet_Tipu_S_Cislem(const Zaznam_Tipu& tipy, int cislo, const Prubeh& prubeh) {
    int pocet = 0;
    Projdi(tipy, prubeh, [&](const Tip& tip) {
        if (std::find(tip.begin(), tip.end(), cislo) != tip.end())
            ++pocet;
        return true;
    });
    return pocet;
}

Shody Shoda_S_Tipy(const Zaznam_Tipu& tipy, int pocet_tipu_celkem, const QString& text, const Prubeh& prubeh) {
    Shody shody{};
    const QSet<int> cisla = Cisla_Textu(text);
    int poradi = 0;
    Projdi(tipy, prubeh, [&](const Tip& tip) {
        if (++poradi > pocet_tipu_celkem)
            return false;
        const auto stejnych = std::count_if(tip.begin(), tip.end(), [&](uint8_t c) { return cisla.contains(c); });
        if (stejnych >= 3)
            ++shody[std::size_t(stejnych - 3)];
        return true;
    });
    return shody;
}

QString Neobsazena_Cisla(const Zaznam_Tipu& tipy, const Prubeh& prubeh) {
    std::array<bool, 50> pouzita{};
    Projdi(tipy, prubeh, [&](const Tip& tip) {
        for (const uint8_t cislo : tip)
            if (cislo <= 49)
                pouzita[cislo] = true;
        return true;
    });
    QStringList volna;
    for (int n = 1; n <= 49; ++n)
        if (!pouzita[std::size_t(n)])
            volna << QString::number(n);
    return volna.join(u", "_qs);
}

} // namespace modAnalyza_Tipu
