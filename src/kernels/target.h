// The per-target namespace.
//
// Everything compiled with instruction-set flags (vector kernels, row
// templates, family templates and the inline frame functions they call) lives
// in qvn::QVN_TARGET. Today the only target is sse3; a wider build compiles the
// same sources again with another QVN_TARGET and its own isa header, and the
// namespace keeps the two sets of inline functions apart.
#ifndef QVN_KERNELS_TARGET_H
#define QVN_KERNELS_TARGET_H

#ifndef QVN_TARGET
#define QVN_TARGET sse3
#endif

#define QVN_TARGET_BEGIN \
    namespace qvn {      \
    namespace QVN_TARGET {
#define QVN_TARGET_END \
    }                  \
    }

#endif
