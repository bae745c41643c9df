#pragma once
// The status band at the bottom of the main window: the draw day, the order of the chosen draw or
// tip, the count of picked numbers, the active tips and the picked numbers themselves, with the
// progress bar that takes the place of the picked numbers while a long job runs. The fields are
// placed in twips, as the rest of the program measures.

#include <QWidget>

class QFrame;
class QLabel;
class QLineEdit;
class QProgressBar;
class Tabulka_Textu;
struct Relace;

class frmMDITombi_Stav final : public QWidget {
    Q_OBJECT

public:
    frmMDITombi_Stav(Relace& relace, QWidget* parent);

    QLineEdit* txtSportka_Tah;
    QLabel* lblAktivniPoradi;
    QLineEdit* txtPocet_Vybranych;
    QLabel* lblSoubor_Tipu;
    QLineEdit* txtRozpisAktivni;
    QFrame* Picture1;
    QProgressBar* PercentBar1;

    // The tool tips of the fields.
    void Nastav_Texty(const Tabulka_Textu& texty);
    // A new value of the active tips: a number becomes "1 tip", "3 tipy", "5 tipů" (0 empties the
    // field), a text that already says "tip" stands as it is. The stake of the tips follows.
    void Nastav_Soubor_Tipu(const QString& text);
    // The colours of the bar and the border around it, from the settings.
    void Nastav_Vzhled_Prubehu();
    // The busy state: the bar at 0 in place of the picked numbers, or the numbers back.
    void Ukaz_Prubeh(bool ukazat);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    // The picked numbers have changed; windows that show their even and odd counts follow it.
    void Rozpis_Zmenen(const QString& text);

protected:
    void resizeEvent(QResizeEvent* udalost) override;
    bool eventFilter(QObject* objekt, QEvent* udalost) override;

private:
    void Rozmisti();
    void txtRozpisAktivni_Change(const QString& text);
    int Vyska_Pole() const;

    Relace& Sezeni;
};

// Twips of the screen the widget is on, as pixels and back; both go through the one conversion of
// the drawing helpers, so windows and pictures measure alike.
int Pixely(double twipy, const QWidget& okno);
int Twipy(int pixely, const QWidget& okno);
