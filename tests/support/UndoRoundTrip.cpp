#include "support/UndoRoundTrip.h"

#include "support/lines.h"

#include "zcore/ZUndoCommand.h"

#include <gtest/gtest.h>

#include <regex>

UndoRoundTrip::UndoRoundTrip(ZUndoStack& stack, std::function<std::string()> dump,
                             Abbreviations abbreviations)
    : stack_(stack), dump_(std::move(dump)), abbreviations_(std::move(abbreviations)) {}

std::string UndoRoundTrip::since(std::string const& before) const {
    std::string changed = selectLines(dump_(), "; ", [&](std::string const& line) {
        return ('\n' + before).find('\n' + line + '\n') == std::string::npos;
    });
    changed = std::regex_replace(changed, std::regex("\""), "'");
    for (auto const& [what, brief] : abbreviations_) {
        changed = std::regex_replace(changed, std::regex(what), brief);
    }
    return changed;
}

std::string UndoRoundTrip::history() const {
    std::string text;
    for (int i = 0; i < stack_.index(); ++i) {
        bool const macro = stack_.command(i)->id() == ZCommandId::Macro;
        text += std::string(i ? "; " : "") + (macro ? "+" : "") + stack_.text(i).toStdString();
    }
    return text;
}

void UndoRoundTrip::check(std::vector<Edit> const& edits) {
    for (Edit const& wanted : edits) {
        SCOPED_TRACE(wanted.history + ": " + wanted.changes);
        std::string const before = dump_();
        wanted.run();
        EXPECT_EQ(history(), wanted.history);
        for (int turn = 0; turn < 2; ++turn) {
            EXPECT_EQ(since(before), wanted.changes);
            EXPECT_TRUE(stack_.goTo(0));
            EXPECT_EQ(since(before), wanted.left);
            EXPECT_TRUE(stack_.goTo(turn == 0 ? stack_.count() : 0));
        }
        stack_.clear();
    }
}
