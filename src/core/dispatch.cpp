// The dispatching layer's choice of target (see core/dispatch.h).
#include "core/dispatch.h"

#include "qvncore.h"

namespace qvn {
namespace dispatch {

#ifdef QVN_DISPATCH
extern const Table kTable_sse3;
#ifdef QVN_HAVE_AVX2
extern const Table kTable_avx2;
#endif
#ifdef QVN_HAVE_AVX512
extern const Table kTable_avx512;
#endif

const Table* gActive = &kTable_sse3;
#endif

namespace {

// The processor features each target's code may use: x86-64-v3 and v4.
constexpr Qvn64s kAvx2Features = qvnCpuSSSE3 | qvnCpuSSE41 | qvnCpuSSE42 | qvnCpuPOPCNT | qvnCpuMOVBE |
                                 qvnCpuAVX | qvnCpuF16C | qvnCpuLZCNT | qvnCpuFMA | qvnCpuBMI1 | qvnCpuBMI2 |
                                 qvnCpuAVX2;
constexpr Qvn64s kAvx512Features =
    kAvx2Features | qvnCpuAVX512F | qvnCpuAVX512CD | qvnCpuAVX512BW | qvnCpuAVX512DQ | qvnCpuAVX512VL;

Target gCurrent = Target::kSse3;

#ifdef QVN_DISPATCH
const Table* tableOf(Target t) {
    switch (t) {
#ifdef QVN_HAVE_AVX2
        case Target::kAvx2: return &kTable_avx2;
#endif
#ifdef QVN_HAVE_AVX512
        case Target::kAvx512: return &kTable_avx512;
#endif
        case Target::kSse3: return &kTable_sse3;
        default: return nullptr;
    }
}

// Once, when the library is loaded.
__attribute__((constructor)) void chooseTarget() { useTarget(best()); }
#endif

}  // namespace

bool supported(Target t) {
    switch (t) {
        case Target::kSse3: return true;
#ifdef QVN_DISPATCH
        case Target::kAvx2: return tableOf(t) != nullptr && ownGetFeature(kAvx2Features) != 0;
        case Target::kAvx512: return tableOf(t) != nullptr && ownGetFeature(kAvx512Features) != 0;
#endif
        default: return false;
    }
}

Target best() {
    if (supported(Target::kAvx512)) return Target::kAvx512;
    if (supported(Target::kAvx2)) return Target::kAvx2;
    return Target::kSse3;
}

bool useTarget(Target t) {
    if (!supported(t)) return false;
#ifdef QVN_DISPATCH
    gActive = tableOf(t);
#endif
    gCurrent = t;
    return true;
}

Target current() { return gCurrent; }

}  // namespace dispatch
}  // namespace qvn
