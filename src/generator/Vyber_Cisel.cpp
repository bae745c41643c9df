#include "generator/Vyber_Cisel.h"

#include "core/Random.h"
#include "core/Vb.h"
#include "data/Archiv_Tahu.h"

#include <QStringList>
#include <algorithm>
#include <utility>

namespace {

bool Je_V_Seznamu(const Seznam_Cisel& seznam, int pocet, int n) {
    for (int i = 1; i <= pocet; ++i)
        if (seznam[i] == n)
            return true;
    return false;
}

bool Je_Tutovka(const Boxy_Tutovek& boxy, int n) {
    return std::find(boxy.begin(), boxy.end(), uint8_t(n)) != boxy.end();
}

// The count of a list never leaves 0..49, whatever a caller or a file put there.
int Meze_Poctu(int pocet) {
    return std::clamp(pocet, 0, 49);
}

void Pridej(Seznam_Cisel& seznam, int& pocet, int n) {
    pocet = Meze_Poctu(pocet);
    if (pocet < 49)
        seznam[++pocet] = uint8_t(n);
}

void Odeber(Seznam_Cisel& seznam, int& pocet, int n) {
    pocet = Meze_Poctu(pocet);
    int k = 0;
    for (int i = 1; i <= pocet; ++i)
        if (seznam[i] != n)
            seznam[++k] = seznam[i];
    for (int i = k + 1; i <= pocet; ++i)
        seznam[i] = 0;
    pocet = k;
}

// A chosen number clicked again: it leaves the list, the boxes are emptied, and the tutovky that
// stay in the list go back into the boxes in list order.
void Zrus_Vybrane(Seznam_Cisel& seznam, int& pocet, int n, Vyber_Cisel& v, Boxy_Tutovek& boxy) {
    const Boxy_Tutovek tutovky = boxy;
    boxy = {};
    v.Tutovka_Index = 0;
    Odeber(seznam, pocet, n);
    for (int i = 1; i <= pocet; ++i)
        if (seznam[i] != 0 && Je_Tutovka(tutovky, seznam[i]) && v.Tutovka_Index < 3)
            boxy[std::size_t(v.Tutovka_Index++)] = seznam[i];
}

// The numbers of the list, the tutovky apart, then the tutovky (at most three) behind them.
int Rozdel_Tutovky(const Seznam_Cisel& seznam, int pocet, const Boxy_Tutovek& boxy, Seznam_Cisel& ostatni,
                   std::vector<uint8_t>& tutovky) {
    int n = 0;
    for (int i = 1; i <= Meze_Poctu(pocet); ++i) {
        const uint8_t x = seznam[i];
        if (Je_Tutovka(boxy, x) && tutovky.size() < 3)
            tutovky.push_back(x);
        else
            ostatni[++n] = x;
    }
    return n;
}

void Zamichej(Random& random, std::optional<double> seminko) {
    if (seminko)
        random.Shuffle(*seminko);
    else
        random.Zamichej_Podle_Casu();
}

} // namespace

Seznam_Cisel& Seznam_V_Platnosti(Vyber_Cisel& v) {
    return v.Rozpis_Aktivni ? v.Cisla_Rozpisu : v.Vynechat_Vybrana ? v.Cisla_Vynechat : v.Cisla_Pouzit;
}

int& Pocet_V_Platnosti(Vyber_Cisel& v) {
    return v.Rozpis_Aktivni ? v.Pocet_Rozpisu : v.Vynechat_Vybrana ? v.Pocet_Vynechat : v.Pocet_Pouzit;
}

int Pocet_V_Platnosti(const Vyber_Cisel& v) {
    return Pocet_V_Platnosti(const_cast<Vyber_Cisel&>(v));
}

int Zbytek_Cisel(const Vyber_Cisel& v) {
    return v.Cisla_Potreba - Pocet_V_Platnosti(v);
}

