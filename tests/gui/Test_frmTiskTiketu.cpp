// Printing onto the paper tickets: two tickets printed to PDF and rendered at a known resolution
// have dark pixels where the crosses belong and none where no cross is; the choice boxes on the
// picture are single choice in their groups, and a system play says so.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "printing/frmTiskTiketu.h"

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTest>

namespace {

// Is the pixel of the twips (x, y) of a page rendered at 96 dpi dark?
bool Tmave(const QImage& strana, int x, int y) {
    return qGray(strana.pixel(x * 96 / 1440, y * 96 / 1440)) < 128;
}

} // namespace

class Test_frmTiskTiketu final : public QObject {
    Q_OBJECT

private slots:
    void Tisk_Do_Pdf() {
        Prostredi prostredi(QDate(2026, 11, 21));
        prostredi.Spust();
        Zapis_Souboru(prostredi.Cesta(u"a.tip"_qs), Soubor_Tipu(12));
        prostredi.Otevri_Tipy(u"a.tip"_qs);
        prostredi.Prikaz(u"mnuTiskTiketu"_qs)->trigger();
        auto* okno = prostredi.Okno->Najdi_Okno<frmTiskTiketu>();
        QVERIFY(okno != nullptr);
        QCOMPARE(okno->txtPocet_Tiketu->text(), u"2"_qs);
        okno->txtOsa_X->setText(u"10"_qs); // 565 twips right
        prostredi.Dialogy.Tiskarny.enqueue(true);
        prostredi.Dialogy.Pdf = prostredi.Cesta(u"tikety.pdf"_qs);
        okno->cmdTisk->click();
        QProcess pdf;
        pdf.start(u"pdftoppm"_qs, {u"-r"_qs, u"96"_qs, u"-png"_qs, prostredi.Dialogy.Pdf, prostredi.Cesta(u"s"_qs)});
        QVERIFY(pdf.waitForFinished(30000));
        const QImage prvni(prostredi.Cesta(u"s-1.png"_qs));
        const QImage druha(prostredi.Cesta(u"s-2.png"_qs));
        QVERIFY(!prvni.isNull() && !druha.isNull());
        // Ticket 1, column 1 holds 1 2 3 4 5 6: the centres of the crosses of 1 and 6 (row 1), and
        // no cross where 11 would stand. Ticket 2 has two columns, so nothing in column 3.
        const int x0 = 2882 + 565 + 45, y0 = 444 + 45;
        QVERIFY(Tmave(prvni, x0, y0));
        QVERIFY(Tmave(prvni, x0, y0 + 225));
        QVERIFY(!Tmave(prvni, x0, y0 + 450));
        QVERIFY(Tmave(druha, x0 + 1410, y0));
        QVERIFY(!Tmave(druha, x0 + 2820, y0));
        // The Sunday box and "Šance – Ne" stand below the bands.
        QVERIFY(Tmave(prvni, 2882 + 565 + 3055 + 45, 444 + 5400 + 45));
        QCOMPARE(okno->txtPredposledni_Tiket->text(), u"0"_qs); // back to the first ticket after the last
    }

    void Volby_Tiketu() {
        Prostredi prostredi(QDate(2026, 11, 21));
        prostredi.Spust();
        Zapis_Souboru(prostredi.Cesta(u"a.tip"_qs), Soubor_Tipu(3));
        prostredi.Otevri_Tipy(u"a.tip"_qs);
        frmTiskTiketu okno(*prostredi.Okno);
        okno.Volba_Click(7);
        QCOMPARE(okno.Label15->text(), u" 1 008 Kč "_qs);
        QVERIFY(prostredi.Dialogy.Okna.last().contains(u"Zvolena SYSTÉMOVÁ SÁZKA"_qs));
        okno.Volba_Click(9);
        QCOMPARE(okno.Label15->text(), u" 5 544 Kč "_qs);
        okno.Volba_Click(9);
        QVERIFY(okno.Label15->text().isEmpty());
        okno.Volba_Click(3); // "Šance – Ne" taken off while the generator plays no Šance: a word
        QVERIFY(prostredi.Dialogy.Okna.last().contains(u"Volba ŠANCE"_qs));
    }
};

QTEST_MAIN(Test_frmTiskTiketu)
#include "Test_frmTiskTiketu.moc"
