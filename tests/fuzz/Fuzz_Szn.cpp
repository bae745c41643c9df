// Any bytes as a .szn list: either refused whole, or read into records that write back the very
// same bytes; the shares of what was read are worked out without a fault.
#include "bettors/Seznam_Sazejicich.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bajty = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    std::vector<Sazejici> seznam;
    if (!Cti_Seznam(bajty, u"x.szn"_qs, seznam).Ok())
        return seznam.empty() ? 0 : (std::abort(), 0);
    if (Zapis_Seznam(seznam) != bajty)
        std::abort();
    double celkem = 0;
    for (const Sazejici& s : seznam)
        celkem += s.Vklad.Korun();
    Prepocti_Podily(seznam, celkem);
    return 0;
}
