#pragma once
// The dates of the draws of an archive as the operator gave them. The archive itself knows only
// year and week, and weeks in which a draw was skipped, moved or doubled make any date counted
// from a first draw wrong; so the CSV import keeps the real dates in a small text file beside the
// archive (SpS_tahy.dny beside SpS_tahy.sez), one line a draw: "rok tyden tah dd.mm.rrrr", CR LF.
// A draw that the file does not know (typed by hand, an archive without the file) gets the day of
// the archive's weekday in the ISO week `tyden` of `rok`.

#include "core/Vysledek.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDate>
#include <QString>
#include <map>
#include <optional>
#include <tuple>

struct Archiv_Tahu;

// The known dates, by year, week and draw (1 first, 2 second).
struct Dny_Tahu {
    std::map<std::tuple<int, int, int>, QDate> Data;
    // Why lines of the file were passed over ("řádek 3: …"), empty when every line was read.
    QString Vadne_Radky;

    void Pridej(int rok, int tyden, int tah, const QDate& datum) { Data[{rok, tyden, tah}] = datum; }
    friend bool operator==(const Dny_Tahu& a, const Dny_Tahu& b) { return a.Data == b.Data; }
};

// The text without blanks and tabs at either end.
QByteArrayView Orez(QByteArrayView text);
// A whole number of one to `cislic` digits, blanks around it allowed; nothing for any other text.
std::optional<int> Cislo_Z_Cislic(QByteArrayView text, int cislic);
// "dd.mm.rrrr" as the .dny and the operator's export write it ("11. 1. 2026" too); invalid for
// anything else.
QDate Datum_Z_Textu(QByteArrayView text);

// A .dny file is about 20 bytes a draw; one far above that is no such file.
inline constexpr qint64 Nejvic_Dnu = 16 * 1024 * 1024;

// "SpS_tahy.sez" gives "SpS_tahy.dny"; a name without ".sez" gets ".dny" added.
QString Soubor_Dnu(const QString& soubor_tahu);

// Any bytes: every well-formed line is taken, the others are passed over and named in Vadne_Radky.
Dny_Tahu Cti_Dny(const QByteArray& bajty);
// The file image, sorted by year, week and draw, CR LF line ends.
QByteArray Zapis_Dny(const Dny_Tahu& dny);

// Reads adresar/soubor_tahu's .dny; a missing or unreadable file gives no dates, not an error, as
// the dates are then worked out from the week.
Dny_Tahu Nacti_Dny(const QString& adresar, const QString& soubor_tahu);
// Writes the .dny beside adresar/soubor_tahu, replacing the old one whole; without dates the old
// file goes, so no stale dates stay beside a new archive.
Vysledek Uloz_Dny(const Dny_Tahu& dny, const QString& adresar, const QString& soubor_tahu);

// The date of a draw (tah 1 first, 2 second) of year `rok` and week `tyden`: the operator's when
// the archive's dates know it, otherwise the archive day's weekday in ISO week `tyden` of `rok`.
// Invalid for a year or week out of range, or an archive whose file names no draw day.
QDate Datum_Tahu(const Archiv_Tahu& archiv, int tah, int rok, int tyden);
// The date as the windows show it: " dd.mm.rrrr ", or empty when there is none.
QString Den_Tahu_Text(const Archiv_Tahu& archiv, int tah, int rok, int tyden);
