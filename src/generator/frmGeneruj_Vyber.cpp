#include "generator/frmGeneruj_Vyber.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi.h"
#include "app/frmOvladani.h"
#include "app/frmSloupec_Tiketu.h"
#include "app/modTombi.h"
#include "core/Dialogy.h"
#include "core/Tabulka_Textu.h"
#include "core/Vb.h"
#include "generator/Soubor_Vyb.h"
#include "generator/Tabulky_Rozpisu.h"
#include "generator/Vyber_Cisel.h"
#include "tips/frmVypisTipu.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QThread>
#include <QVBoxLayout>
#include <algorithm>

using modNastaveni_Ovladani::Indexem;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmGeneruj"_qs};

void Obarvi(QPushButton* tlacitko, const QColor& barva) {
    tlacitko->setStyleSheet(
        u"QPushButton { background: %1; color: black; } QPushButton:disabled { color: #606060; }"_qs.arg(barva.name()));
}

int Vyplnenych(const Boxy_Tutovek& boxy) {
    return int(std::count_if(boxy.begin(), boxy.end(), [](uint8_t n) { return n != 0; }));
}

bool Je_Tutovka(const Boxy_Tutovek& boxy, int n) {
    return n != 0 && std::find(boxy.begin(), boxy.end(), uint8_t(n)) != boxy.end();
}

// A radio button of an exclusive group can only be cleared with the group's rule off for a moment.
void Zrus_Volbu(QRadioButton* volba) {
    volba->setAutoExclusive(false);
    volba->setChecked(false);
    volba->setAutoExclusive(true);
}

} // namespace

