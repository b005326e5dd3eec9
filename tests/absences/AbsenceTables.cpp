#include "AbsenceTables.h"

#include "demo/Schema.h"

namespace test
{
namespace
{

bool isOfAbsences(const QString& table)
{
    return table == u"abscence" || table == u"etud_abs";
}

QString withoutKey(const demo::Table& table, const QString& dateType)
{
    QStringList columns;
    for (const demo::Column& column : table.columns) {
        const QString type = column.kind == demo::ColumnKind::Text ? QStringLiteral("VARCHAR(100)")
                             : column.kind == demo::ColumnKind::Number ? QStringLiteral("INTEGER")
                             : column.kind == demo::ColumnKind::Flag   ? QStringLiteral("BOOLEAN")
                                                                       : dateType;
        columns << u'`' + column.name + QStringLiteral("` ") + type;
    }
    return QStringLiteral("CREATE TABLE ") + table.name + QStringLiteral(" (") +
           columns.join(QStringLiteral(", ")) + u')';
}

QStringList firstColumn(const TestDatabase& database, const QString& query)
{
    QStringList values;
    for (const QStringList& row : database.read(query)) {
        values << row.first();
    }
    return values;
}

} // namespace

QStringList absenceTableStatements(DatabaseKind kind)
{
    const demo::Flavour flavour =
        kind == DatabaseKind::MariaDb ? demo::Flavour::MariaDb : demo::Flavour::Sqlite;
    QStringList statements;
    for (const QString& statement :
         demo::schemaStatements(flavour) + demo::indexStatements(flavour)) {
        for (const char* table : {"abscence", "etud_abs", "tranche"}) {
            // Behind "CREATE TABLE " or the "ON " of an index.
            const QString name = demo::quotedName(QLatin1String(table), flavour);
            if (statement.contains(QStringLiteral("TABLE ") + name) ||
                statement.contains(QStringLiteral("ON ") + name)) {
                statements << statement;
            }
        }
    }
    return statements << QStringLiteral("insert into tranche values (2, 'Semestre 2', "
                                        "'2025-01-06', '2025-06-29')");
}

void createAbsenceTables(TestDatabase& database)
{
    database.execute(absenceTableStatements(database.kind()));
}

void createKeylessAbsenceTables(TestDatabase& database, const QString& dateType)
{
    for (const demo::Table& table : demo::tables()) {
        if (isOfAbsences(table.name)) {
            database.execute(withoutKey(table, dateType));
        }
    }
}

plan::Marqueur lesson(const QString& classes)
{
    plan::Marqueur marker;
    marker.Classes = classes;
    marker.Seance = QStringLiteral("Lundi3");
    marker.Tranche = 2;
    marker.Matiere = QStringLiteral("Algèbre linéaire");
    marker.Salle = QStringLiteral("A101");
    marker.Enseignant1 = QStringLiteral("Mme N’Diaye");
    marker.TypeS1 = 1;
    marker.TypeS3B = 4;
    marker.Duree = 90;
    marker.Commune = true;
    marker.Debut = QStringLiteral("10h15");
    marker.Jour = QDate(2025, 3, 17);
    marker.newnature = QStringLiteral("10/20");
    return marker;
}

QString classAbsencesQuery()
{
    return QStringLiteral(
        "select Classe, Seance, Tranche, `matière`, Salle, Enseignant1, newnature, TypeS1, TypeS2, "
        "TypeS3, TypeS1B, TypeS2B, TypeS3B, `Durée`, Commune, Debut, Datex, Choix from abscence "
        "order by Classe");
}

QString studentAbsencesQuery()
{
    return QStringLiteral("select Classe, Nom, Seance, Tranche, `matière`, HeureD, HeureF, Jour, "
                          "Ident from etud_abs order by Classe");
}

QList<QStringList> classAbsences(const TestDatabase& database)
{
    return database.read(classAbsencesQuery());
}

QList<QStringList> studentAbsences(const TestDatabase& database)
{
    return database.read(studentAbsencesQuery());
}

QStringList classAbsence(const QString& className)
{
    return {className,
            QStringLiteral("Lundi3"),
            QStringLiteral("2"),
            QStringLiteral("Algèbre linéaire"),
            QStringLiteral("A101"),
            QStringLiteral("Mme N’Diaye"),
            QStringLiteral("10/20"),
            QStringLiteral("1"), // TypeS1
            QStringLiteral("0"),
            QStringLiteral("0"),
            QStringLiteral("0"),
            QStringLiteral("0"),
            QStringLiteral("4"), // TypeS3B
            QStringLiteral("90"),
            QStringLiteral("1"), // Commune
            QStringLiteral("10h15"),
            QStringLiteral("2025-03-17"),
            QStringLiteral("1")}; // Choix
}

QStringList studentAbsence(const QString& className)
{
    return {className,
            className,
            QStringLiteral("Lundi3"),
            QStringLiteral("2"),
            QStringLiteral("Algèbre linéaire"),
            QStringLiteral("10h15"),
            QStringLiteral("11:45"),
            QStringLiteral("2025-03-17"),
            className.left(15)};
}

QStringList absentClasses(const TestDatabase& database)
{
    return firstColumn(database, QStringLiteral("select Classe from abscence order by Classe"));
}

QStringList classesOfAbsentStudents(const TestDatabase& database)
{
    return firstColumn(database, QStringLiteral("select Classe from etud_abs order by Classe"));
}

} // namespace test
