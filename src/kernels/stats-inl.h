// Reductions over rows: sums, and the lowest and highest element of each
// channel.
//
// A row holds whole pixels of E elements. The vector loops read it in blocks
// that start at a pixel and span whole vectors (one vector for one or four
// elements per pixel, three for three), so that lane k of vector j of every
// block holds channel (j x lanes + k) mod E. Lanes accumulate on their own;
// the lanes of each channel are combined once, at the end.
#ifndef QVN_KERNELS_STATS_INL_H
#define QVN_KERNELS_STATS_INL_H

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <tuple>
#include <type_traits>
#include <utility>

#include "kernels/isa/isa.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace stats {

template <class T>
using V = isa::Vec<T>;
template <class T>
inline constexpr std::int64_t kLanes = std::int64_t(isa::kLanes<T>);

// Vectors per block, and elements per block.
template <int E>
inline constexpr int kBlockVecs = E == 3 ? 3 : 1;
template <class T, int E>
inline constexpr std::int64_t kBlock = kBlockVecs<E> * kLanes<T>;

template <class T>
inline constexpr bool kFloat = std::is_floating_point_v<T>;

// The unsigned integer of T's size: floats are compared by their bits.
template <class T>
using Bits = std::conditional_t<sizeof(T) == 1, std::uint8_t, std::conditional_t<sizeof(T) == 2, std::uint16_t, std::uint32_t>>;

