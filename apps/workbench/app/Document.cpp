#include "workbench/app/Document.h"

#include "host/NamedValues.h"

#include "zcore/ZUndoStack.h"

#include <QFileInfo>

#include <chrono>
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
        : document_(document), rootsBefore_(document.roots_) {
        document_.scene_.endDrags();
        document_.host_.setOut(out);
    }
    ~CommandRun() {
        document_.host_.setOut(nowhere());
        if (document_.roots_ != rootsBefore_) { // the commands have loaded another scene
            document_.loadedFrom(QString::fromStdString(document_.host_.path()));
        }
        document_.scene_.flush();
        document_.scene_.noteCommands();
    }
    CommandRun(CommandRun const&) = delete;
    CommandRun& operator=(CommandRun const&) = delete;

private:
    Document& document_;
    int rootsBefore_;
};

Document::Document(QString const& autosaveFolder)
    : host_(nowhere()),
      scene_(host_.undoStack(), &contents_),
      values_(scene_, namedValues(host_)),
      autosave_(autosaveFolder) {
    host_.watchRoot([this](zsg::ISceneGraph* root) { takeOver(root); });
    connect(&scene_, &Scene::historyChanged, this, [this] {
        changedSinceAutosave_ = true;
        emit stateChanged();
    });
    connect(&scene_, &Scene::changedUnrecorded, this, [this] {
        changedUnrecorded_ = changedSinceAutosave_ = true;
        emit stateChanged();
    });
    connect(&scene_, &Scene::changed, this, [this] {
        if (host_.events().entries().size() > mostEventsKept) {
            host_.events().clear();
        }
    });
    autosaveTimer_.setInterval(2min);
    connect(&autosaveTimer_, &QTimer::timeout, this, &Document::autosave);
    autosaveTimer_.start();
}

Document::~Document() {
    scene_.endDrags();
    host_.watchRoot({});
    scene_.setRoot(nullptr);
}

void Document::takeOver(zsg::ISceneGraph* root) {
    ++roots_;
    scene_.setRoot(root);
}

void Document::loadedFrom(QString const& path) {
    autosave_.startAnew();
    path_ = path;
    recoveredName_.clear();
    changedUnrecorded_ = changedSinceAutosave_ = false;
    emit stateChanged();
}

std::string Document::open(QString const& path) {
    scene_.endDrags();
    std::string message = host_.load(path.toStdString());
    if (message.empty()) {
        loadedFrom(path);
    }
    return message;
}

std::string Document::recover(Autosave::Orphan const& orphan) {
    std::string message = open(orphan.file);
    if (message.empty()) {
        recoveredName_ = QFileInfo(orphan.original).fileName();
        path_.clear();
        changedUnrecorded_ = true;
        emit stateChanged();
    }
    return message;
}

std::string Document::saveAs(QString const& path) {
    scene_.endDrags();
    std::string message = host_.save(path.toStdString());
    if (message.empty()) {
        path_ = path;
        recoveredName_.clear();
        changedUnrecorded_ = changedSinceAutosave_ = false;
        autosave_.discard();
        emit stateChanged();
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
    if (!recoveredName_.isEmpty()) {
        return tr("%1 (recovered)").arg(recoveredName_);
    }
    return path_.isEmpty() ? tr("unnamed") : QFileInfo(path_).fileName();
}

bool Document::isModified() const { return changedUnrecorded_ || !scene_.undoStack().isClean(); }

void Document::autosave() {
    if (!isModified() || !changedSinceAutosave_) {
        return;
    }
    changedSinceAutosave_ = false;
    std::string const message = autosave_.write(path_, host_.saveText());
    if (!message.empty()) {
        changedSinceAutosave_ = true;
        scene_.say(tr("No copy for after a crash could be written: %1")
                       .arg(QString::fromStdString(message)));
    }
}

} // namespace workbench
