// How the generated wrappers define the exported names.
//
// The baseline library (one target) defines every exported name directly in
// the wrappers. The dispatching build compiles the same wrappers once per
// target as that target's entries (qvn::<target>::entry::<name>, internal);
// the exported names then jump through the table of the target chosen for the
// running processor (core/dispatch.h).
#ifndef QVN_CORE_ENTRY_H
#define QVN_CORE_ENTRY_H

#include "core/image.h"
#include "kernels/target.h"
#include "qvnip_types.h"

// The target being compiled.
QVN_TARGET_BEGIN
inline constexpr Target kTarget = Target(QVN_TARGET_LEVEL - 1);
QVN_TARGET_END

#ifdef QVN_DISPATCH
#define QVN_ENTRY
#define QVN_ENTRIES_BEGIN QVN_TARGET_BEGIN namespace entry {
#define QVN_ENTRIES_END } QVN_TARGET_END
#else
#define QVN_ENTRY QVN_API
#define QVN_ENTRIES_BEGIN
#define QVN_ENTRIES_END
#endif

#endif
