#include "ui/UIAssembly.hpp"

namespace quenby {

UIAssembly::UIAssembly(const BasePlatform& base, const UIPlatform& platform, DataAssembly& data,
                       ShortcutsAssembly& shortcuts, HUDAssembly& /*hud*/)
    : usageSettings_(data.usage(), *base.localizer),
      editorMetadataReader_(*base.fileSystem, *base.propertyListDecoder),
      installedApplications_(*base.fileSystem, editorMetadataReader_, platform.applicationFolders),
      mappingEditorModel_(shortcuts.letterStore(), editorMetadataReader_, installedApplications_,
                          *platform.mappingEditorFilePanels, *base.fileSystem, *base.localizer),
      settingsWindow_(platform.settingsWindows->makeSettingsWindow(
          {.general = generalSettings_, .usage = usageSettings_})),
      mappingEditor_(platform.mappingEditorWindows->makeMappingEditorWindow(mappingEditorModel_)),
      applicationInstaller_(platform.installer, *base.userDefaults, *base.localizer, *base.logger) {
}

} // namespace quenby
