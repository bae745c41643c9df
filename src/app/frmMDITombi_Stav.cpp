#include "app/frmMDITombi_Stav.h"

#include "analysis/frmVypisAnalyz.h"
#include "app/Relace.h"
#include "app/frmKresleni.h"
#include "app/frmMDITombi.h"
#include "app/modTombi.h"
#include "core/Tabulka_Textu.h"
#include "core/Vb.h"

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>

namespace {

// Places in twips: fields follow one another from the left at gaps of 120, the picked numbers take
// the rest of the width to a margin of 30.
constexpr double Levy_Okraj = 60;
constexpr double Mezera = 120;
constexpr double Pravy_Okraj = 30;
constexpr double Horni_Okraj = 45;
constexpr double Vyska_Pole_Twipy = 285;
constexpr double Sirka_Dne = 1095;
constexpr double Sirka_Poradi = 1215;
constexpr double Sirka_Poctu = 495;
constexpr double Sirka_Tipu = 1335;

QColor Barva(const std::array<int32_t, 3>& rgb) {
    return QColor(std::clamp(rgb[0], 0, 255), std::clamp(rgb[1], 0, 255), std::clamp(rgb[2], 0, 255));
}

QLabel* Pole_Popisu(const QString& jmeno, QWidget* rodic) {
    auto* pole = new QLabel(rodic);
    pole->setObjectName(jmeno);
    pole->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    pole->setAlignment(Qt::AlignCenter);
    return pole;
}

QLineEdit* Textove_Pole(const QString& jmeno, QWidget* rodic) {
    auto* pole = new QLineEdit(rodic);
    pole->setObjectName(jmeno);
    pole->setReadOnly(true);
    pole->setFocusPolicy(Qt::NoFocus);
    return pole;
}

} // namespace

int Pixely(double twipy, const QWidget& okno) {
    return qRound(frmKresleni::Pixely(twipy, okno));
}

int Twipy(int pixely, const QWidget& okno) {
    return qRound(pixely * 1440.0 / frmKresleni::Pixely(1440, okno));
}

frmMDITombi_Stav::frmMDITombi_Stav(Relace& relace, QWidget* parent)
    : QWidget(parent), txtSportka_Tah(Textove_Pole(u"txtSportka_Tah"_qs, this)),
      lblAktivniPoradi(Pole_Popisu(u"lblAktivniPoradi"_qs, this)),
      txtPocet_Vybranych(Textove_Pole(u"txtPocet_Vybranych"_qs, this)),
      lblSoubor_Tipu(Pole_Popisu(u"lblSoubor_Tipu"_qs, this)),
      txtRozpisAktivni(Textove_Pole(u"txtRozpisAktivni"_qs, this)), Picture1(new QFrame(this)),
      PercentBar1(new QProgressBar(Picture1)), Sezeni(relace) {
    setObjectName(u"Stav"_qs);
    txtSportka_Tah->setAlignment(Qt::AlignCenter);
    QFont tucne = txtSportka_Tah->font();
    tucne.setBold(true);
    txtSportka_Tah->setFont(tucne);
    txtPocet_Vybranych->setAlignment(Qt::AlignCenter);
    txtRozpisAktivni->installEventFilter(this);
    connect(txtRozpisAktivni, &QLineEdit::textChanged, this, &frmMDITombi_Stav::txtRozpisAktivni_Change);

    Picture1->setObjectName(u"Picture1"_qs);
    Picture1->hide();
    PercentBar1->setObjectName(u"PercentBar1"_qs);
    PercentBar1->setRange(0, 100);
    PercentBar1->setFormat(u"%p %"_qs);
    PercentBar1->setAlignment(Qt::AlignCenter);
    PercentBar1->installEventFilter(this);
    Nastav_Vzhled_Prubehu();
}

void frmMDITombi_Stav::Nastav_Texty(const Tabulka_Textu& texty) {
    for (QWidget* pole : {static_cast<QWidget*>(lblAktivniPoradi), static_cast<QWidget*>(txtPocet_Vybranych),
                          static_cast<QWidget*>(lblSoubor_Tipu), static_cast<QWidget*>(txtRozpisAktivni)})
        pole->setToolTip(texty.Text(pole->objectName() + u".ToolTipText"_qs));
}

void frmMDITombi_Stav::Nastav_Soubor_Tipu(const QString& text) {
    const QString popis = text.contains(u"tip"_qs) ? text : modTombi::Text_Poctu_Tipu(int(Vb::Val(text)));
    lblSoubor_Tipu->setText(popis);
    // A tip file holds no Šance; the generator adds its part after handing the tips over.
    Sezeni.Tikety.Vklad = Vb::Mena::Z_Korun(Vb::Val(popis) * Sezeni.Nastaveni.Cena_Jednoho_Tipu);
    Sezeni.Tikety.Vklad_Sance = {};
}

