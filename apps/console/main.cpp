#include "Terminal.h"
#include "host/Host.h"
#include "host/Interpreter.h"
#include "host/JsonSession.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

// Standard input that is no terminal is a script without a name.
int runScript(app::Interpreter& interpreter, std::string const& path, bool keepGoing) {
    if (path == "-") {
        return interpreter.runScript(std::cin, "standard input", keepGoing, std::cerr) == 0 ? 0 : 1;
    }
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
        std::cerr << path << ": is a folder, not a script\n";
        return 1;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        std::cerr << (path.empty() ? "\"\"" : path) << ": cannot be opened\n";
        return 1;
    }
    return interpreter.runScript(in, path, keepGoing, std::cerr) == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);

    CLI::App options(
        "Headless host of the scene graph: loads a scene into the embedded renderer and "
        "works on it by commands.",
        "zsg-console");
    std::string scene;
    std::string script;
    bool jsonLines = false;
    bool keepGoing = false;
    options.add_option("SCENE", scene, "scene file (JSON)")->required();
    auto* const scriptOption =
        options.add_option("--script", script, "run the commands of a file, - for standard input");
    options.add_flag("--jsonl", jsonLines, "one JSON object per line, in and out")
        ->excludes(scriptOption);
    options.add_flag("--keep-going", keepGoing, "go on with the script when a command fails");
    try {
        options.parse(argc, argv);
    } catch (CLI::ParseError const& error) {
        return options.exit(error) == 0 ? 0 : 1;
    }

    app::Host host(std::cout);
    if (std::string const message = host.load(scene); !message.empty()) {
        std::cerr << message << '\n';
        return 1;
    }
    app::Interpreter interpreter(host);
    int code = 0;
    if (jsonLines) {
        code = app::runJsonSession(interpreter, host, std::cin, std::cout);
    } else if (scriptOption->count() == 0 && app::isTerminal()) {
        code = app::runTerminalSession(interpreter, host);
    } else {
        code = runScript(interpreter, scriptOption->count() == 0 ? "-" : script, keepGoing);
    }
    if (!std::cout.flush()) {
        std::cerr << "the output could not be written\n";
        return 1;
    }
    return code;
}
