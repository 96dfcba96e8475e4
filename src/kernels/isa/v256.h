// The 32-byte vector layer of the avx2 target (AVX2 with FMA, BMI2 and F16C):
// the functions of v128.h on 32-byte vectors, with the same meaning for the
// whole vector. Where an AVX2 instruction works within 16-byte halves (the
// unpacks, packs and byte shifts), the function adds the permute that gives
// the whole-vector order, so a kernel written for 16-byte vectors computes the
// same bits here.
//
// Floating-point operations keep the 16-byte layer's instruction families:
// the approximate reciprocal is rcpps on every target, comparisons use the
// predicates (quiet or signalling) of their SSE forms, and no operation is
// fused (FMA is never used for a separate multiply and add).
#ifndef QVN_KERNELS_ISA_V256_H
#define QVN_KERNELS_ISA_V256_H

#include <immintrin.h>

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "kernels/isa/shuffle-tables.h"
#include "kernels/isa/v128.h"
#include "kernels/target.h"

#if QVN_TARGET_LEVEL < 2
#error "v256.h needs a target with AVX2"
#endif

QVN_TARGET_BEGIN
namespace v256 {

#define QVN_VBYTES 32
#define QVN_VINT __m256i
#define QVN_VFLOAT __m256
#define QVN_VDOUBLE __m256d
#include "kernels/isa/layer-types.inc"
#undef QVN_VBYTES
#undef QVN_VINT
#undef QVN_VFLOAT
#undef QVN_VDOUBLE

// ---- raw views -----------------------------------------------------------------
template <class T>
inline __m256i bits(Vec<T> a) {
    if constexpr (std::is_same_v<T, float>) return _mm256_castps_si256(a.v);
    else if constexpr (std::is_same_v<T, double>) return _mm256_castpd_si256(a.v);
    else return a.v;
}
template <class T>
inline Vec<T> fromBits(__m256i b) {
    if constexpr (std::is_same_v<T, float>) return {_mm256_castsi256_ps(b)};
    else if constexpr (std::is_same_v<T, double>) return {_mm256_castsi256_pd(b)};
    else return {b};
}
template <class U, class T>
inline Vec<U> cast(Vec<T> a) {
    return fromBits<U>(bits(a));
}

// The 16-byte halves, and a vector made of two halves.
template <class T>
inline v128::Vec<T> lowHalf(Vec<T> a) {
    return v128::fromBits<T>(_mm256_castsi256_si128(bits(a)));
}
template <class T>
inline v128::Vec<T> highHalf(Vec<T> a) {
    return v128::fromBits<T>(_mm256_extracti128_si256(bits(a), 1));
}
template <class T>
inline Vec<T> combine(v128::Vec<T> lo, v128::Vec<T> hi) {
    return fromBits<T>(_mm256_inserti128_si256(_mm256_castsi128_si256(v128::bits(lo)), v128::bits(hi), 1));
}

// ---- loads and stores --------------------------------------------------------------
template <class T>
inline Vec<T> loadU(const T* p) {
    return fromBits<T>(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)));
}
template <class T>
inline Vec<T> loadA(const T* p) {
    return fromBits<T>(_mm256_load_si256(reinterpret_cast<const __m256i*>(p)));
}
template <class T>
inline void storeU(T* p, Vec<T> a) {
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), bits(a));
}
template <class T>
inline void storeA(T* p, Vec<T> a) {
    _mm256_store_si256(reinterpret_cast<__m256i*>(p), bits(a));
}
// Non-temporal store to a 32-byte aligned address; finish with storeFence().
template <class T>
inline void storeStream(T* p, Vec<T> a) {
    _mm256_stream_si256(reinterpret_cast<__m256i*>(p), bits(a));
}
using v128::storeFence;

// ---- constants -------------------------------------------------------------------
template <class T>
inline Vec<T> zero() {
    return fromBits<T>(_mm256_setzero_si256());
}
template <class T>
inline Vec<T> set1(T x) {
    if constexpr (sizeof(T) == 1) return {_mm256_set1_epi8(static_cast<char>(x))};
    else if constexpr (std::is_same_v<T, float>) return {_mm256_set1_ps(x)};
    else if constexpr (std::is_same_v<T, double>) return {_mm256_set1_pd(x)};
    else if constexpr (sizeof(T) == 2) return {_mm256_set1_epi16(static_cast<short>(x))};
    else if constexpr (sizeof(T) == 4) return {_mm256_set1_epi32(static_cast<int>(x))};
    else return {_mm256_set1_epi64x(static_cast<long long>(x))};
}
template <class T>
inline Vec<T> allOnes() { return fromBits<T>(_mm256_set1_epi32(-1)); }

