// The bettors' list: a .szn made byte by byte reads into its records and writes back the same
// bytes, a file cut inside a record is refused whole; shares, money and the split of a win; the
// printout texts and the leaflet's file and command.
#include "Bajty.h"
#include "Spust_Cli.h"
#include "bettors/Seznam_Sazejicich.h"
#include "bettors/Vypisy_Seznamu.h"

#include <QFile>
#include <QTemporaryDir>

#include <QTest>

class Test_Seznam_Sazejicich final : public QObject {
    Q_OBJECT

private slots:
    void Soubor_Bajt_Po_Bajtu() {
        // Three bettors; the date (10 characters) and the commission (1) stand in the first only.
        const auto zaznam = [](int tyden, const QByteArray& tah, const QByteArray& provize, const QByteArray& jmeno,
                               int64_t vklad, int64_t podil, int sance) -> QByteArray {
            return Bajty(tyden, 1) + Text_S_Delkou(tah) + Text_S_Delkou(provize) + Text_S_Delkou(jmeno) +
                   Bajty(vklad * 10000, 8) + Bajty(podil, 8) + Bajty(0, 8) + Bajty(sance, 1);
        };
        const QByteArray soubor = zaznam(47, "22.11.2026", "5", "Jan\xe8", 100, 250000, 1) +
                                  zaznam(0, "", "", "Petra", 300, 750000, 0) + zaznam(0, "", "", "\x8alechta", 0, 0, 0);
        QCOMPARE(soubor.size(), 47 + 37 + 39);
        std::vector<Sazejici> seznam;
        QVERIFY(Cti_Seznam(soubor, u"a.szn"_qs, seznam).Ok());
        QCOMPARE(seznam.size(), std::size_t(3));
        QCOMPARE(seznam[0].Jmeno, u"Janč"_qs);
        QCOMPARE(seznam[2].Jmeno, u"Šlechta"_qs);
        QCOMPARE(std::tuple(int(seznam[0].Tyden), seznam[0].Tah_Dne, seznam[0].Provize, int(seznam[0].Sance)),
                 std::tuple(47, u"22.11.2026"_qs, u"5"_qs, 1));
        QCOMPARE(seznam[1].Vklad.Korun(), 300.0);
        QCOMPARE(seznam[1].Podil.Korun(), 75.0);
        QCOMPARE(Zapis_Seznam(seznam), soubor);

        // Cut inside the last record: nothing is taken, the list in hand stays.
        const Vysledek v = Cti_Seznam(soubor.left(soubor.size() - 3), u"a.szn"_qs, seznam);
        QCOMPARE(v.Zprava, u"Soubor seznamu \"a.szn\" je poškozený: záznam č. 3 není celý. Seznam nebyl načten."_qs);
        QCOMPARE(seznam.size(), std::size_t(3));
        QVERIFY(Cti_Seznam({}, u"a.szn"_qs, seznam).Ok() && seznam.empty());
    }

    void Podily_A_Penize() {
        // Shares follow the sum of all stakes, also after a repair.
        std::vector<Sazejici> seznam;
        QVERIFY(Pridej_Sazejiciho(seznam, u"Jan"_qs, 100, 0).Ok());
        QVERIFY(Pridej_Sazejiciho(seznam, u"Eva"_qs, 100, 0).Ok());
        QVERIFY(Pridej_Sazejiciho(seznam, u"Eva"_qs, 300, 0, 1).Ok());
        QCOMPARE(std::pair(seznam[0].Podil.Korun(), seznam[1].Podil.Korun()), std::pair(25.0, 75.0));
        QCOMPARE(Pridej_Sazejiciho(seznam, u"Jan"_qs, 5, 0).Zprava, u"Pozor, jméno již v seznamu nebo není zadáno ..."_qs);
        QCOMPARE(Pridej_Sazejiciho(seznam, u""_qs, 5, 0).Zprava, u"Pozor, jméno již v seznamu nebo není zadáno ..."_qs);
        QCOMPARE(Pridej_Sazejiciho(seznam, u"Ota"_qs, 0, 0).Zprava, u"Chybí JMÉNO nebo VKLAD."_qs);
        QCOMPARE(Pridej_Sazejiciho(seznam, QString(47, u'x'), 5, 0).Zprava,
                 u"Jméno je příliš dlouhé, prosím zkrátit !!!"_qs);
        QCOMPARE(Pridej_Sazejiciho(seznam, u"Ota"_qs, 200, 500).Zprava, u"Překročena maximální výše vkladu 500 Kč."_qs);
        QCOMPARE(seznam.size(), std::size_t(2));
        QCOMPARE(Radek_Seznamu(seznam[0]), u"Jan"_qs + QString(42, u' ') + u"\t   100\t   25,0"_qs);

        // 400 Kč less 10 % leaves 360: 18 tips at 20 Kč. With Šance at 10 Kč a ticket fewer tips, and
        // tips, tickets and rest add up to the money.
        Penize_Seznamu p = Spocti_Penize(seznam, 10, 20, 0);
        QCOMPARE(std::tuple(p.Vklad, p.Provize, p.Na_Tipy, p.Pocet_Tipu, p.Pocet_Tiketu, p.Zbytek),
                 std::tuple(400.0, 40.0, 360.0, 18.0, 2.0, 0.0));
        p = Spocti_Penize(seznam, 10, 20, 10);
        QVERIFY(p.Pocet_Tipu < 18 && p.Zbytek >= 0);
        QCOMPARE(p.Pocet_Tipu * 20 + p.Pocet_Tiketu * 10 + p.Zbytek, 360.0);

        // Thirds of 1 Kč each stay 33.3: no correction to 100.
        std::vector<Sazejici> tri(3);
        for (Sazejici& s : tri)
            s.Vklad = Vb::Mena::Z_Korun(1);
        Prepocti_Podily(tri, 3);
        for (const Sazejici& s : tri)
            QCOMPARE(s.Podil.Korun(), 33.3);
    }

