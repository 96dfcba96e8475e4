// The 64-byte vector layer of the avx512 target (AVX-512 F, BW, DQ and VL):
// the functions of v128.h on 64-byte vectors, with the same meaning for the
// whole vector. Comparisons produce all-ones lanes, as on the other layers
// (from the mask registers); selects are one ternary-logic instruction. Stores
// that keep some lanes read the vector, select and store it whole: a masked
// store of a partial mask costs twice the time on processors that split
// 64-byte operations (measured: 0.057 against 0.029 ns per byte over 33 MB).
//
// Floating-point operations keep the 16-byte layer's instruction families:
// the approximate reciprocal is rcpps on two 32-byte halves (the 14-bit
// AVX-512 reciprocal would give other bits), comparisons use the predicates of
// their SSE forms, and nothing is fused.
#ifndef QVN_KERNELS_ISA_V512_H
#define QVN_KERNELS_ISA_V512_H

#include <immintrin.h>

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "kernels/isa/v256.h"
#include "kernels/target.h"

#if QVN_TARGET_LEVEL < 3
#error "v512.h needs a target with AVX-512 F, BW, DQ and VL"
#endif

QVN_TARGET_BEGIN
namespace v512 {

#define QVN_VBYTES 64
#define QVN_VINT __m512i
#define QVN_VFLOAT __m512
#define QVN_VDOUBLE __m512d
#include "kernels/isa/layer-types.inc"
#undef QVN_VBYTES
#undef QVN_VINT
#undef QVN_VFLOAT
#undef QVN_VDOUBLE

// ---- raw views ---------------------------------------------------------------
template <class T>
inline __m512i bits(Vec<T> a) {
    if constexpr (std::is_same_v<T, float>) return _mm512_castps_si512(a.v);
    else if constexpr (std::is_same_v<T, double>) return _mm512_castpd_si512(a.v);
    else return a.v;
}
template <class T>
inline Vec<T> fromBits(__m512i b) {
    if constexpr (std::is_same_v<T, float>) return {_mm512_castsi512_ps(b)};
    else if constexpr (std::is_same_v<T, double>) return {_mm512_castsi512_pd(b)};
    else return {b};
}
template <class U, class T>
inline Vec<U> cast(Vec<T> a) {
    return fromBits<U>(bits(a));
}

// The 32-byte halves, and a vector made of two halves.
template <class T>
inline v256::Vec<T> lowHalf(Vec<T> a) {
    return v256::fromBits<T>(_mm512_castsi512_si256(bits(a)));
}
template <class T>
inline v256::Vec<T> highHalf(Vec<T> a) {
    return v256::fromBits<T>(_mm512_extracti64x4_epi64(bits(a), 1));
}
template <class T>
inline Vec<T> combine(v256::Vec<T> lo, v256::Vec<T> hi) {
    return fromBits<T>(_mm512_inserti64x4(_mm512_zextsi256_si512(v256::bits(lo)), v256::bits(hi), 1));
}

// ---- loads and stores ------------------------------------------------------------
template <class T>
inline Vec<T> loadU(const T* p) {
    return fromBits<T>(_mm512_loadu_si512(p));
}
template <class T>
inline Vec<T> loadA(const T* p) {
    return fromBits<T>(_mm512_load_si512(p));
}
template <class T>
inline void storeU(T* p, Vec<T> a) {
    _mm512_storeu_si512(p, bits(a));
}
template <class T>
inline void storeA(T* p, Vec<T> a) {
    _mm512_store_si512(p, bits(a));
}
// Non-temporal store to a 64-byte aligned address; finish with storeFence().
template <class T>
inline void storeStream(T* p, Vec<T> a) {
    _mm512_stream_si512(reinterpret_cast<__m512i*>(p), bits(a));
}
using v128::storeFence;

// ---- constants ---------------------------------------------------------------------
template <class T>
inline Vec<T> zero() {
    return fromBits<T>(_mm512_setzero_si512());
}
template <class T>
inline Vec<T> set1(T x) {
    if constexpr (sizeof(T) == 1) return {_mm512_set1_epi8(static_cast<char>(x))};
    else if constexpr (std::is_same_v<T, float>) return {_mm512_set1_ps(x)};
    else if constexpr (std::is_same_v<T, double>) return {_mm512_set1_pd(x)};
    else if constexpr (sizeof(T) == 2) return {_mm512_set1_epi16(static_cast<short>(x))};
    else if constexpr (sizeof(T) == 4) return {_mm512_set1_epi32(static_cast<int>(x))};
    else return {_mm512_set1_epi64(static_cast<long long>(x))};
}
template <class T>
inline Vec<T> allOnes() { return fromBits<T>(_mm512_set1_epi32(-1)); }

// ---- masks ---------------------------------------------------------------------------
// Comparison results as all-ones lanes, from a mask register.
template <class T>
inline Vec<T> fromMask(std::uint64_t m) {
    if constexpr (sizeof(T) == 1) return fromBits<T>(_mm512_movm_epi8(m));
    else if constexpr (sizeof(T) == 2) return fromBits<T>(_mm512_movm_epi16(static_cast<__mmask32>(m)));
    else if constexpr (sizeof(T) == 4) return fromBits<T>(_mm512_movm_epi32(static_cast<__mmask16>(m)));
    else return fromBits<T>(_mm512_movm_epi64(static_cast<__mmask8>(m)));
}
// One bit per byte: the top bit of each byte.
template <class T>
inline std::uint64_t byteMask(Vec<T> a) {
    return _mm512_movepi8_mask(bits(a));
}

// ---- bitwise ---------------------------------------------------------------------------
template <class T>
inline Vec<T> bitAnd(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm512_and_si512(bits(a), bits(b))); }
template <class T>
inline Vec<T> bitOr(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm512_or_si512(bits(a), bits(b))); }
template <class T>
inline Vec<T> bitXor(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm512_xor_si512(bits(a), bits(b))); }
template <class T>
inline Vec<T> andNot(Vec<T> a, Vec<T> b) { return fromBits<T>(_mm512_andnot_si512(bits(a), bits(b))); }
// Bits of a where mask bits are set, of b elsewhere.
template <class T>
inline Vec<T> select(Vec<T> mask, Vec<T> a, Vec<T> b) {
    return fromBits<T>(_mm512_ternarylogic_epi64(bits(mask), bits(a), bits(b), 0xCA));
}
// v at p except in the lanes set in keep, which are not written.
template <class T>
inline void storeKeep(T* p, Vec<T> v, Vec<T> keep) {
    storeU(p, select(keep, loadU(p), v));
}

