// Evaluation of wins: tiers, the boxes against the tips with their colours, the boxes against the
// archive, the file against the archive (fast and straightforward alike), the record limit.
#include "Bajty.h"
#include "tips/Srovnani.h"
#include "tips/Vyhodnoceni.h"
#include "tips/Vypis_Tipu.h"

#include <QTest>
#include <algorithm>
#include <memory>
#include <random>

namespace {

std::unique_ptr<Zaznam_Tipu> Store(std::initializer_list<std::initializer_list<int>> tipy) {
    auto z = std::make_unique<Zaznam_Tipu>();
    int16_t aktivni = 0;
    for (const auto& t : tipy)
        Pridej_Tip(*z, aktivni, Cisla<Tip>(t));
    return z;
}

Vyhry Jen(int poradi, uint64_t pocet = 1) {
    Vyhry v{};
    v[std::size_t(poradi)] = pocet;
    return v;
}

} // namespace

class Test_Vyhodnoceni final : public QObject {
    Q_OBJECT

private slots:
    void Poradi() {
        Vyhry v{};
        int poradi = 9;
        QVERIFY(!Zarad_Vyhru(v, 7, 0, poradi)); // a tip holding a number twice
        QVERIFY(!Zarad_Vyhru(v, 2, 1, poradi));
        QCOMPARE(poradi, 9);
        QVERIFY(Zarad_Vyhru(v, 6, 1, poradi));
        QCOMPARE(poradi, 1);
        QVERIFY(Zarad_Vyhru(v, 5, 1, poradi));
        QCOMPARE(poradi, 2);
        QVERIFY(Zarad_Vyhru(v, 5, 0, poradi));
        QCOMPARE(poradi, 3);
        QCOMPARE(v, (Vyhry{0, 1, 1, 1, 0, 0}));
    }

    void Boxy_V_Tipech() {
        // Tip 1: five hits and box 6 holds its sixth number: tier 2. Tip 2: 5 and 20 against the
        // boxes 5, 5, 20 of the second row: three hits.
        const auto z = Store({{1, 2, 3, 4, 5, 6}, {5, 20, 30, 40, 41, 48}});
        Vysledek_Vyhodnoceni v;
        Barvy_Radku b1{}, b2{};
        Vyh_Tah_V_Tipech(*z, {1, 2, 3, 4, 5, 10, 6}, {5, 5, 20, 0, 0, 0, 0}, v, b1, b2);
        QCOMPARE(v.Vyhry_1Tah, Jen(2));
        QCOMPARE(v.Vyhry_2Tah, Jen(5));
        QCOMPARE(v.Pocet_Vyhernich_Zaznamu(), 2);
        QCOMPARE(v.Vyherni_Zaznamy[0].Sloupce[1], (Vyhra_Sloupce{2, 1}));
        QCOMPARE(v.Vyherni_Zaznamy[1].Sloupce[2], (Vyhra_Sloupce{5, 2}));
        // Box 10 is missed by one (tip 1 has no 9 or 11, tip 2 none either): white. 5 was a near
        // miss of 4 and 6 first, then a hit.
        QCOMPARE(b1[5], Barva_Boxu::Bila);
        QCOMPARE(b1[4], Barva_Boxu::Zasah);
        QCOMPARE(b1[6], Barva_Boxu::Zasah);
        QCOMPARE(b2[3], Barva_Boxu::Bila);

        // A near miss stays one when no tip hits; two numbers in the first row leave it out.
        const auto jeden = Store({{7, 12, 30, 31, 32, 33}});
        Vysledek_Vyhodnoceni w;
        Barvy_Radku c1{}, c2{};
        Vyh_Tah_V_Tipech(*jeden, {8, 12, 0, 0, 0, 0, 0}, {30, 31, 32, 0, 0, 0, 0}, w, c1, c2);
        QCOMPARE(c1[0], Barva_Boxu::Bila); // the first row did not run at all
        QCOMPARE(w.Vyhry_1Tah, Vyhry{});
        QCOMPARE(w.Vyhry_2Tah, Jen(5));
        Vyh_Tah_V_Tipech(*jeden, {8, 12, 50, 0, 0, 0, 0}, {}, w, c1, c2);
        QCOMPARE(c1[0], Barva_Boxu::Vedle);
        QCOMPARE(c1[1], Barva_Boxu::Zasah);
    }

