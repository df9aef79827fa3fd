// Main thread only. Holds the model by reference (the panel controller owns both and outlives
// the view) and its observation token for as long as the view lives. Draws exactly what the core
// decides: frames from KeyboardHUDLayout and KeyboardHUDKeyFrames, colours from
// KeyboardHUDPalette, labels, icons and states from KeyboardHUDContentBuilder, the cross-fade
// from KeyboardHUDContentFade. Mouse clicks on keys belong to the panel, which hit-tests them
// itself; only an accessibility press on a key, and the settings button, call the model back.

#import "hud/view/macos/KeyboardHUDHostingView.h"

#include "base/macos/BundleLocalizer.hpp"
#include "hud/view/KeyboardHUDContentBuilder.hpp"
#include "hud/view/KeyboardHUDContentFade.hpp"
#include "hud/view/KeyboardHUDKeyFrames.hpp"
#include "hud/view/KeyboardHUDLayout.hpp"
#include "hud/view/KeyboardHUDPalette.hpp"
#import "shortcuts/running/macos/PreparedApplicationIconImage.h"

#import <QuartzCore/QuartzCore.h>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace {

using quenby::KeyboardHUDKeyView;
using quenby::KeyboardHUDPalette;
using quenby::KeyboardHUDPaletteColor;
using IconImages = std::map<std::shared_ptr<const quenby::PreparedApplicationIcon>, NSImage*>;

NSRect toNSRect(quenby::Rect rect) { return NSMakeRect(rect.x, rect.y, rect.width, rect.height); }

NSColor* paletteColor(KeyboardHUDPaletteColor color, double opacity) {
  return [NSColor colorWithWhite:color == KeyboardHUDPaletteColor::white ? 1.0 : 0.0 alpha:opacity];
}

NSColor* rgbColor(quenby::KeyboardHUDRGBColor color) {
  return [NSColor colorWithSRGBRed:color.red green:color.green blue:color.blue alpha:1.0];
}

NSString* toNSString(std::string_view text) {
  NSString* string = [[NSString alloc] initWithBytes:text.data()
                                              length:text.size()
                                            encoding:NSUTF8StringEncoding];
  return string != nil ? string : @"";
}

/// One line in `frame`: centred vertically, aligned as asked, cut with an ellipsis when too long.
void drawText(NSString* text, NSRect frame, NSFont* font, NSColor* color,
              NSTextAlignment alignment) {
  NSMutableParagraphStyle* paragraph = [[NSMutableParagraphStyle alloc] init];
  paragraph.alignment = alignment;
  paragraph.lineBreakMode = NSLineBreakByTruncatingTail;
  NSDictionary<NSAttributedStringKey, id>* attributes = @{
    NSFontAttributeName : font,
    NSForegroundColorAttributeName : color,
    NSParagraphStyleAttributeName : paragraph,
  };
  const NSSize size = [text sizeWithAttributes:attributes];
  const NSRect line =
      NSMakeRect(frame.origin.x, frame.origin.y + (frame.size.height - size.height) / 2,
                 frame.size.width, size.height);
  [text drawInRect:line withAttributes:attributes];
}

} // namespace

/// A key as assistive technologies see it; pressing it does what clicking the key does.
@interface QBKeyboardHUDKeyElement : NSAccessibilityElement
- (instancetype)initWithKey:(quenby::HUDKey)key model:(quenby::KeyboardHUDViewModel&)model;
@end

@implementation QBKeyboardHUDKeyElement {
  // Optional only because an instance variable needs a default value.
  std::optional<quenby::HUDKey> _key;
  quenby::KeyboardHUDViewModel* _model;
}

- (instancetype)initWithKey:(quenby::HUDKey)key model:(quenby::KeyboardHUDViewModel&)model {
  self = [super init];
  if (self != nil) {
    _key = key;
    _model = &model;
  }
  return self;
}

- (BOOL)accessibilityPerformPress {
  if (_key->kind() == quenby::HUDKey::Kind::number && _model->onNumberClicked) {
    _model->onNumberClicked(_key->digit());
    return YES;
  }
  if (_key->kind() == quenby::HUDKey::Kind::letter && _model->onLetterClicked) {
    _model->onLetterClicked(_key->letter());
    return YES;
  }
  return NO;
}

