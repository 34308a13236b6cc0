#include "Listener.h"

#include "zsg/core/Events.h"

void bench::Listener::onEvent(zsg::Event const* event) {
    sum += static_cast<zsg::ColorUpdatedEvent const*>(event)->colorId().toUint();
}
