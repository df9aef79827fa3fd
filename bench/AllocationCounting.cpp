#include "AllocationCounting.hpp"

#include <cstdlib>
#include <new>

namespace {

// The one mutable global of the program: a replaced operator new cannot reach anything else.
std::size_t allocationCount = 0; // NOLINT

// Out of line, so that the compiler does not pair an inlined free with the operator new below
// and warn about a mismatch that replacing both sides makes correct.
[[gnu::noinline]] void release(void* memory) noexcept { std::free(memory); }

} // namespace

void* operator new(std::size_t size) {
  ++allocationCount;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) {
    return memory;
  }
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* memory) noexcept { release(memory); }
void operator delete[](void* memory) noexcept { release(memory); }
void operator delete(void* memory, std::size_t) noexcept { release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { release(memory); }

namespace quenby {

std::size_t allocationsSoFar() { return allocationCount; }

void reportAllocations(benchmark::State& state, std::size_t before) {
  state.counters["allocations"] = benchmark::Counter(static_cast<double>(allocationCount - before),
                                                     benchmark::Counter::kAvgIterations);
}

} // namespace quenby
