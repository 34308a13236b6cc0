#include "workbench/app/palettes.h"

#include "workbench/app/WindowStyle.h"

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>
#include <gtest/gtest.h>

using namespace workbench;

TEST(PalettesTest, TextStandsOutFromWhatIsBehindIt) {
    using Role = QPalette::ColorRole;
    std::pair<Role, Role> const pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::WindowText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::Link, QPalette::Base},
        {QPalette::Link, QPalette::Window},
    };
    for (QPalette const& palette : {lightPalette(), darkPalette()}) {
        for (auto const& [text, behind] : pairs) {
            for (auto const group : {QPalette::Active, QPalette::Inactive}) {
                EXPECT_GE(contrast(palette.color(group, text), palette.color(group, behind)), 4.5)
                    << text << " on " << behind;
            }
        }
        // A box that is not ticked, by its frame.
        QStyleOptionButton option;
        option.rect = {0, 0, 13, 13};
        option.palette = palette;
        option.state = QStyle::State_Enabled | QStyle::State_Off;
        QImage image(option.rect.size(), QImage::Format_RGB32);
        image.fill(palette.color(QPalette::Base));
        {
            QPainter painter(&image);
            WindowStyle().drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
        }
        EXPECT_GE(contrast(image.pixelColor(6, 0), image.pixelColor(6, 6)), 3);
        // What is undone in the history is told by slants, and still has to be read.
        EXPECT_GE(contrast(palette.color(QPalette::Disabled, QPalette::Text),
                           palette.color(QPalette::Base)),
                  4.5);
    }
}
