#pragma once

#include "ui/installer/ApplicationFileOperating.hpp"

namespace quenby {

/// The main bundle and the file manager. Main thread only; no state.
class SystemApplicationFileOperations final : public ApplicationFileOperating {
public:
  [[nodiscard]] std::optional<std::string> runningBundlePath() const override;
  [[nodiscard]] std::string homeDirectory() const override;
  [[nodiscard]] bool exists(const std::string& path) const override;
  [[nodiscard]] std::optional<std::string> copyItem(const std::string& source,
                                                    const std::string& destination) override;
  [[nodiscard]] std::optional<std::string> moveItemToTrash(const std::string& path) override;
  [[nodiscard]] std::optional<std::string> removeItem(const std::string& path) override;
};

} // namespace quenby
