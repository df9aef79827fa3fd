// The status item and its menu in AppKit.
//
// Threading: main thread only (AppKit). The store tells the presenter of each publication on the
// main thread, and the menu's target sends each chosen command back on it.
//
// Lifetime: installing creates the status item and starts following the store; removing (at
// termination, before the runtime graph goes) stops following, detaches the menu's target and
// takes the item out of the menu bar, so no menu item can reach the store afterwards. Destroying
// an installed presenter removes it.
//
// Guarantee: the menu always shows the latest presentation: its items are rebuilt whole on each
// publication, also while it opens (opening asks the store first, which may republish). An item
// without a command is disabled and has no action, so it can never be chosen; every other item is
// enabled, targets the one command target and carries its command.

#include "app/macos/MenuBarStatusItemPresenter.hpp"

#import "app/macos/SystemMenuBarStatusImageProvider.h"
#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>

/// A menu item's command, as its represented object.
@interface QBMenuBarCommandBox : NSObject
- (instancetype)initWithCommand:(quenby::MenuBarCommand)command;
@property(nonatomic, readonly) quenby::MenuBarCommand command;
@end

@implementation QBMenuBarCommandBox
- (instancetype)initWithCommand:(quenby::MenuBarCommand)command {
  self = [super init];
  if (self != nil) {
    _command = command;
  }
  return self;
}
@end

/// Receives every chosen item and the menu's opening and hands them to the store, until
/// detached.
@interface QBMenuBarCommandTarget : NSObject <NSMenuDelegate>
- (instancetype)initWithStore:(quenby::MenuBarExtraStore*)store;
- (void)performMenuCommand:(NSMenuItem*)sender;
- (void)detach;
@end

@implementation QBMenuBarCommandTarget {
  quenby::MenuBarExtraStore* _store;
}

- (instancetype)initWithStore:(quenby::MenuBarExtraStore*)store {
  self = [super init];
  if (self != nil) {
    _store = store;
  }
  return self;
}

- (void)performMenuCommand:(NSMenuItem*)sender {
  id box = sender.representedObject;
  if (_store != nullptr && [box isKindOfClass:[QBMenuBarCommandBox class]]) {
    _store->perform(static_cast<QBMenuBarCommandBox*>(box).command);
  }
}

- (void)menuWillOpen:(NSMenu*)menu {
  if (_store != nullptr) {
    _store->menuWillOpen();
  }
}

- (void)detach {
  _store = nullptr;
}

@end

namespace quenby {
namespace {

NSString* menuText(const std::string& text) {
  NSString* converted = foundationString(text);
  return converted != nil ? converted : @"";
}

NSString* keyEquivalent(const MenuBarCommand& command) {
  switch (command.kind) {
  case MenuBarCommand::Kind::showSettings:
    return @",";
  case MenuBarCommand::Kind::quit:
    return @"q";
  default:
    return @"";
  }
}

// Refills the one menu in place: a presentation published while the menu opens (the opening
// re-reads the permissions) must change the menu being shown, not a replacement.
void fillMenu(NSMenu* menu, const MenuBarPresentation& presentation,
              QBMenuBarCommandTarget* target) {
  [menu removeAllItems];
  for (const MenuBarItemPresentation& item : presentation.items) {
    if (item.isSeparator) {
      [menu addItem:[NSMenuItem separatorItem]];
      continue;
    }
    if (!item.command) {
      NSMenuItem* status = [[NSMenuItem alloc] initWithTitle:menuText(item.title)
                                                      action:nil
                                               keyEquivalent:@""];
      status.enabled = NO;
      [menu addItem:status];
      continue;
    }
    // The key equivalents take Command, a menu item's default modifier.
    NSMenuItem* action = [[NSMenuItem alloc] initWithTitle:menuText(item.title)
                                                    action:@selector(performMenuCommand:)
                                             keyEquivalent:keyEquivalent(*item.command)];
    action.target = target;
    action.representedObject = [[QBMenuBarCommandBox alloc] initWithCommand:*item.command];
    action.enabled = YES;
    [menu addItem:action];
  }
}

} // namespace

struct MenuBarStatusItemPresenter::State {
  explicit State(MenuBarExtraStore& store)
      : store(store), target([[QBMenuBarCommandTarget alloc] initWithStore:&store]) {}

  void show() {
    const MenuBarPresentation& presentation = store.presentation();
    if (NSStatusBarButton* button = statusItem.button) {
      button.image = images.image(presentation.iconState);
      button.accessibilityLabel = menuText(presentation.accessibilityDescription);
    }
    fillMenu(menu, presentation, target);
  }

  MenuBarExtraStore& store;
  QBMenuBarCommandTarget* target;
  SystemMenuBarStatusImageProvider images;
  NSMenu* menu = nil;
  NSStatusItem* statusItem = nil;
  ObservationToken observation;
};

MenuBarStatusItemPresenter::MenuBarStatusItemPresenter(MenuBarExtraStore& store)
    : state_(std::make_unique<State>(store)) {}

MenuBarStatusItemPresenter::~MenuBarStatusItemPresenter() { remove(); }

void MenuBarStatusItemPresenter::install() {
  State& state = *state_;
  if (state.statusItem != nil) {
    return;
  }
  state.statusItem = [NSStatusBar.systemStatusBar statusItemWithLength:NSSquareStatusItemLength];
  // Keeps the position the user dragged the item to across launches.
  state.statusItem.autosaveName = @"com.brimfold.Quenby.statusItem";
  state.menu = [[NSMenu alloc] initWithTitle:@""];
  state.menu.autoenablesItems = NO;
  state.menu.delegate = state.target;
  state.statusItem.menu = state.menu;
  state.show();
  state.observation = state.store.observePresentation([&state] { state.show(); });
}

void MenuBarStatusItemPresenter::remove() {
  State& state = *state_;
  state.observation.cancel();
  [state.target detach];
  state.menu.delegate = nil;
  if (state.statusItem != nil) {
    [NSStatusBar.systemStatusBar removeStatusItem:state.statusItem];
    state.statusItem = nil;
  }
}

} // namespace quenby
