// What a screen reader finds in the plan, on the tiny faculty's Monday, 17 March 2025.

#include "app/PlanAccess.h"
#include "absences/HeldKey.h"
#include "app/PlanView.h"
#include "shell/ShellDesk.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <gtest/gtest.h>
#include <memory>

using namespace test;

namespace
{

class ThePlanAsATable : public testing::Test
{
protected:
    ThePlanAsATable() { createTinyFaculty(database); }

    void open(QSize size = {1366, 500})
    {
        desk.load();
        view = std::make_unique<app::PlanView>(
            desk.shell(), [](const std::function<void()>& action) { action(); }, [](int) {});
        view->resize(size);
        view->show();
        view->fit();
        desk.shell().Form_Activate();
    }

    [[nodiscard]] QAccessibleInterface* access() const
    {
        return QAccessible::queryAccessibleInterface(view.get());
    }
    [[nodiscard]] QAccessibleTableInterface& table() const { return *access()->tableInterface(); }
    [[nodiscard]] QAccessibleInterface* cell(int row, int column) const
    {
        return table().cellAt(row, column);
    }
    [[nodiscard]] QString name(int row, int column) const
    {
        return cell(row, column)->text(QAccessible::Name);
    }
    [[nodiscard]] QString title() const { return access()->text(QAccessible::Name); }
    [[nodiscard]] QString note() const { return access()->text(QAccessible::Description); }
    using Events = QList<QAccessible::Event>;
    /// The kinds of events that tell what has changed since the last call.
    [[nodiscard]] Events toldEvents() const
    {
        Events events;
        app::tellChanges(*view, [&](QAccessibleEvent& event) {
            EXPECT_EQ(event.object(), view.get());
            events.append(event.type());
        });
        return events;
    }
    void takeFocus() const
    {
        view->activateWindow();
        view->setFocus();
        QCoreApplication::processEvents();
        ASSERT_TRUE(view->hasFocus());
    }
    void press(int key) const
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(view.get(), &event);
    }
    /// The cell that the focus is told of; empty when it is the plan's as a whole.
    [[nodiscard]] QString focusTold() const
    {
        QStringList told;
        app::tellCursor(*view, [&](QAccessibleEvent& event) {
            EXPECT_EQ(event.type(), QAccessible::Focus);
            told << (event.object() == view.get()
                         ? QString()
                         : event.accessibleInterface()->text(QAccessible::Name));
        });
        EXPECT_EQ(told.size(), 1);
        return told.value(0);
    }
    [[nodiscard]] QString toolTipIn(const QRect& screenPlace) const
    {
        const QPoint left(screenPlace.left() + 3, screenPlace.center().y());
        return view->toolTipAt(view->viewport()->mapFromGlobal(left));
    }

    TestDatabase database{DatabaseKind::Sqlite};
    ShellDesk desk{database};
    std::unique_ptr<app::PlanView> view;
};

} // namespace

TEST_F(ThePlanAsATable, hasARowForEachDrawnRoomAndAColumnForEachSlot)
{
    open();
    ASSERT_NE(access(), nullptr);
    EXPECT_EQ(access()->role(), QAccessible::Table);
    ASSERT_NE(access()->tableInterface(), nullptr);
    EXPECT_EQ(table().rowCount(), 4);
    EXPECT_EQ(table().columnCount(), 1 + 4);
    EXPECT_EQ(table().rowDescription(0), "A2, 40 places");
    EXPECT_EQ(table().rowDescription(3), "C1, 12 places");
    EXPECT_EQ(table().columnDescription(0), "Salle");
    EXPECT_EQ(table().columnDescription(3), "14h00 à 14h45");
    EXPECT_EQ(table().rowDescription(4), "");
    EXPECT_EQ(table().columnDescription(5), "");
}

