#include "colors/ColorScene.h"

using namespace zsg;
using nyx::ColorId;

namespace {

constexpr ColorId c3(3), c4(4), c5(5), s30(30), s31(31), s40(40), s50(50);

class ZColorwayEditTest : public ColorScene {
protected:
    nyx::ColorwayId const colorway =
        renderer.colorways().add("Autumn", {{c5, s50}, {c3, s30}, {c4, s40}});
};

} // namespace

TEST_F(ZColorwayEditTest, RepairsItsListsAtConstructionAndMarksItselfChanged) {
    // The lists are the third and the fourth entry.
    nyxParameter_edit* const repeated = api()->colorway_params(colorway);
    repeated->entries[2].value.list.ids[2] = c5;
    ZColorwayEdit const edit(api(), repeated);
    EXPECT_EQ(list(edit.multiColors()), ids(c3, c5));
    EXPECT_EQ(list(edit.activeSubIndices()), ids(s30, s50));
    EXPECT_TRUE(edit.isModified());

    // Cut to the shorter list before repetitions are looked for, and then in its own order.
    nyxParameter_edit* const shorter = api()->colorway_params(colorway);
    shorter->entries[2].value.list.ids[2] = c5;
    shorter->entries[3].value.list.count = 2;
    ZColorwayEdit const cut(api(), shorter);
    EXPECT_EQ(list(cut.multiColors()), ids(c5, c3));
    EXPECT_EQ(list(cut.activeSubIndices()), ids(s50, s30));
    EXPECT_TRUE(cut.isModified());

    nyxParameter_edit* const lacking = api()->colorway_params(colorway);
    lacking->entries[3].name[0] = 'x';
    ZColorwayEdit half(api(), lacking);
    half.removeMultiColors({c5});
    half.setPairs({}, {});
    EXPECT_EQ(list(half.multiColors()), ids(c5, c3, c4));
    EXPECT_EQ(half.activeSubOf(c5), ColorId());
    EXPECT_FALSE(half.isModified());
}

TEST_F(ZColorwayEditTest, SettersMarkTheEditWhenTheyAlterSomething) {
    ZColorwayEdit edit(api(), api()->colorway_params(colorway));
    EXPECT_EQ(edit.activeSubOf(c3), s30);
    EXPECT_EQ(edit.activeSubOf(s30), ColorId());
    EXPECT_TRUE(edit.containsMultiColor(c4) && !edit.containsMultiColor(s40));
    EXPECT_FALSE(edit.isModified() || edit.commit(false));
    auto const copy = edit.copy();
    struct {
        char const* what;
        std::function<void()> set;
        bool changed;
        std::vector<ColorId> multis;
    } const rows[] = {
        {"same name", [&] { edit.setDisplayName("Autumn"); }, false, ids(c5, c3, c4)},
        {"name", [&] { edit.setDisplayName("Winter"); }, true, ids(c5, c3, c4)},
        {"inactive already", [&] { edit.setActive(false); }, false, ids(c5, c3, c4)},
        {"active", [&] { edit.setActive(true); }, true, ids(c5, c3, c4)},
        {"deleted", [&] { edit.setDeleted(true); }, true, ids(c5, c3, c4)},
        {"remove", [&] { edit.removeMultiColors(ids(c4, c5)); }, true, ids(c3)},
        {"remove what is not listed", [&] { edit.removeMultiColors({c5}); }, true, ids(c3)},
        {"same pairs", [&] { edit.setPairs(ids(c3), ids(s30)); }, false, ids(c3)},
        {"other sub", [&] { edit.setPairs(ids(c3), ids(s31)); }, true, ids(c3)},
        {"exchanged", [&] { edit.setPairs(edit.activeSubIndices(), edit.multiColors()); }, true,
         ids(s31)},
        {"longer subs", [&] { edit.setPairs({}, ids(s30)); }, true, {}},
        {"remove from none", [&] { edit.removeMultiColors({}); }, true, {}},
    };
    for (auto const& row : rows) {
        edit.commit(true);
        row.set();
        EXPECT_EQ(edit.isModified(), row.changed) << row.what;
        EXPECT_EQ(list(edit.multiColors()), row.multis) << row.what;
        EXPECT_EQ(edit.activeSubIndices().size(), row.multis.size()) << row.what;
    }
    EXPECT_TRUE(edit.isActive() && edit.isDeleted() && edit.displayName() == "Winter");
    EXPECT_TRUE(copy->id() == colorway && copy->displayName() == "Autumn");
    EXPECT_TRUE(copy->commit(false) && !copy->commit(false));
    auto const other = renderer.colorways().add("Other", {});
    nyxParameter_edit* const astray = api()->colorway_params(colorway);
    astray->record_id = other.value; // as of a renderer whose clones are nobody's
    ZColorwayEdit(api(), astray).copy()->commit(true);
    EXPECT_EQ(renderer.colorways().record(other)->name, "Other");
}
