#pragma once
// The second panel of the tip list, "Výběr tipů": the tips of the file counted by their even/odd
// ratio, by their runs of neighbouring numbers and by pairs at one distance. A click marks a count,
// and cmdOK(1) strikes out the marked tips, those with pairs, those with given numbers and those
// with too many numbers in one column of the grid. The marks and the two boxes are settings.

#include "tips/Analyza_Tipu.h"

#include <QWidget>
#include <array>
#include <span>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
struct Relace;

class frmVypisTipu_Vyber final : public QWidget {
    Q_OBJECT

public:
    // The marks and the two boxes come from the settings.
    frmVypisTipu_Vyber(Relace& sezeni, QWidget* parent = nullptr);
    ~frmVypisTipu_Vyber() override;

    // Recounts every label from the tip store (after each listing). An unsorted tip stops the count
    // of pairs with its message.
    void Vypocet_Pomeru();
    // Strikes out what the marks and ticked boxes choose, each step compacting the store. True when
    // a tip went: the window then lists the tips again.
    bool Vyber_Tipy();

    QGroupBox* fraVyber_Tipu;
    QLabel* Label25; // the ratios 6/0 .. 0/6; a click marks or unmarks them all
    std::array<QLabel*, 7> lblPomer_SL{};
    QGroupBox* fraSousedni_Cisla;
    QLabel* Label26; // the run lengths; a click marks or unmarks the whole table
    QLabel* Label24; // "1 x"
    QLabel* Label10; // "2 x"
    QLabel* Label16; // "3 x"
    std::array<QLabel*, 8> lblSousedni_Cisla{};
    QCheckBox* chkVyloucit_Pary;
    QLabel* lblCisla_Pary;
    QCheckBox* chkPonechat_MaxCis_Ve_Sloupci;
    QLineEdit* txtMax_Ve_Sloupci;
    QCheckBox* chkCislo_V_Tipu;
    QLineEdit* txtCislo_V_Tipu;
    QLabel* Label4; // "sudé      liché"
    QLabel* lblSude;
    QLabel* lblLiche;
    QPushButton* cmdOK; // cmdOK(1); the window connects it

signals:
    // The choice of tips changed since the last listing.
    void Zmena_Vyberu();
    // A tip is out of order: the sort of the tip file is worth offering.
    void Setrideni_Potreba();

protected:
    bool eventFilter(QObject* objekt, QEvent* udalost) override;

private:
    // One group of marked counts: the ratios or the runs.
    struct Skupina {
        std::span<QLabel* const> Popisky;
        std::span<uint8_t> Znacky;
        std::span<uint8_t> Nastaveni; // where the settings keep the marks
        std::span<const int> Pocty;
    };
    Skupina Pomery();
    Skupina Sousedni();
    void Klik(Skupina skupina, std::size_t index);
    void Prepni_Vse(Skupina skupina);
    void Obarvi(Skupina skupina, std::size_t index);
    void Zobraz(Skupina skupina);
    void Uloz(Skupina skupina);
    void Chybi_Setrideni(const QString& zprava);
    QWidget* Tabulka_Sousednich();

    Relace& Sezeni;
    // The marks, 1 for a marked label; a copy of the settings, which take every change at once.
    modAnalyza_Tipu::Znacky_Pomeru Oznacene_Pomery{};
    modAnalyza_Tipu::Znacky_Sousednich Oznacene_Sousedni{};
    modAnalyza_Tipu::Pocty_Pomeru Pocty_Pomeru{};
    modAnalyza_Tipu::Pocty_Sousednich Pocty_Sousednich{};
};
