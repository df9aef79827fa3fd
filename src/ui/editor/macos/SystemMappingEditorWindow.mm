// Threading: main thread only; every AppKit callback arrives there.
//
// Lifetime: the window, its controller and the picker sheet are made on the first `open` and
// live until this object goes; closing only hides the window (it is not released when closed),
// so its place and size, saved under an autosave name, survive. The controller holds the view
// model by reference and is cut loose in the destructor, so a late AppKit callback does nothing.
//
// Guarantee: the window shows exactly what the view model holds and forwards every choice to it;
// it decides nothing. Each question or report the view model raises is shown once, as a sheet,
// and answered through the view model.

#include "ui/editor/macos/SystemMappingEditorWindow.hpp"

#include "base/StringFormatter.hpp"
#import "base/macos/FoundationPropertyList.h"
#include "ui/editor/MappingEditorTexts.hpp"

#import <AppKit/AppKit.h>

namespace {

NSString* text(const std::string& value) {
  NSString* converted = quenby::foundationString(value);
  return converted != nil ? converted : @"";
}

NSString* localized(const quenby::MappingEditorViewModel& model,
                    const quenby::LocalizedText& localizedText) {
  return text(model.localizer().localized(localizedText));
}

NSImage* iconForPath(const std::string& path) {
  return path.empty() ? nil : [[NSWorkspace sharedWorkspace] iconForFile:text(path)];
}

NSTableColumn* column(NSString* identifier, NSString* title, CGFloat width) {
  NSTableColumn* column = [[NSTableColumn alloc] initWithIdentifier:identifier];
  column.title = title;
  column.width = width;
  return column;
}

NSScrollView* scrolling(NSTableView* table, NSRect frame) {
  NSScrollView* scrollView = [[NSScrollView alloc] initWithFrame:frame];
  scrollView.hasVerticalScroller = YES;
  scrollView.documentView = table;
  scrollView.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
  return scrollView;
}

NSButton* button(NSString* title, id target, SEL action, NSRect frame,
                 NSAutoresizingMaskOptions resizing) {
  NSButton* made = [NSButton buttonWithTitle:title target:target action:action];
  made.frame = frame;
  made.autoresizingMask = resizing;
  return made;
}

} // namespace

@interface QBMappingEditorController : NSObject <NSTableViewDataSource, NSTableViewDelegate>
- (instancetype)initWithModel:(quenby::MappingEditorViewModel&)model;
- (void)detach;
- (void)refresh;
@property(readonly, strong) NSWindow* window;
@end

@implementation QBMappingEditorController {
  quenby::MappingEditorViewModel* _model;
  NSTableView* _letters;
  NSTextField* _error;
  NSButton* _remove;
  NSWindow* _picker;
  NSTextField* _pickerHeading;
  NSSearchField* _search;
  NSTableView* _applications;
  BOOL _showingPicker;
  BOOL _askingMove;
  BOOL _showingNotice;
  BOOL _selecting;
}

- (instancetype)initWithModel:(quenby::MappingEditorViewModel&)model {
  if ((self = [super init])) {
    _model = &model;
    [self makeWindow];
    [self makePicker];
  }
  return self;
}

- (void)detach {
  _model = nullptr;
  _letters.dataSource = nil;
  _letters.delegate = nil;
  _applications.dataSource = nil;
  _applications.delegate = nil;
}