TEST_F(ThePlanAsATable, namesTheDayThePeriodAndWhatIsChosen)
{
    open();
    EXPECT_EQ(title(), "Plan des salles, Lundi, Printemps");
    desk.form().OptA().select();
    desk.form().CbJour.setListIndex(1);
    EXPECT_EQ(title(), "Plan des salles, Mardi, Printemps, Semaine A");
    desk.form().Check2.setChecked(true);
    EXPECT_EQ(title(), "Plan des salles, mardi 18/03/2025, Printemps, Semaine A");
}

TEST_F(ThePlanAsATable, tellsOfTheGreyedRoomAndOfTheTotalsBesideIt)
{
    open();
    const QString greyed = "Première ligne, grisée, hors du tableau : A1. Ses séances ne sont pas "
                           "dessinées ici.";
    EXPECT_EQ(note(), greyed);
    desk.form().Chk_Compt.setChecked(true);
    desk.form().CbJour.setListIndex(0);
    // A2 and C1 in slot 1, B2 in slot 2, B1 in slot 3, from where it lasts into slot 4.
    EXPECT_EQ(note(), greyed + " Places occupées, 8h30 à 10h00 : 52, 10h15 à 11h45 : 20, "
                               "14h00 à 14h45 : 100, 15h45 à 17h15 : 100.");
}

TEST_F(ThePlanAsATable, saysInEachCellWhatThereIsToSee)
{
    open();
    EXPECT_EQ(name(0, 0), "A2, 40 places");
    EXPECT_EQ(name(0, 1), "A2, 8h30 à 10h00, G1, Dupont/Durand, Algèbre, Classe absente");
    EXPECT_EQ(name(0, 2), "A2, 10h15 à 11h45, pas de case");
    EXPECT_EQ(name(1, 3), "B1, 14h00 à 17h00, G2, Martin, Analyse, 2 groupes : G2, G3, "
                          "2 étudiants");
    EXPECT_EQ(name(2, 2), "B2, 10h15 à 11h45, G2, Petit, Physique, Dépassement 45/20");
    EXPECT_EQ(name(3, 1), "C1, 8h30 à 10h00, G3, Roux, Chimie = G3 Blanc Optique");
}

TEST_F(ThePlanAsATable, saysNoMoreThanTheOptionsShow)
{
    open();
    desk.form().Check3.setChecked(false);
    EXPECT_EQ(name(1, 3), "B1, 14h00 à 17h00, G2, Martin, Analyse");
    EXPECT_EQ(name(2, 2), "B2, 10h15 à 11h45, G2, Petit, Physique");
    desk.form().XOpEns.setChecked(false);
    EXPECT_EQ(name(2, 2), "B2, 10h15 à 11h45, G2, Physique");
}

TEST_F(ThePlanAsATable, tellsMakeUpsAndAbsentStudents)
{
    database.execute("INSERT INTO etud_abs (Classe, Nom, Jour, HeureD) "
                     "VALUES ('G1', 'G1', '2025-03-17', '10h15')");
    open();
    desk.form().Check2.setChecked(true);
    desk.form().CbJour.setListIndex(0);
    EXPECT_EQ(name(0, 2), "A2, 10h15 à 11h45, G1, Dupont, Algèbre, Rattrapage, Étudiants absents");
}

TEST_F(ThePlanAsATable, givesALongSeanceTheSlotsThatItReachesInto)
{
    open();
    QAccessibleInterface* seance = cell(1, 3);
    EXPECT_EQ(cell(1, 4), seance);
    QAccessibleTableCellInterface* place = seance->tableCellInterface();
    ASSERT_NE(place, nullptr);
    EXPECT_EQ(place->rowIndex(), 1);
    EXPECT_EQ(place->columnIndex(), 3);
    EXPECT_EQ(place->columnExtent(), 2);
    EXPECT_EQ(place->rowExtent(), 1);
    EXPECT_EQ(place->table(), access());
    EXPECT_EQ(place->rowHeaderCells(), QList<QAccessibleInterface*>{cell(1, 0)});
    EXPECT_EQ(cell(1, 0)->role(), QAccessible::RowHeader);
    EXPECT_EQ(seance->role(), QAccessible::Cell);
    EXPECT_EQ(cell(1, 5), nullptr);
    EXPECT_EQ(cell(4, 0), nullptr);
    EXPECT_EQ(cell(-1, 0), nullptr);
}

