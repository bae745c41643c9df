#include "data/Soubor_Tipu.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

void Dej_Cislo(QByteArray& b, qsizetype i, int32_t h, int bajtu) {
    for (int k = 0; k < bajtu; ++k)
        b[i + k] = char((uint32_t(h) >> (8 * k)) & 0xFF);
}

void Dej_Tip(QByteArray& b, qsizetype i, int prvni) {
    for (int k = 0; k < 6; ++k)
        b[i + k] = char(prvni + k);
}

// An old file with `sloupcu[t]` filled columns on ticket t+1; tip k starts with the number k.
QByteArray Stary_Soubor(const QList<int>& sloupcu, int16_t pocet_tipu, const QByteArray& seznam = {}) {
    QByteArray b(Delka_Stareho_Zaznamu, '\0');
    int tip = 0;
    for (int t = 0; t < sloupcu.size(); ++t)
        for (int s = 0; s < sloupcu[t]; ++s)
            Dej_Tip(b, t * Delka_Stareho_Tiketu + 6 * s, ++tip);
    Dej_Cislo(b, 52000, int(sloupcu.size()), 2);
    Dej_Cislo(b, 52002, pocet_tipu, 2);
    Dej_Cislo(b, 52004, int(seznam.size()), 2);
    return b + seznam;
}

void Zapis(const QString& cesta, const QByteArray& b) {
    QFile f(cesta);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(b);
}

