#include "app/frmMDITombi.h"

#include "app/Dialogy.h"
#include "app/Hodiny.h"
#include "app/Relace.h"
#include "app/Tabulka_Textu.h"
#include "app/Vb.h"
#include "app/frmNapoveda.h"
#include "app/frmNeniProcedura.h"
#include "app/frmOProgramu.h"
#include "app/frmTombi_uvod.h"
#include "app/modTombi.h"
#include "data/Chyby_A_Prehled.h"
#include "data/Nastaveni.h"
#include "data/Nedavne_Soubory.h"
#include "data/Soubory.h"
#include "net/Import_Tahu.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProcess>
#include <QProgressBar>
#include <QScreen>
#include <QSettings>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

namespace {

// Commands whose windows are still to come stay disabled: a command is switched on by taking its
// line out. An entry without an index stands for the whole menu array.
constexpr QStringView Nehotove_Prikazy[] = {
    u"mnuPripojSouborTipu", u"mnuSetriditSouborTipu", u"mnuGenerujTipy", u"mnuVlastniTipy", u"mnuVyhodnoceniTipu",
    u"mnuExportTipu",       u"mnuImportTipu",         u"mnuTiskTiketu",  u"mnuVypisTahu",   u"mnuRozsirSouborTahy",
    u"mnuAnalyza",          u"mnuAnalyzaAutomat",     u"mnuVypisAnalyz", u"mnuDownload",    u"mnuOtevriSeznam",
    u"mnuNovySeznam",       u"mnuVypisSeznamu",       u"mnuUvolnit",     u"mnuSeznamFile",  u"mnuKonfigurace",
    u"mnuWebTombiNovaVer",
};
// Commands that work on the archive of the day, and so are off while the day has none.
constexpr QStringView Prikazy_Archivu[] = {u"mnuVypisTahu", u"mnuRozsirSouborTahy", u"mnuAnalyza"};

bool Obsahuje(const auto& seznam, QStringView jmeno) {
    return std::find(std::begin(seznam), std::end(seznam), jmeno) != std::end(seznam);
}

const QString Adresa_Sazky = u"https://www.sazka.cz"_qs;
const QString& Adresa_Tombi = frmOProgramu::Domovska_Stranka;
const QString Filtr_Tipu = u"Soubor tipů (*.tip)|*.tip"_qs;
const QString Stranka_Napovedy = u"index.html"_qs;

// The window's size when no place is stored, in twips; the screen may make it smaller.
constexpr double Vychozi_Sirka = 13500;
constexpr double Vychozi_Vyska = 9750;
constexpr double Nejmensi_Rozmer = 6000;

// Menu captions show a file name: an ampersand in it is a plain character, not an access key.
QString Bez_Klavesy(QString text) {
    return text.replace(u'&', u"&&"_qs);
}

} // namespace

frmMDITombi::frmMDITombi(Relace& relace, QWidget* parent)
    : QMainWindow(parent), Data_Relace(relace), Mdi_Plocha(new QMdiArea),
      Pas_Stavu(new frmMDITombi_Stav(relace, this)) {
    setObjectName(u"frmMDITombi"_qs);
    setWindowTitle(u" TOMBI   "_qs + QStringLiteral(TOMBI_VERZE));

    Mdi_Plocha->setObjectName(u"Plocha"_qs);
    Mdi_Plocha->setBackground(QColor(0x6b, 0x7b, 0x8c));
    auto* stred = new QWidget;
    auto* rozvrzeni = new QVBoxLayout(stred);
    rozvrzeni->setContentsMargins(0, 0, 0, 0);
    rozvrzeni->setSpacing(0);
    rozvrzeni->addWidget(Mdi_Plocha, 1);
    rozvrzeni->addWidget(Pas_Stavu);
    setCentralWidget(stred);

    Vytvor_Menu();
    Nastav_Texty(Tabulka_Textu::Programu());
    Obnov_Povoleni();
    setMinimumSize(Pixely(Nejmensi_Rozmer, *this), Pixely(Nejmensi_Rozmer, *this));
    resize(Pixely(Vychozi_Sirka, *this), Pixely(Vychozi_Vyska, *this));

    Otevri_Adresu = [](const QUrl& adresa) { return QDesktopServices::openUrl(adresa); };
    Spust_Program = [](const QString& program, const QStringList& argumenty) {
        return QProcess::startDetached(program, argumenty);
    };
    Data_Relace.Tikety.Pumpa = [] { QCoreApplication::processEvents(); };

    // A click anywhere on the main window sends the splash and the notice away; the click may
    // land on any child, so the filter sits on the application.
    qApp->installEventFilter(this);
}