TEST_F(ThePlanAsATable, hasItsCellsAsChildrenRowByRow)
{
    open();
    // Five in each row; in B1 one séance takes two slots.
    ASSERT_EQ(access()->childCount(), 5 + 4 + 5 + 5);
    EXPECT_EQ(access()->child(0), cell(0, 0));
    EXPECT_EQ(access()->child(5), cell(1, 0));
    EXPECT_EQ(access()->child(8), cell(1, 3));
    EXPECT_EQ(access()->child(9), cell(2, 0));
    EXPECT_EQ(access()->child(18), cell(3, 4));
    EXPECT_EQ(access()->child(19), nullptr);
    EXPECT_EQ(access()->child(-1), nullptr);
    for (int index = 0; index < access()->childCount(); ++index) {
        EXPECT_EQ(access()->indexOfChild(access()->child(index)), index);
        EXPECT_EQ(access()->child(index)->parent(), access());
        EXPECT_TRUE(access()->child(index)->isValid());
    }
}

TEST_F(ThePlanAsATable, hasItsCellsWhereTheScreenShowsThem)
{
    open();
    const QRect first = cell(0, 1)->rect();  // A2, 8h30, 90 minutes
    const QRect second = cell(2, 2)->rect(); // B2, 10h15, 90 minutes
    const QRect third = cell(1, 3)->rect();  // B1, 14h00, 180 minutes
    EXPECT_TRUE(toolTipIn(first).startsWith("A2 – 8h30, 90 min"));
    EXPECT_TRUE(toolTipIn(second).startsWith("B2 – 10h15, 90 min"));
    EXPECT_TRUE(toolTipIn(third).startsWith("B1 – 14h00, 180 min"));
    EXPECT_EQ(toolTipIn(cell(0, 0)->rect()), "A2");
    // Ends of boxes are rounded to whole pixels.
    EXPECT_NEAR(third.width(), 2 * first.width(), 2);
    EXPECT_NEAR(second.left() - first.left(), first.width() * 105 / 90.0, 2);
    EXPECT_NEAR(third.left() - first.left(), first.width() * 330 / 90.0, 4);
    EXPECT_NEAR(second.top() - first.top(), 2 * (third.top() - first.top()), 1);
    EXPECT_EQ(cell(0, 0)->rect().top(), first.top());
    EXPECT_EQ(cell(0, 0)->rect().height(), first.height());
    // A slot without a box: 10h15 in A2 is as wide as the box of that time in B2.
    EXPECT_NEAR(cell(0, 2)->rect().left(), second.left(), 1);
    EXPECT_NEAR(cell(0, 2)->rect().width(), second.width(), 1);
    EXPECT_EQ(cell(0, 2)->rect().top(), first.top());
}

TEST_F(ThePlanAsATable, findsTheCellUnderAPointOfTheScreen)
{
    open();
    for (int index = 0; index < access()->childCount(); ++index) {
        QAccessibleInterface* child = access()->child(index);
        const QPoint middle = child->rect().center();
        EXPECT_EQ(access()->childAt(middle.x(), middle.y()), child) << index;
    }
    const form::Place& places = desk.form().Cap.at(3).place; // at the right: B2's
    const QPoint inPlaces = view->viewport()->mapToGlobal(
        view->toViewport({view->target().toPixelsX(places.left + places.width / 2.0),
                          view->target().toPixelsY(places.top + places.height / 2.0)})
            .toPoint());
    EXPECT_EQ(access()->childAt(inPlaces.x(), inPlaces.y()), cell(2, 0));
    const QPoint corner = view->viewport()->mapToGlobal(QPoint(2, 2)); // left of the hours
    EXPECT_EQ(access()->childAt(corner.x(), corner.y()), nullptr);
}

