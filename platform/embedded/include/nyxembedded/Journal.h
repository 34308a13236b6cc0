#pragma once

#include "nyxrender/Export.h"

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace nyx::embedded {

/// The calls that reached the renderer, one line of text each, in order: the call, then its ids and
/// values ("commit_color_params 3"). Recording starts switched off. Any thread.
class NYXRENDER_EXPORT Journal {
public:
    void setRecording(bool on) { recording_.store(on, std::memory_order_relaxed); }
    [[nodiscard]] bool isRecording() const { return recording_.load(std::memory_order_relaxed); }
    /// The lines since the last take.
    [[nodiscard]] std::vector<std::string> take();

    /// Appends one line made of the parts with blanks between them; texts are JSON strings, ids and
    /// numbers are written as decimals, lists in brackets. Costs one branch while recording is off.
    template <class... Parts>
    void write(char const* call, Parts const&... parts) {
        if (isRecording()) {
            std::string line = call;
            (append(line, parts), ...);
            push(std::move(line));
        }
    }

private:
    static void append(std::string& line, char const* text);
    static void append(std::string& line, std::string const& text);
    static void append(std::string& line, bool value) { line += value ? " true" : " false"; }
    static void append(std::string& line, float value);
    static void append(std::string& line, int value) { line += ' ' + std::to_string(value); }
    static void append(std::string& line, std::uint32_t value) {
        line += ' ' + std::to_string(value);
    }
    template <class IdType>
    requires requires(IdType id) { id.toUint(); }
    static void append(std::string& line, IdType id) {
        line += id.isValid() ? ' ' + std::to_string(id.toUint()) : std::string(" -");
    }
    template <class List>
    requires requires(List list) { list[0].toUint(); }
    static void append(std::string& line, List const& list) {
        line += " [";
        std::string inner;
        for (auto const id : list) {
            append(inner, id);
        }
        line += inner.empty() ? inner : inner.substr(1);
        line += ']';
    }
    void push(std::string line);

    std::atomic<bool> recording_{false};
    std::mutex mutex_;
    std::vector<std::string> lines_;
};

} // namespace nyx::embedded