frmMDITombi::~frmMDITombi() {
    qApp->removeEventFilter(this);
    Data_Relace.Tikety.Pumpa = nullptr;
    if (Uvod)
        delete Uvod;
}

void frmMDITombi::Vytvor_Menu() {
    mnuVolbaTahu = menuBar()->addMenu(QString());
    mnuVolbaTahu->setObjectName(u"mnuVolbaTahu"_qs);
    mnuSportka_streda = Prikaz(mnuVolbaTahu, u"mnuSportka_streda"_qs, &frmMDITombi::mnuSportka_streda_Click);
    mnuSportka_nedele = Prikaz(mnuVolbaTahu, u"mnuSportka_nedele"_qs, &frmMDITombi::mnuSportka_nedele_Click);
    auto* dny = new QActionGroup(this);
    for (QAction* den : {mnuSportka_streda, mnuSportka_nedele}) {
        den->setCheckable(true);
        dny->addAction(den);
    }
    mnuVolbaTahu->addSeparator();
    mnuKonec = Prikaz(mnuVolbaTahu, u"mnuKonec"_qs);
    connect(mnuKonec, &QAction::triggered, this, &QWidget::close);
    for (int i = 0; i < int(mnuRecentFile.size()); ++i) {
        mnuRecentFile[i] = Prikaz(mnuVolbaTahu, u"mnuRecentFile(%1)"_qs.arg(i));
        mnuRecentFile[i]->setVisible(false);
        if (i == 0)
            mnuRecentFile[i]->setSeparator(true);
        else
            connect(mnuRecentFile[i], &QAction::triggered, this, [this, i] { mnuRecentFile_Click(i); });
    }

    mnuTipy = menuBar()->addMenu(QString());
    mnuTipy->setObjectName(u"mnuTipy"_qs);
    mnuOtevriSouborTipu = Prikaz(mnuTipy, u"mnuOtevriSouborTipu"_qs, &frmMDITombi::mnuOtevriSouborTipu_Click);
    mnuPripojSouborTipu = Prikaz(mnuTipy, u"mnuPripojSouborTipu"_qs);
    mnuKonverzeSouboruTipu = Prikaz(mnuTipy, u"mnuKonverzeSouboruTipu"_qs, &frmMDITombi::mnuKonverzeSouboruTipu_Click);
    mnuSetriditSouborTipu = Prikaz(mnuTipy, u"mnuSetriditSouborTipu"_qs);
    mnuTipy->addSeparator();
    mnuGenerujTipy = Prikaz(mnuTipy, u"mnuGenerujTipy"_qs);
    mnuVlastniTipy = Prikaz(mnuTipy, u"mnuVlastniTipy"_qs);
    mnuVyhodnoceniTipu = Prikaz(mnuTipy, u"mnuVyhodnoceniTipu"_qs);
    mnuTipy->addSeparator();
    mnuExportTipu = Prikaz(mnuTipy, u"mnuExportTipu"_qs);
    mnuImportTipu = Prikaz(mnuTipy, u"mnuImportTipu"_qs);
    mnuTipy->addSeparator();
    mnuTiskTiketu = Prikaz(mnuTipy, u"mnuTiskTiketu"_qs);

    mnuTahy = menuBar()->addMenu(QString());
    mnuTahy->setObjectName(u"mnuTahy"_qs);
    mnuVypisTahu = Prikaz(mnuTahy, u"mnuVypisTahu"_qs);
    mnuRozsirSouborTahy = Prikaz(mnuTahy, u"mnuRozsirSouborTahy"_qs);
    mnuTahy->addSeparator();
    mnuAnalyza = Prikaz(mnuTahy, u"mnuAnalyza"_qs);
    mnuAnalyzaAutomat = Prikaz(mnuTahy, u"mnuAnalyzaAutomat"_qs);
    mnuVypisAnalyz = Prikaz(mnuTahy, u"mnuVypisAnalyz"_qs);
    mnuTahy->addSeparator();
    mnuAktualizaceTahu = Prikaz(mnuTahy, u"mnuAktualizaceTahu"_qs, &frmMDITombi::mnuAktualizaceTahu_Click);
    mnuDownload = Prikaz(mnuTahy, u"mnuDownload"_qs);
    mnuObnovaDatTahu = Prikaz(mnuTahy, u"mnuObnovaDatTahu"_qs, &frmMDITombi::mnuObnovaDatTahu_Click);
    mnuTahy->addSeparator();
    mnuWeb_Sazka = Prikaz(mnuTahy, u"mnuWeb_Sazka"_qs, &frmMDITombi::mnuWeb_Sazka_Click);

    mnuSeznamy = menuBar()->addMenu(QString());
    mnuSeznamy->setObjectName(u"mnuSeznamy"_qs);
    mnuOtevriSeznam = Prikaz(mnuSeznamy, u"mnuOtevriSeznam"_qs);
    mnuPrehled = Prikaz(mnuSeznamy, u"mnuPrehled"_qs, &frmMDITombi::mnuPrehled_Click);
    mnuNovySeznam = Prikaz(mnuSeznamy, u"mnuNovySeznam"_qs);
    mnuVypisSeznamu = Prikaz(mnuSeznamy, u"mnuVypisSeznamu"_qs);
    mnuUvolnit = Prikaz(mnuSeznamy, u"mnuUvolnit"_qs);
    for (int i = 0; i < int(mnuSeznamFile.size()); ++i) {
        mnuSeznamFile[i] = Prikaz(mnuSeznamy, u"mnuSeznamFile(%1)"_qs.arg(i));
        mnuSeznamFile[i]->setVisible(false);
        mnuSeznamFile[i]->setSeparator(i == 0);
    }

    mnuProgram = menuBar()->addMenu(QString());
    mnuProgram->setObjectName(u"mnuProgram"_qs);
    mnuHelp = Prikaz(mnuProgram, u"mnuHelp"_qs, &frmMDITombi::mnuHelp_Click);
    mnuKonfigurace = Prikaz(mnuProgram, u"mnuKonfigurace"_qs);
    mnuProgram->addSeparator();
    mnuWebTombi = Prikaz(mnuProgram, u"mnuWebTombi"_qs, &frmMDITombi::mnuWebTombi_Click);
    mnuWebTombiNovaVer = Prikaz(mnuProgram, u"mnuWebTombiNovaVer"_qs);
    mnuProgram->addSeparator();
    mnuOProgramu = Prikaz(mnuProgram, u"mnuOProgramu"_qs, &frmMDITombi::mnuOProgramu_Click);
}

