// The analysis window over the real archives: every statistic runs and reports, "hromadně" adds
// up, the caption follows the kind of range, numbers are picked out of the report, the report goes
// to _Analyza.txt, the automatic analysis runs what the settings choose, the chart is saved.
#include "Prostredi_Okna.h"
#include "analysis/Soubor_Analyzy.h"
#include "analysis/frmAnalyzaTahu.h"
#include "analysis/frmAnalyzaTahu_Graf.h"
#include "app/frmMDITombi_Stav.h"
#include "core/Vb.h"

#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLegend>
#include <QLegendMarker>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextEdit>
#include <QValueAxis>

namespace {

frmAnalyzaTahu* Otevri(Prostredi& prostredi) {
    prostredi.Prikaz(u"mnuAnalyza"_qs)->trigger();
    return prostredi.Okno->Najdi_Okno<frmAnalyzaTahu>();
}

} // namespace

class Test_frmAnalyzaTahu final : public QObject {
    Q_OBJECT

private slots:
    void Behy_A_Popis() {
        Prostredi prostredi(QDate(2026, 11, 28));
        prostredi.Spust();
        frmAnalyzaTahu* okno = Otevri(prostredi);
        QVERIFY(okno != nullptr);
        QCOMPARE(okno->windowTitle(),
                 u"Analýza tahů - tahy zpětně"_qs + QString(20, u' ') + u"Četnost tažených čísel"_qs);

        // Every statistic over the newest 52 draws gives a report under its title; the thresholds
        // follow the size of the range when the settings say so.
        prostredi.Data->Nastaveni.Prepocitat_Hodnoty = 1;
        okno->txtPocet_1Tahu->setText(u"52"_qs);
        okno->txtPocet_2Tahu->setText(u"52"_qs);
        const auto prah = [okno](Typ_Analyzy typ) { return okno->Prahy[std::size_t(typ)]->text(); };
        QCOMPARE(prah(Typ_Analyzy::Cetnost_Cisel), u"7"_qs);
        QCOMPARE(prah(Typ_Analyzy::Cetnost_Dodatkovych), u"1"_qs);
        QCOMPARE(prah(Typ_Analyzy::Dvojice_Cisel), u"1"_qs);
        QCOMPARE(prah(Typ_Analyzy::Dvojice_Cisel_Volne), u"3"_qs);
        QCOMPARE(prah(Typ_Analyzy::Trojice_Cisel), u"1"_qs);
        QCOMPARE(prah(Typ_Analyzy::Interval_Cisla), u"5"_qs);
        for (int i = 0; i < Pocet_Analyz; ++i) {
            okno->optTyp[std::size_t(i)]->click();
            QTest::mouseClick(okno->cmdOK, Qt::LeftButton);
            const QString vypis = okno->RichTextBox1->toPlainText();
            QVERIFY2(vypis.contains(u"První tah"_qs), qPrintable(QString::number(i)));
            QVERIFY(Vb::Val(okno->txtVypisAnalyzyTahuPopis->text()) > 2);
        }
        QCOMPARE(prostredi.Data->Analyza.Pocet_Tahy[0], prostredi.Data->Archiv.Pocet_Tahy_1);
        QCOMPARE(prostredi.Data->Analyza.Rozsah_Tahu[0], 51);

        // "hromadně": a second run adds to the first.
        okno->optTyp[0]->click();
        QTest::mouseClick(okno->cmdOK, Qt::LeftButton);
        const int radku = int(Vb::Val(okno->txtVypisAnalyzyTahuPopis->text()));
        okno->otpTypVypisu[1]->setChecked(true);
        QTest::mouseClick(okno->cmdOK, Qt::LeftButton);
        QCOMPARE(int(Vb::Val(okno->txtVypisAnalyzyTahuPopis->text())), 2 * radku);

        // OD-DO and back: the cut of the caption loses one blank on the way back.
        okno->optVolba_Tydnu[1]->click();
        QCOMPARE(okno->windowTitle(),
                 u"Analýza tahů - tahy OD-DO"_qs + QString(20, u' ') + u"Četnost tažených čísel"_qs);
        okno->optVolba_Tydnu[0]->click();
        QCOMPARE(okno->windowTitle(),
                 u"Analýza tahů - tahy zpětně"_qs + QString(19, u' ') + u"Četnost tažených čísel"_qs);

        // Numbers picked from a selection; "3x" at the end still gives 3, "12x" inside nothing.
        okno->RichTextBox1->setPlainText(u"12, 15, 12x 3x"_qs);
        okno->RichTextBox1->selectAll();
        QTest::mouseRelease(okno->RichTextBox1->viewport(), Qt::LeftButton);
        QCOMPARE(prostredi.Okno->Stav()->txtRozpisAktivni->text(), u" 3 12 15"_qs);

        // The report on paper, read back from PDF.
        okno->optTyp[0]->click();
        QTest::mouseClick(okno->cmdOK, Qt::LeftButton);
        prostredi.Dialogy.Pdf = prostredi.Cesta(u"analyza.pdf"_qs);
        prostredi.Dialogy.Tiskarny.enqueue(true);
        QTest::mouseClick(okno->cmdTisk, Qt::LeftButton);
        QProcess pdf;
        pdf.start(u"pdftotext"_qs, {prostredi.Dialogy.Pdf, u"-"_qs});
        pdf.waitForFinished(30000);
        QVERIFY(QString::fromUtf8(pdf.readAllStandardOutput()).contains(u"Četnost tažených čísel"_qs));

        // The chart of the frequency: whole counts up the side, level labels at round numbers
        // under the bars, and the picked numbers' colour in the legend once a number is picked.
        okno->optTyp[0]->click();
        QTest::mouseClick(okno->cmdOK, Qt::LeftButton);
        QVERIFY(!okno->Graf->Pohled->isHidden());
        QChart* graf = okno->Graf->Pohled->chart();
        const auto* osa_y = qobject_cast<QValueAxis*>(graf->axes(Qt::Vertical).first());
        QVERIFY(osa_y->tickType() == QValueAxis::TicksDynamic && osa_y->tickInterval() >= 1);
        QCOMPARE(osa_y->tickInterval(), std::round(osa_y->tickInterval()));
        QCOMPARE(osa_y->labelFormat(), u"%.0f"_qs);
        auto* osa_x = qobject_cast<QCategoryAxis*>(graf->axes(Qt::Horizontal).first());
        QVERIFY(osa_x != nullptr);
        QCOMPARE(osa_x->categoriesLabels().first(), u"5"_qs);
        QVERIFY(osa_x->count() <= 12 && osa_x->labelsAngle() == 0);
        const auto vybrana = [graf] {
            for (QLegendMarker* znacka : graf->legend()->markers())
                if (znacka->label() == u"vybraná čísla"_qs)
                    return znacka->isVisible();
            return false;
        };
        prostredi.Data->Vybrana_Cisla.fill(0);
        okno->Graf->Zvyrazni(prostredi.Data->Vybrana_Cisla);
        QVERIFY(!vybrana());
        prostredi.Data->Vybrana_Cisla[7] = 1;
        okno->Graf->Zvyrazni(prostredi.Data->Vybrana_Cisla);
        QVERIFY(vybrana());
        const QString png = prostredi.Cesta(u"graf.png"_qs);
        QVERIFY(okno->Graf->Uloz_Png(png));
        QVERIFY(QFile(png).size() > 1000);
    }

