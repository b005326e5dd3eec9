#pragma once

#include "db/DatabaseError.h"

#include <algorithm>
#include <chrono>
#include <initializer_list>
#include <thread>
#include <utility>

namespace db
{

/// Runs `step` again, four times at most, while it fails in one of these ways: those after which
/// nothing of it was done. Error: the last one's.
template <typename Step>
decltype(auto) againWhile(std::initializer_list<Failure> failures, Step&& step)
{
    constexpr int repetitions = 4;
    // Long enough for the one that was let through to finish, short enough to wait for.
    constexpr std::chrono::milliseconds pause{40};
    for (int done = 0;; ++done) {
        try {
            return step();
        } catch (const DatabaseError& error) {
            const bool again =
                std::find(failures.begin(), failures.end(), error.failure()) != failures.end();
            if (!again || done == repetitions) {
                throw;
            }
        }
        std::this_thread::sleep_for(pause * (done + 1));
    }
}

} // namespace db
