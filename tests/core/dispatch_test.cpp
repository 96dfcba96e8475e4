// The dispatching layer: the exported names run the target the hook chose.
// The suite runs once per target (support/main.cpp); the version record is
// the one entry whose result tells the targets apart.
#include <gtest/gtest.h>

#include <cstring>

#include "core/dispatch.h"
#include "qvnip.h"

namespace {

TEST(Dispatch, ExportedNamesRunTheChosenTarget) {
    static const char* const kNames[] = {"qvnIP SSE3 (m7)", "qvnIP AVX2 (v3)", "qvnIP AVX-512 (v4)"};
    static const char kCpus[][4] = {{'m', '7', 0, 0}, {'v', '3', 0, 0}, {'v', '4', 0, 0}};
    const int t = int(qvn::dispatch::current());
    const QvnVersionInfo* v = qvniGetLibVersion();
    EXPECT_STREQ(v->name, kNames[t]);
    EXPECT_EQ(std::memcmp(v->targetCpu, kCpus[t], 4), 0);
    EXPECT_STREQ(v->version, "2022.1.0 (r0xc8d62893)");
}

TEST(Dispatch, UnsupportedTargetsAreRefusedAndChangeNothing) {
    const qvn::Target before = qvn::dispatch::current();
    for (int t = 0; t < qvn::kTargetCount; ++t)
        if (!qvn::dispatch::supported(qvn::Target(t))) {
            EXPECT_FALSE(qvn::dispatch::useTarget(qvn::Target(t)));
            EXPECT_EQ(qvn::dispatch::current(), before);
        }
    EXPECT_TRUE(qvn::dispatch::supported(qvn::Target::kSse3));
}

}  // namespace
