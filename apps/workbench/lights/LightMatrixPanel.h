#pragma once

#include "workbench/scene/Panel.h"

#include "nyxrender/Ids.h"

#include <vector>

class QLineEdit;
class QTableView;

namespace workbench {

class LightMatrixModel;
class Scene;

/// The table of lights and light layers. Space puts what is selected into a layer or takes it out.
class LightMatrixPanel final : public Panel {
    Q_OBJECT

public:
    explicit LightMatrixPanel(Scene& scene, QWidget* parent = nullptr);

    /// Puts the lights of the selected rows into a layer.
    void assignSelected(nyx::LightLayerId layer);

    [[nodiscard]] int rowCount() const override;
    bool select(QString const& text) override;
    [[nodiscard]] QWidget* filterField() override;

private:
    void makeView();
    void update();
    [[nodiscard]] std::vector<nyx::ObjectId> selectedLights() const;

    Scene& scene_;
    LightMatrixModel* model_;
    QTableView* view_;
    QLineEdit* filter_;
    QAction* moveToNew_ = nullptr;
};

} // namespace workbench
