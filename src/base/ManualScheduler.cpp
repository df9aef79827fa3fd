#include "base/ManualScheduler.hpp"

#include <utility>

namespace quenby {

struct ManualScheduler::State {
  struct Entry {
    std::uint64_t id;
    Duration interval; // zero for one-shot work
    std::shared_ptr<Task> task;
  };
  using Key = std::pair<Duration, std::uint64_t>; // due time, scheduling sequence

  Duration now{0};
  std::uint64_t nextSequence = 0;
  std::map<Key, Entry> queue;
  std::map<std::uint64_t, Key> keysById;
};

ManualScheduler::ManualScheduler() : state_(std::make_shared<State>()) {}

ManualScheduler::~ManualScheduler() = default;

ObservationToken ManualScheduler::post(Task task) {
  return schedule(state_->now, Duration::zero(), std::move(task));
}

ObservationToken ManualScheduler::scheduleAfter(Duration delay, Task task) {
  return schedule(state_->now + (delay < Duration::zero() ? Duration::zero() : delay),
                  Duration::zero(), std::move(task));
}

ObservationToken ManualScheduler::scheduleRepeating(Duration interval, Task task) {
  // A zero interval would fire forever without time moving.
  const Duration period = interval > Duration::zero() ? interval : Duration(1);
  return schedule(state_->now + period, period, std::move(task));
}

Duration ManualScheduler::now() const { return state_->now; }

std::size_t ManualScheduler::pendingCount() const { return state_->queue.size(); }

ObservationToken ManualScheduler::schedule(Duration due, Duration interval, Task task) {
  const std::uint64_t id = state_->nextSequence++;
  const State::Key key{due, id};
  state_->queue.emplace(key, State::Entry{id, interval, std::make_shared<Task>(std::move(task))});
  state_->keysById.emplace(id, key);
  return ObservationToken([weakState = std::weak_ptr<State>(state_), id] {
    auto state = weakState.lock();
    if (!state) {
      return;
    }
    if (auto found = state->keysById.find(id); found != state->keysById.end()) {
      state->queue.erase(found->second);
      state->keysById.erase(found);
    }
  });
}

bool ManualScheduler::runNextDueBy(Duration limit) {
  auto& state = *state_;
  if (state.queue.empty() || state.queue.begin()->first.first > limit) {
    return false;
  }
  auto node = state.queue.extract(state.queue.begin());
  const State::Entry entry = node.mapped();
  state.now = node.key().first;
  if (entry.interval > Duration::zero()) {
    // Re-queued before running, so the task may cancel its own token from inside.
    const State::Key next{state.now + entry.interval, state.nextSequence++};
    state.keysById[entry.id] = next;
    state.queue.emplace(next, entry);
  } else {
    state.keysById.erase(entry.id);
  }
  // The task is kept alive by this copy even if running it cancels the token that owns it.
  const std::shared_ptr<Task> task = entry.task;
  (*task)();
  return true;
}

void ManualScheduler::runPending() {
  while (runNextDueBy(state_->now)) {
  }
}

void ManualScheduler::advanceBy(Duration delta) {
  const Duration target = state_->now + delta;
  while (runNextDueBy(target)) {
  }
  state_->now = target;
}

} // namespace quenby
