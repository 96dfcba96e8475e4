// The 16-byte vector layer: the instruction-set layer of the sse3 target, and
// the 16-byte half that the wider layers (v256.h, v512.h) build on. Kernels use
// these neutral names on Vec<T> (16 bytes of T) through the alias isa (see
// isa.h); the wider layers provide the same functions on their own vectors,
// with the same meaning for the whole vector.
//
// Compiled for the sse3 target, nothing here may emit an instruction newer
// than SSE3: that build is checked by disassembly. Operations SSE3 lacks
// (unsigned 16-bit min/max, 32-bit multiplies, unsigned packs) are composed
// from SSE2. Compiled for a wider target, the same code is VEX-encoded, and a
// few operations take the newer instruction where it exists (a byte shuffle,
// a ternary-logic select); the results are the same bits.
#ifndef QVN_KERNELS_ISA_V128_H
#define QVN_KERNELS_ISA_V128_H

#include <emmintrin.h>
#include <pmmintrin.h>
#include <xmmintrin.h>
#include "kernels/target.h"
#if QVN_TARGET_LEVEL >= 2
#include <immintrin.h>
#endif

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

QVN_TARGET_BEGIN
namespace v128 {

#define QVN_VBYTES 16
#define QVN_VINT __m128i
#define QVN_VFLOAT __m128
#define QVN_VDOUBLE __m128d
#include "kernels/isa/layer-types.inc"
#undef QVN_VBYTES
#undef QVN_VINT
#undef QVN_VFLOAT
#undef QVN_VDOUBLE

// ---- raw 128-bit views ------------------------------------------------------
template <class T>
inline __m128i bits(Vec<T> a) {
    if constexpr (std::is_same_v<T, float>) return _mm_castps_si128(a.v);
    else if constexpr (std::is_same_v<T, double>) return _mm_castpd_si128(a.v);
    else return a.v;
}
template <class T>
inline Vec<T> fromBits(__m128i b) {
    if constexpr (std::is_same_v<T, float>) return {_mm_castsi128_ps(b)};
    else if constexpr (std::is_same_v<T, double>) return {_mm_castsi128_pd(b)};
    else return {b};
}
// Reinterprets the 16 bytes as another element type.
template <class U, class T>
inline Vec<U> cast(Vec<T> a) {
    return fromBits<U>(bits(a));
}

// ---- loads and stores --------------------------------------------------------
template <class T>
inline Vec<T> loadU(const T* p) {
    return fromBits<T>(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)));
}
template <class T>
inline Vec<T> loadA(const T* p) {
    return fromBits<T>(_mm_load_si128(reinterpret_cast<const __m128i*>(p)));
}
template <class T>
inline void storeU(T* p, Vec<T> a) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p), bits(a));
}
template <class T>
inline void storeA(T* p, Vec<T> a) {
    _mm_store_si128(reinterpret_cast<__m128i*>(p), bits(a));
}
// Non-temporal store to a 16-byte aligned address; finish with storeFence().
template <class T>
inline void storeStream(T* p, Vec<T> a) {
    _mm_stream_si128(reinterpret_cast<__m128i*>(p), bits(a));
}
// Orders every earlier non-temporal store before what follows.
inline void storeFence() { _mm_sfence(); }
// Low 8 bytes only.
template <class T>
inline Vec<T> loadLow(const T* p) {
    return fromBits<T>(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
}
template <class T>
inline void storeLow(T* p, Vec<T> a) {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p), bits(a));
}

// ---- constants ---------------------------------------------------------------
template <class T>
inline Vec<T> zero() {
    return fromBits<T>(_mm_setzero_si128());
}
template <class T>
inline Vec<T> set1(T x) {
    if constexpr (sizeof(T) == 1) return {_mm_set1_epi8(static_cast<char>(x))};
    else if constexpr (std::is_same_v<T, float>) return {_mm_set1_ps(x)};
    else if constexpr (std::is_same_v<T, double>) return {_mm_set1_pd(x)};
    else if constexpr (sizeof(T) == 2) return {_mm_set1_epi16(static_cast<short>(x))};
    else if constexpr (sizeof(T) == 4) return {_mm_set1_epi32(static_cast<int>(x))};
    else return {_mm_set1_epi64x(static_cast<long long>(x))};
}

// ---- bitwise -----------------------------------------------------------------
template <class T>
inline Vec<T> bitAnd(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm_and_si128(bits(a), bits(b))); }
template <class T>
inline Vec<T> bitOr(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm_or_si128(bits(a), bits(b))); }
template <class T>
inline Vec<T> bitXor(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm_xor_si128(bits(a), bits(b))); }
// ~a & b
template <class T>
inline Vec<T> andNot(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm_andnot_si128(bits(a), bits(b))); }
// Lanes of a where mask lanes are all ones, of b where they are zero.
template <class T>
inline Vec<T> select(Vec<T> mask, Vec<T> a, Vec<T> b) {
    return bitOr(bitAnd(mask, a), andNot(mask, b));
}
// Stores v at p (any alignment) except in the lanes set in keep (all ones),
// whose bytes keep their values: they are rewritten with the values just read
// from them. (A masked store would not write them, but costs up to twice the
// time of a read, a select and a whole store where processors split wide
// masked stores; the whole store is as fast everywhere.)
template <class T>
inline void storeKeep(T* p, Vec<T> v, Vec<T> keep) {
    storeU(p, select(keep, loadU(p), v));
}

