// Per-channel constants along rows of interleaved pixels, as the row
// templates take their constant operand: N constants for each channel
// (thresholds, replacement values, comparison constants) of K-element pixels.
#ifndef QVN_KERNELS_CONSTANTS_INL_H
#define QVN_KERNELS_CONSTANTS_INL_H

#include <cstdint>

#include "kernels/isa/isa.h"

QVN_TARGET_BEGIN
namespace kernels {

// N constants of one element, as scalars or as vectors.
template <class T, int N>
struct Scalars {
    T c[N];
};
template <class T, int N>
struct Vectors {
    isa::Vec<T> c[N];
};

// The vectors of a row's body depend only on the element phase at which the
// body starts (its index modulo K), so the vectors of all K phases are built
// once per call; a row's operand picks its phase when its body starts, and
// is two pointers. K = 4 for AC4, whose fourth constants are 0 and unused.
template <class T, int K, int N>
class ChannelConstants {
public:
    // Vectors before the pattern repeats (vectors hold a multiple of 4 elements).
    static constexpr int kPeriod = K == 3 ? 3 : 1;

    // p[n] holds constant n of each of the count channels that are read.
    ChannelConstants(const T* const (&p)[N], int count) {
        for (int n = 0; n < N; ++n)
            for (int k = 0; k < K; ++k) c_[n][k] = k < count ? p[n][k] : T(0);
        for (int phase = 0; phase < K; ++phase)
            for (int j = 0; j < kPeriod; ++j)
                for (int n = 0; n < N; ++n) {
                    alignas(isa::kVectorBytes) T lane[isa::kLanes<T>];
                    for (std::size_t e = 0; e < isa::kLanes<T>; ++e)
                        lane[e] = c_[n][(phase + j * isa::kLanes<T> + e) % K];
                    phases_[phase][j].c[n] = isa::loadA(lane);
                }
    }

    // The operand of one row, whose element i is that row's element i.
    struct Operand {
        static constexpr int kPeriod = ChannelConstants::kPeriod;
        const ChannelConstants* all;
        const Vectors<T, N>* v;  // the body's vectors, v[0 .. kPeriod - 1]
        Scalars<T, N> at(std::int64_t i) const {
            Scalars<T, N> s;
            for (int n = 0; n < N; ++n) s.c[n] = all->c_[n][i % K];
            return s;
        }
        void start(std::int64_t i0) { v = all->phases_[i0 % K]; }  // the body starts at element i0
        const Vectors<T, N>& vec(std::int64_t) const { return v[0]; }
    };
    Operand operand() const { return {this, phases_[0]}; }

private:
    T c_[N][K];
    Vectors<T, N> phases_[K][kPeriod];
};

}  // namespace kernels
QVN_TARGET_END

#endif
