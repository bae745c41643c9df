// tombi-cli as a script sees it: its exit codes, and the exact lines it prints for archives,
// tip files and settings.
#include "data/Soubory.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Beh {
    int Kod = -1;
    QString Vystup;
    QString Chyby;
};

Beh Spust(const QStringList& argumenty) {
    QProcess p;
    p.start(QStringLiteral(TOMBI_CLI), argumenty);
    p.waitForFinished(60000);
    return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
}

void Pridej16(QByteArray& b, int16_t v) {
    b.append(char(v & 0xFF));
    b.append(char((v >> 8) & 0xFF));
}

} // namespace

class Test_Tombi_Cli final : public QObject {
    Q_OBJECT

private slots:
    void Spatne_Pouziti_Vraci_2_data() {
        QTest::addColumn<QStringList>("argumenty");
        QTest::newRow("nic") << QStringList();
        QTest::newRow("neznamy prikaz") << QStringList{u"losuj"_qs};
        QTest::newRow("import bez vystupu")
            << QStringList{u"import"_qs, u"--csv"_qs, u"a.csv"_qs, u"--den"_qs, u"streda"_qs};
        QTest::newRow("import spatny den")
            << QStringList{u"import"_qs, u"--csv"_qs, u"a"_qs, u"--den"_qs, u"patek"_qs, u"--out"_qs, u"b.sez"_qs};
        QTest::newRow("import dbf i csv")
            << QStringList{u"import"_qs, u"--dbf"_qs, u"a"_qs, u"--csv"_qs, u"b"_qs, u"--out"_qs, u"c"_qs};
        QTest::newRow("archive spatny seznam") << QStringList{u"archive"_qs, u"a.sez"_qs, u"--list"_qs, u"3"_qs};
        QTest::newRow("tips bez souboru") << QStringList{u"tips"_qs};
        QTest::newRow("cfg dva soubory") << QStringList{u"cfg"_qs, u"a"_qs, u"b"_qs};
    }
    void Spatne_Pouziti_Vraci_2() {
        QFETCH(QStringList, argumenty);
        const Beh b = Spust(argumenty);
        QCOMPARE(b.Kod, 2);
        QVERIFY(b.Vystup.isEmpty());
        QVERIFY(b.Chyby.contains(u"Použití"));
    }

    // The real history goes in, the archive line comes out, and the archive reads back the same.
    void Import_A_Vypis_Archivu() {
        QTemporaryDir dir;
        const QString sez = dir.filePath(u"SpS_tahy.sez"_qs);
        const Beh import = Spust(
            {u"import"_qs, u"--csv"_qs, QStringLiteral(TOMBI_HISTORIE), u"--den"_qs, u"streda"_qs, u"--out"_qs, sez});
        QCOMPARE(import.Kod, 0);
        QVERIFY(import.Vystup.startsWith(u"let "));
        const Beh archiv = Spust({u"archive"_qs, sez});
        QCOMPARE(archiv.Kod, 0);
        QCOMPARE(archiv.Vystup, import.Vystup);

        const Beh seznam = Spust({u"archive"_qs, sez, u"--list"_qs, u"1"_qs});
        QCOMPARE(seznam.Kod, 0);
        const QStringList radky = seznam.Vystup.split(u'\n', Qt::SkipEmptyParts);
        const int tahu = archiv.Vystup.split(u' ')[3].toInt();
        QCOMPARE(radky.size(), tahu + 1);
        // The first Wednesday draw of the history (4 January 1995) and the newest (7 January 2026).
        QCOMPARE(radky[1].split(u' ').size(), 8);
        QCOMPARE(radky.last(), u"%1 47 10 14 45 31 33 40"_qs.arg(tahu));
    }

    void Spatny_Vstup_Vraci_1_S_Ceskou_Zpravou() {
        QTemporaryDir dir;
        const Beh chybi = Spust({u"archive"_qs, dir.filePath(u"SpN_tahy.sez"_qs)});
        QCOMPARE(chybi.Kod, 1);
        QVERIFY(chybi.Chyby.contains(u"Chybí soubor tahů"));

        const QString dbf = dir.filePath(u"sportka.dbf"_qs);
        QVERIFY(Uloz_Soubor(dbf, QByteArray(545, ' ')).Ok());
        const Beh prazdny = Spust({u"import"_qs, u"--dbf"_qs, dbf, u"--out"_qs, dir.filePath(u"x.sez"_qs)});
        QCOMPARE(prazdny.Kod, 1);
        QVERIFY(prazdny.Chyby.contains(u"nebo je v něm chyba."));
        QVERIFY(!QFile::exists(dir.filePath(u"x.sez"_qs)));

        const QString stary = dir.filePath(u"stary.tip"_qs);
        QVERIFY(Uloz_Soubor(stary, QByteArray(52006, '\0')).Ok());
        const Beh tipy = Spust({u"tips"_qs, stary});
        QCOMPARE(tipy.Kod, 1);
        QCOMPARE(tipy.Chyby.trimmed(),
                 u"Provedte konverzi souboru tipu \"stary.tip\", nelze načíst - starý formát."_qs);
    }

    // A tip file built by hand: two tickets, the second with one column, and a list link.
    void Vypis_Tipu() {
        QByteArray b(60800, '\0');
        const char prvni[] = {1, 2, 3, 4, 5, 6};
        for (int s = 0; s < 10; ++s)
            b.replace(s * 6, 6, prvni, 6);
        b[60] = 1;
        const char druhy[] = {44, 45, 46, 47, 48, 49};
        b.replace(64, 6, druhy, 6);
        b[64 + 60] = 7;
        Pridej16(b, 2);
        Pridej16(b, 11);
        Pridej16(b, 9);
        b.append("Parta.szn");
        QTemporaryDir dir;
        const QString tip = dir.filePath(u"a.tip"_qs);
        QVERIFY(Uloz_Soubor(tip, b).Ok());
        const Beh beh = Spust({u"tips"_qs, tip});
        QCOMPARE(beh.Kod, 0);
        const QStringList radky = beh.Vystup.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(radky.size(), 12);
        QCOMPARE(radky[0], u"tikety 2 tipy 11 seznam Parta.szn"_qs);
        QCOMPARE(radky[1], u"1 1 1 1 2 3 4 5 6"_qs);
        QCOMPARE(radky[10], u"1 1 10 1 2 3 4 5 6"_qs);
        QCOMPARE(radky[11], u"2 7 1 44 45 46 47 48 49"_qs);
    }

    // Every field of the record in file order, the first and the last as the table has them.
    void Vypis_Nastaveni() {
        QTemporaryDir dir;
        const QString cfg = dir.filePath(u"tombi.cfg"_qs);
        QVERIFY(Uloz_Soubor(cfg, QByteArray()).Ok());
        const Beh beh = Spust({u"cfg"_qs, cfg});
        QCOMPARE(beh.Kod, 0);
        const QStringList radky = beh.Vystup.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(radky.first(), u"Tisk_Posun_X = 0"_qs);
        QCOMPARE(radky.last(), u"Klic_Vyberu = 0"_qs);
        QVERIFY(radky.contains(u"Adresare[5] = "_qs));
        QVERIFY(radky.contains(u"Ceny_Streda[9] = 0"_qs));
    }
};

QTEST_GUILESS_MAIN(Test_Tombi_Cli)
#include "Test_Tombi_Cli.moc"
