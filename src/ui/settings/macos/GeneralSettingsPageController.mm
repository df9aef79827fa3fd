// The General page of the Settings window in AppKit.
//
// Threading: main thread only.
//
// Lifetime: the controller observes the view model from the first load of its view until it is
// deallocated; the observation holds the controller weakly. The view model outlives it.
//
// Guarantee: the page shows the view model's latest content. Redrawing waits for the next turn
// of the main queue, so a control is never taken down while its own action runs, and a burst of
// changes is drawn once. Every control forwards to the view model and nothing else: a choice by
// its index, a switch by its new state, a button by its action. After any action the page is
// drawn again, so a switch whose change was refused (a cancelled alert, a failed login item)
// shows the state that holds.

#import "ui/settings/macos/GeneralSettingsPageController.h"

#import "base/macos/FoundationPropertyList.h"
#include "ui/settings/GeneralSettingsViewModel.hpp"

#include <dispatch/dispatch.h>

using quenby::GeneralSettingsContent;

namespace {

constexpr CGFloat kPageWidth = 520;
constexpr CGFloat kInset = 20;
constexpr CGFloat kSectionSpacing = 18;

NSString* pageText(const std::string& text) {
  NSString* converted = quenby::foundationString(text);
  return converted != nil ? converted : @"";
}

NSTextField* heading() {
  NSTextField* label = [NSTextField labelWithString:@""];
  label.font = [NSFont boldSystemFontOfSize:NSFont.systemFontSize];
  return label;
}

NSTextField* wrappingLabel(CGFloat fontSize) {
  NSTextField* label = [NSTextField wrappingLabelWithString:@""];
  label.font = [NSFont systemFontOfSize:fontSize];
  label.preferredMaxLayoutWidth = kPageWidth - 2 * kInset;
  return label;
}

NSStackView* column(NSArray<NSView*>* views, CGFloat spacing) {
  NSStackView* stack = [NSStackView stackViewWithViews:views];
  stack.orientation = NSUserInterfaceLayoutOrientationVertical;
  stack.alignment = NSLayoutAttributeLeading;
  stack.spacing = spacing;
  return stack;
}

NSStackView* row(NSArray<NSView*>* views) {
  NSStackView* stack = [NSStackView stackViewWithViews:views];
  stack.orientation = NSUserInterfaceLayoutOrientationHorizontal;
  stack.spacing = 8;
  return stack;
}

void removeArrangedSubviews(NSStackView* stack) {
  // A copy: the loop changes the arranged views.
  for (NSView* view in stack.arrangedSubviews) {
    [stack removeArrangedSubview:view];
    [view removeFromSuperview];
  }
}

} // namespace

@implementation QNBGeneralSettingsPageController {
  quenby::GeneralSettingsViewModel* _viewModel;
  quenby::ObservationToken _observation;
  BOOL _redrawPending;
  NSMutableArray<NSTextField*>* _choiceLabels;
  NSMutableArray<NSPopUpButton*>* _choices;
  NSMutableArray<NSButton*>* _toggles;
  NSTextField* _hideFootnote;
  NSTextField* _shortcutsHeading;
  NSTextField* _hudHeading;
  NSTextField* _animationHeading;
  NSTextField* _startupHeading;
  NSTextField* _testHeading;
  NSStackView* _digitStatus;
  NSStackView* _hudStatus;
  NSStackView* _loginStatus;
  NSButton* _testButton;
  NSTextField* _testStatus;
  NSTextField* _testPressed;
  NSTextField* _testOutcome;
}

- (instancetype)initWithViewModel:(quenby::GeneralSettingsViewModel&)viewModel {
  self = [super initWithNibName:nil bundle:nil];
  if (self != nil) {
    _viewModel = &viewModel;
  }
  return self;
}

