#pragma once

#include "form/Colour.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <functional>
#include <utility>
#include <vector>

/// The window's controls as small values. A setter raises the control's event, so that a test or
/// the command line plays the same events as a user; the real window only mirrors them.
namespace form
{

/// What a control does when it is used. Without a handler it does nothing.
///
/// It is wiring and not a value: a copied control starts without a handler, and one that is
/// assigned keeps its own. So whatever is done to a copy of the window's controls, the window does
/// not notice.
class Event
{
public:
    using Handler = std::function<void()>;

    Event() = default;
    ~Event() = default;
    Event(const Event& /*other*/) noexcept {}
    Event& operator=(const Event& /*other*/) noexcept { return *this; } // NOLINT: keeps its own
    Event& operator=(Handler handler)
    {
        m_handler = std::move(handler);
        return *this;
    }

    void raise() const
    {
        if (m_handler) {
            m_handler();
        }
    }

    /// All events are the same value.
    friend bool operator==(const Event& /*left*/, const Event& /*right*/) { return true; }

private:
    Handler m_handler;
};

/// Where a control lies, in twips (1/1440 inch) from the window's inner top left corner.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const Place&, const Place&) = default;
};

/// A font of the window's design.
struct Font {
    QString name = QStringLiteral("Arial");
    int points = 9; ///< size in points (1/72 inch)
    bool bold = false;

    friend bool operator==(const Font&, const Font&) = default;
};

struct Label {
    QString caption;
    bool visible = true;
    Place place;
    Colour backColor;
    QString toolTip;
    Font font;

    friend bool operator==(const Label&, const Label&) = default;
};

/// A control that is only shown or hidden: a picture or a frame.
struct Frame {
    QString caption;
    bool visible = true;

    friend bool operator==(const Frame&, const Frame&) = default;
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
            click.raise();
        }
    }

    /// The value as the window's design gives it; raises nothing.
    void design(bool checked) { m_checked = checked; }

    QString caption;
    bool visible = true;
    Event click;

    friend bool operator==(const CheckBox&, const CheckBox&) = default;

private:
    bool m_checked;
};

/// Option buttons of one group: exactly one of them is selected, the first one at first.
class OptionGroup
{
public:
    explicit OptionGroup(QStringList captions)
        : m_captions(std::move(captions)), m_clicks(static_cast<std::size_t>(m_captions.size()))
    {
    }

    /// Position of the selected button, 0 upward.
    [[nodiscard]] int selected() const { return m_selected; }
    [[nodiscard]] const QString& caption(int button) const { return m_captions.at(button); }
    /// Selects the button and raises its click, unless it is selected already.
    void select(int button)
    {
        if (m_selected != button) {
            m_selected = button;
            click(button).raise();
        }
    }
    [[nodiscard]] Event& click(int button) { return m_clicks.at(static_cast<std::size_t>(button)); }

    friend bool operator==(const OptionGroup&, const OptionGroup&) = default;

private:
    QStringList m_captions;
    std::vector<Event> m_clicks;
    int m_selected = 0;
};

/// One button of a group, under the name that it has in the window. `Group` is OptionGroup, const
/// or not; it outlives the button.
template <typename Group>
class OptionButton
{
public:
    OptionButton(Group& group, int button) : m_group(group), m_button(button) {}

    [[nodiscard]] const QString& caption() const { return m_group.caption(m_button); }
    [[nodiscard]] bool isSelected() const { return m_group.selected() == m_button; }
    /// Unselects the group's other buttons and raises `click`, unless it is selected already.
    void select() const { m_group.select(m_button); }
    [[nodiscard]] Event& click() const { return m_group.click(m_button); }

private:
    Group& m_group;
    int m_button;
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
        click.raise();
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
    /// Selects the item with exactly this text and raises nothing; without one nothing changes.
    void showText(const QString& text)
    {
        const auto index = static_cast<int>(m_items.indexOf(text));
        m_listIndex = index < 0 ? m_listIndex : index;
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

    friend bool operator==(const List&, const List&) = default;

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
            change.raise();
        }
    }

    Event change;

    friend bool operator==(const TextBox&, const TextBox&) = default;

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
            change.raise();
        }
    }

    bool visible = false;
    Event change;

    friend bool operator==(const DatePicker&, const DatePicker&) = default;

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
            click.raise();
        }
    }

    QString caption;
    bool enabled = true;
    Event click;

    friend bool operator==(const Button&, const Button&) = default;
};

} // namespace form
