// Import of draw data: dBase tables built byte by byte, the CSV export (odd lines and the real
// history), and the import into the archive of a draw day on disk.
#include "net/Import_Tahu.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <sys/resource.h>

namespace {

Tah T(std::initializer_list<int> cisla) {
    Tah t;
    int i = 1;
    for (const int c : cisla)
        t[i++] = uint8_t(c);
    return t;
}

// The table's own header, which the import skips unread.
QByteArray Hlavicka_Dbf() {
    QByteArray h(545, '\0');
    h[0] = '\x03';
    h[544] = '\x0D';
    return h;
}

// A record of 35 bytes: deletion flag, year (4), week (2) and 14 numbers of two characters.
QByteArray Zaznam(const QByteArray& rok, const QByteArray& tyden, const QByteArray& cisla) {
    Q_ASSERT(rok.size() == 4 && tyden.size() == 2 && cisla.size() == 28);
    return ' ' + rok + tyden + cisla;
}

QByteArray Dbf(std::initializer_list<QByteArray> zaznamy, bool konec_souboru = true) {
    QByteArray b = Hlavicka_Dbf();
    for (const QByteArray& z : zaznamy)
        b += z;
    return konec_souboru ? b + '\x1A' : b;
}

const QByteArray Cisla = " 1 2 3 4 5 6 7 8 91011121314";
const QByteArray Hlavicka_Csv =
    "datum;rok;tyden;den;1. cislo 1. tah;2. cislo 1. tah;3. cislo 1. tah;4. cislo 1. tah;"
    "5. cislo 1. tah;6. cislo 1. tah;dodatkove cislo 1. tah;1. cislo 2. tah;2. cislo 2. tah;"
    "3. cislo 2. tah;4. cislo 2. tah;5. cislo 2. tah;6. cislo 2. tah;dodatkove cislo 2. tah;";

QByteArray Historie() {
    QFile f(QStringLiteral(TOMBI_HISTORIE));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void Zapis(const QString& cesta, const QByteArray& data) {
    QFile f(cesta);
    QVERIFY(f.open(QIODevice::WriteOnly) && f.write(data) == data.size());
}

QByteArray Obsah(const QString& cesta) {
    QFile f(cesta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<chybí>");
}

} // namespace

class Test_Import_Tahu final : public QObject {
    Q_OBJECT

private slots:
    void dbf_pole_podle_pozic() {
        // " 7", "07" and "7 " are all 7; a second draw whose first number is blank or 0 is left out.
        const auto v = Importuj_Dbf(Dbf({
            Zaznam("1999", "01", " 7077  8 910114849 1 2 3 4 5"),
            Zaznam("1999", "53", Cisla),
            Zaznam("2000", "3 ", "01020304050607 0 0 0 0 0 0 0"),
            Zaznam("2000", " 4", "01020304050607              "),
        }));
        QVERIFY(v.Stav.Ok());
        QCOMPARE(v.Pocet_Let(), 2);
        QCOMPARE(v.Roky[1].Tyden[1].Tah1, T({7, 7, 7, 8, 9, 10, 11}));
        QCOMPARE(v.Roky[1].Tyden[1].Tah2, T({48, 49, 1, 2, 3, 4, 5}));
        QCOMPARE(v.Roky[1].Tyden[53].Tah2, T({8, 9, 10, 11, 12, 13, 14}));
        for (const int w : {3, 4}) {
            QCOMPARE(v.Roky[2].Tyden[w].Je_Tah1, int16_t(-1));
            QCOMPARE(v.Roky[2].Tyden[w].Je_Tah2, int16_t(0));
        }
        // Without the end-of-file byte, and with nothing but the header.
        QCOMPARE(Importuj_Dbf(Dbf({Zaznam("1999", "53", Cisla)}, false)).Roky,
                 Importuj_Dbf(Dbf({Zaznam("1999", "53", Cisla)})).Roky);
        QCOMPARE(Importuj_Dbf(Hlavicka_Dbf()).Pocet_Let(), 0);
        QCOMPARE(Importuj_Dbf(Dbf({})).Pocet_Let(), 0);
    }

    void dbf_roky_a_preskakovane_zaznamy() {
        const auto v = Importuj_Dbf(Dbf({
            Zaznam("1968", "35", Cisla), Zaznam("1968", "36", Cisla), // known to be wrong in the source
            Zaznam("    ", "37", Cisla),                              // blank year: skipped, the loop goes on
            Zaznam("1968", "37", Cisla), Zaznam("1968", "00", Cisla), Zaznam("1968", "38", " 0" + Cisla.mid(2)),
            Zaznam("1969", "01", Cisla),
            Zaznam("1968", "40", Cisla), // a changed year text adds a record, nothing is sorted
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

    void dbf_chyby_data() {
        QTest::addColumn<QByteArray>("bajty");
        QTest::addColumn<QStringList>("ve_zprave");
        const QByteArray dobry = Zaznam("1999", "01", Cisla);
        QTest::newRow("týden 54") << Dbf({dobry, Zaznam("1999", "54", Cisla)}) << QStringList{u"1999"_qs, u"54"_qs};
        QTest::newRow("záporné číslo") << Dbf({dobry, Zaznam("2001", "02", " 1 2 3 4-5 6 7" + Cisla.mid(14))})
                                       << QStringList{u"2001"_qs, u"255"_qs};
        QTest::newRow("zkrácený záznam") << Dbf({dobry}, false) + Zaznam("2000", "01", Cisla).left(20)
                                         << QStringList{u"2000"_qs, u"zkrácený"_qs};
        QTest::newRow("záporný rok") << Dbf({dobry, Zaznam("-999", "01", Cisla)}) << QStringList{u"-999"_qs};
    }
    void dbf_chyby() {
        QFETCH(QByteArray, bajty);
        QFETCH(QStringList, ve_zprave);
        const auto v = Importuj_Dbf(bajty);
        for (const QString& s : ve_zprave)
            QVERIFY2(v.Stav.Zprava.contains(s), qPrintable(v.Stav.Zprava));
        QCOMPARE(v.Roky.size(), std::size_t(1));
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
        QCOMPARE(nedele.Pocet_Let(), 2);
        QCOMPARE(nedele.Roky[1].Rok, int16_t(1999));
        QCOMPARE(nedele.Roky[1].Tyden[1].Tah1, T({9, 8, 7, 6, 5, 4, 0}));
        QCOMPARE(nedele.Roky[1].Tyden[1].Je_Tah2, int16_t(0));
        QCOMPARE(nedele.Roky[2].Tyden[2].Tah2, T({18, 31, 42, 34, 36, 22, 24}));
        const auto streda = Importuj_Csv(csv, Den::Streda);
        QCOMPARE(streda.Pocet_Let(), 1);
        QCOMPARE(streda.Roky[1].Tyden[2].Tah1, T({47, 10, 14, 45, 31, 33, 40}));
        // A file without its header still has its first draw.
        QCOMPARE(Importuj_Csv(csv.mid(csv.indexOf('\n') + 1), Den::Nedele).Roky, nedele.Roky);
    }

    void csv_vadne_radky_data() {
        QTest::addColumn<QByteArray>("radek");
        QTest::addColumn<QString>("ve_zprave");
        QTest::newRow("málo sloupců") << QByteArray("1. 1. 2000;2000;01;7;1;2;3") << u"7 sloupců"_qs;
        QTest::newRow("rok") << QByteArray("x;20x0;01;7;1;2;3;4;5;6;7;1;2;3;4;5;6;7") << u"rok \"20x0\""_qs;
        QTest::newRow("týden") << QByteArray("x;2000;a1;7;1;2;3;4;5;6;7;1;2;3;4;5;6;7") << u"týden \"a1\""_qs;
        QTest::newRow("týden 54") << QByteArray("x;2000;54;3;1;2;3;4;5;6;7;1;2;3;4;5;6;7") << u"týden 54"_qs;
        QTest::newRow("číslo 50") << QByteArray("x;2000;01;7;1;2;3;4;5;6;7;1;2;3;50;5;6;7") << u"číslo 50"_qs;
        QTest::newRow("záporné číslo") << QByteArray("x;2000;01;7;1;2;-3;4;5;6;7;1;2;3;4;5;6;7") << u"\"-3\""_qs;
    }
    void csv_vadne_radky() {
        QFETCH(QByteArray, radek);
        QFETCH(QString, ve_zprave);
        const QByteArray csv =
            Hlavicka_Csv + "\r\n1. 1. 2001;2001;01;7;1;2;3;4;5;6;7;1;2;3;4;5;6;7\r\n\r\n" + radek + "\r\n";
        for (const Den den : {Den::Nedele, Den::Streda}) {
            const auto v = Importuj_Csv(csv, den);
            QVERIFY2(v.Stav.Zprava.contains(u"řádku 4 "_qs), qPrintable(v.Stav.Zprava));
            QVERIFY2(v.Stav.Zprava.contains(ve_zprave), qPrintable(v.Stav.Zprava));
            QCOMPARE(v.Roky.size(), std::size_t(1));
        }
    }

    void skutecna_historie() {
        const auto nedele = Importuj_Csv(Historie(), Den::Nedele);
        QVERIFY(nedele.Stav.Ok());
        QCOMPARE(nedele.Pocet_Let(), 2026 - 1994 + 1);
        for (int i = 1; i <= nedele.Pocet_Let(); ++i)
            QCOMPARE(int(nedele.Roky[std::size_t(i)].Rok), 1993 + i);
        QCOMPARE(nedele.Roky.back().Tyden[2].Tah1, T({29, 16, 39, 40, 18, 4, 48}));
        QCOMPARE(nedele.Roky.back().Tyden[2].Tah2, T({18, 31, 42, 34, 36, 22, 24}));
        QCOMPARE(nedele.Roky[1].Tyden[2].Tah1, T({20, 11, 12, 40, 6, 32, 21}));
        QCOMPARE(nedele.Roky[2020 - 1993].Tyden[53].Je_Tah1, int16_t(-1)); // 3 January 2021
        Archiv_Tahu a;
        a.Pole_Tahu = nedele.Roky;
        a.Pocet_Let = nedele.Pocet_Let();
        QCOMPARE(Spocitej_Tahy(a), std::make_pair(1670, 1670));

        const auto streda = Importuj_Csv(Historie(), Den::Streda);
        QCOMPARE(int(streda.Roky[1].Rok), 1995);
        QCOMPARE(int(streda.Roky.back().Rok), 2026);
        QCOMPARE(streda.Roky.back().Tyden[1].Je_Tah1, int16_t(-1)); // 31 December 2025
        QCOMPARE(streda.Roky.back().Tyden[2].Tah1, T({47, 10, 14, 45, 31, 33, 40}));
        a.Pole_Tahu = streda.Roky;
        a.Pocet_Let = streda.Pocet_Let();
        QCOMPARE(Spocitej_Tahy(a), std::make_pair(1606, 1606));
    }

    void csv_a_dbf_davaji_totez() {
        // The Sunday lines of the history as the operator's table: oldest first, padded both ways.
        std::vector<QList<QByteArray>> radky;
        for (const QByteArray& radek : Historie().split('\n'))
            if (const auto pole = radek.trimmed().split(';'); pole.size() >= 18 && pole[3] == "7")
                radky.push_back(pole);
        std::stable_sort(radky.begin(), radky.end(), [](const auto& a, const auto& b) {
            return std::pair(a[1].toInt(), a[2].toInt()) < std::pair(b[1].toInt(), b[2].toInt());
        });
        QByteArray dbf = Hlavicka_Dbf();
        for (std::size_t i = 0; i < radky.size(); ++i) {
            QByteArray cisla;
            for (int c = 4; c < 18; ++c)
                cisla += radky[i][c].rightJustified(2, i % 2 ? '0' : ' ');
            dbf += Zaznam(radky[i][1], radky[i][2].rightJustified(2, '0'), cisla);
        }
        const auto z_dbf = Importuj_Dbf(dbf + '\x1A');
        const auto z_csv = Importuj_Csv(Historie(), Den::Nedele);
        QVERIFY(z_csv.Pocet_Let() > 30);
        QCOMPARE(z_dbf.Roky.size(), z_csv.Roky.size());
        for (std::size_t i = 1; i < z_csv.Roky.size(); ++i)
            QVERIFY2(z_dbf.Roky[i] == z_csv.Roky[i], qPrintable(QString::number(z_csv.Roky[i].Rok)));
    }

    void import_do_archivu() {
        QTemporaryDir dir;
        const QString zive = dir.filePath(u"SpN_tahy.sez"_qs), zdroj = dir.filePath(u"sportka-nedele.dbf"_qs);
        const QByteArray stary(Delka_Roku, '\0');
        Zapis(zive, stary);
        Archiv_Tahu a;
        Nastav_Den_Archivu(a, Den::Nedele);

        // Backup on, source kept: the old file becomes the .zal.
        const QByteArray dbf = Dbf({Zaznam("2001", "05", Cisla), Zaznam("2002", "06", Cisla)});
        Zapis(zdroj, dbf);
        QVERIFY(Importuj_Tahy(a, dir.path(), u"sportka-nedele.dbf"_qs, u"1"_qs, 0).Ok());
        QCOMPARE(a.Pocet_Let, 2);
        QCOMPARE(Obsah(zive), Zapis_Roky(Importuj_Dbf(dbf).Roky, 2));
        QCOMPARE(Obsah(dir.filePath(u"SpN_tahy.zal"_qs)), stary);
        QVERIFY(QFile::exists(zdroj));

        // Backup off, source deleted: the .zal keeps what it had.
        Zapis(zdroj, Dbf({Zaznam("2003", "07", Cisla)}));
        QVERIFY(Importuj_Tahy(a, dir.path(), u"sportka-nedele.dbf"_qs, u"0"_qs, 1).Ok());
        QCOMPARE(a.Pocet_Let, 1);
        QCOMPARE(Obsah(dir.filePath(u"SpN_tahy.zal"_qs)), stary);
        QVERIFY(!QFile::exists(zdroj));

        // A CSV source is read for the day of the archive.
        Zapis(dir.filePath(u"sportka.csv"_qs), Historie());
        Nastav_Den_Archivu(a, Den::Streda);
        QVERIFY(Importuj_Tahy(a, dir.path(), u"sportka.csv"_qs, u"1"_qs, 0).Ok());
        QCOMPARE(int(a.Pole_Tahu[1].Rok), 1995);
        Archiv_Tahu nactene;
        QVERIFY(Nacti_Tahy(nactene, dir.path(), u"SpS_tahy.sez"_qs).Ok());
        QVERIFY(nactene.Pole_Tahu == a.Pole_Tahu);
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
        Zapis(zive, stary);
        const auto import = [&] { return Importuj_Tahy(a, dir.path(), u"sportka-nedele.dbf"_qs, u"1"_qs, 1); };
        const auto beze_zmeny = [&] {
            QVERIFY(a.Pole_Tahu == puvodni && a.Pocet_Let == 1);
            QCOMPARE(Obsah(zive), stary);
            QVERIFY(!QFile::exists(dir.filePath(u"SpN_tahy.zal"_qs)));
        };

        QCOMPARE(import().Zprava, zprava); // no source at all
        beze_zmeny();
        Zapis(zdroj, Hlavicka_Dbf());
        QCOMPARE(import().Zprava, zprava);
        QVERIFY(QFile::exists(zdroj));
        beze_zmeny();
        // An empty file is what a failed download leaves: it goes.
        Zapis(zdroj, {});
        QCOMPARE(import().Zprava, zprava);
        QVERIFY(!QFile::exists(zdroj));
        beze_zmeny();

        Zapis(zdroj, Dbf({Zaznam("2001", "01", Cisla), Zaznam("2001", "54", Cisla)}));
        QVERIFY(import().Zprava.contains(u"týden 54"_qs));
        QVERIFY(QFile::exists(zdroj));
        beze_zmeny();

        // A write that fails halfway puts the backup back as the live file.
        Zapis(zdroj, Dbf({Zaznam("2001", "01", Cisla), Zaznam("2002", "01", Cisla)}));
        rlimit puvodni_mez{};
        getrlimit(RLIMIT_FSIZE, &puvodni_mez);
        const auto signal_puvodni = std::signal(SIGXFSZ, SIG_IGN);
        rlimit mala = puvodni_mez;
        mala.rlim_cur = Delka_Roku + 100;
        setrlimit(RLIMIT_FSIZE, &mala);
        const Vysledek zapis = import();
        setrlimit(RLIMIT_FSIZE, &puvodni_mez);
        std::signal(SIGXFSZ, signal_puvodni);
        QVERIFY(!zapis.Ok());
        QVERIFY(QFile::exists(zdroj));
        beze_zmeny();
    }
};

QTEST_APPLESS_MAIN(Test_Import_Tahu)
#include "Test_Import_Tahu.moc"