frmGeneruj_Vyber::frmGeneruj_Vyber(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), picSloupec(Okno.Pojmenuj(new frmSloupec_Tiketu(ram.Sezeni().Nastaveni, this), u"picSloupec"_qs)),
      chkPevna_Tutovka(Okno.Pojmenuj(new QCheckBox(this), u"chkPevna_Tutovka"_qs)),
      Command2(Okno.Pojmenuj(new QPushButton(this), u"Command2"_qs)),
      cmdStop(Okno.Pojmenuj(new QPushButton(this), u"cmdStop"_qs)),
      scrCas(Okno.Pojmenuj(new QScrollBar(Qt::Horizontal, this), u"scrCas"_qs)),
      lblCas(Okno.Pojmenuj(new QLabel(this), u"lblCas"_qs)),
      cmdVyberPodleKlice(Okno.Pojmenuj(new QPushButton(this), u"cmdVyberPodleKlice"_qs)),
      cmdZamenitCisla(Okno.Pojmenuj(new QPushButton(this), u"cmdZamenitCisla"_qs)),
      Check2(Okno.Pojmenuj(new QCheckBox(this), u"Check2"_qs)),
      Otevri_Soubor_JenCisla(Okno.Pojmenuj(new QPushButton(this), u"Otevri_Soubor_JenCisla"_qs)),
      cmdUloz_Soubor_VybranaCisla(Okno.Pojmenuj(new QPushButton(this), u"cmdUloz_Soubor_VybranaCisla"_qs)),
      cmdOpakovat(Okno.Pojmenuj(new QPushButton(this), u"cmdOpakovat"_qs)),
      txtZbytek_Cisel(Okno.Pojmenuj(new QLineEdit(this), u"txtZbytek_Cisel"_qs)), Ram(ram), Sezeni(ram.Sezeni()) {
    // Left: the grid with the tutovky and the count below it.
    auto* vlevo = new QVBoxLayout;
    vlevo->addWidget(picSloupec, 0, Qt::AlignHCenter);
    auto* tutovky = new QHBoxLayout;
    auto* lblTutovka = Okno.Pojmenuj(new QLabel(this), u"lblTutovka"_qs);
    tutovky->addWidget(lblTutovka);
    const int sirka = fontMetrics().horizontalAdvance(u"000"_qs) + 10;
    for (int i = 0; i < 3; ++i) {
        auto* box = Okno.Pojmenuj(new QLineEdit(this), Indexem(u"txtTutovka"_qs, i));
        txtTutovka[std::size_t(i)] = box;
        box->setMaxLength(2);
        box->setMaximumWidth(sirka);
        box->setAlignment(Qt::AlignCenter);
        modNastaveni_Ovladani::Jen_Cislice(box);
        modNastaveni_Ovladani::Vybirej_Pri_Vstupu(box);
        tutovky->addWidget(box);
        // A number off the ticket is no tutovka.
        connect(box, &QLineEdit::textEdited, this, [box] {
            const double n = Vb::Val(box->text());
            if (!box->text().isEmpty() && (n < 1 || n > 49))
                box->clear();
        });
        connect(box, &QLineEdit::editingFinished, this, [this, i] { Tutovka_Opustena(i); });
    }
    lblTutovka->setBuddy(txtTutovka[0]);
    tutovky->addStretch();
    vlevo->addLayout(tutovky);
    vlevo->addWidget(chkPevna_Tutovka);
    auto* zbyva = new QHBoxLayout;
    zbyva->addWidget(Okno.Pojmenuj(new QLabel(this), u"lblZbytek_Cisel"_qs));
    zbyva->addWidget(txtZbytek_Cisel);
    txtZbytek_Cisel->setReadOnly(true);
    txtZbytek_Cisel->setMaximumWidth(sirka);
    txtZbytek_Cisel->setAlignment(Qt::AlignCenter);
    txtZbytek_Cisel->setFocusPolicy(Qt::NoFocus);
    zbyva->addStretch();
    vlevo->addLayout(zbyva);
    vlevo->addStretch();

    // Right: the modes, ranges and ways of picking, then the commands.
    auto* vpravo = new QVBoxLayout;
    vpravo->addWidget(Volby());
    vpravo->addWidget(Rozsahy());
    vpravo->addWidget(Zpusoby());
    vpravo->addWidget(cmdVyberPodleKlice);
    vpravo->addWidget(Check2);
    auto* soubory = new QHBoxLayout;
    soubory->addWidget(Otevri_Soubor_JenCisla);
    soubory->addWidget(cmdUloz_Soubor_VybranaCisla);
    vpravo->addLayout(soubory);
    vpravo->addWidget(cmdOpakovat);
    vpravo->addStretch();

    auto* rozlozeni = new QHBoxLayout(this);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->addLayout(vlevo);
    rozlozeni->addLayout(vpravo);

    connect(picSloupec, &frmSloupec_Tiketu::Klik, this, &frmGeneruj_Vyber::picSloupec_Klik);
    connect(cmdZamenitCisla, &QPushButton::clicked, this, [this] {
        Zamen_Cisla(Sezeni.Generator.Vyber);
        const int jina = Sezeni.Generator.Vyber.Volba_Vybrana == 1 ? 2 : 1;
        optVybrana_Cisla[std::size_t(jina)]->setChecked(true);
        Volba_Click(jina);
    });
    connect(cmdVyberPodleKlice, &QPushButton::clicked, this, &frmGeneruj_Vyber::cmdVyberPodleKlice_Click);
    connect(cmdOpakovat, &QPushButton::clicked, this, &frmGeneruj_Vyber::cmdOpakovat_Click);
    connect(cmdUloz_Soubor_VybranaCisla, &QPushButton::clicked, this, &frmGeneruj_Vyber::Uloz_Vybrana_Cisla);
    connect(Otevri_Soubor_JenCisla, &QPushButton::clicked, this, &frmGeneruj_Vyber::Otevrit_Soubor_Vybrana_Cisla);

    Obnov();
}

frmGeneruj_Vyber::~frmGeneruj_Vyber() {
    Vybira = false;
    // A box that loses the focus while the panel goes must not reach a panel half torn down.
    for (QLineEdit* box : txtTutovka)
        box->disconnect(this);
}

QWidget* frmGeneruj_Vyber::Volby() {
    auto* ramec = Okno.Pojmenuj(new QGroupBox(this), u"fraVybrana_Cisla"_qs);
    auto* mrizka = new QGridLayout(ramec);
    for (int i = 0; i < 3; ++i) {
        optVybrana_Cisla[std::size_t(i)] = Okno.Pojmenuj(new QRadioButton(ramec), Indexem(u"optVybrana_Cisla"_qs, i));
        connect(optVybrana_Cisla[std::size_t(i)], &QRadioButton::clicked, this, [this, i] { Volba_Click(i); });
    }
    mrizka->addWidget(optVybrana_Cisla[0], 0, 0, 1, 3);
    mrizka->addWidget(optVybrana_Cisla[1], 1, 0);
    mrizka->addWidget(cmdZamenitCisla, 1, 1);
    mrizka->addWidget(optVybrana_Cisla[2], 1, 2);
    cmdZamenitCisla->setMaximumWidth(fontMetrics().horizontalAdvance(u">  <"_qs) + 20);
    return ramec;
}

