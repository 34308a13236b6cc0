#pragma once

#include "colors/ColorScene.h"
#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"
#include "zsg/colors/ColorController.h"
#include "zsg/materials/ISceneMaterialManager.h"

#include <algorithm>
#include <sstream>

/// A controller over a small scene whose active colorway is "Summer". Dumps are compared line by
/// line and quoted with ' in place of ".
class ControllerScene : public ColorScene {
protected:
    ControllerScene() {
        renderer.bindColor(fabric, 1, "color", cover);
        renderer.bindColor(fabric, 2, "seam", red);
        renderer.bindColor(frame, 1, "color", blue);
        renderer.addObject("Chair", {}, fabric);
        renderer.activateColorway(summer);
    }

    void TearDown() override {
        stack.clear();
        ColorScene::TearDown();
    }

    /// The lines of the scene's dump that `before` does not have, with "; " between them.
    [[nodiscard]] std::string since(std::string const& before) const {
        std::istringstream text(renderer.dump());
        std::string changed;
        for (std::string line; std::getline(text, line);) {
            if (('\n' + before).find('\n' + line + '\n') == std::string::npos) {
                changed += (changed.empty() ? "" : "; ") + line;
            }
        }
        std::ranges::replace(changed, '"', '\'');
        return changed;
    }

    /// What can be undone: ids and texts.
    [[nodiscard]] std::string history() const {
        std::string text;
        for (int i = 0; i < stack.index(); ++i) {
            auto const id = static_cast<int>(stack.command(i)->id());
            text += (i ? "; " : "") + std::to_string(id) + ' ' + stack.text(i).toStdString();
        }
        return text;
    }

    /// The commits, material edits and events of an action, "; " after each.
    template <class Action>
    std::string story(Action&& action) {
        std::istringstream text(trace(action));
        std::string told;
        for (std::string line; std::getline(text, line);) {
            if (line.starts_with(">") || line.starts_with("commit") ||
                line.starts_with("material_")) {
                told += line + "; ";
            }
        }
        return told;
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
            EXPECT_EQ(since(before), wanted.changes);
            std::string const after = renderer.dump();
            EXPECT_TRUE(stack.goTo(0));
            EXPECT_EQ(since(before), wanted.left);
            EXPECT_TRUE(stack.goTo(stack.count()));
            EXPECT_EQ(renderer.dump(), after);
            EXPECT_TRUE(stack.goTo(0));
            EXPECT_EQ(since(before), wanted.left);
            stack.clear();
        }
    }

    nyx::ColorId const red = renderer.addColor("Red", {1, 0, 0, 1});
    nyx::ColorId const green = renderer.addColor("Green", {0, 1, 0, 1});
    nyx::ColorId const blue = renderer.addColor("Blue", {0, 0, 1, 1});
    nyx::ColorId const cover = multiColor("Cover", {red, green});
    nyx::ColorwayId const summer = renderer.addColorway("Summer", {{cover, red}});
    nyx::ColorwayId const winter = renderer.addColorway("Winter", {{cover, green}});
    nyx::MaterialId const fabric = renderer.addMaterial("Fabric");
    nyx::MaterialId const frame = renderer.addMaterial("Frame");
    ZUndoStack stack;
    std::unique_ptr<zsg::ISceneMaterialManager> const materials = renderer.materialManager(&stack);
    zsg::ColorController edit{db.get(), materials.get(), &stack};

    nyx::ColorId const noColor{77}; ///< valid, but there is no record
    nyx::ColorwayId const noColorway{77};
};
