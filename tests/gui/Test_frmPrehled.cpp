// The overview window: the file of code page 1250 with CR LF reads as Czech text, again on
// Obnovit, and a file that cannot be read says so.
#include "core/Vb.h"
#include "app/frmPrehled.h"
#include "data/Soubory.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class Test_frmPrehled final : public QObject {
    Q_OBJECT

private slots:
    void Cteni_A_Obnoveni() {
        QTemporaryDir slozka;
        const QString cesta = slozka.filePath(u"_Prehled.txt"_qs);
        QVERIFY(Uloz_Soubor(cesta, Vb::Do_1250(u"Žluťoučký kůň\r\nS_1\t\tA.tip\r\n"_qs)).Ok());

        auto okno = std::make_unique<frmPrehled>(cesta);
        okno->show();
        auto* text = okno->findChild<QPlainTextEdit*>(u"txtPrehled"_qs);
        QVERIFY(text);
        QVERIFY(text->isReadOnly());
        QCOMPARE(text->toPlainText(), u"Žluťoučký kůň\nS_1\t\tA.tip\n"_qs);

        QVERIFY(Uloz_Soubor(cesta, Vb::Do_1250(u"Přidáno\r\n"_qs)).Ok());
        QTest::mouseClick(okno->findChild<QPushButton*>(u"cmdObnovit"_qs), Qt::LeftButton);
        QCOMPARE(text->toPlainText(), u"Přidáno\n"_qs);

        okno->Prevezmi(slozka.filePath(u"chybi.txt"_qs));
        QVERIFY(text->toPlainText().contains(u"nelze načíst"_qs));

        QTest::mouseClick(okno->findChild<QPushButton*>(u"cmdZavrit"_qs), Qt::LeftButton);
        QVERIFY(!okno->isVisible());
    }
};

QTEST_MAIN(Test_frmPrehled)
#include "Test_frmPrehled.moc"
