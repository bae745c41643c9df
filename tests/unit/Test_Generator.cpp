// Runs of the generator: tickets and columns, tutovky, restarts, the third-prize rule, stops,
// faults and the run seed.
#include "core/pTikety.h"
#include "generator/Generator.h"
#include "generator/modOkruh_Cisel.h"

#include <QTest>
#include <functional>
#include <memory>
#include <set>

using namespace modOkruh_Cisel;

namespace {

int Tipu_V_Tiketu(const Zaznam_Tipu& s, int tiket) {
    int n = 0;
    for (int k = 1; k <= Sloupcu_Tiketu; ++k)
        n += int(s.Tikety[tiket].Cisla[k][1] != 0);
    return n;
}

// Restarts seen in the reported positions: a ticket's column 1 after a later one, an earlier ticket.
struct Obnovy {
    int Tiketu = 0, Behu = 0, Sloupcu = 1, Tiket = 0, Sloupec = 0;
    Zpetna_Volani_Generatoru Volani(int dotazu = 200000) {
        Zpetna_Volani_Generatoru v;
        // A fault fails the test instead of hanging it.
        v.Procenta = [dotazu](int) mutable { return --dotazu > 0; };
        v.Pozice = [this](int t, int k) {
            Tiketu += int(t == Tiket && k == 1 && Sloupec > 1);
            Behu += int(t < Tiket);
            Sloupcu += int(t == Tiket && k == Sloupec + 1);
            Tiket = t;
            Sloupec = k;
        };
        return v;
    }
};

// Chi-square of counts of the numbers 1..49 against the uniform draw.
double Chi_Kvadrat(const std::array<int, 50>& pocty) {
    double celkem = 0, chi = 0;
    for (int n = 1; n <= 49; ++n)
        celkem += pocty[std::size_t(n)];
    const double ocekavano = celkem / 49;
    for (int n = 1; n <= 49; ++n)
        chi += (pocty[std::size_t(n)] - ocekavano) * (pocty[std::size_t(n)] - ocekavano) / ocekavano;
    return chi;
}

// The 99.9 % quantile of chi-square with 48 degrees of freedom: with fixed seeds a fair draw stays below.
constexpr double Chi_Mez_48 = 84.04;

} // namespace

class Test_Generator final : public QObject {
    Q_OBJECT

private slots:
    void Tikety_A_Sloupce() {
        Zaznam_Tipu s;
        s.Tikety[5].Cisla[1][1] = 9; // the run starts from an empty store
        Zadani_Generatoru z;
        z.Pocet_Tipu = 25;
        z.Pocet_Tiketu = 3;
        z.Tutovky = {40, 7, 22};
        z.Seminko = 1;
        QCOMPARE(Generuj(z, s, Obnovy().Volani()).Pocet_Tipu_Hotovo, 25);
        QCOMPARE(s.Pocet_Tiketu, int16_t(3));
        QCOMPARE(Tipu_V_Tiketu(s, 1) * 100 + Tipu_V_Tiketu(s, 2) * 10 + Tipu_V_Tiketu(s, 3), 1105);
        QCOMPARE(s.Tikety[5].Cisla[1][1], uint8_t(0));
        for (int n = 0; n < 25; ++n) {
            const Tip& tip = s.Tikety[n / 10 + 1].Cisla[n % 10 + 1];
            QVERIFY(tip[1] == 40 && tip[2] == 7 && tip[3] == 22);
            QVERIFY(tip[4] < tip[5] && tip[5] < tip[6] && tip[4] >= 1 && tip[6] <= 49);
            QCOMPARE(std::popcount(Maska_Tipu(tip)), 6);
            QVERIFY(!pTikety::Cisla_Pod_Sebou(3, 0, tip));
        }
        // More tickets than the tips need: the last stays empty with its number.
        z.Pocet_Tipu = 20;
        QCOMPARE(Generuj(z, s, Obnovy().Volani()).Pocet_Tipu_Hotovo, 20);
        QCOMPARE(Tipu_V_Tiketu(s, 3), 0);
        QCOMPARE(s.Tikety[3].Cislo_Tiketu, 3);
        // Fewer: only the tickets given are filled, and the header counts the tips made.
        z.Pocet_Tipu = 9500;
        z.Pocet_Tiketu = 1;
        QCOMPARE(Generuj(z, s, Obnovy().Volani()).Pocet_Tipu_Hotovo, 10);
        QCOMPARE(s.Pocet_Tipu, int16_t(10));
        QCOMPARE(s.Pocet_Tiketu, int16_t(1));
    }

