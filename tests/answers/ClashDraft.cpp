#include "answers/ClashDraft.h"

namespace test
{

using namespace timetable;

ClashDraft::ClashDraft()
{
    m_draft.slot("Lundi1", "8h00", "9h30").slot("Lundi2", "9h30", "11h00");
    m_draft.period(QDate(2026, 9, 7), QDate(2026, 12, 18));
    m_draft.examWeeks(QDate(2027, 1, 4), QDate(2027, 1, 11), QDate(2026, 10, 5));
}

void ClashDraft::course(const ClashRow& row)
{
    m_draft.course({{column::kSeance, row.key},
                    {column::kSalle, row.room},
                    {column::kClasse, row.className},
                    {column::kEnseignant1, row.teacher},
                    {column::kEnseignant2, row.secondTeacher},
                    {column::kMatiere, row.subject},
                    {column::kDebut, row.start},
                    {column::kDuree, row.length},
                    {column::kNewNature, row.nature},
                    {column::kXSalle, row.xRoom},
                    {column::kXEnseignant1, row.xTeacher},
                    {column::kYSalle, row.yRoom},
                    {column::kSalleB, row.roomB},
                    {column::kEnseignant1b, row.teacherB}});
}

void ClashDraft::makeUp(const ClashRow& row)
{
    m_draft.makeUp({{column::kSeance, row.key},
                    {column::kSalle, row.room},
                    {column::kClasse, row.className},
                    {column::kEnseignant1, row.teacher},
                    {column::kMatiere, row.subject},
                    {column::kDebut, row.start},
                    {column::kDuree, row.length},
                    {column::kDateX, row.date}});
}

void ClashDraft::exam(const ClashRow& row)
{
    m_draft.exam({{column::kSeance, row.key},
                  {column::kSalle, row.room},
                  {column::kClasse, row.className},
                  {column::kEnseignant1, row.teacher},
                  {column::kMatiere, row.subject},
                  {column::kDebut, row.start},
                  {column::kDuree, row.length},
                  {column::kSemaine, row.week}});
}

void ClashDraft::students(const QString& className, int count)
{
    m_draft.builder().sizes().addStudents(className, count);
}

const Occupancy& ClashDraft::occupancy()
{
    if (!m_occupancy) {
        m_occupancy = m_draft.occupancy();
    }
    return *m_occupancy;
}

QStringList ClashDraft::told()
{
    QStringList told;
    for (const answers::Clash& clash : clashes()) {
        QStringList holders;
        for (const Holding& holding : answers::holdersOf(occupancy(), clash)) {
            holders << occupancy().describe(holding).className;
        }
        const QString day =
            clash.date.isValid() ? clash.date.toString(Qt::ISODate) : QString::number(clash.day);
        const QString week = clash.weeks == Week::A ? "A" : clash.weeks == Week::B ? "B" : "*";
        told << QStringList{QString::number(static_cast<int>(clash.kind)), clash.name, day, week,
                            holders.join('+')}
                    .join(' ');
    }
    return told;
}

} // namespace test
