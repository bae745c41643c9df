// Operations on a whole tip file: appending without a gap and with the ticket limit, sorting, and
// the text form in both directions, also through tombi-cli.
#include "Bajty.h"
#include "Spust_Cli.h"
#include "data/Operace_Tipu.h"

#include <QTemporaryDir>
#include <QTest>
#include <memory>

namespace {

// A store of `pocet` tips; tip i is (1..5, 10 + i % 40) so that every tip can be told apart.
void Napln(Zaznam_Tipu& z, int pocet, int od = 0) {
    z = {};
    for (int i = 0; i < pocet; ++i) {
        const int t = i / 10 + 1;
        z.Tikety[t].Cisla[i % 10 + 1] = Tip{{1, 2, 3, 4, 5, uint8_t(10 + (i + od) % 40)}};
        z.Tikety[t].Cislo_Tiketu = t;
        z.Pocet_Tiketu = int16_t(t);
    }
    z.Pocet_Tipu = int16_t(pocet);
}

} // namespace

class Test_Operace_Tipu final : public QObject {
    Q_OBJECT

private slots:
    void Pripojeni_Bez_Mezery_data() {
        QTest::addColumn<int>("cil");
        QTest::addColumn<int>("zdroj");
        QTest::addColumn<int>("tiketu");
        QTest::newRow("za 7 tipů") << 7 << 5 << 2;
        QTest::newRow("za 10 tipů") << 10 << 3 << 2;
        QTest::newRow("zdroj končí plným tiketem") << 4 << 20 << 3;
        QTest::newRow("do prázdného") << 0 << 10 << 1;
    }
    void Pripojeni_Bez_Mezery() {
        QFETCH(int, cil);
        QFETCH(int, zdroj);
        QFETCH(int, tiketu);
        auto stav = std::make_unique<Stav_Tipu>();
        Napln(stav->Soubor_Tipu, cil);
        Napln(stav->Soubor_Tipu_Pripojeny, zdroj, 100);
        stav->Soubor_Tipu_Pripojeny.Seznam_Soubor = u"cizi.szn"_qs;
        QVERIFY(Pripoj_Soubor_Tipu(*stav, {}).Ok());
        const Zaznam_Tipu& z = stav->Soubor_Tipu;
        QCOMPARE(std::pair(int(z.Pocet_Tiketu), int(z.Pocet_Tipu)), std::pair(tiketu, cil + zdroj));
        QCOMPARE(Pocet_Tipu_V_Souboru(z), cil + zdroj);
        QCOMPARE(int(stav->Pocet_Tipu_Aktivni), cil + zdroj);
        // The first new tip stands right after the old ones; the last is the source's last.
        const Tip& prvni = z.Tikety[cil / 10 + 1].Cisla[cil % 10 + 1];
        QCOMPARE(int(prvni[6]), 10 + 100 % 40);
        const int posledni = cil + zdroj - 1;
        QCOMPARE(int(z.Tikety[posledni / 10 + 1].Cisla[posledni % 10 + 1][6]), 10 + (zdroj - 1 + 100) % 40);
        QCOMPARE(z.Tikety[tiketu].Cislo_Tiketu, tiketu);
        QVERIFY(z.Seznam_Soubor.isEmpty());
        QVERIFY(stav->Soubor_Tipu_Pripojeny == z);
    }

    void Pripojeni_Nad_Limit_A_Stary_Format() {
        QTemporaryDir dir;
        auto stav = std::make_unique<Stav_Tipu>();
        Napln(stav->Soubor_Tipu, 9495);
        Napln(stav->Soubor_Tipu_Pripojeny, 12);
        QCOMPARE(Pripoj_Soubor_Tipu(*stav, {}).Zprava, Text_Max_Tiketu_Pripojeni);
        // What fits stays: the last ticket is filled, nothing beyond it.
        QCOMPARE(std::pair(int(stav->Soubor_Tipu.Pocet_Tiketu), Pocet_Tipu_V_Souboru(stav->Soubor_Tipu)),
                 std::pair(950, 9500));
        QCOMPARE(Pripoj_Soubor_Tipu(*stav, {}).Zprava, Text_Max_Tipu_Pripojeni);

        // An old file reads with a tip count of 0: refused, the store untouched.
        Napln(stav->Soubor_Tipu, 3);
        auto stary = std::make_unique<Zaznam_Tipu>();
        Napln(*stary, 5);
        stary->Pocet_Tipu = 0;
        Zapis_Souboru(dir.filePath(u"stary.tip"_qs), Zapis_Zaznam_Tipu(*stary));
        const Vysledek v = Pripoj_Soubor_Tipu(*stav, dir.filePath(u"stary.tip"_qs));
        QVERIFY(v.Zprava.startsWith(u"Provedte konverzi souboru tipu \"stary.tip\""_qs));
        QCOMPARE(Pocet_Tipu_V_Souboru(stav->Soubor_Tipu), 3);
    }

    void Trideni() {
        Zaznam_Tipu z;
        z.Pocet_Tiketu = 1;
        z.Tikety[1].Cisla[1] = Tip{{49, 3, 17, 1, 30, 2}};
        z.Tikety[1].Cisla[2] = Tip{{1, 2, 3, 4, 5, 6}};
        QVERIFY(Setridit_Soubor_Tipu(z));
        QCOMPARE(z.Tikety[1].Cisla[1], (Tip{{1, 2, 3, 17, 30, 49}}));
        QVERIFY(!Setridit_Soubor_Tipu(z));
        QCOMPARE(z.Tikety[1].Cisla[3], Tip{});
    }

