#include "tips/frmVypisTipu_Vyber.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "core/Vb.h"
#include "app/frmKresleni.h"
#include "app/frmOvladani.h"

#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

using modNastaveni_Ovladani::Indexem;
using modNastaveni_Ovladani::Pod_Slovy;
using modNastaveni_Ovladani::Prvek;
using namespace modAnalyza_Tipu;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmVypisTipu"_qs};
constexpr int32_t Barva_Znacky = 255; // red

QLabel* Pocet(QWidget* rodic, const QString& jmeno) {
    auto* popisek = Okno.Pojmenuj(new QLabel(rodic), jmeno);
    popisek->setAutoFillBackground(true);
    popisek->setAlignment(Qt::AlignCenter);
    return popisek;
}

QHBoxLayout* Vedle(QWidget* a, QWidget* b) {
    auto* radek = new QHBoxLayout;
    radek->addWidget(a);
    radek->addWidget(b);
    radek->addStretch();
    return radek;
}

} // namespace

frmVypisTipu_Vyber::frmVypisTipu_Vyber(Relace& sezeni, QWidget* parent)
    : QWidget(parent), fraVyber_Tipu(Okno.Pojmenuj(new QGroupBox(this), u"fraVyber_Tipu"_qs)),
      Label25(Okno.Pojmenuj(new QLabel(this), u"Label25"_qs)),
      fraSousedni_Cisla(Okno.Pojmenuj(new QGroupBox(this), u"fraSousedni_Cisla"_qs)),
      Label26(Okno.Pojmenuj(new QLabel(this), u"Label26"_qs)), Label24(Okno.Pojmenuj(new QLabel(this), u"Label24"_qs)),
      Label10(Okno.Pojmenuj(new QLabel(this), u"Label10"_qs)), Label16(Okno.Pojmenuj(new QLabel(this), u"Label16"_qs)),
      chkVyloucit_Pary(Okno.Pojmenuj(new QCheckBox(this), u"chkVyloucit_Pary"_qs)),
      lblCisla_Pary(Okno.Pojmenuj(new QLabel(this), u"lblCisla_Pary"_qs)),
      chkPonechat_MaxCis_Ve_Sloupci(Okno.Pojmenuj(new QCheckBox(this), u"chkPonechat_MaxCis_Ve_Sloupci"_qs)),
      txtMax_Ve_Sloupci(Okno.Pojmenuj(new QLineEdit(this), u"txtMax_Ve_Sloupci"_qs)),
      chkCislo_V_Tipu(Okno.Pojmenuj(new QCheckBox(this), u"chkCislo_V_Tipu"_qs)),
      txtCislo_V_Tipu(Okno.Pojmenuj(new QLineEdit(this), u"txtCislo_V_Tipu"_qs)),
      Label4(Okno.Pojmenuj(new QLabel(this), u"Label4"_qs)), lblSude(Okno.Pojmenuj(new QLabel(this), u"lblSude"_qs)),
      lblLiche(Okno.Pojmenuj(new QLabel(this), u"lblLiche"_qs)), cmdOK(Okno.Pojmenuj(new QPushButton(this), u"cmdOK(1)"_qs)),
      Sezeni(sezeni) {
    setObjectName(u"Picture1(1)"_qs);
    for (int i = 0; i < 7; ++i)
        lblPomer_SL[std::size_t(i)] = Pocet(this, Indexem(u"lblPomer_SL"_qs, i));
    for (int i = 0; i < 8; ++i)
        lblSousedni_Cisla[std::size_t(i)] = Pocet(this, Indexem(u"lblSousedni_Cisla"_qs, i));
    fraVyber_Tipu->setTitle(Okno.Text(u"fraVyber_Tipu"_qs));
    fraSousedni_Cisla->setTitle(Okno.Text(u"fraSousedni_Cisla"_qs));
    lblCisla_Pary->setMinimumWidth(fontMetrics().horizontalAdvance(u"0 000"_qs) + 4);
    const int sirka_pole = fontMetrics().horizontalAdvance(u"000"_qs) + 12;
    txtMax_Ve_Sloupci->setMaxLength(1);
    txtMax_Ve_Sloupci->setFixedWidth(sirka_pole);
    modNastaveni_Ovladani::Jen_Cislice(txtMax_Ve_Sloupci);
    // Numbers separated by blanks.
    txtCislo_V_Tipu->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[0-9 ]*"_qs), txtCislo_V_Tipu));
    txtCislo_V_Tipu->setMinimumWidth(4 * sirka_pole);

    auto* vnitrek = new QVBoxLayout(fraVyber_Tipu);
    vnitrek->setSpacing(3);
    vnitrek->addWidget(Label25);
    const QStringList pomery{u"6/0"_qs, u"5/1"_qs, u"4/2"_qs, u"3/3"_qs, u"2/4"_qs, u"1/5"_qs, u"0/6"_qs};
    vnitrek->addWidget(Pod_Slovy(fraVyber_Tipu, Label25, pomery, lblPomer_SL, u"0000"_qs));
    vnitrek->addWidget(Tabulka_Sousednich());
    vnitrek->addLayout(Vedle(chkVyloucit_Pary, lblCisla_Pary));
    vnitrek->addLayout(Vedle(chkPonechat_MaxCis_Ve_Sloupci, txtMax_Ve_Sloupci));
    vnitrek->addLayout(Vedle(chkCislo_V_Tipu, txtCislo_V_Tipu));
    vnitrek->addWidget(Label4);
    const std::array<QLabel*, 2> suda_licha{lblSude, lblLiche};
    vnitrek->addWidget(Pod_Slovy(fraVyber_Tipu, Label4, {u"sudé"_qs, u"liché"_qs}, suda_licha, u"0000"_qs));
    auto* tlacitko = new QHBoxLayout;
    tlacitko->addStretch();
    tlacitko->addWidget(cmdOK);
    vnitrek->addLayout(tlacitko);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->addWidget(fraVyber_Tipu);
    rozlozeni->addStretch();

    for (QLabel* popisek : lblPomer_SL)
        popisek->installEventFilter(this);
    for (QLabel* popisek : lblSousedni_Cisla)
        popisek->installEventFilter(this);
    Label25->installEventFilter(this);
    Label26->installEventFilter(this);

    // The load: marks and boxes from the settings; a stored mark other than 1 is no mark.
    const Nastaveni_Zaznam& nastaveni = Sezeni.Nastaveni;
    std::transform(nastaveni.Vyloucit_Sud_Lich.begin(), nastaveni.Vyloucit_Sud_Lich.end(), Oznacene_Pomery.begin(),
                   [](uint8_t z) { return uint8_t(z == 1); });
    std::transform(nastaveni.Zrus_Tip_Sous_Cis.begin(), nastaveni.Zrus_Tip_Sous_Cis.end(), Oznacene_Sousedni.begin(),
                   [](uint8_t z) { return uint8_t(z == 1); });
    txtMax_Ve_Sloupci->setText(nastaveni.Max_Ve_Sloupci);
    txtCislo_V_Tipu->setText(nastaveni.Cislo_V_Tipu);
    Zobraz(Pomery());
    Zobraz(Sousedni());
    modNastaveni_Ovladani::Zobraz_Suda_Licha(this, Sezeni.Pocet_Sudych, Sezeni.Pocet_Lichych);

    connect(txtMax_Ve_Sloupci, &QLineEdit::textChanged, this,
            [this](const QString& text) { Sezeni.Nastaveni.Max_Ve_Sloupci = text; });
    connect(txtCislo_V_Tipu, &QLineEdit::textChanged, this,
            [this](const QString& text) { Sezeni.Nastaveni.Cislo_V_Tipu = text; });
    connect(chkVyloucit_Pary, &QCheckBox::clicked, this, &frmVypisTipu_Vyber::Zmena_Vyberu);
    for (QCheckBox* volba : {chkPonechat_MaxCis_Ve_Sloupci, chkCislo_V_Tipu})
        connect(volba, &QCheckBox::clicked, this, [this](bool zaskrtnuto) {
            if (zaskrtnuto)
                emit Zmena_Vyberu();
        });
}

