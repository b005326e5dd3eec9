#include "timetable/ClassSizing.h"

#include "timetable/SchoolColumns.h"

#include <unordered_map>

namespace timetable
{

void ClassSizing::addStudents(QStringView className, int students)
{
    m_students.rows.push_back({className.toString(), students});
}

void ClassSizing::addCapacity(QStringView className, int capacity)
{
    m_capacities.rows.push_back({className.toString(), capacity});
}

void ClassSizing::ask(NameInquiry& inquiry, const TextPool& classes)
{
    ask(inquiry, table::kEtudiant, column::kClasseOfStudent, classes, m_students);
    ask(inquiry, table::kClasseTable, column::kNom, classes, m_capacities);
}

void ClassSizing::ask(NameInquiry& inquiry, SqlName table, SqlName name, const TextPool& classes,
                      Column& column)
{
    if (classes.isEmpty() || column.rows.empty()) {
        return;
    }
    NameQuestion question{table, name, classes};
    for (const NamedNumber& row : column.rows) {
        question.texts.add(row.name);
    }
    column.question = inquiry.add(std::move(question));
}

std::vector<ClassSize> ClassSizing::take(const NameInquiry& inquiry, const TextPool& classes) const
{
    std::unordered_map<int, int> students;
    std::unordered_map<int, int> capacities;
    for (const NamedNumber& row : m_students.rows) {
        if (m_students.question) {
            students[inquiry.groupOf(*m_students.question, row.name)] += row.number;
        }
    }
    for (const NamedNumber& row : m_capacities.rows) {
        if (m_capacities.question) {
            capacities.emplace(inquiry.groupOf(*m_capacities.question, row.name), row.number);
        }
    }
    const auto sizeIn = [&](const Column& column, const std::unordered_map<int, int>& sizes,
                            std::size_t classIndex) -> std::optional<int> {
        if (!column.isKnown) {
            return std::nullopt;
        }
        if (!column.question) {
            return 0;
        }
        const auto found = sizes.find(inquiry.groups(*column.question).at(classIndex));
        return found == sizes.end() ? 0 : found->second;
    };
    std::vector<ClassSize> sizes;
    for (int index = 0; index < classes.count(); ++index) {
        const auto position = static_cast<std::size_t>(index);
        sizes.push_back({ClassId(index), sizeIn(m_students, students, position),
                         sizeIn(m_capacities, capacities, position)});
    }
    return sizes;
}

} // namespace timetable
