#include "generator/frmGeneruj.h"

#include "app/Otevri_Dialog.h"
#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi.h"
#include "app/frmMDITombi_Stav.h"
#include "app/frmOvladani.h"
#include "archive/frmVypisTahu.h"
#include "core/Tabulka_Textu.h"
#include "core/Vb.h"
#include "data/Operace_Tipu.h"
#include "data/Soubory.h"
#include "generator/Generator.h"
#include "generator/Zaruky_Rozpisu.h"
#include "generator/frmGeneruj_Omezeni.h"
#include "generator/frmGeneruj_Vyber.h"
#include "generator/modRozpisy.h"
#include "tips/Vypis_Tipu.h"
#include "tips/frmVypisTipu.h"
#include "tips/frmVypisTipuVsech.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

using modNastaveni_Ovladani::Cele_Cislo;
using modNastaveni_Ovladani::Prvek;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmGeneruj"_qs};

} // namespace

frmGeneruj::frmGeneruj(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), txtPoc_Tipu(Okno.Pojmenuj(new QLineEdit(this), u"txtPoc_Tipu"_qs)),
      txtPoc_Tiketu(Okno.Pojmenuj(new QLineEdit(this), u"txtPoc_Tiketu"_qs)),
      lblVklad(Okno.Pojmenuj(new QLabel(this), u"lblVklad"_qs)),
      chkSance(Okno.Pojmenuj(new QCheckBox(this), u"chkSance"_qs)),
      txtSeminko(Okno.Pojmenuj(new QLineEdit(this), u"txtSeminko"_qs)),
      txtVlastni_Seminko(Okno.Pojmenuj(new QLineEdit(this), u"txtVlastni_Seminko"_qs)),
      lblTiket(Okno.Pojmenuj(new QLabel(this), u"lblTiket"_qs)), lblTip(Okno.Pojmenuj(new QLabel(this), u"lblTip"_qs)),
      lblStav_Behu(Okno.Pojmenuj(new QLabel(this), u"lblStav_Behu"_qs)),
      fraTypyRozpisu(Okno.Pojmenuj(new QGroupBox(this), u"fraTypyRozpisu"_qs)),
      lstSportka(Okno.Pojmenuj(new QListWidget(this), u"lstSportka"_qs)),
      chkSpojvatRozpisy(Okno.Pojmenuj(new QCheckBox(this), u"chkSpojvatRozpisy"_qs)),
      Command1(Okno.Pojmenuj(new QPushButton(this), u"Command1"_qs)),
      cmdUvolnit_Seznam_Sazejicich(Okno.Pojmenuj(new QPushButton(this), u"cmdUvolnit_Seznam_Sazejicich"_qs)),
      lblZaruky(Okno.Pojmenuj(new QLabel(this), u"lblZaruky"_qs)),
      cmdOK(Okno.Pojmenuj(new QPushButton(this), u"cmdOK"_qs)),
      cmdZrusit(Okno.Pojmenuj(new QPushButton(this), u"cmdZrusit"_qs)), Ram(ram), Sezeni(ram.Sezeni()) {
    setObjectName(Okno.Jmeno);
    setWindowTitle(Tabulka_Textu::Programu().Text(Okno.Jmeno));
    Sezeni.Formular_Otevren_Generuj = true;
    Sezeni.Random.Dolni_Mez = 1;
    Sezeni.Random.Horni_Mez = 49;
    Stav_Generatoru& stav = Sezeni.Generator;
    const bool poprve = stav.Cislo_Rozpisu < 0;

    // The panels tell a first opening by Cislo_Rozpisu still at -1.
    Vyber = new frmGeneruj_Vyber(ram, this);
    Omezeni = new frmGeneruj_Omezeni(Sezeni, this);
    if (poprve)
        stav.Cislo_Rozpisu = 0;

    lstSportka->addItems(modRozpisy::Katalog());
    lstSportka->setCurrentRow(std::max(stav.Cislo_Rozpisu, 0));
    lblZaruky->setWordWrap(true);
    lblZaruky->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblZaruky->setMinimumWidth(fontMetrics().horizontalAdvance(u"Šance na výhru v jednom tahu: aspoň 5. pořadí"_qs));
    lblZaruky->hide();
    lstSportka->setMinimumWidth(lstSportka->fontMetrics().horizontalAdvance(modRozpisy::Katalog().at(5)) + 40);
    lstSportka->setMaximumHeight(lstSportka->sizeHintForRow(0) * 6 + 2 * lstSportka->frameWidth());
    chkSpojvatRozpisy->setChecked(stav.Spojovat_Rozpisy);
    chkSpojvatRozpisy->hide(); // it exists only for wheels
    Command1->setEnabled(false);
    txtSeminko->setReadOnly(true);
    txtSeminko->setFocusPolicy(Qt::ClickFocus);
    if (stav.Seminko_Behu)
        txtSeminko->setText(QString::number(*stav.Seminko_Behu));
    txtVlastni_Seminko->setMaxLength(20);
    txtVlastni_Seminko->setPlaceholderText(Okno.Text(u"txtVlastni_Seminko.Placeholder"_qs));
    for (QLineEdit* pole : {txtPoc_Tipu, txtPoc_Tiketu, txtVlastni_Seminko}) {
        modNastaveni_Ovladani::Jen_Cislice(pole);
        modNastaveni_Ovladani::Vybirej_Pri_Vstupu(pole);
    }
    txtPoc_Tipu->setMaxLength(5);
    txtPoc_Tiketu->setMaxLength(4);
    txtPoc_Tipu->installEventFilter(this);
    txtPoc_Tiketu->installEventFilter(this);
    lblVklad->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblVklad->setFrameShape(QFrame::Panel);
    lblVklad->setFrameShadow(QFrame::Sunken);
    cmdOK->setDefault(true);

    auto* rozpisy = new QVBoxLayout(fraTypyRozpisu);
    auto* seznam_a_zaruky = new QHBoxLayout;
    seznam_a_zaruky->addWidget(lstSportka, 3);
    seznam_a_zaruky->addWidget(lblZaruky, 2);
    rozpisy->addLayout(seznam_a_zaruky);
    auto* pod_seznamem = new QHBoxLayout;
    pod_seznamem->addWidget(chkSpojvatRozpisy);
    pod_seznamem->addWidget(Command1);
    pod_seznamem->addWidget(cmdUvolnit_Seznam_Sazejicich);
    pod_seznamem->addStretch();
    rozpisy->addLayout(pod_seznamem);

    auto* tlacitka = new QVBoxLayout;
    tlacitka->addStretch();
    tlacitka->addWidget(cmdOK);
    tlacitka->addWidget(cmdZrusit);

    auto* nahore = new QHBoxLayout;
    nahore->addLayout(Rozvrh_Poctu());
    nahore->addWidget(Vyber, 1);
    nahore->addWidget(Omezeni);
    auto* dole = new QHBoxLayout;
    dole->addWidget(fraTypyRozpisu, 1);
    dole->addLayout(tlacitka);
    auto* rozlozeni = new QVBoxLayout(this);
    // The word of a stuck run spans the window under the progress, shown only while it stands.
    lblStav_Behu->setWordWrap(true);
    lblStav_Behu->setStyleSheet(u"color: #c00000"_qs);
    lblStav_Behu->hide();
    rozlozeni->addLayout(nahore);
    rozlozeni->addWidget(lblStav_Behu);
    rozlozeni->addLayout(dole);

    connect(txtPoc_Tipu, &QLineEdit::textChanged, this, &frmGeneruj::txtPoc_Tipu_Change);
    connect(txtPoc_Tiketu, &QLineEdit::textChanged, this, &frmGeneruj::txtPoc_Tiketu_Change);
    connect(chkSance, &QCheckBox::toggled, this, [this](bool zapnuto) {
        Sezeni.Generator.Stav_Sance = zapnuto;
        Spocitej_Vklad();
    });
    connect(chkSpojvatRozpisy, &QCheckBox::toggled, this,
            [this](bool zapnuto) { Sezeni.Generator.Spojovat_Rozpisy = zapnuto; });
    connect(lstSportka, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* polozka) { lstSportka_Click(lstSportka->row(polozka)); });
    connect(Command1, &QPushButton::clicked, this, [this] {
        lstSportka->setCurrentRow(0);
        lstSportka_Click(0);
    });
    connect(cmdUvolnit_Seznam_Sazejicich, &QPushButton::clicked, this, &frmGeneruj::cmdUvolnit_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmGeneruj::cmdOK_Click);
    connect(cmdZrusit, &QPushButton::clicked, this, &frmGeneruj::cmdZrusit_Click);
    connect(Vyber, &frmGeneruj_Vyber::Tutovky_Zmeneny, Omezeni, &frmGeneruj_Omezeni::Tutovky_Zmeneny);
    connect(Vyber, &frmGeneruj_Vyber::Volba_Zmenena, this, [this](int index) {
        if (index != 0)
            Omezeni->Check1[4]->setChecked(false);
        lstSportka->setCurrentRow(0);
    });
    connect(Vyber, &frmGeneruj_Vyber::Zvol_Rozpis, this, &frmGeneruj::lstSportka_Click);
    connect(Vyber, &frmGeneruj_Vyber::Vyber_Bezi, this, [this](bool bezi) {
        cmdOK->setEnabled(!bezi);
        cmdZrusit->setEnabled(!bezi);
        fraTypyRozpisu->setVisible(!bezi);
    });

    // The count of tips: the default, unless the store holds what a stopped run left.
    const Stav_Tipu& tipy = Sezeni.Tipy;
    const int vychozi = Sezeni.Nastaveni.Vychozi_Tipu;
    const bool vychozi_pocet = tipy.Pocet_Tipu_Celkem == vychozi || tipy.Pocet_Tipu_Celkem < 1;
    txtPoc_Tipu->setText(QString::number(vychozi_pocet ? vychozi : tipy.Soubor_Tipu.Pocet_Tipu));
    chkSance->setChecked(stav.Stav_Sance);
    // A wheel file is read anew at each choice, so a reopened window starts without one; a built-in
    // wheel stands as it was left, with its numbers.
    if (poprve || stav.Cislo_Rozpisu == modRozpisy::Rozpis_Ze_Souboru || Sezeni.Seznam.Pocet_Sazejicich() > 0)
        lstSportka_Click(0);
    else if (const modRozpisy::Tabulka_Rozpisu* t = modRozpisy::Tabulka(stav.Cislo_Rozpisu))
        Ukaz_Rozpis(stav.Cislo_Rozpisu, modRozpisy::Rozmery_Rozpisu{t->Tutovek, t->Sloupcu, t->Cisel});
    Nastav_Seznam_Sazejicich();
    Zapis_Z_Tipu = false;
    Zapis_Z_Tiketu = false;
    Sezeni.Tikety.Zrusit_Beh = false;
    modNastaveni_Ovladani::Napoveda(this, u"Gener"_qs);
}