    void Boxy_V_Tazich() {
        Archiv_Tahu a;
        a.Tahy_1.push_back(Cisla<Tah>({1, 2, 3, 4, 5, 6, 7}));
        a.Tahy_1.push_back(Cisla<Tah>({1, 2, 3, 4, 5, 9, 6}));
        a.Tahy_2.push_back(Cisla<Tah>({1, 2, 3, 40, 41, 42, 43}));
        a.Pocet_Tahy_1 = 2;
        a.Pocet_Tahy_2 = 1;
        const Rozsah_Tahu r = Rozsah_Archivu(a, 5, 5);
        QCOMPARE(r.N1, 2);
        Vysledek_Vyhodnoceni v;
        // Box 6 empty: no supplementary hit ever. Draw 1: 5 hits (6 missed) → tier 3; draw 2 the
        // same; second draw 3 hits.
        Vyh_Cisla_V_Tazich({1, 2, 3, 4, 5, 10, 0}, {}, true, true, r, v);
        QCOMPARE(v.Vyhry_1Tah, Jen(3, 2));
        QCOMPARE(v.Vyhry_2Tah, Jen(5));
        QVERIFY(v.Vyherni_Zaznamy.empty());
        // Box 6 = 7: draw 1's supplementary matches only because its sixth number was missed;
        // draw 2's sixth number 9 is missed but its supplementary 6 is not in box 6.
        v.Vycisti();
        Vyh_Cisla_V_Tazich({1, 2, 3, 4, 5, 10, 7}, {}, true, false, r, v);
        QCOMPARE(v.Vyhry_1Tah, (Vyhry{0, 0, 1, 1, 0, 0}));
        // A row unticked or of two numbers counts nothing; the other row still does.
        v.Vycisti();
        Vyh_Cisla_V_Tazich({1, 2, 0, 0, 0, 0, 0}, {40, 41, 42, 0, 0, 0, 0}, true, true, r, v);
        QCOMPARE(v.Vyhry_1Tah, Vyhry{});
        QCOMPARE(v.Vyhry_2Tah, Jen(5));
    }

