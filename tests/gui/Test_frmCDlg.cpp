// The real dialogs: the filters of the file dialogs, the font dialog that also picks the colour,
// and Qt's own texts in Czech.
#include "app/Cestina.h"
#include "app/frmCDlg.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

// Runs `obsluha` on the font dialog as soon as it is open; `Vybrat_Pismo` then returns its answer.
bool Vyber(Dialogy::Pismo& pismo, std::function<void(QDialog&)> obsluha) {
    QTimer::singleShot(0, qApp, [obsluha] {
        for (QWidget* okno : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QDialog*>(okno); dialog && okno->objectName() == u"frmPismo"_qs)
                return obsluha(*dialog);
        QFAIL("dialog písma se neotevřel");
    });
    frmCDlg dialogy(nullptr);
    return dialogy.Vybrat_Pismo(pismo);
}

} // namespace

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

    void Pismo_S_Barvou() {
        // A colour of the user's own (R 0x12, G 0x34, B 0x56) comes back byte for byte.
        Dialogy::Pismo pismo{u"DejaVu Sans"_qs, 11, true, 0x563412};
        QVERIFY(Vyber(pismo, [](QDialog& okno) {
            auto* barva = okno.findChild<QComboBox*>(u"cboBarva"_qs);
            QVERIFY(barva);
            QCOMPARE(barva->currentText(), u"#123456"_qs);
            okno.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        }));
        QCOMPARE(pismo.Barva, 0x563412);
        QCOMPARE(pismo.Velikost, 11);
        QVERIFY(pismo.Tucne);

        // A colour of the palette is stored with red in the low byte: dark blue is 0x800000.
        QVERIFY(Vyber(pismo, [](QDialog& okno) {
            auto* barva = okno.findChild<QComboBox*>(u"cboBarva"_qs);
            barva->setCurrentIndex(barva->findText(u"Tmavě modrá"_qs));
            okno.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        }));
        QCOMPARE(pismo.Barva, 0x800000);

        // Cancel keeps the colour, whatever was picked meanwhile.
        QVERIFY(!Vyber(pismo, [](QDialog& okno) {
            auto* barva = okno.findChild<QComboBox*>(u"cboBarva"_qs);
            QCOMPARE(barva->currentText(), u"Tmavě modrá"_qs);
            barva->setCurrentIndex(barva->findText(u"Žlutá"_qs));
            okno.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
        }));
        QCOMPARE(pismo.Barva, 0x800000);
    }

    void Qt_Cesky() {
        QVERIFY(Nastav_Cestinu_Qt());
        QVERIFY(Nastav_Cestinu_Qt()); // a second call changes nothing
        QCOMPARE(QLocale().dayName(1), u"pondělí"_qs);
        QFileDialog okno(nullptr, u"Otevřít"_qs, QDir::tempPath());
        okno.setOption(QFileDialog::DontUseNativeDialog);
        auto* hledat = okno.findChild<QLabel*>(u"lookInLabel"_qs);
        QVERIFY(hledat);
        QCOMPARE(hledat->text(), u"Hledat v:"_qs);
    }
};

QTEST_MAIN(Test_frmCDlg)
#include "Test_frmCDlg.moc"
