#pragma once

#include "zsg/core/IEventListener.h"

#include <cstddef>

namespace bench {

/// Adds up the colours that it hears of. Its code stands in a file of its own, or a compiler that
/// sees it leaves the virtual call out and measures no delivery.
class Listener final : public zsg::IEventListener {
public:
    void onEvent(zsg::Event const* event) override;
    std::size_t sum = 0;
};

} // namespace bench
