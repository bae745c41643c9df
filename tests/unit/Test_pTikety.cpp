// Ticket arithmetic: money into tips and tickets, progress, list rows, number patterns, the grid and
// its diagonals, hit tests on the ticket picture, and the history of one number.
#include "Bajty.h"
#include "core/pTikety.h"

#include <QTest>
#include <cmath>
#include <map>
#include <numeric>

class Test_pTikety final : public QObject {
    Q_OBJECT

private slots:
    void Penize_data() {
        QTest::addColumn<QList<double>>("vstup");  // sum, price of tip, price of ticket, fee
        QTest::addColumn<QList<double>>("vystup"); // tips, tickets, stored rest, Zbytek()
        QTest::newRow("presne") << QList<double>{200, 20, 0, 0} << QList<double>{10, 1, 0, 0};
        QTest::newRow("s poplatkem") << QList<double>{100, 16, 0, 20} << QList<double>{5, 1, 0, 0};
        QTest::newRow("maly zbytek zustava") << QList<double>{100, 16, 3, 0} << QList<double>{6, 1, 1, 1};
        // Below zero the loop takes tips off while the rest stays under the price of a tip.
        QTest::newRow("dva tipy dolu") << QList<double>{200, 20, 5, 0} << QList<double>{8, 1, 35, 35};
        QTest::newRow("vynucenych 12 pod cenou") << QList<double>{100, 16, 10, 0} << QList<double>{4, 1, 26, 26};
        // A rest forced to 12 ends the loop when the tip is cheaper; Zbytek gives the true rest.
        QTest::newRow("vynucenych 12 konci") << QList<double>{100, 10, 5, 0} << QList<double>{9, 1, 12, 5};
        QTest::newRow("na tip nestaci") << QList<double>{5, 20, 10, 0} << QList<double>{0, 0, 5, 5};
        QTest::newRow("poplatek nad castkou") << QList<double>{10, 20, 0, 30} << QList<double>{0, 0, -20, -20};
        QTest::newRow("zaporna cena") << QList<double>{100, -4, 5, 0} << QList<double>{0, 0, 100, 100};
    }
    void Penize() {
        QFETCH(QList<double>, vstup);
        QFETCH(QList<double>, vystup);
        pTikety p;
        p.Castka = Vb::Mena::Z_Korun(vstup[0]);
        p.Cena_Tipu = vstup[1];
        p.Cena_Tiketu = vstup[2];
        p.Poplatek = vstup[3];
        p.Sloupcu_Na_Tiketu = 10;
        QCOMPARE(p.Pocet_Tiketu(), vystup[1]);
        QCOMPARE(p.Pocet_Tipu_Vysledek, vystup[0]);
        QCOMPARE(p.Zbytek_Vysledek, vystup[2]);
        QCOMPARE(p.Zbytek(), vystup[3]);
    }

    void Penize_absurdni_cena_skonci() {
        // A price so small that taking one tip off no longer changes the count.
        pTikety p;
        p.Castka = Vb::Mena::Z_Korun(1);
        p.Cena_Tipu = 1e-300;
        p.Cena_Tiketu = 1;
        p.Sloupcu_Na_Tiketu = 10;
        QVERIFY(p.Pocet_Tipu() > 0);
    }

