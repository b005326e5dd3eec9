#pragma once

#include "answers/QuickQuestion.h"
#include "app/asking/AnswerWindow.h"

class QCheckBox;
class QComboBox;
class QSpinBox;
class QTreeWidget;
class QTreeWidgetItem;

namespace app
{

class AskingLine;
class DateField;
class RoomChoice;

/// "Salle libre": which rooms are free then, those with just enough places first; and on demand why
/// others are not. A line of words fills the fields in, and the answer changes while it is typed.
class FreeRoomsWindow : public AnswerWindow
{
public:
    FreeRoomsWindow(AnswerDesk& desk, Ties ties, QWidget* parent);

    /// Where on the plan the question comes from.
    struct Prefill {
        int day = timetable::kMonday; ///< 0 to 5
        QDate date;                   ///< where the plan shows a date
        timetable::Week week = timetable::Week::Every;
        std::optional<timetable::TimeSpan> span;
    };
    /// Asks about that; the line of words is empty.
    void presentFor(const Prefill& prefill);

protected:
    void showAnswer(const shell::Inquiry& inquiry) override;
    void clearAnswer() override;

private:
    void buildFields();
    void buildList();
    [[nodiscard]] QLayout* fieldRows();
    /// Takes over what the line of words says.
    void readLine();
    /// What the fields say, to be put back where the line says no more of it.
    struct Fields {
        int day = timetable::kMonday;
        bool isDated = false;
        QDate date;
        QString from;
        QString to;
        int places = 0;
        int week = 0;
        int zone = 0; ///< 0 for all
    };
    [[nodiscard]] Fields fields() const;
    void fillIn(const Fields& fields);
    void offerTimes(const timetable::Timetable& timetable);
    /// What of the line nobody understands.
    [[nodiscard]] QString unreadWords() const;
    /// What the fields ask; nothing, and a sentence in `why`, where they ask nothing.
    [[nodiscard]] std::optional<answers::FreeRoomsQuestion> question(const shell::Inquiry& inquiry,
                                                                     QString& why) const;
    [[nodiscard]] std::vector<timetable::When> days(const shell::Inquiry& inquiry) const;
    void list(const shell::Inquiry& inquiry, const answers::FreeRooms& answer);
    void go(const QTreeWidgetItem* item);
    void goToChosen();
    void changed();

    AskingLine* m_line = nullptr;
    QComboBox* m_day = nullptr;
    QCheckBox* m_isDated = nullptr;
    DateField* m_date = nullptr;
    QComboBox* m_from = nullptr;
    QComboBox* m_to = nullptr;
    QSpinBox* m_places = nullptr;
    QComboBox* m_week = nullptr;
    QSpinBox* m_weeksRunning = nullptr;
    RoomChoice* m_rooms = nullptr;
    QCheckBox* m_showsTaken = nullptr;
    QTreeWidget* m_list = nullptr;
    std::optional<files::AnswerDocument> m_document; ///< what is shown
    Fields m_ownFields;                              ///< what they say without the line of words
    bool m_isZoneUnknown = false;                    ///< the line names one that no room has
    bool m_isFilling = false; ///< the program, not the user, changes the fields
};

} // namespace app
