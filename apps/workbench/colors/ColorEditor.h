#pragma once

#include "workbench/colors/ColorState.h"
#include "workbench/scene/EditDrag.h"
#include "workbench/scene/Panel.h"

#include "nyxrender/Ids.h"

#include <array>
#include <memory>

class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;

namespace workbench {

struct Changes;
class ChannelRow;
class ColorWheel;
class Scene;
class SwatchView;

/// Value and name of one colour. Of a multi-colour it edits the sub-colour that is active. Showing
/// a colour changes nothing of it, whatever its value: what is edited is the four floats.
class ColorEditor final : public Panel {
    Q_OBJECT

public:
    explicit ColorEditor(Scene& scene, QWidget* parent = nullptr);
    ~ColorEditor() override;

    /// The colour to show; the invalid id for none. An edit that is going on ends.
    void setColor(nyx::ColorId id);

    [[nodiscard]] int rowCount() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeChannels();
    void makeTexts();
    void follow(Changes const& changes);
    void readColor();
    void showState();
    void showUsers();
    void begin(QWidget& source);
    void moved();
    void end();
    void cancel();
    /// One step by a key or the wheel: those that follow at once are the same entry.
    void step(QWidget& source);
    void push(EditDrag::Step kind);
    void commitHex();
    void commitName();

    Scene& scene_;
    nyx::ColorId shown_;  ///< what was selected
    nyx::ColorId edited_; ///< itself, or the active sub-colour of it
    ColorState state_;
    ColorState before_; ///< when the drag began
    SwatchView* swatch_;
    ColorWheel* wheel_;
    QTabWidget* pages_;
    std::array<ChannelRow*, 10> channels_{};
    QLineEdit* name_;
    QLineEdit* hex_;
    QLabel* subject_;
    QListWidget* users_;
    std::unique_ptr<EditDrag> drag_; ///< ends first
};

} // namespace workbench
