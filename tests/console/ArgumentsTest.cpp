#include "host/Arguments.h"

#include "host/printable.h"

#include <gtest/gtest.h>

namespace {

using app::Arguments;
using app::CommandError;
using app::invalidUtf8At;
using app::splitWords;
using Words = std::vector<std::string>;

TEST(Arguments, LinesSplitIntoWords) {
    struct Row {
        char const* line;
        Words words;
    };
    for (Row const& row : {
             Row{"", {}},
             Row{"  \t\r", {}},
             Row{"# a comment", {}},
             Row{"color list # all", {"color", "list"}},
             Row{"a#b", {"a#b"}},
             Row{R"(name "two words" "")", {"name", "two words", ""}},
             Row{R"("a\"b\\c\nd")", {"a\"b\\c\nd"}},
             Row{R"(Rug:"Warm Sand")", {"Rug:Warm Sand"}},
             Row{R"("\x1b[31m \u202e\xe4\u20ac")", {"\x1B[31m \u202e\u00e4\u20ac"}},
         }) {
        EXPECT_EQ(splitWords(row.line), row.words) << row.line;
    }
    EXPECT_THROW((void)splitWords("say \"never closed"), CommandError);
    for (char const* const line : {R"("ends in a backslash\)", R"("\x1")", R"("\x1g")",
                                   R"("\u20a")", R"("C:\users")", R"("\ud800")"}) {
        EXPECT_THROW((void)splitWords(line), CommandError) << line;
    }
}

TEST(Arguments, Utf8IsCheckedToTheByte) {
    EXPECT_EQ(invalidUtf8At("plain, \xC3\xA4, \xE2\x82\xAC, \xF0\x9F\x8E\xA8"), std::string::npos);
    struct Row {
        std::string text;
        std::size_t at;
    };
    for (Row const& row : {
             Row{"ab\x80", 2},
             Row{"\xC0\x80", 0},         // overlong
             Row{"x\xE0\x9F\xBF", 1},    // overlong
             Row{"\xED\xA0\x80", 0},     // a surrogate
             Row{"\xF4\x90\x80\x80", 0}, // past the last code point
             Row{"\xE2\x82", 0},         // cut off
             Row{"\xFF", 0},
         }) {
        EXPECT_EQ(invalidUtf8At(row.text), row.at) << row.text;
    }
}

TEST(Arguments, WordsAreReadWholeOrNotAtAll) {
    Arguments arguments({"7", "-3", "2.5", "on", "0x10", "4294967296", "1e", "nope", "rest"});
    EXPECT_EQ(arguments.integer("a number"), 7);
    EXPECT_EQ(arguments.integer("a number"), -3);
    EXPECT_EQ(arguments.real("a number"), 2.5);
    EXPECT_TRUE(arguments.onOff());
    EXPECT_THROW(arguments.integer("a number"), CommandError);
    EXPECT_THROW(arguments.number("an id"), CommandError);
    EXPECT_THROW(arguments.real("a number"), CommandError);
    EXPECT_THROW(arguments.onOff(), CommandError);
    EXPECT_FALSE(arguments.flag("last"));
    EXPECT_THROW(arguments.done(), CommandError);
    EXPECT_TRUE(arguments.flag("rest"));
    EXPECT_NO_THROW(arguments.done());
    EXPECT_THROW(arguments.word("more"), CommandError);
}

TEST(Printable, NothingThatATerminalObeysIsLeft) {
    struct Row {
        std::string text;
        char const* shown;
    };
    for (Row const& row : {
             Row{"Gr\xC3\xBC\xC3\x9F \xF0\x9F\x8E\xA8 \\n",
                 "Gr\xC3\xBC\xC3\x9F \xF0\x9F\x8E\xA8 \\n"},
             Row{"\x1B[2J\r\b\x7F", "\\x1b[2J\\x0d\\x08\\x7f"},
             Row{"two\nlines\t", "two\\nlines\\x09"},
             Row{"\xC2\x9B"
                 "31m",
                 "\\x9b31m"}, // the same as ESC [ to some terminals
             Row{"\xE2\x80\xAE"
                 "gpj",
                 "\\u202egpj"},
             Row{"\xE2\x81\xA9\xE2\x80\xA8", "\\u2069\\u2028"},
             Row{"a\xFFz\xC3", "a\\xffz\\xc3"},
         }) {
        EXPECT_EQ(app::printable(row.text), row.shown);
    }
    EXPECT_EQ(app::printableLines("one\n\ttwo\x1B"), "one\n\ttwo\\x1b");
    EXPECT_EQ(app::printable("abcdef", 6), "abcdef");
    EXPECT_EQ(app::printable("abcd\xE2\x82\xAC", 6), "abcd...") << "not half a character";
}

} // namespace
