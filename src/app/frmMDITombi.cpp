#include "app/frmMDITombi.h"

#include "analysis/frmAnalyzaTahu.h"
#include "analysis/frmVypisAnalyz.h"
#include "app/Relace.h"
#include "app/frmKresleni.h"
#include "app/frmMDITombi_Plocha.h"
#include "app/frmMDITombi_Sluzby.h"
#include "app/frmMDITombi_Stav.h"
#include "app/frmMDITombi_Tahy.h"
#include "app/frmMDITombi_Tipy.h"
#include "app/frmNapoveda.h"
#include "app/frmNeniProcedura.h"
#include "app/frmOProgramu.h"
#include "app/frmPrehled.h"
#include "app/frmTombi_uvod.h"
#include "app/modTombi.h"
#include "archive/frmVypisTahu.h"
#include "core/Dialogy.h"
#include "core/Hodiny.h"
#include "core/Tabulka_Textu.h"
#include "core/Vb.h"
#include "data/Nastaveni.h"
#include "data/Nedavne_Soubory.h"
#include "data/Soubory.h"
#include "generator/frmGeneruj.h"
#include "bettors/frmSeznamSazejicich.h"
#include "net/frmStin.h"
#include "printing/frmTiskTiketu.h"
#include "settings/frmHeslo.h"
#include "settings/frmNastaveniProgramu.h"
#include "tips/frmVypisTipu.h"
#include "tips/frmVypisTipuVsech.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QLineEdit>
#include <QMenuBar>
#include <QProcess>
#include <QScreen>
#include <QSettings>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

namespace {

// The window's size when no place is stored, in twips; the screen may make it smaller.
constexpr double Vychozi_Sirka = 13500;
constexpr double Vychozi_Vyska = 9750;
constexpr double Nejmensi_Rozmer = 6000;

// The inner area when the user has chosen neither a picture nor a colour of his own.
const QColor Nase_Pozadi(0x6b, 0x7b, 0x8c);
// Whether the window was maximised lives beside Pws: tombi.cfg keeps only the place.
const QString Klic_Maximalizace = u"Okno/Maximalizovane"_qs;
// A window hidden by the frame because its inner window hid itself for a moment.
constexpr char Skryto_Na_Chvili[] = "Tombi_Skryto";

// Menu captions show a file name: an ampersand in it is a plain character, not an access key.
QString Bez_Klavesy(QString text) {
    return text.replace(u'&', u"&&"_qs);
}

} // namespace

