#pragma once

#include <QByteArray>

namespace test
{

/// How many cells a judge compares on each database: as many as TEMPORA_JUDGE_CELLS says, else ten
/// thousand.
[[nodiscard]] inline int judgedCells()
{
    constexpr int usual = 10000;
    const int asked = qEnvironmentVariableIntValue("TEMPORA_JUDGE_CELLS");
    return asked > 0 ? asked : usual;
}

} // namespace test
