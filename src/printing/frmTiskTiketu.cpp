#include "printing/frmTiskTiketu.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi.h"
#include "app/frmOvladani.h"
#include "core/Dialogy.h"
#include "core/Tabulka_Textu.h"
#include "data/Nastaveni.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QVBoxLayout>

using namespace Tisk_Tiketu;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmTiskTiketu"_qs};
constexpr int Dpi_Hustoty[] = {300, 600, 1200};
constexpr int Pero_Hustoty[] = {6, 9, 12}; // pen width in dots of that density
constexpr double Meritko_Obrazku = 0.1;    // pixels of the picture a twip
constexpr int Pul_Pole = 90;               // half a choice box on the picture

} // namespace

// ---- The picture of the choice boxes ----

frmTiskTiketu_Volby::frmTiskTiketu_Volby(const std::array<bool, Pocet_Voleb + 1>& oznaceno, QWidget* parent)
    : QWidget(parent), Oznaceno(oznaceno) {
    setObjectName(u"pctTiket_Slos"_qs);
    setToolTip(Okno.Text(u"pctTiket_Slos.ToolTipText"_qs));
}

QSize frmTiskTiketu_Volby::sizeHint() const {
    return QSize(int(2400 * Meritko_Obrazku), int(2800 * Meritko_Obrazku));
}

void frmTiskTiketu_Volby::paintEvent(QPaintEvent*) {
    QPainter k(this);
    k.fillRect(rect(), QColor(255, 244, 236));
    k.scale(Meritko_Obrazku, Meritko_Obrazku);
    QFont pismo = font();
    pismo.setPixelSize(int(110 / Meritko_Obrazku / 10));
    k.setFont(pismo);
    const QPen cervene(QColor(200, 40, 40), 12);
    const auto text = [&](int x, int y, const QString& klic) { k.drawText(QPoint(x, y), Okno.Text(klic)); };
    k.setPen(Qt::black);
    text(110, 130, u"Label20"_qs);
    text(300, 330, u"Label17.Streda"_qs);
    text(300, 690, u"Label17.Nedele"_qs);
    text(1680, 230, u"Label21"_qs);
    text(1680, 330, u"Label19"_qs);
    text(300, 1240, u"Label18"_qs);
    text(300, 1370, u"Label22"_qs);
    text(110, 1690, u"Label10"_qs);
    text(1300, 1330, u"Label16"_qs);
    const auto& volby = Volby_Tiketu();
    for (int v = 1; v <= Pocet_Voleb; ++v) {
        const QRect pole(volby[std::size_t(v)].Obrazek_X - Pul_Pole, volby[std::size_t(v)].Obrazek_Y - Pul_Pole,
                         2 * Pul_Pole, 2 * Pul_Pole);
        k.setPen(cervene);
        k.drawRect(pole);
        if (Oznaceno[std::size_t(v)]) {
            k.setPen(QPen(Qt::black, 22));
            k.drawLine(pole.topLeft(), pole.bottomRight());
            k.drawLine(pole.bottomLeft(), pole.topRight());
        }
    }
}

void frmTiskTiketu_Volby::mousePressEvent(QMouseEvent* udalost) {
    int volba = 0;
    bool nalezeno = false;
    pTikety::Volba_Slosovani_ATD(udalost->position().x() / Meritko_Obrazku, udalost->position().y() / Meritko_Obrazku,
                                 volba, nalezeno);
    if (nalezeno)
        emit Klik(volba);
}

// ---- The window ----

