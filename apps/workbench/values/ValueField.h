#pragma once

#include "zsg/values/Parameter.h"
#include "zsg/values/Variant.h"

#include <QWidget>

#include <memory>

namespace workbench {

/// Shows one value and lets a person change it. It writes nothing: it says what is wanted, and
/// whoever has it shows it the value again.
class ValueField : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    ~ValueField() override;

    /// Never causes a signal. The value has the type that the field was made for.
    virtual void showValue(zsg::Variant const& value) = 0;
    /// There are several values, of which `one` is the first.
    virtual void showMixed(zsg::Variant const& one) { showValue(one); }
    /// What the person wants, when one of the signals has come.
    [[nodiscard]] virtual std::unique_ptr<zsg::Variant> wanted() const = 0;
    /// The same for one of several values, of which only a part was touched; null when all of
    /// wanted() is meant.
    [[nodiscard]] virtual std::unique_ptr<zsg::Variant> wantedFor(zsg::Variant const& before) const;

signals:
    // A drag; the value counts with each move, and no longer when it is given up.
    void pressed();
    void moved();
    void released();
    void cancelled();
    /// As moved(), without a press: by a key, the wheel, or something typed.
    void stepped();
    /// Nothing more belongs to the last step.
    void finished();
    /// Why something is not done.
    void said(QString const& text);
};

/// The editor of a WeavePattern, ColorGradient or AnimationCurve, which needs room; null for any
/// other type.
[[nodiscard]] ValueField* makeEditor(zsg::Type type, QWidget* parent);

/// A field for what the parameter holds, as its type, limits, hint and unit ask for. For a type
/// that has none, one that says what is there.
[[nodiscard]] ValueField* makeField(zsg::Parameter const& parameter, QWidget* parent);

} // namespace workbench
