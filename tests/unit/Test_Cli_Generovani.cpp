// tombi-cli generate where the filters cannot be met, the counts do not fit, or a number repeats:
// the header tells the tips made, what no tip can pass is refused at once, a stuck run ends.
#include "Bajty.h"
#include "Spust_Cli.h"
#include "data/Soubor_Tipu.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

class Test_Cli_Generovani final : public QObject {
    Q_OBJECT

    QTemporaryDir Adresar;

    Beh Generuj(const QString& soubor, const QStringList& volby) {
        return Spust(QStringList{u"generate"_qs, u"--out"_qs, Adresar.filePath(soubor)} + volby);
    }

private slots:
    void Hlavicka_Je_Pocet_Vyrobenych() {
        const Beh b =
            Generuj(u"a.tip"_qs, {u"--tipy"_qs, u"9500"_qs, u"--tikety"_qs, u"1"_qs, u"--seminko"_qs, u"1"_qs});
        QCOMPARE(b.Kod, 0);
        QCOMPARE(b.Radky, QStringList{u"tikety 1 tipy 9500 hotovo 10 seminko 1"_qs});
        const auto z = std::make_unique<Zaznam_Tipu>(Cti_Zaznam_Tipu(Obsah_Souboru(Adresar.filePath(u"a.tip"_qs))));
        QCOMPARE(std::pair(int(z->Pocet_Tiketu), int(z->Pocet_Tipu)), std::pair(1, 10));
    }

    void Odmitnuti_Pred_Behem_data() {
        QTest::addColumn<QStringList>("volby");
        QTest::addColumn<int>("kod");
        QTest::addColumn<QString>("zprava");
        QTest::newRow("tutovky 5,5")
            << QStringList{u"--tutovky"_qs, u"5,5"_qs} << 2
            << u"Volba --tutovky opakuje číslo 5: tip nesmí obsahovat stejné číslo dvakrát."_qs;
        QTest::newRow("pouzit 3,9,3")
            << QStringList{u"--pouzit"_qs, u"3,9,3,4,5,6,7,8,10,11"_qs} << 2
            << u"Volba --pouzit opakuje číslo 3: tip nesmí obsahovat stejné číslo dvakrát."_qs;
        for (const char* cas : {"inf", "nan", "1e300", "-1"})
            QTest::newRow(cas) << QStringList{u"--cas"_qs, QString::fromLatin1(cas)} << 2
                               << u"Chybná hodnota volby --cas."_qs;
        QTest::newRow("rozsah 1,5") << QStringList{u"--rozsah"_qs, u"1,5"_qs} << 1
                                    << u"Rozsah čísel 1 - 5 je užší než 6 čísel, která tip potřebuje."_qs;
    }
    void Odmitnuti_Pred_Behem() {
        QFETCH(QStringList, volby);
        QFETCH(int, kod);
        QFETCH(QString, zprava);
        const Beh b = Generuj(u"o.tip"_qs, QStringList{u"--tipy"_qs, u"20"_qs} + volby);
        QCOMPARE(b.Kod, kod);
        QVERIFY2(b.Chyby.startsWith(zprava), qPrintable(b.Chyby));
        QVERIFY(!QFile::exists(Adresar.filePath(u"o.tip"_qs)));
    }

    void Obracene_Meze_A_Uvaznuti() {
        // Reversed bounds are swapped, as the window swaps them.
        Beh b = Generuj(u"r.tip"_qs, {u"--tipy"_qs, u"30"_qs, u"--rozsah"_qs, u"30,10"_qs, u"--suma"_qs, u"500,10"_qs});
        QCOMPARE(b.Kod, 0);
        const auto z = std::make_unique<Zaznam_Tipu>(Cti_Zaznam_Tipu(Obsah_Souboru(Adresar.filePath(u"r.tip"_qs))));
        for (int n = 0; n < 30; ++n)
            for (const uint8_t x : z->Tikety[n / 10 + 1].Cisla[n % 10 + 1])
                QVERIFY(x >= 10 && x <= 30);
        // Six even numbers never sum to 151: without --cas the run ends with exit 1 and the reason.
        const QStringList uvazne{u"--tipy"_qs, u"10"_qs, u"--sudlich"_qs, u"6,0,0"_qs, u"--suma"_qs, u"150,152"_qs};
        b = Generuj(u"u.tip"_qs, uvazne);
        QCOMPARE(b.Kod, 1);
        QVERIFY2(b.Chyby.contains(u"\"sudá / lichá / rozptyl\""_qs), qPrintable(b.Chyby));
        QVERIFY(b.Radky.value(0).startsWith(u"tikety 1 tipy 10 hotovo 0 "_qs));
        // With --cas it waits for the time and writes what was made.
        b = Generuj(u"c.tip"_qs, uvazne + QStringList{u"--cas"_qs, u"0.3"_qs});
        QCOMPARE(b.Kod, 0);
        QVERIFY(QFile::exists(Adresar.filePath(u"c.tip"_qs)));
    }
};

QTEST_GUILESS_MAIN(Test_Cli_Generovani)
#include "Test_Cli_Generovani.moc"
