#include "workbench/app/ConsolePanel.h"

#include "host/CommandTable.h"
#include "workbench/app/Document.h"

#include <QCompleter>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <sstream>

namespace workbench {

namespace {

constexpr int mostLinesShown = 10'000;

QStringList commandNames() {
    QStringList names;
    for (app::Command const* const command : app::allCommands()) {
        names += QString::fromUtf8(command->name.data(), qsizetype(command->name.size()));
    }
    return names;
}

} // namespace

ConsolePanel::ConsolePanel(Document& document, QWidget* parent)
    : Panel(parent),
      document_(document),
      output_(new QPlainTextEdit(this)),
      input_(new QLineEdit(this)) {
    QFont const font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    output_->setFont(font);
    output_->setReadOnly(true);
    output_->setMaximumBlockCount(mostLinesShown);
    output_->setTabChangesFocus(true);
    output_->setAccessibleName(tr("What the commands have printed"));
    input_->setFont(font);
    input_->setObjectName("consoleInput");
    input_->setAccessibleName(tr("Command"));
    input_->setPlaceholderText(tr("a command; \"help\" lists them"));
    auto* const completer = new QCompleter(commandNames(), input_);
    completer->setFilterMode(Qt::MatchStartsWith);
    input_->setCompleter(completer);
    input_->installEventFilter(this);
    setFocusProxy(input_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(output_);
    layout->addWidget(input_);
    connect(input_, &QLineEdit::returnPressed, this, [this] {
        QString const line = input_->text();
        input_->clear();
        run(line);
    });
}

void ConsolePanel::run(QString const& line) {
    if (line.trimmed().isEmpty()) {
        return;
    }
    typed_.removeAll(line);
    typed_ += line;
    recalled_ = typed_.size();
    output_->appendPlainText("zsg> " + line);
    std::ostringstream out;
    try {
        document_.runCommand(line.toStdString(), out);
    } catch (std::exception const& error) {
        out << error.what() << '\n';
    }
    QString const text = QString::fromStdString(out.str()).chopped(out.str().empty() ? 0 : 1);
    if (!text.isEmpty()) {
        output_->appendPlainText(text);
    }
    if (document_.host().endRequested()) { // quit
        document_.host().requestEnd(app::Host::End::No);
        window()->close();
    }
}

bool ConsolePanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        int const key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            recall(key == Qt::Key_Up ? -1 : 1);
            return true;
        }
    }
    return Panel::eventFilter(watched, event);
}

void ConsolePanel::recall(int step) {
    recalled_ = std::clamp<qsizetype>(recalled_ + step, 0, typed_.size());
    input_->setText(typed_.value(recalled_));
}

} // namespace workbench
