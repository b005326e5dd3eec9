#include "lookup/CellText.h"

#include "runtime/RunTimeError.h"
#include "timetable/MeetingColumns.h"

#include <array>

namespace lookup
{
namespace
{

namespace column = timetable::column;

using runtime::skipOnError;

/// A column of a person's name, told where the tested one holds something.
struct Further {
    timetable::SqlName tested;
    timetable::SqlName shown;
};

/// The columns of a course that is held in week B.
struct CourseOfWeekB {
    timetable::SqlName room;
    timetable::SqlName firstTeacher;
    std::array<Further, 2> furtherTeachers;
    timetable::SqlName subject;
};

/// Composes one box text, block by block: a course can hold up to four rooms that show something,
/// and the same room can be its A room and its B room.
class Composer
{
public:
    Composer(const db::Row& row, const QString& room, const DisplayOptions& options,
             std::optional<MissingStep>& missing)
        : m_row(row), m_room(room), m_options(options), m_missing(missing)
    {
    }

    void composeRoomA();
    void composeSecondRoomA();
    void composeRoomB();
    void composeSecondRoomB();
    [[nodiscard]] QString finish(const SeanceTypeShortNames& typeNames);
    [[nodiscard]] timetable::Week week() const;

private:
    [[nodiscard]] std::optional<db::Value> field(const QString& column);
    [[nodiscard]] bool isRoom(const QString& column);
    [[nodiscard]] QString textOf(const QString& column);
    void append(const QString& before, const QString& column, const QString& after = {});
    void appendIfFilled(const QString& tested, const QString& column);
    void appendSubject(const QString& column);
    void separate();
    void separateOccupants();
    void composeInvigilators();
    void composeWeekB(const CourseOfWeekB& course);

