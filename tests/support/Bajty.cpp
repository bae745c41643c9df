#include "Bajty.h"

#include <QFile>
#include <QTest>
#include <csignal>
#include <sys/resource.h>

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
    // Past the limit the kernel sends SIGXFSZ, which would end the test; ignored, the write just fails.
    const auto signal_puvodni = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &mala);
    const Vysledek v = zapis();
    setrlimit(RLIMIT_FSIZE, &puvodni);
    std::signal(SIGXFSZ, signal_puvodni);
    return v;
}
