#pragma once

#include "workbench/scene/Panel.h"
#include "workbench/values/ValueStore.h"

#include <array>
#include <optional>

class QBoxLayout;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace workbench {

class FieldBinding;
class MetalView;
class Scene;
class ValueField;

/// The weaves, gradients, curves and metals that have a name, and an editor for the one that is
/// selected.
class ValuesPanel final : public Panel {
    Q_OBJECT

public:
    /// The store is borrowed.
    ValuesPanel(Scene& scene, ValueStore& store, QWidget* parent = nullptr);

    [[nodiscard]] int rowCount() const override;
    /// A value by its name.
    bool select(QString const& text) override;

    /// Reads a weave (.json), a metal (.nk, .ior, .csv), or a gradient or curve (.txt) and selects
    /// it. False when the file holds none, which is said.
    bool load(QString const& path);
    /// Writes the selected value in the format that load() reads.
    bool save(QString const& path);

private:
    using Key = ValueStore::Key;

    void makeActions(QBoxLayout& bar);
    void makeEditors();
    void follow();
    void showCurrent();
    [[nodiscard]] std::optional<Key> current() const;
    [[nodiscard]] std::shared_ptr<zsg::Variant const> currentValue();
    void setCurrent(Key const& key);
    void rename(QTreeWidgetItem* item);
    /// Gives the value a free name and selects it.
    void add(ValueStore::Kind kind, QString const& name,
             std::shared_ptr<zsg::Variant const> const& value);
    void addNew(ValueStore::Kind kind);
    [[nodiscard]] QString currentText();
    void paste();
    void chooseAndLoad();
    void chooseAndSave();

    Scene& scene_;
    ValueStore& store_;
    QTreeWidget* list_;
    QStackedWidget* editors_;
    std::array<ValueField*, 4> fields_{};     ///< by kind
    std::array<FieldBinding*, 4> bindings_{}; ///< of the fields
    MetalView* metal_ = nullptr;
    std::vector<Key> keys_; ///< in the order of the list
};

} // namespace workbench
