// Spec structures in caller memory: placed at the next 64-byte boundary of the
// caller's buffer (every size query adds kSpecSlack), identifier first.
#ifndef QVN_CORE_SPEC_INL_H
#define QVN_CORE_SPEC_INL_H

#include <cstdint>
#include <new>
#include <type_traits>

#include "kernels/target.h"
#include "qvnip_types.h"

QVN_TARGET_BEGIN
namespace spec {

inline constexpr std::int64_t kSpecSlack = 63;

template <class T>
inline T* alignUp64(T* p) {
    const auto a = (reinterpret_cast<std::uintptr_t>(p) + 63) & ~std::uintptr_t(63);
    return reinterpret_cast<T*>(a);
}

// Builds a spec record S (a plain record whose first member is the 32-bit
// identifier `id`) in the caller's buffer and returns it.
template <class S>
inline S* place(void* buffer, std::uint32_t id) {
    static_assert(std::is_trivially_copyable_v<S>, "specs are plain records");
    S* s = new (alignUp64(static_cast<unsigned char*>(buffer))) S{};
    s->id = id;
    return s;
}

// Finds the spec in a buffer from place(); null when the identifier differs,
// which the caller reports as qvnErrBadSpec.
template <class S>
inline const S* find(const void* buffer, std::uint32_t id) {
    const S* s = reinterpret_cast<const S*>(alignUp64(static_cast<const unsigned char*>(buffer)));
    return s->id == id ? s : nullptr;
}

// Finds the spec in a buffer from place() when accept(spec) holds (its
// identifier and the parameters recorded after it); null otherwise, which the
// caller reports as qvnErrBadSpec.
template <class S, class Accept>
inline const S* findIf(const void* buffer, const Accept& accept) {
    const S* s = reinterpret_cast<const S*>(alignUp64(static_cast<const unsigned char*>(buffer)));
    return accept(*s) ? s : nullptr;
}

// n rounded up to a multiple of 64: the size of a 64-byte aligned block.
inline constexpr std::int64_t align64(std::int64_t n) { return (n + 63) & ~std::int64_t(63); }

}  // namespace spec
QVN_TARGET_END

#endif