// ---- integer arithmetic -------------------------------------------------------
template <class T>
inline Vec<T> add(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm_add_ps(a.v, b.v)};
    else if constexpr (std::is_same_v<T, double>) return {_mm_add_pd(a.v, b.v)};
    else if constexpr (sizeof(T) == 1) return {_mm_add_epi8(a.v, b.v)};
    else if constexpr (sizeof(T) == 2) return {_mm_add_epi16(a.v, b.v)};
    else if constexpr (sizeof(T) == 4) return {_mm_add_epi32(a.v, b.v)};
    else return {_mm_add_epi64(a.v, b.v)};
}
template <class T>
inline Vec<T> sub(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm_sub_ps(a.v, b.v)};
    else if constexpr (std::is_same_v<T, double>) return {_mm_sub_pd(a.v, b.v)};
    else if constexpr (sizeof(T) == 1) return {_mm_sub_epi8(a.v, b.v)};
    else if constexpr (sizeof(T) == 2) return {_mm_sub_epi16(a.v, b.v)};
    else if constexpr (sizeof(T) == 4) return {_mm_sub_epi32(a.v, b.v)};
    else return {_mm_sub_epi64(a.v, b.v)};
}
// Saturating add and subtract of 8- and 16-bit lanes.
inline Vec<std::uint8_t> addSat(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm_adds_epu8(a.v, b.v)}; }
inline Vec<std::int8_t> addSat(Vec<std::int8_t> a, Vec<std::int8_t> b) { return {_mm_adds_epi8(a.v, b.v)}; }
inline Vec<std::uint16_t> addSat(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm_adds_epu16(a.v, b.v)}; }
inline Vec<std::int16_t> addSat(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm_adds_epi16(a.v, b.v)}; }
inline Vec<std::uint8_t> subSat(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm_subs_epu8(a.v, b.v)}; }
inline Vec<std::int8_t> subSat(Vec<std::int8_t> a, Vec<std::int8_t> b) { return {_mm_subs_epi8(a.v, b.v)}; }
inline Vec<std::uint16_t> subSat(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm_subs_epu16(a.v, b.v)}; }
inline Vec<std::int16_t> subSat(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm_subs_epi16(a.v, b.v)}; }

// 16-bit products: low and high halves of the 32-bit product.
inline Vec<std::int16_t> mulLo(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm_mullo_epi16(a.v, b.v)}; }
inline Vec<std::uint16_t> mulLo(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm_mullo_epi16(a.v, b.v)}; }
inline Vec<std::int16_t> mulHi(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm_mulhi_epi16(a.v, b.v)}; }
inline Vec<std::uint16_t> mulHi(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm_mulhi_epu16(a.v, b.v)}; }
// Sum of adjacent 16-bit products into 32-bit lanes.
inline Vec<std::int32_t> mulAddPairs(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm_madd_epi16(a.v, b.v)}; }
// Unsigned 32x32->64 product of lanes 0 and 2.
inline Vec<std::uint64_t> mulEven(Vec<std::uint32_t> a, Vec<std::uint32_t> b) { return {_mm_mul_epu32(a.v, b.v)}; }

// Shifts by an immediate count (all lanes).
template <int N, class T>
inline Vec<T> shiftLeft(Vec<T> a) {
    if constexpr (sizeof(T) == 2) return {_mm_slli_epi16(a.v, N)};
    else if constexpr (sizeof(T) == 4) return {_mm_slli_epi32(a.v, N)};
    else return {_mm_slli_epi64(a.v, N)};
}
// Arithmetic for signed lanes, logical for unsigned ones.
template <int N, class T>
inline Vec<T> shiftRight(Vec<T> a) {
    if constexpr (sizeof(T) == 2) {
        if constexpr (std::is_signed_v<T>) return {_mm_srai_epi16(a.v, N)};
        else return {_mm_srli_epi16(a.v, N)};
    } else if constexpr (sizeof(T) == 4) {
        if constexpr (std::is_signed_v<T>) return {_mm_srai_epi32(a.v, N)};
        else return {_mm_srli_epi32(a.v, N)};
    } else {
        static_assert(!std::is_signed_v<T>, "no 64-bit arithmetic shift in this target");
        return {_mm_srli_epi64(a.v, N)};
    }
}
// Shifts by a run-time count held in the low 64 bits of a register.
struct ShiftCount {
    __m128i c;
};
inline ShiftCount shiftCount(int n) { return {_mm_cvtsi32_si128(n)}; }
template <class T>
inline Vec<T> shiftLeft(Vec<T> a, ShiftCount n) {
    if constexpr (sizeof(T) == 2) return {_mm_sll_epi16(a.v, n.c)};
    else if constexpr (sizeof(T) == 4) return {_mm_sll_epi32(a.v, n.c)};
    else return {_mm_sll_epi64(a.v, n.c)};
}
template <class T>
inline Vec<T> shiftRight(Vec<T> a, ShiftCount n) {
    if constexpr (sizeof(T) == 2) {
        if constexpr (std::is_signed_v<T>) return {_mm_sra_epi16(a.v, n.c)};
        else return {_mm_srl_epi16(a.v, n.c)};
    } else if constexpr (sizeof(T) == 4) {
        if constexpr (std::is_signed_v<T>) return {_mm_sra_epi32(a.v, n.c)};
        else return {_mm_srl_epi32(a.v, n.c)};
    } else {
        static_assert(!std::is_signed_v<T>, "no 64-bit arithmetic shift in this target");
        return {_mm_srl_epi64(a.v, n.c)};
    }
}
// Whole-register byte shifts.
template <int N, class T>
inline Vec<T> bytesLeft(Vec<T> a) { return fromBits<T>(_mm_slli_si128(bits(a), N)); }
template <int N, class T>
inline Vec<T> bytesRight(Vec<T> a) { return fromBits<T>(_mm_srli_si128(bits(a), N)); }

