#pragma once
// The captions of menus, fields and tool tips, kept in one table so that the texts of the program
// stand together and the code names only the controls. The table is a UTF-8 text of lines
// "key<TAB>caption"; the key is the control's name, and a tool tip has the key of its control
// followed by ".ToolTipText". Blanks inside and around a caption are part of it.

#include <QHash>
#include <QString>
#include <QStringView>

class Tabulka_Textu final {
public:
    // Empty lines, lines without a tab and lines starting with '#' are skipped; a key given twice
    // keeps its last caption. A CR before the line end is dropped.
    static Tabulka_Textu Z_Textu(QStringView text);
    // The table that ships with the program, read once from its resource.
    static const Tabulka_Textu& Programu();

    // The caption of the key, empty if the table lacks it.
    QString Text(const QString& klic) const;
    bool Obsahuje(const QString& klic) const { return Texty.contains(klic); }
    qsizetype Pocet() const { return Texty.size(); }

private:
    QHash<QString, QString> Texty;
};
