#include "app/frmMDITombi_Plocha.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>

namespace frmMDITombi_Plocha {

QSize Prvni_Velikost(const QRect& plocha) {
    return {plocha.width() * 94 / 100, plocha.height() * 92 / 100};
}

void Posouvej(QMdiArea& plocha) {
    plocha.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    plocha.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void Vejdi_Se(const QMdiArea& plocha, QMdiSubWindow& podokno) {
    const QSize misto = plocha.viewport()->size();
    if (misto.isEmpty())
        return;
    const QSize nejmensi = podokno.minimumSize().expandedTo(podokno.minimumSizeHint());
    podokno.resize(podokno.size().boundedTo(misto).expandedTo(nejmensi).boundedTo(podokno.maximumSize()));
    podokno.move(std::clamp(podokno.x(), 0, std::max(0, misto.width() - podokno.width())),
                 std::clamp(podokno.y(), 0, std::max(0, misto.height() - podokno.height())));
}

} // namespace frmMDITombi_Plocha