frmTiskTiketu::frmTiskTiketu(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), pctTiket_Slos(new frmTiskTiketu_Volby(Oznaceno, this)),
      txtOsa_X(Okno.Pojmenuj(new QLineEdit(u"0"_qs, this), u"txtOsa_X"_qs)),
      txtOsa_Y(Okno.Pojmenuj(new QLineEdit(u"0"_qs, this), u"txtOsa_Y"_qs)),
      cmdTest(Okno.Pojmenuj(new QPushButton(this), u"cmdTest"_qs)),
      cmdKalibrace(Okno.Pojmenuj(new QPushButton(this), u"cmdKalibrace"_qs)),
      Command1(Okno.Pojmenuj(new QPushButton(this), u"Command1"_qs)),
      Check2(Okno.Pojmenuj(new QCheckBox(this), u"Check2"_qs)),
      txtAktualni_Tiket(Okno.Pojmenuj(new QLineEdit(this), u"txtAktualni_Tiket"_qs)),
      txtPredposledni_Tiket(Okno.Pojmenuj(new QLineEdit(this), u"txtPredposledni_Tiket"_qs)),
      txtPocet_Tiketu(Okno.Pojmenuj(new QLineEdit(this), u"txtPocet_Tiketu"_qs)),
      txtPocet_Tisknout(Okno.Pojmenuj(new QLineEdit(this), u"txtPocet_Tisknout"_qs)),
      cmdTisk(Okno.Pojmenuj(new QPushButton(this), u"cmdTisk"_qs)),
      Command3(Okno.Pojmenuj(new QPushButton(this), u"Command3"_qs)),
      Command2(Okno.Pojmenuj(new QPushButton(this), u"Command2"_qs)),
      cmdNahled(Okno.Pojmenuj(new QPushButton(this), u"cmdNahled"_qs)),
      Label15(Okno.Pojmenuj(new QLabel(this), u"Label15"_qs)), Ram(ram), Sezeni(ram.Sezeni()) {
    setObjectName(Okno.Jmeno);
    setWindowTitle(Tabulka_Textu::Programu().Text(Okno.Jmeno));
    const Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    // A stored place of 0 is none: the defaults and 600 dpi.
    if (n.Tisk_Posun_X != 0 && n.Tisk_Posun_Y != 0) {
        Poloha.Zaklad_X = n.Tisk_Posun_X;
        Poloha.Zaklad_Y = n.Tisk_Posun_Y;
        Hustota_Index = std::clamp<int>(n.Tisk_Posun_Z, 0, 2);
    }
    Oznaceno = Volby_Pri_Nacteni(Sezeni.Tikety.Den_Tahu == 1, Sezeni.Generator.Stav_Sance);
    const Zaznam_Tipu& z = Sezeni.Tipy.Soubor_Tipu;
    txtPocet_Tiketu->setText(QString::number(z.Pocet_Tiketu));
    txtPocet_Tiketu->setReadOnly(true);
    txtPredposledni_Tiket->setReadOnly(true);
    txtAktualni_Tiket->setText(u"1"_qs);
    txtPocet_Tisknout->setText(QString::number(std::max(z.Pocet_Tiketu - 1, 0)));
    for (QLineEdit* pole : {txtOsa_X, txtOsa_Y, txtAktualni_Tiket, txtPocet_Tisknout})
        pole->setMaximumWidth(fontMetrics().horizontalAdvance(u"-0000"_qs) + 12);

    auto* vlevo = new QVBoxLayout;
    vlevo->addWidget(pctTiket_Slos);
    vlevo->addWidget(Label15);
    vlevo->addStretch();
    auto* vpravo = new QVBoxLayout;
    vpravo->addWidget(Posuv());
    vpravo->addWidget(Check2);
    vpravo->addWidget(Tikety());
    vpravo->addWidget(cmdNahled);
    vpravo->addStretch();
    auto* rozlozeni = new QHBoxLayout(this);
    rozlozeni->addLayout(vlevo);
    rozlozeni->addLayout(vpravo);

    connect(pctTiket_Slos, &frmTiskTiketu_Volby::Klik, this, &frmTiskTiketu::Volba_Click);
    for (auto [pole, posun] : {std::pair{txtOsa_X, &Poloha.Posun_X}, std::pair{txtOsa_Y, &Poloha.Posun_Y}})
        connect(pole, &QLineEdit::textChanged, this, [posun](const QString& text) {
            if (const auto twipy = Posun_Z_Mm(text))
                *posun = *twipy;
        });
    for (std::size_t i = 0; i < Option2.size(); ++i)
        connect(Option2[i], &QRadioButton::toggled, this, [this, i](bool zapnuto) {
            if (zapnuto)
                Hustota_Index = int(i);
        });
    connect(Check2, &QCheckBox::toggled, this,
            [this](bool zapnuto) { Check2->setStyleSheet(zapnuto ? u"background-color: #00ff00"_qs : QString()); });
    connect(txtAktualni_Tiket, &QLineEdit::textChanged, this, &frmTiskTiketu::Aktualni_Zmenen);
    connect(cmdTest, &QPushButton::clicked, this, &frmTiskTiketu::Test_Click);
    connect(Command1, &QPushButton::clicked, this, &frmTiskTiketu::Reset_Click);
    connect(cmdKalibrace, &QPushButton::clicked, this, [this] { Tiskni({Kalibracni_Stranka(Poloha)}); });
    connect(cmdTisk, &QPushButton::clicked, this, [this] {
        if (Pocet_Tipu_V_Souboru(Sezeni.Tipy.Soubor_Tipu) < 1 && !Jen_Volby) {
            Sezeni.Sluzby->Zprava(u"Nejsou žádně tipy pro vyplnění tiketů"_qs);
            close();
            return;
        }
        Tisk(modNastaveni_Ovladani::Cele_Cislo(txtAktualni_Tiket),
             modNastaveni_Ovladani::Cele_Cislo(txtPocet_Tisknout));
        Uloz_Posun();
    });
    connect(Command3, &QPushButton::clicked, this, [this] {
        if (modNastaveni_Ovladani::Cele_Cislo(txtAktualni_Tiket) <= 0)
            Sezeni.Sluzby->Zprava(u"Žádný tisk, nulový počet tiketů !"_qs);
        else
            Tisk(modNastaveni_Ovladani::Cele_Cislo(txtAktualni_Tiket), 0);
    });
    connect(Command2, &QPushButton::clicked, this, [this] {
        if (modNastaveni_Ovladani::Cele_Cislo(txtPredposledni_Tiket) <= 0)
            Sezeni.Sluzby->Zprava(u"Žádný tisk, žádný předposlední tiket !"_qs);
        else
            Tisk(modNastaveni_Ovladani::Cele_Cislo(txtPredposledni_Tiket), 0);
    });
    connect(cmdNahled, &QPushButton::clicked, this, &frmTiskTiketu::Nahled);
    Aktualni_Zmenen();
    modNastaveni_Ovladani::Napoveda(this, u"TiskTik"_qs);
}

