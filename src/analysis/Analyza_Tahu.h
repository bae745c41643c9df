#pragma once
// The ten statistics of the draw analysis, without a window: each reads a slice of the first and
// of the second draws and returns the two texts of its report, "První tah" and "Druhý tah", exactly
// as the analysis window shows them, and the numbers of its chart where a chart fits. The window,
// tombi-cli and the automatic analysis put the title and the texts together.

#include "core/Prubeh.h"
#include "data/Archiv_Tahu.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cmath>
#include <vector>

// One series of the slice: the draws Tahy[Pocet_Tahy - Rozsah_Tahu .. Pocet_Tahy], newest last.
// Read only: a statistic that reorders a row does so in its own copy, so the archive and the
// next run never see it.
struct Rada_Tahu {
    const std::vector<Tah>* Tahy = nullptr; // Tahy_1 or Tahy_2 of the archive, element 0 unused
    int Pocet_Tahy = 0;                     // index of the last draw of the slice
    int Rozsah_Tahu = 0;                    // last index minus first: a slice of n draws has n - 1
};

struct Zadani_Analyzy {
    std::array<Rada_Tahu, 2> Rady; // first draws, second draws
    int Cisel_V_Tahu = 6;          // 7 when the supplementary number counts too
    double Prah = 0;               // Val of the statistic's threshold box
    int Rezim_Prumeru = 0;         // statistic 6: 0 below the average, 1 above it
};

// The numbers a chart draws: one value per label in each series, and the average where it means
// something (NaN otherwise). No labels: the statistic has no chart.
struct Graf_Analyzy {
    QString Nazev;
    QStringList Popisky;
    std::array<std::vector<double>, 2> Hodnoty;
    std::array<double, 2> Prumer{NAN, NAN};
};

// Line ends in the texts are "\n"; the file _Analyza.txt gets CR LF when it is written.
struct Vysledek_Analyzy {
    QString Nadpis; // the statistic's title; the caller appends " včetně dodatkových" when ticked
    QString Text_1; // starts with a line end and "První tah"
    QString Text_2; // the same for "Druhý tah"
    // A run-time failure of the statistic (an index out of range, an overflow): nothing of the run
    // is reported; Chyba_Proces names the statistic as its handler does.
    bool Selhala = false;
    QString Chyba_Proces;
    Graf_Analyzy Graf;
    // The lowest and highest count found in each series (Min_Pocet_1 .. Max_Pocet_2), where the
    // statistic keeps them.
    std::array<int, 2> Min_Pocet{};
    std::array<int, 2> Max_Pocet{};
};

// What the session keeps of the analysis: the slice of the last run (the draw list reads it) and
// whether this session has written its dated head into _Analyza.txt.
struct Stav_Analyzy {
    std::array<int, 2> Pocet_Tahy{};  // the last index of each series of the last run
    std::array<int, 2> Rozsah_Tahu{}; // last minus first
    bool Analyza_Zahlavi = false;
};

// The statistics by the index of optTyp.
enum class Typ_Analyzy {
    Cetnost_Cisel = 0,
    Dvojice_Cisel = 1,
    Trojice_Cisel = 2,
    Interval_Cisla = 3,
    Sloupce_Radky = 4,
    Suda_Licha = 5,
    Prumerne_Tazeno = 6,
    Cetnost_Dodatkovych = 7,
    Dvojice_Cisel_Volne = 8,
    Suma_Tahu = 9,
};
inline constexpr int Pocet_Analyz = 10;

// Frequency and pair statistics.
Vysledek_Analyzy A_Cetnost_Cisel(const Zadani_Analyzy& zadani, const Prubeh& prubeh = {});
Vysledek_Analyzy A_Dvojice_Cisel(const Zadani_Analyzy& zadani, const Prubeh& prubeh = {});
Vysledek_Analyzy A_Trojice_Cisel(const Zadani_Analyzy& zadani, const Prubeh& prubeh = {});
Vysledek_Analyzy A_Cetnost_Dodatkovych(const Zadani_Analyzy& zadani, const Prubeh& prubeh = {});
Vysledek_Analyzy A_Dvojice_Cisel_Volne(const Zadani_Analyzy& zadani, const Prubeh& prubeh = {});
// Rows, columns and diagonals.
Vysledek_Analyzy A_Sloupce_Radky(const Zadani_Analyzy& zadani, const Prubeh& prubeh = {});
// Even and odd, averages, sums and intervals.
Vysledek_Analyzy A_Interval_Cisla(const Zadani_Analyzy& zadani, const Prubeh& prubeh = {});
Vysledek_Analyzy A_Suda_Licha(const Zadani_Analyzy& zadani, const Prubeh& prubeh = {});
Vysledek_Analyzy A_Prumerne_Tazeno(const Zadani_Analyzy& zadani, const Prubeh& prubeh = {});
Vysledek_Analyzy A_Suma_Tahu(const Zadani_Analyzy& zadani, const Prubeh& prubeh = {});

// The statistic of optTyp index `typ` (0..9).
Vysledek_Analyzy Analyzuj(Typ_Analyzy typ, const Zadani_Analyzy& zadani, const Prubeh& prubeh = {});

// What the window and tombi-cli know of each statistic: its name in the window caption, the
// threshold box and its value as the window comes up, and the right margin of the report (twips;
// 0 keeps the margin of the statistic before).
struct Popis_Analyzy {
    QString Nazev;
    QString Prah;          // the box's name, empty when the statistic has none
    double Vychozi_Prah;   // its value before Nastav_Prahy proposes another
    int Okraj;
};
const Popis_Analyzy& Popis(Typ_Analyzy typ);

// The report of a run as the window adds it: the title (with " včetně dodatkových" when the
// supplementary number is ticked), text 1, a line end, text 2 and two line ends.
QString Nadpis_Analyzy(const Vysledek_Analyzy& vysledek, bool dodatkova);
QString Vypis_Behu(const Vysledek_Analyzy& vysledek, bool dodatkova);

// The slice of a series as the window's two kinds of range give it: the newest `pocet` draws of
// `celkem`, or the indices od..do.
Rada_Tahu Rada_Zpetne(const std::vector<Tah>& tahy, int celkem, int pocet);
Rada_Tahu Rada_Od_Do(const std::vector<Tah>& tahy, int od, int do_);
