// tombi-cli tips --append, --sort, --export and --import: the operations on a whole tip file.
#include "cli/Cli.h"
#include "data/Operace_Tipu.h"
#include "data/Soubory.h"

#include <memory>

namespace {

const QStringList Operace = {u"--append"_qs, u"--sort"_qs, u"--export"_qs, u"--import"_qs};

void Vypis_Stav(const Zaznam_Tipu& z) {
    Vypis(u"tikety %1 tipy %2"_qs.arg(z.Pocet_Tiketu).arg(Pocet_Tipu_V_Souboru(z)));
}

Vysledek Zapis(const Zaznam_Tipu& z, const QString& vystup) {
    return Uloz_Soubor(vystup, Zapis_Zaznam_Tipu(z));
}

} // namespace

bool Je_Operace_Tipu(const QStringList& args) {
    for (const QString& volba : Operace)
        if (args.contains(volba))
            return true;
    return false;
}

int Operace_Tipu(const QStringList& args) {
    const Argumenty a = Rozeber(args, {u"--out"_qs}, Operace);
    const std::optional<QString> vystup = a.Volba(u"--out"_qs);
    if (!a.Chyba.isEmpty() || a.Prepinace.size() != 1 || !vystup)
        return Spatne_Pouziti(a.Chyba);
    const QString operace = a.Prepinace.front();
    if (a.Pozicni.size() != (operace == u"--append" ? 2 : 1))
        return Spatne_Pouziti({});
    if (Jen_Ke_Cteni().contains(*vystup))
        return Nelze_Zapsat_Do(*vystup);
    const QString vstup = a.Pozicni.front();
    auto stav = std::make_unique<Stav_Tipu>();

    if (operace == u"--import") {
        const Nacteny_Soubor soubor = Nacti_Soubor(vstup, Nejvic_Textu);
        if (!soubor.Ok())
            return Chyba(soubor.Zprava(Jmeno_Bez_Adresare(vstup)));
        const Vysledek import = Import_Tipu(Text_Importu(soubor.Data), *stav);
        if (!import.Ok())
            return Chyba(import.Zprava);
        if (const Vysledek zapis = Zapis(stav->Soubor_Tipu, *vystup); !zapis.Ok())
            return Chyba(zapis.Zprava);
        Vypis_Stav(stav->Soubor_Tipu);
        return Uspech;
    }

    if (const Vysledek nacteni = Nacti_Soubor_Tipu(*stav, vstup); !nacteni.Ok())
        return Chyba(nacteni.Zprava);
    if (operace == u"--export") {
        const QByteArray text = Export_Tipu(*stav);
        if (text.isEmpty())
            return Chyba(u"Soubor tipů \""_qs + Jmeno_Bez_Adresare(vstup) + u"\" neobsahuje žádný tip."_qs);
        if (const Vysledek zapis = Uloz_Soubor(*vystup, text); !zapis.Ok())
            return Chyba(zapis.Zprava);
        return Uspech;
    }
    Vysledek prace;
    if (operace == u"--sort") {
        Setridit_Soubor_Tipu(stav->Soubor_Tipu);
    } else {
        stav->Pocet_Tipu_Aktivni = int16_t(Pocet_Tipu_V_Souboru(stav->Soubor_Tipu));
        prace = Pripoj_Soubor_Tipu(*stav, a.Pozicni[1]);
        // A file that could not be read, or an old one, changes nothing: nothing is written.
        if (!prace.Ok() && prace.Zprava != Text_Max_Tiketu_Pripojeni)
            return Chyba(prace.Zprava);
    }
    if (const Vysledek zapis = Zapis(stav->Soubor_Tipu, *vystup); !zapis.Ok())
        return Chyba(zapis.Zprava);
    Vypis_Stav(stav->Soubor_Tipu);
    return prace.Ok() ? Uspech : Chyba(prace.Zprava);
}