    void Soubor_V_Tazich() {
        // A last ticket of 4 columns, and tips no clean mask fits: a number twice, a 0, a 55.
        std::mt19937 nahoda(7);
        auto z = std::make_unique<Zaznam_Tipu>();
        int16_t aktivni = 0;
        std::array<uint8_t, 14> cisla{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};
        for (int i = 0; i < 234; ++i) {
            std::shuffle(cisla.begin(), cisla.end(), nahoda);
            Tip t;
            std::copy_n(cisla.begin(), 6, &t[1]);
            Pridej_Tip(*z, aktivni, t);
        }
        z->Tikety[3].Cisla[4] = Cisla<Tip>({5, 5, 6, 7, 8, 9});
        z->Tikety[4].Cisla[2] = Cisla<Tip>({5, 0, 6, 7, 8, 55});
        z->Tikety[24].Cisla[6] = Cisla<Tip>({1, 2, 3, 4, 5, 6}); // behind the end: never counted
        Archiv_Tahu a;
        for (int d = 0; d < 300; ++d) {
            std::shuffle(cisla.begin(), cisla.end(), nahoda);
            Tah tah;
            std::copy_n(cisla.begin(), 7, &tah[1]);
            if (d % 50 == 0)
                tah[7] = tah[2]; // a supplementary number that is also drawn
            a.Tahy_1.push_back(tah);
            a.Tahy_2.push_back(tah);
        }
        a.Pocet_Tahy_1 = a.Pocet_Tahy_2 = 300;
        const Rozsah_Tahu r = Rozsah_Archivu(a, 300, 120);
        Vysledek_Vyhodnoceni rychly, prosty;
        Vyh_Soubor_V_Tazich(*z, r, rychly);
        Vyh_Soubor_V_Tazich_Prosty(*z, r, prosty);
        QVERIFY(rychly.Vyhry_1Tah[5] > 100 && rychly.Vyhry_1Tah[1] > 0);
        QCOMPARE(rychly.Vyhry_1Tah, prosty.Vyhry_1Tah);
        QCOMPARE(rychly.Vyhry_2Tah, prosty.Vyhry_2Tah);
        QVERIFY(rychly.Vyherni_Zaznamy == prosty.Vyherni_Zaznamy);
        for (const Vyherni_Zaznam& zaznam : rychly.Vyherni_Zaznamy)
            QVERIFY(zaznam.Sloupce[6].Poradi == 0 || zaznam.Cislo_Tiketu != z->Tikety[24].Cislo_Tiketu);

        // The record limit ends the run with what was counted; a stop ends it too.
        Vysledek_Vyhodnoceni plny;
        Vyh_Soubor_V_Tazich(*z, r, plny, {}, 10);
        QVERIFY(plny.Preteceni);
        QCOMPARE(plny.Pocet_Vyhernich_Zaznamu(), 10);
        QCOMPARE(plny.Vyhry_1Tah[1] + plny.Vyhry_1Tah[2] + plny.Vyhry_1Tah[3] + plny.Vyhry_1Tah[4] + plny.Vyhry_1Tah[5],
                 uint64_t(11));
        Vysledek_Vyhodnoceni stop;
        Vyh_Soubor_V_Tazich(*z, r, stop, [](int procenta) { return procenta < 50; });
        QVERIFY(stop.Zastaveno);
        QVERIFY(stop.Vyhry_2Tah == Vyhry{});
    }

