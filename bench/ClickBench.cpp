// What a user feels: a whole click in the window, from the key to the last pixel, beside the
// refresh within it and beside the least that any program needs for the same page over the same
// driver (Limit.h). Writes a Markdown table to standard output:
//   click_bench [small|middle]... [--near]
// With --near the server behind a delay is left out.
// Each round measures all of them in turn, so that whatever else the machine does disturbs them
// alike. Needs an X server.

#include "app/PlClasse.h"
#include "app/PlanView.h"
#include "bench/DelayProxy.h"
#include "bench/Faculty.h"
#include "bench/Limit.h"
#include "support/MariaDbServer.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QStyleFactory>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <map>
#include <stdexcept>
#include <sys/resource.h>
#include <utility>
#include <vector>

namespace
{

/// Medians of what one action takes, in milliseconds.
class Measured
{
public:
    void run(const std::function<void()>& action)
    {
        const double processor = processorTime();
        const auto start = std::chrono::steady_clock::now();
        action();
        m_wall.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                .count());
        m_processor.push_back(processorTime() - processor);
    }
    [[nodiscard]] double wall() const { return median(m_wall); }
    [[nodiscard]] double processor() const { return median(m_processor); }

private:
    static double processorTime()
    {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        const auto milliseconds = [](const timeval& time) {
            return static_cast<double>(time.tv_sec) * 1000 +
                   static_cast<double>(time.tv_usec) / 1000;
        };
        return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
    }
    static double median(std::vector<double> times)
    {
        const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
        std::nth_element(times.begin(), middle, times.end());
        return *middle;
    }

    std::vector<double> m_wall;
    std::vector<double> m_processor;
};

/// The next day of the week by the keyboard, until the X server has painted it.
void click(QComboBox& days)
{
    const bool isLast = days.currentIndex() + 2 >= days.count();
    QKeyEvent press(QEvent::KeyPress, isLast ? Qt::Key_Home : Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(&days, &press);
    QApplication::processEvents();
    QApplication::sync();
}

/// `port` replaces the server's own (0: leave it).
void report(const char* size, const char* where, const bench::Faculty& faculty, quint16 port,
            int rounds)
{
    const std::shared_ptr<void> elsewhere = port == 0 ? nullptr : faculty.reachedAt(port);
    bench::Faculty::Start start = faculty.start();
    app::PlClasse window(std::move(start.settings), start.surroundings);
    if (!window.load()) {
        throw std::runtime_error("the window does not start");
    }
    window.resize(1366, 740);
    window.show();
    window.activate();
    QApplication::processEvents();
    auto* days = window.findChild<QComboBox*>(QStringLiteral("CbJour"));
    bench::Limit limit(port == 0 ? faculty.connectString() : faculty.connectStringAt(port));
    const engine::Engine& engine = window.shell().engine();
    const auto program = faculty.open(false, port);
    std::map<QString, Measured> measured;
    for (int round = 0; round < rounds; ++round) {
        measured["click"].run([&] { click(*days); });
        measured["refresh"].run(
            [&] { program->form().CbJour.setListIndex(engine.form().CbJour.listIndex()); });
        measured["limit"].run([&] { limit.fetchPage(engine.state()); });
    }
    const double limitWall = measured["limit"].wall();
    std::printf("| %s | %s | %.1f | %.1f | %.1f | %.1f | %.1f | %.1f | %.2f |\n", size, where,
                measured["click"].wall(), measured["click"].processor(), measured["refresh"].wall(),
                measured["refresh"].processor(), limitWall, measured["limit"].processor(),
                measured["refresh"].wall() / limitWall);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QApplication application(argc, argv);
    QStringList asked = QCoreApplication::arguments().mid(1);
    const bool onlyNear = asked.removeAll(QStringLiteral("--near")) > 0;
    const QDate today = QDate::currentDate();
    const std::vector<std::pair<const char*, demo::FacultyOptions>> sizes = {
        {"small", demo::smallFaculty(today)}, {"middle", demo::middleFaculty(today)}};
    std::puts(
        "| faculty | database | click, ms | processor | refresh, ms | processor | limit, ms | "
        "processor | refresh / limit |\n|---|---|---:|---:|---:|---:|---:|---:|---:|");
    for (const auto& [name, options] : sizes) {
        if (asked.isEmpty() || asked.contains(QLatin1String(name))) {
            const bench::Faculty sqlite(options, test::DatabaseKind::Sqlite);
            report(name, "SQLite", sqlite, 0, 60);
            const bench::Faculty mariaDb(options, test::DatabaseKind::MariaDb);
            report(name, "MariaDB, same machine", mariaDb, 0, 60);
            if (!onlyNear) {
                const bench::DelayProxy proxy(test::MariaDbServer::shared().port(),
                                              std::chrono::milliseconds(20));
                report(name, "MariaDB, 20 ms", mariaDb, proxy.port(), 15);
            }
        }
    }
    return 0;
}