// ---- arithmetic ---------------------------------------------------------------------------
template <class T>
inline Vec<T> add(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm512_add_ps(a.v, b.v)};
    else if constexpr (std::is_same_v<T, double>) return {_mm512_add_pd(a.v, b.v)};
    else if constexpr (sizeof(T) == 1) return {_mm512_add_epi8(a.v, b.v)};
    else if constexpr (sizeof(T) == 2) return {_mm512_add_epi16(a.v, b.v)};
    else if constexpr (sizeof(T) == 4) return {_mm512_add_epi32(a.v, b.v)};
    else return {_mm512_add_epi64(a.v, b.v)};
}
template <class T>
inline Vec<T> sub(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return {_mm512_sub_ps(a.v, b.v)};
    else if constexpr (std::is_same_v<T, double>) return {_mm512_sub_pd(a.v, b.v)};
    else if constexpr (sizeof(T) == 1) return {_mm512_sub_epi8(a.v, b.v)};
    else if constexpr (sizeof(T) == 2) return {_mm512_sub_epi16(a.v, b.v)};
    else if constexpr (sizeof(T) == 4) return {_mm512_sub_epi32(a.v, b.v)};
    else return {_mm512_sub_epi64(a.v, b.v)};
}
inline Vec<std::uint8_t> addSat(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm512_adds_epu8(a.v, b.v)}; }
inline Vec<std::int8_t> addSat(Vec<std::int8_t> a, Vec<std::int8_t> b) { return {_mm512_adds_epi8(a.v, b.v)}; }
inline Vec<std::uint16_t> addSat(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm512_adds_epu16(a.v, b.v)}; }
inline Vec<std::int16_t> addSat(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm512_adds_epi16(a.v, b.v)}; }
inline Vec<std::uint8_t> subSat(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm512_subs_epu8(a.v, b.v)}; }
inline Vec<std::int8_t> subSat(Vec<std::int8_t> a, Vec<std::int8_t> b) { return {_mm512_subs_epi8(a.v, b.v)}; }
inline Vec<std::uint16_t> subSat(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm512_subs_epu16(a.v, b.v)}; }
inline Vec<std::int16_t> subSat(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm512_subs_epi16(a.v, b.v)}; }

inline Vec<std::int16_t> mulLo(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm512_mullo_epi16(a.v, b.v)}; }
inline Vec<std::uint16_t> mulLo(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm512_mullo_epi16(a.v, b.v)}; }
inline Vec<std::int16_t> mulHi(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm512_mulhi_epi16(a.v, b.v)}; }
inline Vec<std::uint16_t> mulHi(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm512_mulhi_epu16(a.v, b.v)}; }
inline Vec<std::int32_t> mulAddPairs(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm512_madd_epi16(a.v, b.v)}; }
inline Vec<std::uint64_t> mulEven(Vec<std::uint32_t> a, Vec<std::uint32_t> b) { return {_mm512_mul_epu32(a.v, b.v)}; }

inline Vec<float> mul(Vec<float> a, Vec<float> b) { return {_mm512_mul_ps(a.v, b.v)}; }
inline Vec<double> mul(Vec<double> a, Vec<double> b) { return {_mm512_mul_pd(a.v, b.v)}; }
inline Vec<float> div(Vec<float> a, Vec<float> b) { return {_mm512_div_ps(a.v, b.v)}; }
inline Vec<double> div(Vec<double> a, Vec<double> b) { return {_mm512_div_pd(a.v, b.v)}; }
// rcpps on each 32-byte half: the approximation of the other layers.
inline Vec<float> rcpApprox(Vec<float> a) {
    return combine(v256::rcpApprox(lowHalf(a)), v256::rcpApprox(highHalf(a)));
}
// Elementary math: the correctly rounded square root (current rounding control).
inline Vec<float> sqrt(Vec<float> a) { return {_mm512_sqrt_ps(a.v)}; }
inline Vec<double> sqrt(Vec<double> a) { return {_mm512_sqrt_pd(a.v)}; }

