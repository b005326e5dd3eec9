#pragma once

#include "files/AnswerDocument.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace files
{

/// What a table is made for.
enum class TableUse {
    Page,        ///< to be looked at
    Spreadsheet, ///< to be sorted and reckoned with
};

/// How a column is shown on a page.
enum class ColumnLook {
    Text,     ///< short: on one line where there is room for it
    Sentence, ///< as many lines as it takes
    Number,   ///< to the right
    Bar,      ///< a share beside a bar of its length
    Shade,    ///< a share on a ground the darker the larger it is
};

struct TableColumn {
    QString title;
    ColumnLook look = ColumnLook::Text;
};

struct TableCell {
    QString text;                ///< in French; empty where there is nothing to tell
    std::optional<double> share; ///< from 0 to 1, where the text tells one

    friend bool operator==(const TableCell&, const TableCell&) = default;
};

using TableRow = std::vector<TableCell>; ///< a cell for each column

/// One list of an answer.
struct TableSection {
    QString heading; ///< with the number of rows where that tells something: "Salles libres (3)"
    QString label;   ///< what each of its rows is, for one list of all sections: "libre"
    QString none;    ///< the sentence in place of no rows; empty: then a page leaves it out
    std::vector<TableColumn> columns; ///< the first one names the row
    std::vector<TableRow> rows;
};

/// An answer as texts in rows and columns.
struct AnswerTable {
    QString title;
    QStringList about;
    QString labelTitle; ///< what the labels tell of; empty for an answer of one section
    std::vector<TableSection> sections;
    QStringList notes; ///< sentences: how each figure is reckoned, and what is not known
};

/// An answer of any kind as tables, in French. The columns of a spreadsheet do not depend on what
/// was found, only on the question.
[[nodiscard]] AnswerTable answerTable(const AnswerDocument& document, TableUse use);

/// The first column of a table of days: "Mardi".
[[nodiscard]] QString dayTitle(int day);

} // namespace files
