// Opens the window, waits until the first plan is painted, says how much memory that took, and
// ends: what hyperfine measures as "first plan from process start".

#include "app/PlClasse.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QStyleFactory>
#include <cstdio>
#include <sys/resource.h>

namespace
{

/// Ends the program after the plan's view has painted a plan with rows.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(app::PlClasse& window) : m_window(window) {}

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !m_window.shell().engine().content().rows.empty()) {
            QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    app::PlClasse& m_window;
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication application(argc, argv);
    engine::Surroundings environment;
    environment.applicationFolder = QCoreApplication::applicationDirPath();
    app::PlClasse window(shell::Settings::perUser(), environment);
    if (!window.load()) {
        return 1;
    }
    FirstPaint firstPaint(window);
    window.findChild<QAbstractScrollArea*>(QStringLiteral("PlanView"))
        ->viewport()
        ->installEventFilter(&firstPaint);
    window.resize(1366, 768);
    window.show();
    window.activate();
    const int code = QApplication::exec();
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    // The C library lays the number over its own spelling of it.
    const long peak = usage.ru_maxrss; // NOLINT(cppcoreguidelines-pro-type-union-access)
    std::fprintf(stderr, "peak memory %ld kB\n", peak);
    return code;
}
