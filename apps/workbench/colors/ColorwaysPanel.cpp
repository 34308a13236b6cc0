#include "workbench/colors/ColorwaysPanel.h"

#include "workbench/colors/ColorDelegate.h"
#include "workbench/colors/ColorwayModel.h"
#include "workbench/colors/swatch.h"
#include "workbench/scene/Scene.h"
#include "workbench/scene/ScopedMacro.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QMenu>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace workbench {

ColorwaysPanel::ColorwaysPanel(Scene& scene, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      model_(new ColorwayModel(scene, this)),
      view_(new QTableView(this)) {
    view_->setObjectName("colorwayTable");
    view_->setAccessibleName(tr("Colorways"));
    view_->setModel(model_);
    view_->setSelectionMode(QAbstractItemView::SingleSelection);
    view_->setTabKeyNavigation(false);
    view_->setItemDelegate(new ColorDelegate(
        scene, ColorDelegate::Form::Cell,
        [this](QModelIndex const& index) { return model_->subAt(index); }, view_));
    // Fixed sizes: a table of any size asks for what is seen only.
    int const line = fontMetrics().height();
    view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_->verticalHeader()->setDefaultSectionSize(2 * line);
    view_->verticalHeader()->setFixedWidth(9 * line);
    view_->horizontalHeader()->setDefaultSectionSize(9 * line);
    view_->horizontalHeader()->setHighlightSections(false);
    view_->horizontalHeader()->setContextMenuPolicy(Qt::ActionsContextMenu);
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(view_, &QAbstractItemView::activated, this, &ColorwaysPanel::chooseForCell);
    setFocusProxy(view_);
    auto* const bar = new QHBoxLayout;
    makeActions(*bar);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(view_, 1);
}

void ColorwaysPanel::makeActions(QHBoxLayout& bar) {
    auto const add = [&](QString const& text, char const* name, QKeySequence const& keys,
                         std::function<void()> const& act) {
        QAction* const action = makeAction(text, name, keys, act, &bar);
        view_->addAction(action);
        view_->horizontalHeader()->addAction(action);
    };
    add(tr("Apply"), "applyColorway", QKeySequence("Ctrl+Return"), [this] { apply(); });
    add(tr("New"), "newColorway", QKeySequence("Ctrl+N"), [this] { create(false); });
    add(tr("Duplicate"), "duplicateColorway", QKeySequence("Ctrl+D"), [this] { create(true); });
    add(tr("Rename"), "renameColorway", QKeySequence("F2"), [this] { rename(); });
    add(tr("Delete or Restore"), "deleteColorway", QKeySequence::Delete,
        [this] { toggleDeleted(); });
    auto* const deleted = new QToolButton(this);
    deleted->setObjectName("showDeletedColorways");
    deleted->setText(tr("Show Deleted"));
    deleted->setCheckable(true);
    connect(deleted, &QToolButton::toggled, model_, &ColorwayModel::setShowDeleted);
    bar.addStretch();
    bar.addWidget(deleted);
}

int ColorwaysPanel::rowCount() const { return model_->rowCount(); }

bool ColorwaysPanel::select(QString const& text) {
    for (int i = 0; i < model_->columnCount(); ++i) {
        if (model_->headerData(i, Qt::Horizontal, Qt::DisplayRole) == text) {
            view_->setCurrentIndex(model_->index(0, i));
            return true;
        }
    }
    return false;
}

int ColorwaysPanel::column() const { return view_->currentIndex().column(); }

nyx::ColorwayId ColorwaysPanel::current() const { return model_->colorwayAt(column()); }

void ColorwaysPanel::setCell(QModelIndex const& cell, nyx::ColorId sub) {
    nyx::ColorwayId const colorway = model_->colorwayAt(cell.column());
    nyx::ColorId const multi = model_->multiAt(cell.row());
    if (!scene_.colorController() || !colorway.isValid() || sub == model_->subAt(cell)) {
        return;
    }
    scene_.endDrags();
    if (sub.isValid()) {
        scene_.colorController()->addColors(colorway, {zsg::MultiColorPair{multi, sub}}, -1, true);
    } else {
        scene_.colorController()->removeMultiColors(colorway, {multi});
    }
}

void ColorwaysPanel::chooseForCell(QModelIndex const& cell) {
    zsg::ColorDB* const db = scene_.colorDB();
    auto const* const edit = db ? db->getColorParameters(model_->multiAt(cell.row())) : nullptr;
    if (!edit) {
        return;
    }
    auto const subs = edit->subColors();
    std::vector<nyx::ColorId> const ids(subs.begin(), subs.end());
    QMenu menu;
    for (nyx::ColorId const id : ids) {
        Swatch const swatch = swatchOf(db, id);
        QAction* const action = menu.addAction(swatchIcon(swatch, fontMetrics().height()),
                                               shownName(swatch.name).replace('&', "&&"));
        action->setCheckable(true);
        action->setChecked(id == model_->subAt(cell));
        connect(action, &QAction::triggered, this, [this, cell, id] { setCell(cell, id); });
    }
    menu.addSeparator();
    menu.addAction(tr("Leave It as It Is"), this, [this, cell] { setCell(cell, {}); });
    menu.exec(view_->viewport()->mapToGlobal(view_->visualRect(cell).bottomLeft()));
}

void ColorwaysPanel::create(bool asCopy) {
    zsg::ColorDB* const db = scene_.colorDB();
    if (!db) {
        return;
    }
    scene_.endDrags();
    std::vector<zsg::MultiColorPair> pairs;
    for (int row = 0; row < model_->rowCount(); ++row) {
        nyx::ColorId const multi = model_->multiAt(row);
        nyx::ColorId sub;
        if (asCopy) {
            sub = model_->subAt(model_->index(row, column()));
        } else if (auto const* const edit = db->getColorParameters(multi)) {
            sub = edit->activeSub();
        }
        if (sub.isValid()) {
            pairs.push_back({multi, sub});
        }
    }
    std::string const name =
        asCopy
            ? tr("%1 copy").arg(QString::fromStdString(db->colorwayName(current()))).toStdString()
            : tr("Colorway").toStdString();
    if (asCopy && !current().isValid()) {
        return;
    }
    scene_.colorController()->createColorway(name, pairs);
    scene_.flush();
    view_->setCurrentIndex(model_->index(0, model_->columnCount() - 1));
}

void ColorwaysPanel::apply() {
    zsg::ZColorwayEdit const* const edit =
        current().isValid() ? scene_.colorDB()->getColorwayParameters(current()) : nullptr;
    if (!edit) {
        return;
    }
    if (!edit->isActive()) {
        for (zsg::MultiColorPair const& pair : edit->pairs()) {
            if (!scene_.colorDB()->getColorParameters(pair.multiColor)) {
                scene_.say(tr("It lists a multi-colour that is gone. Nothing was switched."));
                return;
            }
        }
        scene_.endDrags();
        scene_.colorController()->applyColorway(current());
        return;
    }
    // Undo of a switch to the active colorway would leave none active. What has been switched
    // since is switched back, each as an edit of its own.
    ScopedMacro const macro(
        scene_, tr("Switch back (%1)").arg(QString::fromStdString(edit->displayName())));
    auto const kept = edit->pairs();
    std::vector<zsg::MultiColorPair> const pairs(kept.begin(), kept.end()); // edits end the edit
    for (zsg::MultiColorPair const& pair : pairs) {
        zsg::ZColorExtEdit const* const multi =
            scene_.colorDB()->getColorParameters(pair.multiColor);
        if (multi && multi->activeSub() != pair.subColor) {
            scene_.colorController()->setActiveSubColor(pair.multiColor, pair.subColor);
        }
    }
}

void ColorwaysPanel::rename() {
    nyx::ColorwayId const id = current();
    if (!id.isValid()) {
        return;
    }
    QString const before = QString::fromStdString(scene_.colorDB()->colorwayName(id));
    bool accepted = false;
    QString const name = QInputDialog::getText(this, tr("Rename the Colorway"), tr("Name"),
                                               QLineEdit::Normal, before, &accepted);
    if (accepted && name != before && scene_.colorController()) {
        scene_.colorController()->setDisplayName(id, name.toStdString());
    }
}

void ColorwaysPanel::toggleDeleted() {
    nyx::ColorwayId const id = current();
    if (id.isValid()) {
        scene_.endDrags();
        scene_.colorController()->setDeleted(id, !model_->isDeleted(column()));
    }
}

} // namespace workbench
