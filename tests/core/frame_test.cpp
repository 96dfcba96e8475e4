// The frame pieces every family stands on: the row walker, the streaming
// decision, the rounding scope and spec placement.
#include <gtest/gtest.h>

#include <cfenv>
#include <cstdint>
#include <vector>

#include "core/check-inl.h"
#include "core/fpround-inl.h"
#include "core/rows-inl.h"
#include "core/spec-inl.h"
#include "core/stream-inl.h"
#include "support/cache_double.h"

namespace qvn::QVN_TARGET {
namespace {

struct Call {
    const std::uint8_t* src;
    std::uint16_t* dst;
    std::int64_t width;
};

std::vector<Call> walk(RoiL roi, std::int64_t srcStep, std::int64_t dstStep, int srcElems, int dstElems,
                       std::vector<QvnStatus> statuses = {}, QvnStatus* result = nullptr) {
    static std::uint8_t src[1];
    static std::uint16_t dst[1];
    std::vector<Call> calls;
    const QvnStatus s = forEachRow(
        roi,
        [&](const std::uint8_t* a, std::uint16_t* b, std::int64_t w) {
            calls.push_back({a, b, w});
            return calls.size() <= statuses.size() ? statuses[calls.size() - 1] : qvnOk;
        },
        rows<const std::uint8_t>(src, srcStep, srcElems), rows(dst, dstStep, dstElems));
    if (result) *result = s;
    return calls;
}

TEST(ForEachRow, MergesRowsOnlyWhenEveryImageIsContiguous) {
    // One-channel 8u source, four-element 16u destination: 5 and 40 bytes a row.
    EXPECT_EQ(walk({5, 9}, 5, 40, 1, 4).size(), 1u);
    EXPECT_EQ(walk({5, 9}, 5, 40, 1, 4)[0].width, 45);
    EXPECT_EQ(walk({5, 9}, 6, 40, 1, 4).size(), 9u);   // gap after source rows
    EXPECT_EQ(walk({5, 9}, 5, 48, 1, 4).size(), 9u);   // gap after destination rows
    EXPECT_EQ(walk({5, 9}, -5, 40, 1, 4).size(), 9u);  // bottom-up source
    EXPECT_EQ(walk({5, 1}, 5, 40, 1, 4).size(), 1u);
}

TEST(ForEachRow, ReturnsFirstNonZeroStatusAfterAllRows) {
    QvnStatus s = qvnOk;
    const auto calls = walk({3, 10}, 3, 64, 1, 1, {qvnOk, qvnOk, qvnWarnDivByZero, qvnErrSize}, &s);
    EXPECT_EQ(calls.size(), 10u);
    EXPECT_EQ(s, qvnWarnDivByZero);
}

TEST(Streaming, CacheIsAskedOnlyFromTheThresholdOn) {
    test::resetCacheDouble();
    test::cacheDouble().sizeBytes = 1000;
    EXPECT_FALSE(useStreamingStores(kStreamThreshold - 1, kStreamThreshold, 1u << 30));
    EXPECT_EQ(test::cacheDouble().calls, 0);
    EXPECT_TRUE(useStreamingStores(kStreamThreshold, kStreamThreshold, 1000));
    EXPECT_FALSE(useStreamingStores(kStreamThreshold, kStreamThreshold, 999));
    EXPECT_EQ(test::cacheDouble().calls, 2);
    test::cacheDouble().status = 1;  // a failed query means ordinary stores
    EXPECT_FALSE(useStreamingStores(kStreamThreshold, kStreamThreshold, 1u << 30));
    test::resetCacheDouble();
}

TEST(RoundingScope, SetsModeForItsLifetimeAndRestoresTheCallersControl) {
    const unsigned before = isa::getControl();
    isa::setControl(isa::withRounding(before, 0x4000));  // round up: neither mode we set
    const unsigned callers = isa::getControl();
    const auto roundHalf = [](float x) {
        volatile float in = x;  // kept from constant folding under the default mode
        const float v = in;
        isa::Vec<std::int32_t> r = isa::toInt(isa::set1(v));
        volatile int out = _mm_cvtsi128_si32(r.v);
        return isa::Vec<std::int32_t>{_mm_set1_epi32(out)};
    };
    {
        RoundingScope near(qvnRndNear);
        EXPECT_EQ(_mm_cvtsi128_si32(roundHalf(2.5f).v), 2);
        EXPECT_EQ(_mm_cvtsi128_si32(roundHalf(3.5f).v), 4);
    }
    EXPECT_EQ(isa::getControl(), callers);
    for (int mode : {qvnRndZero, qvnRndFinancial}) {
        RoundingScope zero(mode);
        EXPECT_EQ(_mm_cvtsi128_si32(roundHalf(2.9f).v), 2);
        EXPECT_EQ(_mm_cvtsi128_si32(roundHalf(-2.9f).v), -2);
    }
    EXPECT_EQ(isa::getControl(), callers);
    isa::setControl(before);
}

struct DemoSpec {
    std::uint32_t id;
    std::int32_t width;
};

TEST(Spec, PlacedAtNext64ByteBoundaryAndFoundByIdentifier) {
    alignas(64) unsigned char buffer[64 + sizeof(DemoSpec) + spec::kSpecSlack];
    for (int offset : {0, 1, 63}) {
        DemoSpec* s = spec::place<DemoSpec>(buffer + offset, 0x4B617389u);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(s) % 64, 0u);
        EXPECT_LT(reinterpret_cast<unsigned char*>(s) - (buffer + offset), 64);
        s->width = 17;
        const DemoSpec* found = spec::find<DemoSpec>(buffer + offset, 0x4B617389u);
        ASSERT_EQ(found, s);
        EXPECT_EQ(found->width, 17);
        EXPECT_EQ(spec::find<DemoSpec>(buffer + offset, 0x4B61738Cu), nullptr);
    }
}

}  // namespace
}  // namespace qvn::QVN_TARGET
