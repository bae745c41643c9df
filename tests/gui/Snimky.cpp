// Pictures of the program's windows for a person to look at. Each window is opened offscreen and
// saved as a PNG into the folder that TOMBI_SNIMKY names (a temporary folder if it is unset);
// a window that does not show or gives an empty picture fails the run. A new window is one more
// entry in the list below.

#include "Prostredi_Okna.h"
#include "Server_Http.h"
#include "analysis/frmAnalyzaTahu.h"
#include "analysis/frmAnalyzaTahu_Graf.h"
#include "analysis/frmVypisAnalyz.h"
#include "app/Sluzby_Oken.h"
#include "app/frmKresleni.h"
#include "app/frmMDITombi_Sluzby.h"
#include "app/frmNapoveda.h"
#include "app/frmNeniProcedura.h"
#include "app/frmOProgramu.h"
#include "app/frmPismo.h"
#include "app/frmPrehled.h"
#include "app/frmSloupec_Tiketu.h"
#include "app/frmTombi_uvod.h"
#include "archive/frmVypisTahu.h"
#include "bettors/frmSeznamSazejicich.h"
#include "data/Chyby_A_Prehled.h"
#include "data/Soubory.h"
#include "generator/frmGeneruj.h"
#include "generator/frmGeneruj_Omezeni.h"
#include "generator/frmGeneruj_Vyber.h"
#include "net/Aktualizace.h"
#include "net/Stahovani_Tahu.h"
#include "net/frmStin.h"
#include "printing/frmTiskTiketu.h"
#include "settings/Nastaveni_Programu.h"
#include "settings/frmHeslo.h"
#include "settings/frmNastaveniProgramu.h"
#include "tips/frmVypisTipu.h"
#include "tips/frmVypisTipuVsech.h"
#include "tips/frmVypisTipu_Vyhodnoceni.h"
#include "tips/frmVypisTipu_Vyhry.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <functional>
#include <memory>
#include <vector>

