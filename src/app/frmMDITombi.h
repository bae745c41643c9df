#pragma once
// The frame of the program: every other window opens inside its MDI area.

#include <QMainWindow>

class QMdiArea;

class frmMDITombi final : public QMainWindow {
    Q_OBJECT

public:
    explicit frmMDITombi(QWidget* parent = nullptr);

    QMdiArea* Plocha() const { return Mdi_Plocha; }

private:
    QMdiArea* Mdi_Plocha;
};
