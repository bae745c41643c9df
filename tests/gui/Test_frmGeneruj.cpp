// The generator window over the frame: a run of 25 tips lands in the tip list on three tickets, the
// same seed gives the same tips, a stop keeps what was made, the counts guard themselves, a
// bettors' list holds the count, and picked numbers of the status band become the pool.
#include "Prostredi_Okna.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi_Stav.h"
#include "generator/frmGeneruj.h"
#include "generator/frmGeneruj_Omezeni.h"
#include "generator/frmGeneruj_Vyber.h"
#include "tips/frmVypisTipu.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

namespace {

frmGeneruj* Otevri_Generator(Prostredi& prostredi) {
    prostredi.Prikaz(u"mnuGenerujTipy"_qs)->trigger();
    return prostredi.Okno->Najdi_Okno<frmGeneruj>();
}

// Types a number into a box as the user would.
void Napis(QLineEdit* pole, const QString& text) {
    pole->setFocus();
    pole->selectAll();
    QTest::keyClicks(pole, text);
}

} // namespace

class Test_frmGeneruj final : public QObject {
    Q_OBJECT

private slots:
    void Beh_A_Predani() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& okno = prostredi.Spust();
        frmGeneruj* generator = Otevri_Generator(prostredi);
        QVERIFY(generator != nullptr);
        QCOMPARE(generator->txtPoc_Tipu->text(), u"8"_qs);
        QCOMPARE(generator->txtPoc_Tiketu->text(), u"1"_qs);
        QVERIFY(generator->lstSportka->item(24)->flags().testFlag(Qt::ItemIsEnabled));

        Napis(generator->txtPoc_Tipu, u"25"_qs);
        QCOMPARE(generator->txtPoc_Tiketu->text(), u"3"_qs);
        QCOMPARE(generator->lblVklad->text().trimmed(), u"300"_qs);
        generator->txtVlastni_Seminko->setText(u"4242"_qs);
        QTest::mouseClick(generator->cmdOK, Qt::LeftButton);

        // The generator hands over to the tip list: 25 tips on tickets of 10, 10 and 5.
        QCoreApplication::processEvents();
        QVERIFY(okno.Najdi_Okno<frmGeneruj>() == nullptr);
        auto* vypis = okno.Najdi_Okno<frmVypisTipu>();
        QVERIFY(vypis != nullptr);
        QCOMPARE(vypis->List1->count(), 12 + 12 + 6);
        QCOMPARE(int(prostredi.Data->Tipy.Pocet_Tipu_Aktivni), 25);
        QCOMPARE(int(prostredi.Data->Tipy.Soubor_Tipu.Pocet_Tiketu), 3);
        QVERIFY(prostredi.Data->Tikety.Zmena_Dat);
        QCOMPARE(prostredi.Data->Generator.Seminko_Behu, std::optional<uint64_t>(4242));
        const Zaznam_Tipu prvni = prostredi.Data->Tipy.Soubor_Tipu;

