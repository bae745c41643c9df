#include "core/Prubeh.h"

Sledovani_Prubehu::Sledovani_Prubehu(const Prubeh& prubeh, int64_t celkem)
    : Zpetne_Volani(prubeh), Celkem(celkem > 0 ? celkem : 1) {}

bool Sledovani_Prubehu::Krok(int64_t hotovo) {
    const int p = int((100 * hotovo) / Celkem);
    if (p <= Posledni || !Zpetne_Volani)
        return true;
    Posledni = p;
    return Zpetne_Volani(p);
}
