#include "app/asking/AskingFields.h"

#include "app/DateField.h"
#include "support/RuntimeMatchers.h"
#include "timetable/Week.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <gtest/gtest.h>

TEST(AskingFields, leadToTheFieldByTheKeyOfItsCaption)
{
    QWidget window;
    auto* row = new QHBoxLayout(&window);
    auto* places = new QSpinBox;
    app::addField(row, QStringLiteral("P&laces"), places);
    const auto* caption = window.findChild<QLabel*>();
    ASSERT_NE(caption, nullptr);
    EXPECT_EQ(caption->text(), "P&laces");
    EXPECT_EQ(caption->buddy(), places);
    EXPECT_EQ(row->itemAt(0)->widget(), caption);
    EXPECT_EQ(row->itemAt(1)->widget(), places);
}

TEST(AskingFields, haveTheWeeksInTheOrderOfTheModel)
{
    const std::unique_ptr<QComboBox> weeks(app::weekList(QStringLiteral("AskedWeek")));
    using timetable::Week;
    EXPECT_EQ(weeks->count(), 3);
    EXPECT_EQ(weeks->itemText(static_cast<int>(Week::Every)), "Toute semaine");
    EXPECT_EQ(weeks->itemText(static_cast<int>(Week::A)), "Semaine A");
    EXPECT_EQ(weeks->itemText(static_cast<int>(Week::B)), "Semaine B");
    EXPECT_EQ(weeks->objectName(), "AskedWeek");
    EXPECT_EQ(weeks->accessibleName(), "Semaine");
}

TEST(AskingFields, showADateAsPeopleWriteIt)
{
    const std::unique_ptr<app::DateField> field(
        app::dateField(QStringLiteral("AskedDate"), QStringLiteral("Date")));
    field->setDate(QDate(2026, 11, 3));
    EXPECT_EQ(field->text(), "03/11/2026");
    EXPECT_TRUE(field->calendarPopup());
    EXPECT_EQ(field->accessibleName(), "Date");
}