    void Filtry_Cisel_A_Obnova_Tiketu() {
        // 14 numbers and no repeat in a ticket with one try: the second column often gives the ticket up.
        Zaznam_Tipu s;
        Zadani_Generatoru z;
        z.Pocet_Tipu = 2;
        z.Pocet_Tiketu = 1;
        z.Vyber = Vyber_Okruhu::Pouzit_Vybrana;
        z.Okruh_Cisel = {2, 5, 9, 13, 18, 24, 27, 31, 33, 38, 41, 44, 46, 48};
        z.Check1[4] = true;
        z.Pocet_Pruchodu = 1;
        z.Seminko = 7;
        Obnovy o;
        const Vysledek_Generatoru v = Generuj(z, s, o.Volani());
        QVERIFY(o.Tiketu > 0);
        // A ticket started anew counts its tips from where it began: the columns given up are no tips.
        QCOMPARE(v.Pocet_Tipu_Hotovo, 2);
        const uint64_t a = Maska_Tipu(s.Tikety[1].Cisla[1]), b = Maska_Tipu(s.Tikety[1].Cisla[2]);
        QCOMPARE(a & b, uint64_t(0));
        uint64_t okruh = 0;
        for (int x : z.Okruh_Cisel)
            okruh |= uint64_t(1) << x;
        QCOMPARE((a | b) & ~okruh, uint64_t(0));

        // Range, decades and the pool left out.
        z = {};
        z.Pocet_Tipu = 100;
        z.Pocet_Tiketu = 10;
        z.Seminko = 8;
        z.Check1[9] = z.Check1[3] = true;
        z.Rozsah = {5, 30};
        z.Limit_Dekada = 2;
        z.Vyber = Vyber_Okruhu::Vynechat_Vybrana;
        z.Okruh_Cisel = {10, 11, 12};
        QCOMPARE(Generuj(z, s, Obnovy().Volani()).Pocet_Tipu_Hotovo, 100);
        for (int n = 0; n < 100; ++n) {
            const Tip& tip = s.Tikety[n / 10 + 1].Cisla[n % 10 + 1];
            int dekady[3] = {};
            for (int i = 1; i <= 6; ++i)
                QVERIFY(tip[i] >= 5 && tip[i] <= 30 && (tip[i] < 10 || tip[i] > 12) &&
                        ++dekady[(tip[i] - 1) / 10] <= 2);
        }
    }

