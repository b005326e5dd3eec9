#pragma once

#include "app/asking/AnswerWindow.h"
#include "files/AnswerTable.h"

class QComboBox;
class QTableWidget;
class QTabWidget;

namespace app
{

class RoomChoice;

/// "Occupation": how much of the rooms and of their seats is used, as a table of days and slots
/// whose shades and figures say the same, and room by room and zone by zone with bars. How each
/// figure is reckoned stands beneath. Tables and words are those of the files.
class RoomUseWindow : public AnswerWindow
{
public:
    RoomUseWindow(AnswerDesk& desk, Ties ties, QWidget* parent);

protected:
    void showAnswer(const shell::Inquiry& inquiry) override;
    void clearAnswer() override;

private:
    [[nodiscard]] QLayout* fieldRow();
    [[nodiscard]] QLayout* buttonRow();
    void changed();
    void showGrid(const files::TableSection& section);
    void addList(const files::TableSection& section);

    QComboBox* m_week;
    RoomChoice* m_rooms;
    QTableWidget* m_slots;
    QTabWidget* m_lists;
    QLabel* m_notes;
    std::optional<files::AnswerDocument> m_document; ///< what is shown
    bool m_isFilling = false; ///< the program, not the user, changes the fields
};

} // namespace app
