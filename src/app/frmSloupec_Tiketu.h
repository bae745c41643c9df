#pragma once
// The picture of one column of the paper ticket: ten rows of five numbers and the empty cell after
// 49, measured in twips as the paper is, with the crosses and frames that the windows put on it.
// A click tells which cell it hit: 1..49, 50 for the empty cell, nothing off the cells.

#include <QColor>
#include <QWidget>

#include <vector>

struct Nastaveni_Zaznam;

class frmSloupec_Tiketu final : public QWidget {
    Q_OBJECT

public:
    explicit frmSloupec_Tiketu(const Nastaveni_Zaznam& nastaveni, QWidget* parent = nullptr);

    // A cross of a tip on the number's cell, in a colour of the classic palette.
    void Pridej_Krizek(int cislo, int barva = 0);
    // A mark of a drawn number with its top left at x, y twips: druh 1 a cross, 2 a frame.
    void Pridej_Ramecek(double x, double y, const QColor& barva, int druh);
    // A circle round the number's cell (a number no tip holds yet).
    void Pridej_Kruh(int cislo);
    void Vycisti();
    bool Je_Prazdny() const { return Znacky.empty(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    // A mouse button went up over a cell; `ctrl` when the Ctrl key was held.
    void Klik(int cislo, Qt::MouseButton tlacitko, bool ctrl);

protected:
    void paintEvent(QPaintEvent* udalost) override;
    void mouseReleaseEvent(QMouseEvent* udalost) override;

private:
    struct Znacka {
        int Cislo = 0; // a cross on this number; 0 for a mark at X, Y
        int Barva = 0;
        double X = 0, Y = 0;
        QColor Barva_Ramecku;
        int Druh = 0;
        bool Kruh = false;
    };
    const Nastaveni_Zaznam& Nastaveni;
    std::vector<Znacka> Znacky;
};
