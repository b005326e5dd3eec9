#pragma once

#include "app/hall/HallLayout.h"
#include "app/hall/HallPlan.h"
#include "app/hall/HallSchedule.h"
#include "form/PlanForm.h"

#include <QPainter>
#include <QSize>
#include <QString>

namespace app
{

/// Draws the screen in the hall: what day and time it is, one page of the plan as large as the
/// screen allows, what has ended paled, and a line where the clock stands. Nothing here
/// loads, waits or remembers.
class HallPainter
{
public:
    /// `remark` stands above the plan, in amber; empty: there is none. Without a plan it stands in
    /// the middle. All outlive the painter.
    HallPainter(QPainter& surface, QSize screen, const HallPlan& plan, const HallMoment& moment,
                const QString& remark);

    void paint();

    /// The rooms of a page, as the header tells them: "Salles 14 à 26 sur 64".
    [[nodiscard]] static QString roomsShown(const HallPlan& plan, int page);
    /// What stands in the middle of a plan that has nothing to show; empty as a rule.
    [[nodiscard]] static QString emptyWords(const HallPlan& plan);

private:
    void paintHeader();
    void paintPages(const QRectF& area);
    void paintRemark();
    void paintMiddle(const QString& text);
    void paintPlan(const plan::PlanPage& page);
    void paintRooms(const plan::PlanPage& page);
    void paintGround(int rows);
    void paintHours();
    void paintPast(const plan::PlanPage& page);
    void paintClockLine();
    [[nodiscard]] form::PlanForm placedForm(const plan::PlanPage& page) const;
    /// Where a position of the axis (twips) stands in the layout.
    [[nodiscard]] double xOf(double twips) const;
    [[nodiscard]] double xOfMinute(int minute) const;
    [[nodiscard]] double twipsPerPixel() const;

    QPainter& m_surface;
    const HallPlan& m_plan;
    const HallMoment& m_moment;
    const QString& m_remark;
    HallHours m_hours;
    HallLayout m_layout;
    QSize m_screen;
};

} // namespace app
