#include "zsg/materials/IMaterialDescriptor.h"

namespace zsg {

IMaterialDescriptor::IMaterialDescriptor() = default;

IMaterialDescriptor::IMaterialDescriptor(IMaterialDescriptor const&) = default;

IMaterialDescriptor& IMaterialDescriptor::operator=(IMaterialDescriptor const&) = default;

IMaterialDescriptor::~IMaterialDescriptor() = default;

} // namespace zsg
