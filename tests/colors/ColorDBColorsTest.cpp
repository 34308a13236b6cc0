#include "colors/ColorScene.h"
#include "zsg/core/Events.h"

#include <gmock/gmock.h>

#include <utility>

using namespace zsg;
using nyx::ColorId;

namespace {

class ColorDBColorsTest : public ColorScene {
protected:
    ColorId const red = color("Red", 1);
    ColorId const blue = color("Blue");
    ColorId const multi = multiColor("Multi", {red, blue});
};

using Element = ZColorExt::ZColorWithId;

/// Takes "Dark" for an existing colour, and brings a second "Red" along.
ZColorExt newMultiColor(ColorId existing) {
    ZColorExt value;
    value.setMultiColor(true);
    value.setColorName("Red");
    value.setColors({Element(ZColor(0.5f, 0, 0, 1, "Dark"), existing),
                     Element(ZColor(0, 0, 1, 1, "Red"), ColorId())});
    value.setActiveIndex(1);
    return value;
}

} // namespace

TEST_F(ColorDBColorsTest, PushingANewMultiColorMakesItsRecordsAndTellsOfThem) {
    ZColorExt value = newMultiColor(red);
    ZColorExt const shared = value;
    EXPECT_EQ(calls([&] { db->pushColor(value); }),
              "lock, begin_color, set_param \"display_name\" 10 \"Red\", end_color, "
              "nyx_color_set_unique_name 4, nyx_color_set_unique_name 4, unlock, "
              "color_params 4, lock, begin_color, set_param \"display_name\" 10 \"Red\", "
              "end_color, nyx_color_set_unique_name 5, nyx_color_set_unique_name 5, "
              "unlock, > ColorCreated 5, color_params 1, commit_color_params 1, "
              "> ColorUpdated 1, color_params 5, commit_color_params 5, > ColorUpdated 5, "
              "> ColorCreated 4, commit_color_params 4, > ColorUpdated 4, "
              "> ColorUpdated 1, > ColorUpdated 5");
    EXPECT_FALSE(shared.getId().isValid()); // the caller's copies are not written to
    EXPECT_EQ(value.getColorName(), "Red 1");
    ZColorExt const read = db->colorFromId(value.getId());
    EXPECT_EQ(read, value);
    EXPECT_EQ(read.revision(), value.revision());
    EXPECT_EQ(calls([&] { db->pushColor(value); }), "");

    value.setMultiColor(false);
    value.setActiveIndex(0);
    value.setColorName("Renamed");
    EXPECT_EQ(calls([&] { db->pushColor(value); }), "commit_color_params 4, > ColorUpdated 4");
    EXPECT_EQ(db->colorFromId(value.getId()).rgba().r, 0.5f);
    EXPECT_TRUE(db->getColorParameters(value.getId())->subColors().empty());
    EXPECT_EQ(db->getColorParameters(value.getId())->displayName(), "Renamed");

    ColorId const id = db->idFromColor(ZColorExt(ZColor(1, 1, 1, 1, "Blue")));
    EXPECT_EQ(db->colorFromId(id).getColorName(), "Blue 1");
    EXPECT_EQ(db->idFromColor(db->colorFromId(id)), id);
}

TEST_F(ColorDBColorsTest, CopiesAreMadeUnderTheLockAndToldOfAfterIt) {
    db->getColorParameters(multi)->setColor({0.5f, 0, 0, 1}); // copies take what is not committed
    ColorId copy;
    EXPECT_EQ(calls([&] { copy = db->clone(multi); }),
              "lock, begin_color, end_color, clone_color_params 3, commit_color_params 4, "
              "release_color_params 4, unlock, set_modified true, "
              "nyx_color_set_unique_name 4, > ColorCreated 4, > ColorUpdated 3");
    EXPECT_EQ(db->getColorParameters(copy)->color().r, 0.5f);
    EXPECT_EQ(db->getColorParameters(copy)->displayName(), "Multi 1");
    EXPECT_FALSE(db->getColorParameters(copy)->isModified());

    ZColorExt const wrapper = db->colorFromId(db->multiColorFromColor(red));
    EXPECT_EQ(wrapper.getColorName(), "Red 1");
    EXPECT_TRUE(wrapper.nColors() == 1 && wrapper.getActiveSubColorId() == red);

    db->setActiveSubColor({multi, blue});
    EXPECT_TRUE(calls([&] { copy = db->cloneRecursively(multi); })
                    .ends_with("> ColorCreated 8, > ColorUpdated 2, "
                               "commit_color_params 6, set_modified true"));
    ZColorExt const value = db->colorFromId(copy);
    EXPECT_EQ(value.getName(0) + value.getName(1), "Red 2Blue 1");
    EXPECT_EQ(value.activeIndex(), 1);
    EXPECT_FALSE(value.hasSubColor(red) || value.hasSubColor(blue));
    EXPECT_EQ(db->colorFromId(db->cloneRecursively(red)).nColors(), 1);

    ColorId made;
    EXPECT_EQ(calls([&] { made = db->createColor("Fresh", nyxColor_extended::MultiColor); }),
              "lock, begin_color, set_param \"display_name\" 10 \"Fresh\", end_color, "
              "nyx_color_set_unique_name 10, unlock");
    EXPECT_TRUE(db->getColorParameters(made)->hasFlag(ColorFlags::MultiColor));
}

