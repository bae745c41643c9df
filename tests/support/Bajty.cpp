#include "Bajty.h"

#include "data/Soubory.h"
#include "net/Import_Tahu.h"

#include <QFile>
#include <QTest>
#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

QByteArray Bajty(int64_t hodnota, int pocet) {
    QByteArray b;
    for (int i = 0; i < pocet; ++i)
        b.append(char(uint8_t(uint64_t(hodnota) >> (8 * i))));
    return b;
}

QByteArray Text_S_Delkou(const QByteArray& text) {
    return Bajty(text.size(), 2) + text;
}

QByteArray Obsah_Souboru(const QString& cesta) {
    QFile f(cesta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<chybí>");
}

void Zapis_Souboru(const QString& cesta, const QByteArray& data) {
    QFile f(cesta);
    QVERIFY2(f.open(QIODevice::WriteOnly) && f.write(data) == data.size(), qPrintable(cesta));
}

Vysledek Pri_Plnem_Disku(int64_t volno, const std::function<Vysledek()>& zapis) {
    rlimit puvodni{};
    getrlimit(RLIMIT_FSIZE, &puvodni);
    rlimit mala = puvodni;
    mala.rlim_cur = rlim_t(volno);
    Priprav_Zapis_Souboru();
    setrlimit(RLIMIT_FSIZE, &mala);
    const Vysledek v = zapis();
    setrlimit(RLIMIT_FSIZE, &puvodni);
    return v;
}

bool Podle_Prav_Souboru(const std::function<void()>& f) {
    if (geteuid() != 0) {
        f();
        return true;
    }
    __user_cap_header_struct hlavicka{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct puvodni[2]{};
    if (syscall(SYS_capget, &hlavicka, puvodni) != 0)
        return false;
    __user_cap_data_struct omezene[2] = {puvodni[0], puvodni[1]};
    omezene[0].effective &= ~(1u << CAP_DAC_OVERRIDE | 1u << CAP_DAC_READ_SEARCH);
    if (syscall(SYS_capset, &hlavicka, omezene) != 0)
        return false;
    f();
    syscall(SYS_capset, &hlavicka, puvodni);
    return true;
}

int64_t Spicka_Pameti_MiB() {
    rusage r{};
    getrusage(RUSAGE_SELF, &r);
    return r.ru_maxrss / 1024; // KiB on Linux
}

Archiv_Tahu Archiv_Z_Historie(Den den) {
    QFile csv(QStringLiteral(TOMBI_HISTORIE));
    Archiv_Tahu a;
    if (!csv.open(QIODevice::ReadOnly))
        return a;
    Nastav_Den_Archivu(a, den);
    const Import_Vysledek import = Importuj_Csv(csv.readAll(), den);
    a.Pole_Tahu = import.Roky;
    a.Pocet_Let = import.Pocet_Let();
    a.Dny = import.Dny;
    Priprav_Seznamy_Tahu(a);
    return a;
}
