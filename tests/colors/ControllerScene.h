#pragma once

#include "colors/ColorScene.h"
#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"
#include "zsg/colors/ColorController.h"
#include "zsg/materials/ISceneMaterialManager.h"

#include <algorithm>
#include <concepts>
#include <sstream>

/// A controller over a small scene whose active colorway is "Summer".
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

    /// The lines of the scene's dump that `before` does not have, with "; " between them, ' in
    /// place of ", and what is frequent shortened.
    [[nodiscard]] std::string since(std::string const& before) const {
        std::string changed = select(renderer.dump(), [&](std::string const& line) {
            return ('\n' + before).find('\n' + line + '\n') == std::string::npos;
        });
        std::ranges::replace(changed, '"', '\'');
        shorten(changed, "color 4 'Cover' 0 0 0 1 flags 1", "Cover");
        shorten(changed, "active colorway none; ", "");
        shorten(changed, "colorway 1 'Summer' pairs 4:1", "Summer off");
        return changed;
    }

    /// The commits, bindings and events of an action.
    template <class Action>
    std::string story(Action&& action) {
        return select(trace(action), [](std::string const& line) {
            return line.starts_with('>') || line.starts_with("commit") ||
                   line.starts_with("material_bind");
        });
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

    static std::vector<nyx::ColorId> ids(std::same_as<nyx::ColorId> auto... id) { return {id...}; }

    std::vector<zsg::MultiColorPair> const coverRed{{cover, red}};
    nyx::ColorId const noColor{77}; ///< valid, but there is no record
    nyx::ColorwayId const noColorway{77};

private:
    template <class Wanted>
    static std::string select(std::string const& text, Wanted wanted) {
        std::istringstream stream(text);
        std::string selected;
        for (std::string line; std::getline(stream, line);) {
            if (wanted(line)) {
                selected += (selected.empty() ? "" : "; ") + line;
            }
        }
        return selected;
    }
    static void shorten(std::string& text, std::string const& what, char const* brief) {
        if (auto const at = text.find(what); at != std::string::npos) {
            text.replace(at, what.size(), brief);
        }
    }
};
