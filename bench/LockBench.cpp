// The project lock on its hot paths: an uncontended read, a reader nesting, and a writer nesting and reading.
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>

#include <benchmark/benchmark.h>

namespace {

using ZelmarMediaLib::ReadWriteMutex;

void BM_UncontendedScopedReadLock(benchmark::State& state) {
    ReadWriteMutex mutex;
    for (auto _ : state) {
        ReadWriteMutex::ScopedReadLock lock(&mutex);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_UncontendedScopedReadLock);

// Getters called from a getter: the thread is in the reader table already.
void BM_NestedScopedReadLock(benchmark::State& state) {
    ReadWriteMutex mutex;
    ReadWriteMutex::ScopedReadLock outer(&mutex);
    for (auto _ : state) {
        ReadWriteMutex::ScopedReadLock lock(&mutex);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_NestedScopedReadLock);

void BM_NestedScopedWriteLockFromTheWriter(benchmark::State& state) {
    ReadWriteMutex mutex;
    ReadWriteMutex::ScopedWriteLock outer(&mutex);
    for (auto _ : state) {
        ReadWriteMutex::ScopedWriteLock lock(&mutex);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_NestedScopedWriteLockFromTheWriter);

void BM_ScopedReadLockFromTheWriter(benchmark::State& state) {
    ReadWriteMutex mutex;
    ReadWriteMutex::ScopedWriteLock outer(&mutex);
    for (auto _ : state) {
        ReadWriteMutex::ScopedReadLock lock(&mutex);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_ScopedReadLockFromTheWriter);

}  // namespace
