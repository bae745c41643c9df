#pragma once
// The splash of the start: a round borderless picture with the name and the version, centred on
// the screen. The frame closes it.

#include <QWidget>

class frmTombi_uvod final : public QWidget {
    Q_OBJECT

public:
    explicit frmTombi_uvod(const QString& verze);

    const QString& Verze() const { return Text_Verze; }

protected:
    void paintEvent(QPaintEvent* udalost) override;

private:
    QString Text_Verze;
};
