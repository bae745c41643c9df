#pragma once
// The bettors' list of a tip file (.szn): who paid how much for one draw, each one's share in per
// cent and share of the last win. The file is the records one after another, nothing else; the
// week, the date of the draw, the commission and Šance are kept in the first record only.

#include "core/Vb.h"
#include "core/Vysledek.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
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

// Prepocti_Podily: the share of each bettor with a stake above 0, Vklad * (100 / celkem), to one
// decimal as the list shows it. The shares are not corrected to add up to 100.
void Prepocti_Podily(std::vector<Sazejici>& seznam, double celkem);

// The split of a win: each named bettor's Vyhra is Podil per cent of `celkem`, rounded to
// hundredths on its own, so the shares may differ from the win by hundredths. The lines of
// lstSazejiciVypis: the name, blanks to (2000 - its width in twips) / 45, the share; then an empty
// line and the sum shared out, in hundredths. A win that is not above 0, or no bettor, gives no lines.
// `sirka_twipu` measures a name in the list's font.
QStringList Rozdel_Vyhru(std::vector<Sazejici>& seznam, double celkem,
                         const std::function<int(const QString&)>& sirka_twipu);
