#include "data/Soubory.h"

#include "core/Vb.h"
#include "core/modTombi_Zaklad.h"

#include <QFile>
#include <QFileDevice>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>

namespace {

void Povol_Zapis(const QString& cesta) {
    QFile f(cesta);
    if (f.exists())
        f.setPermissions(f.permissions() | QFileDevice::WriteOwner);
}

// Why a file operation failed, from errno taken right after the call and, when the system left
// none, from Qt's own error.
QString Duvod_Chyby(int cislo, QFileDevice::FileError chyba, bool zapis) {
    switch (cislo) {
    case 0:
        break;
    case ENOSPC:
    case EDQUOT:
        return u"na disku není dost místa"_qs;
    case EACCES:
    case EPERM:
        return zapis ? u"chybí oprávnění k zápisu"_qs : u"chybí oprávnění ke čtení"_qs;
    case ENOENT:
        return u"soubor nebo složka neexistuje"_qs;
    case ENOTDIR:
        return u"část cesty není složka"_qs;
    case EISDIR:
        return u"je to složka, ne soubor"_qs;
    case EFBIG:
        return u"soubor by byl větší, než systém dovoluje"_qs;
    case EROFS:
        return u"disk je jen pro čtení"_qs;
    case ENAMETOOLONG:
        return u"cesta je příliš dlouhá"_qs;
    case EIO:
        return u"chyba vstupu a výstupu disku"_qs;
    case EMFILE:
    case ENFILE:
        return u"je otevřeno příliš mnoho souborů"_qs;
    case EBUSY:
    case ETXTBSY:
        return u"soubor je právě používán"_qs;
    default:
        return u"chyba systému číslo "_qs + QString::number(cislo);
    }
    if (chyba == QFileDevice::ResourceError)
        return u"nedostatek místa na disku nebo jiných prostředků systému"_qs;
    return u"neznámá chyba"_qs;
}

const QString Neni_Bezny_Soubor = QStringLiteral("není to běžný soubor, ale zařízení, roura nebo soket");

QString Duvod_Ne_Souboru(const QFileInfo& info) {
    return info.isDir() ? u"je to složka, ne soubor"_qs : Neni_Bezny_Soubor;
}

// "104 857 600 bajtů"
QString Text_Velikosti(qint64 bajtu) {
    return Vb::Format(double(bajtu), u"### ### ### ### ###").trimmed() + u' ' +
           modTombi::Tvar_Poctu(bajtu, u"bajt"_qs, u"bajty"_qs, u"bajtů"_qs);
}

QString Text_Meze(qint64 nejvic) {
    if (nejvic % Mebibajt == 0)
        return QString::number(nejvic / Mebibajt) + u" MiB"_qs;
    return Text_Velikosti(nejvic);
}

// Writes through QSaveFile; the reason of a failure, or nothing. A folder or a device in the way
// is refused before QSaveFile would put a file in its place.
QString Zapis(const QString& cesta, const QByteArray& data) {
    const QFileInfo info(cesta);
    if (info.exists() && !info.isFile())
        return Duvod_Ne_Souboru(info);
    const QFileInfo slozka(info.absolutePath());
    if (!slozka.exists())
        return u"složka \""_qs + slozka.filePath() + u"\" neexistuje"_qs;
    if (!slozka.isDir())
        return u"\""_qs + slozka.filePath() + u"\" není složka"_qs;
    Povol_Zapis(cesta);
    QSaveFile f(cesta);
    // Unbuffered, so that a short write (full disk, size limit) shows in write()'s count: through
    // the buffer Qt's flush drops it silently and commit() would put a cut file in place.
    errno = 0;
    if (!f.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return Duvod_Chyby(errno, f.error(), true);
    errno = 0;
    if (f.write(data) != data.size()) {
        const int cislo = errno;
        return Duvod_Chyby(cislo, f.error(), true);
    }
    errno = 0;
    if (!f.commit())
        return Duvod_Chyby(errno, f.error(), true);
    return {};
}

Vysledek Nelze_Zapsat(const QString& cesta, const QString& duvod) {
    return Vysledek::Chyba(u"Soubor \""_qs + cesta + u"\" nelze zapsat: "_qs + duvod + u'.');
}

// A plain rename(2): it replaces the target atomically and leaves errno for the message, where
// QFile::rename refuses an existing target and falls back to copying.
QString Prejmenuj(const QString& z, const QString& na) {
    errno = 0;
    if (std::rename(QFile::encodeName(z).constData(), QFile::encodeName(na).constData()) == 0)
        return {};
    return Duvod_Chyby(errno, QFileDevice::RenameError, true);
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

void Priprav_Zapis_Souboru() {
    // Past the limit the kernel sends SIGXFSZ, whose default ends the process; ignored, the write
    // just fails with EFBIG.
    std::signal(SIGXFSZ, SIG_IGN);
}

QString Nacteny_Soubor::Zprava(const QString& jmeno) const {
    return u"Soubor \""_qs + jmeno + u"\" nelze načíst: "_qs + Duvod + u'.';
}

Nacteny_Soubor Nacti_Soubor(const QString& cesta, qint64 nejvic) {
    Nacteny_Soubor n;
    // Opening a pipe would wait for a writer and a device never ends: both are refused unopened.
    const QFileInfo info(cesta);
    if (info.exists() && !info.isFile()) {
        n.Duvod = Duvod_Ne_Souboru(info);
        return n;
    }
    const auto prilis_velky = [&](qint64 velikost) {
        n.Data.clear();
        n.Duvod = u"má "_qs + Text_Velikosti(velikost) + u", soubor tohoto druhu může mít nejvýše "_qs +
                  Text_Meze(nejvic);
        return n;
    };
    if (info.exists() && info.size() > nejvic)
        return prilis_velky(info.size());

    Povol_Zapis(cesta);
    QFile f(cesta);
    errno = 0;
    if (!f.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        n.Duvod = Duvod_Chyby(errno, f.error(), false);
        n.Nelze_Otevrit = true;
        return n;
    }
    // The file may have been swapped or grown since it was looked at: the limit holds while reading.
    if (f.isSequential()) {
        n.Duvod = Neni_Bezny_Soubor;
        return n;
    }
    n.Data.reserve(qsizetype(std::min(f.size(), nejvic)));
    char blok[64 * 1024];
    for (;;) {
        errno = 0;
        const qint64 precteno = f.read(blok, sizeof blok);
        if (precteno < 0) {
            n.Data.clear();
            n.Duvod = Duvod_Chyby(errno, f.error(), false);
            return n;
        }
        if (precteno == 0)
            break;
        if (n.Data.size() + precteno > nejvic)
            return prilis_velky(n.Data.size() + precteno);
        n.Data.append(blok, qsizetype(precteno));
    }
    return n;
}

Vysledek Uloz_Soubor(const QString& cesta, const QByteArray& data) {
    if (const QString duvod = Zapis(cesta, data); !duvod.isEmpty())
        return Nelze_Zapsat(cesta, duvod);
    return Vysledek::Uspech();
}

Vysledek Uloz_Se_Zalohou(const QString& cesta, const QByteArray& data, const QString& zaloha) {
    if (!QFileInfo::exists(cesta))
        return Uloz_Soubor(cesta, data);
    if (const QFileInfo info(cesta); !info.isFile())
        return Nelze_Zapsat(cesta, Duvod_Ne_Souboru(info));

    // The write is what fails on a full disk, so it comes first, beside the file; what follows are
    // renames within one folder, which need no room.
    const QFileInfo stara_zaloha(zaloha);
    const bool byla_zaloha = stara_zaloha.exists();
    if (byla_zaloha && !stara_zaloha.isFile())
        return Nelze_Zapsat(zaloha, Duvod_Ne_Souboru(stara_zaloha));
    const QString nova = cesta + u".nova"_qs;
    if (const QString duvod = Zapis(nova, data); !duvod.isEmpty())
        return Nelze_Zapsat(cesta, duvod);
    const QString predchozi = zaloha + u".predchozi"_qs;
    const auto nezdar = [&](const QString& z, const QString& na, const QString& duvod) {
        QFile::remove(nova);
        return Vysledek::Chyba(u"Soubor \""_qs + z + u"\" nelze přejmenovat na \""_qs + na + u"\": "_qs + duvod +
                               u'.');
    };
    if (byla_zaloha) {
        if (const QString duvod = Prejmenuj(zaloha, predchozi); !duvod.isEmpty())
            return nezdar(zaloha, predchozi, duvod);
    }
    if (const QString duvod = Prejmenuj(cesta, zaloha); !duvod.isEmpty()) {
        if (byla_zaloha)
            Prejmenuj(predchozi, zaloha);
        return nezdar(cesta, zaloha, duvod);
    }
    if (const QString duvod = Prejmenuj(nova, cesta); !duvod.isEmpty()) {
        Prejmenuj(zaloha, cesta);
        if (byla_zaloha)
            Prejmenuj(predchozi, zaloha);
        return nezdar(nova, cesta, duvod);
    }
    if (byla_zaloha)
        QFile::remove(predchozi);
    return Vysledek::Uspech();
}

Vysledek Prejmenuj_Soubor(const QString& z, const QString& na) {
    if (const QString duvod = Prejmenuj(z, na); !duvod.isEmpty())
        return Vysledek::Chyba(u"Soubor \""_qs + z + u"\" nelze přejmenovat na \""_qs + na + u"\": "_qs + duvod +
                               u'.');
    return Vysledek::Uspech();
}

Vysledek Smaz_Soubor(const QString& cesta) {
    if (!QFileInfo::exists(cesta))
        return Vysledek::Uspech();
    errno = 0;
    if (std::remove(QFile::encodeName(cesta).constData()) == 0)
        return Vysledek::Uspech();
    return Vysledek::Chyba(u"Soubor \""_qs + cesta + u"\" nelze smazat: "_qs +
                           Duvod_Chyby(errno, QFileDevice::RemoveError, true) + u'.');
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
