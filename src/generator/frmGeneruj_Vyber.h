#pragma once
// The number pools of the generator window: the grid picSloupec drawn like a ticket column, the
// modes "Bez výběru", "Použít", "Vynechat", the ranges, the ways of picking (by hand, one random
// set, the picker with its START/STOP button), the key over the draws, the exchange, the .vyb
// files, the clearing, the tutovky boxes and the count "zbývá". It works on the session's
// Generator.Vyber and Generator.Tutovky, so what it holds outlives the window.

#include <QWidget>
#include <array>
#include <cstdint>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;
class frmMDITombi;
class frmSloupec_Tiketu;
struct Relace;
struct Stav_Vyberu;

class frmGeneruj_Vyber final : public QWidget {
    Q_OBJECT

public:
    // Restores the pools, the mode, the range and the tutovky of the session's Generator state and
    // redraws the grid from them (Prekresli_Seznam).
    frmGeneruj_Vyber(frmMDITombi& ram, QWidget* parent = nullptr);
    ~frmGeneruj_Vyber() override;

    // Nastav_Rozpis, the part of the pools: the number lists emptied, the grid cleared, the options
    // as the index wants (0: optVybrana_Cisla on, cmdUloz_Soubor_VybranaCisla off, manual picking),
    // Cisla_Potreba and txtZbytek_Cisel. For a wheel (index > 0) the caller has put the wheel's
    // Cisla_Potreba and Pocet_Tutovek_Rozpisu into Generator.Vyber first; index 0 sets 49 and 0.
    void Nastav_Rozpis(int cislo_rozpisu);
    // Nacti_Cisla_Do_Generatoru: the text of txtRozpisAktivni becomes the list of "Použít",
    // optVybrana_Cisla(1) is set and the grid redrawn.
    void Nacti_Cisla(const QString& text);
    // Val of txtZbytek_Cisel, for Kontrola.
    int Zbytek() const;
    // The picker stops (the window closes).
    void Zastav_Vyber();

    frmSloupec_Tiketu* picSloupec;
    std::array<QLineEdit*, 3> txtTutovka{};
    QCheckBox* chkPevna_Tutovka;
    std::array<QRadioButton*, 3> optVybrana_Cisla{};
    std::array<QRadioButton*, 4> optRozsah_Cisel{};
    std::array<QRadioButton*, 3> optZpusob_Vyberu{};
    QPushButton* Command2; // selects optZpusob_Vyberu(1) anew
    QPushButton* cmdStop;  // "START" / "STOP" of the picker
    QScrollBar* scrCas;    // the picker's interval, 1..4 s
    QLabel* lblCas;
    QPushButton* cmdVyberPodleKlice;
    QPushButton* cmdZamenitCisla;
    QCheckBox* Check2;
    QPushButton* Otevri_Soubor_JenCisla;
    QPushButton* cmdUloz_Soubor_VybranaCisla;
    QPushButton* cmdOpakovat;
    QLineEdit* txtZbytek_Cisel;

signals:
    // The filled tutovky boxes changed; `pocet` is Pocet_Tutovek.
    void Tutovky_Zmeneny(int pocet);
    // optVybrana_Cisla changed to `index`: the window clears Check1(4) for 1 and 2 and sets
    // lstSportka to 0.
    void Volba_Zmenena(int index);
    // The picker starts or stops: while it runs the window disables cmdOK and cmdZrusit and hides
    // the wheel list.
    void Vyber_Bezi(bool bezi);
    // A .vyb file holds the numbers of built-in wheel `cislo`: the window chooses that wheel before
    // the numbers are applied.
    void Zvol_Rozpis(int cislo);

private:
    using Boxy_Tutovek = std::array<uint8_t, 3>;

    QWidget* Volby();
    QWidget* Rozsahy();
    QWidget* Zpusoby();
    void Obnov();
    void Povol_Pro_Rozpis(int cislo_rozpisu);
    int Zvoleny_Rozsah() const;
    bool Je_Vybrano(int cislo);
    Boxy_Tutovek Boxy() const;
    void Zapis_Boxy(const Boxy_Tutovek& boxy);
    void Zobraz_Stav(const Stav_Vyberu& stav);
    void Prekresli_Seznam();
    void Klikni(int cislo, int barva);
    void picSloupec_Klik(int cislo, Qt::MouseButton tlacitko, bool ctrl);
    void Tutovka_Opustena(int index);
    void Nastav_Volbu(int index);
    void Volba_Click(int index);
    void Rozsah_Click(int index);
    void Zpusob_Click(int index);
    void Nahodna_Volba();
    void cmdStop_Click();
    void cmdVyberPodleKlice_Click();
    void cmdOpakovat_Click();
    void Uloz_Vybrana_Cisla();
    void Otevrit_Soubor_Vybrana_Cisla();

    frmMDITombi& Ram;
    Relace& Sezeni;
    Boxy_Tutovek Zapsane{}; // the tutovky last taken from the boxes
    bool Vybira = false;    // Vyber_Bezi: the picker runs
};
