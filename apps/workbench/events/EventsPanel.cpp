#include "workbench/events/EventsPanel.h"

#include "workbench/events/EventModel.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>
#include <utility>

namespace workbench {

EventsPanel::EventsPanel(Scene& scene, QWidget* parent)
    : Panel(parent),
      model_(new EventModel(scene, this)),
      view_(new QTableView(this)),
      filter_(new QLineEdit(this)),
      count_(new QLabel(this)) {
    filter_->setObjectName("eventFilter");
    filter_->setPlaceholderText(tr("find by event or number"));
    filter_->setAccessibleName(tr("Find by event or number"));
    filter_->setClearButtonEnabled(true);
    connect(filter_, &QLineEdit::textChanged, model_, &EventModel::setFilter);
    makeView();
    auto* const pause = new QToolButton(this);
    pause->setObjectName("pauseEvents");
    pause->setText(tr("Pause"));
    pause->setToolTip(tr("Hold the list still; what comes meanwhile is shown afterwards"));
    pause->setCheckable(true);
    connect(pause, &QToolButton::toggled, model_, &EventModel::setPaused);
    auto* const clear = new QToolButton(this);
    clear->setObjectName("clearEvents");
    clear->setText(tr("Clear"));
    connect(clear, &QToolButton::clicked, model_, &EventModel::clear);
    auto* const copyAction = new QAction(tr("Copy"), this);
    copyAction->setObjectName("copyEvents");
    copyAction->setToolTip(tr("Copy the selected rows, or all of them"));
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(copyAction, &QAction::triggered, this, &EventsPanel::copy);
    view_->addAction(copyAction);
    auto* const copyButton = new QToolButton(this);
    copyButton->setDefaultAction(copyAction);

    auto* const bar = new QHBoxLayout;
    bar->addWidget(filter_, 1);
    for (QToolButton* const button : {pause, clear, copyButton}) {
        button->setFocusPolicy(Qt::StrongFocus);
        bar->addWidget(button);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(view_, 1);
    layout->addWidget(count_);
    setFocusProxy(view_);
    connect(model_, &EventModel::counted, this, &EventsPanel::showCount);
    showCount();
}

void EventsPanel::makeView() {
    view_->setObjectName("eventList");
    view_->setAccessibleName(tr("Events"));
    // A table of fixed heights, because a tree lays all of its rows out again for each that comes.
    view_->setShowGrid(false);
    view_->setWordWrap(false);
    view_->setTabKeyNavigation(false);
    view_->verticalHeader()->hide();
    view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 5 / 4);
    view_->horizontalHeader()->setHighlightSections(false);
    view_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    view_->horizontalHeader()->setStretchLastSection(true);
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);
    view_->setModel(model_);
    int const letter = fontMetrics().averageCharWidth();
    std::pair<int, int> const columns[] = {
        {EventModel::IdColumn, 10}, {EventModel::TypeColumn, 28}, {EventModel::PayloadColumn, 14}};
    for (auto const& [column, letters] : columns) {
        view_->setColumnWidth(
            column, std::max(letters * letter, view_->horizontalHeader()->sectionSizeHint(column)));
    }
    // Whoever has scrolled up reads; the rest of the time the newest row is what one wants to see.
    connect(model_, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        QScrollBar const& bar = *view_->verticalScrollBar();
        following_ = bar.value() == bar.maximum();
    });
    connect(model_, &QAbstractItemModel::rowsInserted, this, [this] {
        if (following_) {
            view_->scrollToBottom();
        }
    });
}

int EventsPanel::rowCount() const { return model_->rowCount(); }

bool EventsPanel::select(QString const& text) {
    QModelIndexList const found = model_->match(model_->index(0, EventModel::TypeColumn),
                                                Qt::DisplayRole, text, 1, Qt::MatchExactly);
    if (!found.isEmpty()) {
        view_->setCurrentIndex(found.front());
    }
    return !found.isEmpty();
}

QWidget* EventsPanel::filterField() { return filter_; }

void EventsPanel::copy() {
    QList<int> rows;
    for (QModelIndex const& index : view_->selectionModel()->selectedRows()) {
        rows += index.row();
    }
    std::ranges::sort(rows);
    if (rows.isEmpty()) {
        rows.resize(model_->rowCount());
        std::iota(rows.begin(), rows.end(), 0);
    }
    QGuiApplication::clipboard()->setText(model_->text(rows));
}

void EventsPanel::showCount() {
    count_->setText(model_->dropped() == 0 ? tr("Events: %1").arg(model_->rowCount())
                                           : tr("Events: %1, older ones dropped: %2")
                                                 .arg(model_->rowCount())
                                                 .arg(model_->dropped()));
}

} // namespace workbench
