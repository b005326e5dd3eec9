#pragma once

#include "shell/AnswerRequest.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <stdexcept>

namespace shell
{

/// A mistake on the command line: one line, in French, that names the option and what it accepts.
class UsageError : public std::runtime_error
{
public:
    /// `message` may quote the database: line breaks in it become blanks.
    explicit UsageError(const QString& message)
        : std::runtime_error(message.simplified().toStdString())
    {
    }
};

/// How the screen in the hall moves.
struct DisplayRequest {
    int secondsAPage = 20;
    int secondsARefresh = 60; ///< from one reading of the database to the next
};

/// What the command line asks for. An option that was not given is nothing and plays no event.
struct CommandLine {
    enum class Mode { Teaching, Exam };
    enum class Week { All, A, B };

    /// The display options that are ticked, exactly.
    struct Shown {
        bool cls = false;
        bool teacher = false;
        bool subject = false;
        bool type = false;
        bool invigilator = false;
    };

    bool help = false;
    bool version = false;
    QString exportFile;
    std::optional<AnswerRequest> answer;
    bool allPages = false;        ///< the export holds every page of the room set
    bool allowIncomplete = false; ///< the export is written although the database has failed
    std::optional<int> refresh;   ///< seconds after which the web page loads itself again
    std::optional<DisplayRequest> display; ///< full screen, in the window's place
    QString settingsFile;
    std::optional<std::uint32_t> seed;
    bool plain = false; ///< one statement per question
    std::optional<QString> tranche;
    std::optional<Mode> mode;
    std::optional<int> examWeek; ///< 1 to 3
    std::optional<Week> week;
    std::optional<int> zone; ///< 0 to 9
    std::optional<QString> department;
    bool neutral = false;
    std::optional<int> roomsPerPage;
    bool everyRoom = false; ///< pages that leave no room out
    std::optional<Shown> show;
    std::optional<QString> subject;
    bool makeup = false;
    bool counting = false;
    std::optional<int> day; ///< 0 for Monday to 5 for Saturday
    std::optional<QDate> date;
    int page = 1;

    /// `arguments` starts with the program's name. Error: UsageError.
    [[nodiscard]] static CommandLine parse(const QStringList& arguments);
    /// Whether these arguments, right or wrong, ask for a file and not for the window.
    [[nodiscard]] static bool asksForFile(const QStringList& arguments);
    [[nodiscard]] bool writesFile() const { return !exportFile.isEmpty() || answer.has_value(); }
    /// The text of --help.
    [[nodiscard]] static QString helpText();
};

} // namespace shell
