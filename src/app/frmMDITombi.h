#pragma once
// The frame of the program: the menus, the status band at the bottom and the MDI area in which
// every other window opens, once, made on first use. It also keeps what every window shares on
// the screen: the notice, the wait with the event pump, the status fields and the busy state.

#include "app/Prubeh.h"
#include "app/frmMDITombi_Stav.h"
#include "data/Archiv_Tahu.h"
#include "data/Soubor_Tipu.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <array>
#include <functional>

class QAction;
class QMenu;
class QUrl;
class Tabulka_Textu;
class frmNeniProcedura;
class frmTombi_uvod;
struct Relace;

class frmMDITombi final : public QMainWindow {
    Q_OBJECT

public:
    // The session's seams (clock, dialogs, user settings) are set by whoever makes it.
    explicit frmMDITombi(Relace& relace, QWidget* parent = nullptr);
    ~frmMDITombi() override;

    Relace& Sezeni() const { return Data_Relace; }
    QMdiArea* Plocha() const { return Mdi_Plocha; }
    frmMDITombi_Stav* Stav() const { return Pas_Stavu; }

    // The start of the program once the program's directory is in the session: version and
    // title, splash, the date of the next draw, settings, recent files, the window's place, and
    // the draw day of the weekday.
    void Start();

    // The one window of class T: brought to the front if it is open, otherwise made from the
    // arguments and added to the MDI area.
    template <class T, class... A> T* Otevri_Okno(A&&... argumenty);
    template <class T> T* Najdi_Okno() const;
    // The windows open in the MDI area, in the order they were opened.
    QList<QMdiSubWindow*> Otevrena_Okna() const;
    // Closes the open window of that class, if any; false when it refused.
    bool Zavri_Okno(const char* trida);
    // Closes the open windows from the last opened down to index `od`; the main window is index 0,
    // so 1 leaves it alone.
    void Zavri_Formulare(int od);
    // Clears the way for the analysis: the windows that must not stand beside it, and the picked
    // numbers.
    void Zavri_Pro_Analyzu();

    // The common notice: it replaces the one on show and never holds the caller up.
    void Zprava(const QString& text);
    bool Pauza_Pred_Zpravou = false; // the notice comes 3 seconds late
    QString Text_Zpravy;             // the text of the notice on show
    // A pause with the event pump running, by the session's clock.
    void Cekej(double sekundy);
    void Nastav_Status(const QString& rozpis, const QString& pocet);
    void Nastav_Aktivni_Poradi(const QString& text);
    void Nastav_Soubor_Tipu(const QString& text) { Pas_Stavu->Nastav_Soubor_Tipu(text); }
    // The busy state: the progress bar in place of the picked numbers, the hourglass, and the menu
    // closed, so that no command starts inside a job.
    void Zacni_Praci();
    void Ukonci_Praci();
    // The progress callback of the engines: moves PercentBar1, lets events run and answers false
    // once a stop is asked for (Zrusit_Beh).
    Prubeh Prubeh_Prace();

    // Switches the draw day and loads its archive; a day without an archive leaves the status field
    // empty and the commands of the archive disabled until a later load succeeds.
    void Prepni_Den(Den den);
    bool Bez_Tahu() const { return Chybi_Tahy; }

    // Opens a tip file into the store and takes it as the open file. A refusal is told by Zprava.
    void Otevri_Soubor_Tipu(const QString& cesta, Otevreni otevreni);
    // Forgets the open tip file: no active tips, no name, "0 tipů".
    void Zapomen_Soubor_Tipu();

    // Recent files, druh Druh_Tipy or Druh_Seznamy: the name goes first in the list, the menu is
    // rebuilt and the settings are written.
    void Pridej_Nedavny(int druh, const QString& jmeno);
    void Naplnit_Menu_Nedavnych(int druh);

    // The common dialogs: typ 0 open, 1 save (jmeno proposed), 2 printer, 3 and 4 the first and the
    // second font of the settings. `jmeno` receives the chosen path. On cancel `vysledek` is false and
    // the current directory returns to the data directory.
    void Otevri_Dialog(int typ, const QString& filtr, const QString& nazev, QString& jmeno, const QString& sloz,
                       bool& vysledek);

