#pragma once

#include "zsg/values/Parameter.h"
#include "zsg/values/ValueVariant.h"

#include <memory>
#include <vector>

namespace workbench {

/// A copy of what the parameter holds; null when it holds nothing that can be edited.
[[nodiscard]] std::unique_ptr<zsg::Variant> valueOf(zsg::Parameter const& parameter);

/// Makes the parameter hold the value. An option that is chosen counts, although setting one alone
/// is no change to a holder. Values of another type are ignored.
void assign(zsg::Parameter parameter, zsg::Variant const& value);

/// Whether two values look the same to a person: the chosen option counts.
[[nodiscard]] bool isSame(zsg::Variant const& a, zsg::Variant const& b);

template <zsg::ValueType T>
[[nodiscard]] std::unique_ptr<zsg::Variant> makeValue(T const& value) {
    return std::make_unique<zsg::ValueVariant<T>>(value);
}

/// A parameter to edit, with the value that Reset brings back.
struct ParameterItem {
    zsg::Parameter parameter;
    std::shared_ptr<zsg::Variant const> original; ///< null when there is no value
};
using ParameterItems = std::vector<ParameterItem>;

/// The parameters with what they hold now as what Reset brings back.
[[nodiscard]] ParameterItems itemsOf(QList<zsg::Parameter> const& parameters);

/// What several subjects have in common, by name and type, in the order of the first one: a list of
/// the subjects' parameters for each row.
[[nodiscard]] std::vector<ParameterItems>
commonParameters(std::vector<ParameterItems> const& subjects);

} // namespace workbench
