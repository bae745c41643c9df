#pragma once
// The font dialog with a colour: Qt's font dialog, embedded, and under it the classic 16 colours
// and any other through the colour dialog. The reports and the analysis viewer take both.

#include <QColor>
#include <QDialog>
#include <QFont>

class QComboBox;
class QFontDialog;
class QLineEdit;

class frmPismo final : public QDialog {
    Q_OBJECT

public:
    frmPismo(const QFont& pismo, const QColor& barva, QWidget* parent = nullptr);

    QFont Pismo() const;
    QColor Barva() const;
    void Nastav_Barvu(const QColor& barva);

private:
    void Po_Volbe_Barvy(int index);
    void Ukaz_Vzorek();

    QFontDialog* dlgPismo;
    QComboBox* cboBarva;
    QLineEdit* Vzorek = nullptr;
    int Predchozi_Volba = 0;
};
