// tombi-cli generate: tips by chance under the filters of the generator window, written as a
// .tip file.

#include "cli/Cli.h"
#include "data/Archiv_Tahu.h"
#include "data/Soubor_Tipu.h"
#include "data/Soubory.h"
#include "generator/Generator.h"
#include "generator/Vyber_Cisel.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <csignal>
#include <memory>

namespace {

volatile std::sig_atomic_t Preruseno = 0;

// --cas at most: a year is far beyond any run, and its milliseconds fit the clock.
constexpr double Nejdele_Sekund = 365.0 * 24 * 3600;

} // namespace

int Generovani(const QStringList& args) {
    const QStringList s_hodnotou{u"--tipy"_qs,     u"--tikety"_qs,   u"--tutovky"_qs, u"--pouzit"_qs, u"--vynechat"_qs,
                                 u"--rsk"_qs,      u"--treti"_qs,    u"--ceny"_qs,    u"--dekada"_qs, u"--sudlich"_qs,
                                 u"--dvojice"_qs,  u"--trojice"_qs,  u"--suma"_qs,    u"--rozsah"_qs, u"--prunik"_qs,
                                 u"--pruchodu"_qs, u"--opakovat"_qs, u"--seminko"_qs, u"--cas"_qs,    u"--out"_qs};
    const Argumenty a = Rozeber(args, s_hodnotou, {u"--neopakovat"_qs, u"--auto-oprava"_qs});
    if (!a.Chyba.isEmpty() || !a.Pozicni.isEmpty())
        return Spatne_Pouziti(a.Chyba);
    const auto tipy = a.Volba(u"--tipy"_qs);
    const auto vystup = a.Volba(u"--out"_qs);
    if (!tipy || !vystup)
        return Spatne_Pouziti(u"Chybí --tipy nebo --out."_qs);
    if (a.Volba(u"--pouzit"_qs) && a.Volba(u"--vynechat"_qs))
        return Spatne_Pouziti(u"Volby --pouzit a --vynechat nelze použít zároveň."_qs);

    QString spatna;
    // One option's numbers, or nothing with the option named as wrong.
    const auto cisla = [&](const QString& volba, int pocet_od, int pocet_do, int od, int do_) -> QList<int> {
        const auto hodnota = a.Volba(volba);
        if (!hodnota)
            return {};
        const auto c = Cisla_Volby(*hodnota, pocet_od, pocet_do, od, do_);
        if (!c) {
            if (spatna.isEmpty())
                spatna = volba;
            return {};
        }
        return *c;
    };
    Zadani_Generatoru z;
    z.Pocet_Tipu = cisla(u"--tipy"_qs, 1, 1, 1, Max_Tiketu * Sloupcu_Tiketu).value(0);
    z.Pocet_Tiketu =
        a.Volba(u"--tikety"_qs) ? cisla(u"--tikety"_qs, 1, 1, 1, Max_Tiketu).value(0) : Tiketu_Pro_Tipy(z.Pocet_Tipu);
    const QList<int> tutovky = cisla(u"--tutovky"_qs, 1, 3, 1, 49);
    z.Tutovky.assign(tutovky.begin(), tutovky.end());
    // A tip never holds a number twice: a repeated tutovka is refused like a repeated pool number.
    QString opakovane;
    // A tip never holds a number twice: a number repeated in a list is named.
    const auto opakuje = [&](const QString& volba, QList<int> seznam) {
        std::sort(seznam.begin(), seznam.end());
        if (const auto i = std::adjacent_find(seznam.begin(), seznam.end()); i != seznam.end() && opakovane.isEmpty())
            opakovane = u"Volba %1 opakuje číslo %2: tip nesmí obsahovat stejné číslo dvakrát."_qs.arg(volba).arg(*i);
    };
    opakuje(u"--tutovky"_qs, tutovky);
    // The pool as the window makes it: the list of "Použít" or "Vynechat", then Priprav_Okruh.
    Vyber_Cisel vyber;
    Boxy_Tutovek boxy{};
    for (std::size_t i = 0; i < z.Tutovky.size(); ++i)
        boxy[i] = uint8_t(z.Tutovky[i]);
    for (const QString& volba : {u"--pouzit"_qs, u"--vynechat"_qs})
        if (a.Volba(volba)) {
            const bool pouzit = volba == u"--pouzit";
            vyber.Pouzit_Vybrana = pouzit;
            vyber.Vynechat_Vybrana = !pouzit;
            vyber.Volba_Vybrana = pouzit ? 1 : 2;
            QList<int> seznam = cisla(volba, 1, 49, 1, 49);
            opakuje(volba, seznam);
            std::sort(seznam.begin(), seznam.end());
            for (const int n : seznam)
                Seznam_V_Platnosti(vyber)[++Pocet_V_Platnosti(vyber)] = uint8_t(n);
            z.Vyber = pouzit ? Vyber_Okruhu::Pouzit_Vybrana : Vyber_Okruhu::Vynechat_Vybrana;
        }
    // A filter is on when its option is given; its limits come from the option.
    const auto filtr = [&](int index, const QString& volba, int pocet, int od, int do_) -> QList<int> {
        if (!a.Volba(volba))
            return {};
        z.Check1[std::size_t(index)] = true;
        return cisla(volba, pocet, pocet, od, do_);
    };
    if (const QList<int> c = filtr(0, u"--rsk"_qs, 3, 0, 255); c.size() == 3)
        z.Omezeni = {double(c[0]), double(c[1]), double(c[2])};
    if (const QList<int> c = filtr(1, u"--treti"_qs, 1, 0, 255); !c.isEmpty())
        z.Max_Tretich_Cen = c[0];
    if (const QList<int> c = filtr(3, u"--dekada"_qs, 1, 0, 255); !c.isEmpty())
        z.Limit_Dekada = c[0];
    if (const QList<int> c = filtr(5, u"--sudlich"_qs, 3, 0, 6); c.size() == 3) {
        z.Sudych = c[0];
        z.Lichych = c[1];
        z.Rozptyl = c[2];
    }
    if (const QList<int> c = filtr(6, u"--dvojice"_qs, 1, 0, 255); !c.isEmpty())
        z.Max_Dvojic = c[0];
    if (const QList<int> c = filtr(7, u"--trojice"_qs, 1, 0, 255); !c.isEmpty())
        z.Max_Trojic = c[0];
    if (const QList<int> c = filtr(8, u"--suma"_qs, 2, 0, 999); c.size() == 2)
        z.Suma = {double(c[0]), double(c[1])};
    if (const QList<int> c = filtr(9, u"--rozsah"_qs, 2, 1, 49); c.size() == 2)
        z.Rozsah = {double(c[0]), double(c[1])};
    if (const QList<int> c = filtr(10, u"--prunik"_qs, 1, 0, 255); !c.isEmpty())
        z.Prunik = c[0];
    z.Check1[4] = a.Prepinace.contains(u"--neopakovat");
    z.Auto_Oprava = a.Prepinace.contains(u"--auto-oprava") ? 1 : 0;
    if (a.Volba(u"--pruchodu"_qs))
        z.Pocet_Pruchodu = cisla(u"--pruchodu"_qs, 1, 1, 0, 32767).value(0);
    if (a.Volba(u"--opakovat"_qs))
        z.Opakovat_Volba = cisla(u"--opakovat"_qs, 1, 1, 0, 1).value(0);
    if (const auto seminko = a.Volba(u"--seminko"_qs)) {
        bool ok = false;
        z.Seminko = seminko->toULongLong(&ok);
        if (!ok && spatna.isEmpty())
            spatna = u"--seminko"_qs;
    }
    double cas = 0;
    if (const auto sekundy = a.Volba(u"--cas"_qs)) {
        bool ok = false;
        cas = sekundy->toDouble(&ok);
        // inf, nan and a time beyond the millisecond clock are no time limit.
        if (!ok || !std::isfinite(cas) || cas <= 0 || cas > Nejdele_Sekund)
            spatna = spatna.isEmpty() ? u"--cas"_qs : spatna;
    }
    if (!spatna.isEmpty())
        return Spatne_Pouziti(u"Chybná hodnota volby "_qs + spatna + u"."_qs);
    if (!opakovane.isEmpty())
        return Spatne_Pouziti(opakovane);
    if (Jen_Ke_Cteni().contains(*vystup))
        return Nelze_Zapsat_Do(*vystup);

    if (vyber.Pouzit_Vybrana || vyber.Vynechat_Vybrana) {
        if (const Vysledek kontrola = Kontrola_Vyberu(vyber, 0, Zbytek_Cisel(vyber)); !kontrola.Ok())
            return Chyba(kontrola.Zprava);
        const int pocet = Priprav_Okruh(vyber, boxy);
        z.Okruh_Cisel.assign(vyber.Okruh_Cisel.begin(), vyber.Okruh_Cisel.begin() + pocet);
    }
    // Reversed bounds are swapped, as the window swaps them when its box is left.
    if (z.Suma[0] > z.Suma[1])
        std::swap(z.Suma[0], z.Suma[1]);
    if (z.Rozsah[0] > z.Rozsah[1])
        std::swap(z.Rozsah[0], z.Rozsah[1]);
    // What no tip can meet is refused before anything is written.
    if (const QString chyba = Kontrola_Zadani(z); !chyba.isEmpty())
        return Chyba(chyba);

    // Check1(2) walks the whole archive of the file, both draws.
    Archiv_Tahu archiv;
    if (const auto ceny = a.Volba(u"--ceny"_qs)) {
        const QFileInfo soubor(*ceny);
        const Vysledek nacteni = Nacti_Tahy(archiv, soubor.path(), soubor.fileName());
        if (!nacteni.Ok())
            return Chyba(nacteni.Zprava);
        Priprav_Seznamy_Tahu(archiv);
        z.Check1[2] = true;
        z.Tahy_1 = &archiv.Tahy_1;
        z.Tahy_2 = &archiv.Tahy_2;
        z.Vynech_Tahy_1_Od = archiv.Pocet_Tahy_1;
        z.Vynech_Tahy_2_Od = archiv.Pocet_Tahy_2;
    }

    // --cas and Ctrl+C stop the run as the window's button does: what was made is written.
    QElapsedTimer hodiny;
    hodiny.start();
    std::signal(SIGINT, [](int) { Preruseno = 1; });
    Zpetna_Volani_Generatoru volani;
    volani.Procenta = [&](int) { return Preruseno == 0 && (cas <= 0 || hodiny.elapsed() < qint64(cas * 1000)); };
    // A run that gets stuck ends with its reason unless a time limit was given to wait for.
    volani.Uvaznuti = [&](const QString& zprava) {
        if (cas > 0)
            Chyba(zprava);
        return cas > 0;
    };
    auto soubor_tipu = std::make_unique<Zaznam_Tipu>();
    const Vysledek_Generatoru vysledek = Generuj(z, *soubor_tipu, volani);
    std::signal(SIGINT, SIG_DFL);

    const Vysledek zapis = Uloz_Soubor(*vystup, Zapis_Zaznam_Tipu(*soubor_tipu));
    if (!zapis.Ok())
        return Chyba(zapis.Zprava);
    // The counts asked for, then the tips made, which the file's header holds.
    Vypis(u"tikety %1 tipy %2 hotovo %3 seminko %4"_qs.arg(z.Pocet_Tiketu)
              .arg(z.Pocet_Tipu)
              .arg(vysledek.Pocet_Tipu_Hotovo)
              .arg(vysledek.Seminko));
    if (vysledek.Konec == Konec_Behu::Chyba || vysledek.Konec == Konec_Behu::Nelze_Dokoncit)
        return Chyba(vysledek.Chyba);
    return Uspech;
}