// ---- bitwise ---------------------------------------------------------------------
template <class T>
inline Vec<T> bitAnd(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm256_and_si256(bits(a), bits(b))); }
template <class T>
inline Vec<T> bitOr(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm256_or_si256(bits(a), bits(b))); }
template <class T>
inline Vec<T> bitXor(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm256_xor_si256(bits(a), bits(b))); }
template <class T>
inline Vec<T> andNot(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm256_andnot_si256(bits(a), bits(b))); }
// Lanes of a where mask lanes are all ones, of b where they are zero.
template <class T>
inline Vec<T> select(Vec<T> mask, Vec<T> a, Vec<T> b) {
#if QVN_TARGET_LEVEL >= 3
    return fromBits<T>(_mm256_ternarylogic_epi64(bits(mask), bits(a), bits(b), 0xCA));
#else
    return fromBits<T>(_mm256_blendv_epi8(bits(b), bits(a), bits(mask)));
#endif
}
// v at p except in the lanes set in keep, whose bytes are rewritten with the
// values just read from them (see v128::storeKeep).
template <class T>
inline void storeKeep(T* p, Vec<T> v, Vec<T> keep) {
    storeU(p, select(keep, loadU(p), v));
}

// ---- integer and float arithmetic ---------------------------------------------------
template <class T>
inline Vec<T> add(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm256_add_ps(a.v, b.v)};
    else if constexpr (std::is_same_v<T, double>) return {_mm256_add_pd(a.v, b.v)};
    else if constexpr (sizeof(T) == 1) return {_mm256_add_epi8(a.v, b.v)};
    else if constexpr (sizeof(T) == 2) return {_mm256_add_epi16(a.v, b.v)};
    else if constexpr (sizeof(T) == 4) return {_mm256_add_epi32(a.v, b.v)};
    else return {_mm256_add_epi64(a.v, b.v)};
}
template <class T>
inline Vec<T> sub(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm256_sub_ps(a.v, b.v)};
    else if constexpr (std::is_same_v<T, double>) return {_mm256_sub_pd(a.v, b.v)};
    else if constexpr (sizeof(T) == 1) return {_mm256_sub_epi8(a.v, b.v)};
    else if constexpr (sizeof(T) == 2) return {_mm256_sub_epi16(a.v, b.v)};
    else if constexpr (sizeof(T) == 4) return {_mm256_sub_epi32(a.v, b.v)};
    else return {_mm256_sub_epi64(a.v, b.v)};
}
inline Vec<std::uint8_t> addSat(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm256_adds_epu8(a.v, b.v)}; }
inline Vec<std::int8_t> addSat(Vec<std::int8_t> a, Vec<std::int8_t> b) { return {_mm256_adds_epi8(a.v, b.v)}; }
inline Vec<std::uint16_t> addSat(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm256_adds_epu16(a.v, b.v)}; }
inline Vec<std::int16_t> addSat(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm256_adds_epi16(a.v, b.v)}; }
inline Vec<std::uint8_t> subSat(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm256_subs_epu8(a.v, b.v)}; }
inline Vec<std::int8_t> subSat(Vec<std::int8_t> a, Vec<std::int8_t> b) { return {_mm256_subs_epi8(a.v, b.v)}; }
inline Vec<std::uint16_t> subSat(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm256_subs_epu16(a.v, b.v)}; }
inline Vec<std::int16_t> subSat(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm256_subs_epi16(a.v, b.v)}; }

inline Vec<std::int16_t> mulLo(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm256_mullo_epi16(a.v, b.v)}; }
inline Vec<std::uint16_t> mulLo(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm256_mullo_epi16(a.v, b.v)}; }
inline Vec<std::int16_t> mulHi(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm256_mulhi_epi16(a.v, b.v)}; }
inline Vec<std::uint16_t> mulHi(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm256_mulhi_epu16(a.v, b.v)}; }
inline Vec<std::int32_t> mulAddPairs(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm256_madd_epi16(a.v, b.v)}; }
inline Vec<std::uint64_t> mulEven(Vec<std::uint32_t> a, Vec<std::uint32_t> b) { return {_mm256_mul_epu32(a.v, b.v)}; }

inline Vec<float> mul(Vec<float> a, Vec<float> b) { return {_mm256_mul_ps(a.v, b.v)}; }
inline Vec<double> mul(Vec<double> a, Vec<double> b) { return {_mm256_mul_pd(a.v, b.v)}; }
inline Vec<float> div(Vec<float> a, Vec<float> b) { return {_mm256_div_ps(a.v, b.v)}; }
inline Vec<double> div(Vec<double> a, Vec<double> b) { return {_mm256_div_pd(a.v, b.v)}; }
// The same approximation as the 16-byte layer's (rcpps, eight lanes).
inline Vec<float> rcpApprox(Vec<float> a) { return {_mm256_rcp_ps(a.v)}; }
// Elementary math: the correctly rounded square root (current rounding control).
inline Vec<float> sqrt(Vec<float> a) { return {_mm256_sqrt_ps(a.v)}; }
inline Vec<double> sqrt(Vec<double> a) { return {_mm256_sqrt_pd(a.v)}; }

