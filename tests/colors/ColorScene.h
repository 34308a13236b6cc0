#pragma once

#include "core/ZEventQueue.h"
#include "support/EventTrace.h"
#include "support/TestScene.h"
#include "support/lines.h"
#include "zsg/colors/ColorDB.h"

#include <memory>
#include <vector>

/// A colour database over an embedded renderer. trace() returns the calls to the renderer and,
/// marked with "> ", the events in between, in the order in which they happened.
class ColorScene : public TestScene, public zsg::IEventListener {
protected:
    using ColorId = nyx::ColorId;
    using ColorwayId = nyx::ColorwayId;

    ColorScene() : db(std::make_unique<zsg::ColorDB>(&queue, renderer.api())) {
        for (zsg::EventType const type : zsg::allEventTypes) {
            queue.subscribe(this, type);
        }
    }

    void TearDown() override {
        db.reset();
        renderer.processEvents(); // what is to follow a synchronisation outlives the database
    }

    void onEvent(zsg::Event const* event) override {
        lines += takeJournal() + "\n> " + EventTrace::line(*event) + '\n';
        if (reaction) {
            reaction(*event);
        }
    }

    /// What `action` does, one line each.
    std::string trace(std::function<void()> const& action) {
        takeJournal();
        lines.clear();
        action();
        return lines + takeJournal();
    }

    /// The same in one line, ", " between the calls.
    std::string calls(std::function<void()> const& action) {
        return selectLines(trace(action), ", ", [](std::string const&) { return true; });
    }

    ColorId color(std::string const& name, float red = 0) {
        return renderer.colors().add(name, {red, 0, 0, 1});
    }
    ColorId multiColor(std::string const& name, std::vector<ColorId> const& subs) {
        return renderer.colors().addMulti(name, subs, subs[0]);
    }
    /// Makes a material use the colour.
    void use(ColorId id) {
        renderer.materials().bindColor(renderer.materials().add("Material"), 1, "colour", id);
    }

    zsg::ZEventQueue queue;
    std::unique_ptr<zsg::ColorDB> db;
    std::function<void(zsg::Event const&)> reaction; ///< what listeners do during a post

private:
    std::string lines;
};

inline std::vector<nyx::ColorId> ids(auto... id) { return {nyx::ColorId(id)...}; }
inline std::vector<nyx::ColorId> list(nyx::Span<nyx::ColorId> ids) {
    return {ids.begin(), ids.end()};
}
