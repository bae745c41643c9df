// tombi-cli print: the marks that printing the tickets of a tip file puts on each page, in twips.
#include "cli/Cli.h"
#include "data/Soubor_Tipu.h"
#include "printing/Tisk_Tiketu.h"

#include <memory>

int Tisk(const QStringList& args) {
    const Argumenty a = Rozeber(args, {u"--od"_qs, u"--pocet"_qs, u"--osa-x"_qs, u"--osa-y"_qs, u"--den"_qs},
                                {u"--cislo-tiketu"_qs, u"--sance"_qs});
    if (!a.Chyba.isEmpty() || a.Pozicni.size() != 1)
        return Spatne_Pouziti(a.Chyba);
    auto stav = std::make_unique<Stav_Tipu>();
    if (const Vysledek nacteni = Nacti_Soubor_Tipu(*stav, a.Pozicni.front()); !nacteni.Ok())
        return Chyba(nacteni.Zprava);
    const Zaznam_Tipu& z = stav->Soubor_Tipu;

    Tisk_Tiketu::Zadani_Tisku zadani;
    for (const auto& [volba, posun] :
         {std::pair{u"--osa-x"_qs, &zadani.Poloha.Posun_X}, std::pair{u"--osa-y"_qs, &zadani.Poloha.Posun_Y}})
        if (const auto text = a.Volba(volba)) {
            const std::optional<int> twipy = Tisk_Tiketu::Posun_Z_Mm(*text);
            if (!twipy)
                return Spatne_Pouziti(u"Chybná hodnota volby "_qs + volba + u" (-200 až 200 mm)."_qs);
            *posun = *twipy;
        }
    const QString den = a.Volba(u"--den"_qs).value_or(u"nedele"_qs);
    if (den != u"streda" && den != u"nedele")
        return Spatne_Pouziti(u"Chybná hodnota volby --den."_qs);
    zadani.Oznaceno = Tisk_Tiketu::Volby_Pri_Nacteni(den == u"streda", a.Prepinace.contains(u"--sance"));
    zadani.Cisla_Tiketu = a.Prepinace.contains(u"--cislo-tiketu");
    // Every tip the file holds is printed, whatever its header counts.
    zadani.Pocet_Tipu_Aktivni = Max_Tiketu * Sloupcu_Tiketu;

    const int tiketu = std::min<int>(z.Pocet_Tiketu, Max_Tiketu);
    int od = 1;
    int pocet = tiketu - 1;
    for (const auto& [volba, hodnota] : {std::pair{u"--od"_qs, &od}, std::pair{u"--pocet"_qs, &pocet}})
        if (const auto text = a.Volba(volba)) {
            const auto cislo = Cisla_Volby(*text, 1, 1, volba == u"--od" ? 1 : 0, Max_Tiketu);
            if (!cislo)
                return Spatne_Pouziti(u"Chybná hodnota volby "_qs + volba + u"."_qs);
            *hodnota = cislo->front();
        }
    if (!a.Volba(u"--pocet"_qs))
        pocet = tiketu - od;
    for (const Tisk_Tiketu::Stranka& s : Tisk_Tiketu::Stranky(z, od, pocet, zadani)) {
        Vypis(u"tiket %1 %2"_qs.arg(s.Tiket).arg(s.Cislo_Tiketu));
        for (const Tisk_Tiketu::Znacka& m : s.Znacky)
            Vypis(m.Je_Text ? u"text %1 %2 %3"_qs.arg(m.X).arg(m.Y).arg(m.Text) : u"krizek %1 %2"_qs.arg(m.X).arg(m.Y));
    }
    return Uspech;
}