TEST_F(ColorDBColorsTest, TheTemporaryColorIsOneHiddenRecord) {
    ZColorExt preview(ZColor(1, 0, 0, 1, "Preview"));
    renderer.faults().failCreations = 1;
    db->pushTempColor(preview);
    EXPECT_FALSE(preview.getId().isValid());
    std::size_t const before = db->colors().size();
    EXPECT_EQ(calls([&] { db->pushTempColor(preview); }),
              "lock, begin_color, end_color, unlock, color_params 4, "
              "commit_color_params 4, > ColorUpdated 4");
    ZColorExt other = db->colorFromId(multi);
    db->pushTempColor(other);
    EXPECT_EQ(other.getId(), preview.getId());
    EXPECT_EQ(db->colorFromId(preview.getId()).nColors(), 2);
    EXPECT_EQ(db->colors().size(), before);
    EXPECT_TRUE(db->getColorParameters(preview.getId())->hasFlag(ColorFlags::Temporary));
}

TEST_F(ColorDBColorsTest, OnlyAnotherListedSubColorBecomesActive) {
    MultiColorPair const pairs[] = {{multi, red}, {multi, multi}, {multi, {}},
                                    {{}, red},    {red, blue},    {multi, blue}};
    for (MultiColorPair const& pair : pairs) {
        std::string const made = calls([&] { db->setActiveSubColor(pair); });
        EXPECT_EQ(made.find("commit") != std::string::npos, &pair == &pairs[5]);
    }
    EXPECT_EQ(db->getColorParameters(multi)->activeSub(), blue);
}

TEST_F(ColorDBColorsTest, ASavedStateReplacesTheEditAndIsAlwaysWritten) {
    EXPECT_EQ(calls([&] { db->setColorEdit(db->getColorParameters(red)); }), // the very one
              "color_params 1, clone_color_params 1, release_color_params 1, "
              "commit_color_params 1, > ColorUpdated 1");
    EXPECT_EQ(db->getColorParameters(red)->displayName(), "Red");
    nyxParameter_edit* const block = api()->color_params(red);
    ZColorExtEdit const none(api(), nullptr), uncopied(nullptr, block); // nobody to copy it
    db->setColorEdit(&none);
    db->setColorEdit(&uncopied);
    EXPECT_EQ(db->getColorParameters(red)->displayName(), "Red");
    api()->release_color_params(block);
}

TEST_F(ColorDBColorsTest, FailedCreationsLeaveTheInvalidIdAndNothingElse) {
    renderer.faults().failCreations = 4;
    ZColorExt value(ZColor(1, 0, 0, 1, "New"));
    EXPECT_THAT(trace([&] {
                    EXPECT_EQ(db->clone(red), ColorId());
                    EXPECT_EQ(db->multiColorFromColor(red), ColorId());
                    EXPECT_EQ(db->createColor("New", nyxColor_extended::PlainColor), ColorId());
                    db->pushColor(value);
                }),
                testing::Not(testing::HasSubstr(">")));
    EXPECT_EQ(value, ZColorExt(ZColor(1, 0, 0, 1, "New")));
    ZColorExt parts = newMultiColor(ColorId());
    parts.setId(multi); // both elements are new, and the first cannot be made
    renderer.faults().failCreations = 1;
    db->pushColor(parts);
    EXPECT_FALSE(parts.getSubColorId(0).isValid());
    ASSERT_EQ(db->getColorParameters(multi)->subColors().size(), 1u);
    EXPECT_EQ(db->getColorParameters(multi)->activeSub(), parts.getSubColorId(1));
}