// ---- shifts ------------------------------------------------------------------------
template <int N, class T>
inline Vec<T> shiftLeft(Vec<T> a) {
    if constexpr (sizeof(T) == 2) return {_mm256_slli_epi16(a.v, N)};
    else if constexpr (sizeof(T) == 4) return {_mm256_slli_epi32(a.v, N)};
    else return {_mm256_slli_epi64(a.v, N)};
}
template <int N, class T>
inline Vec<T> shiftRight(Vec<T> a) {
    if constexpr (sizeof(T) == 2) {
        if constexpr (std::is_signed_v<T>) return {_mm256_srai_epi16(a.v, N)};
        else return {_mm256_srli_epi16(a.v, N)};
    } else if constexpr (sizeof(T) == 4) {
        if constexpr (std::is_signed_v<T>) return {_mm256_srai_epi32(a.v, N)};
        else return {_mm256_srli_epi32(a.v, N)};
    } else {
        static_assert(!std::is_signed_v<T>, "no 64-bit arithmetic shift in this layer");
        return {_mm256_srli_epi64(a.v, N)};
    }
}
using v128::ShiftCount;
using v128::shiftCount;
template <class T>
inline Vec<T> shiftLeft(Vec<T> a, ShiftCount n) {
    if constexpr (sizeof(T) == 2) return {_mm256_sll_epi16(a.v, n.c)};
    else if constexpr (sizeof(T) == 4) return {_mm256_sll_epi32(a.v, n.c)};
    else return {_mm256_sll_epi64(a.v, n.c)};
}
template <class T>
inline Vec<T> shiftRight(Vec<T> a, ShiftCount n) {
    if constexpr (sizeof(T) == 2) {
        if constexpr (std::is_signed_v<T>) return {_mm256_sra_epi16(a.v, n.c)};
        else return {_mm256_srl_epi16(a.v, n.c)};
    } else if constexpr (sizeof(T) == 4) {
        if constexpr (std::is_signed_v<T>) return {_mm256_sra_epi32(a.v, n.c)};
        else return {_mm256_srl_epi32(a.v, n.c)};
    } else {
        static_assert(!std::is_signed_v<T>, "no 64-bit arithmetic shift in this layer");
        return {_mm256_srl_epi64(a.v, n.c)};
    }
}

// ---- comparisons (all-ones lanes where true) ------------------------------------------
template <class T>
inline Vec<T> cmpEq(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm256_cmp_ps(a.v, b.v, _CMP_EQ_OQ)};
    else if constexpr (std::is_same_v<T, double>) return {_mm256_cmp_pd(a.v, b.v, _CMP_EQ_OQ)};
    else if constexpr (sizeof(T) == 1) return {_mm256_cmpeq_epi8(a.v, b.v)};
    else if constexpr (sizeof(T) == 2) return {_mm256_cmpeq_epi16(a.v, b.v)};
    else return {_mm256_cmpeq_epi32(a.v, b.v)};
}
template <class T>
inline Vec<T> cmpGt(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm256_cmp_ps(a.v, b.v, _CMP_GT_OS)};
    else if constexpr (std::is_same_v<T, double>) return {_mm256_cmp_pd(a.v, b.v, _CMP_GT_OS)};
    else {
        static_assert(std::is_signed_v<T>, "signed lanes");
        if constexpr (sizeof(T) == 1) return {_mm256_cmpgt_epi8(a.v, b.v)};
        else if constexpr (sizeof(T) == 2) return {_mm256_cmpgt_epi16(a.v, b.v)};
        else return {_mm256_cmpgt_epi32(a.v, b.v)};
    }
}
// Lanes where a < b does not hold: a >= b, or either is NaN.
inline Vec<float> cmpNotLess(Vec<float> a, Vec<float> b) { return {_mm256_cmp_ps(a.v, b.v, _CMP_NLT_US)}; }
template <class T>
inline bool anyTrue(Vec<T> m) { return _mm256_movemask_epi8(bits(m)) != 0; }
template <class T>
inline bool allTrue(Vec<T> m) { return _mm256_movemask_epi8(bits(m)) == -1; }
// Threshold and compare family: a <= b, false where either is NaN.
inline Vec<float> cmpLe(Vec<float> a, Vec<float> b) { return {_mm256_cmp_ps(a.v, b.v, _CMP_LE_OS)}; }

