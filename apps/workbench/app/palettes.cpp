#include "workbench/app/palettes.h"

#include "host/sRGB.h"

#include <algorithm>

namespace workbench {

namespace {

struct Tones {
    QRgb window, base, alternate, button, text, dim, accent, onAccent, link;
};

/// Greys without a hue: coloured surroundings change how the swatches between them look.
QPalette paletteOf(Tones const& tones) {
    QPalette palette;
    auto const set = [&](QPalette::ColorRole role, QRgb rgb) { palette.setColor(role, rgb); };
    set(QPalette::Window, tones.window);
    set(QPalette::WindowText, tones.text);
    set(QPalette::Base, tones.base);
    set(QPalette::AlternateBase, tones.alternate);
    set(QPalette::ToolTipBase, tones.base);
    set(QPalette::ToolTipText, tones.text);
    set(QPalette::PlaceholderText, tones.dim);
    set(QPalette::Text, tones.text);
    set(QPalette::Button, tones.button);
    set(QPalette::ButtonText, tones.text);
    set(QPalette::BrightText, tones.text);
    set(QPalette::Link, tones.link);
    set(QPalette::LinkVisited, tones.link);
    set(QPalette::Highlight, tones.accent);
    set(QPalette::HighlightedText, tones.onAccent);
    set(QPalette::Light, QColor(tones.button).lighter(130).rgb());
    set(QPalette::Midlight, QColor(tones.button).lighter(115).rgb());
    set(QPalette::Mid, QColor(tones.button).darker(130).rgb());
    set(QPalette::Dark, QColor(tones.button).darker(160).rgb());
    set(QPalette::Shadow, QColor(tones.button).darker(250).rgb());
    for (auto const role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Disabled, role, tones.dim);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.button);
    return palette;
}

double luminance(QColor const& color) {
    auto const linear = [](int byte) { return double(app::linearFromSRGB(std::uint8_t(byte))); };
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) +
           0.0722 * linear(color.blue());
}

} // namespace

QPalette darkPalette() {
    return paletteOf({0xff2b2b2b, 0xff202020, 0xff262626, 0xff383838, 0xffe6e6e6, 0xffa0a0a0,
                      0xff2f6db5, 0xffffffff, 0xff8ab8ff});
}

QPalette lightPalette() {
    return paletteOf({0xfff0f0f0, 0xffffffff, 0xfff6f6f6, 0xffe4e4e4, 0xff1c1c1c, 0xff6a6a6a,
                      0xff2a64ad, 0xffffffff, 0xff1a4f9c});
}

double contrast(QColor const& a, QColor const& b) {
    auto const [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

} // namespace workbench
