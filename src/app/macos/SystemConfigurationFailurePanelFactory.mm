// The configuration-failure panel in AppKit. Main thread only. The returned object holds the
// panel strongly (the panel is not released when closed) and closes it when destroyed, so a panel
// never outlives its owner; closing twice, or after the user did, does nothing.

#include "app/macos/SystemConfigurationFailurePanelFactory.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>

namespace quenby {

namespace {

using Layout = ConfigurationFailurePanelLayout;

class SystemConfigurationFailurePanel final : public ConfigurationFailurePanel {
public:
  explicit SystemConfigurationFailurePanel(NSPanel* panel) : panel_(panel) {}
  SystemConfigurationFailurePanel(const SystemConfigurationFailurePanel&) = delete;
  SystemConfigurationFailurePanel& operator=(const SystemConfigurationFailurePanel&) = delete;
  ~SystemConfigurationFailurePanel() override { [panel_ close]; }

  void close() override { [panel_ close]; }

private:
  NSPanel* panel_;
};

NSString* panelText(const std::string& text) {
  NSString* converted = foundationString(text);
  return converted != nil ? converted : @"";
}

NSTextField* makeLabel(const std::string& text, NSFont* font) {
  NSTextField* label = [NSTextField wrappingLabelWithString:panelText(text)];
  label.selectable = YES;
  label.font = font;
  label.preferredMaxLayoutWidth = Layout::textWidth;
  return label;
}

} // namespace

std::unique_ptr<ConfigurationFailurePanel>
SystemConfigurationFailurePanelFactory::makePanel(const ConfigurationFailure& failure) {
  NSTextField* title =
      makeLabel(failure.title, [NSFont preferredFontForTextStyle:NSFontTextStyleHeadline
                                                         options:@{}]);
  NSTextField* message =
      makeLabel(failure.message, [NSFont preferredFontForTextStyle:NSFontTextStyleCallout
                                                           options:@{}]);
  const CGFloat captionSize =
      [NSFont preferredFontForTextStyle:NSFontTextStyleCaption1 options:@{}].pointSize;
  NSTextField* identifier =
      makeLabel(failure.id, [NSFont monospacedSystemFontOfSize:captionSize
                                                        weight:NSFontWeightRegular]);
  identifier.textColor = NSColor.secondaryLabelColor;

  NSStackView* column = [NSStackView stackViewWithViews:@[ title, message, identifier ]];
  column.orientation = NSUserInterfaceLayoutOrientationVertical;
  column.alignment = NSLayoutAttributeLeading;
  column.edgeInsets =
      NSEdgeInsetsMake(Layout::padding, Layout::padding, Layout::padding, Layout::padding);

  const Rect& frame = Layout::contentRect;
  NSPanel* panel =
      [[NSPanel alloc] initWithContentRect:NSMakeRect(frame.x, frame.y, frame.width, frame.height)
                                 styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable
                                   backing:NSBackingStoreBuffered
                                     defer:NO];
  panel.title = panelText(failure.title);
  panel.releasedWhenClosed = NO;
  panel.level = Layout::windowLevel;
  panel.contentView = column;
  [panel center];
  [panel makeKeyAndOrderFront:nil];
  [NSApp activateIgnoringOtherApps:YES];
  return std::make_unique<SystemConfigurationFailurePanel>(panel);
}

} // namespace quenby
