#pragma once

#include "app/asking/AnswerWindow.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace app
{

class AskingLine;

/// "Chercher": where the teachers, classes, rooms and subjects are whose name holds what is typed;
/// those of the shown day first. Three letters are enough, fewer find too much.
class FindWindow : public AnswerWindow
{
public:
    FindWindow(AnswerDesk& desk, Ties ties, QWidget* parent);

    /// Comes to the front for a new search; what was looked for before is selected.
    void presentAnew();

protected:
    void showAnswer(const shell::Inquiry& inquiry) override;
    void clearAnswer() override;

private:
    /// A row of the list.
    struct Found {
        std::size_t hit = 0; ///< its place among all
        /// Several where classes have a course together; none where the hit has nothing that week.
        std::vector<timetable::HoldingId> holdings;
        bool isToday = false;
    };

    /// All rows, those of the shown day first.
    [[nodiscard]] std::vector<Found> found(const timetable::Occupancy& occupancy,
                                           const std::vector<answers::Hit>& hits) const;
    void list(const shell::Inquiry& inquiry, const std::vector<answers::Hit>& hits);
    static QTreeWidgetItem* addRow(QTreeWidgetItem* under, const timetable::Occupancy& occupancy,
                                   const answers::Hit& hit,
                                   const std::vector<timetable::HoldingId>& holdings);
    void choose(const QTreeWidgetItem* item);
    void openWeek();

    AskingLine* m_text;
    QTreeWidget* m_list;
    std::optional<files::AnswerDocument> m_document; ///< what is shown
};

} // namespace app
