#include "fuzz/PlanInput.h"

#include "fuzz/Require.h"
#include "fuzz/Texts.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

namespace fuzz
{
namespace
{

constexpr int kMostMinutes = 3000;
constexpr int kTwips = 100;

void addSlot(Input& input, plan::PlanState& state)
{
    const int number = input.number(1, context::DaySlots::kSlots);
    context::Slot slot{input.text(), 0, input.number(0, kMostMinutes)};
    runtime::skipOnError([&] { slot.startSeconds = runtime::secondsOfDay(slot.start); });
    state.slots.set(number, slot);
}

plan::PlanRow rowFrom(Input& input, std::size_t index)
{
    plan::PlanRow row;
    row.index = static_cast<int>(index);
    row.room = input.text();
    row.places = input.text();
    row.color = {static_cast<std::uint32_t>(input.number(0, INT32_MAX))};
    return row;
}

plan::PlanBox boxFrom(Input& input)
{
    plan::PlanBox box;
    box.slot = input.number(1, context::DaySlots::kSlots);
    box.cell.CellStart = input.text();
    box.minutes = input.number(INT16_MIN, INT16_MAX);
    box.width = box.minutes;
    box.x = box.slot * kTwips;
    box.cell.CellDuration = QString::number(box.minutes);
    box.cell.CellText = input.text();
    box.cell.CellClassList = input.text();
    box.cell.CellTeacher = input.text();
    box.cell.CellSubject = input.text();
    const QByteArray letters = input.bytes();
    box.makeUp = letters.contains('m');
    box.classAbsent = letters.contains('a');
    box.studentAbsent = letters.contains('s');
    if (letters.contains('g')) {
        box.cell.CellRowCount = 2;
        box.group = plan::GroupCounter{QStringLiteral("2"), box.cell.CellSubject,
                                       box.cell.CellClassList, letters.contains('o'), false};
    }
    return box;
}

plan::UnknownCell unknownFrom(Input& input)
{
    plan::UnknownCell cell;
    cell.slot = input.number(1, context::DaySlots::kSlots);
    cell.start = input.text();
    cell.minutes = input.number(0, kMostMinutes);
    return cell;
}

void choose(Input& input, plan::PlanState& state)
{
    form::PlanForm& form = state.form;
    form.XSalle.caption = input.text();
    form.Label4[4].caption = input.text();
    state.establishment.EstablishmentName = form.Label4[4].caption;
    state.establishment.UniversityName = input.text();
    const QString period = input.text();
    form.CbTranche.design({period}, 0);
    const QByteArray letters = input.bytes();
    form.Tot[0].visible = letters.contains('c');
    form.Tot[0].caption = period;
    form.Check3.design(letters.contains('g'));
    if (letters.contains('x')) {
        form.OpExam().select();
    }
    form.DTPicker1.visible = letters.contains('d');
}

void addRecord(const QByteArray& kind, Input& input, plan::PlanPage& page)
{
    std::vector<plan::PlanRow>& rows = page.content.rows;
    if (kind == "slot") {
        addSlot(input, page.state);
    } else if (kind == "room" || rows.empty()) {
        rows.push_back(rowFrom(input, rows.size() + 1));
    } else if (kind == "fault") {
        const QString name = input.text();
        page.content.faults.push_back({name, input.text(), db::Failure::NoAnswer});
    } else if (kind == "unknown") {
        rows.back().unknown.push_back(unknownFrom(input));
    } else {
        rows.back().boxes.push_back(boxFrom(input));
    }
}

} // namespace

files::PlanDocument planFrom(Input& input)
{
    static const plan::PlanPage blank; // made once: it holds all controls of the window
    files::PlanDocument document{{blank}, {}};
    plan::PlanPage& page = document.pages.front();
    choose(input, page.state);
    if (page.state.form.DTPicker1.visible) {
        document.date = QDate(2026, 11, 24);
    }
    constexpr int mostRecords = 60;
    for (int record = 0; record < mostRecords && !input.isAtEnd(); ++record) {
        addRecord(input.bytes(), input, page);
    }
    return document;
}

QString asShown(const QString& text, QChar control)
{
    QString shown = throughUtf8(text);
    for (QChar& character : shown) {
        if (character.category() == QChar::Other_Control || character.isNonCharacter()) {
            character = control;
        }
    }
    return shown;
}

} // namespace fuzz
