#include "workbench/app/Application.h"

#include <exception>

namespace workbench {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (std::exception const& error) {
        if (!onFailure) {
            throw;
        }
        onFailure(QString::fromUtf8(error.what()));
    }
    return true;
}

} // namespace workbench
