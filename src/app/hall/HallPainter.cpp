#include "app/hall/HallPainter.h"

#include "context/AxisLabels.h"
#include "context/PageRule.h"
#include "paint/CellBox.h"
#include "paint/ClockLine.h"
#include "paint/Inks.h"
#include "paint/Lettering.h"
#include "paint/PlanPainter.h"
#include "plan/RoomRows.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

namespace app
{
namespace
{

constexpr int kTwips = 15; ///< of a pixel of the layout, downwards and beside the boxes
constexpr int kMinutesPerHour = 60;
constexpr QColor kGround(255, 255, 255);
constexpr QColor kStripe(246, 248, 251);
constexpr QColor kHeaderGround(31, 58, 95);
constexpr QColor kHeaderText(255, 255, 255);
constexpr QColor kHeaderNote(205, 217, 235);
constexpr QColor kRemarkGround(255, 214, 120);
constexpr QColor kRemarkText(60, 40, 0);
constexpr QColor kHourLine(214, 220, 229);
constexpr QColor kPastVeil(255, 255, 255, 165);

int mostRows(const HallPlan& plan)
{
    int most = 0;
    for (const plan::PlanPage& page : plan.pages) {
        most = std::max<int>(most, page.state.page.RowsShown);
    }
    return most;
}

void write(QPainter& surface, const QRectF& area, int pixels, bool bold, const QString& text,
           Qt::AlignmentFlag side)
{
    paint::Lettering(paint::DrawingTarget(), pixels, bold).draw(surface, area, text, side);
}

/// "Mercredi 19 mars 2025".
QString dayWords(QDate day)
{
    QString words =
        QLocale(QLocale::French, QLocale::France).toString(day, QStringLiteral("dddd d MMMM yyyy"));
    if (!words.isEmpty()) {
        words[0] = words[0].toUpper();
    }
    return words;
}

QString weekWords(timetable::Week week)
{
    if (week == timetable::Week::Every) {
        return {};
    }
    return week == timetable::Week::A ? QStringLiteral("Semaine A") : QStringLiteral("Semaine B");
}

} // namespace

HallPainter::HallPainter(QPainter& surface, QSize screen, const HallPlan& plan,
                         const HallMoment& moment, const QString& remark)
    : m_surface(surface), m_plan(plan), m_moment(moment), m_remark(remark),
      m_hours(hallHoursOf(plan.pages)),
      m_layout(screen, mostRows(plan), !remark.isEmpty() && plan.isThere()), m_screen(screen)
{
}

QString HallPainter::roomsShown(const HallPlan& plan, int page)
{
    if (page < 0 || page >= plan.pageCount()) {
        return {};
    }
    int before = 0;
    for (int index = 0; index < page; ++index) {
        before += plan.pages[static_cast<std::size_t>(index)].state.page.RowsShown;
    }
    const int rooms = plan.pages[static_cast<std::size_t>(page)].state.page.RowsShown;
    return QStringLiteral("Salles %1 à %2 sur %3")
        .arg(before + 1)
        .arg(before + rooms)
        .arg(plan.roomCount());
}

QString HallPainter::emptyWords(const HallPlan& plan)
{
    if (!plan.isThere()) {
        return {};
    }
    if (plan.pages.empty()) {
        return plan.zone.isEmpty() ? QStringLiteral("Aucune salle à montrer")
                                   : plan.zone + QStringLiteral(" : aucune salle à montrer");
    }
    const bool isEmpty =
        std::all_of(plan.pages.begin(), plan.pages.end(), [](const plan::PlanPage& page) {
            return std::all_of(
                page.content.rows.begin(), page.content.rows.end(),
                [](const plan::PlanRow& row) { return row.boxes.empty() && row.unknown.empty(); });
        });
    if (!isEmpty) {
        return {};
    }
    return plan.day.dayOfWeek() == Qt::Sunday ? QStringLiteral("Dimanche : aucune séance")
                                              : QStringLiteral("Aucune séance ce jour");
}

void HallPainter::paint()
{
    m_surface.fillRect(QRect(QPoint(), m_screen), kGround);
    m_surface.save();
    m_surface.scale(m_layout.scale, m_layout.scale);
    paintHeader();
    if (!m_plan.isThere()) {
        paintMiddle(m_remark);
    } else {
        paintRemark();
        const auto page = static_cast<std::size_t>(m_moment.page);
        const QString empty = emptyWords(m_plan);
        if (!empty.isEmpty()) {
            paintMiddle(empty);
        } else if (page < m_plan.pages.size()) {
            paintPlan(m_plan.pages[page]);
        }
    }
    m_surface.restore();
}

void HallPainter::paintHeader()
{
    constexpr double margin = 12;
    constexpr double clockWidth = 170;
    constexpr double pagesWidth = 230;
    const QRectF& header = m_layout.header;
    m_surface.fillRect(header, kHeaderGround);
    m_surface.setPen(kHeaderText);
    const QDate day = m_plan.isThere() ? m_plan.day : m_moment.today;
    const double titleWidth = header.width() - clockWidth - pagesWidth - 3 * margin;
    write(m_surface, {margin, 6, titleWidth, 36}, 28, true, dayWords(day), Qt::AlignLeft);
    write(m_surface, {header.width() - clockWidth - margin, 4, clockWidth, header.height() - 8}, 46,
          true, paint::clockText(m_moment.minute), Qt::AlignRight);
    m_surface.setPen(kHeaderNote);
    QStringList notes{m_plan.establishment, m_plan.zone, weekWords(m_plan.week)};
    notes.removeAll(QString());
    write(m_surface, {margin, 42, titleWidth, 22}, 15, false, notes.join(QStringLiteral(" · ")),
          Qt::AlignLeft);
    paintPages(
        {header.width() - clockWidth - pagesWidth - 2 * margin, 0, pagesWidth, header.height()});
}

/// Which rooms are shown, and a dot for each page.
void HallPainter::paintPages(const QRectF& area)
{
    constexpr int mostDots = 16;
    constexpr double step = 13;
    constexpr double size = 8;
    const int count = m_plan.pageCount();
    if (count == 0 || !emptyWords(m_plan).isEmpty()) {
        return;
    }
    m_surface.setPen(kHeaderText);
    write(m_surface, {area.x(), 14, area.width(), 22}, 16, true, roomsShown(m_plan, m_moment.page),
          Qt::AlignRight);
    if (count == 1) {
        return;
    }
    if (count > mostDots) {
        m_surface.setPen(kHeaderNote);
        write(m_surface, {area.x(), 40, area.width(), 20}, 14, false,
              QStringLiteral("Page %1/%2").arg(m_moment.page + 1).arg(count), Qt::AlignRight);
        return;
    }
    m_surface.save();
    m_surface.setRenderHint(QPainter::Antialiasing);
    m_surface.setPen(Qt::NoPen);
    for (int page = 0; page < count; ++page) {
        QColor color = kHeaderText;
        color.setAlpha(page == m_moment.page ? 255 : 80);
        m_surface.setBrush(color);
        m_surface.drawEllipse(
            QRectF(area.right() - (count - page) * step + (step - size), 46, size, size));
    }
    m_surface.restore();
}

void HallPainter::paintRemark()
{
    if (m_layout.remark.isEmpty()) {
        return;
    }
    m_surface.fillRect(m_layout.remark, kRemarkGround);
    m_surface.setPen(kRemarkText);
    write(m_surface, m_layout.remark.adjusted(12, 0, -12, 0), 16, true, m_remark, Qt::AlignLeft);
}

void HallPainter::paintMiddle(const QString& text)
{
    const QSizeF size = QSizeF(m_screen) / m_layout.scale;
    m_surface.setPen(paint::kHeaderInk);
    write(m_surface, {40, size.height() / 2 - 40, size.width() - 80, 80}, 28, true, text,
          Qt::AlignHCenter);
}

double HallPainter::twipsPerPixel() const
{
    return (m_hours.to - m_hours.from) / m_layout.boxes.width();
}

double HallPainter::xOf(double twips) const
{
    return m_layout.boxes.left() + (twips - m_hours.from) / twipsPerPixel();
}

double HallPainter::xOfMinute(int minute) const
{
    const form::PlanForm plain;
    const context::TimeAxis axis = context::screenAxis(plain);
    return xOf(axis.originLeft +
               axis.widthOf(minute - form::PlanForm::kFirstHour * kMinutesPerHour));
}

/// The page's controls with its rows from the top of the layout's on: row 1 is the first.
form::PlanForm HallPainter::placedForm(const plan::PlanPage& page) const
{
    form::PlanForm form = page.state.form;
    const int pitch = static_cast<int>(m_layout.rowHeight * kTwips);
    form::Place& model = form.Salle.front().place;
    model.height = pitch - plan::kRowGap;
    model.top = plan::kRowGap / 2;
    plan::PlaceRoomRows(form);
    return form;
}

void HallPainter::paintPlan(const plan::PlanPage& page)
{
    paintGround(page.state.page.RowsShown);
    const form::PlanForm form = placedForm(page);
    paint::DrawingTarget target;
    target.TargetTwipsPerPixelX = twipsPerPixel();
    target.TargetTwipsPerPixelY = kTwips;
    target.hasHints = true;
    const paint::PlanScene scene{
        form, page.content, page.state.layout, target, page.state.page.RowsShown, false};
    m_surface.save();
    m_surface.setClipRect(m_layout.boxes);
    m_surface.translate(xOf(0), m_layout.boxes.top());
    paint::PlanPainter(m_surface, scene).paintBoxes();
    m_surface.restore();
    paintPast(page);
    paintRooms(page);
    paintHours();
    paintClockLine();
}

/// Their names and places, larger than the texts of the boxes: they are looked for first.
void HallPainter::paintRooms(const plan::PlanPage& page)
{
    constexpr double gap = 2;
    constexpr double margin = 5;
    for (const plan::PlanRow& row : page.content.rows) {
        const double top = (row.index - 1) * m_layout.rowHeight + gap;
        const QColor fill = paint::toColor(row.color);
        const QColor ink = paint::toColor(paint::readableOn(row.color));
        const auto label = [&](const QRectF& band, int pixels, bool bold, const QString& text,
                               Qt::AlignmentFlag side) {
            const QRectF place(band.left(), band.top() + top, band.width(),
                               m_layout.rowHeight - 2 * gap);
            m_surface.fillRect(place, fill);
            m_surface.setPen(ink);
            write(m_surface, place.adjusted(margin, 0, -margin, 0), pixels, bold, text, side);
        };
        label(m_layout.names, 17, true, row.room, Qt::AlignLeft);
        label(m_layout.places, 14, false, row.places, Qt::AlignRight);
    }
}

/// Every second row on a stripe, and a line for each hour.
void HallPainter::paintGround(int rows)
{
    const QRectF& boxes = m_layout.boxes;
    for (int row = 1; row < rows; row += 2) {
        m_surface.fillRect(QRectF(m_layout.names.left(), boxes.top() + row * m_layout.rowHeight,
                                  m_layout.places.right() - m_layout.names.left(),
                                  m_layout.rowHeight),
                           kStripe);
    }
    for (int hour = 0; hour <= 24; ++hour) {
        const double x = xOfMinute(hour * kMinutesPerHour);
        if (x >= boxes.left() && x <= boxes.right()) {
            m_surface.fillRect(QRectF(x, boxes.top(), 1, rows * m_layout.rowHeight), kHourLine);
        }
    }
}

void HallPainter::paintHours()
{
    constexpr double width = 52;
    m_surface.setPen(paint::kHeaderInk);
    for (int hour = 0; hour <= 24; ++hour) {
        const double x = xOfMinute(hour * kMinutesPerHour);
        const bool isUnderTheClock =
            m_moment.line && std::abs(xOfMinute(*m_moment.line) - x) < width;
        if (x >= m_layout.hours.left() && x <= m_layout.hours.right() - width / 2 &&
            !isUnderTheClock) {
            write(m_surface, {x + 2, m_layout.hours.top(), width, m_layout.hours.height()}, 14,
                  true, QStringLiteral("%1h").arg(hour), Qt::AlignLeft);
        }
    }
}

/// Up to the clock, but for what goes on: that is what most people look for.
void HallPainter::paintPast(const plan::PlanPage& page)
{
    const QRectF& boxes = m_layout.boxes;
    double clock = boxes.left();
    if (m_moment.past == HallPast::All) {
        clock = boxes.right();
    } else if (m_moment.line) {
        clock = std::clamp(xOfMinute(*m_moment.line), boxes.left(), boxes.right());
    }
    for (const plan::PlanRow& row : page.content.rows) {
        double end = clock;
        for (const plan::PlanBox& box : row.boxes) {
            const double from = xOf(box.x);
            if (m_moment.line && from < clock && xOf(box.x + box.width) > clock) {
                end = std::min(end, from);
            }
        }
        m_surface.fillRect(QRectF(boxes.left(), boxes.top() + (row.index - 1) * m_layout.rowHeight,
                                  end - boxes.left(), m_layout.rowHeight),
                           kPastVeil);
    }
}

void HallPainter::paintClockLine()
{
    if (m_moment.line) {
        paint::drawClockLine(m_surface, xOfMinute(*m_moment.line), m_layout.hours, m_layout.boxes,
                             *m_moment.line);
    }
}

} // namespace app
