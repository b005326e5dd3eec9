#include "demo/Curriculum.h"

#include <algorithm>

namespace demo
{
namespace
{

// Positions in departmentNames().
constexpr int economics = 0;
constexpr int computing = 4;
constexpr int mathematics = 5;
constexpr int physics = 6;
constexpr int life = 7;

Lab labOf(QChar letter)
{
    static const QString letters = "ipcbamgfw"; // in the order of the laboratories
    return static_cast<Lab>(letters.indexOf(letter) + 1);
}

/// The subject number `rank` of the department: its own words first, then continuations of them.
Subject subjectOf(int department, int rank)
{
    const QStringList& words = subjectWords(department);
    const int size = static_cast<int>(words.size());
    const QStringList parts = words.at(rank % size).split('*');
    Subject subject;
    subject.department = department;
    subject.lab = parts.size() > 1 ? labOf(parts.at(1).front()) : Lab::None;
    subject.name =
        rank < size ? parts.first() : parts.first() + " " + QString::number(rank / size + 1);
    return subject;
}

void addOnce(std::vector<int>& list, int value)
{
    if (std::find(list.begin(), list.end(), value) == list.end()) {
        list.push_back(value);
    }
}

/// The department that teaches a cohort its basics: mathematics, computing or physics.
int serviceDepartment(int department, int semester)
{
    if (department == mathematics) {
        return computing;
    }
    return semester == 1 || department == physics ? mathematics : physics;
}

/// Whether first and second years of the department are sent to such a laboratory for the basics
/// that `teaching` gives.
bool learnsBasics(int department, Lab lab, int teaching)
{
    if (lab == Lab::Computers) {
        return teaching == computing;
    }
    const bool technical =
        department != economics && department != computing && department != mathematics;
    if (lab == Lab::Chemistry) {
        return teaching == physics && technical;
    }
    return lab == Lab::Physics && teaching == physics && technical && department != life;
}

} // namespace

Curriculum::Curriculum(int subjectCount)
{
    for (int rank = 0; static_cast<int>(m_subjects.size()) < subjectCount; ++rank) {
        for (int department = 0; department <= languages; ++department) {
            // Languages have half as many subjects as the others.
            const bool skipped = department == languages && rank % 2 == 1;
            if (!skipped && static_cast<int>(m_subjects.size()) < subjectCount) {
                m_all.at(static_cast<std::size_t>(department))
                    .push_back(static_cast<int>(m_subjects.size()));
                m_subjects.push_back(
                    subjectOf(department, department == languages ? rank / 2 : rank));
            }
        }
    }
    for (std::size_t department = 0; department < m_all.size(); ++department) {
        if (m_all.at(department).empty()) {
            m_all.at(department).push_back(static_cast<int>(department % m_subjects.size()));
        }
    }
}

std::vector<int> Curriculum::modules(int department, int level, int semester) const
{
    constexpr std::size_t ownModules = 5;
    const std::vector<int>& own = m_all.at(static_cast<std::size_t>(department));
    const int first = level * 4 + (semester - 1) * 6;
    std::vector<int> chosen;
    for (std::size_t step = 0; step < ownModules; ++step) {
        addOnce(chosen, own.at((static_cast<std::size_t>(first) + step) % own.size()));
    }
    const std::size_t cohort =
        static_cast<std::size_t>(department) + static_cast<std::size_t>(level);
    const std::vector<int>& service =
        m_all.at(static_cast<std::size_t>(serviceDepartment(department, semester)));
    addOnce(chosen, service.at(cohort % service.size()));
    const std::vector<int>& language = m_all.at(static_cast<std::size_t>(languages));
    addOnce(chosen, language.at(cohort % language.size()));
    return chosen;
}

std::vector<int> Curriculum::practicals(int department, int level, Lab lab) const
{
    constexpr int basicLevels = 2;
    constexpr int basicSubjects = 2; // the first ones are for everybody
    int basics = 0;
    std::vector<int> chosen;
    for (int index = 0; index < static_cast<int>(m_subjects.size()); ++index) {
        const Subject& subject = m_subjects.at(static_cast<std::size_t>(index));
        if (lab == Lab::None || subject.lab != lab) {
            continue;
        }
        const bool basic = level < basicLevels &&
                           learnsBasics(department, lab, subject.department) &&
                           ++basics <= basicSubjects;
        if (subject.department == department || basic) {
            chosen.push_back(index);
        }
    }
    return chosen;
}

} // namespace demo
