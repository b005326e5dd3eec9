#pragma once

#include <QString>

class QBoxLayout;
class QComboBox;
class QWidget;

namespace app
{

class DateField;

// Fields that several windows have which ask about the timetable.

/// Adds a field behind its caption, whose key (an ampersand) leads to it.
void addField(QBoxLayout* row, const QString& caption, QWidget* field);
/// "Toute semaine", "Semaine A", "Semaine B": the indices are those of timetable::Week.
[[nodiscard]] QComboBox* weekList(const QString& objectName);
/// Of today, with a calendar to pick from.
[[nodiscard]] DateField* dateField(const QString& objectName, const QString& accessibleName);

} // namespace app
