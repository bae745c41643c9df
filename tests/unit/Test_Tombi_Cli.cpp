// tombi-cli as a script sees it: its exit codes, its Czech messages on stderr, and the exact lines it
// prints for archives and tip files.
#include "Bajty.h"
#include "Spust_Cli.h"
#include "data/Soubor_Tipu.h"
#include "data/Soubory.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <memory>
#include <sys/resource.h>

class Test_Tombi_Cli final : public QObject {
    Q_OBJECT

private slots:
    void Spatne_Pouziti_Vraci_2_data() {
        QTest::addColumn<QStringList>("argumenty");
        QTest::newRow("nic") << QStringList();
        QTest::newRow("neznamy prikaz") << QStringList{u"losuj"_qs};
        QTest::newRow("import bez vystupu")
            << QStringList{u"import"_qs, u"--csv"_qs, u"a.csv"_qs, u"--den"_qs, u"streda"_qs};
        QTest::newRow("archive spatny seznam") << QStringList{u"archive"_qs, u"a.sez"_qs, u"--list"_qs, u"3"_qs};
        QTest::newRow("generate tipy 0") << QStringList{u"generate"_qs, u"--tipy"_qs, u"0"_qs, u"--out"_qs, u"a.tip"_qs};
        QTest::newRow("generate tutovky 50")
            << QStringList{u"generate"_qs, u"--tipy"_qs, u"5"_qs, u"--tutovky"_qs, u"1,50"_qs, u"--out"_qs, u"a.tip"_qs};
        QTest::newRow("generate pouzit i vynechat")
            << QStringList{u"generate"_qs, u"--tipy"_qs, u"5"_qs, u"--pouzit"_qs, u"1,2"_qs, u"--vynechat"_qs, u"3"_qs,
                           u"--out"_qs, u"a.tip"_qs};
        QTest::newRow("evaluate radek ze tri") << QStringList{u"evaluate"_qs, u"--tipech"_qs, u"a.tip"_qs, u"1 2 3"_qs};
        QTest::newRow("evaluate dva druhy")
            << QStringList{u"evaluate"_qs, u"--tipech"_qs, u"--nahodne"_qs, u"a.tip"_qs, u"1 2 3 4 5 6 7"_qs};
    }
    void Spatne_Pouziti_Vraci_2() {
        QFETCH(QStringList, argumenty);
        const Beh b = Spust(argumenty);
        QCOMPARE(std::pair(b.Kod, b.Radky), std::pair(2, QStringList()));
        QVERIFY(b.Chyby.contains(u"Použití"));
    }

    void Generovani() {
        QTemporaryDir dir;
        const auto generuj = [&](const QString& soubor, QStringList dalsi) {
            return Spust(QStringList{u"generate"_qs, u"--out"_qs, dir.filePath(soubor)} + dalsi);
        };
        // The same seed gives the same file, byte for byte.
        const QStringList volby{u"--tipy"_qs, u"25"_qs, u"--tutovky"_qs, u"7,40"_qs, u"--suma"_qs, u"100,200"_qs,
                                u"--seminko"_qs, u"42"_qs};
        const Beh prvni = generuj(u"a.tip"_qs, volby);
        QCOMPARE(prvni.Kod, 0);
        QCOMPARE(prvni.Radky, QStringList{u"tikety 3 tipy 25 hotovo 25 seminko 42"_qs});
        QCOMPARE(generuj(u"b.tip"_qs, volby).Kod, 0);
        QCOMPARE(Obsah_Souboru(dir.filePath(u"a.tip"_qs)), Obsah_Souboru(dir.filePath(u"b.tip"_qs)));
        const Zaznam_Tipu z = Cti_Zaznam_Tipu(Obsah_Souboru(dir.filePath(u"a.tip"_qs)));
        QCOMPARE(std::pair(int(z.Tikety[3].Cisla[5][1]), int(z.Tikety[3].Cisla[5][2])), std::pair(7, 40));
        // A pool of ten with its tutovka: every tip takes the tutovka first and the rest from the pool.
        QCOMPARE(generuj(u"p.tip"_qs, {u"--tipy"_qs, u"12"_qs, u"--pouzit"_qs, u"1,2,3,4,5,6,7,8,9,30"_qs, u"--tutovky"_qs,
                                       u"30"_qs})
                     .Kod,
                 0);
        const Zaznam_Tipu okruh = Cti_Zaznam_Tipu(Obsah_Souboru(dir.filePath(u"p.tip"_qs)));
        for (int i = 0; i < 12; ++i) {
            const Tip& tip = okruh.Tikety[i / 10 + 1].Cisla[i % 10 + 1];
            QVERIFY(tip[1] == 30 && tip[6] <= 9);
        }
        QCOMPARE(generuj(u"q.tip"_qs, {u"--tipy"_qs, u"5"_qs, u"--pouzit"_qs, u"1,2,3"_qs}).Chyby,
                 u"Vyber více čísel ...\n"_qs);
        // The run's own fault: the message, exit 1, and the tips of the first ticket written.
        const Beh prunik = generuj(u"d.tip"_qs, {u"--tipy"_qs, u"30"_qs, u"--prunik"_qs, u"2"_qs});
        QCOMPARE(std::pair(prunik.Kod, prunik.Chyby), std::pair(1, u"Upravte omezeni, nemožno zpracovat ...\n"_qs));
        QVERIFY(prunik.Radky.value(0).startsWith(u"tikety 3 tipy 30 hotovo 10 "_qs));
    }