// ---- shifts -----------------------------------------------------------------------------
template <int N, class T>
inline Vec<T> shiftLeft(Vec<T> a) {
    if constexpr (sizeof(T) == 2) return {_mm512_slli_epi16(a.v, N)};
    else if constexpr (sizeof(T) == 4) return {_mm512_slli_epi32(a.v, N)};
    else return {_mm512_slli_epi64(a.v, N)};
}
template <int N, class T>
inline Vec<T> shiftRight(Vec<T> a) {
    if constexpr (sizeof(T) == 2) {
        if constexpr (std::is_signed_v<T>) return {_mm512_srai_epi16(a.v, N)};
        else return {_mm512_srli_epi16(a.v, N)};
    } else if constexpr (sizeof(T) == 4) {
        if constexpr (std::is_signed_v<T>) return {_mm512_srai_epi32(a.v, N)};
        else return {_mm512_srli_epi32(a.v, N)};
    } else {
        static_assert(!std::is_signed_v<T>, "no 64-bit arithmetic shift in the other layers");
        return {_mm512_srli_epi64(a.v, N)};
    }
}
using v128::ShiftCount;
using v128::shiftCount;
template <class T>
inline Vec<T> shiftLeft(Vec<T> a, ShiftCount n) {
    if constexpr (sizeof(T) == 2) return {_mm512_sll_epi16(a.v, n.c)};
    else if constexpr (sizeof(T) == 4) return {_mm512_sll_epi32(a.v, n.c)};
    else return {_mm512_sll_epi64(a.v, n.c)};
}
template <class T>
inline Vec<T> shiftRight(Vec<T> a, ShiftCount n) {
    if constexpr (sizeof(T) == 2) {
        if constexpr (std::is_signed_v<T>) return {_mm512_sra_epi16(a.v, n.c)};
        else return {_mm512_srl_epi16(a.v, n.c)};
    } else if constexpr (sizeof(T) == 4) {
        if constexpr (std::is_signed_v<T>) return {_mm512_sra_epi32(a.v, n.c)};
        else return {_mm512_srl_epi32(a.v, n.c)};
    } else {
        static_assert(!std::is_signed_v<T>, "no 64-bit arithmetic shift in the other layers");
        return {_mm512_srl_epi64(a.v, n.c)};
    }
}

// ---- comparisons (all-ones lanes where true) -----------------------------------------------
template <class T>
inline Vec<T> cmpEq(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return fromMask<T>(_mm512_cmp_ps_mask(a.v, b.v, _CMP_EQ_OQ));
    else if constexpr (std::is_same_v<T, double>) return fromMask<T>(_mm512_cmp_pd_mask(a.v, b.v, _CMP_EQ_OQ));
    else if constexpr (sizeof(T) == 1) return fromMask<T>(_mm512_cmpeq_epi8_mask(a.v, b.v));
    else if constexpr (sizeof(T) == 2) return fromMask<T>(_mm512_cmpeq_epi16_mask(a.v, b.v));
    else if constexpr (sizeof(T) == 4) return fromMask<T>(_mm512_cmpeq_epi32_mask(a.v, b.v));
    else return fromMask<T>(_mm512_cmpeq_epi64_mask(a.v, b.v));
}
template <class T>
inline Vec<T> cmpGt(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, float>) return fromMask<T>(_mm512_cmp_ps_mask(a.v, b.v, _CMP_GT_OS));
    else if constexpr (std::is_same_v<T, double>) return fromMask<T>(_mm512_cmp_pd_mask(a.v, b.v, _CMP_GT_OS));
    else {
        static_assert(std::is_signed_v<T>, "signed lanes");
        if constexpr (sizeof(T) == 1) return fromMask<T>(_mm512_cmpgt_epi8_mask(a.v, b.v));
        else if constexpr (sizeof(T) == 2) return fromMask<T>(_mm512_cmpgt_epi16_mask(a.v, b.v));
        else return fromMask<T>(_mm512_cmpgt_epi32_mask(a.v, b.v));
    }
}
inline Vec<float> cmpNotLess(Vec<float> a, Vec<float> b) {
    return fromMask<float>(_mm512_cmp_ps_mask(a.v, b.v, _CMP_NLT_US));
}
template <class T>
inline bool anyTrue(Vec<T> m) { return byteMask(m) != 0; }
template <class T>
inline bool allTrue(Vec<T> m) { return byteMask(m) == ~std::uint64_t(0); }
// Threshold and compare family: a <= b, false where either is NaN.
inline Vec<float> cmpLe(Vec<float> a, Vec<float> b) {
    return fromMask<float>(_mm512_cmp_ps_mask(a.v, b.v, _CMP_LE_OS));
}