QAction* frmMDITombi::Prikaz(QMenu* menu, const QString& jmeno, void (frmMDITombi::*obsluha)()) {
    QAction* prikaz = menu->addAction(QString());
    prikaz->setObjectName(jmeno);
    if (obsluha != nullptr)
        connect(prikaz, &QAction::triggered, this, obsluha);
    return prikaz;
}

void frmMDITombi::Nastav_Texty(const Tabulka_Textu& texty) {
    for (QMenu* menu : {mnuVolbaTahu, mnuTipy, mnuTahy, mnuSeznamy, mnuProgram}) {
        menu->setTitle(texty.Text(menu->objectName()));
        for (QAction* prikaz : menu->actions())
            if (texty.Obsahuje(prikaz->objectName()))
                prikaz->setText(texty.Text(prikaz->objectName()));
    }
    Pas_Stavu->Nastav_Texty(texty);
}

void frmMDITombi::Obnov_Povoleni() {
    for (QMenu* menu : {mnuVolbaTahu, mnuTipy, mnuTahy, mnuSeznamy, mnuProgram}) {
        for (QAction* prikaz : menu->actions()) {
            const QString jmeno = prikaz->objectName();
            const QStringView bez_indexu = QStringView(jmeno).left(jmeno.indexOf(u'('));
            const bool hotovy = !Obsahuje(Nehotove_Prikazy, jmeno) && !Obsahuje(Nehotove_Prikazy, bez_indexu);
            const bool ma_tahy = !Chybi_Tahy || !Obsahuje(Prikazy_Archivu, jmeno);
            prikaz->setEnabled(hotovy && ma_tahy);
        }
    }
}

// ---- Start and close ----

