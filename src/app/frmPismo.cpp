#include "app/frmPismo.h"

#include "app/frmKresleni.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFontInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace {

// The colours in the order of the Windows font dialog, by their index in the palette of the crosses.
const std::array<std::pair<int, const char16_t*>, 16> Barvy{{
    {0, u"Černá"},
    {4, u"Tmavě červená"},
    {2, u"Tmavě zelená"},
    {6, u"Olivová"},
    {1, u"Tmavě modrá"},
    {5, u"Fialová"},
    {3, u"Modrozelená"},
    {8, u"Šedá"},
    {7, u"Stříbrná"},
    {12, u"Červená"},
    {10, u"Zelená"},
    {14, u"Žlutá"},
    {9, u"Modrá"},
    {13, u"Purpurová"},
    {11, u"Azurová"},
    {15, u"Bílá"},
}};

// The font as it really shows: the substitute of a family that is not installed ("MS Sans Serif" of
// old settings) and the style by its name. Without the name the font dialog may mark a slanted
// style of the family as the current one.
QFont Skutecne(const QFont& pismo) {
    const QFontInfo info(pismo);
    QFont skutecne = pismo;
    skutecne.setFamily(info.family());
    skutecne.setStyleName(info.styleName());
    return skutecne;
}

QIcon Vzornik(const QColor& barva) {
    QPixmap obrazek(16, 16);
    obrazek.fill(Qt::transparent);
    QPainter kreslic(&obrazek);
    kreslic.setPen(QColor(96, 96, 96));
    kreslic.setBrush(barva);
    kreslic.drawRect(1, 2, 13, 11);
    return QIcon(obrazek);
}

} // namespace

frmPismo::frmPismo(const QFont& pismo, const QColor& barva, QWidget* parent)
    : QDialog(parent), dlgPismo(new QFontDialog(Skutecne(pismo), this)), cboBarva(new QComboBox(this)) {
    setObjectName(u"frmPismo"_qs);
    setWindowTitle(u"Písmo"_qs);

    // The font dialog as a part of this one: no buttons and no window of its own.
    dlgPismo->setObjectName(u"dlgPismo"_qs);
    dlgPismo->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
    dlgPismo->setWindowFlags(Qt::Widget);
    // The sample line is the only line edit inside a group box; it shows the colour too.
    for (const QGroupBox* skupina : dlgPismo->findChildren<QGroupBox*>())
        if (auto* pole = skupina->findChild<QLineEdit*>(); pole != nullptr && Vzorek == nullptr)
            Vzorek = pole;

    cboBarva->setObjectName(u"cboBarva"_qs);
    for (const auto& [index, nazev] : Barvy) {
        const QColor odstin = frmKresleni::Barva_Palety(index);
        cboBarva->addItem(Vzornik(odstin), QString::fromUtf16(nazev), odstin);
    }
    cboBarva->addItem(u"Vlastní…"_qs);
    auto* popis = new QLabel(u"&Barva:"_qs, this);
    popis->setBuddy(cboBarva);

    auto* tlacitka = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    tlacitka->button(QDialogButtonBox::Ok)->setText(u"OK"_qs);
    tlacitka->button(QDialogButtonBox::Cancel)->setText(u"Zrušit"_qs);

    auto* radek = new QHBoxLayout;
    radek->addWidget(popis);
    radek->addWidget(cboBarva);
    radek->addStretch();
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addWidget(dlgPismo, 1);
    rozlozeni->addLayout(radek);
    rozlozeni->addWidget(tlacitka);

    Nastav_Barvu(barva);
    connect(cboBarva, &QComboBox::activated, this, &frmPismo::Po_Volbe_Barvy);
    connect(cboBarva, &QComboBox::currentIndexChanged, this, &frmPismo::Ukaz_Vzorek);
    connect(dlgPismo, &QFontDialog::currentFontChanged, this, &frmPismo::Ukaz_Vzorek);
    // Enter in the font lists and Esc anywhere in the font part end the whole dialog.
    connect(dlgPismo, &QDialog::accepted, this, &QDialog::accept);
    connect(dlgPismo, &QDialog::rejected, this, &QDialog::reject);
    connect(tlacitka, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(tlacitka, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QFont frmPismo::Pismo() const {
    return dlgPismo->currentFont();
}

QColor frmPismo::Barva() const {
    // While "Vlastní…" is only being chosen, the colour before it stands.
    const QVariant data = cboBarva->currentData();
    return (data.isValid() ? data : cboBarva->itemData(Predchozi_Volba)).value<QColor>();
}

void frmPismo::Nastav_Barvu(const QColor& barva) {
    int index = cboBarva->findData(barva);
    if (index < 0) {
        // A colour of its own stands as one item just before "Vlastní…", replacing an earlier one.
        const int vlastni = cboBarva->count() - 1;
        if (vlastni > int(Barvy.size()))
            cboBarva->removeItem(vlastni - 1);
        index = cboBarva->count() - 1;
        cboBarva->insertItem(index, Vzornik(barva), barva.name(QColor::HexRgb).toUpper(), barva);
    }
    cboBarva->setCurrentIndex(index);
    Predchozi_Volba = index;
    Ukaz_Vzorek();
}

void frmPismo::Po_Volbe_Barvy(int index) {
    if (index != cboBarva->count() - 1) {
        Predchozi_Volba = index;
        return;
    }
    const QColor puvodni = cboBarva->itemData(Predchozi_Volba).value<QColor>();
    const QColor nova = QColorDialog::getColor(puvodni, this, u"Barva písma"_qs);
    Nastav_Barvu(nova.isValid() ? nova : puvodni);
}

void frmPismo::Ukaz_Vzorek() {
    const QColor barva = Barva();
    if (Vzorek == nullptr || !barva.isValid())
        return;
    QPalette paleta = Vzorek->palette();
    paleta.setColor(QPalette::Text, barva);
    Vzorek->setPalette(paleta);
}
