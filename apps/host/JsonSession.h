#pragma once

#include <iosfwd>

namespace app {

class Host;
class Interpreter;

/// Talks in JSON lines of ASCII. The first says who talks: {"program", "version", "protocol": 1,
/// "scene": path, "capabilities": [texts]}. A request is {"command": "undo 2"} or
/// {"command": ["undo", 2]}, a list of texts, numbers and truths (on, off), with an optional "id"
/// of any type, nested up to 64 deep. Its answer is {"id": ..., "ok": true, "result": what was
/// found, where the command gives that, "output": [lines as they are printed], "undo": {"undo":
/// edits that can be taken back, "redo": edits, "clean": whether it is the saved state, "text": of
/// the last edit}, "events": [{"id": n, "type": text, "payload": text}]}, or "ok": false with
/// "error":
/// {"code": "unknown-command", "usage", "failed", "interrupted", "bad-json", "bad-request" or
/// "too-long", "message": text}. Every request is answered by one line, also an unreadable one.
/// Returns the exit code: 1 when any failed.
int runJsonSession(Interpreter& interpreter, Host& host, std::istream& in, std::ostream& out);

} // namespace app
