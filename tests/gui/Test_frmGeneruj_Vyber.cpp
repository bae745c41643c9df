// The number pools of the generator on their own: tutovky by the right button, choosing and
// unchoosing on the grid with the marks redrawn, a range, the exchange of the two lists, .vyb
// files saved and opened, numbers handed over as text, and the picker of a wheel's numbers.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "app/frmMDITombi_Stav.h"
#include "app/frmSloupec_Tiketu.h"
#include "generator/frmGeneruj_Vyber.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>
#include <vector>

namespace {

// The grid shows exactly these marks (number, colour): it looks like a column drawn with them.
bool Znacky(frmSloupec_Tiketu* mrizka, const Nastaveni_Zaznam& nastaveni,
            const std::vector<std::pair<int, int>>& cisla) {
    frmSloupec_Tiketu vzor(nastaveni);
    vzor.resize(mrizka->size());
    for (const auto& [cislo, barva] : cisla)
        vzor.Pridej_Krizek(cislo, barva);
    return vzor.grab().toImage() == mrizka->grab().toImage();
}

void Ukaz(QWidget& rodic, frmGeneruj_Vyber& panel) {
    (new QVBoxLayout(&rodic))->addWidget(&panel);
    rodic.show();
    QVERIFY(QTest::qWaitForWindowExposed(&rodic));
}

QStringList Tutovky(const frmGeneruj_Vyber& panel) {
    QStringList boxy;
    for (const QLineEdit* box : panel.txtTutovka)
        boxy << box->text();
    return boxy;
}

} // namespace

class Test_frmGeneruj_Vyber final : public QObject {
    Q_OBJECT

private slots:
    void Klik_Rozsah_Zamena() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& okno = prostredi.Spust();
        QWidget rodic;
        frmGeneruj_Vyber panel(okno, &rodic);
        Ukaz(rodic, panel);
        const Nastaveni_Zaznam& nastaveni = prostredi.Data->Nastaveni;
        const Vyber_Cisel& v = prostredi.Data->Generator.Vyber;
        QSignalSpy tutovky(&panel, &frmGeneruj_Vyber::Tutovky_Zmeneny);
        QSignalSpy volby(&panel, &frmGeneruj_Vyber::Volba_Zmenena);
        QVERIFY(panel.optVybrana_Cisla[0]->isChecked());
        QVERIFY(!panel.optRozsah_Cisel[1]->isEnabled());
        QCOMPARE(panel.txtZbytek_Cisel->text(), u"49"_qs);

        // "Bez výběru": a left click does nothing, the right button sets tutovky, but no fourth.
        emit panel.picSloupec->Klik(5, Qt::LeftButton, false);
        QCOMPARE(v.Pocet_Pouzit, 0);
        for (const int n : {30, 7, 12, 40})
            emit panel.picSloupec->Klik(n, Qt::RightButton, false);
        QCOMPARE(Tutovky(panel), (QStringList{u"30"_qs, u"7"_qs, u"12"_qs}));
        QCOMPARE(v.Pocet_Pouzit, 3);
        QCOMPARE(tutovky.count(), 3);
        QCOMPARE(tutovky.last().at(0).toInt(), 3);

        // "Použít": clicks join the tutovky; a tutovka clicked again leaves, the others stay red.
        QTest::mouseClick(panel.optVybrana_Cisla[1], Qt::LeftButton);
        QCOMPARE(volby.last().at(0).toInt(), 1);
        QCOMPARE(panel.cmdZamenitCisla->text(), u">  <"_qs);
        QVERIFY(panel.optRozsah_Cisel[1]->isEnabled());
        emit panel.picSloupec->Klik(3, Qt::LeftButton, false);
        emit panel.picSloupec->Klik(9, Qt::LeftButton, false);
        QCOMPARE(okno.Stav()->txtRozpisAktivni->text(), u" 3 7 9 12 30"_qs);
        QCOMPARE(panel.txtZbytek_Cisel->text(), u"44"_qs);
        emit panel.picSloupec->Klik(12, Qt::LeftButton, false);
        QCOMPARE(okno.Stav()->txtRozpisAktivni->text(), u" 3 7 9 30"_qs);
        QCOMPARE(Tutovky(panel), (QStringList{u"7"_qs, u"30"_qs, QString()}));
        QCOMPARE(tutovky.last().at(0).toInt(), 2);
        QVERIFY(Znacky(panel.picSloupec, nastaveni, {{3, 0}, {7, 12}, {9, 0}, {30, 12}}));

