// Normalised products (x * y / max of the type, floored) and products with
// 64-bit float constants.
#ifndef QVN_KERNELS_ARITH_SCALE_INL_H
#define QVN_KERNELS_ARITH_SCALE_INL_H

#include <cstdint>
#include <limits>
#include <type_traits>

#include "kernels/arith-inl.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace arith {

// floor(x * y / max) as (p + (p >> s) + 1) >> s with p = x * y and s the bit
// width of T, exact for every pair of values.
template <class T>
struct MulScaleKernel : Unwatched {
    static constexpr bool kVector = true;
    static constexpr int kBits = 8 * int(sizeof(T));
    T scalar(T x, T y) const {
        const std::uint64_t p = std::uint64_t(x) * y;
        return static_cast<T>((p + (p >> kBits) + 1) >> kBits);
    }
    V<T> vector(V<T> x, V<T> y) const {
        if constexpr (sizeof(T) == 1) {  // p + (p >> 8) + 1 <= 65280 fits 16 bits
            const auto one = [](V<uint16_t> p) {
                return isa::shiftRight<8>(isa::add(isa::add(p, isa::shiftRight<8>(p)), isa::set1<uint16_t>(1)));
            };
            const V<uint16_t> lo = one(isa::mulLo(isa::widenLo<uint16_t>(x), isa::widenLo<uint16_t>(y)));
            const V<uint16_t> hi = one(isa::mulLo(isa::widenHi<uint16_t>(x), isa::widenHi<uint16_t>(y)));
            return isa::packSat<uint8_t>(isa::cast<int16_t>(lo), isa::cast<int16_t>(hi));
        } else {
            // With p = hi * 2^16 + lo the result is hi plus the carry of
            // lo + hi + 1 out of 16 bits, which happens when hi >= ~lo.
            const V<uint16_t> lo = isa::mulLo(x, y), hi = isa::mulHi(x, y);
            const V<uint16_t> carry =
                isa::cmpEq(isa::subSat(isa::bitXor(lo, isa::allOnes<uint16_t>()), hi), isa::zero<uint16_t>());
            return isa::sub(hi, carry);
        }
    }
};

// x * c in double, narrowed to single precision; integer results are limited
// to the range of T and rounded by the mode: 0 toward zero, 1 to nearest with
// ties to even, 2 to nearest with ties away from zero.
template <class T>
inline T mulC64fElement(T x, double c, int mode) {
    const float f = static_cast<float>(double(x) * c);
    if constexpr (std::is_same_v<T, float>) {
        (void)mode;
        return f;
    } else {
        constexpr float lo = float(std::numeric_limits<T>::min()), hi = float(std::numeric_limits<T>::max());
        const float q = f > lo ? (f < hi ? f : hi) : (f < lo ? lo : f);  // NaN gives its own value below
        if (!(q == q)) return T(0);
        const int32_t t = static_cast<int32_t>(q);  // toward zero; |q| < 2^16 keeps q - t exact
        const float r = q - float(t);
        if (mode == qvnRndZero) return static_cast<T>(t);
        const float a = r < 0 ? -r : r;
        const bool up = a > 0.5f || (a == 0.5f && (mode == qvnRndFinancial || (t & 1) != 0));
        return static_cast<T>(up ? (r < 0 ? t - 1 : t + 1) : t);
    }
}

// d = x * c[channel] over n pixels of E elements.
template <class T, int E>
inline void mulC64fRow(const T* x, const double* c, T* d, int64_t n, int mode) {
    for (int64_t p = 0; p < n; ++p)
        for (int k = 0; k < E; ++k) d[p * E + k] = mulC64fElement(x[p * E + k], c[k], mode);
}

}  // namespace arith
}  // namespace kernels
QVN_TARGET_END

#endif
