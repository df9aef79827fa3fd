#pragma once

namespace quenby {

/// The mapping editor window: the 26 letters and the application picker.
class MappingEditorViewModel {};

} // namespace quenby