QWidget* frmGeneruj_Vyber::Rozsahy() {
    auto* ramec = Okno.Pojmenuj(new QGroupBox(this), u"fraRozsah_Cisel"_qs);
    auto* mrizka = new QGridLayout(ramec);
    for (int i = 0; i < 4; ++i) {
        optRozsah_Cisel[std::size_t(i)] = Okno.Pojmenuj(new QRadioButton(ramec), Indexem(u"optRozsah_Cisel"_qs, i));
        mrizka->addWidget(optRozsah_Cisel[std::size_t(i)], i / 2, i % 2);
        connect(optRozsah_Cisel[std::size_t(i)], &QRadioButton::clicked, this, [this, i] { Rozsah_Click(i); });
    }
    return ramec;
}

QWidget* frmGeneruj_Vyber::Zpusoby() {
    auto* ramec = Okno.Pojmenuj(new QGroupBox(this), u"fraZpusob_Vyberu"_qs);
    auto* mrizka = new QGridLayout(ramec);
    for (int i = 0; i < 3; ++i) {
        optZpusob_Vyberu[std::size_t(i)] = Okno.Pojmenuj(new QRadioButton(ramec), Indexem(u"optZpusob_Vyberu"_qs, i));
        mrizka->addWidget(optZpusob_Vyberu[std::size_t(i)], i, 0);
        connect(optZpusob_Vyberu[std::size_t(i)], &QRadioButton::clicked, this, [this, i] { Zpusob_Click(i); });
    }
    mrizka->addWidget(Command2, 1, 1);
    mrizka->addWidget(cmdStop, 2, 1);
    scrCas->setRange(1, 4);
    scrCas->setValue(1);
    mrizka->addWidget(scrCas, 3, 0);
    mrizka->addWidget(lblCas, 3, 1);
    lblCas->setText(QString::number(scrCas->value()) + Okno.Text(u"lblCas"_qs));
    connect(scrCas, &QScrollBar::valueChanged, this,
            [this](int sekundy) { lblCas->setText(QString::number(sekundy) + Okno.Text(u"lblCas"_qs)); });
    connect(Command2, &QPushButton::clicked, this, [this] { Zpusob_Click(1); });
    connect(cmdStop, &QPushButton::clicked, this, &frmGeneruj_Vyber::cmdStop_Click);
    Obarvi(cmdStop, Qt::green);
    cmdStop->setEnabled(false);
    return ramec;
}

// ---- The state of the pools ----

void frmGeneruj_Vyber::Obnov() {
    const Stav_Generatoru& stav = Sezeni.Generator;
    for (std::size_t i = 0; i < 3; ++i)
        txtTutovka[i]->setText(stav.Tutovky[i] != 0 ? QString::number(stav.Tutovky[i]) : QString());
    Zapsane = stav.Tutovky;
    optZpusob_Vyberu[0]->setChecked(true);
    Povol_Pro_Rozpis(stav.Vyber.Rozpis_Aktivni ? std::max(stav.Cislo_Rozpisu, 0) : 0);
    // What the last opening left can be saved at once.
    cmdUloz_Soubor_VybranaCisla->setEnabled(Pocet_V_Platnosti(stav.Vyber) > 0);
    Prekresli_Seznam();
}

void frmGeneruj_Vyber::Povol_Pro_Rozpis(int cislo_rozpisu) {
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    const bool rozpis = cislo_rozpisu > 0;
    for (QRadioButton* volba : optVybrana_Cisla)
        volba->setEnabled(!rozpis);
    optZpusob_Vyberu[0]->setChecked(true);
    cmdStop->setEnabled(false);
    Check2->setVisible(rozpis);
    if (rozpis) {
        // A wheel takes its numbers from the grid; the modes and ranges of the pools stand aside.
        for (QRadioButton* volba : optVybrana_Cisla)
            Zrus_Volbu(volba);
        for (QRadioButton* rozsah : optRozsah_Cisel)
            rozsah->setEnabled(false);
        Check2->setChecked(false);
        cmdVyberPodleKlice->setEnabled(true);
        cmdZamenitCisla->setEnabled(false);
    } else {
        cmdUloz_Soubor_VybranaCisla->setEnabled(false);
        const int volba = std::clamp(v.Volba_Vybrana, 0, 2);
        optVybrana_Cisla[std::size_t(volba)]->setChecked(true);
        Nastav_Volbu(volba);
    }
}

