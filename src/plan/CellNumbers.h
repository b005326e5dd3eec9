#pragma once

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

#include <QString>

namespace plan
{

/// The number that a cell's text begins with, as `convert` rounds it. Error: Overflow, which then
/// says what was read and from which text; that is put into words only when it happens, as this
/// runs for every box.
template <typename Convert>
[[nodiscard]] auto cellNumber(const char* what, const QString& text, Convert convert)
{
    try {
        return convert(runtime::leadingNumber(text));
    } catch (runtime::RunTimeError& error) {
        error.addActivity(QStringLiteral("Lecture %1 « %2 »").arg(QString::fromUtf8(what), text));
        throw;
    }
}

} // namespace plan
