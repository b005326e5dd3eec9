#include "shell/CommandLine.h"

#include "files/FileFormat.h"
#include "form/PlanForm.h"
#include "shell/OptionReader.h"
#include "timetable/ReadTimes.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <limits>
#include <vector>

namespace shell
{
namespace
{

/// The endings of files that can hold every page: ".pdf, .csv ou .html".
QString endingsOfPages()
{
    QStringList endings;
    for (const files::FileFormat& format : files::fileFormats()) {
        if (format.holdsPages) {
            endings << u'.' + format.ending;
        }
    }
    const QString last = endings.takeLast();
    return endings.join(QStringLiteral(", ")) + QStringLiteral(" ou ") + last;
}

/// "FICHIER.json|.csv".
QString answerFile(files::AnswerKind kind)
{
    return QStringLiteral("FICHIER.") + files::answerEndings(kind).join(QStringLiteral("|."));
}

// Of what repeats itself: no quicker than somebody can read, once a day at least.
constexpr int kFewestSeconds = 5;
constexpr int kMostSeconds = 86400;

QString secondsAccepted()
{
    return QStringLiteral("%1..%2").arg(kFewestSeconds).arg(kMostSeconds);
}

const std::vector<OptionText>& optionTexts()
{
    static const std::vector<OptionText> texts = {
        {"export", QStringLiteral("FICHIER.") + files::fileEndings().join(QStringLiteral("|.")),
         QStringLiteral("écrit le plan dans un fichier, sans fenêtre")},
        {"all-pages",
         {},
         QStringLiteral("écrit toutes les pages (avec --export en %1)").arg(endingsOfPages())},
        {"allow-incomplete",
         {},
         QStringLiteral("écrit le fichier même si la base n’a pas tout dit (avec --export)")},
        {"refresh", secondsAccepted(),
         QStringLiteral("la page se recharge toutes les N secondes (avec --export en .html)")},
        {"display", {}, QStringLiteral("montre le plan du jour en plein écran, pour un hall")},
        {"display-seconds", secondsAccepted(),
         QStringLiteral("secondes par page, 20 sinon (avec --display)")},
        {"display-refresh", secondsAccepted(),
         QStringLiteral("relit la base toutes les N secondes, 60 sinon (avec --display)")},
        {"free", answerFile(files::AnswerKind::FreeRooms),
         QStringLiteral("écrit les salles libres (avec --from, --to et --day ou --date)")},
        {"from", QStringLiteral("9h30|09:30|14h"), QStringLiteral("début (avec --free)")},
        {"to", QStringLiteral("11h00|11:00|15h"), QStringLiteral("fin (avec --free)")},
        {"places", QStringLiteral("0..99999"), QStringLiteral("places au moins (avec --free)")},
        {"weeks-running", QStringLiteral("1..60"),
         QStringLiteral("libre tant de semaines de suite (avec --free et --date)")},
        {"week-of", answerFile(files::AnswerKind::Week),
         QStringLiteral("écrit la semaine d’une salle, d’un enseignant, d’une classe, d’une "
                        "matière ou de toutes les salles")},
        {"room", QStringLiteral("NOM"), QStringLiteral("cette salle (avec --week-of)")},
        {"teacher", QStringLiteral("NOM"), QStringLiteral("cet enseignant (avec --week-of)")},
        {"class", QStringLiteral("NOM"), QStringLiteral("cette classe (avec --week-of)")},
        {"matter", QStringLiteral("NOM"), QStringLiteral("cette matière (avec --week-of)")},
        {"find", answerFile(files::AnswerKind::Hits),
         QStringLiteral("écrit qui et quoi porte un texte dans son nom, et où (avec --text)")},
        {"clashes", answerFile(files::AnswerKind::Clashes),
         QStringLiteral("écrit les conflits de la période : salles, enseignants, classes")},
        {"use", answerFile(files::AnswerKind::RoomUse),
         QStringLiteral("écrit l’occupation des salles, par salle et par séance")},
        {"text", QStringLiteral("TEXTE"), QStringLiteral("texte cherché (avec --find)")},
        {"settings", QStringLiteral("FICHIER.ini"),
         QStringLiteral("remplace les paramètres de l’utilisateur pour cette fois")},
        {"tranche", QStringLiteral("NOM"), QStringLiteral("période affichée")},
        {"mode", QStringLiteral("teaching|exam"), QStringLiteral("enseignement ou examens")},
        {"exam-week", QStringLiteral("1|2|3"),
         QStringLiteral("semaine d’examen (avec --mode exam)")},
        {"week", QStringLiteral("all|A|B"),
         QStringLiteral("toute semaine, semaine A ou semaine B")},
        {"zone", QStringLiteral("0..9"), QStringLiteral("zone des salles ; 0 pour toutes")},
        {"department", QStringLiteral("ID"), QStringLiteral("ajoute les salles de ce département")},
        {"neutral", {}, QStringLiteral("ajoute les salles sans département (avec --department)")},
        {"rooms-per-page", QStringLiteral("1..%1").arg(form::PlanForm::kMostRooms),
         QStringLiteral("salles par page")},
        {"every-room",
         {},
         QStringLiteral("coche « Toutes les salles » : aucune n’est laissée de côté ; avec "
                        "--week-of : la semaine de toutes")},
        {"show", QStringLiteral("class,teacher,subject,type,invigilator"),
         QStringLiteral("ce que montrent les cases, exactement")},
        {"subject", QStringLiteral("NOM"), QStringLiteral("ne montre que cette matière")},
        {"makeup", {}, QStringLiteral("coche « Date » : montre aussi les rattrapages")},
        {"counting", {}, QStringLiteral("coche « Comptage » : compte les places occupées")},
        {"day", QStringLiteral("0..5"), QStringLiteral("jour de la semaine ; 0 pour lundi")},
        {"date", QStringLiteral("AAAA-MM-JJ"), QStringLiteral("date affichée")},
        {"page", QStringLiteral("1..9999"), QStringLiteral("page affichée")},
        {"seed", QStringLiteral("0..2147483647"),
         QStringLiteral("fixe les couleurs tirées au hasard")},
        {"plain", {}, QStringLiteral("pose chaque question à la base séparément (plus lent)")},
        {"help", {}, QStringLiteral("affiche cette aide")},
        {"version", {}, QStringLiteral("affiche la version")},
    };
    return texts;
}

std::optional<CommandLine::Shown> readShown(const OptionReader& reader)
{
    if (!reader.has("show")) {
        return std::nullopt;
    }
    CommandLine::Shown shown;
    for (const QString& word : reader.text("show").split(u',', Qt::SkipEmptyParts)) {
        if (word == u"class") {
            shown.cls = true;
        } else if (word == u"teacher") {
            shown.teacher = true;
        } else if (word == u"subject") {
            shown.subject = true;
        } else if (word == u"type") {
            shown.type = true;
        } else if (word == u"invigilator") {
            shown.invigilator = true;
        } else {
            reader.failWithValue("show");
        }
    }
    return shown;
}

void readFiles(const OptionReader& reader, CommandLine& line)
{
    line.exportFile = reader.text("export");
    if (reader.has("export")) {
        if (files::formatOf(line.exportFile) == nullptr) {
            reader.failWithValue("export");
        }
    }
    line.allPages = reader.has("all-pages");
    const files::FileFormat* format = files::formatOf(line.exportFile);
    if (line.allPages && (format == nullptr || !format->holdsPages)) {
        reader.fail("all-pages", QStringLiteral("demande --export en ") + endingsOfPages());
    }
    line.allowIncomplete = reader.has("allow-incomplete");
    if (line.allowIncomplete && !reader.has("export")) {
        reader.fail("allow-incomplete", QStringLiteral("demande --export"));
    }
    line.refresh = reader.number("refresh", kFewestSeconds, kMostSeconds);
    if (line.refresh && (format == nullptr || !format->refreshes)) {
        reader.fail("refresh", QStringLiteral("demande --export en .html"));
    }
    line.settingsFile = reader.text("settings");
    if (!reader.has("settings")) {
        return;
    }
    if (!QFileInfo(line.settingsFile).isFile()) {
        reader.fail("settings",
                    QStringLiteral("le fichier « %1 » n’existe pas").arg(line.settingsFile));
    }
    if (QFile file(line.settingsFile); !file.open(QIODevice::ReadOnly)) {
        reader.fail("settings", QStringLiteral("le fichier « %1 » ne peut pas être lu (%2)")
                                    .arg(line.settingsFile, file.errorString()));
    }
}

timetable::MinuteOfDay readTime(const OptionReader& reader, const char* name)
{
    if (!reader.has(name)) {
        reader.fail(name, QStringLiteral("manque (avec --free)"));
    }
    const auto time = timetable::readTime(reader.text(name));
    if (!time) {
        reader.failWithValue(name);
    }
    return *time;
}

void readFreeRooms(const OptionReader& reader, AnswerRequest& request)
{
    const timetable::MinuteOfDay from = readTime(reader, "from");
    const timetable::MinuteOfDay to = readTime(reader, "to");
    if (to <= from) {
        reader.fail("to", QStringLiteral("n’est pas après --from"));
    }
    request.span = timetable::between(from, to);
    request.places = reader.number("places", 0, 99999).value_or(0);
    request.weeksRunning = reader.number("weeks-running", 1, 60).value_or(1);
    if (reader.has("weeks-running") && !reader.has("date")) {
        reader.fail("weeks-running", QStringLiteral("demande --date"));
    }
    if (!reader.has("day") && !reader.has("date")) {
        reader.fail("free", QStringLiteral("demande --day ou --date"));
    }
}

void readWeekOf(const OptionReader& reader, AnswerRequest& request)
{
    using Who = AnswerRequest::Who;
    int names = 0;
    for (const auto& [option, who] :
         {std::pair("room", Who::Room), std::pair("teacher", Who::Teacher),
          std::pair("class", Who::Class), std::pair("matter", Who::Subject)}) {
        if (reader.has(option)) {
            ++names;
            request.who = who;
            request.name = reader.text(option);
        }
    }
    if (reader.has("every-room")) {
        ++names;
        request.who = Who::EveryRoom;
    }
    if (names != 1) {
        reader.fail("week-of",
                    QStringLiteral("demande --room, --teacher, --class, --matter ou --every-room, "
                                   "et un seul d’entre eux"));
    }
    if (request.who == Who::EveryRoom &&
        files::answerFormatOf(request.kind, request.file)->isDated) {
        reader.fail("every-room", QStringLiteral("ne va pas avec un calendrier (.ics) : il est "
                                                 "d’une salle, d’un enseignant ou d’une classe"));
    }
}

/// What says how the plan is shown says nothing of the timetable.
void refusePlanOptions(const OptionReader& reader, const char* question)
{
    for (const char* option : {"mode", "exam-week", "makeup", "neutral", "rooms-per-page", "page",
                               "show", "subject", "counting"}) {
        reader.exclude(option, {question});
    }
    reader.exclude("every-room", {"free", "find", "clashes", "use"});
}

void readAnswer(const OptionReader& reader, CommandLine& line)
{
    using Kind = files::AnswerKind;
    const char* first = reader.has("export") ? "export" : nullptr;
    for (const auto& [option, kind] :
         {std::pair("free", Kind::FreeRooms), std::pair("week-of", Kind::Week),
          std::pair("find", Kind::Hits), std::pair("clashes", Kind::Clashes),
          std::pair("use", Kind::RoomUse)}) {
        if (!reader.has(option)) {
            continue;
        }
        if (first != nullptr) {
            reader.fail(option, QStringLiteral("ne va pas avec --") + QString::fromLatin1(first));
        }
        first = option;
        line.answer.emplace();
        line.answer->kind = kind;
        line.answer->file = reader.text(option);
        if (files::answerFormatOf(kind, line.answer->file) == nullptr) {
            reader.failWithValue(option);
        }
    }
    reader.require("free", {"from", "to", "places", "weeks-running"});
    reader.require("week-of", {"room", "teacher", "class", "matter"});
    reader.require("find", {"text"});
    if (!line.answer) {
        return;
    }
    refusePlanOptions(reader, first);
    reader.exclude("day", {"use"});
    if (line.answer->kind == Kind::FreeRooms) {
        readFreeRooms(reader, *line.answer);
    } else if (line.answer->kind == Kind::Week) {
        readWeekOf(reader, *line.answer);
    } else if (line.answer->kind == Kind::Hits) {
        line.answer->text = reader.text("text");
        if (line.answer->text.trimmed().isEmpty()) {
            reader.fail("find", QStringLiteral("demande --text"));
        }
    }
}

void readDay(const OptionReader& reader, CommandLine& line)
{
    line.day = reader.number("day", 0, 5);
    if (reader.has("date")) {
        line.date = QDate::fromString(reader.text("date"), Qt::ISODate);
        // Reading is lenient: it takes other separators, and more text behind the date.
        if (!line.date->isValid() || line.date->toString(Qt::ISODate) != reader.text("date")) {
            reader.failWithValue("date");
        }
        if (line.day) {
            reader.fail("date", QStringLiteral("ne va pas avec --day"));
        }
    }
}

/// The screen in the hall shows the clock's day, and turns its pages by itself.
void readDisplay(const OptionReader& reader, CommandLine& line)
{
    reader.require("display", {"display-seconds", "display-refresh"});
    reader.exclude("display", {"export", "free", "week-of", "find", "clashes", "use", "day", "date",
                               "page", "counting"});
    if (reader.has("display")) {
        DisplayRequest display;
        display.secondsAPage = reader.number("display-seconds", kFewestSeconds, kMostSeconds)
                                   .value_or(display.secondsAPage);
        display.secondsARefresh = reader.number("display-refresh", kFewestSeconds, kMostSeconds)
                                      .value_or(display.secondsARefresh);
        line.display = display;
    }
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    const OptionReader reader(arguments, optionTexts());
    CommandLine line;
    line.help = reader.has("help");
    line.version = reader.has("version");
    line.plain = reader.has("plain");
    readFiles(reader, line);
    line.tranche = reader.optionalText("tranche");
    if (const auto mode =
            reader.word("mode", {QStringLiteral("teaching"), QStringLiteral("exam")})) {
        line.mode = static_cast<Mode>(*mode);
    }
    line.examWeek = reader.number("exam-week", 1, 3);
    if (line.examWeek && line.mode != Mode::Exam) {
        reader.fail("exam-week", QStringLiteral("demande --mode exam"));
    }
    if (const auto week = reader.word(
            "week", {QStringLiteral("all"), QStringLiteral("A"), QStringLiteral("B")})) {
        line.week = static_cast<Week>(*week);
    }
    line.zone = reader.number("zone", 0, 9);
    line.department = reader.optionalText("department");
    line.neutral = reader.has("neutral");
    if (line.neutral && !line.department) {
        reader.fail("neutral", QStringLiteral("demande --department"));
    }
    line.roomsPerPage = reader.number("rooms-per-page", 1, form::PlanForm::kMostRooms);
    line.everyRoom = reader.has("every-room");
    line.show = readShown(reader);
    line.subject = reader.optionalText("subject");
    line.makeup = reader.has("makeup");
    line.counting = reader.has("counting");
    readDay(reader, line);
    readAnswer(reader, line);
    readDisplay(reader, line);
    line.page = reader.number("page", 1, 9999).value_or(1);
    if (const auto seed = reader.number("seed", 0, std::numeric_limits<int>::max())) {
        line.seed = static_cast<std::uint32_t>(*seed);
    }
    return line;
}

bool CommandLine::asksForFile(const QStringList& arguments)
{
    return std::any_of(arguments.begin(), arguments.end(), [](const QString& argument) {
        const QRegularExpression option(
            QStringLiteral("^--?(export|free|week-of|find|clashes|use)(=|$)"));
        return option.match(argument).hasMatch();
    });
}

QString CommandLine::helpText()
{
    return QStringLiteral("Usage : tempora [options]\n"
                          "Planning des classes : quelle salle est prise, par qui.\n"
                          "Sans l’une des options qui écrivent un fichier, elles s’appliquent à la "
                          "fenêtre.\n\n") +
           optionTable(optionTexts());
}

} // namespace shell
