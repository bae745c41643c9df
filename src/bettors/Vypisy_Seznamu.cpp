#include "bettors/Vypisy_Seznamu.h"

#include <QDir>

namespace Vypisy_Seznamu {

namespace {

QString Radek_Sazejiciho(const Sazejici& s) {
    return s.Jmeno + u'\t' + Vb::Format(s.Vklad.Korun(), u" ### ### ###") + u'\t' +
           Vb::Format(s.Podil.Korun(), u"# ##0.0") + u"\t\t"_qs;
}

} // namespace

QStringList Celkovy(const std::vector<Sazejici>& seznam, const Hlavicka& h) {
    QStringList r;
    r << u"Seznam sázejících pro tah dne   "_qs + h.Tah_Dne << QString()
      << u"   Jméno\t\tvklad  Kč\t\tpodíl %"_qs;
    for (const Sazejici& s : seznam)
        r << Radek_Sazejiciho(s);
    r << QString() << u"Celkem vsazeno  - "_qs + Vb::Format(h.Penize.Vklad, u"### ###") + u" Kč"_qs
      << u"Provize               - "_qs + h.Provize + u" %  =  "_qs + Vb::Format(h.Penize.Provize, u"### ###") +
             u" Kč"_qs
      << QString() << h.Soubor_Tipu + u"  "_qs;
    return r;
}

QStringList Jednotlivy(const Sazejici& s, const Hlavicka& h, const Zaznam_Tipu& tipy) {
    QStringList r;
    r << u"Výpis tipů pro tah dne   "_qs + h.Tah_Dne << QString() << u"  jméno              vklad  Kč    podíl %"_qs
      << Radek_Sazejiciho(s) << QString();
    r << Tipy(tipy);
    return r;
}

QString Soubor_Jednotliveho(const Sazejici& s, const QString& soubor_tipu) {
    QString jmeno = s.Jmeno + u'_' + soubor_tipu + u".txt"_qs;
    for (QChar& c : jmeno)
        if (c == u'/' || c == u'\\' || c == u':' || c.unicode() < 32)
            c = u'_';
    return jmeno;
}

QStringList Tipy(const Zaznam_Tipu& tipy) {
    QStringList r;
    for (int t = 1; t <= std::clamp<int>(tipy.Pocet_Tiketu, 0, Max_Tiketu); ++t) {
        r << QString::number(t);
        QString radek;
        int na_radku = 0;
        for (int s = 1; s <= Sloupcu_Tiketu; ++s) {
            const Tip& tip = tipy.Tikety[t].Cisla[s];
            if (tip[1] == 0)
                continue;
            for (int i = 1; i <= 6; ++i)
                radek += QString::number(tip[i]) + QString(tip[i] < 10 ? 3 : 1, u' ');
            radek += u'\t';
            if (++na_radku == 5) {
                r << radek;
                radek.clear();
                na_radku = 0;
            }
        }
        if (na_radku > 0)
            r << radek;
    }
    return r;
}

QByteArray Do_Souboru(const QStringList& radky) {
    QByteArray b;
    for (const QString& radek : radky)
        b += Vb::Do_1250(radek) + "\r\n";
    return b;
}

const std::array<QString, Pocet_Letaku> Soubory_Letaku = {
    u"L_HP320.PRN"_qs, u"L_HP520.PRN"_qs, u"L_HP560C.PRN"_qs, u"L_HP650.PRN"_qs, u"L_HPIII.PRN"_qs,
    u"L_HP4.PRN"_qs,   u"L_HP6.PRN"_qs,   u"L_LX400.PRN"_qs,  u"L_LX800.PRN"_qs,
};

QString Najdi_Letak(const QString& adresar, int index) {
    if (index < 0 || index >= Pocet_Letaku)
        return {};
    const QString& hledany = Soubory_Letaku[std::size_t(index)];
    const QDir slozka(adresar);
    for (const QString& jmeno : slozka.entryList(QDir::Files | QDir::Readable))
        if (jmeno.compare(hledany, Qt::CaseInsensitive) == 0)
            return slozka.filePath(jmeno);
    return {};
}

QStringList Prikaz_Letaku(const QString& tiskarna, const QString& cesta) {
    QStringList argumenty;
    if (!tiskarna.isEmpty())
        argumenty << u"-d"_qs << tiskarna;
    return argumenty << u"-o"_qs << u"raw"_qs << u"--"_qs << cesta;
}

} // namespace Vypisy_Seznamu
