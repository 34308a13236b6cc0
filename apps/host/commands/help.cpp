#include "host/CommandTable.h"
#include "host/Host.h"
#include "host/printable.h"

#include <algorithm>
#include <ostream>

namespace app {

namespace {

void printRow(std::ostream& out, std::string const& left, std::size_t width,
              std::string_view right) {
    out << "  " << left << std::string(left.size() < width ? width - left.size() : 1, ' ') << right
        << '\n';
}

// "undo, redo": what the commands of a family begin with.
std::string firstWords(Family const& family) {
    std::string words;
    std::string_view last;
    for (Command const& command : family.commands) {
        std::string_view const first = command.name.substr(0, command.name.find(' '));
        if (first != last) {
            words += (words.empty() ? "" : ", ") + std::string(first);
        }
        last = first;
    }
    return words;
}

void overview(std::ostream& out) {
    for (Family const& family : families()) {
        printRow(out, firstWords(family), 16, family.help);
    }
    out << "\"help WORD\" lists the commands that begin with a word, \"help all\" lists all.\n";
}

void help(Host& host, Arguments& arguments) {
    std::string wanted;
    for (std::string const& word : arguments.rest()) {
        wanted += (wanted.empty() ? "" : " ") + word;
    }
    if (wanted.empty()) {
        return overview(host.out());
    }
    bool any = false;
    for (Command const* command : allCommands()) {
        if (wanted == "all" || command->name.starts_with(wanted)) {
            printRow(host.out(),
                     std::string(command->name) + (command->arguments.empty() ? "" : " ") +
                         std::string(command->arguments),
                     44, command->help);
            any = true;
        }
    }
    if (!any) {
        throw CommandError("no command begins with \"" + printable(wanted, longestWord) + "\"");
    }
}

constexpr Command table[] = {
    {"help", "[WORDS|all]", "list the commands that begin with the words", help},
};

} // namespace

Family helpFamily() { return {"what there is to type", table}; }

} // namespace app