namespace {

void Serad(Vyber_Cisel& v) {
    Seznam_Cisel& seznam = Seznam_V_Platnosti(v);
    std::sort(seznam.begin(), seznam.begin() + Meze_Poctu(Pocet_V_Platnosti(v)));
}

void Klik(Vyber_Cisel& v, int n, int barva, Boxy_Tutovek& boxy) {
    if (n < 1 || n > 49)
        return;
    if (v.Rozpis_Aktivni) {
        if (Je_V_Seznamu(v.Cisla_Rozpisu, Meze_Poctu(v.Pocet_Rozpisu), n)) {
            Zrus_Vybrane(v.Cisla_Rozpisu, v.Pocet_Rozpisu, n, v, boxy);
        } else if (Zbytek_Cisel(v) >= 1) {
            Pridej(v.Cisla_Rozpisu, v.Pocet_Rozpisu, n);
            // The wheel's first numbers are its tutovky, whatever colour the click had.
            if (v.Tutovka_Index < v.Pocet_Tutovek_Rozpisu && v.Tutovka_Index < 3)
                boxy[std::size_t(v.Tutovka_Index++)] = uint8_t(n);
        }
    } else if (v.Vynechat_Vybrana) {
        if (Je_V_Seznamu(v.Cisla_Vynechat, Meze_Poctu(v.Pocet_Vynechat), n))
            Odeber(v.Cisla_Vynechat, v.Pocet_Vynechat, n);
        else
            Pridej(v.Cisla_Vynechat, v.Pocet_Vynechat, n);
    } else if (Je_V_Seznamu(v.Cisla_Pouzit, Meze_Poctu(v.Pocet_Pouzit), n)) {
        Zrus_Vybrane(v.Cisla_Pouzit, v.Pocet_Pouzit, n, v, boxy);
    } else if (v.Pouzit_Vybrana || v.Tutovka_Index < 3) {
        // "Bez výběru" takes only tutovky, and no fourth.
        Pridej(v.Cisla_Pouzit, v.Pocet_Pouzit, n);
        if (barva == Barva_Cervena && v.Tutovka_Index < 3)
            boxy[std::size_t(v.Tutovka_Index++)] = uint8_t(n);
    }
    // The lists stay sorted, so a tutovka lands among the others until Priprav_Okruh moves it.
    Serad(v);
}

} // namespace

Stav_Vyberu Serad_Seznam(Vyber_Cisel& v, int pocet) {
    Seznam_Cisel& seznam = Seznam_V_Platnosti(v);
    pocet = Meze_Poctu(pocet);
    std::sort(seznam.begin(), seznam.begin() + pocet);
    Stav_Vyberu stav;
    // Str of each number, " 5 12 33", written in one buffer: a range applies 49 clicks at once.
    stav.Rozpis.reserve(4 * pocet);
    for (int i = 1; i <= pocet; ++i) {
        const int x = seznam[i];
        stav.Rozpis += u' ';
        if (x >= 100)
            stav.Rozpis += QChar(u'0' + x / 100);
        if (x >= 10)
            stav.Rozpis += QChar(u'0' + x / 10 % 10);
        stav.Rozpis += QChar(u'0' + x % 10);
    }
    stav.Pocet = pocet;
    return stav;
}

Stav_Vyberu Klik_Cislo(Vyber_Cisel& v, int n, int barva, Boxy_Tutovek& boxy) {
    Klik(v, n, barva, boxy);
    return Serad_Seznam(v, Pocet_V_Platnosti(v));
}

void Vymaz_Seznam(Vyber_Cisel& v) {
    Seznam_V_Platnosti(v) = {};
    Pocet_V_Platnosti(v) = 0;
}

