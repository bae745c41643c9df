#include "app/Vb.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <cmath>
#include <cstdio>
#include <limits>

namespace Vb {

namespace {

bool Je_Mezera(char16_t c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r'; }

// Clamps a double to the 64-bit range before conversion, so odd input never overflows.
int64_t Na_Cele(double x) {
    if (std::isnan(x))
        return 0;
    constexpr double mez = 9.2e18;
    if (x >= mez)
        return int64_t(mez);
    if (x <= -mez)
        return -int64_t(mez);
    return int64_t(x);
}

} // namespace

double Val(QStringView text) {
    // Collect the characters of the number, skipping blanks, then let strtod read them.
    std::string cislo;
    bool cislice = false, tecka = false, exponent = false;
    qsizetype i = 0;
    const qsizetype n = text.size();
    auto dalsi = [&]() -> char16_t {
        while (i < n && Je_Mezera(text[i].unicode()))
            ++i;
        return i < n ? text[i].unicode() : u'\0';
    };
    char16_t c = dalsi();
    if (c == u'+' || c == u'-') {
        cislo += char(c);
        ++i;
    }
    for (c = dalsi(); c != u'\0'; c = dalsi()) {
        if (c >= u'0' && c <= u'9') {
            cislo += char(c);
            cislice = true;
        } else if (c == u'.' && !tecka && !exponent) {
            cislo += '.';
            tecka = true;
        } else if ((c == u'e' || c == u'E' || c == u'd' || c == u'D') && cislice && !exponent) {
            // An exponent counts only when digits follow it.
            qsizetype zpet = i;
            ++i;
            std::string exp = "e";
            char16_t z = dalsi();
            if (z == u'+' || z == u'-') {
                exp += char(z);
                ++i;
                z = dalsi();
            }
            if (!(z >= u'0' && z <= u'9')) {
                i = zpet;
                break;
            }
            cislo += exp;
            exponent = true;
            continue;
        } else {
            break;
        }
        ++i;
        if (cislo.size() > 400)
            break;
    }
    if (!cislice)
        return 0.0;
    const double x = std::strtod(cislo.c_str(), nullptr);
    return std::isfinite(x) ? x : 0.0;
}

double Val(const QByteArray& bajty) { return Val(QStringView(Z_1250(bajty))); }

QString Str(int64_t n) {
    const QString s = QString::number(n);
    return n < 0 ? s : u' ' + s;
}

QString Text(double x) {
    if (x == 0.0)
        return u"0"_qs;
    if (std::isnan(x) || std::isinf(x))
        return u"0"_qs;
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.15G", x);
    QString s = QString::fromLatin1(buf);
    // Drop the trailing zeros of a fraction, and a bare point.
    const qsizetype e = s.indexOf(u'E');
    QString mantisa = e < 0 ? s : s.left(e);
    const QString exp = e < 0 ? QString() : s.mid(e);
    if (mantisa.contains(u'.')) {
        while (mantisa.endsWith(u'0'))
            mantisa.chop(1);
        if (mantisa.endsWith(u'.'))
            mantisa.chop(1);
    }
    if (mantisa.startsWith(u"0."))
        mantisa.remove(0, 1);
    else if (mantisa.startsWith(u"-0."))
        mantisa.remove(1, 1);
    return mantisa + exp;
}

QString Str(double x) {
    const QString s = Text(x);
    return x < 0 ? s : u' ' + s;
}

double Int(double x) { return std::floor(x); }

int64_t Zaokrouhli(double x) { return Na_Cele(std::nearbyint(x)); }

int64_t Div(double a, double b) {
    const int64_t d = Zaokrouhli(b);
    if (d == 0)
        return 0;
    return Zaokrouhli(a) / d;
}

int64_t Mod(double a, double b) {
    const int64_t d = Zaokrouhli(b);
    if (d == 0)
        return 0;
    return Zaokrouhli(a) % d;
}

std::strong_ordering Porovnej_Jako_Text(QStringView a, QStringView b) {
    const int c = a.compare(b);
    return c < 0 ? std::strong_ordering::less : c > 0 ? std::strong_ordering::greater : std::strong_ordering::equal;
}

std::strong_ordering Porovnej_Jako_Text(double a, double b) {
    return Porovnej_Jako_Text(QStringView(Text(a)), QStringView(Text(b)));
}

Mena Mena::Z_Korun(double korun) { return Z_Hodnoty(Na_Cele(std::nearbyint(korun * 10000.0))); }

Mena Mena::Z_Hodnoty(int64_t hodnota) {
    Mena m;
    m.Hodnota = hodnota;
    return m;
}

double Mena::Korun() const { return double(Hodnota) / 10000.0; }

QString Mena::Text() const {
    const bool zaporna = Hodnota < 0;
    // Work on the magnitude as unsigned, so that the smallest value does not overflow.
    const uint64_t v = zaporna ? uint64_t(0) - uint64_t(Hodnota) : uint64_t(Hodnota);
    QString s = QString::number(v / 10000);
    uint64_t zlomek = v % 10000;
    if (zlomek != 0) {
        QString z = QString::number(zlomek).rightJustified(4, u'0');
        while (z.endsWith(u'0'))
            z.chop(1);
        s += u'.' + z;
    }
    return zaporna ? u'-' + s : s;
}

QString Z_1250(const QByteArray& bajty) {
    QStringDecoder d("windows-1250");
    return d.decode(bajty);
}

QByteArray Do_1250(QStringView text) {
    QStringEncoder e("windows-1250", QStringEncoder::Flag::Stateless);
    return e.encode(text);
}

} // namespace Vb