namespace {

struct Snimek {
    QString Jmeno;
    std::function<QWidget*(QWidget* hlavni)> Otevri;
};

// The analysis window after the frequency over the last 52 draws; with `graf` its chart tab, two
// numbers picked.
QWidget* Cetnost_52(bool graf) {
    static std::vector<std::unique_ptr<Prostredi>> prostredi_snimku;
    prostredi_snimku.push_back(std::make_unique<Prostredi>(QDate(2026, 11, 28)));
    Prostredi& prostredi = *prostredi_snimku.back();
    prostredi.Spust().resize(1366, 768);
    prostredi.Prikaz(u"mnuAnalyza"_qs)->trigger();
    auto* okno = prostredi.Okno->Najdi_Okno<frmAnalyzaTahu>();
    okno->txtPocet_1Tahu->setText(u"52"_qs);
    okno->txtPocet_2Tahu->setText(u"52"_qs);
    okno->cmdOK->click();
    if (graf) {
        prostredi.Data->Vybrana_Cisla[7] = prostredi.Data->Vybrana_Cisla[36] = 1;
        okno->Graf->Zvyrazni(prostredi.Data->Vybrana_Cisla);
        okno->Zalozky->setCurrentIndex(1);
        // Under the draw list the chart is reached by scrolling the area, as the user does.
        QCoreApplication::processEvents();
        prostredi.Okno->Plocha()->verticalScrollBar()->setValue(
            prostredi.Okno->Plocha()->verticalScrollBar()->maximum());
    }
    return prostredi.Okno.release();
}

// The start on a Saturday without the Sunday archive, as the screen shows it: the main window,
// the splash and the notice over it, each painted where it stands.
QWidget* Start_Bez_Archivu() {
    Prostredi prostredi(QDate(2026, 11, 28));
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

    std::vector<Snimek> snimky{
        {u"frmNeniProcedura"_qs,
         [](QWidget* h) -> QWidget* {
             return new frmNeniProcedura(u"Chybí soubor tahů  \"SpN_tahy.sez\"  v aktuálním adresáři."_qs, h);
         }},
        {u"frmNeniProcedura_dlouha"_qs,
         [](QWidget* h) -> QWidget* {
             return new frmNeniProcedura(u"Pro analýzu v tazích, nastavte počet týdnů v \"Nastavení - TiP\" "
                                         u"(Program - Nastavení, stránka Analýza tahů, Počet týdnů analýzy tipů)."_qs,
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
        // The tip list of a Saturday evening: 24 tips, the second tip chosen and crossed.
        {u"frmVypisTipu"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             Uloz_Soubor(prostredi.Cesta(u"261126_24.tip"_qs), Soubor_Tipu(24));
             prostredi.Spust();
             prostredi.Otevri_Tipy(u"261126_24.tip"_qs);
             auto* vypis = prostredi.Okno->Najdi_Okno<frmVypisTipu>();
             vypis->List1->setCurrentRow(2);
             return prostredi.Okno.release();
         }},
        // The same list after an evaluation of a typed draw, prizes filled in and a win chosen.
        {u"frmVypisTipu_Vyhodnoceni"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             Uloz_Soubor(prostredi.Cesta(u"261126_24.tip"_qs), Soubor_Tipu(24));
             prostredi.Spust().resize(880, 800);
             prostredi.Otevri_Tipy(u"261126_24.tip"_qs);
             auto* vypis = prostredi.Okno->Najdi_Okno<frmVypisTipu>();
             const int tah[] = {3, 4, 5, 9, 12, 30, 41};
             for (int i = 0; i < 7; ++i)
                 vypis->Vyhodnoceni->Tah1[std::size_t(i)]->setText(QString::number(tah[i]));
             const char* const ceny[] = {"20000000", "500000", "20000", "600", "120"};
             for (std::size_t i = 0; i < 5; ++i)
                 vypis->Vyhry->Tah1Vyhra[i]->setText(QString::fromLatin1(ceny[i]));
             vypis->Vyhodnoceni->cmdOK->click();
             vypis->Vyhry->Tah1Vyhra[4]->setText(u"120"_qs);
             emit vypis->Vyhry->Tah1Vyhra[4]->textEdited(u"120"_qs);
             vypis->List1->setCurrentRow(8);
             return prostredi.Okno.release();
         }},
        // Tips entered by hand with the on-line analysis, and the choice of tips by pattern.
        {u"frmVypisTipu_Analyza"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             Uloz_Soubor(prostredi.Cesta(u"261126_24.tip"_qs), Soubor_Tipu(24));
             prostredi.Spust().resize(880, 700);
             prostredi.Otevri_Tipy(u"261126_24.tip"_qs);
             auto* vypis = prostredi.Okno->Najdi_Okno<frmVypisTipu>();
             vypis->List2->setCurrentRow(0);
             for (const int cislo : {3, 4, 17})
                 emit vypis->picSloupec_Vypis_Tipu->Klik(cislo, Qt::LeftButton, false);
             return prostredi.Okno.release();
         }},
        {u"frmVypisTipu_Vyber"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             Uloz_Soubor(prostredi.Cesta(u"261126_24.tip"_qs), Soubor_Tipu(24));
             prostredi.Spust().resize(880, 700);
             prostredi.Otevri_Tipy(u"261126_24.tip"_qs);
             prostredi.Okno->Najdi_Okno<frmVypisTipu>()->List2->setCurrentRow(1);
             return prostredi.Okno.release();
         }},
        // Two wheels joined: the generator stays for the next one beside the list of all tips.
        {u"frmVypisTipuVsech"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             frmMDITombi& okno = prostredi.Spust();
             okno.resize(1300, 740);
             okno.Otevri_Okno<frmGeneruj>(okno);
             auto* generator = okno.Najdi_Okno<frmGeneruj>();
             generator->chkSpojvatRozpisy->setChecked(true);
             for (int kolo = 0; kolo < 2; ++kolo) {
                 emit generator->lstSportka->itemClicked(generator->lstSportka->item(10));
                 for (int n = 1; n <= 10; ++n)
                     emit generator->Vyber->picSloupec->Klik(n + 10 * kolo + 2, Qt::LeftButton, false);
                 generator->cmdOK->click();
             }
             return prostredi.Okno.release();
         }},
        // The bettors' list: five bettors, a commission, the money, the printouts and the leaflet.
        {u"frmSeznamSazejicich"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             Uloz_Soubor(prostredi.Cesta(u"a.tip"_qs), Soubor_Tipu(24));
             prostredi.Spust().resize(1000, 640);
             prostredi.Data->Nastaveni.Cena_Jednoho_Tipu = 20;
             prostredi.Otevri_Tipy(u"a.tip"_qs);
             prostredi.Prikaz(u"mnuNovySeznam"_qs)->trigger();
             auto* seznam = prostredi.Okno->Najdi_Okno<frmSeznamSazejicich>();
             seznam->Text3->setText(u"Rodina"_qs);
             seznam->txtProvize->setText(u"5"_qs);
             for (const auto& [jmeno, vklad] : {std::pair{u"Jan Novák"_qs, u"200"_qs}, std::pair{u"Eva Dvořáková"_qs, u"300"_qs},
                                                std::pair{u"Petr Svoboda"_qs, u"100"_qs},
                                                std::pair{u"Marie Černá"_qs, u"250"_qs}, std::pair{u"Ota"_qs, u"150"_qs}}) {
                 seznam->txtJmeno->setText(jmeno);
                 seznam->txtVklad->setText(vklad);
                 seznam->cmdDalsi_Sazejici->click();
             }
             seznam->List1->item(1)->setCheckState(Qt::Checked);
             return prostredi.Okno.release();
         }},
        // Printing onto the paper tickets: the choice boxes, the shift and the range of tickets.
        {u"frmTiskTiketu"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             Uloz_Soubor(prostredi.Cesta(u"a.tip"_qs), Soubor_Tipu(24));
             prostredi.Spust().resize(900, 600);
             prostredi.Otevri_Tipy(u"a.tip"_qs);
             prostredi.Okno->Zavri_Okno<frmVypisTipu>();
             prostredi.Prikaz(u"mnuTiskTiketu"_qs)->trigger();
             auto* tisk = prostredi.Okno->Najdi_Okno<frmTiskTiketu>();
             tisk->Volba_Click(15);
             tisk->txtOsa_X->setText(u"-2"_qs);
             return prostredi.Okno.release();
         }},
        // The preview of the first ticket over the outline of the ticket's boxes.
        {u"frmTiskTiketu_Nahled"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             Uloz_Soubor(prostredi.Cesta(u"a.tip"_qs), Soubor_Tipu(24));
             prostredi.Spust();
             prostredi.Otevri_Tipy(u"a.tip"_qs);
             prostredi.Prikaz(u"mnuTiskTiketu"_qs)->trigger();
             auto* tisk = prostredi.Okno->Najdi_Okno<frmTiskTiketu>();
             tisk->Check2->setChecked(true);
             // The frame and the printer stay for the life of the program, as the pictures' windows do.
             prostredi.Okno.release();
             auto* tiskarna = new QPrinter(QPrinter::HighResolution);
             tiskarna->setOutputFormat(QPrinter::PdfFormat);
             tiskarna->setFullPage(true);
             auto* nahled = new QPrintPreviewWidget(tiskarna);
             QObject::connect(nahled, &QPrintPreviewWidget::paintRequested, tisk, &frmTiskTiketu::Kresli_Nahled);
             nahled->resize(700, 900);
             nahled->setZoomMode(QPrintPreviewWidget::FitToWidth);
             nahled->updatePreview();
             return nahled;
         }},
        // A wheel chosen and its numbers filled: its guarantees and chances under the list.
        {u"frmGeneruj_Rozpis"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             frmMDITombi& okno = prostredi.Spust();
             okno.resize(1060, 740);
             okno.Otevri_Okno<frmGeneruj>(okno);
             auto* generator = okno.Najdi_Okno<frmGeneruj>();
             emit generator->lstSportka->itemClicked(generator->lstSportka->item(11));
             for (int n : {3, 7, 12, 15, 18, 22, 26, 29, 33, 36, 40, 41, 44, 48})
                 emit generator->Vyber->picSloupec->Klik(n, Qt::LeftButton, false);
             generator->lstSportka->scrollToItem(generator->lstSportka->item(11));
             return prostredi.Okno.release();
         }},
        // The frequency of numbers over the last 52 draws, as the report and as the chart.
        {u"frmAnalyzaTahu"_qs, [](QWidget*) { return Cetnost_52(false); }},
        {u"frmAnalyzaTahu_Graf"_qs, [](QWidget*) { return Cetnost_52(true); }},
        // The viewer beside the analysis: the frequency of the last 52 draws written to _Analyza.txt,
        // one count line picked with the mouse.
        {u"frmVypisAnalyz"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 26));
             prostredi.Spust().resize(1366, 768);
             prostredi.Data->Nastaveni.Zapis_Analyzy = 1;
             prostredi.Data->Nastaveni.Otevirat_Soubor = 1;
             prostredi.Prikaz(u"mnuAnalyza"_qs)->trigger();
             auto* analyza = prostredi.Okno->Najdi_Okno<frmAnalyzaTahu>();
             analyza->txtPocet_1Tahu->setText(u"52"_qs);
             analyza->txtPocet_2Tahu->setText(u"52"_qs);
             analyza->cmdOK->click();
             auto* vypis = prostredi.Okno->Najdi_Okno<frmVypisAnalyz>();
             QTextCursor radek = vypis->rtbVypis_Analyz[0]->document()->find(u" 9x - "_qs);
             radek.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
             vypis->Vyber_Cisla(0, radek.selectedText());
             return prostredi.Okno.release();
         }},
        // The generator with numbers taken from the status band, a tutovka by a right click and two
        // filters on.
        {u"frmGeneruj"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             frmMDITombi& okno = prostredi.Spust();
             okno.resize(1060, 720);
             prostredi.Data->Sluzby->Nastav_Status(u" 2 7 11 16 19 23 28 31 35 38 42 46"_qs, u"12"_qs);
             frmGeneruj* generator = frmGeneruj::Nacti_Cisla_Do_Generatoru(okno);
             emit generator->Vyber->picSloupec->Klik(9, Qt::RightButton, false);
             generator->Omezeni->Check1[0]->setChecked(true);
             generator->Omezeni->Check1[8]->setChecked(true);
             generator->txtPoc_Tipu->setText(u"30"_qs);
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
        // The frame as a user meets it on a Saturday evening: the Sunday archive and a tip file open.
        // The draw list over the Sunday archive, the newest first draw clicked with its supplementary
        // number.
        {u"frmVypisTahu"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             frmMDITombi& okno = prostredi.Spust();
             okno.resize(1000, 560);
             prostredi.Prikaz(u"mnuVypisTahu"_qs)->trigger();
             auto* tahy = okno.Najdi_Okno<frmVypisTahu>();
             tahy->chkDodatkova->setChecked(true);
             tahy->List1Tah->setCurrentRow(tahy->List1Tah->count() - 1);
             return prostredi.Okno.release();
         }},
        {u"frmMDITombi"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 28));
             Uloz_Soubor(prostredi.Cesta(u"251126_24.tip"_qs), Soubor_Tipu(24));
             prostredi.Spust();
             prostredi.Otevri_Tipy(u"251126_24.tip"_qs);
             prostredi.Data->Sluzby->Nastav_Status(u" 3 11 19 27 36 44"_qs, u"6"_qs);
             return prostredi.Okno.release();
         }},
        // A Friday: the Friday draw chosen, its tip list showing the newest draw with its date.
        {u"frmMDITombi_Patek"_qs,
         [](QWidget*) -> QWidget* {
             static Prostredi prostredi(QDate(2026, 11, 27));
             Uloz_Soubor(prostredi.Cesta(u"271126_24.tip"_qs), Soubor_Tipu(24));
             prostredi.Spust().resize(1000, 720);
             prostredi.Otevri_Tipy(u"271126_24.tip"_qs);
             auto* panel = prostredi.Okno->Najdi_Okno<frmVypisTipu>()->Vyhodnoceni;
             panel->txtPocet_1Tahu->setText(u"1"_qs);
             panel->txtPocet_2Tahu->setText(u"1"_qs);
             return prostredi.Okno.release();
         }},
    };
    // Every page of the settings, each in its window; and the password asked for at start.
    for (int i = 0; i < 10; ++i)
        snimky.push_back({u"frmNastaveniProgramu_%1"_qs.arg(i), [i](QWidget*) -> QWidget* {
                              // A frame a page; each lives on with its picture's window.
                              auto* prostredi = new Prostredi(QDate(2026, 11, 28));
                              prostredi->Spust().resize(1000, 700);
                              prostredi->Prikaz(u"mnuKonfigurace"_qs)->trigger();
                              prostredi->Okno->Najdi_Okno<frmNastaveniProgramu>()->Ukaz_Stranku(i);
                              return prostredi->Okno.release();
                          }});
    // The download against a server of the picture's own, every row done; and the update's offer.
    snimky.push_back({u"frmStin"_qs, [](QWidget*) -> QWidget* {
                          static Server_Http server;
                          server.Cesty[u"/set/sportka-streda.dbf"_qs] = {Tabulka_Dbf(int(Den::Streda))};
                          server.Cesty[u"/set/sportka-nedele.dbf"_qs] = {
                              Tabulka_Dbf(int(Den::Nedele), Stahovani_Tahu::Nejmensi_Nedele)};
                          static Prostredi prostredi(QDate(2026, 11, 28));
                          prostredi.Spust().resize(900, 600);
                          prostredi.Data->Nastaveni.FTP_Adresa = server.Adresa() + u"/set"_qs;
                          prostredi.Prikaz(u"mnuDownload"_qs)->trigger();
                          return prostredi.Okno.release();
                      }});
    snimky.push_back({u"frmStin_Nabidka"_qs, [](QWidget*) -> QWidget* {
                          static Prostredi prostredi(QDate(2026, 11, 28));
                          prostredi.Spust().resize(900, 600);
                          auto* okno = prostredi.Okno->Otevri_Okno<frmStin>(*prostredi.Okno);
                          std::array<QString, 7> texty;
                          for (std::size_t i = 0; i < texty.size(); ++i)
                              texty[i] = Aktualizace::Soubory()[i].Text;
                          okno->Zobraz_Nabidku(texty, {true, false, true, true, false, false, true},
                                               [](const std::array<bool, 7>&) {});
                          return prostredi.Okno.release();
                      }});
    snimky.push_back({u"frmHeslo"_qs, [](QWidget*) -> QWidget* {
                          static Prostredi prostredi(QDate(2026, 11, 28));
                          prostredi.Registr->setValue(QString::fromUtf16(Klic_Pws),
                                                      Zasifruj_Pws(Nastaveni_Programu::Zasifruj_Heslo(u"tajne1"_qs)));
                          prostredi.Spust().resize(900, 600);
                          auto* heslo = prostredi.Okno->Najdi_Okno<frmHeslo>();
                          heslo->txtHeslo_Vstup->setText(u"abc"_qs);
                          heslo->Command1->click();
                          return prostredi.Okno.release();
                      }});

    QTemporaryDir docasna;
    QString slozka = qEnvironmentVariable("TOMBI_SNIMKY");
    if (slozka.isEmpty())
        slozka = docasna.path();
    QDir().mkpath(slozka);

    int chyby = 0;
    // Names on the command line take only those pictures.
    const QStringList jen = QApplication::arguments().mid(1);
    for (const Snimek& snimek : snimky) {
        if (!jen.isEmpty() && !jen.contains(snimek.Jmeno))
            continue;
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
