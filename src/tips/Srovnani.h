#pragma once
// The tip file against the archive beside K files of the same size drawn by chance with no filter:
// the file's wins and money next to the mean and the 5th and 95th percentile of the random files,
// where the file ranks among them, and sentences that say what such a rank can and cannot mean.
// In a fair draw every tip has the same expected win, so a file above the random ones was lucky in
// these draws; the report never claims that filters helped.

#include "tips/Vypis_Vyher.h"

#include <QStringList>
#include <functional>

struct Rozlozeni {
    double Prumer = 0;
    double Pet = 0;       // 5th percentile
    double Devadesat = 0; // 95th percentile
};

struct Vysledek_Srovnani {
    Vyhry Vyhry_Souboru{}; // both draws together
    double Penize_Souboru = 0;
    std::array<Rozlozeni, 6> Vyhry_Nahody{}; // by tier, index 0 unused
    Rozlozeni Penize_Nahody;
    int Pocet_Souboru = 0; // random files evaluated (fewer when stopped)
    uint64_t Seminko = 0;
    bool Zastaveno = false;
    // Where the file stands: by money when prizes are set, otherwise by the number of wins.
    bool Podle_Penez = false;
    double Hodnota_Souboru = 0;
    double Prumer_Nahody = 0;
    int Lepsich = 0; // random files that won more than the file
    int Stejnych = 0;
    int Horsich = 0;
    int Poradi() const { return Lepsich + 1; } // among Pocet_Souboru + 1 files, 1 the best
    double Percentil() const { return Pocet_Souboru > 0 ? 100.0 * Horsich / Pocet_Souboru : 0; }
    QStringList Veta; // the Czech report, one sentence a line
};

// `k` random files of the file's number of tips, each from a seed derived from `seminko`, evaluated
// like the file over the range; the money by the prizes of the first and second draw. The progress
// runs over the k + 1 evaluations and a false answer stops after the current one.
Vysledek_Srovnani Srovnej_S_Nahodou(const Zaznam_Tipu& tipy, int pocet_tipu, const Rozsah_Tahu& rozsah,
                                    const std::array<Ceny_Tahu, 2>& ceny, int k, uint64_t seminko,
                                    const Prubeh& prubeh = {});