    void Vyhodnoceni() {
        QTemporaryDir dir;
        const QString sez = dir.filePath(u"SpS_tahy.sez"_qs);
        QCOMPARE(Spust({u"import"_qs, u"--csv"_qs, QStringLiteral(TOMBI_HISTORIE), u"--den"_qs, u"streda"_qs,
                        u"--out"_qs, sez})
                     .Kod,
                 0);
        // The newest first draw is 10 14 31 33 45 47, supplementary 40: tier 1 and tier 2.
        const auto z = std::make_unique<Zaznam_Tipu>();
        z->Tikety[1].Cisla[1] = Tip{{10, 14, 31, 33, 45, 47}};
        z->Tikety[1].Cisla[2] = Tip{{10, 14, 31, 33, 40, 45}};
        z->Tikety[1].Cislo_Tiketu = 1;
        z->Pocet_Tiketu = 1;
        z->Pocet_Tipu = 2;
        const QString tip = dir.filePath(u"a.tip"_qs);
        QVERIFY(Uloz_Soubor(tip, Zapis_Zaznam_Tipu(*z)).Ok());
        const QStringList vyhry{u" 000 001     01        1 / 1"_qs, u" 000 001     02        1 / 2"_qs};

        const Beh soubor = Spust({u"evaluate"_qs, tip, sez, u"1"_qs, u"0"_qs, u"--ceny"_qs, u"1000,100,0,0,0"_qs});
        QCOMPARE(soubor.Radky, (QStringList{u"tah1 1 1 0 0 0"_qs, u"tah2 0 0 0 0 0"_qs} + vyhry +
                                QStringList{u"vyhra 1100 vklad 24 zisk 4483"_qs}));
        const Beh tipech = Spust({u"evaluate"_qs, u"--tipech"_qs, tip, u"47 10 14 45 31 33 40"_qs});
        QCOMPARE(tipech.Radky, (QStringList{u"tah1 1 1 0 0 0"_qs, u"tah2 0 0 0 0 0"_qs} + vyhry));
        const Beh malo = Spust({u"evaluate"_qs, u"--tipech"_qs, tip, u"1 2 - - - - -"_qs, u"3 4 0 0 0 0 0"_qs});
        QCOMPARE(std::pair(malo.Kod, malo.Chyby), std::pair(1, u"Pro vyhodnocení je třeba alespoň 3 čísel v tahu !\n"_qs));
        const Beh tazich = Spust({u"evaluate"_qs, u"--tazich"_qs, sez, u"1"_qs, u"0"_qs, u"10 14 31 33 45 47 -"_qs});
        QCOMPARE(tazich.Radky, (QStringList{u"tah1 1 0 0 0 0"_qs, u"tah2 0 0 0 0 0"_qs}));

        const QStringList los{u"evaluate"_qs, u"--nahodne"_qs, tip, u"--seminko"_qs, u"8"_qs};
        const Beh prvni = Spust(los);
        QVERIFY(prvni.Radky.value(0).startsWith(u"los1 "_qs) && prvni.Radky.value(1).startsWith(u"los2 "_qs));
        QCOMPARE(Spust(los).Radky, prvni.Radky);
        const Beh srovnani = Spust({u"evaluate"_qs, u"--srovnani"_qs, u"5"_qs, tip, sez, u"50"_qs, u"50"_qs,
                                    u"--seminko"_qs, u"3"_qs});
        QCOMPARE(srovnani.Radky.size(), 11);
        QVERIFY(srovnani.Radky[0].startsWith(u"soubor 1 1 "_qs));
        QCOMPARE(srovnani.Radky[4], u"seminko 3"_qs);
        QVERIFY(QRegularExpression(u"^poradi [1-6] z 6 percentil [0-9]+$"_qs).match(srovnani.Radky[5]).hasMatch());
        QVERIFY(srovnani.Radky.last().startsWith(u"Minulé tahy"_qs));
    }

