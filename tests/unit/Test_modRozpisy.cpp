// Wheels: every built-in table keeps the catalogue's shape, the expansion writes the pattern over
// the user's numbers, a .rzp file is read with its checks and messages, the guarantees and chances
// agree with a count over every draw, and tombi-cli prints and expands wheels.
#include "Bajty.h"
#include "Spust_Cli.h"
#include "data/Soubor_Tipu.h"
#include "generator/Zaruky_Rozpisu.h"
#include "generator/modRozpisy.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <bit>
#include <memory>
#include <set>

using namespace modRozpisy;

namespace {

Seznam_Cisel Seznam(std::initializer_list<int> cisla) {
    Seznam_Cisel s{};
    int i = 1;
    for (int c : cisla)
        s[i++] = uint8_t(c);
    return s;
}

// Over every draw of 6 from 49: the share in which some tip holds 3 (4) of the drawn numbers, and
// for each k whether any m of the wheel's numbers put k in one tip.
std::pair<double, double> Sance_Hrubou_Silou(const std::vector<uint64_t>& tipy) {
    int64_t tri = 0, ctyri = 0, vse = 0;
    for (int a = 1; a <= 44; ++a)
        for (int b = a + 1; b <= 45; ++b)
            for (int c = b + 1; c <= 46; ++c)
                for (int d = c + 1; d <= 47; ++d)
                    for (int e = d + 1; e <= 48; ++e)
                        for (int f = e + 1; f <= 49; ++f) {
                            const uint64_t tah =
                                (1ULL << a) | (1ULL << b) | (1ULL << c) | (1ULL << d) | (1ULL << e) | (1ULL << f);
                            int nejvic = 0;
                            for (uint64_t t : tipy)
                                nejvic = std::max(nejvic, std::popcount(t & tah));
                            tri += nejvic >= 3;
                            ctyri += nejvic >= 4;
                            ++vse;
                        }
    return {double(tri) / double(vse), double(ctyri) / double(vse)};
}

} // namespace

class Test_modRozpisy final : public QObject {
    Q_OBJECT

private slots:
    void Tabulky_Drzi_Tvar_Katalogu() {
        int radku = 0;
        for (int w = 2; w <= Posledni_Rozpis; ++w) {
            const Tabulka_Rozpisu* t = Tabulka(w);
            QVERIFY2(t != nullptr, qPrintable(QString::number(w)));
            // The catalogue line ends in the count of columns, and says the tutovky and numbers.
            const QString radek = Katalog().at(w);
            QVERIFY(radek.endsWith(u" %1 sloupců"_qs.arg(t->Sloupcu)));
            QCOMPARE(int(t->Radky.size()), t->Sloupcu);
            QCOMPARE(t->Pocet_Tipu, (w == 8 || w == 9) ? 27 : t->Sloupcu);
            std::set<Radek_Rozpisu> ruzne;
            uint64_t pozice = 0;
            for (std::size_t r = 0; r < t->Radky.size(); ++r) {
                const Radek_Rozpisu& ra = t->Radky[r];
                if (w == 23 && r == 41) {
                    QCOMPARE(ra, Radek_Rozpisu{});
                    continue;
                }
                ++radku;
                QVERIFY(ruzne.insert(ra).second);
                for (int i = 0; i < 6; ++i) {
                    const uint8_t b = ra[std::size_t(i)];
                    if (i < t->Tutovek) {
                        QCOMPARE(int(b), T1 + i); // tutovky first, in order
                        continue;
                    }
                    QVERIFY(b >= 1 && b <= t->Cisel);
                    QVERIFY(i == t->Tutovek || b > ra[std::size_t(i - 1)]); // rising, so distinct
                    pozice |= 1ULL << b;
                }
            }
            QCOMPARE(std::popcount(pozice), t->Cisel); // every position used
        }
        QCOMPARE(radku, 851);
    }

