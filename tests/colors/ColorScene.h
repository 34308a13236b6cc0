#pragma once

#include "core/ZEventQueue.h"
#include "nyxembedded/Renderer.h"
#include "support/EventTrace.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/IEventListener.h"

#include "nyxrender/nyxRT_api.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

/// A colour database over an embedded renderer. trace() returns the calls to the renderer and,
/// marked with "> ", the events in between, in the order in which they happened. In the end nothing
/// may be on loan.
class ColorScene : public testing::Test, public zsg::IEventListener {
protected:
    ColorScene() : db(std::make_unique<zsg::ColorDB>(&queue, renderer.api())) {
        for (unsigned type = 0; type < 14; ++type) {
            queue.subscribe(this, static_cast<zsg::EventType>(type));
        }
    }

    void TearDown() override {
        db.reset();
        renderer.processEvents();
        nyx::embedded::Ledger const ledger = renderer.ledger();
        EXPECT_EQ(ledger.blocks + ledger.arrays + ledger.alignedBlocks + ledger.texts, 0u);
        EXPECT_EQ(ledger.lockDepth, 0);
    }

    void onEvent(zsg::Event const* event) override {
        takeJournal();
        lines += "> " + EventTrace::line(*event) + '\n';
        if (reaction) {
            reaction(*event);
        }
    }

    /// What `action` does, one line each; a line break in front, for raw literals.
    template <class Action>
    std::string trace(Action&& action) {
        renderer.recordJournal(true);
        lines = "\n";
        action();
        takeJournal();
        renderer.recordJournal(false);
        return lines;
    }

    /// The same in one line, ", " between the calls.
    template <class Action>
    std::string calls(Action&& action) {
        std::istringstream text(trace(action));
        std::string told;
        for (std::string line; std::getline(text, line);) {
            if (!line.empty()) {
                told += (told.empty() ? "" : ", ") + line;
            }
        }
        return told;
    }

    nyx::ColorId color(std::string const& name, float red = 0) {
        return renderer.addColor(name, {red, 0, 0, 1});
    }
    nyx::ColorId multiColor(std::string const& name, std::vector<nyx::ColorId> const& subs) {
        return renderer.addMultiColor(name, subs, subs.empty() ? nyx::ColorId() : subs[0]);
    }
    /// Makes a material use the colour.
    void use(nyx::ColorId id) {
        renderer.bindColor(renderer.addMaterial("Material"), 1, "colour", id);
    }

    nyx::embedded::Renderer renderer;
    zsg::ZEventQueue queue;
    std::unique_ptr<zsg::ColorDB> db;
    std::function<void(zsg::Event const&)> reaction; ///< what listeners do during a post

private:
    void takeJournal() {
        for (std::string const& line : renderer.takeJournal()) {
            lines += line + '\n';
        }
    }

    std::string lines;
};
