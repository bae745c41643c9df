// The .sez archive: its layout byte by byte, odd files, the flat lists, the backup, and a write that
// fails without harming the file it was to replace.
#include "Bajty.h"
#include "data/Archiv_Tahu.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray Rok_Bajty(int16_t rok) {
    return Bajty(rok, 2) + QByteArray(956 - 2, '\0');
}

// Week `tyden` of the year record at `zacatek`: two draws of seven bytes, then the two flags.
void Nastav_Tyden(QByteArray& b, qsizetype zacatek, int tyden, const char (&tahy)[15], int16_t je1, int16_t je2) {
    b.replace(zacatek + 2 + 18 * (tyden - 1), 18, QByteArray(tahy, 14).append(Bajty(je1, 2)).append(Bajty(je2, 2)));
}

Tah T(std::initializer_list<int> cisla) {
    return Cisla<Tah>(cisla);
}

Archiv_Tahu Archiv_S_Roky(std::initializer_list<int16_t> roky) {
    Archiv_Tahu a;
    for (const int16_t r : roky)
        a.Pole_Tahu.emplace_back().Rok = r;
    a.Pocet_Let = int(roky.size());
    return a;
}

const QString Chybi = u"Chybí soubor tahů  \"SpN_tahy.sez\"  v aktuálním adresáři."_qs;

} // namespace

class Test_Archiv_Tahu final : public QObject {
    Q_OBJECT

private slots:
    void rozlozeni_a_zpetny_zapis() {
        QByteArray b = Rok_Bajty(1965) + Rok_Bajty(-2);
        Nastav_Tyden(b, 0, 1, "\x01\x02\x03\x04\x05\x06\x07\x31\x30\x2F\x2E\x2D\x2C\x00", -1, -1);
        Nastav_Tyden(b, 0, 53, "\x0A\x0B\x0C\x0D\x0E\x0F\xFF\0\0\0\0\0\0\0", -1, 0);
        Nastav_Tyden(b, 956, 2, "\x05\x04\x03\x02\x01\0\0\x07\x07\x07\x07\x07\x07\x07", 0, -1);

        const auto roky = Cti_Roky(b);
        QCOMPARE(roky.size(), std::size_t(3));
        QCOMPARE(roky[2].Rok, int16_t(-2));
        QCOMPARE(roky[1].Tyden[1].Tah2, T({49, 48, 47, 46, 45, 44, 0}));
        QCOMPARE(roky[1].Tyden[53].Tah1, T({10, 11, 12, 13, 14, 15, 255}));
        QCOMPARE(roky[1].Tyden[53].Je_Tah1, int16_t(-1));
        QCOMPARE(roky[2].Tyden[2].Je_Tah2, int16_t(-1));
        QCOMPARE(Zapis_Roky(roky, 2), b);
        QCOMPARE(Zapis_Roky(roky, 1), b.left(956));
        QCOMPARE(Zapis_Roky(roky, 7), b);
    }

    void liche_soubory_data() {
        QTest::addColumn<QByteArray>("bajty");
        QTest::addColumn<QList<int>>("roky");
        const QByteArray r1999 = Rok_Bajty(1999), r2000 = Rok_Bajty(2000);
        QTest::newRow("prázdný") << QByteArray() << QList<int>{};
        QTest::newRow("rok 0 uprostřed") << r1999 + QByteArray(956, '\0') + r2000 << QList<int>{1999};
        QTest::newRow("zkrácený poslední") << r1999 + r2000.left(100) << QList<int>{1999, 2000};
        QTest::newRow("jediný bajt roku") << r1999 + r2000.left(1) << QList<int>{1999, 2000 & 0xFF};
    }
    void liche_soubory() {
        QFETCH(QByteArray, bajty);
        QFETCH(QList<int>, roky);
        QList<int> precteno;
        for (const Rok_Zaznam& r : Cti_Roky(bajty))
            precteno << r.Rok;
        QCOMPARE(precteno, QList<int>{0} + roky);
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
        QCOMPARE(a.Tahy_1, (std::vector<Tah>{Tah{}, T({21, 22, 23, 24, 25, 26, 27}), T({11, 12, 13, 14, 15, 16, 0})}));
        QCOMPARE(a.Tahy_2, (std::vector<Tah>{Tah{}, T({41, 42, 43, 44, 45, 46, 47}), T({17, 18, 19, 20, 21, 22, 0})}));
        QCOMPARE(std::pair(a.Pocet_Tahy_1, a.Pocet_Tahy_2), std::pair(2, 2));
        QCOMPARE(Spocitej_Tahy(a), std::make_pair(2, 2));
    }

