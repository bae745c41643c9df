// The viewer of _Analyza.txt: numbers picked with the mouse are marked in the text and go to the
// status band and on to the generator; numbers picked in another window are marked here; the file
// is saved as it came, emptied, kept under its line limit; the fonts and the place are kept; a run
// of the analysis opens the viewer.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "analysis/Soubor_Analyzy.h"
#include "analysis/frmAnalyzaTahu.h"
#include "analysis/frmVypisAnalyz.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi_Sluzby.h"
#include "app/frmMDITombi_Stav.h"
#include "app/frmNeniProcedura.h"
#include "archive/frmVypisTahu.h"
#include "core/Vb.h"
#include "data/Soubory.h"
#include "generator/Vyber_Cisel.h"
#include "generator/frmGeneruj.h"
#include "generator/frmGeneruj_Vyber.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>

namespace {

const QString Text_Souboru = u"*********************************\r\n"
                             u" dne 26.11.2026      v 18:00 hod.\r\n"
                             u"*********************************\r\n"
                             u" Četnost tažených čísel\r\n"
                             u"První tah\r\n"
                             u" 5x - 1, 3, 13, 15,\r\n"
                             u" 6x - 2, 25, 49,\r\n"
                             u" \r\n"
                             u" Dvojice čísel ležící vedle sebe\r\n"
                             u"První tah\r\n"
                             u" 1x\t 1, 2,\t 12, 13,\t\r\n"_qs;

// The viewer over a file of our own, opened by the main menu.
frmVypisAnalyz* Otevri(Prostredi& prostredi, const QByteArray& soubor) {
    Uloz_Soubor(Cesta_Analyzy(prostredi.Data->Nastaveni), soubor);
    prostredi.Prikaz(u"mnuVypisAnalyz"_qs)->trigger();
    return prostredi.Okno->Najdi_Okno<frmVypisAnalyz>();
}

// Selects the `n`th occurrence of `text` and lets the mouse go, as a user picking numbers.
void Vyber(frmVypisAnalyz* okno, const QString& text, int n = 1) {
    QTextEdit* vypis = okno->rtbVypis_Analyz[0];
    QTextCursor nalez(vypis->document());
    for (int i = 0; i < n; ++i)
        nalez = vypis->document()->find(text, nalez);
    QVERIFY(!nalez.isNull());
    vypis->setTextCursor(nalez);
    QTest::mouseRelease(vypis->viewport(), Qt::LeftButton);
    QCoreApplication::processEvents();
}

// The colour of the character `posun` places into the `n`th occurrence of `text`.
QColor Barva(frmVypisAnalyz* okno, const QString& text, int n = 1, int posun = 1) {
    QTextDocument* dokument = okno->rtbVypis_Analyz[0]->document();
    QTextCursor nalez(dokument);
    for (int i = 0; i < n; ++i)
        nalez = dokument->find(text, nalez);
    QTextCursor znak(dokument);
    znak.setPosition(nalez.selectionStart() + posun + 1);
    return znak.charFormat().foreground().color();
}

QString Rozpis(Prostredi& prostredi) {
    return prostredi.Okno->Stav()->txtRozpisAktivni->text();
}

} // namespace

