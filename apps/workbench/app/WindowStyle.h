#pragma once

#include <QProxyStyle>

namespace workbench {

/// The same look on every system, with boxes that are seen on dark grounds as well: those of its
/// base are a little darker than what is around them, whatever that is.
class WindowStyle final : public QProxyStyle {
public:
    WindowStyle();

    void drawPrimitive(PrimitiveElement element, QStyleOption const* option, QPainter* painter,
                       QWidget const* widget = nullptr) const override;
};

} // namespace workbench
