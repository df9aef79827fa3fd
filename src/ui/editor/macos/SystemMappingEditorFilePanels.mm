// Threading: main thread only. Each panel runs without blocking (`beginWithCompletionHandler:`);
// AppKit calls its handler on the main thread.
//
// Lifetime: a panel keeps itself and its handler alive until the person answers; the handler
// owns the answer, which the core guards against outliving its owner.
//
// Guarantee: each answer is called exactly once, with a file URL or nothing for a cancel. An
// accessory application is rarely active, so it asks to be activated first or the panel could
// open behind the front application.

#include "ui/editor/macos/SystemMappingEditorFilePanels.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>
#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>
#include <memory>

namespace quenby {
namespace {

void activate() {
  if (@available(macOS 14, *)) {
    [NSApp activate];
  } else {
    [NSApp activateIgnoringOtherApps:YES];
  }
}

/// Runs `panel` and hands its one chosen location to `answer`.
void run(NSSavePanel* panel, NSURL* _Nullable (^chosen)(void),
         MappingEditorFilePanels::Answer answer) {
  auto shared = std::make_shared<MappingEditorFilePanels::Answer>(std::move(answer));
  activate();
  [panel beginWithCompletionHandler:^(NSModalResponse response) {
    NSURL* url = response == NSModalResponseOK ? chosen() : nil;
    NSString* path = url.isFileURL ? url.path : nil;
    if (path == nil) {
      (*shared)(std::nullopt);
      return;
    }
    (*shared)(FileURL::fromPath(path.UTF8String));
  }];
}

NSOpenPanel* openPanel(UTType* type) {
  NSOpenPanel* panel = [NSOpenPanel openPanel];
  panel.canChooseFiles = YES;
  panel.canChooseDirectories = NO;
  panel.allowsMultipleSelection = NO;
  panel.allowedContentTypes = @[ type ];
  return panel;
}

} // namespace

void SystemMappingEditorFilePanels::chooseApplication(Answer answer) {
  NSOpenPanel* panel = openPanel(UTTypeApplicationBundle);
  panel.directoryURL = [NSURL fileURLWithPath:@"/Applications" isDirectory:YES];
  // An application is a folder to the file system; the panel must not open it.
  panel.treatsFilePackagesAsDirectories = NO;
  run(
      panel,
      ^{
        return panel.URLs.firstObject;
      },
      std::move(answer));
}

void SystemMappingEditorFilePanels::chooseExportDestination(const std::string& suggestedName,
                                                            Answer answer) {
  NSSavePanel* panel = [NSSavePanel savePanel];
  panel.allowedContentTypes = @[ UTTypeJSON ];
  NSString* name = foundationString(suggestedName);
  if (name != nil) {
    panel.nameFieldStringValue = name;
  }
  run(
      panel,
      ^{
        return panel.URL;
      },
      std::move(answer));
}

void SystemMappingEditorFilePanels::chooseImportFile(Answer answer) {
  NSOpenPanel* panel = openPanel(UTTypeJSON);
  run(
      panel,
      ^{
        return panel.URLs.firstObject;
      },
      std::move(answer));
}

} // namespace quenby
