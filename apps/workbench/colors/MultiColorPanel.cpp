#include "workbench/colors/MultiColorPanel.h"

#include "workbench/colors/ColorDelegate.h"
#include "workbench/colors/SubColorModel.h"
#include "workbench/colors/swatch.h"
#include "workbench/scene/FlowLayout.h"
#include "workbench/scene/Scene.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"

#include <QLabel>
#include <QListView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace workbench {

MultiColorPanel::MultiColorPanel(Scene& scene, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      model_(new SubColorModel(scene, this)),
      view_(new QListView(this)),
      title_(new QLabel(this)) {
    title_->setTextFormat(Qt::PlainText);
    title_->setWordWrap(true);
    title_->setMargin(fontMetrics().height() / 4);
    view_->setObjectName("subColours");
    view_->setAccessibleName(tr("Sub-colours"));
    view_->setModel(model_);
    view_->setUniformItemSizes(true);
    view_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view_->setDragDropMode(QAbstractItemView::DragDrop);
    view_->setDefaultDropAction(Qt::MoveAction);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* const delegate = new ColorDelegate(
        scene, ColorDelegate::Form::Row,
        [this](QModelIndex const& index) { return model_->idAt(index); }, view_);
    delegate->setMarked(
        [](QModelIndex const& index) { return index.data(SubColorModel::ActiveRole).toBool(); });
    view_->setItemDelegate(delegate);
    connect(view_, &QAbstractItemView::activated, this, &MultiColorPanel::activate);
    setFocusProxy(view_);

    auto* const bar = new FlowLayout;
    makeAction(
        tr("Activate"), "activateSub", QKeySequence("Ctrl+Return"), [this] { activate(); }, bar);
    makeAction(
        tr("Up"), "subUp", QKeySequence("Alt+Up"), [this] { move(-1); }, bar);
    makeAction(
        tr("Down"), "subDown", QKeySequence("Alt+Down"), [this] { move(1); }, bar);
    makeAction(
        tr("Remove"), "removeSub", QKeySequence::Delete, [this] { removeSelected(); }, bar);
    auto* const lock = new QToolButton(this);
    lock->setObjectName("lockSubs");
    lock->setText(tr("Lock"));
    lock->setCheckable(true);
    lock->setToolTip(tr("Keep the order and the list as they are"));
    connect(lock, &QToolButton::toggled, model_, &SubColorModel::setLocked);
    bar->addWidget(lock);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title_);
    layout->addWidget(view_, 1);
    layout->addLayout(bar);
    connect(&scene, &Scene::changed, this, &MultiColorPanel::showTitle);
    showTitle();
}

void MultiColorPanel::setColor(nyx::ColorId id) {
    if (swatchOf(scene_.colorDB(), id).isMulti) {
        model_->setMulti(id);
        showTitle();
    }
}

int MultiColorPanel::rowCount() const { return model_->rowCount(); }

bool MultiColorPanel::select(QString const& text) {
    auto const found = model_->match(model_->index(0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
    if (!found.isEmpty()) {
        view_->setCurrentIndex(found.front());
    }
    return !found.isEmpty();
}

void MultiColorPanel::showTitle() {
    Swatch const swatch = swatchOf(scene_.colorDB(), model_->multi());
    title_->setText(swatch.isMulti ? shownName(swatch.name)
                                   : tr("Select a multi-colour to see what it holds."));
}

void MultiColorPanel::activate() {
    nyx::ColorId const sub = model_->idAt(view_->currentIndex());
    if (sub.isValid() && view_->currentIndex().row() != model_->activeRow()) {
        scene_.endDrags();
        scene_.colorController()->setActiveSubColor(model_->multi(), sub);
    }
}

void MultiColorPanel::removeSelected() {
    std::vector<nyx::ColorId> subs;
    for (QModelIndex const& index : view_->selectionModel()->selectedIndexes()) {
        subs.push_back(model_->idAt(index));
    }
    if (subs.empty()) {
        return;
    }
    if (model_->isLocked()) {
        scene_.say(tr("The multi-colour is locked."));
        return;
    }
    scene_.endDrags();
    scene_.colorController()->removeSubColors(model_->multi(), subs);
}

void MultiColorPanel::move(int step) {
    int const row = view_->currentIndex().row();
    int const target = row + step;
    if (row < 0 || target < 0 || target >= model_->rowCount() || model_->isLocked()) {
        return;
    }
    scene_.endDrags();
    nyx::ColorId const sub = model_->idAt(view_->currentIndex());
    // Places are counted with the colour still in the list.
    scene_.colorController()->moveSubColors(model_->multi(), {sub}, step < 0 ? target : target + 1,
                                            {});
    scene_.flush();
    view_->setCurrentIndex(model_->index(target));
}

} // namespace workbench
