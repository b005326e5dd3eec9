#pragma once

#include "demo/Draw.h"
#include "demo/Model.h"

namespace demo
{

/// So many teachers with names of their own ("M. Benali", "Haddad S."), spread over the
/// departments and the languages.
[[nodiscard]] std::vector<Teacher> makeTeachers(int count, std::uint32_t seed);

/// The name of one more student. Namesakes happen.
[[nodiscard]] QString studentName(Draw& draw);

} // namespace demo
