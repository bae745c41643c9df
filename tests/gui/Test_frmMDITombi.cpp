// The frame of the program, offscreen: its title carries the version, and the MDI area fills it.
#include "app/frmMDITombi.h"

#include <QMdiArea>
#include <QTest>

class Test_frmMDITombi final : public QObject {
    Q_OBJECT

private slots:
    void Titulek_A_Plocha() {
        frmMDITombi okno;
        okno.show();
        QVERIFY(QTest::qWaitForWindowExposed(&okno));
        QCOMPARE(okno.windowTitle(), u" TOMBI   "_qs + QStringLiteral(TOMBI_VERZE));
        auto* plocha = okno.findChild<QMdiArea*>(u"Plocha"_qs);
        QVERIFY(plocha);
        QCOMPARE(okno.centralWidget(), plocha);

        // With TOMBI_SNIMKY set, the picture of the window goes to that folder.
        const QString slozka = qEnvironmentVariable("TOMBI_SNIMKY");
        if (!slozka.isEmpty())
            QVERIFY(okno.grab().save(slozka + u"/frmMDITombi.png"_qs));
    }
};

QTEST_MAIN(Test_frmMDITombi)
#include "Test_frmMDITombi.moc"