TEST_F(ThePlanAsATable, movesItsCellsWithTheScrolledBoxes)
{
    open({460, 160});
    QScrollBar* across = view->horizontalScrollBar();
    QScrollBar* down = view->verticalScrollBar();
    ASSERT_GT(across->maximum(), 40);
    across->setValue(0);
    down->setValue(0);
    const QRect room = cell(0, 0)->rect();
    const QRect box = cell(0, 1)->rect();
    EXPECT_FALSE(cell(0, 1)->state().offscreen);
    EXPECT_TRUE(cell(1, 3)->state().offscreen);
    across->setValue(40);
    EXPECT_EQ(cell(0, 0)->rect(), room); // the names stay in view
    EXPECT_EQ(cell(0, 1)->rect(), box.translated(-40, 0));
    down->setValue(down->maximum());
    EXPECT_EQ(cell(0, 0)->rect(), room.translated(0, -down->maximum()));
    EXPECT_EQ(cell(0, 1)->rect(), box.translated(-40, -down->maximum()));
    down->setValue(0);
    across->setValue(across->maximum()); // the afternoon
    EXPECT_TRUE(cell(0, 1)->state().offscreen);
    EXPECT_FALSE(cell(0, 0)->state().offscreen);
    EXPECT_FALSE(cell(1, 3)->state().offscreen);
}

TEST_F(ThePlanAsATable, tellsOnceWhenARefreshHasChangedIt)
{
    open();
    EXPECT_EQ(toldEvents(), (Events{QAccessible::NameChanged, QAccessible::DescriptionChanged,
                                    QAccessible::TableModelChanged}));
    const QAccessible::Id cellOfMonday = QAccessible::uniqueId(cell(0, 1));
    desk.form().CbJour.setListIndex(1);
    EXPECT_EQ(toldEvents(), (Events{QAccessible::NameChanged, QAccessible::TableModelChanged}));
    EXPECT_EQ(QAccessible::accessibleInterface(cellOfMonday), nullptr);
    EXPECT_EQ(name(0, 2), "A2, 10h15 à 11h45, G3, Roux, Chimie");
    const QAccessible::Id cellOfTuesday = QAccessible::uniqueId(cell(0, 1));
    EXPECT_EQ(toldEvents(), Events{});
    EXPECT_EQ(QAccessible::uniqueId(cell(0, 1)), cellOfTuesday); // whoever reads it stays there
}

TEST_F(ThePlanAsATable, tellsOfAnAbsenceThatIsMarkedWithoutARefresh)
{
    open();
    static_cast<void>(toldEvents());
    absences::HeldKey keys(absences::VirtualKey::Ctrl);
    desk.shell().engine().clickMarker(1, keys);
    EXPECT_EQ(toldEvents(), Events{QAccessible::TableModelChanged});
    EXPECT_EQ(name(0, 1),
              "A2, 8h30 à 10h00, G1, Dupont/Durand, Algèbre, Classe absente, Étudiants absents");
}

TEST_F(ThePlanAsATable, hasTheRowsDrawnSoFarInTheMiddleOfARefresh)
{
    open();
    const QAccessibleInterface* last = cell(3, 0);
    QList<int> rows;
    QList<bool> valid;
    desk.whileYielding = [&] {
        view->showProgress(std::chrono::milliseconds(0));
        rows << table().rowCount();
        valid << last->isValid();
    };
    desk.form().CbJour.setListIndex(1);
    EXPECT_EQ(rows, (QList<int>{1, 2, 3, 4}));
    EXPECT_EQ(valid, (QList<bool>{false, false, false, true}));
}

TEST_F(ThePlanAsATable, asksNothingOfTheDatabaseAndDrawsNothing)
{
    open();
    const std::uint64_t refreshes = desk.shell().engine().refreshCount();
    const QPixmap before = view->viewport()->grab();
    desk.shell().Form_Unload(); // closes the database
    EXPECT_EQ(access()->childCount(), 19);
    for (int index = 0; index < access()->childCount(); ++index) {
        EXPECT_NE(access()->child(index)->text(QAccessible::Name), "");
        EXPECT_FALSE(access()->child(index)->rect().isEmpty());
    }
    EXPECT_EQ(desk.shell().engine().refreshCount(), refreshes);
    EXPECT_EQ(view->viewport()->grab().toImage(), before.toImage());
}

