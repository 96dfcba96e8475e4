// The per-target namespace and instruction set.
//
// Everything compiled for a target (vector kernels, row templates, family
// templates and the inline frame functions they call) lives in
// qvn::QVN_TARGET, between QVN_TARGET_BEGIN and QVN_TARGET_END. The library is
// built for sse3 (the baseline of every object file), and the dispatching
// build compiles the same sources again for avx2 and avx512 with QVN_TARGET and
// QVN_TARGET_LEVEL set.
//
// A wider target's instruction set is switched on by a pragma around its own
// namespace only, not by command-line flags: inline functions outside it (the
// standard library's, the frame's plain records) are then compiled for the
// baseline in every object file, so whichever copy the linker keeps runs on
// every processor. The namespace keeps the targets' own inline functions
// apart.
#ifndef QVN_KERNELS_TARGET_H
#define QVN_KERNELS_TARGET_H

#ifndef QVN_TARGET
#define QVN_TARGET sse3
#endif
// 1: sse3 (16-byte vectors), 2: avx2 (32-byte), 3: avx512 (64-byte).
#ifndef QVN_TARGET_LEVEL
#define QVN_TARGET_LEVEL 1
#endif

// The instruction sets of each wider target: x86-64-v3 and x86-64-v4.
#define QVN_ISA_AVX2 "popcnt,movbe,lzcnt,bmi,bmi2,f16c,fma,avx2"
#define QVN_ISA_AVX512 "popcnt,movbe,lzcnt,bmi,bmi2,f16c,fma,avx2,avx512f,avx512bw,avx512dq,avx512vl,avx512cd"

#define QVN_PRAGMA(x) _Pragma(#x)
#define QVN_PRAGMA_TARGET(isa) QVN_PRAGMA(GCC target(isa))
#if QVN_TARGET_LEVEL == 3
#define QVN_TARGET_ISA_BEGIN QVN_PRAGMA(GCC push_options) QVN_PRAGMA_TARGET(QVN_ISA_AVX512)
#define QVN_TARGET_ISA_END QVN_PRAGMA(GCC pop_options)
#elif QVN_TARGET_LEVEL == 2
#define QVN_TARGET_ISA_BEGIN QVN_PRAGMA(GCC push_options) QVN_PRAGMA_TARGET(QVN_ISA_AVX2)
#define QVN_TARGET_ISA_END QVN_PRAGMA(GCC pop_options)
#else
#define QVN_TARGET_ISA_BEGIN
#define QVN_TARGET_ISA_END
#endif

#define QVN_TARGET_BEGIN  \
    QVN_TARGET_ISA_BEGIN  \
    namespace qvn {       \
    namespace QVN_TARGET {
#define QVN_TARGET_END \
    }                  \
    }                  \
    QVN_TARGET_ISA_END

#endif
