#pragma once

#include "demo/Absences.h"
#include "demo/Inserts.h"

namespace demo
{

/// The faculty's values as rows of the database, one field per column of the table.
class Rows
{
public:
    explicit Rows(const Faculty& faculty) : m_faculty(faculty) {}

    /// `emplois`
    [[nodiscard]] std::vector<Field> meeting(const Meeting& meeting, const Period& period) const;
    /// `ratrap`
    [[nodiscard]] std::vector<Field> makeUp(const Meeting& meeting, const Period& period) const;
    /// `examen`
    [[nodiscard]] std::vector<Field> exam(const Exam& exam, const Period& period) const;
    /// `abscence`: the columns as the program fills them
    [[nodiscard]] std::vector<Field> classAbsence(const Absence& absence,
                                                  const Period& period) const;
    /// `etud_abs`: the same; the class stands in the column of the student's name
    [[nodiscard]] std::vector<Field> studentAbsence(const Absence& absence,
                                                    const Period& period) const;

private:
    [[nodiscard]] Field room(int index) const;
    [[nodiscard]] Field subject(int index) const;
    [[nodiscard]] Field teacher(const std::vector<int>& teachers, std::size_t rank) const;
    void addTeachers(std::vector<Field>& row, const std::vector<int>& teachers) const;

    const Faculty& m_faculty;
};

} // namespace demo
