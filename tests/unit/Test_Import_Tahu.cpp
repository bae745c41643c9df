// Import of draw data: dBase tables built byte by byte, the CSV export (odd lines and the real
// history), and the import into the archive of a draw day on disk.
#include "Bajty.h"
#include "net/Import_Tahu.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <sys/stat.h>

namespace {

Tah T(std::initializer_list<int> cisla) {
    return Cisla<Tah>(cisla);
}

// The table's own header of 545 bytes, which the import skips unread.
const QByteArray Hlavicka_Dbf = '\x03' + QByteArray(543, '\0') + '\x0D';

// A record of 35 bytes: deletion flag, year (4), week (2) and 14 numbers of two characters.
QByteArray Zaznam(const QByteArray& rok, const QByteArray& tyden, const QByteArray& cisla) {
    Q_ASSERT(rok.size() == 4 && tyden.size() == 2 && cisla.size() == 28);
    return ' ' + rok + tyden + cisla;
}

QByteArray Dbf(std::initializer_list<QByteArray> zaznamy, bool konec_souboru = true) {
    QByteArray b = Hlavicka_Dbf;
    for (const QByteArray& z : zaznamy)
        b += z;
    return konec_souboru ? b + '\x1A' : b;
}

const QByteArray Cisla_Tahu = " 1 2 3 4 5 6 7 8 91011121314";
// The export's first line names its columns; only the year's column matters to the reader.
const QByteArray Hlavicka_Csv = "datum;rok;tyden;den;1. cislo 1. tah;2. cislo 1. tah;3. cislo 1. tah";
const QByteArray Historie = Obsah_Souboru(QStringLiteral(TOMBI_HISTORIE));

} // namespace

class Test_Import_Tahu final : public QObject {
    Q_OBJECT

private slots:
    void dbf_pole_podle_pozic() {
        // " 7", "07" and "7 " are all 7; a second draw whose first number is blank or 0 is left out.
        const auto v = Importuj_Dbf(Dbf({
            Zaznam("1999", "01", " 7077  8 910114849 1 2 3 4 5"),
            Zaznam("1999", "53", Cisla_Tahu),
            Zaznam("2000", "3 ", "01020304050607 0 0 0 0 0 0 0"),
            Zaznam("2000", " 4", "01020304050607              "),
        }));
        QVERIFY(v.Stav.Ok());
        QCOMPARE(v.Pocet_Let(), 2);
        QCOMPARE(v.Roky[1].Tyden[1].Tah1, T({7, 7, 7, 8, 9, 10, 11}));
        QCOMPARE(v.Roky[1].Tyden[1].Tah2, T({48, 49, 1, 2, 3, 4, 5}));
        QCOMPARE(v.Roky[1].Tyden[53].Tah2, T({8, 9, 10, 11, 12, 13, 14}));
        QCOMPARE(v.Roky[2].Tyden[3], (Tyden_Zaznam{T({1, 2, 3, 4, 5, 6, 7}), Tah{}, -1, 0}));
        QCOMPARE(v.Roky[2].Tyden[4], v.Roky[2].Tyden[3]);
        // Nothing but the header of 545 bytes, with or without the end-of-file byte: no draws.
        QCOMPARE(Importuj_Dbf(Hlavicka_Dbf).Pocet_Let(), 0);
        QCOMPARE(Importuj_Dbf(Dbf({})).Pocet_Let(), 0);
    }

    void dbf_roky_a_preskakovane_zaznamy() {
        const auto v = Importuj_Dbf(Dbf({
            Zaznam("1968", "35", Cisla_Tahu), Zaznam("1968", "36", Cisla_Tahu), // known to be wrong in the source
            Zaznam("    ", "37", Cisla_Tahu),                                   // blank year: skipped, the loop goes on
            Zaznam("1968", "37", Cisla_Tahu), Zaznam("1968", "00", Cisla_Tahu),
            Zaznam("1968", "38", " 0" + Cisla_Tahu.mid(2)), Zaznam("1969", "01", Cisla_Tahu),
            Zaznam("1968", "40", Cisla_Tahu), // a changed year text adds a record, nothing is sorted
        }));
        QVERIFY(v.Stav.Ok());
        QCOMPARE(v.Pocet_Let(), 3);
        QCOMPARE(v.Roky[3].Rok, int16_t(1968));
        QCOMPARE(v.Roky[3].Tyden[40].Je_Tah1, int16_t(-1));
        QList<int> tydny;
        for (int w = 1; w <= 53; ++w)
            if (v.Roky[1].Tyden[w].Je_Tah1 == -1)
                tydny << w;
        QCOMPARE(tydny, (QList<int>{35, 37}));
    }

