// The cache-bypassing rule of every family that has one, through the test
// double of the core library's cache-size query: the size is asked for from
// the family's threshold count on and not one below, and the result written
// with non-temporal stores equals the one written without them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

#include "core/stream-inl.h"
#include "support/cache_double.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

// A row of w pixels: the source bytes (all planes one after another) and the
// destination bytes (likewise).
using RowCall = QvnStatus (*)(const unsigned char* src, unsigned char* dst, int w);

struct Streamer {
    const char* name;
    std::uint64_t threshold;  // the first count that asks; 0: never asks
    int perPixel;             // what one pixel adds to the count
    int srcBytes, dstBytes;   // per pixel
    RowCall call;
};

template <class T, int K>
struct Planes {  // K planes of w elements, one after another
    T* p[K];
    Planes(const unsigned char* base, int w) {
        for (int k = 0; k < K; ++k) p[k] = reinterpret_cast<T*>(const_cast<unsigned char*>(base)) + k * w;
    }
};

#define QVN_S(T, src) reinterpret_cast<const T*>(src)
#define QVN_D(T, dst) reinterpret_cast<T*>(dst)
#define QVN_ROW(...) [](const unsigned char* s, unsigned char* d, int w) -> QvnStatus { (void)s; return __VA_ARGS__; }
#define QVN_SET(t, T, n, value)                                                                                    \
    {"Set_" #t "_C" #n "R", 0x80001, n * sizeof(T), 0, n * sizeof(T),                                              \
     QVN_ROW(qvniSet_##t##_C##n##R(value, QVN_D(T, d), w * n * sizeof(T), {w, 1}))}
#define QVN_TO_PLANES(t, T, k, threshold)                                                                          \
    {"Copy_" #t "_C" #k "P" #k "R", threshold, k * sizeof(T), k * sizeof(T), k * sizeof(T),                        \
     QVN_ROW(qvniCopy_##t##_C##k##P##k##R(QVN_S(T, s), w * k * sizeof(T), Planes<T, k>(d, w).p, w * sizeof(T), {w, 1}))}
#define QVN_FROM_PLANES(t, T, k, threshold)                                                                        \
    {"Copy_" #t "_P" #k "C" #k "R", threshold, k * sizeof(T), k * sizeof(T), k * sizeof(T),                        \
     QVN_ROW(qvniCopy_##t##_P##k##C##k##R(Planes<const T, k>(s, w).p, w * sizeof(T), QVN_D(T, d), w * k * sizeof(T), {w, 1}))}
#define QVN_CONVERT(s_, d_, S, D, form, n, threshold)                                                              \
    {"Convert_" #s_ #d_ "_" #form, threshold, n, n * sizeof(S), n * sizeof(D),                                      \
     QVN_ROW(qvniConvert_##s_##d_##_##form(QVN_S(S, s), w * n * sizeof(S), QVN_D(D, d), w * n * sizeof(D), {w, 1}))}

template <class T>
const T kValue[4] = {1, 2, 3, 4};
const Qvn32u kCounts[4] = {1, 40, 0, 31};

// Counts: bytes of the ROI for the fills and the planar copies (all planes),
// elements for the conversions. Rows with threshold 0 must never ask.
const Streamer kStreamers[] = {
#define QVN_SETS(t, T) QVN_SET(t, T, 1, 7), QVN_SET(t, T, 3, kValue<T>), QVN_SET(t, T, 4, kValue<T>)
    QVN_SETS(8u, Qvn8u), QVN_SETS(16s, Qvn16s), QVN_SETS(32s, Qvn32s), QVN_SETS(32f, Qvn32f),
    QVN_TO_PLANES(16s, Qvn16s, 3, 0x80001), QVN_TO_PLANES(16s, Qvn16s, 4, 0x80001),
    QVN_TO_PLANES(32s, Qvn32s, 3, 0x80001), QVN_TO_PLANES(32s, Qvn32s, 4, 0x80001),
    QVN_FROM_PLANES(16s, Qvn16s, 3, 0x80001), QVN_FROM_PLANES(16s, Qvn16s, 4, 0x80001),
    QVN_FROM_PLANES(32s, Qvn32s, 3, 0x80001), QVN_FROM_PLANES(32s, Qvn32s, 4, 0x80001),
    QVN_FROM_PLANES(8u, Qvn8u, 4, 0x80001),
    QVN_CONVERT(16s, 32f, Qvn16s, Qvn32f, C1R, 1, 0x15556), QVN_CONVERT(16s, 32f, Qvn16s, Qvn32f, C3R, 3, 0x15556),
    QVN_CONVERT(16s, 32f, Qvn16s, Qvn32f, C4R, 4, 0x15556), QVN_CONVERT(16u, 32f, Qvn16u, Qvn32f, C1R, 1, 0x15556),
    QVN_CONVERT(16u, 32f, Qvn16u, Qvn32f, C3R, 3, 0x15556), QVN_CONVERT(16u, 32f, Qvn16u, Qvn32f, C4R, 4, 0x15556),
    QVN_CONVERT(8s, 32f, Qvn8s, Qvn32f, C1R, 1, 0x1999A), QVN_CONVERT(8s, 32f, Qvn8s, Qvn32f, C3R, 3, 0x1999A),
    QVN_CONVERT(8s, 32f, Qvn8s, Qvn32f, C4R, 4, 0x1999A), QVN_CONVERT(8s, 32s, Qvn8s, Qvn32s, C1R, 1, 0x1999A),
    QVN_CONVERT(8s, 32s, Qvn8s, Qvn32s, C3R, 3, 0x1999A), QVN_CONVERT(8s, 32s, Qvn8s, Qvn32s, C4R, 4, 0x1999A),
    QVN_CONVERT(8u, 32f, Qvn8u, Qvn32f, C1R, 1, 0x1999A), QVN_CONVERT(8u, 32s, Qvn8u, Qvn32s, C1R, 1, 0x1999A),
    QVN_CONVERT(8u, 16s, Qvn8u, Qvn16s, C1R, 1, 0x2AAAB),
    // bit operations and shifts, counting destination bytes
    {"And_8u_C1R", 0x80001, 1, 1, 1, QVN_ROW(qvniAnd_8u_C1R(s, w, s, w, d, w, {w, 1}))},
    {"AndC_16u_C3R", 0x80001, 6, 6, 6, QVN_ROW(qvniAndC_16u_C3R(QVN_S(Qvn16u, s), w * 6, kValue<Qvn16u>, QVN_D(Qvn16u, d), w * 6, {w, 1}))},
    {"Not_8u_C4R", 0x80001, 4, 4, 4, QVN_ROW(qvniNot_8u_C4R(s, w * 4, d, w * 4, {w, 1}))},
    {"RShiftC_32s_C4R", 0x80001, 16, 16, 16,
     QVN_ROW(qvniRShiftC_32s_C4R(QVN_S(Qvn32s, s), w * 16, kCounts, QVN_D(Qvn32s, d), w * 16, {w, 1}))},
    // never: alpha layouts, other types and layouts of the same families
    {"Xor_16u_AC4R", 0, 8, 8, 8, QVN_ROW(qvniXor_16u_AC4R(QVN_S(Qvn16u, s), w * 8, QVN_S(Qvn16u, s), w * 8, QVN_D(Qvn16u, d), w * 8, {w, 1}))},
    {"Set_8u_AC4R", 0, 4, 0, 4, QVN_ROW(qvniSet_8u_AC4R(kValue<Qvn8u>, d, w * 4, {w, 1}))},
    QVN_TO_PLANES(8u, Qvn8u, 4, 0), QVN_TO_PLANES(16u, Qvn16u, 3, 0), QVN_FROM_PLANES(8u, Qvn8u, 3, 0),
    QVN_CONVERT(16s, 32f, Qvn16s, Qvn32f, AC4R, 4, 0), QVN_CONVERT(8u, 32f, Qvn8u, Qvn32f, C3R, 3, 0),
    QVN_CONVERT(8u, 16s, Qvn8u, Qvn16s, C3R, 3, 0), QVN_CONVERT(16s, 32s, Qvn16s, Qvn32s, C1R, 1, 0),
};

TEST(Streaming, EveryThresholdAtItsValueAndOneBelow) {
    for (const Streamer& f : kStreamers) {
        const std::uint64_t count = f.threshold ? f.threshold : 0x80001;
        const int at = int((count + std::uint64_t(f.perPixel) - 1) / std::uint64_t(f.perPixel));
        for (int w : {at - 1, at}) {
            SCOPED_TRACE(testing::Message() << f.name << " width " << w);
            // Rows ending at an inaccessible page (so element-aligned).
            GuardedImage<Qvn8u> src({std::max(1, w * f.srcBytes), 1, 1, 0, true, 1});
            GuardedImage<Qvn8u> streamed({w * f.dstBytes, 1, 1, 0, true, 2}), ordinary({w * f.dstBytes, 1, 1, 0, true, 2});
            resetCacheDouble();
            cacheDouble().sizeBytes = 0;  // any large call streams
            ASSERT_EQ(callUnderTest({&src}, {&streamed}, [&] { return f.call(src.data(), streamed.data(), w); }), qvnOk);
            EXPECT_EQ(cacheDouble().calls, f.threshold && w == at ? 1 : 0);
            cacheDouble().status = 1;  // a failed query: ordinary stores
            ASSERT_EQ(callUnderTest({&src}, {&ordinary}, [&] { return f.call(src.data(), ordinary.data(), w); }), qvnOk);
            expectRoi(streamed, 1, [&](std::int64_t e, std::int64_t) { return ordinary.at(e, 0); }, f.name);
        }
    }
    resetCacheDouble();
}

// Past the threshold, non-temporal stores are used when the bytes touched
// reach the reported cache size, and never when the query fails.
TEST(Streaming, CacheSizeDecidesPastTheThreshold) {
    using QVN_TARGET::useStreamingStores;
    constexpr std::uint64_t t = QVN_TARGET::kStreamThreshold;
    resetCacheDouble();
    cacheDouble().sizeBytes = 1000;
    EXPECT_TRUE(useStreamingStores(t, t, 1000));
    EXPECT_FALSE(useStreamingStores(t, t, 999));
    cacheDouble().status = 1;
    EXPECT_FALSE(useStreamingStores(t, t, 1u << 30));
    resetCacheDouble();
}

}  // namespace
}  // namespace qvn::test
