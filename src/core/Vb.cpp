#include "core/Vb.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <vector>

namespace Vb {

namespace {

// What Val skips: blank, tab and line feed. A carriage return ends the number, so "5" CR LF "6" reads as 5.
bool Je_Mezera(char16_t c) { return c == u' ' || c == u'\t' || c == u'\n'; }

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
    // Collect the characters of the number, skipping blanks, then convert them.
    std::string cislo;
    bool cislice = false, platna = false, tecka = false, exponent = false;
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
            cislice = true;
            // Leading zeros are dropped, so that they cannot push the digits past the length cap below.
            if (c != u'0' || tecka || exponent || platna) {
                cislo += char(c);
                platna = platna || (!tecka && !exponent);
            }
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
    // from_chars ignores the C locale, which QCoreApplication sets from the environment: with a Czech
    // locale strtod would stop at the point.
    const char* zacatek = cislo.c_str();
    if (*zacatek == '+')
        ++zacatek;
    double x = 0.0;
    const auto vysledek = std::from_chars(zacatek, cislo.c_str() + cislo.size(), x);
    return vysledek.ec == std::errc() && std::isfinite(x) ? x : 0.0;
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
    // to_chars writes like printf's %.15g but never with the locale's decimal comma.
    char buf[64];
    const auto vysledek = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::general, 15);
    QString s = QString::fromLatin1(buf, vysledek.ptr - buf).toUpper();
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

namespace {

// The magnitude of a number as decimal digits, rounded half away from zero to `mist` places after
// the point. The rounding works on the 15-digit decimal text, as the value is written, so 1.005
// gives 1.01 although its binary value lies just below.
struct Dekadicke_Cislo {
    std::string Cela;   // no leading zeros; empty for an integer part of 0
    std::string Zlomek; // exactly `mist` digits
    bool Zaporne = false;
};

Dekadicke_Cislo Rozloz(double x, int mist) {
    Dekadicke_Cislo d;
    d.Zlomek.assign(std::size_t(mist), '0');
    if (!std::isfinite(x) || x == 0.0)
        return d;
    char buf[64];
    const auto vysledek = std::to_chars(buf, buf + sizeof buf, std::fabs(x), std::chars_format::scientific, 14);
    const std::string text(buf, vysledek.ptr);
    const std::size_t e = text.find('e');
    std::string cislice;
    for (std::size_t i = 0; i < e; ++i)
        if (text[i] != '.')
            cislice += text[i];
    // Digits before the point: the exponent plus one (may be negative or beyond the 15 digits).
    const int pred = std::stoi(text.substr(e + 1)) + 1;
    std::string cela, zlomek;
    if (pred <= 0) {
        zlomek = std::string(std::size_t(-pred), '0') + cislice;
    } else if (pred >= int(cislice.size())) {
        cela = cislice + std::string(std::size_t(pred) - cislice.size(), '0');
    } else {
        cela = cislice.substr(0, std::size_t(pred));
        zlomek = cislice.substr(std::size_t(pred));
    }
    const bool nahoru = int(zlomek.size()) > mist && zlomek[std::size_t(mist)] >= '5';
    zlomek.resize(std::size_t(mist), '0');
    std::string vse = cela + zlomek;
    if (nahoru) {
        int i = int(vse.size()) - 1;
        for (; i >= 0 && vse[std::size_t(i)] == '9'; --i)
            vse[std::size_t(i)] = '0';
        if (i >= 0)
            ++vse[std::size_t(i)];
        else
            vse.insert(vse.begin(), '1');
    }
    d.Cela = vse.substr(0, vse.size() - std::size_t(mist));
    d.Zlomek = vse.substr(vse.size() - std::size_t(mist));
    d.Cela.erase(0, d.Cela.find_first_not_of('0'));
    // A value that rounds to zero shows no sign.
    d.Zaporne = x < 0 && vse.find_first_not_of('0') != std::string::npos;
    return d;
}

bool Je_Zastupce(QChar c) { return c == u'#' || c == u'0'; }

} // namespace

QString Format(double x, QStringView maska) {
    const qsizetype tecka = maska.indexOf(u'.');
    const QStringView cela_maska = tecka < 0 ? maska : maska.left(tecka);
    const QStringView zlomek_maska = tecka < 0 ? QStringView() : maska.mid(tecka + 1);
    int mist = 0, posledni_nula = -1;
    for (QChar c : zlomek_maska) {
        if (c == u'0')
            posledni_nula = mist;
        if (Je_Zastupce(c))
            ++mist;
    }
    const Dekadicke_Cislo d = Rozloz(x, mist);

    // The integer part is filled from the right; each character is kept with a mark whether it is
    // a digit, so that the sign can go before the first one.
    std::vector<std::pair<QChar, bool>> vystup;
    qsizetype prvni_zastupce = -1;
    for (qsizetype i = 0; i < cela_maska.size(); ++i)
        if (Je_Zastupce(cela_maska[i])) {
            prvni_zastupce = i;
            break;
        }
    qsizetype zbyva = qsizetype(d.Cela.size());
    auto pridej_zbytek = [&]() {
        // Digits that the mask has no room for stand before its first placeholder, read backwards here.
        while (zbyva > 0)
            vystup.emplace_back(QChar(u'0' + (d.Cela[std::size_t(--zbyva)] - '0')), true);
    };
    if (prvni_zastupce < 0)
        pridej_zbytek();
    for (qsizetype i = cela_maska.size() - 1; i >= 0; --i) {
        const QChar c = cela_maska[i];
        if (!Je_Zastupce(c)) {
            vystup.emplace_back(c, false);
            continue;
        }
        if (zbyva > 0)
            vystup.emplace_back(QChar(u'0' + (d.Cela[std::size_t(--zbyva)] - '0')), true);
        else if (c == u'0')
            vystup.emplace_back(u'0', true);
        if (i == prvni_zastupce)
            pridej_zbytek();
    }
    std::reverse(vystup.begin(), vystup.end());

    if (tecka >= 0) {
        vystup.emplace_back(u',', false);
        // A '#' after the point shows its digit only while significant digits or a '0' follow.
        const std::size_t platne = d.Zlomek.find_last_not_of('0');
        const int potreba = std::max(posledni_nula, platne == std::string::npos ? -1 : int(platne));
        int k = 0;
        for (QChar c : zlomek_maska) {
            if (!Je_Zastupce(c)) {
                vystup.emplace_back(c, false);
                continue;
            }
            if (k <= potreba)
                vystup.emplace_back(QChar(u'0' + (d.Zlomek[std::size_t(k)] - '0')), true);
            ++k;
        }
    }

    QString s;
    s.reserve(qsizetype(vystup.size()) + 1);
    bool znamenko = d.Zaporne;
    for (const auto& [c, cislice] : vystup) {
        if (znamenko && cislice) {
            s += u'-';
            znamenko = false;
        }
        s += c;
    }
    if (znamenko)
        s.prepend(u'-');
    return s;
}

QString Format(const QDate& datum, QStringView maska) {
    if (!datum.isValid())
        return {};
    auto dva = [](int n) { return QString::number(n).rightJustified(2, u'0'); };
    QString s;
    qsizetype i = 0;
    while (i < maska.size()) {
        const QStringView zbytek = maska.mid(i);
        auto je = [&](QStringView vzor) { return zbytek.startsWith(vzor, Qt::CaseInsensitive); };
        if (je(u"yyyy")) {
            s += QString::number(datum.year()).rightJustified(4, u'0');
            i += 4;
        } else if (je(u"yy")) {
            s += dva(((datum.year() % 100) + 100) % 100);
            i += 2;
        } else if (je(u"dd")) {
            s += dva(datum.day());
            i += 2;
        } else if (je(u"d")) {
            s += QString::number(datum.day());
            i += 1;
        } else if (je(u"mm")) {
            s += dva(datum.month());
            i += 2;
        } else if (je(u"m")) {
            s += QString::number(datum.month());
            i += 1;
        } else {
            s += maska[i];
            i += 1;
        }
    }
    return s;
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