    void Analyza() {
        QTemporaryDir dir;
        const QString sez = dir.filePath(u"SpN_tahy.sez"_qs);
        QCOMPARE(Spust({u"import"_qs, u"--csv"_qs, QStringLiteral(TOMBI_HISTORIE), u"--den"_qs, u"nedele"_qs,
                        u"--out"_qs, sez})
                     .Kod,
                 0);
        const Beh zpetne = Spust({u"analyse"_qs, sez, u"0"_qs, u"52"_qs, u"52"_qs});
        QCOMPARE(zpetne.Kod, 0);
        QVERIFY(zpetne.Radky.value(0).startsWith(u"Četnost"_qs));
        // The same slice given by indices gives the same report.
        const Beh archiv = Spust({u"archive"_qs, sez, u"--list"_qs, u"1"_qs});
        const int posledni = archiv.Radky.value(0).section(u' ', 3, 3).toInt();
        const int druhy = archiv.Radky.value(0).section(u' ', 5, 5).toInt();
        const Beh od_do = Spust({u"analyse"_qs, sez, u"0"_qs, u"--od-do"_qs, QString::number(posledni - 51),
                                 QString::number(posledni), QString::number(druhy - 51), QString::number(druhy)});
        QCOMPARE(od_do.Radky, zpetne.Radky);
        QCOMPARE(Spust({u"analyse"_qs, sez, u"10"_qs, u"5"_qs, u"5"_qs}).Kod, 2);
        QVERIFY(Spust({u"analyse"_qs, sez, u"7"_qs, u"52"_qs, u"52"_qs, u"--dodatkova"_qs}).Radky.value(0).endsWith(u" včetně dodatkových"_qs));
    }

