#pragma once
// Evaluation of wins: which tips won, in which of the five prize tiers, in first and second draws.
// Three questions share the counters: the drawn numbers typed in the boxes against the tips
// (Vyh_Tah_V_Tipech), those numbers taken as a tip against the archive (Vyh_Cisla_V_Tazich), and
// every tip of the file against the archive (Vyh_Soubor_V_Tazich). No window: the third panel of
// the tip list and `tombi-cli evaluate` bind to these.

#include "core/Pole_Od_1.h"
#include "core/Prubeh.h"
#include "data/Archiv_Tahu.h"
#include "data/Soubor_Tipu.h"

#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

// Wins by tier: element t (1..5) counts the wins of tier t, element 0 is unused. 64 bits never wrap.
using Vyhry = std::array<uint64_t, 6>;

// One win: the ticket's number and, in the winning column only, the tier and the draw (1 or 2).
struct Vyhra_Sloupce {
    uint8_t Poradi = 0; // tier 1..5, 0 = no win in this column
    uint8_t Tah = 0;    // 1 or 2
    friend bool operator==(const Vyhra_Sloupce&, const Vyhra_Sloupce&) = default;
};
struct Vyherni_Zaznam {
    int32_t Cislo_Tiketu = 0;
    Pole_Od_1<Vyhra_Sloupce, Sloupcu_Tiketu> Sloupce;
    friend bool operator==(const Vyherni_Zaznam&, const Vyherni_Zaznam&) = default;
};

// The win records are held in memory; beyond this many the file-against-archive run ends with its
// message (the whole Sunday archive against 9,500 tips gives about 600,000).
inline constexpr std::size_t Max_Vyhernich_Zaznamu = 4'000'000;
inline constexpr std::size_t Bez_Zaznamu = 0;
inline const QString Text_Preteceni_Vyher =
    QStringLiteral("Překročena mezní hodnota počtu výher !!! Počet výher není správný.");
inline const QString Text_Malo_Cisel = QStringLiteral("Pro vyhodnocení je třeba alespoň 3 čísel v tahu !");

struct Vysledek_Vyhodnoceni {
    Vyhry Vyhry_1Tah{};
    Vyhry Vyhry_2Tah{};
    std::vector<Vyherni_Zaznam> Vyherni_Zaznamy; // in the order found: by draw, ticket, column
    bool Preteceni = false;                      // the record limit ended the run
    bool Zastaveno = false;                      // the progress callback asked to stop

    // Vycisti_Vyhry.
    void Vycisti();
    int64_t Pocet_Vyhernich_Zaznamu() const { return int64_t(Vyherni_Zaznamy.size()); }
    Vyhry& Vyhry_Tahu(int tah) { return tah == 1 ? Vyhry_1Tah : Vyhry_2Tah; }
};

// Places h hits and s supplementary hits in a tier and counts it in `vyhry`: 3 → 5, 4 → 4, 5 with
// no supplementary hit → 3, 5 with one → 2, 6 → 1. Anything else counts nothing and leaves `poradi`
// as it stood (the caller's tier variable). True when a tier was placed.
bool Zarad_Vyhru(Vyhry& vyhry, int h, int s, int& poradi);


// A row of seven boxes, the seventh the supplementary number; 0 is an empty box.
using Radek_Tahu = std::array<int, 7>;
inline const QString Text_Stejna_Cisla = QStringLiteral("Pozor, zadána stejná čísla !");
// A number that stands in two boxes of the row, if any: a draw never holds a number twice.
std::optional<int> Opakovane_Cislo(const Radek_Tahu& radek);
// Spocti_Cisla_Tahu for one row: the filled boxes of all seven.
int Pocet_Cisel(const Radek_Tahu& radek);
// Ulozena_Cisla_1Tah / _2Tah with Jsou_Cisla_1Tah / _2Tah: the boxes' numbers kept when an
// evaluation starts, so that they return when the tip list opens again.
struct Ulozena_Cisla_Tahu {
    std::array<Radek_Tahu, 2> Cisla{};
    std::array<bool, 2> Jsou{};
};

