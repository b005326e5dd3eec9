#pragma once

#include "form/PlanForm.h"
#include "plan/CellText.h"
#include "plan/RoomCell.h"
#include "plan/RowSource.h"

#include <QString>
#include <QStringList>

namespace plan
{

/// How the boxes of the current page are laid out; chosen from the display options and the number
/// of rooms per page.
struct CellLayout {
    /// Text between the parts of a box text: a line end on pages of few rooms, else nothing.
    QString CellSeparator;
    /// How many of class, teacher and subject a box shows, 0 to 3.
    int displayStyle = 0;
    /// How a box text is set: see kCentredLines and kWordBreak.
    int CellTextFormat = kCentredLines;

    static constexpr int kCentredLines = 37; ///< centred both ways, lines only as written
    static constexpr int kWordBreak = 16;    ///< from the top left, lines broken between words
};

/// Answers what occupies a room in a slot. No error stops it and none is reported: a step that
/// fails is left out, so the plan stays up whatever one odd row holds.
class OccupancyLookup
{
public:
    OccupancyLookup(const form::PlanForm& form, RowSource& source, const CellLayout& layout,
                    const SeanceTypeShortNames& typeNames);

    /// Tells the source what a page is going to ask.
    PageFacts prepare(const QStringList& rooms, const QStringList& seanceKeys,
                      const QString& tranche);

    /// The text of the room's box, empty when the room is free; the other facts are then in
    /// `cell` until the next lookup. `MakeUp` asks for the make-up classes of the picked date;
    /// exams have none.
    QString RoomOccupancy(const QString& Room, const QString& SeanceKey, const QString& Tranche,
                          bool MakeUp);

    /// The last lookup's facts.
    [[nodiscard]] const RoomCell& cell() const { return m_cell; }

private:
    [[nodiscard]] db::Recordset findRows(const QString& room, const QString& seanceKey,
                                         const QString& tranche, bool makeUp);
    void keepFacts(const db::Recordset& rows, const QString& room);
    void keepOneClass(const db::Row& row);
    void keepClasses(const db::Recordset& rows);
    void addSizes(const db::Row& row);
    void filterBySubject();

    const form::PlanForm& m_form;
    RowSource& m_source;
    const CellLayout& m_layout;
    const SeanceTypeShortNames& m_typeNames;
    RoomCell m_cell;
};

} // namespace plan
