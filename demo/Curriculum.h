#pragma once

#include "demo/Model.h"
#include "demo/Words.h"

#include <array>

namespace demo
{

/// What is taught, and to whom.
class Curriculum
{
public:
    /// The first `subjectCount` subjects of the faculty, department by department in turn.
    explicit Curriculum(int subjectCount);

    [[nodiscard]] const std::vector<Subject>& subjects() const { return m_subjects; }
    /// What a cohort learns in semester 1 or 2, by subject index: mostly its department's own
    /// subjects, then mathematics, physics or computing, and a language at the end. Never empty.
    [[nodiscard]] std::vector<int> modules(int department, int level, int semester) const;
    /// The subjects that bring a cohort into such a laboratory, by index; may be empty. First and
    /// second years also learn the basics of other departments there.
    [[nodiscard]] std::vector<int> practicals(int department, int level, Lab lab) const;

private:
    std::vector<Subject> m_subjects;
    // By department, by index. A department without subjects has one of another's.
    std::array<std::vector<int>, departmentCount + 1> m_all;
};

} // namespace demo
