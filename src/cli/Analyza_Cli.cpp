// tombi-cli analyse: one statistic of the draw analysis over a slice of an archive, printed as the
// analysis window adds it to its report.

#include "analysis/Analyza_Tahu.h"
#include "core/Vb.h"
#include "cli/Cli.h"
#include "data/Archiv_Tahu.h"

#include <QFileInfo>

#include <algorithm>

namespace {

std::optional<int> Cele(const QString& text) {
    bool ok = false;
    const int n = text.toInt(&ok);
    return ok ? std::optional<int>(n) : std::nullopt;
}

} // namespace

int Analyza(const QStringList& args) {
    const Argumenty a = Rozeber(args, {u"--od"_qs, u"--rezim"_qs}, {u"--dodatkova"_qs, u"--od-do"_qs});
    const bool od_do = a.Prepinace.contains(u"--od-do");
    const QStringList& p = a.Pozicni;
    if (!a.Chyba.isEmpty() || p.size() != (od_do ? 6 : 4))
        return Spatne_Pouziti(a.Chyba);
    const std::optional<int> stat = Cele(p[1]);
    std::array<std::optional<int>, 4> cisla{};
    for (qsizetype i = 2; i < p.size(); ++i)
        cisla[std::size_t(i - 2)] = Cele(p[i]);
    const bool cisla_ok = std::all_of(cisla.begin(), cisla.begin() + (od_do ? 4 : 2), [](const auto& c) { return c.has_value(); });
    if (!stat || *stat < 0 || *stat >= Pocet_Analyz || !cisla_ok)
        return Spatne_Pouziti(u"Chybné argumenty příkazu analyse."_qs);
    const auto typ = Typ_Analyzy(*stat);
    Zadani_Analyzy z;
    z.Prah = Popis(typ).Vychozi_Prah;
    if (const auto prah = a.Volba(u"--od"_qs)) {
        const std::optional<int> t = Cele(*prah);
        if (!t || *t < 0)
            return Spatne_Pouziti(u"Chybná hodnota volby --od."_qs);
        z.Prah = *t;
    }
    if (const auto rezim = a.Volba(u"--rezim"_qs)) {
        if (*rezim != u"0" && *rezim != u"1")
            return Spatne_Pouziti(u"Chybná hodnota volby --rezim."_qs);
        z.Rezim_Prumeru = rezim->toInt();
    }
    const bool dodatkova = a.Prepinace.contains(u"--dodatkova");
    z.Cisel_V_Tahu = dodatkova ? 7 : 6;

    Archiv_Tahu archiv;
    const QFileInfo soubor(p[0]);
    if (const Vysledek nacteni = Nacti_Tahy(archiv, soubor.path(), soubor.fileName()); !nacteni.Ok())
        return Chyba(nacteni.Zprava);
    Priprav_Seznamy_Tahu(archiv);
    const auto [celkem_1, celkem_2] = Spocitej_Tahy(archiv);
    const std::array<int, 2> celkem{celkem_1, celkem_2};
    std::array<std::vector<Tah>*, 2> tahy{&archiv.Tahy_1, &archiv.Tahy_2};
    for (std::size_t t = 0; t < 2; ++t) {
        if (od_do) {
            // As the boxes correct them: a first index outside the archive is 1, a last one is the
            // newest draw, and a last index before the first is the first.
            int od = *cisla[2 * t];
            int do_ = *cisla[2 * t + 1];
            if (od < 1 || od > celkem[t])
                od = 1;
            if (do_ < 1 || do_ > celkem[t])
                do_ = celkem[t];
            do_ = std::max(do_, od);
            z.Rady[t] = Rada_Od_Do(*tahy[t], od, do_);
        } else {
            z.Rady[t] = Rada_Zpetne(*tahy[t], celkem[t], std::clamp(*cisla[t], std::min(1, celkem[t]), celkem[t]));
        }
    }
    const Vysledek_Analyzy v = Analyzuj(typ, z);
    if (v.Selhala)
        return Chyba(u"Analýza skončila chybou v "_qs + v.Chyba_Proces + u"; nic se nevypisuje."_qs);
    const QByteArray vypis = Vypis_Behu(v, dodatkova).toUtf8();
    std::fwrite(vypis.constData(), 1, std::size_t(vypis.size()), stdout);
    return Uspech;
}
