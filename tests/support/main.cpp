#include <QCoreApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv) {
    qputenv("QT_FORCE_STDERR_LOGGING", "1"); // for Windows, where messages go to the debugger
    QCoreApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
