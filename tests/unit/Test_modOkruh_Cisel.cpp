// The tip tests of the generator on hand-made tips.
#include "generator/modOkruh_Cisel.h"

#include <QTest>

using namespace modOkruh_Cisel;

namespace {

Tip T(std::initializer_list<int> cisla) {
    Tip t;
    int i = 1;
    for (int x : cisla)
        t[i++] = uint8_t(x);
    return t;
}

} // namespace

class Test_modOkruh_Cisel final : public QObject {
    Q_OBJECT

private slots:
    void Rady_Sloupce_Krize() {
        // Grid columns are ORed: 3|1 = 3 and 2|2|1 = 3 pass the limit 3, 2|1 = 3 fails the limit 2.
        QVERIFY(!Omezeni_Rad_Slo_Kriz(T({3, 4, 1, 16, 31, 42}), 2, 3, 2, 3));
        QVERIFY(!Omezeni_Rad_Slo_Kriz(T({9, 1, 16, 2, 17, 43}), 1, 3, 2, 3));
        QVERIFY(Omezeni_Rad_Slo_Kriz(T({10, 20, 30, 1, 16, 42}), 3, 2, 2, 3));
        QVERIFY(!Omezeni_Rad_Slo_Kriz(T({10, 20, 30, 1, 16, 42}), 3, 3, 2, 3));
        // 4|2 = 6 fails the limit 5 that a maximum would pass.
        QVERIFY(Omezeni_Rad_Slo_Kriz(T({1, 6, 21, 36, 2, 27}), 0, 5, 4, 4));
        // Three in a row, the tutovky aside.
        QVERIFY(Omezeni_Rad_Slo_Kriz(T({1, 2, 3, 20, 30, 40}), 0, 3, 2, 3));
        QVERIFY(!Omezeni_Rad_Slo_Kriz(T({1, 2, 3, 20, 30, 40}), 0, 3, 3, 3));
        QVERIFY(!Omezeni_Rad_Slo_Kriz(T({1, 2, 3, 20, 30, 45}), 3, 3, 2, 3));
        // Four on a diagonal of each family.
        QVERIFY(Omezeni_Rad_Slo_Kriz(T({1, 7, 13, 19, 40, 45}), 0, 9, 4, 3));
        QVERIFY(!Omezeni_Rad_Slo_Kriz(T({1, 7, 13, 19, 40, 45}), 0, 9, 4, 4));
        QVERIFY(Omezeni_Rad_Slo_Kriz(T({5, 9, 13, 17, 40, 45}), 0, 9, 4, 3));
    }

    void Treti_Ceny() {
        Zaznam_Tipu s;
        const Tip kandidat = T({1, 2, 3, 30, 31, 32});
        // An empty store keeps the first tip whatever the limit.
        QVERIFY(!Omezeni_Treti_Ceny(s, kandidat, 1, -1));
        s.Tikety[1].Cisla[1] = T({1, 2, 3, 10, 11, 12});
        s.Tikety[1].Cisla[2] = T({1, 2, 4, 20, 21, 22});
        QVERIFY(Omezeni_Treti_Ceny(s, kandidat, 1, 0));
        QVERIFY(!Omezeni_Treti_Ceny(s, kandidat, 1, 1));
        // The walk goes on into later tickets and stops at the first empty column.
        for (int k = 3; k <= 10; ++k)
            s.Tikety[1].Cisla[k] = T({40, 41, 42, 43, 44, k});
        s.Tikety[2].Cisla[1] = T({30, 31, 32, 44, 45, 46});
        s.Tikety[2].Cisla[3] = T({1, 2, 3, 30, 31, 32});
        QVERIFY(!Omezeni_Treti_Ceny(s, kandidat, 1, 1));
        QVERIFY(Omezeni_Treti_Ceny(s, kandidat, 2, 1));
        QVERIFY(!Omezeni_Treti_Ceny(s, kandidat, 2, 2));
    }

