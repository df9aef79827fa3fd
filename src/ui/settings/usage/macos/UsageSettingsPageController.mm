// The Usage page of the Settings window in AppKit.
//
// Threading: main thread only (AppKit). The view model tells the page of its changes on the main
// thread.
//
// Lifetime: the page follows the view model from each appearance to the next disappearance (an
// RAII token it drops when hidden or destroyed), so a hidden page costs nothing. The view model
// outlives the controller and its views.
//
// Guarantee: every appearance refreshes the view model first, so the page never shows an older
// day than today; everything shown comes from the view model, rebuilt whole after each change.
// Usage is deleted only after the user pressed the alert's confirming button.

#import "ui/settings/usage/macos/UsageSettingsPageController.h"

#import "base/macos/FoundationPropertyList.h"
#include "ui/settings/usage/UsageSettingsViewModel.hpp"
#import "ui/settings/usage/macos/UsageChartView.h"

#include <string>

namespace {

constexpr CGFloat kPageWidth = 620;
constexpr CGFloat kPageHeight = 600;
constexpr CGFloat kInset = 20;
constexpr CGFloat kLineHeight = 18;
constexpr CGFloat kChartHeight = 230;
constexpr CGFloat kControlHeight = 28;

NSString* text(const std::string& value) { return quenby::foundationString(value) ?: @""; }

} // namespace

/// Lays its subviews out from the top, as the page reads.
@interface QNBUsagePageView : NSView
@end

@implementation QNBUsagePageView
- (BOOL)isFlipped {
  return YES;
}
@end

@interface QNBUsageSettingsPageController () <NSTableViewDataSource, NSTableViewDelegate>
@end

@implementation QNBUsageSettingsPageController {
  quenby::UsageSettingsViewModel* _viewModel;
  quenby::ObservationToken _observation;
  NSArray<NSTextField*>* _totalsLabels;
  NSTextField* _errorLabel;
  QNBUsageChartView* _chartView;
  NSSegmentedControl* _rangeControl;
  NSTableView* _tableView;
}

- (instancetype)initWithViewModel:(quenby::UsageSettingsViewModel&)viewModel {
  self = [super initWithNibName:nil bundle:nil];
  if (self != nil) {
    _viewModel = &viewModel;
  }
  return self;
}

- (void)loadView {
  QNBUsagePageView* page =
      [[QNBUsagePageView alloc] initWithFrame:NSMakeRect(0, 0, kPageWidth, kPageHeight)];
  const CGFloat width = kPageWidth - 2 * kInset;
  CGFloat y = kInset;

  NSMutableArray<NSTextField*>* labels = [NSMutableArray arrayWithCapacity:5];
  for (std::size_t index = 0; index < _viewModel->totalsLines().size(); ++index) {
    NSTextField* label = [NSTextField labelWithString:@""];
    label.frame = NSMakeRect(kInset, y, width, kLineHeight);
    label.autoresizingMask = NSViewWidthSizable;
    [page addSubview:label];
    [labels addObject:label];
    y += kLineHeight;
  }
  _totalsLabels = labels;

  _errorLabel = [NSTextField wrappingLabelWithString:@""];
  _errorLabel.textColor = NSColor.systemRedColor;
  _errorLabel.frame = NSMakeRect(kInset, y + 4, width, 2 * kLineHeight);
  _errorLabel.autoresizingMask = NSViewWidthSizable;
  [page addSubview:_errorLabel];
  y += 2 * kLineHeight + 8;

  _chartView = [[QNBUsageChartView alloc] initWithViewModel:*_viewModel];
  _chartView.frame = NSMakeRect(kInset, y, width, kChartHeight);
  _chartView.autoresizingMask = NSViewWidthSizable;
  [page addSubview:_chartView];
  y += kChartHeight + 8;

  const auto rangeTitles = _viewModel->rangeTitles();
  NSMutableArray<NSString*>* titles = [NSMutableArray arrayWithCapacity:rangeTitles.size()];
  for (const auto& title : rangeTitles) {
    [titles addObject:text(title)];
  }
  _rangeControl = [NSSegmentedControl segmentedControlWithLabels:titles
                                                    trackingMode:NSSegmentSwitchTrackingSelectOne
                                                          target:self
                                                          action:@selector(rangeChanged:)];
  _rangeControl.frame = NSMakeRect(kInset, y, 240, kControlHeight);
  [page addSubview:_rangeControl];

  NSButton* reset = [NSButton buttonWithTitle:text(_viewModel->resetButtonTitle())
                                       target:self
                                       action:@selector(resetUsage:)];
  reset.frame = NSMakeRect(kPageWidth - kInset - 140, y, 140, kControlHeight);
  reset.autoresizingMask = NSViewMinXMargin;
  [page addSubview:reset];
  y += kControlHeight + 8;

  _tableView = [[NSTableView alloc] initWithFrame:NSZeroRect];
  const auto columnTitles = _viewModel->columnTitles();
  const CGFloat columnWidths[] = {300, 120, 120};
  for (std::size_t index = 0; index < columnTitles.size() && index < 3; ++index) {
    NSTableColumn* column =
        [[NSTableColumn alloc] initWithIdentifier:[NSString stringWithFormat:@"%zu", index]];
    column.title = text(columnTitles[index]);
    column.width = columnWidths[index];
    [_tableView addTableColumn:column];
  }
  _tableView.dataSource = self;
  _tableView.delegate = self;
  NSScrollView* scroll =
      [[NSScrollView alloc] initWithFrame:NSMakeRect(kInset, y, width, kPageHeight - kInset - y)];
  scroll.documentView = _tableView;
  scroll.hasVerticalScroller = YES;
  scroll.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
  [page addSubview:scroll];

  self.view = page;
}

