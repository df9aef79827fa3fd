// The configuration-failure panel in AppKit.
//
// Threading: main thread only.
//
// Lifetime: the returned object holds the panel strongly (the panel is not released when
// closed) and closes it when destroyed, so a panel never outlives its owner; closing twice, or
// after the user did, does nothing.
//
// Guarantee: the panel stays on screen until it is closed. A failure is reported once per id, and
// an accessory application has no Dock icon to bring a hidden panel back with, so the panel does
// not hide when the application is deactivated, comes to the active Space (also over a full-screen
// application), and is ordered in front even when the system declines to activate us.

#include "app/macos/SystemConfigurationFailurePanelFactory.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>
#include <algorithm>

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

  // The texts wrap at the layout's width, so the column's fitting size is what they need; the
  // panel only grows from its smallest size, and is centred on that final size.
  const Rect& smallest = Layout::contentRect;
  const NSSize fitting = column.fittingSize;
  const NSRect contentRect =
      NSMakeRect(smallest.x, smallest.y, std::max<CGFloat>(smallest.width, fitting.width),
                 std::max<CGFloat>(smallest.height, fitting.height));
  NSPanel* panel =
      [[NSPanel alloc] initWithContentRect:contentRect
                                 styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable
                                   backing:NSBackingStoreBuffered
                                     defer:NO];
  panel.title = panelText(failure.title);
  panel.releasedWhenClosed = NO;
  panel.hidesOnDeactivate = NO;
  panel.level = Layout::windowLevel;
  panel.collectionBehavior =
      NSWindowCollectionBehaviorMoveToActiveSpace | NSWindowCollectionBehaviorFullScreenAuxiliary;
  panel.contentView = column;
  [panel setContentSize:contentRect.size];
  [panel center];
  if (@available(macOS 14, *)) {
    [NSApp activate];
  } else {
    [NSApp activateIgnoringOtherApps:YES];
  }
  [panel makeKeyAndOrderFront:nil];
  // Activation is only a request from macOS 14 on; the panel must be seen either way.
  [panel orderFrontRegardless];
  return std::make_unique<SystemConfigurationFailurePanel>(panel);
}

} // namespace quenby
