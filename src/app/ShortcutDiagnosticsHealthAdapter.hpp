#pragma once

#include "app/ShortcutDiagnostics.hpp"

namespace quenby {

/// Lets the menu bar ask whether the shortcut diagnostics hold an issue without owning them.
class ShortcutDiagnosticsHealthAdapter {
public:
  /// `diagnostics` is not owned; its owner detaches it (`setDiagnostics(nullptr)`) before it dies.
  explicit ShortcutDiagnosticsHealthAdapter(const ShortcutDiagnostics* diagnostics = nullptr)
      : diagnostics_(diagnostics) {}

  void setDiagnostics(const ShortcutDiagnostics* diagnostics) { diagnostics_ = diagnostics; }

  /// False once detached: missing diagnostics report nothing to attend to.
  [[nodiscard]] bool hasIssue() const {
    return diagnostics_ != nullptr && diagnostics_->hasIssue();
  }

private:
  const ShortcutDiagnostics* diagnostics_;
};

} // namespace quenby
