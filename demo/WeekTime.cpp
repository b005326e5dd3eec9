#include "demo/WeekTime.h"

#include <bit>

namespace demo
{
namespace
{

constexpr int halfMinutes = slotMinutes / 2;

std::uint64_t slotBit(int day, int slot)
{
    return std::uint64_t{1} << (day * slotCount + slot);
}

} // namespace

int slotStart(int slot)
{
    constexpr int opening = 8 * 60;
    constexpr int noonBreak = 30;
    return opening + slot * slotMinutes + (slot >= slotsBeforeNoon ? noonBreak : 0);
}

QString slotKey(int day, int slot)
{
    static const std::array<QString, dayCount> days = {"Lundi", "Mardi",    "Mercredi",
                                                       "Jeudi", "Vendredi", "Samedi"};
    return days.at(static_cast<std::size_t>(day)) + QString::number(slot + 1);
}

QString timeText(int minutesOfDay)
{
    return QString("%1h%2").arg(minutesOfDay / 60).arg(minutesOfDay % 60, 2, 10, QChar('0'));
}

bool fitsHalfDay(int slot, int minutes)
{
    const int needed = (minutes + slotMinutes - 1) / slotMinutes;
    const int end = slot < slotsBeforeNoon ? slotsBeforeNoon : slotCount;
    return slot + needed <= end;
}

WeekMask::WeekMask(int day, int slot, int half, int minutes, unsigned weeks)
{
    for (int halves = half; halves < half + minutes / halfMinutes; ++halves) {
        const std::uint64_t bit = slotBit(day, slot + halves / 2);
        std::uint64_t& inA = (halves % 2 == 0) ? m_taken[0] : m_taken[1];
        std::uint64_t& inB = (halves % 2 == 0) ? m_taken[2] : m_taken[3];
        inA |= (weeks & weekA) != 0 ? bit : 0;
        inB |= (weeks & weekB) != 0 ? bit : 0;
    }
}

bool WeekMask::meets(const WeekMask& other) const
{
    return ((m_taken[0] & other.m_taken[0]) | (m_taken[1] & other.m_taken[1]) |
            (m_taken[2] & other.m_taken[2]) | (m_taken[3] & other.m_taken[3])) != 0;
}

void WeekMask::add(const WeekMask& other)
{
    for (std::size_t part = 0; part < m_taken.size(); ++part) {
        m_taken.at(part) |= other.m_taken.at(part);
    }
}

std::uint64_t WeekMask::either() const
{
    return m_taken[0] | m_taken[1] | m_taken[2] | m_taken[3];
}

int WeekMask::slotsOnDay(int day) const
{
    constexpr std::uint64_t oneDay = 0xFF;
    return std::popcount((either() >> (day * slotCount)) & oneDay);
}

int WeekMask::slotsInWeek() const
{
    return std::popcount(either());
}

} // namespace demo
