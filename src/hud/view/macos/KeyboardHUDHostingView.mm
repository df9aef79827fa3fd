// Main thread only. Holds the model by reference (the panel controller owns both and outlives
// the view) and its observation token for as long as the view lives.

#import "hud/view/macos/KeyboardHUDHostingView.h"

#include <optional>

@implementation QBKeyboardHUDHostingView {
  quenby::KeyboardHUDViewModel* _model;
  std::optional<quenby::ObservationToken> _observation;
}

- (instancetype)initWithModel:(quenby::KeyboardHUDViewModel&)model
      acceptsFirstMouseEvents:(BOOL)acceptsFirstMouseEvents {
  self = [super initWithFrame:NSMakeRect(0, 0, 0, 0)];
  if (self != nil) {
    _model = &model;
    _acceptsFirstMouseEvents = acceptsFirstMouseEvents;
    __weak QBKeyboardHUDHostingView* weakSelf = self;
    _observation.emplace(model.observe([weakSelf] { weakSelf.needsDisplay = YES; }));
  }
  return self;
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)acceptsFirstMouse:(nullable NSEvent*)event {
  return self.acceptsFirstMouseEvents;
}

@end
