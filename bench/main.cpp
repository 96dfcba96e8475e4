// qvnip_bench: every registered operation at every size, ours against the
// peers and the bandwidth bound, single-threaded.
//
//   qvnip_bench [--quick] [--raw] [--json FILE] [--filter TEXT] [--benchmark_...]
//
// --quick    short timing (about a minute for everything); the default takes
//            several times longer and repeats each case more often
// --raw      also print Google Benchmark's own per-case lines
// --json     write the table as JSON, for bench/compare.py
// --filter   only operations whose name contains TEXT
// --check    time nothing: run every case's output check at a few sizes
//            (odd ones included) and report the failures
// --target   sse3, avx2 or avx512: time our side with that build target only
//            (by default every build target this processor runs is timed,
//            one column each, and "ours" is the one the library chose)
// Other arguments go to Google Benchmark unchanged.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>

#include <unistd.h>

#include <opencv2/core/utility.hpp>

#include "bandwidth.h"
#include "bench.h"
#include "core/dispatch.h"
#include "report.h"

namespace qbench {

std::vector<OpDef>& registry() {
    static std::vector<OpDef> ops;
    return ops;
}

namespace {

const char* const kTargetNames[qvn::kTargetCount] = {"sse3", "avx2", "avx512"};

// The build targets timed in this run, and the one "ours" stands for.
struct Targets {
    std::vector<int> timed;
    int ours = 0;
};
Targets& targets() {
    static Targets t;
    return t;
}

// Runs fn with build target t (through the library's internal hook), then
// goes back to the target of "ours".
template <class Fn>
auto withTarget(int t, Fn fn) {
    qvn::dispatch::useTarget(qvn::Target(t));
    struct Back {
        ~Back() { qvn::dispatch::useTarget(qvn::Target(targets().ours)); }
    } back;
    return fn();
}

// The output check of a case under every timed target: the first failure,
// named by its target.
std::string checkEveryTarget(Case& c) {
    for (int t : targets().timed) {
        const std::string e = withTarget(t, [&] { return c.check(); });
        if (!e.empty()) return targets().timed.size() > 1 ? std::string(kTargetNames[t]) + ": " + e : e;
    }
    return {};
}

struct Settings {
    bool quick = false, raw = false, checkOnly = false;
    std::string json, filter, target;
    double minTime() const { return quick ? 0.03 : 0.25; }
    int repetitions() const { return quick ? 3 : 5; }
};

// Bandwidth streams: a 4-byte-per-pixel image at each size (what the
// operations at that size can at best stream), and buffers far larger than
// any cache (the machine's memory). A case is bounded by the copy, the
// read-modify-write (in place) or the read stream (reductions).
struct Stream {
    enum Kind { kCopy, kRmw, kRead };
    std::string where;
    std::size_t bytes;
};

// Cases are built when their first benchmark runs and dropped when the next
// operation starts, so that only one operation's images are alive at a time.
// Building a case runs its output check.
class CaseCache {
public:
    struct Entry {
        std::unique_ptr<Case> c;
        std::string error;
    };
    Entry& get(std::size_t op, std::size_t size) {
        const auto key = std::make_pair(op, size);
        if (key != key_ || !entry_.c) {
            entry_ = {};
            key_ = key;
            // Progress on a terminal only, on one line; logs stay clean.
            const Size z = sizesOf(registry()[op])[size];
            if (isatty(2))
                std::fprintf(stderr, "\r  %-40s", (registry()[op].name + " " + sizeName(z)).c_str());
            entry_.c = registry()[op].make(z);
            entry_.error = checkEveryTarget(*entry_.c);
            facts_[key] = {entry_.c->bytes,
                           entry_.c->inPlace ? Stream::kRmw : entry_.c->readOnly ? Stream::kRead : Stream::kCopy,
                           entry_.c->pixels};
        }
        return entry_;
    }
    // Bytes per call, the bandwidth stream that bounds the case and the
    // pixels its times are per, of every case built so far.
    struct Facts {
        double bytes = 0;
        int stream = 0;
        double pixels = 0;
    };
    Facts facts(std::size_t op, std::size_t size) const {
        auto it = facts_.find({op, size});
        return it == facts_.end() ? Facts{} : it->second;
    }

private:
    std::pair<std::size_t, std::size_t> key_{~std::size_t(0), 0};
    Entry entry_;
    std::map<std::pair<std::size_t, std::size_t>, Facts> facts_;
};

CaseCache& cache() {
    static CaseCache c;
    return c;
}

// What a benchmark times: the peer, FFTW, or our side with one build target.
inline constexpr int kPeerSide = -1, kFftwSide = -2;

const char* peerName(Peer p) { return p == Peer::Fftw ? "fftw" : "opencv"; }

std::string benchName(const OpDef& op, Size z, int side) {
    return op.name + "/" + sizeName(z) + "/" +
           (side == kPeerSide   ? std::string(peerName(op.peer))
            : side == kFftwSide ? std::string("fftw")
                                : std::string("ours-") + kTargetNames[side]);
}

void runCase(benchmark::State& st, std::size_t op, std::size_t size, int side) {
    CaseCache::Entry& e = cache().get(op, size);
    if (!e.error.empty()) {
        st.SkipWithError(e.error.c_str());
        for (auto _ : st) {
        }
        return;
    }
    const std::function<void()>& fn = side == kPeerSide ? e.c->peer : side == kFftwSide ? e.c->fftw : e.c->ours;
    withTarget(side < 0 ? targets().ours : side, [&] {
        for (auto _ : st) {
            fn();
            benchmark::ClobberMemory();
        }
    });
    st.SetBytesProcessed(std::int64_t(e.c->bytes * double(st.iterations())));
    st.SetItemsProcessed(std::int64_t(e.c->pixels * double(st.iterations())));  // pixels per second
}


std::vector<Stream> streams() {
    std::vector<Stream> s;
    for (Size z : kSizes) s.push_back({sizeName(z), std::size_t(z.w) * z.h * 4});
    s.push_back({"memory", std::size_t(512) << 20});
    return s;
}

void runStream(benchmark::State& st, std::size_t bytes, int kind) {
    BandwidthCase b(bytes);
    for (auto _ : st) {
        if (kind == Stream::kRmw) b.rmw();
        else if (kind == Stream::kRead) b.read();
        else b.copy();
        benchmark::ClobberMemory();
    }
    st.SetBytesProcessed(std::int64_t(b.bytesPerCall() / (kind == Stream::kRead ? 2 : 1) * double(st.iterations())));
}

// Keeps the fastest repetition of every case, in seconds per call; also
// passes everything on to the console reporter in --raw mode.
class Collector : public benchmark::BenchmarkReporter {
public:
    explicit Collector(benchmark::BenchmarkReporter* echo) : echo_(echo) {}
    bool ReportContext(const Context& c) override {
        context_ << c.sys_info.name << ", " << c.cpu_info.num_cpus << " CPUs";
        for (const auto& cache : c.cpu_info.caches)
            if (cache.type != "Instruction")
                context_ << ", L" << cache.level << " " << cache.size / 1024 << " KiB";
        return echo_ ? echo_->ReportContext(c) : true;
    }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& r : runs) {
            if (r.run_type != Run::RT_Iteration) continue;
            const std::string name = r.run_name.function_name;  // without the repetition and time suffixes
            if (r.error_occurred) {
                errors_[name] = r.error_message;
                continue;
            }
            const double t = r.real_accumulated_time / double(r.iterations);
            auto it = seconds_.find(name);
            if (it == seconds_.end() || t < it->second) seconds_[name] = t;
        }
        if (echo_) echo_->ReportRuns(runs);
    }
    void Finalize() override {
        if (echo_) echo_->Finalize();
    }

