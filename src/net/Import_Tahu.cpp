#include "net/Import_Tahu.h"

#include "core/Vb.h"
#include "core/modTombi_Zaklad.h"
#include "data/Soubory.h"

#include <QByteArrayView>
#include <QFile>

#include <algorithm>
#include <map>
#include <optional>

namespace {

// dBase layout: a header of 32 + 16 fields of 32 + 1 bytes, then records of 35 bytes.
constexpr qsizetype Zacatek_Dbf = 545;
constexpr qsizetype Delka_Zaznamu_Dbf = 35;
// Years are counted in 16 bits, as Pocet_Let is.
constexpr int Nejvic_Let = 32767;
constexpr int Sloupcu_Csv = 18;

const QString& Konec_Importu() {
    static const QString text = u" Import byl ukončen, archiv tahů zůstal beze změny."_qs;
    return text;
}

Import_Vysledek Chyba(const QString& zprava) {
    Import_Vysledek v;
    v.Stav = Vysledek::Chyba(zprava + Konec_Importu());
    return v;
}

QString Cislo(int64_t n) {
    return QString::number(n);
}

// ---- dBase ----

// A field read as the Basic did: Val over its bytes, rounded as an assignment to a number rounds.
// Bytes past the end read as nothing. Val looks only at ASCII, and no byte of code page 1250 above
// 127 decodes to ASCII, so each byte is widened as it is instead of decoding the field.
int64_t Pole_Dbf(const QByteArray& bajty, qsizetype od, qsizetype delka) {
    char16_t text[4] = {};
    const qsizetype n = std::clamp<qsizetype>(std::min(delka, bajty.size() - od), 0, 4);
    for (qsizetype i = 0; i < n; ++i)
        text[i] = char16_t(uint8_t(bajty[od + i]));
    return Vb::Zaokrouhli(Vb::Val(QStringView(text, n)));
}

// The seven numbers of a draw from `od`; nothing when one does not fit a byte.
std::optional<Tah> Tah_Dbf(const QByteArray& bajty, qsizetype od) {
    Tah tah;
    for (int i = 1; i <= 7; ++i) {
        const int64_t n = Pole_Dbf(bajty, od + 2 * (i - 1), 2);
        if (n < 0 || n > 255)
            return std::nullopt;
        tah[i] = uint8_t(n);
    }
    return tah;
}

// ---- CSV ----


// A whole number of at most nine digits and nothing else; nothing for any other text.
std::optional<int> Cele_Cislo(QByteArrayView pole) {
    return Cislo_Z_Cislic(pole, 9);
}

// Why the bytes are no CSV text at all, or nothing. A text holds no NUL byte: UTF-16 has one beside
// each ASCII character, binary data anywhere. Taken for years, either would give a baffling message.
std::optional<QString> Neni_Text_Csv(const QByteArray& b) {
    const QString utf16 = u"je uložen v kódování UTF-16; uložte ho jako CSV v kódování UTF-8 nebo Windows-1250"_qs;
    if (b.startsWith("\xFF\xFE") || b.startsWith("\xFE\xFF"))
        return utf16;
    if (!b.contains('\0'))
        return std::nullopt;
    // Without a byte order mark: in most pairs one byte is NUL and the other an ASCII character.
    const qsizetype par = std::min<qsizetype>(b.size() / 2, 64);
    qsizetype ascii = 0;
    for (qsizetype i = 0; i < par; ++i) {
        const auto x = uint8_t(b[2 * i]), y = uint8_t(b[2 * i + 1]);
        if ((x == 0) != (y == 0) && (x | y) < 0x80)
            ++ascii;
    }
    if (par > 0 && ascii * 4 >= par * 3)
        return utf16;
    return u"obsahuje binární data"_qs;
}

// The date of the export, "11. 1. 2026" (blanks optional); an empty cell is no date, which is
// allowed; nothing for a text that is no date.
std::optional<QDate> Datum_Csv(QByteArrayView pole) {
    if (Orez(pole).isEmpty())
        return QDate();
    const QDate datum = Datum_Z_Textu(pole);
    return datum.isValid() ? std::optional(datum) : std::nullopt;
}

QString Ukazka(QByteArrayView pole) {
    QString text = Vb::Z_1250(pole.first(std::min<qsizetype>(24, pole.size())).toByteArray());
    if (pole.size() > 24)
        text += u"…"_qs;
    return u"\""_qs + text + u"\""_qs;
}

} // namespace

