#include "support/TinyFaculty.h"

#include "support/Timetable.h"

#include <algorithm>

namespace test
{
namespace
{

/// A row with more fields, or other values of the same ones.
Fields with(Fields fields, const Fields& more)
{
    for (const Field& field : more) {
        const auto same = std::find_if(fields.begin(), fields.end(), [&](const Field& known) {
            return known.column == field.column;
        });
        if (same == fields.end()) {
            fields.push_back(field);
        } else {
            *same = field;
        }
    }
    return fields;
}

Fields meeting(const char* room, const char* seance, const char* start, const Fields& more)
{
    return with({{"Salle", room},
                 {"Seance", seance},
                 {"Debut", start},
                 {"Durée", "90"},
                 {"Tranche", 1},
                 {"newnature", "00"},
                 {"TypeS1", 0},
                 {"TypeS3B", 0},
                 {"Commune", false}},
                more);
}

void addCalendar(Timetable& timetable)
{
    timetable
        .row("etablissement",
             {{"Université", "Université d'Essai"}, {"Nom", "Faculté Témoin"}, {"Année", 2025}})
        .row("tranche", {{"ident", 1},
                         {"Tranche", "Printemps"},
                         {"DateDebut", QDate(2025, 2, 3)},
                         {"DateFin", QDate(2025, 6, 6)}})
        .row("tranche", {{"ident", 2},
                         {"Tranche", "Automne"},
                         {"DateDebut", QDate(2024, 9, 16)},
                         {"DateFin", QDate(2025, 1, 31)}})
        .row("dat_exam", {{"Tranche", 1},
                          {"Semaine1", QDate(2025, 6, 9)},
                          {"Semaine2", QDate(2025, 6, 16)},
                          {"Controle", QDate(2025, 3, 24)}});
    const auto slot = [&](const char* key, const char* start, const char* end) {
        timetable.row("seances", {{"Seance", key}, {"Horaire1", start}, {"Horaire2", end}});
    };
    slot("Lundi1", "8h30", "10h00");
    slot("Lundi2", "10h15", "11h45");
    slot("Lundi3", "14h00", "14h45");
    slot("Lundi4", "15h45", "17h15");
}

void addHouse(Timetable& timetable)
{
    for (const char* department : {"INFO", "MATH"}) {
        timetable.row("Département", {{"Ident", department}});
    }
    const auto room = [&](const char* name, int zone, const Field& department, int places) {
        timetable.row("salle", {{"Nom", name}, {"Zone", zone}, department, {"places", places}});
    };
    room("C1", 3, {"Département", nullptr}, 12);
    room("A1", 1, {"Département", "INFO"}, 30);
    room("A2", 1, {"Département", "MATH"}, 40);
    room("B1", 2, {"Département", "INFO"}, 100);
    room("B2", 2, {"Département", nullptr}, 20);
}

void addStudies(Timetable& timetable)
{
    timetable.row("typeseance", {{"Ref", 0}, {"NomCourt", "C"}})
        .row("typeseance", {{"Ref", 1}, {"NomCourt", "TD"}})
        .row("classe", {{"Nom", "G1"}, {"Capacite", 25}})
        .row("classe", {{"Nom", "G2"}, {"Capacite", 45}})
        .row("classe", {{"Nom", "G3"}, {"Capacite", 10}});
    for (const char* subject : {"Physique", "Algèbre", "Analyse", "Chimie", "Optique"}) {
        timetable.row("matière", {{"Nom", subject}});
    }
    for (const char* className : {"G1", "G1", "G1", "G3", "G3"}) {
        timetable.row("etudiant", {{"Nom", "N"}, {"classe", className}});
    }
}

void addMeetings(Timetable& timetable)
{
    timetable
        .row("emplois", meeting("A2", "Lundi1", "8h30",
                                {{"Classe", "G1"},
                                 {"Enseignant1", "Dupont"},
                                 {"Enseignant2", "Durand"},
                                 {"matière", "Algèbre"},
                                 {"TypeS1", 1}}))
        .row("emplois",
             meeting("B2", "Lundi2", "10h15",
                     {{"Classe", "G2"}, {"Enseignant1", "Petit"}, {"matière", "Physique"}}));
    for (const char* className : {"G2", "G3"}) {
        timetable.row("emplois", meeting("B1", "Lundi3", "14h00",
                                         {{"Classe", className},
                                          {"Enseignant1", "Martin"},
                                          {"matière", "Analyse"},
                                          {"Durée", "180"},
                                          {"Commune", true}}));
    }
    timetable
        .row("emplois", meeting("C1", "Lundi1", "8h30",
                                {{"Classe", "G3"},
                                 {"newnature", "10/20"},
                                 {"Enseignant1", "Roux"},
                                 {"matière", "Chimie"},
                                 {"SalleB", "C1"},
                                 {"Enseignant1b", "Blanc"},
                                 {"Matièreb", "Optique"}}))
        .row("emplois", meeting("A2", "Mardi2", "10h15",
                                {{"Classe", "G3"}, {"Enseignant1", "Roux"}, {"matière", "Chimie"}}))
        .row("ratrap", meeting("A2", "Lundi2", "10h15",
                               {{"Classe", "G1"},
                                {"Enseignant1", "Dupont"},
                                {"matière", "Algèbre"},
                                {"DateX", QDate(2025, 3, 17)}}))
        .row("examen", meeting("A2", "Lundi1", "8h30",
                               {{"Semaine", 1},
                                {"Durée", "120"},
                                {"Classe", "G1"},
                                {"Enseignant1", "Dupont"},
                                {"Resp1", "Petit"},
                                {"Resp2", "Roux"},
                                {"matière", "Algèbre"}}));
}

} // namespace

void createTinyFaculty(TestDatabase& database)
{
    Timetable timetable(database);
    addCalendar(timetable);
    addHouse(timetable);
    addStudies(timetable);
    addMeetings(timetable);
    timetable.row("abscence", {{"Classe", "G1"},
                               {"Seance", "Lundi1"},
                               {"Tranche", 1},
                               {"Debut", "8h30"},
                               {"Datex", QDate(2025, 3, 17)}});
    timetable.load();
}

} // namespace test
