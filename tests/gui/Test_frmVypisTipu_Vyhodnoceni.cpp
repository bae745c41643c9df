// The evaluation of the tip list: drawn numbers typed against a file, the money of the wins, the
// walk from a count to its tip, the file against the archive, Ctrl+clicks into the boxes, and the
// two printouts read back from PDF.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "app/frmKresleni.h"
#include "app/frmSloupec_Tiketu.h"
#include "app/modTombi.h"
#include "core/Vb.h"
#include "core/pTikety.h"
#include "data/Soubor_Tipu.h"
#include "tips/frmVypisTipu.h"
#include "tips/frmVypisTipuVsech.h"
#include "tips/frmVypisTipu_Vyhodnoceni.h"
#include "tips/frmVypisTipu_Vyhry.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>

namespace {

frmVypisTipu* Otevri(Prostredi& prostredi, int tipu) {
    Zapis_Souboru(prostredi.Cesta(u"t.tip"_qs), Soubor_Tipu(tipu));
    prostredi.Spust();
    prostredi.Otevri_Tipy(u"t.tip"_qs);
    return prostredi.Okno->Najdi_Okno<frmVypisTipu>();
}

void Napis_Tah(const std::array<QLineEdit*, 7>& boxy, const QStringList& cisla) {
    for (std::size_t i = 0; i < boxy.size(); ++i) {
        boxy[i]->clear();
        QTest::keyClicks(boxy[i], cisla.value(qsizetype(i)));
    }
}

double Hodnota(const QLineEdit* pole) {
    return Vb::Val(pole->text());
}

QString Text_Pdf(const QString& pdf) {
    QProcess p;
    p.start(u"pdftotext"_qs, {u"-layout"_qs, pdf, u"-"_qs});
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

} // namespace

class Test_frmVypisTipu_Vyhodnoceni final : public QObject {
    Q_OBJECT

private slots:
    void Tazena_Cisla_A_Penize() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmVypisTipu* vypis = Otevri(prostredi, 25);
        frmVypisTipu_Vyhodnoceni* panel = vypis->Vyhodnoceni;
        frmVypisTipu_Vyhry* vyhry = vypis->Vyhry;
        QVERIFY(panel->isVisible() && !vyhry->isVisible());

        // Too few numbers: the message, nothing evaluated.
        const std::array<QLineEdit*, 7>& tah1 = panel->Tah1;
        Napis_Tah(tah1, {u"1"_qs, u"2"_qs});
        QTest::mouseClick(panel->cmdOK, Qt::LeftButton);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Pro vyhodnocení je třeba alespoň 3 čísel v tahu !"_qs});
        QVERIFY(!vyhry->isVisible());

        // The tips are 1 2 3 4 5 and 6 + i: one sixer, one with the supplementary 7, 23 fives.
        Napis_Tah(tah1, {u"1"_qs, u"2"_qs, u"3"_qs, u"4"_qs, u"5"_qs, u"6"_qs, u"7"_qs});
        QTest::keyClicks(panel->Tah2[0], u"77"_qs); // outside 1..49: emptied at once
        QVERIFY(panel->Tah2[0]->text().isEmpty());
        QTest::mouseClick(panel->cmdOK, Qt::LeftButton);
        QVERIFY(vyhry->isVisible());
        QCOMPARE(vyhry->Tah1Cena[0]->text().trimmed(), u"1"_qs);
        QCOMPARE(vyhry->Tah1Cena[1]->text().trimmed(), u"1"_qs);
        QCOMPARE(vyhry->Tah1Cena[2]->text().trimmed(), u"23"_qs);
        QVERIFY(vyhry->Tah1Cena[3]->text().isEmpty());
        QCOMPARE(vyhry->lstTiketyVypis->model()->rowCount(), 25);
        QCOMPARE(vyhry->lstTiketyVypis->model()->index(1, 0).data().toString(), u" 000 001     02        1 / 2"_qs);
        QCOMPARE(prostredi.Data->Vyhodnoceni.Cisla[0][6], 7); // kept for the next opening

