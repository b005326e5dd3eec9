// What start-up reads beside the header, the slots and the rooms.

#include "engine/Engine.h"

#include "runtime/RunTimeError.h"

namespace engine
{

void Engine::readSeanceTypes()
{
    lookup::SeanceTypeShortNames& names = m_state.SeanceTypeShortNames;
    runtime::during(QStringLiteral("Lecture des types de séance (table « typeseance »)"), [&] {
        const db::Recordset types = m_database->read(QStringLiteral("select * from typeseance"));
        for (const db::Row& type : types.rows()) {
            const int reference = type.field(QStringLiteral("Ref")).toInt16();
            runtime::during(
                QStringLiteral("Lecture du type de séance de référence %1").arg(reference), [&] {
                    if (reference < 0 || reference >= static_cast<int>(names.size())) {
                        throw runtime::RunTimeError(runtime::ErrorNumber::SubscriptOutOfRange);
                    }
                    names.at(static_cast<std::size_t>(reference)) =
                        type.field(QStringLiteral("NomCourt")).toJoinedText();
                });
        }
    });
}

void Engine::listDepartments()
{
    form::List& departments = m_state.form.Combo1;
    runtime::during(QStringLiteral("Lecture des départements (table « Département »)"), [&] {
        departments.clear();
        const db::Recordset found = m_database->read(QStringLiteral("select * from Département"));
        for (const db::Row& department : found.rows()) {
            departments.addItem(department.field(QStringLiteral("Ident")).toJoinedText());
        }
    });
}

} // namespace engine