int frmGeneruj_Vyber::Zvoleny_Rozsah() const {
    for (std::size_t i = 0; i < optRozsah_Cisel.size(); ++i)
        if (optRozsah_Cisel[i]->isChecked())
            return int(i);
    return 0;
}

bool frmGeneruj_Vyber::Je_Vybrano(int cislo) {
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    const Seznam_Cisel& seznam = Seznam_V_Platnosti(v);
    const int pocet = std::clamp(Pocet_V_Platnosti(v), 0, 49);
    return std::find(seznam.begin(), seznam.begin() + pocet, uint8_t(cislo)) != seznam.begin() + pocet;
}

Boxy_Tutovek frmGeneruj_Vyber::Boxy() const {
    Boxy_Tutovek boxy{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double n = Vb::Val(txtTutovka[i]->text());
        boxy[i] = n >= 1 && n <= 49 ? uint8_t(n) : 0;
    }
    return boxy;
}

void frmGeneruj_Vyber::Zapis_Boxy(const Boxy_Tutovek& boxy) {
    // The boxes as the engine left them; the session and the filters hear of a change.
    Stav_Generatoru& stav = Sezeni.Generator;
    for (std::size_t i = 0; i < 3; ++i)
        txtTutovka[i]->setText(boxy[i] != 0 ? QString::number(boxy[i]) : QString());
    const bool zmena = stav.Tutovky != boxy;
    stav.Tutovky = boxy;
    Zapsane = boxy;
    if (zmena)
        emit Tutovky_Zmeneny(Vyplnenych(boxy));
}

void frmGeneruj_Vyber::Zobraz_Stav(const Stav_Vyberu& stav) {
    Sezeni.Sluzby->Nastav_Status(stav.Rozpis, stav.Pocet > 0 ? QString::number(stav.Pocet) : QString());
    const int zbytek = Zbytek_Cisel(Sezeni.Generator.Vyber);
    txtZbytek_Cisel->setText(QString::number(zbytek));
    if (zbytek < 0)
        Sezeni.Sluzby->Zprava(u"Vybrano více čísel než je třeba !"_qs);
}

void frmGeneruj_Vyber::Prekresli_Seznam() {
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    const Boxy_Tutovek boxy = Boxy();
    picSloupec->Vycisti();
    const Seznam_Cisel& seznam = Seznam_V_Platnosti(v);
    const int pocet = std::clamp(Pocet_V_Platnosti(v), 0, 49);
    for (int i = 1; i <= pocet; ++i)
        if (const int n = seznam[i]; n >= 1 && n <= 49)
            picSloupec->Pridej_Krizek(n, Je_Tutovka(boxy, n) ? Barva_Cervena : Barva_Cerna);
    v.Tutovka_Index = Vyplnenych(boxy);
    txtZbytek_Cisel->setText(QString::number(Zbytek_Cisel(v)));
}

// ---- The grid and the tutovky ----

void frmGeneruj_Vyber::Klikni(int cislo, int barva) {
    Boxy_Tutovek boxy = Boxy();
    const Stav_Vyberu stav = Klik_Cislo(Sezeni.Generator.Vyber, cislo, barva, boxy);
    Zapis_Boxy(boxy);
    Prekresli_Seznam();
    Zobraz_Stav(stav);
}

void frmGeneruj_Vyber::picSloupec_Klik(int cislo, Qt::MouseButton tlacitko, bool) {
    if (cislo < 1 || cislo > 49 || Vybira)
        return;
    const Vyber_Cisel& v = Sezeni.Generator.Vyber;
    const int barva = tlacitko == Qt::RightButton || Je_Tutovka(Boxy(), cislo) ? Barva_Cervena : Barva_Cerna;
    // Without a pool only tutovky can be set.
    if (!v.Rozpis_Aktivni && v.Volba_Vybrana == 0 && barva != Barva_Cervena)
        return;
    Klikni(cislo, barva);
    cmdUloz_Soubor_VybranaCisla->setEnabled(true);
}