void frmMDITombi::Start() {
    Relace& relace = Data_Relace;
    QDir::setCurrent(relace.Cesta_Programu);
    relace.Verze = QStringLiteral(TOMBI_VERZE);
    setWindowTitle(u" TOMBI   "_qs + relace.Verze);

    Uvod = new frmTombi_uvod(relace.Verze);
    Uvod->setAttribute(Qt::WA_DeleteOnClose);
    Uvod->show();

    const QDate dnes = relace.Cas->Dnes();
    relace.Den_V_Tydnu = modTombi::Den_V_Tydnu(dnes);
    relace.Dalsi_Tah = modTombi::Dalsi_Tah(dnes);
    QCoreApplication::processEvents();

    const Vysledek nastaveni = Nacti_Nastaveni(relace.Nastaveni, relace.Cesta_Programu, relace.Verze, *relace.Registr);
    if (!nastaveni.Ok())
        Zprava(nastaveni.Zprava);
    // The tool tip waits for the settings, which say whether it is wanted.
    if (Vb::Je_Pravda(relace.Nastaveni.Info_Tah) && !relace.Dalsi_Tah.isEmpty())
        Pas_Stavu->txtSportka_Tah->setToolTip(Tabulka_Textu::Programu().Text(u"txtSportka_Tah.ToolTipText"_qs) +
                                              relace.Dalsi_Tah);
    Pas_Stavu->Nastav_Vzhled_Prubehu();
    Naplnit_Menu_Nedavnych(Druh_Tipy);
    Naplnit_Menu_Nedavnych(Druh_Seznamy);
    Umisti_Okno();

    relace.Archiv.Pocet_Let = 0;
    Prepni_Den(modTombi::Den_Podle_Tydne(relace.Den_V_Tydnu));
}

void frmMDITombi::Umisti_Okno() {
    const Nastaveni_Zaznam& n = Data_Relace.Nastaveni;
    const QScreen* obrazovka = screen() != nullptr ? screen() : QGuiApplication::primaryScreen();
    const QRect plocha = obrazovka != nullptr ? obrazovka->availableGeometry() : QRect(0, 0, 1024, 768);
    const QRect ulozene(Pixely(n.Okno_Leva, *this), Pixely(n.Okno_Horni, *this), Pixely(n.Okno_Sirka, *this),
                        Pixely(n.Okno_Vyska, *this));
    // A place on a screen that is gone counts as no place.
    if (n.Okno_Sirka >= Nejmensi_Rozmer && n.Okno_Vyska >= Nejmensi_Rozmer &&
        QGuiApplication::screenAt(ulozene.center()) != nullptr) {
        setGeometry(ulozene);
        return;
    }
    // A small screen keeps a rim around the window for the system's frame.
    const QSize velikost(std::min(Pixely(Vychozi_Sirka, *this), plocha.width() * 9 / 10),
                         std::min(Pixely(Vychozi_Vyska, *this), plocha.height() * 9 / 10));
    resize(velikost.expandedTo(minimumSize()));
    move(plocha.x() + (plocha.width() - width()) / 2, plocha.y() + (plocha.height() - height()) / 2);
}

void frmMDITombi::Uloz_Misto_Okna() {
    Nastaveni_Zaznam& n = Data_Relace.Nastaveni;
    const QRect misto = normalGeometry();
    n.Okno_Leva = Twipy(misto.x(), *this);
    n.Okno_Horni = Twipy(misto.y(), *this);
    n.Okno_Sirka = Twipy(misto.width(), *this);
    n.Okno_Vyska = Twipy(misto.height(), *this);
}

void frmMDITombi::closeEvent(QCloseEvent* udalost) {
    Relace& relace = Data_Relace;
    if (Zavreno) {
        udalost->accept();
        return;
    }
    if (relace.Tikety.Zmena_Dat &&
        relace.Dialog->Otazka(Dialogy::Ikona::Stop, u"Ukončení programu"_qs,
                              u"Došlo ke změně v datech.\r\nOpravdu ukončit program TOMBI ?"_qs,
                              Dialogy::Tlacitka::OK_Zrusit, Dialogy::Odpoved::Zrusit) != Dialogy::Odpoved::OK) {
        udalost->ignore();
        return;
    }
    relace.Tikety.Zrusit_Beh = true;
    if (Uvod)
        Uvod->close();
    Zavri_Formulare(1);
    // A window that keeps unsaved work may refuse; the program then stays.
    if (!Otevrena_Okna().isEmpty()) {
        relace.Tikety.Zrusit_Beh = false;
        udalost->ignore();
        return;
    }
    if (Oznameni)
        Oznameni->close();
    Uloz_Misto_Okna();
    const Vysledek ulozeni = Uloz_Nastaveni(relace.Nastaveni, *relace.Registr);
    // A notice would vanish with the program: this one waits for the user.
    if (!ulozeni.Ok())
        relace.Dialog->Okno_Zpravy(Dialogy::Ikona::Vykricnik, u"Ukončení programu"_qs, ulozeni.Zprava);
    Zavreno = true;
    udalost->accept();
}

