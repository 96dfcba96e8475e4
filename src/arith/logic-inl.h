// qvniAnd, qvniOr, qvniXor with their constant forms, qvniNot,
// qvniComplement, qvniLShiftC and qvniRShiftC. Every one is an elementwise
// kernel of the arithmetic row template (kernels::arith::row), and every one
// checks pointers (the constant or count array included), then steps below
// 1, then the ROI size.
#ifndef QVN_ARITH_LOGIC_INL_H
#define QVN_ARITH_LOGIC_INL_H

#include <cstdint>
#include <limits>
#include <type_traits>

#include "arith/binary-inl.h"
#include "core/stream-inl.h"
#include "move/copy-inl.h"

QVN_TARGET_BEGIN
namespace arith {

// Bit operations, the same on the element and on a vector of any lane type.
struct AndOp {
    template <class T>
    static T f(T a, T b) { return T(a & b); }
    template <class V>
    static V v(V a, V b) { return isa::bitAnd(a, b); }
};
struct OrOp {
    template <class T>
    static T f(T a, T b) { return T(a | b); }
    template <class V>
    static V v(V a, V b) { return isa::bitOr(a, b); }
};
struct XorOp {
    template <class T>
    static T f(T a, T b) { return T(a ^ b); }
    template <class V>
    static V v(V a, V b) { return isa::bitXor(a, b); }
};

template <class Op>
struct BitKernel : kernels::arith::Unwatched {
    template <class T>
    T scalar(T x, T y) const { return Op::f(x, y); }
    template <class V>
    V vector(V x, V y) const { return Op::v(x, y); }
};

// Sign and magnitude to two's complement: x with a clear sign bit stays;
// otherwise the sign bit OR the negated element, which is -magnitude, and
// the type's minimum for the negative zero.
struct ComplementKernel : kernels::arith::Unwatched {
    template <class T>
    T scalar(T x, T) const {
        using U = std::make_unsigned_t<T>;
        constexpr U kSign = U(U(1) << (8 * sizeof(T) - 1));
        const U u = U(x);
        return (u & kSign) ? T(U(kSign | U(U(0) - u))) : x;
    }
    template <class T>
    isa::Vec<T> vector(isa::Vec<T> x, isa::Vec<T>) const {
        const isa::Vec<T> zero = isa::zero<T>();
        const isa::Vec<T> sign = isa::set1(std::numeric_limits<T>::min());
        return isa::select(isa::cmpGt(zero, x), isa::bitOr(sign, isa::sub(zero, x)), x);
    }
};

// Results of images that would only evict the cache are written with
// non-temporal stores, by the rule of the copies and fills: from the fills'
// count of destination bytes on, when the bytes read and written reach the
// largest cache. AC4 rows, which read the alpha they keep, never stream.
// run(store) runs the rows with that store policy.
template <class T, class L, class Run>
inline QvnStatus withBitStores(RoiL roi, int sources, Run run) {
    if constexpr (!L::kAlpha) {
        const std::uint64_t bytes = std::uint64_t(roi.width) * std::uint64_t(roi.height) * L::kElems * sizeof(T);
        if (useStreamingStores(bytes, kStreamThreshold, bytes * std::uint64_t(sources + 1))) {
            const QvnStatus s = run(kernels::StoreStreaming{});
            isa::storeFence();
            return s;
        }
    }
    return run(kernels::StoreRegular{});
}

template <class Op, class T, class L>
inline QvnStatus logic(const T* src1, std::int64_t src1Step, const T* src2, std::int64_t src2Step, T* dst,
                       std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src1, src2, dst));
    QVN_TRY(check::steps(src1Step, src2Step, dstStep));
    QVN_TRY(check::roi(roi));
    return withBitStores<T, L>(roi, 2, [&](auto store) {
        return runRows<T, L, false, decltype(store)>(src1, src1Step, src2, src2Step, dst, dstStep, roi, BitKernel<Op>{});
    });
}

// Per-channel constants that are all equal: C3 and C4 rows become one run of
// single-channel elements with the one constant.
template <class L, class T>
inline bool sameForEveryChannel(const T* value) {
    for (int k = 1; k < L::kChannels; ++k)
        if (value[k] != value[0]) return false;
    return true;
}

