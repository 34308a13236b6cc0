#include "zcore/ZUndoStack.h"

#include "zcore/ZUndoCommand.h"

#include <gmock/gmock.h>

#include <cctype>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace {

int warnings = 0;

void countWarning(QtMsgType type, QMessageLogContext const& context, QString const&) {
    warnings += type == QtWarningMsg && context.category == std::string_view("zcore.undo") ? 1 : 0;
}

class ZUndoStackTest : public testing::Test {
protected:
    ZUndoStackTest() : before_(qInstallMessageHandler(countWarning)) { warnings = 0; }
    ~ZUndoStackTest() override { qInstallMessageHandler(before_); }

    /// Runs a script: a small letter pushes a command of that name, which merges with any later one
    /// from m to p, fails to redo as x and to undo as y; - and + undo and redo, ( and ) begin and
    /// end a macro, * saves, ! clears, / drops what can be redone, a digit goes to that index, Ln
    /// sets the limit n. Back comes
    /// "+a" done, "-a" undone, "a<b" offered b, "~a" deleted, and "?" for each false answer.
    std::string run(std::string_view script) {
        trace.clear();
        act(script);
        return trace;
    }

    void act(std::string_view script) {
        for (std::size_t i = 0; i < script.size(); ++i) {
            char const c = script[i];
            bool const ok = c == '-'          ? stack.undo()
                            : c == '+'        ? stack.redo()
                            : c == '!'        ? stack.clear()
                            : c == '/'        ? stack.clearRedo()
                            : std::isdigit(c) ? stack.goTo(c - '0')
                            : std::islower(c) ? stack.push(new Command(*this, c))
                                              : true;
            trace += ok ? "" : "?";
            if (c == '(') {
                stack.beginMacro("M");
            } else if (c == ')') {
                stack.endMacro("");
            } else if (c == '*') {
                stack.setClean();
            } else if (c == 'L') {
                stack.setLimit(script[++i] - '0');
            }
        }
    }

    /// The entries' texts, with the index as a bar and the saved one as a star.
    std::string entries() const {
        std::string list;
        for (int i = 0; i <= stack.count(); ++i) {
            list += i == stack.cleanIndex() ? "*" : "";
            list += i == stack.index() ? "|" : "";
            list += stack.text(i).toStdString();
        }
        return list;
    }

    std::map<std::string, std::function<void()>> during; ///< "+a", "<a" (a is offered), ...
    std::string trace;
    ZUndoStack stack;

    class Command final : public ZUndoCommand {
    public:
        Command(ZUndoStackTest& test, char name)
            : ZUndoCommand(ZCommandId(200 + name), QString(QLatin1Char(name))),
              test_(test),
              name_(1, name) {}
        ~Command() override { note("~", name_); }
        bool redo() override {
            note("+", name_);
            return name_ != "x";
        }
        bool undo() override {
            note("-", name_);
            return name_ != "y";
        }
        bool mergeWith(ZUndoCommand const* other) override {
            test_.trace += name_;
            note("<", other->text().toStdString());
            return name_ >= "m" && name_ <= "p";
        }

    private:
        void note(std::string const& what, std::string const& name) {
            test_.trace += what + name;
            if (auto const found = test_.during.find(what + name); found != test_.during.end()) {
                found->second();
            }
        }

        ZUndoStackTest& test_;
        std::string name_;
    };

private:
    QtMessageHandler before_;
};

TEST_F(ZUndoStackTest, FollowsItsRules) {
    struct Row {
        char const *rule, *script, *trace, *entries;
    };
    Row const rows[] = {
        {"a push runs, an undo takes back, an end is an end", "ab--+++-", "+a+ba<b-b-a+a+b?-b",
         "*a|b"},
        {"a failing push keeps what can be redone", "ab-x", "+a+ba<b-b+x~x?", "*a|b"},
        {"a push drops what could be redone", "ab-d+", "+a+ba<b-b+d~ba<d?", "*ad|"},
        {"goTo passes failures and refuses what is not there", "ay03", "+a+ya<y-y-a??", "*|ay"},
        {"what could be redone can be dropped", "ab*--/+", "+a+ba<b-b-a~b~a?", "|"},
        {"clear deletes, newest first", "a(bc)!", "+a+b+cb<c~c~b~a", "*|"},
        {"the earlier command stands for both", "ma-+", "+m+am<a~a-m+m", "*m|"},
        {"nothing merges across the saved state", "m*a", "+m+a", "m*a|"},
        {"a saved state that is dropped is lost", "m*b*-c", "+m+b-b+c~bm<c~c", "m|"},
        {"a macro merges inside itself only", "m(n(oa)b)c", "+m+n+o+ao<a~a+b+c", "*mMc|"},
        {"a macro is one entry, undone backwards", "(a(bc)d)-+", "+a+b+cb<c+d-d-c-b-a+a+b+c+d",
         "*M|"},
        {"nothing merges into an inner macro", "((m)n(a))-", "+m+n+a-a-n-m", "*|M"},
        {"every command of a macro runs", "(ayb)-", "+a+ya<y+by<b-b-y-a?", "*|M"},
        {"a macro without a done command is nothing", "a-((x))", "+a-a+x~x?", "*|a"},
        {"a macro drops the undone with its first command", "ab-(xc", "+a+ba<b-b+x~x?+c~b", "*a|"},
        {"the oldest go at the limit", "L2abc*d-d", "+a+ba<b+cb<c~a+d~b-d+d~d", "c*d|"},
        {"the saved state is lost with the oldest", "*abcdL2", "+a+ba<b+cb<c+dc<d~a~b", "cd|"},
        {"what is undone goes from the far end", "abcde2*1L2",
         "+a+ba<b+cb<c+dc<d+ed<e-e-d-c-b~a~e~d", "|b*c"},
    };
    for (char const c : {'a', 'b', 'c', 'm', 'M'}) {
        during[{'~', c}] = [this] { EXPECT_LE(stack.index(), stack.count()); };
    }
    for (Row const& row : rows) {
        run("L0!");
        EXPECT_EQ(run(row.script), row.trace) << row.rule;
        EXPECT_EQ(entries(), row.entries) << row.rule;
        EXPECT_GE(stack.cleanIndex(), -1) << row.rule;
        act(std::string(static_cast<std::size_t>(stack.macroDepth()), ')'));
    }
    EXPECT_FALSE(stack.push(nullptr));
    EXPECT_EQ(stack.command(3), nullptr);
    EXPECT_EQ(warnings, 0);
}

