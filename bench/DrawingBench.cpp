// How long it takes to lay out and paint a full page of 29 rows.

#include "bench/Faculty.h"
#include "paint/PlanPainter.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

namespace
{

/// A page of 29 rows of the middle-sized faculty.
shell::Shell& fullPage()
{
    static const bench::Faculty faculty(demo::middleFaculty(QDate::currentDate()),
                                        test::DatabaseKind::Sqlite);
    static const std::unique_ptr<shell::Shell> program = [] {
        auto opened = faculty.open(false);
        opened->form().Total_L_P.setText(QStringLiteral("29"));
        return opened;
    }();
    return *program;
}

void paint(benchmark::State& state, const paint::PlanScene& scene)
{
    QImage image(1366, 620, QImage::Format_RGB32);
    for ([[maybe_unused]] auto iteration : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        paint::PlanPainter plan(painter, scene);
        plan.paintPlan();
        plan.paintTotals();
    }
    std::size_t boxes = 0;
    for (const plan::PlanRow& row : scene.content.rows) {
        boxes += row.boxes.size();
    }
    state.counters["rows"] = static_cast<double>(scene.content.rows.size());
    state.counters["boxes"] = static_cast<double>(boxes);
}

/// As a picture that is written to a file.
void paintPage(benchmark::State& state)
{
    const engine::Engine& engine = fullPage().engine();
    paint(state, paint::sceneOf(engine.state(), engine.content(), paint::DrawingTarget()));
}
BENCHMARK(paintPage)->Unit(benchmark::kMillisecond);

/// As the window does, with the hours that have something over the same width.
void paintWindow(benchmark::State& state)
{
    const engine::Engine& engine = fullPage().engine();
    paint::DrawingTarget target;
    target.hasHints = true;
    paint(state, paint::windowSceneOf(engine.state(), engine.content(), target,
                                      plan::shownHours(engine.state(), engine.content())));
}
BENCHMARK(paintWindow)->Unit(benchmark::kMillisecond);

/// What any program that shows this page asks of QPainter, and no more: the rooms' bands and names,
/// a filled and framed box for each séance, its text and its size. The plan's own layout and its
/// fitted sizes of texts are left out.
void paintLimit(benchmark::State& state)
{
    const engine::Engine& engine = fullPage().engine();
    QImage image(1366, 620, QImage::Format_RGB32);
    constexpr int twips = 15; // of a pixel
    constexpr int height = 20;
    for ([[maybe_unused]] auto iteration : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(QFont(QStringLiteral("Arial"), 7));
        int top = 0;
        for (const plan::PlanRow& row : engine.content().rows) {
            const QColor fill = QColor::fromRgb(250, 230, 205);
            const QRect band(0, top, 110, height - 2);
            painter.fillRect(band, fill);
            painter.drawText(band, Qt::AlignVCenter | Qt::AlignLeft, row.room);
            painter.drawText(band, Qt::AlignVCenter | Qt::AlignRight, row.places);
            for (const plan::PlanBox& box : row.boxes) {
                const QRect place(box.x / twips, top, static_cast<int>(box.width) / twips,
                                  height - 2);
                painter.fillRect(place, fill);
                painter.drawRect(place);
                painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, box.cell.CellText);
                painter.drawText(place, Qt::AlignBottom | Qt::AlignRight,
                                 QString::number(box.cell.CellStudents));
            }
            top += height;
        }
    }
}
BENCHMARK(paintLimit)->Unit(benchmark::kMillisecond);

void refreshPage(benchmark::State& state)
{
    shell::Shell& program = fullPage();
    for ([[maybe_unused]] auto iteration : state) {
        program.form().CbJour.setListIndex(1);
    }
}
BENCHMARK(refreshPage)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
