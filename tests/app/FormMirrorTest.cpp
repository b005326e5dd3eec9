#include "app/FormMirror.h"

#include "support/RuntimeMatchers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace
{

/// A mirror as the window has it: an action is run, then all widgets are brought up to date.
class TheMirror : public testing::Test
{
protected:
    app::FormMirror mirror{[this](const std::function<void()>& action) {
        ++actions;
        action();
        mirror.sync();
    }};
    int actions = 0;
    int events = 0; ///< that the control under test has raised
};

} // namespace

TEST_F(TheMirror, tiesACheckBox)
{
    QCheckBox widget;
    form::CheckBox control(" Grille ", true);
    control.click = [this] { ++events; };
    mirror.bind(&widget, control);
    mirror.sync();
    EXPECT_EQ(widget.text(), "Grille");
    EXPECT_TRUE(widget.isChecked());
    EXPECT_EQ(events, 0);
    widget.click();
    EXPECT_FALSE(control.isChecked());
    EXPECT_EQ(events, 1);
    EXPECT_EQ(actions, 1);
    control.design(true);
    mirror.sync();
    EXPECT_TRUE(widget.isChecked());
    EXPECT_EQ(actions, 1); // bringing up to date is no user's action
    control.caption = "Surveillant";
    control.visible = false;
    mirror.sync();
    EXPECT_EQ(widget.text(), "Surveillant");
    EXPECT_TRUE(widget.isHidden());
}

TEST_F(TheMirror, tiesTheButtonsOfAGroup)
{
    form::OptionGroup group({"Enseignement", "Examen"});
    QRadioButton first;
    QRadioButton second;
    group.click(1) = [this] { ++events; };
    mirror.bind(&first, form::OptionButton(group, 0));
    mirror.bind(&second, form::OptionButton(group, 1));
    mirror.sync();
    EXPECT_EQ(second.text(), "Examen");
    EXPECT_TRUE(first.isChecked());
    EXPECT_FALSE(second.isChecked());
    second.click();
    EXPECT_EQ(group.selected(), 1);
    EXPECT_EQ(events, 1);
    EXPECT_FALSE(first.isChecked());
    EXPECT_TRUE(second.isChecked());
    second.click(); // a radio button stays pressed
    EXPECT_EQ(events, 1);
    EXPECT_TRUE(second.isChecked());
}

TEST_F(TheMirror, tiesAButton)
{
    QPushButton widget;
    form::Button control("Page Suivante");
    control.click = [this] { ++events; };
    mirror.bind(&widget, control);
    control.enabled = false;
    mirror.sync();
    EXPECT_EQ(widget.text(), "Page Suivante");
    EXPECT_FALSE(widget.isEnabled());
    control.enabled = true;
    mirror.sync();
    widget.click();
    EXPECT_EQ(events, 1);
}

TEST_F(TheMirror, tiesAList)
{
    QComboBox widget;
    form::List control;
    control.design({"Lundi", "Mardi"}, 1);
    control.click = [this] { ++events; };
    mirror.bind(&widget, control);
    mirror.sync();
    ASSERT_EQ(widget.count(), 2);
    EXPECT_EQ(widget.itemText(0), "Lundi");
    EXPECT_EQ(widget.currentIndex(), 1);
    widget.setCurrentIndex(0); // by the program: no user's choice
    EXPECT_EQ(events, 0);
    Q_EMIT widget.activated(0);
    EXPECT_EQ(control.listIndex(), 0);
    Q_EMIT widget.activated(0); // choosing the same again counts, too
    EXPECT_EQ(events, 2);
    control.design({"Lundi", "Mercredi"}, 1);
    control.visible = false;
    mirror.sync();
    EXPECT_EQ(widget.itemText(1), "Mercredi");
    EXPECT_EQ(widget.currentText(), "Mercredi");
    EXPECT_TRUE(widget.isHidden());
    EXPECT_EQ(events, 2);
    control.design({}, -1);
    mirror.sync();
    EXPECT_EQ(widget.count(), 0);
    EXPECT_EQ(widget.currentIndex(), -1);
}

TEST_F(TheMirror, tiesADatePicker)
{
    QDateEdit widget;
    form::DatePicker control;
    control.setValue(QDate(2026, 10, 12));
    control.change = [this] { ++events; };
    mirror.bind(&widget, control);
    mirror.sync();
    EXPECT_EQ(widget.date(), QDate(2026, 10, 12));
    EXPECT_TRUE(widget.isHidden());
    EXPECT_EQ(events, 0);
    widget.setDate(QDate(2026, 10, 14));
    EXPECT_EQ(control.value(), QDate(2026, 10, 14));
    EXPECT_EQ(events, 1);
    control.visible = true;
    mirror.sync();
    EXPECT_FALSE(widget.isHidden());
}

TEST_F(TheMirror, tiesANumber)
{
    QSpinBox widget;
    widget.setRange(1, 29);
    form::TextBox control;
    control.setText("12 lignes");
    control.change = [this] { ++events; };
    mirror.bind(&widget, control);
    mirror.sync();
    EXPECT_EQ(widget.value(), 12);
    EXPECT_EQ(control.text(), "12 lignes"); // only a user's number replaces it
    EXPECT_EQ(events, 0);
    widget.setValue(13);
    EXPECT_EQ(control.text(), "13");
    EXPECT_EQ(events, 1);
}

TEST_F(TheMirror, copiesCaptionsAndWhatIsVisible)
{
    QLabel widget;
    QWidget frame;
    form::Label control;
    bool visible = true;
    control.caption = "Du";
    mirror.bind(&widget, control);
    mirror.bindVisible(&frame, visible);
    mirror.sync();
    EXPECT_EQ(widget.text(), "Du");
    EXPECT_FALSE(frame.isHidden());
    control.caption = "au";
    visible = false;
    mirror.sync();
    EXPECT_EQ(widget.text(), "au");
    EXPECT_TRUE(frame.isHidden());
}
