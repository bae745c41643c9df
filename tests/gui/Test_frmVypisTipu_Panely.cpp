// The first two panels of the tip list on their own: the counts of the choice of tips, marks and
// the tips they strike out; the on-line analysis of a clicked number.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "app/frmKresleni.h"
#include "tips/Vypis_Tipu.h"
#include "tips/frmVypisTipu_Analyza.h"
#include "tips/frmVypisTipu_Vyber.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

void Pridej(Relace& sezeni, std::initializer_list<std::initializer_list<int>> tipy) {
    for (const auto& tip : tipy)
        Pridej_Tip(sezeni.Tipy.Soubor_Tipu, sezeni.Tipy.Pocet_Tipu_Aktivni, Cisla<Tip>(tip));
    sezeni.Tipy.Pocet_Tipu_Celkem = sezeni.Tipy.Pocet_Tipu_Aktivni;
}

QColor Barva(const QLabel* popisek) {
    return popisek->palette().color(QPalette::Window);
}

} // namespace

class Test_frmVypisTipu_Panely final : public QObject {
    Q_OBJECT

private slots:
    void Vyber_Tipu() {
        Prostredi prostredi(QDate(2026, 11, 28));
        Relace& sezeni = prostredi.Spust().Sezeni();
        Pridej(sezeni, {{1, 2, 3, 4, 5, 6}, {2, 4, 6, 8, 10, 12}, {1, 3, 5, 7, 9, 11}, {1, 2, 3, 10, 20, 30}});
        sezeni.Nastaveni.Vyloucit_Sud_Lich[6] = 1; // 0/6, one tip
        sezeni.Nastaveni.Zrus_Tip_Sous_Cis[4] = 1; // two runs of three, no tip
        QWidget rodic;
        frmVypisTipu_Vyber panel(sezeni, &rodic);
        rodic.show();
        QSignalSpy zmena(&panel, &frmVypisTipu_Vyber::Zmena_Vyberu);
        panel.Vypocet_Pomeru();

        const QStringList pomery{u"1"_qs, QString(), u"1"_qs, u"1"_qs, QString(), QString(), u"1"_qs};
        for (int i = 0; i < 7; ++i)
            QCOMPARE(panel.lblPomer_SL[std::size_t(i)]->text(), pomery[i]);
        QCOMPARE(panel.lblSousedni_Cisla[7]->text(), u"1"_qs);
        QCOMPARE(panel.lblSousedni_Cisla[3]->text(), u"1"_qs);
        QCOMPARE(panel.lblSousedni_Cisla[4]->text(), QString());
        QCOMPARE(Vb::Val(panel.lblCisla_Pary->text()), 2.0);
        const QColor cervena = frmKresleni::Barva_Z_Vb(255);
        QCOMPARE(Barva(panel.lblPomer_SL[6]), cervena);
        QVERIFY(Barva(panel.lblSousedni_Cisla[4]) != cervena);

        // A click on an empty label does nothing; on a count it marks, at once in the settings.
        QTest::mouseClick(panel.lblSousedni_Cisla[0], Qt::LeftButton);
        QCOMPARE(sezeni.Nastaveni.Zrus_Tip_Sous_Cis[0], uint8_t(0));
        QCOMPARE(zmena.count(), 0);
        QTest::mouseClick(panel.lblSousedni_Cisla[7], Qt::LeftButton);
        QCOMPARE(Barva(panel.lblSousedni_Cisla[7]), cervena);
        QCOMPARE(sezeni.Nastaveni.Zrus_Tip_Sous_Cis[7], uint8_t(1));
        QCOMPARE(zmena.count(), 1);

        // The heading unmarks a group with a red label, and then marks every count.
        QTest::mouseClick(panel.Label25, Qt::LeftButton);
        QCOMPARE(sezeni.Nastaveni.Vyloucit_Sud_Lich, (std::array<uint8_t, 7>{}));
        QTest::mouseClick(panel.Label25, Qt::LeftButton);
        QCOMPARE(sezeni.Nastaveni.Vyloucit_Sud_Lich, (std::array<uint8_t, 7>{1, 0, 1, 1, 0, 0, 1}));
        QTest::mouseClick(panel.Label25, Qt::LeftButton);
        QTest::mouseClick(panel.lblPomer_SL[6], Qt::LeftButton);

        // 0/6 and the run of six go; a column limit of 0 strikes nothing more.
        panel.chkPonechat_MaxCis_Ve_Sloupci->setChecked(true);
        panel.txtMax_Ve_Sloupci->setText(u"0"_qs);
        QCOMPARE(sezeni.Nastaveni.Max_Ve_Sloupci, u"0"_qs);
        QVERIFY(panel.Vyber_Tipy());
        QCOMPARE(int(sezeni.Tipy.Pocet_Tipu_Aktivni), 2);
        QCOMPARE(sezeni.Tipy.Soubor_Tipu.Tikety[1].Cisla[1], Cisla<Tip>({2, 4, 6, 8, 10, 12}));
        panel.Vypocet_Pomeru();
        QCOMPARE(panel.lblSousedni_Cisla[7]->text(), QString());

        // Tips with given numbers go.
        panel.chkCislo_V_Tipu->setChecked(true);
        QTest::keyClicks(panel.txtCislo_V_Tipu, u"30 x 44"_qs);
        QCOMPARE(panel.txtCislo_V_Tipu->text(), u"30  44"_qs);
        QVERIFY(panel.Vyber_Tipy());
        QCOMPARE(int(sezeni.Tipy.Pocet_Tipu_Aktivni), 1);

        // An unsorted tip refuses the strike of pairs with its message and asks for the sort.
        QSignalSpy setrideni(&panel, &frmVypisTipu_Vyber::Setrideni_Potreba);
        sezeni.Tipy.Soubor_Tipu.Tikety[1].Cisla[1] = Cisla<Tip>({12, 4, 6, 8, 10, 2});
        panel.chkCislo_V_Tipu->setChecked(false);
        panel.chkVyloucit_Pary->setChecked(true);
        QVERIFY(!panel.Vyber_Tipy());
        QCOMPARE(int(sezeni.Tipy.Pocet_Tipu_Aktivni), 1);
        QCOMPARE(setrideni.count(), 1);
        QCOMPARE(prostredi.Oznameni(),
                 QStringList{u"Pro kompletní analýzu k výběru tipů provedte setřídění typů !"_qs});
    }

