#include "host/CMFLint.h"

#include "host/PlacedJson.h"
#include "host/printable.h"
#include "zsg/materials/ZCMFSchema.h"

#include <QJsonDocument>
#include <QJsonParseError>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <string_view>

namespace app {

namespace {

using Kind = PlacedJson::Kind;

/// As QJsonValue::toInt() reads numbers.
int toInt(double number) {
    using Limits = std::numeric_limits<int>;
    bool const fits = number >= Limits::min() && number <= Limits::max();
    return fits && std::trunc(number) == number ? static_cast<int>(number) : 0;
}

std::string quoted(std::string const& text) { return '"' + printable(text, longestWord) + '"'; }

class Lint {
public:
    std::vector<CMFFinding> take() { return std::move(findings_); }

    void file(PlacedJson const& root) {
        keys(root, "", {"version", "schemaName", "attributes"});
        version(root);
        schemaName(root);
        PlacedJson const* const attributes = root.find("attributes");
        if (!attributes) {
            fault(root.line, "", "there are no \"attributes\"");
        } else if (attributes->kind != Kind::Array || attributes->elements.empty()) {
            fault(attributes->line, "/attributes", "is no array with at least one attribute");
        } else {
            for (std::size_t i = 0; i < attributes->elements.size(); ++i) {
                attribute(attributes->elements[i], "/attributes/" + std::to_string(i));
            }
        }
    }

    void fault(int line, std::string const& place, std::string const& text) {
        findings_.push_back({true, line, place, text});
    }
    void note(int line, std::string const& place, std::string const& text) {
        findings_.push_back({false, line, place, text});
    }

private:
    /// Keys that nobody reads, and keys that stand twice.
    void keys(PlacedJson const& object, std::string const& place,
              std::initializer_list<std::string_view> known) {
        std::set<std::string_view> seen;
        for (auto const& [key, value] : object.keys) {
            std::string const here = place + '/' + printable(pointerToken(key), longestWord);
            if (!seen.insert(key).second) {
                note(value.line, here, "the key stands here again; the last one counts");
            }
            if (std::find(known.begin(), known.end(), key) == known.end()) {
                note(value.line, here, "nobody reads this key");
            }
        }
    }

    void version(PlacedJson const& root) {
        PlacedJson const* const value = root.find("version");
        if (!value) {
            fault(root.line, "", "there is no \"version\"");
        } else if (value->kind != Kind::Number || toInt(value->number) != 1) {
            fault(value->line, "/version", "is not the number 1");
        }
    }

    void schemaName(PlacedJson const& root) {
        PlacedJson const* const value = root.find("schemaName");
        if (!value) {
            fault(root.line, "", "there is no \"schemaName\"");
        } else if (value->kind != Kind::String) {
            fault(value->line, "/schemaName", "is no string");
        } else if (value->text.empty()) {
            note(value->line, "/schemaName", "is empty");
        }
    }

    void attribute(PlacedJson const& value, std::string const& place) {
        if (value.kind != Kind::Object) {
            fault(value.line, place, "is no object");
            return;
        }
        keys(value, place, {"name", "kind", "visible"});
        bool const known = kind(value, place);
        name(value, place, known);
        PlacedJson const* const visible = value.find("visible");
        if (!known) {
            return; // it is left out before this is looked at
        }
        if (!visible) {
            fault(value.line, place, "there is no \"visible\"");
        } else if (visible->kind != Kind::Boolean) {
            fault(visible->line, place + "/visible", "is neither true nor false");
        }
    }

    /// False for a kind that makes the loader leave the attribute out.
    bool kind(PlacedJson const& attribute, std::string const& place) {
        PlacedJson const* const value = attribute.find("kind");
        if (!value) {
            fault(attribute.line, place, "there is no \"kind\"");
            return true;
        }
        std::string const here = place + "/kind";
        if (value->kind != Kind::Number) {
            fault(value->line, here, "is no number");
            return true;
        }
        int const number = toInt(value->number);
        if (number != value->number) {
            note(value->line, here, "is no whole number that fits; it is read as 0, text");
        } else if (number >= 8) {
            note(value->line, here,
                 std::to_string(number) + " is no kind (0 to 7); the attribute is left out");
            return false;
        } else if (number < 0) {
            note(value->line, here, std::to_string(number) + " is no kind (0 to 7), but is kept");
        }
        return true;
    }

    void name(PlacedJson const& attribute, std::string const& place, bool known) {
        PlacedJson const* const value = attribute.find("name");
        std::string const here = place + "/name";
        if (!value) {
            fault(attribute.line, place, "there is no \"name\"");
            return;
        }
        if (value->kind != Kind::String) {
            fault(value->line, here, "is no string");
            return;
        }
        std::string name = value->text;
        std::erase(name, '|');
        if (name != value->text) {
            note(value->line, here, "holds vertical bars; they are taken out");
        }
        if (name.empty()) {
            note(value->line, here, "is empty");
        }
        if (auto const first = names_.find(name); first != names_.end()) {
            fault(value->line, here,
                  quoted(name) + " is the name of an attribute on line " +
                      std::to_string(first->second) + " already");
        } else if (known) {
            names_.emplace(name, value->line);
        }
    }

    std::vector<CMFFinding> findings_;
    std::map<std::string, int> names_; ///< of attributes that count, with their lines
};

int lineBreaks(QByteArray const& text, qsizetype end) {
    return static_cast<int>(std::count(text.begin(), text.begin() + end, '\n'));
}

} // namespace

std::vector<CMFFinding> lintCMF(QByteArray const& file) {
    Lint lint;
    // The way of the loader: text, from its first brace on.
    QTextStream in(file);
    QByteArray text = in.readAll().toUtf8();
    if (text.contains("\xEF\xBF\xBD") && !file.contains("\xEF\xBF\xBD")) {
        qsizetype const at = text.indexOf("\xEF\xBF\xBD");
        lint.note(1 + lineBreaks(text, at), "",
                  "holds bytes that are no valid UTF-8; each is read as U+FFFD");
    }
    qsizetype const brace = text.indexOf('{');
    qsizetype const start = brace < 0 ? text.size() : brace;
    int const firstLine = 1 + lineBreaks(text, start);
    if (start > 0) {
        lint.note(1, "", "what stands before the first brace is skipped");
        text.remove(0, start);
    }
    QJsonParseError error;
    if (QJsonDocument::fromJson(text, &error).isNull()) {
        qsizetype const at = std::clamp<qsizetype>(error.offset, 0, text.size());
        lint.fault(firstLine + lineBreaks(text, at), "",
                   "is no JSON: " + error.errorString().toStdString());
        return lint.take();
    }
    int failedLine = 0;
    PlacedJson const root = readPlacedJson(
        {text.constData(), static_cast<std::size_t>(text.size())}, firstLine, failedLine);
    if (failedLine == 0) {
        lint.file(root);
        return lint.take();
    }
    // Qt reads some text that is no JSON, such as line breaks in strings.
    lint.note(failedLine, "",
              "is no JSON by the letter; other programs may refuse it, and what follows was not "
              "looked at in detail");
    QTextStream again(file);
    zsg::ZCMFSchema::LoadInfo const info = zsg::ZCMFSchema::load(again);
    if (!info.schema) {
        lint.fault(firstLine, "", info.message.toStdString());
    }
    return lint.take();
}

} // namespace app
