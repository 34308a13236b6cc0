#pragma once

#include "zsg/values/Parameter.h"

#include <vector>

namespace app {

/// A panel of settings as an application shows it: every kind of flag, limit and hint once.
struct DemoPanel {
    DemoPanel();

    std::vector<zsg::Parameter> parameters;
};

} // namespace app