// ---- min / max ---------------------------------------------------------------------------
inline Vec<std::uint8_t> min(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm512_min_epu8(a.v, b.v)}; }
inline Vec<std::uint8_t> max(Vec<std::uint8_t> a, Vec<std::uint8_t> b) { return {_mm512_max_epu8(a.v, b.v)}; }
inline Vec<std::int16_t> min(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm512_min_epi16(a.v, b.v)}; }
inline Vec<std::int16_t> max(Vec<std::int16_t> a, Vec<std::int16_t> b) { return {_mm512_max_epi16(a.v, b.v)}; }
inline Vec<std::uint16_t> min(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm512_min_epu16(a.v, b.v)}; }
inline Vec<std::uint16_t> max(Vec<std::uint16_t> a, Vec<std::uint16_t> b) { return {_mm512_max_epu16(a.v, b.v)}; }
inline Vec<std::int32_t> min(Vec<std::int32_t> a, Vec<std::int32_t> b) { return {_mm512_min_epi32(a.v, b.v)}; }
inline Vec<std::int32_t> max(Vec<std::int32_t> a, Vec<std::int32_t> b) { return {_mm512_max_epi32(a.v, b.v)}; }
// minps/maxps semantics: the second operand where either is NaN.
inline Vec<float> min(Vec<float> a, Vec<float> b) { return {_mm512_min_ps(a.v, b.v)}; }
inline Vec<float> max(Vec<float> a, Vec<float> b) { return {_mm512_max_ps(a.v, b.v)}; }
inline Vec<double> min(Vec<double> a, Vec<double> b) { return {_mm512_min_pd(a.v, b.v)}; }
inline Vec<double> max(Vec<double> a, Vec<double> b) { return {_mm512_max_pd(a.v, b.v)}; }

// ---- interleave, widen, narrow (whole-vector order) ------------------------------------------
// The 64-bit eighths in the order 0 4 1 5 2 6 3 7: the 16-byte unpacks of two
// vectors so ordered interleave the low (unpacklo) or high (unpackhi) halves
// of the originals.
inline __m512i eighthsCrossed(__m512i a) {
    return _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 4, 1, 5, 2, 6, 3, 7), a);
}
// The inverse order after an in-lane pack: 0 2 4 6 1 3 5 7.
inline __m512i eighthsPacked(__m512i a) {
    return _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), a);
}

template <class T>
inline Vec<T> zipLo(Vec<T> a, Vec<T> b) {
    const __m512i x = eighthsCrossed(bits(a)), y = eighthsCrossed(bits(b));
    if constexpr (sizeof(T) == 1) return fromBits<T>(_mm512_unpacklo_epi8(x, y));
    else if constexpr (sizeof(T) == 2) return fromBits<T>(_mm512_unpacklo_epi16(x, y));
    else if constexpr (sizeof(T) == 4) return fromBits<T>(_mm512_unpacklo_epi32(x, y));
    else return fromBits<T>(_mm512_unpacklo_epi64(x, y));
}
template <class T>
inline Vec<T> zipHi(Vec<T> a, Vec<T> b) {
    const __m512i x = eighthsCrossed(bits(a)), y = eighthsCrossed(bits(b));
    if constexpr (sizeof(T) == 1) return fromBits<T>(_mm512_unpackhi_epi8(x, y));
    else if constexpr (sizeof(T) == 2) return fromBits<T>(_mm512_unpackhi_epi16(x, y));
    else if constexpr (sizeof(T) == 4) return fromBits<T>(_mm512_unpackhi_epi32(x, y));
    else return fromBits<T>(_mm512_unpackhi_epi64(x, y));
}

template <class W, class T>
inline Vec<W> widenHalf(__m256i h) {
    static_assert(sizeof(W) == 2 * sizeof(T), "one step wider");
    if constexpr (sizeof(T) == 1) return fromBits<W>(std::is_signed_v<T> ? _mm512_cvtepi8_epi16(h) : _mm512_cvtepu8_epi16(h));
    else if constexpr (sizeof(T) == 2) return fromBits<W>(std::is_signed_v<T> ? _mm512_cvtepi16_epi32(h) : _mm512_cvtepu16_epi32(h));
    else return fromBits<W>(std::is_signed_v<T> ? _mm512_cvtepi32_epi64(h) : _mm512_cvtepu32_epi64(h));
}
template <class W, class T>
inline Vec<W> widenLo(Vec<T> a) {
    return widenHalf<W, T>(_mm512_castsi512_si256(bits(a)));
}
template <class W, class T>
inline Vec<W> widenHi(Vec<T> a) {
    return widenHalf<W, T>(_mm512_extracti64x4_epi64(bits(a), 1));
}

inline Vec<std::uint8_t> packSat(Vec<std::int16_t> lo, Vec<std::int16_t> hi, std::uint8_t) {
    return {eighthsPacked(_mm512_packus_epi16(lo.v, hi.v))};
}
inline Vec<std::int8_t> packSat(Vec<std::int16_t> lo, Vec<std::int16_t> hi, std::int8_t) {
    return {eighthsPacked(_mm512_packs_epi16(lo.v, hi.v))};
}
inline Vec<std::int16_t> packSat(Vec<std::int32_t> lo, Vec<std::int32_t> hi, std::int16_t) {
    return {eighthsPacked(_mm512_packs_epi32(lo.v, hi.v))};
}
inline Vec<std::uint16_t> packSat(Vec<std::int32_t> lo, Vec<std::int32_t> hi, std::uint16_t) {
    return {eighthsPacked(_mm512_packus_epi32(lo.v, hi.v))};
}
template <class N, class W>
inline Vec<N> packSat(Vec<W> lo, Vec<W> hi) {
    return packSat(lo, hi, N{});
}