QWidget* frmTiskTiketu::Posuv() {
    auto* ramec = Okno.Pojmenuj(new QGroupBox(this), u"Frame1"_qs);
    auto* mrizka = new QGridLayout(ramec);
    mrizka->addWidget(new QLabel(Okno.Text(u"Label_Osa_X"_qs), ramec), 0, 0);
    mrizka->addWidget(txtOsa_X, 0, 1);
    mrizka->addWidget(new QLabel(Okno.Text(u"Label_Mm"_qs), ramec), 0, 2);
    mrizka->addWidget(new QLabel(Okno.Text(u"Label_Osa_Y"_qs), ramec), 1, 0);
    mrizka->addWidget(txtOsa_Y, 1, 1);
    mrizka->addWidget(new QLabel(Okno.Text(u"Label_Mm"_qs), ramec), 1, 2);
    auto* hustota = new QHBoxLayout;
    for (std::size_t i = 0; i < Option2.size(); ++i) {
        Option2[i] = Okno.Pojmenuj(new QRadioButton(ramec), modNastaveni_Ovladani::Indexem(u"Option2"_qs, int(i)));
        hustota->addWidget(Option2[i]);
    }
    hustota->addWidget(new QLabel(Okno.Text(u"Label11"_qs), ramec));
    Option2[std::size_t(Hustota_Index)]->setChecked(true);
    mrizka->addLayout(hustota, 2, 0, 1, 3);
    mrizka->addWidget(cmdTest, 3, 0, 1, 2);
    mrizka->addWidget(Command1, 3, 2);
    mrizka->addWidget(cmdKalibrace, 4, 0, 1, 3);
    return ramec;
}

QWidget* frmTiskTiketu::Tikety() {
    auto* ramec = new QWidget(this);
    auto* formular = new QFormLayout(ramec);
    formular->setContentsMargins(0, 0, 0, 0);
    const auto radek = [&](const QString& popisek, QLineEdit* pole, QPushButton* tlacitko) {
        auto* vedle = new QHBoxLayout;
        vedle->addWidget(pole);
        if (tlacitko)
            vedle->addWidget(tlacitko);
        vedle->addStretch();
        formular->addRow(Okno.Text(popisek), vedle);
    };
    radek(u"Label_Pocet_Tiketu"_qs, txtPocet_Tiketu, nullptr);
    radek(u"Label_Aktualni"_qs, txtAktualni_Tiket, Command3);
    radek(u"Label_Dalsi"_qs, txtPocet_Tisknout, cmdTisk);
    radek(u"Label_Predposledni"_qs, txtPredposledni_Tiket, Command2);
    return ramec;
}

