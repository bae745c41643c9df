#include "core/modTombi_Zaklad.h"

#include <algorithm>
#include <utility>

namespace modTombi {

bool Je_Sude(int x) {
    return x % 2 == 0;
}

void Vymen(uint8_t& a, uint8_t& b) {
    std::swap(a, b);
}

void Setrid_Tip(Tip& tip, int od, int do_) {
    od = std::max(od, 1);
    do_ = std::min(do_, Tip::Pocet());
    for (int i = od; i < do_; ++i)
        for (int j = i + 1; j <= do_; ++j)
            if (tip[i] > tip[j])
                Vymen(tip[i], tip[j]);
}

QString Tvar_Poctu(int64_t pocet, const QString& jeden, const QString& dva_az_ctyri, const QString& pet) {
    if (pocet == 1)
        return jeden;
    return pocet >= 2 && pocet <= 4 ? dva_az_ctyri : pet;
}

QString Text_Poctu_Tipu(int pocet) {
    if (pocet <= 0)
        return {};
    return QString::number(pocet) + u' ' + Tvar_Poctu(pocet, u"tip"_qs, u"tipy"_qs, u"tipů"_qs);
}

} // namespace modTombi
