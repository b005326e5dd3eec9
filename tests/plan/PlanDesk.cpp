#include "plan/PlanDesk.h"

#include "runtime/RunTimeError.h"

#include <algorithm>

namespace test
{
namespace
{

const QStringList slotStarts{"8h00", "9h30", "11h00", "12h30", "14h00", "15h30", "17h00"};

/// Start of a slot; behind the day's six slots the evening begins.
const QString& startOf(int slot)
{
    return slotStarts[std::min<qsizetype>(slot, slotStarts.size()) - 1];
}

QString roomName(int room)
{
    return QString("R%1").arg(room, 2, 10, QChar('0'));
}

} // namespace

bool FakeAbsences::Existe_AbsClasse(const plan::Marqueur&, const QString& className)
{
    asked.append("class " + className);
    if (fails) {
        throw runtime::RunTimeError(runtime::ErrorNumber::TableMissing, "no table");
    }
    return classes.count(className) != 0;
}

bool FakeAbsences::Existe_AbsEtud(const plan::Marqueur&, const QString& className,
                                  const QString& name)
{
    asked.append("student " + className + "/" + name);
    if (fails) {
        throw runtime::RunTimeError(runtime::ErrorNumber::TableMissing, "no table");
    }
    return students.count(name) != 0;
}

PlanDesk::PlanDesk(int roomCount, const QString& lines, int places)
    : engine(surroundings(), {&rows, &absences, nullptr, m_state})
{
    writeDatabase(roomCount, places);
    form.Total_L_P.setText(lines);
    for (form::CheckBox* box : {&form.XOpCl, &form.XOpEns, &form.XpMat}) {
        tick(*box);
    }
    engine.loadEstablishment({"", m_testDatabase.connectString(), "1"});
    placeRows();
    engine.loadSlots();
    engine.placeRoomRows();
    engine.fillRoomPage();
    engine.showCurrentWeek();
    colors.fillRandomly();
    form.visible = true;
}

engine::Surroundings PlanDesk::surroundings()
{
    engine::Surroundings around;
    around.today = [] { return QDate(2026, 10, 14); };
    around.seed = 7;
    around.processEvents = [this] { yield(); };
    around.showMessage = [this](const QString& title, const QString& text) {
        messages.emplace_back(title, text);
    };
    return around;
}

void PlanDesk::placeRows()
{
    form.Label1.front().place = {1620, 0, 600, 300};
    for (std::size_t row = 0; row < form.Salle.size(); ++row) {
        form.Salle[row].place = {0, 345, 1500, 300};
        form.Cap[row].place = {0, 345, 540, 300};
    }
    form.scaleWidth = 22000;
    form.scaleHeight = 12000;
    layout.displayStyle = 3;
    layout.CellSeparator.clear();
    layout.CellTextFormat = plan::CellLayout::kCentredLines;
}

void PlanDesk::writeDatabase(int roomCount, int places)
{
    Timetable timetable(m_testDatabase, {"etablissement", "tranche", "seances", "salle"});
    timetable.row("tranche", {{"ident", 1},
                              {"Tranche", "S1"},
                              {"DateDebut", QDate(2026, 9, 7)},
                              {"DateFin", QDate(2027, 1, 29)}});
    for (int slot = 1; slot <= 6; ++slot) {
        timetable.row("seances", {{"Seance", QString("Lundi%1").arg(slot)},
                                  {"Horaire1", startOf(slot)},
                                  {"Horaire2", startOf(slot + 1)}});
    }
    for (int room = 0; room < roomCount; ++room) {
        timetable.row("salle", {{"Zone", 1}, {"Nom", roomName(room)}, {"places", places}});
    }
    timetable.load();
}

Meeting& PlanDesk::meeting(int room, int slot)
{
    Meeting& added = rows.emplois(roomName(room), QString("Lundi%1").arg(slot));
    return added.set("Debut", db::Value(startOf(slot)));
}

Meeting& PlanDesk::makeUp(int room, int slot)
{
    Meeting& added = rows.ratrap(roomName(room), QString("Lundi%1").arg(slot));
    return added.set("Debut", db::Value(startOf(slot)));
}

void PlanDesk::duringRow(int row, std::function<void()> event)
{
    m_event = std::move(event);
    m_eventYield = yields + row;
}

void PlanDesk::yield()
{
    ++yields;
    if (m_event && yields == m_eventYield) {
        std::exchange(m_event, nullptr)();
    }
}

QStringList PlanDesk::drawnRooms() const
{
    QStringList names;
    for (const plan::PlanRow& row : drawn()) {
        names.append(row.room);
    }
    return names;
}

std::vector<int> PlanDesk::markers() const
{
    std::vector<int> numbers;
    for (const plan::PlanRow& row : drawn()) {
        for (const plan::PlanBox& box : row.boxes) {
            numbers.push_back(box.marker);
        }
    }
    return numbers;
}

QStringList PlanDesk::totalsLine() const
{
    QStringList captions;
    for (const form::Label& total : form.Tot) {
        captions.append(total.visible ? total.caption : QString());
    }
    while (!captions.isEmpty() && captions.last().isEmpty()) {
        captions.removeLast();
    }
    return captions;
}

} // namespace test
