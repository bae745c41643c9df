#pragma once
// The printouts of the bettors' window: " Tisk seznamu" prints or writes the whole list, each
// checked bettor's tips, or the tips alone; "Tisk letáčku" sends the leaflet of the chosen printer
// model, a raw print file from the program's folder, to a printer unchanged.

#include <QWidget>
#include <array>

class QPushButton;
class QRadioButton;
class frmMDITombi;
class frmSeznamSazejicich;
struct Relace;

class frmSeznamSazejicich_Tisk final : public QWidget {
    Q_OBJECT

public:
    frmSeznamSazejicich_Tisk(frmMDITombi& ram, frmSeznamSazejicich& seznam);

    std::array<QRadioButton*, 3> Option1{};
    std::array<QRadioButton*, 9> optTiskarna{};
    QPushButton* cmdTisk;
    QPushButton* cmdDoSouboru;
    QPushButton* cmdTskLetaku;

private:
    int Druh() const;
    void cmdTisk_Click();
    void cmdDoSouboru_Click();
    void cmdTskLetaku_Click();

    frmMDITombi& Ram;
    Relace& Sezeni;
    frmSeznamSazejicich& Seznam;
};
