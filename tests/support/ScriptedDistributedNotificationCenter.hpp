#pragma once

#include "base/DistributedNotificationObserving.hpp"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace quenby {

/// A distributed notification centre that the test posts to; deliveries are synchronous, as the
/// system's are on the main queue.
class ScriptedDistributedNotificationCenter final : public DistributedNotificationObserving {
public:
  [[nodiscard]] ObservationToken observe(const std::string& name,
                                         std::function<void()> handler) override {
    const int id = nextId_++;
    observers_->emplace(id, Observer{name, std::move(handler)});
    return ObservationToken([observers = std::weak_ptr<std::map<int, Observer>>(observers_), id] {
      if (auto alive = observers.lock()) {
        alive->erase(id);
      }
    });
  }

  void post(const std::string& name) {
    std::vector<std::function<void()>> handlers;
    for (const auto& [id, observer] : *observers_) {
      if (observer.name == name) {
        handlers.push_back(observer.handler);
      }
    }
    for (auto& handler : handlers) {
      handler();
    }
  }

  [[nodiscard]] std::size_t observerCount() const { return observers_->size(); }

private:
  struct Observer {
    std::string name;
    std::function<void()> handler;
  };
  std::shared_ptr<std::map<int, Observer>> observers_ = std::make_shared<std::map<int, Observer>>();
  int nextId_ = 0;
};

} // namespace quenby
