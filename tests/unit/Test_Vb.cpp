// The Basic helpers: Val, Str, rounding and integer division, text order of numbers, money, code
// page 1250 and the format masks.
#include "core/Vb.h"

#include <QTest>
#include <limits>

class Test_Vb final : public QObject {
    Q_OBJECT

private slots:
    void Val_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("cislo");
        QTest::newRow("bez cisla") << u"abc"_qs << 0.0;
        QTest::newRow("mezery uvnitr") << u"  12 34abc"_qs << 1234.0;
        QTest::newRow("tab a LF") << u"\t1\n5"_qs << 15.0;
        QTest::newRow("CR konci cislo") << u"12\r\n6"_qs << 12.0;
        QTest::newRow("znamenko a mezera") << u"- 5"_qs << -5.0;
        QTest::newRow("druha tecka konci") << u"1.2.3"_qs << 1.2;
        QTest::newRow("exponent") << u"-3.5e2x"_qs << -350.0;
        QTest::newRow("exponent D") << u"1D2"_qs << 100.0;
        QTest::newRow("carka neni tecka") << u"2,5"_qs << 2.0;
        QTest::newRow("pretekle") << u"1e999"_qs << 0.0;
        QTest::newRow("mnoho nul na zacatku") << QString(1000, u'0') + u"5"_qs << 5.0;
    }
    void Val() {
        QFETCH(QString, text);
        QFETCH(double, cislo);
        QCOMPARE(Vb::Val(text), cislo);
        QCOMPARE(Vb::Val(Vb::Do_1250(text)), cislo);
    }

    void Str_a_Text_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<QString>("str");
        QTest::newRow("cele") << 5.0 << u" 5"_qs;
        QTest::newRow("zaporne") << -5.0 << u"-5"_qs;
        QTest::newRow("zaporny zlomek") << -0.25 << u"-.25"_qs;
        QTest::newRow("15 cislic") << 0.1 + 0.2 << u" .3"_qs;
        QTest::newRow("velke") << 123456789012345.0 << u" 123456789012345"_qs;
        QTest::newRow("exponent") << 1e15 << u" 1E+15"_qs;
        QTest::newRow("maly exponent") << 1e-5 << u" 1E-05"_qs;
        QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << u" 0"_qs;
    }
    void Str_a_Text() {
        QFETCH(double, x);
        QFETCH(QString, str);
        QCOMPARE(Vb::Str(x), str);
        QCOMPARE(Vb::Text(x), str.startsWith(u' ') ? str.mid(1) : str);
    }

    void Cela_cisla() {
        QCOMPARE(Vb::Str(int64_t(7)), u" 7"_qs);
        QCOMPARE(Vb::Str(std::numeric_limits<int64_t>::min()), u"-9223372036854775808"_qs);
        QCOMPARE(Vb::Int(-1.5), -2.0);
        // Half to even for whole numbers.
        QCOMPARE(Vb::Zaokrouhli(2.5), int64_t(2));
        QCOMPARE(Vb::Zaokrouhli(-2.5), int64_t(-2));
        QCOMPARE(Vb::Zaokrouhli(std::numeric_limits<double>::quiet_NaN()), int64_t(0));
        // Operands are rounded before \ and mod, and the quotient is cut towards zero.
        QCOMPARE(Vb::Div(-7, 2), int64_t(-3));
        QCOMPARE(Vb::Div(7.5, 2), int64_t(4));
        QCOMPARE(Vb::Div(6.5, 2), int64_t(3));
        QCOMPARE(Vb::Div(5, 0.4), int64_t(0));
        QCOMPARE(Vb::Div(-1e300, -1), int64_t(9'200'000'000'000'000'000));
        QCOMPARE(Vb::Mod(-7, 3), int64_t(-1));
        QCOMPARE(Vb::Mod(5.5, 3), int64_t(0));
        QCOMPARE(Vb::Mod(5, 0), int64_t(0));
        // As text "9" comes after "10".
        QVERIFY(Vb::Porovnej_Jako_Text(9, 10) == std::strong_ordering::greater);
        QVERIFY(Vb::Porovnej_Jako_Text(u"100", u"99") == std::strong_ordering::less);
    }

    void Mena_a_kodova_stranka() {
        QCOMPARE(Vb::Mena::Z_Korun(12.5).Text(), u"12.5"_qs);
        QCOMPARE(Vb::Mena::Z_Hodnoty(1).Text(), u"0.0001"_qs);
        QCOMPARE(Vb::Mena::Z_Korun(0.12345).Hodnota, int64_t(1234)); // half to even
        QCOMPARE(Vb::Mena::Z_Hodnoty(std::numeric_limits<int64_t>::min()).Text(), u"-922337203685477.5808"_qs);
        QCOMPARE((Vb::Mena::Z_Korun(20) + Vb::Mena::Z_Korun(2.5) - Vb::Mena::Z_Korun(0.75)).Korun(), 21.75);

        QByteArray vse;
        for (int b = 0; b < 256; ++b)
            vse += char(b);
        QCOMPARE(Vb::Do_1250(Vb::Z_1250(vse)), vse);
        const QString cesky = u"Příliš žluťoučký kůň"_qs;
        QCOMPARE(Vb::Do_1250(cesky), QByteArray("P\xf8\xedli\x9a \x9elu\x9dou\xe8k\xfd k\xf9\xf2"));
        QCOMPARE(Vb::Do_1250(u"a\u65e5b").size(), 3); // a character beyond the page still takes one byte
    }

    void Format_cisla_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<QString>("maska");
        QTest::addColumn<QString>("text");
        QTest::newRow("skupiny") << 1234567.0 << u"### ### ###"_qs << u"1 234 567"_qs;
        QTest::newRow("mezera vlevo zustava") << 5.0 << u"### ###"_qs << u" 5"_qs;
        QTest::newRow("presah pred prvni pozici") << 1234567.0 << u"### ###"_qs << u"1234 567"_qs;
        QTest::newRow("nula s desetinnou") << 0.0 << u"##0.0"_qs << u"0,0"_qs;
        QTest::newRow("nula bez nul v masce") << 0.0 << u"### ###"_qs << u" "_qs;
        QTest::newRow("dekadicky text") << 1.005 << u"0.00"_qs << u"1,01"_qs;
        QTest::newRow("pul od nuly") << 2.5 << u"0"_qs << u"3"_qs;
        QTest::newRow("prenos") << 99.95 << u"##0.0"_qs << u"100,0"_qs;
        QTest::newRow("zaporne zaokrouhleni") << -0.125 << u"0.00"_qs << u"-0,13"_qs;
        QTest::newRow("zaporne za mezerou") << -5.0 << u"### ###"_qs << u" -5"_qs;
        QTest::newRow("zaporna nula bez znamenka") << -0.04 << u"0.0"_qs << u"0,0"_qs;
        QTest::newRow("nuly a okraje") << 12.0 << u" 000 000     "_qs << u" 000 012     "_qs;
        QTest::newRow("penize") << 123456789.456 << u"### ### ##0.00"_qs << u"123 456 789,46"_qs;
        QTest::newRow("mrizka za teckou") << 0.5 << u"#.##"_qs << u",5"_qs;
        QTest::newRow("bez celych pozic") << 5.25 << u".00"_qs << u"5,25"_qs;
        QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << u"0.00"_qs << u"0,00"_qs;
    }
    void Format_cisla() {
        QFETCH(double, x);
        QFETCH(QString, maska);
        QFETCH(QString, text);
        QCOMPARE(Vb::Format(x, maska), text);
    }

    void Format_data() {
        QCOMPARE(Vb::Format(QDate(2024, 3, 7), u"dd.mm.yy"), u"07.03.24"_qs);
        QCOMPARE(Vb::Format(QDate(2024, 3, 7), u"d.m.yyyy"), u"7.3.2024"_qs);
        QCOMPARE(Vb::Format(QDate(), u"dd.mm.yy"), QString());
    }
};

QTEST_APPLESS_MAIN(Test_Vb)
#include "Test_Vb.moc"
