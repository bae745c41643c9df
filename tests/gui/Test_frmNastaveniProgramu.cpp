// The settings window by its controls: a change on each page reaches tombi.cfg only with OK, and
// Zrušit leaves the record and the file as they were; the password set, refused and cleared; the
// prize tables of the three days kept apart; the calculator.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "app/modTombi.h"
#include "settings/Nastaveni_Programu.h"
#include "settings/frmNastaveniProgramu.h"
#include "settings/frmNastaveniProgramu_Analyza.h"
#include "settings/frmNastaveniProgramu_Ceny.h"
#include "settings/frmNastaveniProgramu_Stranky.h"
#include "settings/frmNastaveniProgramu_Vzhled.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

namespace {

frmNastaveniProgramu* Otevri(Prostredi& prostredi) {
    QCoreApplication::processEvents(); // a window closed before is gone
    prostredi.Prikaz(u"mnuKonfigurace"_qs)->trigger();
    return prostredi.Okno->Najdi_Okno<frmNastaveniProgramu>();
}

template <class T> T* Stranka(frmNastaveniProgramu* okno, int i) {
    okno->List1->setCurrentRow(i);
    return static_cast<T*>(okno->Stranka(i));
}

void Pis(QLineEdit* pole, const QString& text) {
    pole->selectAll();
    QTest::keyClicks(pole, text);
}

} // namespace

class Test_frmNastaveniProgramu final : public QObject {
    Q_OBJECT

private slots:
    void Zmeny_Jen_Po_OK() {
        Prostredi prostredi(QDate(2026, 11, 28));
        prostredi.Spust();
        const QByteArray puvodni = Obsah_Souboru(prostredi.Cesta(u"tombi.cfg"_qs));
        const Nastaveni_Zaznam pred = prostredi.Data->Nastaveni;

        // Edits on every page, then Zrušit: nothing moves.
        const auto zmen = [&](frmNastaveniProgramu* okno) {
            auto* adresare = Stranka<Stranka_Adresare>(okno, 0);
            QVERIFY(adresare->txtCesta->isReadOnly()); // the data stay beside the program
            adresare->optCesta[1]->setChecked(true);
            Pis(adresare->txtCesta, prostredi.Cesta(u"tipy"_qs));
            adresare->cmdZaloz_Adr->click();
            Stranka<Stranka_Vzhled>(okno, 1)->HScroll1->setValue(7);
            Pis(Stranka<Stranka_Generovani>(okno, 2)->txtVych_Poc_Tipu, u"24"_qs);
            auto* ceny = Stranka<Stranka_Ceny>(okno, 3);
            Pis(ceny->txtCena_Jednoho_Tipu, u"20"_qs);
            ceny->optTyden[1]->setChecked(true);
            Pis(ceny->txtCena[0], u"5000000"_qs);
            ceny->optTyden[2]->setChecked(true);
            Pis(ceny->txtCena[4], u"60"_qs);
            Pis(Stranka<Stranka_Analyza_Tahu>(okno, 4)->Odecist_Tahy, u"5"_qs);
            Pis(Stranka<Stranka_Download>(okno, 7)->txtFTP_data1, u"streda.dbf"_qs);
            Stranka<Stranka_Ruseni>(okno, 8)->chkZrus_Tip_Sous_Cis[3]->setChecked(true);
            Stranka<Stranka_Auto_Analyza>(okno, 9)->chkExport_Amalyz_Do_Text_Souboru->setChecked(true);
        };
        frmNastaveniProgramu* okno = Otevri(prostredi);
        QVERIFY(okno != nullptr);
        zmen(okno);
        okno->cmdClose->click();
        QCOMPARE(prostredi.Data->Nastaveni, pred);
        QCOMPARE(Obsah_Souboru(prostredi.Cesta(u"tombi.cfg"_qs)), puvodni);
        QCOMPARE(modTombi::Ceny_Dne_Tahu(*prostredi.Data, Den::Patek)[4].Korun(), 0.0);

        okno = Otevri(prostredi);
        zmen(okno);
        okno->cmdOK->click();
        const Nastaveni_Zaznam po = prostredi.Ulozene_Nastaveni();
        QCOMPARE(po, prostredi.Data->Nastaveni);
        QCOMPARE(QDir(po.Adresare[1]).absolutePath(), QDir(prostredi.Cesta(u"tipy"_qs)).absolutePath());
        QVERIFY(QFileInfo(prostredi.Cesta(u"tipy"_qs)).isDir());
        QCOMPARE(int(po.Tloustka_Cary_1), 7);
        QCOMPARE(int(po.Vychozi_Tipu), 24);
        QCOMPARE(int(po.Cena_Jednoho_Tipu), 20);
        QCOMPARE(po.Ceny_Streda[0].Korun(), 5000000.0);
        QCOMPARE(po.Ceny_Nedele, pred.Ceny_Nedele);
        QCOMPARE(modTombi::Ceny_Dne_Tahu(*prostredi.Data, Den::Patek)[4].Korun(), 60.0);
        QCOMPARE(po.Odecist_Tahy, u"5"_qs);
        QCOMPARE(po.FTP_Data1, u"streda.dbf"_qs);
        QCOMPARE(int(po.Zrus_Tip_Sous_Cis[3]), 1);
        QCOMPARE(int(po.Zapis_Analyzy), 1);
        QCOMPARE(int(po.Stranka_Nastaveni), 9);
    }

