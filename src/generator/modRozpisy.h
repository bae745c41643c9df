#pragma once
// The catalogue of wheels as the wheel list shows it (index 0 is no wheel, 1 a wheel read from a
// .rzp file, 2..24 the built-in wheels; the blanks line up the column counts in the list), the
// expansion of a wheel over the user's numbers into the tip store, and the .rzp wheels.

#include "core/Prubeh.h"
#include "core/Tip.h"
#include "core/Vysledek.h"
#include "generator/Tabulky_Rozpisu.h"
#include "generator/Vyber_Cisel.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

struct Tiket;
struct Zaznam_Tipu;

namespace modRozpisy {

inline constexpr int Rozpis_Ze_Souboru = 1;
inline constexpr int Posledni_Rozpis = 24;

// The 25 lines of lstSportka in index order.
const QStringList& Katalog();

// What the dispatcher returns: tutovky, columns, numbers without tutovky.
struct Rozmery_Rozpisu {
    int Tutovek = 0;
    int Sloupcu = 0;
    int Cisel = 0;
};

// Rozpis: expands built-in wheel `cislo` (2..24) into the store: the first N numbers of
// `cisla_rozpisu` by position, the tutovky from positions 1..3 of `aktualni_tip`. The store is not
// cleared first: cells the pattern does not reach keep what they held. Other values of `cislo`
// change nothing and give no dimensions.
std::optional<Rozmery_Rozpisu> Rozpis(int cislo, const Seznam_Cisel& cisla_rozpisu, const Tip& aktualni_tip,
                                      Zaznam_Tipu& soubor);

// Smaz_Sloupce: zeroes columns `sloupec`..10 of the ticket; above 10 nothing.
void Smaz_Sloupce(Tiket& tiket, int sloupec);

// A wheel read from a .rzp file: its header and its cells in file order (Data_Rozpisu), with the
// two flags of the choice.
struct Externi_Rozpis_Stav {
    int Tutovek = 0;
    int Cisel = 0;
    int Sloupcu = 0;
    std::vector<uint8_t> Data_Rozpisu; // from index 0 here; a 0 is a cell the file left at 0
    bool Rozpis_Otevren = false;
    bool Rozpis_Nacten = false;
};

// Reading of a .rzp file: lines trimmed, those holding "REM" dropped, the rest joined with CR LF.
QByteArray Text_Rozpisu(const QByteArray& soubor);
// Nacti_Rozpis: tokenises and checks the text; on error the message "Chyba v rozpisu, ..." and
// nothing kept. An empty text, or a text already read (Rozpis_Nacten), does nothing.
Vysledek Nacti_Rozpis(const QByteArray& text, Externi_Rozpis_Stav& rozpis);
// Externi_Rozpis: translates the cells into numbers in place and writes `tiketu` tickets of the
// store; a fault ends it with "Chyba v proceduře Externí rozpis." and what was written stays.
Vysledek Externi_Rozpis(Externi_Rozpis_Stav& rozpis, const Seznam_Cisel& cisla_rozpisu, int tiketu,
                        Zaznam_Tipu& soubor);

} // namespace modRozpisy
