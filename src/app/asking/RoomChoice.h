#pragma once

#include "answers/RoomFilter.h"
#include "timetable/Timetable.h"

#include <QHash>
#include <QWidget>
#include <functional>
#include <vector>

class QComboBox;

namespace app
{

/// The fields "Zone" and "Département" of a window that asks about rooms.
class RoomChoice : public QWidget
{
public:
    /// `changed` is run when the user has chosen.
    explicit RoomChoice(std::function<void()> changed);

    /// Offers the zones and departments that rooms have; what was chosen stays where it can.
    void offer(const timetable::Timetable& timetable);
    /// 0 for all. False where no room has that zone: then all are chosen.
    bool chooseZone(int zone);
    [[nodiscard]] answers::RoomFilter filter() const;

private:
    QComboBox* m_zone;
    QComboBox* m_department;
    QHash<QString, std::vector<QString>> m_spellings; ///< by the department as it is offered
};

} // namespace app
