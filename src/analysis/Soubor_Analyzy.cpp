#include "analysis/Soubor_Analyzy.h"

#include "core/Vb.h"
#include "data/Nastaveni.h"
#include "data/Soubory.h"

#include <QFile>
#include <QLocale>

namespace {

const QString Hvezdicky(33, u'*');

// A line as the file takes it: quoted, then CR LF; line ends inside become CR LF too.
QByteArray Retezec(QString text) {
    text.replace(u"\r\n"_qs, u"\n"_qs).replace(u'\n', u"\r\n"_qs);
    return Vb::Do_1250(QString(u'"' + text + u"\"\r\n"_qs));
}

Vysledek Pripoj(const QString& cesta, const QByteArray& data) {
    QFile soubor(cesta);
    if (!soubor.open(QIODevice::WriteOnly | QIODevice::Append) || soubor.write(data) != data.size() ||
        !soubor.flush())
        return Vysledek::Chyba(u"Do souboru \""_qs + Jmeno_Bez_Adresare(cesta) + u"\" nelze zapisovat: "_qs +
                               soubor.errorString());
    return Vysledek::Uspech();
}

} // namespace

QString Cesta_Analyzy(const Nastaveni_Zaznam& nastaveni) {
    return Spoj_Cestu(nastaveni.Adresare[3], Soubor_Analyzy);
}

Vysledek Zapis_Analyza(const Nastaveni_Zaznam& n, int typ, const QString& text_1, const QString& text_2,
                       const QString& text_oba) {
    if (n.Zapis_Analyzy == 0 || typ < 0 || typ > 2 || !Vb::Je_Pravda(n.Zapis_Tahu[std::size_t(typ)]))
        return Vysledek::Uspech();
    const QString& text = typ == 0 ? text_oba : typ == 1 ? text_1 : text_2;
    return Pripoj(Cesta_Analyzy(n), Retezec(text + u'\n'));
}

Vysledek Zahlavi_Analyza(const Nastaveni_Zaznam& n, bool& analyza_zahlavi, const QDateTime& kdy) {
    const QString cesta = Cesta_Analyzy(n);
    if (n.Spojovat_Soubor == 0) {
        if (const Vysledek smazani = Smaz_Soubor(cesta); !smazani.Ok())
            return smazani;
        analyza_zahlavi = false;
    }
    const QLocale cesky(QLocale::Czech, QLocale::CzechRepublic);
    const QString cas = u"      v "_qs + cesky.toString(kdy.time(), QLocale::ShortFormat) + u" hod."_qs;
    const QString hlava = analyza_zahlavi ? cas : u" dne "_qs + cesky.toString(kdy.date(), QLocale::ShortFormat) + cas;
    const Vysledek zapis = Pripoj(cesta, Retezec(Hvezdicky) + Retezec(hlava) + Retezec(Hvezdicky));
    if (zapis.Ok())
        analyza_zahlavi = true;
    return zapis;
}

Vysledek Ocisti_Analyza(const Nastaveni_Zaznam& n) {
    const QString cesta = Cesta_Analyzy(n);
    const Nacteny_Soubor soubor = Nacti_Soubor(cesta, Nejvic_Textu);
    if (!soubor.Ok())
        return Vysledek::Chyba(soubor.Zprava(Soubor_Analyzy));
    if (!soubor.Data.contains('"'))
        return Vysledek::Uspech();
    QByteArray data = soubor.Data;
    data.replace('"', ' ');
    return Uloz_Soubor(cesta, data);
}