@end

/// The keys, in a view of their own so that the cross-fade changes their opacity alone.
@interface QBKeyboardHUDKeysView : NSView
- (void)showRows:(std::vector<std::vector<KeyboardHUDKeyView>>)rows
         palette:(const KeyboardHUDPalette&)palette
           scale:(double)scale
          images:(const IconImages&)images;
@end

@implementation QBKeyboardHUDKeysView {
  std::vector<std::vector<KeyboardHUDKeyView>> _rows;
  std::optional<KeyboardHUDPalette> _palette;
  double _scale;
  IconImages _images;
  NSImage* _invalidSymbol;
}

- (BOOL)isFlipped {
  return YES;
}

- (void)showRows:(std::vector<std::vector<KeyboardHUDKeyView>>)rows
         palette:(const KeyboardHUDPalette&)palette
           scale:(double)scale
          images:(const IconImages&)images {
  if (!_palette || _palette->primaryTextScheme != palette.primaryTextScheme) {
    NSImageSymbolConfiguration* colours = [NSImageSymbolConfiguration
        configurationWithPaletteColors:@[ NSColor.whiteColor, rgbColor(palette.warningColor()) ]];
    _invalidSymbol = [[NSImage imageWithSystemSymbolName:@"exclamationmark.triangle.fill"
                                accessibilityDescription:nil] imageWithSymbolConfiguration:colours];
  }
  _rows = std::move(rows);
  _palette = palette;
  _scale = scale;
  _images = images;
  self.needsDisplay = YES;
}

- (void)drawRect:(NSRect)dirtyRect {
  if (!_palette) {
    return;
  }
  const quenby::KeyboardHUDLayout::Metrics metrics{_scale};
  for (const auto& row : _rows) {
    for (const auto& view : row) {
      if (const auto frame = quenby::KeyboardHUDLayout::keyFrame(view.key, metrics)) {
        [self drawKey:view
               frames:quenby::KeyboardHUDKeyFrames::make(*frame, _scale, view.mapping.has_value())];
      }
    }
  }
}

- (void)drawKey:(const KeyboardHUDKeyView&)view frames:(const quenby::KeyboardHUDKeyFrames&)frames {
  const KeyboardHUDPalette& palette = *_palette;
  const bool mapped = view.mapping.has_value();
  NSBezierPath* key = [NSBezierPath bezierPathWithRoundedRect:toNSRect(frames.key)
                                                      xRadius:frames.cornerRadius
                                                      yRadius:frames.cornerRadius];
  [paletteColor(palette.keyFill, mapped ? palette.keyFillOpacity : palette.unboundKeyFillOpacity)
      setFill];
  [key fill];
  key.lineWidth = frames.borderWidth;
  [paletteColor(palette.keyBorder, palette.keyBorderOpacity) setStroke];
  [key stroke];

  NSColor* text = paletteColor(palette.textColor(), palette.textOpacity());
  NSColor* secondaryText = paletteColor(palette.textColor(), palette.secondaryTextOpacity());
  drawText(toNSString(view.label), toNSRect(frames.label),
           [NSFont systemFontOfSize:frames.labelFontSize
                             weight:mapped ? NSFontWeightSemibold : NSFontWeightMedium],
           mapped ? secondaryText : text, mapped ? NSTextAlignmentLeft : NSTextAlignmentCenter);
  if (!mapped) {
    return;
  }

  const auto found = view.icon.isPlaceholder() ? _images.end() : _images.find(view.icon.icon());
  if (found != _images.end() && found->second != nil) {
    [found->second drawInRect:toNSRect(frames.icon)
                     fromRect:NSZeroRect
                    operation:NSCompositingOperationSourceOver
                     fraction:1.0
               respectFlipped:YES
                        hints:nil];
  } else {
    const CGFloat radius = frames.icon.width * 0.22;
    [paletteColor(palette.textColor(), palette.placeholderOpacity()) setFill];
    [[NSBezierPath bezierPathWithRoundedRect:toNSRect(frames.icon) xRadius:radius
                                     yRadius:radius] fill];
  }
  drawText(toNSString(view.caption), toNSRect(frames.caption),
           [NSFont systemFontOfSize:frames.captionFontSize weight:NSFontWeightSemibold], text,
           NSTextAlignmentCenter);
  if (view.isRunning) {
    [rgbColor(palette.runningColor()) setFill];
    [[NSBezierPath bezierPathWithOvalInRect:toNSRect(frames.runningMark)] fill];
  }
  if (view.visualState == quenby::KeyboardHUDKeyVisualState::invalid) {
    [_invalidSymbol drawInRect:toNSRect(frames.invalidMark)
                      fromRect:NSZeroRect
                     operation:NSCompositingOperationSourceOver
                      fraction:1.0
                respectFlipped:YES
                         hints:nil];
  }
}

