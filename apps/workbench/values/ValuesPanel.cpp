#include "workbench/values/ValuesPanel.h"

#include "host/Arguments.h"
#include "host/OutputFile.h"
#include "workbench/scene/Scene.h"
#include "workbench/values/CurveEditor.h"
#include "workbench/values/FieldBinding.h"
#include "workbench/values/GradientEditor.h"
#include "workbench/values/MetalView.h"
#include "workbench/values/WeaveEditor.h"
#include "workbench/values/loadValue.h"
#include "workbench/values/valueText.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace workbench {

using Kind = ValueStore::Kind;

namespace {

/// In the order of their numbers.
QStringList kindNames() {
    return {ValuesPanel::tr("weave"), ValuesPanel::tr("gradient"), ValuesPanel::tr("curve"),
            ValuesPanel::tr("metal")};
}

std::unique_ptr<zsg::Variant> newValue(Kind kind) {
    switch (kind) {
    case Kind::Weave:
        return makeValue(zsg::WeavePattern::makePlain());
    case Kind::Gradient: {
        zsg::ColorGradient gradient;
        gradient.setBlend(true);
        gradient.addColorStop({0, 0, 0, 1}, 0, 0, 0);
        gradient.addColorStop({1, 1, 1, 1}, 1, 0, 0);
        return makeValue(gradient);
    }
    default: {
        nyx::AnimationKey const first{{0, 0}, {0, 0}, {0.33F, 0}, nyx::KeyType::U};
        nyx::AnimationKey const last{{1, 1}, {0.67F, 1}, {1, 1}, nyx::KeyType::U};
        return makeValue(zsg::AnimationCurve{first, last});
    }
    }
}

} // namespace

ValuesPanel::ValuesPanel(Scene& scene, ValueStore& store, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      store_(store),
      list_(new QTreeWidget(this)),
      editors_(new QStackedWidget(this)) {
    // Before there is a menu: the panel goes beside its first child in the order of Tab, and a menu
    // is a window, with an order of its own.
    setFocusProxy(list_);
    list_->setObjectName("valueList");
    list_->setAccessibleName(tr("Values"));
    list_->setHeaderLabels({tr("Name"), tr("Kind")});
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    list_->header()->setStretchLastSection(false);
    list_->setContextMenuPolicy(Qt::ActionsContextMenu);
    makeEditors();
    auto* const bar = new QHBoxLayout;
    makeActions(*bar);
    bar->addStretch();
    auto* const parts = new QSplitter(this);
    parts->addWidget(list_);
    parts->addWidget(editors_);
    parts->setStretchFactor(1, 4);
    parts->setChildrenCollapsible(false);
    list_->setMinimumWidth(10 * fontMetrics().height());
    parts->setSizes({1, 4});
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bar);
    layout->addWidget(parts, 1);
    connect(list_, &QTreeWidget::currentItemChanged, this, &ValuesPanel::showCurrent);
    connect(list_, &QTreeWidget::itemChanged, this, &ValuesPanel::rename);
    connect(&scene, &Scene::historyChanged, this, &ValuesPanel::follow);
    connect(&scene, &Scene::commandsRan, this, &ValuesPanel::follow);
    follow();
}

void ValuesPanel::makeEditors() {
    auto* const none = new QLabel(tr("Make a value, or select one."), this);
    none->setAlignment(Qt::AlignCenter);
    editors_->addWidget(none);
    metal_ = new MetalView;
    fields_ = {new WeaveEditor, new GradientEditor, new CurveEditor, metal_};
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        editors_->addWidget(fields_[i]);
        bindings_[i] =
            new FieldBinding(scene_, *fields_[i], ParameterItems(), recordedWriter(scene_));
    }
}

