#include "painting/BrushScene.h"

#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyxScene.h"

#include <map>
#include <random>

namespace zsg {
namespace {

using nyx::painter::nyxBrush_node;

/// Copies of a graph in which a parameter may be missing.
class GraphCopy {
public:
    /// All of `node` but the parameter of that path key.
    nyxBrush_node* without(std::string const& missing, nyxBrush_node* node,
                           std::string const& prefix = {}) {
        HandMadeNode& copy = nodes_.emplace_back();
        for (auto* const param : node->params()) {
            std::string const key = prefix + param->name;
            if (key != missing) {
                auto& made = copy.add(param->name, param->type);
                made.value = param->value;
                made.hint = param->hint;
                if (param->type == nyxScene_api::TypeNode && param->value.node != nullptr) {
                    made.value.node = without(missing, param->value.node, key + '_');
                }
            }
        }
        return &copy;
    }

private:
    std::deque<HandMadeNode> nodes_;
};

class BrushGaps : public BrushScene {};

constexpr char const* fieldKeys[] = {
    "color_color",     "color_texture_filepath",   "basic_size_pen_pressure",
    "basic_space",     "basic_flow_value_percent", "basic_flow_pen_pressure",
    "basic_mode",      "basic_opacity_percent",    "basic_opacity_pen_pressure",
    "color_selection", "basic_hardness_percent",   "basic_stencil_filepath"};

TEST_F(BrushGaps, AMissingNodeParameterCostsOnlyItself) {
    QList<Parameter> const all = brush->parameters();
    int nodeParameters = 0;
    for (Parameter const& whole : all) {
        std::string const key = whole.name().toStdString();
        bool const isField = std::ranges::count(fieldKeys, key) != 0;
        nodeParameters += isField ? 0 : 1;
        messages.clear();
        GraphCopy copy;
        ZPainterBrush gap(copy.without(key, brush->brushNode()), api(), {});
        EXPECT_EQ(messages, isField ? "" : "Could not find bep for " + key + '\n');
        EXPECT_EQ(gap.parameters().size(), isField ? 32 : 31);
        EXPECT_EQ(gap.parameter(whole.name()).isValid(), isField);
        // Fields keep what they hold when their node parameter is the missing one.
        gap.parameter("basic_opacity_percent").setValue(40.0f);
        gap.parameter("basic_size_pen_pressure").setValue(true);
        gap.applyToNode();
        gap.parameter("basic_opacity_percent").setValue(30.0f);
        gap.updateFromNode();
        EXPECT_FLOAT_EQ(*gap.parameter("basic_opacity_percent").value<float>(),
                        key == "basic_opacity" ? 30.0f : 40.0f);
        EXPECT_EQ(gap.parameter("basic_size_pen_pressure").value<bool>(), true);
    }
    EXPECT_EQ(nodeParameters, 20);
}

TEST_F(BrushGaps, AnEmptyRootLeavesTheFields) {
    HandMadeNode root;
    for (nyxBrush_node* const node :
         {static_cast<nyxBrush_node*>(&root), static_cast<nyxBrush_node*>(nullptr)}) {
        messages.clear();
        ZPainterBrush empty(node, api(), {});
        EXPECT_EQ(std::ranges::count(messages, '\n'), 20);
        EXPECT_TRUE(messages.starts_with("Could not find bep for basic_pen_pressure_mode\n"
                                         "Could not find bep for color_shader\n"
                                         "Could not find bep for basic_rotation\n"));
        EXPECT_EQ(empty.parameters().size(), 12);
        for (char const* const key : fieldKeys) {
            EXPECT_TRUE(empty.parameter(key).isValid()) << key;
        }
        takeJournal();
        empty.applyToNode();
        empty.updateFromNode();
        EXPECT_EQ(takeJournal(), node ? "update_brush_node \"made by hand\"" : "");
        EXPECT_EQ(empty.rotation(), 0.0f);
        EXPECT_EQ(empty.stencilFilePath(), QString());
        EXPECT_EQ(empty.parameter("basic_hardness_percent").value<float>(), 60.0f);
    }
}

/// Sets parameters, applies and updates at random, beside a model of two plain tables.
TEST_F(BrushGaps, RandomEditsFollowAModelOfNodesAndFields) {
    struct Pair {
        char const* node;
        char const* field;
    };
    constexpr Pair pairs[] = {{"basic_hardness", "basic_hardness_percent"},
                              {"basic_opacity", "basic_opacity_percent"},
                              {"basic_flow_value", "basic_flow_value_percent"}};
    constexpr char const* onlyNode[] = {"basic_rotation", "basic_size_px_value",
                                        "basic_spacing_world", "basic_flow_jitter"};
    constexpr char const* pressures[] = {"basic_flow_pen_pressure", "basic_opacity_pen_pressure",
                                         "basic_size_pen_pressure"};
    std::map<std::string, float> nodes, fields;
    for (auto const& [inNode, inField] : pairs) {
        nodes[inNode] = *parameter(inNode).value<float>();
        fields[inField] = *parameter(inField).value<float>();
    }
    for (char const* const key : onlyNode) {
        nodes[key] = *parameter(key).value<float>();
    }
    int mode = 0;
    unsigned bits = 0;

    std::mt19937 random(20);
    auto const below = [&random](unsigned n) { return static_cast<unsigned>(random() % n); };
    for (int step = 0; step < 3000; ++step) {
        auto const number = static_cast<float>(below(1000)) / 8.0f;
        switch (below(7)) {
        case 0: {
            auto const& pair = pairs[below(3)];
            EXPECT_EQ(parameter(pair.node).setValue(number), nodes[pair.node] != number);
            nodes[pair.node] = number;
            break;
        }
        case 1: {
            auto const& pair = pairs[below(3)];
            EXPECT_EQ(parameter(pair.field).setValue(number), fields[pair.field] != number);
            fields[pair.field] = number;
            break;
        }
        case 2: {
            char const* const key = onlyNode[below(4)];
            parameter(key).setValue(number);
            nodes[key] = number;
            break;
        }
        case 3: {
            unsigned const which = below(3);
            bool const on = below(2) != 0;
            parameter(pressures[which]).setValue(on);
            bits = (bits & ~(1u << which)) | (on ? 1u << which : 0u);
            break;
        }
        case 4:
            mode = static_cast<int>(below(8));
            parameter("basic_pen_pressure_mode").setValue(mode);
            break;
        case 5:
            brush->applyToNode();
            for (auto const& [inNode, inField] : pairs) {
                nodes[inNode] = fields[inField] / 100.0f;
            }
            mode = static_cast<int>(bits);
            break;
        default:
            brush->updateFromNode();
            for (auto const& [inNode, inField] : pairs) {
                fields[inField] = 100.0f * nodes[inNode];
            }
            bits = static_cast<unsigned>(mode);
        }
        for (auto const* const table : {&nodes, &fields}) {
            for (auto const& [key, expected] : *table) {
                ASSERT_EQ(parameter(key.c_str()).value<float>(), expected) << key << step;
            }
        }
        ASSERT_EQ(parameter("basic_pen_pressure_mode").value<int>(), mode);
        for (unsigned i = 0; i < 3; ++i) {
            ASSERT_EQ(parameter(pressures[i]).value<bool>(), (bits >> i & 1) != 0) << step;
        }
    }
}

} // namespace
} // namespace zsg