template <class T>
inline bool sameBits(T a, T b) {
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// Out of the caches the loops keep more reads in flight with a hint for
// every cache line kAhead bytes before they reach it (a hint past the end of
// the image is harmless: it never faults).
inline constexpr std::int64_t kAhead = 2048;
template <class T>
inline void prefetchAhead(const T* p, std::int64_t bytes) {
    for (std::int64_t b = 0; b < bytes; b += 64) isa::prefetch(reinterpret_cast<const char*>(p) + kAhead + b);
}
// Blocks of B elements of T per group of at least a cache line.
template <class T, std::int64_t B>
inline constexpr std::int64_t kLineGroup = B * std::int64_t(sizeof(T)) >= 64 ? 1 : 64 / (B * std::int64_t(sizeof(T)));

// ---- sums of 8- and 16-bit elements -----------------------------------------------
// Exact. Each vector, read as lanes of twice the element width, splits into
// its even elements (the low halves) and odd ones (the high halves, shifted
// down): no shuffles. Those lanes accumulate and are added to 64-bit lanes
// every kFlush blocks, before any of them can overflow (256 bytes or 65536
// 16-bit elements per lane). 8u rows of one channel go straight to 64-bit
// lanes, eight bytes at a time. Signed 16-bit elements are summed biased by
// 32768, as unsigned ones; the caller takes the bias off.
template <class T, int E>
class IntSum {
    using U = std::make_unsigned_t<T>;
    using N = std::conditional_t<sizeof(T) == 1, std::uint16_t, std::uint32_t>;
    static constexpr int kVecs = kBlockVecs<E>;
    static constexpr int kNarrow = 2 * kVecs;  // narrow j: the even (j even) or odd elements of vector j / 2
    static constexpr int kWidePer = int(sizeof(std::uint64_t) / sizeof(N));
    static constexpr int kWide = kNarrow * kWidePer;
    static constexpr std::int64_t kFlush = sizeof(T) == 1 ? 256 : 65536;
    static constexpr bool kBytes = sizeof(T) == 1 && E == 1;

public:
    static constexpr std::uint64_t kBias = std::is_signed_v<T> ? 32768 : 0;

    IntSum() {
        for (auto& v : narrow_) v = isa::zero<N>();
        for (auto& v : wide_) v = isa::zero<std::uint64_t>();
    }

    // Adds a row of n elements.
    void row(const T* p, std::int64_t n) {
        constexpr std::int64_t B = kBlock<T, E>;
        std::int64_t i = 0;
        if constexpr (kBytes) {
            constexpr std::int64_t G = kLineGroup<T, B>;
            V<std::uint64_t> a = wide_[0];
            for (; i + G * B <= n; i += G * B) {
                prefetchAhead(p + i, G * B);
                for (std::int64_t g = 0; g < G; ++g) a = isa::add(a, isa::sumBytes(isa::loadU(p + i + g * B)));
            }
            for (; i + B <= n; i += B) a = isa::add(a, isa::sumBytes(isa::loadU(p + i)));
            wide_[0] = a;
        } else {
            const V<N> low = isa::set1<N>(N(U(~U(0))));
            V<N> acc[kNarrow];
            for (int j = 0; j < kNarrow; ++j) acc[j] = narrow_[j];
            while (n - i >= B) {
                constexpr std::int64_t G = kLineGroup<T, B>;
                const std::int64_t blocks = std::min((n - i) / B, kFlush - pending_);
                const auto block = [&](const T* q) {
                    for (int j = 0; j < kVecs; ++j) {
                        const V<N> x = isa::cast<N>(load(q + j * kLanes<T>));
                        acc[2 * j] = isa::add(acc[2 * j], isa::bitAnd(x, low));
                        acc[2 * j + 1] = isa::add(acc[2 * j + 1], isa::shiftRight<8 * sizeof(T)>(x));
                    }
                };
                std::int64_t b = 0;
                for (; b + G <= blocks; b += G, i += G * B) {
                    prefetchAhead(p + i, G * B * std::int64_t(sizeof(T)));
                    for (std::int64_t g = 0; g < G; ++g) block(p + i + g * B);
                }
                for (; b < blocks; ++b, i += B) block(p + i);
                pending_ += blocks;
                if (pending_ == kFlush) flush(acc);
            }
            for (int j = 0; j < kNarrow; ++j) narrow_[j] = acc[j];
        }
        for (; i < n; ++i) tail_[i % E] += U(U(p[i]) ^ kBias);
    }

    // The biased sum of each channel.
    void totals(std::uint64_t out[4]) {
        if constexpr (!kBytes) flush(narrow_);
        constexpr std::int64_t L64 = kLanes<std::uint64_t>;
        std::uint64_t lanes[kWide * L64];
        for (int j = 0; j < kWide; ++j) isa::storeU(lanes + j * L64, wide_[j]);
        for (int c = 0; c < E; ++c) out[c] = tail_[c];
        // lane k of narrow j holds element 2k + j % 2 of vector j / 2; with
        // kBytes a lane holds eight elements of the one channel
        for (std::int64_t k = 0; k < kWide * L64; ++k) {
            const std::int64_t j = k / kLanes<N>, lane = k % kLanes<N>;
            out[kBytes ? 0 : (j / 2 * kLanes<T> + 2 * lane + j % 2) % E] += lanes[k];
        }
    }

private:
    static V<U> load(const T* p) {
        const V<U> x = isa::cast<U>(isa::inRegister(isa::loadU(p)));
        if constexpr (kBias != 0) return isa::bitXor(x, isa::set1<U>(U(kBias)));
        else return x;
    }
    // Narrow lanes into 64-bit lanes, kept in lane order.
    void flush(V<N>* acc) {
        for (int j = 0; j < kNarrow; ++j) {
            V<std::uint64_t>* w = wide_ + j * kWidePer;
            if constexpr (sizeof(N) == 2) {
                const V<std::uint32_t> lo = isa::widenLo<std::uint32_t>(acc[j]), hi = isa::widenHi<std::uint32_t>(acc[j]);
                w[0] = isa::add(w[0], isa::widenLo<std::uint64_t>(lo));
                w[1] = isa::add(w[1], isa::widenHi<std::uint64_t>(lo));
                w[2] = isa::add(w[2], isa::widenLo<std::uint64_t>(hi));
                w[3] = isa::add(w[3], isa::widenHi<std::uint64_t>(hi));
            } else {
                w[0] = isa::add(w[0], isa::widenLo<std::uint64_t>(acc[j]));
                w[1] = isa::add(w[1], isa::widenHi<std::uint64_t>(acc[j]));
            }
            acc[j] = isa::zero<N>();
        }
        pending_ = 0;
    }

    V<N> narrow_[kNarrow];
    V<std::uint64_t> wide_[kWide];
    std::int64_t pending_ = 0;
    std::uint64_t tail_[4] = {};
};

// ---- sums of 32f elements ----------------------------------------------------------
// In double precision, in an order that is the same on every target: element
// i of a row goes to partial sum i mod kParts, every partial adds its
// elements in row order, and the partials of a channel are added in
// increasing order at the end. 24 partials are whole vectors of doubles on
// every target (12, 6 or 3 of them) and whole pixels of one, three and four
// elements. They start at -0, so that a sum of negative zeros is -0.
//
// Accurate: every addition also yields its rounding error exactly (Knuth's
// two-sum, six operations that round to nearest), the errors are summed
// apart, in the same order, and added back at the end. The running sums are
// those of the fast path, so its result corrects the fast one.
template <int E, bool Accurate>
class FloatSum {
    static constexpr int kParts = 24;
    static constexpr std::int64_t kLd = kLanes<double>;
    static constexpr int kVecs = int(kParts / kLd);

public:
    FloatSum() {
        for (int k = 0; k < kParts; ++k) s_[k] = -0.0, c_[k] = 0.0;
    }

    void row(const float* p, std::int64_t n) {
        V<double> s[kVecs], c[kVecs];
        for (int j = 0; j < kVecs; ++j) s[j] = isa::loadU(s_ + j * kLd), c[j] = isa::loadU(c_ + j * kLd);
        std::int64_t i = 0;
        for (; i + kParts <= n; i += kParts) {
            prefetchAhead(p + i, kParts * 4);
            for (int j = 0; j < kVecs; ++j) add(s[j], c[j], isa::loadToDouble(p + i + j * kLd));
        }
        for (int j = 0; j < kVecs; ++j) isa::storeU(s_ + j * kLd, s[j]), isa::storeU(c_ + j * kLd, c[j]);
        for (int k = 0; i < n; ++i, ++k) add(s_[k], c_[k], double(p[i]));
    }

    void totals(double out[4]) const {
        for (int ch = 0; ch < E; ++ch) {
            double s = s_[ch], c = c_[ch];
            for (int k = ch + E; k < kParts; k += E) {
                add(s, c, s_[k]);
                if constexpr (Accurate) c += c_[k];
            }
            // an infinite or NaN sum makes the errors NaN: the sum stands
            out[ch] = Accurate && c != 0 && s - s == 0 ? s + c : s;
        }
    }

private:
    // s + x into s; with Accurate, the rounding error of that addition into c.
    template <class D>
    static void add(D& s, D& c, D x) {
        if constexpr (Accurate) {
            const D t = s + x, bv = t - s, av = t - bv;
            c = c + ((s - av) + (x - bv));
            s = t;
        } else {
            (void)c;
            s = s + x;
        }
    }
    static void add(V<double>& s, V<double>& c, V<double> x) {
        if constexpr (Accurate) {
            const V<double> t = isa::add(s, x), bv = isa::sub(t, s), av = isa::sub(t, bv);
            c = isa::add(c, isa::add(isa::sub(s, av), isa::sub(x, bv)));
            s = t;
        } else {
            (void)c;
            s = isa::add(s, x);
        }
    }

    double s_[kParts], c_[kParts];
};

// ---- lowest and highest ------------------------------------------------------------
// Elements are ordered by value, with -0 below +0, so every target finds the
// same bits. NaN elements are ignored: the accumulator, which starts at
// start() (the value no element is beyond), is the second operand and never
// NaN, and the ordered minimum and maximum keep their second operand when
// the first is NaN. bound() is the value that nothing can pass.
struct Lower {
    template <class T>
    static constexpr T start() {
        if constexpr (kFloat<T>) return std::numeric_limits<T>::infinity();
        else return std::numeric_limits<T>::max();
    }
    template <class T>
    static constexpr T bound() {
        if constexpr (kFloat<T>) return -std::numeric_limits<T>::infinity();
        else return std::numeric_limits<T>::lowest();
    }
    template <class T>
    static T scalar(T x, T acc) {
        if constexpr (kFloat<T>) {
            if (x == acc) {  // equal zeros: -0 if either is
                Bits<T> a, b;
                std::memcpy(&a, &x, sizeof a), std::memcpy(&b, &acc, sizeof b);
                a |= b;
                std::memcpy(&x, &a, sizeof a);
                return x;
            }
        }
        return x < acc ? x : acc;
    }
    template <class T>
    static V<T> vec(V<T> x, V<T> acc) {
        if constexpr (kFloat<T>) return isa::minOrdered(x, acc);
        else return isa::min(x, acc);
    }
};

struct Higher {
    template <class T>
    static constexpr T start() { return Lower::bound<T>(); }
    template <class T>
    static constexpr T bound() { return Lower::start<T>(); }
    template <class T>
    static T scalar(T x, T acc) {
        if constexpr (kFloat<T>) {
            if (x == acc) {  // equal zeros: +0 if either is
                Bits<T> a, b;
                std::memcpy(&a, &x, sizeof a), std::memcpy(&b, &acc, sizeof b);
                a &= b;
                std::memcpy(&x, &a, sizeof a);
                return x;
            }
        }
        return x > acc ? x : acc;
    }
    template <class T>
    static V<T> vec(V<T> x, V<T> acc) {
        if constexpr (kFloat<T>) return isa::maxOrdered(x, acc);
        else return isa::max(x, acc);
    }
};

// The block pattern of per-channel values: lane k of vector j holds
// value[(j x lanes + k) mod E].
template <class T, int E>
inline void pattern(const T value[4], V<T>* out) {
    T buf[kBlock<T, E>];
    for (std::int64_t k = 0; k < kBlock<T, E>; ++k) buf[k] = value[k % E];
    for (int j = 0; j < kBlockVecs<E>; ++j) out[j] = isa::loadU(buf + j * kLanes<T>);
}

// Each operation's extreme of every channel over the rows folded in: vector
// lanes for rows of at least a block, per-channel scalars for shorter ones.
template <class T, int E, class... Ops>
class Extremes {
public:
    static constexpr int kOps = int(sizeof...(Ops)), kVecs = kBlockVecs<E>;
    using Lanes = V<T>[kOps][kVecs];

    Extremes() {
        start(v_);
        each([&](auto k, auto op) {
            for (int c = 0; c < 4; ++c) s_[k][c] = decltype(op)::template start<T>();
        });
    }

    // Folds in a row of n elements. Long rows run kUnroll blocks at a time,
    // each into its own lanes (the float operations' latency); the last
    // block ends at the row's end and may repeat elements, which an extreme
    // does not mind.
    void row(const T* p, std::int64_t n) {
        constexpr std::int64_t B = kBlock<T, E>;
        constexpr int kUnroll = kVecs == 1 ? 4 : 2;
        if (n < B) {
            for (std::int64_t i = 0; i < n; ++i)
                each([&](auto k, auto op) { s_[k][i % E] = decltype(op)::scalar(p[i], s_[k][i % E]); });
            return;
        }
        Lanes u[kUnroll];
        for (int k = 0; k < kOps; ++k)
            for (int j = 0; j < kVecs; ++j) u[0][k][j] = v_[k][j];
        for (int r = 1; r < kUnroll; ++r) start(u[r]);
        std::int64_t i = 0;
        for (; i + kUnroll * B <= n; i += kUnroll * B) {
            prefetchAhead(p + i, kUnroll * B * std::int64_t(sizeof(T)));
            for (int r = 0; r < kUnroll; ++r)
                for (int j = 0; j < kVecs; ++j) fold(u[r], j, isa::inRegister(isa::loadU(p + i + r * B + j * kLanes<T>)));
        }
        for (; i + B <= n; i += B)
            for (int j = 0; j < kVecs; ++j) fold(u[0], j, isa::inRegister(isa::loadU(p + i + j * kLanes<T>)));
        if (i < n)
            for (int j = 0; j < kVecs; ++j) fold(u[0], j, isa::inRegister(isa::loadU(p + n - B + j * kLanes<T>)));
        each([&](auto k, auto op) {
            for (int j = 0; j < kVecs; ++j) {
                V<T> m = u[0][k][j];
                for (int r = 1; r < kUnroll; ++r) m = decltype(op)::vec(u[r][k][j], m);
                v_[k][j] = m;
            }
        });
        vectors_ = true;
    }

    // Whether a row of at least a block was folded in.
    bool vectorLanes() const { return vectors_; }
    // Whether some vector lane of operation 0 passes the pattern `run`.
    bool passes(const V<T>* run) const {
        using Op = std::tuple_element_t<0, std::tuple<Ops...>>;
        using B = Bits<T>;
        bool any = false;
        for (int j = 0; j < kVecs; ++j)
            any |= !isa::allTrue(isa::cmpEq(isa::cast<B>(Op::vec(v_[0][j], run[j])), isa::cast<B>(run[j])));
        return any;
    }

    // out[k][c]: operation k's extreme of channel c.
    void channels(T out[kOps][4]) const {
        T buf[kBlock<T, E>];
        each([&](auto k, auto op) {
            using Op = decltype(op);
            for (int c = 0; c < E; ++c) out[k][c] = s_[k][c];
            for (int j = 0; j < kVecs && vectors_; ++j) {
                isa::storeU(buf + j * kLanes<T>, v_[k][j]);
                for (std::int64_t l = 0; l < kLanes<T>; ++l) {
                    const int c = int((j * kLanes<T> + l) % E);
                    out[k][c] = Op::scalar(buf[j * kLanes<T> + l], out[k][c]);
                }
            }
        });
    }

private:
    template <class F>
    static void each(F&& f) {
        eachOf(f, std::make_index_sequence<sizeof...(Ops)>{});
    }
    template <class F, std::size_t... K>
    static void eachOf(F& f, std::index_sequence<K...>) {
        (f(K, Ops{}), ...);
    }
    static void start(Lanes& l) {
        each([&](auto k, auto op) {
            for (int j = 0; j < kVecs; ++j) l[k][j] = isa::set1(decltype(op)::template start<T>());
        });
    }
    static void fold(Lanes& l, int j, V<T> x) {
        each([&](auto k, auto op) { l[k][j] = decltype(op)::vec(x, l[k][j]); });
    }

    Lanes v_;
    T s_[kOps][4];
    bool vectors_ = false;
};

// The first pixel of a row of n elements whose channel c holds exactly the
// bits of v, or -1.
template <class T, int E>
inline std::int64_t findFirst(const T* p, std::int64_t n, int c, T v) {
    using B = Bits<T>;
    constexpr std::int64_t BL = kBlock<T, E>;
    std::int64_t i = 0;
    if (n >= BL) {
        B sel[4] = {}, vb;
        sel[c] = B(~B(0));
        std::memcpy(&vb, &v, sizeof vb);
        V<B> mask[kBlockVecs<E>];
        pattern<B, E>(sel, mask);
        const V<B> want = isa::set1(vb);
        for (; i + BL <= n; i += BL) {
            bool hit = false;
            for (int j = 0; j < kBlockVecs<E>; ++j)
                hit |= isa::anyTrue(isa::bitAnd(isa::cmpEq(isa::cast<B>(isa::loadU(p + i + j * kLanes<T>)), want), mask[j]));
            if (hit) break;
        }
    }
    for (i += c; i < n; i += E)
        if (sameBits(p[i], v)) return i / E;
    return -1;
}

}  // namespace stats
}  // namespace kernels
QVN_TARGET_END

#endif
