#include "print/WeekSheets.h"

#include "paint/OverviewPainter.h"
#include "paint/WeekLegend.h"
#include "paint/WeekPainter.h"
#include "print/FittedText.h"
#include "print/Heading.h"
#include "print/Paper.h"
#include "print/PdfDocument.h"
#include "print/Targets.h"

#include <QPainter>
#include <algorithm>

namespace print
{
namespace
{

// Points of a sheet's parts.
constexpr double kTitleHeight = 20;
constexpr double kAboutHeight = 15;
constexpr double kFooterHeight = 14;
constexpr double kGap = 4;
// Points that texts start from.
constexpr int kTitleText = 15;
constexpr int kAboutText = 10;
constexpr int kFooterText = 8;
// Rooms on one sheet at most: then each has room for its texts.
constexpr std::size_t kRoomsPerSheet = 26;

form::Font fontOf(int points, bool bold = false)
{
    return {QStringLiteral("Arial"), points, bold};
}

const answers::RoomWeeks* overviewOf(const WeekSheets& sheets)
{
    return std::get_if<answers::RoomWeeks>(&sheets.week);
}

/// As many on each sheet as will go, so that the last one is not the emptiest by far.
std::size_t roomsPerSheet(const WeekSheets& sheets)
{
    const answers::RoomWeeks* all = overviewOf(sheets);
    const std::size_t count = sheetCount(sheets);
    return all == nullptr ? 0 : (all->rows.size() + count - 1) / count;
}

/// The rooms of one sheet, counted from 0.
answers::RoomWeeks roomsOf(const answers::RoomWeeks& all, std::size_t sheet, std::size_t perSheet)
{
    const auto first = static_cast<std::ptrdiff_t>(std::min(all.rows.size(), sheet * perSheet));
    const auto last =
        static_cast<std::ptrdiff_t>(std::min(all.rows.size(), (sheet + 1) * perSheet));
    const bool isPart = sheet > 0 || perSheet < all.rows.size();
    return {
        all.days, {all.rows.begin() + first, all.rows.begin() + last}, isPart && !all.isEmpty()};
}

/// Draws sheets on paper of one size.
class Press
{
public:
    Press(QPagedPaintDevice& printer, QPainter& surface, const WeekSheets& sheets)
        : m_surface(surface), m_sheets(sheets), m_target(UsePrinterTarget(printer)),
          m_area(0, 0, printer.width(), printer.height())
    {
        m_target.PixelsPerPoint *= designScale(printer.pageLayout());
    }

    /// `number` counts from 0.
    void print(std::size_t number) const
    {
        printHeading();
        const double top = points(kTitleHeight + kAboutHeight + kGap);
        const QRectF body = m_area.adjusted(0, top, 0, -points(kFooterHeight + kGap));
        if (const answers::RoomWeeks* all = overviewOf(m_sheets)) {
            printRooms(body, *all, number);
        } else {
            const auto& grid = std::get<answers::WeekGrid>(m_sheets.week);
            paint::WeekPainter(grid, m_sheets.roomColors, m_target, body).paint(m_surface);
            printFooter(paint::weekLegend(grid), number);
        }
    }

private:
    [[nodiscard]] double points(double count) const { return count * m_target.PixelsPerPoint; }

    void text(const QRectF& place, const form::Font& font, Qt::Alignment alignment,
              const QString& words) const
    {
        m_surface.setPen(Qt::black);
        drawFitted(m_surface, m_target, font, place, alignment | Qt::AlignVCenter, words);
    }

    void printHeading() const
    {
        const double title = points(kTitleHeight);
        text(QRectF(0, 0, m_area.width(), title), fontOf(kTitleText, true), Qt::AlignLeft,
             m_sheets.title);
        text(QRectF(0, title, m_area.width(), points(kAboutHeight)), fontOf(kAboutText),
             Qt::AlignLeft, joined(m_sheets.about));
    }

    void printRooms(const QRectF& body, const answers::RoomWeeks& all, std::size_t number) const
    {
        const std::size_t perSheet = roomsPerSheet(m_sheets);
        const answers::RoomWeeks rooms = roomsOf(all, number, perSheet);
        // The rows of the last sheet are no higher than the others'.
        const double heading = paint::OverviewPainter::headingHeight(m_target);
        const double share =
            perSheet == 0 ? 1
                          : static_cast<double>(rooms.rows.size()) / static_cast<double>(perSheet);
        const QRectF place(body.left(), body.top(), body.width(),
                           heading + (body.height() - heading) * share);
        paint::OverviewPainter(rooms, m_sheets.roomColors, m_target, place).paint(m_surface);
        printFooter(paint::weekLegend(all), number);
    }

    void printFooter(const QString& legend, std::size_t number) const
    {
        const double height = points(kFooterHeight);
        const QRectF line(0, m_area.bottom() - height, m_area.width(), height);
        const std::size_t count = sheetCount(m_sheets);
        text(line.adjusted(0, 0, -points(6 * kFooterText), 0), fontOf(kFooterText), Qt::AlignLeft,
             legend);
        if (count > 1) {
            text(line, fontOf(kFooterText), Qt::AlignRight,
                 QStringLiteral("Page %1 / %2").arg(number + 1).arg(count));
        }
    }

    QPainter& m_surface;
    const WeekSheets& m_sheets;
    paint::DrawingTarget m_target;
    QRectF m_area;
};

} // namespace

std::size_t sheetCount(const WeekSheets& sheets)
{
    const answers::RoomWeeks* all = overviewOf(sheets);
    return all == nullptr || all->rows.empty()
               ? 1
               : (all->rows.size() + kRoomsPerSheet - 1) / kRoomsPerSheet;
}

void printWeek(QPagedPaintDevice& printer, const WeekSheets& sheets)
{
    QPainter surface;
    requirePaper(surface.begin(&printer));
    const Press press(printer, surface, sheets);
    for (std::size_t number = 0; number < sheetCount(sheets); ++number) {
        requirePaper(number == 0 || printer.newPage());
        press.print(number);
    }
    requirePaper(surface.end());
}

QByteArray pdfOf(const WeekSheets& sheets)
{
    return pdfDrawn(sheets.title, sheets.date, [&sheets](QPdfWriter& writer) {
        requirePaper(layPaper(writer));
        printWeek(writer, sheets);
    });
}

} // namespace print
