#include "host/Interpreter.h"

#include "host/CommandTable.h"
#include "host/Host.h"
#include "host/Interruption.h"
#include "host/LineReader.h"
#include "host/printable.h"
#include "zsg/values/pathFromUtf8.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>

namespace app {

namespace {

/// A block of the colour before each "#rrggbb", in the escape sequences of a terminal.
std::string withSwatches(std::string const& text) {
    constexpr std::string_view hex = "0123456789abcdef";
    std::string result;
    std::size_t done = 0;
    for (std::size_t i = text.find('#'); i != std::string::npos; i = text.find('#', i + 1)) {
        if (text.find_first_not_of(hex, i + 1) < i + 7 || text.size() < i + 7) {
            continue;
        }
        auto const part = [&](std::size_t at) {
            return std::to_string(std::stoi(text.substr(i + at, 2), nullptr, 16));
        };
        result += text.substr(done, i - done) + "\x1b[48;2;" + part(1) + ';' + part(3) + ';' +
                  part(5) + "m   \x1b[0m ";
        done = i;
    }
    return result + text.substr(done);
}

/// Without what a library puts in front for its own developers.
std::string message(std::exception const& error) {
    std::string text = error.what();
    std::size_t const begin = text.find("[json.exception.");
    std::size_t const end = text.find("] ", std::min(begin, text.size()));
    if (end != std::string::npos && begin != std::string::npos) {
        text.erase(begin, end + 2 - begin);
    }
    return printable(text, longestMessage);
}

void echoLine(std::ostream& out, std::string_view line) {
    std::size_t const first = line.find_first_not_of(" \t\r");
    bool const isCommand = first != std::string_view::npos && line[first] != '#';
    out << (isCommand ? "zsg> " : "") << printable(line.substr(0, line.find_last_not_of('\r') + 1))
        << '\n';
}

} // namespace

void Interpreter::run(std::string_view line) {
    if (std::size_t const at = invalidUtf8At(line); at != std::string_view::npos) {
        throw CommandError("byte " + std::to_string(at + 1) + " is not valid UTF-8");
    }
    run(splitWords(line));
}

void Interpreter::run(std::vector<std::string> const& words) {
    if (words.empty()) {
        return;
    }
    // Names and paths end at it further down, so they would become others than those given.
    if (std::ranges::any_of(words, [](auto const& w) { return w.find('\0') != w.npos; })) {
        throw CommandError("a word holds a zero byte");
    }
    std::ostream& out = host_.out();
    std::ostringstream captured;
    host_.setOut(captured);
    std::string failure;
    char const* code = "failed";
    try {
        if (!own_ || !own_(words)) {
            carryOut(host_, words);
        }
    } catch (CommandError const& error) {
        failure = message(error);
        code = error.code();
    } catch (std::exception const& error) {
        failure = message(error);
    }
    host_.setOut(out);
    std::string const text = printableLines(captured.view());
    out << (swatches_ ? withSwatches(text) : text);
    if (!failure.empty()) {
        throw CommandError(failure, code);
    }
    // Several expectations may look at the output of one command.
    if (words[0] != "expect") {
        host_.state<LastOutput>().text = text;
    }
}

int Interpreter::runScript(std::istream& in, std::string const& name, bool keepGoing,
                           std::ostream& errors) {
    int failures = 0;
    int number = 0;
    std::string line;
    while (!host_.endRequested()) {
        ReadResult const result = readLine(in, line);
        if (result == ReadResult::End) {
            break;
        }
        ++number;
        constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
        if (number == 1 && line.starts_with(byteOrderMark)) {
            line.erase(0, byteOrderMark.size());
        }
        try {
            if (result == ReadResult::TooLong) {
                throw CommandError("the line is longer than " + std::to_string(longestLine) +
                                   " bytes");
            }
            if (echo_) {
                echoLine(host_.out(), line);
            }
            run(line);
            endIfInterrupted();
        } catch (std::exception const& error) {
            std::string const text =
                printable(name) + ':' + std::to_string(number) + ": " + error.what();
            auto const* const ours = dynamic_cast<CommandError const*>(&error);
            if (ours && ours->code() == std::string_view("interrupted")) {
                throw CommandError(text, ours->code()); // the whole script is meant
            }
            ++failures;
            host_.out().flush();
            errors << text << std::endl;
            if (!keepGoing) {
                break;
            }
            if (result == ReadResult::TooLong) {
                skipLine(in);
            }
        }
    }
    return failures;
}

int Interpreter::runScriptFile(std::string const& path, bool keepGoing, std::ostream& errors) {
    std::filesystem::path const name = zsg::pathFromUtf8(path);
    std::error_code ignored;
    bool const isFolder = std::filesystem::is_directory(name, ignored);
    std::ifstream in;
    if (!isFolder) {
        in.open(name, std::ios::binary);
    }
    if (!in.is_open()) {
        errors << (path.empty() ? "\"\"" : printable(path))
               << (isFolder ? ": is a folder, not a script\n" : ": cannot be opened\n");
        return 1;
    }
    return runScript(in, path, keepGoing, errors);
}

} // namespace app
