#include "bettors/Seznam_Sazejicich.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>

namespace {

// Reads one 16-bit length and its text at `i`; false when the bytes end first.
bool Cti_Text(const QByteArray& b, qsizetype& i, QString& text) {
    if (b.size() - i < 2)
        return false;
    const quint16 delka = qFromLittleEndian<quint16>(b.constData() + i);
    i += 2;
    if (b.size() - i < delka)
        return false;
    text = Vb::Z_1250(b.mid(i, delka));
    i += delka;
    return true;
}

void Zapis_Text(QByteArray& b, const QString& text) {
    QByteArray bajty = Vb::Do_1250(text);
    bajty.truncate(0xFFFF); // the length field holds no more
    char delka[2];
    qToLittleEndian<quint16>(quint16(bajty.size()), delka);
    b.append(delka, 2);
    b.append(bajty);
}

Vb::Mena Cti_Menu(const char* p) {
    return Vb::Mena::Z_Hodnoty(qFromLittleEndian<qint64>(p));
}

void Zapis_Menu(QByteArray& b, Vb::Mena m) {
    char p[8];
    qToLittleEndian<qint64>(m.Hodnota, p);
    b.append(p, 8);
}

} // namespace

Vysledek Cti_Seznam(const QByteArray& b, const QString& jmeno, std::vector<Sazejici>& seznam) {
    std::vector<Sazejici> nove;
    qsizetype i = 0;
    while (i < b.size()) {
        Sazejici s;
        s.Tyden = uint8_t(b[i++]);
        bool cely =
            Cti_Text(b, i, s.Tah_Dne) && Cti_Text(b, i, s.Provize) && Cti_Text(b, i, s.Jmeno) && b.size() - i >= 25;
        if (!cely)
            return Vysledek::Chyba(u"Soubor seznamu \""_qs + jmeno + u"\" je poškozený: záznam č. "_qs +
                                   QString::number(nove.size() + 1) + u" není celý. Seznam nebyl načten."_qs);
        s.Vklad = Cti_Menu(b.constData() + i);
        s.Podil = Cti_Menu(b.constData() + i + 8);
        s.Vyhra = Cti_Menu(b.constData() + i + 16);
        s.Sance = uint8_t(b[i + 24]);
        i += 25;
        nove.push_back(std::move(s));
    }
    seznam = std::move(nove);
    return Vysledek::Uspech();
}

QByteArray Zapis_Seznam(const std::vector<Sazejici>& seznam) {
    QByteArray b;
    for (const Sazejici& s : seznam) {
        b.append(char(s.Tyden));
        Zapis_Text(b, s.Tah_Dne);
        Zapis_Text(b, s.Provize);
        Zapis_Text(b, s.Jmeno);
        Zapis_Menu(b, s.Vklad);
        Zapis_Menu(b, s.Podil);
        Zapis_Menu(b, s.Vyhra);
        b.append(char(s.Sance));
    }
    return b;
}

void Prepocti_Podily(std::vector<Sazejici>& seznam, double celkem) {
    for (Sazejici& s : seznam)
        if (s.Vklad.Korun() > 0 && celkem > 0)
            s.Podil =
                Vb::Mena::Z_Korun(Vb::Val(Vb::Format(s.Vklad.Korun() * (100 / celkem), u"##0.0").replace(u',', u'.')));
}

QStringList Rozdel_Vyhru(std::vector<Sazejici>& seznam, double celkem,
                         const std::function<int(const QString&)>& sirka_twipu) {
    QStringList radky;
    if (seznam.empty() || !(celkem > 0))
        return radky;
    const double procento = celkem / 100;
    Vb::Mena rozdeleno;
    for (Sazejici& s : seznam) {
        if (s.Jmeno.isEmpty())
            continue;
        s.Vyhra = Vb::Mena::Z_Korun(Vb::Val(Vb::Format(s.Podil.Korun() * procento, u"0.00").replace(u',', u'.')));
        rozdeleno = rozdeleno + s.Vyhra;
        const int mezer = std::max(0, (2000 - sirka_twipu(s.Jmeno)) / 45);
        radky << s.Jmeno + QString(mezer, u' ') + Vb::Format(s.Vyhra.Korun(), u"### ### ##0.00");
    }
    // The sum keeps its hundredths as the lines do: rounded to crowns it would not be their sum.
    radky << QString() << u"   CELKEM               "_qs + Vb::Format(rozdeleno.Korun(), u"### ### ##0.00") + u" Kč"_qs;
    return radky;
}
