// Sessions at a terminal, which is a pseudo-terminal here.

#include "support/sourceDir.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <pty.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class TerminalTest : public testing::Test {
protected:
    ~TerminalTest() override {
        if (process > 0) {
            kill(process, SIGKILL);
            end();
        }
    }

    void start() {
        winsize const size{24, 100, 0, 0};
        process = forkpty(&terminal, nullptr, nullptr, &size);
        if (process == 0) {
            setenv("TERM", "dumb", 1);
            setenv("NO_COLOR", "1", 1);
            setenv("LC_ALL", "C", 1); // as in a container
            setenv("XDG_STATE_HOME", folder.path().toUtf8().constData(), 1);
            std::string const scene = sourceDir() + "/examples/scenes/showroom.json";
            execl(ZSG_CONSOLE, "zsg-console", scene.c_str(), nullptr);
            _exit(127);
        }
        ASSERT_GT(process, 0);
        EXPECT_THAT(expect("\"quit\" ends"), HasSubstr("42 events ColorSynced 1,"));
        expect("zsg> ");
    }

    // What was shown since the last call, up to the text.
    std::string expect(std::string const& text) {
        std::size_t at = 0;
        while ((at = shown.find(text)) == std::string::npos && readMore()) {}
        if (at == std::string::npos) {
            ADD_FAILURE() << "it did not show \"" << text << "\" but:\n" << shown;
            return std::exchange(shown, "");
        }
        std::string before = shown.substr(0, at + text.size());
        shown.erase(0, at + text.size());
        return before;
    }

    // Keys count when a line is being edited: what comes before goes through the system's own.
    std::string type(std::string const& keys, std::string const& wanted) {
        termios mode{};
        for (int tries = 0; tries < longest; ++tries) {
            if (tcgetattr(terminal, &mode) == 0 && (mode.c_lflag & ICANON) == 0) {
                break;
            }
            usleep(1000);
        }
        return send(keys, wanted);
    }

    std::string send(std::string const& keys, std::string const& wanted) {
        EXPECT_EQ(write(terminal, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
        return expect(wanted);
    }

    // The exit code, when it has ended by itself.
    int end() {
        while (readMore()) {}
        int status = -1;
        for (int tries = 0; waitpid(process, &status, WNOHANG) == 0; ++tries) {
            usleep(1000);
            if (tries == longest) {
                kill(process, SIGKILL);
            }
        }
        process = -1;
        close(terminal);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::string history() const {
        std::ifstream in((folder.path() + "/zsg-console/history").toStdString());
        return (std::ostringstream() << in.rdbuf()).str();
    }

    QTemporaryDir folder;
    std::string shown;

private:
    bool readMore() {
        pollfd source{terminal, POLLIN, 0};
        char block[4096];
        if (poll(&source, 1, longest) <= 0) {
            return false;
        }
        ssize_t const count = read(terminal, block, sizeof block);
        shown.append(block, count > 0 ? static_cast<std::size_t>(count) : 0);
        return count > 0; // at its end Linux says that the device is broken
    }

    static constexpr int longest = 60'000; // milliseconds; a machine may be slow

    int terminal = -1;
    pid_t process = -1;
};

TEST_F(TerminalTest, CtrlCEndsACommandOrALineButNotTheProcess) {
    start();
    type("color name Teal Nev\x03", "^C");
    expect("zsg> ");
    type("color drag Teal #ff0000 in 100000\n", "100000\r\n"); // which would take a while
    send("\x03", "color drag: interrupted");
    expect("zsg> ");
    EXPECT_THAT(type("color list multi\n", "Stage"), Not(HasSubstr("Nev")));
    type("quit!\n", "quit!");
    EXPECT_EQ(end(), 0);
}

TEST_F(TerminalTest, UnsavedEditsAreAskedAboutAndLinesAreRemembered) {
    start();
    type("color name Teal \"Pet röl\"\n", "ColorSynced 29");
    type("quit\n", "not saved");
    type("\x03", "zsg> "); // Ctrl-C is no
    type("quit\n", "[y/N] ");
    type("n\n", "zsg> ");
    type("\x04", "[y/N] ");
    type("\n", "zsg> ");
    std::string const save = "scene save " + folder.path().toStdString() + "/saved.json\n";
    type(save, "zsg> ");
    type("\x04", "\n");
    EXPECT_EQ(end(), 0) << "saved, so nothing is asked";
    EXPECT_EQ(history(), "color name Teal \"Pet röl\"\nquit\n" + save) << "no answers";

    start();
    type("\x1B[A", "scene save "); // the last line
    type("\x1B[A\n", "zsg> ");     // the one before it: quit, with nothing to lose
    EXPECT_EQ(end(), 0);
    EXPECT_THAT(history(), EndsWith(save + "quit\n"));
}

TEST_F(TerminalTest, TabCompletesAndListsWhatCanBeMeant) {
    start();
    type("color name Teal \"Grün \xE6\xBC\x86\"\n", "ColorSynced 29");
    expect("zsg> ");
    type("colorw\t sh\t\t", "Autumn");
    type("stu\t\n", "Frame: ");
    expect("zsg> ");
    EXPECT_THAT(type("color show gr\t\n", "references"),
                HasSubstr("\n  29 #008080 Grün \xE6\xBC\x86\r\n"));
    type("quit!\n", "quit!");
    EXPECT_EQ(end(), 0);
}

} // namespace