frmMDITombi::frmMDITombi(Relace& relace, QWidget* parent)
    : QMainWindow(parent), Data_Relace(relace), Mdi_Plocha(new QMdiArea), Pas_Stavu(new frmMDITombi_Stav(relace, this)),
      Sluzby_Okna(std::make_unique<frmMDITombi_Sluzby>(relace, *this)) {
    setObjectName(u"frmMDITombi"_qs);
    setWindowTitle(u" TOMBI   "_qs + QStringLiteral(TOMBI_VERZE));
    Data_Relace.Sluzby = Sluzby_Okna.get();

    Mdi_Plocha->setObjectName(u"Plocha"_qs);
    Mdi_Plocha->setBackground(Nase_Pozadi);
    Mdi_Plocha->viewport()->installEventFilter(this);
    frmMDITombi_Plocha::Posouvej(*Mdi_Plocha);
    auto* stred = new QWidget;
    auto* rozvrzeni = new QVBoxLayout(stred);
    rozvrzeni->setContentsMargins(0, 0, 0, 0);
    rozvrzeni->setSpacing(0);
    rozvrzeni->addWidget(Mdi_Plocha, 1);
    rozvrzeni->addWidget(Pas_Stavu);
    setCentralWidget(stred);

    Vytvor_Menu();
    Nastav_Texty(Tabulka_Textu::Programu());
    setMinimumSize(Pixely(Nejmensi_Rozmer, *this), Pixely(Nejmensi_Rozmer, *this));
    resize(Pixely(Vychozi_Sirka, *this), Pixely(Vychozi_Vyska, *this));

    Otevri_Adresu = [](const QUrl& adresa) { return QDesktopServices::openUrl(adresa); };
    Spust_Program = [](const QString& program, const QStringList& argumenty) {
        return QProcess::startDetached(program, argumenty);
    };
    Data_Relace.Tikety.Pumpa = [] { QCoreApplication::processEvents(); };

    // The commands that are the frame's own; every other one is connected by its window or menu.
    Obsluz(mnuSportka_streda, [this] { Prepni_Den(Den::Streda); });
    Obsluz(mnuSportka_patek, [this] { Prepni_Den(Den::Patek); });
    Obsluz(mnuSportka_nedele, [this] { Prepni_Den(Den::Nedele); });
    Obsluz(mnuKonec, [this] { close(); });
    frmMDITombi_Tipy::Pripoj_Prikazy(*this);
    frmMDITombi_Tahy::Pripoj_Prikazy(*this);
    frmNapoveda::Pripoj_Prikazy(*this);
    frmOProgramu::Pripoj_Prikazy(*this);
    frmPrehled::Pripoj_Prikazy(*this);
    frmVypisTipu::Pripoj_Prikazy(*this);
    frmGeneruj::Pripoj_Prikazy(*this);
    frmTiskTiketu::Pripoj_Prikazy(*this);
    frmSeznamSazejicich::Pripoj_Prikazy(*this);
    frmNastaveniProgramu::Pripoj_Prikazy(*this);
    frmStin::Pripoj_Prikazy(*this);
    frmAnalyzaTahu::Pripoj_Prikazy(*this);
    frmVypisTahu::Pripoj_Prikazy(*this);
    Timer2 = new QTimer(this);
    Timer2->setObjectName(u"Timer2"_qs);
    connect(Timer2, &QTimer::timeout, this, [this] { Data_Relace.Cas_Vyprsel = true; });
    frmVypisAnalyz::Pripoj_Prikazy(*this);
    Obnov_Povoleni();

    // A click anywhere on the main window sends the splash and the notice away; the click may
    // land on any child, so the filter sits on the application.
    qApp->installEventFilter(this);
}

frmMDITombi::~frmMDITombi() {
    qApp->removeEventFilter(this);
    Sluzby_Okna->Ukonci_Praci();
    Data_Relace.Tikety.Pumpa = nullptr;
    Data_Relace.Sluzby = nullptr;
    delete Uvod;
}

void frmMDITombi::Vytvor_Menu() {
    mnuVolbaTahu = menuBar()->addMenu(QString());
    mnuVolbaTahu->setObjectName(u"mnuVolbaTahu"_qs);
    mnuSportka_streda = Prikaz(mnuVolbaTahu, u"mnuSportka_streda"_qs);
    mnuSportka_patek = Prikaz(mnuVolbaTahu, u"mnuSportka_patek"_qs);
    mnuSportka_nedele = Prikaz(mnuVolbaTahu, u"mnuSportka_nedele"_qs);
    auto* dny = new QActionGroup(this);
    for (QAction* den : {mnuSportka_streda, mnuSportka_patek, mnuSportka_nedele}) {
        den->setCheckable(true);
        dny->addAction(den);
    }
    mnuVolbaTahu->addSeparator();
    mnuKonec = Prikaz(mnuVolbaTahu, u"mnuKonec"_qs);
    for (int i = 0; i < int(mnuRecentFile.size()); ++i) {
        mnuRecentFile[i] = Prikaz(mnuVolbaTahu, u"mnuRecentFile(%1)"_qs.arg(i));
        mnuRecentFile[i]->setVisible(false);
        mnuRecentFile[i]->setSeparator(i == 0);
    }

    mnuTipy = menuBar()->addMenu(QString());
    mnuTipy->setObjectName(u"mnuTipy"_qs);
    mnuOtevriSouborTipu = Prikaz(mnuTipy, u"mnuOtevriSouborTipu"_qs);
    mnuPripojSouborTipu = Prikaz(mnuTipy, u"mnuPripojSouborTipu"_qs);
    mnuKonverzeSouboruTipu = Prikaz(mnuTipy, u"mnuKonverzeSouboruTipu"_qs);
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
    mnuAktualizaceTahu = Prikaz(mnuTahy, u"mnuAktualizaceTahu"_qs);
    mnuDownload = Prikaz(mnuTahy, u"mnuDownload"_qs);
    mnuObnovaDatTahu = Prikaz(mnuTahy, u"mnuObnovaDatTahu"_qs);
    mnuTahy->addSeparator();
    mnuWeb_Sazka = Prikaz(mnuTahy, u"mnuWeb_Sazka"_qs);

    mnuSeznamy = menuBar()->addMenu(QString());
    mnuSeznamy->setObjectName(u"mnuSeznamy"_qs);
    mnuOtevriSeznam = Prikaz(mnuSeznamy, u"mnuOtevriSeznam"_qs);
    mnuPrehled = Prikaz(mnuSeznamy, u"mnuPrehled"_qs);
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
    mnuHelp = Prikaz(mnuProgram, u"mnuHelp"_qs);
    mnuKonfigurace = Prikaz(mnuProgram, u"mnuKonfigurace"_qs);
    mnuProgram->addSeparator();
    mnuWebTombi = Prikaz(mnuProgram, u"mnuWebTombi"_qs);
    mnuWebTombiNovaVer = Prikaz(mnuProgram, u"mnuWebTombiNovaVer"_qs);
    mnuProgram->addSeparator();
    mnuOProgramu = Prikaz(mnuProgram, u"mnuOProgramu"_qs);
}

