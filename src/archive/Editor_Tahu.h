#pragma once
// The draw list and its editor without a window: the lines of the two lists of draws, finding a
// draw in the archive and in its list, and adding, repairing and deleting one draw. The window
// frmVypisTahu and `tombi-cli archive` both work through it; writing the changed archive to disk
// is the caller's (Zaloha_Soubor_Tahu).

#include "core/Prubeh.h"
#include "core/Vysledek.h"
#include "data/Archiv_Tahu.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

// The series of a draw as the editor counts it (Aktivni_Tah): 0 first draws, 1 second draws.
inline constexpr int Prvni_Tah = 0;
inline constexpr int Druhy_Tah = 1;

// ---- Lines of the lists (Vypis_Cisla_1Tah, Vypis_Cisla_2Tah) ----

// The year line: the year in Str form, " 2026".
QString Radek_Roku(int rok);
// The draw line: the week, "   - " or " - ", the six numbers each padded to the width of two
// digits and in Str form (a 0 leaves only the padding), then " - " and the supplementary number,
// or three blanks when there is none.
QString Radek_Tahu_Seznamu(int tyden, const Tah& tah);
// Lines above ten characters are draws, the rest years.
inline bool Je_Radek_Tahu(const QString& radek) {
    return radek.size() > 10;
}

// The whole list of a series: a year line before the first draw of each year that has one, then
// its draws by week; year records in file order. Pocet_Tahu counts the draw lines.
struct Seznam_Tahu {
    QStringList Radky;
    int Pocet_Tahu = 0;
};
Seznam_Tahu Vypis_Cisla_Tahu(const Archiv_Tahu& archiv, int tah, const Prubeh& prubeh = {});

// The place of the draw of a line in its series, 1 first: the draw lines from line 0 to `radek`.
// 0 for a year line.
int Poradi_Tahu(const QStringList& radky, int radek);
// The year of a draw line: the nearest year line above it (1956 <= Val < 2100); 0 if none.
int Rok_Radku(const QStringList& radky, int radek);

// ---- Finding a draw ----

// Index of the first year record of `rok`, 0 if there is none.
int Najdi_Rok(const Archiv_Tahu& archiv, int rok);
// Kontrola_Obsazeni: the year exists and its week holds a draw of series `tah`.
bool Kontrola_Obsazeni(const Archiv_Tahu& archiv, int tah, int rok, int tyden);
// Zobraz_Cisla: the seven numbers of the draw, 0 for an empty box; nothing if there is no draw.
std::optional<Tah> Cisla_Tahu(const Archiv_Tahu& archiv, int tah, int rok, int tyden);
// Najdi_Radek_Tahu: the line of the draw in the list of its series as Vypis_Cisla_Tahu makes it;
// -1 if there is no such draw.
int Najdi_Radek_Tahu(const Archiv_Tahu& archiv, int tah, int rok, int tyden);

// ---- Changes ----

// What a change did: Zmeneno when Pole_Tahu changed (the flat lists are rebuilt then, and the
// archive is to be written); Zprava the message to show, empty when there is none.
struct Uprava_Tahu {
    bool Zmeneno = false;
    QString Zprava;
};

// The boxes of the editor: 0 is an empty box.
using Boxy_Tahu = Tah;

// Pridej_Tah: "Chybí číslo týdne !" for week 0, "Týden a rok již obsazen, lze pouze OPRAVIT !" for
// a week that holds a draw, "Pozor, zadána stejná čísla !" for a number given twice. A year not
// yet in the archive gets a new record at the end. The draw is the boxes, an empty box 0.
Uprava_Tahu Pridej_Tah(Archiv_Tahu& archiv, int tah, int rok, int tyden, const Boxy_Tahu& boxy);
// Kontrola_Cisel: two non-empty boxes with the same number.
bool Stejna_Cisla(const Boxy_Tahu& boxy);
// Oprav_Tah: "Pozor, zadána stejná čísla !" for equal boxes, then "Není co OPRAVIT, týden či rok
// neexistuje.", then "Pozor, zadána stejná čísla !" again when a box equals an old number that
// stays. An empty box keeps the old number; a repair that changes no number changes nothing.
Uprava_Tahu Oprav_Tah(Archiv_Tahu& archiv, int tah, int rok, int tyden, const Boxy_Tahu& boxy);
// cmdSmaz with Smaz_Tah: a missing year gives "Není co SMAZAT, týden či rok neexistuje.", an empty
// week of an existing year nothing. The flag and the seven numbers go; the year record stays.
Uprava_Tahu Smaz_Tah(Archiv_Tahu& archiv, int tah, int rok, int tyden);

// Zaloha_Souboru(1, Soubor_Tahu) of the editor: the old file becomes the backup and the archive is
// written whole; a missing file is simply written.
Vysledek Zaloha_Soubor_Tahu(const Archiv_Tahu& archiv, const QString& adresar);

// One change of the archive on disk as a whole, under the archive's lock (Zamek_Archivu): the
// file is read; if it differs from what `archiv` holds (another program wrote it since it was
// loaded), `archiv` takes it, dates and flat lists with it; then `zmena` runs and, if it changed
// anything, the archive is written with its backup. A missing file leaves `archiv` as it is, so
// the first draw typed in creates it.
struct Zmena_Archivu {
    Uprava_Tahu Uprava;
    bool Znovu_Nacteno = false; // `archiv` took the file as another program left it
    Vysledek Zapis;             // why the lock, the read or the write failed; Uspech otherwise
};
Zmena_Archivu Uprav_Archiv(Archiv_Tahu& archiv, const QString& adresar,
                           const std::function<Uprava_Tahu(Archiv_Tahu&)>& zmena);
