#pragma once

#include "demo/Faculty.h"

#include <vector>

namespace demo
{

/// Sees to it that whoever gives an exam is in one room: an exam in several rooms gets a teacher of
/// the subject's department for each of them, who neither gives nor watches another one then. In
/// each week one is forgotten, so that there is something to find: the first exam in several rooms
/// keeps its teacher in two of them. The exams are in the order of `makeExams`; nothing else of
/// them changes.
void shareOutTeachers(const Faculty& faculty, std::vector<Exam>& exams);

} // namespace demo
