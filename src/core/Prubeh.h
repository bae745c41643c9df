#pragma once
// Progress of a long loop. The engine calls it with the new percentage (0..100) only when the
// percentage has grown, so at most about a hundred times a run; the window's form moves the bar,
// lets events run and answers false when the run is to stop (Zrusit_Beh). Engines that cannot be
// stopped halfway ignore the answer.

#include <cstdint>
#include <functional>

using Prubeh = std::function<bool(int procenta)>;

// Keeps the last percentage of a loop over `celkem` steps and tells the callback only when it grows.
class Sledovani_Prubehu final {
public:
    Sledovani_Prubehu(const Prubeh& prubeh, int64_t celkem);
    // Step `hotovo` of `celkem` is done; false if the callback asked to stop.
    bool Krok(int64_t hotovo);

private:
    const Prubeh& Zpetne_Volani;
    int64_t Celkem;
    int Posledni = -1;
};
