#pragma once
// Files of selected numbers (.vyb): one record of 105 bytes with the wheel's index, the numbers to
// use or to leave out, and the tutovky.

#include "core/Pole_Od_1.h"
#include "core/Vysledek.h"
#include "generator/Vyber_Cisel.h"
#include "generator/modRozpisy.h"

#include <QByteArray>
#include <QString>
#include <cstdint>

struct Zaznam_Vyb {
    uint8_t Rozpis = 0; // index of lstSportka when saved
    uint8_t Pocet_Cisel = 0;
    Seznam_Cisel Cisla; // "Použít" or the wheel's numbers, without tutovky
    uint8_t Pocet_Vynechat = 0;
    Seznam_Cisel Vynechat;
    uint8_t Pocet_Tutovek = 0;
    Pole_Od_1<uint8_t, 3> Tutovky;
    friend bool operator==(const Zaznam_Vyb&, const Zaznam_Vyb&) = default;
};

inline constexpr int Delka_Zaznamu_Vyb = 105;
// Any file is read as far as the record goes; this keeps a huge file of another kind out.
inline constexpr qint64 Nejvic_Souboru_Vyb = 64 * 1024;
inline const QString Filtr_Souboru_Vyb = QStringLiteral("Soubor vybraných čísel (*.vyb)|*.vyb");

// A short file leaves the rest of the record 0; bytes past it are ignored. Any bytes are accepted.
Zaznam_Vyb Cti_Zaznam_Vyb(const QByteArray& bajty);
// Exactly Delka_Zaznamu_Vyb bytes.
QByteArray Zapis_Zaznam_Vyb(const Zaznam_Vyb& zaznam);

// Empty when the record can be applied; otherwise the Czech reason (a count or a number out of
// range, a wheel that the catalogue does not have).
QString Chyba_Zaznamu_Vyb(const Zaznam_Vyb& zaznam);

// Saving: the record of the list in force. `rozpis` is lstSportka's index; the filled boxes become
// the tutovky, also of the window (Pocet_Tutovek = the record's).
Zaznam_Vyb Zaznam_Z_Vyberu(const Vyber_Cisel& v, int rozpis, const Boxy_Tutovek& boxy);
// The name the save dialog offers: tutovky, "_" and numbers, "3_15".
QString Navrh_Jmena_Vyb(const Zaznam_Vyb& zaznam);
Vysledek Uloz_Soubor_Vyb(const QString& cesta, const Zaznam_Vyb& zaznam);

// Opening, in two steps around the window's own: read the record (a failure leaves `zaznam` as it
// was), set lstSportka to its Rozpis, then apply it to the pools and the boxes.
Vysledek Nacti_Soubor_Vyb(const QString& cesta, Zaznam_Vyb& zaznam);
void Pouzij_Zaznam_Vyb(Vyber_Cisel& v, const Zaznam_Vyb& zaznam, Boxy_Tutovek& boxy);
