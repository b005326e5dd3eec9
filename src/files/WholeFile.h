#pragma once

#include <QByteArray>
#include <QString>
#include <stdexcept>

namespace files
{

/// A file that cannot be written: one line, in French, with the reason.
class ExportError : public std::runtime_error
{
public:
    explicit ExportError(const QString& message) : std::runtime_error(message.toStdString()) {}
};

/// Writes the bytes as a whole or not at all. A file that is there is replaced and hands on its
/// rights; a link is not followed, and nothing but a plain file gives way. Error: ExportError.
void writeWholeFile(const QString& path, const QByteArray& bytes);

} // namespace files
