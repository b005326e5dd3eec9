// The windows that answer questions for those who do not see them.

#include "app/asking/AskingDesk.h"

#include <QAbstractItemView>
#include <QAccessible>

using namespace test;

namespace
{

class TheAnswersAloud : public TheAnswers
{
protected:
    [[nodiscard]] static QAccessibleInterface* access(QWidget* widget)
    {
        return QAccessible::queryAccessibleInterface(widget);
    }
    [[nodiscard]] static QString nameOf(QWidget* widget)
    {
        return access(widget)->text(QAccessible::Name);
    }
    /// The rows of a list as they are read out, their cells joined by "|".
    [[nodiscard]] QStringList rowsAloud(const char* list)
    {
        const auto* table = access(control<QTreeWidget>(list))->tableInterface();
        QStringList rows;
        for (int row = 0; row < table->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table->columnCount(); ++column) {
                cells << table->cellAt(row, column)->text(QAccessible::Name);
            }
            while (cells.size() > 1 && cells.last().isEmpty()) { // of a heading
                cells.removeLast();
            }
            rows << cells.join('|');
        }
        return rows;
    }
    /// The line at the bottom of a window, whose name a screen reader says when it changes.
    [[nodiscard]] static QString spoken(const QWidget& answers)
    {
        return nameOf(answers.findChild<QLabel*>("AnswerStatus"));
    }
    /// Opens a question of the menu that has no key.
    QWidget* askByMenu(const char* action, const char* name)
    {
        control<QAction>(action)->trigger();
        return shown(name);
    }
    QWidget* shown(const char* name)
    {
        QWidget* found = nullptr;
        EXPECT_TRUE(until([&] {
            found = window().findChild<QWidget*>(QString::fromLatin1(name));
            return found != nullptr && found->isVisible();
        })) << name;
        return found;
    }
};

/// A part of a list, table or field, which speaks for it.
bool isPart(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    return parent != nullptr &&
           (qobject_cast<const QAbstractItemView*>(parent) != nullptr ||
            parent->inherits("QComboBox") || parent->inherits("QComboBoxPrivateContainer") ||
            parent->inherits("QAbstractSpinBox") || parent->inherits("QLineEdit") ||
            parent->inherits("QTabBar") || (!parent->isWindow() && isPart(parent)));
}

} // namespace

TEST_F(TheAnswersAloud, haveANameForEveryControl)
{
    open();
    const QList<QWidget*> windows{
        ask<QWidget>({"ctrl+l"}, "FreeRoomsWindow"), ask<QWidget>({"ctrl+f"}, "FindWindow"),
        ask<QWidget>({"ctrl+w"}, "WeekWindow"), askByMenu("AskClashes", "ClashesWindow"),
        askByMenu("AskRoomUse", "RoomUseWindow")};
    for (QWidget* answers : windows) {
        ASSERT_NE(answers, nullptr);
        EXPECT_NE(nameOf(answers), "") << answers->objectName().toStdString();
        int controls = 0;
        for (QWidget* widget : answers->findChildren<QWidget*>()) {
            const bool isControl =
                widget->inherits("QAbstractButton") || widget->inherits("QComboBox") ||
                widget->inherits("QAbstractSpinBox") || widget->inherits("QAbstractItemView") ||
                widget->inherits("QLineEdit") || widget->inherits("QAbstractScrollArea");
            if (isControl && !isPart(widget)) {
                ++controls;
                EXPECT_NE(nameOf(widget), "") << answers->objectName().toStdString() << ": "
                                              << widget->metaObject()->className() << ' '
                                              << widget->objectName().toStdString();
            }
        }
        EXPECT_GE(controls, 3) << answers->objectName().toStdString();
    }
}

TEST_F(TheAnswersAloud, areListsWhoseRowsAreRead)
{
    open();
    ASSERT_NE(ask<QWidget>({"ctrl+f"}, "FindWindow"), nullptr);
    hands.type("roux");
    static_cast<void>(until([&] { return rows("Found").size() == 4; }));
    QAccessibleInterface* list = access(control<QTreeWidget>("Found"));
    EXPECT_EQ(list->role(), QAccessible::Tree);
    EXPECT_EQ(rowsAloud("Found"), rows("Found"));
    EXPECT_EQ(rowsAloud("Found")[1], "Enseignant Roux|lundi 8h30–10h00, semaine A|C1|G3, Chimie");
    EXPECT_EQ(list->tableInterface()->cellAt(1, 0)->role(), QAccessible::TreeItem);
}

