#pragma once
// Pages of the settings: folders and the browser, the generator's defaults, the password, the
// addresses of the draw data and the update, and the defaults of removing tips.

#include "settings/frmNastaveniProgramu.h"

#include <array>

class QCheckBox;
class QFileSystemModel;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTreeView;
struct Relace;

// 0: the folders of data, tips, lists and analyses (optCesta chooses which one txtCesta and the
// folder tree Dir1 show), a new folder, the web browser, and clearing the recent files.
class Stranka_Adresare final : public Stranka_Nastaveni {
    Q_OBJECT

public:
    Stranka_Adresare(Nastaveni_Zaznam& kopie, Relace& sezeni, QWidget* parent);
    void Uloz() override;

    std::array<QRadioButton*, 4> optCesta{};
    QLineEdit* txtCesta;
    QTreeView* Dir1;
    QPushButton* cmdZaloz_Adr;
    QLineEdit* txtIE_Cesta;
    QPushButton* cmdNajdiIE;
    QPushButton* cmdSmazatHistoriiSouboru;
    QPushButton* cmdSmazatHistoriiSouboruSeznamu;

private:
    void Zvol_Adresar(int index);
    void Slozka_Zvolena(const QString& cesta);
    void cmdZaloz_Adr_Click();
    void cmdNajdiIE_Click();

    Relace& Sezeni;
    QFileSystemModel* Model;
    std::array<QString, 4> Adresare;
    int Zvoleny = 0;
    bool Smazat_Tipy = false;
    bool Smazat_Seznamy = false;
};

// 2: the generator's defaults and the automatic corrections of its filters.
class Stranka_Generovani final : public Stranka_Nastaveni {
    Q_OBJECT

public:
    Stranka_Generovani(Nastaveni_Zaznam& kopie, QWidget* parent);
    void Uloz() override;

    QLineEdit* txtVych_Poc_Tipu;
    QLineEdit* txtKlicVyberuCislo;
    QCheckBox* chkAutomatickeOpravy;
    QLineEdit* txtPocet_Pruchodu;
    std::array<QRadioButton*, 2> optOpakovat{};
    std::array<QCheckBox*, 7> chkVyloucit_Sud_Lich{};
    QLineEdit* txtMax_Ve_Sloupci;
    QLineEdit* txtCislo_V_Tipu;
};

// 5: setting, changing and clearing the password, in the copy of the record until OK.
class Stranka_Heslo final : public Stranka_Nastaveni {
    Q_OBJECT

public:
    Stranka_Heslo(Nastaveni_Zaznam& kopie, QWidget* parent);
    void Uloz() override {}

    std::array<QLineEdit*, 3> txtHeslo{};
    QPushButton* cmdHeslo;
    QPushButton* cmdZrusit_Heslo;
    QLabel* lblSpatne_Heslo;
};

// 7: where the draw data and the program's update come from.
class Stranka_Download final : public Stranka_Nastaveni {
    Q_OBJECT

public:
    Stranka_Download(Nastaveni_Zaznam& kopie, Relace& sezeni, QWidget* parent);
    void Uloz() override;

    QLineEdit* txtFTP_Adresa;
    QLineEdit* txtFTP_data1;
    QLineEdit* txtFTP_data2;
    QLineEdit* txtCsv_Adresa;
    QLineEdit* txtServer_Aktualizace;
    QCheckBox* chkSmazatAktSoubor;
    QCheckBox* chkZalohaDatTahu;

private:
    Relace& Sezeni;
};

// 8: which patterns of neighbouring numbers the tip list's removal starts with.
class Stranka_Ruseni final : public Stranka_Nastaveni {
    Q_OBJECT

public:
    Stranka_Ruseni(Nastaveni_Zaznam& kopie, QWidget* parent);
    void Uloz() override;

    std::array<QCheckBox*, 8> chkZrus_Tip_Sous_Cis{};
};
