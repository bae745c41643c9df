// The marks printed on the paper tickets: the corners of the ticket with and without a shift,
// worked out by hand from the ticket's measures, the bands, the choice boxes, the counts of pages,
// the test page, and tombi-cli print.
#include "Bajty.h"
#include "Spust_Cli.h"
#include "printing/Tisk_Tiketu.h"

#include <QTemporaryDir>
#include <QTest>
#include <memory>

using namespace Tisk_Tiketu;

namespace {

std::vector<std::pair<int, int>> Krizky(const Stranka& s) {
    std::vector<std::pair<int, int>> k;
    for (const Znacka& z : s.Znacky)
        if (!z.Je_Text)
            k.emplace_back(z.X, z.Y);
    return k;
}

} // namespace

class Test_Tisk_Tiketu final : public QObject {
    Q_OBJECT

private slots:
    void Rohy_Tiketu() {
        auto z = std::make_unique<Zaznam_Tipu>();
        z->Pocet_Tiketu = 1;
        z->Tikety[1].Cislo_Tiketu = 7;
        for (int c = 1; c <= 10; ++c)
            z->Tikety[1].Cisla[c] = Tip{{1, 5, 46, 49, uint8_t(10 + c), uint8_t(30 + c)}};
        Zadani_Tisku zadani;
        zadani.Pocet_Tipu_Aktivni = 10;
        // Column 1 from 2882, 444; numbers 1 (row 0, cell 0), 5 (row 0, cell 4), 46 (row 9, cell 0),
        // 49 (row 9, cell 3). Column 10: one block across (1410) and two bands down (4950).
        const auto stranky = Stranky(*z, 1, 0, zadani);
        QCOMPARE(stranky.size(), std::size_t(1));
        const auto k = Krizky(stranky[0]);
        QCOMPARE(k.size(), std::size_t(60));
        QCOMPARE(std::vector(k.begin(), k.begin() + 4),
                 (std::vector<std::pair<int, int>>{{2882, 444}, {3822, 444}, {2882, 2469}, {3587, 2469}}));
        QCOMPARE(k[4 * 6], std::pair(2882, 444 + 2475)); // column 5 starts band 2
        QCOMPARE(k[8 * 6], std::pair(2882, 444 + 4950)); // column 9 starts band 3
        QCOMPARE(k[9 * 6 + 3], std::pair(4292 + 705, 5394 + 2025));
        // A shift of 10 mm across and -3 mm down moves every cross by 565 and -170 twips.
        zadani.Poloha.Posun_X = *Posun_Z_Mm(u"10"_qs);
        zadani.Poloha.Posun_Y = *Posun_Z_Mm(u"-3"_qs);
        const auto posunute = Krizky(Stranky(*z, 1, 0, zadani)[0]);
        QCOMPARE(posunute[0], std::pair(2882 + 565, 444 - 170));
        QCOMPARE(posunute[59], std::pair(k[59].first + 565, k[59].second - 170));
        for (const QString& spatne : {u"-"_qs, u"201"_qs, u"-200.5"_qs, u"x"_qs})
            QVERIFY(!Posun_Z_Mm(spatne));
    }

