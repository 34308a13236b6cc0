#include "workbench/colors/ColorEditor.h"

#include "host/sRGB.h"
#include "workbench/colors/ChannelRow.h"
#include "workbench/colors/ColorWheel.h"
#include "workbench/colors/swatch.h"
#include "workbench/scene/Scene.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/materials/IMaterialHandler.h"

#include <QDoubleSpinBox>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace workbench {

/// The colour as it is, beside what it was when the edit began.
class SwatchView final : public QWidget {
public:
    explicit SwatchView(QWidget* parent) : QWidget(parent) {
        setMinimumHeight(fontMetrics().height() * 2);
    }

    void show(nyxColor_rgba const& before, nyxColor_rgba const& now) {
        before_.value = before;
        now_.value = now;
        QString const hex = QString::fromStdString(app::hexColorWithAlpha(now));
        setAccessibleName(isOutOfRange(now) ? tr("%1, brighter than the screen").arg(hex) : hex);
        setToolTip(accessibleName());
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QRect const half(0, 0, width() / 2, height());
        paintSwatch(painter, half, before_);
        paintSwatch(painter, half.translated(width() - half.width(), 0), now_);
    }

private:
    Swatch before_;
    Swatch now_;
};

ColorEditor::ColorEditor(Scene& scene, QWidget* parent)
    : Panel(parent),
      scene_(scene),
      swatch_(new SwatchView(this)),
      wheel_(new ColorWheel(this)),
      pages_(new QTabWidget(this)),
      name_(new QLineEdit(this)),
      hex_(new QLineEdit(this)),
      subject_(new QLabel(this)),
      users_(new QListWidget(this)) {
    auto* const layout = new QVBoxLayout(this);
    subject_->setTextFormat(Qt::PlainText);
    subject_->setWordWrap(true);
    layout->addWidget(subject_);
    layout->addWidget(swatch_);
    wheel_->setObjectName("wheel");
    pages_->setObjectName("colourPages");
    layout->addWidget(wheel_, 2);
    layout->addWidget(pages_);
    makeChannels();
    makeTexts();
    connect(wheel_, &ColorWheel::pressed, this, [this] { begin(*wheel_); });
    connect(wheel_, &ColorWheel::released, this, &ColorEditor::end);
    connect(wheel_, &ColorWheel::cancelled, this, &ColorEditor::cancel);
    connect(wheel_, &ColorWheel::moved, this, [this](float h, float s, float v) {
        state_.setHsv(h, s, v);
        moved();
    });
    connect(wheel_, &ColorWheel::stepped, this, [this](float h, float s, float v) {
        state_.setHsv(h, s, v);
        step(*wheel_);
    });
    connect(&scene, &Scene::changed, this, &ColorEditor::follow);
    connect(&scene, &Scene::rootEnding, this, [this] { setColor({}); });
    readColor();
}

ColorEditor::~ColorEditor() = default;

void ColorEditor::makeChannels() {
    std::pair<QString, int> const pages[] = {
        {tr("HSV"), 3}, {tr("sRGB"), 3}, {tr("Linear"), 3}, {QString(), 1}};
    int channel = 0;
    for (auto const& [title, count] : pages) {
        auto* const page = new QWidget;
        auto* const grid = new QGridLayout(page);
        for (int i = 0; i < count; ++i, ++channel) {
            auto* const row = new ChannelRow(channel, *grid, *page);
            channels_[static_cast<std::size_t>(channel)] = row;
            ChannelSlider& slider = row->slider();
            connect(&slider, &QAbstractSlider::sliderPressed, this,
                    [this, &slider] { begin(slider); });
            connect(&slider, &QAbstractSlider::sliderReleased, this, &ColorEditor::end);
            connect(&slider, &ChannelSlider::cancelled, this, &ColorEditor::cancel);
            connect(&slider, &QAbstractSlider::sliderMoved, this, [this, row] {
                row->readSlider(state_);
                moved();
            });
            connect(&slider, &ChannelSlider::stepped, this, [this, row] {
                row->readSlider(state_);
                step(row->slider());
            });
            QDoubleSpinBox& number = row->number();
            number.installEventFilter(this);
            connect(&number, &QDoubleSpinBox::valueChanged, this, [this, row] {
                row->readNumber(state_);
                step(row->number());
            });
            connect(&number, &QAbstractSpinBox::editingFinished, this, &ColorEditor::end);
        }
        if (title.isEmpty()) {
            layout()->addWidget(page); // alpha belongs to all of them
        } else {
            pages_->addTab(page, title);
        }
    }
}

void ColorEditor::makeTexts() {
    name_->setObjectName("colourName");
    name_->setAccessibleName(tr("Name"));
    hex_->setObjectName("colourHex");
    hex_->setAccessibleName(tr("Hexadecimal value"));
    users_->setObjectName("colourUsers");
    users_->setAccessibleName(tr("Used by"));
    users_->setSelectionMode(QAbstractItemView::NoSelection);
    connect(name_, &QLineEdit::editingFinished, this, &ColorEditor::commitName);
    connect(hex_, &QLineEdit::editingFinished, this, &ColorEditor::commitHex);
    auto* const form = new QFormLayout;
    form->addRow(tr("&Hex"), hex_);
    form->addRow(tr("&Name"), name_);
    form->addRow(tr("Used by"), users_);
    static_cast<QVBoxLayout*>(layout())->addLayout(form, 1);
}

int ColorEditor::rowCount() const { return users_->count(); }

void ColorEditor::setColor(nyx::ColorId id) {
    if (id == shown_) {
        return;
    }
    end();
    shown_ = id;
    readColor();
}

