#include "zcore/ZMainThreadCallback.h"

#include "nyxembedded/Renderer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPointer>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace {

TEST(ZMainThreadCallbackTest, RunsOnceAndDisposesOfItself) {
    for (bool const withApi : {true, false}) {
        nyx::embedded::Renderer renderer;
        auto parent = std::make_unique<QObject>();
        int runs = 0;
        auto const make = [&](std::function<void()> function) {
            return QPointer<QObject>(new ZMainThreadCallback(withApi ? renderer.api() : nullptr,
                                                             std::move(function), parent.get()));
        };

        auto const first = make([&] { ++runs; });
        auto const empty = make(nullptr);
        EXPECT_EQ(runs, 0) << "never at once";
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        EXPECT_EQ(runs, 1);
        EXPECT_TRUE(first.isNull() && empty.isNull());

        auto const ends = make([&, text = std::vector<int>(100, 1)] {
            parent.reset();
            runs += text.back();
        });
        auto const dropped = make([&] { runs += 100; });
        QCoreApplication::processEvents();
        EXPECT_EQ(runs, 2) << "the first ended the parent, and the second with it";
        EXPECT_TRUE(ends.isNull() && dropped.isNull());
    }
}

} // namespace
