// Runs a fuzz target over every file of its corpus folder, so that ctest replays the odd files
// without libFuzzer. A crash or a sanitizer report fails the test.
#include <QDir>
#include <QFile>
#include <QTextStream>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "použití: %s SLOZKA_KORPUSU\n", argv[0]);
        return 2;
    }
    const QDir slozka(QString::fromLocal8Bit(argv[1]));
    const auto soubory = slozka.entryInfoList(QDir::Files, QDir::Name);
    if (soubory.isEmpty()) {
        std::fprintf(stderr, "prázdný korpus: %s\n", argv[1]);
        return 1;
    }
    for (const auto& info : soubory) {
        QFile f(info.absoluteFilePath());
        if (!f.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray bajty = f.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bajty.constData()), size_t(bajty.size()));
    }
    std::printf("%lld souborů korpusu prošlo\n", static_cast<long long>(soubory.size()));
    return 0;
}