        // Prizes into sums, total and profit on the stake of 25 tips at 12 Kč.
        QTest::keyClicks(vyhry->Tah1Vyhra[2], u"1000"_qs);
        QCOMPARE(Hodnota(vyhry->Tah1CelkVyhra), 23000.0);
        QCOMPARE(Hodnota(vyhry->txtCelkemVyhra), 23000.0);
        QCOMPARE(Hodnota(vyhry->txtVklad), 300.0);
        QCOMPARE(Hodnota(vyhry->txtUspech), 7567.0);
        QTest::mouseClick(vyhry->cmdSance, Qt::LeftButton);
        QTest::mouseClick(vyhry->cmdSance, Qt::LeftButton);
        QCOMPARE(Hodnota(vyhry->txtVklad), 300.0);
        // Typed on to nine nines, the prize is cut to the limit, and the sum follows it beyond 32 bits.
        vyhry->Tah1Vyhra[2]->selectAll();
        QTest::keyClicks(vyhry->Tah1Vyhra[2], u"999999999"_qs);
        QCOMPARE(vyhry->Tah1Vyhra[2]->text(), u"500000000"_qs);
        QCOMPARE(Hodnota(vyhry->Tah1CelkVyhra), 23.0 * 500000000);
        // The program's change of the prizes moves the money too: Wednesday's table, total, profit.
        prostredi.Data->Nastaveni.Ceny_Streda[2] = Vb::Mena::Z_Korun(2000);
        vyhry->optTyden[1]->click();
        QCOMPARE(Hodnota(vyhry->Tah1CelkVyhra), 46000.0);
        QCOMPARE(Hodnota(vyhry->txtCelkemVyhra), 46000.0);
        QCOMPARE(Hodnota(vyhry->txtUspech), 15233.0);

        // The only tier-2 win leads to its tip, the second column of ticket 1.
        QTest::mouseClick(vyhry->Tah1Cena[1], Qt::LeftButton);
        QCOMPARE(vyhry->lstTiketyVypis->currentIndex().row(), 1);
        QCOMPARE(vypis->List1->currentRow(), 2);

        // A new drawn number typed: the counts and money of the old draw go.
        tah1[0]->selectAll();
        QTest::keyClicks(tah1[0], u"9"_qs);
        QVERIFY(vyhry->Tah1Cena[2]->text().isEmpty() && vyhry->Tah1CelkVyhra->text().trimmed().isEmpty());

        // Ctrl+clicks fill the boxes in turn, the eighth the first box of the second draw.
        const int cisla[] = {11, 12, 13, 14, 15, 16, 17, 18};
        for (const int n : cisla) {
            int rad = 0, sloup = 0;
            pTikety::Dej_Rad_Sloup(n, rad, sloup);
            frmSloupec_Tiketu* obrazek = vypis->picSloupec_Vypis_Tipu;
            QTest::mouseClick(obrazek, Qt::LeftButton, Qt::ControlModifier,
                              QPoint(qRound(frmKresleni::Pixely(sloup * 347 + 195, *obrazek)),
                                     qRound(frmKresleni::Pixely_Y(rad * 347 + 195, *obrazek))));
        }
        QCOMPARE(panel->Radek(1), (Radek_Tahu{11, 12, 13, 14, 15, 16, 17}));
        QCOMPARE(panel->Radek(2)[0], 18);

        // A number typed twice in a draw is refused, not counted twice.
        Napis_Tah(tah1, {u"5"_qs, u"5"_qs, u"20"_qs, u"1"_qs, u"2"_qs, u"3"_qs});
        QTest::mouseClick(panel->cmdOK, Qt::LeftButton);
        QCOMPARE(prostredi.Oznameni().last(), u"Pozor, zadána stejná čísla !"_qs);
    }

    void Soubor_V_Tazich_A_Tisk() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmVypisTipu* vypis = Otevri(prostredi, 25);
        frmVypisTipu_Vyhodnoceni* panel = vypis->Vyhodnoceni;
        frmVypisTipu_Vyhry* vyhry = vypis->Vyhry;
        // A draw stands in the boxes of the first option; the file against the archive counts only
        // the archive.
        for (std::size_t i = 0; i < 7; ++i)
            panel->Tah1[i]->setText(QString::number(i + 1));
        QTest::mouseClick(panel->Typ_Vyhodnoceni[2], Qt::LeftButton);
        panel->txtPocet_1Tahu->setText(u"300"_qs);
        QCOMPARE(panel->scrPocet_1Tahu->value(), 300);
        QTest::mouseClick(panel->cmdOK, Qt::LeftButton);
        QVERIFY(vyhry->isVisible());

        Vysledek_Vyhodnoceni ocekavane;
        Vyh_Soubor_V_Tazich(prostredi.Data->Tipy.Soubor_Tipu,
                            Rozsah_Archivu(prostredi.Data->Archiv, 300, prostredi.Data->Archiv.Pocet_Tahy_2),
                            ocekavane);
        QVERIFY(ocekavane.Pocet_Vyhernich_Zaznamu() > 0);
        QCOMPARE(vyhry->lstTiketyVypis->model()->rowCount(), int(ocekavane.Pocet_Vyhernich_Zaznamu()));
        for (std::size_t i = 0; i < 5; ++i)
            QCOMPARE(Hodnota(vyhry->Tah1Cena[i]), double(ocekavane.Vyhry_1Tah[i + 1]));