Import_Vysledek Importuj_Dbf(const QByteArray& bajty, const Prubeh& prubeh) {
    Import_Vysledek vysledek;
    const qsizetype delka = bajty.size();
    Sledovani_Prubehu sledovani(prubeh, delka - Zacatek_Dbf - 1);
    QByteArray text_roku;
    bool je_rok = false;
    for (qsizetype o = Zacatek_Dbf; o < delka; o += Delka_Zaznamu_Dbf) {
        sledovani.Krok(o - Zacatek_Dbf);
        // The end-of-file byte of the table stands alone after the last record.
        if (o == delka - 1)
            break;
        const QByteArray text = bajty.mid(o + 1, 4);
        const int64_t rok = Pole_Dbf(bajty, o + 1, 4);
        if (rok == 0)
            continue;
        if (delka - o < Delka_Zaznamu_Dbf)
            return Chyba(u"Soubor s tahy je neúplný: poslední záznam (rok "_qs + Cislo(rok) + u") je zkrácený."_qs);
        if (rok < 1 || rok > 9999)
            return Chyba(u"V souboru s tahy je rok "_qs + Cislo(rok) + u" mimo rozsah 1 až 9999."_qs);
        if (!je_rok || text != text_roku) {
            if (vysledek.Pocet_Let() >= Nejvic_Let)
                return Chyba(u"V souboru s tahy je příliš mnoho let, archiv jich pojme nejvýše "_qs +
                             Cislo(Nejvic_Let) + u'.');
            je_rok = true;
            text_roku = text;
            vysledek.Roky.emplace_back().Rok = int16_t(rok);
        }
        const int64_t tyden = Pole_Dbf(bajty, o + 5, 2);
        if (tyden > 53)
            return Chyba(u"V souboru s tahy je u roku "_qs + Cislo(rok) + u" týden "_qs + Cislo(tyden) +
                         u", rok má ale jen týdny 1 až 53."_qs);
        // The source's week 36 of 1968 is known to be wrong and must stay out of the archive.
        if (tyden < 1 || Pole_Dbf(bajty, o + 7, 2) <= 0 || (rok == 1968 && tyden == 36))
            continue;
        const auto tah1 = Tah_Dbf(bajty, o + 7);
        const bool je_tah2 = Pole_Dbf(bajty, o + 21, 2) > 0;
        const auto tah2 = je_tah2 ? Tah_Dbf(bajty, o + 21) : std::optional<Tah>(Tah{});
        if (!tah1 || !tah2)
            return Chyba(u"V souboru s tahy je v týdnu "_qs + Cislo(tyden) + u" roku "_qs + Cislo(rok) +
                         u" tažené číslo mimo rozsah 0 až 255."_qs);
        Tyden_Zaznam& zaznam = vysledek.Roky.back().Tyden[int(tyden)];
        zaznam.Je_Tah1 = Vb::Pravda;
        zaznam.Tah1 = *tah1;
        if (je_tah2) {
            zaznam.Je_Tah2 = Vb::Pravda;
            zaznam.Tah2 = *tah2;
        }
    }
    sledovani.Krok(delka - Zacatek_Dbf - 1);
    return vysledek;
}