// ---- conversions ---------------------------------------------------------------------------
inline Vec<float> toFloat(Vec<std::int32_t> a) { return {_mm512_cvtepi32_ps(a.v)}; }
// With the current rounding control (the instructions' default operand form).
inline Vec<std::int32_t> toInt(Vec<float> a) { return {_mm512_cvtps_epi32(a.v)}; }
inline Vec<std::int32_t> toIntTrunc(Vec<float> a) { return {_mm512_cvttps_epi32(a.v)}; }
inline Vec<double> toDoubleLo(Vec<std::int32_t> a) { return {_mm512_cvtepi32_pd(_mm512_castsi512_si256(a.v))}; }
inline Vec<double> toDoubleHi(Vec<std::int32_t> a) { return {_mm512_cvtepi32_pd(_mm512_extracti64x4_epi64(a.v, 1))}; }
inline Vec<double> toDoubleLo(Vec<float> a) { return {_mm512_cvtps_pd(_mm512_castps512_ps256(a.v))}; }
inline Vec<double> toDoubleHi(Vec<float> a) {
    return {_mm512_cvtps_pd(_mm256_castpd_ps(_mm512_extractf64x4_pd(_mm512_castps_pd(a.v), 1)))};
}
inline Vec<std::int32_t> toInt(Vec<double> lo, Vec<double> hi) {
    return {_mm512_inserti64x4(_mm512_zextsi256_si512(_mm512_cvtpd_epi32(lo.v)), _mm512_cvtpd_epi32(hi.v), 1)};
}
inline Vec<float> toFloat(Vec<double> lo, Vec<double> hi) {
    const __m256 a = _mm512_cvtpd_ps(lo.v), b = _mm512_cvtpd_ps(hi.v);
    return {_mm512_castpd_ps(_mm512_insertf64x4(_mm512_zextpd256_pd512(_mm256_castps_pd(a)), _mm256_castps_pd(b), 1))};
}
inline Vec<std::uint32_t> lowHalves(Vec<double> lo, Vec<double> hi) {
    return {_mm512_inserti64x4(_mm512_zextsi256_si512(_mm512_cvtepi64_epi32(_mm512_castpd_si512(lo.v))),
                               _mm512_cvtepi64_epi32(_mm512_castpd_si512(hi.v)), 1)};
}
using v128::getControl;
using v128::kRoundNearest;
using v128::kRoundTowardZero;
using v128::prefetch;
using v128::setControl;
using v128::toIntScalar;
using v128::withRounding;

// ---- channel shuffles ------------------------------------------------------------------------
// K interleaved vectors (kLanes pixels of K elements) to K planes and back, by
// byte shuffles within 16-byte lanes and permutes across them.
inline constexpr bool kCheapPlaneShuffles = true;

namespace half = v256;
#include "kernels/isa/layer-halves.inc"

// A 16-byte control in every lane.
inline __m512i control(const isa_tables::Control& c) {
    return _mm512_broadcast_i32x4(_mm_loadu_si128(reinterpret_cast<const __m128i*>(c.b)));
}

// out[c].lane[k] = in[k].lane[c]: the 4 x 4 transpose of 16-byte lanes (its own inverse).
inline void transposeLanes(const __m512i in[4], __m512i out[4]) {
    const __m512i t0 = _mm512_shuffle_i64x2(in[0], in[1], 0x44), t1 = _mm512_shuffle_i64x2(in[0], in[1], 0xEE);
    const __m512i t2 = _mm512_shuffle_i64x2(in[2], in[3], 0x44), t3 = _mm512_shuffle_i64x2(in[2], in[3], 0xEE);
    out[0] = _mm512_shuffle_i64x2(t0, t2, 0x88);
    out[1] = _mm512_shuffle_i64x2(t0, t2, 0xDD);
    out[2] = _mm512_shuffle_i64x2(t1, t3, 0x88);
    out[3] = _mm512_shuffle_i64x2(t1, t3, 0xDD);
}

// Four-element pixels: each lane's channels gathered in its dwords (a byte
// shuffle), the dwords transposed so that lane c holds channel c, then the
// lanes transposed. Eight-byte elements go through the 32-byte halves.
template <class T>
inline void deinterleave4(const Vec<T> in[4], Vec<T> out[4]) {
    constexpr int E = int(sizeof(T));
    if constexpr (E == 8) {
        byHalves<4, T>(in, out, [](const half::Vec<T>* i, half::Vec<T>* o) { half::deinterleave4(i, o); });
    } else {
        const __m512i idx = _mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15);
        __m512i x[4], y[4];
        for (int k = 0; k < 4; ++k) {
            x[k] = bits(in[k]);
            if constexpr (E < 4) x[k] = _mm512_shuffle_epi8(x[k], control(isa_tables::Controls<E>::kDeinterleave4));
            x[k] = _mm512_permutexvar_epi32(idx, x[k]);
        }
        transposeLanes(x, y);
        for (int k = 0; k < 4; ++k) out[k] = fromBits<T>(y[k]);
    }
}
template <class T>
inline void interleave4(const Vec<T> in[4], Vec<T> out[4]) {
    constexpr int E = int(sizeof(T));
    if constexpr (E == 8) {
        byHalvesInverse<4, T>(in, out, [](const half::Vec<T>* i, half::Vec<T>* o) { half::interleave4(i, o); });
    } else {
        const __m512i idx = _mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15);
        __m512i x[4], y[4];
        for (int k = 0; k < 4; ++k) x[k] = bits(in[k]);
        transposeLanes(x, y);
        for (int k = 0; k < 4; ++k) {
            y[k] = _mm512_permutexvar_epi32(idx, y[k]);
            if constexpr (E < 4) y[k] = _mm512_shuffle_epi8(y[k], control(isa_tables::Controls<E>::kInterleave4));
            out[k] = fromBits<T>(y[k]);
        }
    }
}

