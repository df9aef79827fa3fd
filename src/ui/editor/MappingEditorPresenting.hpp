#pragma once

namespace quenby {

/// The mapping editor window, opened at one letter. Main thread only.
class MappingEditorPresenting {
public:
  virtual ~MappingEditorPresenting() = default;
  /// `letter` is upper case, 'A'–'Z'.
  virtual void open(char letter) = 0;
  virtual void close() = 0;
};

/// Opens nothing.
class InertMappingEditorPresenter final : public MappingEditorPresenting {
public:
  void open(char) override {}
  void close() override {}
};

} // namespace quenby