- (void)loadView {
  _choiceLabels = [NSMutableArray arrayWithCapacity:8];
  _choices = [NSMutableArray arrayWithCapacity:8];
  for (std::size_t index = 0; index < GeneralSettingsContent::kChoiceCount; ++index) {
    NSPopUpButton* popUp = [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:NO];
    popUp.tag = static_cast<NSInteger>(index);
    popUp.target = self;
    popUp.action = @selector(choiceChanged:);
    [_choices addObject:popUp];
    [_choiceLabels addObject:[NSTextField labelWithString:@""]];
  }
  _toggles = [NSMutableArray arrayWithCapacity:8];
  for (std::size_t index = 0; index < GeneralSettingsContent::kToggleCount; ++index) {
    NSButton* toggle = [NSButton checkboxWithTitle:@""
                                            target:self
                                            action:@selector(toggleChanged:)];
    toggle.tag = static_cast<NSInteger>(index);
    [_toggles addObject:toggle];
  }
  _hideFootnote = wrappingLabel(NSFont.smallSystemFontSize);
  _hideFootnote.textColor = NSColor.secondaryLabelColor;
  _shortcutsHeading = heading();
  _hudHeading = heading();
  _animationHeading = heading();
  _startupHeading = heading();
  _testHeading = heading();
  _digitStatus = column(@[], 4);
  _hudStatus = column(@[], 4);
  _loginStatus = column(@[], 4);
  _testButton = [NSButton buttonWithTitle:@"" target:self action:@selector(buttonPressed:)];
  _testStatus = wrappingLabel(NSFont.systemFontSize);
  _testPressed = [NSTextField labelWithString:@""];
  _testPressed.font = [NSFont monospacedSystemFontOfSize:NSFont.systemFontSize * 1.5
                                                  weight:NSFontWeightSemibold];
  _testOutcome = wrappingLabel(NSFont.systemFontSize);

  using Id = GeneralSettingsContent::ChoiceId;
  using Toggle = GeneralSettingsContent::ToggleId;
  NSArray<NSView*>* sections = @[
    _shortcutsHeading, [self gridOf:{Id::activationModifier}],
    [self toggle:Toggle::shortcutHidesFrontmostApplication], _hideFootnote, _digitStatus,
    _testHeading, row(@[ _testButton, _testPressed ]), _testStatus, _testOutcome, _hudHeading,
    [self toggle:Toggle::hudEnabled], _hudStatus,
    [self gridOf:{Id::hudActivationGesture, Id::hudSize, Id::hudTheme, Id::hudOpacity,
                  Id::windowPlacement}],
    _animationHeading, [self toggle:Toggle::shortcutAnimationEnabled],
    [self gridOf:{Id::shortcutAnimationDisplay}], _startupHeading,
    [self toggle:Toggle::launchAtLogin], _loginStatus
  ];
  NSStackView* page = column(sections, 8);
  page.edgeInsets = NSEdgeInsetsMake(kInset, kInset, kInset, kInset);
  // The last view of each part; the test's outcome is often hidden, so its status counts too.
  for (NSUInteger last : {4U, 7U, 8U, 12U, 15U}) {
    [page setCustomSpacing:kSectionSpacing afterView:sections[last]];
  }
  self.view = page;

  __weak QNBGeneralSettingsPageController* weakSelf = self;
  _observation = _viewModel->observe([weakSelf] { [weakSelf setNeedsRedraw]; });
  [self redraw];
}

- (NSButton*)toggle:(GeneralSettingsContent::ToggleId)identifier {
  return _toggles[static_cast<NSUInteger>(identifier)];
}

- (NSGridView*)gridOf:(std::initializer_list<GeneralSettingsContent::ChoiceId>)identifiers {
  NSMutableArray<NSArray<NSView*>*>* rows = [NSMutableArray arrayWithCapacity:8];
  for (const auto identifier : identifiers) {
    const auto index = static_cast<NSUInteger>(identifier);
    [rows addObject:@[ _choiceLabels[index], _choices[index] ]];
  }
  NSGridView* grid = [NSGridView gridViewWithViews:rows];
  [grid columnAtIndex:0].xPlacement = NSGridCellPlacementTrailing;
  grid.rowAlignment = NSGridRowAlignmentFirstBaseline;
  grid.rowSpacing = 8;
  grid.columnSpacing = 8;
  return grid;
}

- (void)setNeedsRedraw {
  if (_redrawPending) {
    return;
  }
  _redrawPending = YES;
  __weak QNBGeneralSettingsPageController* weakSelf = self;
  dispatch_async(dispatch_get_main_queue(), ^{
    [weakSelf redraw];
  });
}