// ---- comparisons (all-ones lanes where true) ------------------------------------
template <class T>
inline Vec<T> cmpEq(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm_cmpeq_ps(a.v, b.v)};
    else if constexpr (std::is_same_v<T, double>) return {_mm_cmpeq_pd(a.v, b.v)};
    else if constexpr (sizeof(T) == 1) return {_mm_cmpeq_epi8(a.v, b.v)};
    else if constexpr (sizeof(T) == 2) return {_mm_cmpeq_epi16(a.v, b.v)};
    else return {_mm_cmpeq_epi32(a.v, b.v)};
}
// a > b, signed lanes and floats.
template <class T>
inline Vec<T> cmpGt(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm_cmpgt_ps(a.v, b.v)};
    else if constexpr (std::is_same_v<T, double>) return {_mm_cmpgt_pd(a.v, b.v)};
    else if constexpr (sizeof(T) == 1) {
        static_assert(std::is_signed_v<T>, "signed lanes");
        return {_mm_cmpgt_epi8(a.v, b.v)};
    } else if constexpr (sizeof(T) == 2) {
        static_assert(std::is_signed_v<T>, "signed lanes");
        return {_mm_cmpgt_epi16(a.v, b.v)};
    } else {
        static_assert(std::is_signed_v<T>, "signed lanes");
        return {_mm_cmpgt_epi32(a.v, b.v)};
    }
}
// One bit per byte lane: bit i is the top bit of byte i.
template <class T>
inline int moveMask8(Vec<T> a) { return _mm_movemask_epi8(bits(a)); }
inline int moveMask(Vec<float> a) { return _mm_movemask_ps(a.v); }
// Whether any, or every, lane of a comparison result is set.
template <class T>
inline bool anyTrue(Vec<T> m) { return _mm_movemask_epi8(bits(m)) != 0; }
template <class T>
inline bool allTrue(Vec<T> m) { return _mm_movemask_epi8(bits(m)) == 0xFFFF; }
// Threshold and compare family: a <= b, false where either is NaN.
inline Vec<float> cmpLe(Vec<float> a, Vec<float> b) { return {_mm_cmple_ps(a.v, b.v)}; }

// ---- min / max --------------------------------------------------------------------
inline Vec<std::uint8_t> min(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm_min_epu8(a.v, b.v)}; }
inline Vec<std::uint8_t> max(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm_max_epu8(a.v, b.v)}; }
inline Vec<std::int16_t> min(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm_min_epi16(a.v, b.v)}; }
inline Vec<std::int16_t> max(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm_max_epi16(a.v, b.v)}; }
// Unsigned 16-bit lanes through saturating subtraction (SSE2 has no pminuw).
inline Vec<std::uint16_t> min(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return sub(a, subSat(a, b)); }
inline Vec<std::uint16_t> max(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return add(b, subSat(a, b)); }
inline Vec<std::int32_t> min(Vec<std::int32_t> a, Vec<std::int32_t> b) { return select(cmpGt(a, b), b, a); }
inline Vec<std::int32_t> max(Vec<std::int32_t> a, Vec<std::int32_t> b) { return select(cmpGt(a, b), a, b); }
inline Vec<float> min(Vec<float> a, Vec<float> b) { return {_mm_min_ps(a.v, b.v)}; }
inline Vec<float> max(Vec<float> a, Vec<float> b) { return {_mm_max_ps(a.v, b.v)}; }
inline Vec<double> min(Vec<double> a, Vec<double> b) { return {_mm_min_pd(a.v, b.v)}; }
inline Vec<double> max(Vec<double> a, Vec<double> b) { return {_mm_max_pd(a.v, b.v)}; }

// ---- interleave, widen, narrow ------------------------------------------------------
// Lanes 0,1,.. of a and b interleaved (a0 b0 a1 b1 ...) from the low or high half.
template <class T>
inline Vec<T> zipLo(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm_unpacklo_ps(a.v, b.v)};
    else if constexpr (std::is_same_v<T, double>) return {_mm_unpacklo_pd(a.v, b.v)};
    else if constexpr (sizeof(T) == 1) return {_mm_unpacklo_epi8(a.v, b.v)};
    else if constexpr (sizeof(T) == 2) return {_mm_unpacklo_epi16(a.v, b.v)};
    else if constexpr (sizeof(T) == 4) return {_mm_unpacklo_epi32(a.v, b.v)};
    else return {_mm_unpacklo_epi64(a.v, b.v)};
}
template <class T>
inline Vec<T> zipHi(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm_unpackhi_ps(a.v, b.v)};
    else if constexpr (std::is_same_v<T, double>) return {_mm_unpackhi_pd(a.v, b.v)};
    else if constexpr (sizeof(T) == 1) return {_mm_unpackhi_epi8(a.v, b.v)};
    else if constexpr (sizeof(T) == 2) return {_mm_unpackhi_epi16(a.v, b.v)};
    else if constexpr (sizeof(T) == 4) return {_mm_unpackhi_epi32(a.v, b.v)};
    else return {_mm_unpackhi_epi64(a.v, b.v)};
}

