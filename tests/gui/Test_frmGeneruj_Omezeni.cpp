// The filter panel on its own: defaults, the rules that keep the limits sane, what a run takes from
// it, the run and wheel modes, and what a later opening restores.
#include "Prostredi_Okna.h"
#include "generator/Generator.h"
#include "generator/frmGeneruj_Omezeni.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QTest>

namespace {

// The panel in a window of its own; shown and active, its boxes take the focus.
struct Panel {
    QWidget Nosic;
    frmGeneruj_Omezeni* O;
    explicit Panel(Relace& sezeni) : O(new frmGeneruj_Omezeni(sezeni, &Nosic)) {}
    void Ukaz() {
        Nosic.show();
        QApplication::setActiveWindow(&Nosic);
        QVERIFY(QTest::qWaitForWindowActive(&Nosic));
    }
};

void Napis(QLineEdit* pole, const QString& text) {
    pole->setFocus();
    pole->selectAll();
    QTest::keyClicks(pole, text);
}

QString Texty(std::initializer_list<const QLineEdit*> pole) {
    QStringList texty;
    for (const QLineEdit* p : pole)
        texty << p->text();
    return texty.join(u' ');
}

} // namespace

class Test_frmGeneruj_Omezeni final : public QObject {
    Q_OBJECT

private slots:
    void Limity() {
        Prostredi prostredi(QDate(2026, 11, 28));
        prostredi.Spust();
        Relace& s = *prostredi.Data;
        Panel panel(s);
        panel.Ukaz();
        frmGeneruj_Omezeni* o = panel.O;
        QCOMPARE(Texty({o->txtOmezeni[0], o->txtOmezeni[1], o->txtOmezeni[2], o->Text4, o->txtCisel_V_Dekade,
                        o->txtSudLich[1], o->txtSudLich[2], o->txtSudLich[0], o->Text7, o->Text8, o->txtSuma[0],
                        o->txtSuma[1], o->txtRozsah_Min_Max[0], o->txtRozsah_Min_Max[1], o->txtPrunik}),
                 u"3 2 3 0 3 3 3 1 1 0 125 175 1 49 1"_qs);
        QCOMPARE(o->Vynech_Tahy_2_Od->text().toInt(), s.Archiv.Pocet_Tahy_2);

        // Ticking enables the limits and puts the cursor into the first; unticking greys them.
        QVERIFY(!o->txtSudLich[1]->isEnabled());
        o->Check1[5]->click();
        QVERIFY(o->txtSudLich[0]->isEnabled() && o->txtSudLich[1]->hasFocus());
        o->Check1[8]->click();
        o->Check1[8]->click();
        QVERIFY(!o->txtSuma[1]->isEnabled() && !s.Generator.Omezeni.Check1[8]);
        o->Check1[8]->click();

        // Even and odd make six, a 0 shows blank, beyond six both go back to 3; a spread of 2
        // beside a 5 is 1.
        Napis(o->txtSudLich[1], u"6"_qs);
        QCOMPARE(o->txtSudLich[2]->text(), QString());
        Napis(o->txtSudLich[1], u"9"_qs);
        QCOMPARE(Texty({o->txtSudLich[1], o->txtSudLich[2]}), u"3 3"_qs);
        Napis(o->txtSudLich[2], u"5"_qs);
        Napis(o->txtSudLich[0], u"2"_qs);
        QCOMPARE(Texty({o->txtSudLich[1], o->txtSudLich[2], o->txtSudLich[0]}), u"1 5 1"_qs);

        o->Check1[1]->click();
        Napis(o->Text4, u"256"_qs);
        QCOMPARE(o->Text4->text(), u"0"_qs);

        // Sums the wrong way round are swapped on leaving, with a word; a range silently.
        Napis(o->txtSuma[1], u"110"_qs);
        o->txtSuma[0]->setFocus();
        QCOMPARE(Texty({o->txtSuma[0], o->txtSuma[1]}), u"110 125"_qs);
        QCOMPARE(prostredi.Oznameni(), QStringList({u"Hodnoty, zaměněny."_qs}));
        o->Check1[9]->click();
        Napis(o->txtRozsah_Min_Max[0], u"30"_qs);
        Napis(o->txtRozsah_Min_Max[1], u"7"_qs);
        o->txtSuma[0]->setFocus();
        QCOMPARE(Texty({o->txtRozsah_Min_Max[0], o->txtRozsah_Min_Max[1]}), u"7 30"_qs);
        QCOMPARE(prostredi.Oznameni().size(), 1);

        // Three tutovky leave room for an overlap of 2 at most.
        o->Check1[10]->click();
        Napis(o->txtPrunik, u"4"_qs);
        o->Tutovky_Zmeneny(3);
        QCOMPARE(o->txtPrunik->text(), u"2"_qs);

        s.Nastaveni.Pocet_Pruchodu = 17;
        Zadani_Generatoru z;
        o->Vypln_Zadani(z);
        QCOMPARE(z.Check1, (std::array<bool, 11>{false, true, false, false, false, true, false, false, true, true, true}));
        QCOMPARE(std::tuple(z.Sudych, z.Lichych, z.Rozptyl, z.Prunik, z.Rozsah[0]), std::tuple(1.0, 5.0, 1.0, 2.0, 7.0));
        QCOMPARE(std::tuple(z.Vynech_Tahy_1_Od, z.Pocet_Pruchodu), std::tuple(double(s.Archiv.Pocet_Tahy_1), 17));
        QVERIFY(z.Tahy_2 == &s.Archiv.Tahy_2);
        QCOMPARE(s.Generator.Omezeni.Suma, (std::array<double, 2>{110, 125}));
    }