        // A typed tutovka: off the ticket or twice is emptied; a new one joins the list in red.
        QTest::keyClicks(panel.txtTutovka[2], u"50"_qs);
        QCOMPARE(panel.txtTutovka[2]->text(), QString());
        QTest::keyClicks(panel.txtTutovka[2], u"7"_qs);
        QTest::keyClick(panel.txtTutovka[2], Qt::Key_Return);
        QCOMPARE(Tutovky(panel), (QStringList{u"7"_qs, u"30"_qs, QString()}));
        QTest::keyClicks(panel.txtTutovka[2], u"44"_qs);
        QTest::keyClick(panel.txtTutovka[2], Qt::Key_Return);
        QCOMPARE(okno.Stav()->txtRozpisAktivni->text(), u" 3 7 9 30 44"_qs);
        QVERIFY(Znacky(panel.picSloupec, nastaveni, {{3, 0}, {7, 12}, {9, 0}, {30, 12}, {44, 12}}));

        // A range fills the list and is remembered for the mode.
        QTest::mouseClick(panel.optRozsah_Cisel[2], Qt::LeftButton);
        QCOMPARE(v.Pocet_Pouzit, 25);
        QCOMPARE(int(v.Cisla_Pouzit[1]), 13);
        QCOMPARE(panel.txtZbytek_Cisel->text(), u"24"_qs);
        QCOMPARE(prostredi.Data->Generator.Rozsah_Pouzit, 2);

        // The exchange moves the list to "Vynechat", where the remembered range is "vše".
        QTest::mouseClick(panel.cmdZamenitCisla, Qt::LeftButton);
        QVERIFY(panel.optVybrana_Cisla[2]->isChecked());
        QVERIFY(v.Vynechat_Vybrana && !v.Pouzit_Vybrana);
        QCOMPARE(v.Pocet_Vynechat, 25);
        QCOMPARE(v.Pocet_Pouzit, 0);
        QCOMPARE(panel.cmdZamenitCisla->text(), u"<  >"_qs);
        QVERIFY(panel.optRozsah_Cisel[0]->isChecked());
        QCOMPARE(volby.last().at(0).toInt(), 2);

        // Picking by chance needs a wheel.
        QTest::mouseClick(panel.optZpusob_Vyberu[1], Qt::LeftButton);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Vyber čísla ručně ..."_qs});
        QVERIFY(panel.optZpusob_Vyberu[0]->isChecked());
        QCOMPARE(v.Pocet_Vynechat, 25);