// Zero- or sign-extends the low (Lo) or high (Hi) half to twice the width.
template <class W, class T>
inline Vec<W> widenLo(Vec<T> a) {
    static_assert(sizeof(W) == 2 * sizeof(T), "one step wider");
    if constexpr (std::is_signed_v<T>) return shiftRight<8 * sizeof(T)>(cast<W>(zipLo(a, a)));
    else return cast<W>(zipLo(a, zero<T>()));
}
template <class W, class T>
inline Vec<W> widenHi(Vec<T> a) {
    static_assert(sizeof(W) == 2 * sizeof(T), "one step wider");
    if constexpr (std::is_signed_v<T>) return shiftRight<8 * sizeof(T)>(cast<W>(zipHi(a, a)));
    else return cast<W>(zipHi(a, zero<T>()));
}

// Saturating narrowing of two vectors into one.
inline Vec<std::uint8_t> packSat(Vec<std::int16_t> lo, Vec<std::int16_t> hi, std::uint8_t) { return {_mm_packus_epi16(lo.v, hi.v)}; }
inline Vec<std::int8_t> packSat(Vec<std::int16_t> lo, Vec<std::int16_t> hi, std::int8_t) { return {_mm_packs_epi16(lo.v, hi.v)}; }
inline Vec<std::int16_t> packSat(Vec<std::int32_t> lo, Vec<std::int32_t> hi, std::int16_t) { return {_mm_packs_epi32(lo.v, hi.v)}; }
// Signed 32-bit to unsigned 16-bit with saturation, composed from SSE2: clamp
// to 0..65535, bias into the signed range, pack, unbias.
inline Vec<std::uint16_t> packSat(Vec<std::int32_t> lo, Vec<std::int32_t> hi, std::uint16_t) {
    const Vec<std::int32_t> z = zero<std::int32_t>(), top = set1<std::int32_t>(65535), bias = set1<std::int32_t>(32768);
    lo = sub(min(max(lo, z), top), bias);
    hi = sub(min(max(hi, z), top), bias);
    return cast<std::uint16_t>(add(Vec<std::int16_t>{_mm_packs_epi32(lo.v, hi.v)}, set1<std::int16_t>(-32768)));
}
template <class N, class W>
inline Vec<N> packSat(Vec<W> lo, Vec<W> hi) {
    return packSat(lo, hi, N{});
}

// ---- floating point -------------------------------------------------------------------
inline Vec<float> mul(Vec<float> a, Vec<float> b) { return {_mm_mul_ps(a.v, b.v)}; }
inline Vec<double> mul(Vec<double> a, Vec<double> b) { return {_mm_mul_pd(a.v, b.v)}; }
inline Vec<float> div(Vec<float> a, Vec<float> b) { return {_mm_div_ps(a.v, b.v)}; }
inline Vec<double> div(Vec<double> a, Vec<double> b) { return {_mm_div_pd(a.v, b.v)}; }
// The processor's approximate reciprocal (relative error below 1.5 * 2^-12).
inline Vec<float> rcpApprox(Vec<float> a) { return {_mm_rcp_ps(a.v)}; }
inline Vec<float> toFloat(Vec<std::int32_t> a) { return {_mm_cvtepi32_ps(a.v)}; }
// Converts with the current rounding control; out-of-range lanes give INT32_MIN.
inline Vec<std::int32_t> toInt(Vec<float> a) { return {_mm_cvtps_epi32(a.v)}; }
// Converts rounding toward zero; out-of-range lanes give INT32_MIN.
inline Vec<std::int32_t> toIntTrunc(Vec<float> a) { return {_mm_cvttps_epi32(a.v)}; }
// Elementary math: the correctly rounded square root (current rounding control).
inline Vec<float> sqrt(Vec<float> a) { return {_mm_sqrt_ps(a.v)}; }
inline Vec<double> sqrt(Vec<double> a) { return {_mm_sqrt_pd(a.v)}; }

// ---- type conversion and scaling ------------------------------------------------------
// Double lanes from the low two int32 lanes (exact).
inline Vec<double> toDoubleLo(Vec<std::int32_t> a) { return {_mm_cvtepi32_pd(a.v)}; }
// Double lanes from the low or high two float lanes (exact).
inline Vec<double> toDoubleLo(Vec<float> a) { return {_mm_cvtps_pd(a.v)}; }
inline Vec<double> toDoubleHi(Vec<float> a) { return {_mm_cvtps_pd(_mm_movehl_ps(a.v, a.v))}; }
// Two double vectors to four int32 lanes (lo's two, then hi's two), rounded by
// the current rounding control; out-of-range lanes give INT32_MIN.
inline Vec<std::int32_t> toInt(Vec<double> lo, Vec<double> hi) {
    return {_mm_unpacklo_epi64(_mm_cvtpd_epi32(lo.v), _mm_cvtpd_epi32(hi.v))};
}
// Two double vectors to four float lanes, rounded by the current control.
inline Vec<float> toFloat(Vec<double> lo, Vec<double> hi) {
    return {_mm_movelh_ps(_mm_cvtpd_ps(lo.v), _mm_cvtpd_ps(hi.v))};
}
// The low 32 bits of each 64-bit lane of lo, then of hi.
inline Vec<std::uint32_t> lowHalves(Vec<double> lo, Vec<double> hi) {
    return {_mm_castps_si128(_mm_shuffle_ps(_mm_castpd_ps(lo.v), _mm_castpd_ps(hi.v), 0x88))};
}

