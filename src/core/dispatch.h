// The dispatching layer: which build target's code the exported names run.
//
// Every target's table is constant data; the active table is chosen once,
// when the library is loaded, from the core library's feature query: the
// widest target that the processor and the operating system support. Until
// then (a call from another library's initialiser) the sse3 table serves:
// every target gives the same results, only the speed differs.
#ifndef QVN_CORE_DISPATCH_H
#define QVN_CORE_DISPATCH_H

#include "core/image.h"

namespace qvn {
namespace dispatch {

struct Table;  // generated: one entry per exported name

extern const Table* gActive;

// The table of the chosen target.
inline const Table* table() { return gActive; }

// Whether this build holds the target's code and the running processor (and
// its operating system) can run it.
bool supported(Target t);

// The widest supported target.
Target best();

// Internal hook for the tests and the benchmark, never exported: runs every
// later call with target t. Returns false (and changes nothing) when t is not
// supported.
bool useTarget(Target t);

// The target in use.
Target current();

}  // namespace dispatch
}  // namespace qvn

#endif