    // Sets the enabled state of every command: what needs a window still to come, and what needs
    // the archive of the day while there is none.
    void Obnov_Povoleni();

    // How an address and another program are started; tests put their own in.
    std::function<bool(const QUrl&)> Otevri_Adresu;
    std::function<bool(const QString&, const QStringList&)> Spust_Program;

    // Menus and commands.
    QMenu* mnuVolbaTahu;
    QAction* mnuSportka_streda;
    QAction* mnuSportka_nedele;
    QAction* mnuKonec;
    std::array<QAction*, 10> mnuRecentFile; // 0 is the separator
    QMenu* mnuTipy;
    QAction* mnuOtevriSouborTipu;
    QAction* mnuPripojSouborTipu;
    QAction* mnuKonverzeSouboruTipu;
    QAction* mnuSetriditSouborTipu;
    QAction* mnuGenerujTipy;
    QAction* mnuVlastniTipy;
    QAction* mnuVyhodnoceniTipu;
    QAction* mnuExportTipu;
    QAction* mnuImportTipu;
    QAction* mnuTiskTiketu;
    QMenu* mnuTahy;
    QAction* mnuVypisTahu;
    QAction* mnuRozsirSouborTahy;
    QAction* mnuAnalyza;
    QAction* mnuAnalyzaAutomat;
    QAction* mnuVypisAnalyz;
    QAction* mnuAktualizaceTahu;
    QAction* mnuDownload;
    QAction* mnuObnovaDatTahu;
    QAction* mnuWeb_Sazka;
    QMenu* mnuSeznamy;
    QAction* mnuOtevriSeznam;
    QAction* mnuPrehled;
    QAction* mnuNovySeznam;
    QAction* mnuVypisSeznamu;
    QAction* mnuUvolnit;
    std::array<QAction*, 9> mnuSeznamFile; // 0 is the separator
    QMenu* mnuProgram;
    QAction* mnuHelp;
    QAction* mnuKonfigurace;
    QAction* mnuWebTombi;
    QAction* mnuWebTombiNovaVer;
    QAction* mnuOProgramu;

signals:
    // The draw day has been switched (also to a day without an archive).
    void Den_Prepnut();
    // A tip file has been opened or converted into the store.
    void Tipy_Otevreny();

protected:
    void closeEvent(QCloseEvent* udalost) override;
    bool eventFilter(QObject* objekt, QEvent* udalost) override;

private:
    void Vytvor_Menu();
    QAction* Prikaz(QMenu* menu, const QString& jmeno, void (frmMDITombi::*obsluha)() = nullptr);
    void Nastav_Texty(const Tabulka_Textu& texty);
    void Umisti_Okno();
    void Uloz_Misto_Okna();
    void Ukaz_V_Plose(QWidget* okno);
    void Po_Skryti_Okna(QWidget* okno);
    void Otevri_Web(const QString& adresa);

    void mnuSportka_streda_Click();
    void mnuSportka_nedele_Click();
    void mnuRecentFile_Click(int index);
    void mnuOtevriSouborTipu_Click();
    void mnuKonverzeSouboruTipu_Click();
    void mnuAktualizaceTahu_Click();
    void mnuObnovaDatTahu_Click();
    void mnuWeb_Sazka_Click();
    void mnuPrehled_Click();
    void mnuHelp_Click();
    void mnuWebTombi_Click();
    void mnuOProgramu_Click();

    Relace& Data_Relace;
    QMdiArea* Mdi_Plocha;
    frmMDITombi_Stav* Pas_Stavu;
    QPointer<frmNeniProcedura> Oznameni;
    QPointer<frmTombi_uvod> Uvod;
    bool Chybi_Tahy = false;
    int Hloubka_Prace = 0; // busy states inside one another
    bool Zavreno = false;
};

template <class T> T* frmMDITombi::Najdi_Okno() const {
    for (QMdiSubWindow* okno : Otevrena_Okna())
        if (auto* hledane = qobject_cast<T*>(okno->widget()))
            return hledane;
    return nullptr;
}

template <class T, class... A> T* frmMDITombi::Otevri_Okno(A&&... argumenty) {
    T* okno = Najdi_Okno<T>();
    if (okno == nullptr)
        okno = new T(std::forward<A>(argumenty)...);
    Ukaz_V_Plose(okno);
    return okno;
}