// ---- rounding control -------------------------------------------------------------------
inline constexpr unsigned kRoundNearest = 0x0000;
inline constexpr unsigned kRoundTowardZero = 0x6000;
// Both act as compiler barriers for memory: loads before a change of the
// rounding control cannot be moved past it, nor stores after it before it, so
// the conversions between them see the mode that was set.
inline unsigned getControl() {
    unsigned csr;
    __asm__ volatile("stmxcsr %0" : "=m"(csr) : : "memory");
    return csr;
}
inline void setControl(unsigned csr) { __asm__ volatile("ldmxcsr %0" : : "m"(csr) : "memory"); }
inline unsigned withRounding(unsigned csr, unsigned mode) { return (csr & ~0x6000u) | mode; }

// ---- channel shuffles (copy, set, duplicate and swap family) -----------------------
// Whether K interleaved vectors become K planes (and back) in a few
// instructions: not here (interleaving steps only), so the 8u three-element
// rows below keep their own forms on this layer.
inline constexpr bool kCheapPlaneShuffles = false;

// Built from interleaving steps only (SSE2 has no byte shuffle). With L lanes
// per vector, K interleaved channels span K vectors: L pixels.

// Four interleaved vectors to four planes: log2(L) rounds of the same
// pairing of zips.
template <class T>
inline void deinterleave4(const Vec<T> in[4], Vec<T> out[4]) {
    Vec<T> a = in[0], b = in[1], c = in[2], d = in[3];
    for (std::size_t n = kLanes<T>; n > 1; n /= 2) {
        const Vec<T> a2 = zipLo(a, c), b2 = zipHi(a, c), c2 = zipLo(b, d), d2 = zipHi(b, d);
        a = a2, b = b2, c = c2, d = d2;
    }
    out[0] = a, out[1] = b, out[2] = c, out[3] = d;
}

// Four planes to four interleaved vectors: two rounds of that pairing,
// whatever the lane count.
template <class T>
inline void interleave4(const Vec<T> in[4], Vec<T> out[4]) {
    Vec<T> a = in[0], b = in[1], c = in[2], d = in[3];
    for (int r = 0; r < 2; ++r) {
        const Vec<T> a2 = zipLo(a, c), b2 = zipHi(a, c), c2 = zipLo(b, d), d2 = zipHi(b, d);
        a = a2, b = b2, c = c2, d = d2;
    }
    out[0] = a, out[1] = b, out[2] = c, out[3] = d;
}

// Three interleaved vectors to three planes: log2(L) rounds that zip the
// halves (a.lo, b.hi), (a.hi, c.lo), (b.lo, c.hi).
template <class T>
inline void deinterleave3(const Vec<T> in[3], Vec<T> out[3]) {
    Vec<T> a = in[0], b = in[1], c = in[2];
    for (std::size_t n = kLanes<T>; n > 1; n /= 2) {
        const Vec<T> a2 = zipLo(a, bytesRight<8>(b)), b2 = zipHi(a, bytesLeft<8>(c)),
                     c2 = zipLo(b, bytesRight<8>(c));
        a = a2, b = b2, c = c2;
    }
    out[0] = a, out[1] = b, out[2] = c;
}

// Even-indexed and odd-indexed lanes of a then b (the inverse of a zip).
template <class T>
inline Vec<T> unzipEven(Vec<T> a, Vec<T> b) {
    if constexpr (sizeof(T) == 1) {
        const __m128i lo = _mm_set1_epi16(0x00FF);
        return fromBits<T>(_mm_packus_epi16(_mm_and_si128(bits(a), lo), _mm_and_si128(bits(b), lo)));
    } else if constexpr (sizeof(T) == 2) {
        // sign-extend the low halves so the signed pack is exact
        return fromBits<T>(_mm_packs_epi32(_mm_srai_epi32(_mm_slli_epi32(bits(a), 16), 16),
                                           _mm_srai_epi32(_mm_slli_epi32(bits(b), 16), 16)));
    } else {
        static_assert(sizeof(T) == 4, "8-, 16- or 32-bit lanes");
        return fromBits<T>(_mm_castps_si128(
            _mm_shuffle_ps(_mm_castsi128_ps(bits(a)), _mm_castsi128_ps(bits(b)), 0x88)));
    }
}
template <class T>
inline Vec<T> unzipOdd(Vec<T> a, Vec<T> b) {
    if constexpr (sizeof(T) == 1) {
        return fromBits<T>(_mm_packus_epi16(_mm_srli_epi16(bits(a), 8), _mm_srli_epi16(bits(b), 8)));
    } else if constexpr (sizeof(T) == 2) {
        return fromBits<T>(_mm_packs_epi32(_mm_srai_epi32(bits(a), 16), _mm_srai_epi32(bits(b), 16)));
    } else {
        static_assert(sizeof(T) == 4, "8-, 16- or 32-bit lanes");
        return fromBits<T>(_mm_castps_si128(
            _mm_shuffle_ps(_mm_castsi128_ps(bits(a)), _mm_castsi128_ps(bits(b)), 0xDD)));
    }
}
// Even-indexed lanes of a, then odd-indexed lanes of b.
template <class T>
inline Vec<T> unzipEvenOdd(Vec<T> a, Vec<T> b) {
    if constexpr (sizeof(T) == 1) {
        return fromBits<T>(_mm_packus_epi16(_mm_and_si128(bits(a), _mm_set1_epi16(0x00FF)),
                                            _mm_srli_epi16(bits(b), 8)));
    } else if constexpr (sizeof(T) == 2) {
        return fromBits<T>(_mm_packs_epi32(_mm_srai_epi32(_mm_slli_epi32(bits(a), 16), 16),
                                           _mm_srai_epi32(bits(b), 16)));
    } else {
        static_assert(sizeof(T) == 4, "8-, 16- or 32-bit lanes");
        return fromBits<T>(_mm_castps_si128(
            _mm_shuffle_ps(_mm_castsi128_ps(bits(a)), _mm_castsi128_ps(bits(b)), 0xD8)));
    }
}

