// Every window the frame opens fits a laptop's screen of 1366 x 768: the first start takes most of
// it, and with the main window at that size each window's last control shows, or shows once the
// area is scrolled.

#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "analysis/frmAnalyzaTahu.h"
#include "app/frmMDITombi_Plocha.h"
#include "app/frmMDITombi_Sluzby.h"
#include "app/frmNeniProcedura.h"
#include "data/Chyby_A_Prehled.h"
#include "data/Soubory.h"
#include "tips/frmVypisTipuVsech.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

namespace {

// The visible control lowest in the window, the rightmost of those.
QWidget* Posledni_Prvek(QWidget* okno) {
    QWidget* posledni = nullptr;
    for (QWidget* prvek : okno->findChildren<QWidget*>()) {
        if (!prvek->isVisibleTo(okno) || !prvek->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).isEmpty())
            continue;
        const QRect r(prvek->mapTo(okno, QPoint()), prvek->size());
        if (posledni == nullptr) {
            posledni = prvek;
            continue;
        }
        const QRect p(posledni->mapTo(okno, QPoint()), posledni->size());
        if (r.bottom() > p.bottom() || (r.bottom() == p.bottom() && r.right() > p.right()))
            posledni = prvek;
    }
    return posledni;
}

// Whether the whole control lies in the area's view with its scroll bars at 0 or at their end.
bool Ukazany(QMdiArea& plocha, QWidget* prvek, bool na_konci) {
    for (QScrollBar* posuvnik : {plocha.horizontalScrollBar(), plocha.verticalScrollBar()})
        posuvnik->setValue(na_konci ? posuvnik->maximum() : 0);
    QCoreApplication::processEvents();
    const QRect r(prvek->mapTo(plocha.viewport(), QPoint()), prvek->size());
    return prvek->isVisible() && plocha.viewport()->rect().contains(r);
}

} // namespace

class Test_Velikost_Oken final : public QObject {
    Q_OBJECT

private slots:
    void Prvni_Start() {
        Prostredi prostredi(QDate(2026, 11, 28));
        frmMDITombi& okno = prostredi.Spust();
        const QRect plocha = okno.screen()->availableGeometry();
        QCOMPARE(plocha.size(), QSize(1366, 768));
        QVERIFY(plocha.contains(okno.frameGeometry()));
        QVERIFY(okno.width() >= plocha.width() * 9 / 10);
        QVERIFY(okno.height() >= plocha.height() * 9 / 10);
    }

    void Okna_Na_Notebooku_data() {
        QTest::addColumn<QString>("prikaz");
        for (const char* prikaz :
             {"mnuOProgramu", "mnuHelp", "mnuPrehled", "mnuGenerujTipy", "frmVypisTipuVsech", "mnuVyhodnoceniTipu",
              "mnuVlastniTipy", "mnuVypisTahu", "mnuRozsirSouborTahy", "mnuAnalyza", "mnuVypisAnalyz", "mnuTiskTiketu",
              "mnuNovySeznam", "mnuKonfigurace"})
            QTest::newRow(prikaz) << QString::fromLatin1(prikaz);
    }

    void Okna_Na_Notebooku() {
        QFETCH(QString, prikaz);
        Prostredi prostredi(QDate(2026, 11, 28));
        Zapis_Souboru(prostredi.Cesta(u"261126_24.tip"_qs), Soubor_Tipu(24));
        frmMDITombi& okno = prostredi.Spust();
        // The first start's size on the screen of 1366 x 768, a little less than all of it.
        okno.resize(frmMDITombi_Plocha::Prvni_Velikost(okno.screen()->availableGeometry()));
        prostredi.Otevri_Tipy(u"261126_24.tip"_qs);
        QCoreApplication::processEvents();
        okno.Zavri_Formulare(1);
        Relace& sezeni = *prostredi.Data;

        if (prikaz == u"mnuPrehled"_qs) {
            QVERIFY(Pridej_Do_Prehledu(sezeni.Nastaveni.Adresare[2], u"261124_30.tip"_qs, u"Rodina.szn"_qs,
                                       QDateTime(QDate(2026, 11, 24), QTime(18, 2)))
                        .Ok());
        } else if (prikaz == u"mnuVypisAnalyz"_qs) {
            // The viewer opens beside the analysis once a report is in _Analyza.txt.
            sezeni.Nastaveni.Zapis_Analyzy = 1;
            sezeni.Nastaveni.Otevirat_Soubor = 1;
            prostredi.Prikaz(u"mnuAnalyza"_qs)->trigger();
            auto* analyza = okno.Najdi_Okno<frmAnalyzaTahu>();
            analyza->txtPocet_1Tahu->setText(u"52"_qs);
            analyza->txtPocet_2Tahu->setText(u"52"_qs);
            analyza->cmdOK->click();
            okno.Sluzby().Zavri_Oznameni(); // the word that the reports go to the file
        }
        if (prikaz == u"frmVypisTipuVsech"_qs) {
            prostredi.Prikaz(u"mnuGenerujTipy"_qs)->trigger();
            auto* vsech = okno.Otevri_Okno<frmVypisTipuVsech>(okno);
            vsech->Zobraz(u"  3  7 12 19 25 41\r\n"_qs.repeated(30), u" 3 7 12 19 25 41"_qs);
            vsech->Umisti(nullptr);
        } else {
            prostredi.Prikaz(prikaz)->trigger();
        }
        QCoreApplication::processEvents();
        QVERIFY2(prostredi.Oznameni().isEmpty(), qPrintable(prostredi.Oznameni().join(u"|"_qs)));

        int oken = 0;
        for (QMdiSubWindow* podokno : okno.Plocha()->subWindowList()) {
            if (!podokno->isVisible())
                continue;
            ++oken;
            QWidget* posledni = Posledni_Prvek(podokno->widget());
            QVERIFY(posledni != nullptr);
            const QString popis = QString::fromLatin1(podokno->widget()->metaObject()->className()) + u' ' +
                                  posledni->objectName() + u' ' +
                                  QString::fromLatin1(posledni->metaObject()->className());
            okno.Plocha()->setActiveSubWindow(podokno);
            QVERIFY2(Ukazany(*okno.Plocha(), posledni, false) || Ukazany(*okno.Plocha(), posledni, true),
                     qPrintable(popis));
        }
        QVERIFY(oken > 0);
        // The analysis' own "Budiž" under the draw list.
        if (auto* analyza = okno.Najdi_Okno<frmAnalyzaTahu>())
            QVERIFY(Ukazany(*okno.Plocha(), analyza->cmdOK, false) || Ukazany(*okno.Plocha(), analyza->cmdOK, true));
    }
};

// The offscreen screen is a laptop's: 1366 x 768 at 96 dpi.
int main(int argc, char** argv) {
    QTemporaryDir slozka;
    QFile obrazovka(slozka.filePath(u"obrazovka.json"_qs));
    if (!obrazovka.open(QIODevice::WriteOnly))
        return 1;
    obrazovka.write(R"({"screens": [{"name": "Notebook", "x": 0, "y": 0, "width": 1366, "height": 768,)"
                    R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    obrazovka.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + obrazovka.fileName().toLocal8Bit());
    QApplication aplikace(argc, argv);
    Test_Velikost_Oken test;
    return QTest::qExec(&test, argc, argv);
}

#include "Test_Velikost_Oken.moc"
