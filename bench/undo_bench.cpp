// Rows 4a to 4c: the undo stack of the embedded platform beside Qt's.

#include "Rows.h"

#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

#include <QUndoCommand>
#include <QUndoStack>

#include <cstddef>
#include <malloc.h>
#include <memory>

namespace {

// The same small edit for both: one value before and after, no text.
template <class Base>
struct Edit : Base {
    template <class... Arguments>
    Edit(int* target, int after, Arguments... arguments)
        : Base(arguments...), target_(target), before_(*target), after_(after) {}

    int* target_;
    int before_;
    int after_;
};

template <bool merging>
struct OurEdit final : Edit<ZUndoCommand> {
    OurEdit(int* target, int after) : Edit<ZUndoCommand>(target, after, ZCommandId::EditColor) {}
    bool undo() override {
        *target_ = before_;
        return true;
    }
    bool redo() override {
        *target_ = after_;
        return true;
    }
    bool mergeWith(ZUndoCommand const* other) override {
        if (!merging || other->id() != id()) {
            return false;
        }
        after_ = static_cast<OurEdit const*>(other)->after_;
        return true;
    }
};

template <bool merging>
struct QtEdit final : Edit<QUndoCommand> {
    using Edit<QUndoCommand>::Edit;
    void undo() override { *target_ = before_; }
    void redo() override { *target_ = after_; }
    [[nodiscard]] int id() const override { return merging ? 177 : -1; }
    bool mergeWith(QUndoCommand const* other) override {
        after_ = static_cast<QtEdit const*>(other)->after_;
        return true;
    }
};

struct Ours {
    using Stack = ZUndoStack;
    template <bool merging>
    using Command = OurEdit<merging>;
};
struct Qt {
    using Stack = QUndoStack;
    template <bool merging>
    using Command = QtEdit<merging>;
};

constexpr int commands = 1'000'000;

template <class Which, bool merging = false>
void fill(typename Which::Stack& stack, int& value) {
    for (int i = 0; i < commands; ++i) {
        stack.push(new typename Which::template Command<merging>(&value, i));
    }
}

/// A million pushes on an empty stack; the merging ones leave one entry.
template <class Which, bool merging>
void push(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        int value = 0;
        auto stack = std::make_unique<typename Which::Stack>();
        state.ResumeTiming();
        fill<Which, merging>(*stack, value);
        benchmark::DoNotOptimize(value);
        state.PauseTiming();
        stack.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * commands);
}

/// A million undos (redos) through a full stack.
template <class Which, bool forward>
void walk(benchmark::State& state) {
    int value = 0;
    typename Which::Stack stack;
    fill<Which>(stack, value);
    auto const undoAll = [&stack] {
        for (int i = 0; i < commands; ++i) {
            stack.undo();
        }
    };
    auto const redoAll = [&stack] {
        for (int i = 0; i < commands; ++i) {
            stack.redo();
        }
    };
    for (auto _ : state) {
        if constexpr (forward) {
            state.PauseTiming();
            undoAll();
            state.ResumeTiming();
            redoAll();
        } else {
            undoAll();
            state.PauseTiming();
            redoAll();
            state.ResumeTiming();
        }
    }
    state.SetItemsProcessed(state.iterations() * commands);
}

template <class Which>
void destroy(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        int value = 0;
        auto stack = std::make_unique<typename Which::Stack>();
        fill<Which>(*stack, value);
        state.ResumeTiming();
        stack.reset();
    }
    state.SetItemsProcessed(state.iterations() * commands);
}

/// Heap bytes of a full stack, told as seconds per gigabyte, so that ratios are those of the bytes.
template <class Which>
void memory(benchmark::State& state) {
    for (auto _ : state) {
        int value = 0;
        auto const inUse = [] {
            auto const info = mallinfo2();
            return info.uordblks + info.hblkhd;
        };
        std::size_t const before = inUse();
        typename Which::Stack stack;
        fill<Which>(stack, value);
        state.SetIterationTime(static_cast<double>(inUse() - before) / 1e9);
    }
}

bool const registered = [] {
    auto const pair = [](char const* row, char const* workload, double atMost, auto ours, auto qt) {
        bench::target({row, workload, "QUndoStack", atMost});
        return std::pair(bench::contestant(row, workload, bench::ours, ours),
                         bench::contestant(row, workload, "QUndoStack", qt));
    };
    pair("4a", "push", 0.40, push<Ours, false>, push<Qt, false>);
    pair("4a", "push, merged", 0.40, push<Ours, true>, push<Qt, true>);
    pair("4b", "undo", 0.20, walk<Ours, false>, walk<Qt, false>);
    pair("4b", "redo", 0.20, walk<Ours, true>, walk<Qt, true>);
    pair("4c", "destroy", 0.80, destroy<Ours>, destroy<Qt>);
    auto const [ours, qt] = pair("4c", "bytes", 0.60, memory<Ours>, memory<Qt>);
    ours->UseManualTime()->Iterations(1);
    qt->UseManualTime()->Iterations(1);
    return true;
}();

} // namespace
