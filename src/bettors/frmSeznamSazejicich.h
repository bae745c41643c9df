#pragma once
// "Seznam účastníků sázky": who of a group paid how much for one draw, each one's share in per
// cent, the commission taken off the sum, and how many tips and tickets the rest pays for. The
// list is kept in a .szn file in the lists' folder, linked to the tip file by name; each change of
// the bettors is written at once. The panel below prints or exports the list, each bettor's tips
// and the leaflet.

#include "bettors/Seznam_Sazejicich.h"
#include "bettors/Vypisy_Seznamu.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class frmMDITombi;
class frmSeznamSazejicich_Tisk;
struct Relace;

class frmSeznamSazejicich final : public QWidget {
    Q_OBJECT

public:
    explicit frmSeznamSazejicich(frmMDITombi& ram, QWidget* parent = nullptr);

    // The Seznamy menu: open, new, print, release, and the recent lists.
    static void Pripoj_Prikazy(frmMDITombi& ram);

    // Vypis_Seznam: List1 and the sums from the list; a changed list is written.
    void Vypis_Seznam();
    // What the printouts say of the list besides its bettors.
    Vypisy_Seznamu::Hlavicka Hlavicka() const;
    // The bettors whose lines are checked.
    std::vector<Sazejici> Vybrani() const;

    QLineEdit* Text3;
    QLineEdit* txtTah_Dne;
    QLineEdit* txtSazkovy_Tyden;
    QLineEdit* txtJmeno;
    QLineEdit* txtVklad;
    QPushButton* cmdDalsi_Sazejici;
    QPushButton* cmdOpravit;
    QPushButton* cmdSmazat;
    QListWidget* List1;
    QLineEdit* txtProvize;
    QLabel* lblProvize;
    QLabel* lblVklad;
    QLabel* lblPocet_Tipu;
    QLabel* lblPocet_Tiketu;
    QLabel* lblZbytek;
    QLabel* lblNazev_Sob_TIpu;
    QCheckBox* Check2;
    QCheckBox* Check1;
    QPushButton* cmdOK;
    QPushButton* cmdClose;
    frmSeznamSazejicich_Tisk* Tisk;

private:
    QWidget* Naplneni();
    QWidget* Penize();
    void cmdDalsi_Sazejici_Click();
    void cmdOpravit_Click();
    void cmdSmazat_Click();
    void List1_Click();
    void txtProvize_Change();
    void Check2_Click();
    void cmdOK_Click();
    // Prepocti_Tipy: the money of the list into the labels.
    void Prepocti_Tipy();
    // Uloz_Seznam: record 1 takes the boxes, and the list is written under Text3's name.
    void Uloz_Seznam();
    void Nepouzita_Cisla();

    frmMDITombi& Ram;
    Relace& Sezeni;
    double Cena_Sance = 0;
    bool Nacita = true;
};
