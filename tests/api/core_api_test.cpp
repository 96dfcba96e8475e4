// Image allocation, the version record and the core library, through the
// shared libraries as a user links them.
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <cstring>

#include "qvncore.h"
#include "qvnip.h"

namespace {

bool aligned64(const void* p) { return (reinterpret_cast<std::uintptr_t>(p) & 63) == 0; }

TEST(Malloc, StepIsRowRoundedUpTo64AndRowsAreWritable) {
    struct Case { void* (*alloc)(int, int, int*); int bytesPerPixel; };
    const Case cases[] = {
        {[](int w, int h, int* s) -> void* { return qvniMalloc_8u_C1(w, h, s); }, 1},
        {[](int w, int h, int* s) -> void* { return qvniMalloc_8u_C3(w, h, s); }, 3},
        {[](int w, int h, int* s) -> void* { return qvniMalloc_16s_AC4(w, h, s); }, 8},
        {[](int w, int h, int* s) -> void* { return qvniMalloc_32f_C2(w, h, s); }, 8},
        {[](int w, int h, int* s) -> void* { return qvniMalloc_32fc_C4(w, h, s); }, 32},
        {[](int w, int h, int* s) -> void* { return qvniMalloc_32sc_C3(w, h, s); }, 24},
    };
    for (const Case& c : cases)
        for (int w : {1, 3, 17, 64, 1000}) {
            int step = -1;
            void* p = c.alloc(w, 5, &step);
            ASSERT_NE(p, nullptr);
            EXPECT_TRUE(aligned64(p));
            EXPECT_EQ(step % 64, 0);
            EXPECT_GE(step, w * c.bytesPerPixel);
            EXPECT_LT(step, w * c.bytesPerPixel + 64);
            std::memset(p, 0x5A, std::size_t(step) * 5);  // the whole block is ours
            qvniFree(p);
        }
}

// Refused allocations: the step is 0 when the sizes or the row are invalid,
// and the computed step when only the total is too large.
TEST(Malloc, RefusedSizesAndTheirSteps) {
    using Alloc = void* (*)(QvnSizeL*);
    const struct { const char* what; Alloc alloc; QvnSizeL step; } cases[] = {
        {"8u C3 row bytes above 2^31 - 1", [](QvnSizeL* s) -> void* { int i = 9; void* p = qvniMalloc_8u_C3(715827883, 1, &i); *s = i; return p; }, 0},
        {"8u C3 row rounding overflows", [](QvnSizeL* s) -> void* { int i = 9; void* p = qvniMalloc_8u_C3(715827882, 2, &i); *s = i; return p; }, 0},
        {"zero width", [](QvnSizeL* s) -> void* { int i = 9; void* p = qvniMalloc_32f_C1(0, 4, &i); *s = i; return p; }, 0},
        {"negative height", [](QvnSizeL* s) -> void* { int i = 9; void* p = qvniMalloc_32f_C1(4, -1, &i); *s = i; return p; }, 0},
        {"total of 2^31 bytes", [](QvnSizeL* s) -> void* { int i = 9; void* p = qvniMalloc_8u_C1(65536, 32768, &i); *s = i; return p; }, 65536},
        {"_L row bytes overflow", [](QvnSizeL* s) -> void* { return qvniMalloc_32fc_C4_L(QvnSizeL(1) << 60, 1, s); }, 0},
        {"_L total overflows", [](QvnSizeL* s) -> void* { return qvniMalloc_8u_C1_L(QvnSizeL(1) << 40, QvnSizeL(1) << 40, s); }, QvnSizeL(1) << 40},
        {"_L zero width", [](QvnSizeL* s) -> void* { return qvniMalloc_16u_C1_L(0, 1, s); }, 0},
    };
    for (const auto& c : cases) {
        QvnSizeL step = 9;
        EXPECT_EQ(c.alloc(&step), nullptr) << c.what;
        EXPECT_EQ(step, c.step) << c.what;
    }
    EXPECT_EQ(qvniMalloc_8u_C1(1, 1, nullptr), nullptr);
    EXPECT_EQ(qvniMalloc_16u_C1_L(1, 1, nullptr), nullptr);
    // A 2^31-byte row is fine for the _L form: its step is computed even when
    // the allocation itself is refused.
    QvnSizeL step = 0;
    qvniFree(qvniMalloc_8u_C3_L(715827883, 1, &step));
    EXPECT_EQ(step, 2147483712);
}

TEST(Core, MallocIsAlignedAndRejectsNonPositiveSizes) {
    for (int size : {1, 63, 64, 65, 4097}) {
        void* p = qvnMalloc(size);
        ASSERT_NE(p, nullptr);
        EXPECT_TRUE(aligned64(p));
        qvnFree(p);
        p = qvnMalloc_L(size);
        ASSERT_NE(p, nullptr);
        EXPECT_TRUE(aligned64(p));
        qvnFree(p);
    }
    EXPECT_EQ(qvnMalloc(0), nullptr);
    EXPECT_EQ(qvnMalloc(-5), nullptr);
    EXPECT_EQ(qvnMalloc_L(-5), nullptr);
    qvnFree(nullptr);
}

TEST(Core, CacheSizeIsThisProcessorsLargestCache) {
    int size = -1;
    const QvnStatus st = qvnGetMaxCacheSizeB(&size);
    if (st == 0) {
        EXPECT_GE(size, 32 * 1024);      // at least an L1 data cache
        EXPECT_EQ(size % 1024, 0);
    } else {
        EXPECT_EQ(size, 0);              // unknown: reported, not guessed
    }
    EXPECT_NE(qvnGetMaxCacheSizeB(nullptr), 0);
}

TEST(Core, FeatureQueryAnswersFromTheProcessor) {
    EXPECT_NE(ownGetFeature(qvnCpuSSE2), 0);   // every x86-64 processor
    EXPECT_NE(ownGetFeature(qvnCpuSSE3), 0);   // the baseline of this build
    EXPECT_EQ(ownGetFeature(0), 0);
    if (ownGetFeature(qvnCpuAVX2)) {
        EXPECT_NE(ownGetFeature(qvnCpuAVX), 0);
    }
}

}  // namespace
