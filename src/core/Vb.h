#pragma once
// The arithmetic, conversions and formats of the Basic this program's files and texts come from.
// Every unit that reads a number from text, writes one, or shows money goes through here, so that
// "Val", "Str", integer division and the format masks mean the same thing everywhere.

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QStringView>

#include <compare>
#include <cstdint>

namespace Vb {

// 16-bit Booleans of records and files.
inline constexpr int16_t Pravda = -1;
inline constexpr int16_t Nepravda = 0;
// Only -1 counts as true in a record.
inline bool Je_Pravda(int16_t hodnota) { return hodnota == Pravda; }
inline int16_t Bool16(bool b) { return b ? Pravda : Nepravda; }

// Val: reads a number from the start of the text. Blanks, tabs and line feeds are skipped
// wherever they stand; a sign, digits, one decimal point and an exponent (E or D) are taken;
// reading stops at the first other character. No number gives 0.
double Val(QStringView text);
double Val(const QByteArray& bajty);

// Str: the decimal text of a number with one leading blank if it is not negative ("Str(5)" is " 5").
// A double is written with at most 15 significant digits, without a trailing ".0".
QString Str(int64_t n);
QString Str(double x);
// The same text without the leading blank (what the Basic gives when a number meets a string).
QString Text(double x);

// Int: rounds down (Int(-1.5) is -2).
double Int(double x);

// Round half to even, as the Basic does when a fractional value becomes an integer.
int64_t Zaokrouhli(double x);

// a \ b: both operands rounded to whole numbers first, then the quotient cut towards zero.
// A divisor of 0 gives 0 (the Basic would stop with an error; here the caller sees nothing odd).
int64_t Div(double a, double b);

// a mod b: both rounded first; the remainder keeps the sign of a. A divisor of 0 gives 0.
int64_t Mod(double a, double b);

// Numbers compared as text: "9" sorts after "10". Compares the Str-less decimal texts.
std::strong_ordering Porovnej_Jako_Text(double a, double b);
std::strong_ordering Porovnej_Jako_Text(QStringView a, QStringView b);

// Format with a mask: '#' is a digit if there is one, '0' a digit or zero, '.' the decimal point
// (shown as a Czech decimal comma), every other character stands for itself, also left of the
// first digit: Format(5, "### ###") is " 5". Digits that do not fit stand before the first
// placeholder. The value is rounded half away from zero to the places after the point, on its
// 15-digit decimal text (1.005 gives "1,01"); a negative value has '-' before its first digit.
// A date takes d, dd, m, mm, yy and yyyy ("dd.mm.yy"); an invalid date gives an empty text.
QString Format(double x, QStringView maska);
QString Format(const QDate& datum, QStringView maska);

// Currency: a signed 64-bit count of ten-thousandths of a crown.
struct Mena {
    int64_t Hodnota = 0;

    static Mena Z_Korun(double korun);      // rounded half to even at the fourth place
    static Mena Z_Hodnoty(int64_t hodnota); // raw ten-thousandths
    double Korun() const;
    QString Text() const; // plain decimal, '.' as point, no trailing zeros: "12.5", "-3", "0.0001"

    friend Mena operator+(Mena a, Mena b) { return Z_Hodnoty(a.Hodnota + b.Hodnota); }
    friend Mena operator-(Mena a, Mena b) { return Z_Hodnoty(a.Hodnota - b.Hodnota); }
    friend auto operator<=>(Mena a, Mena b) = default;
};

// Code page 1250 of every file. Decoding and encoding round-trip all 256 byte values.
QString Z_1250(const QByteArray& bajty);
QByteArray Do_1250(QStringView text);

} // namespace Vb
