#pragma once
// The money of an evaluation, below the tip list: the prizes by tier of the chosen draw day, the
// counts and sums of both draws, the total win, the stake with or without Šance and the profit in
// per cent; the list of winning tickets that leads back to its tips, the bettors' shares, and the
// two printouts.

#include "tips/Vypis_Vyher.h"

#include <QWidget>
#include <array>
#include <vector>

class QAbstractListModel;
class QLabel;
class QLineEdit;
class QListView;
class QListWidget;
class QPushButton;
class QRadioButton;
class QStackedLayout;
struct Relace;

class frmVypisTipu_Vyhry final : public QWidget {
    Q_OBJECT

public:
    // A bettor's win for the payouts list.
    struct Vyhra_Sazejiciho {
        QString Jmeno;
        double Vyhra = 0;
    };

    frmVypisTipu_Vyhry(Relace& sezeni, QWidget* parent = nullptr);
    ~frmVypisTipu_Vyhry() override;

    // Vycisti_Formular: the win list, the bettors' list, the counts and the sums emptied.
    void Vycisti_Formular();
    // The list gives way to "ČEKEJTE ..." while a run goes.
    void Cekej(bool cekat);
    // Vypis_Vyher: the counts and sums of both draws; the list of wins unless `jen_pocty`.
    void Vypis_Vyher(const Vysledek_Vyhodnoceni& vysledek, bool jen_pocty);
    // Prepocti_Vklad(n1, n2): the stake of a run over the newest n1 and n2 draws, Šance taken off,
    // and the estimated time of that run.
    void Prepocti_Vklad(int n1, int n2);
    // The prizes now in the boxes, first and second draw.
    std::array<Ceny_Tahu, 2> Ceny() const;

    // The split of the total win among the bettors of the open list into lstSazejiciVypis.
    void Rozdel_Vyhru();
    void Tiskni_Vyhravajici_Tikety();
    void Tiskni_Vyherni_Listinu(const std::vector<Vyhra_Sazejiciho>& sazejici);

    std::array<QRadioButton*, 3> optTyden{}; // by Den_Tahu: 0 Sunday, 1 Wednesday, 2 Friday
    std::array<QLineEdit*, 5> Tah1Vyhra{};
    std::array<QLineEdit*, 5> Tah2Vyhra{};
    std::array<QLineEdit*, 5> Tah1Cena{};
    std::array<QLineEdit*, 5> Tah2Cena{};
    QLineEdit* Tah1CelkVyhra;
    QLineEdit* Tah2CelkVyhra;
    QLineEdit* txtCelkemVyhra;
    QLineEdit* txtVklad;
    QLineEdit* txtUspech;
    QLineEdit* txtSance;
    QPushButton* cmdSance;
    QListView* lstTiketyVypis;
    QListWidget* List3;
    QLabel* lblPocetRadekTiketu;
    QListWidget* lstSazejiciVypis;
    QLabel* lblPocetRadkuSazejici;
    QPushButton* cmdTisk_Vyhernich_Tipu; // named "cmdTisk_Výhernich_Tipu"
    QPushButton* Command1;
    QLabel* lblCasZpracovani;

signals:
    // A line of the win list was chosen: the tip list selects the tip of that win.
    void Vyhra_Zvolena(const Misto_Vyhry& misto);
    // The only win of a tier was found from its count: Vypis_Jeden_Tah(tah, kod).
    void Jeden_Tah(int tah, QChar kod);

protected:
    bool eventFilter(QObject* objekt, QEvent* udalost) override;

private:
    QWidget* Tabulka_Cen();
    QWidget* Penize();
    QWidget* Seznamy();
    void optTyden_Click(int index);
    void Vyhra_Zmenena(int tah, int index);
    void Prepocti_Soucet(int tah);
    void Soucet_Zmenen();
    void Spocti_Uspech();
    void Obarvi_Pocet(QLineEdit* pocet);
    void cmdSance_Click();
    void Hledej_Poradi(int tah, int index);
    void Prepis(QLineEdit* pole, const QString& text);

    Relace& Sezeni;
    Vyhry Vyhry_1Tah{};
    Vyhry Vyhry_2Tah{};
    std::vector<Misto_Vyhry> Mista;
    QAbstractListModel* Model_Vyher;
    QStackedLayout* Seznam_Vyher;
    std::array<std::array<int, 5>, 2> Pozice_Poradi{}; // Pozice_Poradi_1, Pozice_Poradi_2
    bool Prepisuje = false;
};
