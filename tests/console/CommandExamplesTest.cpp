#include "documents/documentText.h"
#include "host/CommandTable.h"
#include "host/Host.h"
#include "host/Interpreter.h"
#include "support/sourceDir.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>
#include <string>

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

// The page of the console says which verb goes with which kinds of things.
TEST(CommandExamples, TheVerbsOfThePageAreThoseOfTheProgram) {
    QString const page = documents::read("docs/console.md");
    QString const table = page.section("| Verb |", 1).section("\n\n", 0, 0);
    std::set<std::string> said;
    std::set<QString> verbs;
    for (QStringList const& row :
         documents::all("(?m)^\\| (`.*`) \\| [^|]* \\| ([^|]*) \\|$", table)) {
        QString const kinds = QString(row[1]).remove(QRegularExpression("\\([^)]*\\)"));
        for (QString const& part : kinds.split(';')) { // "layer, cmf; `save` also gradient"
            QString const& where = part.contains('`') ? part : row[0];
            for (QStringList const& verb : documents::all("`([a-z]+)", where)) {
                verbs.insert(verb[0]);
                for (QString const& kind : part.section("also", -1).split(',')) {
                    said.insert((kind.trimmed() + ' ' + verb[0]).toStdString());
                }
            }
        }
    }
    std::set<std::string> there;
    for (app::Command const* const command : app::allCommands()) {
        QStringList const words = QString::fromStdString(std::string(command->name)).split(' ');
        bool const isOther = words[0] == "events" || words[0] == "renderer"; // not things
        if (words.size() == 2 && verbs.contains(words[1]) && !isOther) {
            there.insert(std::string(command->name));
        }
    }
    EXPECT_EQ(said, there);
    EXPECT_GT(said.size(), 80u);
}

} // namespace
