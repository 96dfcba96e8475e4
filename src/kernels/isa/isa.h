// The instruction-set layer of the target being compiled, under the one name
// kernels use: isa. The sse3 target works on 16-byte vectors (v128), avx2 on
// 32-byte ones (v256), avx512 on 64-byte ones (v512); every layer offers the
// same functions with the same meaning, and the narrower layers stay
// available by their own names for kernels whose algorithm is tied to a
// vector size.
#ifndef QVN_KERNELS_ISA_ISA_H
#define QVN_KERNELS_ISA_ISA_H

#include "kernels/target.h"

#if QVN_TARGET_LEVEL == 3
#include "kernels/isa/v512.h"
QVN_TARGET_BEGIN
namespace isa = v512;
QVN_TARGET_END
#elif QVN_TARGET_LEVEL == 2
#include "kernels/isa/v256.h"
QVN_TARGET_BEGIN
namespace isa = v256;
QVN_TARGET_END
#else
#include "kernels/isa/v128.h"
QVN_TARGET_BEGIN
namespace isa = v128;
QVN_TARGET_END
#endif

#endif
