#include "lookup/Meetings.h"

#include "demo/Schema.h"
#include "runtime/RunTimeError.h"

#include <utility>

namespace test
{
namespace
{

[[noreturn]] void fail()
{
    throw runtime::RunTimeError(runtime::ErrorNumber::DatabaseFailure, "server has gone away");
}

bool answers(const Meeting& meeting, const lookup::RoomQuestion& question)
{
    const bool exam = question.table == lookup::RoomQuestion::Table::examen;
    if (!meeting.holds("Seance", question.seanceKey) ||
        (exam && !meeting.holds("Semaine", question.examWeek))) {
        return false;
    }
    if (meeting.holds("Salle", question.room)) {
        return true;
    }
    for (const char* column : {"XSalle", "YSalle", "SalleB", "XSalleB", "YSalleB"}) {
        if (!exam && !question.room.isEmpty() && meeting.holds(column, question.room)) {
            return true;
        }
    }
    return false;
}

} // namespace

Meeting::Meeting(const QString& room, const QString& seance)
{
    for (const demo::Table& table : demo::tables()) {
        if (table.name == u"emplois" || table.name == u"ratrap" || table.name == u"examen") {
            for (const demo::Column& column : table.columns) {
                m_fields[column.name] = db::Value();
            }
        }
    }
    set("Salle", db::Value(room)).set("Seance", db::Value(seance)).set("newnature", "00");
    set("Classe", "GC1").set("Enseignant1", "Dupont").set("matière", "Algèbre");
    set("Debut", "8h00").set("Durée", "90");
}

Meeting& Meeting::set(const QString& column, db::Value value)
{
    m_fields.at(column) = std::move(value); // throws for a column that there is none of
    return *this;
}

Meeting& Meeting::without(const QString& column)
{
    m_fields.erase(column);
    return *this;
}

bool Meeting::holds(const QString& column, const QString& text) const
{
    const auto field = m_fields.find(column);
    return field != m_fields.end() && field->second.toJoinedText() == text;
}

std::shared_ptr<const db::Columns> Meeting::columns() const
{
    QStringList names;
    for (const auto& field : m_fields) {
        names.append(field.first);
    }
    return std::make_shared<const db::Columns>(names);
}

db::Row Meeting::row() const
{
    std::vector<db::Value> values;
    for (const auto& field : m_fields) {
        values.push_back(field.second);
    }
    return {columns(), values};
}

db::Recordset FakeRows::timetableRows(const lookup::RoomQuestion& question)
{
    asked.push_back(question);
    if (timetableFails) {
        fail();
    }
    if (beforeAnswer) {
        beforeAnswer(question);
    }
    const auto& meetings = question.table == lookup::RoomQuestion::Table::emplois  ? m_emplois
                           : question.table == lookup::RoomQuestion::Table::ratrap ? m_ratrap
                                                                                   : m_examen;
    std::vector<db::Row> rows;
    for (const Meeting& meeting : meetings) {
        if (answers(meeting, question)) {
            rows.push_back(meeting.row());
        }
    }
    return {nullptr, rows};
}

int FakeRows::studentRows(const QString& className)
{
    if (classesFail) {
        fail();
    }
    const auto found = students.find(className);
    return found == students.end() ? 0 : found->second;
}

db::Recordset FakeRows::classRows(const QString& className)
{
    if (classesFail) {
        fail();
    }
    const auto found = capacities.find(className);
    if (found == capacities.end()) {
        return {};
    }
    const auto columns = std::make_shared<const db::Columns>(QStringList({"Nom", "Capacite"}));
    return {columns, {db::Row(columns, {db::Value(className), found->second})}};
}

} // namespace test
