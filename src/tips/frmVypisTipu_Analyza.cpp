#include "tips/frmVypisTipu_Analyza.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "core/Vb.h"
#include "app/frmOvladani.h"
#include "tips/Analyza_Tipu.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <span>

using modNastaveni_Ovladani::Pod_Slovy;
using modNastaveni_Ovladani::Prvek;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmVypisTipu"_qs};

QLabel* Hodnota(QWidget* rodic, const QString& jmeno) {
    auto* popisek = Okno.Pojmenuj(new QLabel(rodic), jmeno);
    popisek->setAutoFillBackground(true);
    popisek->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    popisek->setBackgroundRole(QPalette::Window);
    return popisek;
}

} // namespace

frmVypisTipu_Analyza::frmVypisTipu_Analyza(Relace& sezeni, QWidget* parent)
    : QWidget(parent), fraAnalyza_On_Line(Okno.Pojmenuj(new QGroupBox(this), u"fraAnalyza_On_Line"_qs)),
      Label11(Okno.Pojmenuj(new QLabel(this), u"Label11"_qs)), lblShoda(Hodnota(this, u"lblShoda"_qs)),
      Label15(Okno.Pojmenuj(new QLabel(this), u"Label15"_qs)), Label19(Okno.Pojmenuj(new QLabel(this), u"Label19"_qs)),
      Label21(Okno.Pojmenuj(new QLabel(this), u"Label21"_qs)), Frame7(Okno.Pojmenuj(new QGroupBox(this), u"Frame7"_qs)),
      Label17(Okno.Pojmenuj(new QLabel(this), u"Label17"_qs)), Label18(Okno.Pojmenuj(new QLabel(this), u"Label18"_qs)),
      Label14(Okno.Pojmenuj(new QLabel(this), u"Label14"_qs)), lblCelkem_Los_1Tah(Hodnota(this, u"lblCelkem_Los_1Tah"_qs)),
      lblCelkem_Los_2Tah(Hodnota(this, u"lblCelkem_Los_2Tah"_qs)),
      lblNaposled_1tah(Hodnota(this, u"lblNaposled_1tah"_qs)), lblNaposled_2tah(Hodnota(this, u"lblNaposled_2tah"_qs)),
      cmdOK(Okno.Pojmenuj(new QPushButton(this), u"cmdOK(2)"_qs)), Sezeni(sezeni) {
    setObjectName(u"Picture1(0)"_qs);
    for (int i = 0; i < 4; ++i)
        lblCena[std::size_t(i)] = Hodnota(this, u"lblCena("_qs + QString::number(i) + u')');
    fraAnalyza_On_Line->setTitle(Okno.Text(u"fraAnalyza_On_Line"_qs));
    Frame7->setTitle(Okno.Text(u"Frame7"_qs) + QString::number(int(Vb::Val(Sezeni.Nastaveni.Pocet_Tahu_Analyzovat))) +
                     Okno.Text(u"Frame7.Konec"_qs));

    // The tips: the clicked number, then the matches with the tip so far by tier.
    auto* tipy = new QGridLayout(fraAnalyza_On_Line);
    tipy->setVerticalSpacing(4);
    lblShoda->setFixedWidth(fontMetrics().horizontalAdvance(u"00 000"_qs) + 6);
    auto* shoda = new QHBoxLayout;
    shoda->addWidget(Label11);
    shoda->addWidget(lblShoda);
    shoda->addStretch();
    tipy->addLayout(shoda, 0, 0, 1, 2);
    tipy->addWidget(Label15, 1, 0);
    tipy->addWidget(Label19, 1, 1);
    tipy->addWidget(Label21, 2, 0);
    tipy->addWidget(
        Pod_Slovy(fraAnalyza_On_Line, Label19, {u"pátá"_qs, u"čtvrtá"_qs, u"třetí"_qs, u"první"_qs}, lblCena, u"00 000"_qs), 2, 1);
    tipy->setColumnStretch(1, 1);

    // The history of the number in both draws.
    auto* tahy = new QGridLayout(Frame7);
    tahy->setVerticalSpacing(4);
    tahy->addWidget(Label17, 0, 1);
    const std::array<QLabel*, 2> celkem{lblCelkem_Los_1Tah, lblCelkem_Los_2Tah};
    const std::array<QLabel*, 2> naposled{lblNaposled_1tah, lblNaposled_2tah};
    const QStringList sloupce{u"1."_qs, u"2."_qs};
    tahy->addWidget(Label18, 1, 0);
    tahy->addWidget(Pod_Slovy(Frame7, Label17, sloupce, celkem, u"00 000"_qs), 1, 1);
    tahy->addWidget(Label14, 2, 0);
    tahy->addWidget(Pod_Slovy(Frame7, Label17, sloupce, naposled, u"00 000"_qs), 2, 1);
    tahy->setColumnStretch(1, 1);

    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->addWidget(fraAnalyza_On_Line);
    rozlozeni->addWidget(Frame7);
    auto* tlacitko = new QHBoxLayout;
    tlacitko->addStretch();
    tlacitko->addWidget(cmdOK);
    rozlozeni->addLayout(tlacitko);
    rozlozeni->addStretch();

    Vycisti();
    for (QLabel* popisek : {lblCelkem_Los_1Tah, lblCelkem_Los_2Tah, lblNaposled_1tah, lblNaposled_2tah})
        Zobraz(popisek, QString());
}

