#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;

namespace workbench {

/// The path of a picture, with a small view of it. Files that are dropped on it are taken.
class ImageField final : public QWidget {
    Q_OBJECT

public:
    explicit ImageField(QWidget* parent = nullptr);

    [[nodiscard]] QLineEdit& line() { return *line_; }
    /// Shows the picture of the path that stands in the line.
    void showPicture();

signals:
    /// A path that was dropped or chosen.
    void chosen(QString const& path);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void browse();

    QLineEdit* line_;
    QLabel* view_;
};

} // namespace workbench