QAction* frmMDITombi::Prikaz(QMenu* menu, const QString& jmeno) {
    QAction* prikaz = menu->addAction(QString());
    prikaz->setObjectName(jmeno);
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

// ---- Commands ----

void frmMDITombi::Obsluz(QAction* prikaz, std::function<void()> obsluha) {
    connect(prikaz, &QAction::triggered, this, std::move(obsluha));
    Obsluhovane.insert(prikaz);
}

void frmMDITombi::Nastav_Zamek(const QString& jmeno, Zamek zamek) {
    if (zamek)
        Zamky.insert(jmeno, std::move(zamek));
    else
        Zamky.remove(jmeno);
    Obnov_Povoleni();
}

void frmMDITombi::Obnov_Povoleni() {
    // Commands that work on the archive of the day, and so are off while the day has none. The
    // draw editor (mnuRozsirSouborTahy) stays on: the first draw typed in makes the archive.
    const QAction* const archivni[] = {mnuVypisTahu, mnuAnalyza};
    menuBar()->setEnabled(!Sluzby_Okna->Pracuje());
    for (QMenu* menu : {mnuVolbaTahu, mnuTipy, mnuTahy, mnuSeznamy, mnuProgram}) {
        for (QAction* prikaz : menu->actions()) {
            bool zapnout = true;
            if (Chybi_Tahy && std::find(std::begin(archivni), std::end(archivni), prikaz) != std::end(archivni))
                zapnout = false;
            for (const Zamek& zamek : std::as_const(Zamky))
                zapnout = zapnout && !zamek(prikaz);
            prikaz->setEnabled(zapnout);
        }
    }
}

// ---- Start and close ----

void frmMDITombi::Start() {
    Relace& relace = Data_Relace;
    QDir::setCurrent(relace.Cesta_Programu);
    relace.Verze = QStringLiteral(TOMBI_VERZE);
    setWindowTitle(u" TOMBI   "_qs + relace.Verze);

    Uvod = new frmTombi_uvod(relace.Verze, this);
    Uvod->Vycentruj(*this);
    Uvod->show();

    const QDate dnes = relace.Cas->Dnes();
    relace.Den_V_Tydnu = modTombi::Den_V_Tydnu(dnes);
    relace.Dalsi_Tah = modTombi::Dalsi_Tah(dnes);
    QCoreApplication::processEvents();

    const Vysledek nastaveni = Nacti_Nastaveni(relace.Nastaveni, relace.Cesta_Programu, relace.Verze, *relace.Registr);
    if (!nastaveni.Ok())
        Sluzby_Okna->Zprava(nastaveni.Zprava);
    // The tool tip waits for the settings, which say whether it is wanted.
    if (Vb::Je_Pravda(relace.Nastaveni.Info_Tah) && !relace.Dalsi_Tah.isEmpty())
        Pas_Stavu->txtSportka_Tah->setToolTip(Tabulka_Textu::Programu().Text(u"txtSportka_Tah.ToolTipText"_qs) +
                                              relace.Dalsi_Tah);
    Pas_Stavu->Nastav_Vzhled_Prubehu();
    Nastav_Pozadi();
    Naplnit_Menu_Nedavnych(Druh_Tipy);
    Naplnit_Menu_Nedavnych(Druh_Seznamy);

    // The window is shown in its place before the day is chosen, so that a notice of a missing
    // archive stands over the window and the splash, not under them.
    Umisti_Okno();
    if (Uvod)
        Uvod->Vycentruj(*this);
    show();

    relace.Archiv.Pocet_Let = 0;
    Prepni_Den(modTombi::Den_Podle_Tydne(relace.Den_V_Tydnu));
    frmHeslo::Over_Pri_Startu(*this);
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
    } else {
        resize(frmMDITombi_Plocha::Prvni_Velikost(plocha).expandedTo(minimumSize()));
        move(plocha.x() + (plocha.width() - width()) / 2, plocha.y() + (plocha.height() - height()) / 2);
    }
    // Maximised over the normal place just set, so that un-maximising returns to it.
    if (Data_Relace.Registr != nullptr && Data_Relace.Registr->value(Klic_Maximalizace).toBool())
        setWindowState(windowState() | Qt::WindowMaximized);
}

