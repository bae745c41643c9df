#include "generator/Soubor_Vyb.h"

#include "data/Soubory.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int Posun_Cisel = 2;
constexpr int Posun_Poctu_Vynechat = 51;
constexpr int Posun_Vynechat = 52;
constexpr int Posun_Poctu_Tutovek = 101;
constexpr int Posun_Tutovek = 102;

static_assert(sizeof(Seznam_Cisel) == 49 && sizeof(Pole_Od_1<uint8_t, 3>) == 3);

QString Mimo_Rozsah(const QString& co, int hodnota, int nejvic) {
    return co + u' ' + QString::number(hodnota) + u" je mimo rozsah 0 - "_qs + QString::number(nejvic);
}

// The numbers 1..pocet of the list must be numbers of the ticket.
bool Cisla_Plati(const Seznam_Cisel& seznam, int pocet) {
    for (int i = 1; i <= pocet; ++i)
        if (seznam[i] < 1 || seznam[i] > 49)
            return false;
    return true;
}

// The first number that stands twice in the lists together, or 0. The numbers and the tutovky
// make one list, and a tip never holds a number twice.
int Opakovane_Cislo(std::initializer_list<std::pair<const uint8_t*, int>> seznamy) {
    uint64_t videno = 0;
    for (const auto& [cisla, pocet] : seznamy)
        for (int i = 0; i < pocet; ++i) {
            const uint64_t bit = uint64_t(1) << cisla[i];
            if (videno & bit)
                return cisla[i];
            videno |= bit;
        }
    return 0;
}

} // namespace

Zaznam_Vyb Cti_Zaznam_Vyb(const QByteArray& bajty) {
    // A plain record read: what the file lacks stays 0.
    char b[Delka_Zaznamu_Vyb] = {};
    std::memcpy(b, bajty.constData(), std::size_t(std::min<qsizetype>(bajty.size(), Delka_Zaznamu_Vyb)));
    Zaznam_Vyb z;
    z.Rozpis = uint8_t(b[0]);
    z.Pocet_Cisel = uint8_t(b[1]);
    std::memcpy(&z.Cisla, b + Posun_Cisel, 49);
    z.Pocet_Vynechat = uint8_t(b[Posun_Poctu_Vynechat]);
    std::memcpy(&z.Vynechat, b + Posun_Vynechat, 49);
    z.Pocet_Tutovek = uint8_t(b[Posun_Poctu_Tutovek]);
    std::memcpy(&z.Tutovky, b + Posun_Tutovek, 3);
    return z;
}

QByteArray Zapis_Zaznam_Vyb(const Zaznam_Vyb& z) {
    QByteArray b(Delka_Zaznamu_Vyb, '\0');
    b[0] = char(z.Rozpis);
    b[1] = char(z.Pocet_Cisel);
    std::memcpy(b.data() + Posun_Cisel, &z.Cisla, 49);
    b[Posun_Poctu_Vynechat] = char(z.Pocet_Vynechat);
    std::memcpy(b.data() + Posun_Vynechat, &z.Vynechat, 49);
    b[Posun_Poctu_Tutovek] = char(z.Pocet_Tutovek);
    std::memcpy(b.data() + Posun_Tutovek, &z.Tutovky, 3);
    return b;
}

QString Chyba_Zaznamu_Vyb(const Zaznam_Vyb& z) {
    if (z.Rozpis > modRozpisy::Posledni_Rozpis)
        return Mimo_Rozsah(u"typ rozpisu"_qs, z.Rozpis, modRozpisy::Posledni_Rozpis);
    if (z.Pocet_Tutovek > 3)
        return Mimo_Rozsah(u"počet tutovek"_qs, z.Pocet_Tutovek, 3);
    // The tutovky go behind the numbers in a list of 49.
    if (z.Pocet_Cisel + z.Pocet_Tutovek > 49)
        return Mimo_Rozsah(u"počet čísel s tutovkami"_qs, z.Pocet_Cisel + z.Pocet_Tutovek, 49);
    if (z.Pocet_Vynechat > 49)
        return Mimo_Rozsah(u"počet vynechaných čísel"_qs, z.Pocet_Vynechat, 49);
    Seznam_Cisel tutovky;
    std::copy(z.Tutovky.begin(), z.Tutovky.end(), tutovky.begin());
    if (!Cisla_Plati(z.Cisla, z.Pocet_Cisel) || !Cisla_Plati(z.Vynechat, z.Pocet_Vynechat) ||
        !Cisla_Plati(tutovky, z.Pocet_Tutovek))
        return u"obsahuje číslo mimo rozsah 1 - 49"_qs;
    const int opakovane =
        Opakovane_Cislo({{z.Cisla.Prvky.data(), z.Pocet_Cisel}, {z.Tutovky.Prvky.data(), z.Pocet_Tutovek}});
    if (const int vynechane = Opakovane_Cislo({{z.Vynechat.Prvky.data(), z.Pocet_Vynechat}}); opakovane || vynechane)
        return u"obsahuje číslo %1 dvakrát"_qs.arg(opakovane ? opakovane : vynechane);
    return {};
}

