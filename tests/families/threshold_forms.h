// What the threshold and compare tests share: the element types of the
// families and where a form's per-channel constants lie.
#ifndef QVN_TESTS_FAMILIES_THRESHOLD_FORMS_H
#define QVN_TESTS_FAMILIES_THRESHOLD_FORMS_H

#include "families/arith_forms.h"
#include "ref/threshold_ref.h"

namespace qvn::test {

// A form's constants are sets of four ending at an inaccessible page
// (PageEndConstants), of which a form of n channels reads the last n (C1
// forms take the last by value): the index of channel ch's constant.
inline int constantIndex(int elems, bool alpha, int ch) { return 4 - (alpha ? 3 : elems) + ch; }

#define QVN_TYPES(X) X(8u) X(16u) X(16s) X(32f)

}  // namespace qvn::test

#endif
