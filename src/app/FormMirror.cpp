#include "app/FormMirror.h"

#include "app/Mnemonics.h"
#include "runtime/Numbers.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <algorithm>

namespace app
{
namespace
{

void showWidget(QWidget* widget, bool visible)
{
    if (widget->isHidden() == visible) {
        widget->setVisible(visible);
    }
}

void setCaption(QAbstractButton* widget, const QString& caption)
{
    const QString text = withMnemonic(caption, widget->objectName());
    if (widget->text() != text) {
        widget->setText(text);
    }
}

/// The open list shows its items whole, also those for which the closed one is too narrow.
void showWholeItems(QComboBox* widget)
{
    constexpr int scrollBarAndMargins = 30;
    constexpr int widest = 600;
    const int items = widget->view()->sizeHintForColumn(0) + scrollBarAndMargins;
    widget->view()->setMinimumWidth(std::min(items, widest));
}

} // namespace

void FormMirror::bind(QAbstractButton* widget, form::CheckBox& control)
{
    connect(widget, &QAbstractButton::toggled, this, [this, &control](bool checked) {
        m_forward([&control, checked] { control.setChecked(checked); });
    });
    follow([widget, &control] {
        const QSignalBlocker quiet(widget);
        setCaption(widget, control.caption.trimmed());
        widget->setChecked(control.isChecked());
        showWidget(widget, control.visible);
    });
}

void FormMirror::bind(QAbstractButton* widget, form::OptionButton<form::OptionGroup> control)
{
    widget->setAutoExclusive(false); // the controls know their groups
    connect(widget, &QAbstractButton::clicked, this,
            [this, control] { m_forward([control] { control.select(); }); });
    follow([widget, control] {
        const QSignalBlocker quiet(widget);
        setCaption(widget, control.caption());
        widget->setChecked(control.isSelected());
    });
}

void FormMirror::bind(QAbstractButton* widget, form::Button& control)
{
    connect(widget, &QAbstractButton::clicked, this,
            [this, &control] { m_forward([&control] { control.press(); }); });
    follow([widget, &control] {
        setCaption(widget, control.caption);
        widget->setEnabled(control.enabled);
    });
}

void FormMirror::bind(QComboBox* widget, form::List& control)
{
    connect(widget, &QComboBox::activated, this, [this, &control](int index) {
        m_forward([&control, index] { control.setListIndex(index); });
    });
    follow([widget, &control] {
        const QSignalBlocker quiet(widget);
        bool same = widget->count() == control.items().size();
        for (int item = 0; same && item < widget->count(); ++item) {
            same = widget->itemText(item) == control.items().at(item);
        }
        if (!same) {
            widget->clear();
            widget->addItems(control.items());
            showWholeItems(widget);
        }
        widget->setCurrentIndex(control.listIndex());
        showWidget(widget, control.visible);
    });
}

void FormMirror::bind(QDateEdit* widget, form::DatePicker& control)
{
    connect(widget, &QDateEdit::dateChanged, this, [this, &control](QDate date) {
        m_forward([&control, date] { control.setValue(date); });
    });
    follow([widget, &control] {
        const QSignalBlocker quiet(widget);
        if (widget->date() != control.value()) {
            widget->setDate(control.value());
        }
        showWidget(widget, control.visible);
    });
}

void FormMirror::bind(QSpinBox* widget, form::TextBox& control)
{
    connect(widget, &QSpinBox::valueChanged, this, [this, &control](int value) {
        m_forward([&control, value] { control.setText(QString::number(value)); });
    });
    follow([widget, &control] {
        const QSignalBlocker quiet(widget);
        const int value = static_cast<int>(runtime::leadingNumber(control.text()));
        if (widget->value() != value) {
            widget->setValue(value);
        }
    });
}

void FormMirror::bind(QLabel* widget, const form::Label& control)
{
    follow([widget, &control] {
        if (widget->text() != control.caption) {
            widget->setText(control.caption);
        }
    });
}

void FormMirror::bindVisible(QWidget* widget, const bool& visible)
{
    follow([widget, &visible] { showWidget(widget, visible); });
}

void FormMirror::sync()
{
    for (const auto& syncOne : m_syncs) {
        syncOne();
    }
}

} // namespace app
