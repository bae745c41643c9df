#pragma once
// The download of the draw data: the operator's two dBase tables (Wednesday and Sunday) from the
// address of the settings, or, when the address of its CSV export is set, that one file, from which
// the archives of Wednesday, Friday and Sunday are all rebuilt. Each step is told as a row of the
// download window as it starts and as it is done. The fetch waits with the event loop running, so
// a window stays alive, and it ends at a time limit or when asked to stop.
//
// Nothing in a failed download reaches an archive: an answer that is too short, rubbish, late or
// cut leaves every archive as it was on disk; the session's archive in memory is not touched at all
// (the window loads the day anew afterwards).

#include "core/Prubeh.h"
#include "core/Vysledek.h"

#include <QString>
#include <functional>

namespace Stahovani_Tahu {

// The smallest answers taken as the tables: an error page of a server is far shorter.
inline constexpr qsizetype Nejmensi_Streda = 10001;
inline constexpr qsizetype Nejmensi_Nedele = 60001;
// The CSV export is taken under this name in the data folder.
inline constexpr char16_t Soubor_Csv[] = u"sportka.csv";

inline const QString Radek_Spojeni = QStringLiteral(" Navázání spojení se serverem SAZKA a.s. ...");
inline const QString Radek_Streda = QStringLiteral(" Data tahů STŘEDA download ...");
inline const QString Radek_Nedele = QStringLiteral(" Data tahů NEDĚLE download ...");
inline const QString Radek_Csv = QStringLiteral(" Data tahů STŘEDA, PÁTEK, NEDĚLE download ...");
inline const QString Radek_Konec = QStringLiteral(" *** PROCES AKTUALIZACE UKONČEN. ***");
inline const QString Text_Chyby_Prenosu = QStringLiteral(" Došlo k chybě v přenosu !");
inline const QString Text_Zruseno = QStringLiteral("Stahování dat tahů bylo zrušeno, archivy zůstaly beze změny.");
// " aktualizace dat tahů  STŘEDA" and the other days.
QString Radek_Aktualizace(const QString& den);

struct Zadani {
    QString Adresa; // FTP_Adresa; without a scheme http:// is meant
    QString Data1;  // FTP_Data1, Wednesday's table
    QString Data2;  // FTP_Data2, Sunday's table
    QString Csv;    // the CSV export's address; when set, the tables are not fetched
    QString Adresar; // the data folder: the fetched files and the archives
    QString Zaloha_Tahu;
    int Smazat_Dbf = 0;
    int Limit_Ms = 60000; // no answer, or no progress, for this long ends the fetch
};

// A row of the window: its text, and whether it is done (otherwise it has just started).
using Radek = std::function<void(const QString& text, bool hotovo)>;

// The whole download. The result carries the message of the first failure; a Sunday table that
// fails after Wednesday's came skips only Sunday's import, as the message says.
Vysledek Stahni_Data_Tahu(const Zadani& zadani, const Radek& radek, const std::function<bool()>& zrusit,
                          const Prubeh& prubeh = {});

// One fetch: the answer's bytes, or the message. An answer above the size of any draw history, an
// HTTP error status, a time out and a stop are failures.
struct Odpoved {
    QByteArray Data;
    Vysledek Stav;
};
Odpoved Stahni(const QString& adresa, int limit_ms, const std::function<bool()>& zrusit, const Prubeh& prubeh = {});

} // namespace Stahovani_Tahu