    void Ceny_Nezamita() {
        std::vector<Tah> tahy(3);
        const uint8_t a[7] = {4, 9, 17, 23, 38, 41, 12};
        for (int i = 1; i <= 7; ++i) {
            tahy[1][i] = a[i - 1];
            tahy[2][i] = a[i - 1];
        }
        QVERIFY(!Omezeni_Ceny(T({4, 9, 17, 23, 38, 41}), tahy, 2, tahy, 2));
        QVERIFY(!Omezeni_Ceny(T({4, 9, 17, 23, 38, 12}), tahy, 2, tahy, 2));
        // A box reaching past the list reads no further than the list.
        QVERIFY(!Omezeni_Ceny(T({4, 9, 17, 23, 38, 12}), tahy, 500, tahy, -3));
    }

    void Suda_Licha() {
        QVERIFY(!Omezeni_Sud_Lich(T({2, 4, 6, 1, 3, 5}), 3, 3, 0));
        QVERIFY(!Omezeni_Sud_Lich(T({2, 4, 6, 8, 1, 3}), 3, 3, 1));
        QVERIFY(Omezeni_Sud_Lich(T({2, 4, 6, 8, 1, 3}), 3, 3, 0));
        QVERIFY(Omezeni_Sud_Lich(T({2, 4, 6, 8, 10, 1}), 3, 3, 1));
        QVERIFY(!Omezeni_Sud_Lich(T({2, 4, 6, 8, 10, 12}), 6, 0, 0));
    }

    void Dvojice_A_Trojice() {
        const Tip dve = T({11, 1, 30, 2, 10, 20}); // 1-2, 10-11
        QVERIFY(Omezeni_Dvojice(dve, 1));
        QVERIFY(!Omezeni_Dvojice(dve, 2));
        QVERIFY(!Omezeni_Dvojice(T({1, 3, 5, 7, 9, 49}), 0));
        QVERIFY(Omezeni_Dvojice(T({1, 3, 5, 7, 48, 49}), 0));
        const Tip tri = T({3, 12, 1, 10, 2, 11}); // 1-2-3, 10-11-12
        QVERIFY(Omezeni_Trojice(tri, 1));
        QVERIFY(!Omezeni_Trojice(tri, 2));
        QVERIFY(Omezeni_Trojice(T({4, 2, 3, 1, 20, 30}), 1)); // 1-2-3 and 2-3-4
        QVERIFY(!Omezeni_Trojice(T({1, 2, 4, 5, 20, 30}), 0));
    }

    void Suma_Bez_Mezi() {
        QVERIFY(Omezeni_Suma(T({10, 15, 20, 25, 26, 29}), 125, 175));
        QVERIFY(!Omezeni_Suma(T({10, 15, 20, 25, 26, 30}), 125, 175));
        QVERIFY(!Omezeni_Suma(T({20, 25, 30, 31, 33, 35}), 125, 175));
        QVERIFY(Omezeni_Suma(T({20, 25, 30, 31, 34, 35}), 125, 175));
    }

    void Prunik() {
        Zaznam_Tipu s;
        s.Tikety[1].Cisla[1] = T({1, 2, 3, 4, 5, 6});
        QVERIFY(Omezeni_Prunik(s, T({40, 41, 42, 43, 44, 45}), 0, 1, 1, 1));
        QVERIFY(Omezeni_Prunik(s, T({1, 2, 10, 11, 12, 13}), 0, 2, 1, 2));
        QVERIFY(!Omezeni_Prunik(s, T({1, 2, 10, 11, 12, 13}), 0, 1, 1, 2));
        // Only the drawn parts meet: 3 and 4 behind two tutovky; 1 and 2 of the candidate are tutovky.
        QVERIFY(Omezeni_Prunik(s, T({1, 2, 3, 4, 20, 21}), 2, 2, 1, 2));
        QVERIFY(Omezeni_Prunik(s, T({20, 21, 1, 2, 22, 23}), 2, 0, 1, 2));
        QVERIFY(Prunik_V_Mezich(1, 1));
        QVERIFY(Prunik_V_Mezich(2, 2));
        QVERIFY(!Prunik_V_Mezich(2, 1));
    }
};

QTEST_APPLESS_MAIN(Test_modOkruh_Cisel)
#include "Test_modOkruh_Cisel.moc"