// Kontrola_Cisel_1Tah / _2Tah: more than two of the seven boxes are filled.
inline bool Kontrola_Cisel(const Radek_Tahu& radek) {
    return Pocet_Cisel(radek) > 2;
}

// The colour of a box after Vyh_Tah_V_Tipech: untouched, a hit, a number some tip misses by one.
enum class Barva_Boxu : uint8_t { Bila, Zasah, Vedle };
using Barvy_Radku = std::array<Barva_Boxu, 7>;

// The tip store walked ticket by ticket against each row of boxes with more than two numbers;
// the first column whose first number is 0 ends the tips. A number standing in two boxes counts
// twice. The boxes' colours are the by-product: every drawn number some tip holds is a hit, a
// number some tip misses by one is a near miss unless hit already. Records are written.
void Vyh_Tah_V_Tipech(const Zaznam_Tipu& tipy, const Radek_Tahu& tah1, const Radek_Tahu& tah2,
                      Vysledek_Vyhodnoceni& vysledek, Barvy_Radku& barvy1, Barvy_Radku& barvy2,
                      const Prubeh& prubeh = {});

// The range of the archive: the newest n1 first draws and n2 second draws (each held to 0..count).
struct Rozsah_Tahu {
    const std::vector<Tah>* Tahy_1 = nullptr; // elements 1..Pocet_Tahy_1, newest last
    const std::vector<Tah>* Tahy_2 = nullptr;
    int Pocet_Tahy_1 = 0;
    int Pocet_Tahy_2 = 0;
    int N1 = 0;
    int N2 = 0;

    // The draws of list `tah` (1 or 2) that the range takes are Tahy(tah)[Od(tah) .. Do(tah)].
    const std::vector<Tah>& Tahy(int tah) const { return *(tah == 1 ? Tahy_1 : Tahy_2); }
    int Do(int tah) const { return tah == 1 ? Pocet_Tahy_1 : Pocet_Tahy_2; }
    int Od(int tah) const { return Do(tah) - (tah == 1 ? N1 : N2) + 1; }
};
Rozsah_Tahu Rozsah_Archivu(const Archiv_Tahu& archiv, int n1, int n2);

// The rows of boxes taken as tips against every draw of the range: row 1 if `radek1` (chkTah(0))
// and it has more than two numbers, row 2 if `radek2` (chkTah(1)) and likewise; each row against the first
// draws into Vyhry_1Tah, then the second draws into Vyhry_2Tah. The supplementary number is matched
// against box 6 only when the sixth drawn number was missed. No records are written.
void Vyh_Cisla_V_Tazich(const Radek_Tahu& tah1, const Radek_Tahu& tah2, bool radek1, bool radek2,
                        const Rozsah_Tahu& rozsah, Vysledek_Vyhodnoceni& vysledek, const Prubeh& prubeh = {});

// Every tip of the store against every draw of the range, first draws then second draws, oldest
// first; a column whose first number is 0 ends the draw. Records are written; beyond
// `max_zaznamu` records the run ends with Preteceni and what was counted stands. Bez_Zaznamu
// counts the wins only.
void Vyh_Soubor_V_Tazich(const Zaznam_Tipu& tipy, const Rozsah_Tahu& rozsah, Vysledek_Vyhodnoceni& vysledek,
                         const Prubeh& prubeh = {}, std::size_t max_zaznamu = Max_Vyhernich_Zaznamu);

// The same, straightforwardly: tip number by number against the draw's positions. The tests hold
// the fast run to it.
void Vyh_Soubor_V_Tazich_Prosty(const Zaznam_Tipu& tipy, const Rozsah_Tahu& rozsah, Vysledek_Vyhodnoceni& vysledek);

// Nahodny_Los_1Tah / _2Tah: seven different numbers 1..49 from the random source `cislo`.
template <class Zdroj> Radek_Tahu Nahodny_Los(Zdroj&& cislo) {
    Radek_Tahu los{};
    for (std::size_t i = 0; i < los.size(); ++i) {
        bool opakuje = true;
        while (opakuje) {
            los[i] = cislo();
            opakuje = false;
            for (std::size_t j = 0; j < i; ++j)
                opakuje = opakuje || los[j] == los[i];
        }
    }
    return los;
}
