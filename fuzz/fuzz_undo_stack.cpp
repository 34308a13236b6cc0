#include "require.h"

#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

#include <QLoggingCategory>
#include <fuzzer/FuzzedDataProvider.h>

#include <array>
#include <stdexcept>

namespace {

using Document = std::array<int, 4>;

int alive = 0; // commands

/// Sets one value of a document, and does one more thing while it runs or is deleted.
class Set final : public ZUndoCommand {
public:
    enum class Manner { Plain, Merges, Fails, Throws, CallsBack, kMaxValue = CallsBack };

    Set(ZUndoStack& stack, int& place, int value, Manner manner)
        : ZUndoCommand(ZCommandId::None),
          stack_(stack),
          place_(place),
          before_(place),
          after_(value),
          manner_(manner) {
        ++alive;
    }
    ~Set() override {
        --alive;
        callBack();
    }
    bool redo() override {
        if (manner_ == Manner::Fails) {
            return false;
        }
        place_ = after_;
        callBack();
        if (manner_ == Manner::Throws) {
            throw std::runtime_error("as a listener does, when the change is made");
        }
        return true;
    }
    bool undo() override {
        place_ = before_;
        callBack();
        return true;
    }
    bool mergeWith(ZUndoCommand const* other) override {
        callBack();
        auto const* const later = static_cast<Set const*>(other);
        bool const merges = manner_ == Manner::Merges && &later->place_ == &place_;
        after_ = merges ? later->after_ : after_;
        return merges;
    }

private:
    void callBack() {
        require(stack_.index() >= 0 && stack_.index() <= stack_.count());
        if (manner_ == Manner::CallsBack) {
            require(stack_.isExecuting() && !stack_.undo() && !stack_.redo() && !stack_.clear());
            require(!stack_.push(new Set(stack_, place_, 0, Manner::Plain)));
            stack_.beginMacro("refused");
            stack_.endMacro("refused");
            stack_.setClean();
            stack_.setLimit(stack_.limit());
        }
    }

    ZUndoStack& stack_;
    int& place_;
    int before_;
    int after_;
    Manner manner_;
};

/// Undoing all and redoing all must lead back here.
void checkRoundTrip(ZUndoStack& stack, Document const& document) {
    if (stack.macroDepth() > 0) {
        return;
    }
    Document const now = document;
    int const index = stack.index();
    require(stack.goTo(0) && stack.goTo(stack.count()) && stack.goTo(index));
    require(document == now && stack.index() == index);
}

} // namespace

/// Edits of a history, whose commands merge, fail, throw after their change, and call the stack.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static bool const quiet = [] {
        QLoggingCategory::setFilterRules("zcore.undo=false");
        return true;
    }();
    FuzzedDataProvider input(data, size);
    Document document{};
    {
        ZUndoStack stack;
        int serial = quiet ? 0 : 1;
        stack.setChangeCallback([&] { require(!stack.isExecuting()); });
        for (int edits = 0; input.remaining_bytes() > 0 && edits < 300; ++edits) {
            switch (input.ConsumeIntegralInRange(0, 9)) {
            case 0:
                stack.undo();
                break;
            case 1:
                stack.redo();
                break;
            case 2:
                stack.beginMacro("M");
                break;
            case 3:
                if (stack.macroDepth() > 0) {
                    stack.endMacro("");
                }
                break;
            case 4:
                stack.setClean();
                break;
            case 5:
                stack.setLimit(input.ConsumeIntegralInRange(0, 6));
                break;
            case 6:
                stack.goTo(input.ConsumeIntegralInRange(-1, 8));
                break;
            case 7:
                if (input.ConsumeIntegral<std::uint8_t>() == 0) {
                    stack.clear();
                }
                break;
            default: {
                auto const place = input.ConsumeIntegralInRange<std::size_t>(0, 3);
                auto const manner = input.ConsumeEnum<Set::Manner>();
                Document const before = document;
                bool done = false;
                try {
                    done = stack.push(new Set(stack, document.at(place), ++serial, manner));
                } catch (std::runtime_error const&) {}
                require(done == (manner != Set::Manner::Fails && manner != Set::Manner::Throws));
                require(done || document == before);
            }
            }
            require(stack.index() >= 0 && stack.index() <= stack.count());
            require(stack.limit() == 0 || stack.count() <= stack.limit());
            require(stack.cleanIndex() >= -1 && stack.cleanIndex() <= stack.count());
            checkRoundTrip(stack, document);
        }
        while (stack.macroDepth() > 0) {
            stack.endMacro("");
        }
    }
    require(alive == 0);
    return 0;
}