TEST_F(ZUndoStackTest, MacrosHaveTextsAndIds) {
    stack.beginMacro("First");
    stack.beginMacro("Inner");
    run("a");
    stack.endMacro("");
    EXPECT_FALSE(stack.isClean() || stack.canUndo() || stack.count() > 0);
    stack.endMacro("Last");
    EXPECT_EQ(entries(), "*Last|");
    ZUndoCommand const& macro = *stack.command(0);
    EXPECT_TRUE(macro.hasIdRecursive(ZCommandId(200 + 'a')));
    EXPECT_TRUE(macro.hasIdRecursive(ZCommandId::Macro));
    EXPECT_FALSE(macro.hasIdRecursive(ZCommandId(200 + 'b')));
    run(")");
    EXPECT_EQ(warnings, 1) << "no macro was open";
    std::string const depth(100000, '(');
    EXPECT_EQ(run(depth + "ab" + std::string(depth.size(), ')') + "-+!"), "+a+ba<b-b-a+a+b~b~a~a");
}

TEST_F(ZUndoStackTest, RefusesWhatWouldTearTheHistory) {
    int changes = 0;
    int visits = 0;
    auto const visit = [&] {
        ++visits;
        EXPECT_TRUE(stack.isExecuting());
        EXPECT_FALSE(stack.canUndo() || stack.canRedo());
        act("z()*-+0!/");
        stack.setLimit(1); // waits for the next push
        EXPECT_EQ(std::exchange(warnings, 0), 9);
    };
    run("ab-");
    stack.setChangeCallback([&] {
        ++changes;
        EXPECT_FALSE(stack.isExecuting());
    });
    EXPECT_EQ(run("1(-+0!*"), "????") << "a macro is open";
    EXPECT_EQ(std::exchange(warnings, 0), 5);
    EXPECT_EQ(changes, 1) << "the macro's begin";
    EXPECT_EQ(entries(), "*a|b");

    for (char const* const moment : {"+m", "-m", "<c", "~c", "~b"}) {
        during[moment] = visit;
    }
    EXPECT_EQ(run("mc)"), "+m~z??????~b~z??????+cm<c~z??????~c~z??????~a");
    EXPECT_EQ(entries(), "M|");
    EXPECT_EQ(changes, 4);
    EXPECT_EQ(run("-*"), "-m~z??????");
    EXPECT_EQ(visits, 5);
    EXPECT_EQ(changes, 6);
    stack.setChangeCallback([&] {
        stack.setChangeCallback({});
        stack.undo();
    });
    during.clear();
    EXPECT_EQ(run("d"), "+d~m-d");
    stack.setChangeCallback([&] { ++changes; });
    run("!"), stack.setLimit(0), run("ab"), stack.setLimit(1);
    EXPECT_EQ(changes, 10) << "all go, two come, and one of them goes";
    auto ending = std::make_unique<ZUndoStack>();
    ending->setChangeCallback([&] { ending.reset(); });
    EXPECT_TRUE(ending->push(new Command(*this, 'a')));
    EXPECT_EQ(ending, nullptr);
}

TEST_F(ZUndoStackTest, StaysWholeWhenCommandsThrow) {
    auto const fails = [this](char const* moment, char const* script) {
        during = {{moment, [] { throw std::runtime_error("no"); }}, {"~c", [this] { act("-"); }}};
        EXPECT_THROW(run(script), std::runtime_error) << moment;
        EXPECT_FALSE(stack.isExecuting());
        during.clear();
        return std::exchange(trace, {});
    };
    run("ab-");
    EXPECT_EQ(fails("+c", "c"), "+c-c~c?") << "its destructor must not undo either";
    EXPECT_EQ(entries(), "*a|b");
    EXPECT_EQ(fails("+b", "+"), "+b-b");
    EXPECT_EQ(entries(), "*a|b") << "what was taken back can still be redone";
    fails("<c", "c");
    EXPECT_EQ(entries(), "*ac|") << "it was done, so it has to stay undoable";
    run("(def)");
    EXPECT_EQ(fails("-e", "-"), "-f-e-d");
    EXPECT_EQ(fails("-c", "0"), "-c");
    EXPECT_EQ(entries(), "*a|cM");
    EXPECT_EQ(run("2"), "+c");
    EXPECT_EQ(fails("+e", "+"), "+d+e+f-f-e-d") << "nothing is left of a macro half done";
    EXPECT_EQ(run("3"), "+d+e+f");

    during = {{"+a", [] { throw 1; }}, {"-a", [] { throw 2; }}};
    EXPECT_THAT([this] { run("a"); }, testing::Throws<int>(1));
    stack.setChangeCallback([] { throw std::runtime_error("no"); });
    EXPECT_THROW(stack.beginMacro("M"), std::runtime_error);
    EXPECT_EQ(stack.macroDepth(), 0) << "nobody would end it";
}

} // namespace
