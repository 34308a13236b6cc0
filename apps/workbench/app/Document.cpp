#include "workbench/app/Document.h"

#include "host/NamedValues.h"

#include "zcore/ZUndoStack.h"

#include <QFileInfo>

#include <functional>
#include <new>
#include <ostream>

namespace workbench {

using namespace std::chrono_literals;

namespace {

/// Takes what nobody is there to read.
std::ostream& nowhere() {
    static std::ostream stream(nullptr);
    return stream;
}

template <class T>
std::map<std::string, T>& named(app::Host& host) {
    return host.state<app::NamedValues<T>>().byName;
}

ValueStore::Maps namedValues(app::Host& host) {
    return {named<zsg::WeavePattern>(host), named<zsg::ColorGradient>(host),
            named<zsg::AnimationCurve>(host), named<zsg::FloatArray>(host),
            named<std::shared_ptr<zsg::Variant>>(host)};
}

/// The log of a host keeps every event for scripts that ask; nobody does between two of them.
constexpr std::size_t mostEventsKept = 10'000;

} // namespace

class Document::CommandRun {
public:
    CommandRun(Document& document, std::ostream& out)
        : document_(document),
          rootsBefore_(document.roots_),
          savesBefore_(document.host_.saveCount()) {
        document_.scene_.endDrags();
        document_.keepsUnsaved_ = document_.isModified();
        if (!document_.isModified() && !document_.unmodified_) {
            document_.unmodified_ = hashOf(document_.host_);
        }
        document_.host_.setOut(out);
    }
    ~CommandRun() {
        document_.host_.setOut(nowhere());
        document_.keepsUnsaved_ = false;
        if (document_.roots_ != rootsBefore_) { // the commands have loaded another scene
            document_.loadedFrom(QString::fromStdString(document_.host_.path()));
        } else if (document_.host_.saveCount() != savesBefore_) {
            document_.savedTo(QString::fromStdString(document_.host_.savedPath()));
        } else if (!document_.isModified() && document_.unmodified_ != hashOf(document_.host_)) {
            document_.scene_.noteUnrecordedChange(); // many a command has no entry in the history
        }
        document_.scene_.flush();
        document_.scene_.noteCommands();
    }
    CommandRun(CommandRun const&) = delete;
    CommandRun& operator=(CommandRun const&) = delete;

private:
    static std::size_t hashOf(app::Host& host) { return std::hash<std::string>()(host.dump()); }

    Document& document_;
    int rootsBefore_;
    int savesBefore_;
};

Document::Document(QString const& autosaveFolder)
    : host_(nowhere()),
      scene_(host_.undoStack(), &contents_),
      values_(scene_, namedValues(host_)),
      autosave_(autosaveFolder) {
    host_.watchRoot([this](zsg::ISceneGraph* root) { takeOver(root); });
    connect(&scene_, &Scene::historyChanged, this, &Document::noteChange);
    connect(&scene_, &Scene::changedUnrecorded, this, [this] {
        changedUnrecorded_ = true;
        noteChange();
    });
    connect(&scene_, &Scene::changed, this, [this] {
        unmodified_.reset();
        if (host_.events().entries().size() > mostEventsKept) {
            host_.events().clear();
        }
    });
    connect(&autosaveTimer_, &QTimer::timeout, this, &Document::autosave);
    setAutosaveInterval(2min);
}

Document::~Document() {
    scene_.endDrags();
    host_.watchRoot({});
    scene_.setRoot(nullptr);
}

void Document::takeOver(zsg::ISceneGraph* root) {
    ++roots_;
    if (!root && keepsUnsaved_) { // a command loads another scene, and asks nobody
        writeCopy();
    }
    scene_.setRoot(root);
}

void Document::noteChange() {
    changedSinceAutosave_ = true;
    unmodified_.reset();
    emit stateChanged();
}

void Document::loadedFrom(QString const& path) {
    autosave_.startAnew();
    path_ = path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
    isRecovered_ = changedUnrecorded_ = changedSinceAutosave_ = false;
    unmodified_.reset();
    emit stateChanged();
    emit fileMatches();
}

void Document::savedTo(QString const& path) {
    path_ = QFileInfo(path).absoluteFilePath();
    isRecovered_ = changedUnrecorded_ = changedSinceAutosave_ = false;
    unmodified_.reset();
    autosave_.discard();
    emit stateChanged();
    emit fileMatches();
}

std::string Document::open(QString const& path) {
    scene_.endDrags();
    scene_.endMacros(); // no scene is loaded over an open one
    std::string message = host_.load(path.toStdString());
    if (message.empty()) {
        autosave_.discard();
        loadedFrom(path);
    }
    return message;
}

std::string Document::recover(Autosave::Orphan const& orphan) {
    std::string message = open(orphan.file);
    if (message.empty()) {
        autosave_.adopt(orphan);
        recoveredFrom_ = orphan.original;
        path_.clear();
        isRecovered_ = changedUnrecorded_ = true;
        emit stateChanged();
    }
    return message;
}

std::string Document::saveAs(QString const& path) {
    scene_.endDrags();
    scene_.endMacros(); // the saved state is one that the history can come back to
    std::string message = host_.save(path.toStdString());
    if (message.empty()) {
        savedTo(path);
    }
    return message;
}

int Document::runScript(std::string const& path, std::ostream& out, std::ostream& errors) {
    CommandRun const run(*this, out);
    return interpreter_.runScriptFile(path, false, errors);
}

void Document::runCommand(std::string const& line, std::ostream& out) {
    CommandRun const run(*this, out);
    interpreter_.run(line);
}

QString Document::name() const {
    if (isRecovered_) {
        QString const file = QFileInfo(recoveredFrom_).fileName();
        return tr("%1 (recovered)").arg(file.isEmpty() ? tr("unnamed") : file);
    }
    return path_.isEmpty() ? tr("unnamed") : QFileInfo(path_).fileName();
}

bool Document::isModified() const { return changedUnrecorded_ || !scene_.undoStack().isClean(); }

void Document::autosave() {
    if (!isModified() || !changedSinceAutosave_) {
        return;
    }
    changedSinceAutosave_ = !writeCopy();
}

void Document::setAutosaveInterval(std::chrono::seconds interval) {
    autosaveTimer_.start(interval);
}

bool Document::writeCopy() {
    std::string message;
    try {
        message = autosave_.write(isRecovered_ ? recoveredFrom_ : path_, host_.saveText());
    } catch (std::bad_alloc const&) {
        message = tr("there is not enough memory").toStdString();
    }
    if (!message.empty()) {
        scene_.say(tr("No copy for after a crash could be written: %1")
                       .arg(QString::fromStdString(message)));
    }
    return message.empty();
}

} // namespace workbench
