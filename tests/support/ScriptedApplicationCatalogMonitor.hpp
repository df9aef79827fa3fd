#pragma once

#include "shortcuts/catalog/ApplicationCatalogMonitoring.hpp"

#include <map>
#include <memory>

namespace quenby {

/// A catalog monitor that reports a change when the test says so, to every observer.
class ScriptedApplicationCatalogMonitor final : public ApplicationCatalogMonitoring {
public:
  void start() override { ++starts; }
  void stop() override {}
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) override {
    const int id = nextId_++;
    observers_->emplace(id, std::move(handler));
    return ObservationToken([observers = std::weak_ptr<Observers>(observers_), id] {
      if (const auto alive = observers.lock()) {
        alive->erase(id);
      }
    });
  }

  void reportChange() {
    auto handlers = *observers_;
    for (auto& [id, handler] : handlers) {
      if (observers_->count(id) != 0) {
        handler();
      }
    }
  }

  [[nodiscard]] std::size_t observerCount() const { return observers_->size(); }

  int starts = 0;

private:
  using Observers = std::map<int, std::function<void()>>;
  std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
  int nextId_ = 0;
};

} // namespace quenby
