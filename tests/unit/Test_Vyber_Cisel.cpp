// Number pools: the test list and wheel input of a run, the shuffle, clicks with tutovky, ranges,
// random sets, the key over the last draws, and .vyb files byte by byte.
#include "Bajty.h"
#include "core/Random.h"
#include "data/Archiv_Tahu.h"
#include "generator/Soubor_Vyb.h"
#include "generator/Vyber_Cisel.h"

#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

namespace {

std::vector<int> Prvni(const Seznam_Cisel& s, int pocet) {
    return std::vector<int>(s.begin(), s.begin() + pocet);
}

void Nastav(Seznam_Cisel& s, int& pocet, std::initializer_list<int> cisla) {
    s = Cisla<Seznam_Cisel>(cisla);
    pocet = int(cisla.size());
}

// An archive of `pocet` first draws; draw i holds i, i+1 .. i+5 (mod 49) and 49 as supplementary.
Archiv_Tahu Archiv(int pocet) {
    Archiv_Tahu a;
    for (int i = 1; i <= pocet; ++i) {
        Tah t;
        for (int k = 1; k <= 6; ++k)
            t[k] = uint8_t((i + k - 2) % 48 + 1);
        t[7] = 49;
        a.Tahy_1.push_back(t);
    }
    a.Pocet_Tahy_1 = pocet;
    return a;
}

} // namespace

class Test_Vyber_Cisel final : public QObject {
    Q_OBJECT

private slots:
    void Priprav_Okruh_Ve_Trech_Rezimech() {
        const Boxy_Tutovek boxy{20, 0, 7};
        Vyber_Cisel v{.Pouzit_Vybrana = true};
        Nastav(v.Cisla_Pouzit, v.Pocet_Pouzit, {3, 7, 11, 20, 30});
        QCOMPARE(Priprav_Okruh(v, boxy), 3);
        // The tutovky stand behind the count, where the run's test does not look.
        QCOMPARE(Prvni(v.Okruh_Cisel, 6), (std::vector<int>{3, 11, 30, 7, 20, 0}));
        QCOMPARE(Prvni(v.Cisla_Pomocne, 4), (std::vector<int>{3, 11, 30, 0}));

        v = {.Vynechat_Vybrana = true};
        Nastav(v.Cisla_Vynechat, v.Pocet_Vynechat, {7, 8});
        QCOMPARE(Priprav_Okruh(v, boxy), 2);
        QCOMPARE(Prvni(v.Okruh_Cisel, 3), (std::vector<int>{7, 8, 0}));

        v = {.Rozpis_Aktivni = true};
        Nastav(v.Cisla_Rozpisu, v.Pocet_Rozpisu, {5, 7, 9, 20, 44});
        QCOMPARE(Priprav_Okruh(v, boxy), 3);
        QCOMPARE(Prvni(v.Cisla_Rozpisu, 5), (std::vector<int>{5, 9, 44, 7, 20}));
        QCOMPARE(Prvni(v.Cisla_Pomocne, 4), (std::vector<int>{5, 9, 44, 0}));
    }