    void Analyza_On_Line() {
        Prostredi prostredi(QDate(2026, 11, 28));
        Relace& sezeni = prostredi.Spust().Sezeni();
        Pridej(sezeni, {{1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 8, 9}, {1, 2, 3, 10, 11, 12}, {4, 20, 30, 40, 41, 42}});
        sezeni.Tipy.Pocet_Tipu_Celkem = 2; // the last two are not listed
        sezeni.Nastaveni.Pocet_Tahu_Analyzovat = u"52"_qs;
        QWidget rodic;
        frmVypisTipu_Analyza panel(sezeni, &rodic);
        QCOMPARE(panel.Frame7->title(), u"v datech tahů - 52 tahů zpět"_qs);
        QCOMPARE(panel.cmdOK->objectName(), u"cmdOK(2)"_qs);

        const int cislo = sezeni.Archiv.Tahy_1.back()[1];
        panel.Klik_Cisla(cislo, u" 1 2 3 4 5"_qs);
        QCOMPARE(panel.lblNaposled_1tah->text(), u"1"_qs);
        QVERIFY(Vb::Val(panel.lblCelkem_Los_1Tah->text()) >= 1);
        QCOMPARE(Barva(panel.lblNaposled_1tah), panel.palette().color(QPalette::ToolTipBase));

        panel.Klik_Cisla(4, u" 1 2 3 4 5"_qs);
        QCOMPARE(Vb::Val(panel.lblShoda->text()), 3.0);
        QCOMPARE(panel.lblCena[0]->text(), QString());
        QCOMPARE(Vb::Val(panel.lblCena[1]->text()), 1.0);
        QCOMPARE(Vb::Val(panel.lblCena[2]->text()), 1.0);
        QCOMPARE(panel.lblCena[3]->text(), QString());
        QCOMPARE(Barva(panel.lblCena[3]), panel.palette().color(QPalette::Button));

        panel.Vycisti();
        QCOMPARE(panel.lblShoda->text(), QString());
        QCOMPARE(panel.lblCena[1]->text(), QString());

        // Without a range of draws the history asks for the setting.
        sezeni.Nastaveni.Pocet_Tahu_Analyzovat.clear();
        panel.Klik_Cisla(4, u" 4"_qs);
        QCOMPARE(
            prostredi.Oznameni(),
            QStringList{
                u"Pro analýzu v tazích, nastavte počet týdnů v \"Nastavení - TiP\" (Program - Nastavení, stránka "
                u"Analýza tahů, Počet týdnů analýzy tipů)."_qs});
    }
};

QTEST_MAIN(Test_frmVypisTipu_Panely)
#include "Test_frmVypisTipu_Panely.moc"
