#include "workbench/values/WeaveEditor.h"

#include "workbench/scene/ExpressionSpin.h"
#include "workbench/scene/commitTyping.h"
#include "workbench/values/NumberSpin.h"
#include "workbench/values/WeaveGrid.h"
#include "workbench/values/parameterValue.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

namespace workbench {

using zsg::WeavePattern;

namespace {

constexpr int largestSide = 4096;

struct Generator {
    char const* name;
    char const* first; ///< what its numbers mean; null when it has none
    char const* second;
    WeavePattern (*make)(int first, int second);
};

constexpr Generator generators[] = {
    {QT_TRANSLATE_NOOP("WeaveEditor", "Plain"), nullptr, nullptr,
     [](int, int) { return WeavePattern::makePlain(); }},
    {QT_TRANSLATE_NOOP("WeaveEditor", "Twill"), QT_TRANSLATE_NOOP("WeaveEditor", "Repeat"),
     QT_TRANSLATE_NOOP("WeaveEditor", "Band"), WeavePattern::makeTwill},
    {QT_TRANSLATE_NOOP("WeaveEditor", "Satin"), QT_TRANSLATE_NOOP("WeaveEditor", "Repeat"),
     QT_TRANSLATE_NOOP("WeaveEditor", "Step"), WeavePattern::makeSatin},
    {QT_TRANSLATE_NOOP("WeaveEditor", "Basket"), QT_TRANSLATE_NOOP("WeaveEditor", "Block"), nullptr,
     [](int n, int) { return WeavePattern::makeBasket(n); }},
    {QT_TRANSLATE_NOOP("WeaveEditor", "Herringbone"), nullptr, nullptr,
     [](int, int) { return WeavePattern::makeHerringbone(); }},
};

QString text(char const* source) { return QCoreApplication::translate("WeaveEditor", source); }

ExpressionSpin* makeCount(QWidget* parent, QString const& name, int value, int largest) {
    auto* const box = new ExpressionSpin(parent);
    box->setDecimals(0);
    box->setRange(1, largest);
    box->setValue(value);
    box->setAccessibleName(name);
    box->setToolTip(name);
    return box;
}

int countOf(ExpressionSpin const* box) { return static_cast<int>(box->value()); }

} // namespace

/// The weave three times each way, so that the joints are seen.
class WeavePreview final : public QWidget {
public:
    explicit WeavePreview(QWidget* parent) : QWidget(parent) {
        int const side = 8 * fontMetrics().height();
        setMinimumSize(side, side);
        setAccessibleName(WeaveEditor::tr("Three repeats each way"));
        setToolTip(accessibleName());
    }
    void show(WeavePattern const& weave) {
        weave_ = weave;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QSize const cells(3 * weave_.numWarp(), 3 * weave_.numWeft());
        QSize const area = cells.scaled(size(), Qt::KeepAspectRatio);
        if (area.width() < 1 || area.height() < 1) {
            return;
        }
        QSize const pixels = cells.boundedTo(area * devicePixelRatioF());
        painter.drawImage(QRect(QPoint(), area), weaveImage(weave_, {QPoint(), cells}, pixels));
    }

private:
    WeavePattern weave_;
};

WeaveEditor::WeaveEditor(QWidget* parent)
    : ValueField(parent), grid_(new WeaveGrid(this)), preview_(new WeavePreview(this)) {
    grid_->setObjectName("weaveGrid");
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(grid_, 1);
    layout->addWidget(makeSide());
    setFocusProxy(grid_);
    connect(grid_, &WeaveGrid::pressed, this, &ValueField::pressed);
    connect(grid_, &WeaveGrid::moved, this, [this] {
        preview_->show(grid_->weave());
        emit moved();
    });
    connect(grid_, &WeaveGrid::released, this, &ValueField::released);
    connect(grid_, &WeaveGrid::cancelled, this, &ValueField::cancelled);
    connect(grid_, &WeaveGrid::stepped, this, [this] {
        emit stepped();
        emit finished();
    });
}

QWidget* WeaveEditor::makeSide() {
    auto* const side = new QWidget(this);
    auto* const layout = new QGridLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    makeGenerator(*layout);
    makeSize(*layout);
    auto const heading = [&](int column, QString const& name) {
        layout->addWidget(new QLabel(name, side), layout->rowCount() - (column > 1 ? 1 : 0),
                          column);
    };
    heading(1, tr("Width"));
    heading(2, tr("Tension"));
    heading(3, tr("Section"));
    makeYarn(*layout, WeavePattern::Warp);
    makeYarn(*layout, WeavePattern::Weft);
    layout->addWidget(preview_, layout->rowCount(), 0, 1, 4);
    layout->setRowStretch(layout->rowCount() - 1, 1);
    auto* const hint = new QLabel(tr("Left button: weft on top. Right button: warp on top."), side);
    hint->setWordWrap(true);
    layout->addWidget(hint, layout->rowCount(), 0, 1, 4);
    return side;
}

void WeaveEditor::makeGenerator(QGridLayout& layout) {
    generator_ = new QComboBox(this);
    generator_->setObjectName("weaveGenerator");
    generator_->setAccessibleName(tr("Kind of weave"));
    for (Generator const& entry : generators) {
        generator_->addItem(text(entry.name));
    }
    first_ = makeCount(this, {}, 4, largestSide);
    second_ = makeCount(this, {}, 2, largestSide);
    first_->setObjectName("weaveFirst");
    second_->setObjectName("weaveSecond");
    auto const follow = [this] {
        Generator const& entry = generators[generator_->currentIndex()];
        for (auto const& [box, name] :
             {std::pair(first_, entry.first), std::pair(second_, entry.second)}) {
            box->setEnabled(name);
            box->setToolTip(name ? text(name) : QString());
            box->setAccessibleName(box->toolTip());
        }
    };
    connect(generator_, &QComboBox::currentIndexChanged, this, follow);
    follow();
    auto* const make = new QToolButton(this);
    make->setObjectName("weaveMake");
    make->setText(tr("Make"));
    connect(make, &QToolButton::pressed, this, &commitTyping);
    connect(make, &QToolButton::clicked, this, &WeaveEditor::generate);
    layout.addWidget(generator_, 0, 0);
    layout.addWidget(first_, 0, 1);
    layout.addWidget(second_, 0, 2);
    layout.addWidget(make, 0, 3);
}

void WeaveEditor::makeSize(QGridLayout& layout) {
    warps_ = makeCount(this, tr("Warps"), 2, largestSide);
    wefts_ = makeCount(this, tr("Wefts"), 2, largestSide);
    warps_->setObjectName("weaveWarps");
    wefts_->setObjectName("weaveWefts");
    auto const resize = [this] {
        WeavePattern weave = grid_->weave();
        weave.setSize(countOf(warps_), countOf(wefts_));
        give(weave);
    };
    connect(warps_, &QDoubleSpinBox::valueChanged, this, resize);
    connect(wefts_, &QDoubleSpinBox::valueChanged, this, resize);
    auto* const invert = new QToolButton(this);
    invert->setText(tr("Invert"));
    connect(invert, &QToolButton::pressed, this, &commitTyping);
    connect(invert, &QToolButton::clicked, this, [this] {
        WeavePattern weave = grid_->weave();
        weave.invert();
        give(weave);
    });
    auto* const name = new QLabel(tr("&Size"), this);
    name->setBuddy(warps_);
    int const row = layout.rowCount();
    layout.addWidget(name, row, 0);
    layout.addWidget(warps_, row, 1);
    layout.addWidget(wefts_, row, 2);
    layout.addWidget(invert, row, 3);
}

void WeaveEditor::makeYarn(QGridLayout& layout, WeavePattern::YarnType type) {
    YarnRow& row = yarns_[static_cast<std::size_t>(type)];
    QString const name = type == WeavePattern::Warp ? tr("Warp") : tr("Weft");
    row.width = new NumberSpin(NumberSpin::Kind::Single, this);
    row.tension = new NumberSpin(NumberSpin::Kind::Single, this);
    row.kind = new QComboBox(this);
    row.kind->addItems({tr("Ribbon"), tr("Round")}); // in the order of their numbers
    row.width->setAccessibleName(tr("%1: width").arg(name));
    row.tension->setAccessibleName(tr("%1: tension").arg(name));
    row.kind->setAccessibleName(tr("%1: section").arg(name));
    row.width->setObjectName(type == WeavePattern::Warp ? "warpWidth" : "weftWidth");
    connect(row.width, &QDoubleSpinBox::valueChanged, this, [this, type](double number) {
        WeavePattern weave = grid_->weave();
        weave.setWidth(type, static_cast<float>(number));
        showWeave(weave);
        emit stepped();
    });
    connect(row.tension, &QDoubleSpinBox::valueChanged, this, [this, type](double number) {
        WeavePattern weave = grid_->weave();
        weave.setTension(type, static_cast<float>(number));
        showWeave(weave);
        emit stepped();
    });
    connect(row.width, &QAbstractSpinBox::editingFinished, this, &ValueField::finished);
    connect(row.tension, &QAbstractSpinBox::editingFinished, this, &ValueField::finished);
    connect(row.kind, &QComboBox::activated, this, [this, type](int kind) {
        WeavePattern weave = grid_->weave();
        weave.setKind(type, static_cast<WeavePattern::YarnKind>(kind));
        give(weave);
    });
    int const at = layout.rowCount();
    layout.addWidget(new QLabel(name, this), at, 0);
    layout.addWidget(row.width, at, 1);
    layout.addWidget(row.tension, at, 2);
    layout.addWidget(row.kind, at, 3);
}

void WeaveEditor::showValue(zsg::Variant const& value) {
    if (auto const weave = zsg::tryGet<WeavePattern>(value)) {
        showWeave(*weave);
    }
}

std::unique_ptr<zsg::Variant> WeaveEditor::wanted() const { return makeValue(grid_->weave()); }

void WeaveEditor::showWeave(WeavePattern const& weave) {
    grid_->setWeave(weave);
    preview_->show(weave);
    QSignalBlocker const noWarps(warps_);
    QSignalBlocker const noWefts(wefts_);
    warps_->setMaximum(std::max(largestSide, weave.numWarp()));
    wefts_->setMaximum(std::max(largestSide, weave.numWeft()));
    warps_->setValue(weave.numWarp());
    wefts_->setValue(weave.numWeft());
    for (auto const type : {WeavePattern::Warp, WeavePattern::Weft}) {
        YarnRow const& row = yarns_[static_cast<std::size_t>(type)];
        row.width->showNumber(double(weave.width(type)));
        row.tension->showNumber(double(weave.tension(type)));
        row.kind->setCurrentIndex(weave.kind(type));
    }
}

void WeaveEditor::give(WeavePattern const& weave) {
    showWeave(weave);
    emit stepped();
    emit finished();
}

void WeaveEditor::generate() {
    give(generators[generator_->currentIndex()].make(countOf(first_), countOf(second_)));
}

} // namespace workbench