    void chyby_data() {
        QTest::addColumn<QByteArray>("bajty");
        QTest::addColumn<bool>("csv");
        QTest::addColumn<QString>("zprava");
        const QByteArray dobry = Zaznam("1999", "01", Cisla_Tahu);
        QTest::newRow("dbf týden 54") << Dbf({dobry, Zaznam("1999", "54", Cisla_Tahu)}) << false
                                      << u"V souboru s tahy je u roku 1999 týden 54, rok má ale jen týdny 1 až 53."_qs;
        QTest::newRow("dbf záporné číslo")
            << Dbf({dobry, Zaznam("2001", "02", " 1 2 3 4-5 6 7" + Cisla_Tahu.mid(14))}) << false
            << u"V souboru s tahy je v týdnu 2 roku 2001 tažené číslo mimo rozsah 0 až 255."_qs;
        QTest::newRow("dbf zkrácený záznam") << Dbf({dobry}, false) + Zaznam("2000", "01", Cisla_Tahu).left(20) << false
                                             << u"Soubor s tahy je neúplný: poslední záznam (rok 2000) je zkrácený."_qs;
        // The bad line is the fourth, after a good line and an empty one, and of the other draw day:
        // every line is checked, not only those that are taken.
        const QByteArray csv = Hlavicka_Csv + "\r\n1. 1. 2001;2001;01;3;1;2;3;4;5;6;7;1;2;3;4;5;6;7\r\n\r\n";
        const QString radek = u"Chyba na řádku 4 souboru s tahy: "_qs;
        QTest::newRow("csv 1 sloupec") << csv + "1. 1. 2000" << true << radek + u"řádek má 1 sloupec místo 18."_qs;
        QTest::newRow("csv 3 sloupce") << csv + "1. 1. 2000;2000;01" << true << radek + u"řádek má 3 sloupce místo 18."_qs;
        QTest::newRow("csv 7 sloupců")
            << csv + "1. 1. 2000;2000;01;7;1;2;3" << true << radek + u"řádek má 7 sloupců místo 18."_qs;
        QTest::newRow("csv rok") << csv + "x;20x0;01;7;1;2;3;4;5;6;7;1;2;3;4;5;6;7\r\n"
                                 << true << radek + u"rok \"20x0\" není celé číslo."_qs;
        QTest::newRow("csv číslo 50") << csv + "x;2000;01;7;1;2;3;4;5;6;7;1;2;3;50;5;6;7" << true
                                      << radek + u"tažené číslo 50 je větší než 49."_qs;
        QTest::newRow("csv dlouhý řádek") << csv + QByteArray(1025, ';') + "\r\n" << true
                                          << radek + u"řádek je příliš dlouhý (přes 1024 bajtů), řádek s tahem jich mívá kolem 60."_qs;
        // Saved as "Unicode" text, with or without the byte order mark, or no text at all: not years.
        const QString utf16 = u"Soubor s tahy není textový soubor CSV, je uložen v kódování UTF-16; uložte ho jako CSV v "
                              u"kódování UTF-8 nebo Windows-1250."_qs;
        const auto v_utf16 = [&](const QByteArray& text) {
            QByteArray b;
            for (const char c : text)
                b += QByteArray(1, c) + '\0';
            return b;
        };
        QTest::newRow("csv UTF-16") << "\xFF\xFE" + v_utf16(csv) << true << utf16;
        QTest::newRow("csv UTF-16 bez BOM") << v_utf16(csv) << true << utf16;
        QTest::newRow("csv nuly") << QByteArray(4096, '\0') << true
                                  << u"Soubor s tahy není textový soubor CSV, obsahuje binární data."_qs;
    }
    void chyby() {
        QFETCH(QByteArray, bajty);
        QFETCH(bool, csv);
        QFETCH(QString, zprava);
        const auto v = csv ? Importuj_Csv(bajty, Den::Streda) : Importuj_Dbf(bajty);
        QCOMPARE(v.Stav.Zprava, zprava + u" Import byl ukončen, archiv tahů zůstal beze změny."_qs);
        QCOMPARE(v.Roky.size(), std::size_t(1));
    }

