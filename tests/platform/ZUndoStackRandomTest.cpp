#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

namespace {

using Document = std::array<int, 3>;

/// Sets one value; a merging one merges with a later one of the same slot.
class Set final : public ZUndoCommand {
public:
    Set(Document& document, std::size_t slot, int value, bool merges, bool works)
        : ZUndoCommand(ZCommandId::None),
          place_(document[slot]),
          before_(place_),
          after_(value),
          merges_(merges),
          works_(works) {}

    bool redo() override {
        place_ = works_ ? after_ : place_;
        return works_;
    }
    bool undo() override {
        place_ = before_;
        return true;
    }
    bool mergeWith(ZUndoCommand const* other) override {
        auto const& later = dynamic_cast<Set const&>(*other);
        bool const merged = merges_ && &later.place_ == &place_;
        after_ = merged ? later.after_ : after_;
        merges_ = merged ? later.merges_ : merges_;
        return merged;
    }

private:
    int& place_;
    int before_;
    int after_;
    bool merges_;
    bool works_;
};

/// What the history promises, said with whole documents: one per index.
class Model {
public:
    struct Entry {
        Document after;
        std::size_t slot; // no real slot for a macro
        bool merges;
    };

    [[nodiscard]] int count() const { return static_cast<int>(entries_.size()); }
    [[nodiscard]] Document const& at(int i) const {
        return i == 0 ? oldest_ : entries_[static_cast<std::size_t>(i - 1)].after;
    }
    void dropUndone() {
        entries_.erase(entries_.begin() + index, entries_.end());
        clean = clean > index ? -1 : clean;
    }
    void add(Entry const& entry) {
        dropUndone();
        if (index > 0 && clean != index && entries_.back().merges &&
            entries_.back().slot == entry.slot) {
            entries_.pop_back();
        }
        entries_.push_back(entry);
        while (limit > 0 && count() > limit) {
            oldest_ = entries_.front().after;
            entries_.erase(entries_.begin());
            clean = clean < 0 ? -1 : clean - 1;
        }
        index = count();
    }

    int index = 0;
    int clean = 0;
    int limit = 0;

private:
    Document oldest_{};
    std::vector<Entry> entries_;
};

class ZUndoStackRandomTest : public testing::TestWithParam<unsigned> {
protected:
    int random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(generator_); }

    /// Pushes one edit, alone or into the open macros.
    void push(bool& pushed) {
        auto const slot = static_cast<std::size_t>(random(3));
        bool const merges = random(2) == 0;
        bool const works = random(8) != 0;
        EXPECT_EQ(stack.push(new Set(document, slot, ++value_, merges, works)), works);
        if (works && stack.macroDepth() == 0) {
            model.add({document, slot, merges});
        } else if (works) {
            model.dropUndone();
        }
        pushed = pushed || works;
    }

    void pushMacro() {
        bool pushed = false;
        stack.beginMacro("M");
        for (int step = random(6); step > 0; --step) {
            random(3) == 0 ? stack.beginMacro("N") : push(pushed);
            if (stack.macroDepth() > 1 && random(2) == 0) {
                stack.endMacro("");
            }
        }
        while (stack.macroDepth() > 0) {
            stack.endMacro("");
        }
        if (pushed) {
            model.add({document, document.size(), false});
        }
    }

    void edit() {
        bool pushed = false;
        switch (int const kind = random(16)) {
        case 0:
            return pushMacro();
        case 1:
            stack.setClean();
            model.clean = model.index;
            return;
        case 2:
            model.index = random(model.count() + 1);
            EXPECT_TRUE(stack.goTo(model.index));
            return;
        case 3:
        case 4:
        case 5:
        case 6:
        case 7: {
            bool const back = kind < 6;
            int const end = back ? 0 : model.count();
            EXPECT_EQ(back ? stack.undo() : stack.redo(), model.index != end);
            model.index += model.index == end ? 0 : back ? -1 : 1;
            return;
        }
        default:
            return push(pushed);
        }
    }

    Document document{};
    ZUndoStack stack;
    Model model;

private:
    std::mt19937 generator_{GetParam()};
    int value_ = 0;
};

TEST_P(ZUndoStackRandomTest, AlwaysLeadsToThePromisedState) {
    model.limit = GetParam() % 2 == 0 ? 0 : 7;
    stack.setLimit(model.limit);
    for (int step = 0; step < 2000; ++step) {
        edit();
        ASSERT_EQ(document, model.at(model.index)) << "after step " << step;
        ASSERT_EQ(stack.index(), model.index) << "after step " << step;
        ASSERT_EQ(stack.count(), model.count()) << "after step " << step;
        ASSERT_EQ(stack.cleanIndex(), model.clean) << "after step " << step;
    }
    EXPECT_TRUE(stack.goTo(0));
    EXPECT_EQ(document, model.at(0));
    EXPECT_TRUE(stack.goTo(stack.count()));
    EXPECT_EQ(document, model.at(model.count()));
}

INSTANTIATE_TEST_SUITE_P(Seeds, ZUndoStackRandomTest, testing::Range(1U, 9U));

} // namespace
