#include "nyxembedded/Renderer.h"

#include "api/Notifications.h"
#include "api/Painter.h"
#include "api/RtApi.h"
#include "api/SceneApi.h"
#include "scenefile/SceneDump.h"
#include "scenefile/SceneFile.h"
#include "store/Accounts.h"
#include "store/LightLayers.h"
#include "store/Scene.h"
#include "store/SceneLights.h"
#include "store/StringPool.h"

#include "nyxembedded/Painting.h"

#include <cmath>
#include <utility>

#if defined(__GLIBC__)
    #include <malloc.h>
#endif

namespace nyx::embedded {

namespace {

/// Reading a big scene needs several times its memory; the allocator keeps that unless it is asked.
void returnMemory() {
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

} // namespace

class Renderer::Impl {
public:
    Impl() {
        scene.setApi(&sceneApi);
        scene.setPainterFactory(&painters);
    }

    nyxScene scene;
    SceneApi sceneApi{scene};
    PainterFactory painters{scene};
    Notifications notifications{scene.faults()};
    RtApi api{scene, notifications};
    Colors colors{scene.colors(), notifications};
    Colorways colorways{scene.colorways(), scene.colors(), notifications};
    Materials materials{scene.materials(), scene.items()};
    Items items{scene.items(), scene.lightLayers()};
    Painting painting{scene.surfaces()};

    void replaceScene(nyxScene& fresh, std::function<void()> const& beforeReplacing) {
        if (beforeReplacing) {
            beforeReplacing();
        }
        scene.takeContents(fresh);
        notifications.forgetMessages(); // they name records that are no more
        api.setUnmodified();
        colors.announce();
    }
};

Renderer::Renderer() : impl_(std::make_unique<Impl>()) {}

Renderer::~Renderer() = default;

nyxRT_api* Renderer::api() { return &impl_->api; }

nyxScene* Renderer::scene() { return &impl_->scene; }

Colors& Renderer::colors() { return impl_->colors; }
Colors const& Renderer::colors() const { return impl_->colors; }

Colorways& Renderer::colorways() { return impl_->colorways; }
Colorways const& Renderer::colorways() const { return impl_->colorways; }

Materials& Renderer::materials() { return impl_->materials; }
Materials const& Renderer::materials() const { return impl_->materials; }

Items& Renderer::items() { return impl_->items; }
Items const& Renderer::items() const { return impl_->items; }

nyxLight_layer_db& Renderer::lightLayers() { return *impl_->scene.lights().database(); }

Painting& Renderer::painting() { return impl_->painting; }

void Renderer::setEnvironmentLightMask(std::uint32_t mask) {
    impl_->scene.lightLayers().setEnvironmentMask(mask);
}

void Renderer::setUnitScale(double scale) {
    impl_->scene.setUnitScale(std::isfinite(scale) && scale > 0 ? scale : 0);
}

void Renderer::setMessageHandler(std::function<void(nyxMessage const&)> handler) {
    impl_->notifications.setHandler(std::move(handler));
}

void Renderer::processEvents() { impl_->notifications.processEvents(); }

Journal& Renderer::journal() { return impl_->scene.journal(); }

std::string Renderer::dump() const { return dumpScene(impl_->scene); }

Faults& Renderer::faults() { return impl_->scene.faults(); }

Ledger Renderer::ledger() const {
    Ledger ledger;
    ledger.blocks = impl_->api.blocksOnLoan();
    ledger.arrays = accounts().arrays;
    ledger.alignedBlocks = accounts().alignedBlocks;
    ledger.texts = accounts().texts;
    ledger.painters = impl_->painters.count();
    ledger.lockDepth = impl_->api.lockDepth();
    ledger.strings = impl_->scene.strings().count();
    return ledger;
}

bool Renderer::isModified() const { return impl_->api.isModified(); }

unsigned Renderer::refreshCount() const { return impl_->api.refreshCount(); }

std::string Renderer::loadScene(std::string const& path,
                                std::function<void()> const& beforeReplacing) {
    std::string error;
    {
        nyxScene fresh;
        error = loadSceneFile(fresh, path);
        if (error.empty()) {
            impl_->replaceScene(fresh, beforeReplacing);
        }
    }
    returnMemory();
    return error;
}

std::string Renderer::loadSceneText(std::string const& json,
                                    std::function<void()> const& beforeReplacing) {
    std::string error;
    {
        nyxScene fresh;
        error = embedded::loadSceneText(fresh, json);
        if (error.empty()) {
            impl_->replaceScene(fresh, beforeReplacing);
        }
    }
    returnMemory();
    return error;
}

std::string Renderer::saveScene(std::string const& path) {
    std::string error = saveSceneFile(impl_->scene, path, impl_->scene.faults().failSaveStep);
    if (error.empty()) {
        impl_->api.setUnmodified();
    }
    return error;
}

std::string Renderer::saveSceneText() const { return embedded::saveSceneText(impl_->scene); }

} // namespace nyx::embedded