class Test_frmVypisAnalyz final : public QObject {
    Q_OBJECT

private slots:
    void Vyber_Mysi_A_Odjinud() {
        Prostredi prostredi(QDate(2026, 11, 26));
        prostredi.Spust();
        prostredi.Prikaz(u"mnuVypisAnalyz"_qs)->trigger();
        // Writing the reports is off: the notice says where they are meanwhile.
        QVERIFY(prostredi.Oznameni().value(0).startsWith(u"Není soubor \"Analyza.txt\". Zápis analýz"_qs));
        prostredi.Data->Nastaveni.Zapis_Analyzy = 1;
        prostredi.Prikaz(u"mnuVypisAnalyz"_qs)->trigger();
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Není soubor \"Analyza.txt\""_qs});
        prostredi.Data->Nastaveni.Zapis_Analyzy = 0;
        QVERIFY(prostredi.Okno->Najdi_Okno<frmVypisAnalyz>() == nullptr);

        frmVypisAnalyz* okno = Otevri(prostredi, Vb::Do_1250(Text_Souboru));
        QVERIFY(okno != nullptr && prostredi.Data->Vypis_Cisel);
        QCOMPARE(okno->lblLista[0]->text(), u" celkem - 8"_qs); // 1 2 3 12 13 15 25 49
        QCOMPARE(okno->lblLista[2]->text(), u" řádků -  11"_qs);
        const QColor cervena(255, 0, 0);
        const QColor cerna(0, 0, 0);

        // The numbers of a count line, not the count, each wherever it stands whole: before a
        // blank, a tab or the line end, but not as the tail of "12,".
        Vyber(okno, u" 6x - 2, 25, 49,"_qs);
        QCOMPARE(Rozpis(prostredi), u" 2 25 49"_qs);
        QCOMPARE(prostredi.Okno->Stav()->txtPocet_Vybranych->text(), u"3"_qs);
        QCOMPARE(okno->lblLista[1]->text(), u" vybráno - 3"_qs);
        QCOMPARE(Barva(okno, u" 2, 25,"_qs), cervena);
        QCOMPARE(Barva(okno, u" 12,"_qs, 1, 2), cerna);
        QCOMPARE(Barva(okno, u" 12,"_qs), cerna);
        QCOMPARE(Barva(okno, u" 49,"_qs), cervena);
        QCOMPARE(Barva(okno, u" 2,\t"_qs), cervena);

        // "Spojovat" adds, also from a row of pairs; a selection without a comma does nothing;
        // "Jednotlivě" replaces.
        QVERIFY(okno->mnuSpojovat->isChecked());
        Vyber(okno, u" 1, 2,\t 12, 13,"_qs);
        QCOMPARE(Rozpis(prostredi), u" 1 2 12 13 25 49"_qs);
        QCOMPARE(Barva(okno, u" 1, 3,"_qs), cervena);
        Vyber(okno, u"První"_qs);
        QCOMPARE(Rozpis(prostredi), u" 1 2 12 13 25 49"_qs);
        okno->mnuJednotlive->trigger();
        Vyber(okno, u" 3, 13,"_qs);
        QCOMPARE(Rozpis(prostredi), u" 3 13"_qs);
        QCOMPARE(Barva(okno, u" 1, 3,"_qs), cerna);

        // Odznačit: no marks, the headings stay bold and underlined.
        okno->mnuOdznacit->trigger();
        QCOMPARE(okno->lblLista[1]->text(), u" vybráno - 0"_qs);
        QCOMPARE(Barva(okno, u" 3,"_qs), cerna);
        QTextCursor nadpis = okno->rtbVypis_Analyz[0]->document()->find(u"Dvojice čísel ležící vedle sebe"_qs);
        QVERIFY(nadpis.charFormat().fontUnderline() && nadpis.charFormat().fontWeight() == QFont::Bold);

        // The picked numbers become the pool of "Použít".
        Vyber(okno, u" 6x - 2, 25, 49,"_qs);
        okno->mnuGen->trigger();
        auto* generator = prostredi.Okno->Najdi_Okno<frmGeneruj>();
        QVERIFY(generator != nullptr && generator->Vyber->optVybrana_Cisla[1]->isChecked());
        const Vyber_Cisel& pool = prostredi.Data->Generator.Vyber;
        QCOMPARE(pool.Pocet_Pouzit, 3);
        QCOMPARE(QList<int>({int(pool.Cisla_Pouzit[1]), int(pool.Cisla_Pouzit[2]), int(pool.Cisla_Pouzit[3])}),
                 QList<int>({2, 25, 49}));

        // While the generator is open, numbers picked elsewhere are marked here and the shared
        // selection is emptied after.
        prostredi.Data->Sluzby->Nastav_Status(u" 12 13"_qs, u"2"_qs);
        QCOMPARE(okno->lblLista[1]->text(), u" vybráno - 2"_qs);
        QCOMPARE(Barva(okno, u" 12,"_qs), cervena);
        QCOMPARE(Barva(okno, u" 2,"_qs), cerna);
        QVERIFY(std::all_of(prostredi.Data->Vybrana_Cisla.begin(), prostredi.Data->Vybrana_Cisla.end(),
                            [](uint8_t n) { return n == 0; }));

        // With "SUMA výběru" of the draw list on, what is picked there adds up here.
        prostredi.Data->Formular_Otevren_Tahy = prostredi.Data->Suma_Vyberu = true;
        prostredi.Data->Sluzby->Nastav_Status(u" 3"_qs, u"1"_qs);
        QCOMPARE(Barva(okno, u" 3,"_qs), cervena);
        QCOMPARE(Barva(okno, u" 12,"_qs), cervena);
        prostredi.Data->Formular_Otevren_Tahy = prostredi.Data->Suma_Vyberu = false;
    }

    // Draws clicked one after another with "SUMA výběru": every number marked in the viewer is in
    // the picked list, the earlier draws' too.
    void Suma_Vyberu_Tahu() {
        Prostredi prostredi(QDate(2026, 11, 26));
        prostredi.Spust();
        QString text = Text_Souboru;
        for (int n = 1; n <= 49; ++n)
            text += u" 1x - "_qs + QString::number(n) + u",\r\n"_qs;
        frmVypisAnalyz* okno = Otevri(prostredi, Vb::Do_1250(text));
        prostredi.Prikaz(u"mnuVypisTahu"_qs)->trigger();
        auto* tahy = prostredi.Okno->Najdi_Okno<frmVypisTahu>();
        QVERIFY(okno != nullptr && tahy != nullptr);
        tahy->Check1->setChecked(true);
        QSet<QString> vsechna;
        for (const int radek : {tahy->List1Tah->count() - 1, tahy->List1Tah->count() - 2}) {
            tahy->List1Tah->setCurrentRow(radek);
            for (const QString& n : Rozpis(prostredi).split(u' ', Qt::SkipEmptyParts))
                vsechna.insert(n);
            const QStringList rozpis = Rozpis(prostredi).split(u' ', Qt::SkipEmptyParts);
            QCOMPARE(QSet<QString>(rozpis.begin(), rozpis.end()), vsechna);
        }
        QVERIFY(vsechna.size() > 6);
        QCOMPARE(okno->lblLista[1]->text(), u" vybráno -"_qs + Vb::Str(int64_t(vsechna.size())));
    }

    void Soubor_Pismo_A_Misto() {
        Prostredi prostredi(QDate(2026, 11, 26));
        prostredi.Spust();
        const QString cesta = Cesta_Analyzy(prostredi.Data->Nastaveni);
        const QByteArray puvodni = Vb::Do_1250(Text_Souboru);
        frmVypisAnalyz* okno = Otevri(prostredi, puvodni);

        // Changed from the start: closing asks; cancel stays, yes writes the text back as it came.
        okno->mnuZavrit->trigger();
        QVERIFY(prostredi.Dialogy.Okna.last().endsWith(
            u"|Výpis souboru Analyza.txt|Obsah souboru byl změněn. Uložit ?"_qs));
        QVERIFY(prostredi.Okno->Najdi_Okno<frmVypisAnalyz>() == okno);
        QFile::remove(cesta);
        prostredi.Dialogy.Odpovedi.enqueue(Dialogy::Odpoved::Ano);
        prostredi.Data->Nastaveni.Pamatovat_Okno = 1;
        auto* podokno = qobject_cast<QMdiSubWindow*>(okno->parentWidget());
        podokno->setGeometry(30, 20, 300, 250);
        okno->mnuZavrit->trigger();
        QCoreApplication::processEvents();
        QVERIFY(prostredi.Okno->Najdi_Okno<frmVypisAnalyz>() == nullptr);
        QVERIFY(!prostredi.Data->Vypis_Cisel);
        QCOMPARE(Obsah_Souboru(cesta), puvodni);
        // The place is kept in tombi.cfg and taken again.
        QVERIFY(prostredi.Ulozene_Nastaveni().Okno_Analyz[2] > 0);
        okno = Otevri(prostredi, puvodni);
        QCOMPARE(qobject_cast<QMdiSubWindow*>(okno->parentWidget())->geometry(), QRect(30, 20, 300, 250));

        // The font of the marks from the dialog, and the original fonts back.
        prostredi.Dialogy.Pisma.enqueue(Dialogy::Pismo{u"DejaVu Sans"_qs, 12, true, 0x00FF00});
        okno->mnuVyber->trigger();
        QCOMPARE(prostredi.Data->Nastaveni.Pismo_Barva_1, 0x00FF00);
        Vyber(okno, u" 3,"_qs);
        QCOMPARE(Barva(okno, u" 3,"_qs), QColor(0, 255, 0));
        okno->mnuPuvdni->trigger();
        QCOMPARE(prostredi.Data->Nastaveni.Pismo_Barva_1, 255);
        QCOMPARE(prostredi.Ulozene_Nastaveni().Pismo_Barva_1, 255);
        QCOMPARE(okno->lblLista[1]->text(), u" vybráno - 0"_qs);

        // Smazat: the text goes, and with yes the file too; the next head has the date again.
        prostredi.Data->Analyza.Analyza_Zahlavi = true;
        prostredi.Dialogy.Odpovedi.enqueue(Dialogy::Odpoved::Ano);
        okno->mnuSmazat->trigger();
        QCOMPARE(okno->rtbVypis_Analyz[0]->toPlainText(), QString());
        QCOMPARE(Obsah_Souboru(cesta), QByteArray());
        QVERIFY(!prostredi.Data->Analyza.Analyza_Zahlavi);
        QVERIFY(!okno->Je_Zmeneno());

        // Over 1000 lines: the message, and the text emptied; with no the file stays as it was.
        QByteArray dlouhy;
        for (int i = 0; i < 1001; ++i)
            dlouhy += " 1x - 7,\r\n";
        Uloz_Soubor(cesta, dlouhy);
        okno->mnuNacist->trigger();
        QVERIFY(prostredi.Oznameni().contains(u"Maximální počet řádků ve výpisu je 1000 !"_qs));
        QVERIFY(prostredi.Dialogy.Okna.last().endsWith(u"|Uložení souboru|Uložit soubor \"Analyza.txt\" ?"_qs));
        QCOMPARE(okno->rtbVypis_Analyz[0]->toPlainText(), QString());
        QCOMPARE(Obsah_Souboru(cesta), dlouhy);
    }

    void Po_Behu_Analyzy() {
        Prostredi prostredi(QDate(2026, 11, 26));
        Nastaveni_Zaznam& n = prostredi.Data->Nastaveni;
        prostredi.Spust();
        n.Zapis_Analyzy = 1;
        n.Otevirat_Soubor = 1;
        prostredi.Prikaz(u"mnuAnalyza"_qs)->trigger();
        QVERIFY(prostredi.Oznameni().contains(Text_Aktivni_Zapis));
        auto* analyza = prostredi.Okno->Najdi_Okno<frmAnalyzaTahu>();
        analyza->txtPocet_1Tahu->setText(u"52"_qs);
        analyza->txtPocet_2Tahu->setText(u"52"_qs);
        analyza->cmdOK->click();
        auto* okno = prostredi.Okno->Najdi_Okno<frmVypisAnalyz>();
        QVERIFY(okno != nullptr);
        QVERIFY(okno->rtbVypis_Analyz[0]->toPlainText().contains(u" Četnost tažených čísel"_qs));

        // The next run is read into the open viewer.
        analyza->cmdOK->click();
        QCOMPARE(okno->rtbVypis_Analyz[0]->toPlainText().count(u" Četnost tažených čísel"_qs), 2);

        // A new section without joining starts the file, and the viewer, anew; the viewer itself
        // shows where the reports go, so no notice.
        prostredi.Okno->Sluzby().Zavri_Oznameni();
        prostredi.Prikaz(u"mnuAnalyza"_qs)->trigger();
        QCOMPARE(okno->rtbVypis_Analyz[0]->toPlainText(), QString());
        QVERIFY(!prostredi.Oznameni().contains(Text_Aktivni_Zapis));
    }
};

QTEST_MAIN(Test_frmVypisAnalyz)
#include "Test_frmVypisAnalyz.moc"
