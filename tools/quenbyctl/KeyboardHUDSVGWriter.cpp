#include "quenbyctl/KeyboardHUDSVGWriter.hpp"

#include "hud/view/KeyboardHUDContentFade.hpp"
#include "hud/view/KeyboardHUDKeyFrames.hpp"
#include "hud/view/KeyboardHUDLayout.hpp"
#include "quenbyctl/SVGText.hpp"

#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <sstream>
#include <string_view>

namespace quenby {
namespace {

constexpr std::string_view kFontFamily =
    "-apple-system, BlinkMacSystemFont, 'SF Pro Text', 'Helvetica Neue', Helvetica, Arial, "
    "sans-serif";
constexpr double kShadowOpacity = 0.28;
constexpr double kShadowRadius = 14;
constexpr double kShadowOffset = 6;

std::string base64(const std::vector<std::uint8_t>& bytes) {
  static constexpr std::string_view kAlphabet =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
    std::uint32_t group = static_cast<std::uint32_t>(bytes[i]) << 16;
    if (count > 1) {
      group |= static_cast<std::uint32_t>(bytes[i + 1]) << 8;
    }
    if (count > 2) {
      group |= bytes[i + 2];
    }
    for (std::size_t j = 0; j < 4; ++j) {
      text += j <= count ? kAlphabet[(group >> (18 - 6 * j)) & 0x3F] : '=';
    }
  }
  return text;
}

std::string color(KeyboardHUDPaletteColor color) {
  return color == KeyboardHUDPaletteColor::black ? "#000000" : "#FFFFFF";
}

std::string color(KeyboardHUDRGBColor color) {
  std::array<char, 8> buffer{};
  const auto component = [](double value) { return static_cast<int>(std::lround(value * 255)); };
  std::snprintf(buffer.data(), buffer.size(), "#%02X%02X%02X", component(color.red),
                component(color.green), component(color.blue));
  return buffer.data();
}

std::string frameAttributes(Rect rect) {
  return "x=\"" + svgNumber(rect.x) + "\" y=\"" + svgNumber(rect.y) + "\" width=\"" +
         svgNumber(rect.width) + "\" height=\"" + svgNumber(rect.height) + "\"";
}

class Drawing {
public:
  Drawing(const KeyboardHUDPalette& palette, double scale) : palette_(palette), scale_(scale) {}

  void key(const KeyboardHUDKeyView& view, Rect frame) {
    const bool mapped = view.mapping.has_value();
    const auto parts = KeyboardHUDKeyFrames::make(frame, scale_, mapped);
    out_ << "<g aria-label=\"" << svgEscaped(view.accessibilityLabel) << "\">\n";
    out_ << "<rect " << frameAttributes(parts.key) << " rx=\"" << svgNumber(parts.cornerRadius)
         << "\" fill=\"" << color(palette_.keyFill) << "\" fill-opacity=\""
         << svgNumber(mapped ? palette_.keyFillOpacity : palette_.unboundKeyFillOpacity)
         << "\" stroke=\"" << color(palette_.keyBorder) << "\" stroke-opacity=\""
         << svgNumber(palette_.keyBorderOpacity) << "\" stroke-width=\""
         << svgNumber(parts.borderWidth) << "\"/>\n";
    const Rect label = parts.label;
    out_ << "<text x=\"" << svgNumber(mapped ? label.x : label.x + label.width / 2) << "\" y=\""
         << svgNumber(label.y + label.height / 2) << "\" font-size=\""
         << svgNumber(parts.labelFontSize) << "\" font-weight=\"" << (mapped ? 600 : 500)
         << "\" text-anchor=\"" << (mapped ? "start" : "middle")
         << "\" dominant-baseline=\"central\"" << textFill(mapped) << ">" << svgEscaped(view.label)
         << "</text>\n";
    if (mapped) {
      icon(view, parts.icon);
      out_ << "<text x=\"" << svgNumber(parts.caption.x + parts.caption.width / 2) << "\" y=\""
           << svgNumber(parts.caption.y + parts.caption.height / 2) << "\" font-size=\""
           << svgNumber(parts.captionFontSize)
           << "\" font-weight=\"600\" text-anchor=\"middle\" dominant-baseline=\"central\""
           << textFill(false) << ">" << svgEscaped(view.caption) << "</text>\n";
      if (view.isRunning) {
        const Rect dot = parts.runningMark;
        out_ << "<circle cx=\"" << svgNumber(dot.x + dot.width / 2) << "\" cy=\""
             << svgNumber(dot.y + dot.height / 2) << "\" r=\"" << svgNumber(dot.width / 2)
             << "\" fill=\"" << color(palette_.runningColor()) << "\"/>\n";
      }
      if (view.visualState == KeyboardHUDKeyVisualState::invalid) {
        invalidMark(parts.invalidMark);
      }
    }
    out_ << "</g>\n";
  }

