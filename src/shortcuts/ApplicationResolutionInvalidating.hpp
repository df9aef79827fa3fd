#pragma once

namespace quenby {

/// Asks a mapping provider to resolve its mappings again (the installed applications changed).
class ApplicationResolutionInvalidating {
public:
  virtual ~ApplicationResolutionInvalidating() = default;
  virtual void invalidateApplicationResolutions() = 0;
};

} // namespace quenby
