// The command line: what is understood can be written again, what is not is told in one line.
#include "shell/CommandLine.h"

#include "form/PlanForm.h"
#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"
#include "fuzz/Require.h"

#include <array>

using fuzz::require;
using shell::CommandLine;

namespace
{

/// The options of a command line that was understood, in the order of --help.
class Writer
{
public:
    void add(const char* option, bool isOn)
    {
        if (isOn) {
            m_arguments << QStringLiteral("--") + QLatin1String(option);
        }
    }
    void add(const char* option, const std::optional<QString>& value)
    {
        add(option, value.has_value());
        if (value) {
            m_arguments << *value;
        }
    }
    void add(const char* option, const std::optional<int>& value)
    {
        add(option, value ? std::optional(QString::number(*value)) : std::nullopt);
    }
    template <typename Word, std::size_t count>
    void add(const char* option, const std::optional<Word>& value,
             const std::array<const char*, count>& words)
    {
        add(option,
            value ? std::optional(QString::fromLatin1(words.at(static_cast<std::size_t>(*value))))
                  : std::nullopt);
    }

    [[nodiscard]] const QStringList& arguments() const { return m_arguments; }

private:
    QStringList m_arguments{QStringLiteral("tempora")};
};

std::optional<QString> shownWords(const CommandLine& line)
{
    if (!line.show) {
        return std::nullopt;
    }
    QStringList words;
    const auto add = [&words](bool isShown, const char* word) {
        if (isShown) {
            words << QLatin1String(word);
        }
    };
    add(line.show->cls, "class");
    add(line.show->teacher, "teacher");
    add(line.show->subject, "subject");
    add(line.show->type, "type");
    add(line.show->invigilator, "invigilator");
    return words.join(u',');
}

std::optional<QString> unlessEmpty(const QString& text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

QString timeText(timetable::MinuteOfDay time)
{
    constexpr int minutesPerHour = 60;
    return QStringLiteral("%1h%2")
        .arg(time.value / minutesPerHour)
        .arg(time.value % minutesPerHour);
}

void addAnswer(const shell::AnswerRequest& request, Writer& writer)
{
    using Kind = files::AnswerKind;
    constexpr std::array kinds{"free", "week-of", "find", "clashes", "use"};
    constexpr std::array people{"room", "teacher", "class", "matter"};
    writer.add(kinds.at(static_cast<std::size_t>(request.kind)), std::optional(request.file));
    if (request.kind == Kind::FreeRooms) {
        writer.add("from", std::optional(timeText(request.span.start)));
        writer.add("to", std::optional(timeText(request.span.end())));
        writer.add("places", std::optional(request.places));
        writer.add("weeks-running",
                   request.weeksRunning > 1 ? std::optional(request.weeksRunning) : std::nullopt);
    } else if (request.kind == Kind::Week) {
        writer.add(people.at(static_cast<std::size_t>(request.who)), std::optional(request.name));
    } else if (request.kind == Kind::Hits) {
        writer.add("text", std::optional(request.text));
    }
}

QStringList argumentsOf(const CommandLine& line)
{
    Writer writer;
    if (line.answer) {
        addAnswer(*line.answer, writer);
    }
    writer.add("export", unlessEmpty(line.exportFile));
    writer.add("all-pages", line.allPages);
    writer.add("allow-incomplete", line.allowIncomplete);
    writer.add("refresh", line.refresh);
    writer.add("display", line.display.has_value());
    if (line.display) {
        writer.add("display-seconds", std::optional(line.display->secondsAPage));
        writer.add("display-refresh", std::optional(line.display->secondsARefresh));
    }
    writer.add("settings", unlessEmpty(line.settingsFile));
    writer.add("tranche", line.tranche);
    writer.add("mode", line.mode, std::array{"teaching", "exam"});
    writer.add("exam-week", line.examWeek);
    writer.add("week", line.week, std::array{"all", "A", "B"});
    writer.add("zone", line.zone);
    writer.add("department", line.department);
    writer.add("neutral", line.neutral);
    writer.add("rooms-per-page", line.roomsPerPage);
    writer.add("every-room", line.everyRoom);
    writer.add("show", shownWords(line));
    writer.add("subject", line.subject);
    writer.add("makeup", line.makeup);
    writer.add("counting", line.counting);
    writer.add("day", line.day);
    writer.add("date", line.date ? std::optional(line.date->toString(Qt::ISODate)) : std::nullopt);
    writer.add("page", line.display ? std::nullopt : std::optional(line.page));
    writer.add("seed", line.seed ? std::optional(static_cast<int>(*line.seed)) : std::nullopt);
    writer.add("plain", line.plain);
    writer.add("help", line.help);
    writer.add("version", line.version);
    return writer.arguments();
}

bool isWithin(const std::optional<int>& value, int least, int most)
{
    return !value || (*value >= least && *value <= most);
}

void checkUnderstood(const CommandLine& line, const QStringList& arguments)
{
    const QString shown = arguments.join(u' ');
    require(isWithin(line.examWeek, 1, 3) && isWithin(line.zone, 0, 9) &&
                isWithin(line.day, 0, 5) && isWithin(line.page, 1, 9999) &&
                isWithin(line.roomsPerPage, 1, form::PlanForm::kMostRooms),
            "numbers are within their ranges", shown);
    require(!line.date || line.date->isValid(), "a date is one", shown);
    require(!line.answer || line.answer->kind != files::AnswerKind::FreeRooms ||
                (line.answer->span.length.value > 0 && line.answer->weeksRunning > 0),
            "a free room is asked for some time", shown);
    require(!(line.answer && !line.exportFile.isEmpty()), "one file is written", shown);
    require(!(line.display && (line.writesFile() || line.date || line.day)),
            "the screen in the hall shows the clock's day and writes nothing", shown);
    require(!line.display || (isWithin(line.display->secondsAPage, 5, 86400) &&
                              isWithin(line.display->secondsARefresh, 5, 86400)),
            "the screen in the hall moves as somebody can read", shown);
    require(!line.refresh ||
                (isWithin(line.refresh, 5, 86400) &&
                 line.exportFile.endsWith(QLatin1String(".html"), Qt::CaseInsensitive)),
            "only a web page loads itself again", shown);
    require(!(line.date && line.day), "a date and a day do not go together", shown);
    const QStringList written = argumentsOf(line);
    const QStringList again = argumentsOf(CommandLine::parse(written));
    require(again == written, "what is understood can be written again", written.join(u' '),
            again.join(u' '));
}

void checkComplaint(const QString& complaint, const QStringList& arguments)
{
    constexpr qsizetype ownWords = 400;
    require(!complaint.isEmpty() && complaint == complaint.simplified(), "a complaint is one line",
            complaint);
    require(complaint.size() <= arguments.join(u' ').size() + ownWords,
            "a complaint is no longer than what it is about", complaint);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::MemoryFile file;
    fuzz::Input input(data, size);
    QStringList arguments{QStringLiteral("tempora")};
    while (!input.isAtEnd()) {
        // An @ stands for a file that is there. No argument of a program holds a null character.
        arguments << input.text().remove(u'\0').replace(QStringLiteral("@"), file.path());
    }
    try {
        checkUnderstood(CommandLine::parse(arguments), arguments);
    } catch (const shell::UsageError& error) {
        checkComplaint(QString::fromStdString(error.what()), arguments);
    }
    return 0;
}
