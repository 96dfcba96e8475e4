// Argument faults for the generated validation-order cases: every pointer of a
// call points at a scratch block (whose words point at the block again, so
// arrays of plane pointers are non-null), every step is valid and the ROI is
// 4 x 4, except for the faults a case injects.
#ifndef QVN_TESTS_FAULTS_H
#define QVN_TESTS_FAULTS_H

#include <cstdint>

#include "qvnip.h"

namespace qvn::test {

enum class Check { Ptr, Roi, Step, Step0 };

struct Faults {
    int nullPtr = -1;        // pointer index made null
    int badStep = -1;        // step index made invalid
    std::int64_t badStepValue = 0;
    bool zeroWidth = false, zeroHeight = false;

    void* scratch() const;
    template <class P>
    P ptr(int i) const {
        return i == nullPtr ? nullptr : reinterpret_cast<P>(scratch());
    }
    template <class S>
    S step(int i) const {
        return static_cast<S>(i == badStep ? badStepValue : 4096);
    }
    template <class R>
    R roi() const {
        R r;
        r.width = zeroWidth ? 0 : 4;
        r.height = zeroHeight ? 0 : 4;
        return r;
    }
};

// Plain records, so that a table of a thousand cases is constant data and
// costs the compiler little.
struct CheckGroup {
    Check kind;
    int count;        // pointers or steps the check covers
    int indices[8];
};

struct ApiCase {
    const char* name;
    int checks;             // the leading checks, in order
    CheckGroup order[6];
    int steps;              // step parameters of the call
    QvnStatus (*call)(const Faults&);
};

}  // namespace qvn::test

#endif
