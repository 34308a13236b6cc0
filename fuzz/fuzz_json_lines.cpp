#include "consoleInput.h"
#include "host/Host.h"
#include "host/Interpreter.h"
#include "host/JsonSession.h"
#include "require.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <sstream>

/// Requests in JSON lines: behind the greeting each gets one answer, and all of it is JSON.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    ConsoleSandbox::enter();
    std::istringstream script(std::string(reinterpret_cast<char const*>(data), size));
    std::string requests;
    std::string line;
    int asked = 0;
    for (; asked < 20 && std::getline(script, line);) {
        if (isHarmless(line)) {
            requests += line + '\n';
            ++asked;
        }
    }
    std::ostringstream printed;
    std::ostringstream out;
    app::Host host(printed);
    app::Interpreter interpreter(host);
    std::istringstream in(requests);
    app::runJsonSession(interpreter, host, in, out);
    std::istringstream answers(out.str());
    int answered = -1; // the greeting comes first
    for (; std::getline(answers, line); ++answered) {
        require(nlohmann::json::parse(line, nullptr, false).is_object());
    }
    require(answered == asked || (answered < asked && host.endRequested()));
    return 0;
}
