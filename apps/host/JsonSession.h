#pragma once

#include <iosfwd>

namespace app {

class Host;
class Interpreter;

/// Talks in JSON lines. A request is {"command": "color list"} or {"command": ["color", "list"]},
/// with an optional "id" of any type, nested up to 64 deep. Its answer is {"id": ..., "ok": true,
/// "output": [lines], "events": [{"id": n, "type": text, "payload": text}]}, or "ok": false with
/// "error". Every request is answered by one line, also an unreadable one. Returns the exit code: 1
/// when any failed.
int runJsonSession(Interpreter& interpreter, Host& host, std::istream& in, std::ostream& out);

} // namespace app