frmGeneruj::~frmGeneruj() {
    Sezeni.Formular_Otevren_Generuj = false;
}

QLayout* frmGeneruj::Rozvrh_Poctu() {
    auto* pocty = new QFormLayout;
    pocty->addRow(Okno.Text(u"lblPoc_Tipu"_qs), txtPoc_Tipu);
    pocty->addRow(Okno.Text(u"lblPoc_Tiketu"_qs), txtPoc_Tiketu);
    pocty->addRow(Okno.Text(u"lblVklad_Popis"_qs), lblVklad);
    pocty->addRow(chkSance);
    pocty->addRow(Okno.Text(u"lblSeminko"_qs), txtSeminko);
    pocty->addRow(QString(), txtVlastni_Seminko);
    for (QLineEdit* pole : {txtPoc_Tipu, txtPoc_Tiketu, txtSeminko, txtVlastni_Seminko})
        pole->setMaximumWidth(fontMetrics().horizontalAdvance(u"18446744073709551615"_qs) + 12);

    auto* prubeh = Okno.Pojmenuj(new QGroupBox(this), u"fraPrubeh"_qs);
    auto* radky = new QFormLayout(prubeh);
    radky->addRow(Okno.Text(u"lblTiket_Popis"_qs), lblTiket);
    radky->addRow(Okno.Text(u"lblTip_Popis"_qs), lblTip);

    auto* vlevo = new QVBoxLayout;
    vlevo->addLayout(pocty);
    vlevo->addWidget(prubeh);
    vlevo->addStretch();
    return vlevo;
}