QByteArray Precti(const QString& cesta) {
    QFile f(cesta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

class Test_Soubor_Tipu final : public QObject {
    Q_OBJECT

private slots:
    void Rozlozeni_Zaznamu();
    void Prebaleni_Stareho_Zaznamu();
    void Otevreni_A_Ulozeni();
    void Konverze_Souboru();
};

void Test_Soubor_Tipu::Rozlozeni_Zaznamu() {
    QByteArray b(Delka_Zaznamu_Tipu, '\0');
    Dej_Tip(b, 0, 1);
    Dej_Tip(b, 54, 40);
    Dej_Cislo(b, 60, 0x01020304, 4);
    Dej_Cislo(b, 949 * 64 + 60, -2, 4);
    Dej_Cislo(b, 60800, 950, 2);
    Dej_Cislo(b, 60802, 9500, 2);
    const QByteArray jmeno("P\xF8\xE1tel\xE9.szn"); // code page 1250
    Dej_Cislo(b, 60804, int(jmeno.size()), 2);
    b += jmeno;

    const Zaznam_Tipu z = Cti_Zaznam_Tipu(b + "stale tail");
    QCOMPARE(z.Tikety[1].Cisla[1][6], 6);
    QCOMPARE(z.Tikety[1].Cisla[10][1], 40);
    QCOMPARE(z.Tikety[1].Cislo_Tiketu, 0x01020304);
    QCOMPARE(z.Tikety[950].Cislo_Tiketu, -2);
    QCOMPARE(z.Pocet_Tiketu, 950);
    QCOMPARE(z.Pocet_Tipu, 9500);
    QCOMPARE(z.Seznam_Soubor, u"Přátelé.szn"_qs);
    // The tail past the name is not written back.
    QCOMPARE(Zapis_Zaznam_Tipu(z), b);

    // A length past the end of the file takes what is there; a negative one counts as 0.
    Dej_Cislo(b, 60804, 1000, 2);
    QCOMPARE(Cti_Zaznam_Tipu(b).Seznam_Soubor, u"Přátelé.szn"_qs);
    Dej_Cislo(b, 60804, -5, 2);
    QCOMPARE(Zapis_Zaznam_Tipu(Cti_Zaznam_Tipu(b)).size(), Delka_Zaznamu_Tipu);
}

void Test_Soubor_Tipu::Prebaleni_Stareho_Zaznamu() {
    // Tips 1..9 on old tickets of 8 and 1 columns end on one ticket of 9 columns.
    Zaznam_Tipu z = Preved_Stary_Zaznam(Cti_Stary_Zaznam_Tipu(Stary_Soubor({8, 1}, 9, "ab")));
    QCOMPARE(z.Pocet_Tiketu, 1);
    QCOMPARE(z.Pocet_Tipu, 9);
    QCOMPARE(z.Seznam_Soubor, u"ab"_qs);
    QCOMPARE(z.Tikety[1].Cislo_Tiketu, 1);
    QCOMPARE(z.Tikety[1].Cisla[9][6], 14);
    QCOMPARE(z.Tikety[1].Cisla[10][1], 0);

    // An empty column inside an old ticket is skipped: 23 tips of 24 make tickets of 10, 10 and 3.
    QByteArray b = Stary_Soubor({8, 8, 8}, 23);
    b.replace(52 + 12, 6, QByteArray(6, '\0'));
    z = Preved_Stary_Zaznam(Cti_Stary_Zaznam_Tipu(b));
    QCOMPARE(z.Pocet_Tiketu, 3);
    QCOMPARE(z.Tikety[3].Cislo_Tiketu, 3);
    QCOMPARE(z.Tikety[2].Cisla[1][1], 12);
    QCOMPARE(z.Tikety[3].Cisla[3][1], 24);

    // A count past the record walks the whole record and no further: 8000 tips on 800 tickets.
    b.fill('\x07', Delka_Stareho_Zaznamu);
    Dej_Cislo(b, 52000, 30000, 2);
    Dej_Cislo(b, 52004, 0, 2);
    z = Preved_Stary_Zaznam(Cti_Stary_Zaznam_Tipu(b));
    QCOMPARE(z.Pocet_Tiketu, 800);
    QCOMPARE(z.Tikety[801], Tiket{});
}

void Test_Soubor_Tipu::Otevreni_A_Ulozeni() {
    QTemporaryDir dir;
    const QString prazdny = dir.filePath(u"prazdny.tip"_qs);
    const QString stary = dir.filePath(u"stary.tip"_qs);
    const QString dobry = dir.filePath(u"moje.tipy.tip"_qs);
    Zapis(prazdny, {});
    QByteArray b(Delka_Zaznamu_Tipu, '\0');
    Dej_Tip(b, 0, 9);
    Zapis(stary, b);

    Stav_Tipu stav;
    stav.Soubor_Tipu.Pocet_Tipu = 77;
    stav.Jmeno_Souboru_Tipu = u"predtim"_qs;
    QCOMPARE(Nacti_Soubor_Tipu(stav, prazdny).Zprava, u"Soubor \"prazdny.tip\" je prázdný."_qs);
    QVERIFY(!Nacti_Soubor_Tipu(stav, dir.filePath(u"neni.tip"_qs)).Ok());
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
    QCOMPARE(Precti(dobry).size(), Delka_Zaznamu_Tipu + 10);

    Stav_Tipu znovu;
    QVERIFY(Nacti_Soubor_Tipu(znovu, dobry).Ok());
    QCOMPARE(znovu.Soubor_Tipu, stav.Soubor_Tipu);
    Po_Otevreni_Tipu(znovu, dobry);
    QCOMPARE(znovu.Jmeno_Souboru_Tipu, u"moje.tipy"_qs);
    QVERIFY(znovu.Je_Soubor_Tipu);
    QCOMPARE(znovu.Seznam_Navazany, u"kratky.szn"_qs);
    QCOMPARE(znovu.Pocet_Tipu_Aktivni, 1);
}

void Test_Soubor_Tipu::Konverze_Souboru() {
    QTemporaryDir dir;
    const QString cesta = dir.filePath(u"stary.tip"_qs);
    Zapis(cesta, Stary_Soubor({8, 1}, 9, "rodina.szn"));

    Stav_Tipu stav;
    QVERIFY(Konvertuj_Soubor_Tipu(stav, cesta).Ok());
    QCOMPARE(stav.Jmeno_Souboru_Tipu, u"stary"_qs);
    QCOMPARE(stav.Seznam_Navazany, u"rodina.szn"_qs);
    QCOMPARE(stav.Pocet_Tipu_Aktivni, 9);
    const QByteArray novy = Precti(cesta);
    QCOMPARE(novy, Zapis_Zaznam_Tipu(stav.Soubor_Tipu));

    // A converted file (its old ticket count reads 0) and an old one without tickets are left alone.
    const QString zprava = u"Soubor \"stary.tip\" není třeba konvertovat."_qs;
    QCOMPARE(Konvertuj_Soubor_Tipu(stav, cesta).Zprava, zprava);
    QCOMPARE(Precti(cesta), novy);
    Zapis(cesta, Stary_Soubor({}, 0));
    QCOMPARE(Konvertuj_Soubor_Tipu(stav, cesta).Zprava, zprava);
    QCOMPARE(stav.Soubor_Tipu.Pocet_Tipu, 9);
}

QTEST_APPLESS_MAIN(Test_Soubor_Tipu)
#include "Test_Soubor_Tipu.moc"