    void Text_Tam_A_Zpet() {
        auto stav = std::make_unique<Stav_Tipu>();
        Napln(stav->Soubor_Tipu, 61);
        const QByteArray text = Export_Tipu(*stav);
        QVERIFY(text.startsWith("1\t2\t3\t4\t5\t10\r\n1\t2\t3\t4\t5\t11\r\n"));
        // The last ticket holds one tip; its nine empty columns are bare line ends.
        QVERIFY(text.endsWith(QByteArray("1\t2\t3\t4\t5\t30\r\n").append(QByteArray("\r\n").repeated(9))));
        auto zpet = std::make_unique<Stav_Tipu>();
        QVERIFY(Import_Tipu(Text_Importu(text), *zpet).Ok());
        QVERIFY(zpet->Soubor_Tipu == stav->Soubor_Tipu);
        QCOMPARE(int(zpet->Pocet_Tipu_Aktivni), 61);
        QVERIFY(zpet->Je_Soubor_Tipu);
        QVERIFY(Export_Tipu(*std::make_unique<Stav_Tipu>()).isEmpty());
    }

    void Import_Cte_Jen_Cisla() {
        QCOMPARE(Text_Importu("rem 1 2 3 4 5 6\r\nPremium 7\n1,2;3 4\r5\t6"), QByteArray("1,2;3 4\r\n5\t6\r\n"));
        auto stav = std::make_unique<Stav_Tipu>();
        Napln(stav->Soubor_Tipu, 3);
        const Zaznam_Tipu pred = stav->Soubor_Tipu;
        // A failed import leaves the tips that were there.
        for (const auto& [text, zprava] :
             {std::pair{QByteArray("1 2 3 4 5 6 7"), u"Nesouhlasí počet čísel v importovaném souboru tipu TXT."_qs},
              std::pair{QByteArray("1 2 3 4 5 256"), u"Chyba při importu v importovaném souboru tipu TXT."_qs},
              std::pair{QByteArray("\r\n\r\n"), u"V importovaném souboru tipu TXT není žádné číslo."_qs},
              std::pair{
                  QByteArray("1 2 3 4 5 6\r\n7 7 8 9 10 11"),
                  u"Tip č. 2 v importovaném souboru tipu TXT má číslo mimo 1 až 49 nebo dvakrát stejné číslo."_qs},
              std::pair{
                  QByteArray("0 2 3 4 5 50"),
                  u"Tip č. 1 v importovaném souboru tipu TXT má číslo mimo 1 až 49 nebo dvakrát stejné číslo."_qs}}) {
            QCOMPARE(Import_Tipu(Text_Importu(text), *stav).Zprava, zprava);
            QVERIFY(stav->Soubor_Tipu == pred);
        }
        QCOMPARE(Import_Tipu(QByteArray("1 2 3 4 5 6 ").repeated(9501), *stav).Zprava,
                 u"Chyba při importu v importovaném souboru tipu TXT."_qs);
    }

    void Prikazy_Cli() {
        QTemporaryDir dir;
        auto z = std::make_unique<Zaznam_Tipu>();
        Napln(*z, 7);
        Zapis_Souboru(dir.filePath(u"a.tip"_qs), Zapis_Zaznam_Tipu(*z));
        Napln(*z, 25, 7);
        Zapis_Souboru(dir.filePath(u"b.tip"_qs), Zapis_Zaznam_Tipu(*z));
        const auto cesta = [&](const char* jmeno) { return dir.filePath(QString::fromLatin1(jmeno)); };
        const Beh spojeni =
            Spust({u"tips"_qs, u"--append"_qs, cesta("a.tip"), cesta("b.tip"), u"--out"_qs, cesta("c.tip")});
        QCOMPARE(std::pair(spojeni.Kod, spojeni.Radky), std::pair(0, QStringList{u"tikety 4 tipy 32"_qs}));
        QCOMPARE(Spust({u"tips"_qs, u"--export"_qs, cesta("c.tip"), u"--out"_qs, cesta("c.txt")}).Kod, 0);
        QCOMPARE(Spust({u"tips"_qs, u"--import"_qs, cesta("c.txt"), u"--out"_qs, cesta("d.tip")}).Radky,
                 QStringList{u"tikety 4 tipy 32"_qs});
        QCOMPARE(Obsah_Souboru(cesta("d.tip")), Obsah_Souboru(cesta("c.tip")));
        QCOMPARE(Spust({u"tips"_qs, u"--sort"_qs, cesta("d.tip"), u"--out"_qs, cesta("e.tip")}).Kod, 0);
        Zapis_Souboru(cesta("f.txt"), "1 2 3 4 5 6 7");
        const Beh chyba = Spust({u"tips"_qs, u"--import"_qs, cesta("f.txt"), u"--out"_qs, cesta("f.tip")});
        QCOMPARE(std::pair(chyba.Kod, chyba.Chyby),
                 std::pair(1, u"Nesouhlasí počet čísel v importovaném souboru tipu TXT.\n"_qs));
        QVERIFY(!QFile::exists(cesta("f.tip")));
        QCOMPARE(Spust({u"tips"_qs, u"--sort"_qs, cesta("a.tip")}).Kod, 2);
    }
};

QTEST_GUILESS_MAIN(Test_Operace_Tipu)
#include "Test_Operace_Tipu.moc"
