#include "form/Controls.h"

#include "support/RuntimeMatchers.h"

using namespace form;

namespace
{

/// Counts how often an event is raised.
struct Counter {
    int times = 0;
    [[nodiscard]] Event::Handler event()
    {
        return [this] { ++times; };
    }
};

} // namespace

TEST(CheckBox, raisesItsClickOnlyWhenItsValueChanges)
{
    CheckBox box;
    Counter clicks;
    box.click = clicks.event();
    box.setChecked(false);
    EXPECT_EQ(clicks.times, 0);
    box.setChecked(true);
    box.setChecked(true);
    EXPECT_EQ(clicks.times, 1);
    box.setChecked(false);
    EXPECT_EQ(clicks.times, 2);
}

TEST(CheckBox, showsItsNewValueToItsClick)
{
    CheckBox box;
    bool seen = false;
    box.click = [&] { seen = box.isChecked(); };
    box.setChecked(true);
    EXPECT_TRUE(seen);
}

TEST(CheckBox, worksWithoutAnEvent)
{
    CheckBox box;
    box.setChecked(true);
    EXPECT_TRUE(box.isChecked());
}

TEST(OptionButton, hasTheFirstOfItsGroupSelectedAtFirst)
{
    OptionGroup group({"A", "B"});
    const OptionButton first(group, 0);
    const OptionButton second(group, 1);
    EXPECT_TRUE(first.isSelected());
    EXPECT_FALSE(second.isSelected());
}

TEST(OptionButton, unselectsTheOthersBeforeItsClick)
{
    OptionGroup group({"A", "B"});
    const OptionButton first(group, 0);
    const OptionButton second(group, 1);
    Counter firstClicks;
    first.click() = firstClicks.event();
    bool firstWasSelected = true;
    second.click() = [&] { firstWasSelected = first.isSelected(); };
    second.select();
    EXPECT_FALSE(firstWasSelected);
    EXPECT_TRUE(second.isSelected());
    EXPECT_EQ(firstClicks.times, 0); // only the button that was pressed is clicked
}

TEST(OptionButton, raisesNothingWhenItIsSelectedAlready)
{
    OptionGroup group({"A"});
    const OptionButton only(group, 0);
    Counter clicks;
    only.click() = clicks.event();
    only.select();
    EXPECT_EQ(clicks.times, 0);
}

TEST(List, holdsNoSelectionAndNoTextAtFirst)
{
    List list;
    list.addItem("A");
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_EQ(list.text(), "");
}

TEST(List, raisesItsClickAlsoForTheIndexItHas)
{
    List list;
    list.design({"A", "B"}, 0);
    Counter clicks;
    list.click = clicks.event();
    list.setListIndex(1);
    list.setListIndex(1);
    EXPECT_EQ(clicks.times, 2);
    EXPECT_EQ(list.text(), "B");
}

TEST(List, selectsNothingForAnIndexItDoesNotHold)
{
    List list;
    list.design({"A", "B"}, 0);
    Counter clicks;
    list.click = clicks.event();
    for (const int index : {-1, 2, -7}) {
        list.setListIndex(0);
        list.setListIndex(index);
        EXPECT_EQ(list.listIndex(), -1) << index;
        EXPECT_EQ(list.text(), "") << index;
    }
    EXPECT_EQ(clicks.times, 6);
}

TEST(List, selectsByExactText)
{
    List list;
    list.design({"Lundi", "Mardi"}, 0);
    Counter clicks;
    list.click = clicks.event();
    EXPECT_FALSE(list.selectText("mardi"));
    EXPECT_EQ(list.listIndex(), 0);
    EXPECT_EQ(clicks.times, 0);
    EXPECT_TRUE(list.selectText("Mardi"));
    EXPECT_EQ(list.listIndex(), 1);
    EXPECT_EQ(clicks.times, 1);
}

TEST(List, isEmptyAndUnselectedWhenCleared)
{
    List list;
    list.design({"A"}, 0);
    Counter clicks;
    list.click = clicks.event();
    list.clear();
    EXPECT_TRUE(list.items().isEmpty());
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_EQ(clicks.times, 0);
}

TEST(TextBox, raisesItsChangeOnlyForAnotherText)
{
    TextBox box;
    Counter changes;
    box.change = changes.event();
    box.setText("");
    EXPECT_EQ(changes.times, 0);
    box.setText("19");
    box.setText("19");
    EXPECT_EQ(changes.times, 1);
    EXPECT_EQ(box.text(), "19");
}

TEST(DatePicker, raisesItsChangeOnlyForAnotherDate)
{
    DatePicker picker;
    Counter changes;
    picker.change = changes.event();
    picker.setValue(QDate(2026, 9, 7));
    picker.setValue(QDate(2026, 9, 7));
    EXPECT_EQ(changes.times, 1);
    EXPECT_EQ(picker.value(), QDate(2026, 9, 7));
}

TEST(Button, doesNothingWhenPressedWhileDisabled)
{
    Button button;
    Counter clicks;
    button.click = clicks.event();
    button.press();
    button.enabled = false;
    button.press();
    EXPECT_EQ(clicks.times, 1);
}

TEST(Event, doesNothingWithoutAHandler)
{
    Event event;
    event.raise(); // comes back
    Counter counter;
    event = counter.event();
    event.raise();
    EXPECT_EQ(counter.times, 1);
}

TEST(Event, staysBehindWhenItsControlIsCopied)
{
    CheckBox box;
    Counter clicks;
    box.click = clicks.event();
    CheckBox copy = box;
    copy.setChecked(true);
    EXPECT_EQ(clicks.times, 0);
    box = copy; // takes the value and keeps its own wiring
    EXPECT_TRUE(box.isChecked());
    box.setChecked(false);
    EXPECT_EQ(clicks.times, 1);
}

TEST(OptionGroup, isCopiedWithItsSelectionAndWithoutItsEvents)
{
    OptionGroup group({"A", "B"});
    Counter clicks;
    group.click(0) = clicks.event();
    group.select(1);
    OptionGroup copy = group;
    EXPECT_EQ(copy.selected(), 1);
    copy.select(0);
    EXPECT_EQ(clicks.times, 0);
    EXPECT_EQ(group.selected(), 1);
}

TEST(List, canShowATextWithoutItsClick)
{
    List list;
    list.addItem("Lundi");
    list.addItem("Mardi");
    Counter clicks;
    list.click = clicks.event();
    list.showText("Mardi");
    EXPECT_EQ(list.listIndex(), 1);
    list.showText("Dimanche");
    EXPECT_EQ(list.listIndex(), 1);
    EXPECT_EQ(clicks.times, 0);
}
