// The splash: it belongs to the main window instead of standing over everything, sits in its
// middle, and goes away on a key, a click or after a while.
#include "app/frmTombi_uvod.h"

#include <QPointer>
#include <QTest>
#include <QTimer>

class Test_frmTombi_uvod final : public QObject {
    Q_OBJECT

private slots:
    void Misto_Casovac_A_Zavreni() {
        QWidget hlavni;
        hlavni.setGeometry(80, 60, 800, 600);
        hlavni.show();
        QVERIFY(QTest::qWaitForWindowExposed(&hlavni));

        QPointer<frmTombi_uvod> uvod = new frmTombi_uvod(u"2.0"_qs, &hlavni);
        QVERIFY(!(uvod->windowFlags() & Qt::WindowStaysOnTopHint));
        QVERIFY(uvod->isWindow());
        auto* casovac = uvod->findChild<QTimer*>(u"Casovac"_qs);
        QVERIFY(casovac);
        QVERIFY(!casovac->isActive());
        uvod->show();
        QVERIFY(QTest::qWaitForWindowExposed(uvod));
        QVERIFY(casovac->isActive() && casovac->isSingleShot());
        QCOMPARE(casovac->interval(), 4000);
        const QPoint rozdil = uvod->frameGeometry().center() - hlavni.frameGeometry().center();
        QVERIFY(rozdil.manhattanLength() <= 2);

        QTest::keyClick(uvod, Qt::Key_Space);
        QTRY_VERIFY(uvod.isNull());

        // The time is up: no real seconds, the same timer sooner.
        uvod = new frmTombi_uvod(u"2.0"_qs, &hlavni);
        uvod->show();
        uvod->findChild<QTimer*>(u"Casovac"_qs)->start(0);
        QTRY_VERIFY(uvod.isNull());
        QVERIFY(hlavni.isVisible());
    }
};

QTEST_MAIN(Test_frmTombi_uvod)
#include "Test_frmTombi_uvod.moc"
