// tombi-cli: the headless companion of Tombi. It works on the same engine as the program and
// prints plain UTF-8 lines, so archives, tip files and settings can be checked and built in
// scripts, and the build can make the archives it ships.
//
// Exit codes: 0 success, 1 bad input (the Czech message goes to stderr), 2 usage error. The
// commands generate and evaluate have files of their own; cli/Cli.h holds what all share.

#include "cli/Cli.h"
#include "data/Archiv_Tahu.h"
#include "data/Nastaveni.h"
#include "data/Soubor_Tipu.h"
#include "data/Soubory.h"
#include "net/Import_Tahu.h"

#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>

#include <cstdio>
#include <memory>
#include <optional>


namespace {

QString Radek_Archivu(const Archiv_Tahu& archiv) {
    const auto [tahy1, tahy2] = Spocitej_Tahy(archiv);
    return u"let %1 tahy1 %2 tahy2 %3"_qs.arg(archiv.Pocet_Let).arg(tahy1).arg(tahy2);
}

int Import(const QStringList& args) {
    const Argumenty a = Rozeber(args, {u"--dbf"_qs, u"--csv"_qs, u"--den"_qs, u"--out"_qs}, {});
    if (!a.Chyba.isEmpty() || !a.Pozicni.isEmpty())
        return Spatne_Pouziti(a.Chyba);
    const auto dbf = a.Volba(u"--dbf"_qs);
    const auto csv = a.Volba(u"--csv"_qs);
    const auto den = a.Volba(u"--den"_qs);
    const auto vystup = a.Volba(u"--out"_qs);
    if (!vystup || dbf.has_value() == csv.has_value() || (csv && !den) || (dbf && den))
        return Spatne_Pouziti({});
    std::optional<Den> den_tahu;
    if (den == u"streda")
        den_tahu = Den::Streda;
    else if (den == u"patek")
        den_tahu = Den::Patek;
    else if (den == u"nedele")
        den_tahu = Den::Nedele;
    else if (csv)
        return Spatne_Pouziti(u"Den musí být \"streda\", \"patek\" nebo \"nedele\"."_qs);

    if (Jen_Ke_Cteni().contains(*vystup))
        return Nelze_Zapsat_Do(*vystup);
    const QString zdroj = dbf ? *dbf : *csv;
    const Nacteny_Soubor nacteny = Nacti_Soubor(zdroj, Nejvic_Zdroje_Tahu);
    if (!nacteny.Ok())
        return Chyba(nacteny.Zprava(zdroj));
    const Import_Vysledek vysledek = dbf ? Importuj_Dbf(nacteny.Data) : Importuj_Csv(nacteny.Data, *den_tahu);
    if (!vysledek.Stav.Ok())
        return Chyba(vysledek.Stav.Zprava);
    if (vysledek.Pocet_Let() == 0) {
        // A CSV source is named as it is; a dBase one as the program has always named it.
        const QFileInfo info(zdroj);
        return Chyba(csv ? Text_Chybneho_Zdroje(info.fileName(), true)
                         : Text_Chybneho_Zdroje(info.completeBaseName() + u".dbf"_qs, false));
    }

    Archiv_Tahu archiv;
    archiv.Pole_Tahu = vysledek.Roky;
    archiv.Pocet_Let = vysledek.Pocet_Let();
    const QFileInfo cil(*vystup);
    const Vysledek zapis = Uloz_Tahy(archiv, cil.absolutePath(), cil.fileName());
    if (!zapis.Ok())
        return Chyba(zapis.Zprava);
    // The dates beside the archive, as the program's import keeps them; a dBase source has none.
    if (const Vysledek dny = Uloz_Dny(vysledek.Dny, cil.absolutePath(), cil.fileName()); !dny.Ok())
        return Chyba(dny.Zprava);
    Vypis(Radek_Archivu(archiv));
    return Uspech;
}

int Archiv(const QStringList& args) {
    if (Je_Uprava_Archivu(args))
        return Uprava_Archivu(args);
    const Argumenty a = Rozeber(args, {u"--list"_qs}, {u"--datum"_qs});
    if (!a.Chyba.isEmpty() || a.Pozicni.size() != 1)
        return Spatne_Pouziti(a.Chyba);
    const auto seznam = a.Volba(u"--list"_qs);
    if (seznam && seznam != u"1" && seznam != u"2")
        return Spatne_Pouziti(u"Seznam tahů je 1 nebo 2."_qs);

    const bool datum = a.Prepinace.contains(u"--datum");
    if (datum && !seznam)
        return Spatne_Pouziti(u"Volba --datum patří k volbě --list."_qs);

    const QFileInfo soubor(a.Pozicni.front());
    Archiv_Tahu archiv;
    archiv.Soubor_Tahu = soubor.fileName();
    const Vysledek nacteni = Nacti_Tahy(archiv, soubor.absolutePath(), soubor.fileName());
    if (!nacteni.Ok())
        return Chyba(nacteni.Zprava);
    Vypis(Radek_Archivu(archiv));
    if (!seznam)
        return Uspech;

    Priprav_Seznamy_Tahu(archiv);
    // A spoilt line costs only its draw's real date: a warning, and the date of its week.
    if (datum && !archiv.Dny.Vadne_Radky.isEmpty())
        Chyba(u"Soubor \""_qs + Soubor_Dnu(soubor.fileName()) + u"\" má vadné řádky, jejich tahy mají datum podle týdne ("_qs +
              archiv.Dny.Vadne_Radky + u")."_qs);
    const bool prvni = seznam == u"1";
    const std::vector<Tah>& tahy = prvni ? archiv.Tahy_1 : archiv.Tahy_2;
    const int pocet = prvni ? archiv.Pocet_Tahy_1 : archiv.Pocet_Tahy_2;
    for (int i = 1; i <= pocet; ++i) {
        QString radek = QString::number(i);
        for (uint8_t cislo : tahy[size_t(i)])
            radek += u' ' + QString::number(cislo);
        if (datum) {
            const auto [rok, tyden] = Rok_A_Tyden(archiv, prvni ? 1 : 2, i);
            // An archive under a name of no draw day has no weekday to fall back on.
            const QDate den = Datum_Tahu(archiv, prvni ? 1 : 2, rok, tyden);
            radek += den.isValid() ? u' ' + den.toString(u"dd.MM.yyyy") : u" -"_qs;
        }
        Vypis(radek);
    }
    return Uspech;
}

int Tipy(const QStringList& args) {
    if (Je_Operace_Tipu(args))
        return Operace_Tipu(args);
    const Argumenty a = Rozeber(args, {}, {u"--convert"_qs});
    if (!a.Chyba.isEmpty() || a.Pozicni.size() != 1)
        return Spatne_Pouziti(a.Chyba);
    const QString cesta = a.Pozicni.front();
    Stav_Tipu stav;

    if (a.Prepinace.contains(u"--convert")) {
        if (Jen_Ke_Cteni().contains(cesta))
            return Nelze_Zapsat_Do(cesta);
        const Vysledek konverze = Konvertuj_Soubor_Tipu(stav, cesta);
        if (!konverze.Ok())
            return Chyba(konverze.Zprava);
        Vypis(Text_Konverze_Hotova);
        return Uspech;
    }

    const Vysledek nacteni = Nacti_Soubor_Tipu(stav, cesta);
    if (!nacteni.Ok())
        return Chyba(nacteni.Zprava);
    const Zaznam_Tipu& z = stav.Soubor_Tipu;
    Vypis(u"tikety %1 tipy %2 seznam %3"_qs.arg(z.Pocet_Tiketu).arg(z.Pocet_Tipu).arg(z.Seznam_Soubor));
    const int tiketu = std::min<int>(z.Pocet_Tiketu, Max_Tiketu);
    for (int t = 1; t <= tiketu; ++t) {
        const Tiket& tiket = z.Tikety[t];
        for (int s = 1; s <= Sloupcu_Tiketu; ++s) {
            const Tip& tip = tiket.Cisla[s];
            if (tip[1] == 0)
                continue;
            QString radek = u"%1 %2 %3"_qs.arg(t).arg(tiket.Cislo_Tiketu).arg(s);
            for (uint8_t cislo : tip)
                radek += u' ' + QString::number(cislo);
            Vypis(radek);
        }
    }
    return Uspech;
}

int Nastaveni(const QStringList& args) {
    if (args.size() != 1 || args.front().startsWith(u"--"))
        return Spatne_Pouziti({});
    const Nacteny_Soubor nacteny = Nacti_Soubor(args.front(), Nejvic_Nastaveni);
    if (!nacteny.Ok())
        return Chyba(nacteny.Zprava(args.front()));
    for (const QString& radek : Vypis_Nastaveni(Cti_Nastaveni(nacteny.Data)))
        Vypis(radek);
    return Uspech;
}

} // namespace