- (void)makeWindow {
  const quenby::MappingEditorViewModel& model = *_model;
  _window = [[NSWindow alloc]
      initWithContentRect:NSMakeRect(0, 0, 600, 520)
                styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                          NSWindowStyleMaskMiniaturizable | NSWindowStyleMaskResizable
                  backing:NSBackingStoreBuffered
                    defer:YES];
  _window.releasedWhenClosed = NO;
  _window.title = localized(model, quenby::kMappingEditorWindowTitle);
  _window.minSize = NSMakeSize(480, 360);
  NSView* content = [[NSView alloc] initWithFrame:NSMakeRect(0, 0, 600, 520)];

  _letters = [[NSTableView alloc] initWithFrame:NSMakeRect(0, 0, 560, 400)];
  [_letters
      addTableColumn:column(@"letter", localized(model, quenby::kMappingEditorLetterColumn), 40)];
  [_letters addTableColumn:column(@"icon", @"", 24)];
  [_letters addTableColumn:column(@"name",
                                  localized(model, quenby::kMappingEditorApplicationColumn), 200)];
  [_letters
      addTableColumn:column(@"status", localized(model, quenby::kMappingEditorStatusColumn), 260)];
  _letters.rowHeight = 24;
  _letters.usesAlternatingRowBackgroundColors = YES;
  _letters.allowsEmptySelection = NO;
  _letters.dataSource = self;
  _letters.delegate = self;
  _letters.target = self;
  _letters.doubleAction = @selector(assign:);
  [content addSubview:scrolling(_letters, NSMakeRect(20, 84, 560, 416))];

  _error = [NSTextField labelWithString:@""];
  _error.frame = NSMakeRect(20, 52, 560, 22);
  _error.textColor = NSColor.systemRedColor;
  _error.autoresizingMask = NSViewWidthSizable | NSViewMaxYMargin;
  [content addSubview:_error];

  const NSAutoresizingMaskOptions left = NSViewMaxXMargin | NSViewMaxYMargin;
  const NSAutoresizingMaskOptions right = NSViewMinXMargin | NSViewMaxYMargin;
  [content addSubview:button(localized(model, quenby::kMappingEditorAssignButton), self,
                             @selector(assign:), NSMakeRect(20, 14, 110, 32), left)];
  _remove = button(localized(model, quenby::kMappingEditorRemoveButton), self, @selector(remove:),
                   NSMakeRect(136, 14, 100, 32), left);
  [content addSubview:_remove];
  [content addSubview:button(localized(model, quenby::kMappingEditorImportButton), self,
                             @selector(importMappings:), NSMakeRect(360, 14, 106, 32), right)];
  [content addSubview:button(localized(model, quenby::kMappingEditorExportButton), self,
                             @selector(exportMappings:), NSMakeRect(474, 14, 106, 32), right)];
  _window.contentView = content;
  [_window center];
  // After centring, so a saved place wins over the default one.
  [_window setFrameAutosaveName:@"MappingEditorWindow"];
}

- (void)makePicker {
  const quenby::MappingEditorViewModel& model = *_model;
  _picker =
      [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 440, 460)
                                  styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskResizable
                                    backing:NSBackingStoreBuffered
                                      defer:YES];
  _picker.releasedWhenClosed = NO;
  NSView* content = [[NSView alloc] initWithFrame:NSMakeRect(0, 0, 440, 460)];

  _pickerHeading = [NSTextField labelWithString:@""];
  _pickerHeading.frame = NSMakeRect(20, 424, 400, 22);
  _pickerHeading.autoresizingMask = NSViewWidthSizable | NSViewMinYMargin;
  [content addSubview:_pickerHeading];

  _search = [[NSSearchField alloc] initWithFrame:NSMakeRect(20, 392, 400, 24)];
  _search.placeholderString = localized(model, quenby::kMappingEditorPickerSearch);
  _search.target = self;
  _search.action = @selector(search:);
  _search.autoresizingMask = NSViewWidthSizable | NSViewMinYMargin;
  [content addSubview:_search];

  _applications = [[NSTableView alloc] initWithFrame:NSMakeRect(0, 0, 400, 320)];
  [_applications addTableColumn:column(@"icon", @"", 24)];
  [_applications addTableColumn:column(@"name", @"", 360)];
  _applications.headerView = nil;
  _applications.rowHeight = 24;
  _applications.dataSource = self;
  _applications.delegate = self;
  _applications.target = self;
  _applications.doubleAction = @selector(pick:);
  [content addSubview:scrolling(_applications, NSMakeRect(20, 60, 400, 324))];

  const NSAutoresizingMaskOptions left = NSViewMaxXMargin | NSViewMaxYMargin;
  const NSAutoresizingMaskOptions right = NSViewMinXMargin | NSViewMaxYMargin;
  [content addSubview:button(localized(model, quenby::kMappingEditorPickerChoose), self,
                             @selector(choose:), NSMakeRect(20, 16, 110, 32), left)];
  NSButton* cancel = button(localized(model, quenby::kMappingEditorCancelButton), self,
                            @selector(cancelPicker:), NSMakeRect(226, 16, 94, 32), right);
  cancel.keyEquivalent = @"\033";
  [content addSubview:cancel];
  NSButton* assign = button(localized(model, quenby::kMappingEditorPickerAssign), self,
                            @selector(pick:), NSMakeRect(326, 16, 94, 32), right);
  assign.keyEquivalent = @"\r";
  [content addSubview:assign];
  _picker.contentView = content;
}

