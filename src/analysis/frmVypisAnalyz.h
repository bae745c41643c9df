#pragma once
// The viewer of _Analyza.txt: the reports of the analysis as a working sheet. Numbers picked with
// the mouse are marked wherever they stand in the text and become the picked numbers of the status
// band; numbers picked in the generator, the tip list or the draw list are marked here as well.
// From here the picked numbers go to the generator or to tips entered by hand.

#include <QWidget>
#include <array>

class QAction;
class QLabel;
class QMenu;
class QMenuBar;
class QStackedLayout;
class QTextCharFormat;
class QTextCursor;
class QTextEdit;
class frmMDITombi;
struct Relace;

class frmVypisAnalyz final : public QWidget {
    Q_OBJECT

public:
    explicit frmVypisAnalyz(frmMDITombi& ram, QWidget* parent = nullptr);
    ~frmVypisAnalyz() override;

    // mnuVypisAnalyz.
    static void Pripoj_Prikazy(frmMDITombi& ram);
    // Opens the viewer in its place, or tells that there is no _Analyza.txt; an open one only
    // comes to the front.
    static frmVypisAnalyz* Otevri(frmMDITombi& ram);
    // After a run of the analysis into the file: the open viewer reads it again, a closed one opens.
    static void Po_Zapisu_Analyzy(frmMDITombi& ram);

    // Reads the file into the text, with the marks cleared.
    void Otevri_Soubor_Anal();
    // Plain font on the whole text, the headings bold and underlined, no number picked.
    void Odznacit();
    // typ 0: picked here with the mouse; 1: given by another window. `text` holds numbers, each
    // followed by a comma; each one is marked wherever it stands followed by a blank.
    void Vyber_Cisla(int typ, const QString& text);
    // 0 covers the text while the program works on it, 1 shows it again.
    void RT_Box_Zap(int typ);
    // A new section has started the file anew: the text goes.
    void Vymaz_Text();

    bool Je_Zmeneno() const { return Zmeneno; }

    std::array<QTextEdit*, 2> rtbVypis_Analyz{};
    std::array<QLabel*, 3> lblLista{};
    QLabel* Label1;
    QMenuBar* Menu;
    QMenu* mnuSoubor;
    QAction* mnuNacist;
    QAction* mnuSmazat;
    QAction* mnuUlozit;
    QAction* mnuZavrit;
    QMenu* mnuVlastni;
    QAction* mnuGen;
    QAction* mnuVyber_cisel;
    QMenu* mnuZnacit;
    QAction* mnuOdznacit;
    QAction* mnuJednotlive;
    QAction* mnuSpojovat;
    QMenu* mnuNastav;
    QAction* mnuVychozi;
    QAction* mnuVyber;
    QAction* mnuPuvdni;

protected:
    void closeEvent(QCloseEvent* udalost) override;
    bool eventFilter(QObject* objekt, QEvent* udalost) override;

private:
    void Vytvor_Menu();
    void Umisti();
    void Uloz_Misto();
    bool Uloz();
    void mnuSmazat_Click();
    void mnuGen_Click();
    void mnuVyber_cisel_Click();
    void Zmen_Pismo(int typ);
    void mnuPuvdni_Click();
    void Po_Vyberu_Mysi();
    void Oznac(const QString& token, const QString& obsah, QTextCursor& uprava);
    void Text_Zmenen();
    void Spocitej_Radky();
    void Zobraz_Radky(int radku);
    void Spocitej_Cisla();
    QTextCharFormat Pismo_Textu() const;
    QTextCharFormat Pismo_Vyberu() const;

    frmMDITombi& Ram;
    Relace& Sezeni;
    QStackedLayout* Kryt;
    bool Zmeneno = false;
    int Vybrano = 0;                 // how many numbers are marked in the text
    std::array<bool, 50> Oznacena{}; // which, by number
    bool Jednotlive = false;
    bool Pocet_Radku_Prekrocen = false;
    int Delka_Textu = -1;
    // Work of the program under way (a cover shown, or the text changed by code): changes of the
    // text now are not the user's.
    int Prace = 0;
    bool Aktivni = false;   // the window was the active one of the area
    bool Mel_Fokus = false; // the text had the focus when the cover came
};