    void csv_obri_radek_odmitnut_hned() {
        // One line of 100 MB, all separators: refused before it is split, and so without memory for its fields.
        const QByteArray obri(100 * 1024 * 1024, ';');
        const int64_t pred = Spicka_Pameti_MiB();
        const auto v = Importuj_Csv(obri, Den::Nedele);
        QVERIFY(v.Stav.Zprava.startsWith(u"Chyba na řádku 1 souboru s tahy: řádek je příliš dlouhý"_qs));
        QVERIFY2(Spicka_Pameti_MiB() - pred < 16, qPrintable(QString::number(Spicka_Pameti_MiB() - pred)));
    }

    void csv_radky_dny_a_poradi() {
        // Newest first, a Friday line, empty lines, LF and CR LF mixed, empty cells as zeros.
        const QByteArray csv = Hlavicka_Csv + "\r\n"
                                              "11. 1. 2026;2026;02;7;29;16;39;40;18;4;48;18;31;42;34;36;22;24\r\n"
                                              "9. 1. 2026;2026;02;5;1;2;3;4;5;6;7;8;9;10;11;12;13;14\n\r\n"
                                              "7. 1. 2026;2026;02;3;47;10;14;45;31;33;40;48;19;11;20;15;10;38\n"
                                              "3. 1. 1999;1999;01;7;9;8;7;6;5;4;;;;;;;;\n   \n";
        const auto nedele = Importuj_Csv(csv, Den::Nedele);
        QVERIFY(nedele.Stav.Ok());
        QCOMPARE(std::pair(nedele.Pocet_Let(), int(nedele.Roky[1].Rok)), std::pair(2, 1999));
        QCOMPARE(nedele.Roky[1].Tyden[1], (Tyden_Zaznam{T({9, 8, 7, 6, 5, 4, 0}), Tah{}, -1, 0}));
        QCOMPARE(nedele.Roky[2].Tyden[2].Tah2, T({18, 31, 42, 34, 36, 22, 24}));
        const auto streda = Importuj_Csv(csv, Den::Streda);
        QCOMPARE(streda.Pocet_Let(), 1);
        QCOMPARE(streda.Roky[1].Tyden[2].Tah1, T({47, 10, 14, 45, 31, 33, 40}));
        // A file without its header still has its first draw.
        QCOMPARE(Importuj_Csv(csv.mid(csv.indexOf('\n') + 1), Den::Nedele).Roky, nedele.Roky);
        // The date of every line counts; an empty one leaves its draw without a date.
        QCOMPARE(nedele.Dny.Data.size(), std::size_t(3));
        QCOMPARE(Importuj_Csv("x;2026;02;3;1;2;3;4;5;6;7;;;;;;;\n", Den::Nedele).Stav.Zprava,
                 u"Chyba na řádku 1 souboru s tahy: datum \"x\" není ve tvaru den. měsíc. rok. Import byl ukončen, "
                 u"archiv tahů zůstal beze změny."_qs);
        QVERIFY(Importuj_Csv(";2026;02;3;1;2;3;4;5;6;7;;;;;;;\n", Den::Streda).Dny.Data.empty());
    }

    void skutecna_historie() {
        // Sundays since 1994, Wednesdays since 1995, to the second week of 2026; every draw with its second.
        for (const auto& [den, prvni_rok, tahu] : {std::tuple{Den::Nedele, 1994, 1670}, {Den::Streda, 1995, 1606}}) {
            Archiv_Tahu a;
            const auto v = Importuj_Csv(Historie, den);
            for (int i = 1; i <= v.Pocet_Let(); ++i)
                QCOMPARE(int(v.Roky[std::size_t(i)].Rok), prvni_rok + i - 1);
            QCOMPARE(int(v.Roky.back().Rok), 2026);
            std::tie(a.Pole_Tahu, a.Pocet_Let) = std::pair(v.Roky, v.Pocet_Let());
            QCOMPARE(Spocitej_Tahy(a), std::make_pair(tahu, tahu));
        }
        // Fridays: a few one-off draws from 1994 on, then every week since 2020.
        Archiv_Tahu patek;
        const auto v = Importuj_Csv(Historie, Den::Patek);
        std::tie(patek.Pole_Tahu, patek.Pocet_Let) = std::pair(v.Roky, v.Pocet_Let());
        QCOMPARE(Spocitej_Tahy(patek), std::make_pair(418, 418));
        QCOMPARE(std::pair(int(v.Roky[1].Rok), int(v.Roky[v.Roky.size() - 7].Rok)), std::pair(1994, 2020));
        QCOMPARE(v.Roky[1].Tyden[52].Tah1, T({47, 11, 4, 18, 12, 27, 29}));
        QCOMPARE(v.Roky.back().Tyden[2].Tah2, T({20, 16, 27, 13, 30, 18, 44}));
    }

