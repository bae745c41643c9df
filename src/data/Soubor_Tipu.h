#pragma once
// Tip files (.tip): one image of the tip store, 950 tickets of 10 columns of 6 numbers, the two
// counters and the name of the bettors' list that goes with the tips.

#include "core/Pole_Od_1.h"
#include "core/Tip.h"
#include "core/Prubeh.h"
#include "core/Vysledek.h"

#include <QByteArray>
#include <QString>
#include <cstdint>

// A ticket of ten columns, 64 bytes on disk.
struct Tiket {
    Pole_Od_1<Tip, 10> Cisla;
    int32_t Cislo_Tiketu = 0;
    friend bool operator==(const Tiket&, const Tiket&) = default;
};

inline constexpr int Max_Tiketu = 950;
inline constexpr int Sloupcu_Tiketu = 10;

// The tip store as it lies in a .tip file: 950 tickets, the counters and the linked bettors' list.
// Tickets beyond Pocet_Tiketu are zero.
struct Zaznam_Tipu {
    Pole_Od_1<Tiket, Max_Tiketu> Tikety;
    int16_t Pocet_Tiketu = 0;
    int16_t Pocet_Tipu = 0;
    QString Seznam_Soubor; // bare file name of the bettors' list; 2 characters or fewer is no link
    friend bool operator==(const Zaznam_Tipu&, const Zaznam_Tipu&) = default;
};

// Layout of the current format: tickets of 64 bytes, then the counters and the list name.
inline constexpr int Delka_Tiketu = 64;
inline constexpr int Posun_Pocet_Tiketu = Max_Tiketu * Delka_Tiketu; // 60800
inline constexpr int Posun_Pocet_Tipu = Posun_Pocet_Tiketu + 2;      // 60802
inline constexpr int Posun_Delky_Seznamu = Posun_Pocet_Tiketu + 4;   // 60804
inline constexpr int Delka_Zaznamu_Tipu = Posun_Pocet_Tiketu + 6;    // 60806 + the list name

// The older format, read only to be converted: 1000 tickets of 8 columns, 52 bytes each.
inline constexpr int Max_Starych_Tiketu = 1000;
inline constexpr int Sloupcu_Stareho_Tiketu = 8;
inline constexpr int Delka_Stareho_Tiketu = 52;
inline constexpr int Delka_Stareho_Zaznamu = Max_Starych_Tiketu * Delka_Stareho_Tiketu + 6; // 52006 + the name

struct Stary_Tiket {
    Pole_Od_1<Tip, Sloupcu_Stareho_Tiketu> Cisla;
    int32_t Cislo_Tiketu = 0;
    friend bool operator==(const Stary_Tiket&, const Stary_Tiket&) = default;
};

struct Stary_Zaznam_Tipu {
    Pole_Od_1<Stary_Tiket, Max_Starych_Tiketu> Tikety;
    int16_t Pocet_Tiketu = 0;
    int16_t Pocet_Tipu = 0;
    QString Seznam_Soubor;
};

// A tip file is 93 KB at most (the record and a list name of 32767 bytes); a file far larger is
// something else and is not read.
inline constexpr qint64 Nejvic_Souboru_Tipu = 1024 * 1024;

// Reading is a plain record read: a short file leaves the rest zero, a list name whose length runs
// past the end gets what is there (a negative length counts as 0), bytes past the record are
// ignored. Any bytes are accepted.
Zaznam_Tipu Cti_Zaznam_Tipu(const QByteArray& bajty);
// The tips the store holds, up to the first empty column, whatever its header says: the stake is
// paid for these, and the list shows these.
int Pocet_Tipu_V_Souboru(const Zaznam_Tipu& tipy);
Stary_Zaznam_Tipu Cti_Stary_Zaznam_Tipu(const QByteArray& bajty);
// Exactly Delka_Zaznamu_Tipu + the length of the list name in code page 1250.
QByteArray Zapis_Zaznam_Tipu(const Zaznam_Tipu& zaznam);

// Repacks the tips of an old record into tickets of ten columns, keeping Pocet_Tipu and the list
// name. A ticket count outside 0..1000 is held to the record.
Zaznam_Tipu Preved_Stary_Zaznam(const Stary_Zaznam_Tipu& stary, const Prubeh& prubeh = {});

// What the session knows about its tips. Both stores are large; the struct lives in the session.
struct Stav_Tipu {
    Zaznam_Tipu Soubor_Tipu;
    // What an append read, and afterwards the copy of the merged store for the undo of the tip list.
    Zaznam_Tipu Soubor_Tipu_Pripojeny;
    QString Jmeno_Souboru_Tipu; // name of the open file without directory and extension
    bool Je_Soubor_Tipu = false;
    int16_t Pocet_Tipu_Aktivni = 0;
    int Pocet_Tipu_Celkem = 0;  // tips the last listing or run counted
    QString Seznam_Navazany; // copy of Seznam_Soubor for the list window
};

// How a file is being opened: through the open dialog, or from the recent files, which skips the
// test of an empty file and of the old format.
enum class Otevreni { Z_Dialogu, Z_Nedavnych };

// Reads the file into Soubor_Tipu. The store is overwritten before the old-format test, so a refused
// file still leaves what was read in it; the rest of the state stays. An empty or unreadable file
// leaves the store as it was. On success the caller goes on with Po_Otevreni_Tipu.
Vysledek Nacti_Soubor_Tipu(Stav_Tipu& stav, const QString& cesta, Otevreni otevreni = Otevreni::Z_Dialogu);

// An old file is shorter than the tip counter, so the counter reads as 0. A new file with no tip
// at all is refused the same way. `zprava`, if given, receives the message for the user.
bool Je_Stary_Format(const QString& jmeno, int pocet_tipu, QString* zprava = nullptr);

// Writes Soubor_Tipu. When a bettors' list is loaded, the caller then adds the line of the overview
// file with Pridej_Do_Prehledu (data/Chyby_A_Prehled.h).
Vysledek Uloz_Soubor_Tipu(const Stav_Tipu& stav, const QString& cesta);

// Whether the bytes are an old file with something to convert: its ticket count is above 0, and
// it is not a current file (a whole record whose tip count is above 0). A current file of 813
// tickets or more has a count at the old place too; it must not be converted over.
bool Je_Treba_Konvertovat(const QByteArray& bajty);

// Converts an old file in place: reads it, repacks its tips, writes the new record over it and
// takes it as the open file. A file with nothing to convert is refused and left alone. Before the
// new record is written, the original is kept as cesta + ".zal"; if that fails, nothing is
// converted. The state changes only if the file was written. On success the caller shows
// Text_Konverze_Hotova, enters the name in the recent files, reads the linked list if its name is
// longer than 2 characters, and opens or reloads the tip list.
Vysledek Konvertuj_Soubor_Tipu(Stav_Tipu& stav, const QString& cesta, const Prubeh& prubeh = {});
// The original of a converted file, beside it.
QString Zaloha_Konverze(const QString& cesta);
inline const QString Text_Konverze_Hotova = QStringLiteral("Starý soubor tipů byl převeden na nový formát.");

// The session's part of taking an opened file. The recent files, emptying and reading the linked
// bettors' list and opening or reloading the tip list window are the caller's.
void Po_Otevreni_Tipu(Stav_Tipu& stav, const QString& cesta);
