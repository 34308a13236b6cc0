#include "console/Terminal.h"

#include "console/LineEditor.h"
#include "host/Host.h"
#include "host/Interpreter.h"

#include <iostream>

void runTerminalSession(app::Interpreter& interpreter, app::Host& host) {
    host.pump();
    host.out() << "\"help\" lists the commands, \"quit\" ends.\n";
    while (!host.endRequested()) {
        host.out().flush();
        auto const line = editLine("zsg> ");
        if (!line) {
            host.out() << '\n';
            break;
        }
        try {
            interpreter.run(std::string_view(*line));
        } catch (std::exception const& error) {
            host.out().flush();
            std::cerr << error.what() << std::endl;
        }
    }
}
