#pragma once
// modNastaveni_Ovladani: small helpers for the controls of any window: selecting a box's text on
// entry, the even/odd labels, the help context. The key filter Filtr_Klavesy and the table of help
// keys need no window and live in modTombi.

#include "core/Tabulka_Textu.h"

#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QString>
#include <QWidget>

#include <span>

namespace modNastaveni_Ovladani {

// Names a control of window `okno` and gives it its caption and tool tip from the string table
// ("okno.jmeno", "okno.jmeno.ToolTipText"); a frame takes the caption as its title, a text box
// keeps its text. Returns the control.
template <class T> T* Prvek(T* prvek, const QString& okno, const QString& jmeno) {
    prvek->setObjectName(jmeno);
    const Tabulka_Textu& texty = Tabulka_Textu::Programu();
    const QString klic = okno + u'.' + jmeno;
    if constexpr (requires { prvek->setText(QString()); }) {
        if (!qobject_cast<QLineEdit*>(prvek))
            if (const QString titulek = texty.Text(klic); !titulek.isEmpty())
                prvek->setText(titulek);
    } else if constexpr (requires { prvek->setTitle(QString()); }) {
        if (const QString titulek = texty.Text(klic); !titulek.isEmpty())
            prvek->setTitle(titulek);
    }
    prvek->setToolTip(texty.Text(klic + u".ToolTipText"_qs));
    return prvek;
}

// "jmeno(i)": the name of element i of an array of controls.
inline QString Indexem(const QString& jmeno, int i) {
    return jmeno + u'(' + QString::number(i) + u')';
}

// Val of a box's text, held within what an int takes.
int Cele_Cislo(const QLineEdit* pole);

// The captions of one window and the naming of its controls, for the window's files:
//     const Texty_Okna Okno{u"frmGeneruj"_qs};
//     Okno.Text(u"lblPoc_Tipu"_qs);  Okno.Pojmenuj(new QLineEdit(this), u"txtPoc_Tipu"_qs);
struct Texty_Okna {
    QString Jmeno;
    QString Text(const QString& klic) const { return Tabulka_Textu::Programu().Text(Jmeno + u'.' + klic); }
    template <class T> T* Pojmenuj(T* prvek, const QString& jmeno) const { return Prvek(prvek, Jmeno, jmeno); }
};

// A row of value labels, label i under word i of the heading `nadpis`: the heading's blanks place
// the columns, so each value starts where its word does and reaches to the next word; the last one
// is as wide as its word or `vzor_posledniho`. A row heading, if given, fills the room before the
// first word.
QWidget* Pod_Slovy(QWidget* rodic, const QLabel* nadpis, const QStringList& slova, std::span<QLabel* const> popisky,
                   const QString& vzor_posledniho, QLabel* zahlavi = nullptr);

// Lets the box take only the digits 0..9 (and deletion), as Filtr_Klavesy does for every key.
void Jen_Cislice(QLineEdit* pole);

// Selects the whole text of the box.
void Vyber_Text(QLineEdit* pole);
// Makes the box select its whole text each time it gets the focus, by the keyboard or a click.
void Vybirej_Pri_Vstupu(QLineEdit* pole);
// Writes the counts into the window's labels lblSude and lblLiche; both empty when both are 0.
void Zobraz_Suda_Licha(QWidget* okno, int suda, int licha);
// Stores the window's help context number by its key in the property "Napoveda".
void Napoveda(QWidget* okno, const QString& klic);

} // namespace modNastaveni_Ovladani
