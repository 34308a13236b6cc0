#include "workbench/values/ValueField.h"

#include "workbench/values/ChoiceField.h"
#include "workbench/values/ColorField.h"
#include "workbench/values/CurveEditor.h"
#include "workbench/values/FieldBinding.h"
#include "workbench/values/GradientEditor.h"
#include "workbench/values/NumberField.h"
#include "workbench/values/NumbersField.h"
#include "workbench/values/SummaryField.h"
#include "workbench/values/TextField.h"
#include "workbench/values/ToggleField.h"
#include "workbench/values/WeaveEditor.h"

namespace workbench {

using zsg::Type;

std::unique_ptr<zsg::Variant> ValueField::wantedFor(zsg::Variant const& /*before*/) const {
    return nullptr;
}

ValueField::~ValueField() {
    // An edit that is going on ends now, and not when it hears that the widget is gone: what it
    // ends with would be shown here.
    qDeleteAll(findChildren<FieldBinding*>(Qt::FindDirectChildrenOnly));
    // A part that has the focus says that it is finished when it goes.
    for (QObject* const part : findChildren<QObject*>()) {
        part->disconnect(this);
    }
}

ValueField* makeEditor(Type type, QWidget* parent) {
    switch (type) {
    case Type::WeavePattern:
        return new WeaveEditor(parent);
    case Type::ColorGradient:
        return new GradientEditor(parent);
    case Type::AnimationCurve:
        return new CurveEditor(parent);
    default:
        return nullptr;
    }
}

ValueField* makeField(zsg::Parameter const& parameter, QWidget* parent) {
    switch (parameter.type()) {
    case Type::Boolean:
        return new ToggleField(parent);
    case Type::Integer:
    case Type::Float:
    case Type::Double:
        return new NumberField(parameter, parent);
    case Type::Float2:
    case Type::Float3:
    case Type::Double3:
    case Type::Matrix:
        return new NumbersField(parameter.type(), parent);
    case Type::Color:
    case Type::ColorAlpha:
        return new ColorField(parent);
    case Type::Enumerable:
        return new ChoiceField(parent);
    case Type::IntegerList:
    case Type::String:
    case Type::StringList:
    case Type::FilePath:
    case Type::FloatArray:
    case Type::AxaltaColor:
        return new TextField(parameter.type(), parent);
    case Type::WeavePattern:
    case Type::ColorGradient:
    case Type::AnimationCurve:
        // No default: the compiler asks for the field of a new type.
#define WORKBENCH_BARE(member, number, T) case Type::member:
        ZSG_BARE_TYPES(WORKBENCH_BARE)
#undef WORKBENCH_BARE
        break;
    }
    return new SummaryField(parent);
}

} // namespace workbench
