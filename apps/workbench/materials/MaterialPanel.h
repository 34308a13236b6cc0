#pragma once

#include "workbench/scene/Panel.h"
#include "zsg/materials/ZCMFSchema.h"

#include "nyxrender/Ids.h"

#include <functional>

class QBoxLayout;
class QComboBox;
class QTabWidget;

namespace zsg {
class IMaterialDescriptor;
}

namespace workbench {

class BoundColors;
class CMFForm;
class MetadataTree;
class Scene;
struct Changes;

/// What a material says about itself: its CMF values by the schema in force, its metadata, and the
/// colours that it is bound to. The schema is loaded, saved and edited here as well.
class MaterialPanel final : public Panel {
    Q_OBJECT

public:
    explicit MaterialPanel(Scene& scene, QWidget* parent = nullptr);

    [[nodiscard]] nyx::MaterialId current() const;
    /// Puts the schema of a file in force; when there is none in it, a message says all about it.
    void loadSchema(QString const& path);

    /// Of the form.
    [[nodiscard]] int rowCount() const override;
    /// A material.
    bool select(QString const& text) override;

signals:
    void colorWanted(nyx::ColorId id);

private:
    void makeActions(QBoxLayout& bar);
    void makeTabs();
    void follow(Changes const& changes);
    void readMaterials();
    void read();
    void changeDescription(std::function<void(zsg::IMaterialDescriptor&)> const& change);
    void saveSchema();
    void nameAttribute(int attribute);
    void editAttributes(std::function<void(std::vector<zsg::ZCMFAttribute>&, int)> const& change);

    Scene& scene_;
    QComboBox* material_;
    QTabWidget* tabs_;
    CMFForm* form_;
    MetadataTree* metadata_;
    BoundColors* colors_;
    nyx::MaterialId shown_;
};

} // namespace workbench
