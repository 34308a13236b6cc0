#include "host/Completion.h"

#include "host/Host.h"
#include "host/Interpreter.h"
#include "support/sourceDir.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

// What the line becomes, and what else could be meant, up to the third.
std::string completed(app::Host& host, std::string const& line) {
    app::Completion const found = app::completionOf(host, line);
    std::string text = line.substr(0, found.start) + found.text + '|';
    for (std::size_t i = 0; i < found.choices.size() && found.choices.size() > 1; ++i) {
        text += i < 3 ? found.choices[i] + ',' : i == 3 ? "..." : "";
    }
    return text;
}

TEST(Completion, FollowsTheCommandAndItsArguments) {
    std::filesystem::path const before = std::filesystem::current_path();
    QTemporaryDir const folder;
    std::filesystem::current_path(folder.path().toStdString());
    std::filesystem::create_directories("in here/deep");
    std::ofstream("in here/one.json") << 1;
    std::ofstream("in here/.hidden") << 1;
    std::ostringstream out;
    app::Host host(out);
    ASSERT_EQ(host.load(sourceDir() + "/examples/scenes/showroom.json"), "");
    app::Interpreter interpreter(host);
    interpreter.run({"color", "name", "Coral", "x\x1B y"});
    interpreter.run({"color", "name", "Plum", "28"});
    interpreter.run({"color", "name", "Tomato", "Kh \"\\#"});
    interpreter.run({"light", "assign", "Accent", "Key Light"});
    interpreter.run({"surface", "new", "64"});
    interpreter.run({"layer", "name", "0", "Base coat"});
    interpreter.run({"weave", "new", "denim", "plain"});
    struct Row {
        char const* line;
        char const* completed;
    };
    Row const rows[] = {
        {"", "|brush,cmf,color,..."},
        {"  colorw", "  colorway |"},
        {"color ma", "color materials |"},
        {"color list ", "color list |multi,named,plain,"},
        {"color list multi ", "color list multi |"},
        {"scene lo", "scene load |"},
        {"color materials Teal ", "color materials Teal |all,direct,multi,"},
        {"color name teA", "color name Teal |"},
        {"color name Teal T", "color name Teal T|"},
        {"color name Kh", "color name \"Kh \\\"\\\\#\" |"},
        {"color name \"Kh \\", "color name \"Kh \\\"\\\\#\" |"},
        {"color show =", "color show =|=22,=36,"},
        {"color drag Teal #fff000 i", "color drag Teal #fff000 in |"},
        {"color drag Teal 0.1 0.2 0.3 i", "color drag Teal 0.1 0.2 0.3 in |"},
        {"color drag Teal rgb(1, 2, 3) i", "color drag Teal rgb(1, 2, 3) in |"},
        {"color set Teal 1 1 1 1 name X m", "color set Teal 1 1 1 1 name X merge |"},
        {"multi switch Upholstery Li", "multi switch Upholstery Linen |"},
        {"multi remove Upholstery Linen S", "multi remove Upholstery Linen S|Sienna,SteelBlue,"},
        {"colorway set Studio Uph", "colorway set Studio Upholstery:|"},
        {"colorway set Studio Upholstery:Linen Frame:Bl",
         "colorway set Studio Upholstery:Linen Frame:Black |"},
        {"light assign acc", "light assign Accent |"},
        {"lightlayer add Accent key", "lightlayer add Accent \"Key Light\" |"},
        {"layer blend B", "layer blend \"Base coat\" |"},
        {"layer blend 0 mu", "layer blend 0 multiply |"},
        {"material show \"Seat F", "material show \"Seat Fabric\" |"},
        {"weave new x tw", "weave new x twill |"},
        {"weave new x satin 8 3 ", "weave new x satin 8 3 |"},
        {"weave show d", "weave show denim |"},
        {"weave yarn denim warp te", "weave yarn denim warp tension |"},
        {"value new v WeaveP", "value new v WeavePattern |"},
        {"param show ti", "param show tint |"},
        {"brush show ", "brush show |"}, // there is none
        {"help mat", "help material |"},
        {"fault creations o", "fault creations o|off,on,"},
        {"undo a", "undo all |"},
        {"scene load i", "scene load \"in here/|"},
        {"scene load \"in here/", "scene load \"in here/|in here/deep/,in here/one.json,"},
        {"scene load \"in here/o", "scene load \"in here/one.json\" |"},
        {"scene load \"in here/.", "scene load \"in here/.hidden\" |"},
        {"scene load nowhere/", "scene load nowhere/|"},
        {"color show # Te", "color show # Te|"},
        {"color show \"\\x1", "color show \"\\x1|"},
        {"nonsense ", "nonsense |"},
    };
    for (Row const& row : rows) {
        EXPECT_EQ(completed(host, row.line), row.completed);
    }
    std::filesystem::current_path(before);
}

} // namespace