TEST_F(ColorDBColorsTest, ListenersMayReplaceAndDropEdits) {
    ColorId const second = multiColor("Second", {red});
    use(multi);
    use(second);
    nyx::ColorwayId const colorway = renderer.colorways().add("Way", {{multi, red}, {second, red}});
    nyx::ColorwayId const other = renderer.colorways().add("Other", {{multi, blue}});
    db->getColorwayParameters(colorway);
    ZColorExt value = newMultiColor(blue);
    value.setId(multi);
    reaction = [&](Event const&) {
        auto const again = std::exchange(reaction, nullptr);
        db->handleColorwayActivated(colorway);
        db->setColorEdit(db->getColorParameters(blue)->copyFor(multi).get());
        db->setColorwayEdit(db->getColorwayParameters(colorway));
        reaction = again;
    };
    db->pushColor(value);
    db->setActiveSubColor({multi, blue}), db->cloneRecursively(multi);
    db->applyColorway(other), db->applyColorway(colorway);
    db->handleColorwayActivated(colorway);
    EXPECT_EQ(db->activeColorwayId(), colorway);

    // What is being written wins over a state that a listener puts back meanwhile.
    ColorId const plain = color("Plain");
    ZColorExt grown = newMultiColor(ColorId());
    grown.setId(plain);
    reaction = [&](Event const& event) {
        if (event.type() == EventType::ColorCreated) {
            ZColorExtEdit const saved(api(), renderer.api()->color_params(plain));
            db->setColorEdit(&saved);
        }
    };
    db->pushColor(grown);
    EXPECT_TRUE(db->getColorParameters(plain)->hasSubColor(grown.getSubColorId(0)));

    // A list that a listener gives to the copy, while its parts are cloned, stays.
    ColorId copy;
    reaction = [&](Event const& event) {
        if (event.type() == EventType::ColorCreated && copy.isValid()) {
            db->getColorParameters(copy)->setSubColors(ids(blue));
        } else if (event.type() == EventType::ColorCreated) {
            copy = static_cast<ColorEvent const&>(event).colorId();
        }
    };
    db->cloneRecursively(plain);
    EXPECT_EQ(list(db->getColorParameters(copy)->subColors()), ids(blue));
    reaction = nullptr;
}

TEST_F(ColorDBColorsTest, AListenerThatReadsTheRecordAgainLosesNothingOfWhatIsWritten) {
    use(multi);
    nyx::ColorwayId const colorway = renderer.colorways().add("Way", {{multi, red}});
    db->getColorwayParameters(colorway);
    ZColorExt value = db->colorFromId(multi);
    value.setColorName("Switched");
    value.setActiveIndex(1);
    value.setColor(ZColor(0.125f, 0, 0, 1), ZColorExt::NameOp::Keep);
    reaction = [&](Event const&) {
        auto const again = std::exchange(reaction, nullptr);
        db->handleColorwayActivated(colorway);
        reaction = again;
    };
    db->pushColor(value);
    reaction = nullptr;
    EXPECT_EQ(renderer.colors().record(multi)->name, "Switched");
    EXPECT_EQ(renderer.colors().record(multi)->activeSub, blue);
    EXPECT_EQ(value, db->colorFromId(multi));
}

TEST_F(ColorDBColorsTest, ADerivedDatabaseInterceptsPushesAndEdits) {
    struct Derived : ColorDB {
        using ColorDB::ColorDB;
        using ColorDB::pushColor;
        void pushColor(ColorId) override { ++pushes; }
        ZColorExtEdit* getColorParameters(ColorId id) override {
            ++lookUps;
            return ColorDB::getColorParameters(id);
        }
        int pushes = 0;
        int lookUps = 0;
    } derived(&queue, renderer.api());
    ZColorExt value = newMultiColor(red);
    EXPECT_EQ(calls([&] { derived.pushColor(value); }).find("commit"), std::string::npos);
    EXPECT_TRUE(derived.pushes == 3 && derived.lookUps >= 3);
}