    void Rozvinuti() {
        auto z = std::make_unique<Zaznam_Tipu>();
        const Tip bez_tutovek{};
        const auto rozmery = Rozpis(10, Seznam({5, 10, 15, 20, 25, 30, 35, 40, 45, 49}), bez_tutovek, *z);
        QVERIFY(rozmery && rozmery->Sloupcu == 5 && rozmery->Cisel == 10 && rozmery->Tutovek == 0);
        QCOMPARE(z->Tikety[1].Cisla[1], (Tip{{5, 10, 15, 20, 40, 45}}));
        QVERIFY(!Rozpis(25, {}, bez_tutovek, *z) && !Rozpis(1, {}, bez_tutovek, *z));

        Seznam_Cisel cisla{};
        for (int i = 1; i <= 36; ++i)
            cisla[i] = uint8_t(i + 10);
        for (int w : {2, 8, 23}) {
            *z = {};
            const Tip tutovky{{7, 8, 9, 0, 0, 0}};
            const auto r = Rozpis(w, cisla, tutovky, *z);
            QVERIFY(r);
            for (int i = 0; i < r->Sloupcu; ++i) {
                const Tip& tip = z->Tikety[i / 10 + 1].Cisla[i % 10 + 1];
                if (w == 23 && i == 41) {
                    QCOMPARE(tip, Tip{}); // the kept hole: ticket 5, column 2
                    continue;
                }
                for (int p = 1; p <= r->Tutovek; ++p)
                    QCOMPARE(int(tip[p]), 6 + p);
                QVERIFY(Maska_Cisteho_Tipu(tip) != 0);
            }
            QCOMPARE(int(z->Pocet_Tipu), w == 8 ? 27 : r->Sloupcu);
        }
        Smaz_Sloupce(z->Tikety[1], 4);
        QVERIFY(z->Tikety[1].Cisla[3] != Tip{} && z->Tikety[1].Cisla[4] == Tip{} && z->Tikety[1].Cisla[10] == Tip{});
    }

    void Soubor_Rzp() {
        QCOMPARE(Text_Rozpisu("REMIX 1 2\r\n  0 7 2  \nkonec REM\nrem 1,2;3\n"), QByteArray("0 7 2\r\nrem 1,2;3\r\n"));
        const auto nacti = [](const QByteArray& text) {
            Externi_Rozpis_Stav r;
            const Vysledek v = Nacti_Rozpis(Text_Rozpisu(text), r);
            return std::pair(v.Zprava, r);
        };
        for (const auto& [text, zprava] : {
                 std::pair{QByteArray("4 7 2"), u"Chyba v rozpisu, v počtu TUTOVEK !"_qs},
                 std::pair{QByteArray("0 50 2"), u"Chyba v rozpisu, v počtu ČÍSEL !"_qs},
                 std::pair{QByteArray("0"), u"Chyba v rozpisu, v počtu ČÍSEL !"_qs},
                 std::pair{QByteArray("0 7 2 1 2 3 4 5 300"), u"Chyba v rozpisu, číslo v rozpisu mimo rozsah !"_qs},
                 std::pair{QByteArray("0 7 2 1 2 3 4 5 6"),
                           u"Chyba v rozpisu, rozdíl mezi počtem čísel a největším číslem !"_qs},
                 std::pair{QByteArray("0 7 99999999999999999999"), u"Chyba v rozpisu, v počtu SLOUPCŮ !"_qs},
             })
            QCOMPARE(nacti(text).first, zprava);

        // One tutovka, two rows of five; a 0 keeps its place.
        auto [zprava, r] = nacti("1,6;2\n1 2 3 4 5\n0 3 4 5 6\n");
        QVERIFY(zprava.isEmpty());
        QCOMPARE(std::tuple(r.Tutovek, r.Cisel, r.Sloupcu), std::tuple(1, 6, 2));
        QCOMPARE(r.Data_Rozpisu, (std::vector<uint8_t>{1, 2, 3, 4, 5, 0, 3, 4, 5, 6}));
        auto z = std::make_unique<Zaznam_Tipu>();
        const Seznam_Cisel cisla = Seznam({11, 12, 13, 14, 15, 16, 40});
        QCOMPARE(Externi_Rozpis(r, cisla, 1, *z).Zprava, u"Chyba v proceduře Externí rozpis."_qs);
        r.Data_Rozpisu[5] = 2;
        QVERIFY(Externi_Rozpis(r, cisla, 1, *z).Ok());
        QCOMPARE(z->Tikety[1].Cisla[1], (Tip{{40, 11, 12, 13, 14, 15}}));
        QCOMPARE(z->Tikety[1].Cisla[2], (Tip{{40, 12, 13, 14, 15, 16}}));
        QCOMPARE(z->Tikety[1].Cisla[3], Tip{});
        QCOMPARE(int(z->Pocet_Tipu), 2);
        // The table keeps its positions: a second expansion writes the same tips.
        const Tiket prvni = z->Tikety[1];
        QVERIFY(Externi_Rozpis(r, cisla, 1, *z).Ok());
        QVERIFY(z->Tikety[1] == prvni);
        // Fewer tickets than the columns need drop the rest, and the count says so.
        r.Sloupcu = 12;
        r.Data_Rozpisu.resize(60, 1);
        QVERIFY(Externi_Rozpis(r, cisla, 1, *z).Ok());
        QCOMPARE(int(z->Pocet_Tipu), 10);
    }

