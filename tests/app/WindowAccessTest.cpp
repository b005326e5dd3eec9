// The window for those who do not see it.

#include "app/WindowDesk.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCalendarWidget>
#include <QPointer>

using namespace test;

namespace
{

QString nameOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

/// Whether the widget is a part of a list or table, which speaks for it.
bool isPartOfView(const QWidget* widget)
{
    for (const QWidget* parent = widget->parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
        if (qobject_cast<const QAbstractItemView*>(parent) != nullptr) {
            return true;
        }
    }
    return false;
}

} // namespace

TEST_F(TheWindow, hasANameForEveryControlAlsoForThoseThatHide)
{
    open();
    int controls = 0;
    for (QWidget* widget : window().findChildren<QWidget*>()) {
        const bool isControl =
            widget->inherits("QAbstractButton") || widget->inherits("QComboBox") ||
            widget->inherits("QAbstractSpinBox") || widget->inherits("QAbstractItemView") ||
            widget->inherits("QCalendarWidget") || widget == view();
        if (isControl && !isPartOfView(widget)) {
            ++controls;
            EXPECT_NE(nameOf(widget), "")
                << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
        }
    }
    EXPECT_GE(controls, 42); // 35 of the form's, the six lists when open, the plan
}

TEST_F(TheWindow, namesTheArrowsOfTheCalendar)
{
    open();
    auto* calendar = control<QDateEdit>("DTPicker1")->calendarWidget();
    const auto part = [calendar](const char* name) {
        return nameOf(calendar->findChild<QWidget*>(QString::fromLatin1(name)));
    };
    EXPECT_EQ(nameOf(calendar), "Calendrier");
    EXPECT_EQ(part("qt_calendar_prevmonth"), "Mois précédent");
    EXPECT_EQ(part("qt_calendar_nextmonth"), "Mois suivant");
}

TEST_F(TheWindow, tellsScreenReadersThePlanThatItShows)
{
    open();
    EXPECT_EQ(nameOf(view()), "Plan des salles, Lundi, Printemps");
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 1));
    EXPECT_TRUE(until([&] { return nameOf(view()) == "Plan des salles, Mardi, Printemps"; }));
    expectTexts("A2", {{2, "G3\r\n Roux\r\n [Chimie]\r\n"}});
    auto* table = QAccessible::queryAccessibleInterface(view())->tableInterface();
    EXPECT_EQ(table->cellAt(0, 2)->text(QAccessible::Name), "A2, 10h15 à 11h45, G3, Roux, Chimie");
}

TEST_F(TheWindow, canTellThePlanWhileItGoes)
{
    open();
    QString told;
    const QPointer<app::PlanView> plan = view();
    QObject::connect(control<QWidget>("HeaderBand"), &QObject::destroyed,
                     [&] { told = plan ? nameOf(plan) : QString(); });
    create(); // another window in its place
    EXPECT_EQ(told, "Plan des salles, Lundi, Printemps");
    EXPECT_TRUE(plan.isNull());
}
