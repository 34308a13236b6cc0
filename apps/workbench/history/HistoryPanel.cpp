#include "workbench/history/HistoryPanel.h"

#include "workbench/history/HistoryModel.h"
#include "workbench/scene/Scene.h"

#include "zcore/ZUndoStack.h"

#include <QTreeView>
#include <QVBoxLayout>

namespace workbench {

HistoryPanel::HistoryPanel(Scene& scene, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      model_(new HistoryModel(scene, this)),
      view_(new QTreeView(this)) {
    // A tree, because a list view measures all rows again whenever one of them changes.
    view_->setObjectName("historyView");
    view_->setAccessibleName(tr("History"));
    view_->setHeaderHidden(true);
    view_->setRootIsDecorated(false);
    view_->setUniformRowHeights(true);
    view_->setModel(model_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &HistoryPanel::goToCurrent);
    connect(model_, &HistoryModel::updated, this, &HistoryPanel::showCurrent);
    showCurrent();
}

int HistoryPanel::rowCount() const { return model_->rowCount(); }

bool HistoryPanel::select(QString const& text) {
    QModelIndexList const found =
        model_->match(model_->index(0), Qt::ToolTipRole, text, 1, Qt::MatchExactly);
    if (!found.isEmpty()) {
        view_->setCurrentIndex(found.front());
    }
    return !found.isEmpty();
}

void HistoryPanel::showCurrent() {
    following_ = true;
    view_->setCurrentIndex(model_->index(model_->currentRow()));
    following_ = false;
}

void HistoryPanel::goToCurrent() {
    int const row = view_->currentIndex().row();
    if (following_ || model_->isUpdating() || row < 0 || row == scene_.undoStack().index()) {
        return;
    }
    scene_.goTo(row);
    showCurrent();
}

} // namespace workbench
