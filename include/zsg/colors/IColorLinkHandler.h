#pragma once

#include "zsg/Export.h"

#include "nyxrender/Ids.h"
#include "zcore/ZColorExt.h"

namespace zsg {

/// Decides what happens to a colour that comes into the scene under the name of another colour that
/// is in use with a different value. Main thread. Implemented by the application.
class ZSG_EXPORT IColorLinkHandler {
public:
    enum class Resolution {
        Link,   ///< use the colour that is already there
        Rename, ///< bring the colour in under a unique name
    };

    virtual ~IColorLinkHandler() = default;
    /// Asked once per conflict: the element at `index` of `color` has the name of `existing`, a
    /// colour of the scene.
    virtual Resolution resolveConflict(ZColorExt const& color, int index,
                                       nyx::ColorId existing) = 0;
};

} // namespace zsg