- (NSInteger)selectedRow {
  return _model == nullptr ? -1 : _model->selectedLetter() - 'A';
}

- (void)refresh {
  if (_model == nullptr) {
    return;
  }
  const quenby::MappingEditorViewModel& model = *_model;
  _selecting = YES;
  [_letters reloadData];
  [_letters selectRowIndexes:[NSIndexSet indexSetWithIndex:(NSUInteger)[self selectedRow]]
        byExtendingSelection:NO];
  [_letters scrollRowToVisible:[self selectedRow]];
  _selecting = NO;
  const auto& row = model.rows().at(static_cast<std::size_t>([self selectedRow]));
  _remove.enabled = row.status != quenby::MappingEditorViewModel::Row::Status::unassigned;
  _error.stringValue = text(model.errorText());
  if (_showingPicker) {
    [_applications reloadData];
  }
  if (model.moveConfirmation() && !_askingMove) {
    [self askMove:*model.moveConfirmation()];
  }
  if (model.notice() && !_showingNotice) {
    [self showNotice:*model.notice()];
  }
}

- (void)askMove:(const quenby::MappingEditorViewModel::MoveConfirmation&)confirmation {
  _askingMove = YES;
  NSAlert* alert = [[NSAlert alloc] init];
  alert.messageText = text(confirmation.message);
  [alert addButtonWithTitle:text(confirmation.moveButton)];
  NSButton* cancel = [alert addButtonWithTitle:text(confirmation.cancelButton)];
  cancel.keyEquivalent = @"\033";
  __weak QBMappingEditorController* weakSelf = self;
  [alert beginSheetModalForWindow:_window
                completionHandler:^(NSModalResponse response) {
                  [weakSelf answerMove:response == NSAlertFirstButtonReturn];
                }];
}

- (void)answerMove:(BOOL)move {
  _askingMove = NO;
  if (_model == nullptr) {
    return;
  }
  if (move) {
    _model->confirmMove();
  } else {
    _model->cancelMove();
  }
}

- (void)showNotice:(const quenby::MappingEditorViewModel::Notice&)notice {
  _showingNotice = YES;
  NSAlert* alert = [[NSAlert alloc] init];
  alert.alertStyle = NSAlertStyleInformational;
  alert.messageText = text(notice.title);
  alert.informativeText = text(notice.message);
  __weak QBMappingEditorController* weakSelf = self;
  [alert beginSheetModalForWindow:_window
                completionHandler:^(NSModalResponse) {
                  [weakSelf noticeDismissed];
                }];
}

- (void)noticeDismissed {
  _showingNotice = NO;
  if (_model != nullptr) {
    _model->dismissNotice();
  }
}

// MARK: Actions

- (void)assign:(id)sender {
  if (_model == nullptr || _showingPicker) {
    return;
  }
  _showingPicker = YES;
  _model->openPicker();
  _pickerHeading.stringValue =
      text(quenby::formatLocalized(_model->localizer().localized(quenby::kMappingEditorPickerTitle),
                                   {std::string(1, _model->selectedLetter())}));
  _search.stringValue = @"";
  [_applications reloadData];
  [_picker makeFirstResponder:_search];
  __weak QBMappingEditorController* weakSelf = self;
  [_window beginSheet:_picker
      completionHandler:^(NSModalResponse) {
        [weakSelf pickerEnded];
      }];
}

- (void)pickerEnded {
  _showingPicker = NO;
}

