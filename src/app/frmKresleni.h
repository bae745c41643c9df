#pragma once
// Marks on the picture of a ticket column: crosses on the numbers of a tip, crosses and frames on
// the drawn numbers. Positions and sizes are twips, as on the paper ticket; the one conversion to
// pixels takes the resolution of the surface drawn on.

#include <QColor>

#include <cstdint>

class QIcon;
class QPaintDevice;
class QPainter;

namespace frmKresleni {

// The picture of one ticket column: 5 x 10 cells of 347 twips and the offset of the first cell's mark.
constexpr double Sirka_Sloupce_Twipy = 5 * 347 + 120;
constexpr double Vyska_Sloupce_Twipy = 10 * 347 + 130;

double Pixely(double twipy, const QPaintDevice& plocha);
double Pixely_Y(double twipy, const QPaintDevice& plocha);

// The classic 16 colours: 0 black, 1 navy ... 14 yellow, 15 white. Other indexes wrap around.
QColor Barva_Palety(int index);

// A colour as the settings keep it, the Windows value 0x00BBGGRR (red in the low byte); the top
// byte is ignored.
QColor Barva_Z_Vb(int32_t barva);
int32_t Barva_Do_Vb(const QColor& barva);

// The program's own icon, drawn as a picture that scales to any size.
QIcon Ikona_Programu();

} // namespace frmKresleni

// The drawing procedures of modTombi: they need a painter, so they live with the windows.
namespace modTombi {

// A cross of 150 x 150 twips in the cell of the number (1..49; other numbers draw nothing),
// with a pen of `tloustka` pixels in the palette colour `barva`.
void Nakresli_Krizek(QPainter& kreslic, int cislo, int barva, int tloustka);

// A mark of 200 x 200 twips with its top left at x, y: druh 1 a cross, druh 2 a frame.
void Nakresli_Ramecek(QPainter& kreslic, double x, double y, const QColor& barva, int druh, int tloustka);

} // namespace modTombi
