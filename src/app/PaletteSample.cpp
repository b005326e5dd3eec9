#include "app/PaletteSample.h"

#include "context/AxisLabels.h"
#include "paint/PlanPainter.h"
#include "plan/PlanState.h"
#include "plan/RoomRows.h"
#include "plan/ShownHours.h"

#include <QPainter>
#include <array>

namespace app
{
namespace
{

// Twips a pixel: smaller than on the plan, with texts that can still be read.
constexpr double kTwipsPerPixelX = 26;
constexpr int kTwipsPerPixelY = 17;
constexpr int kRows = 4;
// Where the plan keeps a row's colour in the table.
constexpr int kColorStep = 2;

struct Course {
    int row;
    const char* start;
    int minutes;
    const char* className;
    const char* teacher;
};

/// A morning of four rooms.
constexpr std::array<Course, 8> kCourses{{{1, "8h30", 90, "L1 Info", "Dupont"},
                                          {1, "10h15", 90, "L2 Chimie", "Roux"},
                                          {2, "8h30", 105, "L3 Droit", "Martin"},
                                          {2, "10h30", 90, "M1 Maths", "Blanc"},
                                          {3, "9h00", 120, "L1 Bio", "Petit"},
                                          {3, "11h15", 45, "M2 Info", "Durand"},
                                          {4, "8h00", 60, "L2 Lettres", "Moreau"},
                                          {4, "9h15", 150, "L3 Éco", "Garnier"}}};

plan::PlanState sampleState()
{
    plan::PlanState state;
    form::PlanForm& form = state.form;
    form.EveryRoom.design(true); // no greyed row
    form.ChkGrille.design(true);
    form.Salle.front().place.height = plan::CellLayout::kTwoLinesHeight;
    form.scaleWidth = static_cast<int>(kSampleSize.width() * kTwipsPerPixelX) + 2000;
    context::placeTicks(form);
    plan::PlaceRoomRows(form);
    for (int row = 1; row <= kRows; ++row) {
        form::Label& name = form.Salle[static_cast<std::size_t>(row)];
        name.visible = true;
        name.caption = QStringLiteral("Salle %1").arg(100 + row);
    }
    state.page.RowsShown = kRows;
    state.layout.displayStyle = 2;
    state.layout.CellTextFormat = plan::CellLayout::kWordBreak;
    return state;
}

plan::PlanContent sampleContent(plan::PlanState& state, const plan::RowColors& colors)
{
    plan::PlanContent content;
    const context::TimeAxis axis = context::screenAxis(state.form);
    for (int row = 1; row <= kRows; ++row) {
        form::Label& name = state.form.Salle[static_cast<std::size_t>(row)];
        name.backColor = colors.at(row + kColorStep);
        content.rows.push_back({row, name.caption, {}, name.backColor, {}, {}});
    }
    for (const Course& course : kCourses) {
        plan::PlanBox box;
        box.cell.CellStart = QString::fromUtf8(course.start);
        box.cell.CellText = QString::fromUtf8(course.className) + QStringLiteral("\r\n ") +
                            QString::fromUtf8(course.teacher);
        box.x = axis.TimeToX(box.cell.CellStart);
        box.minutes = course.minutes;
        box.width = axis.widthOf(course.minutes);
        content.rows[static_cast<std::size_t>(course.row - 1)].boxes.push_back(box);
    }
    return content;
}

} // namespace

QPixmap paletteSample(const plan::RowColors& colors, double ratio)
{
    plan::PlanState state = sampleState();
    const plan::PlanContent content = sampleContent(state, colors);
    paint::DrawingTarget target;
    target.TargetTwipsPerPixelX = kTwipsPerPixelX;
    target.TargetTwipsPerPixelY = kTwipsPerPixelY;
    QPixmap picture(kSampleSize * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    // Like the window, with its faint lines.
    const plan::ShownHours hours = plan::shownHours(state, content);
    paint::PlanPainter(painter, paint::windowSceneOf(state, content, target, hours)).paintPlan();
    return picture;
}

} // namespace app
