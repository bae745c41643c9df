#pragma once
// The filters of the generator window: the eleven boxes Check1(0..10) with their limit boxes, the
// rules that keep the limits sane, and the state they leave for the next opening of the window.

#include <QWidget>

#include <array>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
struct Relace;
struct Zadani_Generatoru;

class frmGeneruj_Omezeni final : public QWidget {
    Q_OBJECT

public:
    // Restores the boxes and limits from the session's Generator.Omezeni when the window has been
    // open before (Cislo_Rozpisu >= 0): the spread only if not 0, Suma and Rozsah only if either
    // of their two values is not 0; txtCisel_V_Dekade always starts at 3. The draw counts of the
    // loaded archive go into Vynech_Tahy_1_Od and Vynech_Tahy_2_Od; Check1(2) shows only with an
    // archive loaded.
    frmGeneruj_Omezeni(Relace& sezeni, QWidget* parent = nullptr);

    // The boxes and limits of a run into `zadani` (Check1, all limit fields, the settings
    // Pocet_Pruchodu, Auto_Oprava, Opakovat_Volba, the archive lists for Check1(2)).
    void Vypln_Zadani(Zadani_Generatoru& zadani) const;
    // After a run: Text4 shows the limit the automatic correction may have raised.
    void Po_Behu(double max_tretich_cen);

    // The number of tips changed: Text4 takes its start value. Not while a window opened before is
    // still loading (the panel not yet shown): then the restored limit stays.
    void Pocet_Tipu_Zmenen(int tipu);
    // The tutovky changed: with Check1(10) on, txtPrunik keeps Pocet_Tutovek + txtPrunik <= 5.
    void Tutovky_Zmeneny(int pocet_tutovek);
    // A run goes (the filter boxes are disabled) or ended (Povol_Omezeni).
    void Zamkni_Pro_Beh(bool zamknout);
    // Wheel mode: every Check1 off and disabled, Check1(2) and Check1(4) hidden; the way back.
    void Zakaz_Omezeni();
    void Povol_Omezeni();

    std::array<QCheckBox*, 11> Check1{};
    std::array<QLineEdit*, 3> txtOmezeni{}; // grid columns, rows, diagonals
    QLineEdit* Text4;                       // third prizes
    QLineEdit* Vynech_Tahy_1_Od;
    QLineEdit* Vynech_Tahy_2_Od;
    QLineEdit* txtCisel_V_Dekade;
    std::array<QLineEdit*, 3> txtSudLich{}; // spread, even, odd
    QLineEdit* Text7;                       // pairs
    QLineEdit* Text8;                       // triples
    std::array<QLineEdit*, 2> txtSuma{};
    std::array<QLineEdit*, 2> txtRozsah_Min_Max{};
    QLineEdit* txtPrunik;

private:
    bool eventFilter(QObject* objekt, QEvent* udalost) override;
    void showEvent(QShowEvent* udalost) override;
    void Obnov();
    bool Je_Archiv() const;
    void Povol_Limity(int index);
    void Check1_Click(int index, bool zapnuto);
    void Prepis(QLineEdit* pole, double hodnota);
    void Limit_Zmenen(QLineEdit* pole);
    void Uprav_Pri_Zmene(QLineEdit* pole);
    void Limit_Opusten(QLineEdit* pole);
    void Zapis_Stav();

    Relace& Sezeni;
    std::array<QLabel*, 11> Popisky{};                 // lblOmezeni(0..10)
    std::array<std::vector<QLineEdit*>, 11> Limity{}; // the limit boxes of each Check1
    bool Nastavuje = false;                           // a box is being written: its echo is not a change
    bool Drzet_Text4 = false;                         // a restored Text4 outlives the window's load
    int Pocet_Tutovek = 0;
};
