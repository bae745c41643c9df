// The notice: it shows its text, fits it, stands centred on the main window, and goes away on a
// click or a key without anyone waiting for it.
#include "app/frmNeniProcedura.h"

#include <QLabel>
#include <QPointer>
#include <QTest>

class Test_frmNeniProcedura final : public QObject {
    Q_OBJECT

    QWidget* Hlavni = nullptr;

    frmNeniProcedura* Ukaz(const QString& text) {
        auto* okno = new frmNeniProcedura(text, Hlavni);
        if (!QTest::qWaitForWindowExposed(okno))
            return nullptr;
        return okno;
    }

private slots:
    void init() {
        Hlavni = new QWidget;
        Hlavni->setGeometry(60, 40, 640, 420);
        Hlavni->show();
        QVERIFY(QTest::qWaitForWindowExposed(Hlavni));
    }

    void cleanup() { delete Hlavni; }

    void Text_Velikost_A_Misto() {
        const QString kratky = u"Chybí soubor tahů  \"SpN_tahy.sez\"  v aktuálním adresáři."_qs;
        const QString dlouhy = kratky + u" Soubor se obnoví ze zálohy nebo se stáhne z internetu; do té doby "
                                        u"nelze vyhodnocovat tipy ani analyzovat tahy."_qs;
        for (const QString& text : {kratky, dlouhy}) {
            frmNeniProcedura* okno = Ukaz(text);
            QVERIFY(okno);
            QVERIFY(okno->isVisible());
            QVERIFY(okno->windowFlags() & Qt::FramelessWindowHint);
            auto* popis = okno->findChild<QLabel*>(u"Label1"_qs);
            QVERIFY(popis);
            QCOMPARE(popis->text(), text);
            // The whole text fits in the label, and the label inside the window.
            QVERIFY(popis->heightForWidth(popis->width()) <= popis->height());
            QVERIFY(okno->rect().contains(popis->geometry()));
            // A long text is folded rather than stretched across the screen.
            QVERIFY(okno->width() < 800);

            const QPoint rozdil = okno->frameGeometry().center() - Hlavni->frameGeometry().center();
            QVERIFY2(rozdil.manhattanLength() <= 2, qPrintable(u"posun %1,%2"_qs.arg(rozdil.x()).arg(rozdil.y())));
            delete okno;
        }
    }

    void Zavre_Se_Klepnutim_I_Klavesou() {
        // A click on the text itself counts as a click on the window.
        QPointer<frmNeniProcedura> okno = Ukaz(u"Tip uložen."_qs);
        QVERIFY(okno);
        QTest::mouseClick(okno, Qt::LeftButton, {}, okno->rect().center());
        QTRY_VERIFY(okno.isNull());

        okno = Ukaz(u"Tip uložen."_qs);
        QVERIFY(okno);
        QTest::keyClick(okno, Qt::Key_A);
        QTRY_VERIFY(okno.isNull());
        QVERIFY(Hlavni->isVisible());
    }
};

QTEST_MAIN(Test_frmNeniProcedura)
#include "Test_frmNeniProcedura.moc"
