#include "demo/Schema.h"

#include <utility>

namespace demo
{
namespace
{

using Columns = std::vector<Column>;

Columns texts(const QStringList& names)
{
    Columns columns;
    for (const QString& name : names) {
        columns.push_back({name, ColumnKind::Text});
    }
    return columns;
}

Columns numbers(const QStringList& names)
{
    Columns columns;
    for (const QString& name : names) {
        columns.push_back({name, ColumnKind::Number});
    }
    return columns;
}

Columns dates(const QStringList& names)
{
    Columns columns;
    for (const QString& name : names) {
        columns.push_back({name, ColumnKind::Date});
    }
    return columns;
}

Columns flag(const QString& name)
{
    return {{name, ColumnKind::Flag}};
}

Columns joined(const std::vector<Columns>& parts)
{
    Columns all;
    for (const Columns& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

/// One meeting of a class in a slot: rooms, teachers and subjects of the A course, of the part
/// held in a second room (X), and the same again for the week-B course. Durations are texts here
/// and numbers in `abscence`.
Columns meetingColumns()
{
    return joined({
        texts({"Salle", "XSalle", "YSalle", "SalleB", "XSalleB", "YSalleB", "Seance"}),
        numbers({"Tranche"}),
        texts({"newnature"}),
        numbers({"TypeS1", "TypeS3B"}),
        texts({"Classe", "Enseignant1", "Enseignant2", "Enseignant3"}),
        texts({"XEnseignant1", "XEnseignant2", "XEnseignant3"}),
        texts({"Enseignant1b", "Enseignant2b", "Enseignant3b"}),
        texts({"XEnseignant1B", "XEnseignant2B", "XEnseignant3B"}),
        texts({"matière", "XMatière", "Matièreb", "XMatièreB", "Debut", "Durée"}),
        flag("Commune"),
    });
}

Columns examColumns()
{
    return joined({
        texts({"Salle", "Seance"}),
        numbers({"Tranche", "Semaine"}),
        texts({"newnature"}),
        numbers({"TypeS1", "TypeS3B"}),
        texts({"Classe", "Enseignant1", "Enseignant2", "Enseignant3"}),
        texts({"Resp1", "Resp2", "Resp3", "matière", "Debut", "Durée"}),
        flag("Commune"),
    });
}

Columns classAbsenceColumns()
{
    return joined({
        texts({"Classe", "Seance"}),
        numbers({"Tranche"}),
        texts({"matière", "Salle", "Enseignant1", "newnature"}),
        numbers({"TypeS1", "TypeS2", "TypeS3", "TypeS1B", "TypeS2B", "TypeS3B", "Durée"}),
        flag("Commune"),
        texts({"Debut"}),
        dates({"Datex"}),
        numbers({"Choix"}),
    });
}

Columns studentAbsenceColumns()
{
    return joined({
        texts({"Classe", "Nom", "Seance"}),
        numbers({"Tranche"}),
        texts({"matière", "HeureD", "HeureF"}),
        dates({"Jour"}),
        texts({"Ident"}),
    });
}

std::vector<Table> buildTables()
{
    return {
        {"etablissement", joined({texts({"Université", "Nom"}), numbers({"Année"})})},
        {"tranche",
         joined({numbers({"ident"}), texts({"Tranche"}), dates({"DateDebut", "DateFin"})}), true},
        {"dat_exam", joined({numbers({"Tranche"}), dates({"Semaine1", "Semaine2", "Controle"})}),
         true},
        {"seances", texts({"Seance", "Horaire1", "Horaire2"})},
        {"typeseance", joined({numbers({"Ref"}), texts({"NomCourt"})})},
        {"Département", texts({"Ident"})},
        {"salle", joined({numbers({"Zone"}), texts({"Département", "Nom"}), numbers({"places"})})},
        {"matière", texts({"Nom"})},
        {"classe", joined({texts({"Nom"}), numbers({"Capacite"})})},
        {"etudiant", texts({"Nom", "classe"})},
        {"emplois", meetingColumns()},
        {"ratrap", joined({meetingColumns(), dates({"DateX"})})},
        {"examen", examColumns()},
        {"abscence", classAbsenceColumns()},
        {"etud_abs", studentAbsenceColumns()},
    };
}

QString columnType(ColumnKind kind, Flavour flavour)
{
    const bool sqlite = flavour == Flavour::Sqlite;
    switch (kind) {
    case ColumnKind::Text:
        // The databases that the program meets elsewhere compare texts without regard to case;
        // SQLite compares bytes unless the column says otherwise.
        return sqlite ? "TEXT COLLATE NOCASE" : "VARCHAR(100)";
    case ColumnKind::Number:
        return sqlite ? "INTEGER" : "INT";
    case ColumnKind::Flag:
        // On MariaDB a number of one byte and not BIT, which many clients show as a raw byte.
        return "BOOLEAN";
    case ColumnKind::Date:
        return "DATE";
    }
    return {};
}

QString countedKey(Flavour flavour)
{
    // A key in every table keeps the order of identical rows fixed, and clusters ask for one.
    return flavour == Flavour::Sqlite ? QString("\"Num\" INTEGER PRIMARY KEY")
                                      : QString("`Num` INT AUTO_INCREMENT PRIMARY KEY");
}

QString createStatement(const Table& table, Flavour flavour)
{
    QStringList parts;
    for (const Column& column : table.columns) {
        parts.append(quotedName(column.name, flavour) + " " + columnType(column.kind, flavour));
    }
    if (table.keyedByFirstColumn) {
        parts.first() += " PRIMARY KEY";
    } else {
        parts.append(countedKey(flavour));
    }
    QString statement =
        "CREATE TABLE " + quotedName(table.name, flavour) + " (" + parts.join(", ") + ")";
    if (flavour == Flavour::MariaDb) {
        // Named in full, so that equality and sort order do not depend on the server's defaults.
        statement += " DEFAULT CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci";
    }
    return statement;
}

struct Index {
    QString name;
    QString table;
    QStringList columns;
};

/// One index per lookup. The room of a meeting stays out on purpose: it may stand in any of six
/// columns, and the meetings of one slot are few enough to be looked through.
std::vector<Index> indexes()
{
    return {
        {"i_emplois_seance", "emplois", {"Tranche", "Seance"}},
        {"i_ratrap_date", "ratrap", {"DateX", "Seance"}},
        {"i_examen_semaine", "examen", {"Tranche", "Semaine", "Seance"}},
        {"i_etudiant_classe", "etudiant", {"classe"}},
        {"i_classe_nom", "classe", {"Nom"}},
        {"i_abscence_date", "abscence", {"Datex", "Classe"}},
        {"i_etud_abs_jour", "etud_abs", {"Jour", "Classe"}},
        {"i_salle_nom", "salle", {"Nom"}},
    };
}

} // namespace

const std::vector<Table>& tables()
{
    static const std::vector<Table> all = buildTables();
    return all;
}

QStringList schemaStatements(Flavour flavour)
{
    QStringList statements;
    for (const Table& table : tables()) {
        statements.append(createStatement(table, flavour));
    }
    return statements;
}

QStringList indexStatements(Flavour flavour)
{
    QStringList statements;
    for (const Index& index : indexes()) {
        QStringList columns;
        for (const QString& column : index.columns) {
            columns.append(quotedName(column, flavour));
        }
        statements.append("CREATE INDEX " + index.name + " ON " + quotedName(index.table, flavour) +
                          " (" + columns.join(", ") + ")");
    }
    return statements;
}

QString quotedName(const QString& name, Flavour flavour)
{
    const QChar quote = flavour == Flavour::Sqlite ? QChar('"') : QChar('`');
    return quote + name + quote;
}

} // namespace demo
