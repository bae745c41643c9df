#pragma once
// The tip generator's own uniform numbers, a lagged table stirred by a basic random source, and the
// small stream cipher that keeps the password of the lock.

#include <QString>
#include <cstdint>
#include <optional>

// The basic random source of the Basic runtime: Rnd and Randomize. Tests replace it.
class Zdroj_Nahody {
public:
    virtual ~Zdroj_Nahody() = default;
    virtual float Rnd() = 0; // the next value in [0, 1)
    // x < 0 restarts the source from x and gives its first value; 0 repeats the last value;
    // x > 0 is the same as Rnd().
    virtual float Rnd(float x) = 0;
    virtual void Randomize() = 0;         // reseeds from the clock
    virtual void Randomize(double x) = 0; // reseeds from x
};

// The built-in source: a 24-bit linear congruential generator of single-precision values, as the
// classic Basic runtime has it.
class Zdroj_Casovy final : public Zdroj_Nahody {
public:
    float Rnd() override;
    float Rnd(float x) override;
    void Randomize() override;
    void Randomize(double x) override;

    // One source for the whole process, as the runtime has one.
    static Zdroj_Casovy& Sdileny();

private:
    uint32_t Stav = 0x50000; // the runtime's start value, so an unseeded run is repeatable
    float Posledni = 0.0f;
};

// A source for one generating run: 64 bits of state taken from the run seed, so that every seed
// starts the draw somewhere else and the same seed gives the same numbers. Randomize stirs its
// value into the state instead of replacing it, so the reseeding at each ticket keeps all of it.
class Zdroj_Seminka final : public Zdroj_Nahody {
public:
    explicit Zdroj_Seminka(uint64_t seminko);
    float Rnd() override;
    float Rnd(float x) override;
    void Randomize() override;
    void Randomize(double x) override;

private:
    uint64_t Stav;
    float Posledni = 0.0f;
};

class Random final {
public:
    // Key and prefix of the password store: Pws holds Cipher of the prefix and the enciphered password.
    static constexpr int32_t Klic_Hesla_A = 19740;
    static constexpr int32_t Klic_Hesla_B = 2613;
    static constexpr int32_t Klic_Hesla_C = 7351;
    static constexpr char16_t Predpona_Hesla[] = u"73";

    int32_t Dolni_Mez = 0; // bounds of RandomInt, both can occur
    int32_t Horni_Mez = 0;
    double Tabulka[17] = {};
    int16_t Index_I = 0;
    int16_t Index_J = 0;
    int32_t Sifra_Stav = 0;
    int32_t Sifra_Nasobitel = 0;
    int32_t Sifra_Prirustek = 0;

    Random(); // over the process-wide built-in source
    explicit Random(Zdroj_Nahody& zdroj);

    void Shuffle(double seed);
    // The next number in [0, 1). It stands for the class's Random(), a name C++ keeps for the
    // constructor: with the session's instance named Random the call still reads Random().
    double operator()();
    int32_t RandomInt();
    // In-place stream cipher over the letters 0-9, ?-Z and a-z; its own inverse with the same keys.
    // Keys that are left out keep their former values.
    void Cipher(QString& text, std::optional<int32_t> a = {}, std::optional<int32_t> b = {},
                std::optional<int32_t> c = {});

    // What a generating run does first: Randomize from the clock, then Shuffle(Rnd()).
    void Zamichej_Podle_Casu();
    Zdroj_Nahody& Zdroj() const { return *Pouzity_Zdroj; }

private:
    void Mix(double x);
    void Reset();

    Zdroj_Nahody* Pouzity_Zdroj;
};