TEST_F(TheAnswersAloud, sayTheirResultsAsTheyCome)
{
    open();
    const QWidget* answers = ask<QWidget>({"ctrl+f"}, "FindWindow");
    ASSERT_NE(answers, nullptr);
    hands.type("roux");
    EXPECT_TRUE(until([&] { return spoken(*answers).startsWith("1 nom trouvé"); }))
        << spoken(*answers).toStdString();
    hands.type("zz");
    EXPECT_TRUE(
        until([&] { return spoken(*answers).startsWith("Personne ni rien ne porte ce nom"); }));
}

TEST_F(TheAnswersAloud, callEachClashByItsNameAndTime)
{
    database.execute(
        {"insert into emplois (Tranche, Seance, Salle, Classe, Enseignant1, newnature, "
         "Debut) values (1, 'Mardi2', 'A2', 'G2', 'Petit', '00', '10h15')",
         "insert into emplois (Tranche, Seance, Salle, newnature) values "
         "(1, 'Jeudi9', 'B2', '00')"});
    open();
    ASSERT_NE(askByMenu("AskClashes", "ClashesWindow"), nullptr);
    ASSERT_TRUE(until([&] { return rows("Clashes").size() == 2; }));
    const auto* list = access(control<QTreeWidget>("Clashes"))->tableInterface();
    EXPECT_EQ(list->cellAt(0, 0)->text(QAccessible::Name),
              "Salle en double : A2, mardi 10h15–11h45");
    EXPECT_EQ(list->cellAt(1, 0)->text(QAccessible::Name), "Heure inconnue : B2, jeudi");
    EXPECT_TRUE(rows("Clashes")[0].startsWith("Salle en double|")); // to the eye as before
}

TEST_F(TheAnswersAloud, sayHowManyRoomsAreFree)
{
    open();
    const QWidget* answers = ask<QWidget>({"ctrl+l"}, "FreeRoomsWindow");
    ASSERT_NE(answers, nullptr);
    hands.type("lundi,8h30,35");
    EXPECT_TRUE(until([&] { return spoken(*answers).startsWith("1 salle libre, 1 prise"); }))
        << spoken(*answers).toStdString();
    EXPECT_EQ(access(control<QTreeWidget>("FreeRooms"))->role(), QAccessible::Tree);
    EXPECT_EQ(rowsAloud("FreeRooms"), rows("FreeRooms"));
}

TEST_F(TheAnswersAloud, tellAWeekAndItsBoxes)
{
    open();
    ASSERT_NE(ask<QWidget>({"ctrl+w"}, "WeekWindow"), nullptr);
    auto* week = control<QWidget>("WeekView");
    EXPECT_TRUE(until([&] { return nameOf(week).startsWith("Semaine, Salle "); }))
        << nameOf(week).toStdString();
    // The same as a list, for who would rather hear rows.
    auto* isList = control<QCheckBox>("WeekAsList");
    EXPECT_EQ(nameOf(isList), "En liste");
    isList->click();
    EXPECT_TRUE(until([&] { return control<QTreeWidget>("WeekList")->isVisible(); }));
    EXPECT_EQ(rowsAloud("WeekList"), rows("WeekList"));
}

TEST_F(TheAnswersAloud, tellEachShareAsATextAndNotByItsColourAlone)
{
    open();
    ASSERT_NE(askByMenu("AskRoomUse", "RoomUseWindow"), nullptr);
    auto* slots = control<QWidget>("UseBySlot");
    EXPECT_EQ(nameOf(slots), "Occupation par jour et par créneau");
    const auto* table = access(slots)->tableInterface();
    ASSERT_TRUE(until([&] { return table->rowCount() > 1; }));
    EXPECT_EQ(table->columnDescription(0), "Lundi");
    EXPECT_EQ(table->rowDescription(table->rowCount() - 1), "Moyenne");
    EXPECT_TRUE(table->cellAt(0, 0)->text(QAccessible::Name).endsWith("%"))
        << table->cellAt(0, 0)->text(QAccessible::Name).toStdString();
}
