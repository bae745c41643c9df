// Frequency, pair and triple statistics: reports over the newest 52 Sunday draws compared with
// files, and the odd corners of counting and listing on small lists made by hand.
#include "Bajty.h"
#include "analysis/Analyza_Tahu.h"
#include "net/Import_Tahu.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace {

std::vector<Tah> Tahy(std::initializer_list<std::initializer_list<int>> radky) {
    std::vector<Tah> tahy(1);
    for (const auto& r : radky) {
        int p = 1;
        tahy.emplace_back();
        for (const int n : r)
            tahy.back()[p++] = uint8_t(n);
    }
    return tahy;
}

// Both series over their whole lists (the slice of n draws has Rozsah_Tahu n - 1).
Zadani_Analyzy Zadani(std::vector<Tah>& prvni, std::vector<Tah>& druhe, int cisel, double prah, int pocet = 0) {
    const auto rada = [pocet](std::vector<Tah>& t) {
        return Rada_Tahu{&t, int(t.size()) - 1, (pocet ? pocet : int(t.size()) - 1) - 1};
    };
    return {{rada(prvni), rada(druhe)}, cisel, prah};
}

} // namespace

class Test_Cetnosti final : public QObject {
    Q_OBJECT

private slots:
    // Every statistic over the same Sunday lists, one after another: each report is the one it
    // gives alone, and the archive stays as drawn even after the pairs and triples of all draws
    // with the supplementary number. A report that differs is written to the temp folder for a diff.
    void Vypisy_Nedele() {
        Archiv_Tahu a = Archiv_Z_Historie(Den::Nedele);
        QVERIFY(a.Tahy_1.size() > 1000);
        const Archiv_Tahu puvodni = a;

        using Statistika = Vysledek_Analyzy (*)(const Zadani_Analyzy&, const Prubeh&);
        const struct {
            const char* soubor;
            Statistika statistika;
            int cisel;
            double prah;
        } pripady[] = {
            {"cetnost_52.txt", A_Cetnost_Cisel, 6, 0},          {"cetnost_52_dodatkova.txt", A_Cetnost_Cisel, 7, 7},
            {"dodatkova_52.txt", A_Cetnost_Dodatkovych, 6, 1},   {"dvojice_52.txt", A_Dvojice_Cisel, 6, 1},
            {"dvojice_52_dodatkova.txt", A_Dvojice_Cisel, 7, 2}, {"dvojice_volne_52.txt", A_Dvojice_Cisel_Volne, 6, 3},
            {"dvojice_volne_52_dodatkova.txt", A_Dvojice_Cisel_Volne, 7, 3},
            {"trojice_52.txt", A_Trojice_Cisel, 6, 1},           {"trojice_52_dodatkova.txt", A_Trojice_Cisel, 7, 1},
        };
        QStringList rozdilne;
        for (const auto& p : pripady) {
            const Vysledek_Analyzy v = p.statistika(Zadani(a.Tahy_1, a.Tahy_2, p.cisel, p.prah, 52), {});
            const bool dodatkove = p.cisel == 7 && p.statistika != A_Cetnost_Dodatkovych;
            const QByteArray vypis =
                (v.Nadpis + (dodatkove ? u" včetně dodatkových"_qs : QString()) + v.Text_1 + u'\n' + v.Text_2 + u'\n')
                    .toUtf8();
            QFile f(QStringLiteral(TOMBI_TEST_DATA "/analyza/") + QLatin1String(p.soubor));
            if (!f.open(QIODevice::ReadOnly) || f.readAll() != vypis) {
                QFile skutecny(QDir::temp().filePath(QLatin1String(p.soubor)));
                if (skutecny.open(QIODevice::WriteOnly))
                    skutecny.write(vypis);
                rozdilne.append(skutecny.fileName());
            }
        }
        QVERIFY2(rozdilne.isEmpty(), qPrintable(u"differ, see "_qs + rozdilne.join(u' ')));

        QVERIFY(!A_Dvojice_Cisel(Zadani(a.Tahy_1, a.Tahy_2, 7, 1), {}).Selhala);
        QVERIFY(!A_Trojice_Cisel(Zadani(a.Tahy_1, a.Tahy_2, 7, 1), {}).Selhala);
        QVERIFY(a.Tahy_1 == puvodni.Tahy_1);
        QVERIFY(a.Tahy_2 == puvodni.Tahy_2);
    }

