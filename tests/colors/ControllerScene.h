#pragma once

#include "colors/ColorScene.h"
#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"
#include "zsg/colors/ColorController.h"
#include "zsg/materials/ISceneMaterialManager.h"

#include <algorithm>
#include <regex>

/// A controller over the small scene with the colorway "Summer" active.
class ControllerScene : public ColorScene, protected SmallScene {
protected:
    ControllerScene() : SmallScene(addSmallScene()) { renderer.activateColorway(summer); }

    void TearDown() override {
        stack.clear();
        ColorScene::TearDown();
    }

    /// The lines of the scene's dump that `before` does not have, with "; " between them, ' in
    /// place of ", and what is frequent shortened.
    [[nodiscard]] std::string since(std::string const& before) const {
        std::string changed = select(renderer.dump(), "; ", [&](std::string const& line) {
            return ('\n' + before).find('\n' + line + '\n') == std::string::npos;
        });
        for (auto const& [what, brief] : {std::pair("\"", "'"),
                                          {"\\bcolor (?=\\d)", ""},
                                          {"4 'Cover' 0 0 0 1 flags 1", "Cover"},
                                          {"active colorway none; ", ""},
                                          {"colorway 1 'Summer' pairs 4:1", "Summer off"}}) {
            changed = std::regex_replace(changed, std::regex(what), brief);
        }
        return changed;
    }

    /// The commits, bindings and events of an action.
    std::string story(std::function<void()> const& action) {
        return select(trace(action), "; ", [](std::string const& line) {
            return line.starts_with('>') || line.starts_with("commit") ||
                   line.starts_with("material_bind");
        });
    }

    /// The texts of what can be undone, a plus sign before those of macros.
    [[nodiscard]] std::string history() const {
        std::string text;
        for (int i = 0; i < stack.index(); ++i) {
            bool const macro = stack.command(i)->id() == ZCommandId::Macro;
            text += std::string(i ? "; " : "") + (macro ? "+" : "") + stack.text(i).toStdString();
        }
        return text;
    }

    struct Edit {
        std::function<void()> run;
        std::string history; ///< that it leaves
        std::string changes; ///< in the dump
        std::string left{};  ///< of them after undo
    };
    /// Does, undoes, redoes and undoes each.
    void check(std::vector<Edit> const& edits) {
        for (Edit const& wanted : edits) {
            SCOPED_TRACE(wanted.history + ": " + wanted.changes);
            std::string const before = renderer.dump();
            wanted.run();
            EXPECT_EQ(history(), wanted.history);
            for (int turn = 0; turn < 2; ++turn) {
                EXPECT_EQ(since(before), wanted.changes);
                EXPECT_TRUE(stack.goTo(0));
                EXPECT_EQ(since(before), wanted.left);
                EXPECT_TRUE(stack.goTo(turn == 0 ? stack.count() : 0));
            }
            stack.clear();
        }
    }

    ZUndoStack stack;
    std::unique_ptr<zsg::ISceneMaterialManager> const materials = renderer.materialManager(&stack);
    zsg::ColorController edit{db.get(), materials.get(), &stack};

    std::vector<zsg::MultiColorPair> const coverRed{{cover, red}};
    nyx::ColorId const noColor{77}; ///< valid, but there is no record
    nyx::ColorwayId const noColorway{77};
};
