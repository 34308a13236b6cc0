#pragma once

#include "workbench/scene/NameDelegate.h"

#include "nyxrender/Ids.h"

#include <functional>

namespace workbench {

class Scene;

/// Paints colours as swatches. It paints them itself: styles tint the decoration of a selected
/// item, which would show the selected colour wrong.
class ColorDelegate final : public NameDelegate {
    Q_OBJECT

public:
    enum class Form {
        Tile, ///< the swatch above the name
        Row,  ///< the swatch before the name
        Cell, ///< the swatch only, the name inside of it where there is room
    };

    /// `idOf` says which colour an index stands for, invalid for none; `isMarked` which one of them
    /// has a ring around it.
    ColorDelegate(Scene& scene, Form form, std::function<nyx::ColorId(QModelIndex const&)> idOf,
                  QObject* parent);

    void setMarked(std::function<bool(QModelIndex const&)> isMarked) {
        isMarked_ = std::move(isMarked);
    }

    void paint(QPainter* painter, QStyleOptionViewItem const& option,
               QModelIndex const& index) const override;
    [[nodiscard]] QSize sizeHint(QStyleOptionViewItem const& option,
                                 QModelIndex const& index) const override;
    void updateEditorGeometry(QWidget* editor, QStyleOptionViewItem const& option,
                              QModelIndex const& index) const override;

private:
    struct Areas {
        QRect swatch;
        QRect text;
    };
    [[nodiscard]] Areas areas(QStyleOptionViewItem const& option) const;

    Scene& scene_;
    Form form_;
    std::function<nyx::ColorId(QModelIndex const&)> idOf_;
    std::function<bool(QModelIndex const&)> isMarked_;
};

} // namespace workbench
