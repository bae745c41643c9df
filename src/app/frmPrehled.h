#pragma once
// The overview of which bettors' list went with which tip file (_Prehled.txt), shown read-only in
// a window of the program: the file is code page 1250, which a viewer of the system may misread.

#include <QWidget>

class QPlainTextEdit;
class QPushButton;
class frmMDITombi;

class frmPrehled final : public QWidget {
    Q_OBJECT

public:
    explicit frmPrehled(const QString& cesta, QWidget* parent = nullptr);

    // Opened again: the file is read anew (it may be another one).
    void Prevezmi(const QString& cesta);
    // mnuPrehled opens the overview of the list directory, or says that there is none yet.
    static void Pripoj_Prikazy(frmMDITombi& ram);
    void Obnovit();
    QSize sizeHint() const override;

private:
    QString Cesta;
    QPlainTextEdit* txtPrehled;
    QPushButton* cmdObnovit;
    QPushButton* cmdZavrit;
};
