#include "zsg/colors/IColorEdits.h"

namespace zsg {

IColorExtEdit::~IColorExtEdit() = default;
IColorwayEdit::~IColorwayEdit() = default;
IColorSettingsEdit::~IColorSettingsEdit() = default;

} // namespace zsg