    void csv_a_dbf_davaji_totez() {
        // The Sunday lines of the history as the operator's table: oldest first, padded both ways.
        std::vector<QList<QByteArray>> radky;
        for (const QByteArray& radek : Historie.split('\n'))
            if (const auto pole = radek.trimmed().split(';'); pole.size() >= 18 && pole[3] == "7")
                radky.push_back(pole);
        std::stable_sort(radky.begin(), radky.end(), [](const auto& a, const auto& b) {
            return std::pair(a[1].toInt(), a[2].toInt()) < std::pair(b[1].toInt(), b[2].toInt());
        });
        QByteArray dbf = Hlavicka_Dbf;
        for (std::size_t i = 0; i < radky.size(); ++i) {
            QByteArray cisla;
            for (int c = 4; c < 18; ++c)
                cisla += radky[i][c].rightJustified(2, i % 2 ? '0' : ' ');
            dbf += Zaznam(radky[i][1], radky[i][2].rightJustified(2, '0'), cisla);
        }
        const auto z_dbf = Importuj_Dbf(dbf + '\x1A');
        const auto z_csv = Importuj_Csv(Historie, Den::Nedele);
        QVERIFY(z_csv.Pocet_Let() > 30);
        QCOMPARE(z_dbf.Roky.size(), z_csv.Roky.size());
        for (std::size_t i = 1; i < z_csv.Roky.size(); ++i)
            QVERIFY2(z_dbf.Roky[i] == z_csv.Roky[i], qPrintable(QString::number(z_csv.Roky[i].Rok)));
    }

    void import_do_archivu() {
        QTemporaryDir dir;
        const QString zive = dir.filePath(u"SpN_tahy.sez"_qs), zdroj = dir.filePath(u"sportka-nedele.dbf"_qs);
        const QString zal = dir.filePath(u"SpN_tahy.zal"_qs);
        const QByteArray stary = "stary";
        Zapis_Souboru(zive, stary);
        Archiv_Tahu a;
        Nastav_Den_Archivu(a, Den::Nedele);

        // Backup on, source kept: the old file becomes the .zal.
        const QByteArray dbf = Dbf({Zaznam("2001", "05", Cisla_Tahu), Zaznam("2002", "06", Cisla_Tahu)});
        Zapis_Souboru(zdroj, dbf);
        QVERIFY(Importuj_Tahy(a, dir.path(), u"sportka-nedele.dbf"_qs, u"1"_qs, 0).Ok());
        QCOMPARE(a.Pocet_Let, 2);
        QCOMPARE(Obsah_Souboru(zive), Zapis_Roky(Importuj_Dbf(dbf).Roky, 2));
        QCOMPARE(Obsah_Souboru(zal), stary);
        QVERIFY(QFile::exists(zdroj));

        // Backup off, source deleted: the .zal keeps what it had.
        Zapis_Souboru(zdroj, Dbf({Zaznam("2003", "07", Cisla_Tahu)}));
        QVERIFY(Importuj_Tahy(a, dir.path(), u"sportka-nedele.dbf"_qs, u"0"_qs, 1).Ok());
        QCOMPARE(a.Pocet_Let, 1);
        QCOMPARE(Obsah_Souboru(zal), stary);
        QVERIFY(!QFile::exists(zdroj));

        // A CSV source is read for the day of the archive, and named as it is when it holds no draws.
        Zapis_Souboru(dir.filePath(u"sportka.csv"_qs), Historie);
        Nastav_Den_Archivu(a, Den::Streda);
        QVERIFY(Importuj_Tahy(a, dir.path(), u"sportka.csv"_qs, u"1"_qs, 0).Ok());
        QCOMPARE(std::pair(int(a.Pole_Tahu[1].Rok), a.Pocet_Let), std::pair(1995, 32));
        // Its dates stand beside the archive, until a dBase import, which has none, takes them away.
        const QString dny = dir.filePath(u"SpS_tahy.dny"_qs);
        QCOMPARE(Cti_Dny(Obsah_Souboru(dny)), a.Dny);
        QCOMPARE(a.Dny.Data.size(), std::size_t(2 * 1606));
        Zapis_Souboru(dir.filePath(u"sportka-streda.dbf"_qs), dbf);
        QVERIFY(Importuj_Tahy(a, dir.path(), u"sportka-streda.dbf"_qs, u"1"_qs, 0).Ok());
        QVERIFY(!QFile::exists(dny) && a.Dny.Data.empty());
        QVERIFY(Importuj_Tahy(a, dir.path(), u"sportka.csv"_qs, u"1"_qs, 0).Ok());
        Zapis_Souboru(dir.filePath(u"sportka.csv"_qs), Hlavicka_Csv);
        QCOMPARE(Importuj_Tahy(a, dir.path(), u"sportka.csv"_qs, u"1"_qs, 0).Zprava,
                 u"Není soubor s tahy \"sportka.csv\" nebo je v něm chyba."_qs);
    }

