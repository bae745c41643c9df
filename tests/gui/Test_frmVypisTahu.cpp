// The draw list over the real Sunday archive: a click shows a draw, a draw is added, repaired and
// deleted with the file on disk following; a click sets the analysis range, SUMA adds draws up
// and "Použít" hands them to the generator; the tip list gets its draw; a short replay runs on the
// shortened timer; and a draw typed into a day without an archive makes the archive.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "analysis/frmAnalyzaTahu.h"
#include "app/frmMDITombi_Sluzby.h"
#include "app/frmMDITombi_Stav.h"
#include "app/frmNeniProcedura.h"
#include "archive/Editor_Tahu.h"
#include "archive/frmVypisTahu.h"
#include "generator/Stav_Generatoru.h"
#include "generator/frmGeneruj.h"
#include "tips/frmVypisTipu.h"
#include "tips/frmVypisTipu_Vyhodnoceni.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace {

void Klikni(QListWidget* seznam, int radek) {
    QListWidgetItem* polozka = seznam->item(radek);
    seznam->scrollToItem(polozka);
    QTest::mouseClick(seznam->viewport(), Qt::LeftButton, {}, seznam->visualItemRect(polozka).center());
}

// The line of draw `poradi` (1 first) of a list.
int Radek_Poradi(const QListWidget* seznam, int poradi) {
    for (int i = 0; i < seznam->count(); ++i)
        if (seznam->item(i)->text().size() > 10 && --poradi == 0)
            return i;
    return -1;
}

// The numbers of draws as the status band shows them: in order, each with its leading blank.
QString Text_Cisel(std::initializer_list<const Tah*> tahy) {
    std::array<bool, 50> je{};
    for (const Tah* tah : tahy)
        for (int k = 1; k <= 6; ++k)
            je[(*tah)[k]] = true;
    QString text;
    for (int i = 1; i <= 49; ++i)
        if (je[std::size_t(i)])
            text += u' ' + QString::number(i);
    return text;
}

frmVypisTahu* Otevri(Prostredi& prostredi) {
    prostredi.Prikaz(u"mnuVypisTahu"_qs)->trigger();
    return prostredi.Okno->Najdi_Okno<frmVypisTahu>();
}

} // namespace

class Test_frmVypisTahu final : public QObject {
    Q_OBJECT

private slots:
    void Seznamy_A_Editor() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& okno = prostredi.Spust();
        frmVypisTahu* tahy = Otevri(prostredi);
        QVERIFY(tahy != nullptr);
        const Archiv_Tahu& archiv = prostredi.Data->Archiv;
        QCOMPARE(tahy->Text1->text(), QString::number(archiv.Pocet_Tahy_1));
        QVERIFY(tahy->List1Tah->isVisible() && !tahy->List2Tah_Cekat->isVisible());

        // The newest first draw clicked: the editor, the ticket and the status band show it.
        Klikni(tahy->List1Tah, tahy->List1Tah->count() - 1);
        const auto [rok, tyden] = Rok_A_Tyden(archiv, 1, archiv.Pocet_Tahy_1);
        QCOMPARE(tahy->txtRok->text(), QString::number(rok));
        QCOMPARE(tahy->txtTyden->text(), QString::number(tyden));
        QVERIFY(tahy->cboTah[0]->isChecked());
        const Tah& novy = archiv.Tahy_1[std::size_t(archiv.Pocet_Tahy_1)];
        QCOMPARE(tahy->txtTah_Cislo[6]->text(), QString::number(novy[7]));
        QCOMPARE(okno.Stav()->txtRozpisAktivni->text(), Text_Cisel({&novy}));
        QCOMPARE(okno.Stav()->lblAktivniPoradi->text(), QString::number(archiv.Pocet_Tahy_1));
        QVERIFY(tahy->lblTahDne->text().contains(QString::number(rok)));

        // Week 53 added: the list grows, the file is written with its backup, and the week moves
        // on to 54, which turns into 53 again, so a second press meets a filled week.
        const int radku = tahy->List1Tah->count();
        tahy->txtRok->setText(u"2026"_qs);
        tahy->txtTyden->setText(u"53"_qs);
        // A number typed twice never enters the archive.
        for (int i = 0; i < 7; ++i)
            tahy->txtTah_Cislo[std::size_t(i)]->setText(u"7"_qs);
        QTest::mouseClick(tahy->cmdDalsiTah, Qt::LeftButton);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Pozor, zadána stejná čísla !"_qs});
        QCOMPARE(tahy->List1Tah->count(), radku);
        for (int i = 0; i < 7; ++i)
            tahy->txtTah_Cislo[std::size_t(i)]->setText(QString::number(i + 1));
        QTest::mouseClick(tahy->cmdDalsiTah, Qt::LeftButton);
        QCOMPARE(tahy->List1Tah->count(), radku + 1);
        QCOMPARE(tahy->List1Tah->item(radku)->text(), u"53 -     1    2    3    4    5    6 - 7"_qs);
        QCOMPARE(tahy->Text1->text(), QString::number(archiv.Pocet_Tahy_1));
        QCOMPARE(int(prostredi.Data->Tikety.Pocet_Tahu_1), archiv.Pocet_Tahy_1);
        QCOMPARE(tahy->txtTyden->text(), u" 53"_qs);
        // Written to disk, the edit leaves nothing unsaved for the question at the end.
        QVERIFY(!prostredi.Data->Tikety.Zmena_Dat);
        Archiv_Tahu disk;
        QVERIFY(Nacti_Tahy(disk, prostredi.Slozka.path(), u"SpN_tahy.sez"_qs).Ok());
        Priprav_Seznamy_Tahu(disk);
        QCOMPARE(disk.Pocet_Tahy_1, archiv.Pocet_Tahy_1);
        QVERIFY(QFile::exists(prostredi.Cesta(u"SpN_tahy.zal"_qs)));