// ---- min / max ------------------------------------------------------------------------
inline Vec<std::uint8_t> min(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm256_min_epu8(a.v, b.v)}; }
inline Vec<std::uint8_t> max(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm256_max_epu8(a.v, b.v)}; }
inline Vec<std::int16_t> min(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm256_min_epi16(a.v, b.v)}; }
inline Vec<std::int16_t> max(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm256_max_epi16(a.v, b.v)}; }
inline Vec<std::uint16_t> min(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm256_min_epu16(a.v, b.v)}; }
inline Vec<std::uint16_t> max(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm256_max_epu16(a.v, b.v)}; }
inline Vec<std::int32_t> min(Vec<std::int32_t> a, Vec<std::int32_t> b) { return {_mm256_min_epi32(a.v, b.v)}; }
inline Vec<std::int32_t> max(Vec<std::int32_t> a, Vec<std::int32_t> b) { return {_mm256_max_epi32(a.v, b.v)}; }
// minps/maxps semantics: the second operand where either is NaN.
inline Vec<float> min(Vec<float> a, Vec<float> b) { return {_mm256_min_ps(a.v, b.v)}; }
inline Vec<float> max(Vec<float> a, Vec<float> b) { return {_mm256_max_ps(a.v, b.v)}; }
inline Vec<double> min(Vec<double> a, Vec<double> b) { return {_mm256_min_pd(a.v, b.v)}; }
inline Vec<double> max(Vec<double> a, Vec<double> b) { return {_mm256_max_pd(a.v, b.v)}; }

// ---- interleave, widen, narrow (whole-vector order) --------------------------------------
// The 64-bit quarters in the order 0, 2, 1, 3: the 16-byte unpacks of two
// vectors so ordered interleave the low halves (unpacklo) or high halves
// (unpackhi) of the originals.
inline __m256i quartersCrossed(__m256i a) { return _mm256_permute4x64_epi64(a, 0xD8); }

template <class T>
inline Vec<T> zipLo(Vec<T> a, Vec<T> b) {
    const __m256i x = quartersCrossed(bits(a)), y = quartersCrossed(bits(b));
    if constexpr (sizeof(T) == 1) return fromBits<T>(_mm256_unpacklo_epi8(x, y));
    else if constexpr (sizeof(T) == 2) return fromBits<T>(_mm256_unpacklo_epi16(x, y));
    else if constexpr (sizeof(T) == 4) return fromBits<T>(_mm256_unpacklo_epi32(x, y));
    else return fromBits<T>(_mm256_unpacklo_epi64(x, y));
}
template <class T>
inline Vec<T> zipHi(Vec<T> a, Vec<T> b) {
    const __m256i x = quartersCrossed(bits(a)), y = quartersCrossed(bits(b));
    if constexpr (sizeof(T) == 1) return fromBits<T>(_mm256_unpackhi_epi8(x, y));
    else if constexpr (sizeof(T) == 2) return fromBits<T>(_mm256_unpackhi_epi16(x, y));
    else if constexpr (sizeof(T) == 4) return fromBits<T>(_mm256_unpackhi_epi32(x, y));
    else return fromBits<T>(_mm256_unpackhi_epi64(x, y));
}

// Zero- or sign-extends one 16-byte half to twice the width.
template <class W, class T>
inline Vec<W> widenHalf(__m128i h) {
    static_assert(sizeof(W) == 2 * sizeof(T), "one step wider");
    if constexpr (sizeof(T) == 1) return fromBits<W>(std::is_signed_v<T> ? _mm256_cvtepi8_epi16(h) : _mm256_cvtepu8_epi16(h));
    else if constexpr (sizeof(T) == 2) return fromBits<W>(std::is_signed_v<T> ? _mm256_cvtepi16_epi32(h) : _mm256_cvtepu16_epi32(h));
    else return fromBits<W>(std::is_signed_v<T> ? _mm256_cvtepi32_epi64(h) : _mm256_cvtepu32_epi64(h));
}
template <class W, class T>
inline Vec<W> widenLo(Vec<T> a) {
    return widenHalf<W, T>(_mm256_castsi256_si128(bits(a)));
}
template <class W, class T>
inline Vec<W> widenHi(Vec<T> a) {
    return widenHalf<W, T>(_mm256_extracti128_si256(bits(a), 1));
}

