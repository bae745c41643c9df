// The .sez archive: its layout byte by byte, odd files, the flat lists, the backup, and writes that
// fail without harming the file they were to replace.
#include "data/Archiv_Tahu.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

namespace {

QByteArray Rok_Bajty(int16_t rok) {
    QByteArray b(Delka_Roku, '\0');
    b[0] = char(rok & 0xFF);
    b[1] = char(uint16_t(rok) >> 8);
    return b;
}

// Week `tyden` of the year record at `zacatek`: two draws of seven bytes, then the two flags.
void Nastav_Tyden(QByteArray& b, qsizetype zacatek, int tyden, const char (&tahy)[15], int16_t je1, int16_t je2) {
    const qsizetype o = zacatek + 2 + 18 * (tyden - 1);
    b.replace(o, 14, tahy, 14);
    const char priznaky[4] = {char(je1 & 0xFF), char(uint16_t(je1) >> 8), char(je2 & 0xFF), char(uint16_t(je2) >> 8)};
    b.replace(o + 14, 4, priznaky, 4);
}

Tah T(std::initializer_list<int> cisla) {
    Tah t;
    int i = 1;
    for (const int c : cisla)
        t[i++] = uint8_t(c);
    return t;
}

void Zapis(const QString& cesta, const QByteArray& data) {
    QFile f(cesta);
    QVERIFY(f.open(QIODevice::WriteOnly) && f.write(data) == data.size());
}

QByteArray Obsah(const QString& cesta) {
    QFile f(cesta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<chybí>");
}

Archiv_Tahu Archiv_S_Roky(std::initializer_list<int16_t> roky) {
    Archiv_Tahu a;
    for (const int16_t r : roky)
        a.Pole_Tahu.emplace_back().Rok = r;
    a.Pocet_Let = int(roky.size());
    return a;
}

} // namespace

class Test_Archiv_Tahu final : public QObject {
    Q_OBJECT

private slots:
    void rozlozeni_a_zpetny_zapis() {
        QByteArray b = Rok_Bajty(1965) + Rok_Bajty(-2);
        Nastav_Tyden(b, 0, 1, "\x01\x02\x03\x04\x05\x06\x07\x31\x30\x2F\x2E\x2D\x2C\x00", -1, -1);
        Nastav_Tyden(b, 0, 53, "\x0A\x0B\x0C\x0D\x0E\x0F\xFF\0\0\0\0\0\0\0", -1, 0);
        Nastav_Tyden(b, Delka_Roku, 2, "\x05\x04\x03\x02\x01\0\0\x07\x07\x07\x07\x07\x07\x07", 0, -1);

        const auto roky = Cti_Roky(b);
        QCOMPARE(roky.size(), std::size_t(3));
        QCOMPARE(roky[2].Rok, int16_t(-2));
        QCOMPARE(roky[1].Tyden[1].Tah2, T({49, 48, 47, 46, 45, 44, 0}));
        QCOMPARE(roky[1].Tyden[53].Tah1, T({10, 11, 12, 13, 14, 15, 255}));
        QCOMPARE(roky[1].Tyden[53].Je_Tah1, int16_t(-1));
        QCOMPARE(roky[2].Tyden[2].Je_Tah2, int16_t(-1));
        QCOMPARE(Zapis_Roky(roky, 2), b);
        QCOMPARE(Zapis_Roky(roky, 1), b.left(Delka_Roku));
        QCOMPARE(Zapis_Roky(roky, 7), b);
    }