// Three-element pixels: the twelve 16-byte chunks regrouped so that each lane
// holds three consecutive chunks (whole pixels), then each plane is the OR of
// three byte shuffles.
template <class T>
inline void deinterleave3(const Vec<T> in[3], Vec<T> out[3]) {
    using C = isa_tables::Controls<int(sizeof(T))>;
    const __m512i a = bits(in[0]), b = bits(in[1]), c = bits(in[2]);
    // lanes of x[s]: chunks s, 3 + s, 6 + s, 9 + s (qword indices: a 0-7, then b or c 8-15)
    const __m512i x[3] = {
        _mm512_permutex2var_epi64(_mm512_permutex2var_epi64(a, _mm512_setr_epi64(0, 1, 6, 7, 12, 13, 0, 0), b),
                                  _mm512_setr_epi64(0, 1, 2, 3, 4, 5, 10, 11), c),
        _mm512_permutex2var_epi64(_mm512_permutex2var_epi64(a, _mm512_setr_epi64(2, 3, 8, 9, 14, 15, 0, 0), b),
                                  _mm512_setr_epi64(0, 1, 2, 3, 4, 5, 12, 13), c),
        _mm512_permutex2var_epi64(_mm512_permutex2var_epi64(a, _mm512_setr_epi64(4, 5, 10, 11, 0, 0, 0, 0), b),
                                  _mm512_setr_epi64(0, 1, 2, 3, 8, 9, 14, 15), c)};
    for (int ch = 0; ch < 3; ++ch) {
        __m512i v = _mm512_shuffle_epi8(x[0], control(C::kDeinterleave3[0][ch]));
        v = _mm512_or_si512(v, _mm512_shuffle_epi8(x[1], control(C::kDeinterleave3[1][ch])));
        v = _mm512_or_si512(v, _mm512_shuffle_epi8(x[2], control(C::kDeinterleave3[2][ch])));
        out[ch] = fromBits<T>(v);
    }
}
template <class T>
inline void interleave3(const Vec<T> in[3], Vec<T> out[3]) {
    using C = isa_tables::Controls<int(sizeof(T))>;
    __m512i x[3];
    for (int s = 0; s < 3; ++s) {
        __m512i v = _mm512_shuffle_epi8(bits(in[0]), control(C::kInterleave3[s][0]));
        v = _mm512_or_si512(v, _mm512_shuffle_epi8(bits(in[1]), control(C::kInterleave3[s][1])));
        x[s] = _mm512_or_si512(v, _mm512_shuffle_epi8(bits(in[2]), control(C::kInterleave3[s][2])));
    }
    // chunk 3k + s is lane k of x[s]; vector v holds chunks 4v .. 4v + 3
    out[0] = fromBits<T>(_mm512_permutex2var_epi64(
        _mm512_permutex2var_epi64(x[0], _mm512_setr_epi64(0, 1, 8, 9, 0, 0, 2, 3), x[1]),
        _mm512_setr_epi64(0, 1, 2, 3, 8, 9, 6, 7), x[2]));
    out[1] = fromBits<T>(_mm512_permutex2var_epi64(
        _mm512_permutex2var_epi64(x[1], _mm512_setr_epi64(2, 3, 0, 0, 12, 13, 4, 5), x[0]),
        _mm512_setr_epi64(0, 1, 10, 11, 4, 5, 6, 7), x[2]));
    out[2] = fromBits<T>(_mm512_permutex2var_epi64(
        _mm512_permutex2var_epi64(x[2], _mm512_setr_epi64(4, 5, 14, 15, 0, 0, 6, 7), x[0]),
        _mm512_setr_epi64(0, 1, 2, 3, 14, 15, 6, 7), x[1]));
}

template <class T>
inline Vec<T> swapFirstAndThird(Vec<T> a) {
    if constexpr (sizeof(T) == 4) {
        return fromBits<T>(_mm512_shuffle_epi32(bits(a), _MM_PERM_DABC));
    } else {
        const __m256i c = v256::bits(v256::swapFirstAndThird(v256::Vec<T>{_mm256_setr_epi8(
            0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15)}));
        // the 16-byte control repeats in every quarter: swapping the identity gives it
        return fromBits<T>(_mm512_shuffle_epi8(bits(a), _mm512_broadcast_i64x4(c)));
    }
}

// ---- reversal (mirror and border family) ---------------------------------------------------------
// The units of Bytes bytes (1, 2, 4, 8 or 16) of a in reverse order.
template <int Bytes, class T>
inline Vec<T> reverseUnits(Vec<T> a) {
    static_assert(Bytes == 1 || Bytes == 2 || Bytes == 4 || Bytes == 8 || Bytes == 16, "unit size");
    __m512i x = bits(a);
    if constexpr (Bytes == 16) {
        x = _mm512_shuffle_i64x2(x, x, 0x1B);
    } else if constexpr (Bytes == 8) {
        x = _mm512_permutexvar_epi64(_mm512_setr_epi64(7, 6, 5, 4, 3, 2, 1, 0), x);
    } else if constexpr (Bytes == 4) {
        x = _mm512_permutexvar_epi32(_mm512_setr_epi32(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0), x);
    } else if constexpr (Bytes == 2) {
        x = _mm512_permutexvar_epi16(_mm512_set_epi16(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17,
                                                      18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31), x);
    } else {
        // each 16-byte quarter reversed in place (a whole-vector byte permute
        // needs VBMI), then the quarters in reverse order
        const __m128i c = _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
        x = _mm512_shuffle_epi8(x, _mm512_broadcast_i32x4(c));
        x = _mm512_shuffle_i64x2(x, x, 0x1B);
    }
    return fromBits<T>(x);
}

