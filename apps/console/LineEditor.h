#pragma once

#include "host/Completion.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

/// Asks for lines at the terminal. With libedit they can be edited, called back from the history of
/// this and of earlier sessions, and completed by Tab; without it the terminal does what it can.
class LineEditor {
public:
    enum class Result {
        Line,
        Interrupted, ///< by Ctrl-C; what was typed is forgotten
        End,         ///< of input
    };
    using Complete = std::function<app::Completion(std::string_view line)>;

    explicit LineEditor(Complete complete);
    ~LineEditor();
    LineEditor(LineEditor const&) = delete;
    LineEditor& operator=(LineEditor const&) = delete;

    /// A command, which the history keeps.
    Result readCommand(char const* prompt, std::string& line);
    /// The answer to a question, which it does not.
    Result readAnswer(char const* prompt, std::string& line);

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};