  void settingsButton(Rect frame, const std::string& accessibilityLabel) {
    // A gear: a ring with eight teeth.
    const double cx = frame.x + frame.width / 2;
    const double cy = frame.y + frame.height / 2;
    const double side = frame.width;
    const std::string stroke = "stroke=\"" + color(palette_.textColor()) + "\" stroke-opacity=\"" +
                               svgNumber(palette_.secondaryTextOpacity()) + "\" stroke-width=\"" +
                               svgNumber(side * 0.1) + "\"";
    out_ << "<g aria-label=\"" << svgEscaped(accessibilityLabel) << "\" role=\"button\">\n";
    out_ << "<rect " << frameAttributes(frame) << " fill=\"none\"/>\n";
    out_ << "<circle cx=\"" << svgNumber(cx) << "\" cy=\"" << svgNumber(cy) << "\" r=\""
         << svgNumber(side * 0.22) << "\" fill=\"none\" " << stroke << "/>\n";
    for (int tooth = 0; tooth < 8; ++tooth) {
      const double angle = tooth * std::numbers::pi / 4;
      const double inner = side * 0.28;
      const double outer = side * 0.38;
      out_ << "<line x1=\"" << svgNumber(cx + inner * std::cos(angle)) << "\" y1=\""
           << svgNumber(cy + inner * std::sin(angle)) << "\" x2=\""
           << svgNumber(cx + outer * std::cos(angle)) << "\" y2=\""
           << svgNumber(cy + outer * std::sin(angle)) << "\" " << stroke
           << " stroke-linecap=\"round\"/>\n";
    }
    out_ << "</g>\n";
  }

  std::ostringstream& out() { return out_; }

private:
  std::string textFill(bool secondary) const {
    return " fill=\"" + color(palette_.textColor()) + "\" fill-opacity=\"" +
           svgNumber(secondary ? palette_.secondaryTextOpacity() : palette_.textOpacity()) + "\"";
  }

  void icon(const KeyboardHUDKeyView& view, Rect frame) {
    const auto& icon = view.icon.icon();
    if (icon && icon->encoding == PreparedApplicationIcon::Encoding::png) {
      out_ << "<image " << frameAttributes(frame) << " href=\"data:image/png;base64,"
           << base64(icon->bitmapData) << "\"/>\n";
      return;
    }
    // Raw pixels would need a PNG encoder; the placeholder stands in, as it does in the app
    // until an icon arrives.
    out_ << "<rect " << frameAttributes(frame) << " rx=\"" << svgNumber(frame.width * 0.22)
         << "\" fill=\"" << color(palette_.textColor()) << "\" fill-opacity=\""
         << svgNumber(palette_.placeholderOpacity()) << "\"/>\n";
  }

