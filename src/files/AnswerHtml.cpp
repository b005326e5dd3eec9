#include "files/AnswerHtml.h"

#include "files/AnswerTable.h"
#include "files/HtmlText.h"
#include "files/ShareShade.h"
#include "paint/CellBox.h"

#include <algorithm>

namespace files
{
namespace
{

QString styleSheet()
{
    return QStringLiteral(R"(
body { margin: 0 auto; padding: 1rem; max-width: 80em; background: #fff; color: #1c2733;
       font: 15px/1.35 Arial, "Liberation Sans", Helvetica, sans-serif; }
h1 { margin: 0 0 0.2rem; font-size: 1.7em; }
header p { margin: 0; }
main { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; margin-top: 1.4rem; }
caption, h2 { margin: 0; padding: 0 0 0.3em; font-size: 1.15em; font-weight: bold;
              text-align: left; }
h2 { margin-top: 1.4rem; }
th, td { padding: 0.3em 0.6em; vertical-align: top; text-align: left; }
thead th { background: #1f3a5f; color: #fff; white-space: nowrap; }
tbody th, tbody td { border-bottom: 1px solid #d5dbe4; }
.told th, .told td { white-space: nowrap; }
.told .sentence { width: 100%; white-space: normal; }
.number { text-align: right; font-variant-numeric: tabular-nums; }
.bar { white-space: nowrap; font-variant-numeric: tabular-nums; }
.value { display: inline-block; min-width: 3.6em; text-align: right; margin-right: 0.6em; }
.frame { display: inline-block; vertical-align: middle; width: 8em; height: 0.8em;
         border: 1px solid #1c2733; }
.length { display: block; height: 100%; background: #1f3a5f; }
.shade { border: 2px solid #fff; text-align: center; white-space: nowrap; }
thead .shade { border: 0; }
footer { margin-top: 1.4rem; font-size: 0.9em; color: #3d4a59; }
footer ul { margin: 0; padding-left: 1.2em; max-width: 60em; }
@page { size: A4; margin: 12mm; }
@media print {
  body { padding: 0; max-width: none; font-size: 8.5pt; }
  main { overflow: visible; }
  tr { break-inside: avoid; }
  thead { display: table-header-group; }
  * { -webkit-print-color-adjust: exact; print-color-adjust: exact; }
}
)");
}

QString lookOf(const TableColumn& column)
{
    switch (column.look) {
    case ColumnLook::Sentence:
        return QStringLiteral(" class=\"sentence\"");
    case ColumnLook::Number:
        return QStringLiteral(" class=\"number\"");
    case ColumnLook::Bar:
        return QStringLiteral(" class=\"bar\"");
    case ColumnLook::Shade:
        return QStringLiteral(" class=\"shade\"");
    case ColumnLook::Text:
        break;
    }
    return {};
}

/// The percentage and its bar; the bar is for the eye alone.
QString barHtml(const TableCell& cell)
{
    constexpr double hundred = 100;
    return QStringLiteral("<span class=\"value\">%1</span><span class=\"frame\" "
                          "aria-hidden=\"true\"><span class=\"length\" "
                          "style=\"width:%2%\"></span></span>")
        .arg(escaped(cell.text), QString::number(*cell.share * hundred, 'f', 1));
}

QString cellHtml(const TableColumn& column, const TableCell& cell)
{
    const QString start = QStringLiteral("<td") + lookOf(column);
    if (cell.share && column.look == ColumnLook::Shade) {
        const form::Colour ground = shadeOf(*cell.share);
        return start + QStringLiteral(" style=\"background:%1;color:%2\">%3</td>")
                           .arg(colorText(ground), colorText(paint::readableOn(ground)),
                                escaped(cell.text));
    }
    const bool hasBar = cell.share && column.look == ColumnLook::Bar;
    return start + u'>' + (hasBar ? barHtml(cell) : escaped(cell.text)) + QStringLiteral("</td>");
}

QString rowHtml(const TableSection& section, const TableRow& row)
{
    const TableColumn& first = section.columns.front();
    // A row that begins with a figure has no name.
    QString html =
        QStringLiteral("<tr>") + (first.look == ColumnLook::Text
                                      ? QStringLiteral("<th scope=\"row\">") +
                                            escaped(row.front().text) + QStringLiteral("</th>")
                                      : cellHtml(first, row.front()));
    for (std::size_t index = 1; index < row.size(); ++index) {
        html += cellHtml(section.columns[index], row[index]);
    }
    return html + QStringLiteral("</tr>\n");
}

QString sectionHtml(const AnswerTable& table, const TableSection& section)
{
    const QString heading = section.heading.isEmpty() ? table.title : section.heading;
    if (section.rows.empty()) {
        return section.none.isEmpty() ? QString()
                                      : QStringLiteral("<h2>%1</h2>\n<p>%2</p>\n")
                                            .arg(escaped(heading), escaped(section.none));
    }
    const bool tells = section.columns.back().look == ColumnLook::Sentence;
    QString html = (tells ? QStringLiteral("<table class=\"told\">") : QStringLiteral("<table>")) +
                   QStringLiteral("\n<caption>") + escaped(heading) +
                   QStringLiteral("</caption>\n<thead><tr>");
    for (const TableColumn& column : section.columns) {
        html += QStringLiteral("<th scope=\"col\"") + lookOf(column) + u'>' +
                escaped(column.title) + QStringLiteral("</th>");
    }
    html += QStringLiteral("</tr></thead>\n<tbody>\n");
    for (const TableRow& row : section.rows) {
        html += rowHtml(section, row);
    }
    return html + QStringLiteral("</tbody>\n</table>\n");
}

QString notesHtml(const QStringList& notes)
{
    if (notes.isEmpty()) {
        return {};
    }
    QString html = QStringLiteral("<footer>\n<h2>À savoir</h2>\n<ul>\n");
    for (const QString& note : notes) {
        html += QStringLiteral("<li>") + escaped(note) + QStringLiteral("</li>\n");
    }
    return html + QStringLiteral("</ul>\n</footer>\n");
}

} // namespace

QByteArray answerAsHtml(const AnswerDocument& document)
{
    const AnswerTable table = answerTable(document, TableUse::Page);
    QString body =
        QStringLiteral("<header>\n<h1>") + escaped(table.title) + QStringLiteral("</h1>\n");
    for (const QString& line : table.about) {
        body += QStringLiteral("<p>") + escaped(line) + QStringLiteral("</p>\n");
    }
    body += QStringLiteral("</header>\n<main>\n");
    for (const TableSection& section : table.sections) {
        body += sectionHtml(table, section);
    }
    body += QStringLiteral("</main>\n") + notesHtml(table.notes);
    return htmlDocument(table.title, body, styleSheet()).toUtf8();
}

} // namespace files
