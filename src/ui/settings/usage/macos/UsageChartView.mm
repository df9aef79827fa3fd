// The Usage page's daily chart in AppKit.
//
// Threading: main thread only (AppKit drawing).
//
// Lifetime: holds the view model by reference; the Settings window's page controller creates the
// view over a view model that lives as long as the runtime, so it outlives the view.
//
// Guarantee: draws exactly the core's chart geometry for the plot inside its margins, asked
// afresh on every draw, so a resize or a refresh can never show a stale layout. The view is
// flipped, as the geometry's y grows downwards.

#import "ui/settings/usage/macos/UsageChartView.h"

#import "base/macos/FoundationPropertyList.h"
#include "ui/settings/usage/UsageSettingsViewModel.hpp"

#include <algorithm>

namespace {

constexpr CGFloat kLeftMargin = 44;
constexpr CGFloat kRightMargin = 12;
constexpr CGFloat kTopMargin = 8;
constexpr CGFloat kBottomMargin = 52;
constexpr CGFloat kLegendSwatch = 10;
constexpr CGFloat kLegendSpacing = 20;

NSString* text(const std::string& value) { return quenby::foundationString(value) ?: @""; }

NSColor* color(quenby::UsageChartColor color) {
  switch (color) {
  case quenby::UsageChartColor::systemBlue:
    return NSColor.systemBlueColor;
  case quenby::UsageChartColor::systemOrange:
    return NSColor.systemOrangeColor;
  case quenby::UsageChartColor::systemGreen:
    break;
  }
  return NSColor.systemGreenColor;
}

} // namespace

@implementation QNBUsageChartView {
  quenby::UsageSettingsViewModel* _viewModel;
}

- (instancetype)initWithViewModel:(quenby::UsageSettingsViewModel&)viewModel {
  self = [super initWithFrame:NSMakeRect(0, 0, 600, 240)];
  if (self != nil) {
    _viewModel = &viewModel;
    self.accessibilityLabel = text(viewModel.chartTitle());
  }
  return self;
}

- (BOOL)isFlipped {
  return YES;
}

- (void)drawRect:(NSRect)dirtyRect {
  const NSRect bounds = self.bounds;
  const quenby::Size plot{std::max<CGFloat>(0, bounds.size.width - kLeftMargin - kRightMargin),
                          std::max<CGFloat>(0, bounds.size.height - kTopMargin - kBottomMargin)};
  const auto chart = _viewModel->chartGeometry(plot);
  const auto point = [](double x, double y) {
    return NSMakePoint(kLeftMargin + x, kTopMargin + y);
  };
  NSDictionary* labelAttributes = @{
    NSFontAttributeName : [NSFont systemFontOfSize:10 weight:NSFontWeightRegular],
    NSForegroundColorAttributeName : NSColor.secondaryLabelColor,
  };

  [NSColor.separatorColor setStroke];
  for (const auto& tick : chart.ticks) {
    [NSBezierPath strokeLineFromPoint:point(0, tick.y) toPoint:point(plot.width, tick.y)];
    NSString* label = text(tick.label);
    const NSSize size = [label sizeWithAttributes:labelAttributes];
    [label drawAtPoint:NSMakePoint(kLeftMargin - 6 - size.width,
                                   kTopMargin + tick.y - size.height / 2)
        withAttributes:labelAttributes];
  }
  for (const auto& bar : chart.bars) {
    for (const auto& segment : bar.segments) {
      [color(quenby::UsageChartGeometry::color(segment.category)) setFill];
      const NSPoint origin = point(segment.frame.x, segment.frame.y);
      [NSBezierPath
          fillRect:NSMakeRect(origin.x, origin.y, segment.frame.width, segment.frame.height)];
    }
  }
  [NSColor.secondaryLabelColor setStroke];
  [NSBezierPath strokeLineFromPoint:point(0, plot.height) toPoint:point(plot.width, plot.height)];
  for (const auto& date : chart.dateLabels) {
    NSString* label = text(date.text);
    const NSSize size = [label sizeWithAttributes:labelAttributes];
    [label drawAtPoint:NSMakePoint(kLeftMargin + date.x - size.width / 2,
                                   kTopMargin + plot.height + 4)
        withAttributes:labelAttributes];
  }
  if (chart.isEmpty) {
    NSDictionary* emptyAttributes = @{
      NSFontAttributeName : [NSFont systemFontOfSize:13 weight:NSFontWeightRegular],
      NSForegroundColorAttributeName : NSColor.secondaryLabelColor,
    };
    NSString* empty = text(chart.emptyText);
    const NSSize size = [empty sizeWithAttributes:emptyAttributes];
    [empty drawAtPoint:point(plot.width / 2 - size.width / 2, plot.height / 2 - size.height / 2)
        withAttributes:emptyAttributes];
  }

  NSDictionary* legendAttributes = @{
    NSFontAttributeName : [NSFont systemFontOfSize:11 weight:NSFontWeightRegular],
    NSForegroundColorAttributeName : NSColor.labelColor,
  };
  CGFloat x = kLeftMargin;
  const CGFloat legendY = kTopMargin + plot.height + 28;
  for (const auto& entry : chart.legend) {
    [color(quenby::UsageChartGeometry::color(entry.category)) setFill];
    [NSBezierPath fillRect:NSMakeRect(x, legendY + 2, kLegendSwatch, kLegendSwatch)];
    NSString* title = text(entry.title);
    [title drawAtPoint:NSMakePoint(x + kLegendSwatch + 5, legendY) withAttributes:legendAttributes];
    x += kLegendSwatch + 5 + [title sizeWithAttributes:legendAttributes].width + kLegendSpacing;
  }
}

@end