frmVypisTipu_Vyber::~frmVypisTipu_Vyber() = default;

QWidget* frmVypisTipu_Vyber::Tabulka_Sousednich() {
    // Rows: one, two, three runs; columns: runs of two to six numbers. Cell i of the table:
    // 0..2 runs of two, 3..4 runs of three, 5..7 one run of four, five, six.
    const QStringList delky{u"dvě"_qs, u"tři"_qs, u"čtyři"_qs, u"pět"_qs, u"šest"_qs};
    const auto& b = lblSousedni_Cisla;
    const std::array<QLabel*, 5> jednou{b[0], b[3], b[5], b[6], b[7]};
    const std::array<QLabel*, 2> dvakrat{b[1], b[4]};
    const std::array<QLabel*, 1> trikrat{b[2]};
    auto* tabulka = new QVBoxLayout(fraSousedni_Cisla);
    tabulka->setSpacing(2);
    tabulka->addWidget(Label26);
    tabulka->addWidget(Pod_Slovy(fraSousedni_Cisla, Label26, delky, jednou, u"0000"_qs, Label24));
    tabulka->addWidget(Pod_Slovy(fraSousedni_Cisla, Label26, delky, dvakrat, u"0000"_qs, Label10));
    tabulka->addWidget(Pod_Slovy(fraSousedni_Cisla, Label26, delky, trikrat, u"0000"_qs, Label16));
    return fraSousedni_Cisla;
}