        // The tier stands in view, the win list as wide as its lines.
        const QString radek = vyhry->lstTiketyVypis->model()->index(0, 0).data().toString();
        QVERIFY(vyhry->lstTiketyVypis->viewport()->width() >=
                vyhry->lstTiketyVypis->fontMetrics().horizontalAdvance(radek));

        // One kind a run: another option clears the money, and the typed draw alone is counted.
        QTest::mouseClick(panel->Typ_Vyhodnoceni[0], Qt::LeftButton);
        QVERIFY(!vyhry->isVisible() && vyhry->Tah1Cena[4]->text().isEmpty());
        for (std::size_t i = 0; i < 7; ++i)
            panel->Tah1[i]->setText(QString::number(i + 1));
        QTest::mouseClick(panel->cmdOK, Qt::LeftButton);
        QCOMPARE(Hodnota(vyhry->Tah1Cena[0]), 1.0);
        QVERIFY(vyhry->Tah1Cena[4]->text().isEmpty());
        QCOMPARE(vyhry->lstTiketyVypis->model()->rowCount(), 25);

        // The winning tickets on paper, and the payouts list without and with bettors.
        prostredi.Dialogy.Pdf = prostredi.Cesta(u"vyhry.pdf"_qs);
        prostredi.Dialogy.Tiskarny.enqueue(true);
        QTest::mouseClick(vyhry->cmdTisk_Vyhernich_Tipu, Qt::LeftButton);
        const QString prehled = Text_Pdf(prostredi.Dialogy.Pdf);
        QVERIFY(prehled.contains(u"Přehled vyhrávajících tiketů souboru"_qs));
        QVERIFY(prehled.contains(u"čís. tiketu"_qs));
        QVERIFY(prehled.contains(Vb::Format(ocekavane.Vyherni_Zaznamy[0].Cislo_Tiketu, u"000 000")));

