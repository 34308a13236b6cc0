#pragma once

#include <QString>
#include <QWidget>

#include <functional>

class QAction;
class QLayout;
class QKeySequence;

namespace workbench {

/// What a dock or a tab of the window shows of the scene. It writes through the scene's controllers
/// only.
class Panel : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// How many rows its list has at this moment.
    [[nodiscard]] virtual int rowCount() const { return 0; }
    /// Selects a row by its text; false when there is none.
    virtual bool select(QString const& /*text*/) { return false; }
    /// Where the text to look for is typed; null when nothing can be looked for.
    [[nodiscard]] virtual QWidget* filterField() { return nullptr; }

protected:
    /// An action of the panel, with a button in `bar` when there is one. Its keys work while the
    /// focus is in the panel.
    QAction* makeAction(QString const& text, char const* name, QKeySequence const& keys,
                        std::function<void()> const& act, QLayout* bar = nullptr);
};

} // namespace workbench
