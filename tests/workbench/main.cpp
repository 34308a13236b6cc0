#include "workbench/app/Application.h"
#include "workbench/app/WindowStyle.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

// Windows without a screen, and nothing of the user's: settings and copies go to a folder of the
// test's own, also those of a program that a test starts.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir const folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
    QCoreApplication::setOrganizationName("zscenegraph");
    QCoreApplication::setApplicationName("zsg-workbench");
    workbench::Application const application(argc, argv);
    QApplication::setStyle(new workbench::WindowStyle);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