Zadani_Tisku frmTiskTiketu::Zadani() const {
    Zadani_Tisku z;
    z.Poloha = Poloha;
    z.Oznaceno = Oznaceno;
    z.Cisla_Tiketu = Check2->isChecked();
    z.Jen_Volby = Jen_Volby;
    z.Pocet_Tipu_Aktivni = Sezeni.Tipy.Pocet_Tipu_Aktivni;
    return z;
}

bool frmTiskTiketu::Tisk(int od, int pocet) {
    const std::vector<Stranka> stranky = Stranky(Sezeni.Tipy.Soubor_Tipu, od, pocet, Zadani());
    if (stranky.empty() || !Tiskni(stranky))
        return false;
    // The next ticket to print; beyond the last the box returns to the first with its word.
    txtAktualni_Tiket->setText(QString::number(stranky.back().Tiket + 1));
    return true;
}

bool frmTiskTiketu::Tiskni(const std::vector<Stranka>& stranky) {
    if (!Dialog_Ukazan) {
        if (!Sezeni.Dialog->Vybrat_Tiskarnu())
            return false;
        Dialog_Ukazan = true;
    }
    QPrinter& tiskarna = Sezeni.Dialog->Tiskarna();
    // The places are on the whole sheet, not inside the printer's margins.
    const bool cela_strana = tiskarna.fullPage();
    tiskarna.setFullPage(true);
    const auto obnov = qScopeGuard([&] { tiskarna.setFullPage(cela_strana); });
    QPainter kreslic;
    if (!kreslic.begin(&tiskarna)) {
        Sezeni.Sluzby->Zprava(u"Není zapnuta tiskárna !"_qs);
        return false;
    }
    for (std::size_t i = 0; i < stranky.size(); ++i) {
        if (i > 0)
            tiskarna.newPage();
        Kresli(kreslic, tiskarna, stranky[i], false);
    }
    kreslic.end();
    return true;
}

void frmTiskTiketu::Kresli(QPainter& kreslic, const QPrinter& tiskarna, const Stranka& stranka, bool obrys) const {
    const double m = tiskarna.resolution() / 1440.0;
    const auto bod = [m](int x, int y) { return QPointF(x * m, y * m); };
    if (obrys) {
        // The cells of the ten column blocks and the choice boxes, thin and grey, for the preview.
        kreslic.setPen(QPen(QColor(200, 120, 120), 0));
        for (int pasmo = 0; pasmo < 3; ++pasmo)
            for (int blok = 0; blok < (pasmo == 2 ? 2 : 4); ++blok)
                for (int r = 0; r < 10; ++r)
                    for (int s = 0; s < 5; ++s) {
                        const int x = Poloha.Zaklad_X + Sirka_Bloku * blok + Krok_X * s;
                        const int y = Poloha.Zaklad_Y + Vyska_Pasma * pasmo + Krok_Y * r;
                        kreslic.drawRect(QRectF(bod(x - 20, y - 20), bod(x + Rameno + 20, y + Rameno + 20)));
                    }
        for (int v = 1; v <= Pocet_Voleb; ++v) {
            const Volba_Tiketu& volba = Volby_Tiketu()[std::size_t(v)];
            const int x = Poloha.Zaklad_X + volba.Tiket_X, y = Poloha.Zaklad_Y + volba.Tiket_Y;
            kreslic.drawRect(QRectF(bod(x - 20, y - 20), bod(x + Rameno + 20, y + Rameno + 20)));
        }
    }
    // The pen is as wide as the chosen density draws it, whatever the device.
    const double pero = Pero_Hustoty[Hustota_Index] * tiskarna.resolution() / double(Dpi_Hustoty[Hustota_Index]);
    kreslic.setPen(QPen(Qt::black, pero));
    kreslic.setFont(QFont(u"courier"_qs, 10));
    for (const Znacka& z : stranka.Znacky) {
        if (z.Je_Text) {
            kreslic.drawText(bod(z.X, z.Y) + QPointF(0, kreslic.fontMetrics().ascent()), z.Text);
        } else {
            kreslic.drawLine(bod(z.X, z.Y), bod(z.X + Rameno, z.Y + Rameno));
            kreslic.drawLine(bod(z.X, z.Y + Rameno), bod(z.X + Rameno, z.Y));
        }
    }
}

