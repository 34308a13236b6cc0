#pragma once

#include "colors/ColorScene.h"
#include "support/UndoRoundTrip.h"
#include "zsg/colors/ColorController.h"

#include "nyxembedded/MaterialManager.h"
#include "zcore/ZUndoCommand.h"

#include <algorithm>

/// A controller over the small scene with the colorway "Summer" active.
class ControllerScene : public ColorScene, protected SmallScene, protected UndoRoundTrip {
protected:
    ControllerScene()
        : SmallScene(addSmallScene()),
          UndoRoundTrip(stack, [this] { return renderer.dump(); },
                        {{"\\bcolor (?=\\d)", ""},
                         {"4 'Cover' 0 0 0 1 flags 1", "Cover"},
                         {"active colorway none; ", ""},
                         {"colorway 1 'Summer' pairs 4:1", "Summer off"}}) {
        renderer.colorways().activate(summer);
    }

    void TearDown() override {
        stack.clear();
        ColorScene::TearDown();
    }

    /// The commits, bindings and events of an action.
    std::string story(std::function<void()> const& action) {
        return selectLines(trace(action), "; ", [](std::string const& line) {
            return line.starts_with('>') || line.starts_with("commit") ||
                   line.starts_with("material_bind");
        });
    }

    /// Every operation of the controller on colours, and on colorways, as a step that undo takes
    /// back, in an order in which one leaves what the next needs.
    std::vector<Edit> colorEdits();
    std::vector<Edit> colorwayEdits();

    ZUndoStack stack;
    nyx::embedded::MaterialManager materials{renderer, &stack};
    zsg::ColorController edit{db.get(), &materials, &stack};

    std::vector<zsg::MultiColorPair> const coverRed{{cover, red}};
    nyx::ColorId const noColor{77}; ///< valid, but there is no record
    nyx::ColorwayId const noColorway{77};
};
