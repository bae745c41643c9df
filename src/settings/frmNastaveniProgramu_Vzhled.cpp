#include "settings/frmNastaveniProgramu_Vzhled.h"

#include "app/frmKresleni.h"
#include "app/frmOvladani.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

using modNastaveni_Ovladani::Indexem;

namespace {

constexpr int Nejvetsi_Tloustka = 10;

} // namespace

Vzorek_Vzhledu::Vzorek_Vzhledu(const Nastaveni_Zaznam& n, QWidget* parent) : QWidget(parent), N(n) {
    setObjectName(u"Picture2"_qs);
}

QSize Vzorek_Vzhledu::sizeHint() const {
    return {260, 120};
}

void Vzorek_Vzhledu::paintEvent(QPaintEvent*) {
    QPainter k(this);
    k.setRenderHint(QPainter::Antialiasing);
    k.fillRect(rect(), N.Vlastni_Pozadi != 0 ? frmKresleni::Barva_Z_Vb(N.Barva_Pozadi) : palette().window().color());
    // Five cells of a ticket column: a hit, a cross of each kind and a number left alone.
    const int strana = 36, mezera = 12, y = (height() - strana) / 2;
    const QString cisla[] = {u"7"_qs, u"12"_qs, u"23"_qs, u"31"_qs, u"44"_qs};
    for (int i = 0; i < 5; ++i) {
        const QRect pole(mezera + i * (strana + mezera), y, strana, strana);
        k.fillRect(pole, i == 0 ? frmKresleni::Barva_Z_Vb(N.Barva_Zasahu) : QColor(Qt::white));
        k.setPen(QPen(QColor(200, 40, 40), 1));
        k.drawRect(pole);
        k.setPen(Qt::black);
        k.drawText(pole, Qt::AlignCenter, cisla[i]);
        if (i == 1 || i == 3) {
            const bool prvni = i == 1;
            k.setPen(QPen(frmKresleni::Barva_Z_Vb(prvni ? N.Barva_Krizku_1 : N.Barva_Krizku_2),
                          prvni ? N.Tloustka_Cary_1 : N.Tloustka_Cary_2));
            const QRect krizek = pole.adjusted(4, 4, -4, -4);
            if (prvni) {
                k.drawLine(krizek.topLeft(), krizek.bottomRight());
                k.drawLine(krizek.bottomLeft(), krizek.topRight());
            } else {
                k.drawRect(krizek);
            }
        }
    }
}

Stranka_Vzhled::Stranka_Vzhled(Nastaveni_Zaznam& kopie, const QString& cesta_programu, QWidget* parent)
    : Stranka_Nastaveni(kopie, parent), cmbPozadi(Prvek(new QComboBox(this), u"cmbPozadi"_qs)),
      chkVypnout(Prvek(new QCheckBox(this), u"chkVypnout"_qs)), chkVlastni(Prvek(new QCheckBox(this), u"chkVlastni"_qs)),
      txtBarva(Prvek(new QLineEdit(this), u"txtBarva"_qs)), cmdBarva(Prvek(new QPushButton(this), u"cmdBarva"_qs)),
      lblBarva(Prvek(new QLabel(this), u"lblBarva"_qs)), lblBarva_Zvolena(Prvek(new QLabel(this), u"lblBarva_Zvolena"_qs)),
      HScroll1(Prvek(new QScrollBar(Qt::Horizontal, this), u"HScroll1"_qs)),
      HScroll2(Prvek(new QScrollBar(Qt::Horizontal, this), u"HScroll2"_qs)), Picture2(nullptr), Nahled(kopie) {
    Picture2 = new Vzorek_Vzhledu(Nahled, this);
    cmbPozadi->addItem(QString());
    cmbPozadi->addItems(QDir(cesta_programu).entryList({u"*.jpg"_qs, u"*.JPG"_qs}, QDir::Files, QDir::Name));
    if (cmbPozadi->findText(kopie.Obrazek_Pozadi) < 0 && !kopie.Obrazek_Pozadi.isEmpty())
        cmbPozadi->addItem(kopie.Obrazek_Pozadi);
    cmbPozadi->setCurrentText(kopie.Obrazek_Pozadi);
    chkVypnout->setChecked(kopie.Bez_Pozadi != 0);
    chkVlastni->setChecked(kopie.Vlastni_Pozadi != 0);
    lblBarva->setAutoFillBackground(true);
    lblBarva->setMinimumSize(60, 24);
    txtBarva->setInputMask(u"\\#HHHHHH"_qs);
    for (auto [posuvnik, hodnota] : {std::pair{HScroll1, kopie.Tloustka_Cary_1}, std::pair{HScroll2, kopie.Tloustka_Cary_2}}) {
        posuvnik->setRange(1, Nejvetsi_Tloustka);
        posuvnik->setValue(std::clamp<int>(hodnota, 1, Nejvetsi_Tloustka));
        posuvnik->setMinimumWidth(120);
    }
    Nahled.Tloustka_Cary_1 = uint8_t(HScroll1->value());
    Nahled.Tloustka_Cary_2 = uint8_t(HScroll2->value());

    auto* pozadi = Prvek(new QGroupBox(this), u"Frame_Pozadi"_qs);
    auto* formular = new QFormLayout(pozadi);
    formular->addRow(Okno().Text(u"Label_Pozadi"_qs), cmbPozadi);
    formular->addRow(chkVypnout);
    formular->addRow(chkVlastni);
    auto* barvy = Prvek(new QGroupBox(this), u"Frame_Barvy"_qs);
    auto* mrizka = new QGridLayout(barvy);
    for (std::size_t i = 0; i < optGrafika_Volba.size(); ++i) {
        optGrafika_Volba[i] = Prvek(new QRadioButton(barvy), Indexem(u"optGrafika_Volba"_qs, int(i)));
        mrizka->addWidget(optGrafika_Volba[i], int(i) / 2, int(i) % 2);
        connect(optGrafika_Volba[i], &QRadioButton::toggled, this, [this](bool zapnuto) {
            if (zapnuto)
                Ukaz_Barvu();
        });
    }
    auto* barva = new QHBoxLayout;
    barva->addWidget(lblBarva_Zvolena);
    barva->addWidget(lblBarva);
    barva->addWidget(txtBarva);
    barva->addWidget(cmdBarva);
    barva->addStretch();
    mrizka->addLayout(barva, 2, 0, 1, 2);
    auto* cary = Prvek(new QGroupBox(this), u"Frame_Cary"_qs);
    auto* sily = new QGridLayout(cary);
    for (int i = 0; i < 2; ++i) {
        txtTloustka_Cary[std::size_t(i)] = Prvek(new QLabel(cary), Indexem(u"txtTloustka_Cary"_qs, i));
        sily->addWidget(new QLabel(Okno().Text(Indexem(u"Label_Cara"_qs, i)), cary), i, 0);
        sily->addWidget(i == 0 ? HScroll1 : HScroll2, i, 1);
        sily->addWidget(txtTloustka_Cary[std::size_t(i)], i, 2);
    }
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addWidget(pozadi);
    rozlozeni->addWidget(barvy);
    rozlozeni->addWidget(cary);
    rozlozeni->addWidget(Picture2);
    rozlozeni->addStretch();

    connect(chkVlastni, &QCheckBox::toggled, this, &Stranka_Vzhled::Obnov);
    connect(HScroll1, &QScrollBar::valueChanged, this, &Stranka_Vzhled::Obnov);
    connect(HScroll2, &QScrollBar::valueChanged, this, &Stranka_Vzhled::Obnov);
    connect(txtBarva, &QLineEdit::textEdited, this, [this](const QString& text) {
        const QColor barva(text);
        if (text.size() == 7 && barva.isValid()) {
            Zvolena_Barva() = frmKresleni::Barva_Do_Vb(barva);
            Obnov();
        }
    });
    connect(cmdBarva, &QPushButton::clicked, this, [this] {
        const QColor barva = QColorDialog::getColor(frmKresleni::Barva_Z_Vb(Zvolena_Barva()), this);
        if (barva.isValid()) {
            Zvolena_Barva() = frmKresleni::Barva_Do_Vb(barva);
            Ukaz_Barvu();
        }
    });
    optGrafika_Volba[std::size_t(std::clamp<int>(kopie.Grafika_Volba, 0, 3))]->setChecked(true);
    Ukaz_Barvu();
}