// ---- The two count boxes and the stake ----

void frmGeneruj::txtPoc_Tipu_Change() {
    if (Zapis_Z_Tiketu)
        return;
    const int tipu = Cele_Cislo(txtPoc_Tipu);
    if (tipu == 0) {
        txtPoc_Tipu->clear();
        txtPoc_Tiketu->clear();
    } else if (tipu > Max_Tipu) {
        Sezeni.Sluzby->Zprava(u"Osm tisic tipů snad stačí !!!"_qs);
        txtPoc_Tipu->setText(u"8000"_qs);
        return;
    } else {
        Zapis_Z_Tipu = true;
        txtPoc_Tiketu->setText(QString::number(Tiketu_Pro_Tipy(tipu)));
    }
    Omezeni->Pocet_Tipu_Zmenen(tipu);
    Spocitej_Vklad();
}

void frmGeneruj::txtPoc_Tiketu_Change() {
    if (Zapis_Z_Tipu || Sezeni.Generator.Vyber.Rozpis_Aktivni)
        return;
    const int tiketu = Cele_Cislo(txtPoc_Tiketu);
    if (tiketu == 0) {
        txtPoc_Tipu->clear();
        txtPoc_Tiketu->clear();
    } else if (tiketu > Max_Tiketu) {
        Sezeni.Sluzby->Zprava(u"950 tiketů snad stačí !!!"_qs);
        txtPoc_Tiketu->setText(QString::number(Max_Tiketu));
        return;
    } else {
        txtPoc_Tipu->setText(QString::number(tiketu * Sloupcu_Tiketu));
    }
    Omezeni->Pocet_Tipu_Zmenen(Cele_Cislo(txtPoc_Tipu));
    Spocitej_Vklad();
}

