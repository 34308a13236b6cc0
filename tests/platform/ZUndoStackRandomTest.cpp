#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

namespace {

using Document = std::array<int, 3>;

/// Sets one value; merges with a later one that sets the same value when both may.
class Set final : public ZUndoCommand {
public:
    Set(Document& document, std::size_t slot, int value, bool merges, bool fails)
        : ZUndoCommand(ZCommandId::None),
          document_(document),
          slot_(slot),
          before_(document[slot]),
          after_(value),
          merges_(merges),
          fails_(fails) {}

    bool redo() override {
        document_[slot_] = fails_ ? document_[slot_] : after_;
        return !fails_;
    }
    bool undo() override {
        document_[slot_] = before_;
        return true;
    }
    bool mergeWith(ZUndoCommand const* other) override {
        auto const& later = dynamic_cast<Set const&>(*other);
        if (!merges_ || later.slot_ != slot_) {
            return false;
        }
        after_ = later.after_;
        merges_ = later.merges_;
        return true;
    }

private:
    Document& document_;
    std::size_t slot_;
    int before_;
    int after_;
    bool merges_;
    bool fails_;
};

/// What the history promises, said with whole documents: one per index.
struct Model {
    struct Entry {
        Document after;
        std::size_t slot;
        bool merges;
    };
    Document oldest{};
    std::vector<Entry> entries{};
    int index = 0;
    int clean = 0;
    int limit = 0;

    [[nodiscard]] int count() const { return static_cast<int>(entries.size()); }
    [[nodiscard]] Document const& at(int i) const {
        return i == 0 ? oldest : entries[static_cast<std::size_t>(i - 1)].after;
    }
    void dropUndone() {
        entries.erase(entries.begin() + index, entries.end());
        clean = clean > index ? -1 : clean;
    }
    void add(Entry const& entry) {
        dropUndone();
        if (index > 0 && clean != index && entries.back().merges &&
            entries.back().slot == entry.slot) {
            entries.back() = entry;
        } else {
            entries.push_back(entry);
        }
        while (limit > 0 && count() > limit) {
            oldest = entries.front().after;
            entries.erase(entries.begin());
            clean = clean < 0 ? -1 : clean - 1;
        }
        index = count();
    }
};

class ZUndoStackRandomTest : public testing::TestWithParam<unsigned> {
protected:
    int random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(generator_); }

    /// Pushes one edit and says whether it was done.
    bool push(std::size_t slot, bool merges) {
        bool const fails = random(8) == 0;
        EXPECT_EQ(stack.push(new Set(document, slot, ++value_, merges, fails)), !fails);
        return !fails;
    }

    void pushMacro() {
        stack.beginMacro("M");
        bool pushed = false;
        for (int step = random(6), open = 0; step > 0 || open > 0; --step) {
            switch (step > 0 ? random(4) : 2) {
            case 1:
                stack.beginMacro("N");
                ++open;
                break;
            case 2:
                if (open > 0) {
                    stack.endMacro("");
                    --open;
                }
                break;
            default:
                if (push(static_cast<std::size_t>(random(3)), random(2) == 0)) {
                    pushed = true;
                    model.dropUndone();
                }
            }
        }
        stack.endMacro("");
        if (pushed) {
            // No slot merges with it.
            model.add({document, document.size(), false});
        }
    }

    void edit() {
        int const target = random(model.count() + 1);
        auto const slot = static_cast<std::size_t>(random(3));
        bool const merges = random(2) == 0;
        switch (random(16)) {
        case 0:
            pushMacro();
            break;
        case 1:
            stack.setClean();
            model.clean = model.index;
            break;
        case 2:
            // Only upwards: lowering it is a case of its own.
            model.limit = model.limit == 0 ? 12 : 0;
            if (model.count() <= 12) {
                stack.setLimit(model.limit);
            } else {
                model.limit = stack.limit();
            }
            break;
        case 3:
        case 4:
            EXPECT_TRUE(stack.goTo(target));
            model.index = target;
            break;
        case 5:
        case 6:
        case 7:
            EXPECT_EQ(stack.undo(), model.index > 0);
            model.index -= model.index > 0 ? 1 : 0;
            break;
        case 8:
        case 9:
            EXPECT_EQ(stack.redo(), model.index < model.count());
            model.index += model.index < model.count() ? 1 : 0;
            break;
        default:
            if (push(slot, merges)) {
                model.add({document, slot, merges});
            }
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
    for (int step = 0; step < 2000; ++step) {
        edit();
        ASSERT_EQ(document, model.at(model.index)) << "after step " << step;
        ASSERT_EQ(stack.index(), model.index) << "after step " << step;
        ASSERT_EQ(stack.count(), model.count()) << "after step " << step;
        ASSERT_EQ(stack.cleanIndex(), model.clean) << "after step " << step;
    }
    EXPECT_TRUE(stack.goTo(0));
    EXPECT_EQ(document, model.oldest);
    EXPECT_TRUE(stack.goTo(stack.count()));
    EXPECT_EQ(document, model.at(model.count()));
}

INSTANTIATE_TEST_SUITE_P(Seeds, ZUndoStackRandomTest, testing::Range(1U, 9U));

} // namespace
