#pragma once

#include "app/asking/AnswerWindow.h"

class QComboBox;
class QTreeWidget;
class QTreeWidgetItem;

namespace app
{

/// "Conflits": what cannot be in the period's timetable, gravest first, one sentence each. Choosing
/// one goes there.
class ClashesWindow : public AnswerWindow
{
public:
    ClashesWindow(AnswerDesk& desk, Ties ties, QWidget* parent);

protected:
    void showAnswer(const shell::Inquiry& inquiry) override;
    void clearAnswer() override;

private:
    void list(const shell::Inquiry& inquiry);
    void go(const QTreeWidgetItem* item);

    QComboBox* m_kind;
    QTreeWidget* m_list;
    QLabel* m_sentence;                              ///< of the chosen one, whole
    std::optional<files::AnswerDocument> m_document; ///< what is shown
};

} // namespace app
