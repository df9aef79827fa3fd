// Threading: main thread only. Each panel runs without blocking (`beginWithCompletionHandler:`);
// AppKit calls its handler on the main thread.
//
// Lifetime: a panel keeps itself and its handler alive until the person answers; the handler
// owns the answer, which the core guards against outliving its owner.
//
// Guarantee: each answer is called exactly once, with a file URL or nothing for a cancel. An
// accessory application is rarely active, so it asks to be activated first or the panel could
// open behind the front application.
//
// The panels' content types are made by name through UTType, which AppKit itself loads: the SDK
// the app is cross-built against off a Mac has no UniformTypeIdentifiers headers or symbols.

#include "ui/editor/macos/SystemMappingEditorFilePanels.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>
#include <memory>

@protocol QNBContentTypeClass <NSObject>
+ (nullable id)typeWithIdentifier:(NSString*)identifier;
@end

namespace quenby {
namespace {

/// The content types a panel allows: the one named, or every file if the system has no such type.
NSArray* contentTypes(NSString* identifier) {
  auto typeClass = (Class<QNBContentTypeClass>)NSClassFromString(@"UTType");
  id type = [typeClass typeWithIdentifier:identifier];
  return type != nil ? @[ type ] : @[];
}

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

NSOpenPanel* openPanel(NSString* contentType) {
  NSOpenPanel* panel = [NSOpenPanel openPanel];
  panel.canChooseFiles = YES;
  panel.canChooseDirectories = NO;
  panel.allowsMultipleSelection = NO;
  panel.allowedContentTypes = contentTypes(contentType);
  return panel;
}

} // namespace

void SystemMappingEditorFilePanels::chooseApplication(Answer answer) {
  NSOpenPanel* panel = openPanel(@"com.apple.application-bundle");
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
  panel.allowedContentTypes = contentTypes(@"public.json");
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
  NSOpenPanel* panel = openPanel(@"public.json");
  run(
      panel,
      ^{
        return panel.URLs.firstObject;
      },
      std::move(answer));
}

} // namespace quenby
