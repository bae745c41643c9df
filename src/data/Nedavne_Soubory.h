#pragma once
// The recent tip files and bettors' lists, as the settings keep them: a comma-separated text whose
// first entry is a blank, then entries "1.  a.tip", "2.  b.tip", ... newest first.

#include <QString>
#include <QStringList>

inline constexpr int Druh_Tipy = 0;
inline constexpr int Druh_Seznamy = 1;
// The menus have room for this many entries.
inline constexpr int Max_Nedavnych_Tipu = 8;
inline constexpr int Max_Nedavnych_Seznamu = 7;

// Puts `jmeno` first and renumbers the rest. Every old entry that holds `jmeno` anywhere is
// dropped, so a reopened file moves to the top (and "a.tip" also drops "aa.tip"); the oldest entry
// falls off when the list is full.
QString Pridej_Nedavny(const QString& seznam, int druh, const QString& jmeno);

// The captions of the menu elements 1.., in order: "1.  a.tip", "2.  b.tip".
QStringList Polozky_Nedavnych(const QString& seznam);

// The file name of a caption: "1.  a.tip" gives "a.tip".
QString Soubor_Z_Polozky(const QString& polozka);