    void Pasma_Volby_A_Pocty() {
        auto z = std::make_unique<Zaznam_Tipu>();
        z->Pocet_Tiketu = 4;
        for (int t = 1; t <= 4; ++t) {
            z->Tikety[t].Cislo_Tiketu = t;
            for (int c = 1; c <= 4; ++c)
                z->Tikety[t].Cisla[c] = Tip{{1, 2, 3, 4, 5, 6}};
        }
        Zadani_Tisku zadani;
        zadani.Pocet_Tipu_Aktivni = 14;
        zadani.Oznaceno = Volby_Pri_Nacteni(false, false);
        zadani.Cisla_Tiketu = true;
        // pocet 2 prints three tickets; the tips beyond the active count (14, counted from ticket 1)
        // print no crosses.
        const auto stranky = Stranky(*z, 2, 2, zadani);
        QCOMPARE(stranky.size(), std::size_t(3));
        QCOMPARE(stranky[0].Tiket, 2);
        const Znacka& cislo = stranky[0].Znacky[0];
        QVERIFY(cislo.Je_Text && cislo.Text == u"2"_qs && cislo.X == 2882 + 1175 && cislo.Y == 444 - 450);
        QCOMPARE(Krizky(stranky[0]).size(), std::size_t(4 * 6 + 2));
        QCOMPARE(Krizky(stranky[1]).size(), std::size_t(4 * 6 + 2));
        QCOMPARE(Krizky(stranky[2]).size(), std::size_t(2 * 6 + 2));
        for (const auto& [x, y] : Krizky(stranky[0]))
            QVERIFY(y < 444 + 2475 || x >= 2882 + 3055); // only band 1, then the choice boxes
        // Box 2 (Sunday) before box 3 ("Šance – Ne").
        const auto posledni = Krizky(stranky[2]);
        QCOMPARE(std::vector(posledni.end() - 2, posledni.end()),
                 (std::vector<std::pair<int, int>>{{2882 + 3055, 444 + 5400}, {2882 + 4230, 444 + 5175}}));

        zadani.Jen_Volby = true;
        QCOMPARE(Stranky(*z, 1, 5, zadani).size(), std::size_t(1));
        QCOMPARE(Testovaci_Stranka({}, true).Znacky.size(), std::size_t(1 + 500 + 1 + 2 + 4 + 1 + 9 + 1));
        // The calibration page: the corner and middle cells of block 1, each with its place in mm
        // (the middle of the cross of cell 1 is at 2927, 489 twips: 51,8 and 8,7 mm).
        const Stranka kalibrace = Kalibracni_Stranka({});
        QCOMPARE(Krizky(kalibrace), (std::vector<std::pair<int, int>>{
                                        {2882, 444}, {3822, 444}, {2882, 2469}, {3822, 2469}, {3352, 1344}}));
        QCOMPARE(kalibrace.Znacky[1].Text, u"51,8 ; 8,7 mm"_qs);
    }

    void Prikaz_Cli() {
        QTemporaryDir dir;
        auto z = std::make_unique<Zaznam_Tipu>();
        z->Pocet_Tiketu = 2;
        for (int t = 1; t <= 2; ++t) {
            z->Tikety[t].Cislo_Tiketu = 10 + t;
            z->Tikety[t].Cisla[1] = Tip{{1, 2, 3, 4, 5, 49}};
        }
        z->Pocet_Tipu = 2;
        const QString tip = dir.filePath(u"a.tip"_qs);
        Zapis_Souboru(tip, Zapis_Zaznam_Tipu(*z));
        const Beh b = Spust({u"print"_qs, tip, u"--od"_qs, u"2"_qs, u"--osa-x"_qs, u"1"_qs, u"--cislo-tiketu"_qs,
                             u"--den"_qs, u"streda"_qs, u"--sance"_qs});
        QCOMPARE(b.Kod, 0);
        QCOMPARE(b.Radky, (QStringList{u"tiket 2 12"_qs, u"text 4113 -6 12"_qs, u"krizek 2938 444"_qs,
                                       u"krizek 3173 444"_qs, u"krizek 3408 444"_qs, u"krizek 3643 444"_qs,
                                       u"krizek 3878 444"_qs, u"krizek 3643 2469"_qs, u"krizek 5993 5619"_qs}));
        QCOMPARE(Spust({u"print"_qs, tip}).Radky.size(), 2 * 9);
        QCOMPARE(Spust({u"print"_qs, tip, u"--osa-y"_qs, u"300"_qs}).Kod, 2);
    }
};

QTEST_GUILESS_MAIN(Test_Tisk_Tiketu)
#include "Test_Tisk_Tiketu.moc"
