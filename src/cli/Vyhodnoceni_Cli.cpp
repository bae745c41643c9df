// tombi-cli evaluate: the four evaluations of the tip list's third panel, and the comparison of a
// tip file with files drawn by chance, printed as counts, the lines of the win list and money.

#include "cli/Cli.h"
#include "core/Random.h"
#include "core/Vb.h"
#include "data/Archiv_Tahu.h"
#include "data/Nastaveni.h"
#include "data/Soubor_Tipu.h"
#include "generator/Generator.h"
#include "tips/Srovnani.h"
#include "tips/Vypis_Vyher.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>

namespace {

enum class Druh { Soubor_V_Tazich, Tazena_V_Tipech, Tazena_V_Tazich, Nahodny_Los, Srovnani };

// A row of boxes: seven tokens, the seventh the supplementary box; "-" or "0" is an empty box.
std::optional<Radek_Tahu> Radek_Boxu(const QString& text) {
    const QStringList tokeny = text.split(u' ', Qt::SkipEmptyParts);
    if (tokeny.size() != 7)
        return std::nullopt;
    Radek_Tahu radek{};
    for (std::size_t i = 0; i < radek.size(); ++i) {
        const QString& t = tokeny[qsizetype(i)];
        if (t == u"-")
            continue;
        bool ok = false;
        const int n = t.toInt(&ok);
        if (!ok || n < 0 || n > 49)
            return std::nullopt;
        radek[i] = n;
    }
    return radek;
}

// "Kolik tahů zpět": a count not above 0 becomes 1, one above the archive its whole length.
int Pocet_Zpet(int n, int pocet) {
    return std::clamp(n, std::min(1, pocet), pocet);
}

QString Pocty(const QString& jmeno, const Vyhry& v) {
    QString radek = jmeno;
    for (std::size_t t = 1; t < v.size(); ++t)
        radek += u' ' + QString::number(v[t]);
    return radek;
}

QString Los(const QString& jmeno, const Radek_Tahu& los) {
    QString radek = jmeno;
    for (const int n : los)
        radek += u' ' + QString::number(n);
    return radek;
}

QString Cele(double x) {
    return Vb::Format(x, u"0");
}

// The win list goes out through one reused buffer: a run against the whole archive writes some
// 600,000 lines.
void Vypis_Vyhry(const Vysledek_Vyhodnoceni& vysledek) {
    constexpr std::size_t Davka = std::size_t(1) << 16;
    std::string buffer;
    buffer.reserve(Davka + 256);
    const auto vyprazdni = [&] {
        std::fwrite(buffer.data(), 1, buffer.size(), stdout);
        buffer.clear();
    };
    Pro_Kazdou_Vyhru(vysledek, [&](const Misto_Vyhry& m) {
        Pripis_Radek_Vyhry(m, buffer);
        if (buffer.size() >= Davka)
            vyprazdni();
    });
    vyprazdni();
}

struct Vstup {
    Druh Typ = Druh::Soubor_V_Tazich;
    int Pocet_Souboru = 0; // K of the comparison
    QString Tipy;
    QString Archiv;
    int N1 = 0;
    int N2 = 0;
    std::array<Radek_Tahu, 2> Radky{};
};

// The positional arguments of each form; a message when they do not fit it.
std::optional<QString> Rozeber_Vstup(const Argumenty& a, Vstup& v) {
    const QStringList& p = a.Pozicni;
    const auto cislo = [](const QString& text, int& kam) {
        bool ok = false;
        kam = text.toInt(&ok);
        return ok;
    };
    const auto radky = [&](qsizetype od) {
        for (qsizetype i = od; i < p.size(); ++i) {
            const auto radek = Radek_Boxu(p[i]);
            if (!radek)
                return false;
            v.Radky[std::size_t(i - od)] = *radek;
        }
        return true;
    };
    const QString chyba = u"Chybné argumenty příkazu evaluate."_qs;
    switch (v.Typ) {
    case Druh::Soubor_V_Tazich:
        v.Tipy = p.value(0);
        v.Archiv = p.value(1);
        if (p.size() != 4 || !cislo(p[2], v.N1) || !cislo(p[3], v.N2))
            return chyba;
        break;
    case Druh::Srovnani:
        v.Tipy = p.value(0);
        v.Archiv = p.value(1);
        if (p.size() != 4 || !cislo(p[2], v.N1) || !cislo(p[3], v.N2) || v.Pocet_Souboru < 1 ||
            v.Pocet_Souboru > 100000)
            return chyba;
        break;
    case Druh::Tazena_V_Tipech:
        v.Tipy = p.value(0);
        if (p.size() < 2 || p.size() > 3 || !radky(1))
            return chyba;
        break;
    case Druh::Tazena_V_Tazich:
        v.Archiv = p.value(0);
        if (p.size() < 4 || p.size() > 5 || !cislo(p[1], v.N1) || !cislo(p[2], v.N2) || !radky(3))
            return chyba;
        break;
    case Druh::Nahodny_Los:
        v.Tipy = p.value(0);
        if (p.size() != 1)
            return chyba;
        break;
    }
    return std::nullopt;
}

std::optional<uint64_t> Seminko_Volby(const Argumenty& a, bool& chybne) {
    const auto text = a.Volba(u"--seminko"_qs);
    if (!text)
        return std::nullopt;
    bool ok = false;
    const uint64_t s = text->toULongLong(&ok);
    chybne = !ok;
    return s;
}

} // namespace