- (void)redraw {
  _redrawPending = NO;
  const GeneralSettingsContent& content = _viewModel->content();
  _shortcutsHeading.stringValue = pageText(content.shortcutsHeading);
  _hudHeading.stringValue = pageText(content.hudHeading);
  _animationHeading.stringValue = pageText(content.animationHeading);
  _startupHeading.stringValue = pageText(content.startupHeading);
  _testHeading.stringValue = pageText(content.testHeading);

  for (const auto& choice : content.choices) {
    const auto index = static_cast<NSUInteger>(choice.id);
    _choiceLabels[index].stringValue = pageText(choice.title);
    NSPopUpButton* popUp = _choices[index];
    [popUp removeAllItems];
    for (const auto& option : choice.options) {
      [popUp addItemWithTitle:pageText(option)];
    }
    [popUp selectItemAtIndex:static_cast<NSInteger>(choice.selectedIndex)];
    popUp.enabled = choice.isEnabled;
  }
  for (const auto& toggle : content.toggles) {
    NSButton* button = _toggles[static_cast<NSUInteger>(toggle.id)];
    button.title = pageText(toggle.title);
    button.state = toggle.isOn ? NSControlStateValueOn : NSControlStateValueOff;
    button.enabled = toggle.isEnabled;
  }
  _hideFootnote.stringValue = pageText(
      content.toggle(GeneralSettingsContent::ToggleId::shortcutHidesFrontmostApplication).footnote);

  [self fill:_digitStatus with:content.digitShortcuts];
  [self fill:_hudStatus with:content.hud];
  [self fill:_loginStatus with:content.launchAtLogin];

  const auto& test = content.shortcutTest;
  _testButton.title = pageText(test.button.title);
  _testButton.tag = static_cast<NSInteger>(test.button.action);
  _testButton.enabled = test.isEnabled;
  _testStatus.stringValue = pageText(test.status);
  _testPressed.stringValue = pageText(test.pressed);
  _testPressed.hidden = test.pressed.empty();
  _testOutcome.stringValue = pageText(test.outcome);
  _testOutcome.hidden = test.outcome.empty();
}

- (void)fill:(NSStackView*)stack with:(const GeneralSettingsContent::Status&)status {
  removeArrangedSubviews(stack);
  for (std::size_t index = 0; index < status.lines.size(); ++index) {
    NSTextField* line = wrappingLabel(NSFont.smallSystemFontSize);
    line.stringValue = pageText(status.lines[index]);
    // The first line is the summary; the rest explain it.
    if (status.needsAttention && index > 0) {
      line.textColor = NSColor.systemOrangeColor;
    } else if (index > 0) {
      line.textColor = NSColor.secondaryLabelColor;
    }
    [stack addArrangedSubview:line];
  }
  if (!status.buttons.empty()) {
    NSStackView* buttons = row(@[]);
    for (const auto& each : status.buttons) {
      NSButton* button = [NSButton buttonWithTitle:pageText(each.title)
                                            target:self
                                            action:@selector(buttonPressed:)];
      button.tag = static_cast<NSInteger>(each.action);
      [buttons addArrangedSubview:button];
    }
    [stack addArrangedSubview:buttons];
  }
  stack.hidden = status.lines.empty() && status.buttons.empty();
}

- (void)choiceChanged:(NSPopUpButton*)sender {
  const NSInteger selected = sender.indexOfSelectedItem;
  if (selected >= 0) {
    _viewModel->select(static_cast<GeneralSettingsContent::ChoiceId>(sender.tag),
                       static_cast<std::size_t>(selected));
  }
  [self setNeedsRedraw];
}

- (void)toggleChanged:(NSButton*)sender {
  _viewModel->setToggle(static_cast<GeneralSettingsContent::ToggleId>(sender.tag),
                        sender.state == NSControlStateValueOn);
  [self setNeedsRedraw];
}

- (void)buttonPressed:(NSButton*)sender {
  _viewModel->perform(static_cast<GeneralSettingsContent::Action>(sender.tag));
  [self setNeedsRedraw];
}

@end
