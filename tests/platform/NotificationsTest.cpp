#include "support/TestScene.h"

#include "nyxembedded/Warnings.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <functional>
#include <stdexcept>

using nyx::ColorId;

namespace {

/// Writes down what is delivered: "5006 3 1", "5007 2", and what its functions write themselves.
class Notifications : public TestScene {
protected:
    Notifications() {
        renderer.setMessageHandler([this](nyxMessage const& message) {
            log += std::to_string(message.code);
            for (ColorId const id : message.colors) {
                log += ' ' + std::to_string(id.toUint());
            }
            if (message.colorway.isValid()) {
                log += ' ' + std::to_string(message.colorway.toUint());
            }
            log += '\n';
            if (onMessage) {
                onMessage(message);
            }
        });
    }

    void commitValue(ColorId id, float red) {
        edit(id, [red](nyxParameter_edit& block) { value(block, "color").rgba[0] = red; });
    }
    void later(std::string const& text) {
        api()->call_after_sync([this, text] { log += text + '\n'; });
    }
    std::string take() { return std::exchange(log, {}); }

    std::string log;
    std::function<void(nyxMessage const&)> onMessage;
};

} // namespace

TEST_F(Notifications, OneTurnDeliversColorsThenMessagesThenFunctions) {
    SmallScene const made = addSmallScene();
    later("a");
    renderer.colorways().activate(made.winter);
    commitValue(made.blue, 0.5f);
    commitValue(made.red, 0.5f);
    later("b");
    commitValue(made.blue, 0.75f);
    commitValue(made.green, 0.0f); // what it was
    EXPECT_EQ(take(), "") << "never inside the call";
    QCoreApplication::processEvents();
    renderer.processEvents();
    EXPECT_EQ(take(), "5006 3 1\n5007 2\na\nb\n") << "all of it once";
    EXPECT_EQ(renderer.colorways().active(), made.winter);
    EXPECT_EQ(renderer.colors().record(made.cover)->activeSub, made.green);
    EXPECT_EQ(renderer.colorways().record(made.winter)->flags, 2u);
    EXPECT_TRUE(renderer.colorways().activate(made.summer));
    EXPECT_EQ(renderer.colorways().record(made.winter)->flags, 0u);
    EXPECT_FALSE(renderer.colorways().activate(nyx::ColorwayId(9)) ||
                 renderer.colors().change(ColorId(99), {}));
    renderer.colors().change(made.green, {0, 1, 0, 1});
    edit(made.cover, [&](nyxParameter_edit& block) {
        setList(value(block, "sub_colors"), std::vector{made.green, made.red}); // and nothing else
    });
    renderer.processEvents();
    EXPECT_EQ(take(), "5006 2 4\n5007 1\n");

    // Only a sub-colour that a multi-colour lists becomes its active one.
    nyx::ColorwayId const odd = renderer.colorways().add(
        "Odd", {{made.cover, made.blue}, {made.red, made.green}, {ColorId(99), made.red}});
    EXPECT_TRUE(renderer.colorways().activate(odd));
    EXPECT_EQ(renderer.colors().record(made.cover)->activeSub, made.red);
    EXPECT_FALSE(renderer.colors().record(made.red)->activeSub.isValid());
}

TEST_F(Notifications, WhatReceiversCauseWaitsForTheTurnAfter) {
    SmallScene const made = addSmallScene();
    int rounds = 0;
    onMessage = [&](nyxMessage const& message) {
        if (message.code == nyxMessage::ColorsSynced && ++rounds == 1) {
            commitValue(made.green, 0.25f);
            renderer.processEvents(); // ignored inside a delivery
            later("caused");
        }
    };
    commitValue(made.red, 0.25f);
    later("own");
    renderer.processEvents();
    EXPECT_EQ(take(), "5006 1\nown\n5006 2\ncaused\n");

    std::string warnings;
    nyx::embedded::setWarningHandler([&](std::string_view text) { warnings += text; });
    std::function<void()> const again = [&] { api()->call_after_sync(again); };
    again();
    renderer.processEvents();
    EXPECT_NE(warnings.find("1000 turns"), std::string::npos);
    nyx::embedded::setWarningHandler({});
    renderer.faults().holdNotifications = true;
}

TEST_F(Notifications, AThrowingReceiverLosesOnlyItsOwn) {
    SmallScene const made = addSmallScene();
    onMessage = [](nyxMessage const&) { throw std::runtime_error("receiver"); };
    commitValue(made.red, 0.25f);
    renderer.colorways().activate(made.summer);
    later("function");
    EXPECT_THROW(renderer.processEvents(), std::runtime_error);
    onMessage = nullptr;
    later("more");
    renderer.processEvents();
    EXPECT_EQ(take(), "5006 1\n5007 1\nfunction\nmore\n");
}

TEST_F(Notifications, HeldOnesArriveWhenTheHoldEnds) {
    SmallScene const made = addSmallScene();
    renderer.faults().holdNotifications = true;
    commitValue(made.red, 0.25f);
    QCoreApplication::processEvents();
    renderer.processEvents();
    EXPECT_EQ(take(), "");
    commitValue(made.green, 0.25f);
    renderer.faults().holdNotifications = false;
    for (QDeadlineTimer end(5000); log.empty() && !end.hasExpired();) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
    EXPECT_EQ(take(), "5006 1 2\n");
}

TEST_F(Notifications, LoadingAnnouncesTheNewColorsAndForgetsTheOldOnes) {
    SmallScene const made = addSmallScene();
    nyx::embedded::Renderer other;
    other.colors().add("Only", {});
    commitValue(made.green, 0.25f);
    renderer.colorways().activate(made.summer);
    api()->set_modified(true);
    EXPECT_NE(renderer.loadSceneText("{"), "");
    EXPECT_TRUE(renderer.isModified());
    ASSERT_EQ(renderer.loadSceneText(other.saveSceneText()), "");
    EXPECT_FALSE(renderer.isModified());
    later("kept");
    renderer.processEvents();
    EXPECT_EQ(take(), "5006 1\nkept\n");
    renderer.colors().add("Second", {});
    renderer.colors().announce();
    renderer.colorways().activate(renderer.colorways().add("Old", {}));
    onMessage = [&](nyxMessage const&) {
        onMessage = nullptr;
        EXPECT_EQ(renderer.loadSceneText(other.saveSceneText()), "");
    };
    renderer.processEvents();
    EXPECT_EQ(take(), "5006 1 5\n5006 1\n") << "the old colorway's message was under way";
}
