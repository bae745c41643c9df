// tombi-cli archive SOUBOR.sez --pridej|--oprav ROK TYDEN TAH "n1 .. n7", --smaz ROK TYDEN TAH: the
// editor of the draw list without its window. The same checks refuse with the same messages, and a
// change is written as the window writes it, under the archive's lock: the old file becomes the
// backup.

#include "archive/Editor_Tahu.h"
#include "cli/Cli.h"
#include "data/Archiv_Tahu.h"

#include "data/Soubory.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <csignal>
#include <optional>

namespace {

// TOMBI_PRERUS_ZAPIS=N kills the process right after step N of the save, as a power cut would:
// the tests of a cut-off save run tombi-cli so.
int Krok_Preruseni = 0;

void Prerus_Po_Kroku(int krok) {
    if (krok == Krok_Preruseni)
        std::raise(SIGKILL);
}

const QStringList Volby_Upravy{u"--pridej"_qs, u"--oprav"_qs, u"--smaz"_qs};

std::optional<int> Cislo(const QString& text, int od, int do_) {
    bool ok = false;
    const int n = text.toInt(&ok);
    if (!ok || n < od || n > do_)
        return std::nullopt;
    return n;
}

// "n1 .. n7": up to seven numbers 1..49, "-" or "0" an empty box; the boxes not given are empty.
std::optional<Boxy_Tahu> Boxy(const QString& text) {
    const QStringList kusy = text.split(u' ', Qt::SkipEmptyParts);
    if (kusy.isEmpty() || kusy.size() > 7)
        return std::nullopt;
    Boxy_Tahu boxy;
    for (int k = 1; k <= int(kusy.size()); ++k) {
        const QString& kus = kusy[k - 1];
        if (kus == u"-")
            continue;
        const std::optional<int> n = Cislo(kus, 0, 49);
        if (!n)
            return std::nullopt;
        boxy[k] = uint8_t(*n);
    }
    return boxy;
}

} // namespace

bool Je_Uprava_Archivu(const QStringList& args) {
    return std::any_of(args.begin(), args.end(), [](const QString& a) { return Volby_Upravy.contains(a); });
}

int Uprava_Archivu(const QStringList& args) {
    // The file, the one option and its values, in this order.
    if (args.size() < 5 || args[0].startsWith(u"--") || !Volby_Upravy.contains(args[1]))
        return Spatne_Pouziti({});
    const QString& volba = args[1];
    const bool smaz = volba == u"--smaz";
    if (args.size() != (smaz ? 5 : 6))
        return Spatne_Pouziti({});
    const std::optional<int> rok = Cislo(args[2], 1, INT16_MAX);
    const std::optional<int> tyden = Cislo(args[3], 0, 53);
    const std::optional<int> tah = Cislo(args[4], 1, 2);
    if (!rok || !tyden || !tah)
        return Spatne_Pouziti(u"Rok je kladné číslo, týden 0 až 53 a tah 1 nebo 2."_qs);
    const std::optional<Boxy_Tahu> boxy = smaz ? Boxy_Tahu{} : Boxy(args[5]);
    if (!boxy)
        return Spatne_Pouziti(u"Čísla tahu jsou nejvýše sedm čísel 1 až 49; prázdné pole je - nebo 0."_qs);

    const QString cesta = args[0];
    if (Jen_Ke_Cteni().contains(cesta))
        return Nelze_Zapsat_Do(cesta);
    const QFileInfo soubor(cesta);
    Archiv_Tahu archiv;
    archiv.Soubor_Tahu = soubor.fileName();
    // The first draw typed in creates the archive, as in the window.
    if (volba != u"--pridej" && !QFile::exists(cesta))
        return Chyba(u"Chybí soubor tahů  \""_qs + archiv.Soubor_Tahu + u"\"  v aktuálním adresáři."_qs);
    Krok_Preruseni = qEnvironmentVariableIntValue("TOMBI_PRERUS_ZAPIS");
    if (Krok_Preruseni > 0)
        Sleduj_Kroky_Zapisu(Prerus_Po_Kroku);

    const int serie = *tah == 1 ? Prvni_Tah : Druhy_Tah;
    const Zmena_Archivu zmena = Uprav_Archiv(archiv, soubor.absolutePath(), [&](Archiv_Tahu& a) {
        if (volba == u"--pridej")
            return Pridej_Tah(a, serie, *rok, *tyden, *boxy);
        if (volba == u"--oprav")
            return Oprav_Tah(a, serie, *rok, *tyden, *boxy);
        Uprava_Tahu smazani = Smaz_Tah(a, serie, *rok, *tyden);
        // The window says nothing over an empty week; a script is told that nothing was deleted.
        if (!smazani.Zmeneno && smazani.Zprava.isEmpty())
            smazani.Zprava = u"Není co SMAZAT, týden či rok neexistuje."_qs;
        return smazani;
    });
    if (!zmena.Zapis.Ok())
        return Chyba(zmena.Zapis.Zprava);
    if (!zmena.Uprava.Zprava.isEmpty())
        return Chyba(zmena.Uprava.Zprava);
    const auto [tahy1, tahy2] = Spocitej_Tahy(archiv);
    Vypis(u"let %1 tahy1 %2 tahy2 %3"_qs.arg(archiv.Pocet_Let).arg(tahy1).arg(tahy2));
    return Uspech;
}
