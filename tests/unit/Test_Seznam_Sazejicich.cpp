// The bettors' list: a .szn made byte by byte reads into its records and writes back the same
// bytes, a file cut inside a record is refused whole, and the shares are worked out per cent.
#include "Bajty.h"
#include "bettors/Seznam_Sazejicich.h"

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

    void Podily() {
        std::vector<Sazejici> seznam(2);
        seznam[0].Vklad = Vb::Mena::Z_Korun(100);
        seznam[1].Vklad = Vb::Mena::Z_Korun(300);
        Prepocti_Podily(seznam, 400);
        QCOMPARE(std::pair(seznam[0].Podil.Korun(), seznam[1].Podil.Korun()), std::pair(25.0, 75.0));
        std::vector<Sazejici> tri(3);
        for (Sazejici& s : tri)
            s.Vklad = Vb::Mena::Z_Korun(1);
        Prepocti_Podily(tri, 3);
        for (const Sazejici& s : tri)
            QCOMPARE(s.Podil.Korun(), 33.3);

        // A win of 1000 splits 250,00 and 750,00; names 450 twips wide stand 34 blanks from it.
        seznam[0].Jmeno = u"Jan"_qs;
        seznam[1].Jmeno = u"Eva"_qs;
        const auto sirka = [](const QString&) { return 450; };
        const QStringList radky = Rozdel_Vyhru(seznam, 1000, sirka);
        QCOMPARE(radky.size(), 4);
        QVERIFY(radky[0].startsWith(u"Jan"_qs + QString(34, u' ')));
        QVERIFY2(radky[0].endsWith(u"250,00"_qs), qPrintable(radky[0]));
        QCOMPARE(seznam[1].Vyhra.Korun(), 750.0);
        QVERIFY(radky[3].startsWith(u"   CELKEM"_qs) && radky[3].endsWith(u"1 000,00 Kč"_qs));
        // Thirds of 100: each 33,30; a bettor without a name gets nothing.
        tri[0].Jmeno = tri[1].Jmeno = u"A"_qs;
        QVERIFY(Rozdel_Vyhru(tri, 100, sirka).last().endsWith(u" 66,60 Kč"_qs));
        QCOMPARE(tri[2].Vyhra.Korun(), 0.0);
        QCOMPARE(tri[0].Vyhra.Korun(), 33.3);
        QVERIFY(Rozdel_Vyhru(tri, 0, sirka).isEmpty());
    }
};

QTEST_GUILESS_MAIN(Test_Seznam_Sazejicich)
#include "Test_Seznam_Sazejicich.moc"