bool ColorEditor::eventFilter(QObject* watched, QEvent* event) {
    auto const* const widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Wheel && widget && !widget->hasFocus()) {
        event->ignore(); // scrolling past a number must not change it
        return true;
    }
    return Panel::eventFilter(watched, event);
}

void ColorEditor::follow(Changes const& changes) {
    bool const mine = changes.everything || std::ranges::binary_search(changes.colors, shown_) ||
                      std::ranges::binary_search(changes.colors, edited_);
    if (mine || changes.materials) {
        readColor();
    }
}

void ColorEditor::readColor() {
    zsg::ColorDB* const db = scene_.colorDB();
    Swatch const shown = swatchOf(db, shown_);
    nyx::ColorId edited = shown.id;
    if (shown.isMulti) {
        edited = db->getColorParameters(shown_)->activeSub();
    }
    Swatch const swatch = swatchOf(db, edited);
    if (swatch.id != edited_) {
        end();
        edited_ = swatch.id;
    }
    bool const isDragging = drag_ && drag_->isActive();
    // What the drag has not pushed yet is newer than what the scene says.
    if (!isDragging && state_.value() != swatch.value) {
        state_.setValue(swatch.value);
    }
    if (!isDragging) {
        before_ = state_;
        subject_->setText(!edited_.isValid() ? tr("No colour is selected.")
                          : shown.isMulti    ? tr("%1, the active colour of %2")
                                                .arg(shownName(swatch.name), shownName(shown.name))
                                          : shownName(swatch.name));
        if (!name_->hasFocus() || !name_->isModified()) {
            name_->setText(swatch.name);
        }
        showUsers();
    }
    for (QWidget* const part : {static_cast<QWidget*>(wheel_), static_cast<QWidget*>(pages_),
                                static_cast<QWidget*>(name_), static_cast<QWidget*>(hex_),
                                channels_.back()->slider().parentWidget()}) {
        part->setEnabled(edited_.isValid());
    }
    showState();
}

void ColorEditor::showState() {
    wheel_->setHsv(state_.hue(), state_.saturation(), state_.brightness());
    for (ChannelRow* const row : channels_) {
        row->show(state_);
    }
    swatch_->show(before_.value(), state_.value());
    if (!hex_->hasFocus() || !hex_->isModified()) {
        hex_->setText(QString::fromStdString(app::hexColorWithAlpha(state_.value())));
    }
}

void ColorEditor::showUsers() {
    QStringList names;
    if (zsg::ISceneGraph* const root = scene_.root(); root && shown_.isValid()) {
        constexpr unsigned directlyOrNot = 3;
        for (auto const id : root->colorDB()->getMaterialsUsingColor(shown_, directlyOrNot, true)) {
            names += root->materialHandler()->materialName(id);
        }
    }
    QStringList present;
    for (int i = 0; i < users_->count(); ++i) {
        present += users_->item(i)->text();
    }
    if (present != names) {
        users_->clear();
        users_->addItems(names);
    }
}

void ColorEditor::begin(QWidget& source) {
    end();
    if (!edited_.isValid()) {
        return;
    }
    before_ = state_;
    drag_ = std::make_unique<EditDrag>(scene_, source,
                                       EditDrag::Target{[this](EditDrag::Step kind) { push(kind); },
                                                        [this] { state_ = before_; }});
    connect(drag_.get(), &EditDrag::ended, this, [this] { readColor(); });
}

void ColorEditor::moved() {
    showState();
    if (drag_) {
        drag_->move();
    }
}

void ColorEditor::end() {
    if (drag_) {
        drag_->end();
    }
}

void ColorEditor::cancel() {
    if (drag_) {
        drag_->cancel();
    }
}

void ColorEditor::step(QWidget& source) {
    if (!drag_ || !drag_->isActive()) {
        ColorState const wanted = state_;
        state_.setValue(swatchOf(scene_.colorDB(), edited_).value); // what it was before the step
        begin(source);
        state_ = wanted;
    }
    moved();
    if (drag_) {
        drag_->endSoon();
    }
}

void ColorEditor::push(EditDrag::Step kind) {
    if (!scene_.colorController() || !edited_.isValid()) {
        return;
    }
    scene_.colorController()->setColor(edited_, ZColor(state_.value()),
                                       kind == EditDrag::Step::Open
                                           ? zsg::AllowForwardUndoMerge::Yes
                                           : zsg::AllowForwardUndoMerge::No);
}

void ColorEditor::commitHex() {
    hex_->setModified(false);
    std::string const text = hex_->text().trimmed().toLower().toStdString();
    auto const read = app::colorFromHex(text.starts_with('#') ? text : '#' + text);
    if (!read) {
        scene_.say(tr("%1 is no colour; expected #rrggbb or #rrggbbaa.").arg(hex_->text()));
    } else if (edited_.isValid() &&
               app::hexColorWithAlpha(*read) != app::hexColorWithAlpha(state_.value())) {
        end();
        nyxColor_rgba value = *read;
        if (text.size() < 8) { // no alpha was typed
            value.a = state_.value().a;
        }
        state_.setValue(value);
        push(EditDrag::Step::Last);
    }
    showState();
}

void ColorEditor::commitName() {
    name_->setModified(false);
    std::string const name = name_->text().toStdString();
    if (edited_.isValid() && scene_.colorController() &&
        name != scene_.colorDB()->colorName(edited_)) {
        end();
        scene_.colorController()->setDisplayName(edited_, name);
    }
}

} // namespace workbench
