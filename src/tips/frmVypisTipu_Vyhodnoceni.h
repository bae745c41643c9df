#pragma once
// The third panel of the tip list, "Vyhodnotit!": what is evaluated (the drawn numbers against the
// tips, those numbers against the archive, the file against the archive, a random draw), the two
// rows of draw boxes with the colours of hits and near misses, how many draws back, and the run
// itself, whose counts and wins go to the money panel below the list.

#include "tips/Vyhodnoceni.h"

#include <QWidget>
#include <array>
#include <optional>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;
class frmVypisTipu_Vyhry;
struct Relace;

class frmVypisTipu_Vyhodnoceni final : public QWidget {
    Q_OBJECT

public:
    // The window's load: counters and kinds reset, the kept numbers back in the boxes, the whole
    // archive as the range.
    frmVypisTipu_Vyhodnoceni(Relace& sezeni, frmVypisTipu_Vyhry& vyhry, QWidget* parent = nullptr);
    ~frmVypisTipu_Vyhodnoceni() override;

    // Nastav_Typ_Vyhodnoceni: options 0, 2 and 3 need a tip; without one option 1 is chosen.
    void Nastav_Typ_Vyhodnoceni();
    // The evaluation of cmdOK(0) after the window's common start; the counts and wins are in the
    // result, none when nothing was evaluated (no tips, too few numbers: its message shown).
    std::optional<Vysledek_Vyhodnoceni> Vyhodnot();
    // The drawn numbers were looked for in the archive: the draw list has had its say then.
    bool Hledano_V_Tazich() const { return Typ() == 1; }
    // A run or a comparison is under way.
    bool Bezi_Beh() const { return Bezi; }
    // Zapis_Do_Tahu: a Ctrl+click on the picture fills the next box.
    void Zapis_Do_Tahu(int cislo);
    // Obarvi_Tahy for each number of a tip chosen in the list (the boxes show how it stands to the
    // numbers in them); an empty tip only whitens them.
    void Obarvi_Tip(const Tip& tip);
    // Vypis_Jeden_Tah(tah, kod): the newest draw of the range that the tip line shares `kod`
    // numbers with goes into the boxes.
    void Vypis_Jeden_Tah(int tah, QChar kod, const QString& radek_tipu);
    // The numbers in one row of boxes (tah 1 or 2).
    Radek_Tahu Radek(int tah) const;
    // Which option is chosen (0..3).
    int Typ() const;
    // The newest draws looked at: Val of txtPocet_1Tahu and txtPocet_2Tahu.
    int N1() const;
    int N2() const;

    std::array<QRadioButton*, 4> Typ_Vyhodnoceni{};
    QGroupBox* Frame2;
    std::array<QLineEdit*, 7> Tah1{};
    std::array<QLineEdit*, 7> Tah2{};
    std::array<QPushButton*, 2> cmdClear_Tazena_Cisla{};
    std::array<QLabel*, 2> lblTahCislo{};
    QLabel* Label5; // the legend: hit, change, near miss
    QLabel* Label6;
    QLabel* Label7;
    QCheckBox* Check1; // "Stejný počet"
    QLineEdit* txtPocet_1Tahu;
    QLineEdit* txtPocet_2Tahu;
    QScrollBar* scrPocet_1Tahu;
    QScrollBar* scrPocet_2Tahu;
    std::array<QCheckBox*, 2> chkTah{};
    QPushButton* cmdGeneruji_Tip;
    QPushButton* cmdOK;
    QPushButton* cmdSrovnani; // "Srovnat s náhodou"

signals:
    // cmdGeneruji_Tip drew anew: the window evaluates at once (cmdOK(0)).
    void Vyhodnotit();
    // A draw's numbers are in the first row: the picture shows them.
    void Tah_Zobrazen();
    // Another kind was chosen: the counts and money of the last run no longer answer it.
    void Vysledek_Neplatny();

private:
    QWidget* Druhy();
    QWidget* Boxy();
    QWidget* Pocty_Tahu();
    void Typ_Click(int index);
    void Vycisti_Vyhodnoceni();
    void Obnov_Cisla_Tahu();
    void Nahodny_Los();
    void Box_Zmenen(int tah, int index);
    void Tah_Zmenen();
    void Pocet_Zmenen(int tah);
    void Pocet_Opusten(int tah);
    void Check1_Click();
    void Zobraz_Tah(int tah, int index);
    void Obarvi_Tahy(int cislo);
    // The legend of the colours; `zmena` adds the red of a changed box.
    void Zobraz_Legendu(bool zmena);
    void Srovnej();
    void Nastav_Barvu(QLineEdit* box, const QColor& barva);
    QColor Barva(const QLineEdit* box) const;
    QLineEdit* Box(int tah, int index) const { return (tah == 1 ? Tah1 : Tah2)[std::size_t(index)]; }

    Relace& Sezeni;
    frmVypisTipu_Vyhry& Vyhry;
    int Aktivni_Tah = 0;
    int Aktivni_Pozice = 0;
    bool Nacita = true;
    bool Bezi = false;
    bool Zmena_Poctu = false;
};