bool frmGeneruj::eventFilter(QObject* objekt, QEvent* udalost) {
    if (udalost->type() == QEvent::FocusOut) {
        if (objekt == txtPoc_Tipu)
            Zapis_Z_Tipu = false;
        else if (objekt == txtPoc_Tiketu)
            Zapis_Z_Tiketu = false;
    }
    return QWidget::eventFilter(objekt, udalost);
}

void frmGeneruj::Spocitej_Vklad() {
    const Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    double vklad = double(Cele_Cislo(txtPoc_Tipu)) * n.Cena_Jednoho_Tipu;
    if (chkSance->isChecked())
        vklad += double(Cele_Cislo(txtPoc_Tiketu)) * n.Cena_Sance;
    lblVklad->setText(Vb::Format(vklad, u"### ### ###"));
}

// ---- The wheel list and the bettors' list ----

void frmGeneruj::lstSportka_Click(int index) {
    Stav_Generatoru& stav = Sezeni.Generator;
    stav.Cislo_Rozpisu = Sezeni.Seznam.Pocet_Sazejicich() > 0 ? 0 : std::max(0, index);
    Omezeni->Povol_Omezeni();
    chkSpojvatRozpisy->hide();
    Vyber->optZpusob_Vyberu[0]->setChecked(true);
    Nastav_Rozpis(stav.Cislo_Rozpisu);
}

void frmGeneruj::Nastav_Rozpis(int cislo) {
    Stav_Generatoru& stav = Sezeni.Generator;
    Vyber_Cisel& v = stav.Vyber;
    std::optional<modRozpisy::Rozmery_Rozpisu> rozmery;
    if (cislo == modRozpisy::Rozpis_Ze_Souboru) {
        Externi = {};
        const QByteArray text = Otevri_Rozpis_Soubor();
        if (const Vysledek nacteni = modRozpisy::Nacti_Rozpis(text, Externi); !nacteni.Ok())
            Sezeni.Sluzby->Zprava(nacteni.Zprava);
        else if (!text.isEmpty())
            rozmery = modRozpisy::Rozmery_Rozpisu{Externi.Tutovek, Externi.Sloupcu, Externi.Cisel};
    } else if (const modRozpisy::Tabulka_Rozpisu* t = modRozpisy::Tabulka(cislo)) {
        // The dimensions come from the table: expanding into the store just to read them would
        // spoil the tips that stand there.
        rozmery = modRozpisy::Rozmery_Rozpisu{t->Tutovek, t->Sloupcu, t->Cisel};
    }
    if (!rozmery) {
        // No wheel: a cancelled or refused file, or row 0.
        cislo = 0;
        stav.Cislo_Rozpisu = 0;
    } else {
        v.Cisla_Potreba = rozmery->Tutovek + rozmery->Cisel;
        v.Pocet_Tutovek_Rozpisu = rozmery->Tutovek;
    }
    Vyber->Nastav_Rozpis(cislo);
    Ukaz_Rozpis(cislo, rozmery);
}

