#include "toolkit/Guarded_Application.h"

#include "platform/System_Log.h"

#include <QScopedValueRollback>
#include <exception>

namespace {

std::function<void()> Tell;
bool Is_Telling = false; // the box has events of its own, in which more may fail

} // namespace

void Guarded_Application::When_Something_Breaks(std::function<void()> tell)
{
    Tell = std::move(tell);
}

bool Guarded_Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        Catch(QString::fromLocal8Bit(failure.what()));
    } catch (...) {
        Catch(QStringLiteral("no reason given"));
    }
    return true;
}

void Guarded_Application::Catch(const QString& reason)
{
    Write_System_Log(QStringLiteral("An action ended early: ") + reason);
    if (!Tell || Is_Telling)
        return;
    const QScopedValueRollback telling(Is_Telling, true);
    Tell();
}
