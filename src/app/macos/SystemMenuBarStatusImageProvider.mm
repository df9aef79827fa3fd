// The status item's template icons.
//
// Threading: main thread only (AppKit images).
//
// Lifetime: both images are loaded from the main bundle when the provider is made and live as
// long as it does; they are vector (PDF) images, so AppKit draws each scale from the same file.
//
// Guarantee: the images are templates, so the menu bar alone decides their colour. The pictures
// have one source, the SVGs under resources/icons: nothing here draws a second version of them.

#import "app/macos/SystemMenuBarStatusImageProvider.h"

namespace quenby {
namespace {

// Nil when the bundle lacks the resource.
NSImage* loadTemplate(NSString* name) {
  NSImage* image = [NSBundle.mainBundle imageForResource:name];
  // Marked here rather than left to the file's name: the menu bar tints only templates.
  [image setTemplate:YES];
  return image;
}

} // namespace

SystemMenuBarStatusImageProvider::SystemMenuBarStatusImageProvider()
    : normal_(loadTemplate(@"StatusItemTemplate")),
      attention_(loadTemplate(@"StatusItemAttentionTemplate")) {}

} // namespace quenby
