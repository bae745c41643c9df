#include "app/frmMDITombi.h"

#include <QMdiArea>

frmMDITombi::frmMDITombi(QWidget* parent) : QMainWindow(parent), Mdi_Plocha(new QMdiArea(this)) {
    setObjectName(u"frmMDITombi"_qs);
    setWindowTitle(u" TOMBI   "_qs + QStringLiteral(TOMBI_VERZE));
    Mdi_Plocha->setObjectName(u"Plocha"_qs);
    setCentralWidget(Mdi_Plocha);
    resize(900, 650);
}
