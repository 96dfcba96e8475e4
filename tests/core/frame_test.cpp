// The row walker every family stands on: when it merges rows, and which
// status it returns.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "core/rows-inl.h"

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

}  // namespace
}  // namespace qvn::QVN_TARGET
