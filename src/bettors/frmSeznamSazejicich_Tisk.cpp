#include "bettors/frmSeznamSazejicich_Tisk.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi.h"
#include "app/frmOvladani.h"
#include "app/frmTiskarna.h"
#include "bettors/frmSeznamSazejicich.h"
#include "core/Dialogy.h"
#include "data/Soubory.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Vypisy_Seznamu;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmSeznamSazejicich"_qs};
constexpr int Celkovy_Vypis = 0;
constexpr int Jednotlive = 1;

// The lines on paper: a tab goes to the next print zone.
void Tiskni_Radky(frmTiskarna& tisk, const QStringList& radky) {
    for (const QString& radek : radky) {
        const QStringList kusy = radek.split(u'\t');
        tisk.Text(kusy.front());
        for (qsizetype i = 1; i < kusy.size(); ++i)
            tisk.Zona(kusy[i]);
        tisk.Radek();
    }
}

// The paper's own title and head in place of the file's first lines.
QStringList Na_Papir(QStringList radky, const QString& titulek, const QString& hlava, int radek_hlavy) {
    radky[0] = titulek;
    radky[radek_hlavy] = hlava;
    return radky;
}

const QString Hlava_Papiru = u"        jméno                                 vklad  Kč       podíl %"_qs;

} // namespace

frmSeznamSazejicich_Tisk::frmSeznamSazejicich_Tisk(frmMDITombi& ram, frmSeznamSazejicich& seznam)
    : QWidget(&seznam), cmdTisk(Okno.Pojmenuj(new QPushButton(this), u"cmdTisk"_qs)),
      cmdDoSouboru(Okno.Pojmenuj(new QPushButton(this), u"cmdDoSouboru"_qs)),
      cmdTskLetaku(Okno.Pojmenuj(new QPushButton(this), u"cmdTskLetaku"_qs)), Ram(ram), Sezeni(ram.Sezeni()),
      Seznam(seznam) {
    auto* vypis = Okno.Pojmenuj(new QGroupBox(this), u"Frame_Tisk"_qs);
    auto* mrizka = new QGridLayout(vypis);
    for (std::size_t i = 0; i < Option1.size(); ++i) {
        Option1[i] = Okno.Pojmenuj(new QRadioButton(vypis), modNastaveni_Ovladani::Indexem(u"Option1"_qs, int(i)));
        mrizka->addWidget(Option1[i], int(i), 0);
    }
    Option1[0]->setChecked(true);
    mrizka->addWidget(cmdTisk, 0, 1);
    mrizka->addWidget(cmdDoSouboru, 1, 1);
    auto* letak = Okno.Pojmenuj(new QGroupBox(this), u"Frame_Letak"_qs);
    auto* modely = new QGridLayout(letak);
    for (std::size_t i = 0; i < optTiskarna.size(); ++i) {
        optTiskarna[i] =
            Okno.Pojmenuj(new QRadioButton(letak), modNastaveni_Ovladani::Indexem(u"optTiskarna"_qs, int(i)));
        modely->addWidget(optTiskarna[i], int(i) / 3, int(i) % 3);
    }
    optTiskarna[0]->setChecked(true);
    modely->addWidget(cmdTskLetaku, 3, 0, 1, 3);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->addWidget(vypis);
    rozlozeni->addWidget(letak);
    connect(cmdTisk, &QPushButton::clicked, this, &frmSeznamSazejicich_Tisk::cmdTisk_Click);
    connect(cmdDoSouboru, &QPushButton::clicked, this, &frmSeznamSazejicich_Tisk::cmdDoSouboru_Click);
    connect(cmdTskLetaku, &QPushButton::clicked, this, &frmSeznamSazejicich_Tisk::cmdTskLetaku_Click);
}

int frmSeznamSazejicich_Tisk::Druh() const {
    for (std::size_t i = 0; i < Option1.size(); ++i)
        if (Option1[i]->isChecked())
            return int(i);
    return Celkovy_Vypis;
}

