#pragma once
// The tip list: the tips of the store ticket by ticket in List1, the picture of one ticket column
// with the crosses of the chosen tip, tips entered by hand, deletion, saving, ticket numbers and
// the undo. The three panels of List2 (on-line analysis, choice of tips, evaluation) stand on the
// right of the window, the money of an evaluation below it.

#include "data/Soubor_Tipu.h"

#include <QWidget>
#include <memory>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QStackedLayout;
class QStackedWidget;
class QVBoxLayout;
class frmMDITombi;
class frmSloupec_Tiketu;
class frmVypisTipu_Analyza;
class frmVypisTipu_Vyber;
class frmVypisTipu_Vyhodnoceni;
class frmVypisTipu_Vyhry;
struct Misto_Vyhry;
struct Relace;

class frmVypisTipu final : public QWidget {
    Q_OBJECT

public:
    // `vlastni`: the window opens for tips entered by hand (mnuVlastniTipy).
    frmVypisTipu(frmMDITombi& ram, bool vlastni, QWidget* parent = nullptr);
    ~frmVypisTipu() override;

    // Opened again (another file, or hand entry): the list is built anew.
    void Prevezmi(frmMDITombi& ram, bool vlastni);
    // mnuVyhodnoceniTipu, mnuVlastniTipy, and a tip file opened or converted.
    static void Pripoj_Prikazy(frmMDITombi& ram);

    void Vypis_Tipu_Do_Listu();

    QListWidget* List1;
    QListWidget* List2;
    QListWidget* lstFIX;
    frmSloupec_Tiketu* picSloupec_Vypis_Tipu;
    QLineEdit* txtSoubor_Tipu;
    QLabel* Label9;
    QPushButton* cmdUlozTipy;
    QPushButton* cmdPridej_Tipy;
    QPushButton* cmdPouzita_Cisla;
    QPushButton* cmdZrusTip;
    QPushButton* cmdZpet;
    QLineEdit* txtOldCislo;
    QLineEdit* txtNewCislo;
    QPushButton* cmdCisla_Tiketu;
    QPushButton* cmdOpakovatGener;
    QPushButton* cmdZrusit;
    QLabel* lblPocetRadek;
    // The panels of List2 (Picture1(0..2)) and the money below the list.
    QStackedWidget* Picture1;
    frmVypisTipu_Analyza* Analyza;
    frmVypisTipu_Vyber* Vyber;
    frmVypisTipu_Vyhodnoceni* Vyhodnoceni;
    frmVypisTipu_Vyhry* Vyhry;

protected:
    void closeEvent(QCloseEvent* udalost) override;
    bool eventFilter(QObject* objekt, QEvent* udalost) override;

private:
    void Nacti(bool vlastni);
    void Vyznac_Krizky(int radek);
    void Vyznac_Tiket(int radek);
    void Zobraz_Cisla(const QString& text, int pocet);
    void picSloupec_Klik(int cislo, Qt::MouseButton tlacitko, bool ctrl);
    void Nakresli_Rozpracovany();
    void cmdPouzita_Cisla_Click();
    void cmdPridej_Tipy_Click();
    void cmdZrusTip_Click();
    void cmdUlozTipy_Click();
    void cmdCisla_Tiketu_Click();
    void cmdZpet_Click();
    void Zrus_Zapis();
    void Obarvi_Zapis(const QColor& barva, bool povolit);
    void Navrhni_Jmeno();
    void List2_Click(int index);
    void cmdOK_Click(int index);
    void Zobraz_Tazena();
    void Nakresli_Neobsazena();
    void Najdi_Vyhru(const Misto_Vyhry& misto);
    void Vyska(double twipy);
    void Novy_Den();
    void Vytvor_Vyhodnoceni();

    QStackedLayout* Seznamy; // List1, or lstFIX while the list is being built
    QVBoxLayout* Spodek;     // the money of an evaluation
    frmMDITombi& Ram;
    Relace& Sezeni;
    bool Vlastni_Tipy = false;
    bool Jmeno_Upraveno = false;
    bool Meni_Cisla = false;
    bool Zmena_Vyberu = false;
    bool Nacita = false;
    int Pocet_Radek = 0;     // in hand entry: numbers chosen so far
    int Posledni_Radek = -1; // to tell up from down when stepping over gaps
    std::unique_ptr<Zaznam_Tipu> Zaloha_Tipu;
};
