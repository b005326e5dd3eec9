#include "files/HtmlExport.h"

#include "files/HtmlText.h"
#include "paint/CellBox.h"
#include "paint/ClockLine.h"
#include "plan/BoxLines.h"
#include "plan/BoxWords.h"
#include "plan/FaultWords.h"
#include "plan/SlotColumns.h"
#include "print/Heading.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

#include <algorithm>

namespace files
{
namespace
{

/// Grey with lines across, as on the plan; a page without a gap has no style for gaps.
const QLatin1String kUnknownCell("<td style=\"color:#282828;background:repeating-linear-gradient("
                                 "135deg,#e1e1e1 0 6px,#b9b9b9 6px 7px)\">? inconnu</td>");

QString stretchText(const QString& start, int minutes)
{
    return plan::stretchWords(start, QStringLiteral("–"), minutes);
}

QString paragraph(const QString& cssClass, const QString& text)
{
    return QStringLiteral("<div class=\"") + cssClass + QStringLiteral("\">") + escaped(text) +
           QStringLiteral("</div>");
}

/// Of a page in a hall, whose readers choose nothing.
struct Hall {
    bool isThere = false;
    /// When it is read, in minutes since midnight; nothing where it does not show that day.
    std::optional<int> now = std::nullopt;
};

Hall hallOf(const PlanDocument& document)
{
    return document.refresh
               ? Hall{true, paint::clockMinute(document.refresh->writtenAt, document.date)}
               : Hall();
}

/// " past" for what has ended by then, " now" for what is under way; else nothing.
QString momentClass(const QString& start, int minutes, std::optional<int> now)
{
    QString cssClass;
    if (now) {
        runtime::skipOnError([&] {
            const int end = runtime::endMinute(start, minutes);
            cssClass = end <= *now             ? QStringLiteral(" past")
                       : end - minutes <= *now ? QStringLiteral(" now")
                                               : QString();
        });
    }
    return cssClass;
}

/// `columnTime` heads the box's column: a box of the same time need not repeat it.
QString boxHtml(const form::PlanForm& form, const plan::PlanBox& box, const QString& columnTime,
                const Hall& hall)
{
    QString html;
    const QString time = stretchText(box.cell.CellStart, box.minutes);
    if (time != columnTime) {
        html += paragraph(QStringLiteral("note"), time);
    }
    for (const QString& line : plan::writtenLines(plan::SanitizeCellText(box.cell.CellText))) {
        html += QStringLiteral("<div>") + escaped(line) + QStringLiteral("</div>");
    }
    const QString group = print::joined(plan::groupWords(form, box));
    if (!group.isEmpty()) {
        html += paragraph(QStringLiteral("note"), group);
    }
    const QString week = plan::weekLetter(box);
    if (hall.isThere && !week.isEmpty()) {
        html += paragraph(QStringLiteral("remark"), QStringLiteral("Semaine ") + week);
    }
    for (const QString& remark : plan::remarkWords(form, box)) {
        html += paragraph(QStringLiteral("remark"), remark);
    }
    return html;
}

QString columnTitle(const plan::PlanState& state, int number)
{
    const auto& slot = state.slots.slot(number);
    return slot ? stretchText(slot->start, slot->minutes) : QStringLiteral("Séance %1").arg(number);
}

QString rowHtml(const plan::PlanState& state, const plan::PlanRow& row,
                const std::vector<int>& columns, const Hall& hall)
{
    QString html = QStringLiteral("<tr style=\"--fill:%1;--ink:%2\"><th scope=\"row\">%3</th>"
                                  "<td class=\"places\">%4</td>")
                       .arg(colorText(row.color), colorText(paint::readableOn(row.color)),
                            escaped(row.room), escaped(row.places));
    for (std::size_t column = 0; column < columns.size();) {
        const plan::PlanBox* box = plan::boxAt(row, columns[column]);
        if (box == nullptr) {
            html +=
                plan::isUnknown(row, columns[column]) ? kUnknownCell : QStringLiteral("<td></td>");
            ++column;
            continue;
        }
        const std::size_t count = plan::columnsOf(state.slots, row, *box, columns, column);
        const QString span = count > 1 ? QStringLiteral(" colspan=\"%1\"").arg(count) : QString();
        html += QStringLiteral("<td class=\"%1\"%2>%3</td>")
                    .arg((box->makeUp ? QStringLiteral("box makeup") : QStringLiteral("box")) +
                             momentClass(box->cell.CellStart, box->minutes, hall.now),
                         span, boxHtml(state.form, *box, columnTitle(state, box->slot), hall));
        column += count;
    }
    return html + QStringLiteral("</tr>\n");
}

QString headRow(const plan::PlanState& state, const std::vector<int>& columns, const Hall& hall)
{
    QString html = QStringLiteral("<tr><th scope=\"col\">Salle</th><th scope=\"col\">Places</th>");
    for (const int number : columns) {
        const auto& slot = state.slots.slot(number);
        const QString moment =
            slot ? momentClass(slot->start, slot->minutes, hall.now).trimmed() : QString();
        html += QStringLiteral("<th scope=\"col\"") +
                (moment.isEmpty() ? QString() : QStringLiteral(" class=\"%1\"").arg(moment)) +
                u'>' + escaped(columnTitle(state, number)) + QStringLiteral("</th>");
    }
    return html + QStringLiteral("</tr>\n");
}

/// The totals of the last page: they go on from page to page.
QString totalsRow(const plan::PlanPage& page, const std::vector<int>& columns)
{
    const context::Totals& totals = page.state.totals;
    const QString title = totals.isOld
                              ? QStringLiteral("Places occupées (comptées avant le dernier choix)")
                              : QStringLiteral("Places occupées");
    if (!totals.isShown()) {
        return {};
    }
    QString html = QStringLiteral("<tfoot><tr><th scope=\"row\" colspan=\"2\">") + title +
                   QStringLiteral("</th>");
    for (const int number : columns) {
        const auto& total = totals.line.at(static_cast<std::size_t>(number - 1));
        html += QStringLiteral("<td>") + escaped(total.isShown ? total.text : QString()) +
                QStringLiteral("</td>");
    }
    return html + QStringLiteral("</tr></tfoot>\n");
}

QString tableHtml(const PlanDocument& document, const QString& title)
{
    const plan::PlanState& state = document.state();
    std::vector<std::reference_wrapper<const plan::PlanContent>> contents;
    contents.reserve(document.pages.size());
    for (const plan::PlanPage& page : document.pages) {
        contents.emplace_back(page.content);
    }
    const std::vector<int> columns = plan::slotColumns(state.slots, contents);
    const Hall hall = hallOf(document);
    QString rows;
    for (const plan::PlanPage& page : document.pages) {
        for (const plan::PlanRow& row : page.content.rows) {
            rows += rowHtml(state, row, columns, hall);
        }
    }
    if (rows.isEmpty()) {
        return QStringLiteral("<p>Aucune salle à montrer.</p>\n");
    }
    return QStringLiteral("<table>\n<caption>") + escaped(title) +
           QStringLiteral(" : une ligne par salle, une colonne par séance</caption>\n<thead>") +
           headRow(state, columns, hall) + QStringLiteral("</thead>\n<tbody>\n") + rows +
           QStringLiteral("</tbody>\n") + totalsRow(document.pages.back(), columns) +
           QStringLiteral("</table>\n");
}

QString line(const QString& cssClass, const QStringList& parts)
{
    const QString text = print::joined(parts);
    return text.isEmpty() ? QString() : paragraph(cssClass, text) + u'\n';
}

/// What the pages lack, each sentence once.
QString faultsHtml(const PlanDocument& document)
{
    QStringList sentences;
    for (const plan::PlanPage& page : document.pages) {
        sentences << plan::faultSentence(page.content);
    }
    sentences.removeAll(QString());
    sentences.removeDuplicates();
    QString html;
    for (const QString& sentence : sentences) {
        html += QStringLiteral("<p role=\"alert\"><strong>") + escaped(sentence) +
                QStringLiteral("</strong></p>\n");
    }
    return html;
}

QString writtenAtHtml(const QDateTime& time)
{
    return QStringLiteral("<footer><p class=\"note\">Page écrite le <time datetime=\"") +
           time.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")) + QStringLiteral("\">") +
           time.toString(QStringLiteral("dd/MM/yyyy à HH:mm")) +
           QStringLiteral("</time></p></footer>\n");
}

} // namespace

QByteArray planAsHtml(const PlanDocument& document)
{
    const print::Heading heading = print::headingOf(document.state());
    QString body =
        QStringLiteral("<header>\n<h1>") + escaped(heading.title) + QStringLiteral("</h1>\n") +
        line(QStringLiteral("name"), {heading.establishment, heading.universityAndYear()}) +
        line(QStringLiteral("context"),
             {heading.day, heading.periodAndWeek(), heading.dates, heading.choice}) +
        QStringLiteral("</header>\n<main>\n") + tableHtml(document, heading.title) +
        faultsHtml(document) + QStringLiteral("</main>\n");
    if (!document.refresh) {
        return htmlDocument(heading.title, body).toUtf8();
    }
    body += writtenAtHtml(document.refresh->writtenAt);
    return refreshingHtmlDocument(heading.title, body, document.refresh->seconds).toUtf8();
}

} // namespace files