    void Treti_Ceny() {
        // Every third rejection raises the limit by one and starts the run (0) or the ticket (1) anew.
        for (int opakovat : {0, 1}) {
            Zaznam_Tipu s;
            Zadani_Generatoru z;
            z.Pocet_Tipu = z.Pocet_Tiketu = 100;
            z.Check1[1] = true;
            z.Auto_Oprava = 1;
            z.Opakovat_Volba = opakovat;
            z.Pocet_Pruchodu = 3;
            z.Seminko = 11;
            Obnovy o;
            const Vysledek_Generatoru v = Generuj(z, s, o.Volani());
            QCOMPARE(v.Pocet_Tipu_Hotovo, 100);
            QVERIFY(v.Max_Tretich_Cen > 0);
            QCOMPARE(o.Behu > 0, opakovat == 0);
            QVERIFY(o.Tiketu > 0 || opakovat == 0);
        }
        // Without the correction a tight limit keeps the run going and says so; a stop keeps the tips.
        Zaznam_Tipu s;
        Zadani_Generatoru z;
        z.Pocet_Tipu = 300;
        z.Pocet_Tiketu = 30;
        z.Check1[1] = true;
        z.Seminko = 3;
        QStringList zpravy;
        int po_zprave = 300; // the run goes on a while after the notice, which stands once
        Zpetna_Volani_Generatoru volani;
        volani.Procenta = [&](int) { return zpravy.isEmpty() || --po_zprave > 0; };
        volani.Zprava = [&](const QString& text) { zpravy << text; };
        const Vysledek_Generatoru v = Generuj(z, s, volani);
        QCOMPARE(zpravy, QStringList{u"Volte \"Konec\" a nastavte aut. opravu třetích cen."_qs});
        QCOMPARE(v.Konec, Konec_Behu::Zastaveno);
        int ulozeno = 0;
        for (int t = 1; t <= 30; ++t)
            ulozeno += Tipu_V_Tiketu(s, t);
        QVERIFY(ulozeno > 0 && ulozeno < 300);
        QCOMPARE(ulozeno, v.Pocet_Tipu_Hotovo);
    }

    void Zastaveni() {
        Zaznam_Tipu s;
        Zadani_Generatoru z;
        z.Pocet_Tipu = z.Pocet_Tiketu = 100;
        z.Seminko = 5;
        // The percentage counts made tips and the column in hand: column 6 of ticket 3 is 31 %.
        Zpetna_Volani_Generatoru volani;
        volani.Procenta = [](int p) { return p < 30; };
        Vysledek_Generatoru v = Generuj(z, s, volani);
        QCOMPARE(v.Konec, Konec_Behu::Zastaveno);
        QCOMPARE(v.Pocet_Tipu_Hotovo, 25);
        QCOMPARE(Tipu_V_Tiketu(s, 3), 5);
        QCOMPARE(s.Pocet_Tipu, int16_t(25));
        QCOMPARE(s.Pocet_Tiketu, int16_t(3));

        // A ticket given up leaves no column behind: whenever the run stops, the store holds exactly
        // the tips it reports, and none of them shares a number with another of its ticket.
        z = {};
        z.Pocet_Tipu = 3;
        z.Pocet_Tiketu = 1;
        z.Vyber = Vyber_Okruhu::Pouzit_Vybrana;
        z.Okruh_Cisel = {2, 5, 9, 13, 18, 24, 27, 31, 33, 38, 41, 44, 46, 48, 49, 1, 3, 6, 8};
        z.Check1[4] = true;
        z.Pocet_Pruchodu = 1;
        for (int dotazu = 1; dotazu <= 40; ++dotazu) {
            z.Seminko = uint64_t(dotazu);
            v = Generuj(z, s, Obnovy().Volani(dotazu));
            int ulozeno = 0;
            uint64_t vsechna = 0;
            for (int k = 1; k <= Sloupcu_Tiketu; ++k)
                if (s.Tikety[1].Cisla[k][1] != 0) {
                    ++ulozeno;
                    QCOMPARE(vsechna & Maska_Tipu(s.Tikety[1].Cisla[k]), uint64_t(0));
                    vsechna |= Maska_Tipu(s.Tikety[1].Cisla[k]);
                }
            QCOMPARE(ulozeno, v.Pocet_Tipu_Hotovo);
            QCOMPARE(int(s.Pocet_Tipu), v.Pocet_Tipu_Hotovo);
        }
    }

