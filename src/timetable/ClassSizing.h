#pragma once

#include "timetable/ClassSize.h"
#include "timetable/NameInquiry.h"

#include <QString>
#include <QStringView>
#include <optional>
#include <vector>

namespace timetable
{

/// Finds out how large the classes of the meetings are.
class ClassSizing
{
public:
    /// So many students are registered in a class of that name; adds up where names are equal.
    void addStudents(QStringView className, int students);
    /// A row of the classes; of equal names the first counts, as on the plan.
    void addCapacity(QStringView className, int capacity);
    /// The table could not be read: its sizes stay unknown.
    void leaveStudentsUnknown() { m_students.isKnown = false; }
    void leaveCapacitiesUnknown() { m_capacities.isKnown = false; }

    /// `classes` are the names in the meetings, by their ids.
    void ask(NameInquiry& inquiry, const TextPool& classes);
    /// The sizes of the same classes.
    [[nodiscard]] std::vector<ClassSize> take(const NameInquiry& inquiry,
                                              const TextPool& classes) const;

private:
    struct NamedNumber {
        QString name;
        int number;
    };
    struct Column {
        std::vector<NamedNumber> rows;
        bool isKnown = true;
        std::optional<std::size_t> question;
    };

    static void ask(NameInquiry& inquiry, SqlName table, SqlName name, const TextPool& classes,
                    Column& column);

    Column m_students;
    Column m_capacities;
};

} // namespace timetable