        prostredi.Dialogy.Tiskarny.enqueue(true);
        QTest::mouseClick(vyhry->Command1, Qt::LeftButton);
        QCOMPARE(prostredi.Oznameni().last(), u"Není žádný seznam účastníků."_qs);
        prostredi.Dialogy.Pdf = prostredi.Cesta(u"listina.pdf"_qs);
        prostredi.Dialogy.Tiskarny.enqueue(true);
        vyhry->Tiskni_Vyherni_Listinu({{u"Jan Novák"_qs, 1500}, {QString(120, u'W'), 20}});
        const QString listina = Text_Pdf(prostredi.Dialogy.Pdf);
        QVERIFY(listina.contains(u"Výherní listina ze dne 28.11.26"_qs));
        QVERIFY(listina.contains(u"Jan Novák"_qs));
        QVERIFY(listina.contains(u"1 500,-"_qs));
    }

    void Patek_Ceny_A_Data_Tahu() {
        // On a Friday the prizes are Friday's, from the settings store, and a draw shown from the
        // archive carries the operator's date.
        Prostredi prostredi(QDate(2026, 11, 27));
        std::array<Vb::Mena, 10> ceny{};
        ceny[0] = Vb::Mena::Z_Korun(20000000);
        ceny[5] = Vb::Mena::Z_Korun(1000000);
        modTombi::Uloz_Ceny_Patku(*prostredi.Data, ceny);
        frmVypisTipu* vypis = Otevri(prostredi, 25);
        frmVypisTipu_Vyhry* vyhry = vypis->Vyhry;
        QVERIFY(vyhry->optTyden[2]->isChecked());
        QCOMPARE(vyhry->optTyden[2]->text(), u"pátek"_qs);
        QCOMPARE(std::pair(Hodnota(vyhry->Tah1Vyhra[0]), Hodnota(vyhry->Tah2Vyhra[0])),
                 std::pair(20000000.0, 1000000.0));
        prostredi.Data->Nastaveni.Ceny_Streda[0] = Vb::Mena::Z_Korun(5000);
        vyhry->optTyden[1]->click();
        QCOMPARE(Hodnota(vyhry->Tah1Vyhra[0]), 5000.0);

        frmVypisTipu_Vyhodnoceni* panel = vypis->Vyhodnoceni;
        panel->txtPocet_1Tahu->setText(u"1"_qs);
        QCOMPARE(panel->lblTahCislo[0]->text(), u" 09.01.2026 "_qs);
        QCOMPARE(panel->Tah1[0]->text(), u"48"_qs);
        // The second Friday draw of the archive, a one-off of 2006.
        panel->txtPocet_2Tahu->setText(u"417"_qs);
        QCOMPARE(panel->lblTahCislo[1]->text(), u" 15.09.2006 "_qs);
    }

    void Den_Soubor_A_Vklad() {
        // Ten tips under a header of 9,500: the stake is that of ten tips.
        Prostredi prostredi(QDate(2026, 11, 28));
        auto z = std::make_unique<Zaznam_Tipu>(Cti_Zaznam_Tipu(Soubor_Tipu(10)));
        z->Pocet_Tipu = 9500;
        Zapis_Souboru(prostredi.Cesta(u"t.tip"_qs), Zapis_Zaznam_Tipu(*z));
        frmMDITombi& okno = prostredi.Spust();
        prostredi.Otevri_Tipy(u"t.tip"_qs);
        frmVypisTipu* vypis = okno.Najdi_Okno<frmVypisTipu>();
        QCOMPARE(Hodnota(vypis->Vyhry->txtVklad), 120.0);

        // Opened again with the list open, the draw boxes and the legend keep their height.
        const int vyska = vypis->Vyhodnoceni->Tah1[0]->height();
        prostredi.Otevri_Tipy(u"t.tip"_qs);
        QCoreApplication::processEvents();
        QVERIFY(vypis->Vyhodnoceni->Tah1[0]->height() >= vyska);
        QVERIFY(vypis->Vyhodnoceni->Label5->height() >= vypis->Vyhodnoceni->Label5->fontMetrics().height());

        // The comparison with chance tells the rank and never credits the filters.
        vypis->Vyhodnoceni->txtPocet_1Tahu->setText(u"10"_qs);
        vypis->Vyhodnoceni->txtPocet_2Tahu->setText(u"10"_qs);
        QTest::mouseClick(vypis->Vyhodnoceni->cmdSrovnani, Qt::LeftButton);
        const QString srovnani = prostredi.Dialogy.Okna.last();
        QVERIFY(srovnani.contains(u"z 101)"_qs) && srovnani.contains(u"Minulé tahy nemění šanci"_qs));
        QVERIFY(!srovnani.contains(u"pomohly"_qs));

        // A result belongs to its day: Wednesday clears it and shows Wednesday's prizes and archive.
        for (std::size_t i = 0; i < 7; ++i)
            vypis->Vyhodnoceni->Tah1[i]->setText(QString::number(i + 1));
        QTest::mouseClick(vypis->Vyhodnoceni->cmdOK, Qt::LeftButton);
        QVERIFY(vypis->Vyhry->isVisible() && !vypis->Vyhry->Tah1Cena[2]->text().isEmpty());
        QVERIFY(vypis->Vyhry->optTyden[0]->isChecked());
        prostredi.Prikaz(u"mnuSportka_streda"_qs)->trigger();
        QVERIFY(!vypis->Vyhry->isVisible() && vypis->Vyhry->Tah1Cena[2]->text().isEmpty());
        QVERIFY(vypis->Vyhry->optTyden[1]->isChecked());
        QCOMPARE(vypis->Vyhodnoceni->txtPocet_1Tahu->text(), QString::number(prostredi.Data->Archiv.Pocet_Tahy_1));
    }

    void Velky_Soubor() {
        // More than 950 tips go against the newest second draw only.
        Prostredi prostredi(QDate(2026, 11, 28));
        frmVypisTipu* vypis = Otevri(prostredi, 960);
        QTest::mouseClick(vypis->Vyhodnoceni->Typ_Vyhodnoceni[2], Qt::LeftButton);
        QCOMPARE(vypis->Vyhodnoceni->txtPocet_2Tahu->text(), u"1"_qs);
        QCOMPARE(vypis->Vyhodnoceni->scrPocet_2Tahu->value(), 1);
    }

    void Vypis_Vsech_Tipu() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& okno = prostredi.Spust();
        auto* vsech = okno.Otevri_Okno<frmVypisTipuVsech>(okno);
        QVERIFY(prostredi.Data->Vypis_Tipu_Vsech_Otevren);
        vsech->Zobraz(u"  1  2  3  4  5  6\r\n"_qs, u" 12 7 3 7 0 3"_qs);
        QCOMPARE(vsech->lblTutovky[0]->text().trimmed(), u"3 7 12"_qs);
        QCOMPARE(vsech->lblTutovky[1]->text(), u"3 tut."_qs);
        QVERIFY(vsech->rtbVypisTipuVsech->toPlainText().startsWith(u"  1  2"_qs));
        okno.Zavri_Okno<frmVypisTipuVsech>();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!prostredi.Data->Vypis_Tipu_Vsech_Otevren);
    }
};

QTEST_MAIN(Test_frmVypisTipu_Vyhodnoceni)
#include "Test_frmVypisTipu_Vyhodnoceni.moc"
