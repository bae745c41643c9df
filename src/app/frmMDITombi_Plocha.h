#pragma once
// How the main window and the windows of its area fit the screen a user has: the size of the
// first start, and windows that shrink to the area or are reached by scrolling it.

#include <QRect>
#include <QSize>

class QMdiArea;
class QMdiSubWindow;

namespace frmMDITombi_Plocha {

// The main window's size when no place is stored: most of the screen's free area, with a rim for
// the system's frame and title.
QSize Prvni_Velikost(const QRect& plocha);

// The area shows scroll bars while a window reaches past its edge.
void Posouvej(QMdiArea& plocha);

// A window new in the area: no larger than the area where it can shrink (down to its smallest
// size), and moved in so that its bottom-right corner shows where it fits.
void Vejdi_Se(const QMdiArea& plocha, QMdiSubWindow& podokno);

} // namespace frmMDITombi_Plocha