    void Stav_A_Rezimy() {
        Prostredi prostredi(QDate(2026, 11, 28));
        prostredi.Spust();
        Relace& s = *prostredi.Data;
        Zadani_Generatoru& stav = s.Generator.Omezeni;
        const auto zanech_stav = [&stav] {
            stav.Check1[3] = stav.Check1[6] = stav.Check1[2] = true;
            stav.Max_Tretich_Cen = 9;
            stav.Max_Dvojic = 0;
            stav.Limit_Dekada = 1;
            stav.Rozptyl = 0;
            stav.Suma = {0, 0};
            stav.Rozsah = {0, 20};
        };
        zanech_stav();
        // A first opening starts from the defaults, whatever the record holds.
        QVERIFY(Panel(s).O->Text7->text() == u"1"_qs && !stav.Check1[3]);

        // Later the state comes back; the count of tips the window sets while it loads doesn't
        // replace the restored third-prize limit, a change once it shows does.
        zanech_stav();
        s.Generator.Cislo_Rozpisu = 0;
        Panel panel(s);
        frmGeneruj_Omezeni* o = panel.O;
        o->Pocet_Tipu_Zmenen(500);
        QVERIFY(o->Check1[3]->isChecked() && o->Check1[6]->isChecked() && o->txtCisel_V_Dekade->isEnabled());
        QCOMPARE(Texty({o->Text4, o->Text7, o->txtCisel_V_Dekade, o->txtSudLich[0], o->txtSuma[0], o->txtRozsah_Min_Max[1]}),
                 u"9 0 3 1 125 20"_qs);
        panel.Ukaz();
        o->Pocet_Tipu_Zmenen(500);
        QCOMPARE(o->Text4->text(), u"10"_qs);

        // Wheels: every filter off, two of them gone; the way back gives the limits of ticked
        // filters only, as the end of a run does.
        o->Zakaz_Omezeni();
        QVERIFY(!o->Check1[3]->isChecked() && !o->Check1[3]->isEnabled() && !stav.Check1[3]);
        QVERIFY(!o->Check1[2]->isVisible() && !o->Check1[4]->isVisible() && !o->Vynech_Tahy_1_Od->isVisible());
        o->Check1[6]->setChecked(true);
        o->Povol_Omezeni();
        QVERIFY(o->Check1[2]->isVisible() && o->Check1[4]->isVisible() && o->Check1[3]->isEnabled());
        QVERIFY(o->Text7->isEnabled() && !o->txtCisel_V_Dekade->isEnabled());

        // Without draws the archive filter isn't offered and a run gets no lists.
        zanech_stav();
        s.Archiv.Tahy_Nacteny = false;
        s.Archiv.Pocet_Tahy_1 = s.Archiv.Pocet_Tahy_2 = 0;
        Panel bez_tahu(s);
        QVERIFY(bez_tahu.O->Check1[2]->isHidden() && !bez_tahu.O->Check1[1]->isHidden());
        Zadani_Generatoru z;
        bez_tahu.O->Vypln_Zadani(z);
        QVERIFY(!z.Check1[2] && z.Check1[3] && z.Tahy_1 == nullptr && z.Tahy_2 == nullptr);
    }
};

QTEST_MAIN(Test_frmGeneruj_Omezeni)
#include "Test_frmGeneruj_Omezeni.moc"
