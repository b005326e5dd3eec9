#include "files/AnswerJson.h"

#include "files/AnswerSamples.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

using namespace files;
using namespace test;

namespace
{

/// What a file says. Written again it has the same bytes: order of keys, blanks and all.
QJsonObject read(const AnswerDocument& document)
{
    const QByteArray bytes = answerAsJson(document);
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(bytes, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    EXPECT_EQ(json.toJson(QJsonDocument::Indented), bytes);
    return json.object();
}

class AnswerJson : public testing::Test
{
protected:
    AnswerSamples school;
};

} // namespace

TEST_F(AnswerJson, tellsARowInFull)
{
    const QJsonArray items = read(school.week(QDate(2026, 11, 23)))["items"].toArray();
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items[0].toObject(), (QJsonObject{{"kind", "course"},
                                                {"part", "A"},
                                                {"rooms", QJsonArray{"Amphi"}},
                                                {"classes", QJsonArray{"L1 A"}},
                                                {"teachers", QJsonArray{"Durand"}},
                                                {"subject", "Algèbre"},
                                                {"day", 0},
                                                {"slot", 1},
                                                {"start", 480},
                                                {"minutes", 90},
                                                {"weeks", "all"},
                                                {"date", QJsonValue()}}));
    EXPECT_EQ(items[1]["weeks"], "A");
    EXPECT_EQ(items[2]["kind"], "makeup");
    EXPECT_EQ(items[2]["date"], "2026-11-25");
    EXPECT_EQ(items[2]["start"], 600);
    EXPECT_EQ(items[2]["minutes"], 60);
}

TEST_F(AnswerJson, tellsWhatIsFreeTakenAndUnknown)
{
    const QJsonObject answer = read(school.freeRooms());
    EXPECT_EQ(answer.keys(), (QStringList{"rooms", "taken", "unknown"}));
    EXPECT_EQ(answer["rooms"].toArray(), (QJsonArray{QJsonObject{{"room", "TP 1"},
                                                                 {"places", 12},
                                                                 {"zone", 2},
                                                                 {"department", "INFO"},
                                                                 {"free_from", 480},
                                                                 {"free_to", 570}}}));
    const QJsonArray taken = answer["taken"].toArray();
    ASSERT_EQ(taken.size(), 1);
    EXPECT_EQ(taken[0]["room"], "Amphi");
    EXPECT_EQ(taken[0]["by"].toArray().size(), 2);
    const QJsonArray unknown = answer["unknown"].toArray();
    ASSERT_EQ(unknown.size(), 1);
    EXPECT_EQ(unknown[0]["room"], "TP 2");
    EXPECT_EQ(unknown[0]["why"], "L2 (Lundi9) : ni heure de début, ni séance de ce nom dans la "
                                 "journée");
}

TEST_F(AnswerJson, saysNothingOfATimeAndAClassThatNobodyKnows)
{
    school.draft().course(
        {{timetable::column::kSalle, "TP 2"}, {timetable::column::kSeance, "Mardi9"}});
    const QJsonArray hits = read(school.find("TP 2"))["hits"].toArray();
    ASSERT_EQ(hits.size(), 1);
    const QJsonArray items = hits[0]["items"].toArray();
    ASSERT_FALSE(items.isEmpty());
    const QJsonObject last = items.last().toObject();
    EXPECT_EQ(last["start"], QJsonValue());
    EXPECT_EQ(last["minutes"], QJsonValue());
    EXPECT_EQ(last["classes"].toArray(), QJsonArray());
    EXPECT_EQ(last["subject"], "");
    EXPECT_EQ(last["slot"], 9);
}

TEST_F(AnswerJson, tellsARowOnceForEachWhoIsFound)
{
    const QJsonArray hits = read(school.find("a"))["hits"].toArray();
    QJsonObject ofRoom;
    QJsonObject ofTeacher;
    for (const QJsonValue hit : hits) {
        if (hit["name"] == "Amphi") {
            ofRoom = hit["items"].toArray().first().toObject();
        } else if (hit["name"] == "Durand") {
            ofTeacher = hit["items"].toArray().first().toObject();
            EXPECT_EQ(hit["what"], "teacher");
        }
    }
    EXPECT_FALSE(ofRoom.isEmpty());
    EXPECT_EQ(ofRoom, ofTeacher);
}

TEST_F(AnswerJson, tellsWhatClashes)
{
    school.draft().course({{timetable::column::kSalle, "Amphi"},
                           {timetable::column::kSeance, "Lundi1"},
                           {timetable::column::kClasse, "L3 \"X\\Y\" \u2028\t\U0001f600"},
                           {timetable::column::kEnseignant1, "Autre"}});
    const QJsonArray clashes = read(school.clashes())["clashes"].toArray();
    ASSERT_FALSE(clashes.isEmpty());
    EXPECT_EQ(clashes[0]["kind"], "room");
    EXPECT_EQ(clashes[0]["name"], "Amphi");
    EXPECT_EQ(clashes[0]["day"], 0);
    EXPECT_EQ(clashes[0]["date"], QJsonValue());
    EXPECT_EQ(clashes[0]["weeks"], "all");
    EXPECT_EQ(clashes[0]["holders"].toArray().size(), 3);
    EXPECT_EQ(clashes[0]["holders"].toArray().at(2)["classes"].toArray().at(0),
              "L3 \"X\\Y\" \u2028\t\U0001f600");
    EXPECT_FALSE(clashes[0]["sentence"].toString().isEmpty());
}

TEST_F(AnswerJson, tellsNoDayWhereNobodyKnowsIt)
{
    school.draft().course({{timetable::column::kSalle, "Amphi"},
                           {timetable::column::kSeance, "Mradi2"},
                           {timetable::column::kClasse, "L3"}});
    const QJsonValue last = read(school.clashes())["clashes"].toArray().last();
    EXPECT_EQ(last["kind"], "no-time");
    EXPECT_EQ(last["name"], "Amphi");
    EXPECT_EQ(last["day"], QJsonValue());
    const QJsonArray holders = last["holders"].toArray();
    ASSERT_EQ(holders.size(), 1);
    EXPECT_EQ(holders[0]["classes"].toArray(), QJsonArray{"L3"});
    EXPECT_EQ(holders[0]["rooms"].toArray(), QJsonArray{"Amphi"});
    EXPECT_EQ(holders[0]["day"], QJsonValue());
    EXPECT_EQ(holders[0]["start"], QJsonValue());
}

TEST_F(AnswerJson, tellsSharesAndNoneWhereSeatsAreNotKnown)
{
    AnswerDocument document = school.roomUse();
    const QJsonObject known = read(document);
    EXPECT_EQ(known.keys(), (QStringList{"rooms", "seats_share", "share", "slots"}));
    const QJsonArray rooms = known["rooms"].toArray();
    ASSERT_EQ(rooms.size(), 3);
    EXPECT_EQ(rooms[1].toObject().keys(),
              (QStringList{"held", "places", "room", "seats_share", "share", "slots"}));
    EXPECT_EQ(rooms[1]["held"], 0.5); // one slot in one week of the two
    EXPECT_EQ(known["slots"].toArray().at(0)["day"], 0);
    std::get<answers::RoomUse>(document.answer).areSeatsKnown = false;
    const QJsonObject unknown = read(document);
    EXPECT_EQ(unknown["seats_share"], QJsonValue());
    EXPECT_EQ(unknown["rooms"].toArray().at(0)["seats_share"], QJsonValue());
}