    void Nesplnitelna_Omezeni() {
        // What no tip can meet is refused before the run, and the store stays as it was.
        struct Pripad {
            std::function<void(Zadani_Generatoru&)> Nastav;
            QString Zprava;
        };
        const std::vector<Pripad> pripady{
            {[](Zadani_Generatoru& z) {
                 z.Check1[9] = true, z.Rozsah = {1, 5};
             },
             u"Rozsah čísel 1 - 5 je užší než 6 čísel, která tip potřebuje."_qs},
            {[](Zadani_Generatoru& z) {
                 z.Check1[9] = true, z.Rozsah = {30, 26}, z.Tutovky = {1, 2};
             },
             QString()},
            {[](Zadani_Generatoru& z) {
                 z.Check1[8] = true, z.Suma = {300, 280};
             },
             u"Součet čísel tipu může být jen od 21 do 279; suma od 280 do 300 (bez krajních hodnot) nepropustí žádný tip."_qs},
            {[](Zadani_Generatoru& z) {
                 z.Check1[8] = true, z.Suma = {500, 10};
             },
             QString()},
            {[](Zadani_Generatoru& z) {
                 z.Check1[8] = true, z.Suma = {20, 40};
             },
             QString()},
            {[](Zadani_Generatoru& z) {
                 z.Check1[8] = true, z.Suma = {21, 22};
             },
             u"Součet"_qs},
            {[](Zadani_Generatoru& z) { z.Check1[5] = true, z.Sudych = 6, z.Lichych = 6, z.Rozptyl = 0; },
             u"Poměr sudých a lichých 6 / 6 s rozptylem 0 nedává tip o šesti číslech."_qs},
            {[](Zadani_Generatoru& z) { z.Check1[5] = true, z.Sudych = 6, z.Lichych = 0, z.Rozptyl = 0; }, QString()},
            {[](Zadani_Generatoru& z) { z.Check1[3] = true, z.Limit_Dekada = 1; },
             u"S omezením \"čísel v dekádě\" 1 nelze z dovolených čísel sestavit tip."_qs},
            {[](Zadani_Generatoru& z) {
                 z.Check1[4] = true, z.Vyber = Vyber_Okruhu::Pouzit_Vybrana;
                 for (int x = 1; x <= 15; ++x)
                     z.Okruh_Cisel.push_back(x);
             },
             u"\"Neopakovat čísla v tiketu\" potřebuje 48 různých čísel, k losování je jich jen 15."_qs},
            {[](Zadani_Generatoru& z) {
                 z.Vyber = Vyber_Okruhu::Pouzit_Vybrana, z.Okruh_Cisel = {3, 3, 3, 3, 3, 3, 4};
             },
             u"Omezení nechávají k losování jen 2 čísel, tip jich potřebuje 6."_qs},
            {[](Zadani_Generatoru& z) {
                 z.Check1[0] = true, z.Omezeni = {1, 2, 3};
             },
             u"Omezení \"sloupec, řádek, křížem\" 1 / 2 nepropustí žádný tip."_qs},
            {[](Zadani_Generatoru& z) {
                 z.Check1[0] = true, z.Omezeni = {1, 2, 3}, z.Tutovky = {7};
             },
             QString()},
            {[](Zadani_Generatoru& z) {
                 z.Tutovky = {5, 5};
             },
             u"Tutovka 5 je zadána dvakrát: tip nesmí obsahovat stejné číslo dvakrát."_qs},
            {[](Zadani_Generatoru& z) { z.Pocet_Tipu = -5; }, u"Počet tipů musí být od 1 do 9500."_qs},
        };
        for (const Pripad& p : pripady) {
            Zadani_Generatoru z;
            z.Pocet_Tipu = 20;
            z.Pocet_Tiketu = 2;
            z.Seminko = 4;
            p.Nastav(z);
            Zaznam_Tipu s;
            s.Tikety[1].Cisla[1][1] = 9;
            const Vysledek_Generatoru v = Generuj(z, s, Obnovy().Volani());
            QVERIFY2(Kontrola_Zadani(z).startsWith(p.Zprava), qPrintable(p.Zprava));
            if (p.Zprava.isEmpty()) {
                QCOMPARE(v.Konec, Konec_Behu::Hotovo);
                QCOMPARE(v.Pocet_Tipu_Hotovo, 20);
            } else {
                QVERIFY(v.Konec == Konec_Behu::Chyba && v.Chyba == Kontrola_Zadani(z));
                QCOMPARE(s.Tikety[1].Cisla[1][1], uint8_t(9));
            }
        }

        // All even numbers make an even sum, and only 151 may pass: the run says which filter
        // rejects most, once, and ends when the caller says so.
        Zadani_Generatoru z;
        z.Pocet_Tipu = 10;
        z.Pocet_Tiketu = 1;
        z.Seminko = 5;
        z.Check1[5] = z.Check1[8] = true;
        z.Sudych = 6, z.Lichych = 0, z.Rozptyl = 0;
        z.Suma = {150, 152};
        z.Kroku_Bez_Tipu = 2'000'000;
        QVERIFY(Kontrola_Zadani(z).isEmpty());
        Zaznam_Tipu s;
        QStringList zpravy;
        int po_zprave = 100;
        Zpetna_Volani_Generatoru volani;
        volani.Procenta = [&](int) { return zpravy.isEmpty() || --po_zprave > 0; };
        volani.Uvaznuti = [&](const QString& zprava) {
            zpravy << zprava;
            return true;
        };
        Vysledek_Generatoru v = Generuj(z, s, volani);
        QCOMPARE(v.Konec, Konec_Behu::Zastaveno);
        QCOMPARE(zpravy.size(), 1);
        QVERIFY2(zpravy[0].contains(u"\"sudá / lichá / rozptyl\""_qs), qPrintable(zpravy[0]));
        Obnovy obnovy;
        volani = obnovy.Volani(100000);
        volani.Uvaznuti = [](const QString&) { return false; };
        v = Generuj(z, s, volani);
        QCOMPARE(v.Konec, Konec_Behu::Nelze_Dokoncit);
        QCOMPARE(v.Chyba, zpravy[0]);
        QCOMPARE(s.Pocet_Tipu, int16_t(0));
    }

