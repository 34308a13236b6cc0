#pragma once

#include "painting/ZPainterBrush.h"
#include "painting/createBrush.h"
#include "support/TestScene.h"

#include "nyxembedded/Warnings.h"
#include "nyxrender/nyxBrush_node.h"
#include "nyxrender/nyxScene_api.h"

#include <QLoggingCategory>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A node of a graph that a test puts together.
class HandMadeNode final : public nyx::painter::nyxBrush_node {
public:
    using Param = nyx::painter::nyxBrush_param;

    [[nodiscard]] char const* kind() const override { return "made by hand"; }
    [[nodiscard]] nyx::Span<Param*> params() const override { return pointers; }

    Param& add(char const* name, int type) {
        Param& param = records.emplace_back();
        param.name = name;
        param.type = type;
        pointers.push_back(&param);
        return param;
    }
    void link(char const* name, nyxBrush_node* node) {
        add(name, nyxScene_api::TypeNode).value.node = node;
    }

    std::deque<Param> records;
    std::vector<Param*> pointers;
};

/// An embedded renderer with a brush over the default graph, and the debug messages of painting.
class BrushScene : public TestScene {
protected:
    using Param = nyx::painter::nyxBrush_param;
    using Value = Param::Value;

    BrushScene() {
        brush = zsg::createBrush(api(), 20, nyx::MaterialId(7));
        nyx::embedded::setWarningHandler([this](std::string_view text) { warnings += text; });
        current = &messages;
        previous =
            qInstallMessageHandler([](QtMsgType, QMessageLogContext const&, QString const& text) {
                *current += text.toStdString() + '\n';
            });
    }
    ~BrushScene() override {
        qInstallMessageHandler(previous);
        nyx::embedded::setWarningHandler({});
    }

    [[nodiscard]] zsg::Parameter parameter(char const* name) const {
        return brush->parameter(QString::fromLatin1(name));
    }
    void set(char const* name, auto const& value) { parameter(name).setValue(value); }
    void select(char const* name, int id) {
        zsg::Enumerable choice = *parameter(name).value<zsg::Enumerable>();
        choice.setSelection(id);
        set(name, choice);
    }
    /// The value of a record of the graph, which must have it.
    Value& node(char const* key) {
        return zsg::BrushNodeIndex(brush->brushNode()).find(key)->value;
    }

    std::unique_ptr<zsg::IPainterBrush> brush;
    std::string messages; ///< of the library
    std::string warnings; ///< of the renderer

private:
    static inline std::string* current = nullptr;
    QtMessageHandler previous;
};
