// Reference model of the copies, fills and channel shuffles: what one
// destination element must hold, from the rules alone.
#ifndef QVN_TESTS_REF_CHANNEL_MAP_H
#define QVN_TESTS_REF_CHANNEL_MAP_H

#include <cstdint>

namespace qvn::ref {

// Destination channel c of a pixel: from[c] >= 0 is a source channel of the
// same pixel, kFill the fill value fill[c], kKeep the old destination value.
struct ChannelMap {
    static constexpr int kKeep = -1, kFill = -2;
    int srcElems = 1, dstElems = 1;
    int from[4] = {0, 1, 2, 3};
    double fill[4] = {0, 0, 0, 0};
};

// src(e) reads element e of the source row, counted from the source pointer.
template <class T, class SrcAt>
T mapElement(const ChannelMap& m, SrcAt src, T old, std::int64_t x, int c) {
    const int f = m.from[c];
    if (f == ChannelMap::kKeep) return old;
    if (f == ChannelMap::kFill) return T(m.fill[c]);
    return src(x * m.srcElems + f);
}

}  // namespace qvn::ref

#endif
