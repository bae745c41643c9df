// Rows and diagonals, even/odd, averages, sums and intervals: reports over the newest 52 Sunday
// draws compared with files, and the odd corners of each statistic on small lists made by hand.
#include "Bajty.h"
#include "analysis/Analyza_Tahu.h"
#include "net/Import_Tahu.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace {

std::vector<Tah> Tahy(std::initializer_list<std::initializer_list<int>> radky, int opakovat = 1) {
    std::vector<Tah> tahy(1);
    for (int i = 0; i < opakovat; ++i) {
        for (const auto& r : radky) {
            int p = 1;
            tahy.emplace_back();
            for (const int n : r)
                tahy.back()[p++] = uint8_t(n);
        }
    }
    return tahy;
}

// Both series over their newest `pocet` draws (all when 0).
Zadani_Analyzy Zadani(std::vector<Tah>& prvni, std::vector<Tah>& druhe, int cisel, double prah = 0, int rezim = 0,
                      int pocet = 0) {
    const auto rada = [pocet](std::vector<Tah>& t) {
        const int posledni = int(t.size()) - 1;
        return Rada_Tahu{&t, posledni, (pocet ? pocet : posledni) - 1};
    };
    return {{rada(prvni), rada(druhe)}, cisel, prah, rezim};
}

} // namespace

class Test_Radky_A_Prumery final : public QObject {
    Q_OBJECT

private slots:
    // Every variant over the newest 52 Sunday draws. A report that differs is written to the temp
    // folder for a diff. Over the whole archive, every six-number draw has one row pattern, and a
    // second run gives the same report.
    void Vypisy_Nedele() {
        Archiv_Tahu a = Archiv_Z_Historie(Den::Nedele);
        QVERIFY(a.Tahy_1.size() > 1000);

        using Statistika = Vysledek_Analyzy (*)(const Zadani_Analyzy&, const Prubeh&);
        const struct {
            const char* soubor;
            Statistika statistika;
            int cisel;
            double prah;
            int rezim;
        } pripady[] = {
            {"interval_52.txt", A_Interval_Cisla, 6, 5, 0},  {"interval_52_dodatkova.txt", A_Interval_Cisla, 7, 1, 0},
            {"sloupce_52.txt", A_Sloupce_Radky, 6, 0, 0},    {"sloupce_52_dodatkova.txt", A_Sloupce_Radky, 7, 0, 0},
            {"suda_52.txt", A_Suda_Licha, 6, 0, 0},          {"suda_52_dodatkova.txt", A_Suda_Licha, 7, 0, 0},
            {"prumer_52_mensi.txt", A_Prumerne_Tazeno, 6, 0, 0},
            {"prumer_52_vetsi.txt", A_Prumerne_Tazeno, 6, 0, 1},
            {"prumer_52_vetsi_dodatkova.txt", A_Prumerne_Tazeno, 7, 0, 1},
            {"suma_52.txt", A_Suma_Tahu, 6, 0, 0},           {"suma_52_dodatkova.txt", A_Suma_Tahu, 7, 0, 0},
        };
        QStringList rozdilne;
        for (const auto& p : pripady) {
            const Zadani_Analyzy z = Zadani(a.Tahy_1, a.Tahy_2, p.cisel, p.prah, p.rezim, 52);
            const Vysledek_Analyzy v = p.statistika(z, {});
            QVERIFY(!v.Selhala);
            QCOMPARE(p.statistika(z, {}).Text_2, v.Text_2);
            const QByteArray vypis = (Nadpis_Analyzy(v, p.cisel == 7) + v.Text_1 + u'\n' + v.Text_2 + u'\n').toUtf8();
            QFile f(QStringLiteral(TOMBI_TEST_DATA "/analyza/") + QLatin1String(p.soubor));
            if (!f.open(QIODevice::ReadOnly) || f.readAll() != vypis) {
                QFile skutecny(QDir::temp().filePath(QLatin1String(p.soubor)));
                if (skutecny.open(QIODevice::WriteOnly))
                    skutecny.write(vypis);
                rozdilne.append(skutecny.fileName());
            }
        }
        QVERIFY2(rozdilne.isEmpty(), qPrintable(u"differ, see "_qs + rozdilne.join(u' ')));

        const Vysledek_Analyzy cely = A_Sloupce_Radky(Zadani(a.Tahy_1, a.Tahy_2, 6), {});
        const QStringList radky = cely.Text_1.split(u'\n');
        int soucet = 0;
        for (int i = 3; i < 13; ++i)
            soucet += radky[i].section(u'-', -1).toInt();
        QCOMPARE(soucet, int(a.Tahy_1.size()) - 1);
    }

