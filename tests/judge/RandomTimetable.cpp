#include "judge/RandomTimetable.h"

#include "support/Timetable.h"

#include <vector>

namespace test
{
namespace
{

// A text that stands for null in the lists below.
const char* const kNull = "<null>";

QStringList subjects()
{
    return {"Algèbre", "algèbre", "Chimie [LV1]", "O'Reilly", "", kNull};
}

QStringList starts()
{
    return {"8h00", "8H00", "8:00", "9h30", kNull};
}

QStringList oddRooms()
{
    return {"A101", "a101",     "A101 ", "Á101", "E1",   "é1", "O'Brien",
            "B\\2", "Amphi %1", "",      "Labo", "LABO", "C3", "c3 "};
}

QStringList oddClasses()
{
    return {"GC1", "gc1", "GC1 ", "GÇ1", "L2 \"B\"", "D'Arc", "M\\1", "", "INF", "Inf", kNull};
}

/// Names that a statement may refuse, take for something else, or be changed by.
QStringList quotedRooms()
{
    return {"Salle d'informatique",
            "Salle d'or",
            "L''été",
            "L'été",
            "x' OR '1'='1",
            "Atelier d'1",
            "Amphi'",
            "B\\\\2",
            "'Annexe",
            "d'art -- bis",
            "B\\\\"};
}

QStringList quotedClasses()
{
    return {"1re année d'anglais", "1RE ANNÉE D'ANGLAIS", "L2 d'or", "M''1",  "M'1", "D\\\\eau",
            "L'Hiver B",           "x' or 'a'='a",        "L1'",     "M\\\\1"};
}

/// Plain names before the odd ones, so that these come in a later mask column.
QStringList withManyBefore(const QStringList& names)
{
    constexpr int many = 25;
    QStringList all;
    for (int name = 1; name <= many; ++name) {
        all << QStringLiteral("AA%1").arg(name);
    }
    return all + names;
}

} // namespace

QString RandomTimetable::anyOf(const QStringList& texts)
{
    return texts[pick(static_cast<int>(texts.size()))];
}

/// Whether and how the tables are indexed decides the order in which rows are found.
QStringList RandomTimetable::randomIndexes()
{
    const std::vector<QStringList> choices = {
        {},
        {"emplois (Tranche, Seance)", "ratrap (DateX, Seance)",
         "examen (Tranche, Semaine, Seance)"},
        {"emplois (Seance)", "ratrap (Seance)", "examen (Seance)"},
        {"emplois (Tranche)", "ratrap (Tranche)", "examen (Salle)"},
        {"emplois (Salle)", "emplois (XSalle)", "emplois (YSalle)", "emplois (SalleB)",
         "emplois (XSalleB)", "emplois (YSalleB)"},
        {"emplois (Seance, Classe)", "ratrap (Seance, Classe)", "examen (Seance, Classe)"},
        {"emplois (Tranche, Seance, Salle, Classe)", "emplois (Salle)", "ratrap (Salle)",
         "examen (Salle, Seance)"},
    };
    QStringList statements;
    for (const QString& index : choices[pick(static_cast<int>(choices.size()))]) {
        statements << QStringLiteral("create index i%1 on ").arg(statements.size()) + index;
    }
    return statements;
}

/// Takes a table or a column away. SQLite keeps columns that an index needs.
QString RandomTimetable::randomLoss(const QStringList& indexes)
{
    const auto isIndexed = [&indexes](const QString& table, const QString& column) {
        return !indexes.filter(u' ' + table + u' ').filter(column).isEmpty();
    };
    QStringList losses = {"drop table etudiant", "drop table classe", "drop table abscence",
                          "drop table etud_abs", "drop table examen"};
    const std::vector<std::pair<QString, QString>> columns = {{"emplois", "XEnseignant1"},
                                                              {"emplois", "Matièreb"},
                                                              {"emplois", "Classe"},
                                                              {"ratrap", "XSalle"},
                                                              {"classe", "Capacite"}};
    for (const auto& [table, column] : columns) {
        if (!isIndexed(table, column)) {
            losses << QStringLiteral("alter table ") + table + QStringLiteral(" drop column `") +
                          column + u'`';
        }
    }
    return anyOf(losses);
}

/// What is the same in every timetable: two periods around the date, their exam weeks, Monday's
/// four slots, and the rooms that have a name.
void RandomTimetable::addSchool(Timetable& tables) const
{
    for (int period = 1; period <= 2; ++period) {
        tables.row("tranche", {{"ident", period},
                               {"Tranche", QStringLiteral("S%1").arg(period)},
                               {"DateDebut", date().addDays(-60)},
                               {"DateFin", date().addDays(60)}});
        tables.row("dat_exam", {{"Tranche", period},
                                {"Semaine1", date().addDays(63)},
                                {"Semaine2", date().addDays(70)},
                                {"Controle", date().addDays(77)}});
    }
    const QStringList times{"8h00", "9h30", "11h00", "12h30", "14h00"};
    for (int slot = 1; slot <= 4; ++slot) {
        tables.row("seances", {{"Seance", QStringLiteral("Lundi%1").arg(slot)},
                               {"Horaire1", times[slot - 1]},
                               {"Horaire2", times[slot]}});
    }
    for (const QString& room : m_rooms) {
        if (!room.isEmpty()) {
            tables.row("salle", {{"Zone", 1}, {"Nom", room}, {"places", 30}});
        }
    }
}

RandomTimetable::RandomTimetable(TestDatabase& database, unsigned seed) : m_engine(seed)
{
    m_rooms = chance(20) ? withManyBefore(oddRooms()) : oddRooms();
    m_classes = chance(20) ? withManyBefore(oddClasses()) : oddClasses();
    if (chance(33)) {
        m_rooms += quotedRooms();
        m_classes += quotedClasses();
    }
    Timetable tables(database);
    addSchool(tables);
    const auto text = [](const QString& column, const QString& value) {
        return value == QLatin1String(kNull) ? Field(column, nullptr) : Field(column, value);
    };
    const auto roomOrNull = [&] { return chance(60) ? QString(kNull) : anyOf(m_rooms); };
    const auto key = [&]() -> QString {
        const QString day = chance(80) ? "Lundi" : chance(25) ? "lundi" : "Mardi";
        return day + QString::number(1 + pick(4));
    };
    const auto course = [&] {
        return Fields{text("Salle", chance(85) ? anyOf(m_rooms) : kNull),
                      text("XSalle", roomOrNull()),
                      text("YSalle", roomOrNull()),
                      text("SalleB", roomOrNull()),
                      text("XSalleB", roomOrNull()),
                      text("YSalleB", roomOrNull()),
                      text("Seance", key()),
                      Field("Tranche", 1 + pick(2)),
                      text("newnature", anyOf({"00", "10/20", "", kNull})),
                      chance(10) ? Field("TypeS1", nullptr) : Field("TypeS1", pick(18)),
                      Field("TypeS3B", pick(3)),
                      text("Classe", anyOf(m_classes)),
                      text("Enseignant1", anyOf({"Durand", "D'Or", "", kNull})),
                      text("Enseignant2", anyOf({"Martin", "", kNull})),
                      text("Enseignant1b", anyOf({"Petit", kNull})),
                      text("Enseignant2b", anyOf({"Grand", kNull})),
                      text("matière", anyOf(subjects())),
                      text("XMatière", anyOf(subjects())),
                      text("Matièreb", anyOf(subjects())),
                      text("Debut", anyOf(starts())),
                      text("Durée", anyOf({"90", "45", "180", "", kNull})),
                      Field("Commune", chance(20))};
    };
    for (int row = 0; row < 110; ++row) {
        tables.row("emplois", course());
    }
    for (int row = 0; row < 60; ++row) {
        Fields makeUp = course();
        makeUp.emplace_back("DateX", chance(80) ? date() : date().addDays(1));
        tables.row("ratrap", makeUp);
    }
    for (int row = 0; row < 60; ++row) {
        tables.row("examen",
                   {text("Salle", anyOf(m_rooms)), text("Seance", key()),
                    Field("Tranche", 1 + pick(2)), Field("Semaine", 1 + pick(2)),
                    text("newnature", "00"), Field("TypeS1", pick(16)), Field("TypeS3B", 0),
                    text("Classe", anyOf(m_classes)), text("Enseignant1", "Durand"),
                    text("Resp1", anyOf({"Roux", kNull})), text("Resp2", anyOf({"Blanc", ""})),
                    text("matière", anyOf(subjects())), text("Debut", anyOf(starts())),
                    text("Durée", "60"), Field("Commune", false)});
    }
    for (int row = 0; row < 60; ++row) {
        tables.row("etudiant", {text("classe", anyOf(m_classes)), text("Nom", "Élève")});
    }
    for (int row = 0; row < 14; ++row) {
        tables.row("classe",
                   {text("Nom", anyOf(m_classes)),
                    chance(10) ? Field("Capacite", nullptr) : Field("Capacite", 10 * pick(9))});
    }
    for (int row = 0; row < 25; ++row) {
        tables.row("abscence", {text("Classe", anyOf(m_classes)), text("Debut", anyOf(starts())),
                                Field("Datex", chance(80) ? date() : date().addDays(7))});
        const QString className = anyOf(m_classes);
        tables.row("etud_abs", {text("Classe", className),
                                text("Nom", chance(70) ? className : anyOf(m_classes)),
                                text("HeureD", anyOf(starts())),
                                Field("Jour", chance(80) ? date() : date().addDays(7))});
    }
    const QStringList indexes = randomIndexes();
    for (const QString& index : indexes) {
        tables.statement(index);
    }
    tables.load();
    if (chance(30)) {
        tables.statement(randomLoss(indexes));
        tables.load();
    }
}

} // namespace test
