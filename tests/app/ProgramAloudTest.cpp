// The program as a screen reader hears it: over the accessibility bus, from another process.

#include "app/Hands.h"
#include "app/ScreenReader.h"
#include "app/TemporaProcess.h"
#include "support/TinyFaculty.h"
#include "support/XSession.h"

#include <gtest/gtest.h>
#include <optional>

using namespace test;

namespace
{

/// The program's window on the tiny faculty's Monday, 17 March 2025. Rows: A2, B1, B2, C1.
class TheProgramAloud : public testing::TestWithParam<DatabaseKind>
{
protected:
    TheProgramAloud() { createTinyFaculty(database); }

    void SetUp() override
    {
        const QString missing = ScreenReader::missing();
        if (!missing.isEmpty()) {
            GTEST_SKIP() << missing.toStdString();
        }
        reader.emplace();
        program.environment.insert("DISPLAY", QString::fromLatin1(qgetenv("DISPLAY")));
        program.environment.insert("QT_QPA_PLATFORM", "xcb");
        program.environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        program.environment.insert("DBUS_SESSION_BUS_ADDRESS", reader->sessionAddress());
        program.environment.remove("AT_SPI_BUS_ADDRESS");
        program.startWithSettings({"--date", "2025-03-17"});
        byHand("search --sync --onlyvisible --name Planning windowactivate --sync");
        ASSERT_TRUE(until([this] { return reader->programs() == 1; }));
    }
    /// Presses the keys and waits until what has the focus by then has a name that begins so.
    void expectAfter(const QStringList& keys, const QString& name)
    {
        hands.press(keys);
        static_cast<void>(until([&] { return reader->focusName().startsWith(name); }));
        const QString told = reader->focusName();
        EXPECT_TRUE(told.startsWith(name)) << told.toStdString();
    }

    TestDatabase database{GetParam()};
    ProgramSetup setup{database};
    std::optional<ScreenReader> reader;
    TemporaProcess program{setup};
    Hands hands;
};

/// What has the focus in the plan's window at first, and gets it again when a window of answers
/// closes; a key that is pressed before belongs to nobody.
const QString kFirstField = QStringLiteral("Colorer");

TEMPORA_ON_BOTH_DATABASES(TheProgramAloud);

} // namespace

TEST_P(TheProgramAloud, tellsOverTheBusWhereTheCursorOfThePlanIs)
{
    expectAfter({"F6", "F6", "F6"}, "Plan des salles");
    expectAfter({"Down"}, "A2, 8h30 à 10h00, G1, Dupont/Durand, Algèbre, Classe absente");
    EXPECT_EQ(reader->focusRole(), "cell");
    expectAfter({"Right"}, "A2, 10h15 à 11h45");
    expectAfter({"Right", "Down"}, "B1, 14h00 à 17h00, G2, Martin, Analyse");
    expectAfter({"Home"}, "B1, 100 places");
    expectAfter({"Escape"}, "Plan des salles");
}

TEST_P(TheProgramAloud, tellsOverTheBusTheFullTextThatEnterOpens)
{
    expectAfter({"F6", "F6", "F6", "Down"}, "A2, 8h30");
    expectAfter({"Return"}, "A2 – 8h30, 90 min\nG1\nDupont/Durand\n[Algèbre]");
    expectAfter({"Escape"}, "A2, 8h30 à 10h00, G1");
}

TEST_P(TheProgramAloud, tellsOverTheBusWhatTheAnswersSay)
{
    expectAfter({"ctrl+l"}, "Salle cherchée, en quelques mots");
    hands.type("lundi,8h30,100");
    expectAfter({"Down"}, "B1");
    EXPECT_EQ(reader->focusRole(), "tree item");
    expectAfter({"Escape"}, kFirstField);
    expectAfter({"ctrl+f"}, "Enseignant, classe, salle ou matière");
    hands.type("dup");
    expectAfter({"Down"}, "Enseignant Dupont");
    expectAfter({"Escape"}, kFirstField);
    expectAfter({"ctrl+w"}, "Semaine, Salle A1");
    hands.press({"Right"});
    ASSERT_TRUE(until([this] { return reader->focusName() == "Semaine, Salle A2"; }));
    hands.press({"Down"});
    ASSERT_TRUE(until([this] { return reader->description().startsWith("Mardi"); }))
        << reader->description().toStdString();
}
