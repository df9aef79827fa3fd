#pragma once

// Every benchmark in this binary passes through a counting operator new (AllocationCounting.cpp),
// so a benchmark can show that its hot path allocates nothing.

#include <benchmark/benchmark.h>
#include <cstddef>

namespace quenby {

/// Heap allocations made so far by the whole binary. Benchmarks run on one thread.
[[nodiscard]] std::size_t allocationsSoFar();

/// Sets the `allocations` counter to the allocations per iteration since `before`.
void reportAllocations(benchmark::State& state, std::size_t before);

} // namespace quenby