        // Clearing empties only the list in force and the tutovky.
        QTest::mouseClick(panel.optVybrana_Cisla[1], Qt::LeftButton);
        emit panel.picSloupec->Klik(20, Qt::LeftButton, false);
        QTest::mouseClick(panel.cmdOpakovat, Qt::LeftButton);
        QCOMPARE(v.Pocet_Pouzit, 0);
        QCOMPARE(v.Pocet_Vynechat, 25);
        QCOMPARE(Tutovky(panel), (QStringList{QString(), QString(), QString()}));
        QVERIFY(panel.picSloupec->Je_Prazdny());
    }

    void Soubory_Text_A_Vybirac() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& okno = prostredi.Spust();
        QWidget rodic;
        frmGeneruj_Vyber panel(okno, &rodic);
        Ukaz(rodic, panel);
        const Vyber_Cisel& v = prostredi.Data->Generator.Vyber;

        // Saved in "Vynechat": no numbers to use, the left-out ones in their own list.
        QTest::mouseClick(panel.optVybrana_Cisla[2], Qt::LeftButton);
        for (const int n : {4, 18, 33})
            emit panel.picSloupec->Klik(n, Qt::LeftButton, false);
        const QString cesta = prostredi.Cesta(u"vynechat.vyb"_qs);
        prostredi.Dialogy.Soubory.enqueue(cesta);
        QTest::mouseClick(panel.cmdUloz_Soubor_VybranaCisla, Qt::LeftButton);
        const QByteArray zaznam = Obsah_Souboru(cesta);
        QCOMPARE(zaznam.size(), 105);
        QCOMPARE(int(zaznam[1]), 0);
        QCOMPARE(int(zaznam[51]), 3);
        QCOMPARE(zaznam.mid(52, 3), QByteArray("\x04\x12\x21", 3));

        // Opened from "Použít" with a tutovka, it lands in "Vynechat" again.
        QTest::mouseClick(panel.optVybrana_Cisla[1], Qt::LeftButton);
        emit panel.picSloupec->Klik(9, Qt::RightButton, false);
        prostredi.Dialogy.Soubory.enqueue(cesta);
        QTest::mouseClick(panel.Otevri_Soubor_JenCisla, Qt::LeftButton);
        QVERIFY(panel.optVybrana_Cisla[2]->isChecked());
        QVERIFY(v.Vynechat_Vybrana);
        QCOMPARE(v.Pocet_Vynechat, 3);
        QCOMPARE(v.Pocet_Pouzit, 0);
        QCOMPARE(panel.txtTutovka[0]->text(), QString());
        QCOMPARE(panel.txtZbytek_Cisel->text(), u"46"_qs);

        // A cancelled dialog does nothing; a bad record is named and changes nothing.
        QTest::mouseClick(panel.Otevri_Soubor_JenCisla, Qt::LeftButton);
        QCOMPARE(v.Pocet_Vynechat, 3);
        QByteArray spatny = zaznam;
        spatny[51] = char(60);
        Zapis_Souboru(prostredi.Cesta(u"spatny.vyb"_qs), spatny);
        prostredi.Dialogy.Soubory.enqueue(prostredi.Cesta(u"spatny.vyb"_qs));
        QTest::mouseClick(panel.Otevri_Soubor_JenCisla, Qt::LeftButton);
        QCOMPARE(prostredi.Oznameni().size(), 1);
        QVERIFY(prostredi.Oznameni().first().contains(u"spatny.vyb"_qs));
        QCOMPARE(v.Pocet_Vynechat, 3);

        // Numbers handed over as the status band's text become the list of "Použít".
        panel.Nacti_Cisla(u" 42 4 8 15 16 23"_qs);
        QVERIFY(panel.optVybrana_Cisla[1]->isChecked());
        QCOMPARE(v.Pocet_Pouzit, 6);
        QCOMPARE(int(v.Cisla_Pouzit[1]), 4);
        QCOMPARE(panel.Zbytek(), 43);
        QCOMPARE(okno.Stav()->txtRozpisAktivni->text(), u" 4 8 15 16 23 42"_qs);

        // With a wheel of 1 tutovka and 18 numbers the picker draws whole sets until pressed again.
        prostredi.Data->Generator.Cislo_Rozpisu = 5;
        prostredi.Data->Generator.Vyber.Cisla_Potreba = 19;
        prostredi.Data->Generator.Vyber.Pocet_Tutovek_Rozpisu = 1;
        panel.Nastav_Rozpis(5);
        QVERIFY(!panel.optVybrana_Cisla[1]->isEnabled());
        QTest::mouseClick(panel.optZpusob_Vyberu[2], Qt::LeftButton);
        QSignalSpy bezi(&panel, &frmGeneruj_Vyber::Vyber_Bezi);
        QTimer::singleShot(0, &panel, [&] {
            QVERIFY(!panel.Otevri_Soubor_JenCisla->isEnabled());
            QCOMPARE(panel.cmdStop->text(), u"STOP"_qs);
            panel.cmdStop->click();
        });
        QTest::mouseClick(panel.cmdStop, Qt::LeftButton);
        QCOMPARE(bezi.count(), 2);
        QCOMPARE(v.Pocet_Rozpisu, 19);
        QCOMPARE(panel.Zbytek(), 0);
        QVERIFY(!panel.txtTutovka[0]->text().isEmpty() && panel.txtTutovka[1]->text().isEmpty());
        QVERIFY(panel.Otevri_Soubor_JenCisla->isEnabled());
        QCOMPARE(panel.cmdStop->text(), u"START"_qs);
    }
};

QTEST_MAIN(Test_frmGeneruj_Vyber)
#include "Test_frmGeneruj_Vyber.moc"
