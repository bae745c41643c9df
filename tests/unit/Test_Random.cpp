// The generator's uniform numbers over a source that tests control, the built-in source, Shuffle,
// RandomInt and the password cipher.
#include "core/Random.h"

#include <QTest>
#include <algorithm>
#include <limits>
#include <vector>

namespace {

// A source that gives preset values in a ring.
class Zdroj_Pokusny final : public Zdroj_Nahody {
public:
    std::vector<float> Hodnoty{0.25f};
    std::size_t Dalsi = 0;
    float Rnd() override { return Hodnoty[Dalsi++ % Hodnoty.size()]; }
    float Rnd(float) override { return Rnd(); }
    void Randomize() override {}
    void Randomize(double) override {}
};

std::vector<double> Tabulka(const Random& r) {
    return std::vector<double>(std::begin(r.Tabulka), std::end(r.Tabulka));
}

} // namespace

class Test_Random final : public QObject {
    Q_OBJECT

private slots:
    void Prvni_kroky() {
        Zdroj_Pokusny zdroj;
        Random r(zdroj);
        // The first step stirs cell 9 with cell 6; the indexes wrap at 17.
        QCOMPARE(r(), 1.0 / 6 + 1.0 / 9 + 0.25);
        for (int k = 0; k < 8; ++k)
            r();
        QCOMPARE(std::pair(r.Index_I, r.Index_J), (std::pair<int16_t, int16_t>(0, 14)));

        // Even a source that breaks its range must not push the table out of [0, 1).
        zdroj.Hodnoty = {0.99999994f, -1e-20f, std::numeric_limits<float>::quiet_NaN(), 7.5f, 0.0f};
        for (int k = 0; k < 1000; ++k) {
            const double x = r();
            QVERIFY2(x >= 0.0 && x < 1.0, qPrintable(QString::number(x)));
        }
    }

    void Shuffle() {
        // Two built-in sources in different states: a negative seed restarts both, a positive one does not.
        Zdroj_Casovy a, b;
        b.Rnd();
        Random ra(a), rb(b);
        ra.Shuffle(-123.456);
        rb.Shuffle(-123.456);
        QCOMPARE(Tabulka(ra), Tabulka(rb));
        QCOMPARE(ra(), rb());
        ra.Shuffle(-123.457);
        rb.Shuffle(-123.456);
        QVERIFY(Tabulka(ra) != Tabulka(rb));
        b.Rnd();
        ra.Shuffle(5);
        rb.Shuffle(5);
        QVERIFY(Tabulka(ra) != Tabulka(rb));
    }

    void Zabudovany_zdroj() {
        Zdroj_Casovy z;
        // The 24-bit congruence from the state that the bits of -1 give.
        QCOMPARE(z.Rnd(-1.0f), 3758214.0f / 16777216.0f);
        QCOMPARE(z.Rnd(), 601393.0f / 16777216.0f);
        QCOMPARE(z.Rnd(0.0f), 601393.0f / 16777216.0f); // 0 repeats the last value
        QCOMPARE(z.Rnd(3.0f), 1448752.0f / 16777216.0f);
    }

    void RandomInt_meze() {
        Random r;
        r.Zamichej_Podle_Casu();
        r.Dolni_Mez = 1;
        r.Horni_Mez = 49;
        int32_t nejmensi = 99, nejvetsi = -99;
        for (int k = 0; k < 100000; ++k) {
            const int32_t n = r.RandomInt();
            nejmensi = std::min(nejmensi, n);
            nejvetsi = std::max(nejvetsi, n);
        }
        QCOMPARE(std::pair(nejmensi, nejvetsi), std::pair(1, 49));
    }

    void Sifra() {
        Random r;
        QString text = u"ab-c"_qs;
        r.Cipher(text, 1, 2, 3);
        QCOMPARE(text, u"qk-y"_qs);
        r.Cipher(text, 1, 2, 3);
        QCOMPARE(text, u"ab-c"_qs);

        // Characters outside the alphabet stay as they are.
        const QString puvodni = u"Heslo 12: [ř]^_`{~} Zz?"_qs;
        QString s = puvodni;
        r.Cipher(s, Random::Klic_Hesla_A, Random::Klic_Hesla_B, Random::Klic_Hesla_C);
        for (qsizetype i : {5, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19})
            QCOMPARE(s[i], puvodni[i]);
        QVERIFY(s != puvodni);
        r.Cipher(s, Random::Klic_Hesla_A, Random::Klic_Hesla_B, Random::Klic_Hesla_C);
        QCOMPARE(s, puvodni);

        // Extreme keys: the state stays in range and the text comes back.
        const int32_t min = std::numeric_limits<int32_t>::min(), max = std::numeric_limits<int32_t>::max();
        const QString abeceda = u"0123456789?@ABCXYZabcxyz"_qs;
        QString t = abeceda;
        r.Cipher(t, min, max, min);
        QVERIFY(r.Sifra_Stav >= 0 && r.Sifra_Stav < 32768);
        r.Cipher(t, min, max, min);
        QCOMPARE(t, abeceda);
    }
};

QTEST_APPLESS_MAIN(Test_Random)
#include "Test_Random.moc"
