#include "files/AnswerCsv.h"

#include "answers/Words.h"
#include "files/AnswerTable.h"
#include "files/CsvExport.h"

namespace files
{
namespace
{

/// The columns of all sections, each once.
QStringList columnsOf(const AnswerTable& table)
{
    QStringList titles;
    for (const TableSection& section : table.sections) {
        for (const TableColumn& column : section.columns) {
            titles << column.title;
        }
    }
    titles.removeDuplicates();
    return titles;
}

QString textOf(const TableCell& cell)
{
    constexpr double hundred = 100;
    return cell.share ? answers::numberWords(*cell.share * hundred) + u'%' : cell.text;
}

/// The row's cells, each under the title of its column.
QStringList cellsOf(const TableSection& section, const TableRow& row, const QStringList& titles)
{
    QStringList cells(titles.size());
    for (std::size_t index = 0; index < row.size(); ++index) {
        cells[titles.indexOf(section.columns[index].title)] = textOf(row[index]);
    }
    return cells;
}

} // namespace

QByteArray answerAsCsv(const AnswerDocument& document)
{
    const AnswerTable table = answerTable(document, TableUse::Spreadsheet);
    const QStringList titles = columnsOf(table);
    const auto led = [&table](const QString& first, const QStringList& cells) {
        return csvLine(table.labelTitle.isEmpty() ? cells : QStringList(first) + cells);
    };
    QString text = QString(QChar(QChar::ByteOrderMark)) + led(table.labelTitle, titles);
    for (const TableSection& section : table.sections) {
        for (const TableRow& row : section.rows) {
            text += led(section.label, cellsOf(section, row, titles));
        }
    }
    return text.toUtf8();
}

} // namespace files