TEST_F(ThePlanAsATable, givesASlotThatTheDayLacksAColumnOfItsOwn)
{
    database.execute("UPDATE emplois SET Seance = 'Lundi6' WHERE Salle = 'B2'");
    open();
    ASSERT_EQ(table().columnCount(), 1 + 5);
    EXPECT_EQ(name(2, 5), "B2, 10h15 à 11h45, G2, Petit, Physique, Dépassement 45/20");
    EXPECT_EQ(name(0, 5), "A2, séance 6, pas de case");
    EXPECT_TRUE(cell(0, 5)->rect().isEmpty());
    EXPECT_TRUE(cell(0, 5)->state().offscreen);
    EXPECT_FALSE(cell(2, 5)->state().offscreen);
}

TEST_F(ThePlanAsATable, isEmptyWithoutRooms)
{
    open();
    desk.form().cb_Locaux.setListIndex(9);
    EXPECT_EQ(table().rowCount(), 0);
    EXPECT_EQ(access()->childCount(), 0);
    EXPECT_EQ(title(), "Plan des salles, Lundi, Printemps, Zone 9");
}

TEST_F(ThePlanAsATable, givesTheFocusToTheCellThatTheKeyboardIsOn)
{
    open();
    takeFocus();
    EXPECT_EQ(focusTold(), ""); // on no cell: the plan as a whole
    press(Qt::Key_Down);
    EXPECT_EQ(focusTold(), "A2, 8h30 à 10h00, G1, Dupont/Durand, Algèbre, Classe absente");
    EXPECT_EQ(access()->focusChild(), cell(0, 1));
    EXPECT_TRUE(cell(0, 1)->state().focused);
    EXPECT_TRUE(cell(0, 1)->state().active);
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(focusTold(), "B1, 14h00 à 17h00, G2, Martin, Analyse, 2 groupes : G2, G3, "
                           "2 étudiants");
    EXPECT_EQ(access()->focusChild(), cell(1, 3));
    EXPECT_FALSE(cell(0, 1)->state().focused);
    EXPECT_TRUE(cell(0, 1)->state().focusable);
    press(Qt::Key_Escape);
    EXPECT_EQ(focusTold(), "");
    EXPECT_FALSE(cell(1, 3)->state().focused);
    EXPECT_FALSE(cell(1, 3)->state().active);
}

TEST_F(ThePlanAsATable, tellsTheCellOfTheKeyboardAnewWhenAnAbsenceIsMarkedThere)
{
    open();
    takeFocus();
    static_cast<void>(toldEvents());
    press(Qt::Key_Down);
    absences::HeldKey keys(absences::VirtualKey::Shift);
    desk.shell().engine().clickMarker(1, keys);
    QStringList told;
    app::tellChanges(*view, [&](QAccessibleEvent& event) {
        if (event.type() == QAccessible::Focus) {
            told << event.accessibleInterface()->text(QAccessible::Name);
        }
    });
    EXPECT_EQ(told, QStringList{"A2, 8h30 à 10h00, G1, Dupont/Durand, Algèbre"});
}

TEST_F(ThePlanAsATable, saysNothingOfItsCursorWhileTheKeysGoElsewhere)
{
    open();
    takeFocus();
    press(Qt::Key_Down);
    view->clearFocus();
    int events = 0;
    app::tellCursor(*view, [&](QAccessibleEvent&) { ++events; });
    EXPECT_EQ(events, 0);
    EXPECT_FALSE(cell(0, 1)->state().focused);
    EXPECT_TRUE(cell(0, 1)->state().active);
}

TEST_F(ThePlanAsATable, goesWithItsView)
{
    open();
    const QAccessible::Id id = QAccessible::uniqueId(cell(0, 1));
    view.reset();
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}