// Saturating narrowing of two vectors into one (lo's lanes first).
inline Vec<std::uint8_t> packSat(Vec<std::int16_t> lo, Vec<std::int16_t> hi, std::uint8_t) {
    return {_mm256_permute4x64_epi64(_mm256_packus_epi16(lo.v, hi.v), 0xD8)};
}
inline Vec<std::int8_t> packSat(Vec<std::int16_t> lo, Vec<std::int16_t> hi, std::int8_t) {
    return {_mm256_permute4x64_epi64(_mm256_packs_epi16(lo.v, hi.v), 0xD8)};
}
inline Vec<std::int16_t> packSat(Vec<std::int32_t> lo, Vec<std::int32_t> hi, std::int16_t) {
    return {_mm256_permute4x64_epi64(_mm256_packs_epi32(lo.v, hi.v), 0xD8)};
}
inline Vec<std::uint16_t> packSat(Vec<std::int32_t> lo, Vec<std::int32_t> hi, std::uint16_t) {
    return {_mm256_permute4x64_epi64(_mm256_packus_epi32(lo.v, hi.v), 0xD8)};
}
template <class N, class W>
inline Vec<N> packSat(Vec<W> lo, Vec<W> hi) {
    return packSat(lo, hi, N{});
}

// ---- conversions ----------------------------------------------------------------------
inline Vec<float> toFloat(Vec<std::int32_t> a) { return {_mm256_cvtepi32_ps(a.v)}; }
inline Vec<std::int32_t> toInt(Vec<float> a) { return {_mm256_cvtps_epi32(a.v)}; }
inline Vec<std::int32_t> toIntTrunc(Vec<float> a) { return {_mm256_cvttps_epi32(a.v)}; }
inline Vec<double> toDoubleLo(Vec<std::int32_t> a) { return {_mm256_cvtepi32_pd(_mm256_castsi256_si128(a.v))}; }
inline Vec<double> toDoubleHi(Vec<std::int32_t> a) { return {_mm256_cvtepi32_pd(_mm256_extracti128_si256(a.v, 1))}; }
inline Vec<double> toDoubleLo(Vec<float> a) { return {_mm256_cvtps_pd(_mm256_castps256_ps128(a.v))}; }
inline Vec<double> toDoubleHi(Vec<float> a) { return {_mm256_cvtps_pd(_mm256_extractf128_ps(a.v, 1))}; }
inline Vec<std::int32_t> toInt(Vec<double> lo, Vec<double> hi) {
    return {_mm256_inserti128_si256(_mm256_castsi128_si256(_mm256_cvtpd_epi32(lo.v)), _mm256_cvtpd_epi32(hi.v), 1)};
}
inline Vec<float> toFloat(Vec<double> lo, Vec<double> hi) {
    return {_mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(lo.v)), _mm256_cvtpd_ps(hi.v), 1)};
}
inline Vec<std::uint32_t> lowHalves(Vec<double> lo, Vec<double> hi) {
    const __m256 s = _mm256_shuffle_ps(_mm256_castpd_ps(lo.v), _mm256_castpd_ps(hi.v), 0x88);
    return {quartersCrossed(_mm256_castps_si256(s))};
}
using v128::getControl;
using v128::kRoundNearest;
using v128::kRoundTowardZero;
using v128::prefetch;
using v128::setControl;
using v128::toIntScalar;
using v128::withRounding;

// ---- channel shuffles -----------------------------------------------------------------
// K interleaved vectors (kLanes pixels of K elements) to K planes and back, by
// byte shuffles within 16-byte lanes and permutes across them.
inline constexpr bool kCheapPlaneShuffles = true;

// A 16-byte control in both lanes.
inline __m256i control(const isa_tables::Control& c) {
    return _mm256_broadcastsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(c.b)));
}

// out[c].q[k] = in[k].q[c]: the 4 x 4 transpose of 64-bit quarters (its own inverse).
inline void transposeQuarters(const __m256i in[4], __m256i out[4]) {
    const __m256i t0 = _mm256_unpacklo_epi64(in[0], in[1]), t1 = _mm256_unpackhi_epi64(in[0], in[1]);
    const __m256i t2 = _mm256_unpacklo_epi64(in[2], in[3]), t3 = _mm256_unpackhi_epi64(in[2], in[3]);
    out[0] = _mm256_permute2x128_si256(t0, t2, 0x20);
    out[1] = _mm256_permute2x128_si256(t1, t3, 0x20);
    out[2] = _mm256_permute2x128_si256(t0, t2, 0x31);
    out[3] = _mm256_permute2x128_si256(t1, t3, 0x31);
}

