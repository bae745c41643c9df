#include "app/frmMDITombi_Tipy.h"

#include "app/Otevri_Dialog.h"
#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi.h"
#include "bettors/frmSeznamSazejicich.h"
#include "data/Nedavne_Soubory.h"
#include "data/Operace_Tipu.h"
#include "data/Soubory.h"
#include "tips/frmVypisTipu.h"

#include <QDir>
#include <QFileInfo>
#include <optional>

namespace frmMDITombi_Tipy {

namespace {

const QString Filtr_Tipu = u"Soubor tipů (*.tip)|*.tip"_qs;
const QString Filtr_Textu = u"Soubor tipů (*.txt)|*.txt"_qs;

// The open (typ 0) or save (typ 1, `jmeno` proposed) dialog in the folder of the tips: the path
// chosen, or nothing when cancelled.
std::optional<QString> Dialog_Tipu(Relace& relace, int typ, const QString& filtr, const QString& nazev,
                                   QString jmeno = {}) {
    bool vybrano = false;
    Otevri_Dialog(relace, typ, filtr, nazev, jmeno, relace.Nastaveni.Adresare[1], vybrano);
    return vybrano ? std::optional(jmeno) : std::nullopt;
}

void Po_Nacteni(frmMDITombi& ram, const QString& cesta) {
    Stav_Tipu& tipy = ram.Sezeni().Tipy;
    // A header may count otherwise than the tips the file holds (a run stopped early, a damaged
    // file): the list and the stake go by the tips present.
    tipy.Pocet_Tipu_Aktivni = int16_t(Pocet_Tipu_V_Souboru(tipy.Soubor_Tipu));
    ram.Pridej_Nedavny(Druh_Tipy, Jmeno_Bez_Adresare(cesta));
    ram.Sezeni().Sluzby->Nastav_Soubor_Tipu(QString::number(tipy.Pocet_Tipu_Aktivni));
    emit ram.Tipy_Otevreny();
}

void mnuOtevriSouborTipu_Click(frmMDITombi& ram) {
    if (const auto cesta = Dialog_Tipu(ram.Sezeni(), 0, Filtr_Tipu, u"Otevřít soubor tipů"_qs))
        Otevri_Soubor_Tipu(ram, *cesta, Otevreni::Z_Dialogu);
}

void mnuRecentFile_Click(frmMDITombi& ram, int index) {
    Relace& relace = ram.Sezeni();
    const QString slozka = relace.Nastaveni.Adresare[1];
    const QString jmeno = Soubor_Z_Polozky(ram.mnuRecentFile[std::size_t(index)]->data().toString());
    const QString cesta = Spoj_Cestu(slozka, jmeno);
    // The recent files keep bare names: say where the file was looked for.
    if (!QFileInfo(cesta).isFile()) {
        relace.Sluzby->Zprava(u"Soubor \""_qs + jmeno + u"\" nebyl nalezen ve složce tipů \""_qs +
                              QDir::toNativeSeparators(slozka) + u"\"."_qs);
        return;
    }
    Otevri_Soubor_Tipu(ram, cesta, Otevreni::Z_Nedavnych);
}

void mnuKonverzeSouboruTipu_Click(frmMDITombi& ram) {
    Relace& relace = ram.Sezeni();
    const auto vybrana = Dialog_Tipu(relace, 0, Filtr_Tipu, u"Konverze starého souboru tipů"_qs);
    if (!vybrana)
        return;
    const QString& cesta = *vybrana;
    Vysledek konverze;
    {
        const Prace prace(relace.Sluzby);
        konverze = Konvertuj_Soubor_Tipu(relace.Tipy, cesta, prace.Prubeh_Prace());
    }
    if (!konverze.Ok()) {
        relace.Sluzby->Zprava(konverze.Zprava);
        return;
    }
    relace.Sluzby->Zprava(Text_Konverze_Hotova);
    Nacti_Navazany_Seznam(ram);
    Po_Nacteni(ram, cesta);
}

// The store changed under the tip list: it shows the new store, or opens when `otevrit`. A change
// is unsaved until the tip list writes the file.
void Ukaz_Tipy(frmMDITombi& ram, bool otevrit, bool zmena = true) {
    Stav_Tipu& tipy = ram.Sezeni().Tipy;
    if (zmena)
        ram.Sezeni().Tikety.Zmena_Dat = true;
    ram.Sezeni().Sluzby->Nastav_Soubor_Tipu(QString::number(tipy.Pocet_Tipu_Aktivni));
    if (ram.Najdi_Okno<frmVypisTipu>() != nullptr) {
        ram.Zavri_Okno<frmVypisTipu>();
        otevrit = true;
    }
    if (otevrit)
        emit ram.Tipy_Otevreny();
}

void mnuPripojSouborTipu_Click(frmMDITombi& ram) {
    Relace& relace = ram.Sezeni();
    Stav_Tipu& tipy = relace.Tipy;
    if (Pocet_Tipu_V_Souboru(tipy.Soubor_Tipu) >= Max_Tiketu * Sloupcu_Tiketu) {
        relace.Sluzby->Zprava(Text_Max_Tipu_Pripojeni);
        return;
    }
    const auto vybrana = Dialog_Tipu(relace, 0, u"Soubory tipů (*.tip)|*.tip"_qs, u"Připojit soubor tipů"_qs);
    if (!vybrana)
        return;
    const QString& cesta = *vybrana;
    Vysledek pripojeni;
    {
        const Prace prace(relace.Sluzby);
        pripojeni = Pripoj_Soubor_Tipu(tipy, cesta, prace.Prubeh_Prace());
    }
    // A file that could not be read, or an old one, changed nothing; an overflow kept what fit.
    const bool zmena = pripojeni.Ok() || pripojeni.Zprava == Text_Max_Tiketu_Pripojeni;
    if (!pripojeni.Ok())
        relace.Sluzby->Zprava(pripojeni.Zprava);
    if (!zmena)
        return;
    ram.Pridej_Nedavny(Druh_Tipy, Jmeno_Bez_Adresare(cesta));
    Ukaz_Tipy(ram, false);
}

void mnuSetriditSouborTipu_Click(frmMDITombi& ram) {
    Relace& relace = ram.Sezeni();
    bool zmena = false;
    {
        const Prace prace(relace.Sluzby);
        zmena = Setridit_Soubor_Tipu(relace.Tipy.Soubor_Tipu, prace.Prubeh_Prace());
    }
    Ukaz_Tipy(ram, true, zmena);
}

void mnuExportTipu_Click(frmMDITombi& ram) {
    Relace& relace = ram.Sezeni();
    QByteArray text;
    {
        const Prace prace(relace.Sluzby);
        text = Export_Tipu(relace.Tipy, prace.Prubeh_Prace());
    }
    if (text.isEmpty())
        return;
    const auto vybrana =
        Dialog_Tipu(relace, 1, Filtr_Textu, u"Export souboru tipů"_qs, relace.Tipy.Jmeno_Souboru_Tipu + u".txt"_qs);
    if (!vybrana)
        return;
    const QString& cesta = *vybrana;
    const Vysledek zapis = Uloz_Soubor(cesta, text);
    relace.Sluzby->Zprava(zapis.Ok() ? u"Uložen EXPORT souboru tipů do \""_qs + Jmeno_Bez_Adresare(cesta) + u"\"."_qs
                                     : zapis.Zprava);
}

void mnuImportTipu_Click(frmMDITombi& ram) {
    Relace& relace = ram.Sezeni();
    const auto vybrana = Dialog_Tipu(relace, 0, Filtr_Textu, u"Import souboru tipů"_qs);
    if (!vybrana)
        return;
    const QString& cesta = *vybrana;
    const Nacteny_Soubor soubor = Nacti_Soubor(cesta, Nejvic_Textu);
    if (!soubor.Ok()) {
        relace.Sluzby->Zprava(soubor.Zprava(Jmeno_Bez_Adresare(cesta)));
        return;
    }
    if (!ram.Zavri_Okno<frmVypisTipu>())
        return;
    Vysledek import;
    {
        const Prace prace(relace.Sluzby);
        import = Import_Tipu(Text_Importu(soubor.Data), relace.Tipy);
    }
    if (!import.Ok()) {
        relace.Sluzby->Zprava(import.Zprava);
        return;
    }
    relace.Tipy.Jmeno_Souboru_Tipu = QFileInfo(cesta).completeBaseName();
    Ukaz_Tipy(ram, true);
}

} // namespace

void Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuOtevriSouborTipu, [&ram] { mnuOtevriSouborTipu_Click(ram); });
    ram.Obsluz(ram.mnuPripojSouborTipu, [&ram] { mnuPripojSouborTipu_Click(ram); });
    ram.Obsluz(ram.mnuSetriditSouborTipu, [&ram] { mnuSetriditSouborTipu_Click(ram); });
    ram.Obsluz(ram.mnuExportTipu, [&ram] { mnuExportTipu_Click(ram); });
    ram.Obsluz(ram.mnuImportTipu, [&ram] { mnuImportTipu_Click(ram); });
    ram.Obsluz(ram.mnuKonverzeSouboruTipu, [&ram] { mnuKonverzeSouboruTipu_Click(ram); });
    for (int i = 1; i < int(ram.mnuRecentFile.size()); ++i)
        ram.Obsluz(ram.mnuRecentFile[std::size_t(i)], [&ram, i] { mnuRecentFile_Click(ram, i); });
}