    void liche_soubory_data() {
        QTest::addColumn<QByteArray>("bajty");
        QTest::addColumn<QList<int>>("roky");
        const QByteArray r1999 = Rok_Bajty(1999), r2000 = Rok_Bajty(2000);
        QTest::newRow("prázdný") << QByteArray() << QList<int>{};
        QTest::newRow("samé nuly") << QByteArray(3 * Delka_Roku, '\0') << QList<int>{};
        QTest::newRow("nulové záznamy na konci") << r1999 + QByteArray(2 * Delka_Roku, '\0') << QList<int>{1999};
        QTest::newRow("rok 0 uprostřed") << r1999 + QByteArray(Delka_Roku, '\0') + r2000 << QList<int>{1999};
        QTest::newRow("zkrácený poslední") << r1999 + r2000.left(100) << QList<int>{1999, 2000};
        QTest::newRow("jediný bajt roku") << r1999 + r2000.left(1) << QList<int>{1999, 2000 & 0xFF};
    }
    void liche_soubory() {
        QFETCH(QByteArray, bajty);
        QFETCH(QList<int>, roky);
        const auto precteno = Cti_Roky(bajty);
        QCOMPARE(precteno.size(), std::size_t(roky.size() + 1));
        for (int i = 0; i < roky.size(); ++i)
            QCOMPARE(int(precteno[std::size_t(i + 1)].Rok), roky[i]);
    }

    void ploche_seznamy_berou_jen_priznak_minus_jedna() {
        Archiv_Tahu a = Archiv_S_Roky({2001, 1990});
        Rok_Zaznam& r2001 = a.Pole_Tahu[1];
        r2001.Tyden[1] = {T({1, 2, 3, 4, 5, 6, 7}), T({8, 9, 10, 11, 12, 13, 14}), 0, 0};
        r2001.Tyden[2] = {T({21, 22, 23, 24, 25, 26, 27}), T({}), -1, 0};
        r2001.Tyden[3] = {T({31, 32, 33, 34, 35, 36, 37}), T({31, 32, 33, 34, 35, 36, 37}), 1, 255};
        r2001.Tyden[4] = {T({}), T({41, 42, 43, 44, 45, 46, 47}), 0, -1};
        // Added out of order, and it stays so in the lists.
        a.Pole_Tahu[2].Tyden[53] = {T({11, 12, 13, 14, 15, 16, 0}), T({17, 18, 19, 20, 21, 22, 0}), -1, -1};
        // Beyond Pocet_Let: not part of the archive.
        a.Pole_Tahu.emplace_back().Tyden[1] = {T({1, 1, 1, 1, 1, 1, 1}), T({1, 1, 1, 1, 1, 1, 1}), -1, -1};

        Priprav_Seznamy_Tahu(a);
        QCOMPARE(a.Pocet_Tahy_1, 2);
        QCOMPARE(a.Pocet_Tahy_2, 2);
        QCOMPARE(a.Tahy_1.size(), std::size_t(3));
        QCOMPARE(a.Tahy_1[1], T({21, 22, 23, 24, 25, 26, 27}));
        QCOMPARE(a.Tahy_1[2], T({11, 12, 13, 14, 15, 16, 0}));
        QCOMPARE(a.Tahy_2[1], T({41, 42, 43, 44, 45, 46, 47}));
        QCOMPARE(a.Tahy_2[2], T({17, 18, 19, 20, 21, 22, 0}));
        QCOMPARE(Spocitej_Tahy(a), std::make_pair(2, 2));
    }

    void nacteni_a_priznak_nacteni() {
        QTemporaryDir dir;
        const QString chybi = u"Chybí soubor tahů  \"SpN_tahy.sez\"  v aktuálním adresáři."_qs;
        Archiv_Tahu a = Archiv_S_Roky({1999});
        QCOMPARE(Nacti_Tahy(a, dir.path(), u"SpN_tahy.sez"_qs).Zprava, chybi);
        QCOMPARE(a.Pocet_Let, 0);
        QCOMPARE(a.Pole_Tahu.size(), std::size_t(1));
        QVERIFY(!a.Tahy_Nacteny);

        QByteArray b = Rok_Bajty(1994) + Rok_Bajty(1995);
        Nastav_Tyden(b, Delka_Roku, 52, "\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0A\x0B\x0C\x0D\x0E", -1, -1);
        Zapis(dir.filePath(u"SpN_tahy.sez"_qs), b);
        QVERIFY(Nacti_Tahy(a, dir.path(), u"SpN_tahy.sez"_qs).Ok());
        QVERIFY(a.Tahy_Nacteny);
        QCOMPARE(a.Pocet_Let, 2);
        QCOMPARE(a.Pole_Tahu[2].Tyden[52].Tah2, T({8, 9, 10, 11, 12, 13, 14}));

        // A later failure drops the archive but leaves the flag.
        QVERIFY(QFile::remove(dir.filePath(u"SpN_tahy.sez"_qs)));
        QCOMPARE(Nacti_Tahy(a, dir.path(), u"SpN_tahy.sez"_qs).Zprava, chybi);
        QCOMPARE(a.Pocet_Let, 0);
        QCOMPARE(a.Pole_Tahu.size(), std::size_t(1));
        QVERIFY(a.Tahy_Nacteny);
    }