    const db::Row& m_row;
    const QString& m_room;
    const DisplayOptions& m_options;
    std::optional<MissingStep>& m_missing;
    bool m_addsSubject = false;
    // Which weeks the blocks so far are held in.
    bool m_isEveryWeek = false;
    bool m_isWeekA = false;
    bool m_isWeekB = false;
    QString m_text;
};

/// Nothing where the row does not tell it: the step that needs it is left out.
std::optional<db::Value> Composer::field(const QString& column)
{
    try {
        return m_row.field(column);
    } catch (const runtime::RunTimeError& error) {
        if (!m_missing || (m_addsSubject && !m_missing->isSubject)) {
            m_missing.emplace(MissingStep{column, error, m_addsSubject});
        }
        return std::nullopt;
    }
}

bool Composer::isRoom(const QString& column)
{
    const std::optional<db::Value> value = field(column);
    return value && !value->isNull() && value->toText() == m_room;
}

QString Composer::textOf(const QString& column)
{
    const std::optional<db::Value> value = field(column);
    return value ? value->toJoinedText() : QString();
}

void Composer::append(const QString& before, const QString& column, const QString& after)
{
    if (const std::optional<db::Value> value = field(column)) {
        m_text += before + value->toJoinedText() + after;
    }
}

/// A further person of a list, when the tested column holds one.
void Composer::appendIfFilled(const QString& tested, const QString& column)
{
    if (!textOf(tested).isEmpty()) {
        append(QStringLiteral("/"), column);
    }
}

void Composer::appendSubject(const QString& column)
{
    if (m_options.showSubject) {
        m_addsSubject = true;
        append(QStringLiteral(" ["), column, QStringLiteral("]"));
        m_addsSubject = false;
    }
}

void Composer::separate()
{
    if (!m_text.isEmpty()) {
        m_text += m_options.separator;
    }
}

/// The A occupant and the B occupant of one room stand side by side.
void Composer::separateOccupants()
{
    if (!m_text.isEmpty()) {
        m_text += QStringLiteral(" = ");
    }
}

void Composer::composeInvigilators()
{
    if (m_options.exam && m_options.showInvigilators) {
        append(QStringLiteral(" "), column::kResp1);
        appendIfFilled(column::kResp2, column::kResp2);
        appendIfFilled(column::kResp3, column::kResp3);
        separate();
    }
}

void Composer::composeRoomA()
{
    const QString nature = textOf(column::kNewNature);
    const bool meets = m_options.everyWeek || nature == timetable::nature::kEveryWeek ||
                       (m_options.showsWeekA && nature == timetable::nature::kAlternating);
    if (!meets || !isRoom(column::kSalle)) {
        return;
    }
    (nature == timetable::nature::kAlternating ? m_isWeekA : m_isEveryWeek) = true;
    if (m_options.showClass) {
        append({}, column::kClasse, m_options.separator);
    }
    if (m_options.showTeachers) {
        append(QStringLiteral(" "), column::kEnseignant1);
        appendIfFilled(column::kEnseignant2, column::kEnseignant2);
        appendIfFilled(column::kEnseignant3, column::kEnseignant3);
        if (!m_options.showInvigilators) {
            separate();
        }
    }
    composeInvigilators();
    appendSubject(column::kMatiere);
}

// The blocks below belong to courses only: an exam is held in `Salle` alone, so none of them has
// invigilators to show.

void Composer::composeSecondRoomA()
{
    if (!isRoom(column::kXSalle)) { // whatever the week: the part follows its course
        return;
    }
    m_isEveryWeek = true;
    if (m_options.showClass && m_text.isEmpty()) {
        append({}, column::kClasse, m_options.separator);
    }
    if (m_options.showTeachers) {
        append(QStringLiteral("  "), column::kXEnseignant1);
        appendIfFilled(column::kXEnseignant2, column::kXEnseignant2);
        appendIfFilled(column::kXEnseignant3, column::kXEnseignant3);
    }
    appendSubject(column::kXMatiere);
}

// No separator stands inside the B blocks: they may follow an A occupant on the same line.

void Composer::composeWeekB(const CourseOfWeekB& course)
{
    if (!isRoom(course.room) || !(m_options.everyWeek || m_options.showsWeekB)) {
        return;
    }
    m_isWeekB = true;
    separateOccupants();
    if (m_options.showClass) {
        append({}, column::kClasse);
    }
    if (m_options.showTeachers) {
        append(QStringLiteral("  "), course.firstTeacher);
        for (const Further& teacher : course.furtherTeachers) {
            appendIfFilled(teacher.tested, teacher.shown);
        }
    }
    appendSubject(course.subject);
}

void Composer::composeRoomB()
{
    // An alternating pair has as many teachers in week B as in week A, so the A columns tell
    // whether there is a second and a third.
    composeWeekB({column::kSalleB,
                  column::kEnseignant1b,
                  {{{column::kEnseignant2, column::kEnseignant2b},
                    {column::kEnseignant3, column::kEnseignant3b}}},
                  column::kMatiereb});
}

void Composer::composeSecondRoomB()
{
    composeWeekB({column::kXSalleB,
                  column::kXEnseignant1B,
                  {{{column::kXEnseignant2B, column::kXEnseignant2B},
                    {column::kXEnseignant3B, column::kXEnseignant3B}}},
                  column::kXMatiereB});
}

QString Composer::finish(const SeanceTypeShortNames& typeNames)
{
    if (m_text.isEmpty()) {
        return m_text;
    }
    if (m_options.showType) {
        skipOnError([&] {
            const int type = m_row.field(column::kTypeS1).toInt32();
            if (type >= 0 && type < static_cast<int>(typeNames.size())) {
                m_text +=
                    QStringLiteral(" (") + typeNames.at(static_cast<std::size_t>(type)) + u')';
            }
        });
    }
    return m_text + m_options.separator;
}

timetable::Week Composer::week() const
{
    if (m_isEveryWeek || m_options.exam || m_isWeekA == m_isWeekB) {
        return timetable::Week::Every;
    }
    return m_isWeekA ? timetable::Week::A : timetable::Week::B;
}

} // namespace

ComposedText composeCellText(const db::Row& row, const QString& room, const DisplayOptions& options,
                             const SeanceTypeShortNames& typeNames,
                             std::optional<MissingStep>& missing)
{
    Composer composer(row, room, options, missing);
    composer.composeRoomA();
    if (!options.exam) {
        composer.composeSecondRoomA();
        composer.composeRoomB();
        composer.composeSecondRoomB();
    }
    const QString text = composer.finish(typeNames);
    return {text, composer.week()};
}

} // namespace lookup