void frmGeneruj_Vyber::Tutovka_Opustena(int index) {
    QLineEdit* box = txtTutovka[std::size_t(index)];
    Boxy_Tutovek boxy = Boxy();
    int cislo = boxy[std::size_t(index)];
    const int bylo = Zapsane[std::size_t(index)];
    // The same number in two boxes would be one tutovka counted twice.
    if (cislo != 0 && std::count(boxy.begin(), boxy.end(), uint8_t(cislo)) > 1) {
        box->clear();
        boxy[std::size_t(index)] = 0;
        cislo = 0;
    }
    if (cislo == bylo)
        return;
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    Stav_Vyberu stav = Serad_Seznam(v, Pocet_V_Platnosti(v));
    // The other boxes, gaps closed, so that the engine puts the new tutovka into the next free one.
    Boxy_Tutovek ostatni{};
    int k = 0;
    for (std::size_t i = 0; i < 3; ++i)
        if (int(i) != index && boxy[i] != 0)
            ostatni[std::size_t(k++)] = boxy[i];
    v.Tutovka_Index = k;
    // "Bez výběru" holds nothing but the tutovky in its list: the number that left the box leaves it.
    if (!v.Rozpis_Aktivni && v.Volba_Vybrana == 0 && bylo != 0 && Je_Vybrano(bylo))
        stav = Klik_Cislo(v, bylo, Barva_Cerna, ostatni);
    if (cislo == 0 || v.Volba_Vybrana == 2 || Je_Vybrano(cislo)) {
        // Left out numbers take no tutovka into their list, and a chosen number only turns red.
        if (cislo != 0 && std::find(ostatni.begin(), ostatni.end(), 0) != ostatni.end())
            *std::find(ostatni.begin(), ostatni.end(), 0) = uint8_t(cislo);
    } else {
        stav = Klik_Cislo(v, cislo, Barva_Cervena, ostatni);
    }
    Zapis_Boxy(ostatni);
    Prekresli_Seznam();
    Zobraz_Stav(stav);
}

// ---- Modes, ranges, ways of picking ----

void frmGeneruj_Vyber::Nastav_Volbu(int index) {
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    v.Volba_Vybrana = index;
    v.Pouzit_Vybrana = index == 1;
    v.Vynechat_Vybrana = index == 2;
    cmdZamenitCisla->setText(Okno.Text(index == 2 ? u"cmdZamenitCisla.Vynechat"_qs : u"cmdZamenitCisla.Pouzit"_qs));
    const int rozsah = index == 1 ? Sezeni.Generator.Rozsah_Pouzit : index == 2 ? Sezeni.Generator.Rozsah_Vynechat : 0;
    for (std::size_t i = 0; i < 4; ++i) {
        optRozsah_Cisel[i]->setEnabled(index != 0);
        optRozsah_Cisel[i]->setChecked(int(i) == rozsah);
    }
    cmdVyberPodleKlice->setEnabled(index != 0);
    cmdZamenitCisla->setEnabled(index != 0);
}

void frmGeneruj_Vyber::Volba_Click(int index) {
    if (Sezeni.Generator.Vyber.Rozpis_Aktivni || Vybira)
        return;
    picSloupec->Vycisti();
    Nastav_Volbu(index);
    cmdUloz_Soubor_VybranaCisla->setEnabled(true);
    emit Volba_Zmenena(index);
    Prekresli_Seznam();
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    Zobraz_Stav(Serad_Seznam(v, Pocet_V_Platnosti(v)));
}

void frmGeneruj_Vyber::Rozsah_Click(int index) {
    Stav_Generatoru& stav = Sezeni.Generator;
    const int platny = Platny_Rozsah(stav.Vyber, index);
    optRozsah_Cisel[std::size_t(platny)]->setChecked(true);
    if (stav.Vyber.Rozpis_Aktivni)
        return;
    (stav.Vyber.Volba_Vybrana == 2 ? stav.Rozsah_Vynechat : stav.Rozsah_Pouzit) = platny;
    Boxy_Tutovek boxy = Boxy();
    const Stav_Vyberu vysledek = Vypln_Rozsah(stav.Vyber, platny, boxy);
    Zapis_Boxy(boxy);
    Prekresli_Seznam();
    Zobraz_Stav(vysledek);
    cmdUloz_Soubor_VybranaCisla->setEnabled(true);
}

