#pragma once
// A run of the generator without its window: random tips under the filters, ticket by ticket, into
// the tip store. The window (or tombi-cli) fills Zadani_Generatoru from its boxes and binds the
// callbacks; the run itself touches no widget.

#include "core/Prubeh.h"
#include "data/Archiv_Tahu.h"
#include "data/Soubor_Tipu.h"

#include <QString>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

class Zdroj_Nahody;

// How the pool of optVybrana_Cisla acts: not at all, only its numbers, or all but its numbers.
enum class Vyber_Okruhu { Bez_Vyberu, Pouzit_Vybrana, Vynechat_Vybrana };

// Everything the window holds for a run; limits are Val of their boxes, with the boxes' defaults.
struct Zadani_Generatoru {
    int Pocet_Tipu = 0;       // Val(txtPoc_Tipu)
    int Pocet_Tiketu = 0;     // Val(txtPoc_Tiketu)
    std::vector<int> Tutovky; // the filled txtTutovka boxes in box order, at most 3
    std::array<bool, 11> Check1{};

    std::array<double, 3> Omezeni{3, 2, 3}; // txtOmezeni(0..2): grid columns, rows, diagonals
    double Max_Tretich_Cen = 0;             // Text4
    double Vynech_Tahy_1_Od = 0;            // draws of Tahy_1 walked by Omezeni_Ceny
    double Vynech_Tahy_2_Od = 0;
    double Limit_Dekada = 3;                     // txtCisel_V_Dekade
    double Sudych = 3, Lichych = 3, Rozptyl = 1; // txtSudLich(1), (2), (0)
    double Max_Dvojic = 1;                       // Text7
    double Max_Trojic = 0;                       // Text8
    std::array<double, 2> Suma{125, 175};        // txtSuma(0..1), both exclusive
    std::array<double, 2> Rozsah{1, 49};         // txtRozsah_Min_Max(0..1)
    double Prunik = 1;                           // txtPrunik, read into a byte

    Vyber_Okruhu Vyber = Vyber_Okruhu::Bez_Vyberu;
    std::vector<int> Okruh_Cisel; // Okruh_Cisel(1..Pocet_Okruhu)

    // Settings of tombi.cfg, defaults as a fresh file has them.
    int Pocet_Pruchodu = 250;
    int Auto_Oprava = 0;
    int Opakovat_Volba = 0;

    // Flat draw lists of the loaded day (element 0 unused), for Check1(2); null is no archive.
    const std::vector<Tah>* Tahy_1 = nullptr;
    const std::vector<Tah>* Tahy_2 = nullptr;

    // The run seed; none means one is taken from the clock.
    std::optional<uint64_t> Seminko;

    // Draws a run may make without a tip before it calls itself stuck (Uvaznuti): about a second.
    // Filters that pass less than one candidate in eight million would take hours for a full
    // store, so such a run cannot finish in any sense a user cares about.
    int64_t Kroku_Bez_Tipu = 50'000'000;
};

struct Zpetna_Volani_Generatoru {
    // Percentages as they grow; also called every few thousand draws with the last one, so that a run
    // that can't finish stays stoppable. False stops the run (Zrusit_Beh).
    Prubeh Procenta;
    std::function<void(int tiket, int sloupec)> Pozice; // lblTiket, lblTip
    std::function<void(int pocet_tipu)> Hotovy_Tiket;   // the status area after each ticket
    std::function<void(const QString& zprava)> Zprava;  // a message while the run goes on
    // No tip has passed for a long while: the text names the filter that rejects most. True goes on
    // (the window shows it and waits for "Konec"), false ends the run. Told once per stretch
    // without a tip.
    std::function<bool(const QString& zprava)> Uvaznuti;
};

// Nelze_Dokoncit: the run stopped because no tip could pass (Uvaznuti answered false).
enum class Konec_Behu { Hotovo, Zastaveno, Chyba, Nelze_Dokoncit };

struct Vysledek_Generatoru {
    int Pocet_Tipu_Hotovo = 0;
    uint64_t Seminko = 0;
    Konec_Behu Konec = Konec_Behu::Hotovo;
    QString Chyba;              // the message of a run that ended by a fault or could not finish
    double Max_Tretich_Cen = 0; // Text4 after the run; the automatic correction raises it
    // Pouzita_Cisla: table[x] = x for the numbers of the columns before the last rejected candidate
    // of the ticket (Check1(4) on); the run never reads it, the tip list shows it.
    std::array<uint8_t, 50> Pouzita_Cisla{};
};

inline const QString Text_Chyba_Generovani = QStringLiteral("Upravte omezeni, nemožno zpracovat ...");
inline const QString Text_Treti_Ceny = QStringLiteral("Volte \"Konec\" a nastavte aut. opravu třetích cen.");

// Nacti_Tutovky: Val of the txtTutovka boxes, the filled ones in box order, gaps closed.
std::vector<int> Nacti_Tutovky(const std::array<QString, 3>& boxy);
// What txtPoc_Tiketu shows for a number of tips: a ticket for each ten begun.
int Tiketu_Pro_Tipy(int tipu);
// The start value of Text4: Int(tips / 49 + 0.5) without the automatic correction, else 0.
double Pocatecni_Max_Tretich_Cen(int tipu, int auto_oprava);

// The seed of the Shuffle of the n-th (re)start of a ticket: a single-precision value in [0, 1)
// derived from the run seed alone.
float Seminko_Tiketu(uint64_t seminko_behu, int tiket, uint32_t obnoveni);

// What no tip can meet and is seen before a run: counts out of range, repeated tutovky, fewer
// numbers to draw than a tip needs, a decade limit, even/odd split, sum or "neopakovat" that
// those numbers cannot satisfy. The Czech reason, or empty when the run may start. Reversed
// bounds of the sum and the range count as swapped, as the window swaps them.
QString Kontrola_Zadani(const Zadani_Generatoru& zadani);

// Generuj: fills the store (cleared first) and tells how the run ended. Tips made before a stop or
// a fault stay in the store, and its header counts them; a ticket given up leaves no column behind.
// Settings that Kontrola_Zadani refuses end the run at once with its reason, the store untouched.
// `zdroj` replaces the basic random source; by default the run has one of its own, so that its
// tips follow from the seed alone.
Vysledek_Generatoru Generuj(const Zadani_Generatoru& zadani, Zaznam_Tipu& soubor,
                            const Zpetna_Volani_Generatoru& volani = {}, Zdroj_Nahody* zdroj = nullptr);
