#include "generator/frmGeneruj_Vyber.h"

#include "app/Dialogy.h"
#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/Tabulka_Textu.h"
#include "app/Vb.h"
#include "app/frmMDITombi.h"
#include "app/frmOvladani.h"
#include "app/frmSloupec_Tiketu.h"
#include "generator/Soubor_Vyb.h"
#include "generator/Vyber_Cisel.h"
#include "tips/frmVypisTipu.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using modNastaveni_Ovladani::Indexem;

namespace {

const QString Okno = u"frmGeneruj"_qs;

QString Text(const QString& klic) {
    return Tabulka_Textu::Programu().Text(Okno + u'.' + klic);
}

template <class T> T* Pojmenuj(T* prvek, const QString& jmeno) {
    return modNastaveni_Ovladani::Prvek(prvek, Okno, jmeno);
}

void Obarvi(QPushButton* tlacitko, const QColor& barva) {
    tlacitko->setStyleSheet(u"QPushButton { background: %1; color: black; } QPushButton:disabled { color: #606060; }"_qs.arg(barva.name()));
}

} // namespace

frmGeneruj_Vyber::frmGeneruj_Vyber(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), picSloupec(Pojmenuj(new frmSloupec_Tiketu(ram.Sezeni().Nastaveni, this), u"picSloupec"_qs)),
      chkPevna_Tutovka(Pojmenuj(new QCheckBox(this), u"chkPevna_Tutovka"_qs)),
      Command2(Pojmenuj(new QPushButton(this), u"Command2"_qs)), cmdStop(Pojmenuj(new QPushButton(this), u"cmdStop"_qs)),
      scrCas(Pojmenuj(new QScrollBar(Qt::Horizontal, this), u"scrCas"_qs)), lblCas(Pojmenuj(new QLabel(this), u"lblCas"_qs)),
      cmdVyberPodleKlice(Pojmenuj(new QPushButton(this), u"cmdVyberPodleKlice"_qs)),
      cmdZamenitCisla(Pojmenuj(new QPushButton(this), u"cmdZamenitCisla"_qs)),
      Check2(Pojmenuj(new QCheckBox(this), u"Check2"_qs)),
      Otevri_Soubor_JenCisla(Pojmenuj(new QPushButton(this), u"Otevri_Soubor_JenCisla"_qs)),
      cmdUloz_Soubor_VybranaCisla(Pojmenuj(new QPushButton(this), u"cmdUloz_Soubor_VybranaCisla"_qs)),
      cmdOpakovat(Pojmenuj(new QPushButton(this), u"cmdOpakovat"_qs)),
      txtZbytek_Cisel(Pojmenuj(new QLineEdit(this), u"txtZbytek_Cisel"_qs)), Ram(ram), Sezeni(ram.Sezeni()) {
    auto* vlevo = new QVBoxLayout;
    vlevo->addWidget(picSloupec, 0, Qt::AlignHCenter);
    auto* tutovky = new QHBoxLayout;
    auto* lblTutovka = Pojmenuj(new QLabel(this), u"lblTutovka"_qs);
    tutovky->addWidget(lblTutovka);
    const int sirka = fontMetrics().horizontalAdvance(u"000"_qs) + 10;
    for (int i = 0; i < 3; ++i) {
        auto* box = Pojmenuj(new QLineEdit(this), Indexem(u"txtTutovka"_qs, i));
        txtTutovka[std::size_t(i)] = box;
        box->setMaxLength(2);
        box->setMaximumWidth(sirka);
        box->setAlignment(Qt::AlignCenter);
        modNastaveni_Ovladani::Jen_Cislice(box);
        modNastaveni_Ovladani::Vybirej_Pri_Vstupu(box);
        tutovky->addWidget(box);
        connect(box, &QLineEdit::textEdited, this, [box] {
            const double n = Vb::Val(box->text());
            if (!box->text().isEmpty() && (n < 1 || n > 49))
                box->clear();
        });
        connect(box, &QLineEdit::editingFinished, this, [this, i] { Tutovka_Opustena(i); });
    }
    lblTutovka->setBuddy(txtTutovka[0]);
    vlevo->addLayout(tutovky);
    vlevo->addWidget(chkPevna_Tutovka);
    auto* zbyva = new QHBoxLayout;
    zbyva->addWidget(Pojmenuj(new QLabel(this), u"lblZbytek_Cisel"_qs));
    zbyva->addWidget(txtZbytek_Cisel);
    txtZbytek_Cisel->setReadOnly(true);
    txtZbytek_Cisel->setMaximumWidth(sirka);
    txtZbytek_Cisel->setFocusPolicy(Qt::NoFocus);
    zbyva->addStretch();
    vlevo->addLayout(zbyva);
    vlevo->addStretch();

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
    Check2->hide(); // wheels only

    Obnov();
}

