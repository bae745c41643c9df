#pragma once
// The generator window: how many tips and tickets, the stake, the seed, the wheel list, the number
// pools (frmGeneruj_Vyber) and the filters (frmGeneruj_Omezeni); "Budiž" runs the generator over
// them, shows its progress, can be stopped, and hands the tips to the tip list.

#include "generator/modRozpisy.h"

#include <QWidget>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class frmGeneruj_Omezeni;
class frmGeneruj_Vyber;
class frmMDITombi;
struct Relace;

class frmGeneruj final : public QWidget {
    Q_OBJECT

public:
    explicit frmGeneruj(frmMDITombi& ram, QWidget* parent = nullptr);
    ~frmGeneruj() override;

    // mnuGenerujTipy.
    static void Pripoj_Prikazy(frmMDITombi& ram);
    // Nacti_Cisla_Do_Generatoru: the picked numbers of the status band become the pool of "Použít"
    // of a generator opened anew; the tip list and the draw list close.
    static frmGeneruj* Nacti_Cisla_Do_Generatoru(frmMDITombi& ram);

    // May a run start: the pool is complete; otherwise its message is shown.
    bool Kontrola();
    // True while a run goes.
    bool Bezi() const { return Beh_Bezi; }

    QLineEdit* txtPoc_Tipu;
    QLineEdit* txtPoc_Tiketu;
    QLabel* lblVklad;
    QCheckBox* chkSance;
    QLineEdit* txtSeminko;         // the seed of the last run, read only
    QLineEdit* txtVlastni_Seminko; // a seed typed for the next run; empty takes one from the clock
    QLabel* lblTiket;
    QLabel* lblTip;
    QLabel* lblStav_Behu; // under the progress: why a run makes no tips
    QGroupBox* fraTypyRozpisu;
    QListWidget* lstSportka;
    QCheckBox* chkSpojvatRozpisy;
    QPushButton* Command1;
    QPushButton* cmdUvolnit_Seznam_Sazejicich;
    QLabel* lblZaruky; // what the chosen wheel guarantees and its chances beside random tips
    QPushButton* cmdOK;
    QPushButton* cmdZrusit;
    frmGeneruj_Vyber* Vyber;
    frmGeneruj_Omezeni* Omezeni;

protected:
    void closeEvent(QCloseEvent* udalost) override;
    bool eventFilter(QObject* objekt, QEvent* udalost) override;

private:
    QLayout* Rozvrh_Poctu();
    void txtPoc_Tipu_Change();
    void txtPoc_Tiketu_Change();
    void Spocitej_Vklad();
    void lstSportka_Click(int index);
    void Nastav_Rozpis(int cislo);
    void Zamkni_Pocty(bool zamknout);
    void Nastav_Seznam_Sazejicich();
    void cmdUvolnit_Click();
    void cmdOK_Click();
    void Generuj();
    void cmdZrusit_Click();
    void Predej_Tipy();
    // Otevri_Rozpis_Soubor: the text of a .rzp chosen in the open dialog, or empty.
    QByteArray Otevri_Rozpis_Soubor();
    // The window as a wheel (or none, cislo 0) wants it: the filters, the counts locked at the
    // wheel's columns, the caption, the guarantees.
    void Ukaz_Rozpis(int cislo, const std::optional<modRozpisy::Rozmery_Rozpisu>& rozmery);
    void Ukaz_Zaruky(int cislo);
    // cmdOK with a wheel: the user's numbers expanded into the store, alone or joined to the tips
    // that stood there ("Spojovat").
    void Rozpisuj();
    void Ukaz_Vsechny_Tipy();

    frmMDITombi& Ram;
    Relace& Sezeni;
    bool Zapis_Z_Tipu = false;
    bool Zapis_Z_Tiketu = false;
    bool Beh_Bezi = false;
    modRozpisy::Externi_Rozpis_Stav Externi; // the wheel read from a .rzp file
    QString Jmeno_Rozpisu;                   // its file name, for the caption
};