    void Rozdeleni_Vyhry() {
        std::vector<Sazejici> seznam(2);
        seznam[0].Jmeno = u"Jan"_qs;
        seznam[1].Jmeno = u"Eva"_qs;
        seznam[0].Podil = Vb::Mena::Z_Korun(25);
        seznam[1].Podil = Vb::Mena::Z_Korun(75);
        const QStringList radky = Rozdel_Vyhru(seznam, 1000);
        QCOMPARE(radky.size(), 4);
        QCOMPARE(radky[0], u"Jan"_qs + QString(43, u' ') + u"250,00"_qs);
        QCOMPARE(seznam[1].Vyhra.Korun(), 750.0);
        QVERIFY(radky[3].startsWith(u"   CELKEM"_qs) && radky[3].endsWith(u"1 000,00 Kč"_qs));
        // Thirds of 100: each 33,30, and the sum shared keeps its hundredths; no name, no share.
        std::vector<Sazejici> tri(3);
        for (Sazejici& s : tri)
            s.Podil = Vb::Mena::Z_Korun(33.3);
        tri[0].Jmeno = tri[1].Jmeno = u"A"_qs;
        QVERIFY(Rozdel_Vyhru(tri, 100).last().endsWith(u" 66,60 Kč"_qs));
        QCOMPARE(tri[2].Vyhra.Korun(), 0.0);
        QVERIFY(Rozdel_Vyhru(tri, 0).isEmpty());
    }

    void Soubor_Seznamu() {
        QTemporaryDir slozka;
        const QString cesta = slozka.filePath(u"parta.szn"_qs);
        Stav_Seznamu stav;
        QVERIFY(Pridej_Sazejiciho(stav.Seznam, u"Jan"_qs, 100, 0).Ok());
        QVERIFY(Uloz_Seznam(stav, cesta).Ok());
        QCOMPARE(stav.Seznam_Jmeno, u"parta.szn"_qs);
        Stav_Seznamu nacteny;
        QVERIFY(Nacti_Seznam(nacteny, cesta).Ok());
        QCOMPARE(nacteny.Seznam, stav.Seznam);
        QVERIFY(nacteny.Zmena_Seznamu);
        // An empty file is deleted and leaves no list open.
        Zapis_Souboru(cesta, {});
        QVERIFY(Nacti_Seznam(nacteny, cesta).Ok());
        QCOMPARE(nacteny.Pocet_Sazejicich(), 0);
        QVERIFY(!QFile::exists(cesta));
    }

