#include "files/AnswerSamples.h"

namespace test
{

using namespace timetable;

AnswerSamples::AnswerSamples()
{
    m_draft.slot("Lundi1", "8h00", "9h30").slot("Lundi2", "9h30", "11h00");
    m_draft.period(QDate(2026, 9, 7), QDate(2026, 12, 18));
    m_draft.builder().addRoom({"Amphi", 1, std::nullopt, 100});
    m_draft.builder().addRoom({"TP 1", 2, "INFO", 12});
    m_draft.builder().addRoom({"TP 2", std::nullopt, std::nullopt, 0});
    for (const char* className : {"L1 A", "L1 B"}) {
        m_draft.course({{column::kSeance, "Lundi1"},
                        {column::kSalle, "Amphi"},
                        {column::kClasse, className},
                        {column::kEnseignant1, "Durand"},
                        {column::kMatiere, "Algèbre"}});
    }
    m_draft.course({{column::kSeance, "Lundi2"},
                    {column::kSalle, "TP 1"},
                    {column::kClasse, "L1 A"},
                    {column::kEnseignant1, "Petit"},
                    {column::kMatiere, "Chimie"},
                    {column::kNewNature, "10/20"}});
    m_draft.course(
        {{column::kSeance, "Lundi9"}, {column::kSalle, "TP 2"}, {column::kClasse, "L2"}});
    m_draft.makeUp({{column::kSeance, "Lundi1"},
                    {column::kSalle, "TP 1"},
                    {column::kClasse, "L1 A"},
                    {column::kEnseignant1, "Petit"},
                    {column::kDebut, "10h00"},
                    {column::kDuree, "60"},
                    {column::kDateX, "2026-11-25"}});
    m_draft.builder().sizes().addStudents(u"L1 A", 10);
    m_draft.builder().sizes().addStudents(u"L1 B", 30);
}

const Occupancy& AnswerSamples::occupancy()
{
    if (!m_occupancy) {
        m_occupancy = std::make_shared<const Occupancy>(m_draft.occupancy());
    }
    return *m_occupancy;
}

files::AnswerDocument AnswerSamples::document(const QString& title, files::Answer answer,
                                              QDate date)
{
    return {m_occupancy, title, {"toute semaine", "Période 1"}, std::move(answer), {}, {}, date};
}

files::AnswerDocument AnswerSamples::freeRooms()
{
    const answers::FreeRoomsQuestion question{
        {When::weekday(0)}, {MinuteOfDay{480}, Minutes{90}}, 0, {}};
    return document("Salles libres", answers::freeRooms(occupancy(), question));
}

files::AnswerDocument AnswerSamples::week(QDate date)
{
    const answers::AskedWeek week{Week::Every, date};
    const answers::Subject subject = occupancy().timetable().classes().find(u"L1 A");
    return document("Classe L1 A",
                    files::WeekAnswer{subject, week, answers::weekOf(occupancy(), subject, week)},
                    date);
}

files::AnswerDocument AnswerSamples::find(const QString& text, QDate date)
{
    return document("Recherche de « " + text + " »",
                    answers::whereabouts(occupancy(), text, {Week::Every, date}), date);
}

files::AnswerDocument AnswerSamples::clashes()
{
    return document("Conflits", answers::clashes(occupancy()));
}

files::AnswerDocument AnswerSamples::roomUse()
{
    return document("Occupation des salles", answers::roomUse(occupancy(), Week::Every, {}));
}

} // namespace test
