#pragma once
// The common notice: a small borderless window with one line or a few lines of text, centred on
// the main window. It never holds up the code that showed it, and any click or key closes it.

#include <QWidget>

class QLabel;

class frmNeniProcedura final : public QWidget {
    Q_OBJECT

public:
    // Shows itself at once; it deletes itself when closed.
    explicit frmNeniProcedura(const QString& text, QWidget* hlavni_okno);

    QString Text() const;

protected:
    void paintEvent(QPaintEvent* udalost) override;
    void mousePressEvent(QMouseEvent* udalost) override;
    void keyPressEvent(QKeyEvent* udalost) override;

private:
    void Uprav_Velikost();
    void Vycentruj(QWidget* hlavni_okno);

    QLabel* Label1;
};
