#include "workbench/values/ParametersPanel.h"

#include "workbench/scene/Scene.h"
#include "workbench/values/ParameterRows.h"

#include <QItemSelectionModel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

namespace workbench {

ParametersPanel::ParametersPanel(Scene& scene, ValueStore& store, QString const& title,
                                 QList<zsg::Parameter> const& settings, QWidget* parent)
    : Panel(parent),
      store_(store),
      settings_(itemsOf(settings)),
      subjects_(new QListWidget(this)),
      rows_(new ParameterRows(scene, recordedWriter(scene), this)) {
    subjects_->setObjectName("parameterSubjects");
    subjects_->setAccessibleName(tr("Whose parameters"));
    subjects_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    subjects_->addItem(title);
    auto* const parts = new QSplitter(Qt::Vertical, this);
    parts->addWidget(subjects_);
    parts->addWidget(rows_);
    parts->setStretchFactor(1, 3);
    parts->setChildrenCollapsible(false);
    parts->setSizes({1, 3});
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(parts);
    setFocusProxy(subjects_);
    connect(subjects_, &QListWidget::itemSelectionChanged, this, &ParametersPanel::showSelected);
    connect(&scene, &Scene::historyChanged, this, &ParametersPanel::follow);
    connect(&scene, &Scene::commandsRan, this, &ParametersPanel::follow);
    follow();
    subjects_->setCurrentRow(0);
}

int ParametersPanel::rowCount() const { return rows_->rowCount(); }

bool ParametersPanel::select(QString const& text) {
    follow();
    auto const found = subjects_->findItems(text, Qt::MatchExactly);
    if (!found.isEmpty()) {
        subjects_->setCurrentItem(found.front(), QItemSelectionModel::ClearAndSelect);
        return true;
    }
    return rows_->select(text);
}

/// Names come and go with commands and with the history.
void ParametersPanel::follow() {
    auto const keys = store_.keys();
    std::vector<zsg::Type> types;
    types.reserve(keys.size());
    for (ValueStore::Key const& key : keys) {
        types.push_back(store_.item(key).parameter.type());
    }
    if (keys == keys_ && types == types_) {
        return;
    }
    QStringList selected;
    for (QListWidgetItem const* const item : subjects_->selectedItems()) {
        selected += item->text();
    }
    {
        QSignalBlocker const quiet(subjects_);
        while (subjects_->count() > 1) {
            delete subjects_->takeItem(1);
        }
        keys_ = keys;
        types_ = types;
        for (ValueStore::Key const& key : keys_) {
            subjects_->addItem(QString::fromStdString(key.name));
        }
        for (int i = 0; i < subjects_->count(); ++i) {
            subjects_->item(i)->setSelected(selected.contains(subjects_->item(i)->text()));
        }
    }
    showSelected();
}

void ParametersPanel::showSelected() {
    std::vector<ParameterItems> subjects;
    for (int i = 0; i < subjects_->count(); ++i) {
        if (subjects_->item(i)->isSelected()) {
            subjects.push_back(itemsAt(i));
        }
    }
    rows_->setRows(commonParameters(subjects));
}

ParameterItems ParametersPanel::itemsAt(int row) {
    if (row == 0) {
        return settings_;
    }
    return {store_.item(keys_[static_cast<std::size_t>(row - 1)])};
}

} // namespace workbench