void ValuesPanel::makeActions(QBoxLayout& bar) {
    auto* const menu = new QMenu(this);
    for (int kind = 0; kind < 3; ++kind) {
        menu->addAction(makeAction(tr("New %1").arg(kindNames()[kind]),
                                   qPrintable("new-" + QString::number(kind)), {},
                                   [this, kind] { addNew(static_cast<Kind>(kind)); }));
    }
    auto* const make = new QToolButton(this);
    make->setText(tr("New"));
    make->setMenu(menu);
    make->setPopupMode(QToolButton::InstantPopup);
    bar.addWidget(make);
    QAction* const actions[] = {
        makeAction(
            tr("Load"), "loadValue", {}, [this] { chooseAndLoad(); }, &bar),
        makeAction(
            tr("Save"), "saveValue", {}, [this] { chooseAndSave(); }, &bar),
        makeAction(
            tr("Duplicate"), "duplicateValue", QKeySequence("Ctrl+D"),
            [this] {
                if (auto const key = current()) {
                    add(key->kind, QString::fromStdString(key->name), currentValue());
                }
            },
            &bar),
        makeAction(
            tr("Delete"), "deleteValue", QKeySequence::Delete,
            [this] {
                if (auto const key = current()) {
                    store_.remove(*key);
                }
            },
            &bar),
        makeAction(
            tr("Copy"), "copyValue", QKeySequence::Copy,
            [this] {
                if (current()) {
                    QApplication::clipboard()->setText(currentText());
                }
            },
            &bar),
        makeAction(
            tr("Paste"), "pasteValue", QKeySequence::Paste, [this] { paste(); }, &bar),
        makeAction(
            tr("Reset"), "resetValue", {},
            [this] {
                if (auto const key = current()) {
                    bindings_[static_cast<std::size_t>(key->kind)]->reset();
                }
            },
            &bar),
    };
    for (QAction* const action : actions) {
        action->setShortcutContext(Qt::WidgetShortcut); // in the editors Delete means a part
        list_->addAction(action);
    }
}

int ValuesPanel::rowCount() const { return static_cast<int>(keys_.size()); }

bool ValuesPanel::select(QString const& text) {
    auto const found = list_->findItems(text, Qt::MatchExactly);
    if (!found.isEmpty()) {
        list_->setCurrentItem(found.front());
    }
    return !found.isEmpty();
}

/// Names come and go with commands and with the history.
void ValuesPanel::follow() {
    std::vector<Key> keys;
    for (Key const& key : store_.keys()) {
        if (key.kind != Kind::Other) {
            keys.push_back(key);
        }
    }
    if (keys != keys_) {
        auto const before = current();
        QSignalBlocker const quiet(list_);
        list_->clear();
        keys_ = keys;
        for (Key const& key : keys_) {
            auto* const item = new QTreeWidgetItem(
                list_, {QString::fromStdString(key.name), kindNames()[static_cast<int>(key.kind)]});
            item->setFlags(item->flags() | Qt::ItemIsEditable);
            if (before == key) {
                list_->setCurrentItem(item);
            }
        }
    }
    showCurrent();
}

std::optional<ValuesPanel::Key> ValuesPanel::current() const {
    int const row = list_->indexOfTopLevelItem(list_->currentItem());
    if (row < 0 || row >= rowCount()) {
        return std::nullopt;
    }
    return keys_[static_cast<std::size_t>(row)];
}

std::shared_ptr<zsg::Variant const> ValuesPanel::currentValue() {
    auto const key = current();
    return key ? valueOf(store_.item(*key).parameter) : nullptr;
}

void ValuesPanel::setCurrent(Key const& key) {
    auto const found = std::ranges::find(keys_, key);
    if (found != keys_.end()) {
        list_->setCurrentItem(list_->topLevelItem(static_cast<int>(found - keys_.begin())));
    }
}

