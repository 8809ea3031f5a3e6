// The weight of a clip: allocations and bytes of one clone of a file media, the cost and the
// resident memory of building a track of clones, and the document of such a timeline written
// to a string, to a file and to a sink that only counts.
#include <ZelmarMediaLib/project/Project.h>
#include <ZelmarMediaLib/timeline/Timeline.h>
#include <ZelmarMediaLib/timeline/VMFile.h>
#include <ZelmarMediaLib/timeline/VisualMixer.h>
#include <ZelmarMediaLib/timeline/VisualTrack.h>

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <sys/resource.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <new>
#include <sstream>
#include <streambuf>

namespace {

std::atomic<long long> allocations{0};
std::atomic<long long> liveBytes{0};

void* allocate(std::size_t size) {
    void* memory = std::malloc(size == 0 ? 1 : size);
    if (!memory)
        throw std::bad_alloc();
    allocations.fetch_add(1, std::memory_order_relaxed);
    liveBytes.fetch_add(static_cast<long long>(malloc_usable_size(memory)), std::memory_order_relaxed);
    return memory;
}

void release(void* memory) {
    if (!memory)
        return;
    liveBytes.fetch_sub(static_cast<long long>(malloc_usable_size(memory)), std::memory_order_relaxed);
    std::free(memory);
}

}  // namespace

// Every allocation of the executable is counted; the aligned forms are not used by the library.
void* operator new(std::size_t size) { return allocate(size); }
void* operator new[](std::size_t size) { return allocate(size); }
void operator delete(void* memory) noexcept { release(memory); }
void operator delete[](void* memory) noexcept { release(memory); }
void operator delete(void* memory, std::size_t) noexcept { release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { release(memory); }

namespace {

namespace zml = ZelmarMediaLib;

long long const duration = 10;
long long const spacing = 20;

struct Scene {
    Scene() : project(zml::Project::create(30, 1)), timeline(project->timeline()) {
        zml::shared_ptr<zml::VisualMixer> mixer = timeline->newVisualMixer(640, 480);
        track = timeline->newTrack<zml::VisualTrack>(mixer, -1);
        model = boost::make_shared<zml::VMFile>(zml::Range<long long>(0, duration), zml::Rect<float>(0, 0, 640, 480),
                                                project, "/v.mov", 0.0, 1000.0, 0u);
    }
    void fill(long long count) {
        for (long long i = 0; i < count; ++i)
            track->addMedia(zml::sharedClone(zml::shared_ptr<zml::Media const>(model)), i * spacing);
    }

    zml::shared_ptr<zml::Project> project;
    zml::shared_ptr<zml::Timeline> timeline;
    zml::shared_ptr<zml::VisualTrack> track;
    zml::shared_ptr<zml::VMFile> model;
};

// Allocations and bytes still held, per clone; the clone lives until the next iteration.
void BM_CloneOfFileMedia(benchmark::State& state) {
    Scene scene;
    zml::shared_ptr<zml::Media const> const model(scene.model);
    long long count = 0;
    long long bytes = 0;
    for (auto _ : state) {
        long long const allocationsBefore = allocations.load();
        long long const bytesBefore = liveBytes.load();
        zml::shared_ptr<zml::Media> clone = zml::sharedClone(model);
        count += allocations.load() - allocationsBefore;
        bytes += liveBytes.load() - bytesBefore;
        benchmark::DoNotOptimize(clone.get());
    }
    state.counters["allocations"] = static_cast<double>(count) / static_cast<double>(state.iterations());
    state.counters["bytes"] = static_cast<double>(bytes) / static_cast<double>(state.iterations());
}
BENCHMARK(BM_CloneOfFileMedia);

long long residentKilobytes() {
    long long pages = 0;
    long long resident = 0;
    if (FILE* statm = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(statm, "%lld %lld", &pages, &resident) != 2)
            resident = 0;
        std::fclose(statm);
    }
    return resident * 4;
}

long long peakKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

// Clones of one media added one after the other, each 10 units long with a gap of 10.
void BM_BuildTimelineOfClips(benchmark::State& state) {
    long long const clips = state.range(0);
    long long heap = 0;
    long long resident = 0;
    for (auto _ : state) {
        state.PauseTiming();
        malloc_trim(0);
        Scene scene;
        long long const heapBefore = liveBytes.load();
        long long const residentBefore = residentKilobytes();
        state.ResumeTiming();
        scene.fill(clips);
        state.PauseTiming();
        heap = liveBytes.load() - heapBefore;
        resident = (residentKilobytes() - residentBefore) * 1024;
        state.ResumeTiming();
    }
    state.counters["us_per_clip"] = benchmark::Counter(static_cast<double>(clips * state.iterations()),
                                                       benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["heap_per_clip"] = static_cast<double>(heap) / static_cast<double>(clips);
    state.counters["resident_per_clip"] = static_cast<double>(resident) / static_cast<double>(clips);
    state.counters["peak_MB"] = static_cast<double>(peakKilobytes()) / 1024.0;
}
BENCHMARK(BM_BuildTimelineOfClips)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(1);

// A stream that only counts what it is given, so that the formatting alone is measured.
class CountingBuffer : public std::streambuf {
public:
    std::size_t count = 0;

protected:
    std::streamsize xsputn(char const*, std::streamsize size) override {
        count += static_cast<std::size_t>(size);
        return size;
    }
    int_type overflow(int_type character) override {
        if (!traits_type::eq_int_type(character, traits_type::eof()))
            ++count;
        return traits_type::not_eof(character);
    }
};

void BM_DocumentToCountingSink(benchmark::State& state) {
    Scene scene;
    scene.fill(state.range(0));
    std::size_t bytes = 0;
    for (auto _ : state) {
        CountingBuffer buffer;
        std::ostream out(&buffer);
        scene.project->toXML(out);
        bytes = buffer.count;
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
}
BENCHMARK(BM_DocumentToCountingSink)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_DocumentToString(benchmark::State& state) {
    Scene scene;
    scene.fill(state.range(0));
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::ostringstream out;
        scene.project->toXML(out);
        std::string const text = out.str();
        bytes = text.size();
        benchmark::DoNotOptimize(text.data());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
}
BENCHMARK(BM_DocumentToString)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_DocumentToFile(benchmark::State& state) {
    Scene scene;
    scene.fill(state.range(0));
    std::string const path = "/tmp/zml-clone-bench.xml";
    for (auto _ : state) {
        std::ofstream out(path);
        scene.project->toXML(out);
    }
    std::remove(path.c_str());
}
BENCHMARK(BM_DocumentToFile)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