    void Vypisy() {
        std::vector<Sazejici> seznam;
        QVERIFY(Pridej_Sazejiciho(seznam, u"Jan"_qs, 1500, 0).Ok());
        const Vypisy_Seznamu::Hlavicka h{u"29.11.2026"_qs, u"5"_qs, Spocti_Penize(seznam, 5, 20, 0), u"S_parta"_qs};
        QCOMPARE(Vypisy_Seznamu::Do_Souboru(Vypisy_Seznamu::Celkovy(seznam, h)),
                 Vb::Do_1250(u"Seznam sázejících pro tah dne   29.11.2026\r\n\r\n   Jméno\t\tvklad  Kč\t\tpodíl %\r\n"
                             u"Jan\t  1 500\t 100,0\t\t\r\n\r\nCelkem vsazeno  - 1 500 Kč\r\n"
                             u"Provize               - 5 %  =   75 Kč\r\n\r\nS_parta  \r\n"_qs));
        Zaznam_Tipu tipy;
        tipy.Pocet_Tiketu = 2;
        for (int s = 1; s <= 6; ++s)
            tipy.Tikety[1].Cisla[s] = Tip{uint8_t(s), 10, 20, 30, 40, 49};
        tipy.Tikety[2].Cisla[3] = Tip{1, 2, 3, 4, 5, 6};
        const QString tip1 = u"1   10 20 30 40 49 \t"_qs;
        QCOMPARE(Vypisy_Seznamu::Tipy(tipy),
                 (QStringList{u"1"_qs, tip1 + u"2   10 20 30 40 49 \t3   10 20 30 40 49 \t4   10 20 30 40 49 \t"
                                              u"5   10 20 30 40 49 \t"_qs,
                              u"6   10 20 30 40 49 \t"_qs, u"2"_qs, u"1   2   3   4   5   6   \t"_qs}));
        Sazejici lomitko;
        lomitko.Jmeno = u"A/B"_qs;
        QCOMPARE(Vypisy_Seznamu::Soubor_Jednotliveho(lomitko, u"S_parta"_qs), u"A_B_S_parta.txt"_qs);
    }

    void Prikaz_Cli() {
        QTemporaryDir slozka;
        Stav_Seznamu stav;
        QVERIFY(Pridej_Sazejiciho(stav.Seznam, u"Jan"_qs, 100, 0).Ok());
        QVERIFY(Pridej_Sazejiciho(stav.Seznam, u"Eva"_qs, 300, 0).Ok());
        stav.Seznam[0].Tah_Dne = u"29.11.2026"_qs;
        stav.Seznam[0].Tyden = 48;
        stav.Seznam[0].Provize = u"5"_qs;
        const QString cesta = slozka.filePath(u"parta.szn"_qs);
        QVERIFY(Uloz_Seznam(stav, cesta).Ok());
        const Beh b = Spust({u"bettors"_qs, cesta, u"--vyhra"_qs, u"1000"_qs});
        QCOMPARE(b.Kod, 0);
        // (The runner leaves out the empty line before the sum.)
        QCOMPARE(b.Radky, (QStringList{u"tah dne 29.11.2026"_qs, u"sazkovy tyden 48"_qs, u"provize 5"_qs, u"sance 0"_qs,
                                       Radek_Seznamu(stav.Seznam[0]), Radek_Seznamu(stav.Seznam[1]),
                                       u"Jan"_qs + QString(43, u' ') + u"250,00"_qs,
                                       u"Eva"_qs + QString(43, u' ') + u"750,00"_qs,
                                       u"   CELKEM                1 000,00 Kč"_qs}));
        QCOMPARE(Spust({u"bettors"_qs, cesta}).Radky.size(), 6);
        QCOMPARE(Spust({u"bettors"_qs, cesta, u"--vyhra"_qs, u"nan"_qs}).Kod, 2);
        // Reading an empty list leaves it where it is.
        Zapis_Souboru(cesta, {});
        QCOMPARE(Spust({u"bettors"_qs, cesta}).Kod, 0);
        QVERIFY(QFile::exists(cesta));
    }

    void Letak() {
        QTemporaryDir slozka;
        Zapis_Souboru(slozka.filePath(u"l_hp4.prn"_qs), "\x1b" "E");
        QCOMPARE(Vypisy_Seznamu::Najdi_Letak(slozka.path(), 5), slozka.filePath(u"l_hp4.prn"_qs));
        QVERIFY(Vypisy_Seznamu::Najdi_Letak(slozka.path(), 4).isEmpty());
        QCOMPARE(Vypisy_Seznamu::Prikaz_Letaku(u"HP"_qs, u"/a/L_HP4.PRN"_qs),
                 (QStringList{u"-d"_qs, u"HP"_qs, u"-o"_qs, u"raw"_qs, u"--"_qs, u"/a/L_HP4.PRN"_qs}));
    }
};

QTEST_GUILESS_MAIN(Test_Seznam_Sazejicich)
#include "Test_Seznam_Sazejicich.moc"