bool frmMDITombi::eventFilter(QObject* objekt, QEvent* udalost) {
    if (udalost->type() == QEvent::Hide && objekt->isWidgetType())
        Po_Skryti_Okna(static_cast<QWidget*>(objekt));
    if (udalost->type() == QEvent::MouseButtonPress && (Uvod || Oznameni) && objekt->isWidgetType() &&
        (static_cast<QWidget*>(objekt)->window() == this || static_cast<QWidget*>(objekt)->window() == Uvod)) {
        if (Uvod)
            Uvod->close();
        if (Oznameni)
            Oznameni->close();
    }
    return QMainWindow::eventFilter(objekt, udalost);
}

// ---- Windows ----

void frmMDITombi::Ukaz_V_Plose(QWidget* okno) {
    auto* podokno = qobject_cast<QMdiSubWindow*>(okno->parentWidget());
    if (podokno == nullptr || podokno->mdiArea() != Mdi_Plocha)
        podokno = Mdi_Plocha->addSubWindow(okno);
    okno->show();
    podokno->show();
    Mdi_Plocha->setActiveSubWindow(podokno);
}

QList<QMdiSubWindow*> frmMDITombi::Otevrena_Okna() const {
    QList<QMdiSubWindow*> okna = Mdi_Plocha->subWindowList(QMdiArea::CreationOrder);
    // A closed window may still wait for its deletion.
    okna.removeIf([](const QMdiSubWindow* okno) { return okno->isHidden(); });
    return okna;
}

void frmMDITombi::Po_Skryti_Okna(QWidget* okno) {
    auto* podokno = qobject_cast<QMdiSubWindow*>(okno->parentWidget());
    if (podokno == nullptr || podokno->mdiArea() != Mdi_Plocha || podokno->widget() != okno)
        return;
    // A window that closes itself would leave its empty frame behind in the area. Minimising hides
    // the window too, and is left alone.
    QTimer::singleShot(0, podokno, [podokno] {
        const QWidget* vnitrek = podokno->widget();
        if (podokno->isHidden() || podokno->isMinimized() || podokno->isShaded() ||
            (vnitrek != nullptr && !vnitrek->isHidden()))
            return;
        podokno->hide();
        podokno->deleteLater();
    });
}

bool frmMDITombi::Zavri_Okno(const char* trida) {
    for (QMdiSubWindow* okno : Otevrena_Okna())
        if (okno->widget() != nullptr && qstrcmp(okno->widget()->metaObject()->className(), trida) == 0)
            return okno->close();
    return true;
}

void frmMDITombi::Zavri_Formulare(int od) {
    const QList<QMdiSubWindow*> okna = Otevrena_Okna();
    for (qsizetype i = okna.size(); i >= std::max(od, 1); --i)
        okna[i - 1]->close();
}

void frmMDITombi::Zavri_Pro_Analyzu() {
    for (const char* trida : {"frmVypisTipu", "frmVypisTahu", "frmGeneruj", "frmVypisTipuVsech", "frmSeznamSazejicich"})
        Zavri_Okno(trida);
    if (Oznameni)
        Oznameni->close();
    for (const char* trida : {"frmTiskTiketu", "frmOProgramu"})
        Zavri_Okno(trida);
    Pas_Stavu->txtRozpisAktivni->clear();
}

// ---- Messages and the busy state ----

void frmMDITombi::Zprava(const QString& text) {
    if (Pauza_Pred_Zpravou)
        Cekej(3);
    Text_Zpravy = text;
    if (Oznameni)
        Oznameni->close();
    Oznameni = new frmNeniProcedura(text, this);
}

