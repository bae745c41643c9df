#pragma once
// The bettors' list of a tip file (.szn): who paid how much for one draw, each one's share in per
// cent and share of the last win. The file is the records one after another, nothing else; the
// week, the date of the draw, the commission and Šance are kept in the first record only.

#include "core/Vb.h"
#include "core/Vysledek.h"

#include <QByteArray>
#include <QString>
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
