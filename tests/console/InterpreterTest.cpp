#include "host/Interpreter.h"
#include "host/Arguments.h"
#include "host/Host.h"
#include "host/IORLint.h"
#include "host/JsonSession.h"
#include "host/LineReader.h"
#include "support/sourceDir.h"

#include <gmock/gmock.h>

#include <sstream>

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
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

TEST_F(InterpreterTest, AWordTooManyStopsACommandBeforeItActs) {
    ASSERT_EQ(script("events show off\nweave make w twill 4 2\ngradient make g\n"
                     "gradient add g 0 1 1 1\ncurve make c\n"
                     "curve load c UU 0 0 0 0 1 1 1 1 1 1 2 2\nvalue make v Integer 3\n"
                     "color name Teal Petrol\ncolor drag Petrol 0 0 0 in 2\nundo\n"),
              0)
        << errors.str();
    auto const state = [this] {
        out.str("");
        EXPECT_EQ(script("scene\nhistory\nexpect redo 1\ncolor show Petrol\njournal\nevents\n"
                         "weave json w\ncurve show c\ngradient show g\nvalue print v\n"
                         "param show steps\n"),
                  0)
            << errors.str();
        return out.str();
    };
    std::string const before = state();
    std::istringstream rows(
        "undo 1\nredo 1\nhistory goto 0\nmacro begin X\nhistory limit 1\n"
        "history clean\njournal record on\nfault scene on\nevents clear\n"
        "raw color create X 1 1 1 1\nraw color push Petrol 1 1 1 1\n"
        "raw color temp 1 1 1 1\nraw color clone Petrol\nraw color wrap Petrol\n"
        "color show Petrol\nraw multi switch 38 14\n"
        "renderer color Petrol 1 1 1 1\nrenderer remove Petrol\n"
        "raw colorway apply 2\nrenderer colorway 2\ncolor name Petrol X\n"
        "color set Petrol 1 1 1 1\ncolor toggle Petrol\ncolorway apply 2\n"
        "colorway delete 2\nvalue make v Integer 4\nvalue set v 4\n"
        "weave make w plain\nweave flip w 0 0\nweave invert w\n"
        "weave size w 2 2\nweave yarn w warp width 2\n"
        "weave yarn w weft kind ribbon\ncurve make c\ncurve insert c 0.5\n"
        "curve pos c 0 3 3\ncurve type c 0 L\ncurve weight-out c 0 3\n"
        "curve remove c 0\ngradient make g\ngradient blend g off\n"
        "gradient size g 9\npaint with 4 1 0 0 0\n"
        "picture no.png\nlightlayer create X\nquit\n");
    for (std::string line; std::getline(rows, line);) {
        try {
            interpreter.run(line + " surplus");
            ADD_FAILURE() << line;
        } catch (app::CommandError const& error) {
            EXPECT_THAT(error.what(), HasSubstr("unexpected \"surplus\"")) << line;
        }
    }
    EXPECT_EQ(host.undoStack().macroDepth(), 0);
    EXPECT_EQ(state(), before);
    EXPECT_EQ(script("weave make w twill four\nweave read w /nowhere\n", true), 2);
    EXPECT_EQ(state(), before) << "what had the name is kept";
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

TEST_F(InterpreterTest, JsonLinesAnswerEveryRequest) {
    std::string const deep = "{\"id\": " + std::string(400'000, '[') + std::string(400'000, ']') +
                             ", \"command\": \"undo\"}\n";
    std::istringstream in("{\"id\": 7, \"command\": \"color name Teal Petrol\"}\n"
                          "{\"command\": [\"color\", \"unique\", \"Petrol\"]}\n"
                          "not json\n[]\n{\"command\": 3}\n{\"command\": [1]}\n"
                          "{\"command\": [\"edit\", \"name\", \"Petrol\", \"a\\u0000b\"]}\n" +
                          deep + "{\"id\": \"x\", \"command\": \"undo undo\"}\n");
    std::ostringstream answers;
    host.pump();
    EXPECT_EQ(app::runJsonSession(interpreter, host, in, answers), 1);
    std::vector<std::string> lines;
    std::istringstream split(answers.str());
    for (std::string line; std::getline(split, line);) {
        lines.push_back(line);
    }
    ASSERT_EQ(lines.size(), 9u);
    EXPECT_THAT(lines[0], AllOf(HasSubstr(R"("id":7,"ok":true)"),
                                HasSubstr(R"("type":"ColorUpdated","payload":"29")")));
    EXPECT_THAT(lines[1], HasSubstr(R"("output":["Petrol 1"])"));
    for (std::size_t i = 2; i < lines.size(); ++i) {
        EXPECT_THAT(lines[i], HasSubstr("\"ok\":false,\"error\":")) << i;
    }
    EXPECT_THAT(lines[8], HasSubstr(R"("id":"x")"));
    EXPECT_EQ(host.undoStack().index(), 1) << "a command with a word too many does nothing";
}

TEST(IORLint, EachKindOfTroubleIsNamedAtItsFirstPlace) {
    EXPECT_THAT(app::lintIOR("1972 a year\n\n4 400 700 3\n\n1.5e-1 0\n1 0;\n\n", "nk"),
                ElementsAre(HasSubstr("line 4: is blank"), HasSubstr("line 5: has a number in sci"),
                            HasSubstr("line 6: ends in a semicolon")));
    EXPECT_THAT(app::lintIOR("wavelength,n,k\r\n0.4,1.5,0\r\n" + std::string(120, '1'), "csv"),
                ElementsAre(HasSubstr("line 1: ends in CR LF"), HasSubstr("100 characters")));
    EXPECT_THAT(app::lintIOR("0.4,1.5,0\n0.7,1.5,0\n", "csv"),
                ElementsAre(HasSubstr("micrometres")));
    EXPECT_THAT(app::lintIOR("400,1.5,0\n", "csv"), ElementsAre());
}

} // namespace
