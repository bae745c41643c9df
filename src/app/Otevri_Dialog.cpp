#include "app/Otevri_Dialog.h"

#include "core/Dialogy.h"
#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "core/Vb.h"

#include <QDir>

#include <algorithm>

namespace {

bool Vyber_Pismo(Relace& relace, bool prvni) {
    Nastaveni_Zaznam& n = relace.Nastaveni;
    QString& jmeno = prvni ? n.Pismo_Jmeno_1 : n.Pismo_Jmeno_2;
    uint8_t& velikost = prvni ? n.Pismo_Velikost_1 : n.Pismo_Velikost_2;
    int16_t& tucne = prvni ? n.Pismo_Tucne_1 : n.Pismo_Tucne_2;
    int32_t& barva = prvni ? n.Pismo_Barva_1 : n.Pismo_Barva_2;
    Dialogy::Pismo pismo{jmeno, velikost, Vb::Je_Pravda(tucne), barva};
    if (!relace.Dialog->Vybrat_Pismo(pismo))
        return false;
    jmeno = pismo.Jmeno;
    velikost = uint8_t(std::clamp(pismo.Velikost, 0, 255));
    tucne = Vb::Bool16(pismo.Tucne);
    barva = pismo.Barva;
    if (!prvni) {
        const Vysledek ulozeni = Uloz_Nastaveni(n, *relace.Registr);
        if (!ulozeni.Ok() && relace.Sluzby != nullptr)
            relace.Sluzby->Zprava(ulozeni.Zprava);
    }
    return true;
}

} // namespace

void Otevri_Dialog(Relace& relace, int typ, const QString& filtr, const QString& nazev, QString& jmeno,
                   const QString& sloz, bool& vysledek) {
    Dialogy& dialog = *relace.Dialog;
    vysledek = false;
    switch (typ) {
    case 0:
    case 1: {
        const std::optional<QString> cesta =
            typ == 0 ? dialog.Otevrit_Soubor(filtr, nazev, sloz) : dialog.Ulozit_Soubor(filtr, nazev, jmeno, sloz);
        if (cesta) {
            jmeno = *cesta;
            vysledek = true;
        }
        break;
    }
    case 2:
        vysledek = dialog.Vybrat_Tiskarnu();
        break;
    case 3:
    case 4:
        vysledek = Vyber_Pismo(relace, typ == 3);
        break;
    default:
        break;
    }
    if (!vysledek)
        QDir::setCurrent(relace.Adresar_Dat());
}
