#include "core/Random.h"

#include "core/Vb.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace {

constexpr uint32_t Maska_24 = 0xFFFFFF;
constexpr int64_t Modul_Sifry = 32768;

// Odd keys for a cipher whose caller left them out; 4k + 1 and odd keep the full period.
constexpr int32_t Vychozi_Nasobitel = 4 * 1103 + 1;
constexpr int32_t Vychozi_Prirustek = 2 * 6173 + 1;

// The remainder that stays non-negative, so the state never leaves 0..32767.
int64_t Zbytek_Nezaporny(int64_t a, int64_t m) {
    const int64_t r = a % m;
    return r < 0 ? r + m : r;
}

// Letter value of the cipher's 64-letter alphabet, -1 for a character that takes no part.
int Hodnota_Pismene(char16_t k) {
    if (k >= u'0' && k <= u'9')
        return k - u'0';
    if (k >= 63 && k <= 90)
        return k - 63 + 10;
    if (k >= 97 && k <= 122)
        return k - 97 + 38;
    return -1;
}

char16_t Pismeno(int v) {
    if (v < 10)
        return char16_t(u'0' + v);
    if (v < 38)
        return char16_t(63 + v - 10);
    return char16_t(97 + v - 38);
}

uint64_t Promichej_64(uint64_t z) {
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

constexpr uint64_t Zlaty_Krok = 0x9E3779B97F4A7C15ull;

} // namespace

Zdroj_Seminka::Zdroj_Seminka(uint64_t seminko) : Stav(Promichej_64(seminko + Zlaty_Krok)) {}

float Zdroj_Seminka::Rnd() {
    // A 64-bit congruential step; its top 24 bits are the value, which is all a float holds.
    Stav = Stav * 6364136223846793005ull + 1442695040888963407ull;
    Posledni = float(Stav >> 40) / 16777216.0f;
    return Posledni;
}

float Zdroj_Seminka::Rnd(float x) {
    if (x < 0) {
        Stav = Promichej_64(uint64_t(std::bit_cast<uint32_t>(x)) * Zlaty_Krok);
        return Rnd();
    }
    if (x == 0)
        return Posledni;
    return Rnd();
}

void Zdroj_Seminka::Randomize() {
    static QElapsedTimer hodiny;
    if (!hodiny.isValid())
        hodiny.start();
    Randomize(double(QDateTime::currentMSecsSinceEpoch()) + double(hodiny.nsecsElapsed() % 1000000) / 1e6);
}

void Zdroj_Seminka::Randomize(double x) {
    Stav = Promichej_64(Stav ^ (std::bit_cast<uint64_t>(x) * Zlaty_Krok));
}

float Zdroj_Casovy::Rnd() {
    Stav = uint32_t((uint64_t(Stav) * 1140671485u + 12820163u) & Maska_24);
    Posledni = float(Stav) / 16777216.0f;
    return Posledni;
}

float Zdroj_Casovy::Rnd(float x) {
    if (x < 0) {
        const uint32_t bity = std::bit_cast<uint32_t>(x);
        Stav = (bity + (bity >> 24)) & Maska_24;
        return Rnd();
    }
    if (x == 0)
        return Posledni;
    return Rnd();
}

void Zdroj_Casovy::Randomize() {
    // Wall clock and a monotonic nanosecond count, stirred so that two starts within one
    // millisecond still part.
    static QElapsedTimer hodiny;
    if (!hodiny.isValid())
        hodiny.start();
    uint64_t z =
        uint64_t(QDateTime::currentMSecsSinceEpoch()) * 0x9E3779B97F4A7C15ull ^ uint64_t(hodiny.nsecsElapsed());
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    z ^= z >> 31;
    Stav = uint32_t(z & Maska_24);
}

void Zdroj_Casovy::Randomize(double x) {
    // The high word of the double, folded to 16 bits, replaces the upper two bytes of the state.
    const uint64_t bity = std::bit_cast<uint64_t>(x);
    const uint32_t horni = uint32_t(bity >> 32);
    const uint32_t slozeno = (horni ^ (horni >> 16)) & 0xFFFF;
    Stav = (Stav & 0xFF) | (slozeno << 8);
}

Zdroj_Casovy& Zdroj_Casovy::Sdileny() {
    static Zdroj_Casovy zdroj;
    return zdroj;
}

Random::Random() : Random(Zdroj_Casovy::Sdileny()) {}

Random::Random(Zdroj_Nahody& zdroj) : Pouzity_Zdroj(&zdroj) {
    Reset();
}

void Random::Reset() {
    for (int k = 1; k <= 16; ++k)
        Tabulka[k] = 1.0 / k;
    Index_I = 8;
    Index_J = 5;
}

void Random::Mix(double x) {
    Index_I = int16_t((Index_I + 1) % 17);
    Index_J = int16_t((Index_J + 1) % 17);
    double& t = Tabulka[Index_I];
    t = Tabulka[Index_J] + t + x;
    t = t - Vb::Int(t);
    // A source outside [0, 1) could round the fraction up to 1 or make it NaN; the table must stay in 0..1.
    if (!(t >= 0.0 && t < 1.0))
        t = 0.0;
}

double Random::operator()() {
    Mix(Pouzity_Zdroj->Rnd());
    return Tabulka[Index_I];
}

void Random::Shuffle(double seed) {
    Reset();
    const QString text = Vb::Text(seed);
    for (QChar c : text)
        Mix(1.0 / c.unicode());
    const double znamenko = seed > 0 ? 1.0 : seed < 0 ? -1.0 : 0.0;
    // A negative seed restarts the source, so the same seed gives the same table.
    const float r = Pouzity_Zdroj->Rnd(float(znamenko * Tabulka[Index_I]));
    Pouzity_Zdroj->Randomize(r);
    for (int k = 0; k < 46; ++k)
        Mix(Pouzity_Zdroj->Rnd());
}

int32_t Random::RandomInt() {
    const double rozsah = double(int64_t(Horni_Mez) - int64_t(Dolni_Mez) + 1);
    const int64_t v = int64_t(Dolni_Mez) + int64_t(std::floor(rozsah * (*this)()));
    return int32_t(std::clamp<int64_t>(v, std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()));
}

void Random::Cipher(QString& text, std::optional<int32_t> a, std::optional<int32_t> b, std::optional<int32_t> c) {
    if (a)
        Sifra_Stav = *a;
    if (b)
        Sifra_Nasobitel = int32_t(Zbytek_Nezaporny(4 * int64_t(*b) + 1, Modul_Sifry));
    else if (Sifra_Nasobitel == 0)
        Sifra_Nasobitel = Vychozi_Nasobitel;
    if (c)
        Sifra_Prirustek = int32_t(Zbytek_Nezaporny(2 * int64_t(*c) + 1, Modul_Sifry));
    else if (Sifra_Prirustek == 0)
        Sifra_Prirustek = Vychozi_Prirustek;

    for (QChar& znak : text) {
        const int v = Hodnota_Pismene(znak.unicode());
        if (v < 0)
            continue;
        Sifra_Stav = int32_t(
            Zbytek_Nezaporny(int64_t(Sifra_Nasobitel) * int64_t(Sifra_Stav) + int64_t(Sifra_Prirustek), Modul_Sifry));
        znak = QChar(Pismeno(v ^ (Sifra_Stav % 64)));
    }
}

void Random::Zamichej_Podle_Casu() {
    Pouzity_Zdroj->Randomize();
    Shuffle(Pouzity_Zdroj->Rnd());
}
