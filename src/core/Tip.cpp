#include "core/Tip.h"

#include <algorithm>

uint64_t Maska_Tipu(const Tip& tip, int od) {
    uint64_t m = 0;
    for (int i = std::max(od, 1); i <= 6; ++i)
        m |= uint64_t(1) << (tip[i] & 63);
    return m & ~uint64_t(1);
}

uint64_t Maska_Cisteho_Tipu(const Tip& tip) {
    uint64_t maska = 0;
    for (int k = 1; k <= 6; ++k) {
        const int t = tip[k];
        if (t < 1 || t > 49 || (maska >> t & 1U) != 0)
            return 0;
        maska |= uint64_t(1) << t;
    }
    return maska;
}

uint64_t Maska_Tahu(const Tah& tah) {
    uint64_t maska = 0;
    for (int p = 1; p <= 6; ++p)
        if (tah[p] >= 1 && tah[p] <= 49)
            maska |= uint64_t(1) << tah[p];
    return maska;
}