int32_t& Stranka_Vzhled::Zvolena_Barva() {
    int32_t* barvy[] = {&Nahled.Barva_Pozadi, &Nahled.Barva_Zasahu, &Nahled.Barva_Krizku_1, &Nahled.Barva_Krizku_2};
    for (std::size_t i = 0; i < optGrafika_Volba.size(); ++i)
        if (optGrafika_Volba[i]->isChecked())
            return *barvy[i];
    return Nahled.Barva_Pozadi;
}

void Stranka_Vzhled::Ukaz_Barvu() {
    for (std::size_t i = 0; i < optGrafika_Volba.size(); ++i)
        if (optGrafika_Volba[i]->isChecked())
            lblBarva_Zvolena->setText(optGrafika_Volba[i]->text().remove(u'&'));
    txtBarva->setText(frmKresleni::Barva_Z_Vb(Zvolena_Barva()).name().toUpper());
    Obnov();
}

void Stranka_Vzhled::Obnov() {
    QPalette paleta = lblBarva->palette();
    paleta.setColor(QPalette::Window, frmKresleni::Barva_Z_Vb(Zvolena_Barva()));
    lblBarva->setPalette(paleta);
    Nahled.Vlastni_Pozadi = chkVlastni->isChecked() ? 1 : 0;
    Nahled.Tloustka_Cary_1 = uint8_t(HScroll1->value());
    Nahled.Tloustka_Cary_2 = uint8_t(HScroll2->value());
    txtTloustka_Cary[0]->setText(QString::number(HScroll1->value()));
    txtTloustka_Cary[1]->setText(QString::number(HScroll2->value()));
    Picture2->update();
}

void Stranka_Vzhled::Uloz() {
    Kopie.Obrazek_Pozadi = cmbPozadi->currentText();
    Kopie.Bez_Pozadi = chkVypnout->isChecked() ? 1 : 0;
    Kopie.Vlastni_Pozadi = chkVlastni->isChecked() ? 1 : 0;
    Kopie.Barva_Pozadi = Nahled.Barva_Pozadi;
    Kopie.Barva_Zasahu = Nahled.Barva_Zasahu;
    Kopie.Barva_Krizku_1 = Nahled.Barva_Krizku_1;
    Kopie.Barva_Krizku_2 = Nahled.Barva_Krizku_2;
    Kopie.Tloustka_Cary_1 = uint8_t(HScroll1->value());
    Kopie.Tloustka_Cary_2 = uint8_t(HScroll2->value());
    for (std::size_t i = 0; i < optGrafika_Volba.size(); ++i)
        if (optGrafika_Volba[i]->isChecked())
            Kopie.Grafika_Volba = uint8_t(i);
}
