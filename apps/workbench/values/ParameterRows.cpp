#include "workbench/values/ParameterRows.h"

#include "workbench/scene/Scene.h"
#include "workbench/values/ParameterRow.h"

#include <QGridLayout>
#include <QScrollBar>

#include <utility>

namespace workbench {

ParameterRows::ParameterRows(Scene& scene, ParameterWriter writer, QWidget* parent)
    : QScrollArea(parent), scene_(scene), writer_(std::move(writer)) {
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus); // the fields take it, and come into sight by themselves
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(&scene, &Scene::historyChanged, this, &ParameterRows::refresh);
    connect(&scene, &Scene::changed, this, &ParameterRows::refresh);
    connect(&scene, &Scene::commandsRan, this, &ParameterRows::refresh);
}

/// While this is whole: what a field ends may have the rows refreshed.
ParameterRows::~ParameterRows() { clear(); }

void ParameterRows::setRows(std::vector<ParameterItems> const& rows) {
    rows_.clear();
    auto* const inside = new QWidget;
    auto* const layout = new QGridLayout(inside);
    layout->setColumnStretch(1, 1);
    for (ParameterItems const& items : rows) {
        if (!items.empty() && !items.front().parameter.isNull()) {
            rows_.push_back(new ParameterRow(scene_, items, writer_, *layout, *inside));
        }
    }
    layout->setRowStretch(layout->rowCount(), 1);
    setWidget(inside); // the one before ends here, and with it what it edits
    inside->show();
    setMinimumWidth(inside->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width());
}

void ParameterRows::setItems(ParameterItems const& items) { setRows(commonParameters({items})); }

void ParameterRows::clear() {
    rows_.clear();
    delete takeWidget();
}

void ParameterRows::refresh() {
    for (ParameterRow* const row : rows_) {
        row->refresh();
    }
}

bool ParameterRows::select(QString const& text) {
    for (ParameterRow* const row : rows_) {
        if (row->parameter().displayName() == text || row->parameter().name() == text) {
            row->takeFocus();
            return true;
        }
    }
    return false;
}

} // namespace workbench
