#pragma once
// The first panel of the tip list, "Analýza on line": for each number clicked on the ticket picture
// while a tip is entered by hand, how many tips already hold it, how many listed tips share 3 to 6
// numbers with the tip so far, and how often and how long ago the number was drawn.

#include <QWidget>
#include <array>

class QGroupBox;
class QLabel;
class QPushButton;
struct Relace;

class frmVypisTipu_Analyza final : public QWidget {
    Q_OBJECT

public:
    frmVypisTipu_Analyza(Relace& sezeni, QWidget* parent = nullptr);
    ~frmVypisTipu_Analyza() override;

    // The number `cislo` was clicked; `vybrana_cisla` holds the numbers of the tip being entered,
    // " n1 n2 ..". Shows the tips with the number, the matches with the listed tips (when some are
    // listed) and the number's history in the draws of the settings' range.
    void Klik_Cisla(int cislo, const QString& vybrana_cisla);
    // A tip was written: the counts of tips are emptied.
    void Vycisti();

    QGroupBox* fraAnalyza_On_Line;
    QLabel* Label11; // "Číslo v aktuálních tipech použito již"
    QLabel* lblShoda;
    QLabel* Label15;                  // "Cena"
    QLabel* Label19;                  // the tiers, fifth to first
    QLabel* Label21;                  // "počet"
    std::array<QLabel*, 4> lblCena{}; // tips sharing 3, 4, 5, 6 numbers
    QGroupBox* Frame7;                // "v datech tahů - " weeks " tahů zpět"
    QLabel* Label17;                  // the two draws
    QLabel* Label18;                  // "celkem losováno"
    QLabel* Label14;                  // "naposled taženo před"
    QLabel* lblCelkem_Los_1Tah;
    QLabel* lblCelkem_Los_2Tah;
    QLabel* lblNaposled_1tah;
    QLabel* lblNaposled_2tah;
    QPushButton* cmdOK; // cmdOK(2); the window connects it

private:
    // A value above 0 stands on the tool-tip colour; anything else empties the label.
    void Zobraz(QLabel* popisek, const QString& text);

    Relace& Sezeni;
};
