// ErrorFile.txt and _Prehled.txt: their lines byte for byte in code page 1250, and the stop box.
#include "Bajty.h"
#include "Dialogy_Testu.h"
#include "data/Chyby_A_Prehled.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>


class Test_Chyby_A_Prehled final : public QObject {
    Q_OBJECT

private slots:
    void Zprava_O_Chybe() {
        QTemporaryDir dir;
        Dialogy_Testu dialogy;
        const QString cesta = dir.filePath(u"ErrorFile.txt"_qs);
        QVERIFY(Zapis_Chybu(dir.path(), u"Vyh_Tahy"_qs, u"12"_qs, u"Dělení nulou"_qs, &dialogy).Ok());
        // Octal escapes, so that no letter after a byte of code page 1250 is taken for a digit.
        QCOMPARE(Obsah_Souboru(cesta),
                 QByteArray("Chyba  v  procesu: Vyh_Tahy\r\nPocet vyhr\341vaj\355c\355ch tiket\371: "
                            "12\r\nChyba: D\354len\355 nulou\r\n"));
        const QString okno = QString::number(int(Dialogy::Ikona::Stop)) +
                             u"|Vnitřní chyba programu ...|Zašlete prosím soubor ErrorFile.txt na adresu\r\n\r\n"_qs +
                             Adresa_Podpory;
        QCOMPARE(dialogy.Okna, QStringList{okno});

        // A second error replaces the report; a name without "Vyh_" gives the path.
        QVERIFY(Zapis_Chybu(dir.path(), u"Analyza"_qs, u"C:\\data"_qs, u"x"_qs, nullptr).Ok());
        QCOMPARE(Obsah_Souboru(cesta), QByteArray("Chyba  v  procesu: Analyza\r\nCesta: C:\\data\r\nChyba: x\r\n"));

        // The user hears of the error even when the report cannot be written.
        QVERIFY(!Zapis_Chybu(dir.filePath(u"neni/neni"_qs), u"P"_qs, {}, {}, &dialogy).Ok());
        QCOMPARE(dialogy.Okna, (QStringList{okno, okno}));
    }

    void Prehled() {
        QTemporaryDir dir;
        const QString cesta = dir.filePath(u"_Prehled.txt"_qs);
        const QDateTime kdy(QDate(2024, 3, 5), QTime(7, 8, 9));
        const QByteArray hlava =
            "\r\n     Vazba souboru SEZNAM na soubor TIPU\r\nSeznam\t\t\tTipy\t\t\tUlo\236eno dne\r\n" +
            QByteArray(108, '-') + "\r\n";
        // Short tip names take a third tab to reach the date column of the head.
        const QByteArray prvni = "rodina.szn\t\ta.tip\t\t\t05.03.2024 - 07:08:09\r\n";
        const QByteArray druhy = "p\370\341tel\351.szn\t\tsportka_1.tip\t\t05.03.2024 - 07:08:09\r\n";

        QVERIFY(Pridej_Do_Prehledu(dir.path(), u"a.tip"_qs, u"rodina.szn"_qs, kdy).Ok());
        QVERIFY(Pridej_Do_Prehledu(dir.path(), u"sportka_1.tip"_qs, u"přátelé.szn"_qs, kdy).Ok());
        QCOMPARE(Obsah_Souboru(cesta), hlava + prvni + druhy);
        // A deleted overview starts again with its head.
        QVERIFY(QFile::remove(cesta));
        QVERIFY(Pridej_Do_Prehledu(dir.path(), u"sportka_1.tip"_qs, u"přátelé.szn"_qs, kdy).Ok());
        QCOMPARE(Obsah_Souboru(cesta), hlava + druhy);
    }
};

QTEST_APPLESS_MAIN(Test_Chyby_A_Prehled)
#include "Test_Chyby_A_Prehled.moc"
