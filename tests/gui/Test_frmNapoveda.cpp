// The help window on the built-in pages, and the about window.
#include "app/frmNapoveda.h"
#include "app/frmOProgramu.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>

namespace {

// With TOMBI_SNIMKY set, the picture of the window goes to that folder.
void Uloz_Snimek(QWidget& okno, const QString& jmeno) {
    const QString slozka = qEnvironmentVariable("TOMBI_SNIMKY");
    if (!slozka.isEmpty())
        QVERIFY(okno.grab().save(slozka + u'/' + jmeno + u".png"_qs));
}

} // namespace

class Test_frmNapoveda final : public QObject {
    Q_OBJECT

private slots:
    void stranky_a_odkazy() {
        frmNapoveda okno(u"index.html"_qs);
        okno.show();
        QVERIFY(QTest::qWaitForWindowExposed(&okno));
        auto* txt = okno.findChild<QTextBrowser*>(u"txtNapoveda"_qs);
        auto* zpet = okno.findChild<QPushButton*>(u"cmdZpet"_qs);
        auto* obsah = okno.findChild<QPushButton*>(u"cmdObsah"_qs);
        QVERIFY(txt && zpet && obsah);
        QVERIFY(txt->toPlainText().contains(u"Tombi – nápověda"_qs));
        QCOMPARE(okno.windowTitle(), u"Tombi – nápověda"_qs);
        QVERIFY(!zpet->isEnabled());
        Uloz_Snimek(okno, u"frmNapoveda"_qs);

        // The first link of the contents, taken from the keyboard, leads to the archive's page; back returns.
        txt->setFocus();
        QTest::keyClick(txt, Qt::Key_Tab);
        QTest::keyClick(txt, Qt::Key_Return);
        QVERIFY(txt->toPlainText().contains(u"Výpis losovaných čísel"_qs));
        QCOMPARE(okno.windowTitle(), u"Nápověda – Archiv tahů a dny tahů"_qs);
        QVERIFY(zpet->isEnabled());
        QTest::mouseClick(zpet, Qt::LeftButton);
        QVERIFY(txt->toPlainText().contains(u"Typický večer"_qs));

        // Every page a window can ask for exists; an unknown one falls back to the contents.
        for (const char* klic : {"Anal", "Gener", "NastavPrg", "Tahy", "Sezn", "TiskTik", "TipyVypis", "Heslo"}) {
            okno.Ukaz_Stranku(frmNapoveda::Stranka_Podle_Klice(QString::fromLatin1(klic)));
            QVERIFY2(!txt->toPlainText().contains(u"Typický večer"_qs), klic);
        }
        okno.Ukaz_Stranku(u"neni.html"_qs);
        QVERIFY(txt->toPlainText().contains(u"Typický večer"_qs));
    }

    void o_programu() {
        frmOProgramu okno(u"2.0"_qs);
        okno.show();
        QVERIFY(QTest::qWaitForWindowExposed(&okno));
        auto* verze = okno.findChild<QLabel*>(u"lblVerze"_qs);
        QVERIFY(verze);
        QCOMPARE(verze->text(), u"verze 2.0"_qs);
        QCOMPARE(okno.findChild<QLabel*>(u"lblNazev"_qs)->text(), u"TOMBI"_qs);
        Uloz_Snimek(okno, u"frmOProgramu"_qs);
        QTest::mouseClick(okno.findChild<QPushButton*>(u"cmdOK"_qs), Qt::LeftButton);
        QVERIFY(!okno.isVisible());
    }
};

QTEST_MAIN(Test_frmNapoveda)
#include "Test_frmNapoveda.moc"