    void nacteni_a_priznak_nacteni() {
        QTemporaryDir dir;
        Archiv_Tahu a;

        QByteArray b = Rok_Bajty(1994) + Rok_Bajty(1995);
        Nastav_Tyden(b, 956, 52, "\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0A\x0B\x0C\x0D\x0E", -1, -1);
        Zapis_Souboru(dir.filePath(u"SpN_tahy.sez"_qs), b);
        QVERIFY(Nacti_Tahy(a, dir.path(), u"SpN_tahy.sez"_qs).Ok());
        QVERIFY(a.Tahy_Nacteny);
        QCOMPARE(a.Pocet_Let, 2);
        QCOMPARE(a.Pole_Tahu[2].Tyden[52].Tah2, T({8, 9, 10, 11, 12, 13, 14}));

        // A later failure drops the archive but leaves the flag.
        QVERIFY(QFile::remove(dir.filePath(u"SpN_tahy.sez"_qs)));
        QCOMPARE(Nacti_Tahy(a, dir.path(), u"SpN_tahy.sez"_qs).Zprava, Chybi);
        QCOMPARE(std::pair(a.Pocet_Let, a.Pole_Tahu.size()), std::pair(0, std::size_t(1)));
        QVERIFY(a.Tahy_Nacteny);

        // A file that is there but is no archive is refused with its reason, unread.
        QFile velky(dir.filePath(u"SpN_tahy.sez"_qs));
        QVERIFY(velky.open(QIODevice::WriteOnly) && velky.resize(32 * 1024 * 1024 + 1));
        QCOMPARE(
            Nacti_Tahy(a, dir.path(), u"SpN_tahy.sez"_qs).Zprava,
            u"Soubor \"SpN_tahy.sez\" nelze načíst: má 33 554 433 bajtů, soubor tohoto druhu může mít nejvýše 32 MiB."_qs);
        QVERIFY(QDir(dir.path()).mkdir(u"SpS_tahy.sez"_qs));
        QCOMPARE(Nacti_Tahy(a, dir.path(), u"SpS_tahy.sez"_qs).Zprava,
                 u"Soubor \"SpS_tahy.sez\" nelze načíst: je to složka, ne soubor."_qs);
    }

    void nepovedeny_zapis_rekne_proc_a_necha_stary_soubor() {
        QTemporaryDir dir;
        const QString cesta = dir.filePath(u"SpS_tahy.sez"_qs);
        Zapis_Souboru(cesta, Rok_Bajty(2010));
        QVERIFY(QDir(dir.path()).mkdir(u"slozka"_qs));
        const Archiv_Tahu a = Archiv_S_Roky({2010, 2011, 2012});
        const auto uloz = [&](const QString& adresar, const QString& soubor) { return Uloz_Tahy(a, adresar, soubor); };
        const QString nelze = u"Soubor \"%1\" nelze zapsat: "_qs;

        QCOMPARE(uloz(dir.filePath(u"neni"_qs), u"x.sez"_qs).Zprava,
                 nelze.arg(dir.filePath(u"neni/x.sez"_qs)) +
                     u"složka \"%1\" neexistuje."_qs.arg(dir.filePath(u"neni"_qs)));
        QCOMPARE(uloz(dir.path(), u"slozka"_qs).Zprava,
                 nelze.arg(dir.filePath(u"slozka"_qs)) + u"je to složka, ne soubor."_qs);
        QCOMPARE(Pri_Plnem_Disku(956 + 100, [&] { return uloz(dir.path(), u"SpS_tahy.sez"_qs); }).Zprava,
                 nelze.arg(cesta) + u"soubor by byl větší, než systém dovoluje."_qs);
        QCOMPARE(Obsah_Souboru(cesta), Rok_Bajty(2010));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{u"SpS_tahy.sez"_qs});

