// Scoped control of the vector unit's rounding mode.
#ifndef QVN_CORE_FPROUND_INL_H
#define QVN_CORE_FPROUND_INL_H

#include "kernels/isa/isa.h"
#include "kernels/target.h"

QVN_TARGET_BEGIN

// Sets the rounding control of the calling thread for its lifetime and
// restores the caller's control word (exception masks and flags included) when
// it ends. qvnRndNear selects round-to-nearest-even; every other mode selects
// rounding toward zero (financial rounding is built on truncation by adding a
// half away from zero first).
class RoundingScope {
public:
    explicit RoundingScope(int mode) : saved_(isa::getControl()) {
        isa::setControl(isa::withRounding(saved_, mode == qvnRndNear ? isa::kRoundNearest
                                                                      : isa::kRoundTowardZero));
    }
    ~RoundingScope() { isa::setControl(saved_); }
    RoundingScope(const RoundingScope&) = delete;
    RoundingScope& operator=(const RoundingScope&) = delete;

private:
    unsigned saved_;
};

QVN_TARGET_END

#endif
