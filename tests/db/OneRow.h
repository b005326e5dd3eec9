#pragma once

#include "db/Row.h"

/// A room that has no subject for 90 minutes: a text, a null and a number.
inline const QStringList oneRowsNames = {QStringLiteral("Salle"), QStringLiteral("Matière"),
                                         QStringLiteral("Durée")};

[[nodiscard]] inline db::Row oneRow()
{
    return {std::make_shared<const db::Columns>(oneRowsNames),
            {db::Value(QStringLiteral("A1")), db::Value(), db::Value(std::int64_t{90})}};
}
