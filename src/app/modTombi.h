#pragma once
// The small procedures that every window calls and that need no window: numbers of a tip, the
// even/odd count of the picked list, file-name proposals, the text of the tips, the next draw
// date, the switch of draw day over the archive, the wait with the event pump, and the key filter.

#include "app/Relace.h"
#include "core/modTombi_Zaklad.h"
#include "core/Vb.h"
#include "core/Vysledek.h"
#include "data/Archiv_Tahu.h"

#include <QDate>
#include <QString>
#include <array>
#include <functional>

namespace modTombi {

// Counts the even and odd numbers of a blank-separated text into Pocet_Sudych and Pocet_Lichych,
// skipping its first token; an empty text clears both.
void Spocitej_Suda_Licha(Relace& relace, const QString& text);

// Today as six digits: year, month, day, two digits each ("261122").
QString Datum_Soubor(const QDate& dnes);
// A proposed tip file name: "S_" + date + "_" + pocet with a bettors' list loaded, otherwise
// date + "_" + pocet; only single-byte characters are kept and blanks dropped.
QString Navrh_Jmena(const QDate& dnes, int pocet, bool seznam_nacten);
// The characters of the text that code page 1250 holds in one byte, blanks left out: what a file
// name proposed by the program may carry.
QString Jen_Jednobajtove(const QString& text);
// The tips of the store as text, ticket by ticket (the print of the tip list): a head line
// "číslo tiketu - " + number, then one line a tip, an empty line after each ticket; lines end with
// "\n".
QString Otevreny_Tip_Text(const Zaznam_Tipu& tipy);

// The weekday as the Basic counts it: 1 Sunday .. 7 Saturday.
int Den_V_Tydnu(const QDate& datum);
// The date of the next draw as text (d.m.yyyy): today on a Friday or a Sunday, empty on a Wednesday.
QString Dalsi_Tah(const QDate& dnes);
// Monday to Wednesday choose the Wednesday archive, Thursday and Friday the Friday one, Saturday
// and Sunday the Sunday one.
Den Den_Podle_Tydne(int den_v_tydnu);

// The import source of the Friday draw: the operator publishes that day only in its CSV export of
// all days, and tombi.cfg has no field for a third name.
inline constexpr char16_t Soubor_Dat_Patku[] = u"sportka.csv";

// The switch of draw day over the session's data: Den_Tahu, Soubor_Tahu_Dbf, the archive's file
// and first years, the load, the counts in pTikety and the flat lists. The message of a failed
// load is returned for the caller to show; the session is then without draws.
Vysledek Prepni_Den(Relace& relace, Den den);

// The prize table of a draw day, five tiers of the first draw and five of the second. Wednesday's
// and Sunday's are fields of tombi.cfg; Friday's lives in the user's settings store (Registr), so
// that tombi.cfg stays the record the old program reads. No store, or no table in it, is all zero.
std::array<Vb::Mena, 10> Ceny_Dne_Tahu(const Relace& relace, Den den);
void Uloz_Ceny_Patku(Relace& relace, const std::array<Vb::Mena, 10>& ceny);


// Waits `sekundy` by the clock's timer, letting events run through `pumpa` (if any) on every round.
// Over midnight the timer falls back; the wait then ends at once.
void Cekej(const Hodiny& hodiny, double sekundy, const std::function<void()>& pumpa);

// Passes a key only if its code lies between the codes of od and do_, or is backspace (8);
// otherwise gives 0.
int Filtr_Klavesy(int klavesa, QChar od, QChar do_);

// The help context of a window by its key: "Anal" 1, "Gener" 2, ... "Heslo" 12; 0 for an unknown key.
int Napoveda(const QString& klic);

} // namespace modTombi
