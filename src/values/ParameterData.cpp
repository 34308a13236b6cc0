#include "zsg/values/ParameterData.h"

#include "zsg/values/Variant.h"

namespace zsg {

ParameterData::ParameterData() = default;

ParameterData::ParameterData(ParameterData const& other) = default;

ParameterData& ParameterData::operator=(ParameterData const& other) = default;

ParameterData::~ParameterData() { delete value; }

} // namespace zsg
