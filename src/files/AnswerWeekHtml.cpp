#include "files/AnswerWeekHtml.h"

#include "answers/RoomWeeks.h"
#include "answers/WeekGrid.h"
#include "answers/Words.h"
#include "files/HtmlText.h"
#include "paint/CellBox.h"
#include "paint/RoomColor.h"

#include <algorithm>
#include <set>

namespace files
{
namespace
{

using answers::kShownDays;
using answers::WeekBox;
using answers::WeekDay;
using timetable::TimeSpan;

QString weekStyleSheet()
{
    return QStringLiteral(R"(
body { margin: 0; padding: 1rem; background: #fff; color: #1c2733;
       font: clamp(13px, 0.85vw, 28px)/1.3 Arial, "Liberation Sans", Helvetica, sans-serif; }
h1 { margin: 0 0 0.2rem; font-size: 1.8em; }
h2 { margin: 0.8rem 0 0.2rem; font-size: 1.1em; }
main { margin-top: 0.8rem; overflow-x: auto; }
table { border-collapse: collapse; width: 100%; min-width: 60em; table-layout: fixed; }
caption { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); }
th, td { padding: 0.2em; border: 1px solid #c3cad5; vertical-align: top; text-align: left;
         overflow-wrap: break-word; }
thead th { background: #1f3a5f; color: #fff; text-align: center; }
thead th:first-child { width: 7.5em; }
tbody th { position: sticky; left: 0; background: #e2e8f1; }
tbody th.room { background: var(--fill); color: var(--ink); }
.pause { background: #f0f2f5; }
.boxes { display: flex; gap: 2px; }
.list { flex-direction: column; }
.box { flex: 1 1 0; min-width: 0; padding: 0.15em 0.3em; border: 1px solid #3c3c3c;
       background: var(--fill); color: var(--ink); }
.makeup { background-image: repeating-linear-gradient(45deg, transparent 0 7px,
          rgba(127, 127, 127, 0.28) 7px 8px), repeating-linear-gradient(-45deg, transparent 0 7px,
          rgba(127, 127, 127, 0.28) 7px 8px); }
.exam { border-width: 3px; }
.main { font-weight: bold; }
.note { font-size: 0.85em; }
.remark { display: inline-block; margin: 0.15em 0.3em 0 0; padding: 0 0.3em; font-size: 0.85em;
          font-weight: bold; background: #1c2733; color: #fff; }
.unknown { padding: 0.15em 0.3em; color: #282828;
           background: repeating-linear-gradient(135deg, #e1e1e1 0 6px, #b9b9b9 6px 7px); }
@page { size: A4 landscape; margin: 8mm; }
@media print {
  body { padding: 0; font-size: 7pt; }
  main { overflow: visible; }
  tr { break-inside: avoid; }
  * { -webkit-print-color-adjust: exact; print-color-adjust: exact; }
}
)");
}

QString element(const QString& cssClass, const QString& text)
{
    return QStringLiteral("<div class=\"%1\">%2</div>").arg(cssClass, escaped(text));
}

QString inkStyle(form::Colour fill)
{
    return QStringLiteral(" style=\"--fill:%1;--ink:%2\"")
        .arg(colorText(fill), colorText(paint::readableOn(fill)));
}

QString remark(const QString& text)
{
    return text.isEmpty() ? QString()
                          : QStringLiteral("<div class=\"remark\">%1</div>").arg(escaped(text));
}

/// `time`: what to say of its time, empty where its row says that.
QString boxHtml(const WeekBox& box, form::Colour fill, const QString& time)
{
    QString cssClass = QStringLiteral("box");
    if (box.kind == timetable::MeetingKind::MakeUp) {
        cssClass += QStringLiteral(" makeup");
    } else if (box.kind == timetable::MeetingKind::Exam) {
        cssClass += QStringLiteral(" exam");
    }
    QString html = QStringLiteral("<div class=\"%1\"%2>").arg(cssClass, inkStyle(fill));
    if (!time.isEmpty()) {
        html += element(QStringLiteral("note"), time);
    }
    for (const QString& line : box.lines) {
        html += element(line == box.lines.front() ? QStringLiteral("main") : QStringLiteral("more"),
                        line);
    }
    QString kind = answers::kindWords(box.kind);
    if (!kind.isEmpty()) {
        kind[0] = kind[0].toUpper();
    }
    const QString week = box.corner.isEmpty() ? QString() : QStringLiteral("Semaine ") + box.corner;
    return html + remark(week) + remark(kind) + QStringLiteral("</div>");
}

QString headRow(const QString& first, const answers::WeekDays& days)
{
    QString html = QStringLiteral("<thead><tr><th scope=\"col\">%1</th>").arg(first);
    for (const WeekDay& day : days) {
        html += QStringLiteral("<th scope=\"col\">%1</th>").arg(escaped(day.title));
    }
    return html + QStringLiteral("</tr></thead>\n");
}

QString tableHtml(const QString& caption, const QString& head, const QString& rows)
{
    return QStringLiteral("<table>\n<caption>%1</caption>\n").arg(escaped(caption)) + head +
           QStringLiteral("<tbody>\n") + rows + QStringLiteral("</tbody>\n</table>\n");
}

/// The table of hours and days: each box stands in every slot of its day that it reaches into; one
/// that reaches into none has a row of its own time.
class GridTable
{
public:
    GridTable(const answers::WeekGrid& grid, const std::vector<form::Colour>& colors)
        : m_grid(grid), m_colors(colors)
    {
        for (const WeekDay& day : grid.days) {
            m_rows.insert(day.slotTimes.begin(), day.slotTimes.end());
        }
        for (const WeekBox& box : grid.boxes) {
            if (!reachesSlot(box)) {
                m_rows.insert(box.time);
            }
        }
    }

    [[nodiscard]] QString rows() const
    {
        QString html;
        for (const TimeSpan& row : m_rows) {
            html += QStringLiteral("<tr><th scope=\"row\">%1</th>").arg(answers::spanWords(row));
            for (std::size_t day = 0; day < kShownDays; ++day) {
                html += cell(row, static_cast<int>(day));
            }
            html += QStringLiteral("</tr>\n");
        }
        return html;
    }

private:
    [[nodiscard]] const std::vector<TimeSpan>& slotsOf(int day) const
    {
        return m_grid.days.at(static_cast<std::size_t>(day)).slotTimes;
    }
    [[nodiscard]] bool reachesSlot(const WeekBox& box) const
    {
        const std::vector<TimeSpan>& times = slotsOf(box.day);
        return std::any_of(times.begin(), times.end(),
                           [&box](const TimeSpan& slot) { return slot.meets(box.time); });
    }
    [[nodiscard]] QString cell(const TimeSpan& row, int day) const
    {
        const std::vector<TimeSpan>& times = slotsOf(day);
        const bool isSlot = std::find(times.begin(), times.end(), row) != times.end();
        QString boxes;
        for (const WeekBox& box : m_grid.boxes) {
            const bool isHere = isSlot ? box.time.meets(row) : box.time == row && !reachesSlot(box);
            if (box.day == day && isHere) {
                boxes += boxHtml(box, paint::roomColor(m_colors, box.room),
                                 box.time == row ? QString() : answers::spanWords(box.time));
            }
        }
        if (boxes.isEmpty()) {
            return isSlot ? QStringLiteral("<td></td>")
                          : QStringLiteral("<td class=\"pause\"></td>");
        }
        return QStringLiteral("<td><div class=\"boxes\">%1</div></td>").arg(boxes);
    }

    const answers::WeekGrid& m_grid;
    const std::vector<form::Colour>& m_colors;
    std::set<TimeSpan> m_rows;
};

QString unplacedHtml(const answers::WeekGrid& grid)
{
    if (grid.unplaced.empty()) {
        return {};
    }
    QString html = QStringLiteral("<h2>Heure inconnue</h2>\n<ul>\n");
    for (const answers::UnknownHour& each : grid.unplaced) {
        html += QStringLiteral("<li>%1</li>\n").arg(escaped(each.words));
    }
    return html + QStringLiteral("</ul>\n");
}

QString roomRow(const answers::RoomWeek& week, form::Colour fill)
{
    const QString places =
        week.places > 0 ? QStringLiteral("<div class=\"note\">%1 places</div>").arg(week.places)
                        : QString();
    QString html = QStringLiteral("<tr><th scope=\"row\" class=\"room\"%1>%2%3</th>")
                       .arg(inkStyle(fill), escaped(week.name), places);
    for (std::size_t day = 0; day < kShownDays; ++day) {
        QString boxes;
        for (const WeekBox& box : week.boxes) {
            if (box.day == static_cast<int>(day)) {
                boxes += boxHtml(box, fill, answers::spanWords(box.time));
            }
        }
        if (!week.unknown.at(day).isEmpty()) {
            boxes += element(QStringLiteral("unknown"),
                             QStringLiteral("? heure inconnue : ") + week.unknown.at(day));
        }
        html += boxes.isEmpty()
                    ? QStringLiteral("<td></td>")
                    : QStringLiteral("<td><div class=\"boxes list\">%1</div></td>").arg(boxes);
    }
    return html + QStringLiteral("</tr>\n");
}

QString nothing()
{
    return QStringLiteral("<p>Rien cette semaine.</p>\n");
}

QString gridHtml(const AnswerDocument& document, const WeekAnswer& answer)
{
    const answers::WeekGrid grid =
        answers::weekGrid(*document.occupancy, answer.subject, answer.week, answer.items);
    if (grid.isEmpty()) {
        return nothing();
    }
    return tableHtml(document.title +
                         QStringLiteral(" : une ligne par séance, une colonne par jour"),
                     headRow(QStringLiteral("Séance"), grid.days),
                     GridTable(grid, document.roomColors).rows()) +
           unplacedHtml(grid);
}

QString overviewHtml(const AnswerDocument& document, const WeekAnswer& answer)
{
    const answers::RoomWeeks weeks =
        answers::roomWeeks(*document.occupancy, answer.week, answer.items, answer.rooms);
    QString rows;
    for (const answers::RoomWeek& week : weeks.rows) {
        rows += roomRow(week, paint::roomColor(document.roomColors, week.room));
    }
    return (weeks.isEmpty() ? nothing() : QString()) +
           tableHtml(document.title +
                         QStringLiteral(" : une ligne par salle, une colonne par jour"),
                     headRow(QStringLiteral("Salle"), weeks.days), rows);
}

} // namespace

QByteArray weekAsHtml(const AnswerDocument& document)
{
    const auto& answer = std::get<WeekAnswer>(document.answer);
    QString body = QStringLiteral("<header>\n<h1>%1</h1>\n").arg(escaped(document.title));
    for (const QString& line : document.about) {
        body += element(QStringLiteral("about"), line) + u'\n';
    }
    body += QStringLiteral("</header>\n<main>\n") +
            (answer.subject ? gridHtml(document, answer) : overviewHtml(document, answer)) +
            QStringLiteral("</main>\n");
    return htmlDocument(document.title, body, weekStyleSheet()).toUtf8();
}

} // namespace files
