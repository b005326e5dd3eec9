#include "context/Establishment.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "timetable/SchoolColumns.h"

namespace context
{
namespace
{

EstablishmentHeader readHeader(db::Database& database)
{
    const db::Recordset found = database.read(QStringLiteral("select * from etablissement "));
    EstablishmentHeader header;
    if (!found.isEmpty()) {
        const db::Row& row = found.first();
        header.UniversityName = row.field(QStringLiteral("Université")).toJoinedText();
        header.EstablishmentName = row.field(QStringLiteral("Nom")).toJoinedText();
        const db::Value year = row.field(QStringLiteral("Année"));
        header.AcademicYear = year.isNull() ? std::int16_t{0} : year.toInt16();
    }
    return header;
}

void countRooms(form::PlanForm& form, StartReads& reads, RoomPage& page)
{
    page.RoomTotal = reads.roomCount(form.cb_Locaux.text());
    form.Command3.enabled = page.RoomTotal > linesPerPage(form);
}

void listPeriods(form::PlanForm& form, db::Database& database)
{
    const db::Recordset periods = database.read(QStringLiteral("select * from tranche"));
    for (const db::Row& period : periods.rows()) {
        form.CbTranche.addItem(period.field(timetable::position::kPeriodName).toJoinedText());
    }
}

} // namespace

EstablishmentHeader LoadEstablishment(form::PlanForm& form, db::Database& database,
                                      StartReads& reads, Periods& periods, RoomPage& page,
                                      const HeaderSource& source)
{
    runtime::during(
        QStringLiteral("Ouverture de la base de données « %1 »").arg(source.databaseName),
        [&] { database.open(source.ConnectString); });
    EstablishmentHeader header =
        runtime::during(QStringLiteral("Lecture de la table « etablissement »"),
                        [&] { return readHeader(database); });
    form.Label4[4].caption = header.EstablishmentName;
    runtime::during(QStringLiteral("Comptage des salles (table « salle »)"),
                    [&] { countRooms(form, reads, page); });
    runtime::during(QStringLiteral("Lecture des périodes (table « tranche »)"),
                    [&] { listPeriods(form, database); });
    runtime::during(QStringLiteral("Choix de la période du paramètre « Tranche » (valeur « %1 »)")
                        .arg(source.trancheSetting),
                    [&] { periods.chooseByIdent(runtime::toInt32(source.trancheSetting)); });
    return header;
}

} // namespace context
