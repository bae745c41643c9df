#include "app/frmTombi_uvod.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QScreen>
#include <QTimer>

#include <array>
#include <cmath>
#include <numbers>

namespace {

// The window is a rounded rectangle of 335 x 345 whose corners are rounded by 350: rounder than
// the window is wide, so the shape is in fact an ellipse.
constexpr int Sirka = 335;
constexpr int Vyska = 345;
constexpr double Zaobleni = 350;

QPainterPath Tvar() {
    QPainterPath cesta;
    cesta.addRoundedRect(QRectF(0, 0, Sirka, Vyska), std::min(Zaobleni / 2, Sirka / 2.0),
                         std::min(Zaobleni / 2, Vyska / 2.0));
    return cesta;
}

// A drawn ball with its number, lit from the upper left.
void Nakresli_Kouli(QPainter& kreslic, QPointF stred, double polomer, const QColor& barva, int cislo) {
    QRadialGradient svetlo(stred + QPointF(-polomer / 3, -polomer / 3), polomer * 1.3);
    svetlo.setColorAt(0, barva.lighter(170));
    svetlo.setColorAt(0.6, barva);
    svetlo.setColorAt(1, barva.darker(160));
    kreslic.setPen(QPen(barva.darker(200), 1));
    kreslic.setBrush(svetlo);
    kreslic.drawEllipse(stred, polomer, polomer);

    const double bily = polomer * 0.62;
    kreslic.setPen(Qt::NoPen);
    kreslic.setBrush(QColor(255, 255, 255, 235));
    kreslic.drawEllipse(stred, bily, bily);

    QFont pismo(u"DejaVu Sans"_qs);
    pismo.setPixelSize(int(bily * 1.15));
    pismo.setBold(true);
    kreslic.setFont(pismo);
    kreslic.setPen(QColor(40, 40, 40));
    kreslic.drawText(QRectF(stred.x() - bily, stred.y() - bily, 2 * bily, 2 * bily), Qt::AlignCenter,
                     QString::number(cislo));
}

} // namespace

frmTombi_uvod::frmTombi_uvod(const QString& verze, QWidget* hlavni_okno)
    : QWidget(hlavni_okno, Qt::Tool | Qt::FramelessWindowHint), Text_Verze(verze), Casovac(new QTimer(this)) {
    setObjectName(u"frmTombi_uvod"_qs);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(Sirka, Vyska);
    setMask(QRegion(Tvar().toFillPolygon().toPolygon()));

    Casovac->setObjectName(u"Casovac"_qs);
    Casovac->setSingleShot(true);
    Casovac->setInterval(Doba_Zobrazeni_Ms);
    connect(Casovac, &QTimer::timeout, this, &QWidget::close);

    if (hlavni_okno != nullptr) {
        Vycentruj(*hlavni_okno);
    } else if (const QScreen* obrazovka = QGuiApplication::primaryScreen()) {
        Vycentruj_Na(obrazovka->geometry());
    }
}

void frmTombi_uvod::Vycentruj(const QWidget& okno) {
    const QWidget& hlavni = *okno.window();
    if (hlavni.isVisible() || hlavni.testAttribute(Qt::WA_Moved)) {
        Vycentruj_Na(hlavni.frameGeometry());
        return;
    }
    const QScreen* obrazovka = hlavni.screen() != nullptr ? hlavni.screen() : QGuiApplication::primaryScreen();
    if (obrazovka != nullptr)
        Vycentruj_Na(obrazovka->geometry());
}

void frmTombi_uvod::Vycentruj_Na(const QRect& plocha) {
    move(plocha.x() + (plocha.width() - width()) / 2, plocha.y() + (plocha.height() - height()) / 2);
}

void frmTombi_uvod::showEvent(QShowEvent* udalost) {
    QWidget::showEvent(udalost);
    Casovac->start();
}

void frmTombi_uvod::mousePressEvent(QMouseEvent*) {
    close();
}

void frmTombi_uvod::keyPressEvent(QKeyEvent*) {
    close();
}

void frmTombi_uvod::paintEvent(QPaintEvent*) {
    QPainter kreslic(this);
    kreslic.setRenderHint(QPainter::Antialiasing);
    kreslic.setRenderHint(QPainter::TextAntialiasing);

    const QPainterPath tvar = Tvar();
    QRadialGradient pozadi(QPointF(Sirka * 0.4, Vyska * 0.3), Sirka * 0.75);
    pozadi.setColorAt(0, QColor(255, 253, 240));
    pozadi.setColorAt(0.7, QColor(250, 236, 190));
    pozadi.setColorAt(1, QColor(232, 205, 140));
    kreslic.fillPath(tvar, pozadi);
    kreslic.strokePath(tvar, QPen(QColor(150, 20, 30), 6));

    // A thin inner ring, like the edge of a seal.
    QPainterPath vnitrni;
    vnitrni.addEllipse(QRectF(12, 12, Sirka - 24, Vyska - 24));
    kreslic.strokePath(vnitrni, QPen(QColor(150, 20, 30, 120), 1.2));

    QFont nazev(u"DejaVu Serif"_qs);
    nazev.setPixelSize(54);
    nazev.setBold(true);
    nazev.setLetterSpacing(QFont::AbsoluteSpacing, 2);
    kreslic.setFont(nazev);
    kreslic.setPen(QColor(80, 10, 15, 90));
    kreslic.drawText(QRectF(2, 82, Sirka, 70), Qt::AlignCenter, u"TOMBI"_qs);
    kreslic.setPen(QColor(170, 22, 34));
    kreslic.drawText(QRectF(0, 80, Sirka, 70), Qt::AlignCenter, u"TOMBI"_qs);

    QFont hra(u"DejaVu Serif"_qs);
    hra.setPixelSize(26);
    hra.setItalic(true);
    kreslic.setFont(hra);
    kreslic.setPen(QColor(20, 40, 110));
    kreslic.drawText(QRectF(0, 150, Sirka, 36), Qt::AlignCenter, u"Sportka"_qs);

    kreslic.setPen(QPen(QColor(150, 20, 30, 160), 1));
    kreslic.drawLine(QPointF(Sirka * 0.3, 193), QPointF(Sirka * 0.7, 193));

    QFont maly(u"DejaVu Sans"_qs);
    maly.setPixelSize(13);
    kreslic.setFont(maly);
    kreslic.setPen(QColor(70, 60, 40));
    kreslic.drawText(QRectF(0, 199, Sirka, 20), Qt::AlignCenter, u"verze "_qs + Text_Verze);

    // Six balls of one draw on an arc under the name.
    constexpr std::array<int, 6> Cisla{3, 11, 19, 27, 36, 44};
    const std::array<QColor, 6> Barvy{QColor(200, 30, 40), QColor(230, 150, 20), QColor(40, 130, 60),
                                      QColor(30, 80, 170), QColor(130, 50, 150), QColor(200, 30, 40)};
    const QPointF stred_oblouku(Sirka / 2.0, 150);
    constexpr double Polomer_Oblouku = 140;
    for (int i = 0; i < 6; ++i) {
        const double uhel = (125 - i * 14) * std::numbers::pi / 180;
        const QPointF misto =
            stred_oblouku + QPointF(std::cos(uhel) * Polomer_Oblouku, std::sin(uhel) * Polomer_Oblouku);
        Nakresli_Kouli(kreslic, misto, 17, Barvy[i], Cisla[i]);
    }
}