int main(int argc, char** argv) {
    Priprav_Zapis_Souboru();
    QStringList args;
    for (int i = 1; i < argc; ++i)
        args << Cesta_Argumentu(argv[i]);
    if (args.isEmpty())
        return Spatne_Pouziti({});
    const QString prikaz = args.takeFirst();
    if (prikaz == u"--help" || prikaz == u"-h") {
        std::fputs(Pouziti, stdout);
        return Uspech;
    }
    if (prikaz == u"import")
        return Import(args);
    if (prikaz == u"archive")
        return Archiv(args);
    if (prikaz == u"tips")
        return Tipy(args);
    if (prikaz == u"print")
        return Tisk(args);
    if (prikaz == u"update")
        return Aktualizace_Programu(args);
    if (prikaz == u"download")
        return Stahovani(args);
    if (prikaz == u"bettors")
        return Seznam_Sazejicich(args);
    if (prikaz == u"wheel")
        return Rozpisy(args);
    if (prikaz == u"cfg")
        return Nastaveni(args);
    if (prikaz == u"generate")
        return Generovani(args);
    if (prikaz == u"evaluate")
        return Vyhodnoceni(args);
    if (prikaz == u"analyse")
        return Analyza(args);
    return Spatne_Pouziti(u"Neznámý příkaz \""_qs + prikaz + u"\"."_qs);
}
