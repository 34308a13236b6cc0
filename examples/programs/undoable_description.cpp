// The library pushes no undo command for descriptions of materials. An application makes them
// undoable by a command of its own, which applies one descriptor, and another to take it back.

#include "zsg/core/Events.h"
#include "zsg/core/IEventListener.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/core/Subscription.h"
#include "zsg/materials/IMaterialDescriptor.h"
#include "zsg/materials/IMaterialHandler.h"
#include "zsg/materials/cmfFieldKey.h"

#include "nyxembedded/Host.h"
#include "zcore/ZUndoCommand.h"

#include <iostream>
#include <memory>
#include <utility>

namespace {

class DescribeMaterial final : public ZUndoCommand {
    Q_DECLARE_TR_FUNCTIONS(DescribeMaterial)
public:
    using Descriptor = std::unique_ptr<zsg::IMaterialDescriptor const>;
    DescribeMaterial(zsg::IMaterialHandler& handler, Descriptor before, Descriptor after)
        : ZUndoCommand(ZCommandId::EditMaterial,
                       tr("Describe Material (%1)").arg(handler.materialName(before->id()))),
          handler_(handler),
          before_(std::move(before)),
          after_(std::move(after)) {}

    bool undo() override { return handler_.applyDescriptor(*before_); }
    bool redo() override { return handler_.applyDescriptor(*after_); } // push() runs this

private:
    zsg::IMaterialHandler& handler_; // the host empties the undo stack before it ends the root
    Descriptor before_;
    Descriptor after_;
};

class Printer final : public zsg::IEventListener {
public:
    void onEvent(zsg::Event const* event) override {
        std::cout << zsg::eventTypeString(event->type()) << '\n';
    }
};

} // namespace

int main(int argc, char** argv) {
    nyx::embedded::Host host; // a renderer in memory, an undo stack, and the root over them
    if (auto const error = host.loadScene(argc > 1 ? argv[1] : "showroom.json"); !error.empty()) {
        std::cerr << error << '\n';
        return 1;
    }
    zsg::IMaterialHandler& handler = *host.root().materialHandler();
    Printer printer;
    zsg::Subscription const subscription(*host.root().eventQueue(), printer,
                                         {zsg::EventType::MaterialDescriptionChanged});
    zsg::MaterialId const id = host.renderer().materials().find("Seat Fabric");
    constexpr int finish = 3; // the number of a CMF field, see cmfFieldKey()
    auto const show = [&] { std::cout << handler.descriptor(id)->value(finish) << '\n'; };

    // Both are detached: nothing happens while they are edited.
    auto before = handler.descriptor(id);
    auto after = handler.descriptor(id);
    if (!before || !after) {
        std::cerr << "the scene has no seat fabric\n";
        return 1;
    }
    after->setValue(finish, "Felted");
    show();
    host.undoStack().push(new DescribeMaterial(handler, std::move(before), std::move(after)));
    show();
    std::cout << host.undoStack().text(0).toStdString() << '\n';
    host.undoStack().undo();
    show();
    return 0;
}
