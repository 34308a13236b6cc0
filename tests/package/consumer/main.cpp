// An application that knows nothing but the installed package.

#include <nyxembedded/Host.h>
#include <zsg/colors/ColorDB.h>
#include <zsg/core/ISceneGraph.h>
#include <zsg/version.h>

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc != 2) {
        return 2;
    }
    if (zsg::versionNumber() != ZSG_VERSION) {
        std::cerr << "headers of another version than the library\n";
        return 1;
    }
    nyx::embedded::Host host;
    if (std::string const message = host.loadScene(argv[1]); !message.empty()) {
        std::cerr << message << '\n';
        return 1;
    }
    std::cout << host.root().colorDB()->colors().size() << " colours, version " << zsg::version()
              << '\n';
    return 0;
}
