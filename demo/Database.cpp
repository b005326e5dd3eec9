#include "demo/Database.h"

#include "demo/Exams.h"
#include "demo/MakeUps.h"
#include "demo/People.h"
#include "demo/Rows.h"

namespace demo
{
namespace
{

Field departmentField(int department)
{
    return department == nobody ? Field()
                                : Field(departmentNames().at(static_cast<std::size_t>(department)));
}

void addEstablishment(const Faculty& faculty, Inserts& inserts)
{
    inserts.add("etablissement", {QString("Université des Hauts-Plateaux"),
                                  QString("Faculté des Sciences et de la Technologie"),
                                  faculty.periods.front().academicYear});
    for (const Period& period : faculty.periods) {
        inserts.add("tranche", {period.ident, period.name, period.first, period.last});
    }
    for (const Period& period : faculty.periods) {
        // The second period's exams are not settled yet: the program then goes by its dates.
        if (period.ident != 2) {
            inserts.add("dat_exam",
                        {period.ident, period.examWeek1, period.examWeek2, period.controlWeek});
        }
    }
}

void addWeek(Inserts& inserts)
{
    for (int day = 0; day < dayCount; ++day) {
        for (int slot = 0; slot < slotCount; ++slot) {
            inserts.add("seances", {slotKey(day, slot), timeText(slotStart(slot)),
                                    timeText(slotStart(slot) + slotMinutes)});
        }
    }
    int reference = 0;
    for (const QString& name : typeNames()) {
        inserts.add("typeseance", {reference++, name});
    }
}

void addPlaces(const Faculty& faculty, Inserts& inserts)
{
    for (const QString& name : departmentNames()) {
        inserts.add("Département", {name});
    }
    for (const Room& room : faculty.rooms) {
        inserts.add("salle", {room.zone, departmentField(room.department), room.name, room.places});
    }
}

void addPeople(const Faculty& faculty, Inserts& inserts)
{
    for (const Subject& subject : faculty.curriculum.subjects()) {
        inserts.add("matière", {subject.name});
    }
    for (const StudentClass& one : faculty.classes) {
        inserts.add("classe", {one.name, one.capacity});
    }
    Draw draw(faculty.options.seed, Topic::Students);
    for (const StudentClass& one : faculty.classes) {
        for (int student = 0; student < one.students; ++student) {
            inserts.add("etudiant", {studentName(draw), one.name});
        }
    }
}

void addAbsences(const Faculty& faculty, const Timetable& table, const Rows& rows, Inserts& inserts)
{
    const Period& period = faculty.periods.front();
    const std::vector<Absence> absences = makeAbsences(faculty, table);
    for (const Absence& absence : absences) {
        if (!absence.ofStudents) {
            inserts.add("abscence", rows.classAbsence(absence, period));
        }
    }
    for (const Absence& absence : absences) {
        if (absence.ofStudents) {
            inserts.add("etud_abs", rows.studentAbsence(absence, period));
        }
    }
}

void addPeriod(const Faculty& faculty, const Period& period, const Rows& rows, Inserts& inserts)
{
    const Timetable table = makeTimetable(faculty, period);
    for (const Meeting& meeting : table.meetings) {
        inserts.add("emplois", rows.meeting(meeting, period));
    }
    for (const Exam& exam : makeExams(faculty, period)) {
        inserts.add("examen", rows.exam(exam, period));
    }
    if (period.ident == 1) {
        for (const Meeting& makeUp : makeMakeUps(faculty, table)) {
            inserts.add("ratrap", rows.makeUp(makeUp, period));
        }
        addAbsences(faculty, table, rows, inserts);
    }
}

} // namespace

void writeDatabase(const FacultyOptions& options, Flavour flavour, const StatementSink& sink)
{
    const Faculty faculty(options);
    for (const QString& statement : schemaStatements(flavour)) {
        sink(statement);
    }
    sink("BEGIN");
    Inserts inserts(flavour, sink);
    const Rows rows(faculty);
    addEstablishment(faculty, inserts);
    addWeek(inserts);
    addPlaces(faculty, inserts);
    addPeople(faculty, inserts);
    for (const Period& period : faculty.periods) {
        addPeriod(faculty, period, rows, inserts);
    }
    inserts.flush();
    sink("COMMIT");
    for (const QString& statement : indexStatements(flavour)) {
        sink(statement);
    }
}

} // namespace demo
