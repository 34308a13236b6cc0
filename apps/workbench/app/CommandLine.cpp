#include "workbench/app/CommandLine.h"

#include "zsg/version.h"

#include <QCommandLineParser>

namespace workbench {

namespace {

std::optional<QSize> readSize(QString const& text) {
    QStringList const parts = text.split('x');
    bool widthOk = false;
    bool heightOk = false;
    QSize const size(parts.value(0).toInt(&widthOk), parts.value(1).toInt(&heightOk));
    bool const ok = parts.size() == 2 && widthOk && heightOk && size.width() >= 100 &&
                    size.height() >= 100 && size.width() <= 10'000 && size.height() <= 10'000;
    return ok ? std::optional(size) : std::nullopt;
}

CommandLineResult wrong(QString const& text) { return {std::nullopt, text + '\n', 1}; }

} // namespace

CommandLineResult readCommandLine(QStringList const& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "A window in which a person sees and edits a scene: colours, multi-colours, colorways.");
    parser.addPositionalArgument("SCENE", "scene file (JSON)", "[SCENE]");
    QCommandLineOption const help({"h", "help"}, "print this help and end");
    QCommandLineOption const version("version", "print the version and end");
    QCommandLineOption const script("script", "run the commands of a file", "FILE");
    QCommandLineOption const screenshot("screenshot", "write a picture (PNG) and end", "FILE");
    QCommandLineOption const panel("panel", "let the picture show one panel only", "NAME");
    QCommandLineOption const size("size", "of the window, in units of the screen", "WxH");
    QCommandLineOption const scale("scale", "pixels per unit of the screen, 0.5 to 4", "FACTOR");
    QCommandLineOption const palette("palette", "dark or light", "NAME");
    QCommandLineOption const lang("lang", "language of the window, as de", "LANGUAGE");
    QCommandLineOption const autosave(
        "autosave", "how often unsaved changes are copied, 120 unless it is given", "SECONDS");
    QCommandLineOption const quit("quit", "end when the script has run");
    parser.addOptions(
        {help, version, script, screenshot, panel, size, scale, palette, lang, autosave, quit});
    if (!parser.parse(arguments)) {
        return wrong(parser.errorText());
    }
    if (parser.isSet(help)) {
        // It names the program by an application, which does not exist yet.
        return {std::nullopt, parser.helpText().replace("<executable_name>", "zsg-workbench"), 0};
    }
    if (parser.isSet(version)) {
        return {std::nullopt, QString("zsg-workbench %1\n").arg(zsg::version()), 0};
    }
    if (parser.positionalArguments().size() > 1) {
        return wrong("more than one scene");
    }
    CommandLine line;
    line.scene = parser.positionalArguments().value(0);
    line.script = parser.value(script);
    line.screenshot = parser.value(screenshot);
    line.panel = parser.value(panel);
    line.palette = parser.value(palette);
    line.language = parser.value(lang);
    line.quit = parser.isSet(quit);
    if (parser.isSet(size)) {
        auto const read = readSize(parser.value(size));
        if (!read) {
            return wrong("--size: expected WIDTHxHEIGHT, each 100 to 10000");
        }
        line.size = *read;
    }
    if (parser.isSet(scale)) {
        line.scale = parser.value(scale).toDouble();
        if (!(line.scale >= 0.5 && line.scale <= 4)) {
            return wrong("--scale: expected a number from 0.5 to 4");
        }
    }
    if (parser.isSet(palette) && line.palette != "dark" && line.palette != "light") {
        return wrong("--palette: expected dark or light");
    }
    if (parser.isSet(autosave)) {
        line.autosave = parser.value(autosave).toInt();
        if (line.autosave < 1 || line.autosave > 3600) {
            return wrong("--autosave: expected 1 to 3600 seconds");
        }
    }
    return {line, {}, 0};
}

} // namespace workbench
