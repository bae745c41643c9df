// Pictures of the program's windows for a person to look at. Each window is opened offscreen and
// saved as a PNG into the folder that TOMBI_SNIMKY names (a temporary folder if it is unset);
// a window that does not show or gives an empty picture fails the run. A new window is one more
// entry in the list below.

#include "Prostredi_Okna.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi_Sluzby.h"
#include "app/frmNapoveda.h"
#include "app/frmNeniProcedura.h"
#include "app/frmOProgramu.h"
#include "app/frmKresleni.h"
#include "app/frmPismo.h"
#include "app/frmSloupec_Tiketu.h"
#include "tips/frmVypisTipu.h"
#include "app/frmPrehled.h"
#include "app/frmTombi_uvod.h"
#include "data/Chyby_A_Prehled.h"
#include "data/Soubory.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>
#include <vector>

namespace {

struct Snimek {
    QString Jmeno;
    std::function<QWidget*(QWidget* hlavni)> Otevri;
};

// The start on a Thursday without the Sunday archive, as the screen shows it: the main window,
// the splash and the notice over it, each painted where it stands.
QWidget* Start_Bez_Archivu() {
    Prostredi prostredi(QDate(2026, 11, 26));
    QFile::remove(prostredi.Cesta(u"SpN_tahy.sez"_qs));
    frmMDITombi& okno = prostredi.Spust();
    if (!QTest::qWaitForWindowExposed(&okno))
        return nullptr;
    QPixmap obraz = okno.grab();
    QPainter kreslic(&obraz);
    kreslic.setRenderHint(QPainter::Antialiasing);
    QWidget* uvod = okno.findChild<frmTombi_uvod*>();
    for (QWidget* nad : {uvod, static_cast<QWidget*>(okno.Sluzby().Oznameni())}) {
        if (nad == nullptr || !nad->isVisible())
            continue;
        QPixmap vrstva(nad->size());
        vrstva.fill(Qt::transparent);
        nad->render(&vrstva, {}, {}, QWidget::DrawChildren);
        if (!nad->mask().isEmpty())
            kreslic.setClipRegion(nad->mask().translated(okno.mapFromGlobal(nad->pos())));
        kreslic.drawPixmap(okno.mapFromGlobal(nad->pos()), vrstva);
        kreslic.setClipping(false);
    }
    kreslic.end();
    auto* snimek = new QLabel;
    snimek->setPixmap(obraz);
    snimek->resize(obraz.size());
    return snimek;
}

} // namespace