void frmGeneruj::Ukaz_Rozpis(int cislo, const std::optional<modRozpisy::Rozmery_Rozpisu>& rozmery) {
    lstSportka->setCurrentRow(cislo);
    chkSpojvatRozpisy->setVisible(cislo != 0);
    Command1->setEnabled(cislo != 0);
    QString titulek = Tabulka_Textu::Programu().Text(Okno.Jmeno);
    if (cislo == 0) {
        Omezeni->Povol_Omezeni();
        if (Sezeni.Seznam.Pocet_Sazejicich() == 0)
            Zamkni_Pocty(false);
    } else {
        Omezeni->Zakaz_Omezeni();
        // A .rzp without a count of columns offers what the last run made.
        const int sloupcu = rozmery->Sloupcu > 0 ? rozmery->Sloupcu : Sezeni.Generator.Pocet_Tipu_Hotovo;
        Zamkni_Pocty(false);
        txtPoc_Tipu->setText(QString::number(std::clamp(sloupcu, 1, Max_Tipu)));
        Zapis_Z_Tipu = false;
        Zamkni_Pocty(true);
        if (cislo == modRozpisy::Rozpis_Ze_Souboru)
            titulek = u"Generování tipů, Volba rozpisu          aktivní rozpis - "_qs + Jmeno_Rozpisu;
    }
    setWindowTitle(titulek);
    Ukaz_Zaruky(cislo);
}

QByteArray frmGeneruj::Otevri_Rozpis_Soubor() {
    QString cesta;
    bool vybrano = false;
    Otevri_Dialog(Sezeni, 0, u"Soubory rozpisů (*.rzp)|*.rzp"_qs, u"Rozpis ze souboru"_qs, cesta,
                  Sezeni.Nastaveni.Adresare[1], vybrano);
    if (!vybrano)
        return {};
    // A wheel is a short text; anything near this size is not one.
    const Nacteny_Soubor soubor = Nacti_Soubor(cesta, 4 * Mebibajt);
    if (!soubor.Ok()) {
        Sezeni.Sluzby->Zprava(soubor.Zprava(Jmeno_Bez_Adresare(cesta)));
        return {};
    }
    Jmeno_Rozpisu = Jmeno_Bez_Adresare(cesta);
    return modRozpisy::Text_Rozpisu(soubor.Data);
}

void frmGeneruj::Ukaz_Zaruky(int cislo) {
    std::vector<modRozpisy::Radek_Rozpisu> tipy;
    if (const modRozpisy::Tabulka_Rozpisu* t = modRozpisy::Tabulka(cislo)) {
        tipy = Tipy_Tabulky(*t);
    } else if (cislo == modRozpisy::Rozpis_Ze_Souboru) {
        // The file's rows over positions 1..N, its tutovky as N + 1 .. N + T.
        const std::size_t v_radku = std::size_t(6 - Externi.Tutovek);
        for (std::size_t i = 0;
             i + v_radku <= Externi.Data_Rozpisu.size() && tipy.size() < std::size_t(Externi.Sloupcu); i += v_radku) {
            modRozpisy::Radek_Rozpisu radek{};
            for (int k = 0; k < Externi.Tutovek; ++k)
                radek[std::size_t(k)] = uint8_t(Externi.Cisel + k + 1);
            std::copy_n(Externi.Data_Rozpisu.begin() + qsizetype(i), v_radku, radek.begin() + Externi.Tutovek);
            tipy.push_back(radek);
        }
    }
    lblZaruky->setVisible(!tipy.empty());
    if (!tipy.empty()) {
        const Prace prace(Sezeni.Sluzby);
        lblZaruky->setText(Text_Zaruk(Spocti_Zaruky(tipy, prace.Prubeh_Prace())));
    }
}

void frmGeneruj::Zamkni_Pocty(bool zamknout) {
    txtPoc_Tipu->setEnabled(!zamknout);
    txtPoc_Tiketu->setEnabled(!zamknout);
}