frmVypisTipu_Vyber::Skupina frmVypisTipu_Vyber::Pomery() {
    return {lblPomer_SL, Oznacene_Pomery, Sezeni.Nastaveni.Vyloucit_Sud_Lich, Pocty_Pomeru};
}

frmVypisTipu_Vyber::Skupina frmVypisTipu_Vyber::Sousedni() {
    return {lblSousedni_Cisla, Oznacene_Sousedni, Sezeni.Nastaveni.Zrus_Tip_Sous_Cis, Pocty_Sousednich};
}

void frmVypisTipu_Vyber::Vypocet_Pomeru() {
    const Zaznam_Tipu& tipy = Sezeni.Tipy.Soubor_Tipu;
    const Vysledek_Paru pary = Analyza_Paru(tipy);
    lblCisla_Pary->setText(Vb::Format(pary.Pocet, u"### ###"));
    if (!pary.Ok())
        Chybi_Setrideni(pary.Zprava);
    Pocty_Pomeru = Analyza_Pomeru(tipy);
    Zobraz(Pomery());
    Pocty_Sousednich = Analyza_Sousednich(tipy);
    Zobraz(Sousedni());
}

bool frmVypisTipu_Vyber::Vyber_Tipy() {
    Prace prace(Sezeni.Sluzby);
    const Prubeh prubeh = prace.Prubeh_Prace();
    Zaznam_Tipu& tipy = Sezeni.Tipy.Soubor_Tipu;
    int16_t& aktivni = Sezeni.Tipy.Pocet_Tipu_Aktivni;
    const auto oznaceno = [](std::span<const uint8_t> znacky) {
        return std::any_of(znacky.begin(), znacky.end(), [](uint8_t z) { return z == 1; });
    };
    bool zmena = false;
    if (oznaceno(Oznacene_Pomery))
        zmena |= Analyza_Pomeru(tipy, aktivni, Oznacene_Pomery, prubeh);
    if (oznaceno(Oznacene_Sousedni))
        zmena |= Analyza_Sousednich(tipy, aktivni, Oznacene_Sousedni, prubeh);
    if (chkVyloucit_Pary->isChecked()) {
        const Vysledek_Paru pary = Analyza_Paru(tipy, aktivni, prubeh);
        if (!pary.Ok()) {
            // The rest of the choice waits for the sort; what went so far stays gone.
            Chybi_Setrideni(pary.Zprava);
            return zmena;
        }
        zmena |= pary.Zmena;
    }
    if (chkCislo_V_Tipu->isChecked())
        zmena |= Odstran_Tipy_S_Cisly(tipy, aktivni, u' ' + txtCislo_V_Tipu->text() + u' ', prubeh);
    if (chkPonechat_MaxCis_Ve_Sloupci->isChecked())
        if (const int limit = int(Vb::Val(txtMax_Ve_Sloupci->text())); limit > 0)
            zmena |= Odstran_Tipy_Nad_Max(tipy, aktivni, limit, prubeh);
    return zmena;
}