// Four-element pixels: each channel's elements gathered in a 64-bit quarter
// per vector (a byte shuffle per lane, a dword permute), then the quarters
// transposed.
template <class T>
inline void deinterleave4(const Vec<T> in[4], Vec<T> out[4]) {
    constexpr int E = int(sizeof(T));
    __m256i x[4], y[4];
    for (int k = 0; k < 4; ++k) {
        x[k] = bits(in[k]);
        if constexpr (E < 4) x[k] = _mm256_shuffle_epi8(x[k], control(isa_tables::Controls<E>::kDeinterleave4));
        if constexpr (E < 8) x[k] = _mm256_permutevar8x32_epi32(x[k], _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7));
    }
    transposeQuarters(x, y);
    for (int k = 0; k < 4; ++k) out[k] = fromBits<T>(y[k]);
}
template <class T>
inline void interleave4(const Vec<T> in[4], Vec<T> out[4]) {
    constexpr int E = int(sizeof(T));
    __m256i x[4], y[4];
    for (int k = 0; k < 4; ++k) x[k] = bits(in[k]);
    transposeQuarters(x, y);
    for (int k = 0; k < 4; ++k) {
        if constexpr (E < 8) y[k] = _mm256_permutevar8x32_epi32(y[k], _mm256_setr_epi32(0, 2, 4, 6, 1, 3, 5, 7));
        if constexpr (E < 4) y[k] = _mm256_shuffle_epi8(y[k], control(isa_tables::Controls<E>::kInterleave4));
        out[k] = fromBits<T>(y[k]);
    }
}

// Three-element pixels: the six 16-byte chunks regrouped so that each lane
// holds three consecutive chunks (whole pixels), then each plane is the OR of
// three byte shuffles.
template <class T>
inline void deinterleave3(const Vec<T> in[3], Vec<T> out[3]) {
    using C = isa_tables::Controls<int(sizeof(T))>;
    const __m256i a = bits(in[0]), b = bits(in[1]), c = bits(in[2]);
    const __m256i x[3] = {_mm256_permute2x128_si256(a, b, 0x30), _mm256_permute2x128_si256(a, c, 0x21),
                          _mm256_permute2x128_si256(b, c, 0x30)};
    for (int ch = 0; ch < 3; ++ch) {
        __m256i v = _mm256_shuffle_epi8(x[0], control(C::kDeinterleave3[0][ch]));
        v = _mm256_or_si256(v, _mm256_shuffle_epi8(x[1], control(C::kDeinterleave3[1][ch])));
        v = _mm256_or_si256(v, _mm256_shuffle_epi8(x[2], control(C::kDeinterleave3[2][ch])));
        out[ch] = fromBits<T>(v);
    }
}
template <class T>
inline void interleave3(const Vec<T> in[3], Vec<T> out[3]) {
    using C = isa_tables::Controls<int(sizeof(T))>;
    __m256i x[3];
    for (int s = 0; s < 3; ++s) {
        __m256i v = _mm256_shuffle_epi8(bits(in[0]), control(C::kInterleave3[s][0]));
        v = _mm256_or_si256(v, _mm256_shuffle_epi8(bits(in[1]), control(C::kInterleave3[s][1])));
        x[s] = _mm256_or_si256(v, _mm256_shuffle_epi8(bits(in[2]), control(C::kInterleave3[s][2])));
    }
    out[0] = fromBits<T>(_mm256_permute2x128_si256(x[0], x[1], 0x20));
    out[1] = fromBits<T>(_mm256_permute2x128_si256(x[2], x[0], 0x30));
    out[2] = fromBits<T>(_mm256_permute2x128_si256(x[1], x[2], 0x31));
}

// Elements 0 and 2 of every four-element pixel exchanged: one byte shuffle
// (pixels never cross a 16-byte half).
template <class T>
inline Vec<T> swapFirstAndThird(Vec<T> a) {
    __m256i c;
    if constexpr (sizeof(T) == 1)
        c = _mm256_setr_epi8(2, 1, 0, 3, 6, 5, 4, 7, 10, 9, 8, 11, 14, 13, 12, 15, 2, 1, 0, 3, 6, 5, 4, 7, 10, 9, 8,
                             11, 14, 13, 12, 15);
    else if constexpr (sizeof(T) == 2)
        c = _mm256_setr_epi8(4, 5, 2, 3, 0, 1, 6, 7, 12, 13, 10, 11, 8, 9, 14, 15, 4, 5, 2, 3, 0, 1, 6, 7, 12, 13, 10,
                             11, 8, 9, 14, 15);
    else
        return fromBits<T>(_mm256_shuffle_epi32(bits(a), 0xC6));
    return fromBits<T>(_mm256_shuffle_epi8(bits(a), c));
}

// ---- reversal (mirror and border family) ---------------------------------------------------
// The units of Bytes bytes (1, 2, 4, 8 or 16) of a in reverse order.
template <int Bytes, class T>
inline Vec<T> reverseUnits(Vec<T> a) {
    static_assert(Bytes == 1 || Bytes == 2 || Bytes == 4 || Bytes == 8 || Bytes == 16, "unit size");
    __m256i x = bits(a);
    if constexpr (Bytes == 16) {
        x = _mm256_permute4x64_epi64(x, 0x4E);
    } else if constexpr (Bytes == 8) {
        x = _mm256_permute4x64_epi64(x, 0x1B);
    } else if constexpr (Bytes == 4) {
        x = _mm256_permutevar8x32_epi32(x, _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0));
    } else {
        // each 16-byte half reversed in place, then the halves exchanged
        const __m128i c = Bytes == 2 ? _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1)
                                     : _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
        x = _mm256_permute4x64_epi64(_mm256_shuffle_epi8(x, _mm256_broadcastsi128_si256(c)), 0x4E);
    }
    return fromBits<T>(x);
}

