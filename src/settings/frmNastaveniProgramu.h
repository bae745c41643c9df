#pragma once
// "Nastavení": the settings of the program, a list of pages on the left and the chosen page with
// its heading on the right. The pages work on a copy of the settings record; only OK puts the copy
// in force and writes it, Zrušit leaves everything as it was.

#include "app/frmOvladani.h"
#include "data/Nastaveni.h"

#include <QWidget>
#include <vector>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QStackedWidget;
class frmMDITombi;
struct Relace;

// A page of the settings: it takes its controls from the window's copy of the record on load and
// gives them back with Uloz, on OK.
class Stranka_Nastaveni : public QWidget {
    Q_OBJECT

public:
    Stranka_Nastaveni(Nastaveni_Zaznam& kopie, QWidget* parent);
    virtual void Uloz() = 0;

    // The pages' controls take their names and captions from the settings window's texts.
    static const modNastaveni_Ovladani::Texty_Okna& Okno();
    template <class T> static T* Prvek(T* prvek, const QString& jmeno) { return Okno().Pojmenuj(prvek, jmeno); }
    // A box of digits, at most `znaku` of them, its text selected on entry.
    static QLineEdit* Cislice(QLineEdit* pole, int znaku);

protected:
    // The value of a box of digits; `prazdna` for an empty box.
    static int Cislo(const QLineEdit* pole, int prazdna = 0);
    Nastaveni_Zaznam& Kopie;
};

class frmNastaveniProgramu final : public QWidget {
    Q_OBJECT

public:
    explicit frmNastaveniProgramu(frmMDITombi& ram, QWidget* parent = nullptr);

    // mnuKonfigurace.
    static void Pripoj_Prikazy(frmMDITombi& ram);
    // The page of the given number, as a click on List1 shows it.
    void Ukaz_Stranku(int stranka);
    // A page by its number, for those who drive the window.
    Stranka_Nastaveni* Stranka(int stranka) const;

    QListWidget* List1;
    QLabel* lblNadpis;
    QPushButton* cmdOK;
    QPushButton* cmdClose;

private:
    void cmdOK_Click();

    frmMDITombi& Ram;
    Relace& Sezeni;
    Nastaveni_Zaznam Kopie;
    QStackedWidget* Stranky;
    std::vector<Stranka_Nastaveni*> Seznam_Stranek;
};
