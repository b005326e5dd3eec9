#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <optional>

namespace fuzz
{

/// Reads a whole JSON text by RFC 8259, strictly, and without the toolkit's reader: UTF-8 alone, no
/// name twice in an object. Nothing where it is no such text.
[[nodiscard]] std::optional<QJsonValue> readJson(const QByteArray& text);

} // namespace fuzz