        // Another program adds a second draw meanwhile: the window's next edit keeps it and shows it.
        disk.Soubor_Tahu = u"SpN_tahy.sez"_qs;
        const Tah druhy = Cisla<Tah>({11, 12, 13, 14, 15, 16});
        QVERIFY(Pridej_Tah(disk, Druhy_Tah, 2026, 53, druhy).Zmeneno);
        QVERIFY(Zaloha_Soubor_Tahu(disk, prostredi.Slozka.path()).Ok());
        QTest::mouseClick(tahy->cmdDalsiTah, Qt::LeftButton);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Týden a rok již obsazen, lze pouze OPRAVIT !"_qs});

        // Repair: an emptied box keeps its number; equal numbers are refused.
        tahy->txtTah_Cislo[0]->setText(u"40"_qs);
        tahy->txtTah_Cislo[5]->clear();
        QTest::mouseClick(tahy->cmdOpravit, Qt::LeftButton);
        QCOMPARE(tahy->List1Tah->item(radku)->text(), u"53 -   40    2    3    4    5    6 - 7"_qs);
        QCOMPARE(tahy->List2Tah->item(tahy->List2Tah->count() - 1)->text(), Radek_Tahu_Seznamu(53, druhy));
        QCOMPARE(tahy->List1Tah->currentRow(), -1);
        tahy->txtTah_Cislo[1]->setText(u"40"_qs);
        QTest::mouseClick(tahy->cmdOpravit, Qt::LeftButton);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Pozor, zadána stejná čísla !"_qs});
        QCOMPARE(archiv.Tahy_1[std::size_t(archiv.Pocet_Tahy_1)][2], uint8_t(2));