    double seconds(const std::string& name) const {
        auto it = seconds_.find(name);
        return it == seconds_.end() ? kNone : it->second;
    }
    std::string error(const std::string& name) const {
        auto it = errors_.find(name);
        return it == errors_.end() ? std::string() : it->second;
    }
    std::string context() const { return context_.str(); }

private:
    benchmark::BenchmarkReporter* echo_;
    std::map<std::string, double> seconds_;
    std::map<std::string, std::string> errors_;
    std::ostringstream context_;
};

Settings parseArgs(int& argc, char** argv) {
    Settings s;
    int out = 1;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--quick") s.quick = true;
        else if (a == "--raw") s.raw = true;
        else if (a == "--check") s.checkOnly = true;
        else if (a == "--json" && i + 1 < argc) s.json = argv[++i];
        else if (a == "--filter" && i + 1 < argc) s.filter = argv[++i];
        else if (a == "--target" && i + 1 < argc) s.target = argv[++i];
        else argv[out++] = argv[i];
    }
    argc = out;
    return s;
}

// Every case's output check at sizes that exercise row ends and steps, the
// two timed sizes excepted (the timed run checks those itself).
int checkAll(const Settings& s) {
    int failures = 0, cases = 0;
    for (const OpDef& op : registry()) {
        if (op.name.find(s.filter) == std::string::npos) continue;
        for (Size z : op.checkSizes) {
            ++cases;
            const std::string error = checkEveryTarget(*op.make(z));
            if (!error.empty()) {
                std::printf("%s %s: %s\n", op.name.c_str(), sizeName(z).c_str(), error.c_str());
                ++failures;
            }
        }
    }
    std::printf("%d passed, %d failed\n", cases - failures, failures);
    return failures ? 1 : 0;
}