@end

@implementation QBKeyboardHUDHostingView {
  quenby::KeyboardHUDViewModel* _model;
  std::optional<quenby::ObservationToken> _observation;
  std::optional<quenby::KeyboardHUDContentBuilder> _builder;
  QBKeyboardHUDKeysView* _keysView;
  NSButton* _settingsButton;
  std::vector<std::vector<KeyboardHUDKeyView>> _rows;
  IconImages _images;
  std::optional<quenby::KeyboardHUDContentAnimationPhase> _shownPhase;
}

- (instancetype)initWithModel:(quenby::KeyboardHUDViewModel&)model
      acceptsFirstMouseEvents:(BOOL)acceptsFirstMouseEvents {
  self = [super initWithFrame:NSMakeRect(0, 0, 0, 0)];
  if (self != nil) {
    _model = &model;
    _acceptsFirstMouseEvents = acceptsFirstMouseEvents;
    _builder.emplace(quenby::BundleLocalizer());

    _keysView = [[QBKeyboardHUDKeysView alloc] initWithFrame:NSMakeRect(0, 0, 0, 0)];
    [self addSubview:_keysView];
    NSString* settingsLabel = toNSString(model.settingsAccessibilityLabel());
    _settingsButton = [NSButton buttonWithImage:[NSImage imageWithSystemSymbolName:@"gearshape.fill"
                                                          accessibilityDescription:settingsLabel]
                                         target:self
                                         action:@selector(settingsButtonPressed:)];
    _settingsButton.bordered = NO;
    _settingsButton.imageScaling = NSImageScaleProportionallyUpOrDown;
    _settingsButton.accessibilityLabel = settingsLabel;
    [self addSubview:_settingsButton];

    __weak QBKeyboardHUDHostingView* weakSelf = self;
    _observation.emplace(model.observe([weakSelf] { [weakSelf modelDidChange]; }));
    [self modelDidChange];
  }
  return self;
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)acceptsFirstMouse:(nullable NSEvent*)event {
  return self.acceptsFirstMouseEvents;
}

- (quenby::KeyboardHUDLayout::Metrics)metrics {
  return quenby::KeyboardHUDLayout::metrics(_model->hudSize());
}