frmGeneruj_Vyber::~frmGeneruj_Vyber() {
    Vybira = false;
}

QWidget* frmGeneruj_Vyber::Volby() {
    auto* ramec = Pojmenuj(new QGroupBox(this), u"fraVybrana_Cisla"_qs);
    auto* mrizka = new QGridLayout(ramec);
    for (int i = 0; i < 3; ++i) {
        optVybrana_Cisla[std::size_t(i)] = Pojmenuj(new QRadioButton(ramec), Indexem(u"optVybrana_Cisla"_qs, i));
        connect(optVybrana_Cisla[std::size_t(i)], &QRadioButton::clicked, this, [this, i] { Volba_Click(i); });
    }
    mrizka->addWidget(optVybrana_Cisla[0], 0, 0, 1, 3);
    mrizka->addWidget(optVybrana_Cisla[1], 1, 0);
    mrizka->addWidget(cmdZamenitCisla, 1, 1);
    mrizka->addWidget(optVybrana_Cisla[2], 1, 2);
    cmdZamenitCisla->setMaximumWidth(fontMetrics().horizontalAdvance(u">  <"_qs) + 16);
    return ramec;
}

QWidget* frmGeneruj_Vyber::Rozsahy() {
    auto* ramec = Pojmenuj(new QGroupBox(this), u"fraRozsah_Cisel"_qs);
    auto* mrizka = new QGridLayout(ramec);
    for (int i = 0; i < 4; ++i) {
        optRozsah_Cisel[std::size_t(i)] = Pojmenuj(new QRadioButton(ramec), Indexem(u"optRozsah_Cisel"_qs, i));
        mrizka->addWidget(optRozsah_Cisel[std::size_t(i)], i / 2, i % 2);
        connect(optRozsah_Cisel[std::size_t(i)], &QRadioButton::clicked, this, [this, i] { Rozsah_Click(i); });
    }
    return ramec;
}

QWidget* frmGeneruj_Vyber::Zpusoby() {
    auto* ramec = Pojmenuj(new QGroupBox(this), u"fraZpusob_Vyberu"_qs);
    auto* mrizka = new QGridLayout(ramec);
    for (int i = 0; i < 3; ++i) {
        optZpusob_Vyberu[std::size_t(i)] = Pojmenuj(new QRadioButton(ramec), Indexem(u"optZpusob_Vyberu"_qs, i));
        mrizka->addWidget(optZpusob_Vyberu[std::size_t(i)], i, 0);
        connect(optZpusob_Vyberu[std::size_t(i)], &QRadioButton::clicked, this, [this, i] { Zpusob_Click(i); });
    }
    mrizka->addWidget(Command2, 1, 1);
    mrizka->addWidget(cmdStop, 2, 1);
    scrCas->setRange(1, 4);
    scrCas->setValue(1);
    mrizka->addWidget(scrCas, 3, 0);
    mrizka->addWidget(lblCas, 3, 1);
    lblCas->setText(QString::number(scrCas->value()) + Text(u"lblCas"_qs));
    connect(scrCas, &QScrollBar::valueChanged, this,
            [this](int sekundy) { lblCas->setText(QString::number(sekundy) + Text(u"lblCas"_qs)); });
    connect(Command2, &QPushButton::clicked, this, [this] { Zpusob_Click(1); });
    connect(cmdStop, &QPushButton::clicked, this, &frmGeneruj_Vyber::cmdStop_Click);
    Obarvi(cmdStop, Qt::green);
    cmdStop->setEnabled(false);
    return ramec;
}

