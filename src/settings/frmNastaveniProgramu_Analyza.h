#pragma once
// Pages 4 and 9 of the settings: the ranges the analysis of draws starts from, and the automatic
// analysis with its output to _Analyza.txt.

#include "settings/frmNastaveniProgramu.h"

#include <array>

class QCheckBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

// 4: the boxes are named as their fields.
class Stranka_Analyza_Tahu final : public Stranka_Nastaveni {
    Q_OBJECT

public:
    Stranka_Analyza_Tahu(Nastaveni_Zaznam& kopie, QWidget* parent);
    void Uloz() override;

    QLineEdit* Odecist_Tahy;
    QLineEdit* Od_Do_1Tah_Str;
    QLineEdit* Od_Do_2Tah_Str;
    QLineEdit* Od_Do_1Tah_Ned;
    QLineEdit* Od_Do_2Tah_Ned;
    QLineEdit* txtPocet_Tahu_Analyzovat;
    QCheckBox* chkAut_Prep_Hodnot;
};

// 9: which reports go to the file, which series, whether the file grows or starts anew, the viewer,
// and the statistics of the automatic analysis.
class Stranka_Auto_Analyza final : public Stranka_Nastaveni {
    Q_OBJECT

public:
    Stranka_Auto_Analyza(Nastaveni_Zaznam& kopie, QWidget* parent);
    void Uloz() override;

    QCheckBox* chkExport_Amalyz_Do_Text_Souboru;
    std::array<QRadioButton*, 3> optAnal_Tahy_Zapis{};
    QCheckBox* chkAnal_Soubor_Spoj;
    QCheckBox* chkAnal_Auto_Form_Start;
    QCheckBox* chkAnal_Form_Pamatovat;
    QListWidget* lstTyp_Analyzy;
    std::array<QPushButton*, 2> cmdAnalyza_Vse{}; // "vše", "nic"
};
