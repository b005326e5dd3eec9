#pragma once

#include "timetable/Id.h"

#include <optional>

namespace timetable
{

/// How large a class is.
struct ClassSize {
    ClassId className;
    std::optional<int> students; ///< registered in it; nothing where the students cannot be read
    std::optional<int> capacity; ///< 0 where the class or its capacity is not told; nothing where
                                 ///< the classes cannot be read

    friend bool operator==(const ClassSize&, const ClassSize&) = default;
};

} // namespace timetable
