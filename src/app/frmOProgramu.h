#pragma once
// The about window: the program's name and version, what it is for, and its home page.

#include <QWidget>

class QLabel;
class QPushButton;
class frmMDITombi;

class frmOProgramu final : public QWidget {
    Q_OBJECT

public:
    explicit frmOProgramu(const QString& verze, QWidget* parent = nullptr);

    static inline const QString Domovska_Stranka = QStringLiteral("https://www.tombi.cz");
    // mnuOProgramu opens the window, mnuWebTombi the home page in the browser.
    static void Pripoj_Prikazy(frmMDITombi& ram);

private:
    QLabel* lblNazev;
    QLabel* lblPodtitul;
    QLabel* lblVerze;
    QLabel* lblPopis;
    QLabel* lblDomovska;
    QPushButton* cmdOK;
};
