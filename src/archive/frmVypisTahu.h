#pragma once
// The draw list: the first and the second draws of the archive in two lists by year and week, the
// editor that adds, repairs and deletes one draw, the picture of a clicked draw on the ticket, and
// the replay of the draws one after the other. A click in a list also serves the analysis window
// (its range), the tip list (its draw) and the picked numbers of the status band.

#include <QString>
#include <QStringList>
#include <QWidget>
#include <array>
#include <cstdint>
#include <functional>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QStackedLayout;
class frmMDITombi;
class frmSloupec_Tiketu;
struct Relace;
struct Archiv_Tahu;
struct Uprava_Tahu;

class frmVypisTahu final : public QWidget {
    Q_OBJECT

public:
    explicit frmVypisTahu(frmMDITombi& ram, QWidget* parent = nullptr);
    ~frmVypisTahu() override;

    // mnuVypisTahu.
    static void Pripoj_Prikazy(frmMDITombi& ram);
    // Opens the list (or brings it forward): at the top left, or beside and under the tip list
    // when that is open.
    static frmVypisTahu* Otevri(frmMDITombi& ram);
    // The analysis window's load: the list opens for the analysis (a click sets its range) at the
    // top left with the height of 5490 twips, and the analysis window goes directly under it.
    static void Otevri_Pro_Analyzu(frmMDITombi& ram, QWidget* analyza);

    // Rebuild a list from the archive.
    void Vypis_Cisla_1Tah();
    void Vypis_Cisla_2Tah();
    // Clears the selection of both lists (numbers picked elsewhere start a new choice).
    void Zrus_Vyber_Seznamu();

    QListWidget* List1Tah;
    QListWidget* List2Tah;
    QLabel* List1Tah_Cekat;
    QLabel* List2Tah_Cekat;
    QLabel* Text1;
    QLineEdit* txtRok;
    QLineEdit* txtTyden;
    std::array<QRadioButton*, 2> cboTah{};
    std::array<QLineEdit*, 7> txtTah_Cislo{};
    QPushButton* cmdDalsiTah;
    QPushButton* cmdOpravit;
    QPushButton* cmdSmaz;
    frmSloupec_Tiketu* Picture1;
    QCheckBox* chkDodatkova;
    QCheckBox* Check1;
    QPushButton* Command1;
    QPushButton* cmdAnimace;
    QScrollBar* scrCas;
    QLabel* lblCas;
    QLabel* lblTahDne;

protected:
    void closeEvent(QCloseEvent* udalost) override;
    bool eventFilter(QObject* objekt, QEvent* udalost) override;

private:
    QWidget* Seznam_S_Krytem(int tah, QStackedLayout*& vrstvy);
    QWidget* Editor();
    QListWidget* Seznam(int tah) const { return tah == 0 ? List1Tah : List2Tah; }
    void Vypis_Cisla(int tah);
    void Nacti_Seznamy();
    void Vyber_Radek(QListWidget* seznam, int radek);
    void Zvoleno(int tah, int radek);
    void List_Click(int tah);
    void Rozsah_Analyzy(int tah, int radek);
    void Ukaz_Tah(const QString& radek);
    void Zobraz_Cisla(int tah);
    void Vycisti_Boxy();
    void Zapni_Tah(int tah);
    void Najdi_Radek_Tahu(int tah);
    void txtRok_Change();
    void txtTyden_Change();
    void txtTah_Cislo_Change(int index);
    void cboTah_Click(int tah);
    void cmdDalsiTah_Click();
    void cmdOpravit_Click();
    void cmdSmaz_Click();
    // Runs one change of the archive under its lock and writes it; shows what there is to say.
    Uprava_Tahu Proved(const std::function<Uprava_Tahu(Archiv_Tahu&)>& zmena);
    void Check1_Click();
    void cmdAnimace_Click();
    void Nastav_Animaci(bool bezi);
    void Cekej_Krok();
    void scrCas_Change();
    int Rok() const;
    int Tyden() const;

    frmMDITombi& Ram;
    Relace& Sezeni;
    std::array<QStackedLayout*, 2> Vrstvy{};
    std::array<QStringList, 2> Radky;     // the lines of both lists, as the lists show them
    int Aktivni_Tah = 0;                  // the series in hand: 0 first draws, 1 second
    int Posledni_Seznam = 0;              // 0 none, 1 or 2: the list clicked last
    QString Radek;                        // the line clicked last
    int Poradi_Tahu = 0;                  // its draw's place in the series, 1 first
    std::array<uint8_t, 10> Cisla_Tahu{}; // its numbers, 1..7
    bool Restart_Animace = false;         // a list was clicked during the replay
    int Animace_Od = 0;                   // the line the replay starts from
    std::array<int, 2> Animace_Do{};      // the last line of each list
    bool Nacteno = false;
    bool Vybira = false;          // the program moves a list's selection: no click follows
    bool Klik_Na_Vybrany = false; // a press on the line already selected: its release is the click
};
