// JSON files, read back by a strict reader of our own: the toolkit writes them.
#include "files/JsonExport.h"

#include "fuzz/Input.h"
#include "fuzz/JsonReader.h"
#include "fuzz/PlanInput.h"
#include "fuzz/Require.h"

#include <QJsonArray>
#include <QJsonValue>
#include <algorithm>

using fuzz::require;

namespace
{

void checkText(const QJsonValue& value, const QString& text)
{
    require(value.isString() && value.toString() == text, "a text is read again", text,
            value.toString());
}

void checkBox(const QJsonValue& read, const plan::PlanBox& box)
{
    const lookup::RoomCell& cell = box.cell;
    checkText(read["text"], cell.CellText);
    checkText(read["start"], cell.CellStart);
    checkText(read["class_list"], cell.CellClassList);
    checkText(read["teacher"], cell.CellTeacher);
    checkText(read["subject"], cell.CellSubject);
    require(read["slot"].toInt() == box.slot && read["makeup"].toBool() == box.makeUp &&
                read["class_absent"].toBool() == box.classAbsent &&
                read["student_absent"].toBool() == box.studentAbsent,
            "facts are read again");
    require(read["counter"].isNull() == !box.group, "a counter is there or not");
    if (box.group) {
        checkText(read["size_label"], box.group->sizeLabel);
        checkText(read["details"], box.group->details);
    }
}

void checkRow(const QJsonValue& read, const plan::PlanRow& row)
{
    checkText(read["room"], row.room);
    checkText(read["places"], row.places);
    const QJsonArray boxes = read["boxes"].toArray();
    require(static_cast<std::size_t>(boxes.size()) == row.boxes.size(), "each box is there");
    for (std::size_t index = 0; index < row.boxes.size(); ++index) {
        checkBox(boxes[static_cast<qsizetype>(index)], row.boxes[index]);
    }
    const QJsonArray unknown = read["unknown"].toArray();
    require(static_cast<std::size_t>(unknown.size()) == row.unknown.size(),
            "what is unknown is told");
    for (std::size_t index = 0; index < row.unknown.size(); ++index) {
        checkText(unknown[static_cast<qsizetype>(index)]["start"], row.unknown[index].start);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    const files::PlanDocument document = fuzz::planFrom(input);
    const plan::PlanContent& content = document.pages.front().content;
    const QByteArray bytes = files::planAsJson(document);
    require(std::none_of(bytes.begin(), bytes.end(),
                         [](char byte) { return byte >= 0 && byte < ' ' && byte != '\n'; }),
            "a file holds no control characters");
    const std::optional<QJsonValue> whole = fuzz::readJson(bytes);
    require(whole.has_value(), "a file is JSON", QString::fromUtf8(bytes));
    const QJsonValue& read = *whole;
    checkText(read["title"], document.state().form.title());
    checkText(read["establishment"]["name"], document.state().establishment.EstablishmentName);
    checkText(read["tranche"]["name"], document.state().form.CbTranche.text());
    const QJsonArray rows = read["rows"].toArray();
    require(static_cast<std::size_t>(rows.size()) == content.rows.size(), "each row is there");
    for (std::size_t index = 0; index < content.rows.size(); ++index) {
        checkRow(rows[static_cast<qsizetype>(index)], content.rows[index]);
    }
    const QJsonArray faults = read["faults"].toArray();
    require(static_cast<std::size_t>(faults.size()) == content.faults.size(), "each fault is told");
    for (std::size_t index = 0; index < content.faults.size(); ++index) {
        checkText(faults[static_cast<qsizetype>(index)]["name"], content.faults[index].name);
        checkText(faults[static_cast<qsizetype>(index)]["text"], content.faults[index].text);
    }
    return 0;
}
