#pragma once

#include <QTreeWidget>

namespace app
{

/// A list of answers: a row each, one chosen at a time. Who does not see it hears the chosen row
/// when the keyboard comes to the list and when new answers come to the keyboard.
class AnswerList : public QTreeWidget
{
public:
    AnswerList(const QString& accessibleName, const QStringList& columns);

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void tellOfCurrentRowSoon();
    void tellOfCurrentRow();
};

} // namespace app
