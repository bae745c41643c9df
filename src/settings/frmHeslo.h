#pragma once
// The lock of the program: while a password is set, the start asks for it here, with the menus of
// the work off until the right password is typed. Three attempts; after the last wrong one the
// program stays locked for this run.

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class frmMDITombi;
struct Relace;

class frmHeslo final : public QWidget {
    Q_OBJECT

public:
    explicit frmHeslo(frmMDITombi& ram, QWidget* parent = nullptr);

    // At start: the window and the lock when Pws holds a password; nothing otherwise.
    static void Over_Pri_Startu(frmMDITombi& ram);

    QLineEdit* txtHeslo_Vstup;
    QPushButton* Command1;
    QLabel* lblPokus;
    QLabel* Label2;
    bool Heslo_OK = false;

protected:
    void closeEvent(QCloseEvent* udalost) override;

private:
    void Command1_Click();

    frmMDITombi& Ram;
    Relace& Sezeni;
    QString Vstup; // the typed text, enciphered as the password is kept
    int Pokusu;
};
