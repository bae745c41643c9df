#pragma once
// A fixed array indexed from 1, as the records and their loops count: Tyden[1..53], Cisla[1..6].
// It holds exactly N elements, so a record in memory has the same order of fields as on disk.
//
// The index is checked by assert. The fuzz and sanitizer builds define TOMBI_KONTROLA_MEZI and
// check always, also under NDEBUG: an index of 54 that stays inside its record is no overflow that
// AddressSanitizer would see.

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

template <class T, std::size_t N> struct Pole_Od_1 {
    std::array<T, N> Prvky{};

    T& operator[](int i) {
        Kontrola(i);
        return Prvky[std::size_t(i - 1)];
    }
    const T& operator[](int i) const {
        Kontrola(i);
        return Prvky[std::size_t(i - 1)];
    }
    static constexpr int Pocet() { return int(N); }
    auto begin() { return Prvky.begin(); }
    auto end() { return Prvky.end(); }
    auto begin() const { return Prvky.begin(); }
    auto end() const { return Prvky.end(); }
    friend bool operator==(const Pole_Od_1&, const Pole_Od_1&) = default;

private:
    static void Kontrola([[maybe_unused]] int i) {
#ifdef TOMBI_KONTROLA_MEZI
        if (i < 1 || i > int(N)) {
            std::fprintf(stderr, "Pole_Od_1: index %d mimo meze 1..%d\n", i, int(N));
            std::abort();
        }
#else
        assert(i >= 1 && i <= int(N));
#endif
    }
};
