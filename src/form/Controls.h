#pragma once

#include "form/Colour.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <functional>
#include <utility>

/// The window's controls as small values. A setter raises the control's event, so that a test or
/// the command line plays the same events as a user; the real window only mirrors them.
namespace form
{

/// What a control does when its event is raised. An empty event does nothing.
using Event = std::function<void()>;

inline void raise(const Event& event)
{
    if (event) {
        event();
    }
}

/// Where a control lies, in twips (1/1440 inch) from the window's inner top left corner.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// A font of the window's design.
struct Font {
    QString name = QStringLiteral("Arial");
    int points = 9; ///< size in points (1/72 inch)
    bool bold = false;
};

struct Label {
    QString caption;
    bool visible = true;
    Place place;
    Colour backColor;
    QString toolTip;
    Font font;
};

/// A control that is only shown or hidden: a picture or a frame.
struct Frame {
    QString caption;
    bool visible = true;
};

class CheckBox
{
public:
    explicit CheckBox(QString text = {}, bool checked = false)
        : caption(std::move(text)), m_checked(checked)
    {
    }

    [[nodiscard]] bool isChecked() const { return m_checked; }
    /// Raises `click` when the value changes.
    void setChecked(bool checked)
    {
        if (checked != m_checked) {
            m_checked = checked;
            raise(click);
        }
    }

    QString caption;
    bool visible = true;
    Event click;

private:
    bool m_checked;
};

/// Option buttons of one group: exactly one of them is selected.
class OptionGroup
{
    friend class OptionButton;
    int m_selected = 0;
};

class OptionButton
{
public:
    /// The button at `index` of its group; the one at index 0 is selected at first.
    OptionButton(OptionGroup& group, int index, QString text)
        : caption(std::move(text)), m_group(group), m_index(index)
    {
    }

    [[nodiscard]] bool isSelected() const { return m_group.m_selected == m_index; }
    /// Unselects the group's other buttons and raises `click`, unless it is selected already.
    void select()
    {
        if (!isSelected()) {
            m_group.m_selected = m_index;
            raise(click);
        }
    }

    QString caption;
    Event click;

private:
    OptionGroup& m_group;
    int m_index;
};

/// A drop-down list.
class List
{
public:
    [[nodiscard]] const QStringList& items() const { return m_items; }
    /// Position of the selected item, 0 upward; -1 when none is.
    [[nodiscard]] int listIndex() const { return m_listIndex; }
    /// The selected item, empty when none is.
    [[nodiscard]] QString text() const { return m_items.value(m_listIndex); }

    /// Selects an item (any other index selects none) and raises `click`, also when the item was
    /// selected before: a new week on the same weekday needs the redraw that the click brings.
    void setListIndex(int index)
    {
        m_listIndex = index >= 0 && index < m_items.size() ? index : -1;
        raise(click);
    }
    /// Selects the item with exactly this text and raises `click`. False, with nothing changed,
    /// when there is none.
    bool selectText(const QString& text)
    {
        const auto index = static_cast<int>(m_items.indexOf(text));
        if (index < 0) {
            return false;
        }
        setListIndex(index);
        return true;
    }
    void addItem(const QString& item) { m_items.append(item); }
    void clear()
    {
        m_items.clear();
        m_listIndex = -1;
    }
    /// Items and selection as the window's design gives them; raises nothing.
    void design(QStringList items, int index)
    {
        m_items = std::move(items);
        m_listIndex = index;
    }

    bool visible = true;
    Event click;

private:
    QStringList m_items;
    int m_listIndex = -1;
};

class TextBox
{
public:
    [[nodiscard]] const QString& text() const { return m_text; }
    /// Raises `change` when the text changes.
    void setText(const QString& text)
    {
        if (text != m_text) {
            m_text = text;
            raise(change);
        }
    }

    Event change;

private:
    QString m_text;
};

class DatePicker
{
public:
    [[nodiscard]] QDate value() const { return m_value; }
    /// Raises `change` when the date changes.
    void setValue(QDate value)
    {
        if (value != m_value) {
            m_value = value;
            raise(change);
        }
    }

    bool visible = false;
    Event change;

private:
    QDate m_value;
};

class Button
{
public:
    explicit Button(QString text = {}) : caption(std::move(text)) {}

    /// A user's press; a disabled button does nothing.
    void press() const
    {
        if (enabled) {
            raise(click);
        }
    }

    QString caption;
    bool enabled = true;
    Event click;
};

} // namespace form