Import_Vysledek Importuj_Csv(const QByteArray& bajty, Den den, const Prubeh& prubeh) {
    if (const auto proc = Neni_Text_Csv(bajty))
        return Chyba(u"Soubor s tahy není textový soubor CSV, "_qs + *proc + u'.');
    const int kod_dne = Iso_Den_Tydne(den);
    std::map<int, Rok_Zaznam> roky;
    Dny_Tahu dny;
    Sledovani_Prubehu sledovani(prubeh, bajty.size());
    bool hlavicka = true;
    int cislo_radku = 0;
    std::vector<QByteArrayView> pole;
    for (qsizetype o = 0; o < bajty.size();) {
        ++cislo_radku;
        // The end of the line is looked for only as far as a line may reach, CR LF included.
        const QByteArrayView zbytek = QByteArrayView(bajty).sliced(o);
        QByteArrayView radek = zbytek.first(std::min(zbytek.size(), Nejdelsi_Radek_Csv + 2));
        const qsizetype konec = radek.indexOf('\n');
        if (konec >= 0)
            radek.truncate(konec);
        o += radek.size() + 1;
        sledovani.Krok(o);
        if (radek.endsWith('\r'))
            radek.chop(1);
        if (radek.size() > Nejdelsi_Radek_Csv)
            return Chyba(u"Chyba na řádku "_qs + Cislo(cislo_radku) + u" souboru s tahy: řádek je příliš dlouhý (přes "_qs +
                         Cislo(Nejdelsi_Radek_Csv) + u" bajtů), řádek s tahem jich mívá kolem 60."_qs);
        if (Orez(radek).isEmpty())
            continue;
        pole.clear();
        for (qsizetype a = 0;;) {
            const qsizetype b = radek.indexOf(';', a);
            pole.push_back(radek.sliced(a, (b < 0 ? radek.size() : b) - a));
            if (b < 0)
                break;
            a = b + 1;
        }
        // The first line is the header of the columns, unless the file comes without one.
        if (hlavicka) {
            hlavicka = false;
            if (pole.size() < 2 || !Cele_Cislo(pole[1]))
                continue;
        }
        const auto vadny = [cislo_radku](const QString& co) {
            return Chyba(u"Chyba na řádku "_qs + Cislo(cislo_radku) + u" souboru s tahy: "_qs + co);
        };
        if (int(pole.size()) < Sloupcu_Csv)
            return vadny(u"řádek má "_qs + Cislo(pole.size()) + u' ' +
                         modTombi::Tvar_Poctu(int64_t(pole.size()), u"sloupec"_qs, u"sloupce"_qs, u"sloupců"_qs) +
                         u" místo 18."_qs);
        const auto rok = Cele_Cislo(pole[1]);
        if (!rok)
            return vadny(u"rok "_qs + Ukazka(pole[1]) + u" není celé číslo."_qs);
        if (*rok < 1 || *rok > 9999)
            return vadny(u"rok "_qs + Cislo(*rok) + u" je mimo rozsah 1 až 9999."_qs);
        const auto tyden = Cele_Cislo(pole[2]);
        if (!tyden)
            return vadny(u"týden "_qs + Ukazka(pole[2]) + u" není celé číslo."_qs);
        if (*tyden < 1 || *tyden > 53)
            return vadny(u"týden "_qs + Cislo(*tyden) + u" je mimo rozsah 1 až 53."_qs);
        const auto den_tahu = Cele_Cislo(pole[3]);
        if (!den_tahu)
            return vadny(u"den tahu "_qs + Ukazka(pole[3]) + u" není celé číslo."_qs);
        Tah tah1, tah2;
        for (int i = 0; i < 14; ++i) {
            const QByteArrayView text = pole[std::size_t(4 + i)];
            // An empty cell is a number that was not drawn, as 0 is in the archive.
            const auto n = Orez(text).isEmpty() ? std::optional<int>(0) : Cele_Cislo(text);
            if (!n)
                return vadny(u"tažené číslo "_qs + Ukazka(text) + u" není celé číslo."_qs);
            if (*n > 49)
                return vadny(u"tažené číslo "_qs + Cislo(*n) + u" je větší než 49."_qs);
            (i < 7 ? tah1 : tah2)[i % 7 + 1] = uint8_t(*n);
        }
        const auto datum = Datum_Csv(pole[0]);
        if (!datum)
            return vadny(u"datum "_qs + Ukazka(pole[0]) + u" není ve tvaru den. měsíc. rok."_qs);
        if (*den_tahu != kod_dne)
            continue;
        Rok_Zaznam& zaznam_roku = roky[*rok];
        zaznam_roku.Rok = int16_t(*rok);
        if (tah1[1] == 0 || (*rok == 1968 && *tyden == 36))
            continue;
        // The newest line comes first; should a week stand twice, the first line holds.
        Tyden_Zaznam& tyden_zaznam = zaznam_roku.Tyden[*tyden];
        if (Vb::Je_Pravda(tyden_zaznam.Je_Tah1))
            continue;
        tyden_zaznam.Je_Tah1 = Vb::Pravda;
        tyden_zaznam.Tah1 = tah1;
        if (tah2[1] > 0) {
            tyden_zaznam.Je_Tah2 = Vb::Pravda;
            tyden_zaznam.Tah2 = tah2;
        }
        if (datum->isValid())
            for (int tah = 1; tah <= (tah2[1] > 0 ? 2 : 1); ++tah)
                dny.Pridej(*rok, *tyden, tah, *datum);
    }
    sledovani.Krok(bajty.size());
    Import_Vysledek vysledek;
    vysledek.Dny = std::move(dny);
    vysledek.Roky.reserve(roky.size() + 1);
    for (auto& [rok, zaznam] : roky)
        vysledek.Roky.push_back(zaznam);
    return vysledek;
}

