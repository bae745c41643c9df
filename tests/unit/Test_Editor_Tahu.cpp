// The draw list's lines and the editor: a new year goes last and is still found, repair cannot
// remove a number, delete tells a missing year from an empty week, and the file on disk follows.
#include "Bajty.h"
#include "core/Vb.h"
#include "archive/Editor_Tahu.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

Tah T(std::initializer_list<int> cisla) {
    return Cisla<Tah>(cisla);
}

// The Sunday archive of 2025 with the first draw of week 1 only.
Archiv_Tahu Maly_Archiv() {
    Archiv_Tahu a;
    Nastav_Den_Archivu(a, Den::Nedele);
    Rok_Zaznam& rok = a.Pole_Tahu.emplace_back();
    rok.Rok = 2025;
    rok.Tyden[1].Je_Tah1 = -1;
    rok.Tyden[1].Tah1 = T({1, 2, 3, 4, 5, 6, 7});
    a.Pocet_Let = 1;
    Priprav_Seznamy_Tahu(a);
    return a;
}

} // namespace

class Test_Editor_Tahu final : public QObject {
    Q_OBJECT

private slots:
    void tvary_radku() {
        QCOMPARE(Radek_Roku(2026), u" 2026"_qs);
        QCOMPARE(Radek_Tahu_Seznamu(5, T({3, 12, 0, 45, 7, 49, 8})), u"5   -     3  12     45    7  49 - 8"_qs);
        QCOMPARE(Radek_Tahu_Seznamu(47, T({10, 20, 30, 40, 41, 42, 0})), u"47 -   10  20  30  40  41  42   "_qs);
        QVERIFY(Je_Radek_Tahu(Radek_Tahu_Seznamu(1, Tah{})));
        QVERIFY(!Je_Radek_Tahu(Radek_Roku(2026)));

        const QStringList radky{Radek_Roku(2024), Radek_Tahu_Seznamu(1, T({1})), Radek_Tahu_Seznamu(2, T({2})),
                                Radek_Roku(2025), Radek_Tahu_Seznamu(1, T({3}))};
        QCOMPARE(Poradi_Tahu(radky, 4), 3);
        QCOMPARE(Poradi_Tahu(radky, 3), 0);
        QCOMPARE(Rok_Radku(radky, 2), 2024);
        QCOMPARE(Rok_Radku(radky, 4), 2025);
    }

    void pridani_do_noveho_roku() {
        Archiv_Tahu a = Maly_Archiv();
        QCOMPARE(Pridej_Tah(a, Prvni_Tah, 2025, 0, T({9})).Zprava, u"Chybí číslo týdne !"_qs);
        QCOMPARE(Pridej_Tah(a, Prvni_Tah, 2025, 1, T({9})).Zprava, u"Týden a rok již obsazen, lze pouze OPRAVIT !"_qs);

        // An older year typed after a newer one: its record goes last and the list shows it last.
        const Uprava_Tahu u = Pridej_Tah(a, Prvni_Tah, 2024, 3, T({11, 12, 13, 14, 15, 16, 0}));
        QVERIFY(u.Zmeneno && u.Zprava.isEmpty());
        QCOMPARE(a.Pocet_Let, 2);
        QCOMPARE(a.Pole_Tahu.back().Rok, int16_t(2024));
        QCOMPARE(a.Pocet_Tahy_1, 2);
        QCOMPARE(a.Tahy_1[2], T({11, 12, 13, 14, 15, 16, 0}));
        QCOMPARE(a.Pocet_Tahy_2, 0);

        const Seznam_Tahu s = Vypis_Cisla_Tahu(a, Prvni_Tah);
        QCOMPARE(s.Radky, (QStringList{u" 2025"_qs, Radek_Tahu_Seznamu(1, T({1, 2, 3, 4, 5, 6, 7})), u" 2024"_qs,
                                       Radek_Tahu_Seznamu(3, T({11, 12, 13, 14, 15, 16, 0}))}));
        QCOMPARE(s.Pocet_Tahu, 2);
        QCOMPARE(Najdi_Radek_Tahu(a, Prvni_Tah, 2024, 3), 3);
        QCOMPARE(Najdi_Radek_Tahu(a, Druhy_Tah, 2024, 3), -1);

        // The second series of the same week is its own draw; a number given twice never enters it.
        const Archiv_Tahu pred = a;
        QCOMPARE(Pridej_Tah(a, Druhy_Tah, 2024, 3, T({7, 7, 7, 7, 7, 7, 7})).Zprava,
                 u"Pozor, zadána stejná čísla !"_qs);
        QCOMPARE(Pridej_Tah(a, Druhy_Tah, 2024, 3, T({1, 2, 3, 4, 5, 6, 1})).Zprava,
                 u"Pozor, zadána stejná čísla !"_qs);
        QCOMPARE(a.Pole_Tahu, pred.Pole_Tahu);
        // Numbers left in a week without its flag do not slip into the new draw.
        a.Pole_Tahu[2].Tyden[3].Tah2 = T({40, 41, 42, 43, 44, 45, 46});
        QVERIFY(Pridej_Tah(a, Druhy_Tah, 2024, 3, T({1, 2})).Zmeneno);
        QCOMPARE(Vypis_Cisla_Tahu(a, Druhy_Tah).Radky, (QStringList{u" 2024"_qs, Radek_Tahu_Seznamu(3, T({1, 2}))}));
        QCOMPARE(Najdi_Radek_Tahu(a, Druhy_Tah, 2024, 3), 1);
    }