void frmTiskTiketu::Volba_Click(int volba) {
    if (volba < 1 || volba > Pocet_Voleb)
        return;
    bool& pole = Oznaceno[std::size_t(volba)];
    pole = !pole;
    // The system plays and the counts of draws are each one choice.
    for (const auto& [od, do_] : {std::pair{5, 13}, std::pair{14, 17}})
        if (pole && volba >= od && volba <= do_)
            for (int v = od; v <= do_; ++v)
                Oznaceno[std::size_t(v)] = v == volba;
    if (volba == 3 && pole == Sezeni.Generator.Stav_Sance)
        Sezeni.Dialog->Okno_Zpravy(
            Dialogy::Ikona::Informace, u"Upozornění"_qs,
            u"Volba ŠANCE - rozdíl mezi volbou ve form. GENEROANI, tudíž nesouhlasí výpočet vkladu."_qs);
    pctTiket_Slos->update();
    Jen_Volby = false;
    if (volba >= 5 && volba <= 13) {
        Label15->clear();
        for (int v = 5; v <= 13; ++v)
            if (Oznaceno[std::size_t(v)]) {
                Label15->setText(Volby_Tiketu()[std::size_t(v)].Cena);
                Sezeni.Dialog->Okno_Zpravy(
                    Dialogy::Ikona::Vykricnik, u"Upozornění"_qs,
                    u"Zvolena SYSTÉMOVÁ SÁZKA, aktuální soubor tipů bude ignorován,\npo vytištění doplnte do prvního sloupce tiketu příslušný počet čísel"_qs);
                Jen_Volby = true;
            }
    }
}

void frmTiskTiketu::Test_Click() {
    if (!Tiskni({Testovaci_Stranka(Poloha, Check2->isChecked())}))
        return;
    // A test page makes the shift it was printed with the new place of the first cell.
    Poloha = {Poloha.X0(), Poloha.Y0(), 0, 0};
    Uloz_Posun();
    txtOsa_X->setText(u"0"_qs);
    txtOsa_Y->setText(u"0"_qs);
}

void frmTiskTiketu::Reset_Click() {
    Poloha = {};
    txtOsa_X->setText(u"0"_qs);
    txtOsa_Y->setText(u"0"_qs);
    Uloz_Posun();
}

void frmTiskTiketu::Uloz_Posun() {
    if (Sezeni.Registr == nullptr)
        return;
    const Vysledek ulozeni = Nastav_Tisk(Sezeni.Nastaveni, int16_t(Poloha.X0()), int16_t(Poloha.Y0()),
                                         int16_t(Hustota_Index), *Sezeni.Registr);
    if (!ulozeni.Ok())
        Sezeni.Sluzby->Zprava(ulozeni.Zprava);
}

void frmTiskTiketu::Aktualni_Zmenen() {
    const int aktualni = modNastaveni_Ovladani::Cele_Cislo(txtAktualni_Tiket);
    txtPredposledni_Tiket->setText(aktualni > 0 ? QString::number(aktualni - 1) : QString());
    if (aktualni > Sezeni.Tipy.Soubor_Tipu.Pocet_Tiketu) {
        txtAktualni_Tiket->setText(u"1"_qs);
        Sezeni.Sluzby->Zprava(u"Pozor návrat k prvnímu tiketu !"_qs);
    }
}

void frmTiskTiketu::Nahled() {
    QPrinter& tiskarna = Sezeni.Dialog->Tiskarna();
    const bool cela_strana = tiskarna.fullPage();
    tiskarna.setFullPage(true);
    const auto obnov = qScopeGuard([&] { tiskarna.setFullPage(cela_strana); });
    QPrintPreviewDialog nahled(&tiskarna, this);
    connect(&nahled, &QPrintPreviewDialog::paintRequested, this, &frmTiskTiketu::Kresli_Nahled);
    nahled.exec();
}

void frmTiskTiketu::Kresli_Nahled(QPrinter* cil) const {
    QPainter kreslic(cil);
    const std::vector<Stranka> stranky =
        Stranky(Sezeni.Tipy.Soubor_Tipu, modNastaveni_Ovladani::Cele_Cislo(txtAktualni_Tiket),
                modNastaveni_Ovladani::Cele_Cislo(txtPocet_Tisknout), Zadani());
    for (std::size_t i = 0; i < stranky.size(); ++i) {
        if (i > 0)
            cil->newPage();
        Kresli(kreslic, *cil, stranky[i], true);
    }
}

void frmTiskTiketu::Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuTiskTiketu, [&ram] { ram.Otevri_Okno<frmTiskTiketu>(ram); });
}