void frmGeneruj::Nastav_Seznam_Sazejicich() {
    const bool seznam = Sezeni.Seznam.Pocet_Sazejicich() > 0;
    fraTypyRozpisu->setVisible(!seznam);
    chkSance->setVisible(!seznam);
    cmdUvolnit_Seznam_Sazejicich->setEnabled(seznam);
    cmdUvolnit_Seznam_Sazejicich->setVisible(seznam);
    if (seznam)
        Zamkni_Pocty(true);
}

void frmGeneruj::cmdUvolnit_Click() {
    Sezeni.Seznam.Vyprazdni();
    lstSportka->setCurrentRow(0);
    chkSance->setChecked(false);
    Nastav_Seznam_Sazejicich();
    Zamkni_Pocty(false);
    txtPoc_Tipu->setText(QString::number(Sezeni.Nastaveni.Vychozi_Tipu));
}

// ---- The run ----

bool frmGeneruj::Kontrola() {
    const Vysledek kontrola = Kontrola_Vyberu(Sezeni.Generator.Vyber, Sezeni.Generator.Cislo_Rozpisu, Vyber->Zbytek());
    if (!kontrola.Ok())
        Sezeni.Sluzby->Zprava(kontrola.Zprava);
    return kontrola.Ok();
}

void frmGeneruj::cmdOK_Click() {
    if (Beh_Bezi || !Kontrola())
        return;
    if (txtPoc_Tipu->text().trimmed().isEmpty()) {
        Sezeni.Sluzby->Zprava(u"Prosím doplnit Počet tipů nebo tiketů."_qs);
        return;
    }
    if (Sezeni.Generator.Cislo_Rozpisu > 0)
        Rozpisuj();
    else
        Generuj();
}

void frmGeneruj::Rozpisuj() {
    Stav_Generatoru& stav = Sezeni.Generator;
    Stav_Tipu& tipy = Sezeni.Tipy;
    const bool spojovat = chkSpojvatRozpisy->isChecked();
    std::array<QString, 3> boxy;
    for (std::size_t i = 0; i < boxy.size(); ++i)
        boxy[i] = Vyber->txtTutovka[i]->text();
    const std::vector<int> tutovky = Nacti_Tutovky(boxy);
    const int cisel = Priprav_Okruh(stav.Vyber, stav.Tutovky);
    if (Vyber->Check2->isChecked())
        Zamichej_Cisla(stav.Vyber, cisel, Sezeni.Random);
    Tip aktualni{};
    for (std::size_t i = 0; i < std::min<std::size_t>(tutovky.size(), 3); ++i)
        aktualni[int(i) + 1] = uint8_t(tutovky[i]);

    // The wheel is written into a store of its own: alone it replaces the tips, so nothing of an
    // older file stands among its tips; joined, it goes after the tips that stood there.
    auto novy = std::make_unique<Zaznam_Tipu>();
    if (stav.Cislo_Rozpisu == modRozpisy::Rozpis_Ze_Souboru) {
        const Vysledek v =
            modRozpisy::Externi_Rozpis(Externi, stav.Vyber.Cisla_Rozpisu, Cele_Cislo(txtPoc_Tiketu), *novy);
        if (!v.Ok()) {
            Sezeni.Sluzby->Zprava(v.Zprava);
            return;
        }
    } else {
        modRozpisy::Rozpis(stav.Cislo_Rozpisu, stav.Vyber.Cisla_Rozpisu, aktualni, *novy);
    }
    if (spojovat) {
        tipy.Soubor_Tipu_Pripojeny = *novy;
        if (const Vysledek v = Pripoj_Soubor_Tipu(tipy, {}); !v.Ok())
            Sezeni.Sluzby->Zprava(v.Zprava);
    } else {
        tipy.Soubor_Tipu = *novy;
    }
    stav.Pocet_Tipu_Hotovo = Pocet_Tipu_V_Souboru(tipy.Soubor_Tipu);
    if (!spojovat) {
        Predej_Tipy();
        return;
    }
    tipy.Jmeno_Souboru_Tipu.clear();
    tipy.Je_Soubor_Tipu = false;
    tipy.Pocet_Tipu_Celkem = stav.Pocet_Tipu_Hotovo;
    tipy.Pocet_Tipu_Aktivni = int16_t(stav.Pocet_Tipu_Hotovo);
    Sezeni.Tikety.Zrusit_Beh = true;
    Sezeni.Tikety.Zmena_Dat = true;
    Sezeni.Sluzby->Nastav_Soubor_Tipu(QString::number(stav.Pocet_Tipu_Hotovo));
    Ukaz_Vsechny_Tipy();
}

