#include "data/Soubory.h"

#include <QFile>
#include <QFileDevice>
#include <QSaveFile>

namespace {

void Povol_Zapis(const QString& cesta) {
    QFile f(cesta);
    if (f.exists())
        f.setPermissions(f.permissions() | QFileDevice::WriteOwner);
}

} // namespace

QString Spoj_Cestu(const QString& adresar, const QString& jmeno) {
    if (adresar.isEmpty())
        return jmeno;
    const QChar posledni = adresar.back();
    if (posledni == u'/' || posledni == u'\\')
        return adresar + jmeno;
    return adresar + u'/' + jmeno;
}

std::optional<QByteArray> Nacti_Soubor(const QString& cesta) {
    Povol_Zapis(cesta);
    QFile f(cesta);
    if (!f.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray data = f.readAll();
    if (f.error() != QFileDevice::NoError)
        return std::nullopt;
    return data;
}

Vysledek Uloz_Soubor(const QString& cesta, const QByteArray& data) {
    Povol_Zapis(cesta);
    QSaveFile f(cesta);
    // Unbuffered, so that a short write (full disk, size limit) shows in write()'s count: through
    // the buffer Qt's flush drops it silently and commit() would put a cut file in place.
    if (!f.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || f.write(data) != data.size() || !f.commit())
        return Vysledek::Chyba(u"Soubor \""_qs + cesta + u"\" nelze zapsat: "_qs + f.errorString());
    return Vysledek::Uspech();
}

bool Je_Soubor(const QString& adresar, const QString& jmeno) {
    const QString cesta = Spoj_Cestu(adresar, jmeno);
    Povol_Zapis(cesta);
    return QFile::exists(cesta);
}

QString Jmeno_Bez_Adresare(const QString& cesta) {
    const qsizetype i = std::max(cesta.lastIndexOf(u'/'), cesta.lastIndexOf(u'\\'));
    return cesta.mid(i + 1);
}
