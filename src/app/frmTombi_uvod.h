#pragma once
// The splash of the start: a round borderless picture with the name and the version, centred on
// the main window. It belongs to the main window, so it never stands over other programs nor
// over the notices of the start. A click or a key on it or on the main window closes it, and so
// do four seconds; it deletes itself when closed.

#include <QWidget>

class QTimer;

class frmTombi_uvod final : public QWidget {
    Q_OBJECT

public:
    explicit frmTombi_uvod(const QString& verze, QWidget* hlavni_okno = nullptr);

    const QString& Verze() const { return Text_Verze; }
    // Centres the splash on the window's frame; on the screen while the window has no place yet
    // (neither shown nor moved).
    void Vycentruj(const QWidget& okno);

    static constexpr int Doba_Zobrazeni_Ms = 4000;

protected:
    void paintEvent(QPaintEvent* udalost) override;
    void showEvent(QShowEvent* udalost) override;
    void mousePressEvent(QMouseEvent* udalost) override;
    void keyPressEvent(QKeyEvent* udalost) override;

private:
    void Vycentruj_Na(const QRect& plocha);

    QString Text_Verze;
    QTimer* Casovac;
};
