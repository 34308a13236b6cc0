#include "host/CommandTable.h"
#include "host/Host.h"
#include "host/Interpreter.h"
#include "support/sourceDir.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace {

// What the help shows works: the examples of each family one after the other, in the scene that
// everybody has, with something to paint on.
TEST(CommandExamples, ThoseOfTheHelpWorkInTheShowroom) {
    auto const before = std::filesystem::current_path();
    QTemporaryDir const folder;
    std::filesystem::current_path(folder.path().toStdString());
    for (app::Family const& family : app::families()) {
        std::ostringstream out;
        app::Host host(out);
        ASSERT_EQ(host.load(sourceDir() + "/examples/scenes/showroom.json"), "");
        host.pump();
        app::Interpreter interpreter(host);
        for (char const* const line : {"surface new 64", "brush new", "scene keep start"}) {
            interpreter.run(std::string_view(line));
        }
        for (app::Command const& command : family.commands) {
            EXPECT_TRUE(
                (std::string(command.example) + ' ').starts_with(std::string(command.name) + ' '))
                << command.name << " has another's example: " << command.example;
            auto words = app::splitWords(command.example);
            for (std::string& word : words) {
                word.insert(0, word.starts_with("examples/") ? sourceDir() + '/' : "");
            }
            try {
                interpreter.run(words);
            } catch (std::exception const& error) {
                ADD_FAILURE() << command.example << ": " << error.what();
            }
        }
    }
    std::filesystem::current_path(before);
}

} // namespace
