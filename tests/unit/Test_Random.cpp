#include "app/Random.h"

#include <QTest>

#include <algorithm>
#include <limits>
#include <vector>

namespace {

// A source that gives preset values in a ring and notes what was asked of it.
class Zdroj_Pokusny final : public Zdroj_Nahody {
public:
    std::vector<float> Hodnoty{0.25f};
    std::size_t Dalsi = 0;
    int Volani_Rnd = 0;
    std::vector<float> Argumenty_Rnd;
    std::vector<double> Argumenty_Randomize;

    float Rnd() override {
        ++Volani_Rnd;
        const float v = Hodnoty[Dalsi % Hodnoty.size()];
        ++Dalsi;
        return v;
    }
    float Rnd(float x) override {
        Argumenty_Rnd.push_back(x);
        return 0.75f;
    }
    void Randomize() override {}
    void Randomize(double x) override { Argumenty_Randomize.push_back(x); }
};

std::vector<double> Tabulka(const Random& r) {
    return std::vector<double>(std::begin(r.Tabulka), std::end(r.Tabulka));
}

} // namespace

class Test_Random final : public QObject {
    Q_OBJECT

private slots:
    void Pocatecni_stav_a_jeden_krok() {
        Zdroj_Pokusny zdroj;
        Random r(zdroj);
        QCOMPARE(r.Tabulka[0], 0.0);
        QCOMPARE(r.Tabulka[16], 1.0 / 16);
        // The first step stirs cell 9 with cell 6.
        QCOMPARE(r(), 1.0 / 6 + 1.0 / 9 + 0.25);
        QCOMPARE(r.Index_I, int16_t(9));
        QCOMPARE(r.Index_J, int16_t(6));
        // The indexes wrap at 17: after 8 more steps I is back at 0.
        for (int k = 0; k < 8; ++k)
            r();
        QCOMPARE(r.Index_I, int16_t(0));
        QCOMPARE(r.Index_J, int16_t(14));
    }

    void Hodnoty_zustavaji_v_intervalu() {
        // Even a source that breaks its range must not push the table out of [0, 1).
        Zdroj_Pokusny zdroj;
        zdroj.Hodnoty = {0.99999994f, -1e-20f, std::numeric_limits<float>::quiet_NaN(), 7.5f, 0.0f};
        Random r(zdroj);
        for (int k = 0; k < 1000; ++k) {
            const double x = r();
            QVERIFY2(x >= 0.0 && x < 1.0, qPrintable(QString::number(x)));
        }
    }

    void Shuffle() {
        // Mixes the seed's text, then Rnd(sign * cell), Randomize with its value, and 46 more steps.
        Zdroj_Pokusny zdroj;
        Random r(zdroj);
        r.Shuffle(-1.5);
        r.Shuffle(2.0);
        r.Shuffle(0.0);
        QCOMPARE(zdroj.Argumenty_Rnd.size(), std::size_t(3));
        QVERIFY(zdroj.Argumenty_Rnd[0] < 0 && zdroj.Argumenty_Rnd[1] > 0 && zdroj.Argumenty_Rnd[2] == 0);
        QCOMPARE(zdroj.Argumenty_Randomize, (std::vector<double>{0.75, 0.75, 0.75}));
        QCOMPARE(zdroj.Volani_Rnd, 3 * 46);

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

        Zdroj_Casovy p, q;
        p.Randomize(0.3);
        q.Randomize(0.3);
        QCOMPARE(p.Rnd(), q.Rnd());
        p.Randomize(0.7);
        q.Randomize(1234.5);
        QVERIFY(p.Rnd() != q.Rnd());
    }

    void RandomInt_meze() {
        Random r;
        QCOMPARE(&r.Zdroj(), static_cast<Zdroj_Nahody*>(&Zdroj_Casovy::Sdileny()));
        r.Zamichej_Podle_Casu();
        r.Dolni_Mez = 1;
        r.Horni_Mez = 49;
        int32_t nejmensi = 99, nejvetsi = -99;
        for (int k = 0; k < 100000; ++k) {
            nejmensi = std::min(nejmensi, r.RandomInt());
            nejvetsi = std::max(nejvetsi, r.RandomInt());
        }
        QCOMPARE(std::pair(nejmensi, nejvetsi), std::pair(1, 49));

        // The largest value of the source still stays under the upper bound.
        Zdroj_Pokusny vysoko;
        vysoko.Hodnoty = {0.99999994f};
        Random rv(vysoko);
        rv.Dolni_Mez = 1;
        rv.Horni_Mez = 49;
        for (int k = 0; k < 200; ++k)
            QVERIFY(rv.RandomInt() <= 49);
    }

    void Sifra() {
        Random r;
        QString text = u"ab-c"_qs;
        r.Cipher(text, 1, 2, 3);
        QCOMPARE(text, u"qk-y"_qs);
        r.Cipher(text, 1, 2, 3);
        QCOMPARE(text, u"ab-c"_qs);

        // Characters outside the alphabet stay and do not move the state.
        const QString puvodni = u"Heslo 12: [ř]^_`{~} Zz?"_qs;
        QString s = puvodni;
        r.Cipher(s, Random::Klic_Hesla_A, Random::Klic_Hesla_B, Random::Klic_Hesla_C);
        QVERIFY(s != puvodni);
        for (qsizetype i : {5, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19})
            QCOMPARE(s[i], puvodni[i]);
        r.Cipher(s, Random::Klic_Hesla_A);
        QCOMPARE(s, puvodni);

        QString prazdny;
        r.Cipher(prazdny, 77, 10000, 20000);
        QVERIFY(prazdny.isEmpty());
        QCOMPARE(r.Sifra_Stav, 77);
        QCOMPARE(r.Sifra_Nasobitel, 40001 % 32768);
        QCOMPARE(r.Sifra_Prirustek, 40001 % 32768);

        // Keys left out take odd defaults that keep the full period.
        Random d;
        d.Cipher(prazdny, 5);
        QCOMPARE(d.Sifra_Nasobitel % 4, 1);
        QCOMPARE(d.Sifra_Prirustek % 2, 1);

        // Extreme keys: the state stays in range and the text comes back.
        const int32_t min = std::numeric_limits<int32_t>::min(), max = std::numeric_limits<int32_t>::max();
        const QString abeceda = u"0123456789?@ABCXYZabcxyz"_qs;
        QString t = abeceda;
        r.Cipher(t, min, max, min);
        QVERIFY(r.Sifra_Stav >= 0 && r.Sifra_Stav < 32768);
        QVERIFY(r.Sifra_Nasobitel >= 0 && r.Sifra_Prirustek >= 0);
        r.Cipher(t, min, max, min);
        QCOMPARE(t, abeceda);
    }
};

QTEST_APPLESS_MAIN(Test_Random)
#include "Test_Random.moc"
