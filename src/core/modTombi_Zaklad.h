#pragma once
// The procedures of modTombi that need neither the session nor a file, kept at the ground so that
// the engines reach them: the order of a tip's numbers and the Czech word after a count.

#include "core/Tip.h"

#include <QString>

#include <cstdint>

namespace modTombi {

bool Je_Sude(int x);
void Vymen(uint8_t& a, uint8_t& b);
// Exchange sort ascending over positions od..do_ of the tip.
void Setrid_Tip(Tip& tip, int od, int do_);

// The Czech form of a noun after a count: `jeden` for 1, `dva_az_ctyri` for 2 to 4, `pet` for any
// other count, 0 and negative ones included ("1 sloupec", "3 sloupce", "5 sloupců", "0 sloupců").
QString Tvar_Poctu(int64_t pocet, const QString& jeden, const QString& dva_az_ctyri, const QString& pet);

// The label of lblSoubor_Tipu: "" for 0, "1 tip", "3 tipy", "5 tipů".
QString Text_Poctu_Tipu(int pocet);

} // namespace modTombi
