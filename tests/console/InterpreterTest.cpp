#include "host/Interpreter.h"

#include "host/Arguments.h"
#include "host/Host.h"
#include "host/IORLint.h"
#include "host/Interruption.h"
#include "host/JsonSession.h"
#include "host/LineReader.h"
#include "support/sourceDir.h"

#include <gmock/gmock.h>

#include <sstream>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class InterpreterTest : public testing::Test {
protected:
    InterpreterTest() : host(out), interpreter(host) {
        EXPECT_EQ(host.load(sourceDir() + "/examples/scenes/showroom.json"), "");
    }

    int script(std::string const& text, bool keepGoing = false) {
        std::istringstream in(text);
        return interpreter.runScript(in, "test.zsg", keepGoing, errors);
    }

    std::ostringstream out;
    std::ostringstream errors;
    app::Host host;
    app::Interpreter interpreter;
};

TEST_F(InterpreterTest, FailuresNameTheLineAndEndTheScriptUnlessItKeepsGoing) {
    EXPECT_EQ(script("events show off\nfoo bar\nundo\n"), 1);
    EXPECT_EQ(errors.str(), "test.zsg:2: unknown command \"foo bar\"; \"help\" lists them\n");
    errors.str("");

    std::string const tooLong(app::longestLine + 1, '#');
    EXPECT_EQ(script(tooLong.substr(1)), 0) << "the longest line, a comment";
    EXPECT_EQ(
        script("undo\ncolor name Ivory\ncolor name Nobody X\nhelp \x80\ncolor list plain all\n" +
                   tooLong + "\nhistory goto 99\nexpect undo 0\n",
               true),
        7);
    EXPECT_EQ(errors.str(), "test.zsg:1: undo: there is nothing to undo\n"
                            "test.zsg:2: color name: expected a name\n"
                            "test.zsg:3: color name: the scene has no colour \"Nobody\"\n"
                            "test.zsg:4: byte 6 is not valid UTF-8\n"
                            "test.zsg:5: color list: unexpected \"all\"\n"
                            "test.zsg:6: the line is longer than 1048576 bytes\n"
                            "test.zsg:7: history goto: there is no way to that place\n");
}

TEST_F(InterpreterTest, ExpectationsCountWhatHappenedAndFailWhenItDidNot) {
    EXPECT_EQ(script("pump\nexpect events 0\n"), 1) << "loading announces every colour";
    EXPECT_EQ(script("events show off\nevents clear\nscene keep start\n"
                     "color set Teal 0.1 0.2 0.3\n"
                     "expect events 1 ColorUpdated\nexpect events 2\nexpect events 0\n"
                     "expect undo 1\nexpect text \"Set Color\"\nexpect contains \"Teal\"\n"
                     "expect failure \"differs from\" expect scene start\n"
                     "expect failure \"no longer holds\" expect kept start\n"
                     "undo\nexpect redo 1\nexpect scene start\nexpect kept start\n"
                     "color references Upholstery\nexpect output 2\n"
                     "expect failure \"was not printed\" expect output 3\n"),
              0)
        << errors.str();
    std::string nested;
    for (int i = 0; i < 50'000; ++i) {
        nested += "expect failure a ";
    }
    EXPECT_EQ(script(nested + "\nexpect undo 5\n", true), 2);
    EXPECT_THAT(errors.str(), HasSubstr("cannot be nested"));
    EXPECT_THAT(errors.str(), HasSubstr("expected 5 edits to undo, found 0"));
}

TEST_F(InterpreterTest, NamesReachTheTerminalAsTextAndColoursAsBlocks) {
    EXPECT_EQ(script("events show off\n"), 0);
    interpreter.run({"color", "name", "Teal", "\x1B[2J\nevent 7 ColorCreated 1"});
    out.str("");
    interpreter.run({"color", "find", "Teal"});
    interpreter.run({"color", "show", "29"});
    interpreter.run("history");
    EXPECT_EQ(out.str().find('\x1B'), std::string::npos);
    EXPECT_THAT(out.str(), HasSubstr("\n  29 #008080 \\x1b[2J\\nevent 7 ColorCreated 1\n"));
    EXPECT_THAT(out.str(), HasSubstr("Set Color name (\\x1b[2J\\nevent 7 ColorCreated 1)\n"));
    interpreter.run({"lightlayer", "name", "Accent", "one\nundo"});
    interpreter.run({"lightlayer", "show", "2"});
    interpreter.run({"light", "show", "29"});
    interpreter.run("lightlayer matrix");
    EXPECT_THAT(out.str(), Not(HasSubstr("\nundo")));
    try {
        interpreter.run({"color", "show", "\x1B[0m"});
        ADD_FAILURE();
    } catch (app::CommandError const& error) {
        EXPECT_STREQ(error.what(), "color show: the scene has no colour \"\\x1b[0m\"");
    }
    interpreter.showSwatches(true);
    out.str("");
    EXPECT_EQ(script("color name 28 \"#12 #12345g\"\ncolor show 28\n"), 0) << errors.str();
    EXPECT_THAT(out.str(), StartsWith("  28 \x1B[48;2;46;139;87m   \x1B[0m #2e8b57 #12 #12345g\n"));
}