void frmGeneruj::Ukaz_Vsechny_Tipy() {
    // Every tip of the store up to the first empty column, each number in three places; then the
    // tutovky and every number used, which the window shows sorted, each once, with their count.
    const Zaznam_Tipu& z = Sezeni.Tipy.Soubor_Tipu;
    QString tipy, cisla;
    for (std::size_t i = 0; i < 3; ++i)
        cisla += u' ' + Vyber->txtTutovka[i]->text();
    const int pocet = Pocet_Tipu_V_Souboru(z);
    for (int i = 0; i < pocet; ++i) {
        for (uint8_t n : z.Tikety[i / Sloupcu_Tiketu + 1].Cisla[i % Sloupcu_Tiketu + 1]) {
            tipy += QString::number(n).rightJustified(3);
            cisla += u' ' + QString::number(n);
        }
        tipy += u"\r\n"_qs;
    }
    auto* vsech = Ram.Otevri_Okno<frmVypisTipuVsech>(Ram);
    vsech->Zobraz(tipy, cisla);
    vsech->Umisti(this);
    Sezeni.Sluzby->Nastav_Status(vsech->lblTutovky[0]->text(), vsech->lblTutovky[1]->text());
}

void frmGeneruj::Generuj() {
    Stav_Generatoru& stav = Sezeni.Generator;
    Zadani_Generatoru z;
    if (const QString seminko = txtVlastni_Seminko->text().trimmed(); !seminko.isEmpty()) {
        bool ok = false;
        z.Seminko = seminko.toULongLong(&ok);
        if (!ok) {
            Sezeni.Sluzby->Zprava(u"Semínko musí být celé číslo od 0 do 18446744073709551615."_qs);
            return;
        }
    }
    z.Pocet_Tipu = Cele_Cislo(txtPoc_Tipu);
    z.Pocet_Tiketu = Cele_Cislo(txtPoc_Tiketu);
    std::array<QString, 3> tutovky;
    for (std::size_t i = 0; i < tutovky.size(); ++i)
        tutovky[i] = Vyber->txtTutovka[i]->text();
    z.Tutovky = Nacti_Tutovky(tutovky);
    Omezeni->Vypln_Zadani(z);
    Vyber_Cisel& vyber = stav.Vyber;
    const int okruh = Priprav_Okruh(vyber, stav.Tutovky);
    z.Vyber = vyber.Pouzit_Vybrana     ? Vyber_Okruhu::Pouzit_Vybrana
              : vyber.Vynechat_Vybrana ? Vyber_Okruhu::Vynechat_Vybrana
                                       : Vyber_Okruhu::Bez_Vyberu;
    z.Okruh_Cisel.assign(vyber.Okruh_Cisel.begin(), vyber.Okruh_Cisel.begin() + okruh);
    // What no tip can meet is said before the run; the window and the former tips stay as they are.
    if (const QString chyba = Kontrola_Zadani(z); !chyba.isEmpty()) {
        Sezeni.Sluzby->Zprava(chyba);
        return;
    }

    Beh_Bezi = true;
    lblStav_Behu->clear();
    lblStav_Behu->hide();
    cmdOK->setEnabled(false);
    cmdZrusit->setText(Okno.Text(u"cmdZrusit.Konec"_qs));
    Omezeni->Zamkni_Pro_Beh(true);
    Sezeni.Tikety.Zrusit_Beh = false;
    Vysledek_Generatoru vysledek;
    {
        const Prace prace(Sezeni.Sluzby);
        Zpetna_Volani_Generatoru volani;
        volani.Procenta = prace.Prubeh_Prace();
        volani.Pozice = [this](int tiket, int sloupec) {
            lblTiket->setText(QString::number(tiket));
            lblTip->setText(QString::number(sloupec));
        };
        volani.Hotovy_Tiket = [this](int pocet) { Sezeni.Sluzby->Nastav_Status(QString(), QString::number(pocet)); };
        volani.Zprava = [this](const QString& zprava) { Sezeni.Sluzby->Zprava(zprava); };
        // A stuck run goes on until "Konec"; the progress area says why no tip comes.
        volani.Uvaznuti = [this](const QString& zprava) {
            lblStav_Behu->setText(zprava + u" Volte \"Konec\"."_qs);
            lblStav_Behu->show();
            return true;
        };
        vysledek = ::Generuj(z, Sezeni.Tipy.Soubor_Tipu, volani);
    }
    Beh_Bezi = false;
    Omezeni->Zamkni_Pro_Beh(false);
    Omezeni->Po_Behu(vysledek.Max_Tretich_Cen);
    cmdOK->setEnabled(true);
    cmdZrusit->setText(Okno.Text(u"cmdZrusit"_qs));
    stav.Pocet_Tipu_Hotovo = vysledek.Pocet_Tipu_Hotovo;
    stav.Seminko_Behu = vysledek.Seminko;
    txtSeminko->setText(QString::number(vysledek.Seminko));
    if (vysledek.Konec == Konec_Behu::Chyba)
        Sezeni.Sluzby->Zprava(vysledek.Chyba);
    Predej_Tipy();
}

