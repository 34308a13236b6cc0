#include "colors/ColorScene.h"

#include "nyxrender/nyxParameter_edit.h"

#include <cstring>

using namespace zsg;
using nyx::ColorId;

namespace {

using Numbers = std::vector<unsigned>;

class ZColorwayEditTest : public ColorScene {
protected:
    nyxRT_api& api = *renderer.api();
    nyx::ColorwayId const colorway = renderer.addColorway(
        "Autumn",
        {{ColorId(5), ColorId(50)}, {ColorId(3), ColorId(30)}, {ColorId(4), ColorId(40)}});

    nyxParameter_entry& entry(nyxParameter_edit& block, char const* name) {
        int i = 0;
        while (std::strcmp(block.entries[i].name, name) != 0) {
            ++i;
        }
        return block.entries[i];
    }
};

Numbers numbers(nyx::Span<ColorId> ids) {
    Numbers result;
    for (ColorId const id : ids) {
        result.push_back(id.value);
    }
    return result;
}

} // namespace

TEST_F(ZColorwayEditTest, RepairsItsListsAtConstructionAndMarksItselfChanged) {
    nyxParameter_edit* const repeated = api.colorway_params(colorway);
    entry(*repeated, "multi_colors").value.list.ids[2] = ColorId(5);
    ZColorwayEdit const edit(&api, repeated);
    EXPECT_EQ(numbers(edit.multiColors()), (Numbers{3, 5}));
    EXPECT_EQ(numbers(edit.activeSubIndices()), (Numbers{30, 50}));
    EXPECT_TRUE(edit.isModified());

    nyxParameter_edit* const unequal = api.colorway_params(colorway);
    entry(*unequal, "active_sub_indices").value.list.count = 2;
    ZColorwayEdit const cut(&api, unequal);
    EXPECT_EQ(numbers(cut.multiColors()), (Numbers{5, 3}));
    EXPECT_TRUE(cut.isModified());

    nyxParameter_edit* const lacking = api.colorway_params(colorway);
    entry(*lacking, "active_sub_indices").name[0] = 'x';
    ZColorwayEdit half(&api, lacking);
    half.removeMultiColors({ColorId(5)});
    half.setPairs({}, {});
    EXPECT_EQ(numbers(half.multiColors()), (Numbers{5, 3, 4}));
    EXPECT_EQ(half.activeSubOf(ColorId(5)), ColorId());
    EXPECT_FALSE(half.isModified());
}

TEST_F(ZColorwayEditTest, SettersMarkTheEditWhenTheyAlterSomething) {
    ZColorwayEdit edit(&api, api.colorway_params(colorway));
    struct {
        char const* what;
        std::function<void()> set;
        bool changed;
        Numbers multis;
    } const rows[] = {
        {"same name", [&] { edit.setDisplayName("Autumn"); }, false, {5, 3, 4}},
        {"name", [&] { edit.setDisplayName("Winter"); }, true, {5, 3, 4}},
        {"inactive already", [&] { edit.setActive(false); }, false, {5, 3, 4}},
        {"active", [&] { edit.setActive(true); }, true, {5, 3, 4}},
        {"deleted", [&] { edit.setDeleted(true); }, true, {5, 3, 4}},
        {"remove",
         [&] {
             edit.removeMultiColors({ColorId(4), ColorId(5)});
         },
         true,
         {3}},
        {"remove what is not listed", [&] { edit.removeMultiColors({ColorId(5)}); }, true, {3}},
        {"same pairs", [&] { edit.setPairs({ColorId(3)}, {ColorId(30)}); }, false, {3}},
        {"other sub", [&] { edit.setPairs({ColorId(3)}, {ColorId(31)}); }, true, {3}},
        {"exchanged",
         [&] { edit.setPairs(edit.activeSubIndices(), edit.multiColors()); },
         true,
         {31}},
        {"longer subs", [&] { edit.setPairs({}, {ColorId(30)}); }, true, {}},
        {"remove from none", [&] { edit.removeMultiColors({}); }, true, {}},
    };
    for (auto const& row : rows) {
        edit.commit(true);
        row.set();
        EXPECT_EQ(edit.isModified(), row.changed) << row.what;
        EXPECT_EQ(numbers(edit.multiColors()), row.multis) << row.what;
        EXPECT_EQ(edit.activeSubIndices().size(), row.multis.size()) << row.what;
    }
    EXPECT_TRUE(edit.isActive() && edit.isDeleted());
    EXPECT_EQ(edit.displayName(), "Winter");
}

TEST_F(ZColorwayEditTest, LooksPairsUpAndCopies) {
    ZColorwayEdit edit(&api, api.colorway_params(colorway));
    EXPECT_EQ(edit.activeSubOf(ColorId(3)), ColorId(30));
    EXPECT_EQ(edit.activeSubOf(ColorId(30)), ColorId());
    EXPECT_TRUE(edit.containsMultiColor(ColorId(4)));
    EXPECT_FALSE(edit.containsMultiColor(ColorId(40)));
    EXPECT_FALSE(edit.isModified() || edit.commit(false));
    auto const copy = edit.copy();
    edit.setDisplayName("Changed later");
    EXPECT_EQ(copy->id(), colorway);
    EXPECT_EQ(copy->displayName(), "Autumn");
    EXPECT_TRUE(copy->commit(false));
    EXPECT_FALSE(copy->commit(false));
}
