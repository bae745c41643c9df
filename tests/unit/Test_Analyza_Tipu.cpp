// The tip analysis: the cells of runs, the even/odd ratio and pairs, counted and struck out, the
// store compacted after, and the matches of a tip being entered.
#include "Bajty.h"
#include "tips/Analyza_Tipu.h"
#include "tips/Vypis_Tipu.h"

#include <QTest>
#include <memory>

using namespace modAnalyza_Tipu;

namespace {

std::unique_ptr<Zaznam_Tipu> Tipy(std::initializer_list<std::initializer_list<int>> tipy, int16_t& aktivni) {
    auto z = std::make_unique<Zaznam_Tipu>();
    aktivni = 0;
    for (const auto& tip : tipy)
        Pridej_Tip(*z, aktivni, Cisla<Tip>(tip));
    return z;
}

QList<int> Bunky(std::initializer_list<int> tip) {
    const Bunky_Tipu b = Bunky_Sousednich(Cisla<Tip>(tip));
    return QList<int>(b.Index.begin(), b.Index.begin() + b.Pocet);
}

} // namespace

class Test_Analyza_Tipu final : public QObject {
    Q_OBJECT

private slots:
    void Sousedni_Cisla() {
        QCOMPARE(Bunky({1, 2, 3, 4, 5, 6}), QList<int>{7});
        QCOMPARE(Bunky({1, 2, 3, 4, 5, 7}), QList<int>{6});
        QCOMPARE(Bunky({1, 3, 4, 5, 6, 9}), QList<int>{5});
        QCOMPARE(Bunky({1, 2, 3, 4, 6, 7}), (QList<int>{5, 0}));
        QCOMPARE(Bunky({1, 2, 4, 5, 6, 7}), (QList<int>{5, 0}));
        QCOMPARE(Bunky({1, 2, 3, 5, 7, 9}), QList<int>{3});
        QCOMPARE(Bunky({1, 2, 3, 5, 6, 7}), QList<int>{4});
        QCOMPARE(Bunky({1, 3, 4, 5, 7, 8}), (QList<int>{3, 0}));
        QCOMPARE(Bunky({1, 2, 4, 5, 7, 8}), QList<int>{2});
        QCOMPARE(Bunky({1, 2, 10, 11, 20, 30}), QList<int>{1});
        QCOMPARE(Bunky({1, 3, 5, 7, 9, 11}), QList<int>{});

        int16_t aktivni = 0;
        auto z = Tipy({{1, 2, 3, 4, 6, 7}, {1, 2, 3, 5, 6, 7}, {1, 2, 4, 5, 7, 8}, {1, 3, 5, 7, 9, 11}}, aktivni);
        QCOMPARE(Analyza_Sousednich(*z), (Pocty_Sousednich{1, 0, 1, 0, 1, 1, 0, 0}));
        // A tip of two cells goes when either is marked; an unmarked count stays.
        for (const int znacka : {0, 5}) {
            auto kopie = std::make_unique<Zaznam_Tipu>(*z);
            int16_t a = aktivni;
            Znacky_Sousednich znacky{};
            znacky[std::size_t(znacka)] = 1;
            QVERIFY(Analyza_Sousednich(*kopie, a, znacky));
            QCOMPARE(int(a), 3);
            QCOMPARE(kopie->Tikety[1].Cisla[1], Cisla<Tip>({1, 2, 3, 5, 6, 7}));
        }
        QVERIFY(!Analyza_Sousednich(*z, aktivni, Znacky_Sousednich{0, 1}));
        QCOMPARE(int(aktivni), 4);
    }

    void Pomery() {
        int16_t aktivni = 0;
        auto z = Tipy({{2, 4, 6, 8, 10, 12}, {1, 3, 5, 7, 9, 11}, {1, 2, 3, 4, 5, 6}, {2, 3, 5, 7, 9, 11}}, aktivni);
        QCOMPARE(Analyza_Pomeru(*z), (Pocty_Pomeru{1, 0, 0, 1, 0, 1, 1}));
        QVERIFY(Analyza_Pomeru(*z, aktivni, Znacky_Pomeru{1, 0, 0, 0, 0, 0, 1}));
        QCOMPARE(Analyza_Pomeru(*z), (Pocty_Pomeru{0, 0, 0, 1, 0, 1, 0}));
        QCOMPARE(int(z->Pocet_Tipu), 2);
    }