void frmGeneruj_Vyber::Zpusob_Click(int index) {
    // A random choice fills a wheel; without one the numbers are picked by hand.
    if (index != 0 && Sezeni.Generator.Cislo_Rozpisu <= 0) {
        Sezeni.Sluzby->Zprava(u"Vyber čísla ručně ..."_qs);
        index = 0;
    }
    optZpusob_Vyberu[std::size_t(index)]->setChecked(true);
    cmdStop->setEnabled(index == 2);
    if (index == 1)
        Nahodna_Volba();
}

void frmGeneruj_Vyber::Nahodna_Volba() {
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    Boxy_Tutovek boxy = Boxy();
    const std::vector<uint8_t> sada =
        Nahodna_Sada(v, Zvoleny_Rozsah(), boxy, chkPevna_Tutovka->isChecked(), Sezeni.Random);
    if (sada.empty())
        return;
    const Stav_Vyberu stav = Pouzij_Nahodnou_Sadu(v, sada, boxy);
    Zapis_Boxy(boxy);
    Prekresli_Seznam();
    Zobraz_Stav(stav);
}

void frmGeneruj_Vyber::cmdStop_Click() {
    if (Vybira) {
        Vybira = false;
        return;
    }
    // The picker: a random set at each interval until the button is pressed again.
    Vybira = true;
    cmdStop->setText(Okno.Text(u"cmdStop.Bezi"_qs));
    Obarvi(cmdStop, Qt::red);
    emit Vyber_Bezi(true);
    std::vector<QWidget*> vypnout{
        Command2,  Otevri_Soubor_JenCisla, cmdUloz_Soubor_VybranaCisla, optZpusob_Vyberu[0], optZpusob_Vyberu[1],
        picSloupec};
    vypnout.insert(vypnout.end(), optRozsah_Cisel.begin(), optRozsah_Cisel.end());
    std::vector<bool> bylo;
    for (QWidget* prvek : vypnout) {
        bylo.push_back(prvek->isEnabled());
        prvek->setEnabled(false);
    }
    // The wait pumps events, so the window may go while it lasts.
    const QPointer<frmGeneruj_Vyber> zije(this);
    const auto pumpa = [] {
        QCoreApplication::processEvents();
        QThread::msleep(5);
    };
    while (zije && Vybira) {
        txtZbytek_Cisel->setText(QString::number(Sezeni.Generator.Vyber.Cisla_Potreba));
        Sezeni.Sluzby->Nastav_Status(QString(), QString());
        Nahodna_Volba();
        modTombi::Cekej(*Sezeni.Cas, scrCas->value(), pumpa);
    }
    if (!zije)
        return;
    for (std::size_t i = 0; i < vypnout.size(); ++i)
        vypnout[i]->setEnabled(bylo[i]);
    cmdStop->setText(Okno.Text(u"cmdStop"_qs));
    Obarvi(cmdStop, Qt::green);
    emit Vyber_Bezi(false);
}

// ---- Key, clearing, files ----

void frmGeneruj_Vyber::cmdVyberPodleKlice_Click() {
    std::vector<uint8_t> cisla;
    const Vysledek klic = Vyber_Podle_Klice(Sezeni.Generator.Vyber, Sezeni.Archiv, Sezeni.Nastaveni.Klic_Vyberu, cisla);
    if (!klic.Ok()) {
        Sezeni.Sluzby->Zprava(klic.Zprava);
        return;
    }
    cmdOpakovat_Click();
    for (const uint8_t n : cisla)
        Klikni(n, Barva_Cerna);
    cmdUloz_Soubor_VybranaCisla->setEnabled(true);
}

void frmGeneruj_Vyber::cmdOpakovat_Click() {
    // Only the list in force goes; that of the other mode waits for its turn.
    Ram.Zavri_Okno<frmVypisTipu>();
    Vymaz_Seznam(Sezeni.Generator.Vyber);
    Zapis_Boxy({});
    Sezeni.Sluzby->Nastav_Status(QString(), QString());
    Povol_Pro_Rozpis(std::max(Sezeni.Generator.Cislo_Rozpisu, 0));
    Prekresli_Seznam();
}

