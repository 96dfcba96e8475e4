// Normalised products (x * y / max of the type, floored) and products with
// 64-bit float constants.
#ifndef QVN_KERNELS_ARITH_SCALE_INL_H
#define QVN_KERNELS_ARITH_SCALE_INL_H

#include <cmath>
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

// x * c in double, narrowed to single precision and limited to the range of
// T: a 32f product beyond the largest float gives that float, not infinity
// (NaN stays NaN). Integer results are then moved by a half away from zero for
// mode 2 and converted by the rounding control, which the caller sets for the
// mode (toward zero for 0 and 2, nearest for 1) as the division with a
// rounding mode does.
template <class T>
struct MulC64fKernel {
    float half;
    V<float> vhalf, lo, hi, sign;
    explicit MulC64fKernel(int mode)
        : half(mode == qvnRndFinancial ? 0.5f : 0.0f), vhalf(isa::set1(half)), lo(isa::set1(float(std::numeric_limits<T>::lowest()))),
          hi(isa::set1(float(std::numeric_limits<T>::max()))), sign(isa::set1(-0.0f)) {}
    T scalar(T x, double c) const {
        const float f = static_cast<float>(double(x) * c);
        if constexpr (std::is_same_v<T, float>) {  // comparisons with NaN are false: it passes
            const float top = std::numeric_limits<float>::max();
            return f > top ? top : f < -top ? -top : f;
        } else {  // the operand order of the vector max and min: NaN gives the bound
            float q = f > float(std::numeric_limits<T>::lowest()) ? f : float(std::numeric_limits<T>::lowest());
            q = q < float(std::numeric_limits<T>::max()) ? q : float(std::numeric_limits<T>::max());
            return static_cast<T>(isa::toIntScalar(q + std::copysign(half, q)));
        }
    }
    V<int32_t> rounded(V<double> a, V<double> b) const {
        const V<float> q = isa::min(isa::max(isa::toFloat(a, b), lo), hi);
        return isa::toInt(isa::add(q, isa::bitOr(vhalf, isa::bitAnd(q, sign))));
    }
    // c holds the constants of the vector's lanes, as double vectors in order.
    V<T> vector(V<T> x, const V<double>* c) const {
        if constexpr (std::is_same_v<T, float>) {
            // max and min return their second operand when one is NaN: NaN passes
            const V<float> f = isa::toFloat(isa::mul(isa::toDoubleLo(x), c[0]), isa::mul(isa::toDoubleHi(x), c[1]));
            return isa::min(hi, isa::max(lo, f));
        } else {
            V<int32_t> a[kParts<int32_t, T>];
            widen(x, a);
            for (int j = 0; j < kParts<int32_t, T>; ++j)
                a[j] = rounded(isa::mul(isa::toDoubleLo(a[j]), c[2 * j]), isa::mul(isa::toDoubleHi(a[j]), c[2 * j + 1]));
            return narrow<T>(a);
        }
    }
};

// d = x * c[element % K] over n elements: scalar head until d is aligned,
// vector body, scalar tail. A 3-constant pattern repeats every three vectors.
template <class T, int K>
inline void mulC64fRow(const T* x, const double* c, T* d, int64_t n, const MulC64fKernel<T>& kern) {
    constexpr int64_t kLanes = isa::kLanes<T>;
    constexpr int64_t kPerDouble = isa::kLanes<double>;
    constexpr int kPeriod = K == 3 ? 3 : 1, kParts = int(kLanes / kPerDouble);
    int64_t head = headToAlign(d, n);
    if (head < 0) head = n;
    int64_t i = 0;
    for (; i < head; ++i) d[i] = kern.scalar(x[i], c[i % K]);
    if (i + kLanes <= n) {
        V<double> cv[kPeriod][kParts];  // the constants of each vector's lanes
        for (int p = 0; p < kPeriod; ++p)
            for (int h = 0; h < kParts; ++h) {
                alignas(isa::kVectorBytes) double lanes[kPerDouble];
                for (int64_t e = 0; e < kPerDouble; ++e) lanes[e] = c[(i + p * kLanes + h * kPerDouble + e) % K];
                cv[p][h] = isa::loadA(lanes);
            }
        for (int p = 0; i + kLanes <= n; i += kLanes, p = p + 1 == kPeriod ? 0 : p + 1)
            isa::storeA(d + i, kern.vector(isa::loadU(x + i), cv[p]));
    }
    for (; i < n; ++i) d[i] = kern.scalar(x[i], c[i % K]);
}

}  // namespace arith
}  // namespace kernels
QVN_TARGET_END

#endif
