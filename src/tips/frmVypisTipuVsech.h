#pragma once
// "Výpis všech tipů": the tips that several wheels joined into one file, as plain lines, and above
// them the numbers they use with their count. The generator fills it while it joins wheels.

#include <QWidget>

#include <array>

class QLabel;
class QTextEdit;
class frmMDITombi;
struct Relace;

class frmVypisTipuVsech final : public QWidget {
    Q_OBJECT

public:
    explicit frmVypisTipuVsech(frmMDITombi& ram, QWidget* parent = nullptr);
    ~frmVypisTipuVsech() override;

    // The text of every tip, and the numbers used (separated by blanks, in any order, repeats and
    // zeros allowed): the label shows them sorted, each once, and their count.
    void Zobraz(const QString& tipy, const QString& cisla);
    // Beside the generator when there is room for it in the area, else across the whole area.
    void Umisti(const QWidget* generator);

    QTextEdit* rtbVypisTipuVsech;
    std::array<QLabel*, 2> lblTutovky{};

protected:
    bool eventFilter(QObject* objekt, QEvent* udalost) override;

private:
    frmMDITombi& Ram;
    Relace& Sezeni;
};
