#include "workbench/values/valueText.h"

#include "documents/documentText.h"
#include "workbench/values/parameterValue.h"
#include "zsg/values/AnimationCurve.h"
#include "zsg/values/ColorGradient.h"
#include "zsg/values/Enumerable.h"
#include "zsg/values/WeavePattern.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>

using namespace workbench;

TEST(ValueText, EveryTypeHasATextThatGivesItBack) {
    zsg::AnimationCurve curve;
    curve.insertKey(0.1F);
    curve.insertKey(1.0F / 3);
    zsg::ColorGradient gradient;
    gradient.addColorStop({0.1F, 5, -1, 0.5F}, 0.7F, 1, 2);
    gradient.setBlend(true);
    zsg::Enumerable choice{{3, "three"}, {9, "nine"}};
    choice.setSelection(9);
    std::unique_ptr<zsg::Variant> values[] = {
        makeValue(true),
        makeValue(-17),
        makeValue(QList<int>{1, -2}),
        makeValue(0.1F),
        makeValue(nyxVector2f{1e-7F, -3}),
        makeValue(nyxVectorf{0.1F, 1e20F, 3}),
        makeValue(1.0 / 3),
        makeValue(nyxVector{0.1, 0.2, -1e300}),
        makeValue(QString(" a text ")),
        makeValue(QList<QString>{"one", "", "two words"}),
        makeValue(zsg::FilePath("a b.png")),
        makeValue(nyxMatrix{{1, 2, 3, 4, 5, 6, 7, 8, 9, 0.1, 11, 12, 13, 14, 15, 16}}),
        makeValue(ZColorExt(0.25F, 4, 0.1F, 1)),
        makeValue(ZColorExtAlpha(0, 0.5F, 1, 0.25F)),
        makeValue(zsg::FloatArray{0.1F, 2}),
        makeValue(gradient),
        makeValue(curve),
        makeValue(zsg::AxaltaColor({1, 2, 3}, {4, 5, 6}, {0.1F, 8, 9})),
        makeValue(zsg::WeavePattern::makeTwill(5, 2)),
        makeValue(choice),
    };
    std::set<zsg::Type> types;
    for (auto const& value : values) {
        types.insert(value->type());
        auto const present = value->type() == zsg::Type::Enumerable
                                 ? makeValue(zsg::Enumerable{{3, "three"}, {9, "nine"}})
                                 : std::unique_ptr<zsg::Variant>(zsg::makeVariant(value->type()));
        auto const back = valueFromText(valueText(*value), *present);
        EXPECT_TRUE(back && isSame(*back, *value)) << zsg::typeName(value->type());
        if (zsg::tryGet<QString>(*value) || zsg::tryGet<zsg::FilePath>(*value) ||
            zsg::tryGet<QList<QString>>(*value)) {
            continue; // any text will do
        }
        for (char const* const wrong : {"neither", "1 2 x", "{", "#12", "blend\n1", "UT 1 2"}) {
            EXPECT_EQ(valueFromText(wrong, *value), nullptr)
                << zsg::typeName(value->type()) << ' ' << wrong;
        }
    }
    EXPECT_EQ(types.size(), std::size(values));
    auto const empty = makeValue(zsg::AnimationCurve());
    EXPECT_TRUE(isSame(*valueFromText(valueText(*empty), *makeValue(curve)), *empty));
    EXPECT_EQ(valueFromText("2147483648", *makeValue(1)), nullptr);
    auto const half = valueFromText("#FF8000", *makeValue(ZColorExtAlpha(0, 0, 0, 0.5F)));
    EXPECT_EQ(zsg::tryGet<ZColorExtAlpha>(*half)->rgba().a, 0.5F) << "no alpha was typed";
}

TEST(ValueText, IsWhatTheDocumentSays) {
    std::map<QString, QStringList> said; // of each type: what stands in the table as code
    std::map<QString, QStringList> items;
    for (QStringList const& row :
         documents::rowsOf(documents::read("docs/formats.md"), "Values as text")) {
        QString const type = row[0].section(',', 0, 0);
        said[type] = documents::firstOf("`([^`]+)`", row[1]);
        items[type] = row[1].section(": ", 1).split(", ");
    }
    EXPECT_EQ(valueText(*makeValue(true)), said["Boolean"].value(0));
    EXPECT_EQ(valueText(*makeValue(false)), said["Boolean"].value(1));
    EXPECT_EQ(valueText(*makeValue(ZColorExt(0, 1, 0, 1))).size(), said["Color"].value(0).size());
    EXPECT_EQ(valueText(*makeValue(ZColorExtAlpha(0, 1, 0, 0))).size(),
              said["Color"].value(1).size());
    EXPECT_EQ(valueText(*makeValue(ZColorExt(0, 2, 0, 1))), "0 2 0 1") << "four linear numbers";
    zsg::ColorGradient gradient;
    gradient.addColorStop({1, 0, 0, 1}, 0.5F, 0, 0);
    for (bool const blends : {true, false}) {
        gradient.setBlend(blends);
        QStringList const lines = valueText(*makeValue(gradient)).split('\n');
        EXPECT_EQ(lines[0], said["ColorGradient"].value(blends ? 0 : 1));
        EXPECT_EQ(lines[1].split(' ').size(), items["ColorGradient"].size());
    }
    zsg::Enumerable choice{{3, "three"}, {9, "nine"}};
    choice.setSelection(9);
    EXPECT_EQ(valueText(*makeValue(choice)), "9") << "the id of the option";
    EXPECT_TRUE(valueFromText("three", *makeValue(choice))) << "its label is read as well";
    EXPECT_EQ(valueText(*makeValue(zsg::AnimationCurve())), said["AnimationCurve"].value(0));
}
