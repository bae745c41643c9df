#pragma once
// Pages 3 and 6 of the settings: the prices of a tip and of Šance with the prize tables of the
// three draw days, and the calculator of combinations, tips and costs.

#include "settings/frmNastaveniProgramu.h"

#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
struct Relace;

// 3: optTyden chooses the day whose prizes the ten boxes show, first draw then second; a box
// edited writes to that day's table at once, and OK keeps all three.
class Stranka_Ceny final : public Stranka_Nastaveni {
    Q_OBJECT

public:
    Stranka_Ceny(Nastaveni_Zaznam& kopie, Relace& sezeni, QWidget* parent);
    void Uloz() override;

    QLineEdit* txtCena_Jednoho_Tipu;
    QLineEdit* txtCena_Sance;
    std::array<QRadioButton*, 3> optTyden{}; // 0 Sunday, 1 Wednesday, 2 Friday, as Den_Tahu
    std::array<QLineEdit*, 10> txtCena{};
    QPushButton* cmdCenyVytvor;
    QCheckBox* chkZmena_Cisla_Tiketu;

private:
    void Ukaz_Ceny();

    Relace& Sezeni;
    std::array<std::array<Vb::Mena, 10>, 3> Ceny{}; // by Den_Tahu
    int Den = 0;
    bool Ukazuje = false;
};

// 6: the tips of a full system of n numbers and their cost, the fives, fours and threes among them,
// and the cost and tickets of a count of tips.
class Stranka_Vypocty final : public Stranka_Nastaveni {
    Q_OBJECT

public:
    Stranka_Vypocty(Nastaveni_Zaznam& kopie, const QLineEdit* cena_tipu, QWidget* parent);
    void Uloz() override {}

    std::array<QLineEdit*, 2> txtVstupy{}; // the count of numbers, a count of tips
    std::array<QLabel*, 7> lblVysledek{};

private:
    void Spocitej();

    const QLineEdit* Cena_Tipu;
};