// ---- statistics (sums, means and extrema) ------------------------------------------------------
// The sum of each group of eight bytes, in its 64-bit lane (exact).
inline Vec<std::uint64_t> sumBytes(Vec<std::uint8_t> a) { return {_mm512_sad_epu8(a.v, _mm512_setzero_si512())}; }
// kLanes<double> floats from p (any alignment), each converted to double (exact).
inline Vec<double> loadToDouble(const float* p) { return {_mm512_cvtps_pd(_mm256_loadu_ps(p))}; }
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
// The lower (higher) of x and acc by value, with -0 below +0; acc where x is
// NaN. Without a compare: minps(x, FLT_MIN) has its sign bit set exactly for
// a negative x (-0 included, NaN not), and that sign is ORed into
// minps(x, acc), which then turns an equal +0 into -0 and changes nothing
// else; maxps(x, -FLT_MIN) has it clear exactly for x >= +0, and that clears
// the sign of maxps(x, acc).
inline Vec<float> minOrdered(Vec<float> x, Vec<float> acc) {
    const __m512i m = _mm512_castps_si512(_mm512_min_ps(x.v, acc.v));
    const __m512i t = _mm512_castps_si512(_mm512_min_ps(x.v, _mm512_set1_ps(1.17549435e-38f)));
    return {_mm512_castsi512_ps(_mm512_ternarylogic_epi32(m, t, _mm512_set1_epi32(INT32_MIN), 0xF8))};  // m | (t & sign)
}
inline Vec<float> maxOrdered(Vec<float> x, Vec<float> acc) {
    const __m512i m = _mm512_castps_si512(_mm512_max_ps(x.v, acc.v));
    const __m512i t = _mm512_castps_si512(_mm512_max_ps(x.v, _mm512_set1_ps(-1.17549435e-38f)));
    return {_mm512_castsi512_ps(_mm512_ternarylogic_epi32(m, t, _mm512_set1_epi32(INT32_MIN), 0xD0))};  // m & (t | ~sign)
}