void frmGeneruj::Predej_Tipy() {
    // The tips have no file yet; the tip list shows what the run made, however it ended.
    Stav_Tipu& tipy = Sezeni.Tipy;
    tipy.Jmeno_Souboru_Tipu.clear();
    tipy.Je_Soubor_Tipu = false;
    tipy.Pocet_Tipu_Celkem = Sezeni.Generator.Pocet_Tipu_Hotovo;
    tipy.Pocet_Tipu_Aktivni = int16_t(Sezeni.Generator.Pocet_Tipu_Hotovo);
    Sezeni.Tikety.Zrusit_Beh = true;
    Sezeni.Tikety.Zmena_Dat = true;
    // The stake of what was made, Šance included when ticked; the tip list's evaluation reads it.
    const Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    const int hotovo = Sezeni.Generator.Pocet_Tipu_Hotovo;
    const Vb::Mena sance =
        Vb::Mena::Z_Korun(chkSance->isChecked() ? double(Tiketu_Pro_Tipy(hotovo)) * n.Cena_Sance : 0.0);
    const Vb::Mena vklad = Vb::Mena::Z_Korun(double(hotovo) * n.Cena_Jednoho_Tipu) + sance;
    frmMDITombi& ram = Ram;
    pTikety& tikety = Sezeni.Tikety;
    close();
    ram.Otevri_Okno<frmVypisTipu>(ram, false);
    tikety.Vklad = vklad;
    tikety.Vklad_Sance = sance;
}

void frmGeneruj::cmdZrusit_Click() {
    Sezeni.Tikety.Zrusit_Beh = true;
    Sezeni.Sluzby->Nastav_Status(QString(), QString());
    if (Beh_Bezi) {
        cmdZrusit->setText(Okno.Text(u"cmdZrusit"_qs));
        cmdOK->setEnabled(true);
        return;
    }
    close();
}

void frmGeneruj::closeEvent(QCloseEvent* udalost) {
    // A run still stands on the stack: it is stopped, and its end hands the tips over and closes.
    if (Beh_Bezi) {
        Sezeni.Tikety.Zrusit_Beh = true;
        udalost->ignore();
        return;
    }
    Vyber->Zastav_Vyber();
    Sezeni.Sluzby->Nastav_Status(QString(), QString());
    QWidget::closeEvent(udalost);
}

// ---- Commands ----

void frmGeneruj::Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuGenerujTipy, [&ram] {
        if (ram.Najdi_Okno<frmGeneruj>() == nullptr)
            ram.Zavri_Formulare(1);
        ram.Otevri_Okno<frmGeneruj>(ram);
    });
}

frmGeneruj* frmGeneruj::Nacti_Cisla_Do_Generatoru(frmMDITombi& ram) {
    // The numbers are taken first: the tip list and the generator empty the status band as they close.
    const QString text = ram.Stav()->txtRozpisAktivni->text();
    ram.Zavri_Okno<frmVypisTipu>();
    ram.Zavri_Okno<frmVypisTahu>();
    ram.Zavri_Okno<frmGeneruj>();
    auto* okno = ram.Otevri_Okno<frmGeneruj>(ram);
    okno->Vyber->Nacti_Cisla(text);
    return okno;
}