    void Zaruky_Proti_Vsem_Tahum() {
        // Wheel 10 and a single tip: the chances over all 13,983,816 draws.
        const std::vector<Radek_Rozpisu> w10 = Tipy_Tabulky(*Tabulka(10));
        const std::vector<Radek_Rozpisu> jeden{{1, 2, 3, 4, 5, 6}};
        for (const auto& tipy : {w10, jeden}) {
            std::vector<uint64_t> masky;
            for (const auto& t : tipy) {
                uint64_t m = 0;
                for (uint8_t c : t)
                    m |= 1ULL << c;
                masky.push_back(m);
            }
            const auto [p3, p4] = Sance_Hrubou_Silou(masky);
            const Zaruky_Rozpisu z = Spocti_Zaruky(tipy);
            QVERIFY(qAbs(z.P3 - p3) < 1e-12 && qAbs(z.P4 - p4) < 1e-12);
        }
        const Zaruky_Rozpisu z = Spocti_Zaruky(jeden);
        QCOMPARE(z.P3, 260624.0 / 13983816.0);
        QVERIFY(qAbs(z.P3_Nahodne - z.P3) < 1e-15);
        QCOMPARE(z.Zaruka, (std::array<int, 7>{0, 0, 0, 3, 4, 5, 6}));
        // Two disjoint tips over 12 numbers: 3 of 5 drawn always put 3 in one tip, 4 of 7 would.
        const std::vector<Radek_Rozpisu> dva{{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}};
        QCOMPARE(Spocti_Zaruky(dva).Zaruka, (std::array<int, 7>{0, 0, 0, 5, 0, 0, 0}));
    }

    void Prikazy_Cli() {
        const Beh w10 = Spust({u"wheel"_qs, u"10"_qs});
        QCOMPARE(w10.Radky.first(), u"1 2 3 4 8 9"_qs);
        QVERIFY(QRegularExpression(u"^zaruka 3z\\d( \\dz\\d)* p3 0\\.\\d{6}$"_qs).match(w10.Radky.last()).hasMatch());
        QCOMPARE(Spust({u"wheel"_qs, u"2"_qs}).Radky.first(), u"T1 1 2 6 10 12"_qs);
        QCOMPARE(Spust({u"wheel"_qs, u"23"_qs}).Radky.value(41), u"-"_qs);
        QCOMPARE(Spust({u"wheel"_qs, u"1"_qs}).Kod, 2);

        QTemporaryDir dir;
        const QString tip = dir.filePath(u"w.tip"_qs);
        const Beh rozvinuti = Spust({u"wheel"_qs, u"2"_qs, u"--cisla"_qs, u"1 2 3 4 5 6 8 9 10 11 12 13 14 15 16"_qs,
                                     u"--tutovky"_qs, u"7"_qs, u"--out"_qs, tip});
        QCOMPARE(rozvinuti.Radky, QStringList{u"tikety 2 tipy 14"_qs});
        QCOMPARE(int(Cti_Zaznam_Tipu(Obsah_Souboru(tip)).Tikety[2].Cisla[4][1]), 7);
        QCOMPARE(Spust({u"wheel"_qs, u"2"_qs, u"--cisla"_qs, u"1 1 2"_qs, u"--out"_qs, tip}).Kod, 1);

        const QString rzp = dir.filePath(u"a.rzp"_qs);
        Zapis_Souboru(rzp, "REM dva tipy\r\n0 7 2\r\n1 2 3 4 5 6\r\n2 3 4 5 6 7\r\n");
        QCOMPARE(Spust({u"wheel"_qs, u"--rzp"_qs, rzp}).Radky,
                 (QStringList{u"tutovky 0 cisel 7 sloupcu 2"_qs, u"1 2 3 4 5 6"_qs, u"2 3 4 5 6 7"_qs}));
        QCOMPARE(Spust({u"wheel"_qs, u"--rzp"_qs, rzp, u"--cisla"_qs, u"9 8 7 6 5 4 3"_qs, u"--out"_qs, tip}).Radky,
                 QStringList{u"tikety 1 tipy 2"_qs});
        Zapis_Souboru(rzp, "0 7 2 1 2 3 4 5 6");
        const Beh chyba = Spust({u"wheel"_qs, u"--rzp"_qs, rzp});
        QCOMPARE(std::pair(chyba.Kod, chyba.Chyby),
                 std::pair(1, u"Chyba v rozpisu, rozdíl mezi počtem čísel a největším číslem !\n"_qs));
    }
};

QTEST_GUILESS_MAIN(Test_modRozpisy)
#include "Test_modRozpisy.moc"
