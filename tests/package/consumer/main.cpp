// An application that knows nothing but the installed package.

#include <nyxembedded/Renderer.h>
#include <zcore/ZUndoStack.h>
#include <zsg/colors/ColorDB.h>
#include <zsg/core/ISceneGraph.h>
#include <zsg/core/SceneGraphPars.h>

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    nyx::embedded::Renderer renderer;
    if (argc != 2) {
        return 2;
    }
    if (std::string const message = renderer.loadScene(argv[1]); !message.empty()) {
        std::cerr << message << '\n';
        return 1;
    }
    ZUndoStack undoStack;
    zsg::SceneGraphPars pars;
    pars.rtApi = renderer.api();
    pars.undoStack = &undoStack;
    auto const root = zsg::ISceneGraph::create(pars);
    std::cout << root->colorDB()->colors().size() << " colours\n";
    return 0;
}
