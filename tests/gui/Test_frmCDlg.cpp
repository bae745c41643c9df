// The filters of the file dialogs come in pairs "description|patterns"; Qt takes them as
// "description (patterns)" joined by ";;", and reads the patterns only from those parentheses.
#include "app/frmCDlg.h"

#include <QTest>

class Test_frmCDlg final : public QObject {
    Q_OBJECT

private slots:
    void Filtr_Pro_Qt() {
        QCOMPARE(frmCDlg::Qt_Filtr(u"Soubor tipů (*.tip)|*.tip"_qs), u"Soubor tipů (*.tip)"_qs);
        // A description without patterns gets them; several patterns are separated by blanks.
        QCOMPARE(frmCDlg::Qt_Filtr(u"Seznam účastínků (*.szn)|*.szn|Texty|*.txt;*.asc"_qs),
                 u"Seznam účastínků (*.szn);;Texty (*.txt *.asc)"_qs);
        // What the parentheses show is replaced by the real patterns.
        QCOMPARE(frmCDlg::Qt_Filtr(u"Rozpisy (*.RZP)|*.rzp"_qs), u"Rozpisy (*.rzp)"_qs);
        QCOMPARE(frmCDlg::Qt_Filtr(QString()), QString());
    }
};

QTEST_MAIN(Test_frmCDlg)
#include "Test_frmCDlg.moc"
