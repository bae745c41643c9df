// Tip files: the current and the old record byte by byte, the repacking of old tickets, opening
// with its refusals, saving, and the conversion of an old file in place.
#include "Bajty.h"
#include "data/Soubor_Tipu.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

void Dej_Tip(QByteArray& b, qsizetype i, int prvni) {
    for (int k = 0; k < 6; ++k)
        b[i + k] = char(prvni + k);
}

// An old file with `sloupcu[t]` filled columns on ticket t+1; tip k starts with the number k.
QByteArray Stary_Soubor(const QList<int>& sloupcu, int16_t pocet_tipu, const QByteArray& seznam = {}) {
    QByteArray b(52000, '\0');
    int tip = 0;
    for (int t = 0; t < sloupcu.size(); ++t)
        for (int s = 0; s < sloupcu[t]; ++s)
            Dej_Tip(b, t * 52 + 6 * s, ++tip);
    return b + Bajty(sloupcu.size(), 2) + Bajty(pocet_tipu, 2) + Text_S_Delkou(seznam);
}

} // namespace

class Test_Soubor_Tipu final : public QObject {
    Q_OBJECT

private slots:
    void Rozlozeni_Zaznamu() {
        QByteArray b(60800, '\0');
        Dej_Tip(b, 0, 1);
        Dej_Tip(b, 54, 40);
        b.replace(60, 4, Bajty(0x01020304, 4));
        b.replace(949 * 64 + 60, 4, Bajty(-2, 4));
        b += Bajty(950, 2) + Bajty(9500, 2) + Text_S_Delkou("P\xF8\xE1tel\xE9.szn"); // code page 1250

        const Zaznam_Tipu z = Cti_Zaznam_Tipu(b + "stale tail");
        QCOMPARE(z.Tikety[1].Cisla[1], Cisla<Tip>({1, 2, 3, 4, 5, 6}));
        QCOMPARE(z.Tikety[1].Cisla[10][1], 40);
        QCOMPARE(std::pair(z.Tikety[1].Cislo_Tiketu, z.Tikety[950].Cislo_Tiketu), std::pair(0x01020304, -2));
        QCOMPARE(std::pair(z.Pocet_Tiketu, z.Pocet_Tipu), (std::pair<int16_t, int16_t>(950, 9500)));
        QCOMPARE(z.Seznam_Soubor, u"Přátelé.szn"_qs);
        // The tail past the name is not written back.
        QCOMPARE(Zapis_Zaznam_Tipu(z), b);

        // A length past the end of the file takes what is there; a negative one counts as 0.
        b.replace(60804, 2, Bajty(1000, 2));
        QCOMPARE(Cti_Zaznam_Tipu(b).Seznam_Soubor, u"Přátelé.szn"_qs);
        b.replace(60804, 2, Bajty(-5, 2));
        QCOMPARE(Zapis_Zaznam_Tipu(Cti_Zaznam_Tipu(b)).size(), 60806);
    }

    void Prebaleni_Stareho_Zaznamu() {
        // Tips 1..9 on old tickets of 8 and 1 columns end on one ticket of 9 columns.
        Zaznam_Tipu z = Preved_Stary_Zaznam(Cti_Stary_Zaznam_Tipu(Stary_Soubor({8, 1}, 9, "ab")));
        QCOMPARE(std::pair(z.Pocet_Tiketu, z.Pocet_Tipu), (std::pair<int16_t, int16_t>(1, 9)));
        QCOMPARE(z.Seznam_Soubor, u"ab"_qs);
        QCOMPARE(z.Tikety[1].Cislo_Tiketu, 1);
        QCOMPARE(z.Tikety[1].Cisla[9], Cisla<Tip>({9, 10, 11, 12, 13, 14}));
        QCOMPARE(z.Tikety[1].Cisla[10], Tip{});

        // An empty column inside an old ticket is skipped: 23 tips of 24 make tickets of 10, 10 and 3.
        QByteArray b = Stary_Soubor({8, 8, 8}, 23);
        b.replace(52 + 12, 6, QByteArray(6, '\0'));
        z = Preved_Stary_Zaznam(Cti_Stary_Zaznam_Tipu(b));
        QCOMPARE(z.Pocet_Tiketu, 3);
        QCOMPARE(z.Tikety[3].Cislo_Tiketu, 3);
        QCOMPARE(std::pair(z.Tikety[2].Cisla[1][1], z.Tikety[3].Cisla[3][1]), (std::pair<uint8_t, uint8_t>(12, 24)));
    }

