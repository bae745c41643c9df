#include "core/Tabulka_Textu.h"

#include <QFile>

Tabulka_Textu Tabulka_Textu::Z_Textu(QStringView text) {
    Tabulka_Textu tabulka;
    for (QStringView radek : text.split(u'\n')) {
        if (radek.endsWith(u'\r'))
            radek.chop(1);
        const qsizetype tab = radek.indexOf(u'\t');
        if (radek.isEmpty() || radek.startsWith(u'#') || tab <= 0)
            continue;
        tabulka.Texty.insert(radek.left(tab).trimmed().toString(), radek.mid(tab + 1).toString());
    }
    return tabulka;
}

const Tabulka_Textu& Tabulka_Textu::Programu() {
    static const Tabulka_Textu tabulka = [] {
        QFile soubor(u":/texty/texty.tsv"_qs);
        if (!soubor.open(QIODevice::ReadOnly))
            return Tabulka_Textu();
        return Z_Textu(QString::fromUtf8(soubor.readAll()));
    }();
    return tabulka;
}

QString Tabulka_Textu::Text(const QString& klic) const {
    return Texty.value(klic);
}