void frmMDITombi::Uloz_Misto_Okna() {
    Nastaveni_Zaznam& n = Data_Relace.Nastaveni;
    const QRect misto = normalGeometry();
    n.Okno_Leva = Twipy(misto.x(), *this);
    n.Okno_Horni = Twipy(misto.y(), *this);
    n.Okno_Sirka = Twipy(misto.width(), *this);
    n.Okno_Vyska = Twipy(misto.height(), *this);
    if (Data_Relace.Registr != nullptr)
        Data_Relace.Registr->setValue(Klic_Maximalizace, isMaximized());
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
    Sluzby_Okna->Zavri_Oznameni();
    Uloz_Misto_Okna();
    const Vysledek ulozeni = Uloz_Nastaveni(relace.Nastaveni, *relace.Registr);
    // A notice would vanish with the program: this one waits for the user.
    if (!ulozeni.Ok())
        relace.Dialog->Okno_Zpravy(Dialogy::Ikona::Vykricnik, u"Ukončení programu"_qs, ulozeni.Zprava);
    Zavreno = true;
    udalost->accept();
}

bool frmMDITombi::eventFilter(QObject* objekt, QEvent* udalost) {
    if (!objekt->isWidgetType())
        return QMainWindow::eventFilter(objekt, udalost);
    auto* prvek = static_cast<QWidget*>(objekt);
    switch (udalost->type()) {
    case QEvent::MouseButtonPress:
        if (prvek->window() == this) {
            if (Uvod)
                Uvod->close();
            Sluzby_Okna->Zavri_Oznameni();
        }
        break;
    case QEvent::KeyPress:
        if (Uvod && prvek->window() == this)
            Uvod->close();
        break;
    case QEvent::Close:
    case QEvent::Hide:
        Po_Skryti_Okna(prvek, udalost->type() == QEvent::Close);
        break;
    case QEvent::Show:
        // A window that hid itself for a moment comes back in its frame.
        if (auto* podokno = qobject_cast<QMdiSubWindow*>(prvek->parentWidget());
            podokno != nullptr && podokno->widget() == prvek && podokno->property(Skryto_Na_Chvili).toBool()) {
            podokno->setProperty(Skryto_Na_Chvili, false);
            podokno->show();
        }
        break;
    case QEvent::Resize:
        if (objekt == Mdi_Plocha->viewport() && !Obrazek_Pozadi.isNull())
            Kresli_Pozadi();
        break;
    default:
        break;
    }
    return QMainWindow::eventFilter(objekt, udalost);
}

// ---- Windows ----

