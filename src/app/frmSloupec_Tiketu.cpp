#include "app/frmSloupec_Tiketu.h"

#include "app/frmKresleni.h"
#include "core/pTikety.h"
#include "data/Nastaveni.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr double Bunka = 347;
constexpr double Okraj_X = 120;
constexpr double Okraj_Y = 130;

// The colours of the operator's ticket: a pale paper and red print.
const QColor Papir(255, 246, 240);
const QColor Tisk(200, 40, 50);

} // namespace

frmSloupec_Tiketu::frmSloupec_Tiketu(const Nastaveni_Zaznam& nastaveni, QWidget* parent)
    : QWidget(parent), Nastaveni(nastaveni) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::PointingHandCursor);
}

void frmSloupec_Tiketu::Pridej_Krizek(int cislo, int barva) {
    Znacky.push_back({cislo, barva, 0, 0, {}, 0});
    update();
}

void frmSloupec_Tiketu::Pridej_Ramecek(double x, double y, const QColor& barva, int druh) {
    Znacky.push_back({0, 0, x, y, barva, druh});
    update();
}

void frmSloupec_Tiketu::Pridej_Kruh(int cislo) {
    Znacky.push_back({cislo, 0, 0, 0, {}, 0, true});
    update();
}

void frmSloupec_Tiketu::Vycisti() {
    Znacky.clear();
    update();
}

QSize frmSloupec_Tiketu::sizeHint() const {
    return {qRound(frmKresleni::Pixely(frmKresleni::Sirka_Sloupce_Twipy + 60, *this)),
            qRound(frmKresleni::Pixely_Y(frmKresleni::Vyska_Sloupce_Twipy + 60, *this))};
}

void frmSloupec_Tiketu::paintEvent(QPaintEvent*) {
    QPainter kreslic(this);
    kreslic.setRenderHint(QPainter::Antialiasing);
    kreslic.fillRect(rect(), Papir);
    const auto px = [this](double twipy) { return frmKresleni::Pixely(twipy, *this); };
    const auto py = [this](double twipy) { return frmKresleni::Pixely_Y(twipy, *this); };

    QFont pismo = font();
    pismo.setPixelSize(std::max(7, qRound(py(170))));
    pismo.setBold(true);
    kreslic.setFont(pismo);
    kreslic.setPen(QPen(Tisk, 1));
    for (int cislo = 1; cislo <= 50; ++cislo) {
        int rad = 0, sloup = 0;
        pTikety::Dej_Rad_Sloup(cislo, rad, sloup);
        const QRectF bunka(px(sloup * Bunka + Okraj_X - 60), py(rad * Bunka + Okraj_Y - 60), px(270), py(270));
        kreslic.drawRect(bunka);
        if (cislo < 50)
            kreslic.drawText(bunka, Qt::AlignCenter, QString::number(cislo));
    }
    for (const Znacka& znacka : Znacky) {
        if (znacka.Kruh) {
            int rad = 0, sloup = 0;
            pTikety::Dej_Rad_Sloup(znacka.Cislo, rad, sloup);
            QColor barva = frmKresleni::Barva_Z_Vb(Nastaveni.Barva_Krizku_2);
            kreslic.setPen(QPen(barva, 1));
            barva.setAlpha(60);
            kreslic.setBrush(barva);
            const QPointF stred(px(Bunka * sloup + 200 - 5), py(Bunka * rad + 210 - 15));
            kreslic.drawEllipse(stred, px(130), py(130));
            kreslic.setBrush(Qt::NoBrush);
        } else if (znacka.Cislo > 0)
            modTombi::Nakresli_Krizek(kreslic, znacka.Cislo, znacka.Barva, Nastaveni.Tloustka_Cary_1);
        else
            modTombi::Nakresli_Ramecek(kreslic, znacka.X, znacka.Y, znacka.Barva_Ramecku, znacka.Druh,
                                       Nastaveni.Tloustka_Cary_2);
    }
}

void frmSloupec_Tiketu::mouseReleaseEvent(QMouseEvent* udalost) {
    const QPointF bod = udalost->position();
    const double x = bod.x() * 1440.0 / logicalDpiX();
    const double y = bod.y() * 1440.0 / logicalDpiY();
    pTikety tikety;
    const int cislo = tikety.Cislo_Ve_Sloupci(x, y);
    if (cislo > 0)
        emit Klik(cislo, udalost->button(), udalost->modifiers().testFlag(Qt::ControlModifier));
}