int main(int argc, char** argv) {
    QApplication aplikace(argc, argv);
    QApplication::setWindowIcon(frmKresleni::Ikona_Programu());

    // The main window behind the notices.
    QWidget hlavni;
    hlavni.setGeometry(40, 30, 720, 520);
    hlavni.show();

    const std::vector<Snimek> snimky{
        {u"frmNeniProcedura"_qs,
         [](QWidget* h) -> QWidget* {
             return new frmNeniProcedura(u"Chybí soubor tahů  \"SpN_tahy.sez\"  v aktuálním adresáři."_qs, h);
         }},
        {u"frmNeniProcedura_dlouha"_qs,
         [](QWidget* h) -> QWidget* {
             return new frmNeniProcedura(u"Pro analýzu v tazích, nastavte počet týdnů v \"Nastavení - TiP\". "
                                         u"Bez něj nelze zjistit, kdy číslo padlo naposledy ani kolikrát."_qs,
                                         h);
         }},
        {u"Start_Bez_Archivu"_qs, [](QWidget*) { return Start_Bez_Archivu(); }},
        {u"frmTombi_uvod"_qs, [](QWidget*) -> QWidget* { return new frmTombi_uvod(QStringLiteral(TOMBI_VERZE)); }},
        {u"frmNapoveda"_qs, [](QWidget*) -> QWidget* { return new frmNapoveda(u"index.html"_qs); }},
        {u"frmPrehled"_qs,
         [](QWidget*) -> QWidget* {
             static QTemporaryDir slozka;
             const QDateTime kdy(QDate(2026, 11, 24), QTime(18, 2));
             Pridej_Do_Prehledu(slozka.path(), u"261124_30.tip"_qs, u"Rodina.szn"_qs, kdy);
             Pridej_Do_Prehledu(slozka.path(), u"S_261126_12.tip"_qs, u"Kolegové z práce.szn"_qs, kdy.addDays(2));
             Pridej_Do_Prehledu(slozka.path(), u"S_261129_50.tip"_qs, u"Šťastná sedmička.szn"_qs, kdy.addDays(5));
             const QString cesta = slozka.filePath(Soubor_Prehledu);
             return new frmPrehled(cesta);
         }},
        // The tip list of a Thursday evening: 24 tips, the second tip chosen and crossed.
        {u"frmVypisTipu"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 26));
             Uloz_Soubor(prostredi.Cesta(u"261126_24.tip"_qs), Soubor_Tipu(24));
             prostredi.Spust();
             prostredi.Otevri_Tipy(u"261126_24.tip"_qs);
             auto* vypis = prostredi.Okno->Najdi_Okno<frmVypisTipu>();
             vypis->List1->setCurrentRow(2);
             return prostredi.Okno.release();
         }},
        {u"frmSloupec_Tiketu"_qs,
         [](QWidget*) -> QWidget* {
             static Nastaveni_Zaznam nastaveni = Vychozi_Nastaveni(QString(), u"2.0"_qs);
             auto* sloupec = new frmSloupec_Tiketu(nastaveni);
             for (const int cislo : {3, 11, 19, 27, 36, 44})
                 sloupec->Pridej_Krizek(cislo);
             sloupec->Pridej_Ramecek(347 + 120 - 25, 347 + 80 - 25, QColor(255, 0, 0), 2);
             return sloupec;
         }},
        {u"frmPismo"_qs,
         [](QWidget*) -> QWidget* { return new frmPismo(QFont(u"DejaVu Sans"_qs, 10), QColor(128, 0, 0)); }},
        {u"frmOProgramu"_qs, [](QWidget*) -> QWidget* { return new frmOProgramu(QStringLiteral(TOMBI_VERZE)); }},
        // The frame as a user meets it on a Thursday evening: the Sunday archive and a tip file open.
        {u"frmMDITombi"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 26));
             Uloz_Soubor(prostredi.Cesta(u"251126_24.tip"_qs), Soubor_Tipu(24));
             prostredi.Spust();
             prostredi.Otevri_Tipy(u"251126_24.tip"_qs);
             prostredi.Data->Sluzby->Nastav_Status(u" 3 11 19 27 36 44"_qs, u"6"_qs);
             return prostredi.Okno.release();
         }},
    };

    QTemporaryDir docasna;
    QString slozka = qEnvironmentVariable("TOMBI_SNIMKY");
    if (slozka.isEmpty())
        slozka = docasna.path();
    QDir().mkpath(slozka);

    int chyby = 0;
    for (const Snimek& snimek : snimky) {
        std::unique_ptr<QWidget> okno(snimek.Otevri(&hlavni));
        if (okno == nullptr) {
            qWarning("%s: okno se neotevřelo", qPrintable(snimek.Jmeno));
            ++chyby;
            continue;
        }
        okno->show();
        const bool ukazano = QTest::qWaitForWindowExposed(okno.get());
        const QImage obraz = okno->grab().toImage();
        const QString soubor = QDir(slozka).filePath(snimek.Jmeno + u".png"_qs);
        if (!ukazano || obraz.isNull() || !obraz.save(soubor)) {
            qWarning("%s: snímek se nepodařil", qPrintable(snimek.Jmeno));
            ++chyby;
        } else {
            qInfo("%s", qPrintable(soubor));
        }
    }
    return chyby == 0 ? 0 : 1;
}