    void Archiv_A_Tipy() {
        QTemporaryDir dir;
        const QString sez = dir.filePath(u"SpS_tahy.sez"_qs);
        QCOMPARE(Spust({u"archive"_qs, sez}).Chyby, u"Chybí soubor tahů  \"SpS_tahy.sez\"  v aktuálním adresáři.\n"_qs);
        // Exit code 1 for bad input, and no archive from a table without draws.
        QVERIFY(Uloz_Soubor(dir.filePath(u"sportka.dbf"_qs), QByteArray(545, ' ')).Ok());
        QCOMPARE(Spust({u"import"_qs, u"--dbf"_qs, dir.filePath(u"sportka.dbf"_qs), u"--out"_qs, sez}).Kod, 1);
        QVERIFY(!QFile::exists(sez));

        const Beh import = Spust(
            {u"import"_qs, u"--csv"_qs, QStringLiteral(TOMBI_HISTORIE), u"--den"_qs, u"streda"_qs, u"--out"_qs, sez});
        QCOMPARE(std::pair(import.Kod, import.Radky), std::pair(0, QStringList{u"let 32 tahy1 1606 tahy2 1606"_qs}));
        const Beh seznam = Spust({u"archive"_qs, sez, u"--list"_qs, u"1"_qs});
        QCOMPARE(seznam.Radky.size(), 1 + 1606);
        QCOMPARE(seznam.Radky.last(), u"1606 47 10 14 45 31 33 40"_qs); // 7 January 2026

        // The Friday draw with its dates beside it; without them a draw has the Friday of its ISO week,
        // which for the operator's week 52 of 1994 is a week later.
        const QString patek = dir.filePath(u"SpP_tahy.sez"_qs);
        const QStringList datum{u"archive"_qs, patek, u"--list"_qs, u"2"_qs, u"--datum"_qs};
        QCOMPARE(Spust({u"import"_qs, u"--csv"_qs, QStringLiteral(TOMBI_HISTORIE), u"--den"_qs, u"patek"_qs, u"--out"_qs,
                        patek})
                     .Radky,
                 QStringList{u"let 22 tahy1 418 tahy2 418"_qs});
        const Beh s_daty = Spust(datum);
        QCOMPARE(s_daty.Radky.size(), 1 + 418);
        QCOMPARE(s_daty.Radky[1], u"1 14 40 48 21 5 36 34 23.12.1994"_qs);
        QCOMPARE(s_daty.Radky.last(), u"418 20 16 27 13 30 18 44 09.01.2026"_qs);
        QVERIFY(QFile::remove(dir.filePath(u"SpP_tahy.dny"_qs)));
        QCOMPARE(Spust(datum).Radky[1], u"1 14 40 48 21 5 36 34 30.12.1994"_qs);
        Zapis_Souboru(dir.filePath(u"SpP_tahy.dny"_qs), "1994 52 2 23.12.1994\nspatne\n");
        const Beh vadny = Spust(datum);
        QCOMPARE(std::pair(vadny.Kod, vadny.Radky[1]), std::pair(0, u"1 14 40 48 21 5 36 34 23.12.1994"_qs));
        QVERIFY(vadny.Chyby.contains(u"\"SpP_tahy.dny\" má vadné řádky"_qs) && vadny.Chyby.contains(u"řádek 2: "_qs));
        QCOMPARE(Spust({u"archive"_qs, patek, u"--datum"_qs}).Kod, 2);

        // Two tickets with one filled column each and a list link: one line per filled column.
        const auto z = std::make_unique<Zaznam_Tipu>();
        z->Tikety[1].Cisla[10] = Tip{{1, 2, 3, 4, 5, 6}};
        z->Tikety[2].Cisla[1] = Tip{{44, 45, 46, 47, 48, 49}};
        z->Tikety[2].Cislo_Tiketu = 7;
        z->Pocet_Tiketu = 2;
        z->Pocet_Tipu = 2;
        z->Seznam_Soubor = u"Parta.szn"_qs;
        QVERIFY(Uloz_Soubor(dir.filePath(u"a.tip"_qs), Zapis_Zaznam_Tipu(*z)).Ok());
        QCOMPARE(Spust({u"tips"_qs, dir.filePath(u"a.tip"_qs)}).Radky,
                 (QStringList{u"tikety 2 tipy 2 seznam Parta.szn"_qs, u"1 0 10 1 2 3 4 5 6"_qs,
                              u"2 7 1 44 45 46 47 48 49"_qs}));
    }