        QFile::setPermissions(dir.filePath(u"slozka"_qs), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        Vysledek bez_prav;
        if (!Podle_Prav_Souboru([&] { bez_prav = uloz(dir.filePath(u"slozka"_qs), u"x.sez"_qs); }))
            QSKIP("Práva souborů zde nelze uplatnit.");
        // The lock beside the archive is the first thing written, so it tells.
        QCOMPARE(bez_prav.Zprava,
                 u"Archiv tahů \"x.sez\" nelze zamknout pro zápis: do složky \"%1\" chybí oprávnění k zápisu."_qs.arg(
                     dir.filePath(u"slozka"_qs)));
    }

    void zaloha_a_obnova() {
        QTemporaryDir dir;
        const QString zive = dir.filePath(u"SpN_tahy.sez"_qs);
        const QString zal = dir.filePath(u"SpN_tahy.zal"_qs);
        Archiv_Tahu a = Archiv_S_Roky({1999, 2000});
        Nastav_Den_Archivu(a, Den::Nedele);

        // Nothing to back up: kind 0 fails, kind 1 just writes the archive; the old backup stays.
        Zapis_Souboru(zal, "stara");
        QCOMPARE(Zaloha_Souboru(0, a, dir.path(), a.Soubor_Tahu).Zprava, Chybi);
        QVERIFY(Zaloha_Souboru(1, a, dir.path(), a.Soubor_Tahu).Ok());
        QCOMPARE(Obsah_Souboru(zive), Zapis_Roky(a.Pole_Tahu, 2));
        QCOMPARE(Obsah_Souboru(zal), QByteArray("stara"));

        // Kind 0 moves the file; kind 1 also writes memory anew. Only the newer backup stays.
        Zapis_Souboru(zive, "prvni");
        QVERIFY(Zaloha_Souboru(0, a, dir.path(), a.Soubor_Tahu).Ok());
        QCOMPARE(Obsah_Souboru(zal), QByteArray("prvni"));
        QVERIFY(!QFile::exists(zive));
        Zapis_Souboru(zive, "druha");
        QVERIFY(Zaloha_Souboru(1, a, dir.path(), a.Soubor_Tahu).Ok());
        QCOMPARE(Obsah_Souboru(zal), QByteArray("druha"));
        QCOMPARE(Obsah_Souboru(zive), Zapis_Roky(a.Pole_Tahu, 2));

        // A write that fails leaves the archive and its backup as they were, and nothing beside them.
        Zapis_Souboru(zive, "treti");
        QVERIFY(!Pri_Plnem_Disku(956 + 100, [&] { return Zaloha_Souboru(1, a, dir.path(), a.Soubor_Tahu); }).Ok());
        QCOMPARE(Obsah_Souboru(zive), QByteArray("treti"));
        QCOMPARE(Obsah_Souboru(zal), QByteArray("druha"));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), (QStringList{u"SpN_tahy.sez"_qs, u"SpN_tahy.zal"_qs}));

        QVERIFY(Obnov_Zalohu(a, dir.path()).Ok());
        QCOMPARE(Obsah_Souboru(zive), QByteArray("druha"));
        QCOMPARE(Obnov_Zalohu(a, dir.path()).Zprava, u"Není soubor *.ZAL  v aktuálním adresáři."_qs);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{u"SpN_tahy.sez"_qs});
    }
};

QTEST_APPLESS_MAIN(Test_Archiv_Tahu)
#include "Test_Archiv_Tahu.moc"