- (void)viewWillAppear {
  [super viewWillAppear];
  __weak QNBUsageSettingsPageController* weakSelf = self;
  _observation = _viewModel->observe([weakSelf] { [weakSelf showViewModel]; });
  _viewModel->refresh();
}

- (void)viewDidDisappear {
  [super viewDidDisappear];
  _observation.cancel();
}

- (void)showViewModel {
  const auto& lines = _viewModel->totalsLines();
  for (std::size_t index = 0; index < lines.size() && index < _totalsLabels.count; ++index) {
    _totalsLabels[index].stringValue = text(lines[index]);
  }
  const auto error = _viewModel->errorText();
  _errorLabel.stringValue = error ? text(*error) : @"";
  _errorLabel.hidden = !error.has_value();
  _rangeControl.selectedSegment =
      _viewModel->range() == quenby::UsageAnalyticsRange::last90Days ? 0 : 1;
  _chartView.needsDisplay = YES;
  [_tableView reloadData];
}

- (void)rangeChanged:(NSSegmentedControl*)sender {
  _viewModel->setRange(sender.selectedSegment == 1 ? quenby::UsageAnalyticsRange::allTime
                                                   : quenby::UsageAnalyticsRange::last90Days);
}

- (void)resetUsage:(id)sender {
  _viewModel->requestReset();
  const auto& confirmation = _viewModel->pendingResetConfirmation();
  if (!confirmation) {
    return;
  }
  NSAlert* alert = [[NSAlert alloc] init];
  alert.alertStyle = NSAlertStyleWarning;
  alert.messageText = text(confirmation->message);
  alert.informativeText = text(confirmation->informativeText);
  [alert addButtonWithTitle:text(confirmation->confirmTitle)];
  [alert addButtonWithTitle:text(confirmation->cancelTitle)];
  if ([alert runModal] == NSAlertFirstButtonReturn) {
    _viewModel->confirmReset();
  } else {
    _viewModel->cancelReset();
  }
}

- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView {
  return static_cast<NSInteger>(_viewModel->appRows().size());
}

- (NSView*)tableView:(NSTableView*)tableView
    viewForTableColumn:(NSTableColumn*)tableColumn
                   row:(NSInteger)row {
  const auto& rows = _viewModel->appRows();
  if (row < 0 || static_cast<std::size_t>(row) >= rows.size() || tableColumn == nil) {
    return nil;
  }
  const auto& appRow = rows[static_cast<std::size_t>(row)];
  NSString* value =
      appRow.displayName.empty() ? text(appRow.bundleIdentifier) : text(appRow.displayName);
  if ([tableColumn.identifier isEqualToString:@"1"]) {
    value = [NSString stringWithFormat:@"%lld", static_cast<long long>(appRow.successCount)];
  } else if ([tableColumn.identifier isEqualToString:@"2"]) {
    value = [NSString stringWithFormat:@"%lld", static_cast<long long>(appRow.failureCount)];
  }
  return [NSTextField labelWithString:value];
}

@end