        // "Opakovat gen." brings the generator back with its settings; the same seed, the same tips.
        QTest::mouseClick(vypis->cmdOpakovatGener, Qt::LeftButton);
        QCoreApplication::processEvents();
        generator = okno.Najdi_Okno<frmGeneruj>();
        QVERIFY(generator != nullptr);
        QCOMPARE(generator->txtSeminko->text(), u"4242"_qs);
        QCOMPARE(generator->txtPoc_Tipu->text(), u"25"_qs);
        generator->txtVlastni_Seminko->setText(u"4242"_qs);
        QTest::mouseClick(generator->cmdOK, Qt::LeftButton);
        QCoreApplication::processEvents();
        QCOMPARE(prostredi.Data->Tipy.Soubor_Tipu, prvni);
    }

    void Zastaveni_Behu() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& okno = prostredi.Spust();
        frmGeneruj* generator = Otevri_Generator(prostredi);
        Napis(generator->txtPoc_Tipu, u"9500"_qs);
        // "Konec" as soon as the run is in its third ticket.
        QTimer hlidac;
        bool stisknuto = false;
        connect(&hlidac, &QTimer::timeout, generator, [&] {
            if (!stisknuto && generator->Bezi() && generator->lblTiket->text().toInt() >= 3) {
                QCOMPARE(generator->cmdZrusit->text(), u"&Konec"_qs);
                QVERIFY(!generator->cmdOK->isEnabled());
                QTest::mouseClick(generator->cmdZrusit, Qt::LeftButton);
                stisknuto = true;
            }
        });
        hlidac.start(0);
        QTest::mouseClick(generator->cmdOK, Qt::LeftButton);
        hlidac.stop();
        QVERIFY(stisknuto);
        QCoreApplication::processEvents();

        const int hotovo = prostredi.Data->Generator.Pocet_Tipu_Hotovo;
        QVERIFY(hotovo >= 20 && hotovo < 9500);
        auto* vypis = okno.Najdi_Okno<frmVypisTipu>();
        QVERIFY(vypis != nullptr);
        QCOMPARE(int(prostredi.Data->Tipy.Pocet_Tipu_Aktivni), hotovo);
        QCOMPARE(int(prostredi.Data->Tipy.Soubor_Tipu.Pocet_Tipu), hotovo);
        QVERIFY(!prostredi.Data->Sluzby->Pracuje());
    }

    void Pocty_A_Kontrola() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& okno = prostredi.Spust();
        QApplication::setActiveWindow(&okno);
        frmGeneruj* generator = Otevri_Generator(prostredi);

        Napis(generator->txtPoc_Tipu, u"9999"_qs);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Osm tisic tipů snad stačí !!!"_qs});
        QCOMPARE(generator->txtPoc_Tipu->text(), u"8000"_qs);
        QCOMPARE(generator->txtPoc_Tiketu->text(), u"800"_qs);
        // The first key in the tickets box writes the tips, whose echo then holds the tickets box
        // to itself until the tips box has had and lost the focus.
        Napis(generator->txtPoc_Tiketu, u"3"_qs);
        QCOMPARE(generator->txtPoc_Tipu->text(), u"30"_qs);
        Napis(generator->txtPoc_Tiketu, u"4"_qs);
        QCOMPARE(generator->txtPoc_Tipu->text(), u"30"_qs);
        generator->txtPoc_Tipu->setFocus();
        generator->txtPoc_Tiketu->setFocus();
        generator->txtPoc_Tiketu->setText(u"999"_qs);
        QCOMPARE(generator->txtPoc_Tiketu->text(), u"950"_qs);
        QCOMPARE(generator->txtPoc_Tipu->text(), u"9500"_qs);
        generator->chkSance->setChecked(true);
        QVERIFY(prostredi.Data->Generator.Stav_Sance);

        // "Použít" with too few numbers refuses the run.
        generator->Vyber->optVybrana_Cisla[1]->click();
        QTest::mouseClick(generator->cmdOK, Qt::LeftButton);
        QVERIFY(prostredi.Oznameni().contains(u"Vyber více čísel ..."_qs));
        QVERIFY(generator->isVisible());

        generator->txtPoc_Tipu->clear();
        generator->Vyber->optVybrana_Cisla[0]->click();
        QTest::mouseClick(generator->cmdOK, Qt::LeftButton);
        QVERIFY(prostredi.Oznameni().contains(u"Prosím doplnit Počet tipů nebo tiketů."_qs));
    }

    void Nesplnitelna_Omezeni() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& okno = prostredi.Spust();
        frmGeneruj* generator = Otevri_Generator(prostredi);
        frmGeneruj_Omezeni* omezeni = generator->Omezeni;
        // A range of five numbers is refused before the run; the window stays for a change.
        omezeni->Check1[9]->setChecked(true);
        omezeni->txtRozsah_Min_Max[1]->setText(u"5"_qs);
        QTest::mouseClick(generator->cmdOK, Qt::LeftButton);
        QVERIFY(prostredi.Oznameni().contains(u"Rozsah čísel 1 - 5 je užší než 6 čísel, která tip potřebuje."_qs));
        QVERIFY(okno.Najdi_Okno<frmGeneruj>() == generator);
        QVERIFY(!generator->Bezi());
        omezeni->Check1[9]->setChecked(false);
        // The same tutovka twice never reaches a tip.
        generator->Vyber->txtTutovka[0]->setText(u"5"_qs);
        generator->Vyber->txtTutovka[1]->setText(u"5"_qs);
        QTest::mouseClick(generator->cmdOK, Qt::LeftButton);
        QVERIFY(prostredi.Oznameni().contains(
            u"Tutovka 5 je zadána dvakrát: tip nesmí obsahovat stejné číslo dvakrát."_qs));
        QVERIFY(!generator->Bezi());
        generator->Vyber->txtTutovka[0]->clear();
        generator->Vyber->txtTutovka[1]->clear();

        // Six even numbers never sum to 151: the progress area names the filter until "Konec".
        omezeni->Check1[5]->setChecked(true);
        omezeni->txtSudLich[1]->setText(u"6"_qs);
        omezeni->txtSudLich[0]->setText(u"0"_qs);
        omezeni->Check1[8]->setChecked(true);
        omezeni->txtSuma[1]->setText(u"152"_qs);
        omezeni->txtSuma[0]->setText(u"150"_qs);
        QString stav;
        QTimer hlidac;
        connect(&hlidac, &QTimer::timeout, generator, [&] {
            if (stav.isEmpty() && !generator->lblStav_Behu->text().isEmpty()) {
                stav = generator->lblStav_Behu->text();
                QTest::mouseClick(generator->cmdZrusit, Qt::LeftButton);
            }
        });
        hlidac.start(0);
        QTest::mouseClick(generator->cmdOK, Qt::LeftButton);
        hlidac.stop();
        QVERIFY2(stav.contains(u"\"sudá / lichá / rozptyl\""_qs), qPrintable(stav));
        QCOMPARE(prostredi.Data->Generator.Pocet_Tipu_Hotovo, 0);
    }

    void Sazejici_A_Cisla_Ze_Stavu() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& okno = prostredi.Spust();
        prostredi.Data->Seznam.Seznam.resize(4);
        frmGeneruj* generator = Otevri_Generator(prostredi);
        QVERIFY(!generator->fraTypyRozpisu->isVisible());
        QVERIFY(!generator->chkSance->isVisible());
        QVERIFY(!generator->txtPoc_Tipu->isEnabled());
        QTest::mouseClick(generator->cmdUvolnit_Seznam_Sazejicich, Qt::LeftButton);
        QCOMPARE(prostredi.Data->Seznam.Pocet_Sazejicich(), 0);
        QVERIFY(generator->fraTypyRozpisu->isVisible());
        QVERIFY(generator->txtPoc_Tipu->isEnabled());
        QCOMPARE(generator->txtPoc_Tipu->text(), u"8"_qs);

        // Numbers picked elsewhere become the pool of "Použít"; the run uses only them.
        okno.Stav()->txtRozpisAktivni->setText(u" 3 5 8 13 21 34 40 44 47"_qs);
        generator = frmGeneruj::Nacti_Cisla_Do_Generatoru(okno);
        QVERIFY(generator->Vyber->optVybrana_Cisla[1]->isChecked());
        QCOMPARE(prostredi.Data->Generator.Vyber.Pocet_Pouzit, 9);
        QTest::mouseClick(generator->cmdOK, Qt::LeftButton);
        QCoreApplication::processEvents();
        const QList<int> pouzit = {3, 5, 8, 13, 21, 34, 40, 44, 47};
        for (const Tip& tip : prostredi.Data->Tipy.Soubor_Tipu.Tikety[1].Cisla)
            for (const uint8_t n : tip)
                QVERIFY(n == 0 || pouzit.contains(n));
        QCOMPARE(int(prostredi.Data->Tipy.Pocet_Tipu_Aktivni), 8);
    }
};

QTEST_MAIN(Test_frmGeneruj)
#include "Test_frmGeneruj.moc"
