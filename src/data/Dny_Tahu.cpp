#include "data/Dny_Tahu.h"

#include "data/Archiv_Tahu.h"
#include "data/Soubory.h"

#include <QByteArrayView>
#include <optional>

namespace {

// Why a line is no date of a draw, or nothing.
std::optional<QString> Vada_Radku(const QList<QByteArrayView>& pole, int& rok, int& tyden, int& tah, QDate& datum) {
    if (pole.size() != 4)
        return u"má %1 údajů místo 4"_qs.arg(pole.size());
    const auto r = Cislo_Z_Cislic(pole[0], 4), t = Cislo_Z_Cislic(pole[1], 2), h = Cislo_Z_Cislic(pole[2], 1);
    if (!r || *r < 1)
        return u"rok není číslo 1 až 9999"_qs;
    if (!t || *t < 1 || *t > 53)
        return u"týden není číslo 1 až 53"_qs;
    if (!h || *h < 1 || *h > 2)
        return u"tah není 1 ani 2"_qs;
    datum = Datum_Z_Textu(pole[3]);
    if (!datum.isValid())
        return u"datum není ve tvaru dd.mm.rrrr"_qs;
    rok = *r;
    tyden = *t;
    tah = *h;
    return std::nullopt;
}

} // namespace

QByteArrayView Orez(QByteArrayView text) {
    qsizetype a = 0, b = text.size();
    while (a < b && (text[a] == ' ' || text[a] == '\t'))
        ++a;
    while (b > a && (text[b - 1] == ' ' || text[b - 1] == '\t'))
        --b;
    return text.sliced(a, b - a);
}

std::optional<int> Cislo_Z_Cislic(QByteArrayView text, int cislic) {
    text = Orez(text);
    if (text.isEmpty() || text.size() > cislic)
        return std::nullopt;
    int n = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return std::nullopt;
        n = n * 10 + (c - '0');
    }
    return n;
}

QDate Datum_Z_Textu(QByteArrayView text) {
    const qsizetype a = text.indexOf('.');
    const qsizetype b = a < 0 ? -1 : text.indexOf('.', a + 1);
    if (b < 0)
        return {};
    const auto den = Cislo_Z_Cislic(text.first(a), 2);
    const auto mesic = Cislo_Z_Cislic(text.sliced(a + 1, b - a - 1), 2);
    const auto rok = Cislo_Z_Cislic(text.sliced(b + 1), 4);
    return den && mesic && rok ? QDate(*rok, *mesic, *den) : QDate();
}

QString Soubor_Dnu(const QString& soubor_tahu) {
    if (soubor_tahu.endsWith(u".sez"_qs, Qt::CaseInsensitive))
        return soubor_tahu.chopped(4) + u".dny"_qs;
    return soubor_tahu + u".dny"_qs;
}

Dny_Tahu Cti_Dny(const QByteArray& bajty) {
    Dny_Tahu dny;
    int cislo_radku = 0;
    QList<QByteArrayView> pole;
    for (qsizetype o = 0; o < bajty.size();) {
        ++cislo_radku;
        qsizetype konec = bajty.indexOf('\n', o);
        if (konec < 0)
            konec = bajty.size();
        QByteArrayView radek = QByteArrayView(bajty).sliced(o, konec - o).trimmed();
        o = konec + 1;
        if (radek.isEmpty())
            continue;
        pole.clear();
        for (qsizetype a = 0; a < radek.size();) {
            qsizetype b = a;
            while (b < radek.size() && radek[b] != ' ' && radek[b] != '\t')
                ++b;
            if (b > a)
                pole.append(radek.sliced(a, b - a));
            a = b + 1;
        }
        int rok = 0, tyden = 0, tah = 0;
        QDate datum;
        if (const auto vada = Vada_Radku(pole, rok, tyden, tah, datum)) {
            // One line is enough to tell the user where to look.
            if (dny.Vadne_Radky.isEmpty())
                dny.Vadne_Radky = u"řádek "_qs + QString::number(cislo_radku) + u": "_qs + *vada;
            continue;
        }
        dny.Pridej(rok, tyden, tah, datum);
    }
    return dny;
}

QByteArray Zapis_Dny(const Dny_Tahu& dny) {
    QByteArray bajty;
    bajty.reserve(qsizetype(dny.Data.size()) * 22);
    for (const auto& [klic, datum] : dny.Data) {
        const auto& [rok, tyden, tah] = klic;
        bajty += QByteArray::number(rok) + ' ' + QByteArray::number(tyden) + ' ' + QByteArray::number(tah) + ' ' +
                 datum.toString(u"dd.MM.yyyy").toLatin1() + "\r\n";
    }
    return bajty;
}

Dny_Tahu Nacti_Dny(const QString& adresar, const QString& soubor_tahu) {
    const Nacteny_Soubor nacteny = Nacti_Soubor(Spoj_Cestu(adresar, Soubor_Dnu(soubor_tahu)), Nejvic_Dnu);
    return nacteny.Ok() ? Cti_Dny(nacteny.Data) : Dny_Tahu{};
}

Vysledek Uloz_Dny(const Dny_Tahu& dny, const QString& adresar, const QString& soubor_tahu) {
    const QString cesta = Spoj_Cestu(adresar, Soubor_Dnu(soubor_tahu));
    if (dny.Data.empty())
        return Smaz_Soubor(cesta);
    return Uloz_Soubor(cesta, Zapis_Dny(dny));
}

QDate Datum_Tahu(const Archiv_Tahu& archiv, int tah, int rok, int tyden) {
    if (const auto it = archiv.Dny.Data.find({rok, tyden, tah}); it != archiv.Dny.Data.end())
        return it->second;
    const auto den = Den_Souboru_Tahu(archiv.Soubor_Tahu);
    if (!den || rok < 1 || rok > 9999 || tyden < 1 || tyden > 53)
        return {};
    // 4 January always lies in ISO week 1.
    const QDate ctvrty_leden(rok, 1, 4);
    const QDate pondeli = ctvrty_leden.addDays(1 - ctvrty_leden.dayOfWeek());
    return pondeli.addDays(7 * (tyden - 1) + Iso_Den_Tydne(*den) - 1);
}

QString Den_Tahu_Text(const Archiv_Tahu& archiv, int tah, int rok, int tyden) {
    const QDate datum = Datum_Tahu(archiv, tah, rok, tyden);
    return datum.isValid() ? u' ' + datum.toString(u"dd.MM.yyyy") + u' ' : QString();
}
