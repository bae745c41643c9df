#pragma once
// The about window: the program's name and version, what it is for, and its home page.

#include <QWidget>

class QLabel;
class QPushButton;

class frmOProgramu final : public QWidget {
    Q_OBJECT

public:
    explicit frmOProgramu(const QString& verze, QWidget* parent = nullptr);

    static inline const QString Domovska_Stranka = QStringLiteral("https://www.tombi.cz");

private:
    void Zavri();

    QLabel* lblNazev;
    QLabel* lblPodtitul;
    QLabel* lblVerze;
    QLabel* lblPopis;
    QLabel* lblDomovska;
    QPushButton* cmdOK;
};
