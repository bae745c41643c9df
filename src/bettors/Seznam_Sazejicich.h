#pragma once
// The bettors' list of a tip file (.szn): who paid how much for one draw, each one's share in per
// cent and share of the last win. The file is the records one after another, nothing else; the
// week, the date of the draw, the commission and Šance are kept in the first record only.

#include "core/Vb.h"
#include "core/Vysledek.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

struct Sazejici {
    uint8_t Tyden = 0;
    QString Tah_Dne; // the date of the draw as typed
    QString Provize; // commission in per cent as typed
    QString Jmeno;
    Vb::Mena Vklad; // crowns
    Vb::Mena Podil; // per cent, one decimal
    Vb::Mena Vyhra; // crowns, two decimals
    uint8_t Sance = 0;
    friend bool operator==(const Sazejici&, const Sazejici&) = default;
};

// One record is 32 bytes and its three texts.
inline constexpr int Pevna_Delka_Sazejiciho = 32;
// A list is a few hundred bytes; a file far larger is no list.
inline constexpr qint64 Nejvic_Seznamu = 16 * 1024 * 1024;

// The records of a file; a file that ends inside a record is refused with the reason, naming the
// file, and nothing is taken from it.
Vysledek Cti_Seznam(const QByteArray& bajty, const QString& jmeno, std::vector<Sazejici>& seznam);
QByteArray Zapis_Seznam(const std::vector<Sazejici>& seznam);

// The open list of the session: Seznam with its count, the file it came from, and whether it has
// changed since.
struct Stav_Seznamu {
    std::vector<Sazejici> Seznam;
    QString Seznam_Jmeno; // the list's file name with its extension
    bool Zmena_Seznamu = false;
    int Pocet_Sazejicich() const { return int(Seznam.size()); }
    void Vyprazdni() { *this = {}; }
};

// Nacti_Seznam(cesta): the list of a file, which then is the open list. An empty file is deleted
// and leaves no list open; a damaged or unreadable one is refused with the reason and leaves the
// open list as it was.
Vysledek Nacti_Seznam(Stav_Seznamu& stav, const QString& cesta);
// Uloz_Seznam: the records to `cesta`, replaced whole or not at all; the list's name follows.
Vysledek Uloz_Seznam(Stav_Seznamu& stav, const QString& cesta);

// The largest stake one bettor may put in, and the widest name (in twips) the list takes.
inline constexpr double Nejvetsi_Vklad = 50000;
inline constexpr int Nejsirsi_Jmeno = 2100;
// The width of a name as the lists measure it when they align their columns with blanks: each
// character as wide as a blank (45 twips), which is what it is in the lists' monospaced font.
// The windows and tombi-cli align alike.
int Sirka_Jmena(const QString& jmeno);
// The line of List1: the name, blanks to (2050 - its width) / 45, a tab, the stake " ### ### ###",
// a tab, three blanks and the share "##0.0".
QString Radek_Seznamu(const Sazejici& s);
// Pridej_Sazejiciho: a bettor with a name and a stake, checked as the window checks them, and the
// shares of all worked out anew. The stakes together may not pass `nejvic_celkem` (the price of the
// most tips a file holds; 0 is no limit). With `krome` the bettor of that index is repaired: he may
// keep his own name.
Vysledek Pridej_Sazejiciho(std::vector<Sazejici>& seznam, const QString& jmeno, double vklad, double nejvic_celkem,
                           int krome = -1);
// The sum of the stakes.
double Celkem_Vkladu(const std::vector<Sazejici>& seznam);

// The money of the list (Vypis_Seznam and Prepocti_Tipy): the sum of the stakes, the commission in
// crowns, what is left for the tips, and the tips, tickets and rest that this pays for at the
// tip's price, each ticket costing `cena_sance` more while Šance is played.
struct Penize_Seznamu {
    double Vklad = 0;
    double Provize = 0;
    double Na_Tipy = 0;
    double Pocet_Tipu = 0;
    double Pocet_Tiketu = 0;
    double Zbytek = 0;
};
Penize_Seznamu Spocti_Penize(const std::vector<Sazejici>& seznam, double provize_procent, double cena_tipu,
                             double cena_sance);

// Prepocti_Podily: the share of each bettor with a stake above 0, Vklad * (100 / celkem), to one
// decimal as the list shows it. The shares are not corrected to add up to 100.
void Prepocti_Podily(std::vector<Sazejici>& seznam, double celkem);

// The split of a win: each named bettor's Vyhra is Podil per cent of `celkem`, rounded to
// hundredths on its own, so the shares may differ from the win by hundredths. The lines of
// lstSazejiciVypis: the name, blanks to (2000 - its width in twips) / 45, the share; then an empty
// line and the sum shared out, in hundredths. A win that is not above 0, or no bettor, gives no lines.
QStringList Rozdel_Vyhru(std::vector<Sazejici>& seznam, double celkem);