- (void)search:(id)sender {
  if (_model != nullptr) {
    const char* searched = _search.stringValue.UTF8String;
    _model->setPickerSearchText(searched != nullptr ? searched : "");
  }
}

- (void)pick:(id)sender {
  const NSInteger row = _applications.selectedRow;
  if (_model == nullptr || row < 0) {
    return;
  }
  [_window endSheet:_picker];
  _model->assignPickedApplication(static_cast<std::size_t>(row));
}

- (void)choose:(id)sender {
  [_window endSheet:_picker];
  if (_model != nullptr) {
    _model->chooseApplication();
  }
}

- (void)cancelPicker:(id)sender {
  [_window endSheet:_picker];
}

- (void)remove:(id)sender {
  if (_model != nullptr) {
    _model->remove(_model->selectedLetter());
  }
}

- (void)exportMappings:(id)sender {
  if (_model != nullptr) {
    _model->exportMappings();
  }
}

- (void)importMappings:(id)sender {
  if (_model != nullptr) {
    _model->importMappings();
  }
}

// MARK: Tables

- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView {
  if (_model == nullptr) {
    return 0;
  }
  return static_cast<NSInteger>(tableView == _letters ? _model->rows().size()
                                                      : _model->picker().applications().size());
}

- (nullable NSView*)tableView:(NSTableView*)tableView
           viewForTableColumn:(nullable NSTableColumn*)tableColumn
                          row:(NSInteger)row {
  if (_model == nullptr || row < 0) {
    return nil;
  }
  NSString* identifier = tableColumn.identifier;
  std::string location;
  std::string label;
  if (tableView == _letters) {
    const auto& letterRow = _model->rows().at(static_cast<std::size_t>(row));
    location = letterRow.location;
    if ([identifier isEqualToString:@"letter"]) {
      label = std::string(1, letterRow.letter);
    } else if ([identifier isEqualToString:@"name"]) {
      label = letterRow.applicationName;
    } else {
      label = letterRow.statusText;
    }
  } else {
    const auto& application = _model->picker().applications().at(static_cast<std::size_t>(row));
    location = application.url.path();
    label = application.displayName;
  }
  if ([identifier isEqualToString:@"icon"]) {
    NSImage* icon = iconForPath(location);
    return icon != nil ? [NSImageView imageViewWithImage:icon] : nil;
  }
  NSTextField* field = [NSTextField labelWithString:text(label)];
  if (location.empty() || [identifier isEqualToString:@"status"]) {
    field.textColor = NSColor.secondaryLabelColor;
  }
  return field;
}

- (void)tableViewSelectionDidChange:(NSNotification*)notification {
  if (_model == nullptr || _selecting || notification.object != _letters) {
    return;
  }
  const NSInteger row = _letters.selectedRow;
  if (row >= 0 && row < 26) {
    _model->select(static_cast<char>('A' + row));
  }
}

@end

namespace quenby {

struct SystemMappingEditorWindow::Objects {
  QBMappingEditorController* controller;
};

SystemMappingEditorWindow::SystemMappingEditorWindow(MappingEditorViewModel& viewModel)
    : viewModel_(viewModel) {}

SystemMappingEditorWindow::~SystemMappingEditorWindow() {
  if (objects_) {
    [objects_->controller detach];
    [objects_->controller.window close];
  }
}

void SystemMappingEditorWindow::open(char /*letter*/) {
  // The view model has already selected the letter.
  if (!objects_) {
    objects_ = std::make_unique<Objects>();
    objects_->controller = [[QBMappingEditorController alloc] initWithModel:viewModel_];
    changes_ = viewModel_.observe([controller = objects_->controller] { [controller refresh]; });
  }
  [objects_->controller refresh];
  if (@available(macOS 14, *)) {
    [NSApp activate];
  } else {
    [NSApp activateIgnoringOtherApps:YES];
  }
  [objects_->controller.window makeKeyAndOrderFront:nil];
}

void SystemMappingEditorWindow::close() {
  if (objects_) {
    [objects_->controller.window close];
  }
}

} // namespace quenby