// ---- general filter and convolution (filter family) ----------------------------------------
// The 16 bytes at p (16-byte aligned) in all four 16-byte quarters.
template <class T>
inline Vec<T> loadBlock(const T* p) {
    if constexpr (std::is_same_v<T, float>) return {_mm512_broadcast_f32x4(_mm_load_ps(p))};
    else if constexpr (std::is_same_v<T, double>) return {_mm512_broadcast_f64x2(_mm_load_pd(p))};
    else return {_mm512_broadcast_i32x4(_mm_load_si128(reinterpret_cast<const __m128i*>(p)))};
}
// kLanes<W> elements of T from p, each converted to W exactly (see v128).
template <class W, class T>
inline Vec<W> loadExpand(const T* p) {
    static_assert(sizeof(W) >= sizeof(T), "a widening load");
    if constexpr (std::is_same_v<W, T>) {
        return loadU(p);
    } else if constexpr (std::is_same_v<W, float>) {
        return toFloat(loadExpand<std::int32_t>(p));
    } else if constexpr (sizeof(T) == 1 && sizeof(W) == 4) {
        return fromBits<W>(_mm512_cvtepu8_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))));
    } else if constexpr (sizeof(T) == 1) {
        static_assert(sizeof(W) == 2 && !std::is_signed_v<T>, "unsigned bytes to 16-bit lanes");
        return fromBits<W>(_mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p))));
    } else {
        static_assert(sizeof(T) == 2 && sizeof(W) == 4, "16-bit to 32-bit lanes");
        return widenHalf<W, T>(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)));
    }
}
// Interleaving and narrowing within each 16-byte quarter (see v128).
template <class T>
inline Vec<T> zipLoBlocks(Vec<T> a, Vec<T> b) {
    if constexpr (sizeof(T) == 1) return fromBits<T>(_mm512_unpacklo_epi8(bits(a), bits(b)));
    else if constexpr (sizeof(T) == 2) return fromBits<T>(_mm512_unpacklo_epi16(bits(a), bits(b)));
    else if constexpr (sizeof(T) == 4) return fromBits<T>(_mm512_unpacklo_epi32(bits(a), bits(b)));
    else return fromBits<T>(_mm512_unpacklo_epi64(bits(a), bits(b)));
}
template <class T>
inline Vec<T> zipHiBlocks(Vec<T> a, Vec<T> b) {
    if constexpr (sizeof(T) == 1) return fromBits<T>(_mm512_unpackhi_epi8(bits(a), bits(b)));
    else if constexpr (sizeof(T) == 2) return fromBits<T>(_mm512_unpackhi_epi16(bits(a), bits(b)));
    else if constexpr (sizeof(T) == 4) return fromBits<T>(_mm512_unpackhi_epi32(bits(a), bits(b)));
    else return fromBits<T>(_mm512_unpackhi_epi64(bits(a), bits(b)));
}
inline Vec<std::int16_t> packSatBlocks(Vec<std::int32_t> lo, Vec<std::int32_t> hi) { return {_mm512_packs_epi32(lo.v, hi.v)}; }
// ---- frequency transforms ------------------------------------------------------------
// The kLanes x kLanes block of floats in r (r[i] is row i) transposed in place:
// 4 x 4 blocks within each 16-byte lane, then the lanes of each group of four
// vectors as a 4 x 4 block of lanes.
inline void transposeSquare(Vec<float> r[16]) {
    __m512 t[16], s[16];
    for (int i = 0; i < 8; ++i) {
        t[2 * i] = _mm512_unpacklo_ps(r[2 * i].v, r[2 * i + 1].v);
        t[2 * i + 1] = _mm512_unpackhi_ps(r[2 * i].v, r[2 * i + 1].v);
    }
    for (int g = 0; g < 4; ++g) {
        s[4 * g] = _mm512_shuffle_ps(t[4 * g], t[4 * g + 2], 0x44);
        s[4 * g + 1] = _mm512_shuffle_ps(t[4 * g], t[4 * g + 2], 0xEE);
        s[4 * g + 2] = _mm512_shuffle_ps(t[4 * g + 1], t[4 * g + 3], 0x44);
        s[4 * g + 3] = _mm512_shuffle_ps(t[4 * g + 1], t[4 * g + 3], 0xEE);
    }
    for (int q = 0; q < 4; ++q) {
        const __m512 a = _mm512_shuffle_f32x4(s[q], s[q + 4], 0x88), b = _mm512_shuffle_f32x4(s[q], s[q + 4], 0xDD);
        const __m512 c = _mm512_shuffle_f32x4(s[q + 8], s[q + 12], 0x88), d = _mm512_shuffle_f32x4(s[q + 8], s[q + 12], 0xDD);
        r[q] = {_mm512_shuffle_f32x4(a, c, 0x88)};
        r[q + 4] = {_mm512_shuffle_f32x4(b, d, 0x88)};
        r[q + 8] = {_mm512_shuffle_f32x4(a, c, 0xDD)};
        r[q + 12] = {_mm512_shuffle_f32x4(b, d, 0xDD)};
    }
}
// Two vectors of interleaved pairs (a0 b0 a1 b1 ...) to the a's and the b's,
// in whole-vector order, and back.
inline void deinterleave2(const Vec<float> in[2], Vec<float> out[2]) {
    const __m512i even = _mm512_setr_epi32(0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30);
    const __m512i odd = _mm512_setr_epi32(1, 3, 5, 7, 9, 11, 13, 15, 17, 19, 21, 23, 25, 27, 29, 31);
    out[0] = {_mm512_permutex2var_ps(in[0].v, even, in[1].v)};
    out[1] = {_mm512_permutex2var_ps(in[0].v, odd, in[1].v)};
}
inline void interleave2(const Vec<float> in[2], Vec<float> out[2]) {
    const __m512i lo = _mm512_setr_epi32(0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
    const __m512i hi = _mm512_setr_epi32(8, 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15, 31);
    out[0] = {_mm512_permutex2var_ps(in[0].v, lo, in[1].v)};
    out[1] = {_mm512_permutex2var_ps(in[0].v, hi, in[1].v)};
}

// ---- box filter and window sums (filter family) --------------------------------------------
// 32-bit lanes moved up by K lanes across the whole vector (see v128).
template <int K, class T>
inline Vec<T> shiftLanesUp(Vec<T> a) {
    static_assert(sizeof(T) == 4 && K >= 0 && K < 16, "32-bit lanes, a shift within the vector");
    if constexpr (K == 0) return a;
    else return fromBits<T>(_mm512_alignr_epi32(bits(a), _mm512_setzero_si512(), 16 - K));
}
// The last C 32-bit lanes repeated over the vector (see v128).
template <int C, class T>
inline Vec<T> repeatLastPixel(Vec<T> a) {
    static_assert(sizeof(T) == 4 && C >= 1 && C <= 4, "32-bit lanes, 1 to 4 channels");
    const __m512i idx = _mm512_setr_epi32(16 - C, 16 - C + 1 % C, 16 - C + 2 % C, 16 - C + 3 % C, 16 - C + 4 % C,
                                          16 - C + 5 % C, 16 - C + 6 % C, 16 - C + 7 % C, 16 - C + 8 % C,
                                          16 - C + 9 % C, 16 - C + 10 % C, 16 - C + 11 % C, 16 - C + 12 % C,
                                          16 - C + 13 % C, 16 - C + 14 % C, 16 - C + 15 % C);
    return fromBits<T>(_mm512_permutexvar_epi32(idx, bits(a)));
}

// ---- warp family ---------------------------------------------------------------------------
// The largest integer not above each lane (the 16-byte layer's meaning for
// lanes within +-2^31).
inline Vec<double> floor(Vec<double> a) { return {_mm512_roundscale_pd(a.v, _MM_FROUND_TO_NEG_INF | _MM_FROUND_NO_EXC)}; }

}  // namespace v512
QVN_TARGET_END

#endif
