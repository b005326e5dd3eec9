#include "app/Application.h"

#include "app/ErrorReport.h"
#include "app/ExitCode.h"

namespace app
{

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        onFault(runtime::faultInFlight());
    }
    return true; // handled, as far as it went
}

void Application::tellAndExit(const runtime::RunTimeError& fault)
{
    reportRunTimeError(nullptr, fault);
    QCoreApplication::exit(kFailed);
}

} // namespace app
