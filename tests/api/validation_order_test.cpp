// Every table name with a leading validation order is called with faults in
// its pointers (and the entries of plane-pointer arrays), sizes, steps,
// rounding modes and hints, one at a time and two at a time; the status must
// be the error of the first failing check, and nothing may be written: the
// faults stop every call before its first pixel.
#include <gtest/gtest.h>

#include <csignal>
#include <cstring>
#include <unistd.h>
#include <vector>

#include "support/faults.h"

namespace qvn::test {
namespace {

const ApiCase kCases[] = {
#include "api_cases.inc"
};

// A call that goes on past a fault it missed usually crashes: name it.
const char* gRunning = nullptr;
void reportCrash(int sig) {
    static const char msg[] = " crashed under an argument fault it did not report\n";
    if (gRunning) (void)!write(2, gRunning, std::strlen(gRunning));
    (void)!write(2, msg, sizeof msg - 1);
    std::signal(sig, SIG_DFL);
    std::raise(sig);
}
const bool kReporting = (std::signal(SIGSEGV, reportCrash), std::signal(SIGBUS, reportCrash), true);

// The call, which must not write anything: every fault is an error.
QvnStatus call(const ApiCase& c, const Faults& f) {
    gRunning = c.name;
    const QvnStatus s = c.call(f);
    gRunning = nullptr;
    EXPECT_TRUE(Faults::untouched()) << c.name << " wrote to its arguments and returned " << s;
    return s;
}

QvnStatus errorOf(Check c) {
    switch (c) {
        case Check::Ptr: return qvnErrNullPointer;
        case Check::Roi: return qvnErrSize;
        case Check::Step:
        case Check::Step0: return qvnErrStep;
        case Check::Rounding: return qvnErrRounding;
        case Check::Hint: return qvnErrAlgorithm;
    }
    return qvnOk;
}

// The single faults that make check g of case c fail.
std::vector<Faults> faultsFor(const ApiCase& c, const CheckGroup& g) {
    const std::vector<int> indices(g.indices, g.indices + g.count);
    std::vector<Faults> out;
    switch (g.kind) {
        case Check::Ptr:
            for (int i : indices) {
                out.push_back(Faults{.nullPtr = i});
                for (int j = 0; j < c.entries[i]; ++j) out.push_back(Faults{.nullPtr = i, .nullEntry = j});
            }
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
        case Check::Rounding:  // modes above 2, read as unsigned
        case Check::Hint:      // kinds above 2 in the low byte, or a reserved bit
            for (int i : indices)
                for (int v : {3, g.kind == Check::Rounding ? -1 : 0x10000}) {
                    Faults f{.badModes = 1u << i};
                    f.badModeValue[i] = v;
                    out.push_back(f);
                }
            break;
    }
    return out;
}

std::vector<CheckGroup> checksOf(const ApiCase& c) { return {c.order, c.order + c.checks}; }

Faults combine(Faults a, const Faults& b) {
    if (b.nullPtr >= 0) { a.nullPtr = b.nullPtr; a.nullEntry = b.nullEntry; }
    if (b.badStep >= 0) { a.badStep = b.badStep; a.badStepValue = b.badStepValue; }
    for (int i = 0; i < 4; ++i)
        if (b.badModes >> i & 1) a.badModes |= 1u << i, a.badModeValue[i] = b.badModeValue[i];
    a.zeroWidth |= b.zeroWidth;
    a.zeroHeight |= b.zeroHeight;
    return a;
}

TEST(ValidationOrder, EveryCheckFailsAlone) {
    for (const ApiCase& c : kCases)
        for (const CheckGroup& g : checksOf(c))
            for (const Faults& f : faultsFor(c, g))
                EXPECT_EQ(call(c, f), errorOf(g.kind))
                    << c.name << ": null pointer " << f.nullPtr << " (entry " << f.nullEntry << "), step " << f.badStep << "="
                    << f.badStepValue << ", zero width " << f.zeroWidth << ", zero height " << f.zeroHeight;
}

TEST(ValidationOrder, EarlierCheckWinsOverLater) {
    for (const ApiCase& c : kCases)
        for (int i = 0; i < c.checks; ++i)
            for (int j = i + 1; j < c.checks; ++j) {
                const auto first = faultsFor(c, c.order[i]), second = faultsFor(c, c.order[j]);
                if (first.empty() || second.empty()) continue;
                EXPECT_EQ(call(c, combine(first.front(), second.back())), errorOf(c.order[i].kind))
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
                EXPECT_EQ(call(c, combine(Faults{.badStep = 0, .badStepValue = v}, faultsFor(c, g).front())),
                          errorOf(g.kind))
                    << c.name << ": a step of " << v << " is not an error of this function";
    }
}

}  // namespace
}  // namespace qvn::test
