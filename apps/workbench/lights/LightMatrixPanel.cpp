#include "workbench/lights/LightMatrixPanel.h"

#include "workbench/lights/CheckDelegate.h"
#include "workbench/lights/LightMatrixModel.h"
#include "workbench/lights/lightEdits.h"
#include "workbench/scene/Scene.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

namespace workbench {

LightMatrixPanel::LightMatrixPanel(Scene& scene, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      model_(new LightMatrixModel(scene, this)),
      view_(new QTableView(this)),
      filter_(new QLineEdit(this)) {
    filter_->setObjectName("lightFilter");
    filter_->setPlaceholderText(tr("find by name"));
    filter_->setAccessibleName(tr("Find by name"));
    filter_->setClearButtonEnabled(true);
    connect(filter_, &QLineEdit::textChanged, model_, &LightMatrixModel::setFilter);
    makeView();
    auto* const bar = new QHBoxLayout;
    bar->addWidget(filter_, 1);
    auto* const toggle = makeAction(
        tr("In or Out"), "toggleLights", QKeySequence("Space"),
        [this] {
            model_->toggle(view_->selectionModel()->selectedIndexes(), view_->currentIndex());
            scene_.flush();
        },
        bar);
    toggle->setToolTip(tr("Put the selected lights into the layer, or take them out (Space)"));
    moveToNew_ = makeAction(
        tr("Move to New Layer"), "moveLightsToNewLayer", QKeySequence("Ctrl+Shift+N"),
        [this] {
            moveToNewLightLayer(scene_, selectedLights());
            scene_.flush();
        },
        bar);
    // A space that is typed into the filter is one.
    toggle->setShortcutContext(Qt::WidgetShortcut);
    view_->addActions(actions());
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(view_, 1);
    connect(&scene, &Scene::changed, this, &LightMatrixPanel::update);
    update();
}

void LightMatrixPanel::makeView() {
    view_->setObjectName("lightMatrix");
    view_->setAccessibleName(tr("Lights and Layers"));
    view_->setModel(model_);
    view_->setItemDelegate(new CheckDelegate(view_));
    view_->setTabKeyNavigation(false);
    // Fixed sizes: a table of any size asks for what is seen only.
    int const line = fontMetrics().height();
    view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_->verticalHeader()->setDefaultSectionSize(3 * line / 2);
    view_->verticalHeader()->setFixedWidth(14 * line);
    view_->verticalHeader()->setHighlightSections(false);
    view_->horizontalHeader()->setDefaultSectionSize(7 * line);
    view_->horizontalHeader()->setHighlightSections(false);
    setFocusProxy(view_);
}

void LightMatrixPanel::update() {
    auto const reason = noMoreLightLayers(scene_);
    moveToNew_->setEnabled(!reason);
    moveToNew_->setToolTip(reason.value_or(moveToNew_->text()));
}

std::vector<nyx::ObjectId> LightMatrixPanel::selectedLights() const {
    std::vector<int> rows;
    for (QModelIndex const& index : view_->selectionModel()->selectedIndexes()) {
        rows.push_back(index.row());
    }
    return model_->lightsOf(std::move(rows));
}

void LightMatrixPanel::assignSelected(nyx::LightLayerId layer) {
    auto const lights = selectedLights();
    if (lights.empty()) {
        scene_.say(tr("No light is selected in the matrix."));
    }
    moveLights(scene_, lights, layer);
    scene_.flush();
}

int LightMatrixPanel::rowCount() const { return model_->rowCount(); }

bool LightMatrixPanel::select(QString const& text) {
    for (int row = 0; row < model_->rowCount(); ++row) {
        if (model_->headerData(row, Qt::Vertical, Qt::AccessibleTextRole) == text) {
            view_->setCurrentIndex(model_->index(row, 0));
            return true;
        }
    }
    return false;
}

QWidget* LightMatrixPanel::filterField() { return filter_; }

} // namespace workbench