void frmMDITombi::Cekej(double sekundy) {
    // The pump sleeps until the next event, and this timer is sure to bring one, so the wait does
    // not spin the processor.
    QTimer buzik;
    buzik.start(10);
    modTombi::Cekej(*Data_Relace.Cas, sekundy, [] { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); });
}

void frmMDITombi::Nastav_Status(const QString& rozpis, const QString& pocet) {
    Pas_Stavu->txtPocet_Vybranych->setText(pocet);
    Pas_Stavu->txtRozpisAktivni->setText(rozpis);
}

void frmMDITombi::Nastav_Aktivni_Poradi(const QString& text) {
    Pas_Stavu->lblAktivniPoradi->setText(text);
}

void frmMDITombi::Zacni_Praci() {
    if (Hloubka_Prace++ == 0) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        menuBar()->setEnabled(false);
    }
    Pas_Stavu->Ukaz_Prubeh(true);
}

void frmMDITombi::Ukonci_Praci() {
    if (Hloubka_Prace == 0)
        return;
    if (--Hloubka_Prace == 0) {
        QApplication::restoreOverrideCursor();
        menuBar()->setEnabled(true);
        Pas_Stavu->Ukaz_Prubeh(false);
    }
}

Prubeh frmMDITombi::Prubeh_Prace() {
    return [this](int procenta) {
        Pas_Stavu->PercentBar1->setValue(procenta);
        QCoreApplication::processEvents();
        return !Data_Relace.Tikety.Zrusit_Beh;
    };
}

// ---- Draw day ----

void frmMDITombi::Prepni_Den(Den den) {
    Nastav_Status(QString(), QString());
    (den == Den::Nedele ? mnuSportka_nedele : mnuSportka_streda)->setChecked(true);
    Pas_Stavu->txtSportka_Tah->setText(den == Den::Nedele ? u"NEDĚLE"_qs : u"STŘEDA"_qs);
    const Vysledek nacteni = modTombi::Prepni_Den(Data_Relace, den);
    Chybi_Tahy = !nacteni.Ok();
    if (Chybi_Tahy) {
        Zprava(nacteni.Zprava);
        Pas_Stavu->txtSportka_Tah->clear();
    }
    Obnov_Povoleni();
    emit Den_Prepnut();
}

void frmMDITombi::mnuSportka_streda_Click() {
    Prepni_Den(Den::Streda);
}

void frmMDITombi::mnuSportka_nedele_Click() {
    Prepni_Den(Den::Nedele);
}

void frmMDITombi::mnuAktualizaceTahu_Click() {
    Relace& relace = Data_Relace;
    for (const char* trida : {"frmVypisTahu", "frmAnalyzaTahu"})
        Zavri_Okno(trida);
    Zacni_Praci();
    const Vysledek import = Importuj_Tahy(relace.Archiv, relace.Adresar_Dat(), relace.Soubor_Tahu_Dbf,
                                          relace.Nastaveni.Zaloha_Tahu, relace.Nastaveni.Smazat_Dbf, Prubeh_Prace());
    Ukonci_Praci();
    if (!import.Ok()) {
        Zprava(import.Zprava);
        return;
    }
    // The day is loaded anew from the file just written: counts, flat lists and commands follow.
    Prepni_Den(Den(relace.Tikety.Den_Tahu));
    if (!Chybi_Tahy)
        Zprava(u"Data tahů byla aktualizována ze souboru \""_qs + relace.Soubor_Tahu_Dbf + u"\"."_qs);
}

void frmMDITombi::mnuObnovaDatTahu_Click() {
    Relace& relace = Data_Relace;
    const QString den = Pas_Stavu->txtSportka_Tah->text().left(6);
    if (relace.Dialog->Otazka(Dialogy::Ikona::Otaznik, u"Obnova dat tahů ze záložní kopie"_qs,
                              u"Opravdu provést návrat dat tahů "_qs + den, Dialogy::Tlacitka::Ano_Ne,
                              Dialogy::Odpoved::Ne) != Dialogy::Odpoved::Ano)
        return;
    const Vysledek obnova = Obnov_Zalohu(relace.Archiv, relace.Adresar_Dat());
    if (!obnova.Ok()) {
        Zprava(obnova.Zprava);
        return;
    }
    Zavri_Okno("frmVypisTahu");
    Prepni_Den(Den(relace.Tikety.Den_Tahu));
}

// ---- Tip files ----

