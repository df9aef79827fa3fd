#pragma once

#include "shortcuts/mapping/NumberMappingSnapshot.hpp"

#include <functional>

namespace quenby {

/// The Dock positions as the consumers (the letter mapping store) see them.
class NumberMappingProviding {
public:
  using SnapshotHandler = std::function<void(const NumberMappingSnapshot&)>;

  virtual ~NumberMappingProviding() = default;
  virtual void start() = 0;
  virtual void stop() = 0;
  [[nodiscard]] virtual const NumberMappingSnapshot& current() const = 0;
  /// Receives each newly published snapshot.
  virtual void setOnSnapshotChanged(SnapshotHandler handler) = 0;
};

} // namespace quenby
