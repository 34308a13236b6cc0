#include "host/Arguments.h"
#include "host/pictures/Axis.h"
#include "host/pictures/gradientStrip.h"
#include "host/pictures/svg.h"
#include "host/pictures/weaveDraft.h"
#include "zsg/values/ColorGradient.h"
#include "zsg/values/WeavePattern.h"

#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include <limits>

using app::Axis;
using app::Ink;
using app::Picture;
namespace shape = app::shape;

namespace {

shape::LinearGradient strip(zsg::ColorGradient const& gradient) {
    Picture const picture = app::gradientStrip(gradient);
    for (shape::Shape const& s : picture.shapes) {
        auto const* const r = std::get_if<shape::Rectangle>(&s);
        if (auto const* const g = r ? std::get_if<shape::LinearGradient>(&r->fill) : nullptr) {
            return *g;
        }
    }
    return {};
}

} // namespace

TEST(Axis, HasRoundPlaces) {
    struct Row {
        double low, high;
        int steps;
        bool widened;
        char const* labels;
    };
    constexpr double huge = std::numeric_limits<float>::max();
    Row const rows[] = {
        {0, 1, 6, true, "0.0 0.2 0.4 0.6 0.8 1.0"},
        {0, 13.7, 8, true, "0 2 4 6 8 10 12 14"},
        {187.9, 1937, 10, false, "200 400 600 800 1000 1200 1400 1600 1800"},
        {-0.03, 0.04, 8, true, "-0.03 -0.02 -0.01 0.00 0.01 0.02 0.03 0.04"},
        {5, 5, 8, true, "4.99994 4.99996 4.99998 5 5.00002 5.00004 5.00006"},
        {0, 0, 4, true, "-1 0 1"},
        {1e6, 1e6 + 1e-3, 4, true, "999990 1000000 1000010 1000020"},
        {-huge, huge, 4, true, "-5e+38 0 5e+38"},
        {0, 1e-20, 4, true, "0 5e-21 1e-20"},
    };
    for (Row const& row : rows) {
        Axis const axis(row.low, row.high, row.steps, row.widened);
        std::string labels;
        for (double const tick : axis.ticks()) {
            labels += (labels.empty() ? "" : " ") + axis.label(tick);
        }
        EXPECT_EQ(labels, row.labels);
        EXPECT_LE(axis.low(), row.low);
        EXPECT_GE(axis.high(), row.high);
    }
}

TEST(Svg, WritesEveryShapeOnceForLightAndDark) {
    Picture picture{40, 30, "a < b", {}};
    shape::Path path;
    path.moveTo({1, 2});
    path.lineTo({3, 2});
    path.lineTo({3, -4.125});
    path.lineTo({0.1, 0.2});
    path.cubicTo({0, 0}, {10, 0.005}, {5, 5});
    path.close();
    path.lineTo({2, 3});
    path.stroke = {Ink::First, 1.5};
    picture.add(path);
    picture.add(shape::Rectangle{{1, 1},
                                 2,
                                 std::numeric_limits<double>::quiet_NaN(),
                                 app::ColorBytes{1, 2, 255, 51},
                                 {},
                                 1});
    EXPECT_EQ(svg(picture), R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 40 30" )"
                            R"(width="40" height="30" font-family="Helvetica,Arial,'DejaVu Sans')"
                            R"(,sans-serif" xml:space="preserve">
<title>a &lt; b</title>
<style>@media(prefers-color-scheme:dark){.f0{fill:#14181d}.s5{stroke:#6cb6ff}}</style>
<rect width="40" height="30" fill="#ffffff" class="f0"/>
<path fill="none" stroke="#0a58b8" stroke-width="1.5" stroke-linejoin="round" class="s5")"
                            R"( d="m1 2h2v-6.13l-2.9 4.33c-.1-.2 9.9-.19 4.9 4.8zl1 1"/>
<rect x="1" y="1" width="2" height="0" rx="1" fill="#0102ff" fill-opacity=".2"/>
</svg>
)");
    std::string const dark = svg(picture, app::Theme::Dark);
    EXPECT_EQ(dark.find("<style>"), dark.npos);
    EXPECT_NE(dark.find("<rect width=\"40\" height=\"30\" fill=\"#14181d\"/>"), dark.npos);
}

TEST(Svg, TextsAreReadBackWhateverTheyHold) {
    Picture picture{10, 10, "]]><&\"'", {}};
    picture.add(shape::Text{{1, 1}, "<b> & \x01\x1b \xEF\xBF\xBF \xF0\x9F\x8E\xA8"});
    picture.add(shape::fitted({{1, 2}, "\xC3\xA4\xC3\xB6\xC3\xBC<&>W"}, 32));
    picture.add(shape::fitted({{1, 3}, "e\xCC\x81\xCC\x81\xCC\x81 \xD7\xA6"}, 32));
    QXmlStreamReader reader(QString::fromStdString(svg(picture)));
    QString texts;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isCharacters() && !reader.isWhitespace()) {
            texts += reader.text().toString() + '|';
        }
        texts += reader.attributes().hasAttribute("unicode-bidi") ? "to the left: " : "";
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_EQ(texts.section('|', 0, 0), "]]><&\"'");
    EXPECT_EQ(texts.section('|', 2), QString::fromUtf8("<b> & \uFFFD\uFFFD \uFFFD \U0001F3A8|"
                                                       "\u00e4\u00f6\u00fc<&>W|\u00e4\u00f6\u2026|"
                                                       "to the left: e\u0301\u0301\u0301 \u05E6|"));
}

TEST(WeaveDraft, IsSmallWhateverTheWeave) {
    zsg::WeavePattern plain = zsg::WeavePattern::makePlain();
    plain.setSize(512, 512);
    std::string const text = app::svg(app::weaveDraft(plain));
    EXPECT_LT(text.size(), 1'000'000u);
    EXPECT_EQ(QByteArray::fromStdString(text).count("h2"), 512 * 256);
    plain.setSize(513, 1);
    EXPECT_THROW((void)app::weaveDraft(plain), app::CommandError);
}

TEST(GradientStrip, BlendsLightAndKeepsEdges) {
    zsg::ColorGradient gradient;
    EXPECT_THROW((void)app::gradientStrip(gradient), app::CommandError);
    gradient.addColorStop({0, 0, 0, 1}, 0, 0, 0);
    gradient.addColorStop({1, 1, 1, 1}, 1, 0, 0);
    EXPECT_EQ(strip(gradient).stops.size(), 3u); // black, black, white: an edge
    EXPECT_EQ(strip(gradient).stops[1].color[0], 0);
    gradient.setBlend(true);
    auto const stops = strip(gradient).stops;
    auto const half = std::ranges::find(stops, 0.5, &shape::LinearGradient::Stop::at);
    ASSERT_NE(half, stops.end());
    EXPECT_EQ(half->color[0], 188); // half the light
    EXPECT_LT(stops.size(), 40u);
    for (int i = 1; i < 20'000; ++i) {
        gradient.addColorStop({i % 2 == 0 ? 1.0f : 0.0f, 0, 0, 1}, static_cast<float>(i) / 20'000,
                              0, 0);
    }
    EXPECT_LT(strip(gradient).stops.size(), 10'000u);
    gradient.addColorStop({}, std::numeric_limits<float>::infinity(), 0, 0);
    EXPECT_THROW((void)app::gradientStrip(gradient), app::CommandError);
}
