#pragma once

#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/colors/IColorLinker.h"
#include "zsg/core/Event.h"
#include "zsg/core/IEventListener.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/core/SceneGraphPars.h"
#include "zsg/core/Subscription.h"

#include "nyxembedded/MaterialManager.h"
#include "nyxembedded/Renderer.h"
#include "zcore/ZUndoStack.h"

#include <QLoggingCategory>
#include <fuzzer/FuzzedDataProvider.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// Edits the colours of a renderer's scene as the input says, with ids that may name nothing.
class ColorFuzzer : public zsg::IEventListener {
public:
    ColorFuzzer(nyx::embedded::Renderer& scene, FuzzedDataProvider& data)
        : renderer(scene), input(data) {
        static bool const quiet = [] {
            QLoggingCategory::setFilterRules("zcore.undo=false\nzsg.colors=false");
            return true;
        }();
        static_cast<void>(quiet);
    }

    /// One operation of the controller, the database or the stack.
    void step() {
        ColorId const a = color();
        ColorId const b = color();
        ColorwayId const way(input.ConsumeIntegralInRange<unsigned>(0, 6));
        std::vector<ColorId> const some{color(), a, color(), b};
        nyx::Span<ColorId> const few(some.data(), input.ConsumeIntegralInRange<std::size_t>(0, 4));
        std::vector<zsg::MultiColorPair> const pairs{{a, b}, {color(), color()}};
        int const index = input.ConsumeIntegralInRange(-1, 6);
        bool const flag = input.ConsumeBool();
        std::string const name = input.ConsumeRandomLengthString(6);
        ZColor const value(input.ConsumeFloatingPointInRange(0.f, 1.f), 0, 0, 1, name);
        auto const merge = flag ? zsg::AllowForwardUndoMerge::Yes : zsg::AllowForwardUndoMerge::No;
        std::function<void()> const operations[] = {
            [&] { edit.addSubColor(a, value, index); },
            [&] { edit.addSubKColors(a, std::vector<ZColor>(2, value)); },
            [&] { edit.addOrSwitchSubColor(a, b, flag); },
            [&] { edit.linkColor(a, b); },
            [&] { edit.toggleMultiColor(a); },
            [&] { edit.setColor(a, value, merge); },
            [&] { edit.setDisplayName(a, name), edit.setDisplayName(way, name); },
            [&] { edit.removeSubColors(a, few); },
            [&] { edit.addSubColors(a, few, index, b); },
            [&] { edit.moveSubColors(a, few, index, b); },
            [&] { edit.setSubColors(a, few); },
            [&] { edit.setActiveSubColor(a, b); },
            [&] { edit.changeSubColor(a, b, color()); },
            [&] { edit.setFlags(a, 8, flag); },
            [&] { edit.unlinkSubColor(a, static_cast<unsigned>(index)); },
            [&] { edit.createColorway(name, pairs); },
            [&] { edit.applyColorway(way); },
            [&] { edit.setColors(way, pairs); },
            [&] { edit.addColors(way, pairs, index, flag); },
            [&] { edit.removeMultiColors(way, few); },
            [&] { edit.setDeleted(way, flag); },
            [&] { db->applyColorway(way), db->setActiveSubColor(pairs[0]); },
            [&] { db->handleColorwayActivated(way); },
            [&] { db->cloneRecursively(a); },
            [&] { import(a, value); },
            [&] { renderer.colorways().activate(way), renderer.processEvents(); },
            [&] { flag ? stack.undo() : stack.redo(); },
        };
        operations[input.ConsumeIntegralInRange<std::size_t>(0, std::size(operations) - 1)]();
    }

    void onEvent(zsg::Event const* event) override {
        if (auto const once = std::exchange(reaction, nullptr)) {
            try {
                once();
            } catch (...) {
                left_.emplace_back(event); // nobody deletes an event whose listener throws
                throw;
            }
        }
    }

    nyx::embedded::Renderer& renderer;
    FuzzedDataProvider& input;
    std::unique_ptr<zsg::ISceneGraph> root = zsg::ISceneGraph::create({}); ///< for its queue
    std::unique_ptr<zsg::ColorDB> db =
        std::make_unique<zsg::ColorDB>(root->eventQueue(), renderer.api());
    ZUndoStack stack;
    nyx::embedded::MaterialManager materials{renderer, &stack};
    zsg::ColorController edit{db.get(), &materials, &stack};
    std::function<void()> reaction; ///< once, during the next event

protected:
    using ColorId = nyx::ColorId;
    using ColorwayId = nyx::ColorwayId;

private:
    ColorId color() {
        auto const number = input.ConsumeIntegralInRange<unsigned>(0, 15);
        return number == 15 ? ColorId() : ColorId(number);
    }

    void import(ColorId id, ZColor const& value) {
        ZColorExt brought = db->colorFromId(id);
        brought.setColor(value, ZColorExt::NameOp::Keep);
        db->getColorLinker(&edit, nullptr)->importColor(brought);
    }

    std::vector<std::unique_ptr<zsg::Event const>> left_;
    zsg::Subscription subscription_{*root->eventQueue(),
                                    *this,
                                    {zsg::EventType::ColorCreated, zsg::EventType::ColorUpdated,
                                     zsg::EventType::ColorwayUpdated}};
};
