#include "printing/Tisk_Tiketu.h"

#include "core/pTikety.h"

#include <cmath>

namespace Tisk_Tiketu {

namespace {

Znacka Krizek(int x, int y) {
    return {false, x, y, {}};
}

// The ticket's number stands above the first band.
Znacka Cislo(const Kalibrace& p, const QString& text) {
    return {true, p.X0() + 1175, p.Y0() - 450, text};
}

// Columns 1-4 in band 1, 5-8 in band 2, 9-10 in band 3; the place of a column's first cell.
std::pair<int, int> Zacatek_Sloupce(const Kalibrace& p, int sloupec) {
    const int pasmo = (sloupec - 1) / 4;
    const int blok = (sloupec - 1) % 4;
    return {p.Zaklad_X + Sirka_Bloku * blok, p.Zaklad_Y + Vyska_Pasma * pasmo};
}

void Volby(const Kalibrace& p, const std::array<bool, Pocet_Voleb + 1>& oznaceno, std::vector<Znacka>& znacky) {
    static constexpr int Poradi[] = {2, 1, 3, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 4};
    for (int v : Poradi)
        if (oznaceno[std::size_t(v)]) {
            const Volba_Tiketu& volba = Volby_Tiketu()[std::size_t(v)];
            znacky.push_back(Krizek(p.X0() + volba.Tiket_X, p.Y0() + volba.Tiket_Y));
        }
}

} // namespace

const std::array<Volba_Tiketu, Pocet_Voleb + 1>& Volby_Tiketu() {
    static const std::array<Volba_Tiketu, Pocet_Voleb + 1> volby = {{
        {},
        {110, 290, 3055, 5175, {}},
        {110, 650, 3055, 5400, {}},
        {1490, 290, 4230, 5175, {}},
        {110, 1265, 3055, 5850, {}},
        {110, 1850, 3055, 6525, u" 84 Kč "_qs},
        {470, 1850, 3290, 6525, u" 336 Kč "_qs},
        {815, 1850, 3525, 6525, u" 1 008 Kč "_qs},
        {110, 2225, 3055, 6750, u" 2 520 Kč "_qs},
        {470, 2225, 3290, 6750, u" 5 544 Kč "_qs},
        {815, 2225, 3525, 6750, u" 11 088 Kč "_qs},
        {110, 2570, 3055, 6975, u" 20 592 Kč "_qs},
        {470, 2570, 3290, 6975, u" 36 036 Kč "_qs},
        {815, 2570, 3525, 6975, u" 60 060 Kč "_qs},
        {1490, 1490, 4230, 6300, {}},
        {1490, 1850, 4230, 6525, {}},
        {1490, 2225, 4230, 6750, {}},
        {1490, 2570, 4230, 6975, {}},
    }};
    return volby;
}

std::optional<int> Posun_Z_Mm(const QString& text) {
    bool ok = false;
    const double mm = text.trimmed().toDouble(&ok);
    if (!ok || mm < -Nejvic_Mm || mm > Nejvic_Mm)
        return std::nullopt;
    return int(std::floor(mm * Twipu_Na_Mm));
}

std::array<bool, Pocet_Voleb + 1> Volby_Pri_Nacteni(bool streda, bool sance) {
    std::array<bool, Pocet_Voleb + 1> volby{};
    volby[1] = streda;
    volby[2] = !streda;
    volby[3] = !sance;
    return volby;
}

std::vector<Stranka> Stranky(const Zaznam_Tipu& soubor, int od, int pocet, const Zadani_Tisku& zadani) {
    std::vector<Stranka> stranky;
    const Kalibrace& p = zadani.Poloha;
    if (zadani.Jen_Volby) {
        Stranka s{od, 0, {}};
        Volby(p, zadani.Oznaceno, s.Znacky);
        stranky.push_back(std::move(s));
        return stranky;
    }
    const int tiketu = std::min<int>(soubor.Pocet_Tiketu, Max_Tiketu);
    // The tips are counted from the file's first ticket, so a print that starts further on stops
    // at the same tip as a print of the whole file.
    int tipu = 0;
    for (int t = 1; t < std::min(od, tiketu + 1); ++t)
        for (int c = 1; c <= Sloupcu_Tiketu && soubor.Tikety[t].Cisla[c][1] != 0; ++c)
            ++tipu;
    for (int t = std::max(od, 1); t <= tiketu && pocet >= 0; ++t, --pocet) {
        const Tiket& tiket = soubor.Tikety[t];
        Stranka s{t, tiket.Cislo_Tiketu, {}};
        if (zadani.Cisla_Tiketu)
            s.Znacky.push_back(Cislo(p, QString::number(tiket.Cislo_Tiketu)));
        for (int c = 1; c <= Sloupcu_Tiketu && tiket.Cisla[c][1] != 0; ++c) {
            if (++tipu > zadani.Pocet_Tipu_Aktivni)
                break;
            const auto [bx, by] = Zacatek_Sloupce(p, c);
            for (uint8_t n : tiket.Cisla[c]) {
                int r = 0, sl = 0;
                pTikety::Dej_Rad_Sloup(n, r, sl);
                s.Znacky.push_back(Krizek(bx + Krok_X * sl + p.Posun_X, by + Krok_Y * r + p.Posun_Y));
            }
        }
        Volby(p, zadani.Oznaceno, s.Znacky);
        stranky.push_back(std::move(s));
    }
    return stranky;
}

Stranka Testovaci_Stranka(const Kalibrace& p, bool cisla_tiketu) {
    Stranka s;
    s.Znacky.push_back(Cislo(p, u"123 456"_qs));
    for (int pasmo = 0; pasmo < 3; ++pasmo)
        for (int blok = 0; blok < (pasmo == 2 ? 2 : 4); ++blok)
            for (int r = 0; r < 10; ++r)
                for (int sl = 0; sl < 5; ++sl)
                    s.Znacky.push_back(Krizek(p.Zaklad_X + Sirka_Bloku * blok + p.Posun_X + Krok_X * sl,
                                              p.Zaklad_Y + Vyska_Pasma * pasmo + p.Posun_Y + Krok_Y * r));
    if (cisla_tiketu)
        s.Znacky.push_back(Krizek(p.X0() + Krok_X, p.Y0()));
    const auto& v = Volby_Tiketu();
    for (int i : {1, 2})
        s.Znacky.push_back(Krizek(p.X0() + v[std::size_t(i)].Tiket_X, p.Y0() + v[std::size_t(i)].Tiket_Y));
    for (int i = 0; i <= 3; ++i)
        s.Znacky.push_back(Krizek(p.X0() + v[14].Tiket_X, p.Y0() + 6300 + Krok_Y * i));
    s.Znacky.push_back(Krizek(p.X0() + v[3].Tiket_X, p.Y0() + v[3].Tiket_Y));
    for (int i = 5; i <= 13; ++i)
        s.Znacky.push_back(Krizek(p.X0() + v[std::size_t(i)].Tiket_X, p.Y0() + v[std::size_t(i)].Tiket_Y));
    s.Znacky.push_back(Krizek(p.X0() + v[4].Tiket_X, p.Y0() + v[4].Tiket_Y));
    return s;
}

Stranka Kalibracni_Stranka(const Kalibrace& p) {
    Stranka s;
    const auto mm = [](int twipy) { return QString::number(twipy / Twipu_Na_Mm, 'f', 1).replace(u'.', u','); };
    for (const auto& [r, sl] : {std::pair{0, 0}, std::pair{0, 4}, std::pair{9, 0}, std::pair{9, 4}, std::pair{4, 2}}) {
        const int x = p.X0() + Krok_X * sl;
        const int y = p.Y0() + Krok_Y * r;
        s.Znacky.push_back(Krizek(x, y));
        // The place of the cross's middle, written outside the block: left of the left column, right
        // of the right one, under the middle cell.
        const int tx = sl == 0 ? x - 1750 : sl == 4 ? x + Rameno + 60 : x - 600;
        const int ty = sl == 2 ? y + Rameno + 60 : y;
        s.Znacky.push_back({true, tx, ty, u"%1 ; %2 mm"_qs.arg(mm(x + Rameno / 2), mm(y + Rameno / 2))});
    }
    return s;
}

} // namespace Tisk_Tiketu