        // Delete: the draw goes; an empty week is let be without a word, a missing year is told.
        QTest::mouseClick(tahy->cmdSmaz, Qt::LeftButton);
        QCOMPARE(tahy->List1Tah->count(), radku);
        okno.Sluzby().Zavri_Oznameni();
        QTest::mouseClick(tahy->cmdSmaz, Qt::LeftButton);
        QVERIFY(prostredi.Oznameni().isEmpty());
        tahy->txtRok->setText(u"1950"_qs);
        QTest::mouseClick(tahy->cmdSmaz, Qt::LeftButton);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Není co SMAZAT, týden či rok neexistuje."_qs});
        QVERIFY(Nacti_Tahy(disk, prostredi.Slozka.path(), u"SpN_tahy.sez"_qs).Ok());
        Priprav_Seznamy_Tahu(disk);
        QCOMPARE(disk.Pocet_Tahy_1, archiv.Pocet_Tahy_1);
    }

    void Analyza_Suma_A_Generator() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& okno = prostredi.Spust();
        prostredi.Prikaz(u"mnuAnalyza"_qs)->trigger();
        auto* analyza = okno.Najdi_Okno<frmAnalyzaTahu>();
        auto* tahy = okno.Najdi_Okno<frmVypisTahu>();
        QVERIFY(analyza != nullptr && tahy != nullptr);
        QCOMPARE(analyza->parentWidget()->y(), tahy->parentWidget()->height());

        // A click inside the range shortens its end, one outside moves its start; a year line
        // changes nothing.
        analyza->optVolba_Tydnu[1]->click();
        analyza->txtOd_Tah1->setText(u"100"_qs);
        analyza->txtDo_Tah1->setText(u"200"_qs);
        Klikni(tahy->List1Tah, Radek_Poradi(tahy->List1Tah, 150));
        QCOMPARE(analyza->txtDo_Tah1->text(), u"150"_qs);
        Klikni(tahy->List1Tah, Radek_Poradi(tahy->List1Tah, 50));
        QCOMPARE(analyza->txtOd_Tah1->text(), u"50"_qs);
        QCOMPARE(analyza->txtPocet_1Tahu->text(), QString::number(prostredi.Data->Archiv.Pocet_Tahy_1 - 49));
        Klikni(tahy->List1Tah, 0);
        QCOMPARE(analyza->txtOd_Tah1->text(), u"50"_qs);
        QCOMPARE(analyza->txtDo_Tah1->text(), u"150"_qs);

        // SUMA: the numbers of two second draws add up, and "Použít" makes them the generator's
        // pool; the draw list and the analysis close.
        tahy->Check1->click();
        const Archiv_Tahu& archiv = prostredi.Data->Archiv;
        const int posledni = tahy->List2Tah->count() - 1;
        Klikni(tahy->List2Tah, posledni);
        Klikni(tahy->List2Tah, posledni - 1);
        const QString cisla = Text_Cisel(
            {&archiv.Tahy_2[std::size_t(archiv.Pocet_Tahy_2)], &archiv.Tahy_2[std::size_t(archiv.Pocet_Tahy_2 - 1)]});
        QCOMPARE(okno.Stav()->txtRozpisAktivni->text(), cisla);
        QTest::mouseClick(tahy->Command1, Qt::LeftButton);
        QCoreApplication::processEvents();
        QVERIFY(okno.Najdi_Okno<frmVypisTahu>() == nullptr);
        QVERIFY(okno.Najdi_Okno<frmAnalyzaTahu>() == nullptr);
        QVERIFY(okno.Najdi_Okno<frmGeneruj>() != nullptr);
        QCOMPARE(int(prostredi.Data->Generator.Vyber.Pocet_Pouzit), int(cisla.count(u' ')));
    }

    void Tipy_Animace_A_Novy_Archiv() {
        Prostredi prostredi(QDate(2026, 11, 28));
        Zapis_Souboru(prostredi.Cesta(u"t12.tip"_qs), Soubor_Tipu(12));
        frmMDITombi& okno = prostredi.Spust();
        okno.Milisekund_Sekundy = 1;
        prostredi.Otevri_Tipy(u"t12.tip"_qs);
        frmVypisTahu* tahy = Otevri(prostredi);
        auto* tipy = okno.Najdi_Okno<frmVypisTipu>();
        QVERIFY(tipy != nullptr);
        QCOMPARE(tahy->parentWidget()->y(), tipy->parentWidget()->height());

        // Beside the tips a click gives the tip list its draw and leaves the editor alone.
        const int posledni = tahy->List1Tah->count() - 1;
        Klikni(tahy->List1Tah, posledni - 1);
        QCOMPARE(tipy->Vyhodnoceni->txtPocet_1Tahu->text(), u"2"_qs);
        QVERIFY(tahy->txtRok->text().isEmpty());

        // A replay from a clicked line runs to the end of the list and waits on "STOP".
        tipy->close();
        QCoreApplication::processEvents();
        Klikni(tahy->List1Tah, posledni - 4);
        QTest::mouseClick(tahy->cmdAnimace, Qt::LeftButton);
        QCOMPARE(tahy->List1Tah->currentRow(), posledni);
        QCOMPARE(tahy->cmdAnimace->text(), u"STOP"_qs);
        const Archiv_Tahu& archiv = prostredi.Data->Archiv;
        QCOMPARE(okno.Stav()->txtRozpisAktivni->text(), Text_Cisel({&archiv.Tahy_1[std::size_t(archiv.Pocet_Tahy_1)]}));
        QTest::mouseClick(tahy->cmdAnimace, Qt::LeftButton);
        QCOMPARE(tahy->cmdAnimace->text(), u"Animace"_qs);
        QVERIFY(!prostredi.Data->Animace_Bezi);

        // A day without an archive empties the list; the first draw typed in makes the archive,
        // and the commands of the archive come on.
        QFile::remove(prostredi.Cesta(u"SpS_tahy.sez"_qs));
        prostredi.Prikaz(u"mnuSportka_streda"_qs)->trigger();
        QVERIFY(okno.Bez_Tahu());
        QCOMPARE(tahy->List1Tah->count(), 0);
        QVERIFY(!prostredi.Prikaz(u"mnuAnalyza"_qs)->isEnabled());
        QVERIFY(okno.Zavri_Okno<frmVypisTahu>());
        prostredi.Prikaz(u"mnuRozsirSouborTahy"_qs)->trigger();
        tahy = okno.Najdi_Okno<frmVypisTahu>();
        QVERIFY(tahy != nullptr);
        tahy->cboTah[0]->click();
        tahy->txtRok->setText(u"2026"_qs);
        tahy->txtTyden->setText(u"47"_qs);
        for (int i = 0; i < 6; ++i)
            tahy->txtTah_Cislo[std::size_t(i)]->setText(QString::number(10 + i));
        QTest::mouseClick(tahy->cmdDalsiTah, Qt::LeftButton);
        QVERIFY(QFile::exists(prostredi.Cesta(u"SpS_tahy.sez"_qs)));
        QVERIFY(!okno.Bez_Tahu());
        QVERIFY(prostredi.Prikaz(u"mnuAnalyza"_qs)->isEnabled());
        QCOMPARE(okno.Stav()->txtSportka_Tah->text(), u"STŘEDA"_qs);
        QCOMPARE(tahy->List1Tah->count(), 2);
    }
};

QTEST_MAIN(Test_frmVypisTahu)
#include "Test_frmVypisTahu.moc"