    void Heslo() {
        Prostredi prostredi(QDate(2026, 11, 28));
        prostredi.Spust();
        frmNastaveniProgramu* okno = Otevri(prostredi);
        auto* heslo = Stranka<Stranka_Heslo>(okno, 5);
        const auto nastav = [&](const QString& stare, const QString& nove, const QString& znovu) {
            heslo->txtHeslo[0]->setText(stare);
            heslo->txtHeslo[1]->setText(nove);
            heslo->txtHeslo[2]->setText(znovu);
            heslo->cmdHeslo->click();
            return heslo->lblSpatne_Heslo->text();
        };
        QCOMPARE(nastav({}, u"abcd"_qs, u"abcd"_qs), u"Nesprávná délka hesla nebo žádné."_qs);
        QCOMPARE(nastav({}, u"abcde"_qs, u"abcdf"_qs), u"Nesprávná délka hesla nebo žádné."_qs);
        QCOMPARE(nastav({}, u"abcde"_qs, u"abcde"_qs), u"Heslo bylo přijato k zápisu, stiskněte BUDIŽ"_qs);
        QCOMPARE(nastav(u"xxxxx"_qs, u"fghij"_qs, u"fghij"_qs), u"Nesprávné  NOVÉ  heslo."_qs);
        QVERIFY(!Vb::Je_Pravda(prostredi.Data->Nastaveni.Je_Heslo)); // not before OK
        okno->cmdOK->click();
        const QString pws = prostredi.Registr->value(QString::fromUtf16(Klic_Pws)).toString();
        QVERIFY(!pws.isEmpty() && !pws.contains(u"abcde"_qs));
        QVERIFY(!Obsah_Souboru(prostredi.Cesta(u"tombi.cfg"_qs)).contains("abcde"));
        QVERIFY(Nastaveni_Programu::Je_Spravne_Heslo(prostredi.Ulozene_Nastaveni(), u"abcde"_qs));

        okno = Otevri(prostredi);
        heslo = Stranka<Stranka_Heslo>(okno, 5);
        heslo->txtHeslo[0]->setText(u"abcdx"_qs);
        heslo->cmdZrusit_Heslo->click();
        QCOMPARE(heslo->lblSpatne_Heslo->text(), u"Nesprávně zadané  PŮVODNÍ  heslo."_qs);
        heslo->txtHeslo[0]->setText(u"abcde"_qs);
        heslo->cmdZrusit_Heslo->click();
        okno->cmdOK->click();
        QVERIFY(prostredi.Registr->value(QString::fromUtf16(Klic_Pws)).toString().isEmpty());
        QVERIFY(!Vb::Je_Pravda(prostredi.Ulozene_Nastaveni().Je_Heslo));
    }

    void Vypocty() {
        Prostredi prostredi(QDate(2026, 11, 28));
        prostredi.Spust();
        prostredi.Data->Nastaveni.Cena_Jednoho_Tipu = 20;
        auto* vypocty = Stranka<Stranka_Vypocty>(Otevri(prostredi), 6);
        vypocty->txtVstupy[0]->setText(u"10"_qs);
        QCOMPARE(vypocty->lblVysledek[0]->text(), u"210"_qs);
        QCOMPARE(vypocty->lblVysledek[1]->text(), u"4 200 Kč"_qs);
        QCOMPARE(vypocty->lblVysledek[4]->text(), u"120"_qs);
        vypocty->txtVstupy[0]->setText(u"49"_qs);
        QCOMPARE(vypocty->lblVysledek[0]->text(), u"13 983 816"_qs);
        vypocty->txtVstupy[0]->setText(u"50"_qs);
        QCOMPARE(vypocty->lblVysledek[0]->text(), u" N E S M Y S L "_qs);
        vypocty->txtVstupy[1]->setText(u"25"_qs);
        QCOMPARE(std::pair(vypocty->lblVysledek[5]->text(), vypocty->lblVysledek[6]->text()),
                 std::pair(u"500 Kč"_qs, u"3"_qs));
    }
};

QTEST_MAIN(Test_frmNastaveniProgramu)
#include "Test_frmNastaveniProgramu.moc"
