#pragma once

#include <QTreeWidget>
#include <nlohmann/json_fwd.hpp>

#include <memory>

namespace workbench {

/// JSON as a tree whose single values may be edited: what was a text stays one, else the new text
/// is read as JSON, and taken as a text when it is none.
class MetadataTree final : public QTreeWidget {
    Q_OBJECT

public:
    explicit MetadataTree(QWidget* parent = nullptr);
    ~MetadataTree() override;

    /// Null is an empty tree.
    void show(nlohmann::json const& metadata);
    /// Adds a member to the whole, which must be an object or null, or takes the current value out.
    void add(QString const& key);
    void removeCurrent();

signals:
    void edited(nlohmann::json const& metadata);

private:
    void take(QTreeWidgetItem* item);

    std::unique_ptr<nlohmann::json> metadata_;
    bool filling_ = false;
};

} // namespace workbench
