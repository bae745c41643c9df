#pragma once
// The analysis window: a slice of the first and of the second draws (counted back, or from - to),
// one of ten statistics with its threshold, the report in a text box that can be printed and from
// which numbers are picked with the mouse, and a chart of the last run. Reports can also go to
// _Analyza.txt; the automatic analysis drives this window as a user would.

#include "analysis/Analyza_Tahu.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTextEdit;
class frmAnalyzaTahu_Graf;
class frmMDITombi;
struct Relace;

class frmAnalyzaTahu final : public QWidget {
    Q_OBJECT

public:
    explicit frmAnalyzaTahu(frmMDITombi& ram, QWidget* parent = nullptr);
    ~frmAnalyzaTahu() override;

    // mnuAnalyza and mnuAnalyzaAutomat.
    static void Pripoj_Prikazy(frmMDITombi& ram);

    // Runs the chosen statistic over the chosen slice (cmdOK).
    void cmdOK_Click();
    // Runs the statistics chosen in the settings one after the other, as a user would.
    void Analyza_Automaticky();
    void Nastav_Rozsah();
    void Nastav_Prahy(int n);

    std::array<QRadioButton*, 2> optVolba_Tydnu{};
    QLineEdit* txtPocet_1Tahu;
    QLineEdit* txtPocet_2Tahu;
    QLineEdit* txtOd_Tah1;
    QLineEdit* txtDo_Tah1;
    QLineEdit* txtOd_Tah2;
    QLineEdit* txtDo_Tah2;
    QCheckBox* Check1;
    std::array<QRadioButton*, Pocet_Analyz> optTyp{};
    std::array<QLineEdit*, Pocet_Analyz> Prahy{}; // the threshold box of each statistic, or none
    QCheckBox* chkDodatkova_Cisla;
    std::array<QLabel*, 2> lblPrumer{};
    std::array<QRadioButton*, 2> otpTypVypisu{};
    QTabWidget* Zalozky;
    QTextEdit* RichTextBox1;
    frmAnalyzaTahu_Graf* Graf;
    QLabel* txtVypisAnalyzyTahuPopis;
    QLabel* lblSude;
    QLabel* lblLiche;
    QPushButton* cmdVymaz;
    QPushButton* cmdTisk;
    QPushButton* cmdOK;
    QPushButton* cmdZrusit;

protected:
    bool eventFilter(QObject* objekt, QEvent* udalost) override;

private:
    QWidget* Rozsah();
    QWidget* Typy();
    void optTyp_Click(int index);
    void optVolba_Tydnu_Click(int index);
    void lblPrumer_Click(int index);
    void Pocet_Zmenen(int tah);
    void Od_Zmenen(int tah);
    void Do_Zmenen(int tah);
    void Check1_Click();
    void Zobraz_Vypis();
    void Vyber_Cisla();
    void cmdTisk_Click();
    void cmdVymaz_Click();
    void Zvol_Typ(int index);
    void Nastav_Text(QLineEdit* pole, const QString& text);

    frmMDITombi& Ram;
    Relace& Sezeni;
    QString Vypis_Analyz;
    QString Popis_Okna;
    std::array<int, 2> Celkem_Tahu{};
    int Typ_Analyzy = 0;
    int Rezim_Prumeru = 0;
    bool Nacteno = false;
    bool Meni = false; // a box is written by another's rule: its own rule waits
};
