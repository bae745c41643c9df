#pragma once
// The chart tab of the analysis window: the numbers of the last run drawn as bars, one set for the
// first draws and one for the second, the average as a line, the picked numbers marked; it can be
// saved as a PNG picture.

#include "analysis/Analyza_Tahu.h"

#include <QWidget>
#include <array>
#include <cstdint>

class QBarSet;
class QChartView;
class QLabel;
class QPushButton;
class QScatterSeries;
struct Relace;

class frmAnalyzaTahu_Graf final : public QWidget {
    Q_OBJECT

public:
    frmAnalyzaTahu_Graf(Relace& sezeni, QWidget* parent = nullptr);

    // The chart of a run; a statistic without one leaves a word that says so.
    void Zobraz(const Graf_Analyzy& graf);
    // The picked numbers (Vybrana_Cisla, index 1..49) stand out where the labels are numbers.
    void Zvyrazni(const std::array<uint8_t, 50>& vybrana);
    // The chart as a PNG file; false with the reason shown when it could not be written.
    bool Uloz_Png(const QString& cesta);

    QChartView* Pohled;
    QLabel* lblBez_Grafu;
    QPushButton* cmdUlozit_Graf;

private:
    Relace& Sezeni;
    Graf_Analyzy Posledni;
    std::array<QBarSet*, 2> Sady{};
    QScatterSeries* Legenda_Vybranych = nullptr; // a legend entry for the picked numbers' colour
};
