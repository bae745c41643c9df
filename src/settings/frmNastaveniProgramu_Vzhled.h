#pragma once
// Page 1 of the settings: the background of the inner area (a picture of the program's folder, or
// a colour of one's own), the colours of a hit and of the two crosses, and the widths of the
// crosses' lines, all shown at once on a sample.

#include "settings/frmNastaveniProgramu.h"

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;

// Picture2: a piece of a ticket column in the chosen colours and widths.
class Vzorek_Vzhledu final : public QWidget {
public:
    explicit Vzorek_Vzhledu(const Nastaveni_Zaznam& n, QWidget* parent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* udalost) override;

private:
    const Nastaveni_Zaznam& N;
};

class Stranka_Vzhled final : public Stranka_Nastaveni {
    Q_OBJECT

public:
    Stranka_Vzhled(Nastaveni_Zaznam& kopie, const QString& cesta_programu, QWidget* parent);
    void Uloz() override;

    QComboBox* cmbPozadi;
    QCheckBox* chkVypnout;
    QCheckBox* chkVlastni;
    std::array<QRadioButton*, 4> optGrafika_Volba{}; // background, hit, cross 1, cross 2
    QLineEdit* txtBarva;                             // "#RRGGBB" of the chosen colour
    QPushButton* cmdBarva;
    QLabel* lblBarva;
    QLabel* lblBarva_Zvolena;
    QScrollBar* HScroll1; // width of the first cross
    QScrollBar* HScroll2; // width of the second cross
    std::array<QLabel*, 2> txtTloustka_Cary{};
    Vzorek_Vzhledu* Picture2;

private:
    int32_t& Zvolena_Barva();
    void Ukaz_Barvu();
    void Obnov();

    // The page's own values, shown on the sample as they change.
    Nastaveni_Zaznam Nahled;
};
