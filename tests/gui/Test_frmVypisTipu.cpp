// The tip list over the frame: a file of 25 tips listed, a tip shown on the picture, deleted and
// undone, a tip entered by hand, a ticket renumbered, the list saved and opened again.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "app/frmKresleni.h"
#include "app/frmSloupec_Tiketu.h"
#include "core/pTikety.h"
#include "tips/frmVypisTipu.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

namespace {

// Clicks the number's cell on the picture of the ticket column.
void Klikni(frmSloupec_Tiketu* obrazek, int cislo) {
    int rad = 0, sloup = 0;
    pTikety::Dej_Rad_Sloup(cislo, rad, sloup);
    const QPoint bod(qRound(frmKresleni::Pixely(sloup * 347 + 195, *obrazek)),
                     qRound(frmKresleni::Pixely_Y(rad * 347 + 195, *obrazek)));
    QTest::mouseClick(obrazek, Qt::LeftButton, {}, bod);
}

} // namespace

class Test_frmVypisTipu final : public QObject {
    Q_OBJECT

private slots:
    void Seznam_Tipu() {
        Prostredi prostredi(QDate(2026, 11, 28));
        Zapis_Souboru(prostredi.Cesta(u"t25.tip"_qs), Soubor_Tipu(25));
        frmMDITombi& okno = prostredi.Spust();
        prostredi.Otevri_Tipy(u"t25.tip"_qs);
        auto* vypis = okno.Najdi_Okno<frmVypisTipu>();
        QVERIFY(vypis != nullptr);
        QListWidget* seznam = vypis->List1;
        // Three tickets of 10, 10 and 5 tips, no blank line after the last.
        QCOMPARE(seznam->count(), 12 + 12 + 6);
        QCOMPARE(seznam->item(12)->text(), u"číslo tiketu - 2"_qs);
        QCOMPARE(vypis->txtSoubor_Tipu->text(), u"t25"_qs);

        seznam->setCurrentRow(1);
        QVERIFY(!vypis->picSloupec_Vypis_Tipu->Je_Prazdny());
        QCOMPARE(prostredi.Prvek<QLabel>(u"lblAktivniPoradi"_qs)->text(), u"1 / 1"_qs);

        // With a bettors' list the deletion asks first; No keeps the tip.
        seznam->setCurrentRow(13);
        prostredi.Data->Seznam.Seznam.resize(2);
        prostredi.Dialogy.Odpovedi.enqueue(Dialogy::Odpoved::Ne);
        QTest::mouseClick(vypis->cmdZrusTip, Qt::LeftButton);
        QCOMPARE(int(prostredi.Data->Tipy.Pocet_Tipu_Aktivni), 25);
        QVERIFY(prostredi.Dialogy.Okna.last().contains(u"Opravdu si přejete zrušit označený tip ?"_qs));
        prostredi.Data->Seznam.Vyprazdni();

        // The first tip of ticket 2 goes; the undo brings it back.
        QTest::mouseClick(vypis->cmdZrusTip, Qt::LeftButton);
        QCOMPARE(int(prostredi.Data->Tipy.Pocet_Tipu_Aktivni), 24);
        QCOMPARE(seznam->count(), 12 + 12 + 5);
        QCOMPARE(seznam->currentRow(), 13);
        QVERIFY(prostredi.Data->Tikety.Zmena_Dat);
        QTest::mouseClick(vypis->cmdZpet, Qt::LeftButton);
        QCOMPARE(int(prostredi.Data->Tipy.Pocet_Tipu_Aktivni), 25);
        QCOMPARE(seznam->count(), 30);

        // A ticket takes a new number, not one that another bears.
        seznam->setCurrentRow(0);
        QCOMPARE(vypis->txtOldCislo->text(), u"1"_qs);
        vypis->txtNewCislo->setText(u"3"_qs);
        QTest::mouseClick(vypis->cmdCisla_Tiketu, Qt::LeftButton);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Pozor, NOVÉ číslo tiketu bylo již jednou použito !"_qs});
        vypis->txtNewCislo->setText(u"77"_qs);
        QTest::mouseClick(vypis->cmdCisla_Tiketu, Qt::LeftButton);
        QCOMPARE(seznam->item(0)->text(), u"číslo tiketu - 77"_qs);
        QCOMPARE(prostredi.Data->Tipy.Soubor_Tipu.Tikety[1].Cislo_Tiketu, 77);

        // Saved under a name of the user's, and read back the same.
        vypis->txtSoubor_Tipu->setText(u"moje"_qs);
        QTest::mouseClick(vypis->cmdUlozTipy, Qt::LeftButton);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Soubor s tipy uložen pod jménem  \"moje.tip\"."_qs});
        QCOMPARE(Cti_Zaznam_Tipu(Obsah_Souboru(prostredi.Cesta(u"moje.tip"_qs))), prostredi.Data->Tipy.Soubor_Tipu);
        QCOMPARE(prostredi.Nedavne().first(), u"1.  moje.tip"_qs);
    }

    void Vlastni_Tipy() {
        Prostredi prostredi(QDate(2026, 11, 28));
        Zapis_Souboru(prostredi.Cesta(u"t10.tip"_qs), Soubor_Tipu(10));
        frmMDITombi& okno = prostredi.Spust();
        prostredi.Otevri_Tipy(u"t10.tip"_qs);
        prostredi.Prikaz(u"mnuVlastniTipy"_qs)->trigger();
        auto* vypis = okno.Najdi_Okno<frmVypisTipu>();
        QCOMPARE(vypis->cmdPouzita_Cisla->text(), u"Zapiš"_qs);
        QVERIFY(vypis->List1->count() == 0);

        // Six numbers, one of them clicked twice (out again), then written as the first tip of a new
        // file: the file opened before is not added to.
        for (const int cislo : {40, 3, 17, 17, 17, 9, 1, 22})
            Klikni(vypis->picSloupec_Vypis_Tipu, cislo);
        QCOMPARE(prostredi.Prvek<QLineEdit>(u"txtRozpisAktivni"_qs)->text(), u" 1 3 9 17 22 40"_qs);
        QTest::mouseClick(vypis->cmdPouzita_Cisla, Qt::LeftButton);
        QCOMPARE(int(prostredi.Data->Tipy.Pocet_Tipu_Aktivni), 1);
        QCOMPARE(prostredi.Data->Tipy.Soubor_Tipu.Tikety[1].Cisla[1], Cisla<Tip>({1, 3, 9, 17, 22, 40}));
        QCOMPARE(prostredi.Data->Tipy.Soubor_Tipu.Tikety[1].Cisla[2], Tip{});
        QCOMPARE(vypis->List1->count(), 2);
        QVERIFY(vypis->txtSoubor_Tipu->text() != u"t10"_qs);
        QCOMPARE(vypis->List1->item(vypis->List1->count() - 1)->text(), u"    1     3     9     17   22   40   "_qs);

        // The empty cell after 49 fills a whole tip at random, six different numbers.
        Klikni(vypis->picSloupec_Vypis_Tipu, 50);
        QTest::mouseClick(vypis->cmdPouzita_Cisla, Qt::LeftButton);
        const Tip nahodny = prostredi.Data->Tipy.Soubor_Tipu.Tikety[1].Cisla[2];
        QVERIFY(std::is_sorted(nahodny.begin(), nahodny.end()));
        QVERIFY(std::adjacent_find(nahodny.begin(), nahodny.end()) == nahodny.end() && nahodny[1] >= 1);
    }
};

QTEST_MAIN(Test_frmVypisTipu)
#include "Test_frmVypisTipu.moc"