    void Zamichej_Cisla_Jen_Poradi() {
        const auto zamichej = [](double seminko) {
            Vyber_Cisel v{.Rozpis_Aktivni = true};
            Nastav(v.Cisla_Rozpisu, v.Pocet_Rozpisu, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 40});
            Priprav_Okruh(v, {40, 0, 0});
            Zdroj_Casovy zdroj;
            Random r(zdroj);
            Zamichej_Cisla(v, 12, r, seminko);
            return Prvni(v.Cisla_Rozpisu, 13);
        };
        const std::vector<int> a = zamichej(-3.25);
        QCOMPARE(zamichej(-3.25), a); // a negative seed restarts the source
        QVERIFY(zamichej(-4.5) != a);
        QCOMPARE(a.back(), 40); // the tutovka stays behind
        QVERIFY(!std::is_sorted(a.begin(), a.end() - 1));
        std::vector<int> serazene(a.begin(), a.end() - 1);
        std::sort(serazene.begin(), serazene.end());
        QCOMPARE(serazene, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));

        // A count above the numbers there ends when they are used up.
        Vyber_Cisel v;
        v.Cisla_Pomocne[1] = 9;
        Random r;
        Zamichej_Cisla(v, 5, r, -1.0);
        QCOMPARE(Prvni(v.Cisla_Rozpisu, 2), (std::vector<int>{9, 0}));
    }

    void Klik_Cislo_A_Tutovky() {
        // "Bez výběru": clicks set tutovky only, and a fourth is refused.
        Vyber_Cisel v;
        Boxy_Tutovek boxy{};
        for (const int n : {33, 5, 12})
            Klik_Cislo(v, n, Barva_Cervena, boxy);
        const Stav_Vyberu stav = Klik_Cislo(v, 40, Barva_Cervena, boxy);
        QCOMPARE(std::pair(stav.Rozpis, stav.Pocet), std::pair(u" 5 12 33"_qs, 3));
        QCOMPARE(boxy, (Boxy_Tutovek{33, 5, 12}));

        // "Použít": a chosen number clicked again leaves; the tutovky that stay return to the boxes in list order.
        v = {.Pouzit_Vybrana = true};
        boxy = {};
        Klik_Cislo(v, 30, Barva_Cervena, boxy);
        Klik_Cislo(v, 8, Barva_Cerna, boxy);
        Klik_Cislo(v, 2, Barva_Cervena, boxy);
        QCOMPARE(boxy, (Boxy_Tutovek{30, 2, 0}));
        QCOMPARE(Klik_Cislo(v, 8, Barva_Cerna, boxy).Rozpis, u" 2 30"_qs);
        QCOMPARE(boxy, (Boxy_Tutovek{2, 30, 0}));
        QCOMPARE(v.Tutovka_Index, 2);
        Klik_Cislo(v, 30, Barva_Cerna, boxy);
        QCOMPARE(boxy, (Boxy_Tutovek{2, 0, 0}));

        // Wheel: the first numbers become its tutovky, and no more than the wheel needs are taken.
        v = {.Rozpis_Aktivni = true, .Cisla_Potreba = 3, .Pocet_Tutovek_Rozpisu = 1};
        boxy = {};
        for (const int n : {17, 4, 9, 25})
            Klik_Cislo(v, n, Barva_Cerna, boxy);
        QCOMPARE(Prvni(v.Cisla_Rozpisu, 4), (std::vector<int>{4, 9, 17, 0}));
        QCOMPARE(boxy, (Boxy_Tutovek{17, 0, 0}));
    }

    void Rozsahy_A_Nahodna_Sada() {
        Vyber_Cisel v{.Vynechat_Vybrana = true};
        Boxy_Tutovek boxy{};
        QCOMPARE(Vypln_Rozsah(v, 2, boxy).Pocet, 25);
        QCOMPARE(std::pair(int(v.Cisla_Vynechat[1]), int(v.Cisla_Vynechat[25])), std::pair(13, 37));

        // With a wheel of 26 numbers a range of 25 falls back to "vše".
        v = {.Rozpis_Aktivni = true, .Cisla_Potreba = 26, .Pocet_Tutovek_Rozpisu = 1};
        QCOMPARE(Platny_Rozsah(v, 1), 0);
        v.Cisla_Potreba = 25;
        QCOMPARE(Platny_Rozsah(v, 1), 1);

        // A fixed tutovka comes first; typed but not fixed, it is never drawn.
        Random r;
        boxy = {40, 0, 0};
        std::vector<uint8_t> sada = Nahodna_Sada(v, 3, boxy, true, r, -2.0);
        QCOMPARE(std::pair(int(sada.size()), int(sada[0])), std::pair(25, 40));
        QVERIFY(std::all_of(sada.begin() + 1, sada.end(), [](uint8_t x) { return x >= 25 && x <= 49; }));
        QCOMPARE(Nahodna_Sada(v, 3, boxy, false, r, -2.0).size(), std::size_t(0)); // 24 left for 25
        v.Cisla_Potreba = 24;
        sada = Nahodna_Sada(v, 3, boxy, false, r, -2.0);
        QVERIFY(std::find(sada.begin(), sada.end(), 40) == sada.end());
        QCOMPARE(Pouzij_Nahodnou_Sadu(v, sada, boxy).Pocet, 24);
        QCOMPARE(boxy, (Boxy_Tutovek{sada[0], 0, 0}));
    }

    void Vyber_Podle_Klice() {
        Vyber_Cisel v;
        std::vector<uint8_t> cisla;
        // Key 3 reads draws 6, 4 and 1 of 10: numbers 1..11, the supplementary 49 not.
        QVERIFY(::Vyber_Podle_Klice(v, Archiv(10), 3, cisla).Ok());
        QCOMPARE(std::vector<int>(cisla.begin(), cisla.end()), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
        // Key 9 reaches 48 draws back; only as many numbers as the mode needs are taken.
        v.Cisla_Potreba = 4;
        QVERIFY(::Vyber_Podle_Klice(v, Archiv(48), 9, cisla).Ok());
        QCOMPARE(cisla.size(), std::size_t(4));
        cisla = {7};
        const Vysledek chyba = ::Vyber_Podle_Klice(v, Archiv(47), 9, cisla);
        QCOMPARE(chyba.Zprava, u"Klíč výběru 9 sahá 48 tahů zpět, v archivu je jich jen 47. Zmenšete klíč výběru "
                               u"čísel z tahů v nastavení."_qs);
        QCOMPARE(cisla, std::vector<uint8_t>{7});
    }

    void Text_Stavu_A_Kontrola() {
        Vyber_Cisel v;
        // The status text starts with a blank; a value is rounded into its byte as the Basic does.
        Nacti_Cisla_Z_Textu(v, u" 33 5 200 11.6"_qs);
        QCOMPARE(std::pair(Prvni(v.Cisla_Pouzit, 5), v.Pocet_Pouzit),
                 std::pair(std::vector<int>{33, 5, 200, 12, 0}, 4));
        QCOMPARE(Serad_Seznam(v, 4).Rozpis, u" 5 12 33 200"_qs);

        v.Pouzit_Vybrana = true;
        QCOMPARE(Kontrola_Vyberu(v, 0, 41).Zprava, u"Vyber více čísel ..."_qs);
        v = {.Vynechat_Vybrana = true};
        QCOMPARE(Kontrola_Vyberu(v, 0, 9).Zprava, u"Uber čísla ..."_qs);
        QVERIFY(Kontrola_Vyberu(v, 0, 10).Ok());
        QCOMPARE(Kontrola_Vyberu(v, 5, 1).Zprava, u"Není výbrán správný počet čísel ..."_qs);
    }

    void Soubor_Vyb_Bajt_Po_Bajtu() {
        // "Použít" with one tutovka: the tutovka is kept apart from the numbers.
        Vyber_Cisel v{.Pouzit_Vybrana = true};
        Nastav(v.Cisla_Pouzit, v.Pocet_Pouzit, {3, 9, 15, 48});
        const Zaznam_Vyb z = Zaznam_Z_Vyberu(v, 0, {0, 15, 0});
        QByteArray cekano = Bajty(0, 1) + Bajty(3, 1) + QByteArray("\x03\x09\x30", 3) + QByteArray(46, '\0');
        cekano += Bajty(0, 1) + QByteArray(49, '\0') + Bajty(1, 1) + QByteArray("\x0F\0\0", 3);
        QCOMPARE(Zapis_Zaznam_Vyb(z), cekano);
        QCOMPARE(Navrh_Jmena_Vyb(z), u"1_3"_qs);
        QCOMPARE(Cti_Zaznam_Vyb(cekano + "tail"), z);

        QTemporaryDir dir;
        const QString cesta = dir.filePath(u"1_3.vyb"_qs);
        QVERIFY(Uloz_Soubor_Vyb(cesta, z).Ok());
        Zaznam_Vyb nacteny;
        QVERIFY(Nacti_Soubor_Vyb(cesta, nacteny).Ok());
        Boxy_Tutovek boxy{44, 45, 46};
        Vyber_Cisel znovu{.Vynechat_Vybrana = true};
        Pouzij_Zaznam_Vyb(znovu, nacteny, boxy);
        QVERIFY(znovu.Pouzit_Vybrana && !znovu.Vynechat_Vybrana);
        QCOMPARE(Prvni(znovu.Cisla_Pouzit, 5), (std::vector<int>{3, 9, 48, 15, 0}));
        QCOMPARE(boxy, (Boxy_Tutovek{15, 0, 0}));

        // Saved in "Vynechat": no numbers to use, and opening lands in "Vynechat".
        v = {.Vynechat_Vybrana = true};
        Nastav(v.Cisla_Vynechat, v.Pocet_Vynechat, {1, 2});
        const Zaznam_Vyb vyn = Zaznam_Z_Vyberu(v, 0, {});
        QCOMPARE(std::pair(int(vyn.Pocet_Cisel), int(vyn.Pocet_Vynechat)), std::pair(0, 2));
        Pouzij_Zaznam_Vyb(znovu, vyn, boxy);
        QCOMPARE(std::tuple(znovu.Volba_Vybrana, znovu.Pocet_Vynechat, znovu.Pocet_Pouzit), std::tuple(2, 2, 0));

        // A wheel: numbers and tutovky in both lists.
        Zaznam_Vyb kolo = z;
        kolo.Rozpis = 2;
        Pouzij_Zaznam_Vyb(znovu, kolo, boxy);
        QVERIFY(znovu.Rozpis_Aktivni && znovu.Pocet_Rozpisu == 4);
        QCOMPARE(znovu.Cisla_Rozpisu, znovu.Cisla_Pouzit);
    }

    void Soubor_Vyb_Lichy() {
        QTemporaryDir dir;
        const auto otevri = [&](const QByteArray& data, Zaznam_Vyb& z) {
            const QString cesta = dir.filePath(u"x.vyb"_qs);
            Zapis_Souboru(cesta, data);
            return Nacti_Soubor_Vyb(cesta, z).Zprava;
        };
        // A short file leaves the rest 0 and opens.
        Zaznam_Vyb z;
        QCOMPARE(otevri(QByteArray("\0\x01\x07", 3), z), QString());
        QCOMPARE(std::pair(int(z.Pocet_Cisel), int(z.Cisla[1])), std::pair(1, 7));

        QByteArray b(105, '\0');
        b[1] = char(49);
        b[101] = char(1);
        QCOMPARE(otevri(b, z), u"Soubor \"x.vyb\" není platný soubor vybraných čísel: počet čísel s tutovkami 50 "
                               u"je mimo rozsah 0 - 49."_qs);
        QCOMPARE(z.Pocet_Cisel, 1); // left as it was
        b = QByteArray(105, '\0');
        b[0] = char(25);
        QVERIFY(otevri(b, z).contains(u"typ rozpisu 25"_qs));
        b[0] = 0;
        b[51] = char(1);
        b[52] = char(50);
        QVERIFY(otevri(b, z).endsWith(u"obsahuje číslo mimo rozsah 1 - 49."_qs));
        // A number twice, in the list, in the tutovky or in both, is refused; what stood stays.
        const auto dvakrat = [&](std::initializer_list<std::pair<int, int>> bajty) {
            QByteArray d(105, '\0');
            for (const auto& [kde, co] : bajty)
                d[kde] = char(co);
            return otevri(d, z);
        };
        QVERIFY(dvakrat({{1, 9}, {2, 1}, {3, 2}, {4, 3}, {5, 4}, {6, 5}, {7, 6}, {8, 7}, {9, 8}, {10, 5}})
                    .endsWith(u"obsahuje číslo 5 dvakrát."_qs));
        QVERIFY(dvakrat({{1, 1}, {2, 8}, {101, 2}, {102, 5}, {103, 5}}).endsWith(u"obsahuje číslo 5 dvakrát."_qs));
        QVERIFY(dvakrat({{1, 1}, {2, 8}, {101, 1}, {102, 8}}).endsWith(u"obsahuje číslo 8 dvakrát."_qs));
        QVERIFY(dvakrat({{51, 2}, {52, 30}, {53, 30}}).endsWith(u"obsahuje číslo 30 dvakrát."_qs));
        QCOMPARE(std::pair(int(z.Pocet_Cisel), int(z.Cisla[1])), std::pair(1, 7));
    }
};

QTEST_GUILESS_MAIN(Test_Vyber_Cisel)
#include "Test_Vyber_Cisel.moc"
