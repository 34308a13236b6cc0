#include "workbench/lights/LightLayersPanel.h"

#include "workbench/lights/CheckDelegate.h"
#include "workbench/lights/LightLayerModel.h"
#include "workbench/lights/lightEdits.h"
#include "workbench/scene/FlowLayout.h"
#include "workbench/scene/NameDelegate.h"
#include "workbench/scene/Scene.h"

#include <QAction>
#include <QHeaderView>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace workbench {

LightLayersPanel::LightLayersPanel(Scene& scene, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      model_(new LightLayerModel(scene, this)),
      view_(new QTreeView(this)) {
    view_->setObjectName("lightLayerList");
    view_->setAccessibleName(tr("Light Layers"));
    view_->setModel(model_);
    view_->setRootIsDecorated(false);
    view_->setUniformRowHeights(true);
    view_->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    view_->setItemDelegate(new NameDelegate(view_));
    view_->setItemDelegateForColumn(LightLayerModel::InvertedColumn, new CheckDelegate(view_));
    view_->header()->setStretchLastSection(false);
    view_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    view_->header()->setSectionResizeMode(LightLayerModel::NameColumn, QHeaderView::Stretch);
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);
    setFocusProxy(view_);
    makeActions();
    connect(&scene, &Scene::changed, this, &LightLayersPanel::update);
    update();
}

void LightLayersPanel::makeActions() {
    auto* const bar = new FlowLayout;
    making_ += makeAction(
        tr("New"), "newLightLayer", QKeySequence("Ctrl+N"),
        [this] { setCurrent(createLightLayer(scene_)); }, bar);
    making_ += makeAction(
        tr("Duplicate"), "duplicateLightLayer", QKeySequence("Ctrl+D"),
        [this] { setCurrent(cloneLightLayer(scene_, current())); }, bar);
    makeAction(tr("Rename"), "renameLightLayer", QKeySequence("F2"), [this] {
        view_->edit(model_->index(view_->currentIndex().row(), LightLayerModel::NameColumn));
    });
    makeAction(
        tr("Delete or Restore"), "deleteLightLayer", QKeySequence::Delete,
        [this] {
            deleteOrRestoreLightLayer(scene_, current());
            scene_.flush();
        },
        bar);
    makeAction(
        tr("Put Selected Lights Here"), "assignLights", QKeySequence("Ctrl+Return"),
        [this] {
            if (current().isValid()) {
                emit assignmentWanted(current());
            }
        },
        bar);
    auto* const deleted = new QToolButton(this);
    deleted->setObjectName("showDeletedLightLayers");
    deleted->setText(tr("Show Deleted"));
    deleted->setCheckable(true);
    connect(deleted, &QToolButton::toggled, model_, &LightLayerModel::setShowDeleted);
    bar->addWidget(deleted);
    view_->addActions(actions());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(view_, 1);
}

nyx::LightLayerId LightLayersPanel::current() const {
    return model_->layerAt(view_->currentIndex().row());
}

void LightLayersPanel::setCurrent(nyx::LightLayerId layer) {
    scene_.flush();
    if (int const row = model_->rowOf(layer); row >= 0) {
        view_->setCurrentIndex(model_->index(row, LightLayerModel::NameColumn));
    }
}

void LightLayersPanel::update() {
    auto const reason = noMoreLightLayers(scene_);
    for (QAction* const action : making_) {
        action->setEnabled(!reason);
        action->setToolTip(reason.value_or(action->text()));
    }
}

int LightLayersPanel::rowCount() const { return model_->rowCount(); }

bool LightLayersPanel::select(QString const& text) {
    auto const found = model_->match(model_->index(0, LightLayerModel::NameColumn), Qt::DisplayRole,
                                     text, 1, Qt::MatchExactly);
    if (!found.isEmpty()) {
        view_->setCurrentIndex(found.front());
    }
    return !found.isEmpty();
}

} // namespace workbench