    void Procenta_a_faktorial() {
        pTikety p;
        int pumpy = 0;
        p.Pumpa = [&] { ++pumpy; };
        // A percentage is reported once, when it first grows; every call pumps events.
        double celkem = 100, f = 0, sedm = 7, g = 0;
        QVERIFY(p.Procenta(50, 0, 100, celkem, 100, f));
        QVERIFY(!p.Procenta(50, 0, 100, celkem, 100, f));
        QVERIFY(!p.Procenta(10, 0, 100, celkem, 100, f));
        QCOMPARE(f, 50.0);
        QVERIFY(p.Procenta(3, 0, 7, sedm, 7, g)); // 300 \ 7 is cut, not rounded
        QCOMPARE(std::pair(g, pumpy), std::pair(42.0, 4));

        QCOMPARE(pTikety::Faktorial(20), 2432902008176640000.0);
        QVERIFY(std::isinf(pTikety::Faktorial(1'000'000'000)));
    }

    void Radky_seznamu() {
        int tiket = -1, sloupec = -1, celkem = -1;
        pTikety::Zjisti_Tik_Slo(13, 12, tiket, sloupec);
        QCOMPARE(std::pair(tiket, sloupec), std::pair(2, 1));
        pTikety::Zjisti_Tik_Slo(12, 12, tiket, sloupec); // no correction for a remainder of 0
        QCOMPARE(std::pair(tiket, sloupec), std::pair(2, 0));
        // druh, row, overall order (-1 untouched), column
        for (auto [druh, radek, ocekavane_celkem, ocekavany_sloupec] :
             {std::tuple{1, 20, -1, 10}, {1, 23, -1, 3}, {0, 13, 11, 1}, {0, 12, 10, 10}, {0, 35, 31, 1}}) {
            celkem = -1;
            pTikety::Poradi_Tip_CelkSlo(druh, radek, celkem, sloupec);
            QCOMPARE(std::pair(celkem, sloupec), std::pair(ocekavane_celkem, ocekavany_sloupec));
        }
    }

    void Jmena_a_poradi() {
        QCOMPARE(pTikety::Dej_Jmeno_Souboru(2, u"C:\\a\\b.c.tip"_qs), u"b"_qs);
        QCOMPARE(pTikety::Dej_Jmeno_Souboru(1, u"C:\\a\\b.c.tip"_qs), u"b.c.tip"_qs);
        QVERIFY(pTikety::Setridit(u"3 5 4"_qs));
        QVERIFY(!pTikety::Setridit(u"3 3 4"_qs));
        QVERIFY(pTikety::Setridit(u"  7 x 0 3"_qs));        // words and zeros are skipped
        QVERIFY(!pTikety::Setridit(u"9 10"_qs));            // as numbers, not as text
        QVERIFY(!pTikety::Setridit(u"1 2 3 4 5 6 7 1"_qs)); // an eighth number is not read
    }

    void Cisla_pod_sebou() {
        const Tip dvojice = Cisla<Tip>({1, 6, 11, 2, 30, 40}); // 1-6 and 6-11
        QVERIFY(pTikety::Cisla_Pod_Sebou(2, 1, dvojice) && !pTikety::Cisla_Pod_Sebou(2, 2, dvojice));
        // The five shapes of a triple; on a sorted tip only the second (a, a+5, a+10) can fire.
        for (const Tip& trojice : {Cisla<Tip>({11, 16, 6, 40, 41, 42}), Cisla<Tip>({1, 6, 11, 20, 30, 40}),
                                   Cisla<Tip>({11, 16, 1, 40, 41, 42}), Cisla<Tip>({11, 21, 6, 40, 41, 42}),
                                   Cisla<Tip>({21, 31, 11, 40, 41, 42})}) {
            QVERIFY(pTikety::Cisla_Pod_Sebou(3, 0, trojice));
            QVERIFY(!pTikety::Cisla_Pod_Sebou(3, 1, trojice));
        }
        // The same column read upwards is not among the shapes.
        QVERIFY(!pTikety::Cisla_Pod_Sebou(3, 0, Cisla<Tip>({11, 6, 1, 40, 41, 42})));
    }

    void Mrizka_a_uhlopricky() {
        // number, row, column (zero-based)
        for (auto [cislo, rad, sloup] : {std::tuple{1, 0, 0}, {5, 0, 4}, {6, 1, 0}, {49, 9, 3}}) {
            int r = -1, s = -1;
            pTikety::Dej_Rad_Sloup(cislo, r, s);
            QCOMPARE(std::pair(r, s), std::pair(rad, sloup));
        }

        // Each diagonal is a run of grid cells one row down and one column sideways, of the lengths
        // of the ticket, and the corner numbers stand on none.
        for (bool zleva : {true, false}) {
            const QList<int> delky =
                zleva ? QList<int>{2, 3, 4, 5, 5, 5, 5, 5, 4, 4, 3, 2} : QList<int>{2, 3, 4, 5, 5, 5, 5, 5, 5, 4, 3, 2};
            const QList<int> mimo = zleva ? QList<int>{5, 46} : QList<int>{1};
            std::map<int, QList<int>> clenove;
            for (int c = 0; c <= 50; ++c) {
                Pole_Od_1<int, 12> k;
                zleva ? pTikety::Tip_Kriz_LevDoPrav(c, k) : pTikety::Tip_Kriz_PravDoLev(c, k);
                for (int u = 1; u <= 12; ++u)
                    for (int n = 0; n < k[u]; ++n)
                        clenove[u].append(c);
                QCOMPARE(std::accumulate(k.begin(), k.end(), 0), (c >= 1 && c <= 49 && !mimo.contains(c)) ? 1 : 0);
            }
            for (int u = 1; u <= 12; ++u) {
                QCOMPARE(clenove[u].size(), delky[u - 1]);
                for (qsizetype i = 1; i < clenove[u].size(); ++i) {
                    int r0, s0, r1, s1;
                    pTikety::Dej_Rad_Sloup(clenove[u][i - 1], r0, s0);
                    pTikety::Dej_Rad_Sloup(clenove[u][i], r1, s1);
                    QCOMPARE(std::pair(r1, s1), std::pair(r0 + 1, s0 + (zleva ? 1 : -1)));
                }
            }
        }
    }

    void Body_na_obrazku() {
        pTikety p;
        // x, y, number, row and column found; both ends of a band count
        for (auto [x, y, cislo, radek, sloupec] : {std::tuple{70.0, 75.0, 1, 1, 1},
                                                   {1710.0, 3450.0, 50, 10, 5},
                                                   {765.0, 1050.0, 13, 3, 3},
                                                   {345.5, 75.0, 0, 1, 0},
                                                   {100.0, 350.0, 0, 0, 1}}) {
            QCOMPARE(int(p.Cislo_Ve_Sloupci(x, y)), cislo);
            QCOMPARE(std::pair(p.Radek_Mys, p.Sloupec_Mys), std::pair(radek, sloupec));
        }
        // x, y, choice before, choice after; found means a choice other than 0, even an old one.
        for (auto [x, y, predtim, volba] : {std::tuple{60.0, 240.0, 0, 1},
                                            {1720.0, 520.0, 0, 3},
                                            {100.0, 1450.0, 0, 4},
                                            {1000.0, 2800.0, 0, 13},
                                            {420.0, 240.0, 0, 0},
                                            {380.0, 700.0, 2, 2}}) {
            int v = predtim;
            bool nalezeno = !predtim;
            pTikety::Volba_Slosovani_ATD(x, y, v, nalezeno);
            QCOMPARE(std::pair(v, nalezeno), std::pair(volba, volba != 0));
        }
    }

    void Analyza_cisla() {
        // Index 0 is unused; the newest draw is last. 7 in the supplementary place must not count.
        const auto T = [](std::initializer_list<int> c) { return Cisla<Tah>(c); };
        const std::vector<Tah> tahy_1 = {Tah{},
                                         T({7, 1, 2, 3, 4, 5, 6}),
                                         T({1, 2, 3, 4, 5, 7, 8}),
                                         T({1, 2, 3, 4, 5, 6, 8}),
                                         T({1, 2, 3, 4, 5, 6, 7}),
                                         T({7, 12, 13, 14, 15, 16, 9})};
        const std::vector<Tah> tahy_2 = {Tah{}, T({1, 2, 3, 4, 5, 7, 8}), T({1, 2, 3, 4, 5, 6, 9}),
                                         T({1, 2, 3, 4, 5, 6, 9})};
        pTikety p;
        int pumpy = 0;
        p.Pumpa = [&] { ++pumpy; };
        QString posledni_1 = u"x"_qs, posledni_2, pocet_1, pocet_2;
        QCOMPARE(
            p.Analyzuj_Cislo(7, 0, tahy_1, tahy_2, posledni_1, posledni_2, pocet_1, pocet_2).Zprava,
            u"Pro analýzu v tazích, nastavte počet týdnů v \"Nastavení - TiP\" (Program - Nastavení, stránka "
            u"Analýza tahů, Počet týdnů analýzy tipů)."_qs);
        QCOMPARE(posledni_1, u"x"_qs);

        // Three weeks read four draws: indexes 5 down to 2.
        QVERIFY(p.Analyzuj_Cislo(7, 3, tahy_1, tahy_2, posledni_1, posledni_2, pocet_1, pocet_2).Ok());
        QCOMPARE(QStringList({pocet_1, posledni_1, pocet_2, posledni_2}),
                 QStringList({u"2"_qs, u"1"_qs, u"1"_qs, u"3"_qs}));
        QCOMPARE(pumpy, 4 + 3);
        // More weeks than draws stop at the first draw.
        QVERIFY(p.Analyzuj_Cislo(6, 400, tahy_1, {}, posledni_1, posledni_2, pocet_1, pocet_2).Ok());
        QCOMPARE(QStringList({pocet_1, posledni_1, pocet_2}), QStringList({u"2"_qs, u"2"_qs, QString()}));
    }
};

QTEST_APPLESS_MAIN(Test_pTikety)
#include "Test_pTikety.moc"
