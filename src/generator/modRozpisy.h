#pragma once
// The catalogue of wheels as the wheel list shows it: index 0 is no wheel, 1 a wheel read from a
// .rzp file, 2..24 the built-in wheels. The blanks line up the column counts in the list.

#include <QString>
#include <QStringList>

namespace modRozpisy {

inline constexpr int Rozpis_Ze_Souboru = 1;
inline constexpr int Posledni_Rozpis = 24;

// The 25 lines of lstSportka in index order.
const QStringList& Katalog();

} // namespace modRozpisy