    // Patterns on the grid: 1..6 lies 5 + 1 on the rows, 2 1 1 1 1 in the columns and in no
    // left-to-right pattern (5 is on no such diagonal). Seven places count only when the seventh
    // is empty; a number off the grid drops the draw out of every list.
    void Sloupce_Radky() {
        auto prvni = Tahy({{1, 2, 3, 4, 5, 6}, {1, 12, 23, 34, 45, 46}});
        auto druhe = Tahy({{1, 2, 3, 4, 5, 6, 0}, {1, 2, 3, 4, 6, 7, 8}, {1, 2, 3, 4, 6, 50, 0}});
        const Vysledek_Analyzy sest = A_Sloupce_Radky(Zadani(prvni, druhe, 6), {});
        QVERIFY(!sest.Selhala);
        QVERIFY(sest.Text_1.startsWith(u"\nPrvní tah kombinace v :\nřádku  \t\tpočet\n5 1\t\t- 1\n4 2\t\t- 0\n"));
        QVERIFY(sest.Text_1.contains(u"\n1 1 1 1 1 1\t- 1\n\nsloupci \t\tpočet\n6\t\t- 0\n"));
        QVERIFY(sest.Text_1.contains(u"\n2 1 1 1 1\t\t- 2\n\nkříži zleva doprava dolů"));
        const QString zleva = sest.Text_1.section(u"zleva doprava"_qs, 1).section(u"zprava"_qs, 0, 0);
        QVERIFY(zleva.count(u"- 0") == 9);
        QVERIFY(sest.Text_2.startsWith(u"\nDruhý tah kombinace v :\nřádku\t\tpočet\n5 1\t\t- 1\n4 2\t\t- 1\n4 1 1"));

        const Vysledek_Analyzy sedm = A_Sloupce_Radky(Zadani(prvni, druhe, 7), {});
        QCOMPARE(sedm.Text_1, sest.Text_1);
        QVERIFY(sedm.Text_2.startsWith(u"\nDruhý tah kombinace v :\nřádku\t\tpočet\n5 1\t\t- 1\n4 2\t\t- 0\n"));
    }

    void Suda_Licha() {
        auto prvni = Tahy({{2, 4, 6, 8, 10, 12, 0}, {1, 3, 5, 7, 9, 11, 0}, {1, 3, 5, 7, 9, 11, 13}});
        auto druhe = Tahy({{2, 4, 6, 8, 10, 11, 0}});
        const Vysledek_Analyzy v = A_Suda_Licha(Zadani(prvni, druhe, 7), {});
        QCOMPARE(v.Text_1, u"\nPrvní tah\n 0 / 7  - 1x\n 1 / 6  - 1x\n 2 / 5  - 0x\n 3 / 4  - 0x\n 4 / 3  - 0x"
                           u"\n 5 / 2  - 0x\n 6 / 1  - 0x\n 7 / 0  - 1x"_qs);
        QCOMPARE(v.Graf.Hodnoty[1], (std::vector<double>{0, 0, 0, 0, 0, 0, 1, 0}));
        QVERIFY(A_Suda_Licha(Zadani(prvni, druhe, 6), {}).Text_2.contains(u"\n 4 / 2  - 0x\n 5 / 1  - 1x\n"));
    }

    // The fair share uses one draw fewer than the slice: 50 draws give 6, one draw 0, and then only
    // the side above the average lists anything, the numbers never drawn among them. A count equal
    // to the average stands on both sides.
    void Prumerne_Tazeno() {
        auto padesat = Tahy({{1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 7}}, 25);
        auto jeden = Tahy({{1, 2, 3, 4, 5, 49, 48}});
        const Vysledek_Analyzy pod = A_Prumerne_Tazeno(Zadani(padesat, jeden, 7, 0, 0), {});
        QCOMPARE(pod.Text_1, u"\nPrvní tah - menší průměr než  < 6x"_qs);
        QCOMPARE(pod.Text_2, u"\nDruhý tah - menší průměr než  < 0x"_qs);
        QCOMPARE(pod.Min_Pocet[0], 0);
        QCOMPARE(pod.Max_Pocet[0], 50);

        const Vysledek_Analyzy nad = A_Prumerne_Tazeno(Zadani(padesat, jeden, 6, 0, 1), {});
        QCOMPARE(nad.Text_1, u"\nPrvní tah - vyšší průměr než  > 6x\n 25x -  6, 7,\n 50x -  1, 2, 3, 4, 5,"_qs);
        QVERIFY(nad.Text_2.startsWith(u"\nDruhý tah - vyšší průměr než  > 0x\n 0x -  6, 7, 8,"));
        QVERIFY(nad.Text_2.endsWith(u" 47, 48,\n 1x -  1, 2, 3, 4, 5, 49,"));

        auto sedmnact = Tahy({{1, 2, 3, 4, 5, 6}}, 16); // with one more draw: average Int(16 * 6 / 49) = 1
        sedmnact.push_back(Tahy({{7, 8, 9, 10, 11, 12}})[1]);
        QCOMPARE(A_Prumerne_Tazeno(Zadani(sedmnact, jeden, 6, 0, 0), {}).Text_1,
                 u"\nPrvní tah - menší průměr než  < 1x\n 1x -  7, 8, 9, 10, 11, 12,"_qs);
        QCOMPARE(A_Prumerne_Tazeno(Zadani(sedmnact, jeden, 6, 0, 1), {}).Text_1,
                 u"\nPrvní tah - vyšší průměr než  > 1x\n 1x -  7, 8, 9, 10, 11, 12,\n 16x -  1, 2, 3, 4, 5, 6,"_qs);

        auto mimo = Tahy({{1, 2, 3, 4, 5, 50}});
        const Vysledek_Analyzy chyba = A_Prumerne_Tazeno(Zadani(jeden, mimo, 6), {});
        QVERIFY(chyba.Selhala);
        QCOMPARE(chyba.Chyba_Proces, u"A_Prumerne_Tazeno"_qs);
    }