// Three planes to three interleaved vectors: log2(L) rounds of the inverse
// of deinterleave3's step.
template <class T>
inline void interleave3(const Vec<T> in[3], Vec<T> out[3]) {
    Vec<T> x = in[0], y = in[1], z = in[2];
    for (std::size_t n = kLanes<T>; n > 1; n /= 2) {
        const Vec<T> a = unzipEven(x, y), c = unzipOdd(y, z);
        const Vec<T> b = unzipEvenOdd(z, x);
        x = a, y = b, z = c;
    }
    out[0] = x, out[1] = y, out[2] = z;
}

// ---- channel shuffles without a byte shuffle (copy, dup and swap family) ----------
// Two 4-byte pixels per 64-bit lane become 6 bytes: lane bytes 0-2 keep the
// first pixel's bytes 0-2, bytes 3-5 take the second pixel's bytes 0-2; bytes
// 6 and 7 hold leftovers for the caller to overwrite.
inline Vec<std::uint8_t> packPairs4to3(Vec<std::uint8_t> x) {
    const __m128i first = _mm_set1_epi64x(0x0000000000FFFFFFll);
    const __m128i second = _mm_set1_epi64x(0x0000FFFFFF000000ll);
    return {_mm_or_si128(_mm_and_si128(x.v, first), _mm_and_si128(_mm_srli_epi64(x.v, 8), second))};
}
// The high 8 bytes to p (any alignment). The bytes go through memcpy, which
// the compiler folds into one high-half store, because the intrinsic is a
// typed double store that p need not be aligned for.
template <class T>
inline void storeHigh(T* p, Vec<T> a) {
    const __m128d v = _mm_castsi128_pd(bits(a));
    const double high = _mm_cvtsd_f64(_mm_unpackhi_pd(v, v));
    std::memcpy(p, &high, sizeof high);
}
// 8 bytes from lo into the low half and 8 bytes from hi into the high half
// (any alignment; memcpy again stands for an unaligned high-half load).
template <class T>
inline Vec<T> loadHalves(const T* lo, const T* hi) {
    const __m128d l = _mm_castsi128_pd(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(lo)));
    double high;
    std::memcpy(&high, hi, sizeof high);
    return fromBits<T>(_mm_castpd_si128(_mm_loadh_pd(l, &high)));
}

// Elements 0 and 2 of every four-element pixel exchanged (a reversal of the
// first three channels that keeps the fourth): word shuffles, plus a byte
// select for 8-bit lanes.
template <class T>
inline Vec<T> swapFirstAndThird(Vec<T> a) {
    if constexpr (sizeof(T) == 1) {
        // words swapped in each dword give c2 c3 c0 c1: keep its even bytes
        const __m128i t = _mm_shufflehi_epi16(_mm_shufflelo_epi16(a.v, 0xB1), 0xB1);
        const __m128i even = _mm_set1_epi16(0x00FF);
        return {_mm_or_si128(_mm_and_si128(even, t), _mm_andnot_si128(even, a.v))};
    } else if constexpr (sizeof(T) == 2) {
        return fromBits<T>(_mm_shufflehi_epi16(_mm_shufflelo_epi16(bits(a), 0xC6), 0xC6));
    } else {
        static_assert(sizeof(T) == 4, "8-, 16- or 32-bit lanes");
        return fromBits<T>(_mm_shuffle_epi32(bits(a), 0xC6));
    }
}

// ---- scale-factor arithmetic ----------------------------------------------------------
// (The double/float lane conversions of the conversion block above serve here too.)
// Double lanes from the high two int32 lanes (exact).
inline Vec<double> toDoubleHi(Vec<std::int32_t> a) { return {_mm_cvtepi32_pd(_mm_unpackhi_epi64(a.v, a.v))}; }
// One value rounded by the current rounding control (in range by the caller).
inline std::int32_t toIntScalar(double x) { return _mm_cvtsd_si32(_mm_set_sd(x)); }
inline std::int32_t toIntScalar(float x) { return _mm_cvtss_si32(_mm_set_ss(x)); }
// Lanes of a all ones.
template <class T>
inline Vec<T> allOnes() { return fromBits<T>(_mm_set1_epi32(-1)); }

// ---- conversion family -------------------------------------------------------------------
// Lanes where a < b does not hold: a >= b, or either is NaN.
inline Vec<float> cmpNotLess(Vec<float> a, Vec<float> b) { return {_mm_cmpnlt_ps(a.v, b.v)}; }
// Hint to bring the cache line holding p into every cache level.
inline void prefetch(const void* p) { _mm_prefetch(static_cast<const char*>(p), _MM_HINT_T0); }
// x in the low 32-bit lane, zeros above.
inline Vec<std::uint32_t> fromLow32(std::uint32_t x) { return {_mm_cvtsi32_si128(static_cast<int>(x))}; }

