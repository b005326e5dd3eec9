#include "app/asking/RoomChoice.h"

#include "app/asking/AskingFields.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <set>

namespace app
{
namespace
{

/// Fills the list below its first item, which stands for all.
void fill(QComboBox* list, const QStringList& items)
{
    QStringList present;
    for (int index = 1; index < list->count(); ++index) {
        present << list->itemText(index);
    }
    if (present == items) {
        return;
    }
    const QSignalBlocker quiet(list);
    const QString chosen = list->currentIndex() > 0 ? list->currentText() : QString();
    while (list->count() > 1) {
        list->removeItem(1);
    }
    list->addItems(items);
    const auto again = items.indexOf(chosen);
    list->setCurrentIndex(chosen.isEmpty() || again < 0 ? 0 : static_cast<int>(again) + 1);
}

} // namespace

RoomChoice::RoomChoice(std::function<void()> changed)
    : m_zone(new QComboBox), m_department(new QComboBox)
{
    m_zone->setObjectName(QStringLiteral("AskedZone"));
    m_zone->setAccessibleName(QStringLiteral("Zone"));
    m_zone->addItem(QStringLiteral("Toutes"));
    m_department->setObjectName(QStringLiteral("AskedDepartment"));
    m_department->setAccessibleName(QStringLiteral("Département"));
    m_department->addItem(QStringLiteral("Tous"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    addField(row, QStringLiteral("&Zone"), m_zone);
    addField(row, QStringLiteral("Dé&partement"), m_department);
    row->addStretch();
    connect(m_zone, &QComboBox::currentIndexChanged, this, changed);
    connect(m_department, &QComboBox::currentIndexChanged, this, changed);
}

void RoomChoice::offer(const timetable::Timetable& timetable)
{
    std::set<int> zones;
    std::set<QString> departments; // each once, however it is spelt
    const auto& names = timetable.departments();
    m_spellings.clear();
    for (const timetable::Room& room : timetable.rooms()) {
        if (room.zone) {
            zones.insert(*room.zone);
        }
        if (room.department && !room.department->isEmpty()) {
            const QString& first = names.text(names.group(names.find(*room.department)));
            departments.insert(first);
            m_spellings[first] = answers::departmentSpellings(timetable, first);
        }
    }
    QStringList numbers;
    for (const int zone : zones) {
        numbers << QString::number(zone);
    }
    fill(m_zone, numbers);
    fill(m_department, QStringList(departments.begin(), departments.end()));
}

bool RoomChoice::chooseZone(int zone)
{
    const int index = zone == 0 ? 0 : m_zone->findText(QString::number(zone));
    m_zone->setCurrentIndex(std::max(0, index));
    return index >= 0;
}

answers::RoomFilter RoomChoice::filter() const
{
    answers::RoomFilter filter;
    if (m_zone->currentIndex() > 0) {
        filter.zone = m_zone->currentText().toInt();
    }
    if (m_department->currentIndex() > 0) {
        filter.department = m_department->currentText();
        filter.spellings = m_spellings.value(*filter.department);
    }
    return filter;
}

} // namespace app