    void Prunik_A_Chyby() {
        Zaznam_Tipu s;
        Zadani_Generatoru z;
        z.Pocet_Tipu = 15;
        z.Pocet_Tiketu = 2;
        z.Check1[10] = true;
        z.Prunik = 2;
        z.Tutovky = {49};
        z.Seminko = 9;
        // Column 1 of ticket 2 has no tip before it that the test can reach.
        Vysledek_Generatoru v = Generuj(z, s, Obnovy().Volani());
        QCOMPARE(v.Konec, Konec_Behu::Chyba);
        QCOMPARE(v.Chyba, u"Upravte omezeni, nemožno zpracovat ..."_qs);
        QCOMPARE(v.Pocet_Tipu_Hotovo, 10);
        for (int k = 2; k <= 10; ++k)
            QCOMPARE(std::popcount(Maska_Tipu(s.Tikety[1].Cisla[k], 2) & Maska_Tipu(s.Tikety[1].Cisla[k - 1], 2)), 2);
        // A box value that does not fit a byte ends the run before it touches the store.
        z.Prunik = 256;
        v = Generuj(z, s, Obnovy().Volani());
        QVERIFY(v.Konec == Konec_Behu::Chyba && v.Pocet_Tipu_Hotovo == 0 && s.Tikety[1].Cisla[1][1] == 49);
    }

    void Prvni_Tipy_Jsou_Nahodne() {
        // The first tip of 3000 seeds, and each column of ticket 1 over 1500 runs, against the uniform draw.
        Zadani_Generatoru z;
        z.Pocet_Tipu = 1;
        z.Pocet_Tiketu = 1;
        auto s = std::make_unique<Zaznam_Tipu>();
        std::array<int, 50> prvni{};
        std::set<uint64_t> ruzne;
        for (uint64_t seminko = 1; seminko <= 3000; ++seminko) {
            z.Seminko = seminko;
            Generuj(z, *s);
            for (const uint8_t x : s->Tikety[1].Cisla[1])
                ++prvni[x];
            ruzne.insert(Maska_Tipu(s->Tikety[1].Cisla[1]));
        }
        QVERIFY2(Chi_Kvadrat(prvni) < Chi_Mez_48, qPrintable(QString::number(Chi_Kvadrat(prvni))));
        QVERIFY(ruzne.size() >= 2995);

        z.Pocet_Tipu = 10;
        std::array<std::array<int, 50>, 11> sloupce{};
        for (uint64_t seminko = 1; seminko <= 1500; ++seminko) {
            z.Seminko = seminko * 7919;
            Generuj(z, *s);
            for (int k = 1; k <= 10; ++k)
                for (const uint8_t x : s->Tikety[1].Cisla[k])
                    ++sloupce[std::size_t(k)][x];
        }
        for (int k = 1; k <= 10; ++k)
            QVERIFY2(Chi_Kvadrat(sloupce[std::size_t(k)]) < Chi_Mez_48,
                     qPrintable(u"sloupec %1: %2"_qs.arg(k).arg(Chi_Kvadrat(sloupce[std::size_t(k)]))));
    }

