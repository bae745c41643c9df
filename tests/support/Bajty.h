#pragma once
// What the unit tests share: files built byte by byte, little-endian as every format of the program
// lies on disk, files read and written whole past the program's own readers and writers, and a disk
// that fills up halfway through a write.

#include "core/Vysledek.h"
#include "data/Archiv_Tahu.h"

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <functional>
#include <initializer_list>

// `pocet` bytes of the number, low byte first (a negative number in two's complement).
QByteArray Bajty(int64_t hodnota, int pocet);
// A text as records hold it: its 16-bit length, then its bytes.
QByteArray Text_S_Delkou(const QByteArray& text);

// A draw or a tip from its numbers; the cells left out stay 0.
template <class Pole> Pole Cisla(std::initializer_list<int> cisla) {
    Pole p;
    int i = 1;
    for (const int c : cisla)
        p[i++] = uint8_t(c);
    return p;
}

// The whole file, or "<chybí>" when there is none, so that a lost file never equals an empty one.
QByteArray Obsah_Souboru(const QString& cesta);
// Writes the file with a plain QFile; a failure fails the running test.
void Zapis_Souboru(const QString& cesta, const QByteArray& data);

// Runs `zapis` with room for only `volno` bytes in any file. The file-size limit stops a write
// halfway as a full disk does, and unlike a read-only folder it holds for root too.
Vysledek Pri_Plnem_Disku(int64_t volno, const std::function<Vysledek()>& zapis);

// Runs `f` as a user whom file permissions bind: root gives up its override of them meanwhile.
// False, with `f` not run, where that cannot be done.
bool Podle_Prav_Souboru(const std::function<void()>& f);

// The peak memory of the process so far, in MiB.
int64_t Spicka_Pameti_MiB();

// The archive of a draw day imported from the operator's history (TOMBI_HISTORIE), with its dates,
// lists ready.
Archiv_Tahu Archiv_Z_Historie(Den den);
