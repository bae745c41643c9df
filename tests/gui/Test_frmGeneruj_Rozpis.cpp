// The generator with a wheel: choosing one shows its columns and guarantees and locks the counts,
// the numbers picked on the grid or at random are wheeled into the tip list, two wheels joined
// stand in the list of all tips, and a .rzp is read with its checks.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "app/frmSloupec_Tiketu.h"
#include "generator/Soubor_Vyb.h"
#include "generator/frmGeneruj.h"
#include "generator/frmGeneruj_Vyber.h"
#include "tips/frmVypisTipu.h"
#include "tips/frmVypisTipuVsech.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextEdit>

namespace {

frmGeneruj* Otevri(Prostredi& prostredi) {
    prostredi.Prikaz(u"mnuGenerujTipy"_qs)->trigger();
    return prostredi.Okno->Najdi_Okno<frmGeneruj>();
}

void Zvol(frmGeneruj* okno, int rozpis) {
    emit okno->lstSportka->itemClicked(okno->lstSportka->item(rozpis));
}

} // namespace

class Test_frmGeneruj_Rozpis final : public QObject {
    Q_OBJECT

private slots:
    void Rozpis_Z_Mrizky_Do_Vypisu() {
        Prostredi prostredi(QDate(2026, 11, 21));
        prostredi.Spust();
        frmGeneruj* okno = Otevri(prostredi);
        Zvol(okno, 10);
        QCOMPARE(okno->txtPoc_Tipu->text(), u"5"_qs);
        QVERIFY(!okno->txtPoc_Tipu->isEnabled());
        QCOMPARE(okno->Vyber->txtZbytek_Cisel->text(), u"10"_qs);
        QVERIFY2(okno->lblZaruky->text().startsWith(u"Záruka: 3 z 4, 4 z 6"_qs), qPrintable(okno->lblZaruky->text()));
        QVERIFY2(okno->lblZaruky->text().contains(u"aspoň 5. pořadí 7,1 %"_qs), qPrintable(okno->lblZaruky->text()));

        // Too few numbers: the run is refused.
        for (int n : {5, 10, 15, 20, 25, 30, 35, 40, 45})
            emit okno->Vyber->picSloupec->Klik(n, Qt::LeftButton, false);
        okno->cmdOK->click();
        QVERIFY(prostredi.Oznameni().contains(u"Není výbrán správný počet čísel ..."_qs));
        emit okno->Vyber->picSloupec->Klik(49, Qt::LeftButton, false);
        QCOMPARE(okno->Vyber->txtZbytek_Cisel->text(), u"0"_qs);
        okno->cmdOK->click();
        QVERIFY(prostredi.Okno->Najdi_Okno<frmGeneruj>() == nullptr);
        QVERIFY(prostredi.Okno->Najdi_Okno<frmVypisTipu>() != nullptr);
        const Zaznam_Tipu& z = prostredi.Data->Tipy.Soubor_Tipu;
        QCOMPARE(z.Tikety[1].Cisla[1], (Tip{{5, 10, 15, 20, 40, 45}}));
        QCOMPARE(Pocet_Tipu_V_Souboru(z), 5);
        QCOMPARE(int(prostredi.Data->Tipy.Pocet_Tipu_Aktivni), 5);
    }

    void Spojene_Rozpisy_A_Nahodna_Cisla() {
        Prostredi prostredi(QDate(2026, 11, 21));
        prostredi.Spust();
        frmGeneruj* okno = Otevri(prostredi);
        Zvol(okno, 2);
        const QString zaruky = okno->lblZaruky->text();
        okno->chkSpojvatRozpisy->setChecked(true);
        for (int kolo = 0; kolo < 2; ++kolo) {
            // A run ended asks long jobs to stop; the guarantees are still worked out whole.
            QCOMPARE(okno->lblZaruky->text(), zaruky);
            okno->Vyber->optZpusob_Vyberu[1]->click();
            QCOMPARE(okno->Vyber->txtZbytek_Cisel->text(), u"0"_qs);
            const QString tutovka = okno->Vyber->txtTutovka[0]->text();
            QVERIFY(!tutovka.isEmpty());
            okno->cmdOK->click();
            // Every tip of the wheel carries its tutovka first.
            const Zaznam_Tipu& z = prostredi.Data->Tipy.Soubor_Tipu;
            for (int i = kolo * 14; i < kolo * 14 + 14; ++i)
                QCOMPARE(QString::number(z.Tikety[i / 10 + 1].Cisla[i % 10 + 1][1]), tutovka);
            Zvol(okno, 2);
        }
        QVERIFY(prostredi.Okno->Najdi_Okno<frmGeneruj>() != nullptr);
        auto* vsech = prostredi.Okno->Najdi_Okno<frmVypisTipuVsech>();
        QVERIFY(vsech != nullptr);
        QCOMPARE(vsech->rtbVypisTipuVsech->toPlainText().split(u'\n', Qt::SkipEmptyParts).size(), 28);
        QCOMPARE(Pocet_Tipu_V_Souboru(prostredi.Data->Tipy.Soubor_Tipu), 28);
    }

