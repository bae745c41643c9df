// tombi.cfg: any bytes read as a record, and the record written and read again is the same record
// and the same bytes. The same bytes also go through the start-up read from a real file: an
// outdated record becomes the defaults with the password of Pws and is written out, a current one
// is kept but for the folders of a moved installation and the greyed neighbour filters.
#include "data/Nastaveni.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

namespace {

// One folder for the whole run, in memory where there is such a file system: the start-up read
// writes tombi.cfg on most inputs, and each write ends with a sync to disk.
struct Prostredi {
    QTemporaryDir Adresar{QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm/tombi-fuzz-XXXXXX")
                                                                    : QDir::tempPath() + QStringLiteral("/tombi-fuzz-XXXXXX")};
    QSettings Registr{Adresar.filePath(QStringLiteral("registr.ini")), QSettings::IniFormat};
    Prostredi() { Registr.setValue(QString::fromUtf16(Klic_Pws), Zasifruj_Pws(QStringLiteral("Heslo-1"))); }
};

QString Cista(QString cesta) {
    return QDir::cleanPath(cesta.replace(u'\\', u'/'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray vstup(reinterpret_cast<const char*>(data), qsizetype(size));
    const Nastaveni_Zaznam z = Cti_Nastaveni(vstup);
    const QByteArray zapis = Zapis_Nastaveni(z);
    if (!(Cti_Nastaveni(zapis) == z) || Zapis_Nastaveni(Cti_Nastaveni(zapis)) != zapis)
        std::abort();
    (void)Vypis_Nastaveni(z);

    static Prostredi p;
    const QString cfg = p.Adresar.filePath(QStringLiteral("tombi.cfg"));
    QFile soubor(cfg);
    if (!soubor.open(QIODevice::WriteOnly) || soubor.write(vstup) != vstup.size())
        std::abort();
    soubor.close();
    Nastaveni_Zaznam n;
    if (!Nacti_Nastaveni(n, p.Adresar.path(), QStringLiteral("2.0"), p.Registr).Ok())
        std::abort();
    if (Vb::Val(z.Verze_Cfg) < 1.3) {
        Nastaveni_Zaznam cekano = Vychozi_Nastaveni(p.Adresar.path(), QStringLiteral("2.0"));
        cekano.Heslo = QStringLiteral("Heslo-1");
        cekano.Je_Heslo = Vb::Pravda;
        QFile zapsany(cfg);
        if (!(n == cekano) || !zapsany.open(QIODevice::ReadOnly) || zapsany.readAll() != Zapis_Nastaveni(n))
            std::abort();
        return 0;
    }
    if (Cista(n.Adresare[0]) != Cista(p.Adresar.path()) || n.Adresare[5] != z.Adresare[5] || n.Verze_Cfg != z.Verze_Cfg)
        std::abort();
    for (std::size_t i = 1; i < n.Zrus_Tip_Sous_Cis.size(); ++i)
        if (n.Zrus_Tip_Sous_Cis[i] >= 2)
            std::abort();
    return 0;
}
