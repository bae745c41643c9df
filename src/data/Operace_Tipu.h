#pragma once
// What is done to the tip store as a whole beside opening and saving it: appending another tip
// file, sorting the numbers within each tip, and the plain-text form exchanged with other programs
// (one tip a line, six numbers separated by tabs, CR LF; an empty column a bare CR LF).

#include "core/Prubeh.h"
#include "core/Vysledek.h"
#include "data/Soubor_Tipu.h"

#include <QByteArray>
#include <QString>

inline const QString Text_Max_Tipu_Pripojeni = QStringLiteral("Výčerpán max. počet tipů, nelze připojit další !");
inline const QString Text_Max_Tiketu_Pripojeni = QStringLiteral("Překročen maximální počet tiketů.");

// Pripoj_Soubor_Tipu: joins Soubor_Tipu_Pripojeny after the last tip of Soubor_Tipu, without a gap
// (a half-full ticket is filled first), stops at ticket 950 with Text_Max_Tiketu_Pripojeni keeping
// the tips that fit, sets the counters and Pocet_Tipu_Aktivni, and copies the merged store back
// into Soubor_Tipu_Pripojeny. With a non-empty `cesta` the file is first read into
// Soubor_Tipu_Pripojeny (an old-format file is refused with its message). Writes no file.
Vysledek Pripoj_Soubor_Tipu(Stav_Tipu& stav, const QString& cesta, const Prubeh& prubeh = {});

// Setridit_Soubor_Tipu: each filled tip ascending, in place; true if any tip changed.
bool Setridit_Soubor_Tipu(Zaznam_Tipu& soubor, const Prubeh& prubeh = {});

// Export_Tipu: the text form of the store; empty when it has no ticket.
QByteArray Export_Tipu(const Stav_Tipu& stav, const Prubeh& prubeh = {});

// Nacti_Import, the reading: lines in capitals, those holding "REM" dropped, each kept line + CR LF.
QByteArray Text_Importu(const QByteArray& soubor);
// Import_Tipu, the walk: six numbers in a row make a tip, any non-digit separates. Fills a cleared
// store; a count not divisible by six, a tip outside 1..49 or with a repeated number, or a fault
// (a value above 255, a 951st ticket) gives the message and leaves the store as it was.
Vysledek Import_Tipu(const QByteArray& text, Stav_Tipu& stav);