    void Cetnost() {
        // One draw: 43 numbers never drawn, the six drawn in one group; the supplementary number
        // joins them only when it counts, and a threshold above the highest leaves the word alone.
        auto jeden = Tahy({{44, 3, 17, 1, 49, 2, 5}});
        Vysledek_Analyzy v = A_Cetnost_Cisel(Zadani(jeden, jeden, 6, 0));
        QVERIFY(v.Text_2.startsWith(u"\nDruhý tah\n 0x - 4, 5, 6,"_qs));
        QCOMPARE(v.Text_1.section(u'\n', 2, 2).count(u','), 43);
        QVERIFY(v.Text_1.endsWith(u"\n 1x - 1, 2, 3, 17, 44, 49,"_qs));
        QCOMPARE(v.Graf.Hodnoty[0][43], 1.0);
        QCOMPARE(v.Graf.Prumer[0], 6.0 / 49);
        QVERIFY(A_Cetnost_Cisel(Zadani(jeden, jeden, 7, 0)).Text_1.endsWith(u"\n 1x - 1, 2, 3, 5, 17, 44, 49,"_qs));
        QCOMPARE(A_Cetnost_Cisel(Zadani(jeden, jeden, 6, 2)).Text_1, u"\nPrvní tah"_qs);

        // Supplementary numbers: a missing one (0) is skipped, the rarest group comes first.
        auto dodatkove = Tahy({{1, 2, 3, 4, 5, 6, 9}, {1, 2, 3, 4, 5, 6, 0}, {1, 2, 3, 4, 5, 6, 5}, {1, 2, 3, 4, 5, 6, 5}});
        QCOMPARE(A_Cetnost_Dodatkovych(Zadani(dodatkove, dodatkove, 7, 1)).Text_1, u"\nPrvní tah\n 1x - 9,\n 2x - 5,"_qs);

        // A number outside 1..49 where the statistic indexes by it ends the run.
        auto spatne = Tahy({{1, 2, 3, 4, 5, 6, 50}});
        v = A_Cetnost_Dodatkovych(Zadani(spatne, spatne, 7, 1));
        QVERIFY(v.Selhala);
        QCOMPARE(v.Chyba_Proces, u"A_Dvojice_Cisel"_qs);
        QCOMPARE(A_Cetnost_Cisel(Zadani(spatne, spatne, 7, 1)).Chyba_Proces, u"A_Cetnost_Cisel"_qs);
        QVERIFY(!A_Cetnost_Cisel(Zadani(spatne, spatne, 6, 1)).Selhala);
    }

    void Dvojice() {
        // The row's copy is reordered while it is read: 9, 8, 7 gives 8-9 twice and 7-8 once, the
        // list keeps 9, 8, 7, and the next run counts the same.
        auto prvni = Tahy({{9, 8, 7, 20, 30, 40, 0}});
        auto druhe = Tahy({{22, 23, 40, 42, 44, 46, 0}});
        for (int beh = 0; beh < 2; ++beh)
            QCOMPARE(A_Dvojice_Cisel(Zadani(prvni, druhe, 6, 1)).Text_1, u"\nPrvní tah\n 1x\t 7, 8,\t\n 2x\t 8, 9,\t"_qs);
        QCOMPARE(prvni[1], Tahy({{9, 8, 7, 20, 30, 40, 0}})[1]);

        // Threshold 0: only the first series lists the pairs never drawn, five to a line.
        const Vysledek_Analyzy v = A_Dvojice_Cisel(Zadani(prvni, druhe, 6, 0));
        QVERIFY(v.Text_1.startsWith(u"\nPrvní tah\n 0x\t 1, 2,\t 1, 3,\t 1, 4,\t 1, 5,\t 1, 6,\t\n\t 1, 7,\t"_qs));
        QCOMPARE(v.Text_2, u"\nDruhý tah\n 1x\t 22, 23,\t"_qs);

        // With the supplementary number counted, a missing one (0) pairs with a 1 and is out of
        // range, and the failed run leaves the draw as it was.
        auto jednicka = Tahy({{1, 10, 20, 30, 40, 45, 0}});
        QCOMPARE(A_Dvojice_Cisel(Zadani(jednicka, jednicka, 7, 1)).Chyba_Proces, u"A_Dvojice_Cisel"_qs);
        QCOMPARE(jednicka[1], Tahy({{1, 10, 20, 30, 40, 45, 0}})[1]);

        // Any pairs: each unordered pair counts once in the list. A count that only ever raised
        // the highest is not the lowest, so the pair 1-2, drawn less often, is left out.
        auto volne = Tahy({{1, 2, 2, 2, 2, 2}, {3, 4, 4, 4, 4, 4}, {3, 4, 4, 4, 4, 4}, {5, 6, 6, 6, 6, 6}, {5, 6, 6, 6, 6, 6}});
        QCOMPARE(A_Dvojice_Cisel_Volne(Zadani(volne, volne, 6, 0)).Text_1, u"\nPrvní tah\n 10x\t 3, 4,\t 5, 6,\t"_qs);
        auto bez_dodatkove = Tahy({{1, 2, 3, 4, 5, 6, 0}});
        QCOMPARE(A_Dvojice_Cisel_Volne(Zadani(bez_dodatkove, bez_dodatkove, 7, 1)).Chyba_Proces,
                 u"A_Dvojice_Cisel_Volne"_qs);
        QCOMPARE(A_Dvojice_Cisel_Volne(Zadani(bez_dodatkove, bez_dodatkove, 6, 1)).Text_1.count(u','), 2 * 15);
    }

    void Trojice() {
        // Triples in any order are counted once and the draws keep their order; a cell of one-digit
        // numbers takes two tabs, three cells a line.
        auto tahy = Tahy({{9, 7, 8, 3, 1, 2, 0}, {11, 9, 10, 20, 21, 22, 0}});
        QCOMPARE(A_Trojice_Cisel(Zadani(tahy, tahy, 7, 1)).Text_1,
                 u"\nPrvní tah\n 1x\n   1, 2, 3,\t\t 7, 8, 9,\t\t 9, 10, 11,\t\n   20, 21, 22,\t"_qs);
        QCOMPARE(tahy[1], Tahy({{9, 7, 8, 3, 1, 2, 0}})[1]);
        auto mimo = Tahy({{50, 48, 49, 1, 2, 3, 0}});
        QCOMPARE(A_Trojice_Cisel(Zadani(mimo, mimo, 6, 1)).Chyba_Proces, u"A_Trojice_Cisel"_qs);
    }
};

QTEST_GUILESS_MAIN(Test_Cetnosti)
#include "Test_Cetnosti.moc"
