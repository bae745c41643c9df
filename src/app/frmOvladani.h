#pragma once
// modNastaveni_Ovladani: small helpers for the controls of any window: selecting a box's text on
// entry, the even/odd labels, the help context. The key filter Filtr_Klavesy and the table of help
// keys need no window and live in modTombi.

class QLineEdit;
class QString;
class QWidget;

namespace modNastaveni_Ovladani {

// Selects the whole text of the box.
void Vyber_Text(QLineEdit* pole);
// Makes the box select its whole text each time it gets the focus, by the keyboard or a click.
void Vybirej_Pri_Vstupu(QLineEdit* pole);
// Writes the counts into the window's labels lblSude and lblLiche; both empty when both are 0.
void Zobraz_Suda_Licha(QWidget* okno, int suda, int licha);
// Stores the window's help context number by its key in the property "Napoveda".
void Napoveda(QWidget* okno, const QString& klic);

} // namespace modNastaveni_Ovladani