    void import_bez_tahu_nebo_s_chybou() {
        QTemporaryDir dir;
        const QString zive = dir.filePath(u"SpN_tahy.sez"_qs), zdroj = dir.filePath(u"sportka-nedele.dbf"_qs);
        const QString zprava = u"Není soubor s tahy \"sportka-nedele.dbf (.xls)\" nebo je v něm chyba."_qs;
        Archiv_Tahu a;
        Nastav_Den_Archivu(a, Den::Nedele);
        a.Pole_Tahu.emplace_back().Rok = 1999;
        a.Pocet_Let = 1;
        const auto puvodni = a.Pole_Tahu;
        const QByteArray stary = Zapis_Roky(a.Pole_Tahu, 1);
        Zapis_Souboru(zive, stary);
        const auto import = [&] { return Importuj_Tahy(a, dir.path(), u"sportka-nedele.dbf"_qs, u"1"_qs, 1); };
        const auto beze_zmeny = [&](bool zdroj_zustal, const QByteArray& zaloha = "<chybí>") {
            QVERIFY(a.Pole_Tahu == puvodni && a.Pocet_Let == 1);
            QCOMPARE(Obsah_Souboru(zive), stary);
            QCOMPARE(Obsah_Souboru(dir.filePath(u"SpN_tahy.zal"_qs)), zaloha);
            QCOMPARE(QFile::exists(zdroj), zdroj_zustal);
        };

        QCOMPARE(import().Zprava, zprava); // no source at all
        beze_zmeny(false);
        Zapis_Souboru(zdroj, Hlavicka_Dbf);
        QCOMPARE(import().Zprava, zprava);
        beze_zmeny(true);
        // An empty file is what a failed download leaves: it goes.
        Zapis_Souboru(zdroj, {});
        QCOMPARE(import().Zprava, zprava);
        beze_zmeny(false);
        Zapis_Souboru(zdroj, Dbf({Zaznam("2001", "01", Cisla_Tahu), Zaznam("2001", "54", Cisla_Tahu)}));
        QVERIFY(import().Zprava.contains(u"týden 54"_qs));
        beze_zmeny(true);

        // A source that is no file, or far too large for one, is refused unread.
        QFile::remove(zdroj);
        QVERIFY(mkfifo(QFile::encodeName(zdroj).constData(), 0600) == 0);
        QCOMPARE(import().Zprava, u"Soubor \"sportka-nedele.dbf\" nelze načíst: není to běžný soubor, ale zařízení, "
                                  u"roura nebo soket."_qs);
        QFile::remove(zdroj);
        QFile velky(zdroj);
        QVERIFY(velky.open(QIODevice::WriteOnly) && velky.resize(Nejvic_Zdroje_Tahu + 1));
        velky.close();
        QCOMPARE(import().Zprava, u"Soubor \"sportka-nedele.dbf\" nelze načíst: má 67 108 865 bajtů, soubor tohoto "
                                  u"druhu může mít nejvýše 64 MiB."_qs);
        beze_zmeny(true);

        // A write that fails halfway leaves the archive and the older backup as they were.
        Zapis_Souboru(dir.filePath(u"SpN_tahy.zal"_qs), "starsi");
        Zapis_Souboru(zdroj, Dbf({Zaznam("2001", "01", Cisla_Tahu), Zaznam("2002", "01", Cisla_Tahu)}));
        QVERIFY(!Pri_Plnem_Disku(Delka_Roku + 100, import).Ok());
        beze_zmeny(true, "starsi");
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files),
                 (QStringList{u"SpN_tahy.sez"_qs, u"SpN_tahy.zal"_qs, u"sportka-nedele.dbf"_qs}));
    }
};

QTEST_APPLESS_MAIN(Test_Import_Tahu)
#include "Test_Import_Tahu.moc"
