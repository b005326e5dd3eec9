#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// The demo faculty: a timetable database of our own making.
namespace demo
{

/// The databases that a statement can be written for.
enum class Flavour { Sqlite, MariaDb };

enum class ColumnKind {
    Text,
    Number, ///< A whole number
    Flag,   ///< 0 or 1
    Date,
};

struct Column {
    QString name;
    ColumnKind kind = ColumnKind::Text;
};

/// One table of the timetable database.
struct Table {
    QString name;
    std::vector<Column> columns;
    /// The first column is the key, given by whoever writes a row. Otherwise the key is a column
    /// `Num` behind all others, which the database counts up by itself.
    bool keyedByFirstColumn = false;
};

/// All tables, those that others refer to first. Columns stand in the order in which the program
/// reads them where it reads by position (`tranche`, `dat_exam`).
[[nodiscard]] const std::vector<Table>& tables();

/// The statements that create the tables, one each, without a semicolon. A table that exists
/// already makes its statement fail: nothing is ever dropped.
[[nodiscard]] QStringList schemaStatements(Flavour flavour);

/// The statements that create the indexes of the program's lookups. The program works without
/// them, only slower; after a large load they are best created last.
[[nodiscard]] QStringList indexStatements(Flavour flavour);

/// A name as the database quotes it.
[[nodiscard]] QString quotedName(const QString& name, Flavour flavour);

} // namespace demo
