#include "host/pictures/svg.h"

#include "host/pictures/rasterPng.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cmath>

namespace app {

namespace {

constexpr std::string_view family = "Helvetica,Arial,'DejaVu Sans',sans-serif";

/// Coordinates are written in hundredths of a pixel; who adds up the differences that a path is
/// written in arrives at the same place.
long long hundredths(double v) {
    constexpr double most = 1e9;
    return std::isfinite(v) ? std::llround(std::clamp(v, -most, most) * 100) : 0;
}

void append(std::string& out, long long n) {
    if (n < 0) {
        out += '-';
        n = -n;
    }
    if (n >= 100 || n == 0) {
        out += std::to_string(n / 100);
    }
    if (auto const part = n % 100; part != 0) {
        out += '.';
        out += static_cast<char>('0' + part / 10);
        if (part % 10 != 0) {
            out += static_cast<char>('0' + part % 10);
        }
    }
}

std::string number(double v) {
    std::string text;
    append(text, hundredths(v));
    return text;
}

std::string hex(ColorBytes const& c) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text = "#";
    for (unsigned const byte : {c[0], c[1], c[2]}) {
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

bool hasRightToLeft(std::string const& text) {
    return std::ranges::any_of(QString::fromStdString(text), [](QChar c) {
        return c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
    });
}

/// XML has no way to write some characters, so the sign for such takes their place.
std::string escaped(std::string_view text) {
    QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    for (QChar& c : shown) {
        bool const isBlank = c == u'\t' || c == u'\n' || c == u'\r';
        if ((c < u' ' && !isBlank) || c == QChar(0xFFFE) || c == QChar(0xFFFF)) {
            c = QChar::ReplacementCharacter;
        }
    }
    return shown.toHtmlEscaped().toStdString();
}

class Writer {
public:
    explicit Writer(std::optional<Theme> theme) : theme_(theme) {}

    std::string picture(Picture const& picture) {
        add(shape::Rectangle{{}, picture.width, picture.height, Ink::Paper, {}, 0});
        for (shape::Shape const& shape : picture.shapes) {
            std::visit([this](auto const& s) { add(s); }, shape);
        }
        std::string const width = number(picture.width);
        std::string const height = number(picture.height);
        return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 )" + width + ' ' + height +
               "\" width=\"" + width + "\" height=\"" + height + "\" font-family=\"" +
               std::string(family) + "\" xml:space=\"preserve\">\n<title>" +
               escaped(picture.title) + "</title>\n" + darkStyle() + body_ + "</svg>\n";
    }

private:
    void attribute(char const* name, double value) {
        body_ += std::string(" ") + name + "=\"" + number(value) + '"';
    }

    void color(char const* name, char const* opacity, ColorBytes const& c) {
        body_ += std::string(" ") + name + "=\"" + hex(c) + '"';
        if (c[3] != 255) {
            attribute(opacity, c[3] / 255.0);
        }
    }

    /// The light colour, and the class by which a dark page changes it.
    void ink(char const* name, Ink ink, std::string& classes) {
        color(name, "", inkColor(ink, theme_.value_or(Theme::Light)));
        if (!theme_) {
            auto const index = static_cast<std::size_t>(ink);
            bool const isFill = *name == 'f';
            (isFill ? fills_ : strokes_)[index] = true;
            classes += (classes.empty() ? "" : " ") + std::string(isFill ? "f" : "s") +
                       std::to_string(index);
        }
    }

    void paint(shape::Fill const& fill, shape::Stroke const& stroke, std::string const& gradient) {
        std::string classes;
        if (auto const* const i = std::get_if<Ink>(&fill)) {
            ink("fill", *i, classes);
        } else if (auto const* const c = std::get_if<ColorBytes>(&fill)) {
            color("fill", "fill-opacity", *c);
        } else {
            body_ += " fill=\"" + (gradient.empty() ? "none" : "url(#" + gradient + ')') + '"';
        }
        if (stroke.width > 0) {
            ink("stroke", stroke.ink, classes);
            attribute("stroke-width", stroke.width);
            body_ += " stroke-linejoin=\"round\"";
        }
        if (!classes.empty()) {
            body_ += " class=\"" + classes + '"';
        }
    }

    /// Writes a gradient and returns its name; nothing for other fills.
    std::string define(shape::Fill const& fill) {
        auto const* const gradient = std::get_if<shape::LinearGradient>(&fill);
        if (!gradient) {
            return {};
        }
        std::string name = "g" + std::to_string(++gradients_);
        body_ += "<linearGradient id=\"" + name + "\" gradientUnits=\"userSpaceOnUse\"";
        attribute("x1", gradient->from.x);
        attribute("y1", gradient->from.y);
        attribute("x2", gradient->to.x);
        attribute("y2", gradient->to.y);
        body_ += ">\n";
        for (auto const& stop : gradient->stops) {
            body_ += "<stop offset=\"" + number(stop.at * 100) + "%\"";
            color("stop-color", "stop-opacity", stop.color);
            body_ += "/>\n";
        }
        body_ += "</linearGradient>\n";
        return name;
    }

    void add(shape::Rectangle const& r) {
        std::string const gradient = define(r.fill);
        body_ += "<rect";
        if (r.corner.x != 0 || r.corner.y != 0) {
            attribute("x", r.corner.x);
            attribute("y", r.corner.y);
        }
        attribute("width", r.width);
        attribute("height", r.height);
        if (r.radius > 0) {
            attribute("rx", r.radius);
        }
        paint(r.fill, r.outline, gradient);
        body_ += "/>\n";
    }

    void add(shape::Path const& path) {
        std::string const gradient = define(path.fill);
        body_ += "<path";
        paint(path.fill, path.stroke, gradient);
        body_ += path.crisp ? " shape-rendering=\"crispEdges\" d=\"" : " d=\"";
        data(path);
        body_ += "\"/>\n";
    }

    void data(shape::Path const& path) {
        struct Place {
            long long x = 0, y = 0;
        };
        Place at;
        Place start;
        auto const* next = path.points.data();
        auto const pair = [&](long long x, long long y) {
            append(body_, x);
            if (y >= 0) {
                body_ += ' ';
            }
            append(body_, y);
        };
        auto const take = [&] {
            Place const place{hundredths(next->x), hundredths(next->y)};
            ++next;
            return place;
        };
        for (auto const step : path.steps) {
            if (step == shape::Path::Step::Close) {
                body_ += 'z';
                at = start;
                continue;
            }
            Place const to = take();
            switch (step) {
            case shape::Path::Step::Move:
                body_ += 'm';
                pair(to.x - at.x, to.y - at.y);
                start = to;
                break;
            case shape::Path::Step::Line:
                if (to.y == at.y) {
                    body_ += 'h';
                    append(body_, to.x - at.x);
                } else if (to.x == at.x) {
                    body_ += 'v';
                    append(body_, to.y - at.y);
                } else {
                    body_ += 'l';
                    pair(to.x - at.x, to.y - at.y);
                }
                break;
            default: {
                Place const second = take();
                Place const end = take();
                body_ += 'c';
                pair(to.x - at.x, to.y - at.y);
                body_ += ' ';
                pair(second.x - at.x, second.y - at.y);
                body_ += ' ';
                pair(end.x - at.x, end.y - at.y);
                at = end;
                continue;
            }
            }
            at = to;
        }
    }

    void add(shape::Text const& text) {
        body_ += "<text";
        if (text.upwards) {
            body_ += " transform=\"translate(" + number(text.baseline.x) + ' ' +
                     number(text.baseline.y) + ") rotate(-90)\"";
        } else {
            attribute("x", text.baseline.x);
            attribute("y", text.baseline.y);
        }
        attribute("font-size", text.size);
        if (text.anchor != shape::Text::Anchor::Start) {
            body_ += text.anchor == shape::Text::Anchor::Middle ? " text-anchor=\"middle\""
                                                                : " text-anchor=\"end\"";
        }
        if (text.bold) {
            body_ += " font-weight=\"bold\"";
        }
        if (hasRightToLeft(text.text)) { // else its ellipsis would stand before it
            body_ += " unicode-bidi=\"plaintext\"";
        }
        paint(text.ink, {}, {});
        body_ += '>';
        if (!text.whole.empty()) {
            body_ += "<title>" + escaped(text.whole) + "</title>";
        }
        body_ += escaped(text.text) + "</text>\n";
    }

    void add(shape::Raster const& raster) {
        std::string const png = rasterPng(raster);
        body_ += "<image";
        attribute("x", raster.corner.x);
        attribute("y", raster.corner.y);
        attribute("width", raster.width);
        attribute("height", raster.height);
        body_ += " href=\"data:image/png;base64,";
        body_ += QByteArray::fromRawData(png.data(), static_cast<qsizetype>(png.size()))
                     .toBase64()
                     .toStdString();
        body_ += "\"/>\n";
    }

    [[nodiscard]] std::string darkStyle() const {
        if (theme_) {
            return {};
        }
        std::string rules;
        for (std::size_t i = 0; i < inkCount; ++i) {
            std::string const dark = hex(inkColor(static_cast<Ink>(i), Theme::Dark));
            if (fills_[i]) {
                rules += ".f" + std::to_string(i) + "{fill:" + dark + '}';
            }
            if (strokes_[i]) {
                rules += ".s" + std::to_string(i) + "{stroke:" + dark + '}';
            }
        }
        return "<style>@media(prefers-color-scheme:dark){" + rules + "}</style>\n";
    }

    std::optional<Theme> theme_;
    std::string body_;
    std::array<bool, inkCount> fills_{};
    std::array<bool, inkCount> strokes_{};
    int gradients_ = 0;
};

} // namespace

std::string svg(Picture const& picture, std::optional<Theme> theme) {
    return Writer(theme).picture(picture);
}

} // namespace app