void frmMDITombi::Otevri_Soubor_Tipu(const QString& cesta, Otevreni otevreni) {
    Stav_Tipu& tipy = Data_Relace.Tipy;
    const Vysledek nacteni = Nacti_Soubor_Tipu(tipy, cesta, otevreni);
    if (!nacteni.Ok()) {
        Zprava(nacteni.Zprava);
        return;
    }
    Po_Otevreni_Tipu(tipy, cesta);
    Pridej_Nedavny(Druh_Tipy, Jmeno_Bez_Adresare(cesta));
    Nastav_Soubor_Tipu(QString::number(tipy.Soubor_Tipu.Pocet_Tipu));
    emit Tipy_Otevreny();
}

void frmMDITombi::Zapomen_Soubor_Tipu() {
    Data_Relace.Tipy.Pocet_Tipu_Aktivni = 0;
    Data_Relace.Tipy.Jmeno_Souboru_Tipu.clear();
    Nastav_Soubor_Tipu(u"0 tipů"_qs);
}

void frmMDITombi::mnuOtevriSouborTipu_Click() {
    QString cesta;
    bool vybrano = false;
    Otevri_Dialog(0, Filtr_Tipu, u"Otevřít soubor tipů"_qs, cesta, Data_Relace.Nastaveni.Adresare[1], vybrano);
    if (vybrano)
        Otevri_Soubor_Tipu(cesta, Otevreni::Z_Dialogu);
}

void frmMDITombi::mnuRecentFile_Click(int index) {
    const QString polozka = mnuRecentFile[index]->data().toString();
    Otevri_Soubor_Tipu(Spoj_Cestu(Data_Relace.Nastaveni.Adresare[1], Soubor_Z_Polozky(polozka)), Otevreni::Z_Nedavnych);
}

void frmMDITombi::mnuKonverzeSouboruTipu_Click() {
    QString cesta;
    bool vybrano = false;
    Otevri_Dialog(0, Filtr_Tipu, u"Konverze starého souboru tipů"_qs, cesta, Data_Relace.Nastaveni.Adresare[1],
                  vybrano);
    if (!vybrano)
        return;
    Stav_Tipu& tipy = Data_Relace.Tipy;
    Zacni_Praci();
    const Vysledek konverze = Konvertuj_Soubor_Tipu(tipy, cesta, Prubeh_Prace());
    Ukonci_Praci();
    if (!konverze.Ok()) {
        Zprava(konverze.Zprava);
        return;
    }
    Zprava(Text_Konverze_Hotova);
    Pridej_Nedavny(Druh_Tipy, Jmeno_Bez_Adresare(cesta));
    Nastav_Soubor_Tipu(QString::number(tipy.Soubor_Tipu.Pocet_Tipu));
    emit Tipy_Otevreny();
}

void frmMDITombi::Pridej_Nedavny(int druh, const QString& jmeno) {
    Nastaveni_Zaznam& n = Data_Relace.Nastaveni;
    QString& seznam = druh == Druh_Tipy ? n.Nedavne_Tipy : n.Nedavne_Seznamy;
    seznam = ::Pridej_Nedavny(seznam, druh, jmeno);
    Naplnit_Menu_Nedavnych(druh);
    const Vysledek ulozeni = Uloz_Nastaveni(n, *Data_Relace.Registr);
    if (!ulozeni.Ok())
        Zprava(ulozeni.Zprava);
}

void frmMDITombi::Naplnit_Menu_Nedavnych(int druh) {
    const bool tipy = druh == Druh_Tipy;
    const Nastaveni_Zaznam& n = Data_Relace.Nastaveni;
    const QString& seznam = tipy ? n.Nedavne_Tipy : n.Nedavne_Seznamy;
    const QStringList polozky = seznam.isEmpty() ? QStringList() : Polozky_Nedavnych(seznam);
    const qsizetype nejvic = tipy ? Max_Nedavnych_Tipu : Max_Nedavnych_Seznamu;
    QAction* const* prvky = tipy ? mnuRecentFile.data() : mnuSeznamFile.data();
    const qsizetype pocet_prvku = tipy ? qsizetype(mnuRecentFile.size()) : qsizetype(mnuSeznamFile.size());
    prvky[0]->setVisible(!polozky.isEmpty());
    for (qsizetype i = 1; i < pocet_prvku; ++i) {
        const bool je = i <= polozky.size() && i <= nejvic;
        prvky[i]->setVisible(je);
        prvky[i]->setData(je ? polozky[i - 1] : QString());
        prvky[i]->setText(je ? Bez_Klavesy(polozky[i - 1]) : QString());
    }
}

