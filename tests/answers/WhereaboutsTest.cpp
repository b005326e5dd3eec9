#include "answers/Whereabouts.h"

#include "answers/SearchText.h"
#include "timetable/Draft.h"

#include <gtest/gtest.h>
#include <optional>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

/// Rooms, people and classes with something in common.
class TheSearch : public testing::Test
{
protected:
    TheSearch()
    {
        draft.room("Salle Méca").room("Amphi").slot("Lundi1", "8h00", "9h30");
        draft.course({{column::kSeance, "Lundi1"},
                      {column::kSalle, "Amphi"},
                      {column::kClasse, "L2 MECA"},
                      {column::kEnseignant1, "Mécanicien"},
                      {column::kMatiere, "mécanique"}});
        draft.course({{column::kSeance, "Lundi1"},
                      {column::kSalle, "Annexe Meca"}, // of which the room table knows nothing
                      {column::kClasse, "L1"},
                      {column::kEnseignant1, "Durand"}});
    }
    QStringList found(const QString& text)
    {
        QStringList names;
        if (!occupancy) {
            occupancy = draft.occupancy();
        }
        for (const Hit& hit : whereabouts(*occupancy, text, {})) {
            names
                << QString("%1:%2:%3").arg(hit.subject.index()).arg(hit.name).arg(hit.items.size());
        }
        return names;
    }

    Draft draft;
    std::optional<Occupancy> occupancy; ///< once it is asked for
};

} // namespace

TEST_F(TheSearch, findsWhatHoldsTheTextWhateverAccentsAndCapitals)
{
    EXPECT_EQ(found("MÉCA"), QStringList({"0:Annexe Meca:1", "0:Salle Méca:0", "1:Mécanicien:1",
                                          "2:L2 MECA:1", "3:mécanique:1"}));
    EXPECT_EQ(found("canic"), QStringList({"1:Mécanicien:1"}));
    EXPECT_EQ(found("L"), QStringList({"0:Salle Méca:0", "2:L1:1", "2:L2 MECA:1"}));
    EXPECT_EQ(found(""), QStringList());
    EXPECT_EQ(found("x"), QStringList({"0:Annexe Meca:1"}));
}

TEST_F(TheSearch, knowsANameAsItIsSpeltOrNearlySo)
{
    draft.room("AMPHI");
    const Occupancy known = draft.occupancy();
    EXPECT_EQ(answers::roomNamed(known, "AMPHI"), Subject(RoomId(2)));
    EXPECT_EQ(answers::roomNamed(known, "Amphi"), Subject(RoomId(1)));
    EXPECT_EQ(answers::roomNamed(known, "salle meca"), Subject(RoomId(0)));
    EXPECT_EQ(answers::roomNamed(known, "Annexe Meca"), Subject(RoomId(3)));
    EXPECT_EQ(answers::roomNamed(known, "Salle"), std::nullopt);
    EXPECT_EQ(teacherNamed(known, "durand"), Subject(known.timetable().teachers().find(u"Durand")));
    EXPECT_EQ(classNamed(known, "L2 MECA"), Subject(known.timetable().classes().find(u"L2 MECA")));
    EXPECT_EQ(subjectNamed(known, "Mécanique"),
              Subject(known.timetable().subjects().find(u"mécanique")));
}

TEST(TheFormOfASearch, hasNoAccentsNoCapitalsAndNoLigatures)
{
    EXPECT_EQ(searchForm("ÉTÉ à l'Œuvre"), "ete a l'oeuvre");
    EXPECT_EQ(searchForm("L’Été"), "l'ete");
    EXPECT_EQ(searchForm("d‘Or dʼOr"), "d'or d'or");
    EXPECT_EQ(searchForm("SALLE D'Or"), "salle d'or");
}
