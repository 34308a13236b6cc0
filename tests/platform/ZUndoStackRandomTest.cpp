#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <random>
#include <vector>

namespace {

using Document = std::array<int, 3>;

/// Sets one value; a merging one merges with a later one of the same slot.
class Set final : public ZUndoCommand {
public:
    Set(int& place, int value, bool merges)
        : ZUndoCommand(ZCommandId::None),
          place_(place),
          before_(place),
          after_(value),
          merges_(merges) {}

    bool redo() override {
        place_ = after_;
        return true;
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
};

/// What the history promises, said with whole documents: states[i] is the one at index i.
struct Model {
    struct State {
        Document document;
        std::optional<std::size_t> mergingSlot; // of the entry that led here
    };

    [[nodiscard]] int count() const { return static_cast<int>(states.size()) - 1; }
    void add(State const& state, std::optional<std::size_t> slot) {
        states.resize(static_cast<std::size_t>(index) + 1);
        clean = clean > index ? -1 : clean;
        if (slot && index > 0 && clean != index && states.back().mergingSlot == slot) {
            states.pop_back();
        }
        states.push_back(state);
        if (limit > 0 && count() > limit) {
            states.erase(states.begin());
            clean = clean < 0 ? -1 : clean - 1;
        }
        index = count();
    }

    std::vector<State> states{{}};
    int index = 0;
    int clean = 0;
    int limit = 0;
};

class ZUndoStackRandomTest : public testing::TestWithParam<unsigned> {
protected:
    int random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(generator_); }

    void push(bool intoMacro) {
        auto const slot = static_cast<std::size_t>(random(3));
        bool const merges = random(2) == 0;
        EXPECT_TRUE(stack.push(new Set(document.at(slot), ++value_, merges)));
        if (!intoMacro) {
            model.add({document, merges ? std::optional(slot) : std::nullopt}, slot);
        }
    }

    void pushMacro() {
        int const edits = random(6);
        stack.beginMacro("M");
        for (int i = 0; i < edits; ++i) {
            stack.beginMacro("N");
            push(true);
            if (random(2) == 0) {
                push(true);
            }
            stack.endMacro("");
        }
        stack.endMacro("");
        if (edits > 0) {
            model.add({document, {}}, {});
        }
    }

    void edit() {
        int const kind = random(16);
        if (kind == 0) {
            pushMacro();
        } else if (kind == 1) {
            stack.setClean();
            model.clean = model.index;
        } else if (kind == 2) {
            model.index = random(model.count() + 1);
            EXPECT_TRUE(stack.goTo(model.index));
        } else if (kind < 6) {
            EXPECT_EQ(stack.undo(), model.index > 0);
            model.index -= model.index > 0 ? 1 : 0;
        } else if (kind < 8) {
            EXPECT_EQ(stack.redo(), model.index < model.count());
            model.index += model.index < model.count() ? 1 : 0;
        } else {
            push(false);
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
        ASSERT_EQ(document, model.states.at(static_cast<std::size_t>(model.index)).document);
        ASSERT_EQ(stack.index(), model.index) << "after step " << step;
        ASSERT_EQ(stack.count(), model.count()) << "after step " << step;
        ASSERT_EQ(stack.cleanIndex(), model.clean) << "after step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ZUndoStackRandomTest, testing::Range(1U, 9U));

} // namespace
