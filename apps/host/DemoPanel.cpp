#include "host/DemoPanel.h"

namespace app {

using zsg::Parameter;
using zsg::Type;

DemoPanel::DemoPanel() {
    auto const builder = [](char const* name, char const* label) {
        return Parameter::Builder(QString::fromLatin1(name), QString::fromLatin1(label));
    };
    parameters = {
        builder("size", "Size").setType(Type::Float).setHint("-spin,0,10,0.5-\n"),
        builder("opacity", "Opacity").setType(Type::Float).setHint("-range,0,100-\n"),
        builder("steps", "Steps").setType(Type::Integer).setHint("-limits,1,8-\n"),
        builder("broken", "Broken").setType(Type::Float).setHint("-spin,0,10-\n-range,0,5-\n"),
        builder("temperature", "Temperature").setType(Type::Float).setHint("-kelvin-"),
        builder("angle", "Angle").setType(Type::Float).setQuantity(zsg::Quantity::Angle),
        builder("percent", "Percent")
            .setType(Type::Float)
            .setHasLimits(true)
            .setMinimum(0)
            .setMaximum(100)
            .setQuantity(zsg::Quantity::Percent),
        builder("locked", "Locked").setType(Type::Boolean).setEnabled(false),
        builder("color", "Color").setType(Type::Color),
        builder("tint", "Tint").setType(Type::ColorAlpha),
        builder("name", "Name").setType(Type::String).setToolTip("What it is called"),
        builder("weave", "Weave").setType(Type::WeavePattern),
        builder("linked", "Linked")
            .setType(Type::Integer)
            .setFlags(Parameter::Bit9 | Parameter::Bit12),
        builder("surface", "Surface").setType(Type::ShaderSurface),
        builder("shader", "Shader").setType(Type::ShaderBase),
    };
}

} // namespace app
