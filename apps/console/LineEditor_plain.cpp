#include "console/LineEditor.h"

#include "console/Interrupts.h"
#include "host/Interruption.h"
#include "host/LineReader.h"

#include <chrono>
#include <cstdio>
#include <iostream>
#include <thread>

class LineEditor::Impl {};

// As the other editor takes it. NOLINTNEXTLINE(performance-unnecessary-value-param)
LineEditor::LineEditor(Complete) {}

LineEditor::~LineEditor() = default;

LineEditor::Result LineEditor::readCommand(char const* prompt, std::string& line) {
    std::cout << prompt << std::flush;
    if (!waitForInput()) {
        return Result::Interrupted;
    }
    switch (app::readLine(std::cin, line)) {
    case app::ReadResult::End:
        // Where an interrupt ends the reading itself, another thread is about to say so.
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        std::cin.clear();
        std::clearerr(stdin);
        return app::takeInterruption() ? Result::Interrupted : Result::End;
    case app::ReadResult::TooLong:
        app::skipLine(std::cin);
        line.clear();
        break;
    case app::ReadResult::Line:
        break;
    }
    return Result::Line;
}

LineEditor::Result LineEditor::readAnswer(char const* prompt, std::string& line) {
    return readCommand(prompt, line);
}
