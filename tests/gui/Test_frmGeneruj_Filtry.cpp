// The filter panel of the generator window: the boxes with the rules that keep their limits sane,
// what a run takes from them, and the state a second opening finds.
#include "Prostredi_Okna.h"
#include "generator/Generator.h"
#include "generator/frmGeneruj.h"
#include "generator/frmGeneruj_Omezeni.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
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

} // namespace

class Test_frmGeneruj_Filtry final : public QObject {
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
};

QTEST_MAIN(Test_frmGeneruj_Filtry)
#include "Test_frmGeneruj_Filtry.moc"
