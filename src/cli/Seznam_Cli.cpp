// tombi-cli bettors: a bettors' list as its window shows it, and the split of a win among them.
#include "bettors/Seznam_Sazejicich.h"
#include "cli/Cli.h"
#include "data/Soubory.h"

#include <cmath>

int Seznam_Sazejicich(const QStringList& args) {
    const Argumenty a = Rozeber(args, {u"--vyhra"_qs}, {});
    if (!a.Chyba.isEmpty() || a.Pozicni.size() != 1)
        return Spatne_Pouziti(a.Chyba);
    std::optional<double> vyhra;
    if (const auto text = a.Volba(u"--vyhra"_qs)) {
        bool cislo = false;
        const double kc = QString(*text).replace(u',', u'.').toDouble(&cislo);
        if (!cislo || !std::isfinite(kc) || kc < 0 || kc > 1e12)
            return Spatne_Pouziti(u"Chybná hodnota volby --vyhra (0 až 1 000 000 000 000 Kč)."_qs);
        vyhra = kc;
    }
    // Read only: unlike the window, an empty list is not deleted here.
    const QString cesta = a.Pozicni.front();
    const Nacteny_Soubor soubor = Nacti_Soubor(cesta, Nejvic_Seznamu);
    if (!soubor.Ok())
        return Chyba(soubor.Zprava(Jmeno_Bez_Adresare(cesta)));
    std::vector<Sazejici> seznam;
    if (const Vysledek cteni = Cti_Seznam(soubor.Data, Jmeno_Bez_Adresare(cesta), seznam); !cteni.Ok())
        return Chyba(cteni.Zprava);
    // As the window lists them: a record without a name is no bettor.
    std::erase_if(seznam, [](const Sazejici& s) { return s.Jmeno.isEmpty(); });
    const Sazejici prvni = seznam.empty() ? Sazejici{} : seznam.front();
    Vypis(u"tah dne "_qs + prvni.Tah_Dne);
    Vypis(u"sazkovy tyden "_qs + QString::number(prvni.Tyden));
    Vypis(u"provize "_qs + prvni.Provize);
    Vypis(u"sance "_qs + QString::number(prvni.Sance));
    for (const Sazejici& s : seznam)
        Vypis(Radek_Seznamu(s));
    if (vyhra)
        for (const QString& radek : Rozdel_Vyhru(seznam, *vyhra))
            Vypis(radek);
    return Uspech;
}
