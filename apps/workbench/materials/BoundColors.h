#pragma once

#include "workbench/scene/SceneContents.h"

#include "nyxrender/Ids.h"

#include <QTreeWidget>

#include <vector>

namespace workbench {

class Scene;

/// The places of a material and the colours that are bound to them. A colour that is dropped on a
/// place, or pasted while it is the current one, is bound to it; that can be undone.
class BoundColors final : public QTreeWidget {
    Q_OBJECT

public:
    explicit BoundColors(Scene& scene, QWidget* parent = nullptr);

    void show(nyx::MaterialId material);

protected:
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    bool dropMimeData(QTreeWidgetItem* parent, int index, QMimeData const* mime,
                      Qt::DropAction action) override;

private:
    bool bind(QTreeWidgetItem const* item, QMimeData const* mime);

    Scene& scene_;
    nyx::MaterialId material_;
    std::vector<SceneContents::Place> places_; ///< as they are listed
};

} // namespace workbench
