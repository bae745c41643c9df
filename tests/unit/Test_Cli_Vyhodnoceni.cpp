// tombi-cli evaluate where a script could be told a wrong number: the stake of a file whose header
// counts otherwise than its tips, drawn rows that repeat a number, and the win list written fast.
#include "Bajty.h"
#include "Spust_Cli.h"
#include "data/Soubor_Tipu.h"
#include "data/Soubory.h"

#include <QTemporaryDir>
#include <QTest>
#include <memory>

class Test_Cli_Vyhodnoceni final : public QObject {
    Q_OBJECT

private slots:
    void Vklad_A_Opakovana_Cisla() {
        QTemporaryDir dir;
        const QString sez = dir.filePath(u"SpS_tahy.sez"_qs);
        QCOMPARE(Spust({u"import"_qs, u"--csv"_qs, QStringLiteral(TOMBI_HISTORIE), u"--den"_qs, u"streda"_qs,
                        u"--out"_qs, sez})
                     .Kod,
                 0);
        // Ten tips under headers that count 9,500 and -5: the stake is ten tips at 12 Kč a draw.
        const auto z = std::make_unique<Zaznam_Tipu>();
        for (int c = 1; c <= 10; ++c)
            z->Tikety[1].Cisla[c] = Tip{{1, 2, 3, 4, 5, uint8_t(10 + c)}};
        z->Tikety[1].Cislo_Tiketu = 1;
        z->Pocet_Tiketu = 1;
        for (const int16_t hlavicka : {int16_t(9500), int16_t(-5)}) {
            z->Pocet_Tipu = hlavicka;
            const QString tip = dir.filePath(u"a.tip"_qs);
            QVERIFY(Uloz_Soubor(tip, Zapis_Zaznam_Tipu(*z)).Ok());
            const Beh beh = Spust({u"evaluate"_qs, tip, sez, u"2"_qs, u"0"_qs, u"--ceny"_qs, u"0,0,0,0,0"_qs});
            QCOMPARE(beh.Kod, 0);
            QVERIFY2(beh.Radky.value(beh.Radky.size() - 1).startsWith(u"vyhra 0 vklad 240 "_qs),
                     qPrintable(beh.Radky.join(u'|')));
        }

        // A drawn row that repeats a number is refused, typed against tips or against the archive.
        const QString tip = dir.filePath(u"a.tip"_qs);
        for (const QStringList& argumenty :
             {QStringList{u"evaluate"_qs, u"--tipech"_qs, tip, u"1 1 1 1 1 1 1"_qs},
              QStringList{u"evaluate"_qs, u"--tipech"_qs, tip, u"1 2 3 4 5 6 -"_qs, u"7 8 9 10 11 7 -"_qs},
              QStringList{u"evaluate"_qs, u"--tazich"_qs, sez, u"10"_qs, u"10"_qs, u"5 6 7 8 9 10 5"_qs}}) {
            const Beh beh = Spust(argumenty);
            QCOMPARE(std::pair(beh.Kod, beh.Chyby), std::pair(1, u"Pozor, zadána stejná čísla !\n"_qs));
            QVERIFY(beh.Radky.isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(Test_Cli_Vyhodnoceni)
#include "Test_Cli_Vyhodnoceni.moc"
