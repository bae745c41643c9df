#pragma once
// The draw archive: one file a draw day (SpS_tahy.sez Wednesday, SpP_tahy.sez Friday, SpN_tahy.sez
// Sunday), a record of 956 bytes a year, read whole into memory with the dates of its draws, and
// the two flat lists of first and second draws.

#include "core/Pole_Od_1.h"
#include "core/Tip.h"
#include "core/Vysledek.h"
#include "data/Dny_Tahu.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

// A week of the archive, 18 bytes on disk.
struct Tyden_Zaznam {
    Tah Tah1;
    Tah Tah2;
    int16_t Je_Tah1 = 0; // only -1 counts as true
    int16_t Je_Tah2 = 0;
    friend bool operator==(const Tyden_Zaznam&, const Tyden_Zaznam&) = default;
};

// A year of the archive, 956 bytes on disk. Rok 0 marks the end of the data.
struct Rok_Zaznam {
    int16_t Rok = 0;
    Pole_Od_1<Tyden_Zaznam, 53> Tyden;
    friend bool operator==(const Rok_Zaznam&, const Rok_Zaznam&) = default;
};

inline constexpr int Delka_Tydne = 18;
inline constexpr int Delka_Roku = 2 + 53 * Delka_Tydne; // 956
// 32767 years, as many as Pocet_Let counts, take 31 MB; a larger file is no archive.
inline constexpr qint64 Nejvic_Archivu = 32 * 1024 * 1024;

// The draw day, with the values of Den_Tahu: 1 Wednesday, 2 Friday (drawn since 2020), 0 Sunday.
enum class Den : uint8_t { Nedele = 0, Streda = 1, Patek = 2 };
// Every draw day, in the order of the week.
inline constexpr Den Dny_Losovani[] = {Den::Streda, Den::Patek, Den::Nedele};
// The day of the week, 1 Monday .. 7 Sunday, as QDate and the operator's export count it.
int Iso_Den_Tydne(Den den);

// The archive of the chosen draw day as the session holds it. Pole_Tahu and the flat lists keep an
// unused element 0, so that index i is year record i and draw i, as everything else counts.
struct Archiv_Tahu {
    std::vector<Rok_Zaznam> Pole_Tahu = std::vector<Rok_Zaznam>(1);
    int Pocet_Let = 0;
    QString Soubor_Tahu;
    bool Tahy_Nacteny = false; // set by a load that got through, never cleared by a later failure
    std::vector<Tah> Tahy_1 = std::vector<Tah>(1);
    std::vector<Tah> Tahy_2 = std::vector<Tah>(1);
    int Pocet_Tahy_1 = 0;
    int Pocet_Tahy_2 = 0;
    int16_t Rok_Zacatek_1 = 0;
    int16_t Rok_Zacatek_2 = 0;
    Dny_Tahu Dny; // the operator's dates, read with the archive
};

// "SpS_tahy.sez" for Wednesday, "SpP_tahy.sez" for Friday, "SpN_tahy.sez" for Sunday.
QString Soubor_Tahu_Dne(Den den);
// The day whose archive the file name is, case aside; nothing for any other name.
std::optional<Den> Den_Souboru_Tahu(const QString& soubor);
// Sets Soubor_Tahu and the first years of first and second draws of the day; loads nothing.
void Nastav_Den_Archivu(Archiv_Tahu& archiv, Den den);
// The backup's name: the name without its last four characters, then ".zal".
QString Jmeno_Zalohy(const QString& soubor);

// Year records of a .sez image, element 0 included and unused. Reading stops at a record whose
// Rok is 0; a short last record is read as far as it goes, its missing bytes zero.
std::vector<Rok_Zaznam> Cti_Roky(const QByteArray& bajty);
// The image of records 1..pocet_let (at most as many as there are).
QByteArray Zapis_Roky(const std::vector<Rok_Zaznam>& roky, int pocet_let);

// Loads adresar/soubor into the archive, and the dates of its .dny beside it (Nacti_Dny). The old
// archive is dropped first, so a failure leaves the session without draws (Pocet_Let 0). A missing or unreadable file gives "Chybí soubor tahů";
// a folder, a device or a file above Nejvic_Archivu is refused with its reason. The flat lists are
// the caller's to rebuild.
Vysledek Nacti_Tahy(Archiv_Tahu& archiv, const QString& adresar, const QString& soubor);
// Writes Pocet_Let records to adresar/soubor under its lock, replacing the old file whole or not at all.
Vysledek Uloz_Tahy(const Archiv_Tahu& archiv, const QString& adresar, const QString& soubor);
// Makes adresar/soubor its .zal (one generation: the older backup goes). With druh 0 the file is
// renamed and no live file stands afterwards. With druh 1 the live file is written anew from the
// archive in memory, and a failed write leaves the file and its backup as they were; where there
// is no live file yet, druh 1 simply writes it.
Vysledek Zaloha_Souboru(int druh, const Archiv_Tahu& archiv, const QString& adresar, const QString& soubor);
// Puts the .zal of Soubor_Tahu in place of the live file (the file a link names); the backup is
// used up. A read-only archive is refused.
Vysledek Obnov_Zalohu(const Archiv_Tahu& archiv, const QString& adresar);

class QLockFile;

// The lock of an archive over one read, change and write, so that the window and any number of
// tombi-cli calls never write over each other's edit: a lock file "<file>.lock" beside the file
// (the file a link names). A lock of a process that died is taken over. Within one process the
// lock nests: an inner one over the same file holds at once and changes nothing.
class Zamek_Archivu final {
public:
    Zamek_Archivu(const QString& adresar, const QString& soubor, int cekat_ms = 10000);
    ~Zamek_Archivu();
    Zamek_Archivu(const Zamek_Archivu&) = delete;
    Zamek_Archivu& operator=(const Zamek_Archivu&) = delete;
    // Empty when the lock is held; otherwise the Czech message.
    const QString& Chyba() const { return Duvod; }

private:
    QString Cesta;
    std::unique_ptr<QLockFile> Zamek;
    QString Duvod;
};

// What a look beside the archive found of a save that was cut off.
struct Preruseny_Zapis {
    QStringList Uklizeno;            // names written aside and left behind, removed as the archive stands
    bool Zaloha_Bez_Archivu = false; // the archive is missing, its backup is there
};
// Under the archive's lock: a backup that an older save had moved aside goes back in place; with
// the archive there, what a cut-off save wrote aside is removed (the archive itself is whole,
// old or new). Nothing when another program holds the lock or the folder cannot be written.
Preruseny_Zapis Uklid_Po_Preruseni(const QString& adresar, const QString& soubor);
// Copies the backup of adresar/soubor in place of the missing archive; the backup stays.
Vysledek Obnov_Chybejici_Archiv(const QString& adresar, const QString& soubor);
// Rebuilds Tahy_1 and Tahy_2 from the flagged weeks, in file order.
void Priprav_Seznamy_Tahu(Archiv_Tahu& archiv);
// Year and week of draw `index` (1-based, file order) of the first (tah 1) or second list; {0, 0}
// when there is no such draw.
std::pair<int, int> Rok_A_Tyden(const Archiv_Tahu& archiv, int tah, int index);
// Counts of flagged first and of flagged second draws (Pocet_Tahu_1 and Pocet_Tahu_2 of pTikety).
std::pair<int, int> Spocitej_Tahy(const Archiv_Tahu& archiv);
