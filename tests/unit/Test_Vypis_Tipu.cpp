// The tip list as text: lines of the listing, a tip added by hand, a tip deleted with the gap
// closed, ticket numbers changed.
#include "Bajty.h"
#include "tips/Vypis_Tipu.h"

#include <QTest>
#include <memory>

namespace {

// A store of `pocet` tips in tickets of ten, tip i being 1..5 and 6 + i.
std::unique_ptr<Zaznam_Tipu> Tipy(int pocet) {
    auto z = std::make_unique<Zaznam_Tipu>();
    int16_t aktivni = 0;
    for (int i = 0; i < pocet; ++i)
        Pridej_Tip(*z, aktivni, Cisla<Tip>({6 + i % 40, 1, 2, 3, 4, 5}));
    return z;
}

int Posledni(const Tip& tip) {
    return tip[6];
}

} // namespace

class Test_Vypis_Tipu final : public QObject {
    Q_OBJECT

private slots:
    void Vypis() {
        QCOMPARE(Radek_Tipu(Cisla<Tip>({1, 2, 3, 10, 20, 49})), u"    1     2     3     10   20   49   "_qs);
        QCOMPARE(Radek_Tipu(Cisla<Tip>({7, 0, 0, 0, 0, 0})), u"    7     "_qs + QString(5 * 5, u' '));

        const auto z = Tipy(12);
        const Vypis_Tipu v = Vypis_Tipu_Do_Listu(*z, 12);
        QCOMPARE(v.Radky.size(), 15);
        QCOMPARE(v.Radky[0], u"číslo tiketu - 1"_qs);
        QCOMPARE(v.Radky[11], QString());
        QCOMPARE(v.Radky[12], u"číslo tiketu - 2"_qs);
        QCOMPARE(v.Radky.back(), Radek_Tipu(z->Tikety[2].Cisla[2]));
        QCOMPARE(v.Pocet_Tipu_Celkem, 12);
        QVERIFY(!v.Netrideno);
        int pocet = 0;
        QCOMPARE(Text_Pouzitych_Cisel(v.Pouzita_Cisla, pocet).left(12), u" 1 2 3 4 5 6"_qs);
        QCOMPARE(pocet, 17);

        // Fewer active tips: one more is listed, then the columns are skipped but the blank stays.
        const Vypis_Tipu kratky = Vypis_Tipu_Do_Listu(*z, 3);
        QCOMPARE(kratky.Pocet_Tipu_Celkem, 4);
        QCOMPARE(kratky.Radky.size(), 1 + 4 + 1);
        // A tip out of order is noticed.
        z->Tikety[1].Cisla[1] = Cisla<Tip>({9, 1, 2, 3, 4, 5});
        QVERIFY(Vypis_Tipu_Do_Listu(*z, 12).Netrideno);
    }

    void Pridani() {
        auto z = Tipy(10);
        int16_t aktivni = 10;
        QVERIFY(Pridej_Tip(*z, aktivni, Cisla<Tip>({40, 3, 17, 9, 1, 22})).Ok());
        QCOMPARE(int(aktivni), 11);
        QCOMPARE(int(z->Pocet_Tiketu), 2);
        QCOMPARE(z->Tikety[2].Cislo_Tiketu, 2);
        QCOMPARE(z->Tikety[2].Cisla[1], Cisla<Tip>({1, 3, 9, 17, 22, 40}));

        // After a run that stopped at 25 of 100 asked (the header still asking), or after a count
        // that lags behind, the tip lands right after the last tip and the counts follow it.
        for (const int16_t pred : {int16_t(25), int16_t(100), int16_t(3)}) {
            auto zastaveny = Tipy(25);
            zastaveny->Pocet_Tiketu = 100;
            zastaveny->Pocet_Tipu = 100;
            aktivni = pred;
            QVERIFY(Pridej_Tip(*zastaveny, aktivni, Cisla<Tip>({40, 3, 17, 9, 1, 22})).Ok());
            QCOMPARE(zastaveny->Tikety[3].Cisla[6], Cisla<Tip>({1, 3, 9, 17, 22, 40}));
            QCOMPARE(std::pair(int(aktivni), int(zastaveny->Pocet_Tipu)), std::pair(26, 26));
            QCOMPARE(Vypis_Tipu_Do_Listu(*zastaveny, aktivni).Pocet_Tipu_Celkem, 26);
        }

        auto plny = Tipy(Max_Tipu);
        aktivni = Max_Tipu;
        QCOMPARE(Pridej_Tip(*plny, aktivni, Cisla<Tip>({1, 2, 3, 4, 5, 6})).Zprava, u"Maximu je   9500  tipů"_qs);
        QCOMPARE(int(aktivni), Max_Tipu);
        QCOMPARE(int(plny->Pocet_Tiketu), Max_Tiketu);
    }

    void Smazani() {
        // The first tip of ticket 2 of 3: every later tip moves up one place, the last ticket shrinks.
        auto z = Tipy(25);
        z->Tikety[1].Cislo_Tiketu = 101;
        Zrus_Tip(*z, 2, 1);
        QCOMPARE(int(z->Pocet_Tiketu), 3);
        QCOMPARE(int(z->Pocet_Tipu), 24);
        QCOMPARE(Posledni(z->Tikety[2].Cisla[1]), 6 + 11);
        QCOMPARE(Posledni(z->Tikety[3].Cisla[4]), 6 + 24);
        QCOMPARE(int(z->Tikety[3].Cisla[5][1]), 0);
        QCOMPARE(z->Tikety[3].Cislo_Tiketu, 103);

        // The only tip of the last ticket takes the ticket with it.
        auto jeden = Tipy(21);
        Zrus_Tip(*jeden, 3, 1);
        QCOMPARE(int(jeden->Pocet_Tiketu), 2);
        QCOMPARE(jeden->Tikety[3].Cislo_Tiketu, 0);
        QCOMPARE(Vypis_Tipu_Do_Listu(*jeden, 20).Radky.size(), 24);
    }

    void Cisla_Tiketu() {
        auto z = Tipy(30);
        QCOMPARE(Zmen_Cislo_Tiketu(*z, 1, 3).Zprava, u"Pozor, NOVÉ číslo tiketu bylo již jednou použito !"_qs);
        QVERIFY(!Zmen_Cislo_Tiketu(*z, 2, 2).Ok());
        QVERIFY(Zmen_Cislo_Tiketu(*z, 2, 777).Ok());
        QCOMPARE(z->Tikety[2].Cislo_Tiketu, 777);
        QVERIFY(Cislo_Tiketu_Pouzito(*z, 777));
        QVERIFY(!Cislo_Tiketu_Pouzito(*z, 2));
    }
};

QTEST_GUILESS_MAIN(Test_Vypis_Tipu)
#include "Test_Vypis_Tipu.moc"
