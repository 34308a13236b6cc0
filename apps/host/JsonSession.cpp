#include "host/JsonSession.h"

#include "host/Arguments.h"
#include "host/CommandResult.h"
#include "host/Host.h"
#include "host/Interpreter.h"
#include "host/Interruption.h"
#include "host/LineReader.h"
#include "host/parseJson.h"
#include "zsg/version.h"

#include <nlohmann/json.hpp>

#include <ostream>
#include <sstream>

namespace app {

namespace {

using Json = nlohmann::ordered_json;

/// A client may talk for weeks, so that what nobody counts is forgotten.
constexpr std::size_t mostEvents = 1'000'000;

Json parse(std::string const& line) {
    try {
        return parseJson<Json>(line, true);
    } catch (Json::exception const& error) {
        std::string const text = error.what(); // "[json.exception...] what"
        throw CommandError(text.substr(text.find("] ") + 2), "bad-json");
    }
}

/// A word of a list: numbers and truths are written as people type them.
std::string wordOf(Json const& word) {
    if (word.is_boolean()) {
        return word.get<bool>() ? "on" : "off";
    }
    if (word.is_number()) {
        return word.dump();
    }
    if (!word.is_string()) {
        throw CommandError("expected \"command\" to hold texts, numbers and truths only",
                           "bad-request");
    }
    return word.get<std::string>();
}

void runRequest(Interpreter& interpreter, Json const& request) {
    auto const command = request.is_object() ? request.find("command") : request.end();
    if (!request.is_object() || command == request.end()) {
        throw CommandError("expected an object with \"command\"", "bad-request");
    }
    if (command->is_string()) {
        return interpreter.run(std::string_view(command->get_ref<std::string const&>()));
    }
    if (!command->is_array()) {
        throw CommandError("expected \"command\" to be a text or a list of words", "bad-request");
    }
    std::vector<std::string> words;
    for (Json const& word : *command) {
        words.push_back(wordOf(word));
    }
    interpreter.run(words);
}

Json lines(std::string const& text) {
    Json list = Json::array();
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        list.push_back(line);
    }
    return list;
}

/// ASCII only: whoever reads it decodes the names, and a terminal obeys nothing in them. Names of a
/// scene are UTF-8; what is not is shown as the replacement character.
void write(std::ostream& out, Json const& line) {
    out << line.dump(-1, ' ', true, Json::error_handler_t::replace) << std::endl;
}

Json greeting(Host& host) {
    return {{"program", "zsg-console"},
            {"version", zsg::version()},
            {"protocol", 1},
            {"scene", host.path()},
            {"capabilities", {"events", "interrupt", "numbers", "result", "undo"}}};
}

Json undoState(ZUndoStack const& stack) {
    return {{"undo", stack.index()},
            {"redo", stack.count() - stack.index()},
            {"clean", stack.isClean()},
            {"text", stack.index() > 0 ? stack.text(stack.index() - 1).toStdString() : ""}};
}

} // namespace

int runJsonSession(Interpreter& interpreter, Host& host, std::istream& in, std::ostream& out) {
    bool failed = false;
    host.showEvents(EventPrinter::Show::Nothing);
    auto& result = host.state<CommandResult>();
    result.isWanted = true;
    Json events = Json::array();
    host.watchEvents(
        [&events](EventLog::Entry const& event) { events.push_back(eventResult(event)); });
    write(out, greeting(host));
    std::string line;
    while (!host.endRequested()) {
        ReadResult const read = readLine(in, line);
        if (read == ReadResult::End) {
            break;
        }
        std::ostringstream output;
        host.setOut(output);
        events.clear();
        result.value = nullptr;
        takeInterruption(); // of a command that had ended already
        Json answer = Json::object();
        Json error;
        try {
            if (read == ReadResult::TooLong) {
                throw CommandError("the line is longer than " + std::to_string(longestLine) +
                                       " bytes",
                                   "too-long");
            }
            Json const request = parse(line);
            if (request.is_object() && request.contains("id")) {
                answer["id"] = request["id"];
            }
            runRequest(interpreter, request);
        } catch (CommandError const& e) {
            error = {{"code", e.code()}, {"message", e.what()}};
        } catch (std::exception const& e) {
            error = {{"code", "failed"}, {"message", e.what()}};
        }
        host.setOut(out);
        failed = failed || !error.is_null();
        answer["ok"] = error.is_null();
        if (!error.is_null()) {
            answer["error"] = std::move(error);
        } else if (!result.value.is_null()) {
            answer["result"] = std::move(result.value);
        }
        answer["output"] = lines(output.str());
        answer["undo"] = undoState(host.undoStack());
        answer["events"] = events;
        write(out, answer);
        if (host.events().entries().size() > mostEvents) {
            host.events().clear();
        }
        if (read == ReadResult::TooLong) {
            skipLine(in);
        }
    }
    host.watchEvents({});
    result.isWanted = false;
    return failed ? 1 : 0;
}

} // namespace app
