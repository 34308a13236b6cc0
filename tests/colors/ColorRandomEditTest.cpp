#include "colors/ControllerScene.h"

#include <random>

using namespace zsg;

namespace {

/// Random edits through every operation of the controller. Kept out, because undo does not take
/// them back exactly: merging of different edits, switching to the colorway that is active, and
/// colorways that are first read while a multi-colour of theirs is unused.
class ColorRandomEditTest : public ControllerScene, public testing::WithParamInterface<unsigned> {
protected:
    ColorRandomEditTest() {
        use(trim);
        for (ColorwayId const id : renderer.colorways().ids()) {
            db->getColorwayParameters(id);
        }
    }

    unsigned below(std::size_t count) {
        return std::uniform_int_distribution<unsigned>(0, static_cast<unsigned>(count) - 1)(random);
    }
    /// The colours of the start more often than those made since; now and then one that is none.
    ColorId any() { return ColorId(1 + below(below(2) ? 5 : renderer.colors().ids().size() + 1)); }
    ColorId multi() {
        auto const multis = db->multiColors();
        return below(10) == 0 ? any() : multis[below(below(2) ? 2 : multis.size())];
    }
    std::vector<ColorId> some() {
        std::vector<ColorId> const list = ids(any(), any(), any());
        return {list.begin(), list.begin() + below(4)};
    }
    std::vector<MultiColorPair> pairs() { return {{multi(), any()}, {multi(), any()}}; }
    int index() { return static_cast<int>(below(7)) - 1; }
    std::string name() { return below(3) ? "N" + std::to_string(below(9)) : std::string(); }
    ZColor value() { return {static_cast<float>(below(100)), 0, 0, 1, name()}; }

    void step() {
        ColorId const m = multi();
        ColorId const s = any();
        ColorwayId const w(1 + below(renderer.colorways().ids().size() + 1));
        std::function<void()> const operations[] = {
            [&] { edit.addSubColor(m, value(), index()); },
            [&] { edit.addSubKColors(m, std::vector<ZColor>(below(3), value())); },
            [&] { edit.addOrSwitchSubColor(m, s, below(2)); },
            [&] { edit.linkColor(s, any()); },
            [&] { edit.toggleMultiColor(below(2) ? m : s); },
            [&] { edit.setColor(s, value(), AllowForwardUndoMerge::No); },
            [&] { // a change of flags in between keeps it from merging
                edit.setFlags(red, 8, below(2)), edit.changeSubColor(m, s, any());
                edit.setFlags(red, 8, below(2));
            },
            [&] { edit.setDisplayName(w, name()); },
            [&] { edit.setDisplayName(s, name()); },
            [&] { edit.removeSubColors(m, some()); },
            [&] { edit.addSubColors(m, some(), index(), any()); },
            [&] { edit.moveSubColors(m, some(), index(), s); },
            [&] { edit.setSubColors(m, some()); },
            [&] { edit.setActiveSubColor(m, s); },
            [&] { edit.setFlags(s, static_cast<int>(8 * below(4)), below(2)); },
            [&] { edit.unlinkSubColor(m, below(4)); },
            [&] { edit.createColorway(name(), pairs()); },
            [&] { edit.applyColorway(w == db->activeColorwayId() ? noColorway : w); },
            [&] { edit.setColors(w, pairs()); },
            [&] { edit.addColors(w, pairs(), index(), below(2)); },
            [&] { edit.removeMultiColors(w, some()); },
            [&] { edit.setDeleted(w, below(2)); },
        };
        auto const macro = below(3) ? nullptr : edit.getScopedMacro("One");
        operations[below(std::size(operations))]();
    }

    ColorId const trim = multiColor("Trim", {red, green, blue});
    std::mt19937 random{GetParam()};
};

} // namespace

TEST_P(ColorRandomEditTest, UndoingAllRestoresWhatWasThereAndRedoingAllReturns) {
    std::string const start = renderer.dump();
    for (int i = 0; i < 200; ++i) {
        step();
    }
    std::string const end = renderer.dump();
    EXPECT_TRUE(stack.goTo(0));
    // Colours and colorways that the edits made stay behind those of the start.
    std::string const back = '\n' + renderer.dump();
    std::istringstream wanted(start);
    for (std::string line; std::getline(wanted, line);) {
        EXPECT_NE(back.find('\n' + line + '\n'), std::string::npos) << line;
    }
    EXPECT_TRUE(stack.goTo(stack.count()));
    EXPECT_EQ(renderer.dump(), end);
}

INSTANTIATE_TEST_SUITE_P(Seeds, ColorRandomEditTest, testing::Range(0u, 8u));