    void Pary() {
        QCOMPARE(Ma_Pary(Cisla<Tip>({1, 3, 5, 7, 9, 11})), std::optional<bool>(true));
        QCOMPARE(Ma_Pary(Cisla<Tip>({1, 2, 3, 10, 20, 30})), std::optional<bool>(false));
        QCOMPARE(Ma_Pary(Cisla<Tip>({1, 2, 4, 9, 11, 30})), std::optional<bool>(true)); // d2 = d4, one neighbour
        QCOMPARE(Ma_Pary(Cisla<Tip>({1, 4, 9, 16, 25, 36})), std::optional<bool>(false));

        int16_t aktivni = 0;
        auto z =
            Tipy({{1, 3, 5, 7, 9, 11}, {1, 4, 9, 16, 25, 36}, {1, 2, 3, 10, 20, 30}, {5, 10, 15, 20, 25, 30}}, aktivni);
        QCOMPARE(Analyza_Paru(*z).Pocet, 2);

        // An unsorted tip stops the count and refuses the strike without touching a tip.
        auto nesetrideny = std::make_unique<Zaznam_Tipu>(*z);
        nesetrideny->Tikety[1].Cisla[3] = Cisla<Tip>({30, 2, 3, 10, 20, 1});
        const Vysledek_Paru pocet = Analyza_Paru(std::as_const(*nesetrideny));
        QCOMPARE(pocet.Zprava, u"Pro kompletní analýzu k výběru tipů provedte setřídění typů !"_qs);
        QCOMPARE(pocet.Pocet, 1);
        const Zaznam_Tipu pred = *nesetrideny;
        int16_t a = aktivni;
        const Vysledek_Paru odstraneni = Analyza_Paru(*nesetrideny, a);
        QVERIFY(!odstraneni.Ok());
        QVERIFY(!odstraneni.Zmena);
        QVERIFY(*nesetrideny == pred);

        const Vysledek_Paru v = Analyza_Paru(*z, aktivni);
        QVERIFY(v.Ok() && v.Zmena);
        QCOMPARE(int(aktivni), 2);
        QCOMPARE(z->Tikety[1].Cisla[2], Cisla<Tip>({1, 2, 3, 10, 20, 30}));
    }

    void Zhusteni() {
        // 25 tips on three tickets, the second renumbered; every third tip holds 7.
        auto z = std::make_unique<Zaznam_Tipu>();
        int16_t aktivni = 0;
        for (int i = 0; i < 25; ++i)
            Pridej_Tip(*z, aktivni, Cisla<Tip>({i % 3 == 0 ? 7 : 8, 20, 30, 40, 41, 42 + i % 8}));
        z->Tikety[1].Cislo_Tiketu = 55;
        z->Tikety[2].Cislo_Tiketu = 66;
        QVERIFY(Odstran_Tipy_S_Cisly(*z, aktivni, u" 17 x 7 "_qs));
        QCOMPARE(int(aktivni), 16);
        QCOMPARE(int(z->Pocet_Tipu), 16);
        QCOMPARE(int(z->Pocet_Tiketu), 2);
        QCOMPARE(z->Tikety[1].Cislo_Tiketu, 55);
        QCOMPARE(z->Tikety[2].Cislo_Tiketu, 2);
        QCOMPARE(z->Tikety[3], Tiket{});
        QCOMPARE(int(z->Tikety[2].Cisla[6][1]), 8);
        QCOMPARE(int(z->Tikety[2].Cisla[7][1]), 0);
        QCOMPARE(Pocet_Tipu_S_Cislem(*z, 7), 0);
        QCOMPARE(Vypis_Tipu_Do_Listu(*z, aktivni).Radky.size(), 12 + 7);

        // A limit of 0 keeps all; with 3, the tips with 20, 30, 40 and 45 in one grid column go.
        QVERIFY(!Odstran_Tipy_Nad_Max(*z, aktivni, 0));
        QCOMPARE(int(aktivni), 16);
        QVERIFY(Odstran_Tipy_Nad_Max(*z, aktivni, 3));
        QCOMPARE(int(aktivni), 14);
        QCOMPARE(Pocet_Tipu_S_Cislem(*z, 45), 0);

        // Striking every tip leaves no ticket and an empty list.
        QVERIFY(Odstran_Tipy_Nad_Max(*z, aktivni, 1)); // 20, 30 and 40 share a column
        QCOMPARE(int(aktivni), 0);
        QCOMPARE(int(z->Pocet_Tiketu), 0);
        QCOMPARE(int(z->Pocet_Tipu), 0);
        QVERIFY(Vypis_Tipu_Do_Listu(*z, aktivni).Radky.isEmpty());
        QCOMPARE(Neobsazena_Cisla(*z).count(u',') + 1, 49);
    }

    void Analyza_On_Line() {
        int16_t aktivni = 0;
        auto z = Tipy(
            {{1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 7}, {1, 2, 3, 4, 8, 9}, {1, 2, 3, 10, 11, 12}, {1, 2, 3, 4, 5, 6}},
            aktivni);
        QCOMPARE(Pocet_Tipu_S_Cislem(*z, 4), 4);
        QCOMPARE(Shoda_S_Tipy(*z, 5, u"  1 2 3 4 5 6"_qs), (Shody{1, 1, 1, 2}));
        // Only the listed tips count.
        QCOMPARE(Shoda_S_Tipy(*z, 2, u" 1 2 3 4 5 6"_qs), (Shody{0, 0, 1, 1}));
        QCOMPARE(Shoda_S_Tipy(*z, 5, u" 11 22 33"_qs), (Shody{}));
        QCOMPARE(Neobsazena_Cisla(*z).left(12), u"13, 14, 15, "_qs);
        QVERIFY(!Neobsazena_Cisla(*z).contains(u"10"_qs));
    }
};

QTEST_GUILESS_MAIN(Test_Analyza_Tipu)
#include "Test_Analyza_Tipu.moc"