void Otevri_Soubor_Tipu(frmMDITombi& ram, const QString& cesta, Otevreni otevreni) {
    Relace& relace = ram.Sezeni();
    const Vysledek nacteni = Nacti_Soubor_Tipu(relace.Tipy, cesta, otevreni);
    if (!nacteni.Ok()) {
        relace.Sluzby->Zprava(nacteni.Zprava);
        return;
    }
    Po_Otevreni_Tipu(relace.Tipy, cesta);
    Nacti_Navazany_Seznam(ram);
    Po_Nacteni(ram, cesta);
}

void Nacti_Navazany_Seznam(frmMDITombi& ram) {
    Relace& relace = ram.Sezeni();
    relace.Seznam.Vyprazdni();
    ram.Zavri_Okno<frmSeznamSazejicich>();
    const QString& seznam = relace.Tipy.Soubor_Tipu.Seznam_Soubor;
    if (seznam.size() <= 2)
        return;
    const QString cesta = Spoj_Cestu(relace.Nastaveni.Adresare[2], seznam);
    // A list that has gone leaves the tips without one; the user is told, the tips stay open.
    const Vysledek nacteni = QFileInfo(cesta).isFile()
                                 ? Nacti_Seznam(relace.Seznam, cesta)
                                 : Vysledek::Chyba(u"Seznam sázejících \""_qs + seznam +
                                                   u"\" souboru tipů nebyl nalezen ve složce seznamů."_qs);
    if (!nacteni.Ok())
        relace.Sluzby->Zprava(nacteni.Zprava);
}

void Zapomen_Soubor_Tipu(Relace& relace) {
    relace.Tipy.Pocet_Tipu_Aktivni = 0;
    relace.Tipy.Jmeno_Souboru_Tipu.clear();
    if (relace.Sluzby != nullptr)
        relace.Sluzby->Nastav_Soubor_Tipu(u"0 tipů"_qs);
}

} // namespace frmMDITombi_Tipy