    void oprava_a_smazani() {
        Archiv_Tahu a = Maly_Archiv();
        QCOMPARE(Oprav_Tah(a, Prvni_Tah, 2025, 1, T({8, 0, 0, 0, 0, 8})).Zprava, u"Pozor, zadána stejná čísla !"_qs);
        QCOMPARE(Oprav_Tah(a, Prvni_Tah, 2025, 2, T({8})).Zprava, u"Není co OPRAVIT, týden či rok neexistuje."_qs);
        QVERIFY(Oprav_Tah(a, Prvni_Tah, 2025, 1, T({40, 0, 0, 0, 0, 0, 41})).Zmeneno);
        QCOMPARE(Cisla_Tahu(a, Prvni_Tah, 2025, 1), std::optional(T({40, 2, 3, 4, 5, 6, 41})));
        QCOMPARE(a.Tahy_1[1], T({40, 2, 3, 4, 5, 6, 41}));
        // The draw as it will stand is checked: a box equal to an old number that stays is refused,
        // and a repair to what is there already changes nothing.
        QCOMPARE(Oprav_Tah(a, Prvni_Tah, 2025, 1, T({2})).Zprava, u"Pozor, zadána stejná čísla !"_qs);
        QCOMPARE(Oprav_Tah(a, Prvni_Tah, 2025, 1, T({0, 0, 0, 0, 0, 0, 40})).Zprava,
                 u"Pozor, zadána stejná čísla !"_qs);
        const Uprava_Tahu stejna = Oprav_Tah(a, Prvni_Tah, 2025, 1, T({40, 2, 0, 0, 0, 6}));
        QVERIFY(!stejna.Zmeneno && stejna.Zprava.isEmpty());
        QCOMPARE(a.Tahy_1[1], T({40, 2, 3, 4, 5, 6, 41}));

        QCOMPARE(Smaz_Tah(a, Prvni_Tah, 2023, 1).Zprava, u"Není co SMAZAT, týden či rok neexistuje."_qs);
        const Uprava_Tahu prazdny = Smaz_Tah(a, Prvni_Tah, 2025, 2);
        QVERIFY(!prazdny.Zmeneno && prazdny.Zprava.isEmpty());
        QVERIFY(Smaz_Tah(a, Prvni_Tah, 2025, 1).Zmeneno);
        QVERIFY(!Kontrola_Obsazeni(a, Prvni_Tah, 2025, 1));
        QCOMPARE(a.Pole_Tahu[1].Tyden[1].Tah1, Tah{});
        QCOMPARE(a.Pocet_Let, 1); // the year stays
        QCOMPARE(a.Pocet_Tahy_1, 0);
        QVERIFY(Vypis_Cisla_Tahu(a, Prvni_Tah).Radky.isEmpty());
    }

    void zapis_na_disk() {
        // The first draw of a day without an archive creates the file; the next change keeps a backup.
        const QTemporaryDir slozka;
        Archiv_Tahu a;
        Nastav_Den_Archivu(a, Den::Streda);
        QVERIFY(Pridej_Tah(a, Prvni_Tah, 2026, 47, T({1, 2, 3, 4, 5, 6, 7})).Zmeneno);
        QVERIFY(Zaloha_Soubor_Tahu(a, slozka.path()).Ok());
        QVERIFY(Pridej_Tah(a, Druhy_Tah, 2026, 47, T({8, 9, 10, 11, 12, 13, 14})).Zmeneno);
        QVERIFY(Zaloha_Soubor_Tahu(a, slozka.path()).Ok());

        Archiv_Tahu zpet;
        QVERIFY(Nacti_Tahy(zpet, slozka.path(), a.Soubor_Tahu).Ok());
        QCOMPARE(zpet.Pocet_Let, 1);
        QCOMPARE(zpet.Pole_Tahu[1], a.Pole_Tahu[1]);
        Archiv_Tahu zaloha;
        QVERIFY(Nacti_Tahy(zaloha, slozka.path(), Jmeno_Zalohy(a.Soubor_Tahu)).Ok());
        QVERIFY(!Vb::Je_Pravda(zaloha.Pole_Tahu[1].Tyden[47].Je_Tah2));
    }

    void cely_archiv() {
        const Archiv_Tahu a = Archiv_Z_Historie(Den::Nedele);
        for (const int tah : {Prvni_Tah, Druhy_Tah}) {
            const Seznam_Tahu s = Vypis_Cisla_Tahu(a, tah);
            const int pocet = tah == Prvni_Tah ? a.Pocet_Tahy_1 : a.Pocet_Tahy_2;
            QCOMPARE(s.Pocet_Tahu, pocet);
            QCOMPARE(Poradi_Tahu(s.Radky, int(s.Radky.size()) - 1), pocet);
            const auto [rok, tyden] = Rok_A_Tyden(a, tah + 1, pocet);
            QCOMPARE(Najdi_Radek_Tahu(a, tah, rok, tyden), int(s.Radky.size()) - 1);
            QCOMPARE(Rok_Radku(s.Radky, int(s.Radky.size()) - 1), rok);
        }
    }
};

QTEST_APPLESS_MAIN(Test_Editor_Tahu)
#include "Test_Editor_Tahu.moc"
