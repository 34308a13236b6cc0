#include "host/CommandResult.h"
#include "host/CommandTable.h"
#include "host/Host.h"
#include "host/didYouMean.h"
#include "host/printable.h"

#include <algorithm>
#include <ostream>
#include <utility>
#include <vector>

namespace app {

namespace {

constexpr std::size_t widestLeft = 44;

// Two columns; what is too wide for the left one has a line of its own.
void printRows(std::ostream& out,
               std::vector<std::pair<std::string, std::string_view>> const& rows) {
    std::size_t width = 0;
    for (auto const& [left, right] : rows) {
        width = std::max(width, left.size() <= widestLeft ? left.size() : 0);
    }
    for (auto const& [left, right] : rows) {
        out << "  " << left
            << (left.size() <= width ? std::string(width - left.size(), ' ')
                                     : '\n' + std::string(width + 2, ' '))
            << "  " << right << '\n';
    }
}

/// "undo, redo": what the commands of a family begin with.
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

void overview(Host& host) {
    std::vector<std::pair<std::string, std::string_view>> rows;
    for (Family const& family : families()) {
        rows.emplace_back(firstWords(family), family.help);
        addResult(host, [&] {
            return nlohmann::ordered_json{{"name", rows.back().first}, {"help", family.help}};
        });
    }
    printRows(host.out(), rows);
    host.out()
        << "\"help WORD\" lists the commands that begin with a word, \"help all\" lists all.\n";
}

void help(Host& host, Arguments& arguments) {
    std::string wanted;
    for (std::string const& word : arguments.rest()) {
        wanted += (wanted.empty() ? "" : " ") + word;
    }
    beginResultList(host);
    if (wanted.empty()) {
        return overview(host);
    }
    // "color" means the word, not "colorway" too; "colo" means all that begin so.
    auto const hasWords = [&](Command const* command) {
        return command->name == wanted || command->name.starts_with(wanted + ' ');
    };
    bool const isWords = std::ranges::any_of(allCommands(), hasWords);
    std::vector<std::pair<std::string, std::string_view>> rows;
    for (Command const* command : allCommands()) {
        if (wanted == "all" || (isWords ? hasWords(command) : command->name.starts_with(wanted))) {
            addResult(host, [&] {
                return nlohmann::ordered_json{{"name", command->name},
                                              {"arguments", command->arguments},
                                              {"help", command->help},
                                              {"example", command->example}};
            });
            rows.emplace_back(std::string(command->name) + (command->arguments.empty() ? "" : " ") +
                                  std::string(command->arguments),
                              command->help);
        }
    }
    printRows(host.out(), rows);
    auto const exact = std::ranges::find(allCommands(), wanted, &Command::name);
    if (exact != allCommands().end()) {
        host.out() << "  for example: " << (*exact)->example << '\n';
    }
    if (rows.empty()) {
        std::vector<std::string> names;
        for (Command const* const command : allCommands()) {
            names.emplace_back(command->name.substr(0, command->name.find(' ')));
            names.emplace_back(command->name);
        }
        throw CommandError("no command begins with \"" + printable(wanted, longestWord) + '"' +
                           didYouMean(wanted, names));
    }
}

constexpr Command table[] = {
    {"help", "[WORDS|all]",
     "list the commands that begin with the words; of a command also an example", "help color set",
     help},
};

} // namespace

Family helpFamily() { return {"what there is to type", table}; }

} // namespace app
