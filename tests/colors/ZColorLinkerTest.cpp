#include "colors/ControllerScene.h"
#include "zsg/colors/IColorLinkHandler.h"
#include "zsg/colors/IColorLinker.h"

using namespace zsg;

namespace {

class ZColorLinkerTest : public ControllerScene, public IColorLinkHandler {
protected:
    Resolution resolveConflict(ZColorExt const& color, int index, ColorId existing) override {
        asked += color.getName(index) + ':' + std::to_string(existing.value) + ' ';
        return color.getName(index) == "Red" ? Resolution::Link : Resolution::Rename;
    }

    static ZColorExt palette(std::vector<ZColor> const& colors) {
        std::vector<ZColorExt::ZColorWithId> elements;
        for (ZColor const& color : colors) {
            elements.emplace_back(color, ColorId());
        }
        ZColorExt made;
        made.setMultiColor(true);
        made.setColorName("Palette");
        made.setColors(elements);
        return made;
    }

    std::unique_ptr<IColorLinker> const linker = db->getColorLinker(&edit, this);
    std::string asked;
};

} // namespace

TEST_F(ZColorLinkerTest, AConflictIsANameInUseWithAnotherValue) {
    auto const conflicts = [&](ZColor const& color) {
        auto const found = edit.checkForConflict(palette({ZColor(), color}));
        EXPECT_TRUE(found.empty() || (found[0].index == 1 && found[0].name == color.name() &&
                                      found[0].existing == db->colorFromId(red).getId()));
        return found.size();
    };
    EXPECT_EQ(conflicts({1, 0, 0, 1, "Red"}), 0u);
    EXPECT_EQ(conflicts({1, 0.00009f, 0, 1, "Red"}), 0u);
    EXPECT_EQ(conflicts({1, 1e-4f, 0, 1, "Red"}), 1u);
    EXPECT_EQ(conflicts({1, 0, 0, 0.5f, "Red"}), 1u);
    EXPECT_EQ(conflicts({NAN, 0, 0, 1, "Red"}), 1u);
    EXPECT_EQ(conflicts({1, 1, 1, 1, "Blue"}), 0u);  // its material is on no object
    EXPECT_EQ(conflicts({1, 1, 1, 1, "Cover"}), 0u); // a multi-colour
    EXPECT_EQ(conflicts({1, 1, 1, 1, ""}), 0u);
}

TEST_F(ZColorLinkerTest, AnImportAsksOncePerConflictAndOverwritesNothing) {
    std::string const before = renderer.dump();
    ZColorExt color = palette({{0, 0, 0, 1, "Red"}, {0, 0, 0, 1, "Sand"}, {1, 1, 1, 1, "Green"}});
    EXPECT_EQ(linker->importColor(color), ColorId(5));
    EXPECT_EQ(asked, "Red:1 Green:2 ");
    EXPECT_EQ(since(before), "5 'Palette' 1 0 0 1 flags 1 subs 1 6 7 active 1; 6 "
                             "'Sand' 0 0 0 1; 7 'Green 1' 1 1 1 1");
    EXPECT_EQ(color.getSubColorId(2), ColorId(7));

    ZColorExt plain{ZColor(0, 0, 0, 1, "Red")};
    EXPECT_EQ(linker->importColor(plain), red);
    EXPECT_EQ(plain, db->colorFromId(red));
    ZColorExt other{ZColor(0, 0, 0, 1, "Red")};
    db->getColorLinker(&edit, nullptr)->importColor(other);
    EXPECT_EQ(other.getColorName(), "Red 1");
    EXPECT_EQ(renderer.colors().record(other.getId())->name, "Red 1");
    std::string const made = renderer.dump();
    ZColorExt same =
        palette({{1, 1, 1, 1, "Green"}, {1, 1, 1, 1, "Green"}, {1, 1, 1, 1, "Green 2"}});
    linker->importColor(same);
    EXPECT_EQ(since(made), "9 'Palette 1' 1 1 1 1 flags 1 subs 10 11 12 active 10; 10 "
                           "'Green 3' 1 1 1 1; 11 'Green 4' 1 1 1 1; 12 'Green 2' 1 1 "
                           "1 1");
    ZColorExt returning = db->colorFromId(green); // of the very record, but changed
    returning.setColor(ZColor(1, 1, 1, 1, "Green"), ZColorExt::NameOp::Keep);
    EXPECT_NE(linker->importColor(returning), green);
    EXPECT_EQ(renderer.colors().record(green)->value.r, 0);
    ZColorExt twice = palette({{0, 0, 0, 1, "Red"}, {0, 0, 0, 1, "Red"}, {0, 0, 0, 1, "Clay"}});
    twice.setActiveIndex(1);
    linker->importColor(twice);
    EXPECT_TRUE(twice.nColors() == 2 && twice.getActiveSubColorId() == red);

    // An element that carries the id of the colour in use must not rename it.
    ZColorExt mixed = palette({{0, 0, 0, 1, "Clay"}});
    mixed.setColors({ZColorExt::ZColorWithId(ZColor(1, 1, 1, 1, "Green"), green)});
    linker->importColor(mixed);
    EXPECT_TRUE(renderer.colors().record(green)->name == "Green" &&
                mixed.getSubColorId(0) != green);

    EXPECT_EQ(history(), ""); // the import itself cannot be undone
    renderer.faults().noUniqueNames = true;
    EXPECT_EQ(linker->uniqueColorName("Red"), "");
}

TEST_F(ZColorLinkerTest, ARenamedElementLeavesTheMultiColorItsName) {
    for (std::string const name : {"Green 1", "Green"}) { // which the scene makes "Green 3"
        ZColorExt color = palette({{1, 1, 1, 1, "Green"}});
        color.setColorName(name);
        linker->importColor(color);
        EXPECT_NE(color.getName(0), color.getColorName());
        EXPECT_NE(renderer.colors().record(color.getSubColorId(0))->name,
                  renderer.colors().record(color.getId())->name);
    }
}

TEST_F(ZColorLinkerTest, ConflictsOfOneNameAskForAsManyNames) {
    for (std::size_t const size : {10u, 200u}) {
        ZColorExt color = palette(std::vector<ZColor>(size, ZColor(1, 1, 1, 1, "Green")));
        auto const isName = [](std::string const& line) {
            return line.starts_with("nyx_color_find_unique_name");
        };
        std::string const names =
            selectLines(trace([&] { linker->importColor(color); }), "\n", isName) + '\n';
        EXPECT_GE(static_cast<std::size_t>(std::ranges::count(names, '\n')), size);
        EXPECT_LE(static_cast<std::size_t>(std::ranges::count(names, '\n')), 2 * size + 20);
    }
}

TEST_F(ZColorLinkerTest, MergingAddsWhatIsMissing) {
    ColorId const trim = multiColor("Trim", {blue, green});
    std::string const before = renderer.dump();
    linker->mergeSubColors(trim, cover);
    linker->mergeSubColors(trim, cover); // nothing is missing any more
    linker->mergeSubColors(trim, red);
    EXPECT_EQ(since(before), "5 'Trim' 0 0 0 1 flags 1 subs 3 2 1 active 3");
    EXPECT_EQ(history(), "Add Sub Color (Trim)");
}