int Vyhodnoceni(const QStringList& args) {
    const Argumenty a = Rozeber(args, {u"--ceny"_qs, u"--seminko"_qs, u"--srovnani"_qs},
                                {u"--tipech"_qs, u"--tazich"_qs, u"--nahodne"_qs});
    if (!a.Chyba.isEmpty())
        return Spatne_Pouziti(a.Chyba);
    Vstup v;
    const int druhu = int(a.Prepinace.size()) + (a.Volba(u"--srovnani"_qs) ? 1 : 0);
    if (druhu > 1)
        return Spatne_Pouziti(u"Zvolte jen jeden druh vyhodnocení."_qs);
    if (a.Prepinace.contains(u"--tipech"))
        v.Typ = Druh::Tazena_V_Tipech;
    else if (a.Prepinace.contains(u"--tazich"))
        v.Typ = Druh::Tazena_V_Tazich;
    else if (a.Prepinace.contains(u"--nahodne"))
        v.Typ = Druh::Nahodny_Los;
    else if (const auto k = a.Volba(u"--srovnani"_qs)) {
        v.Typ = Druh::Srovnani;
        v.Pocet_Souboru = k->toInt();
    }
    if (const auto chyba = Rozeber_Vstup(a, v))
        return Spatne_Pouziti(*chyba);
    // A drawn row holds each number once; a repeated one would count its hits twice.
    for (const Radek_Tahu& radek : v.Radky)
        if (Opakovane_Cislo(radek))
            return Chyba(Text_Stejna_Cisla);
    bool spatne_seminko = false;
    const std::optional<uint64_t> seminko = Seminko_Volby(a, spatne_seminko);
    if (spatne_seminko || (seminko && v.Typ != Druh::Nahodny_Los && v.Typ != Druh::Srovnani))
        return Spatne_Pouziti(u"Chybná hodnota volby --seminko."_qs);
    std::optional<QList<int>> ceny_volby;
    if (const auto ceny = a.Volba(u"--ceny"_qs)) {
        ceny_volby = Cisla_Volby(*ceny, 5, 10, 0, int(Max_Ceny));
        if (!ceny_volby || (ceny_volby->size() != 5 && ceny_volby->size() != 10))
            return Spatne_Pouziti(u"Chybná hodnota volby --ceny."_qs);
    }

    // The files: the tips, the archive with its day.
    auto tipy = std::make_unique<Stav_Tipu>();
    if (!v.Tipy.isEmpty())
        if (const Vysledek nacteni = Nacti_Soubor_Tipu(*tipy, v.Tipy); !nacteni.Ok())
            return Chyba(nacteni.Zprava);
    Archiv_Tahu archiv;
    Den den = Den::Nedele;
    if (!v.Archiv.isEmpty()) {
        const QFileInfo soubor(v.Archiv);
        if (const Vysledek nacteni = Nacti_Tahy(archiv, soubor.path(), soubor.fileName()); !nacteni.Ok())
            return Chyba(nacteni.Zprava);
        Priprav_Seznamy_Tahu(archiv);
        den = Den_Souboru_Tahu(soubor.fileName()).value_or(Den::Nedele);
    }
    const Nastaveni_Zaznam nastaveni = Vychozi_Nastaveni(QString(), QString());
    // Friday's table lives in the user's settings store, which a script has not: all zero, as a new
    // user's tables are.
    std::array<Ceny_Tahu, 2> ceny = Ceny_Dne(den == Den::Streda  ? nastaveni.Ceny_Streda
                                             : den == Den::Patek ? std::array<Vb::Mena, 10>{}
                                                                 : nastaveni.Ceny_Nedele);
    if (ceny_volby)
        for (qsizetype i = 0; i < ceny_volby->size(); ++i)
            ceny[std::size_t(i / 5)][std::size_t(i % 5)] = (*ceny_volby)[i];
    const Zaznam_Tipu& soubor = tipy->Soubor_Tipu;
    const int n1 = Pocet_Zpet(v.N1, archiv.Pocet_Tahy_1);
    const int n2 = Pocet_Zpet(v.N2, archiv.Pocet_Tahy_2);
    const Rozsah_Tahu rozsah = Rozsah_Archivu(archiv, n1, n2);
    const double cena_tipu = nastaveni.Cena_Jednoho_Tipu;

    if (v.Typ == Druh::Srovnani) {
        const uint64_t s = seminko.value_or(QRandomGenerator::system()->generate64());
        const Vysledek_Srovnani vysledek =
            Srovnej_S_Nahodou(soubor, Pocet_Tipu_V_Souboru(soubor), rozsah, ceny, v.Pocet_Souboru, s);
        const auto radek = [](const QString& jmeno, const auto& hodnota) {
            QString text = jmeno;
            for (std::size_t t = 1; t < 6; ++t)
                text += u' ' + Cele(hodnota(t));
            return text;
        };
        Vypis(radek(u"soubor"_qs, [&](std::size_t t) { return double(vysledek.Vyhry_Souboru[t]); }) + u" vyhra "_qs +
              Cele(vysledek.Penize_Souboru));
        Vypis(radek(u"prumer"_qs, [&](std::size_t t) { return vysledek.Vyhry_Nahody[t].Prumer; }) + u" vyhra "_qs +
              Cele(vysledek.Penize_Nahody.Prumer));
        Vypis(radek(u"p5"_qs, [&](std::size_t t) { return vysledek.Vyhry_Nahody[t].Pet; }) + u" vyhra "_qs +
              Cele(vysledek.Penize_Nahody.Pet));
        Vypis(radek(u"p95"_qs, [&](std::size_t t) { return vysledek.Vyhry_Nahody[t].Devadesat; }) + u" vyhra "_qs +
              Cele(vysledek.Penize_Nahody.Devadesat));
        Vypis(u"seminko "_qs + QString::number(s));
        Vypis(u"poradi %1 z %2 percentil %3"_qs.arg(vysledek.Poradi())
                  .arg(vysledek.Pocet_Souboru + 1)
                  .arg(Cele(vysledek.Percentil())));
        for (const QString& veta : vysledek.Veta)
            Vypis(veta);
        return Uspech;
    }

    Vysledek_Vyhodnoceni vysledek;
    // The stake of the tips the file holds: its header may say otherwise.
    double vklad = double(Pocet_Tipu_V_Souboru(soubor)) * cena_tipu;
    switch (v.Typ) {
    case Druh::Nahodny_Los: {
        // A given seed starts its own source, so every seed draws its own numbers.
        std::optional<Zdroj_Seminka> zdroj_seminka;
        if (seminko)
            zdroj_seminka.emplace(uint64_t(*seminko));
        Random nahoda = zdroj_seminka ? Random(*zdroj_seminka) : Random();
        nahoda.Dolni_Mez = 1;
        nahoda.Horni_Mez = 49;
        if (seminko)
            nahoda.Shuffle(double(Seminko_Tiketu(*seminko, 0, 0)));
        else
            nahoda.Zamichej_Podle_Casu();
        v.Radky[0] = Nahodny_Los([&] { return int(nahoda.RandomInt()); });
        v.Radky[1] = Nahodny_Los([&] { return int(nahoda.RandomInt()); });
        Vypis(Los(u"los1"_qs, v.Radky[0]));
        Vypis(Los(u"los2"_qs, v.Radky[1]));
        [[fallthrough]];
    }
    case Druh::Tazena_V_Tipech: {
        if (v.Typ == Druh::Tazena_V_Tipech && !Kontrola_Cisel(v.Radky[0]) && !Kontrola_Cisel(v.Radky[1]))
            return Chyba(Text_Malo_Cisel);
        Barvy_Radku b1{}, b2{};
        Vyh_Tah_V_Tipech(soubor, v.Radky[0], v.Radky[1], vysledek, b1, b2);
        break;
    }
    case Druh::Tazena_V_Tazich: {
        if (!Kontrola_Cisel(v.Radky[0]) && !Kontrola_Cisel(v.Radky[1]))
            return Chyba(Text_Malo_Cisel);
        Vyh_Cisla_V_Tazich(v.Radky[0], v.Radky[1], true, true, rozsah, vysledek);
        // Each row of boxes is a tip played on every draw day of the range.
        const int radku = (Kontrola_Cisel(v.Radky[0]) ? 1 : 0) + (Kontrola_Cisel(v.Radky[1]) ? 1 : 0);
        vklad = double(radku) * cena_tipu * std::max(n1, n2);
        break;
    }
    case Druh::Soubor_V_Tazich:
        Vyh_Soubor_V_Tazich(soubor, rozsah, vysledek);
        vklad *= std::max(n1, n2);
        break;
    case Druh::Srovnani:
        break;
    }

    Vypis(Pocty(u"tah1"_qs, vysledek.Vyhry_1Tah));
    Vypis(Pocty(u"tah2"_qs, vysledek.Vyhry_2Tah));
    Vypis_Vyhry(vysledek);
    if (ceny_volby) {
        const double vyhra = Soucet_Tahu(vysledek.Vyhry_1Tah, ceny[0]) + Soucet_Tahu(vysledek.Vyhry_2Tah, ceny[1]);
        const std::optional<double> zisk = Zisk_Procent(vyhra, vklad);
        Vypis(u"vyhra %1 vklad %2 zisk %3"_qs.arg(Cele(vyhra), Cele(vklad), zisk ? Cele(*zisk) : u"-"_qs));
    }
    if (vysledek.Preteceni)
        return Chyba(Text_Preteceni_Vyher);
    return Uspech;
}