void frmMDITombi_Stav::Nastav_Vzhled_Prubehu() {
    const Nastaveni_Zaznam& nastaveni = Sezeni.Nastaveni;
    const QColor popredi = Barva(nastaveni.Barvy_Prubehu_1);
    const QColor pozadi = Barva(nastaveni.Barvy_Prubehu_2);
    // Two equal colours would hide the bar (a fresh tombi.cfg holds black twice): the style's own
    // colours serve then.
    if (popredi == pozadi)
        PercentBar1->setStyleSheet(QString());
    else
        PercentBar1->setStyleSheet(
            u"QProgressBar { border: none; background: %1; color: %3; }"
            u" QProgressBar::chunk { background: %2; }"_qs.arg(pozadi.name(), popredi.name(),
                                                               pozadi.lightness() < 128 ? u"white"_qs : u"black"_qs));
    Picture1->setFrameStyle(nastaveni.Styl_Prubehu == 1 ? QFrame::Box | QFrame::Plain : QFrame::NoFrame);
    Rozmisti();
}

void frmMDITombi_Stav::Ukaz_Prubeh(bool ukazat) {
    PercentBar1->setValue(0);
    txtRozpisAktivni->setVisible(!ukazat);
    Picture1->setVisible(ukazat);
}

int frmMDITombi_Stav::Vyska_Pole() const {
    // The fields keep their 285 twips unless the font asks for more.
    return std::max(Pixely(Vyska_Pole_Twipy, *this), txtRozpisAktivni->sizeHint().height());
}

QSize frmMDITombi_Stav::sizeHint() const {
    return {Pixely(6000, *this), Vyska_Pole() + 2 * Pixely(Horni_Okraj, *this)};
}

QSize frmMDITombi_Stav::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void frmMDITombi_Stav::resizeEvent(QResizeEvent*) {
    Rozmisti();
}

void frmMDITombi_Stav::Rozmisti() {
    const int y = Pixely(Horni_Okraj, *this);
    const int vyska = Vyska_Pole();
    int x = Pixely(Levy_Okraj, *this);
    for (const auto& [pole, sirka] : {std::pair<QWidget*, double>{txtSportka_Tah, Sirka_Dne},
                                      {lblAktivniPoradi, Sirka_Poradi},
                                      {txtPocet_Vybranych, Sirka_Poctu},
                                      {lblSoubor_Tipu, Sirka_Tipu}}) {
        pole->setGeometry(x, y, Pixely(sirka, *this), vyska);
        x += Pixely(sirka + Mezera, *this);
    }
    const int sirka = std::max(0, width() - Pixely(Pravy_Okraj, *this) - x);
    txtRozpisAktivni->setGeometry(x, y, sirka, vyska);
    // The bar lies over the picked numbers, which it replaces while a job runs.
    Picture1->setGeometry(x, y, sirka, vyska);
    PercentBar1->setGeometry(Picture1->contentsRect());
}

bool frmMDITombi_Stav::eventFilter(QObject* objekt, QEvent* udalost) {
    if (udalost->type() == QEvent::MouseButtonPress) {
        if (objekt == txtRozpisAktivni) {
            txtRozpisAktivni->clear();
            txtPocet_Vybranych->clear();
        } else if (objekt == PercentBar1) {
            Sezeni.Nastaveni.Styl_Prubehu = Sezeni.Nastaveni.Styl_Prubehu == 1 ? 0 : 1;
            Nastav_Vzhled_Prubehu();
        }
    }
    return QWidget::eventFilter(objekt, udalost);
}

void frmMDITombi_Stav::txtRozpisAktivni_Change(const QString& text) {
    if (text.isEmpty())
        txtPocet_Vybranych->clear();
    modTombi::Spocitej_Suda_Licha(Sezeni, text);
    emit Rozpis_Zmenen(text);
    // Numbers picked in the generator, the tip list or the draw list are marked in the analysis
    // viewer too, which takes them each followed by a comma: " 5" as " 5,", " 5 12" as "5, 12,".
    if (!Sezeni.Vypis_Cisel ||
        !(Sezeni.Formular_Otevren_Generuj || Sezeni.Formular_Otevren_Tipy || Sezeni.Formular_Otevren_Tahy))
        return;
    const auto* ram = qobject_cast<const frmMDITombi*>(window());
    frmVypisAnalyz* vypis = ram != nullptr ? ram->Najdi_Okno<frmVypisAnalyz>() : nullptr;
    if (vypis == nullptr)
        return;
    vypis->Vyber_Cisla(1, text.size() < 4 ? text + u',' : QString(text.mid(1)).replace(u' ', u", "_qs) + u',');
    // With "SUMA výběru" the picked numbers keep adding up; emptied, the next draw clicked would
    // put its numbers alone into the picked list while the earlier ones stay marked here.
    if (!(Sezeni.Formular_Otevren_Tahy && Sezeni.Suma_Vyberu))
        Sezeni.Vybrana_Cisla.fill(0);
}
