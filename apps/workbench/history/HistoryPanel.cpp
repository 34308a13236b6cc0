#include "workbench/history/HistoryPanel.h"

#include "workbench/history/HistoryModel.h"
#include "workbench/scene/Scene.h"

#include "zcore/ZUndoStack.h"

#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

namespace workbench {

HistoryPanel::HistoryPanel(Scene& scene, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      model_(new HistoryModel(scene, this)),
      view_(new QTableView(this)) {
    // A table, because lists and trees lay all of their rows out again for each that comes.
    view_->setObjectName("historyView");
    view_->setAccessibleName(tr("History"));
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setSelectionMode(QAbstractItemView::SingleSelection);
    view_->setTabKeyNavigation(false);
    view_->setShowGrid(false);
    view_->setWordWrap(false);
    view_->horizontalHeader()->hide();
    view_->horizontalHeader()->setStretchLastSection(true);
    view_->verticalHeader()->hide();
    view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 5 / 4);
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
    view_->setCurrentIndex(view_->model()->index(model_->currentRow(), 0));
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