    void Cisla_Rozpisu_Z_Vyb() {
        Prostredi prostredi(QDate(2026, 11, 21));
        prostredi.Spust();
        frmGeneruj* okno = Otevri(prostredi);
        Zaznam_Vyb zaznam;
        zaznam.Rozpis = 10;
        zaznam.Pocet_Cisel = 10;
        for (int i = 1; i <= 10; ++i)
            zaznam.Cisla[i] = uint8_t(4 * i);
        Zapis_Souboru(prostredi.Cesta(u"w10.vyb"_qs), Zapis_Zaznam_Vyb(zaznam));
        prostredi.Dialogy.Soubory.enqueue(prostredi.Cesta(u"w10.vyb"_qs));
        okno->Vyber->Otevri_Soubor_JenCisla->click();
        QCOMPARE(okno->lstSportka->currentRow(), 10);
        QCOMPARE(okno->Vyber->txtZbytek_Cisel->text(), u"0"_qs);
        okno->cmdOK->click();
        QCOMPARE(prostredi.Data->Tipy.Soubor_Tipu.Tikety[1].Cisla[1], (Tip{{4, 8, 12, 16, 32, 36}}));
    }

    void Rozpis_Ze_Souboru() {
        Prostredi prostredi(QDate(2026, 11, 21));
        prostredi.Spust();
        frmGeneruj* okno = Otevri(prostredi);
        Zapis_Souboru(prostredi.Cesta(u"spatny.rzp"_qs), "0 7 2\r\n1 2 3 4 5 6\r\n1 2 3 4 5 6\r\n");
        prostredi.Dialogy.Soubory.enqueue(prostredi.Cesta(u"spatny.rzp"_qs));
        Zvol(okno, 1);
        QVERIFY(prostredi.Oznameni().contains(u"Chyba v rozpisu, rozdíl mezi počtem čísel a největším číslem !"_qs));
        QCOMPARE(okno->lstSportka->currentRow(), 0);
        QVERIFY(okno->txtPoc_Tipu->isEnabled());

        Zapis_Souboru(prostredi.Cesta(u"dva.rzp"_qs), "REM dva tipy\r\n1 7 2\r\n1 2 3 4 5\r\n3 4 5 6 7\r\n");
        prostredi.Dialogy.Soubory.enqueue(prostredi.Cesta(u"dva.rzp"_qs));
        Zvol(okno, 1);
        QCOMPARE(okno->windowTitle(), u"Generování tipů, Volba rozpisu          aktivní rozpis - dva.rzp"_qs);
        QCOMPARE(okno->txtPoc_Tipu->text(), u"2"_qs);
        QCOMPARE(okno->Vyber->txtZbytek_Cisel->text(), u"8"_qs);
        QVERIFY(okno->lblZaruky->isVisible() || !okno->isVisible());
        emit okno->Vyber->picSloupec->Klik(40, Qt::RightButton, false);
        for (int n = 1; n <= 7; ++n)
            emit okno->Vyber->picSloupec->Klik(n, Qt::LeftButton, false);
        okno->cmdOK->click();
        const Zaznam_Tipu& z = prostredi.Data->Tipy.Soubor_Tipu;
        QCOMPARE(z.Tikety[1].Cisla[1], (Tip{{40, 1, 2, 3, 4, 5}}));
        QCOMPARE(z.Tikety[1].Cisla[2], (Tip{{40, 3, 4, 5, 6, 7}}));
        QCOMPARE(Pocet_Tipu_V_Souboru(z), 2);
    }
};

QTEST_MAIN(Test_frmGeneruj_Rozpis)
#include "Test_frmGeneruj_Rozpis.moc"
