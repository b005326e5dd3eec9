#include "lookup/WalkCheck.h"

#include "lookup/JoinedQueries.h"
#include "runtime/RunTimeError.h"

#include <QSet>
#include <algorithm>

namespace lookup
{
namespace
{

QStringList conditionsOfEach(const WalkCheck::TableCells& cells, const db::SqlDialect& dialect)
{
    QStringList conditions{cells.pageCondition};
    for (const RoomQuestion& question : cells.questions) {
        conditions << question.condition(dialect);
    }
    return conditions;
}

/// One question with the name of a room and one without, which has a form of its own.
QStringList conditionsOfForms(const WalkCheck::TableCells& cells, const db::SqlDialect& dialect)
{
    QStringList conditions{cells.pageCondition};
    for (const bool nameless : {false, true}) {
        const auto found = std::find_if(
            cells.questions.begin(), cells.questions.end(),
            [nameless](const RoomQuestion& each) { return each.room.isEmpty() == nameless; });
        if (found != cells.questions.end()) {
            conditions << found->condition(dialect);
        }
    }
    return conditions;
}

/// Explaining a hundred questions takes a server as long as answering them. Where it knows one way
/// only, and walks it for a slot without asking for the room, then the room does not decide the
/// way: it is enough to ask about each slot, and about each room once.
QStringList conditionsOfSamples(const WalkCheck::TableCells& cells, const db::SqlDialect& dialect)
{
    QStringList conditions{cells.pageCondition};
    QSet<QString> keysAsked;
    QSet<QString> roomsAsked;
    for (const RoomQuestion& question : cells.questions) {
        if (!keysAsked.contains(question.seanceKey)) {
            keysAsked.insert(question.seanceKey);
            conditions << question.slotCondition(dialect);
        }
        if (!roomsAsked.contains(question.room)) {
            roomsAsked.insert(question.room);
            conditions << question.condition(dialect);
        }
    }
    return conditions;
}

} // namespace

bool WalkCheck::asksAboutEach(const db::Database& database, const TableCells& cells) const
{
    // The embedded database does not tell whether there is another way.
    return database.isEmbedded() || m_severalWays.contains(cells.questions.front().table);
}

QStringList WalkCheck::conditionsFor(const db::Database& database, const TableCells& cells) const
{
    if (cells.anyTextsDo) {
        return conditionsOfForms(cells, database.dialect());
    }
    return asksAboutEach(database, cells) ? conditionsOfEach(cells, database.dialect())
                                          : conditionsOfSamples(cells, database.dialect());
}

QString WalkCheck::whatLooksAtTexts()
{
    return QStringLiteral(
        "(select count(*) from sqlite_master where name in ('sqlite_stat3', "
        "'sqlite_stat4') or type='index' and (sql like '%where%' or sql like '%(%(%'))");
}

std::vector<WalkCheck::Answer> WalkCheck::ask(db::Database& database,
                                              const std::vector<TableCells>& tables)
{
    const Answer untold = database.isEmbedded() ? Answer::OtherWalk : Answer::Unknown;
    std::vector<Answer> answers(tables.size(), untold);
    QStringList queries;
    std::vector<std::size_t> ends; // of each table's queries
    for (const TableCells& cells : tables) {
        // A column is selected that an index of slots does not hold.
        const QString select = QStringLiteral("Select Salle from ") +
                               cells.questions.front().tableName() + QStringLiteral(" WHERE");
        for (const QString& condition : conditionsFor(database, cells)) {
            queries << select + condition;
        }
        ends.push_back(static_cast<std::size_t>(queries.size()));
    }
    if (queries.size() > kMostJoined) {
        return answers;
    }
    runtime::skipOnError([&] {
        const db::AccessPaths paths =
            database.Db().accessPaths(queries.join(QStringLiteral(" union all ")));
        if (!paths || static_cast<qsizetype>(paths->size()) != queries.size()) {
            return;
        }
        auto path = paths->begin();
        for (std::size_t table = 0; table < tables.size(); ++table) {
            const auto end = paths->begin() + static_cast<std::ptrdiff_t>(ends[table]);
            answers[table] =
                judge(tables[table], {path, end}, !asksAboutEach(database, tables[table]));
            path = end;
        }
    });
    return answers;
}

WalkCheck::Answer WalkCheck::judge(const TableCells& cells,
                                   const std::vector<db::AccessPath>& paths, bool areSamples)
{
    const RoomQuestion& question = cells.questions.front();
    const auto all = [&paths](auto holds) {
        return std::all_of(paths.begin(), paths.end(), holds);
    };
    if (!all([&](const db::AccessPath& path) {
            return path.table.isEmpty() ||
                   path.table.compare(question.tableName(), Qt::CaseInsensitive) == 0;
        })) {
        return Answer::Unknown;
    }
    if (areSamples && !all([](const db::AccessPath& path) { return path.isOnlyWay; })) {
        m_severalWays.insert(question.table);
        return Answer::OtherWalk;
    }
    const QString& walk = paths.front().walk;
    const bool same =
        !walk.isEmpty() && all([&](const db::AccessPath& path) { return path.walk == walk; });
    return same ? Answer::SameWalk : Answer::OtherWalk;
}

} // namespace lookup
