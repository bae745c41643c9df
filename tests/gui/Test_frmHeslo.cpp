// The password at start: no password, no window; the right one on the first or a later attempt
// opens the program; the count of attempts with its word; three wrong ones leave it locked.
#include "Prostredi_Okna.h"
#include "settings/Nastaveni_Programu.h"
#include "settings/frmHeslo.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

void Zkus(frmHeslo* okno, const QString& heslo) {
    okno->txtHeslo_Vstup->setText(heslo);
    okno->Command1->click();
}

} // namespace

class Test_frmHeslo final : public QObject {
    Q_OBJECT

private slots:
    void Pokusy_data() {
        QTest::addColumn<QStringList>("zadani");
        QTest::addColumn<bool>("odemceno");
        QTest::newRow("hned") << QStringList{u"tajne1"_qs} << true;
        QTest::newRow("napodruhe") << QStringList{u"tajne"_qs, u"tajne1"_qs} << true;
        QTest::newRow("napotreti") << QStringList{u"a"_qs, u"b"_qs, u"tajne1"_qs} << true;
        QTest::newRow("trikrat spatne") << QStringList{u"a"_qs, u"b"_qs, u"c"_qs} << false;
    }

    void Pokusy() {
        QFETCH(QStringList, zadani);
        QFETCH(bool, odemceno);
        Prostredi prostredi(QDate(2026, 11, 28));
        prostredi.Registr->setValue(QString::fromUtf16(Klic_Pws),
                                    Zasifruj_Pws(Nastaveni_Programu::Zasifruj_Heslo(u"tajne1"_qs)));
        frmMDITombi& ram = prostredi.Spust();
        auto* okno = ram.Najdi_Okno<frmHeslo>();
        QVERIFY(okno != nullptr);
        QCOMPARE(std::pair(okno->lblPokus->text(), okno->Label2->text()), std::pair(u"3"_qs, u"pokusy"_qs));
        QVERIFY(!prostredi.Prikaz(u"mnuGenerujTipy"_qs)->isEnabled());
        QVERIFY(!prostredi.Prikaz(u"mnuKonfigurace"_qs)->isEnabled());
        QVERIFY(!prostredi.Prikaz(u"mnuSportka_streda"_qs)->isEnabled());
        QVERIFY(prostredi.Prikaz(u"mnuOProgramu"_qs)->isEnabled());
        for (qsizetype i = 0; i < zadani.size(); ++i) {
            Zkus(okno, zadani[i]);
            if (i == 0 && zadani.size() > 1)
                QCOMPARE(std::pair(okno->lblPokus->text(), okno->Label2->text()), std::pair(u"2"_qs, u"pokusy"_qs));
            if (i == 1 && zadani.size() > 2)
                QCOMPARE(std::pair(okno->lblPokus->text(), okno->Label2->text()), std::pair(u"1"_qs, u"pokus"_qs));
        }
        QCoreApplication::processEvents();
        QVERIFY(ram.Najdi_Okno<frmHeslo>() == nullptr || !ram.Najdi_Okno<frmHeslo>()->isVisible());
        QCOMPARE(prostredi.Prikaz(u"mnuGenerujTipy"_qs)->isEnabled(), odemceno);
        QCOMPARE(prostredi.Prikaz(u"mnuKonfigurace"_qs)->isEnabled(), odemceno);
        QCOMPARE(prostredi.Data->Zamceno, !odemceno);
        QCOMPARE(ram.windowTitle().contains(u"ZAMČENO"_qs), !odemceno);
        if (!odemceno)
            QVERIFY(prostredi.Oznameni().last().startsWith(u"Heslo nebylo zadáno správně"_qs));
    }

    void Bez_Hesla() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& ram = prostredi.Spust();
        QVERIFY(ram.Najdi_Okno<frmHeslo>() == nullptr);
        QVERIFY(prostredi.Prikaz(u"mnuGenerujTipy"_qs)->isEnabled());
    }
};

QTEST_MAIN(Test_frmHeslo)
#include "Test_frmHeslo.moc"
