#pragma once
// A fixed array indexed from 1, as the records and their loops count: Tyden[1..53], Cisla[1..6].
// It holds exactly N elements, so a record in memory has the same order of fields as on disk.

#include <array>
#include <cassert>
#include <cstddef>

template <class T, std::size_t N> struct Pole_Od_1 {
    std::array<T, N> Prvky{};

    T& operator[](int i) {
        assert(i >= 1 && i <= int(N));
        return Prvky[std::size_t(i - 1)];
    }
    const T& operator[](int i) const {
        assert(i >= 1 && i <= int(N));
        return Prvky[std::size_t(i - 1)];
    }
    static constexpr int Pocet() { return int(N); }
    auto begin() { return Prvky.begin(); }
    auto end() { return Prvky.end(); }
    auto begin() const { return Prvky.begin(); }
    auto end() const { return Prvky.end(); }
    friend bool operator==(const Pole_Od_1&, const Pole_Od_1&) = default;
};
