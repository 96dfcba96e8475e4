// Comparisons into one-channel 8u masks: the three comparisons (less,
// less-or-equal, equal; the greater forms swap the operands), the equality
// within an epsilon, and the mask row.
//
// Each comparison gives all-ones lanes of its element type where it holds
// and is false where a float operand is NaN. The mask row narrows them to
// bytes and reduces each pixel's channels to one byte: 255 only where every
// colour channel holds.
#ifndef QVN_KERNELS_COMPARE_INL_H
#define QVN_KERNELS_COMPARE_INL_H

#include <cmath>
#include <cstdint>
#include <type_traits>

#include "kernels/arith-inl.h"
#include "kernels/constants-inl.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace compare {

template <class T>
using V = isa::Vec<T>;

template <class T>
inline V<T> bitNot(V<T> a) {
    return isa::bitXor(a, isa::allOnes<T>());
}

// a < b. Unsigned lanes: b - a, saturated at 0, is not 0.
struct Less {
    template <class T>
    bool scalar(T a, T b) const { return a < b; }
    template <class T>
    V<T> vector(V<T> a, V<T> b) const {
        if constexpr (std::is_unsigned_v<T>) return bitNot(isa::cmpEq(isa::subSat(b, a), isa::zero<T>()));
        else return isa::cmpGt(b, a);
    }
};

// a <= b. Unsigned lanes: a - b, saturated at 0, is 0.
struct LessEq {
    template <class T>
    bool scalar(T a, T b) const { return a <= b; }
    template <class T>
    V<T> vector(V<T> a, V<T> b) const {
        if constexpr (std::is_same_v<T, float>) return isa::cmpLe(a, b);
        else if constexpr (std::is_unsigned_v<T>) return isa::cmpEq(isa::subSat(a, b), isa::zero<T>());
        else return bitNot(isa::cmpGt(a, b));
    }
};

struct Equal {
    template <class T>
    bool scalar(T a, T b) const { return a == b; }
    template <class T>
    V<T> vector(V<T> a, V<T> b) const { return isa::cmpEq(a, b); }
};

// |a - b| <= eps: the difference in single precision (under the caller's
// rounding), its sign bit cleared.
struct EqualEps {
    float eps;
    V<float> veps = isa::set1(eps), magnitude = isa::cast<float>(isa::set1<std::int32_t>(0x7FFFFFFF));
    bool scalar(float a, float b) const { return std::fabs(a - b) <= eps; }
    V<float> vector(V<float> a, V<float> b) const { return isa::cmpLe(isa::bitAnd(isa::sub(a, b), magnitude), veps); }
};

// The vector of an operand (an image row or one constant per channel) for
// element i, the k-th vector of a block whose vector count is a multiple of
// the constants' period.
template <class T, class Y>
inline V<T> operandAt(const Y& y, std::int64_t i, int k) {
    if constexpr (std::is_same_v<Y, arith::RowOperand<T>>) return y.vec(i);
    else return y.v[k % Y::kPeriod].c[0];
}

template <class T, class Y>
inline T scalarAt(const Y& y, std::int64_t i) {
    if constexpr (std::is_same_v<Y, arith::RowOperand<T>>) return y.at(i);
    else return y.at(i).c[0];
}

// All-ones masks of T lanes narrowed to bytes, in order: sizeof(T) vectors
// into one.
template <class T>
inline V<std::uint8_t> toBytes(const V<T>* m) {
    if constexpr (sizeof(T) == 1) {
        return isa::cast<std::uint8_t>(m[0]);
    } else if constexpr (sizeof(T) == 2) {
        return isa::cast<std::uint8_t>(
            isa::packSat<std::int8_t>(isa::cast<std::int16_t>(m[0]), isa::cast<std::int16_t>(m[1])));
    } else {
        const V<std::int16_t> lo = isa::packSat<std::int16_t>(isa::cast<std::int32_t>(m[0]), isa::cast<std::int32_t>(m[1]));
        const V<std::int16_t> hi = isa::packSat<std::int16_t>(isa::cast<std::int32_t>(m[2]), isa::cast<std::int32_t>(m[3]));
        return isa::cast<std::uint8_t>(isa::packSat<std::int8_t>(lo, hi));
    }
}

// E vectors of per-element byte masks (interleaved pixels) to one byte per
// pixel: the AND of its channels. alpha has all-ones bytes on the AC4 alpha
// elements (zero otherwise), which so never fail a pixel.
template <int E>
inline V<std::uint8_t> perPixel(const V<std::uint8_t>* b, V<std::uint8_t> alpha) {
    if constexpr (E == 1) {
        return b[0];
    } else if constexpr (E == 3) {
        V<std::uint8_t> p[3];
        isa::deinterleave3(b, p);
        return isa::bitAnd(isa::bitAnd(p[0], p[1]), p[2]);
    } else {
        static_assert(E == 4, "one, three or four elements a pixel");
        V<std::int32_t> q[4];
        for (int k = 0; k < 4; ++k)
            q[k] = isa::cmpEq(isa::cast<std::int32_t>(isa::bitOr(b[k], alpha)), isa::allOnes<std::int32_t>());
        return isa::cast<std::uint8_t>(isa::packSat<std::int8_t>(isa::packSat<std::int16_t>(q[0], q[1]),
                                                                 isa::packSat<std::int16_t>(q[2], q[3])));
    }
}

// d[x] = 255 where op(a, b) holds in every colour channel of pixel x, else
// 0, for n pixels of E elements (Alpha: AC4, whose fourth is not compared).
// a and b are arith::RowOperand or ChannelConstants' operand (one constant
// per channel). Scalar head until d is vector-aligned; the body makes one
// vector of d from E x sizeof(T) vectors of each operand.
template <class T, int E, bool Alpha, class Op, class A, class B>
inline void maskRow(const Op& op, A a, B b, Qvn8u* d, std::int64_t n) {
    constexpr int kColours = Alpha ? 3 : E;
    const auto pixel = [&](std::int64_t x) {
        bool all = true;
        for (int c = 0; c < kColours; ++c) all = all && op.scalar(scalarAt<T>(a, x * E + c), scalarAt<T>(b, x * E + c));
        d[x] = all ? 255 : 0;
    };
    constexpr std::int64_t kPixels = isa::kLanes<std::uint8_t>;  // a block: one vector of d
    constexpr int kVectors = E * int(sizeof(T));                 // of each operand in a block
    const std::int64_t head = headToAlign(d, n);
    std::int64_t x = 0;
    for (; x < head; ++x) pixel(x);
    if (x + kPixels <= n) {
        a.start(x * E);
        b.start(x * E);
        const V<std::uint8_t> alpha = Alpha ? arith::alphaLanes<std::uint8_t>(0) : isa::zero<std::uint8_t>();
        for (; x + kPixels <= n; x += kPixels) {
            V<T> m[kVectors];
            for (int k = 0; k < kVectors; ++k) {
                const std::int64_t i = x * E + k * std::int64_t(isa::kLanes<T>);
                m[k] = op.vector(operandAt<T>(a, i, k), operandAt<T>(b, i, k));
            }
            V<std::uint8_t> bytes[E];
            for (int j = 0; j < E; ++j) bytes[j] = toBytes<T>(m + j * int(sizeof(T)));
            isa::storeA(d + x, perPixel<E>(bytes, alpha));
        }
    }
    for (; x < n; ++x) pixel(x);
}

}  // namespace compare
}  // namespace kernels
QVN_TARGET_END

#endif