    void Soubor_A_Automaticky() {
        Prostredi prostredi(QDate(2026, 11, 28));
        Nastaveni_Zaznam& n = prostredi.Data->Nastaveni;
        prostredi.Spust();
        n.Zapis_Analyzy = 1;
        n.Zapis_Tahu = {Vb::Pravda, Vb::Nepravda, Vb::Nepravda};
        n.Auto_Analyza = {};
        n.Auto_Analyza[7] = Vb::Pravda; // the interval alone
        prostredi.Prikaz(u"mnuAnalyzaAutomat"_qs)->trigger();
        frmAnalyzaTahu* okno = prostredi.Okno->Najdi_Okno<frmAnalyzaTahu>();
        QVERIFY(okno != nullptr);
        QCOMPARE(prostredi.Data->Analyza.Rozsah_Tahu[0], 44); // over the last 45 draws
        QVERIFY(okno->RichTextBox1->toPlainText().startsWith(u"Týdenní interval"_qs));
        QVERIFY(okno->otpTypVypisu[0]->isChecked() && okno->optTyp[0]->isChecked());
        QFile soubor(Cesta_Analyzy(n));
        QVERIFY(soubor.open(QIODevice::ReadOnly));
        const QString obsah = Vb::Z_1250(soubor.readAll());
        QVERIFY(obsah.contains(u" dne "_qs) && obsah.contains(u" Týdenní interval"_qs));
        QVERIFY(!obsah.contains(u'"'));

        // Nothing chosen: the message.
        n.Auto_Analyza = {};
        okno->Analyza_Automaticky();
        QCOMPARE(prostredi.Oznameni().last(),
                 u"Automatická analýza nemá zvolenou žádnou analýzu. Zvolte je v Program - Nastavení, stránka "
                 u"Automatická analýza; jednu analýzu spustí typ zvolený v tomto okně a \"Budiž\"."_qs);
    }
};

QTEST_MAIN(Test_frmAnalyzaTahu)
#include "Test_frmAnalyzaTahu.moc"
