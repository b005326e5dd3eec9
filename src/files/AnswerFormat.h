#pragma once

#include "files/AnswerDocument.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

namespace files
{

/// A question whose answer becomes a file; in the order of the alternatives of `Answer`.
enum class AnswerKind { FreeRooms, Week, Hits, Clashes, RoomUse };

/// A form in which an answer becomes a file.
struct AnswerFormat {
    QString ending; ///< of the file's name, in lower case
    /// Error: AnswerRefusal for an answer that the form cannot hold.
    QByteArray (*write)(const AnswerDocument&) = nullptr;
    /// It tells of dates even where none is asked: make-ups and exams must have been read.
    bool isDated = false;
};

/// The forms that an answer to such a question has.
[[nodiscard]] const std::vector<AnswerFormat>& answerFormats(AnswerKind kind);
/// The one that the file's name asks for, whatever the case of its ending; null for any other.
[[nodiscard]] const AnswerFormat* answerFormatOf(AnswerKind kind, const QString& path);
/// The endings, for words such as ".json|.csv".
[[nodiscard]] QStringList answerEndings(AnswerKind kind);

} // namespace files