int Priprav_Okruh(Vyber_Cisel& v, const Boxy_Tutovek& boxy) {
    v.Okruh_Cisel = {};
    v.Cisla_Pomocne = {};
    v.Pocet_Okruhu = 0;
    if (v.Pouzit_Vybrana) {
        std::vector<uint8_t> tutovky;
        v.Pocet_Okruhu = Rozdel_Tutovky(v.Cisla_Pouzit, v.Pocet_Pouzit, boxy, v.Okruh_Cisel, tutovky);
        v.Cisla_Pomocne = v.Okruh_Cisel;
        // Behind the count, where the test of the run does not look.
        for (std::size_t k = 0; k < tutovky.size(); ++k)
            v.Okruh_Cisel[v.Pocet_Okruhu + int(k) + 1] = tutovky[k];
    } else if (v.Vynechat_Vybrana) {
        v.Pocet_Okruhu = Meze_Poctu(v.Pocet_Vynechat);
        for (int i = 1; i <= v.Pocet_Okruhu; ++i)
            v.Okruh_Cisel[i] = v.Cisla_Pomocne[i] = v.Cisla_Vynechat[i];
    }
    if (v.Rozpis_Aktivni) {
        std::vector<uint8_t> tutovky;
        Seznam_Cisel ostatni;
        v.Pocet_Okruhu = Rozdel_Tutovky(v.Cisla_Rozpisu, v.Pocet_Rozpisu, boxy, ostatni, tutovky);
        v.Okruh_Cisel = v.Cisla_Pomocne = ostatni;
        // The wheel finds its numbers at 1..n and its tutovky behind them.
        for (std::size_t k = 0; k < tutovky.size(); ++k)
            v.Okruh_Cisel[v.Pocet_Okruhu + int(k) + 1] = ostatni[v.Pocet_Okruhu + int(k) + 1] = tutovky[k];
        for (int i = 1; i <= Meze_Poctu(v.Pocet_Rozpisu); ++i)
            v.Cisla_Rozpisu[i] = ostatni[i];
    }
    return v.Pocet_Okruhu;
}

void Zamichej_Cisla(Vyber_Cisel& v, int pocet, Random& random, std::optional<double> seminko) {
    pocet = Meze_Poctu(pocet);
    random.Dolni_Mez = 1;
    random.Horni_Mez = pocet;
    Zamichej(random, seminko);
    int zbyva = 0;
    for (int i = 1; i <= pocet; ++i)
        zbyva += v.Cisla_Pomocne[i] != 0;
    // Draws until a place not yet taken comes up; a count above the numbers there stops when they
    // are used up instead of drawing for ever.
    for (int i = 1; i <= pocet && zbyva > 0; ++i) {
        int r;
        do
            r = std::clamp(random.RandomInt(), 1, pocet);
        while (v.Cisla_Pomocne[r] == 0);
        v.Cisla_Rozpisu[i] = v.Cisla_Pomocne[r];
        v.Cisla_Pomocne[r] = 0;
        --zbyva;
    }
}

void Zamen_Cisla(Vyber_Cisel& v) {
    std::swap(v.Cisla_Pouzit, v.Cisla_Vynechat);
    std::swap(v.Pocet_Pouzit, v.Pocet_Vynechat);
}

Meze_Rozsahu Rozsah_Cisel(int index) {
    switch (index) {
    case 1:
        return {1, 25};
    case 2:
        return {13, 37};
    case 3:
        return {25, 49};
    default:
        return {1, 49};
    }
}

int Platny_Rozsah(const Vyber_Cisel& v, int index) {
    const Meze_Rozsahu r = Rozsah_Cisel(index);
    return v.Rozpis_Aktivni && r.Horni_Mez - r.Dolni_Mez + 1 < v.Cisla_Potreba ? 0 : index;
}

Stav_Vyberu Vypln_Rozsah(Vyber_Cisel& v, int index, Boxy_Tutovek& boxy) {
    Vymaz_Seznam(v);
    const Meze_Rozsahu r = Rozsah_Cisel(index);
    for (int i = r.Dolni_Mez; i <= r.Horni_Mez; ++i)
        Klik(v, i, Barva_Cerna, boxy);
    return Serad_Seznam(v, Pocet_V_Platnosti(v));
}

