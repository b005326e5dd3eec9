#pragma once

#include "app/asking/AnswerWindow.h"

class QComboBox;
class QTableWidget;
class QTreeWidget;

namespace app
{

class RoomChoice;

/// "Occupation": how much of the rooms and of their seats is used, as a table of days and slots
/// whose shades and figures say the same, and room by room with bars. How each figure is reckoned
/// stands beneath.
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
    void showSlots(const answers::RoomUse& use);
    void showRooms(const shell::Inquiry& inquiry, const answers::RoomUse& use);

    QComboBox* m_week;
    RoomChoice* m_rooms;
    QTableWidget* m_slots;
    QTreeWidget* m_list;
    std::optional<files::AnswerDocument> m_document; ///< what is shown
    bool m_isFilling = false; ///< the program, not the user, changes the fields
};

} // namespace app