    // Each series lists its counts up to its own highest (the second's 21 drawn five times is
    // there although the first's highest is 4); a sum without a counter ends the statistic.
    void Suma_Tahu() {
        auto prvni = Tahy({{1, 2, 3, 4, 5, 6}}, 4);
        auto druhe = Tahy({{1, 2, 3, 4, 5, 6, 0}}, 5);
        druhe.push_back(Tahy({{49, 48, 47, 46, 45, 44, 43}})[1]);
        druhe.push_back(Tahy({{1, 2, 3, 4, 5, 12, 0}})[1]);
        const Vysledek_Analyzy v = A_Suma_Tahu(Zadani(prvni, druhe, 7), {});
        QVERIFY(!v.Selhala);
        QCOMPARE(v.Text_1, u"\nPrvní tah :\n4x\n   21,"_qs);
        QCOMPARE(v.Text_2, u"\nDruhý tah :\n1x\n   27, 322,\n5x\n   21,"_qs);
        QCOMPARE(v.Max_Pocet[1], 5);

        auto nizka = Tahy({{1, 2, 3, 4, 5, 6}, {0, 0, 0, 0, 0, 20}});
        const Vysledek_Analyzy chyba = A_Suma_Tahu(Zadani(prvni, nizka, 6), {});
        QVERIFY(chyba.Selhala);
        QCOMPARE(chyba.Chyba_Proces, u"A_Suma_Tahu"_qs);
    }

    // Gaps in draws of the slice: 7 at places 2, 5, 7 of 10 has gaps 3 and 2, was drawn 4 draws
    // back, averages 2 (2.5 to the even neighbour), and is marked. A gap above 100 leaves the shortest
    // at 100; a threshold above 999 means none.
    void Interval_Cisla() {
        auto prvni = Tahy({{40, 41, 42, 43, 44, 45}}, 10);
        prvni[2][1] = 7;
        prvni[5][6] = 7;
        prvni[7][2] = 7;
        auto druhe = Tahy({{40, 41, 42, 43, 44, 45}}, 110);
        druhe[1][1] = 9;
        druhe[110][1] = 9;
        druhe[110][7] = 9; // drawn twice in one draw: a gap of 0
        const Vysledek_Analyzy v = A_Interval_Cisla(Zadani(prvni, druhe, 6, 4), {});
        QVERIFY(!v.Selhala);
        QCOMPARE(v.Text_1, u"\nPrvní tah\nčís.   nejnižší / nejvyšší\ttaženo před\tprůměr\n 7,\t 2\t 3\t< 4\t\t 2"_qs);
        QCOMPARE(v.Text_2, u"\nDruhý tah\nčís.   nejnižší / nejvyšší\ttaženo před\tprůměr"_qs);
        QCOMPARE(v.Graf.Hodnoty[0][6], 2.5);

        const Vysledek_Analyzy sedm = A_Interval_Cisla(Zadani(prvni, druhe, 7, 1000), {});
        QCOMPARE(sedm.Text_1.section(u'\n', -1), u" 45,\t 1\t 2\t   1\t\t 1"_qs);
        QVERIFY(sedm.Text_2.contains(u"\n 9,\t 0\t 109\t   1\t\t 54\n")); // 54.5 to the even 54
        QVERIFY(A_Interval_Cisla(Zadani(prvni, druhe, 6, 1), {}).Text_2.contains(u"\n 9,\t 100\t 109\t   1\t\t 109\n"));
        QVERIFY(!A_Interval_Cisla(Zadani(prvni, druhe, 6, 5), {}).Text_1.contains(u" 7,"));
    }
};

QTEST_GUILESS_MAIN(Test_Radky_A_Prumery)
#include "Test_Radky_A_Prumery.moc"