- (KeyboardHUDPalette)palette {
  NSAppearanceName match = [self.effectiveAppearance
      bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
  const auto environment = [match isEqualToString:NSAppearanceNameDarkAqua]
                               ? quenby::KeyboardHUDColorScheme::dark
                               : quenby::KeyboardHUDColorScheme::light;
  return KeyboardHUDPalette::make(_model->hudTheme(), environment);
}

- (void)modelDidChange {
  const KeyboardHUDPalette palette = [self palette];
  // Setting an equal appearance would still make AppKit redo the appearance pass.
  NSString* wanted = palette.appearanceName ? toNSString(*palette.appearanceName) : nil;
  if (!(wanted == nil ? self.appearance == nil : [self.appearance.name isEqualToString:wanted])) {
    self.appearance = wanted == nil ? nil : [NSAppearance appearanceNamed:wanted];
  }
  _rows = _builder->rows(_model->current());
  IconImages images;
  for (const auto& row : _rows) {
    for (const auto& view : row) {
      const auto& icon = view.icon.icon();
      if (icon == nullptr || images.contains(icon)) {
        continue;
      }
      const auto previous = _images.find(icon);
      images.emplace(icon, previous != _images.end()
                               ? previous->second
                               : quenby::makePreparedApplicationIconImage(*icon));
    }
  }
  _images = std::move(images);
  [self rebuildAccessibilityElements];
  [self applyFade];
  [self redrawWithPalette:palette];
  self.needsLayout = YES;
}

- (void)redrawWithPalette:(const KeyboardHUDPalette&)palette {
  [_keysView showRows:_rows palette:palette scale:[self metrics].scale images:_images];
  _settingsButton.contentTintColor =
      paletteColor(palette.textColor(), palette.secondaryTextOpacity());
  self.needsDisplay = YES;
}

- (void)viewDidChangeEffectiveAppearance {
  [super viewDidChangeEffectiveAppearance];
  // Theme "system" follows the system's appearance without any preference changing.
  [self redrawWithPalette:[self palette]];
}

- (void)applyFade {
  const auto phase = _model->contentAnimationPhase();
  if (_shownPhase == phase) {
    return;
  }
  _shownPhase = phase;
  const auto fade = quenby::KeyboardHUDContentFade::forPhase(phase);
  if (fade.durationSeconds <= 0) {
    _keysView.alphaValue = fade.opacity;
    return;
  }
  QBKeyboardHUDKeysView* keysView = _keysView;
  [NSAnimationContext runAnimationGroup:^(NSAnimationContext* context) {
    context.duration = fade.durationSeconds;
    context.timingFunction =
        [CAMediaTimingFunction functionWithName:kCAMediaTimingFunctionEaseInEaseOut];
    keysView.animator.alphaValue = fade.opacity;
  }];
}

- (void)rebuildAccessibilityElements {
  NSMutableArray* elements = [NSMutableArray arrayWithCapacity:35];
  const auto metrics = [self metrics];
  for (const auto& row : _rows) {
    for (const auto& view : row) {
      const auto frame = quenby::KeyboardHUDLayout::keyFrame(view.key, metrics);
      if (!frame) {
        continue;
      }
      QBKeyboardHUDKeyElement* element = [[QBKeyboardHUDKeyElement alloc] initWithKey:view.key
                                                                                model:*_model];
      element.accessibilityRole = NSAccessibilityButtonRole;
      element.accessibilityLabel = toNSString(view.accessibilityLabel);
      element.accessibilityParent = _keysView;
      element.accessibilityFrameInParentSpace = toNSRect(*frame);
      [elements addObject:element];
    }
  }
  _keysView.accessibilityChildren = elements;
}

- (void)layout {
  [super layout];
  const auto metrics = [self metrics];
  _keysView.frame = self.bounds;
  _settingsButton.frame = toNSRect(quenby::KeyboardHUDLayout::settingsButtonFrame(metrics));
}

- (void)drawRect:(NSRect)dirtyRect {
  const KeyboardHUDPalette palette = [self palette];
  const auto metrics = [self metrics];
  const double s = metrics.scale;
  const CGFloat radius = quenby::KeyboardHUDLayout::kCornerRadius * s;
  NSBezierPath* background = [NSBezierPath
      bezierPathWithRoundedRect:toNSRect(quenby::KeyboardHUDLayout::backgroundFrame(metrics))
                        xRadius:radius
                        yRadius:radius];

  [NSGraphicsContext saveGraphicsState];
  NSShadow* shadow = [[NSShadow alloc] init];
  shadow.shadowColor = [NSColor colorWithWhite:0 alpha:0.28];
  shadow.shadowBlurRadius = 14 * s;
  // Shadow offsets ignore the view's flipping: a negative height falls downwards on screen.
  shadow.shadowOffset = NSMakeSize(0, -6 * s);
  [shadow set];
  [paletteColor(palette.panelBase, palette.panelBaseOpacity) setFill];
  [background fill];
  [NSGraphicsContext restoreGraphicsState];

  background.lineWidth = s;
  background.miterLimit = 10;
  [paletteColor(palette.panelBorder, palette.panelBorderOpacity) setStroke];
  [background stroke];
}

- (void)settingsButtonPressed:(id)sender {
  if (_model->onSettingsClicked) {
    _model->onSettingsClicked();
  }
}

@end