// ---- The state of the pools ----

void frmGeneruj_Vyber::Obnov() {
    const Stav_Generatoru& stav = Sezeni.Generator;
    const Vyber_Cisel& v = stav.Vyber;
    for (std::size_t i = 0; i < 3; ++i)
        txtTutovka[i]->setText(stav.Tutovky[i] != 0 ? QString::number(stav.Tutovky[i]) : QString());
    Zapsane = stav.Tutovky;
    const int volba = std::clamp(v.Volba_Vybrana, 0, 2);
    optVybrana_Cisla[std::size_t(volba)]->setChecked(true);
    optZpusob_Vyberu[0]->setChecked(true);
    Nastav_Volbu(volba);
    Prekresli_Seznam();
}

Boxy_Tutovek frmGeneruj_Vyber::Boxy() const {
    Boxy_Tutovek boxy{};
    for (std::size_t i = 0; i < 3; ++i)
        boxy[i] = uint8_t(std::clamp(Vb::Val(txtTutovka[i]->text()), 0.0, 49.0));
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
        emit Tutovky_Zmeneny(int(std::count_if(boxy.begin(), boxy.end(), [](uint8_t n) { return n != 0; })));
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
    for (int i = 1; i <= Pocet_V_Platnosti(v); ++i) {
        const uint8_t n = seznam[i];
        const bool tutovka = std::find(boxy.begin(), boxy.end(), n) != boxy.end();
        picSloupec->Pridej_Krizek(n, tutovka ? Barva_Cervena : Barva_Cerna);
    }
    v.Tutovka_Index = int(std::count_if(boxy.begin(), boxy.end(), [](uint8_t n) { return n != 0; }));
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
    const Boxy_Tutovek boxy = Boxy();
    const bool tutovka = std::find(boxy.begin(), boxy.end(), uint8_t(cislo)) != boxy.end();
    const int barva = tlacitko == Qt::RightButton || tutovka ? Barva_Cervena : Barva_Cerna;
    // Without a pool only tutovky can be set.
    if (optVybrana_Cisla[0]->isChecked() && barva != Barva_Cervena && !Sezeni.Generator.Vyber.Rozpis_Aktivni)
        return;
    Klikni(cislo, barva);
    cmdUloz_Soubor_VybranaCisla->setEnabled(true);
}

void frmGeneruj_Vyber::Tutovka_Opustena(int index) {
    QLineEdit* box = txtTutovka[std::size_t(index)];
    const auto n = uint8_t(std::clamp(Vb::Val(box->text()), 0.0, 49.0));
    if (n == Zapsane[std::size_t(index)])
        return;
    for (int j = 0; j < 3; ++j)
        if (j != index && n != 0 && Vb::Val(txtTutovka[std::size_t(j)]->text()) == n) {
            box->clear();
            Zapis_Boxy(Boxy());
            return;
        }
    Zapis_Boxy(Boxy());
    // The tutovka joins the pool, except where the pool is what to leave out.
    if (n != 0 && !optVybrana_Cisla[2]->isChecked())
        Klikni(n, Barva_Cervena);
    else
        Prekresli_Seznam();
}

// ---- Modes, ranges, ways of picking ----

