// Every table name with a leading validation order is called with faults in
// its pointers, sizes and steps, one at a time and two at a time; the status
// must be the error of the first failing check. Nothing may run: the faults
// stop every call before its first pixel.
#include <gtest/gtest.h>

#include <vector>

#include "support/faults.h"

namespace qvn::test {
namespace {

const ApiCase kCases[] = {
#include "api_cases.inc"
};

QvnStatus errorOf(Check c) {
    switch (c) {
        case Check::Ptr: return qvnErrNullPointer;
        case Check::Roi: return qvnErrSize;
        case Check::Step:
        case Check::Step0: return qvnErrStep;
    }
    return qvnOk;
}

// The single faults that make check g fail.
std::vector<Faults> faultsFor(const CheckGroup& g) {
    const std::vector<int> indices(g.indices, g.indices + g.count);
    std::vector<Faults> out;
    switch (g.kind) {
        case Check::Ptr:
            for (int i : indices) out.push_back(Faults{.nullPtr = i});
            break;
        case Check::Roi:
            out.push_back(Faults{.zeroWidth = true});
            out.push_back(Faults{.zeroHeight = true});
            break;
        case Check::Step:
            for (int i : indices) {
                out.push_back(Faults{.badStep = i, .badStepValue = 0});
                out.push_back(Faults{.badStep = i, .badStepValue = -1});
            }
            break;
        case Check::Step0:
            for (int i : indices) out.push_back(Faults{.badStep = i, .badStepValue = 0});
            break;
    }
    return out;
}

std::vector<CheckGroup> checksOf(const ApiCase& c) { return {c.order, c.order + c.checks}; }

Faults combine(Faults a, const Faults& b) {
    if (b.nullPtr >= 0) a.nullPtr = b.nullPtr;
    if (b.badStep >= 0) { a.badStep = b.badStep; a.badStepValue = b.badStepValue; }
    a.zeroWidth |= b.zeroWidth;
    a.zeroHeight |= b.zeroHeight;
    return a;
}

TEST(ValidationOrder, EveryCheckFailsAlone) {
    for (const ApiCase& c : kCases)
        for (const CheckGroup& g : checksOf(c))
            for (const Faults& f : faultsFor(g))
                EXPECT_EQ(c.call(f), errorOf(g.kind))
                    << c.name << ": null pointer " << f.nullPtr << ", step " << f.badStep << "="
                    << f.badStepValue << ", zero width " << f.zeroWidth << ", zero height " << f.zeroHeight;
}

TEST(ValidationOrder, EarlierCheckWinsOverLater) {
    for (const ApiCase& c : kCases)
        for (int i = 0; i < c.checks; ++i)
            for (int j = i + 1; j < c.checks; ++j) {
                const auto first = faultsFor(c.order[i]), second = faultsFor(c.order[j]);
                if (first.empty() || second.empty()) continue;
                EXPECT_EQ(c.call(combine(first.front(), second.back())), errorOf(c.order[i].kind))
                    << c.name << ": check " << i << " must come before check " << j;
            }
}

// Families that do not test steps must not reject a zero or negative step
// ahead of the checks they do make.
TEST(ValidationOrder, UntestedStepsDoNotPreemptLaterChecks) {
    for (const ApiCase& c : kCases) {
        bool testsSteps = false;
        for (const CheckGroup& g : checksOf(c)) testsSteps |= g.kind == Check::Step || g.kind == Check::Step0;
        if (testsSteps || c.steps == 0) continue;
        for (const CheckGroup& g : checksOf(c))
            for (std::int64_t v : {0, -1})
                EXPECT_EQ(c.call(combine(Faults{.badStep = 0, .badStepValue = v}, faultsFor(g).front())),
                          errorOf(g.kind))
                    << c.name << ": a step of " << v << " is not an error of this function";
    }
}

}  // namespace
}  // namespace qvn::test