Zaznam_Vyb Zaznam_Z_Vyberu(const Vyber_Cisel& v, int rozpis, const Boxy_Tutovek& boxy) {
    Zaznam_Vyb z;
    z.Rozpis = uint8_t(std::clamp(rozpis, 0, modRozpisy::Posledni_Rozpis));
    for (const uint8_t b : boxy)
        if (b != 0)
            z.Tutovky[++z.Pocet_Tutovek] = b;
    const auto bez_tutovek = [&](const Seznam_Cisel& seznam, int pocet) {
        pocet = std::clamp(pocet, 0, 49);
        z.Pocet_Cisel = uint8_t(std::max(0, pocet - z.Pocet_Tutovek));
        int k = 0;
        for (int i = 1; i <= pocet; ++i)
            if (std::find(boxy.begin(), boxy.end(), seznam[i]) == boxy.end())
                z.Cisla[++k] = seznam[i];
    };
    if (v.Rozpis_Aktivni) {
        bez_tutovek(v.Cisla_Rozpisu, v.Pocet_Rozpisu);
    } else if (v.Pouzit_Vybrana) {
        bez_tutovek(v.Cisla_Pouzit, v.Pocet_Pouzit);
    } else if (v.Vynechat_Vybrana) {
        z.Pocet_Vynechat = uint8_t(std::clamp(v.Pocet_Vynechat, 0, 49));
        z.Vynechat = v.Cisla_Vynechat;
    }
    return z;
}

QString Navrh_Jmena_Vyb(const Zaznam_Vyb& z) {
    return QString::number(z.Pocet_Tutovek) + u'_' + QString::number(z.Pocet_Cisel + z.Pocet_Vynechat);
}

Vysledek Uloz_Soubor_Vyb(const QString& cesta, const Zaznam_Vyb& zaznam) {
    return Uloz_Soubor(cesta, Zapis_Zaznam_Vyb(zaznam));
}

Vysledek Nacti_Soubor_Vyb(const QString& cesta, Zaznam_Vyb& zaznam) {
    const QString jmeno = Jmeno_Bez_Adresare(cesta);
    const Nacteny_Soubor soubor = Nacti_Soubor(cesta, Nejvic_Souboru_Vyb);
    if (!soubor.Ok())
        return Vysledek::Chyba(soubor.Zprava(jmeno));
    const Zaznam_Vyb z = Cti_Zaznam_Vyb(soubor.Data);
    if (const QString chyba = Chyba_Zaznamu_Vyb(z); !chyba.isEmpty())
        return Vysledek::Chyba(u"Soubor \""_qs + jmeno + u"\" není platný soubor vybraných čísel: "_qs + chyba + u'.');
    zaznam = z;
    return Vysledek::Uspech();
}

void Pouzij_Zaznam_Vyb(Vyber_Cisel& v, const Zaznam_Vyb& z, Boxy_Tutovek& boxy) {
    v.Cisla_Pouzit = v.Cisla_Vynechat = v.Cisla_Rozpisu = {};
    v.Pocet_Pouzit = v.Pocet_Vynechat = v.Pocet_Rozpisu = 0;
    v.Pouzit_Vybrana = v.Vynechat_Vybrana = false;
    v.Rozpis_Aktivni = z.Rozpis > 0; // as lstSportka, which the window has just set to Rozpis
    boxy = {};
    v.Tutovka_Index = 0;
    // Counts beyond the lists are held to them, so even a record that was not checked is safe here.
    const int tutovek = std::min<int>(z.Pocet_Tutovek, 3);
    const int cisel = std::min<int>(z.Pocet_Cisel, 49 - tutovek);
    const auto cisla_s_tutovkami = [&](Seznam_Cisel& seznam, int& pocet) {
        for (int i = 1; i <= cisel; ++i)
            seznam[i] = z.Cisla[i];
        for (int k = 1; k <= tutovek; ++k)
            seznam[cisel + k] = z.Tutovky[k];
        pocet = cisel + tutovek;
    };
    const auto do_boxu = [&] {
        for (int k = 1; k <= tutovek; ++k)
            boxy[std::size_t(v.Tutovka_Index++)] = z.Tutovky[k];
    };
    if (v.Rozpis_Aktivni) {
        cisla_s_tutovkami(v.Cisla_Rozpisu, v.Pocet_Rozpisu);
        cisla_s_tutovkami(v.Cisla_Pouzit, v.Pocet_Pouzit);
        do_boxu();
    } else if (z.Pocet_Cisel != 0) {
        v.Pouzit_Vybrana = true;
        v.Volba_Vybrana = 1;
        cisla_s_tutovkami(v.Cisla_Pouzit, v.Pocet_Pouzit);
        do_boxu();
    } else if (z.Pocet_Vynechat != 0) {
        v.Vynechat_Vybrana = true;
        v.Volba_Vybrana = 2;
        v.Pocet_Vynechat = std::min<int>(z.Pocet_Vynechat, 49);
        for (int i = 1; i <= v.Pocet_Vynechat; ++i)
            v.Cisla_Vynechat[i] = z.Vynechat[i];
    }
}