// ---- reversal (mirror and border family) ----------------------------------------------------
// The units of Bytes bytes (1, 2, 4, 8 or 16) of a in reverse order: a row of
// pixels of that size read backwards. SSE2 has no byte shuffle, so narrow
// units reverse the 16-bit words and then swap the bytes inside each word;
// the wider targets' 16-byte layer uses the byte shuffle.
template <int Bytes, class T>
inline Vec<T> reverseUnits(Vec<T> a) {
    static_assert(Bytes == 1 || Bytes == 2 || Bytes == 4 || Bytes == 8 || Bytes == 16, "unit size");
    __m128i x = bits(a);
    if constexpr (Bytes == 8) {
        x = _mm_shuffle_epi32(x, 0x4E);
    } else if constexpr (Bytes == 4) {
        x = _mm_shuffle_epi32(x, 0x1B);
    } else if constexpr (Bytes < 4) {
#if QVN_TARGET_LEVEL >= 2
        x = _mm_shuffle_epi8(x, Bytes == 2 ? _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1)
                                           : _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
#else
        x = _mm_shufflehi_epi16(_mm_shufflelo_epi16(_mm_shuffle_epi32(x, 0x4E), 0x1B), 0x1B);
        if constexpr (Bytes == 1) x = _mm_or_si128(_mm_slli_epi16(x, 8), _mm_srli_epi16(x, 8));
#endif
    }
    return fromBits<T>(x);
}

#if QVN_TARGET_LEVEL >= 2
// Byte j of the result is byte table[j] of a, or 0 where table[j] has its top
// bit set (SSSE3's byte shuffle; the 16-byte layer of the wider targets only,
// for kernels tied to 16-byte blocks).
inline Vec<std::uint8_t> byteTable(Vec<std::uint8_t> a, const std::uint8_t* table) {
    return {_mm_shuffle_epi8(a.v, _mm_loadu_si128(reinterpret_cast<const __m128i*>(table)))};
}
#endif

// ---- statistics (sums, means and extrema) ------------------------------------------------------
// The sum of each group of eight bytes, in its 64-bit lane (exact).
inline Vec<std::uint64_t> sumBytes(Vec<std::uint8_t> a) { return {_mm_sad_epu8(a.v, _mm_setzero_si128())}; }
// kLanes<double> floats from p (any alignment), each converted to double (exact).
inline Vec<double> loadToDouble(const float* p) {
    return {_mm_cvtps_pd(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))))};
}
// a itself, held in a register: the compiler cannot fold the load that
// produced it again into each instruction that uses it. A loaded vector
// that several instructions use is then read once, and a stream that
// misses the caches issues one load per vector, not one per use, keeping
// more distinct lines in flight. Emits nothing.
template <class T>
inline Vec<T> inRegister(Vec<T> a) {
    __asm__("" : "+x"(a.v));
    return a;
}
// The lower (higher) of x and acc by value, with -0 below +0; acc where x is
// NaN (minps and maxps return their second operand then).
inline Vec<float> minOrdered(Vec<float> x, Vec<float> acc) {
    return {_mm_or_ps(_mm_min_ps(x.v, acc.v), _mm_and_ps(_mm_cmpeq_ps(x.v, acc.v), x.v))};
}
inline Vec<float> maxOrdered(Vec<float> x, Vec<float> acc) {
    return {_mm_andnot_ps(_mm_andnot_ps(x.v, _mm_cmpeq_ps(x.v, acc.v)), _mm_max_ps(x.v, acc.v))};
}

// ---- resize family ---------------------------------------------------------------------------
// x in the low 64-bit lane, zeros above (pixels gathered in a general register).
inline Vec<std::uint64_t> fromLow64(std::uint64_t x) { return {_mm_cvtsi64_si128(static_cast<long long>(x))}; }
// The four 8- or 16-bit elements at p (any alignment) zero- or sign-extended
// to 32-bit lanes: one instruction where SSE4.1 is there, unpacks otherwise.
template <class T>
inline Vec<std::int32_t> load4x32(const T* p) {
    static_assert(sizeof(T) <= 2, "8- or 16-bit elements");
    __m128i x;
    if constexpr (sizeof(T) == 1) {
        std::int32_t u;
        std::memcpy(&u, p, 4);
        x = _mm_cvtsi32_si128(u);
    } else {
        x = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
    }
#if QVN_TARGET_LEVEL >= 2
    if constexpr (sizeof(T) == 1) return {std::is_signed_v<T> ? _mm_cvtepi8_epi32(x) : _mm_cvtepu8_epi32(x)};
    else return {std::is_signed_v<T> ? _mm_cvtepi16_epi32(x) : _mm_cvtepu16_epi32(x)};
#else
    if constexpr (sizeof(T) == 1) {
        static_assert(!std::is_signed_v<T>, "8u");
        x = _mm_unpacklo_epi16(_mm_unpacklo_epi8(x, _mm_setzero_si128()), _mm_setzero_si128());
    } else {
        x = std::is_signed_v<T> ? _mm_srai_epi32(_mm_unpacklo_epi16(x, x), 16) : _mm_unpacklo_epi16(x, _mm_setzero_si128());
    }
    return {x};
#endif
}

