#include "materials/ZCMFManager.h"

#include "core/postEvent.h"
#include "zsg/core/Events.h"
#include "zsg/core/ISceneGraph.h"

#include <utility>

namespace zsg {

namespace {

ZCMFSchema builtIn() {
    ZCMFSchema schema;
    schema.schemaName = QStringLiteral("default");
    auto const add = [&schema](QString name, ZCMFAttributeKind kind = ZCMFAttributeKind::Text) {
        schema.attributes.push_back({std::move(name), true, kind, {}});
    };
    add(QStringLiteral("Name"));
    add(QStringLiteral("Color"));
    add(QStringLiteral("Finish"));
    add(QStringLiteral("Material"));
    add(QStringLiteral("Vendor"));
    add(QStringLiteral("Reference Image"), ZCMFAttributeKind::Image);
    add(QStringLiteral("Notes"));
    return schema;
}

} // namespace

ZCMFManager::ZCMFManager(ISceneGraph* root) : current_(builtIn()), root_(root) {}

ZCMFManager::~ZCMFManager() = default;

ZCMFSchema const& ZCMFManager::schema() const { return current_; }

void ZCMFManager::setSchema(ZCMFSchema const& schema) {
    if (&schema != &current_) {
        current_ = ZCMFSchema(schema); // copied first: the old one stays when that fails
    }
    if (root_) {
        post(root_->eventQueue(), std::make_unique<CMFSchemaChangedEvent>());
    }
}

} // namespace zsg
