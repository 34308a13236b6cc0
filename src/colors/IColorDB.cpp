#include "zsg/colors/IColorDB.h"

namespace zsg {

IColorDB::~IColorDB() = default;

} // namespace zsg
