#include "app/frmMDITombi_Tahy.h"

#include "analysis/frmAnalyzaTahu.h"
#include "core/Dialogy.h"
#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi.h"
#include "app/frmMDITombi_Stav.h"
#include "archive/frmVypisTahu.h"
#include "net/Import_Tahu.h"

#include <QLineEdit>

namespace frmMDITombi_Tahy {

namespace {

const QString Adresa_Sazky = u"https://www.sazka.cz"_qs;

void mnuAktualizaceTahu_Click(frmMDITombi& ram) {
    Relace& relace = ram.Sezeni();
    // The draw list and the analysis show the old archive: they close, and the list comes back on
    // the new one.
    ram.Zavri_Okno<frmVypisTahu>();
    ram.Zavri_Okno<frmAnalyzaTahu>();
    Vysledek import;
    {
        const Prace prace(relace.Sluzby);
        import = Importuj_Tahy(relace.Archiv, relace.Adresar_Dat(), relace.Soubor_Tahu_Dbf,
                               relace.Nastaveni.Zaloha_Tahu, relace.Nastaveni.Smazat_Dbf, prace.Prubeh_Prace());
    }
    if (!import.Ok()) {
        relace.Sluzby->Zprava(import.Zprava);
        return;
    }
    // The day is loaded anew from the file just written: counts, flat lists and commands follow.
    ram.Prepni_Den(Den(relace.Tikety.Den_Tahu));
    if (!ram.Bez_Tahu())
        frmVypisTahu::Otevri(ram);
}

void mnuObnovaDatTahu_Click(frmMDITombi& ram) {
    Relace& relace = ram.Sezeni();
    const QString den = ram.Stav()->txtSportka_Tah->text().left(6);
    if (relace.Dialog->Otazka(Dialogy::Ikona::Otaznik, u"Obnova dat tahů ze záložní kopie"_qs,
                              u"Opravdu provést návrat dat tahů "_qs + den, Dialogy::Tlacitka::Ano_Ne,
                              Dialogy::Odpoved::Ne) != Dialogy::Odpoved::Ano)
        return;
    const Vysledek obnova = Obnov_Zalohu(relace.Archiv, relace.Adresar_Dat());
    if (!obnova.Ok()) {
        relace.Sluzby->Zprava(obnova.Zprava);
        return;
    }
    ram.Zavri_Okno<frmVypisTahu>();
    ram.Prepni_Den(Den(relace.Tikety.Den_Tahu));
    if (!ram.Bez_Tahu())
        frmVypisTahu::Otevri(ram);
}

} // namespace

void Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuAktualizaceTahu, [&ram] { mnuAktualizaceTahu_Click(ram); });
    ram.Obsluz(ram.mnuObnovaDatTahu, [&ram] { mnuObnovaDatTahu_Click(ram); });
    ram.Obsluz(ram.mnuWeb_Sazka, [&ram] { ram.Otevri_Web(Adresa_Sazky); });
}

} // namespace frmMDITombi_Tahy
