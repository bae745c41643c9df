#include "data/Nedavne_Soubory.h"

namespace {

// An entry is its number, a point, two blanks and the name; the name starts at the fifth character.
constexpr qsizetype Zacatek_Jmena = 4;

} // namespace

QString Pridej_Nedavny(const QString& seznam, int druh, const QString& jmeno) {
    const QStringList polozky = seznam.split(u',');
    // The new entry takes the first place, so only this many old ones still fit in the menu.
    const int posledni = (druh == Druh_Tipy ? Max_Nedavnych_Tipu : Max_Nedavnych_Seznamu) - 1;
    QString text = u" ,1.  "_qs + jmeno;
    int cislo = 1;
    for (int i = 1; i <= posledni && i < polozky.size(); ++i) {
        if (polozky[i].contains(jmeno))
            continue;
        ++cislo;
        text += u',' + QString::number(cislo) + u".  "_qs + polozky[i].mid(Zacatek_Jmena);
    }
    return text;
}

QStringList Polozky_Nedavnych(const QString& seznam) {
    QStringList polozky = seznam.split(u',');
    polozky.removeFirst(); // the blank before the first comma
    return polozky;
}

QString Soubor_Z_Polozky(const QString& polozka) {
    return polozka.mid(Zacatek_Jmena);
}
