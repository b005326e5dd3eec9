#include "shell/ShellDesk.h"

#include <QRegularExpression>

using namespace test;

namespace
{

class JsonExport : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    ShellDesk desk{database()};
};

TEMPORA_ON_BOTH_DATABASES(JsonExport);

/// The object written there, "@800" standing for 800 twips from the beginning of the time axis.
QJsonObject parsed(QString text)
{
    const int axis = form::PlanForm().Label1[0].place.left;
    for (const int twips : {0, 800, 3600, 9600, 12400}) {
        text.replace(QRegularExpression(QString("@%1\\b").arg(twips)),
                     QString::number(axis + twips));
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    return document.object();
}

// Monday, 17 March 2025. 90 minutes are 2400 twips and the axis begins with 8h00, so 8h30 lies
// 30 × 2400 / 90 = 800 twips further on, 10h15 3600, 14h00 9600 and 15h45 12400.
// Row 0 is A1; rows 1 to 4 are A2, B1, B2 and C1, which hold 40, 100, 20 and 12.
const char* const wholePlan = R"({
  "title": "Occupation des Salles du Lundi", "mode": "teaching",
  "tranche": {"ident": 1, "name": "Printemps"}, "date": "2025-03-17",
  "establishment": {"university": "Université d'Essai", "name": "Faculté Témoin", "year": 2025},
  "axis": {"origin": "8h00", "left_twips": @0, "slot_width": 2400},
  "slots": [{"slot": 1, "start": "8h30", "x_twips": @800, "width_twips": 2400},
            {"slot": 2, "start": "10h15", "x_twips": @3600, "width_twips": 2400},
            {"slot": 3, "start": "14h00", "x_twips": @9600, "width_twips": 1200},
            {"slot": 4, "start": "15h45", "x_twips": @12400, "width_twips": 2400}],
  "rows": [
    {"index": 1, "room": "A2", "places": "40", "color": "#d7d7d7", "boxes": [
      {"slot": 1, "seance": "Lundi1", "text": "G1\r\n Dupont/Durand\r\n [Algèbre]\r\n",
       "start": "8h30", "duration": "90", "makeup": false, "x_twips": @800, "width_twips": 2400,
       "rows": 1, "classes": "G1\r\n", "class_list": "G1", "students": 3, "capacity": 25,
       "teacher": "Dupont", "subject": "Algèbre", "type_a": "1", "type_b": "0",
       "week_nature": "00", "common": false, "counter": null, "size_label": null, "details": "",
       "class_absent": true, "student_absent": false}]},
    {"index": 2, "room": "B1", "places": "100", "color": "#d7d7d7", "boxes": [
      {"slot": 3, "seance": "Lundi3", "text": "G2\r\n Martin\r\n [Analyse]\r\n",
       "start": "14h00", "duration": "180", "makeup": false, "x_twips": @9600, "width_twips": 4800,
       "rows": 2, "classes": "G2\tMartin\r\nG3\tMartin", "class_list": "G2\tG3", "students": 2,
       "capacity": 55, "teacher": "Martin", "subject": "Analyse", "type_a": "0", "type_b": "0",
       "week_nature": "00", "common": true, "counter": "2", "size_label": "2",
       "details": "G2\tMartin\r\nG3\tMartin", "class_absent": false, "student_absent": false}]},
    {"index": 3, "room": "B2", "places": "20", "color": "#d7d7d7", "boxes": [
      {"slot": 2, "seance": "Lundi2", "text": "G2\r\n Petit\r\n [Physique]\r\n",
       "start": "10h15", "duration": "90", "makeup": false, "x_twips": @3600, "width_twips": 2400,
       "rows": 1, "classes": "G2\r\n", "class_list": "G2", "students": 0, "capacity": 45,
       "teacher": "Petit", "subject": "Physique", "type_a": "0", "type_b": "0",
       "week_nature": "00", "common": false, "counter": "1", "size_label": "Dépassement 45/20",
       "details": "G2\r\n", "class_absent": false, "student_absent": false}]},
    {"index": 4, "room": "C1", "places": "12", "color": "#d7d7d7", "boxes": [
      {"slot": 1, "seance": "Lundi1",
       "text": "G3\r\n Roux\r\n [Chimie] = G3  Blanc [Optique]\r\n",
       "start": "8h30", "duration": "90", "makeup": false, "x_twips": @800, "width_twips": 2400,
       "rows": 1, "classes": "G3\r\n", "class_list": "G3", "students": 2, "capacity": 10,
       "teacher": "Roux", "subject": "Chimie", "type_a": "0", "type_b": "0",
       "week_nature": "10/20", "common": false, "counter": null, "size_label": null, "details": "",
       "class_absent": false, "student_absent": false}]}],
  "totals": [null, null, null, null, null, null, null, null, null, null, null],
  "page": {"offset": 0, "start": 0, "rows_shown": 4, "room_total": 5, "previous_enabled": false,
           "next_enabled": false, "row0_room": "A1"}
})";

} // namespace

