// The unit tests' main: runs every test with the build target named by
// --qvn-target=<sse3|avx2|avx512> (the dispatching layer's internal hook), or
// with the target the library chose when none is named. A target that the
// processor does not support is reported as skipped.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

#include "core/dispatch.h"

namespace {

const char* const kNames[qvn::kTargetCount] = {"sse3", "avx2", "avx512"};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const char* wanted = nullptr;
    for (int i = 1; i < argc; ++i)
        if (std::strncmp(argv[i], "--qvn-target=", 13) == 0) wanted = argv[i] + 13;
    if (wanted != nullptr) {
        int t = 0;
        while (t < qvn::kTargetCount && std::strcmp(kNames[t], wanted) != 0) ++t;
        if (t == qvn::kTargetCount) {
            std::fprintf(stderr, "unknown target %s (sse3, avx2 or avx512)\n", wanted);
            return 2;
        }
        if (!qvn::dispatch::useTarget(qvn::Target(t))) {
            std::printf("[  SKIPPED ] target %s: not built, or not supported by this processor\n", wanted);
            return 0;
        }
    }
    std::printf("qvnIP target under test: %s\n", kNames[int(qvn::dispatch::current())]);
    return RUN_ALL_TESTS();
}