void frmMDITombi::Ukaz_V_Plose(QWidget* okno, bool vpravo) {
    auto* podokno = qobject_cast<QMdiSubWindow*>(okno->parentWidget());
    if (podokno == nullptr || podokno->mdiArea() != Mdi_Plocha) {
        podokno = Mdi_Plocha->addSubWindow(okno);
        // A window of a fixed size gets no maximise button and cannot be stretched.
        if (okno->minimumSize() == okno->maximumSize() && !okno->maximumSize().isEmpty()) {
            podokno->setWindowFlags(Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                    Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
            podokno->adjustSize();
            podokno->setFixedSize(podokno->size());
        }
        frmMDITombi_Plocha::Vejdi_Se(*Mdi_Plocha, *podokno);
    }
    podokno->setProperty(Skryto_Na_Chvili, false);
    okno->show();
    podokno->show();
    if (vpravo)
        podokno->move(std::max(0, Mdi_Plocha->viewport()->width() - podokno->width()), 0);
    Mdi_Plocha->setActiveSubWindow(podokno);
}

void frmMDITombi::Ukaz_Modalne(QWidget* okno) {
    okno->setParent(this, Qt::Dialog);
    okno->setAttribute(Qt::WA_DeleteOnClose);
    okno->setWindowModality(Qt::ApplicationModal);
    Modalni_Okna.append(okno);
    QEventLoop smycka;
    connect(okno, &QObject::destroyed, &smycka, &QEventLoop::quit);
    okno->show();
    smycka.exec();
    Modalni_Okna.removeAll(nullptr);
}

QList<QWidget*> frmMDITombi::Otevrena_Okna() const {
    QList<QWidget*> okna;
    for (const QMdiSubWindow* podokno : Mdi_Plocha->subWindowList(QMdiArea::CreationOrder))
        // A closed window may still wait for its deletion; one hidden for a moment is open.
        if (podokno->widget() != nullptr && (podokno->isVisible() || podokno->property(Skryto_Na_Chvili).toBool()))
            okna << podokno->widget();
    for (const QPointer<QWidget>& okno : Modalni_Okna)
        if (okno && okno->isVisible())
            okna << okno.data();
    return okna;
}

QWidget* frmMDITombi::Najdi_Okno(const QMetaObject& trida) const {
    for (QWidget* okno : Otevrena_Okna())
        if (trida.cast(okno) != nullptr)
            return okno;
    return nullptr;
}

bool frmMDITombi::Zavri(QWidget* okno) {
    auto* podokno = qobject_cast<QMdiSubWindow*>(okno->parentWidget());
    return podokno != nullptr && podokno->mdiArea() == Mdi_Plocha ? podokno->close() : okno->close();
}

void frmMDITombi::Po_Skryti_Okna(QWidget* okno, bool zavreno) {
    auto* podokno = qobject_cast<QMdiSubWindow*>(okno->parentWidget());
    if (podokno == nullptr || podokno->mdiArea() != Mdi_Plocha || podokno->widget() != okno)
        return;
    // A window that closes itself takes its frame in the area with it; one that hides itself for a
    // moment keeps its state and gets its frame back when it shows again. Minimising hides the
    // window too, and is left alone.
    QTimer::singleShot(0, podokno, [podokno, zavreno] {
        const QWidget* vnitrek = podokno->widget();
        if (podokno->isHidden() || podokno->isMinimized() || podokno->isShaded() || vnitrek == nullptr ||
            !vnitrek->isHidden())
            return;
        if (zavreno) {
            podokno->close();
        } else {
            podokno->setProperty(Skryto_Na_Chvili, true);
            podokno->hide();
        }
    });
}

void frmMDITombi::Zavri_Formulare(int od) {
    const QList<QWidget*> okna = Otevrena_Okna();
    for (qsizetype i = okna.size(); i >= std::max(od, 1); --i)
        Zavri(okna[i - 1]);
}

void frmMDITombi::Zavri_Pro_Analyzu() {
    // In this order: the tip list, the draw list, the generator, the list of all tips, the
    // bettors' list, the notice, ticket printing and the about window.
    Zavri_Okno<frmVypisTipu>();
    Zavri_Okno<frmVypisTahu>();
    Zavri_Okno<frmGeneruj>();
    Zavri_Okno<frmVypisTipuVsech>();
    Zavri_Okno<frmSeznamSazejicich>();
    Sluzby_Okna->Zavri_Oznameni();
    Zavri_Okno<frmTiskTiketu>();
    Zavri_Okno<frmOProgramu>();
    Pas_Stavu->txtRozpisAktivni->clear();
}

// ---- Draw day ----

void frmMDITombi::Prepni_Den(Den den) {
    Sluzby_Okna->Nastav_Status(QString(), QString());
    (den == Den::Nedele  ? mnuSportka_nedele
     : den == Den::Patek ? mnuSportka_patek
                         : mnuSportka_streda)
        ->setChecked(true);
    Pas_Stavu->txtSportka_Tah->setText(den == Den::Nedele  ? u"NEDĚLE"_qs
                                       : den == Den::Patek ? u"PÁTEK"_qs
                                                           : u"STŘEDA"_qs);
    const Vysledek nacteni = modTombi::Prepni_Den(Data_Relace, den);
    Chybi_Tahy = !nacteni.Ok();
    if (Chybi_Tahy) {
        Sluzby_Okna->Zprava(nacteni.Zprava);
        Pas_Stavu->txtSportka_Tah->clear();
    }
    Obnov_Povoleni();
    emit Den_Prepnut();
}

void frmMDITombi::Tahy_Zalozeny() {
    if (!Chybi_Tahy)
        return;
    Chybi_Tahy = false;
    const Den den = Den(Data_Relace.Tikety.Den_Tahu);
    Pas_Stavu->txtSportka_Tah->setText(den == Den::Nedele  ? u"NEDĚLE"_qs
                                       : den == Den::Patek ? u"PÁTEK"_qs
                                                           : u"STŘEDA"_qs);
    Obnov_Povoleni();
}

// ---- Timer2 ----

void frmMDITombi::Nastav_Timer2(int sekundy) {
    Timer2->start(std::max(1, sekundy * Milisekund_Sekundy));
}

void frmMDITombi::Zastav_Timer2() {
    Timer2->stop();
}

// ---- Recent files ----

void frmMDITombi::Pridej_Nedavny(int druh, const QString& jmeno) {
    Nastaveni_Zaznam& n = Data_Relace.Nastaveni;
    QString& seznam = druh == Druh_Tipy ? n.Nedavne_Tipy : n.Nedavne_Seznamy;
    seznam = ::Pridej_Nedavny(seznam, druh, jmeno);
    Naplnit_Menu_Nedavnych(druh);
    const Vysledek ulozeni = Uloz_Nastaveni(n, *Data_Relace.Registr);
    if (!ulozeni.Ok())
        Sluzby_Okna->Zprava(ulozeni.Zprava);
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

// ---- Background and other programs ----

void frmMDITombi::Nastav_Pozadi() {
    const Nastaveni_Zaznam& n = Data_Relace.Nastaveni;
    Data_Relace.Obrazek_Pozadi = n.Obrazek_Pozadi;
    Obrazek_Pozadi = QPixmap();
    if (n.Bez_Pozadi == 0 && !n.Obrazek_Pozadi.trimmed().isEmpty())
        Obrazek_Pozadi.load(Spoj_Cestu(Data_Relace.Cesta_Programu, n.Obrazek_Pozadi));
    Kresli_Pozadi();
}

void frmMDITombi::Kresli_Pozadi() {
    const Nastaveni_Zaznam& n = Data_Relace.Nastaveni;
    if (Obrazek_Pozadi.isNull()) {
        Mdi_Plocha->setBackground(n.Vlastni_Pozadi != 0 ? frmKresleni::Barva_Z_Vb(n.Barva_Pozadi) : Nase_Pozadi);
        return;
    }
    // The picture covers the whole area, cut at its edges rather than tiled.
    Mdi_Plocha->setBackground(Obrazek_Pozadi.scaled(Mdi_Plocha->viewport()->size(), Qt::KeepAspectRatioByExpanding,
                                                    Qt::SmoothTransformation));
}

void frmMDITombi::Otevri_Web(const QString& adresa) {
    const QString prohlizec = Data_Relace.Nastaveni.Adresare[5];
    const bool spusteno =
        prohlizec.trimmed().isEmpty() ? Otevri_Adresu(QUrl(adresa)) : Spust_Program(prohlizec, {adresa});
    if (!spusteno)
        Sluzby_Okna->Zprava(u"Chyba nastavení WEB prohlížeče nebo cesty \""_qs + prohlizec + u"\"."_qs);
}
