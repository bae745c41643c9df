#include "data/Soubory.h"

#include "core/Vb.h"
#include "core/modTombi_Zaklad.h"

#include <QFile>
#include <QFileDevice>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void (*Sledovani_Kroku)(int) = nullptr;

void Krok_Zapisu(int krok) {
    if (Sledovani_Kroku != nullptr)
        Sledovani_Kroku(krok);
}

const QString Jen_Pro_Cteni =
    QStringLiteral("soubor je jen pro čtení; Tombi do něj zapíše, až v jeho vlastnostech zápis povolíte");

QByteArray Jmeno_Pro_System(const QString& cesta) {
    return QFile::encodeName(cesta);
}

// The user made the file read-only: Tombi respects that rather than replace it by a rename. A file
// without any write bit counts as such for root too.
bool Je_Jen_Pro_Cteni(const QString& cesta) {
    const QByteArray jmeno = Jmeno_Pro_System(cesta);
    struct stat st {};
    if (::stat(jmeno.constData(), &st) != 0)
        return false;
    return (st.st_mode & 0222) == 0 || ::faccessat(AT_FDCWD, jmeno.constData(), W_OK, AT_EACCESS) != 0;
}

// A new file takes the mode and group of the one it replaces; a group the user is no member of
// cannot be given and stays the user's.
void Prevezmi_Prava(int popisovac, const QString& puvodni) {
    struct stat st {};
    if (::stat(Jmeno_Pro_System(puvodni).constData(), &st) != 0)
        return;
    if (::fchown(popisovac, uid_t(-1), st.st_gid) != 0) {
        // Not a member of the group: the file keeps the user's group.
    }
    ::fchmod(popisovac, st.st_mode & 07777);
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
// is refused before QSaveFile would put a file in its place. `cesta` has its links resolved.
QString Zapis(const QString& cesta, const QByteArray& data) {
    const QFileInfo info(cesta);
    if (info.exists() && !info.isFile())
        return Duvod_Ne_Souboru(info);
    if (info.exists() && Je_Jen_Pro_Cteni(cesta))
        return Jen_Pro_Cteni;
    const QFileInfo slozka(info.absolutePath());
    if (!slozka.exists())
        return u"složka \""_qs + slozka.filePath() + u"\" neexistuje"_qs;
    if (!slozka.isDir())
        return u"\""_qs + slozka.filePath() + u"\" není složka"_qs;
    QSaveFile f(cesta);
    // Unbuffered, so that a short write (full disk, size limit) shows in write()'s count: through
    // the buffer Qt's flush drops it silently and commit() would put a cut file in place.
    errno = 0;
    if (!f.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return Duvod_Chyby(errno, f.error(), true);
    if (info.exists())
        Prevezmi_Prava(int(f.handle()), cesta);
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

// A name beside `cesta` that no other process uses: the process id, and a count within the process.
QString Jmeno_Stranou(const QString& cesta) {
    static std::atomic<int> pocitadlo{0};
    return cesta + QStringView(Pripona_Rozepsaneho) + u'.' + QString::number(::getpid()) + u'.' +
           QString::number(++pocitadlo);
}

// Writes `data` to a new file beside `cil` with its mode and group, on the disk before it returns;
// the reason of a failure (and nothing left behind), or nothing with the name in `nova`.
QString Zapis_Stranou(const QString& cil, const QByteArray& data, QString& nova) {
    QFile f;
    errno = 0;
    for (int pokus = 0; pokus < 100; ++pokus) {
        nova = Jmeno_Stranou(cil);
        f.setFileName(nova);
        errno = 0;
        if (f.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
            break;
        if (errno != EEXIST)
            return Duvod_Chyby(errno, f.error(), true);
    }
    if (!f.isOpen())
        return Duvod_Chyby(errno, f.error(), true);
    Prevezmi_Prava(int(f.handle()), cil);
    errno = 0;
    if (f.write(data) != data.size() || ::fsync(int(f.handle())) != 0) {
        const int cislo = errno;
        const QString duvod = Duvod_Chyby(cislo, f.error(), true);
        f.remove();
        return duvod;
    }
    f.close();
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
    if (const QString duvod = Zapis(Skutecna_Cesta(cesta), data); !duvod.isEmpty())
        return Nelze_Zapsat(cesta, duvod);
    return Vysledek::Uspech();
}

Vysledek Uloz_Se_Zalohou(const QString& cesta, const QByteArray& data, const QString& zaloha) {
    const QString cil = Skutecna_Cesta(cesta);
    const QFileInfo info(cil);
    if (!info.exists())
        return Uloz_Soubor(cil, data);
    if (!info.isFile())
        return Nelze_Zapsat(cesta, Duvod_Ne_Souboru(info));
    if (Je_Jen_Pro_Cteni(cil))
        return Nelze_Zapsat(cesta, Jen_Pro_Cteni);
    const QString zal = Skutecna_Cesta(zaloha);
    if (const QFileInfo stara(zal); stara.exists() && !stara.isFile())
        return Nelze_Zapsat(zaloha, Duvod_Ne_Souboru(stara));

    // The write is what fails on a full disk, so it comes first; what follows are a link and
    // renames, which need no room.
    QString nova;
    if (const QString duvod = Zapis_Stranou(cil, data, nova); !duvod.isEmpty())
        return Nelze_Zapsat(cesta, duvod);
    Krok_Zapisu(1);
    const auto nezdar = [&](const QString& z, const QString& na, const QString& duvod) {
        QFile::remove(nova);
        return Vysledek::Chyba(u"Soubor \""_qs + z + u"\" nelze přejmenovat na \""_qs + na + u"\": "_qs + duvod +
                               u'.');
    };
    // The backup shares the live file's content by a hard link; a copy where the backup lies on
    // another disk. The live file itself is never moved away.
    const QString nova_zal = Jmeno_Stranou(zal);
    errno = 0;
    if (::link(Jmeno_Pro_System(cil).constData(), Jmeno_Pro_System(nova_zal).constData()) != 0) {
        const int cislo = errno;
        if (!QFile::copy(cil, nova_zal)) {
            QFile::remove(nova_zal);
            return nezdar(cil, nova_zal, Duvod_Chyby(cislo, QFileDevice::CopyError, true));
        }
    }
    Krok_Zapisu(2);
    if (const QString duvod = Prejmenuj(nova_zal, zal); !duvod.isEmpty()) {
        QFile::remove(nova_zal);
        return nezdar(nova_zal, zal, duvod);
    }
    // Where the backup already was this very file (a save cut off after its backup), rename()
    // does nothing and leaves the second name.
    ::unlink(Jmeno_Pro_System(nova_zal).constData());
    Krok_Zapisu(3);
    if (const QString duvod = Prejmenuj(nova, cil); !duvod.isEmpty())
        return nezdar(nova, cil, duvod);
    Krok_Zapisu(4);
    return Vysledek::Uspech();
}

void Sleduj_Kroky_Zapisu(void (*sledovani)(int krok)) {
    Sledovani_Kroku = sledovani;
}

QString Skutecna_Cesta(const QString& cesta) {
    QFileInfo info(cesta);
    // A loop of links ends here as a name that cannot be opened, which the caller reports.
    for (int hloubka = 0; hloubka < 40 && info.isSymLink(); ++hloubka)
        info.setFile(info.symLinkTarget());
    return info.filePath();
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
    return QFile::exists(Spoj_Cestu(adresar, jmeno));
}

QByteArray Radky_Bez_Poznamek(const QByteArray& soubor, bool velka) {
    QByteArray text;
    qsizetype zacatek = 0;
    const qsizetype delka = soubor.size();
    while (zacatek < delka) {
        qsizetype konec = zacatek;
        while (konec < delka && soubor[konec] != '\r' && soubor[konec] != '\n')
            ++konec;
        const QByteArray kus = soubor.mid(zacatek, konec - zacatek);
        const QByteArray radek = velka ? kus.toUpper() : kus.trimmed();
        if (!radek.contains("REM"))
            text += radek + "\r\n";
        zacatek = konec + (konec + 1 < delka && soubor[konec] == '\r' && soubor[konec + 1] == '\n' ? 2 : 1);
    }
    return text;
}

QString Jmeno_Bez_Adresare(const QString& cesta) {
    const qsizetype i = std::max(cesta.lastIndexOf(u'/'), cesta.lastIndexOf(u'\\'));
    return cesta.mid(i + 1);
}