// ---- Dialogs ----

void frmMDITombi::Otevri_Dialog(int typ, const QString& filtr, const QString& nazev, QString& jmeno,
                                const QString& sloz, bool& vysledek) {
    Relace& relace = Data_Relace;
    Dialogy& dialog = *relace.Dialog;
    Nastaveni_Zaznam& n = relace.Nastaveni;
    vysledek = false;
    switch (typ) {
    case 0:
    case 1: {
        const std::optional<QString> cesta =
            typ == 0 ? dialog.Otevrit_Soubor(filtr, nazev, sloz) : dialog.Ulozit_Soubor(filtr, nazev, jmeno, sloz);
        if (cesta) {
            jmeno = *cesta;
            vysledek = true;
        }
        break;
    }
    case 2:
        vysledek = dialog.Vybrat_Tiskarnu();
        break;
    case 3:
    case 4: {
        const bool prvni = typ == 3;
        Dialogy::Pismo pismo{prvni ? n.Pismo_Jmeno_1 : n.Pismo_Jmeno_2, prvni ? n.Pismo_Velikost_1 : n.Pismo_Velikost_2,
                             Vb::Je_Pravda(prvni ? n.Pismo_Tucne_1 : n.Pismo_Tucne_2),
                             prvni ? n.Pismo_Barva_1 : n.Pismo_Barva_2};
        vysledek = dialog.Vybrat_Pismo(pismo);
        if (!vysledek)
            break;
        (prvni ? n.Pismo_Jmeno_1 : n.Pismo_Jmeno_2) = pismo.Jmeno;
        (prvni ? n.Pismo_Velikost_1 : n.Pismo_Velikost_2) = uint8_t(std::clamp(pismo.Velikost, 0, 255));
        (prvni ? n.Pismo_Tucne_1 : n.Pismo_Tucne_2) = Vb::Bool16(pismo.Tucne);
        (prvni ? n.Pismo_Barva_1 : n.Pismo_Barva_2) = pismo.Barva;
        if (!prvni) {
            const Vysledek ulozeni = Uloz_Nastaveni(n, *relace.Registr);
            if (!ulozeni.Ok())
                Zprava(ulozeni.Zprava);
        }
        break;
    }
    default:
        break;
    }
    if (!vysledek)
        QDir::setCurrent(relace.Adresar_Dat());
}

// ---- Overview, web and help ----

void frmMDITombi::mnuPrehled_Click() {
    const QString cesta = Spoj_Cestu(Data_Relace.Nastaveni.Adresare[2], Soubor_Prehledu);
    if (!QFileInfo::exists(cesta)) {
        Zprava(u"Přehled souborů \""_qs + QDir::toNativeSeparators(cesta) +
               u"\" zatím neexistuje. Vznikne s prvním uložením tipů se seznamem sázejících."_qs);
        return;
    }
    if (!Otevri_Adresu(QUrl::fromLocalFile(cesta)))
        Zprava(u"Přehled souborů nelze zobrazit: v systému není program pro prohlížení textových souborů."_qs);
}

void frmMDITombi::Otevri_Web(const QString& adresa) {
    const QString prohlizec = Data_Relace.Nastaveni.Adresare[5];
    const bool spusteno =
        prohlizec.trimmed().isEmpty() ? Otevri_Adresu(QUrl(adresa)) : Spust_Program(prohlizec, {adresa});
    if (!spusteno)
        Zprava(u"Chyba nastavení WEB prohlížeče nebo cesty \""_qs + prohlizec + u"\"."_qs);
}

void frmMDITombi::mnuWeb_Sazka_Click() {
    Otevri_Web(Adresa_Sazky);
}

void frmMDITombi::mnuWebTombi_Click() {
    Otevri_Web(Adresa_Tombi);
}

void frmMDITombi::mnuHelp_Click() {
    Otevri_Okno<frmNapoveda>(Stranka_Napovedy);
}

void frmMDITombi::mnuOProgramu_Click() {
    Otevri_Okno<frmOProgramu>(Data_Relace.Verze);
}