template <class Op, class T, class L>
inline QvnStatus logicConst(const T* src, std::int64_t srcStep, const T* value, T* dst, std::int64_t dstStep,
                            RoiL roi) {
    QVN_TRY(check::ptrs(src, value, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    return withBitStores<T, L>(roi, 1, [&](auto store) {
        using Store = decltype(store);
        if (!L::kAlpha && sameForEveryChannel<L>(value))
            return runRows<T, C1, true, Store>(src, srcStep, value, 0, dst, dstStep,
                                               RoiL{roi.width * L::kElems, roi.height}, BitKernel<Op>{});
        return runRows<T, L, true, Store>(src, srcStep, value, 0, dst, dstStep, roi, BitKernel<Op>{});
    });
}

template <class T, class L>
inline QvnStatus logicNot(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    return withBitStores<T, L>(roi, 1, [&](auto store) {
        return runUnary<T, L, decltype(store)>(src, srcStep, dst, dstStep, roi, BitKernel<XorOp>{}, T(~T(0)));
    });
}

template <class T, class L>
inline QvnStatus complement(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    return withBitStores<T, L>(roi, 1, [&](auto store) {
        return runUnary<T, L, decltype(store)>(src, srcStep, dst, dstStep, roi, ComplementKernel{});
    });
}

// ---- shifts by a constant count ----------------------------------------------------------
// x shifted left, or right (logically for unsigned T, arithmetically for
// signed T), by a count n that is at most the bit width: a count equal to
// the width gives 0 or the sign fill, as the shift instructions do. 8u has no
// byte shift: its lanes shift as 16-bit lanes and the bits that crossed
// between bytes are masked off.
template <bool Left, class T>
struct Shift {
    static constexpr std::uint32_t kBits = 8 * sizeof(T);
    isa::ShiftCount count;
    isa::Vec<T> keep;  // 8u: the bits of each byte that the shift kept
    std::uint32_t n;
    Shift() : Shift(0) {}
    explicit Shift(std::uint32_t clamped)
        : count(isa::shiftCount(int(clamped))),
          keep(isa::set1(T(clamped >= kBits ? 0 : Left ? 0xFFu << clamped : 0xFFu >> clamped))), n(clamped) {}
    T scalar(T x) const {
        using U = std::make_unsigned_t<T>;
        if constexpr (Left) return n >= kBits ? T(0) : T(U(U(x) << n));
        else if constexpr (std::is_signed_v<T>) return T(x >> (n >= kBits ? kBits - 1 : n));
        else return n >= kBits ? T(0) : T(x >> n);
    }
    isa::Vec<T> vector(isa::Vec<T> x) const {
        if constexpr (sizeof(T) == 1) {
            const isa::Vec<std::uint16_t> w = isa::cast<std::uint16_t>(x);
            return isa::bitAnd(isa::cast<T>(Left ? isa::shiftLeft(w, count) : isa::shiftRight(w, count)), keep);
        } else {
            return Left ? isa::shiftLeft(x, count) : isa::shiftRight(x, count);
        }
    }
};

// Counts read as unsigned: every count from the width up acts as the width.
template <class T>
inline std::uint32_t clampCount(Qvn32u n) {
    return n < 8 * sizeof(T) ? n : std::uint32_t(8 * sizeof(T));
}

// One count for every element (the second operand is unused).
template <bool Left, class T>
struct ShiftKernel : kernels::arith::Unwatched {
    Shift<Left, T> s;
    T scalar(T x, T) const { return s.scalar(x); }
    isa::Vec<T> vector(isa::Vec<T> x, isa::Vec<T>) const { return s.vector(x); }
};

// Its own count for each of K channels: the second operand holds the
// element's channel index, and each lane takes the shift of its channel.
template <bool Left, class T, int K>
struct ShiftByChannel : kernels::arith::Unwatched {
    Shift<Left, T> s[K];
    explicit ShiftByChannel(const Qvn32u* n) {
        for (int k = 0; k < K; ++k) s[k] = Shift<Left, T>(clampCount<T>(n[k]));
    }
    T scalar(T x, T channel) const { return s[int(channel)].scalar(x); }
    isa::Vec<T> vector(isa::Vec<T> x, isa::Vec<T> channel) const {
        isa::Vec<T> r = s[0].vector(x);
        for (int k = 1; k < K; ++k) r = isa::select(isa::cmpEq(channel, isa::set1(T(k))), s[k].vector(x), r);
        return r;
    }
};

// LShiftC (Left) and RShiftC: x << n or x >> n with n counts[channel]. Equal
// counts make one count for every element: a count of 0 copies (and an
// in-place call has nothing to do), and one that clears every bit fills with
// 0; arithmetic shifts by the width or more fill with the sign.
template <bool Left, class T, class L>
inline QvnStatus shiftConst(const T* src, std::int64_t srcStep, const Qvn32u* counts, T* dst, std::int64_t dstStep,
                            RoiL roi) {
    QVN_TRY(check::ptrs(src, counts, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    constexpr bool kClears = Left || std::is_unsigned_v<T>;  // counts from the width up give 0
    constexpr std::uint32_t kBits = 8 * sizeof(T);
    const T zero[4] = {};
    bool allClear = kClears;
    for (int k = 0; k < L::kChannels; ++k) allClear &= counts[k] >= kBits;
    if (allClear) return move::fill<T, L>(zero, dst, dstStep, roi);
    if (sameForEveryChannel<L>(counts) && counts[0] == 0) {
        if (src == dst && srcStep == dstStep) return qvnOk;
        return move::copyPixels<T, L>(src, srcStep, dst, dstStep, roi);
    }
    const T channel[4] = {0, 1, 2, 3};
    return withBitStores<T, L>(roi, 1, [&](auto store) {
        using Store = decltype(store);
        if (sameForEveryChannel<L>(counts))
            return runUnary<T, L, Store>(src, srcStep, dst, dstStep, roi,
                                         ShiftKernel<Left, T>{{}, Shift<Left, T>(clampCount<T>(counts[0]))});
        return runRows<T, L, true, Store>(src, srcStep, channel, 0, dst, dstStep, roi,
                                          ShiftByChannel<Left, T, L::kChannels>(counts));
    });
}

template <class T, class L>
inline QvnStatus lshiftConst(const T* src, std::int64_t srcStep, const Qvn32u* counts, T* dst, std::int64_t dstStep,
                             RoiL roi) {
    return shiftConst<true, T, L>(src, srcStep, counts, dst, dstStep, roi);
}
template <class T, class L>
inline QvnStatus rshiftConst(const T* src, std::int64_t srcStep, const Qvn32u* counts, T* dst, std::int64_t dstStep,
                             RoiL roi) {
    return shiftConst<false, T, L>(src, srcStep, counts, dst, dstStep, roi);
}

}  // namespace arith
QVN_TARGET_END

#endif
