// What becomes of a timetable's row: the text of a box, its lines, words and counters, and the
// numbers in which the database tells to which cells a row belongs.
#include "lookup/CellText.h"

#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "lookup/CellMasks.h"
#include "plan/BoxLines.h"
#include "plan/ClassList.h"
#include "plan/GroupCounter.h"
#include "runtime/RunTimeError.h"
#include "timetable/MeetingColumns.h"

#include <algorithm>

namespace column = timetable::column;

using fuzz::require;

namespace
{

const QStringList& examColumns()
{
    static const QStringList names{column::kSalle,       column::kClasse,      column::kEnseignant1,
                                   column::kEnseignant2, column::kEnseignant3, column::kMatiere,
                                   column::kResp1,       column::kResp2,       column::kResp3,
                                   column::kNewNature,   column::kTypeS1};
    return names;
}

const QStringList& allColumns()
{
    static const QStringList names =
        examColumns() +
        QStringList{column::kXSalle,        column::kXEnseignant1,  column::kXEnseignant2,
                    column::kXEnseignant3,  column::kXMatiere,      column::kSalleB,
                    column::kEnseignant1b,  column::kEnseignant2b,  column::kEnseignant3b,
                    column::kMatiereb,      column::kXSalleB,       column::kXEnseignant1B,
                    column::kXEnseignant2B, column::kXEnseignant3B, column::kXMatiereB};
    return names;
}

lookup::DisplayOptions optionsOf(const QByteArray& letters)
{
    lookup::DisplayOptions options;
    options.exam = letters.contains('x');
    options.showClass = letters.contains('c');
    options.showTeachers = letters.contains('t');
    options.showInvigilators = letters.contains('i');
    options.showSubject = letters.contains('s');
    options.showType = letters.contains('y');
    options.showsWeekA = letters.contains('A');
    options.showsWeekB = letters.contains('B');
    options.everyWeek = letters.contains('e');
    options.separator = letters.contains('1') ? QString() : QStringLiteral("\r\n");
    return options;
}

/// A field: "~" is null, "#" begins an integer.
db::Value valueOf(const QString& text)
{
    if (text == u"~") {
        return {};
    }
    return text.startsWith(u'#') ? db::Value(std::int64_t{text.mid(1).toLongLong()})
                                 : db::Value(text);
}

db::Row rowOf(const QStringList& names, const std::vector<db::Value>& values)
{
    const auto count = std::min(names.size(), static_cast<qsizetype>(values.size()));
    return {std::make_shared<const db::Columns>(names.first(count)),
            std::vector<db::Value>(values.begin(), values.begin() + count)};
}

void checkLines(const QString& text)
{
    const QStringList lines = plan::writtenLines(text);
    for (const QString& line : lines) {
        require(!line.isEmpty() && line == line.simplified(), "a line is a line", line);
    }
    require(plan::writtenLines(lines.join(u'\n')) == lines, "lines are lines already", text);
    const QString sanitized = plan::SanitizeCellText(text);
    require(sanitized.size() == text.size() && !sanitized.contains(u'[') &&
                !sanitized.contains(u']') && !sanitized.contains(u'&'),
            "a box shows no brackets", text);
    const QStringList words = plan::classWords(text);
    require(words == plan::writtenLines(words.join(u'\n')), "a class is one line", text);
    require(text.contains(plan::firstClass(text)), "a class is one of the list", text);
}

/// Display options, the room, then the fields of a row in the order of the columns; columns for
/// which there is no field are missing.
void checkText(fuzz::Input& input)
{
    const lookup::DisplayOptions options = optionsOf(input.bytes());
    const QString room = input.text();
    std::vector<db::Value> values;
    qsizetype length = 0;
    while (!input.isAtEnd()) {
        const QString text = input.text();
        length += text.size();
        values.push_back(valueOf(text));
    }
    lookup::SeanceTypeShortNames types;
    types.fill(QStringLiteral("TP"));
    std::optional<lookup::MissingStep> missing;
    const QString text =
        lookup::composeCellText(rowOf(allColumns(), values), room, options, types, missing).text;
    constexpr qsizetype ownSigns = 150;
    constexpr qsizetype courses = 3; // each tells the class: one of the A rooms, two of week B
    require(text.size() <= courses * length + ownSigns, "a text is made of the row's fields", text);
    require(text.endsWith(options.separator) || text.isEmpty(), "a text ends", text);
    const bool isThere = std::any_of(values.begin(), values.end(), [&](const db::Value& value) {
        return value.toJoinedText() == room;
    });
    require(isThere || text.isEmpty(), "another room has no text", room, text);
    require(!options.exam ||
                lookup::composeCellText(rowOf(examColumns(), values), room, options, types, missing)
                        .text == text,
            "an exam is held in one room", text);
    checkLines(text);
}

/// Names of rooms and, behind an empty one, of slots; then the numbers of a row.
void checkMasks(fuzz::Input& input)
{
    const int roomCount = input.number(0, 40);
    const int keyCount = input.number(1, 40);
    QStringList rooms;
    QStringList keys;
    while (rooms.size() < roomCount) {
        rooms << QStringLiteral("R%1").arg(rooms.size());
    }
    while (keys.size() < keyCount) {
        keys << QStringLiteral("Lundi%1").arg(keys.size());
    }
    const lookup::CellMasks masks(lookup::RoomQuestion::Table::emplois, rooms, keys,
                                  db::SqlDialect(true));
    const auto columns = static_cast<int>(masks.selectList().count(QStringLiteral(" end as ")));
    QStringList names;
    std::vector<db::Value> values;
    while (names.size() < columns) {
        names << QString::number(names.size());
        values.push_back(valueOf(input.text()));
    }
    const auto shared = std::make_shared<const db::Columns>(names);
    const db::Row row(shared, values);
    const db::MatchMasks slots(column::kSeance, keys); // their numbers come first
    runtime::skipOnError([&] {
        for (const int slot : slots.matches(row, 0)) {
            require(slot >= 0 && slot < keys.size(), "a number tells of what was asked about");
        }
    });
    runtime::skipOnError([&] {
        const lookup::PageCells cells = masks.sorted({shared, {row}});
        int taken = 0;
        cells.forTaken([&taken](const db::Recordset& rows) { taken += rows.recordCount(); });
        require(taken <= roomCount * keyCount, "a row stands in a cell once");
    });
}

/// Places of a room, sizes, then a list of classes.
void checkCounter(fuzz::Input& input)
{
    lookup::RoomCell cell;
    cell.CellRowCount = static_cast<std::int16_t>(input.number(0, INT16_MAX));
    cell.CellStudents = static_cast<std::int16_t>(input.number(INT16_MIN, INT16_MAX));
    cell.CellCapacity = static_cast<std::int16_t>(input.number(INT16_MIN, INT16_MAX));
    const QString places = input.text();
    cell.CellClasses = input.text();
    const auto group = plan::groupCounterOf(cell, places, false);
    require(group.has_value() || cell.CellRowCount == 1, "several classes are counted");
    require(!group || group->overfull == group->sizeLabel.startsWith(u"D"),
            "a label says that a room is too full", places);
    checkLines(cell.CellClasses);
    checkLines(places);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    const QByteArray kind = input.bytes();
    if (kind == "masks") {
        checkMasks(input);
    } else if (kind == "counter") {
        checkCounter(input);
    } else {
        checkText(input);
    }
    return 0;
}
