#include "host/JsonSession.h"

#include "host/Arguments.h"
#include "host/Host.h"
#include "host/Interpreter.h"
#include "host/LineReader.h"

#include <nlohmann/json.hpp>

#include <ostream>
#include <sstream>

namespace app {

namespace {

using Json = nlohmann::ordered_json;

// Copying, writing and comparing a value go as deep as it is nested.
Json parse(std::string const& line) {
    constexpr int deepest = 64;
    return Json::parse(line, [](int depth, Json::parse_event_t, Json&) {
        if (depth > deepest) {
            throw CommandError("nested deeper than " + std::to_string(deepest));
        }
        return true;
    });
}

void runRequest(Interpreter& interpreter, Json const& request) {
    auto const command = request.is_object() ? request.find("command") : request.end();
    if (!request.is_object() || command == request.end()) {
        throw CommandError("expected an object with \"command\"");
    }
    if (command->is_string()) {
        return interpreter.run(std::string_view(command->get_ref<std::string const&>()));
    }
    std::vector<std::string> words;
    if (command->is_array()) {
        for (Json const& word : *command) {
            if (!word.is_string()) {
                throw CommandError("expected \"command\" to hold texts only");
            }
            words.push_back(word.get<std::string>());
        }
        return interpreter.run(words);
    }
    throw CommandError("expected \"command\" to be a text or a list of texts");
}

Json lines(std::string const& text) {
    Json list = Json::array();
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        list.push_back(line);
    }
    return list;
}

} // namespace

int runJsonSession(Interpreter& interpreter, Host& host, std::istream& in, std::ostream& out) {
    bool failed = false;
    host.showEvents(EventPrinter::Show::Nothing);
    std::string line;
    while (!host.endRequested()) {
        ReadResult const result = readLine(in, line);
        if (result == ReadResult::End) {
            break;
        }
        std::ostringstream output;
        host.setOut(output);
        host.events().clear();
        Json answer = Json::object();
        std::string error;
        try {
            if (result == ReadResult::TooLong) {
                throw CommandError("the line is longer than " + std::to_string(longestLine) +
                                   " bytes");
            }
            Json const request = parse(line);
            if (request.is_object() && request.contains("id")) {
                answer["id"] = request["id"];
            }
            runRequest(interpreter, request);
        } catch (std::exception const& e) {
            error = e.what();
        }
        host.setOut(out);
        failed = failed || !error.empty();
        answer["ok"] = error.empty();
        if (!error.empty()) {
            answer["error"] = error;
        }
        answer["output"] = lines(output.str());
        Json events = Json::array();
        for (EventLog::Entry const& event : host.events().entries()) {
            events.push_back(
                {{"id", event.id}, {"type", event.typeText}, {"payload", event.payload}});
        }
        answer["events"] = std::move(events);
        // Names of a scene are UTF-8; what is not is shown as the replacement character.
        out << answer.dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
        if (result == ReadResult::TooLong) {
            skipLine(in);
        }
    }
    return failed ? 1 : 0;
}

} // namespace app