frmVypisTipu_Analyza::~frmVypisTipu_Analyza() = default;

void frmVypisTipu_Analyza::Klik_Cisla(int cislo, const QString& vybrana_cisla) {
    const Stav_Tipu& tipy = Sezeni.Tipy;
    const QString maska = u"### ###"_qs;
    Zobraz(lblShoda, Vb::Format(modAnalyza_Tipu::Pocet_Tipu_S_Cislem(tipy.Soubor_Tipu, cislo), maska));
    if (tipy.Pocet_Tipu_Celkem > 0) {
        const modAnalyza_Tipu::Shody shody =
            modAnalyza_Tipu::Shoda_S_Tipy(tipy.Soubor_Tipu, tipy.Pocet_Tipu_Celkem, u' ' + vybrana_cisla);
        for (std::size_t i = 0; i < shody.size(); ++i)
            Zobraz(lblCena[i], Vb::Format(shody[i], maska));
    }

    QString posledni_1, posledni_2, pocet_1, pocet_2;
    const Vysledek vysledek =
        Sezeni.Tikety.Analyzuj_Cislo(cislo, int(Vb::Val(Sezeni.Nastaveni.Pocet_Tahu_Analyzovat)), Sezeni.Archiv.Tahy_1,
                                     Sezeni.Archiv.Tahy_2, posledni_1, posledni_2, pocet_1, pocet_2);
    if (!vysledek.Ok()) {
        if (Sezeni.Sluzby != nullptr)
            Sezeni.Sluzby->Zprava(vysledek.Zprava);
        return;
    }
    Zobraz(lblCelkem_Los_1Tah, pocet_1);
    Zobraz(lblCelkem_Los_2Tah, pocet_2);
    Zobraz(lblNaposled_1tah, posledni_1);
    Zobraz(lblNaposled_2tah, posledni_2);
}

void frmVypisTipu_Analyza::Vycisti() {
    for (QLabel* popisek : lblCena)
        Zobraz(popisek, QString());
    Zobraz(lblShoda, QString());
}

void frmVypisTipu_Analyza::Zobraz(QLabel* popisek, const QString& text) {
    const bool kladna = Vb::Val(text) > 0;
    popisek->setText(kladna ? text : QString());
    QPalette paleta = popisek->palette();
    paleta.setColor(QPalette::Window, palette().color(kladna ? QPalette::ToolTipBase : QPalette::Button));
    popisek->setPalette(paleta);
}