template <class Fn>
void add(const std::string& name, const Settings& s, Fn fn) {
    benchmark::RegisterBenchmark(name.c_str(), fn)
        ->MinTime(s.minTime())
        ->Repetitions(s.repetitions())
        ->ReportAggregatesOnly(false)
        ->UseRealTime()
        ->Unit(benchmark::kMicrosecond);
}

}  // namespace
}  // namespace qbench

int main(int argc, char** argv) {
    using namespace qbench;
    const Settings s = parseArgs(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    // This library starts no threads; the peer runs on one thread as well.
    cv::setNumThreads(1);
    if (!s.target.empty()) {
        int t = 0;
        while (t < qvn::kTargetCount && s.target != kTargetNames[t]) ++t;
        if (t == qvn::kTargetCount || !qvn::dispatch::useTarget(qvn::Target(t))) {
            std::fprintf(stderr, "target %s: unknown, not built or not supported here\n", s.target.c_str());
            return 2;
        }
        targets() = {{t}, t};
    } else {
        for (int t = 0; t < qvn::kTargetCount; ++t)
            if (qvn::dispatch::supported(qvn::Target(t))) targets().timed.push_back(t);
        targets().ours = int(qvn::dispatch::current());
    }
    if (s.checkOnly) return checkAll(s);

    for (const Stream& st : streams()) {
        add("bandwidth/copy/" + st.where, s, [b = st.bytes](benchmark::State& t) { runStream(t, b, Stream::kCopy); });
        add("bandwidth/rmw/" + st.where, s, [b = st.bytes](benchmark::State& t) { runStream(t, b, Stream::kRmw); });
        add("bandwidth/read/" + st.where, s, [b = st.bytes](benchmark::State& t) { runStream(t, b, Stream::kRead); });
    }
    const std::vector<OpDef>& ops = registry();
    std::size_t selected = 0;
    for (std::size_t o = 0; o < ops.size(); ++o) {
        if (ops[o].name.find(s.filter) == std::string::npos) continue;
        ++selected;
        const std::vector<Size> sizes = sizesOf(ops[o]);
        for (std::size_t z = 0; z < sizes.size(); ++z) {
            for (int tg : targets().timed)
                add(benchName(ops[o], sizes[z], tg), s,
                    [o, z, tg](benchmark::State& t) { runCase(t, o, z, tg); });
            if (ops[o].peer != Peer::None)
                add(benchName(ops[o], sizes[z], kPeerSide), s,
                    [o, z](benchmark::State& t) { runCase(t, o, z, kPeerSide); });
            if (ops[o].fftw)
                add(benchName(ops[o], sizes[z], kFftwSide), s,
                    [o, z](benchmark::State& t) { runCase(t, o, z, kFftwSide); });
        }
    }

    std::fprintf(stderr, "measuring bandwidth and %zu operations at %zu sizes (%s)\n", selected,
                 std::size(kSizes), s.quick ? "quick" : "full");
    benchmark::ConsoleReporter console;
    Collector collector(s.raw ? &console : nullptr);
    benchmark::RunSpecifiedBenchmarks(&collector);
    if (isatty(2)) std::fprintf(stderr, "\r%50s\r", "");

    Report r;
    const QvnVersionInfo* v = qvniGetLibVersion();
    std::ostringstream h;
    h << "machine: " << collector.context() << "\n"
      << "ours:    " << v->name << " " << v->version << "\n"
      << "opencv:  " << cv::getVersionString() << ", 1 thread, " << cv::getCPUFeaturesLine() << "\n"
      << "times:   ns per pixel, fastest of " << s.repetitions() << " runs of at least " << s.minTime()
      << " s each; bound = bytes read + written at the copy (rmw for in-place, read for reductions) bandwidth of the same size\n";
    r.header = h.str();

    const double kGB = 1e9;
    std::map<std::string, BandwidthRow> bw;
    for (const Stream& st : streams()) {
        const double bytes = 2.0 * double(st.bytes);
        BandwidthRow b{st.where, bytes / collector.seconds("bandwidth/copy/" + st.where) / kGB,
                       bytes / collector.seconds("bandwidth/rmw/" + st.where) / kGB,
                       bytes / 2 / collector.seconds("bandwidth/read/" + st.where) / kGB};
        bw[st.where] = b;
        r.bandwidth.push_back(b);
    }

    bool failed = false;
    for (std::size_t o = 0; o < ops.size(); ++o) {
        if (ops[o].name.find(s.filter) == std::string::npos) continue;
        const std::vector<Size> sizes = sizesOf(ops[o]);
        for (std::size_t zi = 0; zi < sizes.size(); ++zi) {
            const Size z = sizes[zi];
            Row row;
            row.op = ops[o].name;
            row.size = sizeName(z);
            const std::string ours = benchName(ops[o], z, targets().ours);
            row.error = collector.error(ours);
            const CaseCache::Facts facts = cache().facts(o, zi);
            const double pixels = facts.pixels > 0 ? facts.pixels : double(z.w) * z.h;
            row.ours = collector.seconds(ours) * 1e9 / pixels;
            if (targets().timed.size() > 1)
                for (int tg : targets().timed)
                    row.targets[tg] = collector.seconds(benchName(ops[o], z, tg)) * 1e9 / pixels;
            if (ops[o].peer != Peer::None) {
                const double t = collector.seconds(benchName(ops[o], z, kPeerSide)) * 1e9 / pixels;
                (ops[o].peer == Peer::OpenCV ? row.opencv : row.fftw) = t;
            }
            if (ops[o].fftw) row.fftw = collector.seconds(benchName(ops[o], z, kFftwSide)) * 1e9 / pixels;
            const BandwidthRow& b = bw[sizeName(z)];
            const double gbs = facts.stream == Stream::kRmw ? b.rmw : facts.stream == Stream::kRead ? b.read : b.copy;
            if (facts.bytes > 0 && gbs > 0) row.bound = facts.bytes / (gbs * kGB) * 1e9 / pixels;
            failed |= !row.error.empty();
            r.rows.push_back(row);
        }
    }
    printTable(std::cout, r);
    if (!s.json.empty()) {
        std::ofstream f(s.json);
        writeJson(f, r);
    }
    benchmark::Shutdown();
    return failed ? 1 : 0;
}