TEST_F(InterpreterTest, WhatMayHaveBeenMeantIsSaid) {
    EXPECT_EQ(
        script("color show teal\nlight show Key\nmaterial show Seat\ncolor set Teal SteelBlu\n"
               "colorway apply Aubumm\nlight assign accent 24\nweave new denim plain\n"
               "weave show denm\nhelp colour\nhelp color lst\ncolor show Nobody\n",
               true),
        10);
    std::string const text = errors.str();
    for (char const* const meant : {"Teal", "Key Light", "Seat Fabric", "SteelBlue", "Autumn",
                                    "Accent", "denim", "color", "color list"}) {
        EXPECT_THAT(text, HasSubstr("; did you mean \"" + std::string(meant) + "\"?\n"));
    }
    EXPECT_THAT(text, HasSubstr("no colour \"Nobody\"\n"));
}

TEST_F(InterpreterTest, ARequestThatIsNestedTooDeeplyIsRefused) {
    std::istringstream in("{\"id\": " + std::string(400'000, '[') + std::string(400'000, ']') +
                          ", \"command\": \"undo\"}\n");
    std::ostringstream answers;
    EXPECT_EQ(app::runJsonSession(interpreter, host, in, answers), 1);
    EXPECT_THAT(answers.str(), HasSubstr("nested deeper than 64"));
}

TEST_F(InterpreterTest, AnInterruptionEndsTheCommandAndTheScriptsThatItIsIn) {
    interpreter.setOwnCommands([](auto const& words) {
        bool const isOurs = words.front() == "interrupt";
        if (isOurs) {
            app::requestInterruption();
        }
        return isOurs;
    });
    try {
        script("history\ninterrupt\nundo\n", true);
        ADD_FAILURE() << "it went on";
    } catch (app::CommandError const& error) {
        EXPECT_STREQ(error.what(), "test.zsg:2: interrupted");
    }
    app::requestInterruption(); // too late for the request before
    std::istringstream in("{\"command\": \"color set Teal Gold\"}\n{\"command\": \"undo\"}\n");
    std::ostringstream answers;
    EXPECT_EQ(app::runJsonSession(interpreter, host, in, answers), 0) << answers.str();
    interpreter.setOwnCommands([](auto const&) {
        app::requestInterruption(); // as soon as the command runs
        return false;
    });
    std::istringstream again("{\"command\": \"redo\"}\n");
    EXPECT_EQ(app::runJsonSession(interpreter, host, again, answers), 1);
    EXPECT_THAT(answers.str(),
                HasSubstr("{\"code\":\"interrupted\",\"message\":\"redo: interrupted\"}"));
    EXPECT_EQ(host.undoStack().index(), 0);
}

TEST(IORLint, EachKindOfTroubleIsNamedAtItsFirstPlace) {
    EXPECT_THAT(app::lintIOR("1972 a year\n\n4 400 700 3\n\n1.5e-1 0\n1 0;\n\n", "nk"),
                ElementsAre(HasSubstr("line 4: is blank"), HasSubstr("line 5: has a number in sci"),
                            HasSubstr("line 6: ends in a semicolon")));
    EXPECT_THAT(app::lintIOR("wavelength,n,k\r\n0.4,1.5,0\r\n" + std::string(120, '1'), "csv"),
                ElementsAre(HasSubstr("100 characters")));
    EXPECT_THAT(app::lintIOR("0.4,1.5,0\n0.7,1.5,0\n", "csv"),
                ElementsAre(HasSubstr("micrometres")));
    EXPECT_THAT(app::lintIOR("400,1.5,0\n", "csv"), ElementsAre());
    EXPECT_THAT(app::lintIOR("\xEF\xBB\xBF"
                             "400,1.5,0\n",
                             "csv"),
                ElementsAre(HasSubstr("byte order mark")));
}

} // namespace