void ValuesPanel::showCurrent() {
    auto const key = current();
    editors_->setCurrentIndex(key ? static_cast<int>(key->kind) + 1 : 0);
    for (std::size_t kind = 0; kind < bindings_.size(); ++kind) {
        bool const isShown = key && static_cast<std::size_t>(key->kind) == kind;
        ParameterItems items;
        if (isShown) {
            items.push_back(store_.item(*key));
        }
        FieldBinding& binding = *bindings_[kind];
        bool const isSame = isShown && !binding.items().empty() &&
                            binding.items().front().original == items.front().original;
        if (isSame) {
            binding.refresh(); // the same one, in whatever state of it
        } else if (isShown || !binding.items().empty()) {
            binding.setItems(items);
        }
    }
}

void ValuesPanel::rename(QTreeWidgetItem* item) {
    int const row = list_->indexOfTopLevelItem(item);
    if (row < 0 || row >= rowCount()) {
        return;
    }
    Key const key = keys_[static_cast<std::size_t>(row)];
    std::string const name = item->text(0).toStdString();
    if (name == key.name) {
        return;
    }
    // Later: the list is made anew, and at this moment it is in the middle of its own edit.
    auto const finish = [this, key, name] {
        bool const isRenamed = store_.rename(key, name);
        if (!isRenamed) {
            scene_.say(tr("There is a %1 of that name already, or the name is empty.")
                           .arg(kindNames()[static_cast<int>(key.kind)]));
            keys_.clear();
            follow();
        }
        setCurrent({key.kind, isRenamed ? name : key.name});
    };
    QMetaObject::invokeMethod(this, finish, Qt::QueuedConnection);
}

void ValuesPanel::add(Kind kind, QString const& name,
                      std::shared_ptr<zsg::Variant const> const& value) {
    std::string const free = store_.freeName(kind, name.toStdString());
    store_.add({kind, free}, value);
    setCurrent({kind, free});
}

void ValuesPanel::addNew(Kind kind) {
    add(kind, kindNames()[static_cast<int>(kind)], newValue(kind));
}

QString ValuesPanel::currentText() {
    auto const value = currentValue();
    if (!value) {
        return {};
    }
    auto const metal = zsg::tryGet<zsg::FloatArray>(*value);
    return metal ? metalCsv(*metal) : valueText(*value);
}

/// Into the value that is selected, which has the type that is asked for.
void ValuesPanel::paste() {
    auto const key = current();
    if (!key) {
        return;
    }
    std::shared_ptr<zsg::Variant const> const value =
        valueFromText(QApplication::clipboard()->text(), *currentValue());
    if (value) {
        bindings_[static_cast<std::size_t>(key->kind)]->writeAll(value);
    } else {
        scene_.say(tr("The clipboard holds no %1.").arg(kindNames()[static_cast<int>(key->kind)]));
    }
}

bool ValuesPanel::load(QString const& path) {
    LoadedValue const loaded = loadValue(path);
    metal_->showMessages(loaded.messages);
    if (!loaded.value) {
        scene_.say(loaded.messages.section('\n', 0, 0));
        return false;
    }
    add(loaded.kind, QFileInfo(path).completeBaseName(), loaded.value);
    return true;
}

bool ValuesPanel::save(QString const& path) {
    try {
        app::writeOutputFile(path.toStdString(), currentText().toStdString());
        return true;
    } catch (app::CommandError const& error) {
        scene_.say(QString::fromStdString(error.what()));
        return false;
    }
}

void ValuesPanel::chooseAndLoad() {
    QString const path = QFileDialog::getOpenFileName(
        this, tr("Load a Value"), {}, tr("Values (*.json *.nk *.ior *.csv *.txt);;All files (*)"));
    if (!path.isEmpty()) {
        load(path);
    }
}

void ValuesPanel::chooseAndSave() {
    auto const key = current();
    if (!key) {
        return;
    }
    QString const suffixes[] = {".json", ".txt", ".txt", ".csv"};
    QString const path = QFileDialog::getSaveFileName(this, tr("Save the Value"),
                                                      QString::fromStdString(key->name) +
                                                          suffixes[static_cast<int>(key->kind)]);
    if (!path.isEmpty()) {
        save(path);
    }
}

} // namespace workbench