void frmGeneruj_Vyber::Uloz_Vybrana_Cisla() {
    const Boxy_Tutovek boxy = Boxy();
    const Zaznam_Vyb zaznam = Zaznam_Z_Vyberu(Sezeni.Generator.Vyber, Sezeni.Generator.Cislo_Rozpisu, boxy);
    Zapis_Boxy(boxy);
    const std::optional<QString> cesta =
        Sezeni.Dialog->Ulozit_Soubor(Filtr_Souboru_Vyb, Okno.Text(u"cmdUloz_Soubor_VybranaCisla.ToolTipText"_qs),
                                     Navrh_Jmena_Vyb(zaznam), Sezeni.Adresar_Dat());
    if (!cesta)
        return;
    if (const Vysledek zapis = Uloz_Soubor_Vyb(*cesta, zaznam); !zapis.Ok())
        Sezeni.Sluzby->Zprava(zapis.Zprava);
}

void frmGeneruj_Vyber::Otevrit_Soubor_Vybrana_Cisla() {
    const std::optional<QString> cesta = Sezeni.Dialog->Otevrit_Soubor(
        Filtr_Souboru_Vyb, Okno.Text(u"Otevri_Soubor_JenCisla.ToolTipText"_qs), Sezeni.Adresar_Dat());
    if (!cesta)
        return;
    // A file that does not hold a record that can be applied changes nothing.
    Zaznam_Vyb zaznam;
    if (const Vysledek cteni = Nacti_Soubor_Vyb(*cesta, zaznam); !cteni.Ok()) {
        Sezeni.Sluzby->Zprava(cteni.Zprava);
        return;
    }
    if (zaznam.Rozpis != Sezeni.Generator.Cislo_Rozpisu && zaznam.Rozpis > 0) {
        // A built-in wheel is chosen again; a wheel of a .rzp file must be read by the user first.
        if (modRozpisy::Tabulka(zaznam.Rozpis) == nullptr) {
            Sezeni.Sluzby->Zprava(u"Soubor \""_qs + QFileInfo(*cesta).fileName() +
                                  u"\" obsahuje čísla pro rozpis ze souboru *.rzp. Zvolte nejprve ten rozpis, "_qs
                                  u"potom čísla otevřete znovu."_qs);
            return;
        }
        emit Zvol_Rozpis(zaznam.Rozpis);
    }
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    Boxy_Tutovek boxy{};
    Pouzij_Zaznam_Vyb(v, zaznam, boxy);
    Zapis_Boxy(boxy);
    if (!v.Rozpis_Aktivni) {
        // Numbers without a wheel: the mode of the file, and the wheel list back at "none".
        Sezeni.Generator.Cislo_Rozpisu = 0;
        Povol_Pro_Rozpis(0);
        emit Volba_Zmenena(v.Volba_Vybrana);
    }
    Prekresli_Seznam();
    Zobraz_Stav(Serad_Seznam(v, Pocet_V_Platnosti(v)));
    cmdUloz_Soubor_VybranaCisla->setEnabled(true);
}

// ---- What the window asks ----

void frmGeneruj_Vyber::Nastav_Rozpis(int cislo_rozpisu) {
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    v.Cisla_Pouzit = v.Cisla_Vynechat = v.Cisla_Rozpisu = {};
    v.Pocet_Pouzit = v.Pocet_Vynechat = v.Pocet_Rozpisu = 0;
    v.Rozpis_Aktivni = cislo_rozpisu > 0;
    if (!v.Rozpis_Aktivni) {
        v.Cisla_Potreba = 49;
        v.Pocet_Tutovek_Rozpisu = 0;
    } else {
        // The wheel's tutovky are picked on the grid like its numbers.
        Zapis_Boxy({});
    }
    Povol_Pro_Rozpis(cislo_rozpisu);
    Prekresli_Seznam();
}

void frmGeneruj_Vyber::Nacti_Cisla(const QString& text) {
    Nacti_Cisla_Z_Textu(Sezeni.Generator.Vyber, text);
    optVybrana_Cisla[1]->setChecked(true);
    Volba_Click(1);
}

int frmGeneruj_Vyber::Zbytek() const {
    return int(Vb::Val(txtZbytek_Cisel->text()));
}

void frmGeneruj_Vyber::Zastav_Vyber() {
    Vybira = false;
}
