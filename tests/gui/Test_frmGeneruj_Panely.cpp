// The two panels of the generator window: the filter boxes with the rules that keep their limits
// sane and the state a second opening finds, and the number pools with tutovky, ranges, the
// exchange and the .vyb files.
#include "Prostredi_Okna.h"
#include "app/frmSloupec_Tiketu.h"
#include "generator/Generator.h"
#include "generator/frmGeneruj.h"
#include "generator/frmGeneruj_Omezeni.h"
#include "generator/frmGeneruj_Vyber.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace {

frmGeneruj* Otevri_Generator(Prostredi& prostredi) {
    prostredi.Prikaz(u"mnuGenerujTipy"_qs)->trigger();
    return prostredi.Okno->Najdi_Okno<frmGeneruj>();
}

void Napis(QLineEdit* pole, const QString& text) {
    pole->setFocus();
    pole->selectAll();
    QTest::keyClicks(pole, text);
}

void Klikni(frmGeneruj_Vyber* vyber, int cislo, Qt::MouseButton tlacitko = Qt::LeftButton) {
    emit vyber->picSloupec->Klik(cislo, tlacitko, false);
}

} // namespace

class Test_frmGeneruj_Panely final : public QObject {
    Q_OBJECT

private slots:
    void Omezeni() {
        Prostredi prostredi(QDate(2026, 11, 26));
        frmMDITombi& okno = prostredi.Spust();
        QApplication::setActiveWindow(&okno);
        frmGeneruj_Omezeni* o = Otevri_Generator(prostredi)->Omezeni;
        QCOMPARE(o->Vynech_Tahy_1_Od->text(), QString::number(prostredi.Data->Archiv.Pocet_Tahy_1));
        QVERIFY(!o->txtSuma[0]->isEnabled());
        o->Check1[8]->setChecked(true);
        QVERIFY(o->txtSuma[0]->isEnabled());
        o->Check1[5]->setChecked(true);

        // Even and odd make six; out of range both go back to three; a spread of 2 beside 5 is 1.
        Napis(o->txtSudLich[1], u"4"_qs);
        QCOMPARE(o->txtSudLich[2]->text(), u"2"_qs);
        Napis(o->txtSudLich[1], u"7"_qs);
        QCOMPARE(std::pair(o->txtSudLich[1]->text(), o->txtSudLich[2]->text()), std::pair(u"3"_qs, u"3"_qs));
        Napis(o->txtSudLich[1], u"5"_qs);
        Napis(o->txtSudLich[0], u"2"_qs);
        QCOMPARE(o->txtSudLich[0]->text(), u"1"_qs);
        Napis(o->Text4, u"300"_qs);
        QCOMPARE(o->Text4->text(), u"0"_qs);

        // Sums out of order are swapped with a word on leaving; a range silently.
        Napis(o->txtSuma[1], u"100"_qs);
        o->txtSuma[0]->setFocus();
        QCOMPARE(prostredi.Oznameni().last(), u"Hodnoty, zaměněny."_qs);
        QCOMPARE(std::pair(o->txtSuma[0]->text(), o->txtSuma[1]->text()), std::pair(u"100"_qs, u"125"_qs));
        o->Check1[9]->setChecked(true);
        Napis(o->txtRozsah_Min_Max[1], u"7"_qs);
        Napis(o->txtRozsah_Min_Max[0], u"30"_qs);
        o->txtSuma[0]->setFocus();
        QCOMPARE(std::pair(o->txtRozsah_Min_Max[0]->text(), o->txtRozsah_Min_Max[1]->text()), std::pair(u"7"_qs, u"30"_qs));

        Zadani_Generatoru z;
        o->Vypln_Zadani(z);
        QVERIFY(z.Check1[5] && z.Check1[8] && !z.Check1[1]);
        QCOMPARE(std::pair(z.Sudych, z.Lichych), std::pair(5.0, 1.0));
        QCOMPARE(z.Suma, (std::array<double, 2>{100, 125}));
        QVERIFY(z.Tahy_1 == &prostredi.Data->Archiv.Tahy_1);

        // A second opening finds the boxes and limits as they were left.
        QVERIFY(okno.Zavri_Okno<frmGeneruj>());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        o = Otevri_Generator(prostredi)->Omezeni;
        QVERIFY(o->Check1[8]->isChecked() && o->txtSuma[0]->isEnabled());
        QCOMPARE(o->txtSuma[0]->text(), u"100"_qs);
        QCOMPARE(o->txtSudLich[1]->text(), u"5"_qs);
    }

    void Vyber() {
        Prostredi prostredi(QDate(2026, 11, 26));
        prostredi.Spust();
        frmGeneruj_Vyber* v = Otevri_Generator(prostredi)->Vyber;
        const Vyber_Cisel& stav = prostredi.Data->Generator.Vyber;

        // "Bez výběru": a left click does nothing, right clicks set tutovky, a fourth is refused.
        Klikni(v, 5);
        QCOMPARE(stav.Pocet_Pouzit, 0);
        for (const int n : {5, 9, 14, 20})
            Klikni(v, n, Qt::RightButton);
        QCOMPARE(v->txtTutovka[2]->text(), u"14"_qs);
        QCOMPARE(stav.Pocet_Pouzit, 3);

        // "Použít": a range fills the list; a click on a chosen number takes it out, and the
        // tutovky stay in their boxes.
        v->optVybrana_Cisla[1]->click();
        v->optRozsah_Cisel[1]->click();
        QCOMPARE(stav.Pocet_Pouzit, 25);
        QCOMPARE(v->txtZbytek_Cisel->text(), u"24"_qs);
        Klikni(v, 20);
        QCOMPARE(stav.Pocet_Pouzit, 24);
        QCOMPARE(v->txtTutovka[0]->text(), u"5"_qs);

        // The exchange turns the pool to what is left out; a .vyb file keeps that mode.
        QTest::mouseClick(v->cmdZamenitCisla, Qt::LeftButton);
        QVERIFY(v->optVybrana_Cisla[2]->isChecked());
        QCOMPARE(stav.Pocet_Vynechat, 24);
        prostredi.Dialogy.Soubory.enqueue(prostredi.Cesta(u"vynechat.vyb"_qs));
        QTest::mouseClick(v->cmdUloz_Soubor_VybranaCisla, Qt::LeftButton);
        QTest::mouseClick(v->cmdOpakovat, Qt::LeftButton);
        QCOMPARE(stav.Pocet_Vynechat, 0);
        v->optVybrana_Cisla[1]->click();
        prostredi.Dialogy.Soubory.enqueue(prostredi.Cesta(u"vynechat.vyb"_qs));
        QTest::mouseClick(v->Otevri_Soubor_JenCisla, Qt::LeftButton);
        QVERIFY(v->optVybrana_Cisla[2]->isChecked());
        QCOMPARE(stav.Pocet_Vynechat, 24);
        QCOMPARE(v->txtZbytek_Cisel->text(), u"25"_qs);

        // A picked way of choosing needs a wheel.
        v->optZpusob_Vyberu[1]->click();
        QCOMPARE(prostredi.Oznameni().last(), u"Vyber čísla ručně ..."_qs);
        QVERIFY(v->optZpusob_Vyberu[0]->isChecked());
    }
};

QTEST_MAIN(Test_frmGeneruj_Panely)
#include "Test_frmGeneruj_Panely.moc"