    void Otevreni_A_Ulozeni() {
        QTemporaryDir dir;
        const QString prazdny = dir.filePath(u"prazdny.tip"_qs), stary = dir.filePath(u"stary.tip"_qs);
        const QString dobry = dir.filePath(u"dobry.tip"_qs);
        Zapis_Souboru(prazdny, {});
        QByteArray b(60806, '\0');
        Dej_Tip(b, 0, 9);
        Zapis_Souboru(stary, b);

        Stav_Tipu stav;
        stav.Soubor_Tipu.Pocet_Tipu = 77;
        stav.Jmeno_Souboru_Tipu = u"predtim"_qs;
        QCOMPARE(Nacti_Soubor_Tipu(stav, prazdny).Zprava, u"Soubor \"prazdny.tip\" je prázdný."_qs);
        QCOMPARE(Nacti_Soubor_Tipu(stav, dir.filePath(u"neni.tip"_qs)).Zprava,
                 u"Soubor \"neni.tip\" nelze načíst: soubor nebo složka neexistuje."_qs);
        QCOMPARE(stav.Soubor_Tipu.Pocet_Tipu, 77);

        // Refused as old, yet the store already holds what was read; the open file is still the one before.
        QCOMPARE(Nacti_Soubor_Tipu(stav, stary).Zprava,
                 u"Provedte konverzi souboru tipu \"stary.tip\", nelze načíst - starý formát."_qs);
        QCOMPARE(stav.Soubor_Tipu.Tikety[1].Cisla[1][1], 9);
        QCOMPARE(stav.Jmeno_Souboru_Tipu, u"predtim"_qs);
        // From the recent files neither test runs.
        QVERIFY(Nacti_Soubor_Tipu(stav, prazdny, Otevreni::Z_Nedavnych).Ok());

        // A shorter list name after a longer one leaves nothing of the longer behind.
        stav.Soubor_Tipu.Pocet_Tipu = 1;
        stav.Soubor_Tipu.Seznam_Soubor = u"dlouhy_seznam.szn"_qs;
        QVERIFY(Uloz_Soubor_Tipu(stav, dobry).Ok());
        stav.Soubor_Tipu.Seznam_Soubor = u"kratky.szn"_qs;
        QVERIFY(Uloz_Soubor_Tipu(stav, dobry).Ok());
        QCOMPARE(Obsah_Souboru(dobry).size(), 60806 + 10);

        Stav_Tipu znovu;
        QVERIFY(Nacti_Soubor_Tipu(znovu, dobry).Ok());
        QCOMPARE(znovu.Soubor_Tipu, stav.Soubor_Tipu);
    }

    void Konverze_Souboru() {
        QTemporaryDir dir;
        const QString cesta = dir.filePath(u"stary.2001.tip"_qs), zal = dir.filePath(u"stary.2001.tip.zal"_qs);
        const QByteArray stary = Stary_Soubor({8, 1}, 9, "rodina.szn");
        Zapis_Souboru(cesta, stary);

        // The converted file is taken as the open one, named without its last extension; the original stays beside it.
        Stav_Tipu stav;
        QVERIFY(Konvertuj_Soubor_Tipu(stav, cesta).Ok());
        QVERIFY(stav.Je_Soubor_Tipu && stav.Jmeno_Souboru_Tipu == u"stary.2001"_qs);
        QCOMPARE(std::pair(stav.Seznam_Navazany, stav.Pocet_Tipu_Aktivni), std::pair(u"rodina.szn"_qs, int16_t(9)));
        const QByteArray novy = Obsah_Souboru(cesta);
        QCOMPARE(novy, Zapis_Zaznam_Tipu(stav.Soubor_Tipu));
        QCOMPARE(Obsah_Souboru(zal), stary);

        // A converted file (its old ticket count reads 0), an old one without tickets and a current
        // one of 813 tickets (whose ticket 813 holds what reads as an old count) are left alone.
        const QString zprava = u"Soubor \"stary.2001.tip\" není třeba konvertovat."_qs;
        QFile::remove(zal);
        QCOMPARE(Konvertuj_Soubor_Tipu(stav, cesta).Zprava, zprava);
        QCOMPARE(Obsah_Souboru(cesta), novy);
        Zapis_Souboru(cesta, Stary_Soubor({}, 0));
        QCOMPARE(Konvertuj_Soubor_Tipu(stav, cesta).Zprava, zprava);
        QByteArray velky(60806, '\0');
        for (int c = 0; c < 10; ++c)
            Dej_Tip(velky, 812 * 64 + 6 * c, 1 + c);
        velky.replace(60800, 4, QByteArray(Bajty(813, 2) + Bajty(8130, 2)));
        Zapis_Souboru(cesta, velky);
        QCOMPARE(Konvertuj_Soubor_Tipu(stav, cesta).Zprava, zprava);
        QCOMPARE(Obsah_Souboru(cesta), velky);
        QVERIFY(!QFile::exists(zal));
        QCOMPARE(stav.Soubor_Tipu.Pocet_Tipu, 9);

        // Without its backup no file is converted.
        Zapis_Souboru(cesta, stary);
        QVERIFY(QDir(dir.path()).mkdir(u"stary.2001.tip.zal"_qs));
        QCOMPARE(Konvertuj_Soubor_Tipu(stav, cesta).Zprava,
                 u"Soubor \"%1\" nelze zapsat: je to složka, ne soubor. Soubor \"stary.2001.tip\" proto nebyl převeden."_qs.arg(zal));
        QCOMPARE(Obsah_Souboru(cesta), stary);
    }
};

QTEST_APPLESS_MAIN(Test_Soubor_Tipu)
#include "Test_Soubor_Tipu.moc"
