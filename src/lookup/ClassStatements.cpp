#include "lookup/ClassStatements.h"

#include "timetable/SchoolColumns.h"

namespace lookup
{

namespace column = timetable::column;
namespace table = timetable::table;

QString fromStudentsOf(const QString& className, const db::SqlDialect& dialect)
{
    return QStringLiteral(" from ") + table::kEtudiant + QStringLiteral(" WHERE ") +
           column::kClasseOfStudent + u'=' + dialect.literal(className);
}

QString fromClass(const QString& className, const db::SqlDialect& dialect)
{
    return QStringLiteral(" from ") + table::kClasseTable + QStringLiteral(" Where ") +
           column::kNom + u'=' + dialect.literal(className);
}

QString studentsSql(const QString& className, const db::SqlDialect& dialect)
{
    return QStringLiteral("Select *") + fromStudentsOf(className, dialect);
}

QString classSql(const QString& className, const db::SqlDialect& dialect)
{
    return QStringLiteral("select *") + fromClass(className, dialect);
}

} // namespace lookup
