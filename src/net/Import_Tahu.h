#pragma once
// Import of the operator's draw history into the archive of a draw day: the dBase tables that the
// operator publishes (sportka-streda.dbf, sportka-nedele.dbf) and its CSV export of both days.
// The readers work on bytes and touch nothing; Importuj_Tahy puts their result in place.

#include "core/Prubeh.h"
#include "core/Vysledek.h"
#include "data/Archiv_Tahu.h"

#include <QByteArray>
#include <QString>

#include <vector>

// The operator's history is 0.2 MB today; a source far above that is a wrong file.
inline constexpr qint64 Nejvic_Zdroje_Tahu = 64 * 1024 * 1024;
// A line of the CSV export is about 60 bytes; a longer one than this is refused at once.
inline constexpr qsizetype Nejdelsi_Radek_Csv = 1024;

// Year records as Pole_Tahu holds them (element 0 present and unused). On failure Stav carries
// the message and Roky holds element 0 alone, so nothing half-built can reach the archive.
struct Import_Vysledek {
    std::vector<Rok_Zaznam> Roky = std::vector<Rok_Zaznam>(1);
    Dny_Tahu Dny; // the dates of the imported draws; the dBase tables have none
    Vysledek Stav;
    int Pocet_Let() const { return int(Roky.size()) - 1; }
};

// The dBase table read by fixed positions: records of 35 bytes from byte 546 (one-based), a year
// record added each time the year text changes, in the order of the file.
Import_Vysledek Importuj_Dbf(const QByteArray& bajty, const Prubeh& prubeh = {});

// The CSV export "datum;rok;tyden;den;" + 14 numbers, newest first; only rows of the given day
// (den 3 Wednesday, 5 Friday, 7 Sunday) are taken, with their dates ("d. m. rrrr"; an empty date
// leaves the draw without one). One year record per year, in ascending years. Text in UTF-16,
// binary data and a line above Nejdelsi_Radek_Csv are refused.
Import_Vysledek Importuj_Csv(const QByteArray& bajty, Den den, const Prubeh& prubeh = {});

// Whether the source is read as the CSV export: its name ends in ".csv".
bool Je_Zdroj_Csv(const QString& soubor);
// "Není soubor s tahy "…" nebo je v něm chyba.", naming a CSV source as it is and a dBase source
// by its name without the last four characters and ".dbf (.xls)".
QString Text_Chybneho_Zdroje(const QString& soubor, bool csv);

// Rebuilds the archive of archiv.Soubor_Tahu from adresar/soubor_dbf (read as CSV when its name
// ends in ".csv"). With zaloha_tahu "1" the old archive becomes its .zal (Zaloha_Souboru); with
// smazat_dbf 1 the source goes after a good import. The .dny beside the archive is rebuilt: a CSV
// import writes the dates it read before the archive, a dBase import, which has none, removes the
// file after it. A failed write leaves the archive and its backup as they were. Pole_Tahu and Pocet_Let change only when the new archive is on disk; the
// flat lists are the caller's to rebuild.
Vysledek Importuj_Tahy(Archiv_Tahu& archiv, const QString& adresar, const QString& soubor_dbf,
                       const QString& zaloha_tahu, int smazat_dbf, const Prubeh& prubeh = {});
