#pragma once
// The frame of the program: the menus, the status band at the bottom and the MDI area in which
// every other window opens, once, made on first use. The frame keeps the registry of windows, the
// enabling of commands, the draw day, the recent files and the commands that are its own. A
// command that opens a window is connected by that window (its Pripoj_Prikazy), the commands of a
// menu that opens none by that menu's file; the notice, the status band and the busy state are
// the services of frmMDITombi_Sluzby, which windows reach through the session.

#include "data/Archiv_Tahu.h"

#include <QMainWindow>
#include <QMap>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QSet>
#include <array>
#include <functional>
#include <memory>

class QAction;
class QTimer;
class QMenu;
class QUrl;
class Tabulka_Textu;
class frmMDITombi_Sluzby;
class frmMDITombi_Stav;
class frmTombi_uvod;
struct Relace;

class frmMDITombi final : public QMainWindow {
    Q_OBJECT

public:
    // The session's seams (clock, dialogs, user settings) are set by whoever makes it; the frame
    // puts its services into the session for its own life.
    explicit frmMDITombi(Relace& relace, QWidget* parent = nullptr);
    ~frmMDITombi() override;

    Relace& Sezeni() const { return Data_Relace; }
    QMdiArea* Plocha() const { return Mdi_Plocha; }
    frmMDITombi_Stav* Stav() const { return Pas_Stavu; }
    frmMDITombi_Sluzby& Sluzby() const { return *Sluzby_Okna; }

    // The start of the program once the program's directory is in the session: version and
    // title, splash, the date of the next draw, settings, recent files, the window's place (and
    // its show), and the draw day of the weekday.
    void Start();

    // ---- Windows ----

    // The one window of class T: if it is open, it takes the arguments through its Prevezmi (when
    // it has one) and comes to the front; otherwise it is made from them and added to the area.
    template <class T, class... A> T* Otevri_Okno(A&&... argumenty);
    // The same, placed at the right edge of the inner area.
    template <class T, class... A> T* Otevri_Okno_Vpravo(A&&... argumenty);
    // A new window of class T outside the area, modal: returns once it is closed.
    template <class T, class... A> void Ukaz_Modalne(A&&... argumenty);
    template <class T> T* Najdi_Okno() const;
    // Closes the open window of class T, if any; false when it refused.
    template <class T> bool Zavri_Okno();
    // The windows open in the area, in the order they were opened; one hidden for a moment counts.
    QList<QWidget*> Otevrena_Okna() const;
    // Closes the open windows from the last opened down to index `od`; the main window is index 0,
    // so 1 leaves it alone.
    void Zavri_Formulare(int od);
    // Clears the way for the analysis: the windows that must not stand beside it, the notice, and
    // the picked numbers.
    void Zavri_Pro_Analyzu();

    // ---- Commands ----

    // Connects a command to what it does. Every mnu command is either connected or listed as not
    // yet built, and a test holds the frame to that.
    void Obsluz(QAction* prikaz, std::function<void()> obsluha);
    bool Ma_Obsluhu(const QAction* prikaz) const { return Obsluhovane.contains(prikaz); }
    // A lock keeps the commands for which it answers true off while it stands: the password wait,
    // a window's own rules. An empty lock takes the one of that name away.
    using Zamek = std::function<bool(const QAction* prikaz)>;
    void Nastav_Zamek(const QString& jmeno, Zamek zamek);
    // The one place that sets the enabled state of every command: not built yet, the archive of
    // the day missing, a lock, a running job.
    void Obnov_Povoleni();

    // ---- Draw day ----

    // Switches the draw day and loads its archive; a day without an archive leaves the status field
    // empty and the commands of the archive disabled until a later load succeeds.
    void Prepni_Den(Den den);
    bool Bez_Tahu() const { return Chybi_Tahy; }
    // The day without an archive has got one (the draw list wrote its first draw): the status field
    // shows the day and the commands of the archive come on.
    void Tahy_Zalozeny();

    // ---- Timer2 ----

    // The pace of the draw list's replay: each tick of Timer2 sets the session's Cas_Vyprsel. The
    // interval is given in seconds of Milisekund_Sekundy each, which tests shorten.
    void Nastav_Timer2(int sekundy);
    void Zastav_Timer2();
    QTimer* Timer2 = nullptr;
    int Milisekund_Sekundy = 1000;

    // ---- Recent files, background, other programs ----

    // Recent files, druh Druh_Tipy or Druh_Seznamy: the name goes first in the list, the menu is
    // rebuilt and the settings are written.
    void Pridej_Nedavny(int druh, const QString& jmeno);
    void Naplnit_Menu_Nedavnych(int druh);
    // The inner area's background from the settings: the picture, the user's own colour or ours.
    void Nastav_Pozadi();
    // Starts the browser of the settings, or the system's, on an address; a failure is told.
    void Otevri_Web(const QString& adresa);
    // How an address and another program are started; tests put their own in.
    std::function<bool(const QUrl&)> Otevri_Adresu;
    std::function<bool(const QString&, const QStringList&)> Spust_Program;

    // Menus and commands.
    QMenu* mnuVolbaTahu;
    QAction* mnuSportka_streda;
    QAction* mnuSportka_patek;
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
    QAction* Prikaz(QMenu* menu, const QString& jmeno);
    void Nastav_Texty(const Tabulka_Textu& texty);
    void Kresli_Pozadi();
    void Umisti_Okno();
    void Uloz_Misto_Okna();
    void Ukaz_V_Plose(QWidget* okno, bool vpravo);
    void Ukaz_Modalne(QWidget* okno);
    void Po_Skryti_Okna(QWidget* okno, bool zavreno);
    QWidget* Najdi_Okno(const QMetaObject& trida) const;
    bool Zavri(QWidget* okno);

    Relace& Data_Relace;
    QMdiArea* Mdi_Plocha;
    frmMDITombi_Stav* Pas_Stavu;
    std::unique_ptr<frmMDITombi_Sluzby> Sluzby_Okna;
    QPointer<frmTombi_uvod> Uvod;
    QList<QPointer<QWidget>> Modalni_Okna;
    QSet<const QAction*> Obsluhovane;
    QMap<QString, Zamek> Zamky;
    QPixmap Obrazek_Pozadi;
    bool Chybi_Tahy = false;
    bool Zavreno = false;
};

template <class T> T* frmMDITombi::Najdi_Okno() const {
    return static_cast<T*>(Najdi_Okno(T::staticMetaObject));
}

template <class T> bool frmMDITombi::Zavri_Okno() {
    QWidget* okno = Najdi_Okno(T::staticMetaObject);
    return okno == nullptr || Zavri(okno);
}

template <class T, class... A> T* frmMDITombi::Otevri_Okno(A&&... argumenty) {
    T* okno = Najdi_Okno<T>();
    if (okno == nullptr)
        okno = new T(std::forward<A>(argumenty)...);
    else if constexpr (requires(T& t, A&&... a) { t.Prevezmi(std::forward<A>(a)...); })
        okno->Prevezmi(std::forward<A>(argumenty)...);
    Ukaz_V_Plose(okno, false);
    return okno;
}

template <class T, class... A> T* frmMDITombi::Otevri_Okno_Vpravo(A&&... argumenty) {
    T* okno = Otevri_Okno<T>(std::forward<A>(argumenty)...);
    Ukaz_V_Plose(okno, true);
    return okno;
}

template <class T, class... A> void frmMDITombi::Ukaz_Modalne(A&&... argumenty) {
    Zavri_Okno<T>();
    Ukaz_Modalne(new T(std::forward<A>(argumenty)...));
}
