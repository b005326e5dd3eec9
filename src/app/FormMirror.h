#pragma once

#include "form/Controls.h"

#include <QObject>
#include <functional>
#include <vector>

class QAbstractButton;
class QComboBox;
class QDateEdit;
class QLabel;
class QSpinBox;
class QWidget;

namespace app
{

/// Ties widgets to the controls that they show: a user's action goes to the control, and after
/// every action all widgets are brought up to date. Widgets hold no state of their own.
class FormMirror : public QObject
{
public:
    /// `forward` runs a user's action; the mirror is updated afterwards by whoever owns it.
    using Forward = std::function<void(const std::function<void()>& action)>;

    explicit FormMirror(Forward forward) : m_forward(std::move(forward)) {}

    void bind(QAbstractButton* widget, form::CheckBox& control);
    void bind(QAbstractButton* widget, form::OptionButton<form::OptionGroup> control);
    void bind(QAbstractButton* widget, form::Button& control);
    void bind(QComboBox* widget, form::List& control);
    void bind(QDateEdit* widget, form::DatePicker& control);
    void bind(QSpinBox* widget, form::TextBox& control);
    void bind(QLabel* widget, const form::Label& control);
    /// Shows and hides the widget with the control.
    void bindVisible(QWidget* widget, const bool& visible);
    /// Anything else that follows the controls.
    void follow(std::function<void()> sync) { m_syncs.push_back(std::move(sync)); }

    /// Copies every control into its widget; raises no event.
    void sync();

private:
    Forward m_forward;
    std::vector<std::function<void()>> m_syncs;
};

} // namespace app
