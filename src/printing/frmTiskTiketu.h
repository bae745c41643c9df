#pragma once
// "Tisk tiketů": the tips of the open file printed straight onto the operator's paper tickets, one
// ticket a page, only the crosses and, if wanted, the ticket's number. The picture of the ticket's
// choice boxes takes what applies to every ticket; the two shift boxes move all crosses by some
// millimetres, and a test page fixes the shift. "Náhled" shows the pages over the outline of the
// ticket's boxes before a ticket is spent.

#include "printing/Tisk_Tiketu.h"

#include <QWidget>
#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPainter;
class QPrinter;
class QPushButton;
class QRadioButton;
class frmMDITombi;
struct Relace;

// pctTiket_Slos: the choice boxes, drawn 1 to 10 from their twips, with their marks.
class frmTiskTiketu_Volby final : public QWidget {
    Q_OBJECT

public:
    explicit frmTiskTiketu_Volby(const std::array<bool, Tisk_Tiketu::Pocet_Voleb + 1>& oznaceno, QWidget* parent);
    QSize sizeHint() const override;

signals:
    void Klik(int volba);

protected:
    void paintEvent(QPaintEvent* udalost) override;
    void mousePressEvent(QMouseEvent* udalost) override;

private:
    const std::array<bool, Tisk_Tiketu::Pocet_Voleb + 1>& Oznaceno;
};

class frmTiskTiketu final : public QWidget {
    Q_OBJECT

public:
    explicit frmTiskTiketu(frmMDITombi& ram, QWidget* parent = nullptr);

    // mnuTiskTiketu.
    static void Pripoj_Prikazy(frmMDITombi& ram);
    // Tisk_Tiketu(od, pocet): tickets od .. od + pocet on the printer of the dialog (shown once an
    // opening); false when nothing was printed.
    bool Tisk(int od, int pocet);
    // A click on choice box `volba` of the picture.
    void Volba_Click(int volba);
    // The pages of the range of tickets over the outline of the ticket's boxes, as the preview
    // shows them.
    void Kresli_Nahled(QPrinter* cil) const;

    frmTiskTiketu_Volby* pctTiket_Slos;
    QLineEdit* txtOsa_X;
    QLineEdit* txtOsa_Y;
    std::array<QRadioButton*, 3> Option2{};
    QPushButton* cmdTest;
    QPushButton* cmdKalibrace; // a page of five crosses with their places in mm, to measure
    QPushButton* Command1;
    QCheckBox* Check2;
    QLineEdit* txtAktualni_Tiket;
    QLineEdit* txtPredposledni_Tiket;
    QLineEdit* txtPocet_Tiketu;
    QLineEdit* txtPocet_Tisknout;
    QPushButton* cmdTisk;
    QPushButton* Command3;
    QPushButton* Command2;
    QPushButton* cmdNahled;
    QLabel* Label15;

private:
    QWidget* Posuv();
    QWidget* Tikety();
    Tisk_Tiketu::Zadani_Tisku Zadani() const;
    bool Tiskni(const std::vector<Tisk_Tiketu::Stranka>& stranky);
    void Kresli(QPainter& kreslic, const QPrinter& tiskarna, const Tisk_Tiketu::Stranka& stranka, bool obrys) const;
    void Test_Click();
    void Reset_Click();
    void Uloz_Posun();
    void Aktualni_Zmenen();
    void Nahled();

    frmMDITombi& Ram;
    Relace& Sezeni;
    std::array<bool, Tisk_Tiketu::Pocet_Voleb + 1> Oznaceno{};
    Tisk_Tiketu::Kalibrace Poloha;
    int Hustota_Index = 1;
    bool Jen_Volby = false;
    bool Dialog_Ukazan = false;
};
