#include "files/JsonExport.h"

#include "context/AxisLabels.h"
#include "files/HtmlText.h"
#include "runtime/Numbers.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace files
{
namespace
{

using Key = QLatin1String;

QJsonObject axisObject(const plan::PlanState& state)
{
    const context::TimeAxis axis = context::screenAxis(state.form);
    return {{Key("origin"), axis.originTime},
            {Key("left_twips"), axis.originLeft},
            {Key("slot_width"), axis.SlotWidth}};
}

QJsonArray slotArray(const plan::PlanState& state)
{
    QJsonArray slots;
    for (int number = 1; number <= form::PlanForm::kSlotLabels; ++number) {
        if (const auto& slot = state.slots.slot(number)) {
            const form::Place& place =
                state.form.Tot.at(static_cast<std::size_t>(number - 1)).place;
            slots.append(QJsonObject{{Key("slot"), number},
                                     {Key("start"), slot->start},
                                     {Key("x_twips"), place.left},
                                     {Key("width_twips"), place.width}});
        }
    }
    return slots;
}

QJsonObject boxObject(const plan::PlanBox& box)
{
    const lookup::RoomCell& cell = box.cell;
    QJsonObject object{{Key("slot"), box.slot},
                       {Key("seance"), cell.CellSeance},
                       {Key("text"), cell.CellText},
                       {Key("start"), cell.CellStart},
                       {Key("duration"), cell.CellDuration},
                       {Key("makeup"), box.makeUp},
                       {Key("x_twips"), box.x},
                       {Key("width_twips"), runtime::nearestInteger(box.width)},
                       {Key("rows"), cell.CellRowCount},
                       {Key("classes"), cell.CellClasses},
                       {Key("class_list"), cell.CellClassList},
                       {Key("students"), cell.CellStudents},
                       {Key("capacity"), cell.CellCapacity},
                       {Key("teacher"), cell.CellTeacher},
                       {Key("subject"), cell.CellSubject},
                       {Key("type_a"), cell.CellTypeA},
                       {Key("type_b"), cell.CellTypeB},
                       {Key("week_nature"), cell.CellWeekNature},
                       {Key("common"), cell.CellCommon},
                       {Key("class_absent"), box.classAbsent},
                       {Key("student_absent"), box.studentAbsent}};
    object.insert(Key("counter"), box.group ? QJsonValue(box.group->counter) : QJsonValue());
    object.insert(Key("size_label"), box.group ? QJsonValue(box.group->sizeLabel) : QJsonValue());
    object.insert(Key("details"), box.group ? box.group->details : QStringLiteral(""));
    return object;
}

QJsonArray unknownArray(const plan::PlanRow& row)
{
    QJsonArray unknown;
    for (const plan::UnknownCell& cell : row.unknown) {
        unknown.append(QJsonObject{{Key("slot"), cell.slot},
                                   {Key("start"), cell.start},
                                   {Key("duration"), QString::number(cell.minutes)},
                                   {Key("x_twips"), cell.x},
                                   {Key("width_twips"), runtime::nearestInteger(cell.width)}});
    }
    return unknown;
}

QJsonArray faultArray(const plan::PlanContent& content)
{
    QJsonArray faults;
    for (const lookup::ReadFault& fault : content.faults) {
        faults.append(QJsonObject{{Key("name"), fault.name}, {Key("text"), fault.text}});
    }
    return faults;
}

QJsonArray rowArray(const plan::PlanContent& content)
{
    QJsonArray rows;
    for (const plan::PlanRow& row : content.rows) {
        QJsonArray boxes;
        for (const plan::PlanBox& box : row.boxes) {
            boxes.append(boxObject(box));
        }
        QJsonObject object{{Key("index"), row.index},
                           {Key("room"), row.room},
                           {Key("places"), row.places},
                           {Key("color"), colorText(row.color)},
                           {Key("boxes"), boxes}};
        if (!row.unknown.empty()) {
            object.insert(Key("unknown"), unknownArray(row));
        }
        rows.append(object);
    }
    return rows;
}

QJsonArray totalArray(const plan::PlanState& state)
{
    QJsonArray totals;
    for (const context::Totals::Entry& total : state.totals.line) {
        totals.append(total.isShown ? QJsonValue(total.text) : QJsonValue());
    }
    return totals;
}

QJsonObject pageObject(const plan::PlanState& state)
{
    const context::RoomPage& page = state.page;
    return {{Key("offset"), page.PageOffset},
            {Key("start"), page.PageStart},
            {Key("rows_shown"), page.RowsShown},
            {Key("room_total"), page.RoomTotal},
            {Key("previous_enabled"), state.form.Command2.enabled},
            {Key("next_enabled"), state.form.Command3.enabled},
            {Key("row0_room"), page.room(0).name}};
}

} // namespace

QByteArray planAsJson(const PlanDocument& document)
{
    const plan::PlanState& state = document.state();
    const form::PlanForm& form = state.form;
    const context::EstablishmentHeader& header = state.establishment;
    QJsonObject plan{{Key("title"), form.title()},
                     {Key("mode"), form.OpExam().isSelected() ? QStringLiteral("exam")
                                                              : QStringLiteral("teaching")},
                     {Key("tranche"), QJsonObject{{Key("ident"), state.period.TrancheIdent},
                                                  {Key("name"), form.CbTranche.text()}}},
                     {Key("date"), state.period.shownDate(form).toString(Qt::ISODate)},
                     {Key("establishment"), QJsonObject{{Key("university"), header.UniversityName},
                                                        {Key("name"), header.EstablishmentName},
                                                        {Key("year"), header.AcademicYear}}},
                     {Key("axis"), axisObject(state)},
                     {Key("slots"), slotArray(state)},
                     {Key("rows"), rowArray(document.pages.front().content)},
                     {Key("totals"), totalArray(state)},
                     {Key("page"), pageObject(state)}};
    const plan::PlanContent& content = document.pages.front().content;
    if (!content.faults.empty()) { // a plan without a gap has no word for gaps
        plan.insert(Key("faults"), faultArray(content));
    }
    return QJsonDocument(plan).toJson();
}

} // namespace files
