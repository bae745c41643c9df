#include "app/frmKresleni.h"

#include "core/pTikety.h"

#include <QIcon>
#include <QPaintDevice>
#include <QPainter>

#include <array>

// The icon lives in the GUI library, which is static: without this the linker would drop it.
// The macro must stand outside any namespace.
static void Nacti_Zdroje_Ikony() {
    static const bool nacteno = [] {
        Q_INIT_RESOURCE(ikona);
        return true;
    }();
    Q_UNUSED(nacteno);
}

namespace frmKresleni {

namespace {

constexpr double Rozestup_Bunek = 347;
constexpr double Okraj_X = 120;
constexpr double Okraj_Y = 130;
constexpr double Velikost_Krizku = 150;
constexpr double Velikost_Ramecku = 200;

QPen Pero(const QColor& barva, int tloustka) {
    return QPen(barva, std::max(tloustka, 1), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// A point in twips on the painter's surface; a painter not yet on one counts 96 dpi.
QPointF Bod(const QPainter& kreslic, double x, double y) {
    const QPaintDevice* plocha = kreslic.device();
    if (plocha == nullptr)
        return {x * 96 / 1440, y * 96 / 1440};
    return {Pixely(x, *plocha), Pixely_Y(y, *plocha)};
}

} // namespace

double Pixely(double twipy, const QPaintDevice& plocha) {
    return twipy * plocha.logicalDpiX() / 1440.0;
}

double Pixely_Y(double twipy, const QPaintDevice& plocha) {
    return twipy * plocha.logicalDpiY() / 1440.0;
}

QColor Barva_Palety(int index) {
    static constexpr std::array<QRgb, 16> Paleta{
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF,
    };
    return QColor::fromRgb(Paleta[static_cast<unsigned>(index) % Paleta.size()]);
}

QColor Barva_Z_Vb(int32_t barva) {
    return QColor(barva & 0xFF, (barva >> 8) & 0xFF, (barva >> 16) & 0xFF);
}

int32_t Barva_Do_Vb(const QColor& barva) {
    const QColor rgb = barva.toRgb();
    return int32_t(rgb.red() | (rgb.green() << 8) | (rgb.blue() << 16));
}

QIcon Ikona_Programu() {
    Nacti_Zdroje_Ikony();
    return QIcon(u":/ikona/tombi.svg"_qs);
}

} // namespace frmKresleni

namespace modTombi {

// The cell geometry, the pen and the palette are the drawing surface's, shared with frmKresleni.
using namespace frmKresleni;

void Nakresli_Krizek(QPainter& kreslic, int cislo, int barva, int tloustka) {
    if (cislo < 1 || cislo > 49)
        return;
    int rad = 0;
    int sloup = 0;
    pTikety::Dej_Rad_Sloup(cislo, rad, sloup);
    const double x = sloup * Rozestup_Bunek + Okraj_X;
    const double y = rad * Rozestup_Bunek + Okraj_Y;

    kreslic.save();
    kreslic.setPen(Pero(Barva_Palety(barva), tloustka));
    kreslic.drawLine(Bod(kreslic, x, y), Bod(kreslic, x + Velikost_Krizku, y + Velikost_Krizku));
    kreslic.drawLine(Bod(kreslic, x + Velikost_Krizku, y), Bod(kreslic, x, y + Velikost_Krizku));
    kreslic.restore();
}

void Nakresli_Ramecek(QPainter& kreslic, double x, double y, const QColor& barva, int druh, int tloustka) {
    kreslic.save();
    kreslic.setPen(Pero(barva, tloustka));
    kreslic.setBrush(Qt::NoBrush);
    const QPointF levy_horni = Bod(kreslic, x, y);
    const QPointF pravy_dolni = Bod(kreslic, x + Velikost_Ramecku, y + Velikost_Ramecku);
    if (druh == 1) {
        kreslic.drawLine(levy_horni, pravy_dolni);
        kreslic.drawLine(QPointF(pravy_dolni.x(), levy_horni.y()), QPointF(levy_horni.x(), pravy_dolni.y()));
    } else if (druh == 2) {
        kreslic.drawRect(QRectF(levy_horni, pravy_dolni));
    }
    kreslic.restore();
}

} // namespace modTombi
