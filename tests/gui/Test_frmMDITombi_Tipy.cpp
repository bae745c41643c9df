// The tip menu on a whole file: appending another file shows the joined count and keeps the tips
// that fit, sorting opens the list, the text form goes out with its message and comes back in.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "app/frmMDITombi.h"
#include "tips/frmVypisTipu.h"

#include <QLabel>
#include <QTest>

class Test_frmMDITombi_Tipy final : public QObject {
    Q_OBJECT

private slots:
    void Pripojit_Setridit_Export_Import() {
        Prostredi prostredi(QDate(2026, 11, 21));
        prostredi.Spust();
        auto* pocet = prostredi.Prvek<QLabel>(u"lblSoubor_Tipu"_qs);
        Zapis_Souboru(prostredi.Cesta(u"a.tip"_qs), Soubor_Tipu(7));
        Zapis_Souboru(prostredi.Cesta(u"b.tip"_qs), Soubor_Tipu(25));
        prostredi.Otevri_Tipy(u"a.tip"_qs);
        QVERIFY(prostredi.Prikaz(u"mnuPripojSouborTipu"_qs)->isEnabled());

        prostredi.Dialogy.Soubory.enqueue(prostredi.Cesta(u"b.tip"_qs));
        prostredi.Prikaz(u"mnuPripojSouborTipu"_qs)->trigger();
        QCOMPARE(pocet->text(), u"32 tipů"_qs);
        QCOMPARE(prostredi.Nedavne().first(), u"1.  b.tip"_qs);
        QVERIFY(prostredi.Data->Tikety.Zmena_Dat);
        // A cancelled dialog changes nothing.
        prostredi.Prikaz(u"mnuPripojSouborTipu"_qs)->trigger();
        QCOMPARE(int(prostredi.Data->Tipy.Pocet_Tipu_Aktivni), 32);

        prostredi.Prikaz(u"mnuSetriditSouborTipu"_qs)->trigger();
        QVERIFY(prostredi.Okno->Najdi_Okno<frmVypisTipu>() != nullptr);

        prostredi.Dialogy.Soubory.enqueue(prostredi.Cesta(u"ven.txt"_qs));
        prostredi.Prikaz(u"mnuExportTipu"_qs)->trigger();
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Uložen EXPORT souboru tipů do \"ven.txt\"."_qs});
        QCOMPARE(Obsah_Souboru(prostredi.Cesta(u"ven.txt"_qs)).count("\r\n"), 40);

        Zapis_Souboru(prostredi.Cesta(u"spatny.txt"_qs), "1 2 3 4 5 6 7");
        prostredi.Dialogy.Soubory.enqueue(prostredi.Cesta(u"spatny.txt"_qs));
        prostredi.Prikaz(u"mnuImportTipu"_qs)->trigger();
        QVERIFY(prostredi.Oznameni().contains(u"Nesouhlasí počet čísel v importovaném souboru tipu TXT."_qs));
        QCOMPARE(int(prostredi.Data->Tipy.Pocet_Tipu_Aktivni), 32);

        Zapis_Souboru(prostredi.Cesta(u"dovnitr.txt"_qs), "1 2 3 4 5 6\r\n7 8 9 10 11 12\r\n");
        prostredi.Dialogy.Soubory.enqueue(prostredi.Cesta(u"dovnitr.txt"_qs));
        prostredi.Prikaz(u"mnuImportTipu"_qs)->trigger();
        QCOMPARE(pocet->text(), u"2 tipy"_qs);
        QCOMPARE(prostredi.Data->Tipy.Jmeno_Souboru_Tipu, u"dovnitr"_qs);
        QVERIFY(prostredi.Okno->Najdi_Okno<frmVypisTipu>() != nullptr);
    }
};

QTEST_MAIN(Test_frmMDITombi_Tipy)
#include "Test_frmMDITombi_Tipy.moc"