// ---- general filter and convolution (filter family) ----------------------------------------
// The 16 bytes at p (16-byte aligned) in every 16-byte block of the vector:
// coefficients that a spec stores once, one value per lane of a block.
template <class T>
inline Vec<T> loadBlock(const T* p) {
    return loadA(p);
}
// kLanes<W> elements of T from p, each converted to W exactly: 8- and 16-bit
// integers to 16- or 32-bit integers or to float, or T itself. Only the bytes
// of those elements are read.
template <class W, class T>
inline Vec<W> loadExpand(const T* p) {
    static_assert(sizeof(W) >= sizeof(T), "a widening load");
    if constexpr (std::is_same_v<W, T>) {
        return loadU(p);
    } else if constexpr (std::is_same_v<W, float>) {
        return toFloat(loadExpand<std::int32_t>(p));
    } else if constexpr (sizeof(T) == 1 && sizeof(W) == 4) {
        std::int32_t x;
        std::memcpy(&x, p, 4);
        const __m128i b = _mm_cvtsi32_si128(x), z = _mm_setzero_si128();
        return fromBits<W>(_mm_unpacklo_epi16(_mm_unpacklo_epi8(b, z), z));
    } else if constexpr (sizeof(T) == 1) {
        static_assert(sizeof(W) == 2 && !std::is_signed_v<T>, "unsigned bytes to 16-bit lanes");
        return fromBits<W>(_mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)), _mm_setzero_si128()));
    } else {
        static_assert(sizeof(T) == 2 && sizeof(W) == 4, "16-bit to 32-bit lanes");
        return widenLo<W>(Vec<T>{_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))});
    }
}
// zipLo, zipHi and the int32-to-int16 packSat applied to each 16-byte block
// of the vector on its own (here the vector is one block): lane pairs for
// mulAddPairs whose sums are narrowed back to the original order.
template <class T>
inline Vec<T> zipLoBlocks(Vec<T> a, Vec<T> b) { return zipLo(a, b); }
template <class T>
inline Vec<T> zipHiBlocks(Vec<T> a, Vec<T> b) { return zipHi(a, b); }
inline Vec<std::int16_t> packSatBlocks(Vec<std::int32_t> lo, Vec<std::int32_t> hi) { return {_mm_packs_epi32(lo.v, hi.v)}; }
// ---- frequency transforms ------------------------------------------------------------
// The kLanes x kLanes block of floats in r (r[i] is row i) transposed in place.
inline void transposeSquare(Vec<float> r[4]) { _MM_TRANSPOSE4_PS(r[0].v, r[1].v, r[2].v, r[3].v); }
// Two vectors of interleaved pairs (a0 b0 a1 b1 ...) to the a's and the b's,
// in whole-vector order, and back.
inline void deinterleave2(const Vec<float> in[2], Vec<float> out[2]) {
    out[0] = {_mm_shuffle_ps(in[0].v, in[1].v, 0x88)};
    out[1] = {_mm_shuffle_ps(in[0].v, in[1].v, 0xDD)};
}
inline void interleave2(const Vec<float> in[2], Vec<float> out[2]) {
    out[0] = {_mm_unpacklo_ps(in[0].v, in[1].v)};
    out[1] = {_mm_unpackhi_ps(in[0].v, in[1].v)};
}

// ---- box filter and window sums (filter family) --------------------------------------------
// 32-bit lanes moved up by K lanes: lane i takes lane i - K, the lowest K
// lanes take 0 (a step of a prefix sum).
template <int K, class T>
inline Vec<T> shiftLanesUp(Vec<T> a) {
    static_assert(sizeof(T) == 4 && K >= 0 && K < 4, "32-bit lanes, a shift within the vector");
    return fromBits<T>(_mm_slli_si128(bits(a), 4 * K));
}
// The last C 32-bit lanes repeated over the vector: lane i takes lane
// N - C + i % C (N lanes); with C channels per pixel, the last pixel's
// channels in the lanes of their channels' continuation.
template <int C, class T>
inline Vec<T> repeatLastPixel(Vec<T> a) {
    static_assert(sizeof(T) == 4 && C >= 1 && C <= 4, "32-bit lanes, 1 to 4 channels");
    constexpr int l0 = 4 - C, l1 = 4 - C + 1 % C, l2 = 4 - C + 2 % C, l3 = 4 - C + 3 % C;
    return fromBits<T>(_mm_shuffle_epi32(bits(a), (l3 << 6) | (l2 << 4) | (l1 << 2) | l0));
}

// ---- warp family ---------------------------------------------------------------------------
// The largest integer not above each lane, for lanes within +-2^31 (the
// caller clamps): SSE3 truncates and steps down where that rounded up;
// SSE4.1 (the wider targets) has the instruction. A -0 lane may come back
// as +0 on the baseline: callers pass no -0.
inline Vec<double> floor(Vec<double> a) {
#if QVN_TARGET_LEVEL >= 2
    return {_mm_floor_pd(a.v)};
#else
    const __m128d t = _mm_cvtepi32_pd(_mm_cvttpd_epi32(a.v));
    return {_mm_sub_pd(t, _mm_and_pd(_mm_cmpgt_pd(t, a.v), _mm_set1_pd(1.0)))};
#endif
}

}  // namespace v128
QVN_TARGET_END

#endif
