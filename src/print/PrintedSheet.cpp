#include "print/PrintedSheet.h"

#include "paint/CellBox.h"
#include "paint/Inks.h"
#include "paint/PlanGrid.h"
#include "paint/UnknownMark.h"
#include "plan/FaultWords.h"
#include "plan/RoomRows.h"
#include "print/CapacityLabel.h"
#include "print/FittedText.h"

#include <QColor>
#include <QFontMetricsF>
#include <algorithm>

namespace print
{
namespace
{

using paint::DrawingTarget;
using paint::kFrameInk;
using paint::kFrameLine;
using paint::toColor;

constexpr QColor kInk(0, 0, 0);
// Row colour while the rows are not coloured: paler than on the screen, paper takes ink.
constexpr form::Colour kPlainRow = form::Colour::fromRgb(240, 240, 240);
// Points between a frame and its text.
constexpr double kTextGap = 2;

QRectF pixels(const DrawingTarget& target, const form::Place& place)
{
    return target.toPixels(place).translated(target.TargetXOffset, 0);
}

/// Returns the width that the text takes.
double printLabel(QPainter& surface, const DrawingTarget& target, const form::Label& label,
                  const QString& text, Qt::Alignment alignment = Qt::AlignLeft)
{
    return drawFitted(surface, target, label.font, pixels(target, label.place),
                      alignment | Qt::AlignVCenter, text);
}

void printTicks(QPainter& surface, const DrawingTarget& target, const Sheet& sheet)
{
    for (const form::Label& tick : sheet.page.state.form.Label1) {
        const QRectF place = pixels(target, tick.place);
        surface.setPen(QPen(kInk, kFrameLine * target.PixelsPerPoint));
        surface.drawLine(QPointF(place.left(), place.bottom() - 4 * target.PixelsPerPoint),
                         place.bottomLeft());
        printLabel(surface, target, tick, tick.caption);
    }
}

void printTotals(QPainter& surface, const DrawingTarget& target, const Sheet& sheet)
{
    const QColor ink = sheet.page.state.totals.isOld ? paint::kGreyedInk : kInk;
    for (const form::Label& total : sheet.page.state.form.Tot) {
        if (total.visible) {
            surface.setPen(QPen(kFrameInk, kFrameLine * target.PixelsPerPoint));
            surface.setBrush(Qt::NoBrush);
            surface.drawRect(pixels(target, total.place));
            surface.setPen(ink);
            printLabel(surface, target, total, total.caption, Qt::AlignHCenter);
        }
    }
}

/// Over the dates the period with the choice of week, rooms and subject; it begins nearer to the
/// title's end when there is much to say.
void printPeriod(QPainter& surface, const DrawingTarget& target, const Sheet& sheet,
                 double titleWidth)
{
    const form::PlanForm& form = sheet.page.state.form;
    const form::Font font{form.Label20.font.name, 12, true};
    const QString text =
        joined({sheet.heading.day, sheet.heading.periodAndWeek(), sheet.heading.choice});
    QRectF place = pixels(target, form.XSalle.place);
    const double titleEnd = place.left() + titleWidth + 12 * target.PixelsPerPoint;
    const double dates = pixels(target, form.Label4[0].place).left();
    place.setRight(target.toPixelsX(sheet.width) + target.TargetXOffset);
    const double wanted =
        QFontMetricsF(paperFont(font, target, font.points)).horizontalAdvance(text) + 1;
    place.setLeft(std::clamp(place.right() - wanted, std::min(titleEnd, dates), dates));
    drawFitted(surface, target, font, place, Qt::AlignLeft | Qt::AlignVCenter, text);
}

/// What the labels leave out: the university beside the establishment, and the choices.
void printNotes(QPainter& surface, const DrawingTarget& target, const Sheet& sheet,
                double establishmentWidth, double titleWidth)
{
    const form::PlanForm& form = sheet.page.state.form;
    const double gap = 6 * target.PixelsPerPoint;
    QRectF university = pixels(target, form.Label4[4].place);
    const double dates = pixels(target, form.Label4[0].place).left();
    university.setLeft(university.left() + establishmentWidth + gap);
    university.setRight(dates - gap);
    drawFitted(surface, target, {form.Label20.font.name, 11, false}, university,
               Qt::AlignLeft | Qt::AlignVCenter, sheet.heading.universityAndYear());
    printPeriod(surface, target, sheet, titleWidth);
}

/// Keeps what follows off the places and off the paper's edge: the last hour has quarters of its
/// own, and a box of an absurd length would leave the page.
void clipToPlan(QPainter& surface, const DrawingTarget& target, const Sheet& sheet)
{
    const double end = target.toPixelsX(sheet.axisEnd) + target.TargetXOffset;
    surface.setClipRect(QRectF(0, 0, end + target.PixelsPerPoint, target.toPixelsY(sheet.bottom)));
}

void printRowLabel(QPainter& surface, const DrawingTarget& target, const form::Label& label,
                   form::Colour color, Qt::Alignment alignment)
{
    const QRectF place = pixels(target, label.place);
    const double gap = kTextGap * target.PixelsPerPoint;
    surface.setPen(QPen(kFrameInk, kFrameLine * target.PixelsPerPoint));
    surface.setBrush(toColor(color));
    surface.drawRect(place);
    surface.setPen(toColor(paint::readableOn(color)));
    form::Font font = label.font;
    font.bold = true;
    drawFitted(surface, target, font, place.adjusted(gap, 0, -gap, 0), alignment | Qt::AlignVCenter,
               label.caption);
}

/// In a corner of the box: how many other groups there are, or what "Imprimer Capacité" asks for
/// while "S. Groupées" is not ticked.
std::optional<CapacityLabel> labelOf(const form::PlanForm& form, const plan::PlanRow& row,
                                     const plan::PlanBox& box)
{
    if (form.Check3.isChecked()) {
        return othersLabel(box, form.Label20.font.name);
    }
    return form.Opt_Cap.isChecked() ? std::optional(capacityLabel(box, row.places)) : std::nullopt;
}

void printBox(QPainter& surface, const DrawingTarget& target, const Sheet& sheet,
              const plan::PlanRow& row, form::Colour color, const plan::PlanBox& box)
{
    const form::PlanForm& form = sheet.page.state.form;
    const form::Place& room = form.Salle[static_cast<std::size_t>(row.index)].place;
    const double x = target.toPixelsX(box.x);
    const double y = target.toPixelsY(room.top);
    paint::BoxStyle style;
    style.fill = color;
    style.hatched = box.makeUp;
    style.rowHeight = form.Salle.front().place.height;
    style.textFormat = sheet.page.state.layout.CellTextFormat;
    const std::optional<CapacityLabel> label = labelOf(form, row, box);
    if (!label) {
        paint::DrawCellBox(surface, target, style, x, y, box.minutes, box.cell.CellText);
        return;
    }
    const QRectF place = paint::boxRectangle(target, x, y, box.minutes, style.rowHeight);
    const QRectF corner = capacityPlace(target, place, *label);
    style.reserved = form.Check3.isChecked() ? QMarginsF(0, 0, corner.width(), 0)
                                             : reservedByCapacity(target, place, corner);
    paint::DrawCellBox(surface, target, style, x, y, box.minutes, box.cell.CellText);
    drawCapacity(surface, target, corner, *label);
}

} // namespace

void PrintHeader(QPainter& surface, const DrawingTarget& target, const Sheet& sheet)
{
    const form::PlanForm& form = sheet.page.state.form;
    surface.save();
    surface.setPen(kInk);
    const double titleWidth = printLabel(surface, target, form.XSalle, sheet.heading.title);
    const form::Label& establishment = form.Label4[4];
    const double width =
        drawFitted(surface, target, establishment.font, pixels(target, establishment.place),
                   Qt::AlignLeft | Qt::AlignVCenter, establishment.caption);
    for (std::size_t part = 0; part < 4; ++part) {
        printLabel(surface, target, form.Label4.at(part), form.Label4.at(part).caption);
    }
    printNotes(surface, target, sheet, width, titleWidth);
    printTicks(surface, target, sheet);
    printTotals(surface, target, sheet);
    surface.restore();
}

void PrintPlanBody(QPainter& surface, const DrawingTarget& target, const Sheet& sheet)
{
    const form::PlanForm& form = sheet.page.state.form;
    surface.save();
    clipToPlan(surface, target, sheet);
    paint::DrawPlanGrid(surface, target,
                        paint::planGridLines(form, sheet.page.state.page.RowsShown, true));
    surface.restore();
    surface.save();
    surface.setFont(paperFont(form.Label20.font, target, target.FontSize));
    // The boxes were looked up for this sheet, by the refresh itself: paper and screen have one
    // rule.
    for (const plan::PlanRow& row : sheet.page.content.rows) {
        if (!plan::isShown(form, row)) {
            continue;
        }
        const form::Label& room = form.Salle.at(static_cast<std::size_t>(row.index));
        const form::Colour color = form.Colorer.isChecked() ? room.backColor : kPlainRow;
        surface.save();
        printRowLabel(surface, target, room, color, Qt::AlignLeft);
        printRowLabel(surface, target, form.Cap.at(static_cast<std::size_t>(row.index)), color,
                      Qt::AlignRight);
        surface.restore();
        surface.save();
        clipToPlan(surface, target, sheet);
        for (const plan::UnknownCell& cell : row.unknown) {
            paint::drawUnknownMark(surface, target, target.toPixelsX(cell.x),
                                   target.toPixelsY(room.place.top), cell.minutes,
                                   form.Salle.front().place.height);
        }
        for (const plan::PlanBox& box : row.boxes) {
            printBox(surface, target, sheet, row, color, box);
        }
        surface.restore();
    }
    surface.restore();
}

namespace
{

bool hasMakeUps(const plan::PlanContent& content)
{
    return std::any_of(content.rows.begin(), content.rows.end(), [](const plan::PlanRow& row) {
        return std::any_of(row.boxes.begin(), row.boxes.end(),
                           [](const plan::PlanBox& box) { return box.makeUp; });
    });
}

/// What the page lacks, which rooms it leaves out, and what hatching and greyed totals mean, where
/// it has any.
QStringList legendOf(const plan::PlanPage& page)
{
    QStringList legend;
    const QString faults = plan::faultSentence(page.content);
    if (!faults.isEmpty()) {
        legend << faults;
    }
    if (!page.leftOut.isEmpty()) {
        legend << (page.leftOut.size() > 1
                       ? QStringLiteral("Salles sans ligne sur cette feuille : ")
                       : QStringLiteral("Salle sans ligne sur cette feuille : ")) +
                      page.leftOut.join(QStringLiteral(", "));
    }
    if (hasMakeUps(page.content)) {
        legend << QStringLiteral("Case hachurée : rattrapage");
    }
    const auto& totals = page.state.form.Tot;
    if (page.state.totals.isOld && std::any_of(totals.begin(), totals.end(),
                                               [](const auto& total) { return total.visible; })) {
        legend << QStringLiteral("Totaux grisés : comptés avant le dernier choix");
    }
    return legend;
}

} // namespace

void printFooter(QPainter& surface, const DrawingTarget& target, const Sheet& sheet)
{
    const form::Font font{sheet.page.state.form.Label20.font.name, 8, false};
    const QRectF line = pixels(target, {0, sheet.bottom + 60, sheet.right, kFooterTwips - 60});
    surface.save();
    surface.setPen(kInk);
    drawFitted(surface, target, font, line, Qt::AlignLeft | Qt::AlignVCenter,
               joined(legendOf(sheet.page)));
    if (sheet.page.count > 0) {
        drawFitted(surface, target, font, line, Qt::AlignRight | Qt::AlignVCenter,
                   QStringLiteral("Page %1 / %2").arg(sheet.page.number).arg(sheet.page.count));
    }
    surface.restore();
}

} // namespace print
