#include "demo/People.h"

#include "demo/Words.h"

#include <QSet>

namespace demo
{
namespace
{

QString teacherName(Draw& draw)
{
    static const QStringList titles = {"M.", "Mme", "M.", "Mme", "Dr", "Pr"};
    const QString family = draw.pick(familyNames());
    if (draw.percent(60)) {
        return draw.pick(titles) + " " + family;
    }
    return family + " " + QChar('A' + draw.below(25)) + ".";
}

/// Every teaching unit has one teacher in eleven, languages fewer.
int departmentOf(int index)
{
    constexpr int round = 17;
    const int place = index % round;
    return place == round - 1 ? languages : place % departmentCount;
}

} // namespace

std::vector<Teacher> makeTeachers(int count, std::uint32_t seed)
{
    Draw draw(seed, Topic::Teachers);
    std::vector<Teacher> teachers;
    QSet<QString> taken;
    int number = 1;
    while (static_cast<int>(teachers.size()) < count) {
        QString name = teacherName(draw);
        // When most names are given away, the rest are told apart by a number.
        for (int attempt = 0; taken.contains(name) && attempt < 40; ++attempt) {
            name = teacherName(draw);
        }
        if (taken.contains(name)) {
            name += " " + QString::number(++number);
        }
        taken.insert(name);
        teachers.push_back({name, departmentOf(static_cast<int>(teachers.size()))});
    }
    return teachers;
}

QString studentName(Draw& draw)
{
    const QString family = draw.pick(familyNames());
    return family.toUpper() + " " + draw.pick(firstNames());
}

} // namespace demo
