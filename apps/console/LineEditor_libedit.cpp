#include "console/LineEditor.h"

#include "console/HistoryFile.h"
#include "console/Interrupts.h"
#include "host/LineReader.h"
#include "host/printable.h"

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cwchar>
#include <exception>
#include <histedit.h>
#include <langinfo.h>
#include <string_view>
#include <unistd.h>

namespace {

struct HistoryEnd {
    void operator()(History* history) const { history_end(history); }
};
struct EditLineEnd {
    void operator()(EditLine* edit) const { el_end(edit); }
};

/// What the keys of today's terminals send, beside those that the terminal's description names.
constexpr char const* keys[][2] = {
    {"\\e[1~", "ed-move-to-beg"},      {"\\e[4~", "ed-move-to-end"}, {"\\e[7~", "ed-move-to-beg"},
    {"\\e[8~", "ed-move-to-end"},      {"\\e[H", "ed-move-to-beg"},  {"\\e[F", "ed-move-to-end"},
    {"\\e[3~", "ed-delete-next-char"}, {"\\e[1;5C", "em-next-word"}, {"\\e[1;5D", "ed-prev-word"},
    {"^R", "em-inc-search-prev"},      {"^I", "zsg-complete"},
};

// A column has to hold what a reader tells from another.
constexpr std::size_t mostChoices = 200;

std::size_t characters(std::string_view utf8) {
    return static_cast<std::size_t>(
        std::ranges::count_if(utf8, [](char c) { return (c & 0xC0) != 0x80; }));
}

void printColumns(std::FILE* out, std::vector<std::string> const& choices, std::size_t width) {
    std::size_t widest = 0;
    std::size_t const shown = std::min(choices.size(), mostChoices);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < shown; ++i) {
        texts.push_back(app::printable(choices[i], app::longestWord));
        widest = std::max(widest, characters(texts.back()));
    }
    std::size_t const columns = std::max<std::size_t>(1, width / (widest + 2));
    std::size_t const rows = (shown + columns - 1) / columns;
    std::fputc('\n', out);
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t i = row; i < shown; i += rows) {
            bool const isLast = i + rows >= shown;
            std::string const gap(isLast ? 0 : widest + 2 - characters(texts[i]), ' ');
            std::fprintf(out, "%s%s", texts[i].c_str(), gap.c_str());
        }
        std::fputc('\n', out);
    }
    if (choices.size() > shown) {
        std::fprintf(out, "and %zu more\n", choices.size() - shown);
    }
}

} // namespace

class LineEditor::Impl {
public:
    explicit Impl(Complete complete)
        : complete_(std::move(complete)), history_(history_init()), edit_(begin()) {
        HistEvent event;
        history(history_.get(), &event, H_SETSIZE, static_cast<int>(HistoryFile::mostLines));
        history(history_.get(), &event, H_SETUNIQUE, 1); // a line twice in a row counts once
        for (std::string const& line : file_.lines()) {
            history(history_.get(), &event, H_ENTER, line.c_str());
        }
        EditLine* const edit = edit_.get();
        el_set(edit, EL_CLIENTDATA, this);
        el_set(edit, EL_PROMPT, &Impl::prompt);
        el_set(edit, EL_EDITOR, "emacs");
        el_set(edit, EL_HIST, history, history_.get());
        el_set(edit, EL_GETCFN, &Impl::nextCharacter);
        el_set(edit, EL_ADDFN, "zsg-complete", "Complete the word", &Impl::complete);
        for (auto const& [key, function] : keys) {
            el_set(edit, EL_BIND, key, function, nullptr);
        }
        el_source(edit, nullptr); // what the user has in ~/.editrc
    }

    Result read(char const* prompt, std::string& line) {
        prompt_ = prompt;
        end_ = Result::End;
        int count = 0;
        el_resize(edit_.get());
        char const* const text = el_gets(edit_.get(), &count);
        if (!text || count <= 0) {
            return end_;
        }
        line.assign(text, static_cast<std::size_t>(count));
        if (line.ends_with('\n')) {
            line.pop_back();
        }
        return Result::Line;
    }

    void keep(std::string const& line) {
        if (line.find_first_not_of(" \t") == std::string::npos || line.size() > app::longestLine) {
            return;
        }
        HistEvent event;
        history(history_.get(), &event, H_ENTER, line.c_str());
        if (line != last_) {
            file_.append(line);
        }
        last_ = line;
    }

private:
    static EditLine* begin() {
        // Commands are UTF-8 wherever; in another locale the editor would drop typed letters.
        if (std::string_view(nl_langinfo(CODESET)) != "UTF-8") {
            std::setlocale(LC_CTYPE, "C.UTF-8");
        }
        return el_init("zsg-console", stdin, stdout, stderr);
    }

    static Impl& of(EditLine* edit) {
        void* self = nullptr;
        el_get(edit, EL_CLIENTDATA, &self);
        return *static_cast<Impl*>(self);
    }

    static char* prompt(EditLine* edit) { return of(edit).prompt_.data(); }

    // The editor's own reading tries again after a signal.
    static int nextCharacter(EditLine* edit, wchar_t* character) {
        std::mbstate_t state = {};
        while (true) {
            if (!waitForInput()) {
                of(edit).end_ = Result::Interrupted;
                return -1;
            }
            char byte = 0;
            ssize_t const count = ::read(STDIN_FILENO, &byte, 1);
            if (count < 0 && (errno == EINTR || errno == EAGAIN)) {
                continue;
            }
            if (count <= 0) {
                return static_cast<int>(count);
            }
            std::size_t const length = std::mbrtowc(character, &byte, 1, &state);
            if (length == static_cast<std::size_t>(-1)) {
                *character = L'\uFFFD'; // no character of the locale: not to be lost unseen
                return 1;
            }
            if (length != static_cast<std::size_t>(-2)) {
                return 1;
            }
        }
    }

    static unsigned char complete(EditLine* edit, int) {
        LineInfo const* const info = el_line(edit);
        std::string const line(info->buffer, info->cursor);
        app::Completion found;
        try {
            found = of(edit).complete_(line);
        } catch (std::exception const&) { // it must not pass through a library in C
            return CC_ERROR;
        }
        if (found.choices.empty()) {
            return CC_ERROR;
        }
        std::string const before = line.substr(found.start);
        if (found.text != before) {
            el_deletestr(edit, static_cast<int>(characters(before)));
            el_insertstr(edit, found.text.c_str());
            return CC_REFRESH;
        }
        if (found.choices.size() == 1) {
            return CC_NORM;
        }
        int width = 0;
        el_get(edit, EL_GETTC, "co", &width);
        printColumns(stdout, found.choices, width > 0 ? static_cast<std::size_t>(width) : 80);
        return CC_REDISPLAY;
    }

    Complete complete_;
    HistoryFile file_;
    std::unique_ptr<History, HistoryEnd> history_;
    std::unique_ptr<EditLine, EditLineEnd> edit_;
    std::string prompt_;
    std::string last_; ///< that was kept
    Result end_ = Result::End;
};

LineEditor::LineEditor(Complete complete) : impl_(std::make_unique<Impl>(std::move(complete))) {}

LineEditor::~LineEditor() = default;

LineEditor::Result LineEditor::readCommand(char const* prompt, std::string& line) {
    Result const result = impl_->read(prompt, line);
    if (result == Result::Line) {
        impl_->keep(line);
    }
    return result;
}

LineEditor::Result LineEditor::readAnswer(char const* prompt, std::string& line) {
    return impl_->read(prompt, line);
}