    void Uprava_Archivu() {
        QTemporaryDir dir;
        const QString sez = dir.filePath(u"SpP_tahy.sez"_qs);
        const auto archiv = [&](QStringList dalsi) { return Spust(QStringList{u"archive"_qs, sez} + dalsi); };
        // The first draw creates the archive; a filled week is refused and the file stays.
        QCOMPARE(archiv({u"--pridej"_qs, u"2026"_qs, u"48"_qs, u"1"_qs, u"1 2 3 4 5 6 -"_qs}).Radky,
                 QStringList{u"let 1 tahy1 1 tahy2 0"_qs});
        const QByteArray prvni = Obsah_Souboru(sez);
        const Beh obsazeno = archiv({u"--pridej"_qs, u"2026"_qs, u"48"_qs, u"1"_qs, u"9"_qs});
        QCOMPARE(std::pair(obsazeno.Kod, obsazeno.Chyby), std::pair(1, u"Týden a rok již obsazen, lze pouze OPRAVIT !\n"_qs));
        QCOMPARE(Obsah_Souboru(sez), prvni);

        // A repair keeps the boxes left empty and leaves the old file as the backup.
        QCOMPARE(archiv({u"--oprav"_qs, u"2026"_qs, u"48"_qs, u"1"_qs, u"0 0 0 0 0 40 41"_qs}).Kod, 0);
        QCOMPARE(Obsah_Souboru(dir.filePath(u"SpP_tahy.zal"_qs)), prvni);
        QCOMPARE(archiv({u"--list"_qs, u"1"_qs}).Radky.last(), u"1 1 2 3 4 5 40 41"_qs);
        QCOMPARE(archiv({u"--oprav"_qs, u"2026"_qs, u"48"_qs, u"1"_qs, u"7 7"_qs}).Chyby,
                 u"Pozor, zadána stejná čísla !\n"_qs);
        QCOMPARE(archiv({u"--oprav"_qs, u"2026"_qs, u"48"_qs, u"2"_qs, u"7"_qs}).Kod, 1);

        QCOMPARE(archiv({u"--smaz"_qs, u"2025"_qs, u"48"_qs, u"1"_qs}).Chyby,
                 u"Není co SMAZAT, týden či rok neexistuje.\n"_qs);
        QCOMPARE(archiv({u"--smaz"_qs, u"2026"_qs, u"48"_qs, u"1"_qs}).Radky, QStringList{u"let 1 tahy1 0 tahy2 0"_qs});
        QCOMPARE(archiv({u"--pridej"_qs, u"2026"_qs, u"54"_qs, u"1"_qs, u"1"_qs}).Kod, 2);
        QCOMPARE(archiv({u"--pridej"_qs, u"2026"_qs, u"1"_qs, u"1"_qs, u"1 50"_qs}).Kod, 2);
    }

    void Jmeno_Mimo_Utf8_A_Plny_Disk() {
        QTemporaryDir dir;
        // A name in Latin-1, as an old file system hands it over, opens as the shell passes it.
        const auto z = std::make_unique<Zaznam_Tipu>();
        z->Tikety[1].Cisla[1] = Tip{{1, 2, 3, 4, 5, 6}};
        z->Pocet_Tiketu = 1;
        z->Pocet_Tipu = 1;
        const QByteArray tip = Zapis_Zaznam_Tipu(*z);
        FILE* f = std::fopen(QFile::encodeName(dir.path()).append("/n\xE9" "d.tip").constData(), "wb");
        QVERIFY(f && std::fwrite(tip.constData(), 1, size_t(tip.size()), f) == size_t(tip.size()));
        std::fclose(f);
        const QString prikaz = u"exec \"$0\" tips $2 \"$(printf '%s/n\\351d.tip' \"$1\")\""_qs;
        const Beh cteni = Spust({u"-c"_qs, prikaz, QStringLiteral(TOMBI_CLI), dir.path()}, u"/bin/sh"_qs);
        QCOMPARE(std::pair(cteni.Kod, cteni.Radky), std::pair(0, QStringList{u"tikety 1 tipy 1 seznam "_qs, u"1 0 1 1 2 3 4 5 6"_qs}));
        const Beh konverze = Spust({u"-c"_qs, prikaz, QStringLiteral(TOMBI_CLI), dir.path(), u"--convert"_qs}, u"/bin/sh"_qs);
        QCOMPARE(konverze.Kod, 1);
        QVERIFY(konverze.Chyby.contains(u"není v kódování UTF-8"_qs));

        // A file-size limit ends the write with a message, not the program with SIGXFSZ.
        const QString sez = dir.filePath(u"SpS_tahy.sez"_qs);
        const Beh import = Spust({u"import"_qs, u"--csv"_qs, QStringLiteral(TOMBI_HISTORIE), u"--den"_qs, u"streda"_qs,
                                  u"--out"_qs, sez},
                                 QStringLiteral(TOMBI_CLI), [] {
                                     const rlimit mez{1000, 1000};
                                     setrlimit(RLIMIT_FSIZE, &mez);
                                 });
        QCOMPARE(import.Kod, 1);
        QCOMPARE(import.Chyby, u"Soubor \"%1\" nelze zapsat: soubor by byl větší, než systém dovoluje.\n"_qs.arg(sez));
        QVERIFY(!QFile::exists(sez));
    }
};

QTEST_GUILESS_MAIN(Test_Tombi_Cli)
#include "Test_Tombi_Cli.moc"
