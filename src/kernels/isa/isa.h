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
// The layer of loops whose loads sit a few elements off their stores' (and
// so off the vector's) alignment: a 64-byte load at such an offset always
// spans two cache lines, a 32-byte one half of the time, and out of cache
// the 64-byte loop takes about twice the time (SwapChannels 8u C3 at
// 3840x2160: 0.22 against 0.13 ns per pixel). They run on 32-byte vectors.
namespace isa_offset = v256;
QVN_TARGET_END
#elif QVN_TARGET_LEVEL == 2
#include "kernels/isa/v256.h"
QVN_TARGET_BEGIN
namespace isa = v256;
namespace isa_offset = v256;
QVN_TARGET_END
#else
#include "kernels/isa/v128.h"
QVN_TARGET_BEGIN
namespace isa = v128;
namespace isa_offset = v128;
QVN_TARGET_END
#endif

#endif
