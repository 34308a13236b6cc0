#pragma once

#include "workbench/scene/Panel.h"

#include <QStringList>

class QLineEdit;
class QPlainTextEdit;

namespace workbench {

class Document;

/// The commands of the headless host, typed by hand, on the scene that the window shows.
class ConsolePanel final : public Panel {
    Q_OBJECT

public:
    explicit ConsolePanel(Document& document, QWidget* parent = nullptr);

    /// Runs a line as if it had been typed.
    void run(QString const& line);

protected:
    /// Up and Down walk the lines that were typed before.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void recall(int step);

    Document& document_;
    QPlainTextEdit* output_;
    QLineEdit* input_;
    QStringList typed_;
    qsizetype recalled_ = 0;
};

} // namespace workbench
