#pragma once

#include "host/scenePalette.h"
#include "workbench/scene/Panel.h"

#include "nyxrender/Ids.h"

#include <vector>

class QAbstractItemView;
class QComboBox;
class QItemSelectionModel;
class QLineEdit;
class QListView;
class QStackedWidget;
class QTreeView;

namespace workbench {

class ColorModel;
class Scene;

/// All colours of the scene, as tiles or as a list; the one that is selected here is the one that
/// the other panels show.
class ColorsPanel final : public Panel {
    Q_OBJECT

public:
    explicit ColorsPanel(Scene& scene, QWidget* parent = nullptr);

    [[nodiscard]] nyx::ColorId current() const;
    void setCurrent(nyx::ColorId id);

    [[nodiscard]] int rowCount() const override;
    bool select(QString const& text) override;
    [[nodiscard]] QWidget* filterField() override;

    /// Brings the colours of a GIMP palette in, and writes those that are selected, or all when it
    /// is one at most; both report in the window.
    void importFrom(QString const& path);
    void exportTo(QString const& path);

signals:
    void currentChanged(nyx::ColorId id);

private:
    void makeViews();
    void makeActions();
    [[nodiscard]] QAbstractItemView* view() const;
    [[nodiscard]] std::vector<nyx::ColorId> selected() const;
    void keepCurrent();
    void showCurrent();
    void addColor();
    void duplicate();
    void toggleMulti();
    void copy();
    void paste();

    Scene& scene_;
    ColorModel* model_;
    QLineEdit* filter_;
    QComboBox* kind_;
    QStackedWidget* views_;
    QListView* grid_;
    QTreeView* list_;
    QItemSelectionModel* selection_;
    nyx::ColorId current_;
    app::PaletteHeader header_; ///< of the palette that was brought in last
    bool rowsGo_ = false;       ///< while rows are taken away
};

} // namespace workbench