    void Radky_A_Penize() {
        Vysledek_Vyhodnoceni v;
        Vyherni_Zaznam z;
        z.Cislo_Tiketu = 1;
        z.Sloupce[3] = {5, 2};
        v.Vyherni_Zaznamy = {z, z};
        const std::vector<Misto_Vyhry> mista = Mista_Vyher(v);
        QCOMPARE(mista.size(), std::size_t(2));
        QCOMPARE(Radek_Vyhry(mista[0]), u" 000 001     03        2 / 5"_qs);
        QCOMPARE(Radek_Vyhry({123456, 10, 1, 1}), u" 123 456     10        1 / 1"_qs);

        const Ceny_Tahu ceny{20'000'000, 500'000, 20'000, 500, 100};
        QCOMPARE(Soucet_Tahu(Vyhry{0, 0, 0, 1, 2, 3}, ceny), 21'300.0);
        QCOMPARE(Soucet_Tahu(Vyhry{0, 108, 0, 0, 0, 0}, ceny), 2'160'000'000.0); // beyond 32 bits
        QCOMPARE(Zisk_Procent(150, 100), std::optional<double>(50));
        QCOMPARE(Zisk_Procent(150, 0), std::nullopt);
        QCOMPARE(Odhad_Casu(100, 100, 9500), u"209 s"_qs);
        QCOMPARE(Odhad_Casu(30000, 30000, 1), u"-1 s"_qs); // the two counts added in 16 bits
    }

    void Radky_Z_Bufferu() {
        // The command line's lines are byte for byte those of the list, for usual and odd places.
        std::string buffer;
        QByteArray ocekavane;
        const int32_t tikety[] = {0, 1, 999, 1000, 123456, 999999, 1000000, 2147483647, -1, -2147483647 - 1};
        for (const int32_t t : tikety)
            for (const int sloupec : {1, 9, 10})
                for (const int tah : {1, 2}) {
                    const Misto_Vyhry m{t, sloupec, tah, 1 + (t & 3)};
                    Pripis_Radek_Vyhry(m, buffer);
                    ocekavane += Radek_Vyhry(m).toUtf8() + '\n';
                }
        QCOMPARE(QByteArray::fromStdString(buffer), ocekavane);
    }

    void Prazdne_Boxy_A_Dodatkove() {
        // Draws typed without their supplementary number hold 0 there: an empty box is no hit.
        Archiv_Tahu a;
        a.Tahy_1 = {Tah{}, Cisla<Tah>({1, 2, 3, 4, 5, 6, 0}), Cisla<Tah>({1, 2, 3, 4, 5, 9, 0})};
        a.Pocet_Tahy_1 = 2;
        const Rozsah_Tahu r = Rozsah_Archivu(a, 2, 0);
        // Five hits against the first draw stay tier III; the second draw is all six.
        Vysledek_Vyhodnoceni v;
        Vyh_Cisla_V_Tazich(Radek_Tahu{1, 2, 3, 4, 5, 9, 0}, Radek_Tahu{}, true, false, r, v);
        QCOMPARE(v.Vyhry_1Tah, (Vyhry{0, 1, 0, 1, 0, 0}));
        v.Vycisti();
        Vyh_Soubor_V_Tazich(*Store({{1, 2, 3, 4, 5, 9}}), r, v);
        QCOMPARE(v.Vyhry_1Tah, (Vyhry{0, 1, 0, 1, 0, 0}));
        QCOMPARE(Opakovane_Cislo(Radek_Tahu{1, 1, 1, 1, 1, 1, 1}), std::optional<int>(1));
        QCOMPARE(Opakovane_Cislo(Radek_Tahu{1, 2, 0, 0, 5, 6, 7}), std::nullopt);
    }

    void Srovnani_S_Nahodou() {
        // The file holds the draw itself: it beats every random file, and a seed repeats the figures.
        Archiv_Tahu a;
        for (int d = 0; d < 20; ++d)
            a.Tahy_1.push_back(Cisla<Tah>({1, 2, 3, 4, 5, 6, 7}));
        a.Pocet_Tahy_1 = 20;
        const auto z = Store({{1, 2, 3, 4, 5, 6}, {10, 11, 12, 13, 14, 15}});
        const Rozsah_Tahu r = Rozsah_Archivu(a, 20, 0);
        const std::array<Ceny_Tahu, 2> ceny{Ceny_Tahu{1000, 100, 50, 10, 5}, Ceny_Tahu{}};
        const Vysledek_Srovnani s = Srovnej_S_Nahodou(*z, 2, r, ceny, 40, 99);
        QCOMPARE(s.Pocet_Souboru, 40);
        QCOMPARE(s.Vyhry_Souboru[1], uint64_t(20));
        QCOMPARE(s.Penize_Souboru, 20'000.0);
        QVERIFY(s.Penize_Nahody.Devadesat < 1000);
        QVERIFY(s.Penize_Nahody.Pet <= s.Penize_Nahody.Devadesat);
        // First of 41 files, yet the report says what that cannot mean.
        QCOMPARE(std::tuple(s.Poradi(), s.Horsich, s.Percentil()), std::tuple(1, 40, 100.0));
        QCOMPARE(s.Prumer_Nahody, s.Penize_Nahody.Prumer);
        const QString zprava = s.Veta.join(u'\n');
        QVERIFY(zprava.contains(u"pořadí 1 z 41"_qs) && zprava.contains(u"Minulé tahy nemění šanci"_qs));
        QVERIFY(!zprava.contains(u"pomohly"_qs));
        const Vysledek_Srovnani znovu = Srovnej_S_Nahodou(*z, 2, r, ceny, 40, 99);
        QCOMPARE(znovu.Penize_Nahody.Prumer, s.Penize_Nahody.Prumer);
        QCOMPARE(znovu.Vyhry_Nahody[5].Devadesat, s.Vyhry_Nahody[5].Devadesat);
    }

    void Nahodny_Los() {
        int i = 0;
        const int rada[] = {3, 3, 9, 3, 49, 1, 9, 2, 7, 11};
        const Radek_Tahu los = ::Nahodny_Los([&] { return rada[i++]; });
        QCOMPARE(los, (Radek_Tahu{3, 9, 49, 1, 2, 7, 11}));
    }
};

QTEST_GUILESS_MAIN(Test_Vyhodnoceni)
#include "Test_Vyhodnoceni.moc"
