#include "shell/HtmlExport.h"

#include "plan/BoxText.h"
#include "plan/CellBox.h"
#include "print/Heading.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"
#include "shell/HtmlText.h"

#include <set>

namespace shell
{
namespace
{

constexpr int kSecondsPerMinute = 60;

/// The table's columns: the day's slots, and those that a box stands in although the day does not
/// have them.
std::vector<int> slotColumns(const Shell& shell, const std::vector<plan::PlanPage>& pages)
{
    std::set<int> columns;
    for (int number = 1; number <= form::PlanForm::kSlotLabels; ++number) {
        if (shell.slots().slot(number)) {
            columns.insert(number);
        }
    }
    for (const plan::PlanPage& page : pages) {
        for (const plan::PlanRow& row : page.content.rows) {
            for (const plan::PlanBox& box : row.boxes) {
                columns.insert(box.slot);
            }
        }
    }
    return {columns.begin(), columns.end()};
}

QString stretchText(const QString& start, int minutes)
{
    QString text = start;
    runtime::skipOnError([&] {
        const int end = runtime::secondsOfDay(runtime::normaliseTimeText(start)) / 60 + minutes;
        text += QStringLiteral("–%1h%2").arg(end / 60).arg(end % 60, 2, 10, QLatin1Char('0'));
    });
    return text;
}

const plan::PlanBox* boxAt(const plan::PlanRow& row, int slot)
{
    for (const plan::PlanBox& box : row.boxes) {
        if (box.slot == slot) {
            return &box;
        }
    }
    return nullptr;
}

/// How many columns a box covers: its own and those that it reaches into, as long as they are free.
std::size_t columnsOf(const Shell& shell, const plan::PlanRow& row, const plan::PlanBox& box,
                      const std::vector<int>& columns, std::size_t column)
{
    std::size_t count = 1;
    runtime::skipOnError([&] {
        const int end = runtime::secondsOfDay(runtime::normaliseTimeText(box.cell.CellStart)) +
                        box.minutes * kSecondsPerMinute;
        while (column + count < columns.size()) {
            const int next = columns[column + count];
            const auto& slot = shell.slots().slot(next);
            if (!slot || slot->startSeconds >= end || boxAt(row, next) != nullptr) {
                break;
            }
            ++count;
        }
    });
    return count;
}

QString paragraph(const QString& cssClass, const QString& text)
{
    return QStringLiteral("<div class=\"") + cssClass + QStringLiteral("\">") + escaped(text) +
           QStringLiteral("</div>");
}

/// What the group counter stands for: on the screen a click tells the classes. No line ends within
/// a class's name.
QString groupText(const plan::PlanBox& box)
{
    QStringList parts;
    if (box.cell.CellRowCount != 1) {
        QString classes = box.cell.CellClassList;
        QStringList names = plan::writtenLines(classes.replace(u'\t', u'\n'));
        names.replaceInStrings(QStringLiteral(" "), QString(QChar::Nbsp));
        parts << box.group->counter + QStringLiteral(" groupes : ") +
                     names.join(QStringLiteral(", "));
    }
    if (!box.group->overfull) {
        parts << box.group->sizeLabel + QStringLiteral("\u00a0étudiants");
    }
    return print::joined(parts);
}

/// What the screen says by colour, hatching and pictures.
QStringList remarks(const form::PlanForm& form, const plan::PlanBox& box)
{
    QStringList words;
    if (box.makeUp) {
        words << QStringLiteral("Rattrapage");
    }
    if (box.group && box.group->overfull && form.Check3.isChecked()) {
        words << box.group->sizeLabel;
    }
    if (box.classAbsent) {
        words << QStringLiteral("Classe absente");
    }
    if (box.studentAbsent) {
        words << QStringLiteral("Étudiants absents");
    }
    return words;
}

/// `columnTime` heads the box's column: a box of the same time need not repeat it.
QString boxHtml(const form::PlanForm& form, const plan::PlanBox& box, const QString& columnTime)
{
    QString html;
    const QString time = stretchText(box.cell.CellStart, box.minutes);
    if (time != columnTime) {
        html += paragraph(QStringLiteral("note"), time);
    }
    for (const QString& line : plan::writtenLines(plan::SanitizeCellText(box.cell.CellText))) {
        html += QStringLiteral("<div>") + escaped(line) + QStringLiteral("</div>");
    }
    if (box.group && form.Check3.isChecked()) {
        html += paragraph(QStringLiteral("note"), groupText(box));
    }
    for (const QString& remark : remarks(form, box)) {
        html += paragraph(QStringLiteral("remark"), remark);
    }
    return html;
}

QString columnTitle(const Shell& shell, int number)
{
    const auto& slot = shell.slots().slot(number);
    return slot ? stretchText(slot->start, slot->minutes) : QStringLiteral("Séance %1").arg(number);
}

QString rowHtml(const Shell& shell, const plan::PlanRow& row, const std::vector<int>& columns)
{
    QString html = QStringLiteral("<tr style=\"--fill:%1;--ink:%2\"><th scope=\"row\">%3</th>"
                                  "<td class=\"places\">%4</td>")
                       .arg(colorText(row.color), colorText(plan::readableOn(row.color)),
                            escaped(row.room), escaped(row.places));
    for (std::size_t column = 0; column < columns.size();) {
        const plan::PlanBox* box = boxAt(row, columns[column]);
        if (box == nullptr) {
            html += QStringLiteral("<td></td>");
            ++column;
            continue;
        }
        const std::size_t count = columnsOf(shell, row, *box, columns, column);
        const QString span = count > 1 ? QStringLiteral(" colspan=\"%1\"").arg(count) : QString();
        html += QStringLiteral("<td class=\"%1\"%2>%3</td>")
                    .arg(box->makeUp ? QStringLiteral("box makeup") : QStringLiteral("box"), span,
                         boxHtml(shell.form(), *box, columnTitle(shell, box->slot)));
        column += count;
    }
    return html + QStringLiteral("</tr>\n");
}

QString headRow(const Shell& shell, const std::vector<int>& columns)
{
    QString html = QStringLiteral("<tr><th scope=\"col\">Salle</th><th scope=\"col\">Places</th>");
    for (const int number : columns) {
        html += QStringLiteral("<th scope=\"col\">") + escaped(columnTitle(shell, number)) +
                QStringLiteral("</th>");
    }
    return html + QStringLiteral("</tr>\n");
}

/// The totals of the last page: they go on from page to page.
QString totalsRow(const plan::PlanPage& page, const std::vector<int>& columns)
{
    const auto& totals = page.form->Tot;
    const auto shown = [](const form::Label& total) { return total.visible; };
    if (std::none_of(totals.begin(), totals.end(), shown)) {
        return {};
    }
    QString html =
        QStringLiteral("<tfoot><tr><th scope=\"row\" colspan=\"2\">Places occupées</th>");
    for (const int number : columns) {
        const form::Label& total = totals.at(static_cast<std::size_t>(number - 1));
        html += QStringLiteral("<td>") + escaped(total.visible ? total.caption : QString()) +
                QStringLiteral("</td>");
    }
    return html + QStringLiteral("</tr></tfoot>\n");
}

QString tableHtml(const Shell& shell, const std::vector<plan::PlanPage>& pages,
                  const QString& title)
{
    const std::vector<int> columns = slotColumns(shell, pages);
    QString rows;
    for (const plan::PlanPage& page : pages) {
        for (const plan::PlanRow& row : page.content.rows) {
            rows += rowHtml(shell, row, columns);
        }
    }
    if (rows.isEmpty()) {
        return QStringLiteral("<p>Aucune salle à montrer.</p>\n");
    }
    return QStringLiteral("<table>\n<caption>") + escaped(title) +
           QStringLiteral(" : une ligne par salle, une colonne par séance</caption>\n<thead>") +
           headRow(shell, columns) + QStringLiteral("</thead>\n<tbody>\n") + rows +
           QStringLiteral("</tbody>\n") + totalsRow(pages.back(), columns) +
           QStringLiteral("</table>\n");
}

QString line(const QString& cssClass, const QStringList& parts)
{
    const QString text = print::joined(parts);
    return text.isEmpty() ? QString() : paragraph(cssClass, text) + u'\n';
}

} // namespace

// All exports of pages have one signature; the PDF keeps its pages.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
QByteArray planAsHtml(const Shell& shell, std::vector<plan::PlanPage> pages)
{
    const print::Heading heading = print::headingOf(shell.form(), shell.establishment());
    const QString body = QStringLiteral("<header>\n<h1>") + escaped(heading.title) +
                         QStringLiteral("</h1>\n") +
                         line(QStringLiteral("name"), {heading.establishment, heading.university}) +
                         line(QStringLiteral("context"),
                              {heading.day, heading.period, heading.dates, heading.choice}) +
                         QStringLiteral("</header>\n<main>\n") +
                         tableHtml(shell, pages, heading.title) + QStringLiteral("</main>\n");
    return htmlDocument(heading.title, body).toUtf8();
}

} // namespace shell