    void nepovedeny_zapis_necha_stary_soubor() {
        QTemporaryDir dir;
        const QString cesta = dir.filePath(u"SpS_tahy.sez"_qs);
        const QByteArray stary = Rok_Bajty(2010);
        Zapis(cesta, stary);
        const Archiv_Tahu a = Archiv_S_Roky({2010, 2011, 2012});
        QVERIFY(!Uloz_Tahy(a, dir.filePath(u"neni"_qs), u"SpS_tahy.sez"_qs).Ok());

        // A disk that fills up halfway: the file-size limit makes the write fail, even for root.
        rlimit puvodni{};
        getrlimit(RLIMIT_FSIZE, &puvodni);
        const auto signal_puvodni = std::signal(SIGXFSZ, SIG_IGN);
        rlimit mala = puvodni;
        mala.rlim_cur = Delka_Roku + 100;
        setrlimit(RLIMIT_FSIZE, &mala);
        const Vysledek v = Uloz_Tahy(a, dir.path(), u"SpS_tahy.sez"_qs);
        setrlimit(RLIMIT_FSIZE, &puvodni);
        std::signal(SIGXFSZ, signal_puvodni);
        QVERIFY(!v.Ok());
        QCOMPARE(Obsah(cesta), stary);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{u"SpS_tahy.sez"_qs});
    }

    void zaloha_a_obnova() {
        QTemporaryDir dir;
        const QString zive = dir.filePath(u"SpN_tahy.sez"_qs);
        const QString zal = dir.filePath(u"SpN_tahy.zal"_qs);
        Archiv_Tahu a = Archiv_S_Roky({1999, 2000});
        Nastav_Den_Archivu(a, Den::Nedele);

        // Nothing to back up: the old backup stays.
        Zapis(zal, "stara");
        QVERIFY(!Zaloha_Souboru(1, a, dir.path(), a.Soubor_Tahu).Ok());
        QCOMPARE(Obsah(zal), QByteArray("stara"));

        // Kind 0 moves the file; kind 1 also writes memory anew. Only the newer backup stays.
        Zapis(zive, "prvni");
        QVERIFY(Zaloha_Souboru(0, a, dir.path(), a.Soubor_Tahu).Ok());
        QCOMPARE(Obsah(zal), QByteArray("prvni"));
        QVERIFY(!QFile::exists(zive));
        Zapis(zive, "druha");
        QVERIFY(Zaloha_Souboru(1, a, dir.path(), a.Soubor_Tahu).Ok());
        QCOMPARE(Obsah(zal), QByteArray("druha"));
        QCOMPARE(Obsah(zive), Zapis_Roky(a.Pole_Tahu, 2));

        QVERIFY(Obnov_Zalohu(a, dir.path()).Ok());
        QCOMPARE(Obsah(zive), QByteArray("druha"));
        QCOMPARE(Obnov_Zalohu(a, dir.path()).Zprava, u"Není soubor *.ZAL  v aktuálním adresáři."_qs);
        QCOMPARE(Obsah(zive), QByteArray("druha"));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{u"SpN_tahy.sez"_qs});
    }
};

QTEST_APPLESS_MAIN(Test_Archiv_Tahu)
#include "Test_Archiv_Tahu.moc"