bool frmVypisTipu_Vyber::eventFilter(QObject* objekt, QEvent* udalost) {
    if (udalost->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(udalost)->button() == Qt::LeftButton) {
        if (objekt == Label25)
            Prepni_Vse(Pomery());
        else if (objekt == Label26)
            Prepni_Vse(Sousedni());
        for (const Skupina skupina : {Pomery(), Sousedni()}) {
            const auto popisek = std::find(skupina.Popisky.begin(), skupina.Popisky.end(), objekt);
            if (popisek != skupina.Popisky.end())
                Klik(skupina, std::size_t(popisek - skupina.Popisky.begin()));
        }
    }
    return QWidget::eventFilter(objekt, udalost);
}

void frmVypisTipu_Vyber::Klik(Skupina skupina, std::size_t index) {
    if (skupina.Pocty[index] <= 0)
        return;
    uint8_t& znacka = skupina.Znacky[index];
    znacka = znacka == 1 ? 0 : 1;
    Obarvi(skupina, index);
    Uloz(skupina);
    if (znacka == 1)
        emit Zmena_Vyberu();
}

void frmVypisTipu_Vyber::Prepni_Vse(Skupina skupina) {
    // Any red label unmarks the group; otherwise every label with a count is marked.
    bool cervena = false;
    for (std::size_t i = 0; i < skupina.Popisky.size(); ++i)
        cervena = cervena || (skupina.Znacky[i] == 1 && skupina.Pocty[i] > 0);
    bool oznaceno = false;
    for (std::size_t i = 0; i < skupina.Popisky.size(); ++i) {
        if (cervena)
            skupina.Znacky[i] = 0;
        else if (skupina.Pocty[i] > 0) {
            skupina.Znacky[i] = 1;
            oznaceno = true;
        }
        Obarvi(skupina, i);
    }
    Uloz(skupina);
    if (oznaceno)
        emit Zmena_Vyberu();
}

void frmVypisTipu_Vyber::Obarvi(Skupina skupina, std::size_t index) {
    const bool cervena = skupina.Pocty[index] > 0 && skupina.Znacky[index] == 1;
    QLabel* popisek = skupina.Popisky[index];
    QPalette paleta = popisek->palette();
    paleta.setColor(QPalette::Window,
                    cervena ? frmKresleni::Barva_Z_Vb(Barva_Znacky) : palette().color(QPalette::Button));
    popisek->setPalette(paleta);
}

void frmVypisTipu_Vyber::Zobraz(Skupina skupina) {
    for (std::size_t i = 0; i < skupina.Popisky.size(); ++i) {
        skupina.Popisky[i]->setText(skupina.Pocty[i] > 0 ? QString::number(skupina.Pocty[i]) : QString());
        Obarvi(skupina, i);
    }
}

void frmVypisTipu_Vyber::Uloz(Skupina skupina) {
    std::copy(skupina.Znacky.begin(), skupina.Znacky.end(), skupina.Nastaveni.begin());
}

void frmVypisTipu_Vyber::Chybi_Setrideni(const QString& zprava) {
    if (Sezeni.Sluzby != nullptr)
        Sezeni.Sluzby->Zprava(zprava);
    emit Setrideni_Potreba();
}
