#pragma once

#include "zsg/Export.h"
#include "zsg/values/Parameter.h"

namespace zsg {

/// What the copies of one Parameter share.
///
/// Owns `value` and deletes it. Copying is shallow all the same: a copy points at the same holder,
/// so whoever copies one must set `value` to null in one of the two before either is destroyed.
class ZSG_EXPORT ParameterData {
public:
    ParameterData();
    ParameterData(ParameterData const& other);
    ParameterData& operator=(ParameterData const& other);
    virtual ~ParameterData();

    QString name;
    QString displayName;
    QString toolTip;
    Type type = Type::Null;
    bool modified = false; ///< the value changed since construction
    Quantity quantity = Quantity::None;
    Variant* value = nullptr;
    bool hasLimits = false;
    float minimum = 0; ///< meaningful only with hasLimits, as is maximum
    float maximum = 0;
    Parameter::Flags flags = Parameter::NoFlags;
    char const* hint = nullptr; ///< borrowed
    QVariant metaData;
};

} // namespace zsg