  void invalidMark(Rect frame) {
    // A warning triangle with an exclamation mark, as the system symbol draws it.
    const double left = frame.x;
    const double top = frame.y + frame.height * 0.06;
    const double right = frame.x + frame.width;
    const double bottom = frame.y + frame.height * 0.94;
    const double middle = frame.x + frame.width / 2;
    out_ << "<path d=\"M" << svgNumber(middle) << " " << svgNumber(top) << " L" << svgNumber(right)
         << " " << svgNumber(bottom) << " L" << svgNumber(left) << " " << svgNumber(bottom)
         << " Z\" stroke-linejoin=\"round\" stroke-width=\"" << svgNumber(frame.width * 0.12)
         << "\" stroke=\"" << color(palette_.warningColor()) << "\" fill=\""
         << color(palette_.warningColor()) << "\"/>\n";
    const double bar = frame.width * 0.12;
    out_ << "<rect x=\"" << svgNumber(middle - bar / 2) << "\" y=\""
         << svgNumber(frame.y + frame.height * 0.36) << "\" width=\"" << svgNumber(bar)
         << "\" height=\"" << svgNumber(frame.height * 0.3) << "\" rx=\"" << svgNumber(bar / 2)
         << "\" fill=\"#FFFFFF\"/>\n";
    out_ << "<circle cx=\"" << svgNumber(middle) << "\" cy=\""
         << svgNumber(frame.y + frame.height * 0.8) << "\" r=\"" << svgNumber(bar * 0.6)
         << "\" fill=\"#FFFFFF\"/>\n";
  }

  const KeyboardHUDPalette& palette_;
  double scale_;
  std::ostringstream out_;
};

} // namespace

std::string KeyboardHUDSVGWriter::write(const KeyboardHUDViewModel& model,
                                        KeyboardHUDColorScheme environment,
                                        const KeyboardHUDContentBuilder& builder) {
  const auto palette = KeyboardHUDPalette::make(model.hudTheme(), environment);
  const auto metrics = KeyboardHUDLayout::metrics(model.hudSize());
  const double s = metrics.scale;
  const auto size = KeyboardHUDLayout::contentSize(model.hudSize());
  const auto background = KeyboardHUDLayout::backgroundFrame(metrics);
  const auto fade = KeyboardHUDContentFade::forPhase(model.contentAnimationPhase());

  Drawing drawing(palette, s);
  auto& out = drawing.out();
  out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << svgNumber(size.width)
      << "\" height=\"" << svgNumber(size.height) << "\" viewBox=\"0 0 " << svgNumber(size.width)
      << " " << svgNumber(size.height) << "\" font-family=\"" << kFontFamily << "\">\n";
  // The classic blur-offset-flood recipe rather than feDropShadow, which fewer renderers know.
  out << "<defs>\n<filter id=\"hud-shadow\" x=\"-20%\" y=\"-20%\" width=\"140%\" "
         "height=\"150%\">\n<feGaussianBlur in=\"SourceAlpha\" stdDeviation=\""
      << svgNumber(kShadowRadius * s / 2) << "\"/>\n<feOffset dx=\"0\" dy=\""
      << svgNumber(kShadowOffset * s) << "\" result=\"offset\"/>\n"
      << "<feFlood flood-color=\"#000000\" flood-opacity=\"" << svgNumber(kShadowOpacity)
      << "\"/>\n<feComposite in2=\"offset\" operator=\"in\"/>\n"
      << "<feMerge><feMergeNode/><feMergeNode in=\"SourceGraphic\"/></feMerge>\n"
      << "</filter>\n</defs>\n";
  out << "<rect " << frameAttributes(background) << " rx=\""
      << svgNumber(KeyboardHUDLayout::kCornerRadius * s) << "\" fill=\"" << color(palette.panelBase)
      << "\" fill-opacity=\"" << svgNumber(palette.panelBaseOpacity) << "\" stroke=\""
      << color(palette.panelBorder) << "\" stroke-opacity=\""
      << svgNumber(palette.panelBorderOpacity) << "\" stroke-width=\"" << svgNumber(s)
      << "\" stroke-miterlimit=\"10\" "
      << "filter=\"url(#hud-shadow)\"/>\n";
  out << "<g opacity=\"" << svgNumber(fade.opacity) << "\">\n";
  for (const auto& row : builder.rows(model.current())) {
    for (const auto& view : row) {
      drawing.key(view, *KeyboardHUDLayout::keyFrame(view.key, metrics));
    }
  }
  out << "</g>\n";
  drawing.settingsButton(KeyboardHUDLayout::settingsButtonFrame(metrics),
                         model.settingsAccessibilityLabel());
  out << "</svg>\n";
  return out.str();
}

} // namespace quenby