// ---- statistics (sums, means and extrema) ------------------------------------------------------
// The sum of each group of eight bytes, in its 64-bit lane (exact).
inline Vec<std::uint64_t> sumBytes(Vec<std::uint8_t> a) { return {_mm256_sad_epu8(a.v, _mm256_setzero_si256())}; }
// kLanes<double> floats from p (any alignment), each converted to double (exact).
inline Vec<double> loadToDouble(const float* p) { return {_mm256_cvtps_pd(_mm_loadu_ps(p))}; }
// a itself, held in a register: the compiler cannot fold the load that
// produced it again into each instruction that uses it. A loaded vector
// that several instructions use is then read once, and a stream that
// misses the caches issues one load per vector, not one per use, keeping
// more distinct lines in flight. Emits nothing.
template <class T>
inline Vec<T> inRegister(Vec<T> a) {
    __asm__("" : "+v"(a.v));
    return a;
}
// The lower (higher) of x and acc by value, with -0 below +0; acc where x is NaN.
inline Vec<float> minOrdered(Vec<float> x, Vec<float> acc) {
    return {_mm256_or_ps(_mm256_min_ps(x.v, acc.v), _mm256_and_ps(_mm256_cmp_ps(x.v, acc.v, _CMP_EQ_OQ), x.v))};
}
inline Vec<float> maxOrdered(Vec<float> x, Vec<float> acc) {
    return {_mm256_andnot_ps(_mm256_andnot_ps(x.v, _mm256_cmp_ps(x.v, acc.v, _CMP_EQ_OQ)), _mm256_max_ps(x.v, acc.v))};
}

