#pragma once
// The help of the program: Czech HTML pages built into the program, shown with back, forward and
// contents buttons. The frame opens it inside its MDI area.

#include <QWidget>

class QPushButton;
class frmMDITombi;
class QTextBrowser;
class QUrl;

class frmNapoveda final : public QWidget {
    Q_OBJECT

public:
    // `stranka` is a page name such as "tahy.html", optionally with an anchor ("tahy.html#vypis");
    // an unknown page shows the contents page.
    explicit frmNapoveda(const QString& stranka, QWidget* parent = nullptr);

    // The page that answers a window's help key ("Anal", "Gener", ...); the contents page for an
    // unknown key.
    static QString Stranka_Podle_Klice(const QString& klic);

    void Ukaz_Stranku(const QString& stranka);
    // Opened again with another page: that page is shown.
    void Prevezmi(const QString& stranka) { Ukaz_Stranku(stranka); }
    // mnuHelp opens the contents page.
    static void Pripoj_Prikazy(frmMDITombi& ram);
    QSize sizeHint() const override;

private:
    void Po_Zmene_Stranky(const QUrl& adresa);

    QPushButton* cmdZpet;
    QPushButton* cmdVpred;
    QPushButton* cmdObsah;
    QTextBrowser* txtNapoveda;
};
