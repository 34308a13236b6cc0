#include "host/CommandTable.h"

#include "host/Host.h"
#include "host/closestWords.h"
#include "host/printable.h"

#include <algorithm>

namespace app {

#define APP_FAMILY(word) Family word##Family();
#include "families.inc"
#undef APP_FAMILY

namespace {

constexpr std::size_t mostWords = 3;

std::vector<Command const*> sorted() {
    std::vector<Command const*> commands;
    for (Family const& family : families()) {
        for (Command const& command : family.commands) {
            commands.push_back(&command);
        }
    }
    std::ranges::sort(commands, {}, &Command::name);
    return commands;
}

struct Found {
    Command const* command = nullptr;
    std::size_t words = 0;
};

Found find(std::vector<std::string> const& words) {
    Found result;
    std::string name;
    for (std::size_t i = 0; i < std::min(words.size(), mostWords); ++i) {
        name += (i == 0 ? "" : " ") + words[i];
        auto const found = std::ranges::lower_bound(allCommands(), name, {}, &Command::name);
        if (found != allCommands().end() && (*found)->name == name) {
            result = {*found, i + 1};
        }
    }
    return result;
}

// Names of three words are looked for first, so that the rest of the line does not hide the slip.
// In a family that is named rightly it is the verb that has to be like another.
std::string_view meantBy(std::vector<std::string> const& words, bool isFamily) {
    for (std::size_t count = std::min(words.size(), mostWords); count > 0; --count) {
        std::string typed = words[0];
        for (std::size_t i = 1; i < count; ++i) {
            typed += ' ' + words[i];
        }
        std::size_t const same = isFamily && count > 1 ? words[0].size() + 1 : 0;
        std::vector<std::string_view> names;
        for (Command const* command : allCommands()) {
            if (std::size_t(std::ranges::count(command->name, ' ')) + 1 == count &&
                command->name.starts_with(typed.substr(0, same))) {
                names.push_back(command->name.substr(same));
            }
        }
        if (typed.size() > longestWord) {
            continue;
        }
        typed.erase(0, same);
        if (std::string_view const found = closestWords(typed, names); !found.empty()) {
            return {found.data() - same, found.size() + same};
        }
    }
    return {};
}

std::string unknown(std::vector<std::string> const& words, bool isFamily) {
    std::string const start = words[0] + (words.size() > 1 ? ' ' + words[1] : std::string());
    std::string const meant(meantBy(words, isFamily));
    return "unknown command \"" + printable(start, longestWord) + "\"; " +
           (meant.empty() ? std::string() : "did you mean \"" + meant + "\"? ") + "\"help" +
           (isFamily ? ' ' + words[0] : std::string()) + "\" lists them";
}

} // namespace

std::vector<Family> const& families() {
    static std::vector<Family> const list = {
#define APP_FAMILY(word) word##Family(),
#include "families.inc"
#undef APP_FAMILY
    };
    return list;
}

std::vector<Command const*> const& allCommands() {
    static std::vector<Command const*> const commands = sorted();
    return commands;
}

void carryOut(Host& host, std::vector<std::string> const& words) {
    auto const [command, used] = find(words);
    if (!command) {
        bool const isFamily = std::ranges::any_of(
            allCommands(), [&](Command const* c) { return c->name.starts_with(words[0] + ' '); });
        if (isFamily && words.size() == 1) {
            return carryOut(host, {"help", words[0]});
        }
        throw CommandError(unknown(words, isFamily), "unknown-command");
    }
    Arguments arguments({words.begin() + static_cast<std::ptrdiff_t>(used), words.end()});
    try {
        if (command->arguments.empty()) {
            arguments.done();
        }
        command->run(host, arguments);
        arguments.done();
    } catch (std::exception const& error) {
        host.pump();
        auto const* const ours = dynamic_cast<CommandError const*>(&error);
        throw CommandError(std::string(command->name) + ": " + error.what(),
                           ours ? ours->code() : "failed");
    }
    host.pump();
}

} // namespace app
