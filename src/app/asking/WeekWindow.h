#pragma once

#include "answers/WeekBox.h"
#include "app/asking/AnswerWindow.h"

class QCheckBox;
class QComboBox;
class QPushButton;
class QStackedWidget;
class QTreeWidget;

namespace app
{

class DateField;
class OverviewView;
class WeekView;

/// "Semaine de…": the week of a room, teacher, class or subject, drawn or as a list; or of all
/// rooms at once. Left and Right go through the names. Printed on one A4, exported.
class WeekWindow : public AnswerWindow
{
public:
    WeekWindow(AnswerDesk& desk, Ties ties, QWidget* parent);

    /// The week of somebody or something; nothing: of all rooms.
    void presentFor(const std::optional<answers::Subject>& subject);
    /// The same of a room, by its name; the first room where there is none of that name.
    void presentRoom(const QString& name);
    /// The same with the cursor on the day that the plan shows, in the plan's week.
    void presentRoomDay(const QString& name);

protected:
    void showAnswer(const shell::Inquiry& inquiry) override;
    void clearAnswer() override;

private:
    void presentKind(int kind, const QString& name);
    /// The week that the plan shows.
    void chooseShownWeek();
    /// Puts the cursor on the day that is asked for, or says that it is free.
    void goToWantedDay();
    void buildFields();
    [[nodiscard]] QWidget* buildPages();
    [[nodiscard]] QLayout* fieldRow();
    [[nodiscard]] QLayout* buttonRow();
    /// Fills the list of names of the chosen kind; what was chosen stays where it is among them.
    void offerNames(const shell::Inquiry& inquiry);
    [[nodiscard]] std::optional<answers::Subject> subject(const shell::Inquiry& inquiry) const;
    [[nodiscard]] bool isOfAllRooms() const;
    [[nodiscard]] answers::AskedWeek week(const shell::Inquiry& inquiry) const;
    void draw(const shell::Inquiry& inquiry, const files::WeekAnswer& answer);
    void list(const shell::Inquiry& inquiry, const files::WeekAnswer& answer);
    void flip(int step);
    void moveWeek(int weeks);
    void open(const answers::WeekBox& box);
    void print();
    void changed();

    QComboBox* m_kind = nullptr;
    QComboBox* m_name = nullptr;
    QComboBox* m_week = nullptr;
    QCheckBox* m_isDated = nullptr;
    DateField* m_date = nullptr;
    QCheckBox* m_isList = nullptr;
    QStackedWidget* m_pages = nullptr;
    WeekView* m_view = nullptr;
    OverviewView* m_overview = nullptr;
    QTreeWidget* m_list = nullptr;
    QLabel* m_legend = nullptr;     ///< what hatching and marks mean
    std::optional<int> m_wantedDay; ///< the day to be shown once the week is known
    QString m_wanted;               ///< the name to be shown once the names are known
    std::optional<files::AnswerDocument> m_document; ///< what is shown
    bool m_isFilling = false; ///< the program, not the user, changes the fields
};

} // namespace app