TEST_P(JsonExport, holdsTheWholePlan)
{
    desk.start();
    desk.form().Colorer.setChecked(false);
    const QJsonObject expected = parsed(wholePlan);
    const QJsonObject plan = desk.plan();
    for (const QString& key : expected.keys()) {
        EXPECT_EQ(QJsonDocument(QJsonObject{{key, plan[key]}}).toJson().toStdString(),
                  QJsonDocument(QJsonObject{{key, expected[key]}}).toJson().toStdString());
    }
    EXPECT_EQ(plan.keys(), expected.keys());
}

TEST_P(JsonExport, givesTheCounterAlsoWhileItIsHidden)
{
    desk.start();
    desk.form().Check3.setChecked(false);
    const QJsonValue box = desk.plan()["rows"][1]["boxes"][0];
    EXPECT_EQ(box["counter"].toString(), "2");
    EXPECT_EQ(box["size_label"].toString(), "2");
}

TEST_P(JsonExport, givesTheTotalsThatAreShown)
{
    // A2 40 and C1 12 in slot 1, B2 20 in slot 2, B1 100 in slot 3, where it stays for 180 minutes
    // and so counts in slot 4 as well.
    EXPECT_EQ(totals((desk.play({"--counting", "--day", "0"}), desk.plan())),
              QStringList({"52", "20", "100", "100", "-", "-", "-", "-", "-", "-", "-"}));
}

TEST_P(JsonExport, countsTeachersWhenNothingElseIsShown)
{
    // Dupont/Durand in A2, Roux = Blanc in C1: the slash alone separates persons.
    desk.play({"--show", "teacher", "--counting", "--day", "0"});
    EXPECT_EQ(totals(desk.plan()),
              QStringList({"52/3", "20/1", "100/1", "100/0", "-", "-", "-", "-", "-", "-", "-"}));
}

TEST_P(JsonExport, givesTheExamsOfAnExamWeek)
{
    desk.play({"--mode", "exam", "--show", "class,teacher,subject,invigilator"});
    const QJsonObject plan = desk.plan();
    EXPECT_EQ(plan["mode"].toString(), "exam");
    EXPECT_EQ(plan["date"].toString(), "2025-06-09");
    const QJsonValue box = plan["rows"][0]["boxes"][0];
    EXPECT_EQ(box["text"].toString(), "G1\r\n Dupont Petit/Roux\r\n [Algèbre]\r\n");
    EXPECT_EQ(box["teacher"].toString(), "Petit");
    EXPECT_EQ(box["duration"].toString(), "120");
    EXPECT_EQ(box["width_twips"].toInt(), 3200);
    EXPECT_EQ(shownRooms(plan), QStringList({"A2", "B1", "B2", "C1"}));
    EXPECT_TRUE(boxTexts(plan, "B1").isEmpty());
}

TEST_P(JsonExport, marksMakeUps)
{
    desk.play({"--makeup", "--day", "0"});
    const QJsonObject plan = desk.plan();
    EXPECT_EQ(plan["title"].toString(), "Occupation des Salles du 17/03/25");
    const QJsonValue box = plan["rows"][0]["boxes"][1];
    EXPECT_TRUE(box["makeup"].toBool());
    EXPECT_EQ(box["text"].toString(), "G1\r\n Dupont\r\n [Algèbre]\r\n");
    EXPECT_FALSE(plan["rows"][0]["boxes"][0]["makeup"].toBool(true));
}

TEST_P(JsonExport, isTheSameForTheSameInput)
{
    desk.start();
    const QByteArray first = files::planAsJson(desk.drawn());
    desk.start();
    EXPECT_EQ(files::planAsJson(desk.drawn()), first);
    EXPECT_GT(first.count('\n'), 100); // for reading and comparing line by line
}

TEST_P(JsonExport, givesTheRandomColoursOfTheSeed)
{
    desk.start();
    QStringList colors = rowColors(desk.plan());
    EXPECT_EQ(colors.size(), 4);
    EXPECT_EQ(colors.removeDuplicates(), 0);
    EXPECT_TRUE(colors.first().startsWith('#'));
    EXPECT_EQ(colors.first().size(), 7);
}