    void Pomocne() {
        QCOMPARE(Nacti_Tutovky({u""_qs, u" 22"_qs, u"50"_qs}), std::vector<int>{22});
        QCOMPARE(Tiketu_Pro_Tipy(25), 3);
        QCOMPARE(Tiketu_Pro_Tipy(20), 2);
        QCOMPARE(Pocatecni_Max_Tretich_Cen(24, 0) + Pocatecni_Max_Tretich_Cen(25, 0), 1.0);
        QCOMPARE(Pocatecni_Max_Tretich_Cen(9500, 1), 0.0);
    }

    void Stejne_Seminko_Stejne_Bajty() {
        std::vector<Tah> tahy(4);
        for (int d = 1; d <= 3; ++d)
            for (int i = 1; i <= 7; ++i)
                tahy[std::size_t(d)][i] = uint8_t(d * 7 + i);
        Zadani_Generatoru z;
        z.Pocet_Tipu = 95;
        z.Pocet_Tiketu = 10;
        z.Tutovky = {13};
        for (int i : {0, 1, 2, 3, 4, 5, 6, 7, 8})
            z.Check1[std::size_t(i)] = true;
        z.Max_Tretich_Cen = 2;
        z.Auto_Oprava = z.Opakovat_Volba = 1;
        z.Tahy_1 = z.Tahy_2 = &tahy;
        z.Vynech_Tahy_1_Od = z.Vynech_Tahy_2_Od = 3;
        z.Seminko = 0x1234567890ull;
        Zaznam_Tipu a, b;
        const Vysledek_Generatoru va = Generuj(z, a, Obnovy().Volani());
        QCOMPARE(va.Konec, Konec_Behu::Hotovo);
        QCOMPARE(va.Seminko, z.Seminko.value());
        Generuj(z, b, Obnovy().Volani());
        QCOMPARE(Zapis_Zaznam_Tipu(a), Zapis_Zaznam_Tipu(b));
        // Every stored tip went through the boxes that are on.
        for (int n = 0; n < 100; ++n) {
            const Tip& tip = a.Tikety[n / 10 + 1].Cisla[n % 10 + 1];
            QVERIFY(tip[1] == 0 ||
                    (tip[1] == 13 && !Omezeni_Rad_Slo_Kriz(tip, 1, 3, 2, 3) && !Omezeni_Sud_Lich(tip, 3, 3, 1) &&
                     !Omezeni_Dvojice(tip, 1) && !Omezeni_Trojice(tip, 0) && !Omezeni_Suma(tip, 125, 175)));
        }
        z.Seminko = 0x1234567891ull;
        Generuj(z, b, Obnovy().Volani());
        QVERIFY(Zapis_Zaznam_Tipu(a) != Zapis_Zaznam_Tipu(b));
        // Without a seed each run takes its own from the clock.
        z.Seminko.reset();
        QVERIFY(Generuj(z, a, Obnovy().Volani()).Seminko != Generuj(z, b, Obnovy().Volani()).Seminko);
    }
};

QTEST_APPLESS_MAIN(Test_Generator)
#include "Test_Generator.moc"
