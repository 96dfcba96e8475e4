// Argument faults for the generated validation-order cases: every pointer of a
// call points at its own scratch region (whose words point at the region, so
// arrays of plane pointers are non-null), every step is valid and the ROI is
// 4 x 4 and every rounding mode or hint 0, except for the faults a case
// injects: a null pointer or a null entry of an array of plane pointers, an
// invalid step, a zero width or height, an invalid rounding mode or hint.
#ifndef QVN_TESTS_FAULTS_H
#define QVN_TESTS_FAULTS_H

#include <cstdint>

#include "qvnip.h"

namespace qvn::test {

enum class Check { Ptr, Roi, Step, Step0, Rounding, Hint };

struct Faults {
    int nullPtr = -1;        // pointer index made null, or with nullEntry the array holding it
    int nullEntry = -1;      // entry of the pointer array nullPtr made null
    int badStep = -1;        // step index made invalid
    std::int64_t badStepValue = 0;
    bool zeroWidth = false, zeroHeight = false;
    unsigned badModes = 0;   // rounding-mode or hint arguments made invalid (bit i: argument i)
    int badModeValue[4] = {};

    void* scratch(int i) const;
    void* const* entriesWithNull() const;  // scratch(nullPtr) in every entry but nullEntry
    static bool untouched();               // no call has written to a scratch region
    template <class P>
    P ptr(int i) const {
        if (i != nullPtr) return reinterpret_cast<P>(scratch(i));
        return nullEntry < 0 ? nullptr : reinterpret_cast<P>(const_cast<void**>(entriesWithNull()));
    }
    template <class S>
    S step(int i) const {
        return static_cast<S>(i == badStep ? badStepValue : 4096);
    }
    template <class M>
    M mode(int i) const {
        return static_cast<M>(badModes >> i & 1 ? badModeValue[i] : 0);
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
    int count;        // pointers, steps or mode arguments the check covers
    int indices[8];
};

struct ApiCase {
    const char* name;
    int checks;             // the leading checks, in order
    CheckGroup order[6];
    int steps;              // step parameters of the call
    int entries[8];         // per pointer: entries of an array of plane pointers, or 0
    QvnStatus (*call)(const Faults&);
};

}  // namespace qvn::test

#endif