std::vector<uint8_t> Nahodna_Sada(const Vyber_Cisel& v, int rozsah, const Boxy_Tutovek& boxy, bool pevna_tutovka,
                                  Random& random, std::optional<double> seminko) {
    const int potreba = Meze_Poctu(v.Cisla_Potreba);
    const Meze_Rozsahu r = Rozsah_Cisel(rozsah);
    const bool pevne = pevna_tutovka && boxy[0] != 0;
    const bool zadane = std::any_of(boxy.begin(), boxy.end(), [](uint8_t b) { return b != 0; });
    std::vector<uint8_t> sada;
    if (pevne)
        for (const uint8_t b : boxy)
            if (b != 0 && int(sada.size()) < potreba)
                sada.push_back(b);
    const auto smi = [&](int x) {
        return std::find(sada.begin(), sada.end(), uint8_t(x)) == sada.end() &&
               (pevne || !zadane || !Je_Tutovka(boxy, x));
    };
    int volnych = 0;
    for (int x = r.Dolni_Mez; x <= r.Horni_Mez; ++x)
        volnych += smi(x);
    // Too few numbers left in the range would keep the draw going for ever.
    if (volnych < potreba - int(sada.size()))
        return {};
    random.Dolni_Mez = r.Dolni_Mez;
    random.Horni_Mez = r.Horni_Mez;
    Zamichej(random, seminko);
    while (int(sada.size()) < potreba) {
        const int x = random.RandomInt();
        if (x >= r.Dolni_Mez && x <= r.Horni_Mez && smi(x))
            sada.push_back(uint8_t(x));
    }
    return sada;
}

Stav_Vyberu Pouzij_Nahodnou_Sadu(Vyber_Cisel& v, const std::vector<uint8_t>& sada, Boxy_Tutovek& boxy) {
    Vymaz_Seznam(v);
    boxy = {};
    v.Tutovka_Index = 0;
    for (std::size_t i = 0; i < sada.size(); ++i)
        Klik(v, sada[i], int(i) < v.Pocet_Tutovek_Rozpisu ? Barva_Cervena : Barva_Cerna, boxy);
    return Serad_Seznam(v, Pocet_V_Platnosti(v));
}

Vysledek Vyber_Podle_Klice(const Vyber_Cisel& v, const Archiv_Tahu& archiv, int klic, std::vector<uint8_t>& cisla) {
    std::array<bool, 50> oznacena{};
    int c = 3;
    for (int i = 1; i <= klic; ++i) {
        c += i;
        // Element 0 of the list is the empty draw before the first one.
        const int tah = archiv.Pocet_Tahy_1 - c;
        if (tah < 0 || tah >= int(archiv.Tahy_1.size()))
            return Vysledek::Chyba(u"Klíč výběru "_qs + QString::number(klic) + u" sahá "_qs + QString::number(c) +
                                   u" tahů zpět, v archivu je jich jen "_qs + QString::number(archiv.Pocet_Tahy_1) +
                                   u". Zmenšete klíč výběru čísel z tahů v nastavení."_qs);
        for (int k = 1; k <= 6; ++k)
            if (const int x = archiv.Tahy_1[std::size_t(tah)][k]; x >= 1 && x <= 49)
                oznacena[std::size_t(x)] = true;
    }
    std::vector<uint8_t> vysledek;
    for (int x = 1; x <= 49 && int(vysledek.size()) < v.Cisla_Potreba; ++x)
        if (oznacena[std::size_t(x)])
            vysledek.push_back(uint8_t(x));
    cisla = std::move(vysledek);
    return Vysledek::Uspech();
}

void Nacti_Cisla_Z_Textu(Vyber_Cisel& v, const QString& text) {
    const QStringList kusy = text.split(u' ');
    v.Cisla_Pouzit = {};
    v.Pocet_Pouzit = Meze_Poctu(int(kusy.size()) - 1);
    for (int i = 1; i <= v.Pocet_Pouzit; ++i) {
        // Into a byte as the Basic does it: rounded, and nothing that would not fit.
        const int64_t x = Vb::Zaokrouhli(std::clamp(Vb::Val(kusy[i]), -1.0, 256.0));
        v.Cisla_Pouzit[i] = x >= 0 && x <= 255 ? uint8_t(x) : 0;
    }
}

Vysledek Kontrola_Vyberu(const Vyber_Cisel& v, int cislo_rozpisu, int zbytek) {
    if (cislo_rozpisu > 0)
        return zbytek == 0 ? Vysledek::Uspech() : Vysledek::Chyba(u"Není výbrán správný počet čísel ..."_qs);
    if (v.Pouzit_Vybrana && zbytek > 40)
        return Vysledek::Chyba(u"Vyber více čísel ..."_qs);
    if (v.Vynechat_Vybrana && zbytek < 10)
        return Vysledek::Chyba(u"Uber čísla ..."_qs);
    return Vysledek::Uspech();
}
