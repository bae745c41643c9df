#include "app/Vb.h"

#include <QTest>

#include <cmath>
#include <limits>

class Test_Vb final : public QObject {
    Q_OBJECT

private slots:
    void Val_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("cislo");
        QTest::newRow("prazdny") << u""_qs << 0.0;
        QTest::newRow("bez cisla") << u"abc"_qs << 0.0;
        QTest::newRow("mezery uvnitr") << u"  12 34abc"_qs << 1234.0;
        QTest::newRow("tab a LF") << u"\t1\n5"_qs << 15.0;
        QTest::newRow("CR konci cislo") << u"12\r\n6"_qs << 12.0;
        QTest::newRow("znamenko a mezera") << u"- 5"_qs << -5.0;
        QTest::newRow("zlomek bez nuly") << u".5"_qs << 0.5;
        QTest::newRow("druha tecka konci") << u"1.2.3"_qs << 1.2;
        QTest::newRow("exponent") << u"-3.5e2x"_qs << -350.0;
        QTest::newRow("exponent D") << u"1D2"_qs << 100.0;
        QTest::newRow("exponent bez cislic") << u"1e+"_qs << 1.0;
        QTest::newRow("ciselny text s carkou") << u"2,5"_qs << 2.0;
        QTest::newRow("pretekle") << u"1e999"_qs << 0.0;
        QTest::newRow("mnoho nul na zacatku") << QString(1000, u'0') + u"5"_qs << 5.0;
    }
    void Val() {
        QFETCH(QString, text);
        QFETCH(double, cislo);
        QCOMPARE(Vb::Val(text), cislo);
    }

    void Val_z_bajtu() {
        QCOMPARE(Vb::Val(QByteArray("7\x9a")), 7.0);
        QCOMPARE(Vb::Val(QByteArray("\0 3", 3)), 0.0);
        QCOMPARE(Vb::Val(QByteArray(1 << 12, '9')), 0.0); // far beyond a double
    }

    void Str_a_Text_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<QString>("str");
        QTest::newRow("cele") << 5.0 << u" 5"_qs;
        QTest::newRow("zaporne") << -5.0 << u"-5"_qs;
        QTest::newRow("nula") << 0.0 << u" 0"_qs;
        QTest::newRow("zlomek") << 0.5 << u" .5"_qs;
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

    void Str_celych() {
        QCOMPARE(Vb::Str(int64_t(7)), u" 7"_qs);
        QCOMPARE(Vb::Str(int64_t(-7)), u"-7"_qs);
        QCOMPARE(Vb::Str(std::numeric_limits<int64_t>::min()), u"-9223372036854775808"_qs);
    }

    void Zaokrouhleni_a_deleni() {
        QCOMPARE(Vb::Int(-1.5), -2.0);
        // Half to even for whole numbers.
        QCOMPARE(Vb::Zaokrouhli(2.5), int64_t(2));
        QCOMPARE(Vb::Zaokrouhli(3.5), int64_t(4));
        QCOMPARE(Vb::Zaokrouhli(-2.5), int64_t(-2));
        QCOMPARE(Vb::Zaokrouhli(std::numeric_limits<double>::quiet_NaN()), int64_t(0));
        QVERIFY(Vb::Zaokrouhli(1e300) > 0);
        // Operands are rounded before \ and mod, and the quotient is cut towards zero.
        QCOMPARE(Vb::Div(7, 2), int64_t(3));
        QCOMPARE(Vb::Div(-7, 2), int64_t(-3));
        QCOMPARE(Vb::Div(7.5, 2), int64_t(4));
        QCOMPARE(Vb::Div(6.5, 2), int64_t(3));
        QCOMPARE(Vb::Div(5, 0.4), int64_t(0));
        QCOMPARE(Vb::Div(-1e300, -1), int64_t(9'200'000'000'000'000'000));
        QCOMPARE(Vb::Mod(-7, 3), int64_t(-1));
        QCOMPARE(Vb::Mod(7, -3), int64_t(1));
        QCOMPARE(Vb::Mod(5.5, 3), int64_t(0));
        QCOMPARE(Vb::Mod(5, 0), int64_t(0));
    }

    void Porovnani_jako_text() {
        QVERIFY(Vb::Porovnej_Jako_Text(9, 10) == std::strong_ordering::greater);
        QVERIFY(Vb::Porovnej_Jako_Text(10, 9) == std::strong_ordering::less);
        QVERIFY(Vb::Porovnej_Jako_Text(u"100", u"99") == std::strong_ordering::less);
    }

    void Mena() {
        QCOMPARE(Vb::Mena::Z_Korun(12.5).Text(), u"12.5"_qs);
        QCOMPARE(Vb::Mena::Z_Korun(-3).Text(), u"-3"_qs);
        QCOMPARE(Vb::Mena::Z_Hodnoty(1).Text(), u"0.0001"_qs);
        QCOMPARE(Vb::Mena::Z_Korun(0.12345).Hodnota, int64_t(1234)); // half to even
        QCOMPARE(Vb::Mena::Z_Hodnoty(std::numeric_limits<int64_t>::min()).Text(), u"-922337203685477.5808"_qs);
        const Vb::Mena soucet = Vb::Mena::Z_Korun(20) + Vb::Mena::Z_Korun(2.5) - Vb::Mena::Z_Korun(0.75);
        QCOMPARE(soucet.Korun(), 21.75);
    }

    void Kodova_stranka() {
        QByteArray vse;
        for (int b = 0; b < 256; ++b)
            vse += char(b);
        QCOMPARE(Vb::Do_1250(Vb::Z_1250(vse)), vse);
        const QString cesky = u"Příliš žluťoučký kůň"_qs;
        const QByteArray bajty = Vb::Do_1250(cesky);
        QCOMPARE(bajty, QByteArray("P\xf8\xedli\x9a \x9elu\x9dou\xe8k\xfd k\xf9\xf2"));
        QCOMPARE(Vb::Z_1250(bajty), cesky);
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
        QTest::newRow("pul nahoru") << 0.125 << u"0.00"_qs << u"0,13"_qs;
        QTest::newRow("dekadicky text") << 1.005 << u"0.00"_qs << u"1,01"_qs;
        QTest::newRow("ne k sude") << 2.5 << u"0"_qs << u"3"_qs;
        QTest::newRow("prenos") << 99.95 << u"##0.0"_qs << u"100,0"_qs;
        QTest::newRow("zaporne zaokrouhleni") << -0.125 << u"0.00"_qs << u"-0,13"_qs;
        QTest::newRow("zaporne za mezerou") << -5.0 << u"### ###"_qs << u" -5"_qs;
        QTest::newRow("zaporne se skupinou") << -1234.0 << u"### ###"_qs << u"-1 234"_qs;
        QTest::newRow("zaporna nula bez znamenka") << -0.04 << u"0.0"_qs << u"0,0"_qs;
        QTest::newRow("nuly a okraje") << 12.0 << u" 000 000     "_qs << u" 000 012     "_qs;
        QTest::newRow("dve nuly") << 7.0 << u"##00        "_qs << u"07        "_qs;
        QTest::newRow("penize") << 123456789.456 << u"### ### ##0.00"_qs << u"123 456 789,46"_qs;
        QTest::newRow("penize male") << 0.04 << u"### ### ##0.00"_qs << u"  0,04"_qs;
        QTest::newRow("tisice") << 1234.56 << u"# ##0.0"_qs << u"1 234,6"_qs;
        QTest::newRow("ctyri skupiny") << 123456789012.0 << u"### ### ### ### "_qs << u"123 456 789 012 "_qs;
        QTest::newRow("obrovske") << 1e20 << u"### ###"_qs << u"100000000000000000 000"_qs;
        QTest::newRow("mrizka za teckou") << 0.5 << u"#.##"_qs << u",5"_qs;
        QTest::newRow("jen tecka") << 5.0 << u"#.##"_qs << u"5,"_qs;
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
        QCOMPARE(Vb::Format(QDate(2000, 12, 31), u"DD/MM/YY"), u"31/12/00"_qs);
        QCOMPARE(Vb::Format(QDate(), u"dd.mm.yy"), QString());
    }
};

QTEST_APPLESS_MAIN(Test_Vb)
#include "Test_Vb.moc"
