#include "console/Application.h"
#include "console/Interrupts.h"
#include "console/StandardStreams.h"
#include "console/Terminal.h"
#include "host/Host.h"
#include "host/Interpreter.h"
#include "host/JsonSession.h"
#include "host/counted.h"
#include "host/installTranslation.h"
#include "host/printable.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/version.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>

#include <algorithm>
#include <iostream>
#include <optional>
#include <sstream>

namespace {

struct Options {
    std::string scene;
    std::string script = "-"; ///< "-" is standard input
    bool hasScript = false;
    bool jsonLines = false;
    bool keepGoing = false;
    bool echo = false;
    bool check = false;
    std::string convertTo;
    std::string language = "en";
};

/// The exit code when there is nothing more to do than say it.
std::optional<int> readOptions(Options& options) {
    CLI::App parser(
        "Headless host of the scene graph: loads a scene into the embedded renderer and "
        "works on it by commands.",
        "zsg-console");
    parser.add_option("SCENE", options.scene, "scene file (JSON)");
    parser.allow_windows_style_options(false); // "/folder/scene.json" is a path there too
    parser.require_subcommand(0, 1);
    parser.set_version_flag("--version", std::string("zsg-console ") + zsg::version());
    auto* const script = parser.add_option("--script", options.script,
                                           "run the commands of a file, - for standard input");
    parser.add_flag("--jsonl", options.jsonLines, "one JSON object per line, in and out")
        ->excludes(script);
    parser.add_flag("--keep-going", options.keepGoing,
                    "go on with the script when a command fails");
    parser.add_flag("--echo", options.echo, "print every line of the script before it runs");
    parser.add_option("--lang", options.language,
                      "the language of undo texts, messages and labels, as in de");
    auto* const check = parser.add_subcommand(
        "check", "load a scene, say what it holds or what is wrong with it, and end");
    check->add_option("SCENE", options.scene, "scene file (JSON)")->required();
    auto* const convert =
        parser.add_subcommand("convert", "load a scene and write it as this version does");
    convert->add_option("IN", options.scene, "scene file (JSON)")->required();
    convert->add_option("OUT", options.convertTo, "the file to write")->required();
    // Qt knows the arguments in UTF-8 on every system. The parser takes them from the last on.
    std::vector<std::string> arguments;
    for (QString const& argument : QCoreApplication::arguments()) {
        arguments.push_back(argument.toStdString());
    }
    arguments.erase(arguments.begin());
    std::ranges::reverse(arguments);
    try {
        parser.parse(arguments);
        if (options.scene.empty()) {
            throw CLI::RequiredError("SCENE");
        }
    } catch (CLI::ParseError const& error) {
        std::ostringstream out;
        std::ostringstream errors;
        int const code = parser.exit(error, out, errors);
        std::cout << app::printableLines(out.view());
        std::cerr << app::printableLines(errors.view());
        return code == 0 && std::cout.flush() ? 0 : 1;
    }
    options.hasScript = script->count() != 0;
    options.check = check->parsed();
    return {};
}

/// What the scene holds, in one line.
int check(app::Host& host, std::string const& path) {
    zsg::ColorDB& colors = *host.root().colorDB();
    std::cout << app::printable(path) << ": "
              << app::counted(colors.colors().size(), "colour", "colours") << ", "
              << app::counted(colors.multiColors().size(), "multi-colour", "multi-colours") << ", "
              << app::counted(colors.colorways().size(), "colorway", "colorways") << ", "
              << app::counted(host.renderer().materials().ids().size(), "material", "materials")
              << '\n';
    return std::cout.flush() ? 0 : 1;
}

int convert(app::Host& host, std::string const& path) {
    std::string const message = host.save(path);
    std::cerr << app::printable(message) << (message.empty() ? "" : "\n");
    return message.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    prepareStandardStreams();
    auto const application = makeApplication(argc, argv);
    Options options;
    if (auto const code = readOptions(options)) {
        return *code;
    }
    if (auto const message = app::installTranslation(options.language); !message.empty()) {
        std::cerr << app::printable(message) << '\n';
        return 1;
    }
    app::Host host(std::cout);
    if (std::string const message = host.load(options.scene); !message.empty()) {
        std::cerr << app::printable(message) << '\n';
        return 1;
    }
    if (options.check) {
        return check(host, options.scene);
    }
    if (!options.convertTo.empty()) {
        return convert(host, options.convertTo);
    }
    app::Interpreter interpreter(host);
    interpreter.echo(options.echo);
    interpreter.showSwatches(showsColors() && !options.jsonLines);
    int failures = 0;
    bool const atTerminal = !options.jsonLines && !options.hasScript && isTerminal();
    if (options.jsonLines || atTerminal) {
        catchInterrupts();
    }
    if (options.jsonLines) {
        failures = app::runJsonSession(interpreter, host, std::cin, std::cout);
    } else if (atTerminal) {
        runTerminalSession(interpreter, host);
    } else {
        // Standard input that is no terminal is a script without a name.
        failures =
            options.script == "-"
                ? interpreter.runScript(std::cin, "standard input", options.keepGoing, std::cerr)
                : interpreter.runScriptFile(options.script, options.keepGoing, std::cerr);
    }
    if (!std::cout.flush()) {
        std::cerr << "the output could not be written\n";
        return 1;
    }
    return failures == 0 ? 0 : 1;
}