bool Je_Zdroj_Csv(const QString& soubor) {
    return soubor.endsWith(u".csv"_qs, Qt::CaseInsensitive);
}

QString Text_Chybneho_Zdroje(const QString& soubor, bool csv) {
    // The dBase source has always been named so, as the operator offered the same data as a sheet.
    const QString jmeno = csv ? soubor : soubor.left(std::max<qsizetype>(0, soubor.size() - 4)) + u".dbf (.xls)"_qs;
    return u"Není soubor s tahy \""_qs + jmeno + u"\" nebo je v něm chyba."_qs;
}

Vysledek Importuj_Tahy(Archiv_Tahu& archiv, const QString& adresar, const QString& soubor_dbf,
                       const QString& zaloha_tahu, int smazat_dbf, const Prubeh& prubeh) {
    const QString zdroj = Spoj_Cestu(adresar, soubor_dbf);
    const QString chybny_zdroj = Text_Chybneho_Zdroje(soubor_dbf, Je_Zdroj_Csv(soubor_dbf));
    if (archiv.Soubor_Tahu.isEmpty())
        return Vysledek::Chyba(u"Není zvolen den tahů, import nelze provést."_qs);
    const Nacteny_Soubor nacteny = Nacti_Soubor(zdroj, Nejvic_Zdroje_Tahu);
    if (!nacteny.Ok())
        return Vysledek::Chyba(nacteny.Nelze_Otevrit ? chybny_zdroj : nacteny.Zprava(soubor_dbf));
    const QByteArray& bajty = nacteny.Data;

    Import_Vysledek import;
    if (Je_Zdroj_Csv(soubor_dbf)) {
        const auto den = Den_Souboru_Tahu(archiv.Soubor_Tahu);
        if (!den)
            return Vysledek::Chyba(u"Ze jména souboru \""_qs + archiv.Soubor_Tahu + u"\" nelze poznat den tahů."_qs);
        import = Importuj_Csv(bajty, *den, prubeh);
    } else {
        import = Importuj_Dbf(bajty, prubeh);
    }
    if (!import.Stav.Ok())
        return import.Stav;
    if (import.Pocet_Let() == 0) {
        // An empty file is what a failed download leaves: it goes, so it is not taken again.
        if (bajty.isEmpty())
            QFile::remove(zdroj);
        return Vysledek::Chyba(chybny_zdroj);
    }

    // The source is read before anything is backed up, so a bad source changes nothing on disk;
    // the backup and the write are one step that either happens whole or leaves both files be.
    // The dates go first: should the archive then fail, the dates of the same draws are still true.
    if (Je_Zdroj_Csv(soubor_dbf))
        if (const Vysledek dny = Uloz_Dny(import.Dny, adresar, archiv.Soubor_Tahu); !dny.Ok())
            return dny;
    Archiv_Tahu nove;
    nove.Pocet_Let = import.Pocet_Let();
    nove.Pole_Tahu = std::move(import.Roky);
    const Vysledek zapis = zaloha_tahu == u"1"_qs ? Zaloha_Souboru(1, nove, adresar, archiv.Soubor_Tahu)
                                                   : Uloz_Tahy(nove, adresar, archiv.Soubor_Tahu);
    if (!zapis.Ok())
        return zapis;
    archiv.Pole_Tahu = std::move(nove.Pole_Tahu);
    archiv.Pocet_Let = nove.Pocet_Let;
    if (!Je_Zdroj_Csv(soubor_dbf))
        Uloz_Dny({}, adresar, archiv.Soubor_Tahu);
    archiv.Dny = std::move(import.Dny);
    if (smazat_dbf == 1)
        QFile::remove(zdroj);
    return Vysledek::Uspech();
}