void frmGeneruj_Vyber::Nastav_Volbu(int index) {
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    v.Volba_Vybrana = index;
    v.Pouzit_Vybrana = index == 1;
    v.Vynechat_Vybrana = index == 2;
    cmdZamenitCisla->setText(Text(index == 2 ? u"cmdZamenitCisla.Vynechat"_qs : u"cmdZamenitCisla.Pouzit"_qs));
    const int rozsah = index == 1 ? Sezeni.Generator.Rozsah_Pouzit : index == 2 ? Sezeni.Generator.Rozsah_Vynechat : 0;
    for (std::size_t i = 0; i < 4; ++i) {
        const QSignalBlocker blokace(optRozsah_Cisel[i]);
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
    (stav.Vyber.Volba_Vybrana == 2 ? stav.Rozsah_Vynechat : stav.Rozsah_Pouzit) = platny;
    optRozsah_Cisel[std::size_t(platny)]->setChecked(true);
    if (stav.Vyber.Rozpis_Aktivni)
        return;
    Boxy_Tutovek boxy = Boxy();
    const Stav_Vyberu vysledek = Vypln_Rozsah(stav.Vyber, platny, boxy);
    Zapis_Boxy(boxy);
    Prekresli_Seznam();
    Zobraz_Stav(vysledek);
}

void frmGeneruj_Vyber::Zpusob_Click(int index) {
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    // A random choice fills a wheel; without one the numbers are picked by hand.
    if (index != 0 && !v.Rozpis_Aktivni) {
        Sezeni.Sluzby->Zprava(u"Vyber čísla ručně ..."_qs);
        optZpusob_Vyberu[0]->setChecked(true);
        cmdStop->setEnabled(false);
        return;
    }
    optZpusob_Vyberu[std::size_t(index)]->setChecked(true);
    cmdStop->setEnabled(index == 2);
    if (index == 1)
        Nahodna_Volba();
}

void frmGeneruj_Vyber::Nahodna_Volba() {
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    Boxy_Tutovek boxy = Boxy();
    const int rozsah = v.Volba_Vybrana == 2 ? Sezeni.Generator.Rozsah_Vynechat : Sezeni.Generator.Rozsah_Pouzit;
    const std::vector<uint8_t> sada = Nahodna_Sada(v, rozsah, boxy, chkPevna_Tutovka->isChecked(), Sezeni.Random);
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
    // The picker: random sets at the interval until the button is pressed again.
    Vybira = true;
    cmdStop->setText(Text(u"cmdStop.Bezi"_qs));
    Obarvi(cmdStop, Qt::red);
    emit Vyber_Bezi(true);
    QList<QWidget*> vypnout{Command2, Otevri_Soubor_JenCisla, cmdUloz_Soubor_VybranaCisla, optZpusob_Vyberu[0],
                            optZpusob_Vyberu[1]};
    for (QRadioButton* rozsah : optRozsah_Cisel)
        vypnout << rozsah;
    for (QWidget* prvek : vypnout)
        prvek->setEnabled(false);
    picSloupec->setEnabled(false);
    while (Vybira) {
        Sezeni.Sluzby->Nastav_Status(QString(), QString());
        Nahodna_Volba();
        QElapsedTimer cekani;
        cekani.start();
        while (Vybira && cekani.elapsed() < qint64(scrCas->value()) * 1000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    for (QWidget* prvek : vypnout)
        prvek->setEnabled(true);
    picSloupec->setEnabled(true);
    cmdStop->setText(Text(u"cmdStop"_qs));
    Obarvi(cmdStop, Qt::green);
    emit Vyber_Bezi(false);
}

// ---- Key, clearing, files ----

void frmGeneruj_Vyber::cmdVyberPodleKlice_Click() {
    std::vector<uint8_t> cisla;
    const Vysledek klic =
        Vyber_Podle_Klice(Sezeni.Generator.Vyber, Sezeni.Archiv, Sezeni.Nastaveni.Klic_Vyberu, cisla);
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
    Ram.Zavri_Okno<frmVypisTipu>();
    Vymaz_Seznam(Sezeni.Generator.Vyber);
    Zapis_Boxy({});
    Sezeni.Sluzby->Nastav_Status(QString(), QString());
    Nastav_Rozpis(Sezeni.Generator.Cislo_Rozpisu);
}

void frmGeneruj_Vyber::Uloz_Vybrana_Cisla() {
    const Zaznam_Vyb zaznam = Zaznam_Z_Vyberu(Sezeni.Generator.Vyber, Sezeni.Generator.Cislo_Rozpisu, Boxy());
    const std::optional<QString> cesta = Sezeni.Dialog->Ulozit_Soubor(
        Filtr_Souboru_Vyb, Text(u"cmdUloz_Soubor_VybranaCisla.ToolTipText"_qs), Navrh_Jmena_Vyb(zaznam),
        Sezeni.Adresar_Dat());
    if (!cesta)
        return;
    if (const Vysledek zapis = Uloz_Soubor_Vyb(*cesta, zaznam); !zapis.Ok())
        Sezeni.Sluzby->Zprava(zapis.Zprava);
}

void frmGeneruj_Vyber::Otevrit_Soubor_Vybrana_Cisla() {
    const std::optional<QString> cesta = Sezeni.Dialog->Otevrit_Soubor(
        Filtr_Souboru_Vyb, Text(u"Otevri_Soubor_JenCisla.ToolTipText"_qs), Sezeni.Adresar_Dat());
    if (!cesta)
        return;
    Zaznam_Vyb zaznam;
    if (const Vysledek cteni = Nacti_Soubor_Vyb(*cesta, zaznam); !cteni.Ok()) {
        Sezeni.Sluzby->Zprava(cteni.Zprava);
        return;
    }
    if (const QString chyba = Chyba_Zaznamu_Vyb(zaznam); !chyba.isEmpty()) {
        Sezeni.Sluzby->Zprava(chyba);
        return;
    }
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    Vymaz_Seznam(v);
    Boxy_Tutovek boxy{};
    Pouzij_Zaznam_Vyb(v, zaznam, boxy);
    Zapis_Boxy(boxy);
    const int volba = std::clamp(v.Volba_Vybrana, 0, 2);
    optVybrana_Cisla[std::size_t(volba)]->setChecked(true);
    Nastav_Volbu(volba);
    emit Volba_Zmenena(volba);
    Prekresli_Seznam();
    Zobraz_Stav(Serad_Seznam(v, Pocet_V_Platnosti(v)));
}

// ---- What the window asks ----

void frmGeneruj_Vyber::Nastav_Rozpis(int cislo_rozpisu) {
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    v.Pocet_Pouzit = 0;
    v.Pocet_Vynechat = 0;
    v.Pocet_Rozpisu = 0;
    v.Rozpis_Aktivni = cislo_rozpisu > 0;
    v.Cisla_Potreba = 49;
    picSloupec->Vycisti();
    for (QRadioButton* volba : optVybrana_Cisla)
        volba->setEnabled(cislo_rozpisu == 0);
    if (cislo_rozpisu == 0) {
        cmdUloz_Soubor_VybranaCisla->setEnabled(false);
        optZpusob_Vyberu[0]->setChecked(true);
        cmdStop->setEnabled(false);
        Nastav_Volbu(std::clamp(v.Volba_Vybrana, 0, 2));
    }
    Check2->setVisible(cislo_rozpisu > 0);
    txtZbytek_Cisel->setText(QString::number(Zbytek_Cisel(v)));
}

void frmGeneruj_Vyber::Nacti_Cisla(const QString& text) {
    Vyber_Cisel& v = Sezeni.Generator.Vyber;
    Nacti_Cisla_Z_Textu(v, text);
    optVybrana_Cisla[1]->setChecked(true);
    Nastav_Volbu(1);
    Prekresli_Seznam();
    Zobraz_Stav(Serad_Seznam(v, Pocet_V_Platnosti(v)));
}

int frmGeneruj_Vyber::Zbytek() const {
    return int(Vb::Val(txtZbytek_Cisel->text()));
}

void frmGeneruj_Vyber::Zastav_Vyber() {
    Vybira = false;
}