// ---- general filter and convolution (filter family) ----------------------------------------
// The 16 bytes at p (16-byte aligned) in both 16-byte halves.
template <class T>
inline Vec<T> loadBlock(const T* p) {
    if constexpr (std::is_same_v<T, float>) return {_mm256_broadcast_ps(reinterpret_cast<const __m128*>(p))};
    else if constexpr (std::is_same_v<T, double>) return {_mm256_broadcast_pd(reinterpret_cast<const __m128d*>(p))};
    else return {_mm256_broadcastsi128_si256(_mm_load_si128(reinterpret_cast<const __m128i*>(p)))};
}
// kLanes<W> elements of T from p, each converted to W exactly (see v128).
template <class W, class T>
inline Vec<W> loadExpand(const T* p) {
    static_assert(sizeof(W) >= sizeof(T), "a widening load");
    const auto* q = reinterpret_cast<const __m128i*>(p);
    if constexpr (std::is_same_v<W, T>) {
        return loadU(p);
    } else if constexpr (std::is_same_v<W, float>) {
        return toFloat(loadExpand<std::int32_t>(p));
    } else if constexpr (sizeof(T) == 1 && sizeof(W) == 4) {
        return fromBits<W>(_mm256_cvtepu8_epi32(_mm_loadl_epi64(q)));
    } else if constexpr (sizeof(T) == 1) {
        static_assert(sizeof(W) == 2 && !std::is_signed_v<T>, "unsigned bytes to 16-bit lanes");
        return fromBits<W>(_mm256_cvtepu8_epi16(_mm_loadu_si128(q)));
    } else {
        static_assert(sizeof(T) == 2 && sizeof(W) == 4, "16-bit to 32-bit lanes");
        return widenHalf<W, T>(_mm_loadu_si128(q));
    }
}
// Interleaving and narrowing within each 16-byte half (see v128).
template <class T>
inline Vec<T> zipLoBlocks(Vec<T> a, Vec<T> b) {
    if constexpr (sizeof(T) == 1) return fromBits<T>(_mm256_unpacklo_epi8(bits(a), bits(b)));
    else if constexpr (sizeof(T) == 2) return fromBits<T>(_mm256_unpacklo_epi16(bits(a), bits(b)));
    else if constexpr (sizeof(T) == 4) return fromBits<T>(_mm256_unpacklo_epi32(bits(a), bits(b)));
    else return fromBits<T>(_mm256_unpacklo_epi64(bits(a), bits(b)));
}
template <class T>
inline Vec<T> zipHiBlocks(Vec<T> a, Vec<T> b) {
    if constexpr (sizeof(T) == 1) return fromBits<T>(_mm256_unpackhi_epi8(bits(a), bits(b)));
    else if constexpr (sizeof(T) == 2) return fromBits<T>(_mm256_unpackhi_epi16(bits(a), bits(b)));
    else if constexpr (sizeof(T) == 4) return fromBits<T>(_mm256_unpackhi_epi32(bits(a), bits(b)));
    else return fromBits<T>(_mm256_unpackhi_epi64(bits(a), bits(b)));
}
inline Vec<std::int16_t> packSatBlocks(Vec<std::int32_t> lo, Vec<std::int32_t> hi) { return {_mm256_packs_epi32(lo.v, hi.v)}; }
// ---- frequency transforms ------------------------------------------------------------
// The kLanes x kLanes block of floats in r (r[i] is row i) transposed in place.
inline void transposeSquare(Vec<float> r[8]) {
    __m256 t[8], s[8];
    for (int i = 0; i < 4; ++i) {
        t[2 * i] = _mm256_unpacklo_ps(r[2 * i].v, r[2 * i + 1].v);
        t[2 * i + 1] = _mm256_unpackhi_ps(r[2 * i].v, r[2 * i + 1].v);
    }
    for (int g = 0; g < 2; ++g) {
        s[4 * g] = _mm256_shuffle_ps(t[4 * g], t[4 * g + 2], 0x44);
        s[4 * g + 1] = _mm256_shuffle_ps(t[4 * g], t[4 * g + 2], 0xEE);
        s[4 * g + 2] = _mm256_shuffle_ps(t[4 * g + 1], t[4 * g + 3], 0x44);
        s[4 * g + 3] = _mm256_shuffle_ps(t[4 * g + 1], t[4 * g + 3], 0xEE);
    }
    for (int q = 0; q < 4; ++q) {
        r[q] = {_mm256_permute2f128_ps(s[q], s[q + 4], 0x20)};
        r[q + 4] = {_mm256_permute2f128_ps(s[q], s[q + 4], 0x31)};
    }
}
// Two vectors of interleaved pairs (a0 b0 a1 b1 ...) to the a's and the b's,
// in whole-vector order, and back.
inline void deinterleave2(const Vec<float> in[2], Vec<float> out[2]) {
    const __m256 a = _mm256_shuffle_ps(in[0].v, in[1].v, 0x88), b = _mm256_shuffle_ps(in[0].v, in[1].v, 0xDD);
    out[0] = {_mm256_castpd_ps(_mm256_permute4x64_pd(_mm256_castps_pd(a), 0xD8))};
    out[1] = {_mm256_castpd_ps(_mm256_permute4x64_pd(_mm256_castps_pd(b), 0xD8))};
}
inline void interleave2(const Vec<float> in[2], Vec<float> out[2]) {
    const __m256 lo = _mm256_unpacklo_ps(in[0].v, in[1].v), hi = _mm256_unpackhi_ps(in[0].v, in[1].v);
    out[0] = {_mm256_permute2f128_ps(lo, hi, 0x20)};
    out[1] = {_mm256_permute2f128_ps(lo, hi, 0x31)};
}

// ---- box filter and window sums (filter family) --------------------------------------------
// 32-bit lanes moved up by K lanes across the whole vector (see v128).
template <int K, class T>
inline Vec<T> shiftLanesUp(Vec<T> a) {
    static_assert(sizeof(T) == 4 && K >= 0 && K < 8, "32-bit lanes, a shift within the vector");
    if constexpr (K == 0) {
        return a;
    } else {
        const __m256i idx = _mm256_setr_epi32((0 - K) & 7, (1 - K) & 7, (2 - K) & 7, (3 - K) & 7, (4 - K) & 7,
                                              (5 - K) & 7, (6 - K) & 7, (7 - K) & 7);
        const __m256i moved = _mm256_permutevar8x32_epi32(bits(a), idx);
        return fromBits<T>(_mm256_blend_epi32(_mm256_setzero_si256(), moved, (0xFF << K) & 0xFF));
    }
}
// The last C 32-bit lanes repeated over the vector (see v128).
template <int C, class T>
inline Vec<T> repeatLastPixel(Vec<T> a) {
    static_assert(sizeof(T) == 4 && C >= 1 && C <= 4, "32-bit lanes, 1 to 4 channels");
    const __m256i idx = _mm256_setr_epi32(8 - C, 8 - C + 1 % C, 8 - C + 2 % C, 8 - C + 3 % C, 8 - C + 4 % C,
                                          8 - C + 5 % C, 8 - C + 6 % C, 8 - C + 7 % C);
    return fromBits<T>(_mm256_permutevar8x32_epi32(bits(a), idx));
}

// ---- warp family ---------------------------------------------------------------------------
// The largest integer not above each lane (the 16-byte layer's meaning for
// lanes within +-2^31).
inline Vec<double> floor(Vec<double> a) { return {_mm256_floor_pd(a.v)}; }

}  // namespace v256
QVN_TARGET_END

#endif
