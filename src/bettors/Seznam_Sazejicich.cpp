#include "bettors/Seznam_Sazejicich.h"

#include "core/pTikety.h"
#include "data/Soubory.h"

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

QStringList Rozdel_Vyhru(std::vector<Sazejici>& seznam, double celkem) {
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
        const int mezer = std::max(0, (2000 - Sirka_Jmena(s.Jmeno)) / 45);
        radky << s.Jmeno + QString(mezer, u' ') + Vb::Format(s.Vyhra.Korun(), u"### ### ##0.00");
    }
    // The sum keeps its hundredths as the lines do: rounded to crowns it would not be their sum.
    radky << QString() << u"   CELKEM               "_qs + Vb::Format(rozdeleno.Korun(), u"### ### ##0.00") + u" Kč"_qs;
    return radky;
}

Vysledek Nacti_Seznam(Stav_Seznamu& stav, const QString& cesta) {
    const QString jmeno = Jmeno_Bez_Adresare(cesta);
    const Nacteny_Soubor soubor = Nacti_Soubor(cesta, Nejvic_Seznamu);
    if (!soubor.Ok())
        return Vysledek::Chyba(soubor.Zprava(jmeno));
    std::vector<Sazejici> seznam;
    const Vysledek cteni = Cti_Seznam(soubor.Data, jmeno, seznam);
    if (!cteni.Ok())
        return cteni;
    stav.Vyprazdni();
    if (seznam.empty())
        return Smaz_Soubor(cesta);
    stav.Seznam = std::move(seznam);
    stav.Seznam_Jmeno = jmeno;
    stav.Zmena_Seznamu = true;
    return Vysledek::Uspech();
}

Vysledek Uloz_Seznam(Stav_Seznamu& stav, const QString& cesta) {
    const Vysledek ulozeni = Uloz_Soubor(cesta, Zapis_Seznam(stav.Seznam));
    if (ulozeni.Ok())
        stav.Seznam_Jmeno = Jmeno_Bez_Adresare(cesta);
    return ulozeni;
}

int Sirka_Jmena(const QString& jmeno) {
    return int(std::min<qsizetype>(jmeno.size(), 100000)) * 45;
}

QString Radek_Seznamu(const Sazejici& s) {
    const int mezer = std::max(0, (2050 - Sirka_Jmena(s.Jmeno)) / 45);
    return s.Jmeno + QString(mezer, u' ') + u'\t' + Vb::Format(s.Vklad.Korun(), u" ### ### ###") + u"\t   "_qs +
           Vb::Format(s.Podil.Korun(), u"##0.0");
}

Vysledek Pridej_Sazejiciho(std::vector<Sazejici>& seznam, const QString& jmeno, double vklad, double nejvic_celkem,
                           int krome) {
    if (Sirka_Jmena(jmeno) >= Nejsirsi_Jmeno)
        return Vysledek::Chyba(u"Jméno je příliš dlouhé, prosím zkrátit !!!"_qs);
    if (!(vklad > 0))
        return Vysledek::Chyba(u"Chybí JMÉNO nebo VKLAD."_qs);
    // The box only warns of a stake above its limit; taking it would share out more than is allowed.
    if (vklad > Nejvetsi_Vklad)
        return Vysledek::Chyba(u"Vklad jednoho sázejícího smí být nejvýše 50 000 Kč."_qs);
    for (std::size_t i = 0; i < seznam.size(); ++i)
        if (int(i) != krome && seznam[i].Jmeno == jmeno)
            return Vysledek::Chyba(u"Pozor, jméno již v seznamu nebo není zadáno ..."_qs);
    if (jmeno.isEmpty())
        return Vysledek::Chyba(u"Pozor, jméno již v seznamu nebo není zadáno ..."_qs);
    const double stary = krome >= 0 && std::size_t(krome) < seznam.size() ? seznam[std::size_t(krome)].Vklad.Korun() : 0;
    if (nejvic_celkem > 0 && Celkem_Vkladu(seznam) - stary + vklad > nejvic_celkem)
        return Vysledek::Chyba(u"Překročena maximální výše vkladu "_qs + Vb::Format(nejvic_celkem, u"### ### ###").trimmed() +
                               u" Kč."_qs);
    Sazejici s;
    if (krome >= 0 && std::size_t(krome) < seznam.size())
        s = seznam[std::size_t(krome)];
    s.Jmeno = jmeno;
    s.Vklad = Vb::Mena::Z_Korun(vklad);
    if (krome >= 0 && std::size_t(krome) < seznam.size())
        seznam[std::size_t(krome)] = s;
    else
        seznam.push_back(s);
    // The shares are of the sum of all stakes, so they are worked out again for everyone.
    Prepocti_Podily(seznam, Celkem_Vkladu(seznam));
    return Vysledek::Uspech();
}

double Celkem_Vkladu(const std::vector<Sazejici>& seznam) {
    Vb::Mena celkem;
    for (const Sazejici& s : seznam)
        celkem = celkem + s.Vklad;
    return celkem.Korun();
}

Penize_Seznamu Spocti_Penize(const std::vector<Sazejici>& seznam, double provize_procent, double cena_tipu,
                             double cena_sance) {
    Penize_Seznamu p;
    p.Vklad = Celkem_Vkladu(seznam);
    p.Provize = Vb::Int(std::clamp(provize_procent, 0.0, 100.0) / 100 * p.Vklad);
    p.Na_Tipy = Vb::Int(p.Vklad - p.Provize);
    pTikety tikety;
    tikety.Sloupcu_Na_Tiketu = 10;
    tikety.Cena_Tipu = cena_tipu;
    tikety.Cena_Tiketu = cena_sance;
    tikety.Castka = Vb::Mena::Z_Korun(p.Na_Tipy);
    p.Pocet_Tiketu = tikety.Pocet_Tiketu();
    p.Pocet_Tipu = tikety.Pocet_Tipu_Vysledek;
    p.Zbytek = tikety.Zbytek();
    return p;
}
