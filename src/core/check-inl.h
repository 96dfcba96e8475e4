// Argument checks. An exported function reads like its validation order: one
// QVN_TRY line per check, in the documented order, before anything is written.
#ifndef QVN_CORE_CHECK_INL_H
#define QVN_CORE_CHECK_INL_H

#include "core/image.h"
#include "kernels/target.h"

// Returns the status of expr from the enclosing function when it is not qvnOk.
#define QVN_TRY(expr)                                   \
    do {                                                \
        if (const QvnStatus qvnTry_ = (expr); qvnTry_ != qvnOk) return qvnTry_; \
    } while (0)

QVN_TARGET_BEGIN
namespace check {

// Any null pointer: qvnErrNullPointer.
template <class... P>
inline QvnStatus ptrs(const P*... p) {
    return ((p == nullptr) || ...) ? qvnErrNullPointer : qvnOk;
}

// Width or height below 1: qvnErrSize.
inline QvnStatus roi(RoiL r) { return (r.width < 1 || r.height < 1) ? qvnErrSize : qvnOk; }
inline QvnStatus width(RoiL r) { return r.width < 1 ? qvnErrSize : qvnOk; }
inline QvnStatus height(RoiL r) { return r.height < 1 ? qvnErrSize : qvnOk; }

// Any step below 1: qvnErrStep.
template <class... S>
inline QvnStatus steps(S... s) {
    return ((s < 1) || ...) ? qvnErrStep : qvnOk;
}

// Any step exactly zero (families that accept negative steps): qvnErrStep.
template <class... S>
inline QvnStatus nonzeroSteps(S... s) {
    return ((s == 0) || ...) ? qvnErrStep : qvnOk;
}

// A QvnRounding outside 0..2: qvnErrRounding.
inline QvnStatus rounding(int mode) { return unsigned(mode) > 2u ? qvnErrRounding : qvnOk; }

// A QvnAccuracyHint with a kind above 2 or a reserved bit set: qvnErrAlgorithm.
inline QvnStatus hint(int h) {
    return ((h & 0xFF) > 2 || (h & 0x00FF0000) != 0) ? qvnErrAlgorithm : qvnOk;
}

// A QvnDataType the library does not know: qvnErrDataType.
inline QvnStatus dataType(int t) {
    return (t == qvn8u || t == qvn16u || t == qvn16s || t == qvn32f || t == qvn64f) ? qvnOk
                                                                                 : qvnErrDataType;
}

}  // namespace check
QVN_TARGET_END

#endif
