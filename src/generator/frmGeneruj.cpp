#include "generator/frmGeneruj.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi.h"
#include "app/frmMDITombi_Stav.h"
#include "app/frmOvladani.h"
#include "archive/frmVypisTahu.h"
#include "core/Tabulka_Textu.h"
#include "core/Vb.h"
#include "generator/Generator.h"
#include "generator/frmGeneruj_Omezeni.h"
#include "generator/frmGeneruj_Vyber.h"
#include "generator/modRozpisy.h"
#include "tips/Vypis_Tipu.h"
#include "tips/frmVypisTipu.h"

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

    // The catalogue of wheels; choosing one joins in with the wheels, so only row 0 can be chosen.
    lstSportka->addItems(modRozpisy::Katalog());
    for (int i = 1; i < lstSportka->count(); ++i)
        lstSportka->item(i)->setFlags(Qt::NoItemFlags);
    lstSportka->setCurrentRow(0);
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
    rozpisy->addWidget(lstSportka);
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
    if (poprve)
        lstSportka_Click(0);
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
    stav.Cislo_Rozpisu = Sezeni.Pocet_Sazejicich > 0 ? 0 : std::max(0, index);
    Omezeni->Povol_Omezeni();
    chkSpojvatRozpisy->hide();
    Vyber->optZpusob_Vyberu[0]->setChecked(true);
    Nastav_Rozpis(stav.Cislo_Rozpisu);
}

void frmGeneruj::Nastav_Rozpis(int cislo) {
    // Only "no wheel" can be chosen until the wheels stand: the pools take their part, the counts
    // are free again unless a bettors' list holds them.
    Vyber->Nastav_Rozpis(cislo);
    if (Sezeni.Pocet_Sazejicich == 0)
        Zamkni_Pocty(false);
    Command1->setEnabled(cislo != 0);
    setWindowTitle(Tabulka_Textu::Programu().Text(Okno.Jmeno));
}

void frmGeneruj::Zamkni_Pocty(bool zamknout) {
    txtPoc_Tipu->setEnabled(!zamknout);
    txtPoc_Tiketu->setEnabled(!zamknout);
}

void frmGeneruj::Nastav_Seznam_Sazejicich() {
    const bool seznam = Sezeni.Pocet_Sazejicich > 0;
    fraTypyRozpisu->setVisible(!seznam);
    chkSance->setVisible(!seznam);
    cmdUvolnit_Seznam_Sazejicich->setEnabled(seznam);
    cmdUvolnit_Seznam_Sazejicich->setVisible(seznam);
    if (seznam)
        Zamkni_Pocty(true);
}

void frmGeneruj::cmdUvolnit_Click() {
    Sezeni.Pocet_Sazejicich = 0;
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
    Generuj();
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
