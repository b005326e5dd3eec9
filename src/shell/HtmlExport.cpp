#include "shell/HtmlExport.h"

#include "plan/BoxText.h"
#include "plan/CellBox.h"
#include "print/Heading.h"
#include "shell/BoxWords.h"
#include "shell/HtmlText.h"
#include "shell/SlotColumns.h"

#include <algorithm>

namespace shell
{
namespace
{

QString stretchText(const QString& start, int minutes)
{
    const QString end = endText(start, minutes);
    return end.isEmpty() ? start : start + u'–' + end;
}

QString paragraph(const QString& cssClass, const QString& text)
{
    return QStringLiteral("<div class=\"") + cssClass + QStringLiteral("\">") + escaped(text) +
           QStringLiteral("</div>");
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
    const QString group = print::joined(groupWords(form, box));
    if (!group.isEmpty()) {
        html += paragraph(QStringLiteral("note"), group);
    }
    for (const QString& remark : remarkWords(form, box)) {
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
        const std::size_t count = columnsOf(shell.slots(), row, *box, columns, column);
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
    std::vector<std::reference_wrapper<const plan::PlanContent>> contents;
    contents.reserve(pages.size());
    for (const plan::PlanPage& page : pages) {
        contents.emplace_back(page.content);
    }
    const std::vector<int> columns = slotColumns(shell.slots(), contents);
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
