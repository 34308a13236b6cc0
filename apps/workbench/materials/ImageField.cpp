#include "workbench/materials/ImageField.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QToolButton>
#include <QUrl>

namespace workbench {

namespace {

/// A picture for a description; what is larger is not read for a small view.
constexpr qint64 largestPicture = qint64{64} << 20;

QString droppedFile(QMimeData const* data) {
    QList<QUrl> const urls = data->urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

} // namespace

ImageField::ImageField(QWidget* parent)
    : QWidget(parent), line_(new QLineEdit(this)), view_(new QLabel(this)) {
    setAcceptDrops(true);
    line_->setAcceptDrops(false); // it would take the URL as a text
    setFocusProxy(line_);
    auto* const button = new QToolButton(this);
    button->setText(tr("…"));
    button->setAccessibleName(tr("Choose a picture"));
    connect(button, &QToolButton::clicked, this, &ImageField::browse);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    layout->addWidget(line_, 1);
    layout->addWidget(button);
    showPicture();
}

void ImageField::showPicture() {
    int const side = 2 * fontMetrics().height();
    QFileInfo const file(line_->text());
    QImage image;
    // Of a pipe or a device there would be no end.
    if (file.isFile() && file.size() <= largestPicture) {
        QImageReader reader(line_->text());
        reader.setAutoTransform(true);
        QSize const size = reader.size();
        if (size.isValid()) {
            reader.setScaledSize(
                size.scaled(QSize(side, side) * devicePixelRatioF(), Qt::KeepAspectRatio)
                    .expandedTo({1, 1}));
            image = reader.read();
        }
    }
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    view_->setPixmap(pixmap);
    view_->setVisible(!pixmap.isNull());
    line_->setToolTip(line_->text().isEmpty() ? tr("Drop a picture here")
                      : pixmap.isNull()       ? tr("%1: no picture").arg(line_->text())
                                              : line_->text());
}

void ImageField::browse() {
    QString const path = QFileDialog::getOpenFileName(this, tr("Choose a Picture"), line_->text());
    if (!path.isEmpty()) {
        emit chosen(path);
    }
}

void ImageField::dragEnterEvent(QDragEnterEvent* event) {
    if (!droppedFile(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void ImageField::dropEvent(QDropEvent* event) {
    if (QString const path = droppedFile(event->mimeData()); !path.isEmpty()) {
        event->acceptProposedAction();
        emit chosen(path);
    }
}

} // namespace workbench
