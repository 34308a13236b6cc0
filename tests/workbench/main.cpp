#include "workbench/app/Application.h"
#include "workbench/app/WindowStyle.h"

#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gmock/gmock.h>

// Windows without a screen, and nothing of the user's: settings and copies go to a folder of the
// test's own.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir const folder;
    QStandardPaths::setTestModeEnabled(true);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    QCoreApplication::setOrganizationName("zscenegraph");
    QCoreApplication::setApplicationName("zsg-workbench-test");
    workbench::Application const application(argc, argv);
    QApplication::setStyle(new workbench::WindowStyle);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
