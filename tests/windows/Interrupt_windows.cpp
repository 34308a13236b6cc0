// Interrupt_windows CONSOLE SCENE: presses Ctrl-C in the console window that it shares with a JSON
// session, while a command runs there that takes long.

#include <array>
#include <iostream>
#include <string>
#include <windows.h>

namespace {

struct Pipe {
    HANDLE read = nullptr;
    HANDLE write = nullptr;

    // The end that the session has is inherited, ours is not.
    explicit Pipe(HANDLE Pipe::*ours) {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        CreatePipe(&read, &write, &inherited, 0);
        SetHandleInformation(this->*ours, HANDLE_FLAG_INHERIT, 0);
    }
};

class Session {
public:
    explicit Session(std::string command) {
        STARTUPINFOA startup{};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdInput = input.read;
        startup.hStdOutput = output.write;
        startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
        started = CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                 nullptr, &startup, &process);
        CloseHandle(input.read);
        CloseHandle(output.write);
    }

    void say(std::string const& line) const {
        DWORD written = 0;
        WriteFile(input.write, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    }

    std::string hear() {
        std::size_t end = 0;
        std::array<char, 65536> part{};
        DWORD size = 0;
        while ((end = heard.find('\n')) == std::string::npos &&
               ReadFile(output.read, part.data(), part.size(), &size, nullptr) != 0 && size > 0) {
            heard.append(part.data(), size);
        }
        std::string line = heard.substr(0, end);
        heard.erase(0, end == std::string::npos ? end : end + 1);
        return line;
    }

    bool started = false;

private:
    Pipe input{&Pipe::write};
    Pipe output{&Pipe::read};
    PROCESS_INFORMATION process{};
    std::string heard;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        return 2;
    }
    FreeConsole();
    // This process hears Ctrl-C as well; that it ignores it would be inherited, so it has a
    // handler.
    if (AllocConsole() == 0 || SetConsoleCtrlHandler([](DWORD) { return TRUE; }, TRUE) == 0) {
        std::cerr << "there is no console window\n";
        return 1;
    }
    Session session(std::string(argv[1]) + " --jsonl " + argv[2]);
    bool passed = session.started && session.hear().find("\"interrupt\"") != std::string::npos;
    session.say("{\"command\": \"color drag Teal #ff0000 in 100000\"}\n");
    Sleep(1000); // an interrupt before the command has begun would be none of its
    passed = GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0) != 0 && passed;
    for (auto const& [command, answer] : {std::pair{"", "\"code\":\"interrupted\""},
                                          std::pair{"{\"command\": \"undo\"}\n", "\"ok\":true"}}) {
        session.say(command);
        std::string const line = session.hear();
        if (line.find(answer) == std::string::npos) {
            std::cerr << "expected " << answer << ", heard " << line.substr(0, 300) << '\n';
            passed = false;
        }
    }
    return passed ? 0 : 1;
}
