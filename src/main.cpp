// Tombi: the desktop program. The frame and its windows live in tombi_gui.
#include "app/frmMDITombi.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setOrganizationName(u"Tombi"_qs);
    QApplication::setApplicationName(u"Tombi"_qs);
    frmMDITombi okno;
    okno.show();
    return QApplication::exec();
}