void frmSeznamSazejicich_Tisk::cmdTisk_Click() {
    const std::vector<Sazejici> vybrani = Seznam.Vybrani();
    if (Druh() == Jednotlive && vybrani.empty()) {
        Sezeni.Sluzby->Zprava(u"Označ něco v seznamu ... "_qs);
        return;
    }
    const std::unique_ptr<frmTiskarna> otevrena = frmTiskarna::Po_Dialogu(*Sezeni.Dialog, Sezeni.Sluzby);
    if (!otevrena)
        return;
    frmTiskarna& tisk = *otevrena;
    tisk.Pismo(u"Arial CE"_qs);
    const Hlavicka h = Seznam.Hlavicka();
    const Zaznam_Tipu& tipy = Sezeni.Tipy.Soubor_Tipu;
    switch (Druh()) {
    case Celkovy_Vypis: {
        QStringList radky =
            Na_Papir(Celkovy(Sezeni.Seznam.Seznam, h), u"         Seznam sázejících pro tah dne   "_qs + h.Tah_Dne,
                     Hlava_Papiru, 2);
        const qsizetype soucty = radky.size() - 5;
        radky[soucty] = u"   celkem vsazeno        "_qs + Vb::Format(h.Penize.Vklad, u"### ###") + u" Kč"_qs;
        radky[soucty + 1] = u"   provize                     "_qs + h.Provize + u" %  -  "_qs +
                            Vb::Format(h.Penize.Provize, u"### ###") + u" Kč"_qs;
        Tiskni_Radky(tisk, radky);
        break;
    }
    case Jednotlive:
        for (std::size_t i = 0; i < vybrani.size(); ++i) {
            if (i > 0)
                tisk.Nova_Strana();
            Tiskni_Radky(tisk, Na_Papir(Jednotlivy(vybrani[i], h, tipy),
                                        u"         Výpis tipů pro tah dne   "_qs + h.Tah_Dne, Hlava_Papiru, 2));
        }
        break;
    default:
        tisk.Velikost(8);
        Tiskni_Radky(tisk, Tipy(tipy));
    }
    tisk.Konec();
}

void frmSeznamSazejicich_Tisk::cmdDoSouboru_Click() {
    const QString slozka = Sezeni.Nastaveni.Adresare[2];
    const Hlavicka h = Seznam.Hlavicka();
    const auto uloz = [&](const QString& jmeno, const QStringList& radky) {
        const Vysledek v = Uloz_Soubor(Spoj_Cestu(slozka, jmeno), Do_Souboru(radky));
        if (!v.Ok())
            Sezeni.Sluzby->Zprava(u"Nějaká vada při exportu seznamu do souboru.\n"_qs + v.Zprava);
        return v.Ok();
    };
    switch (Druh()) {
    case Celkovy_Vypis:
        if (uloz(Soubor_Celkoveho, Celkovy(Sezeni.Seznam.Seznam, h)))
            Sezeni.Sluzby->Zprava(u"Uložen soubor \""_qs + Spoj_Cestu(slozka, Soubor_Celkoveho) + u'"');
        break;
    case Jednotlive: {
        const std::vector<Sazejici> vybrani = Seznam.Vybrani();
        if (vybrani.empty()) {
            Sezeni.Sluzby->Zprava(u"Označ něco v seznamu ... "_qs);
            return;
        }
        for (const Sazejici& s : vybrani)
            if (!uloz(Soubor_Jednotliveho(s, h.Soubor_Tipu), Jednotlivy(s, h, Sezeni.Tipy.Soubor_Tipu)))
                return;
        Sezeni.Sluzby->Zprava(u"Uloženy textové soubory \"_xxx_.txt\""_qs);
        break;
    }
    default: {
        // Beside the tip file's own text export, not over it.
        const QString jmeno = (h.Soubor_Tipu.isEmpty() ? u"_!"_qs : h.Soubor_Tipu) + u"_tipy.txt"_qs;
        if (uloz(jmeno, Tipy(Sezeni.Tipy.Soubor_Tipu)))
            Sezeni.Sluzby->Zprava(u"Uložen soubor \""_qs + Spoj_Cestu(slozka, jmeno) + u'"');
    }
    }
}

void frmSeznamSazejicich_Tisk::cmdTskLetaku_Click() {
    int model = 0;
    for (std::size_t i = 0; i < optTiskarna.size(); ++i)
        if (optTiskarna[i]->isChecked())
            model = int(i);
    const QString soubor = Najdi_Letak(Sezeni.Cesta_Programu, model);
    if (soubor.isEmpty() || !Sezeni.Dialog->Vybrat_Tiskarnu()) {
        Sezeni.Sluzby->Zprava(u"Tiskový soubor "_qs + Soubory_Letaku[std::size_t(model)] +
                              u" chybí nebo zrušen tisk !"_qs);
        return;
    }
    if (!Ram.Spust_Program(u"lp"_qs, Prikaz_Letaku(Sezeni.Dialog->Tiskarna().printerName(), soubor)))
        Sezeni.Sluzby->Zprava(u"Letáček nelze vytisknout: program \"lp\" tiskového systému CUPS nelze spustit."_qs);
}
