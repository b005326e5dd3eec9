#include "files/AnswerWeekPdf.h"

namespace files
{

print::WeekSheets weekSheetsOf(const AnswerDocument& document)
{
    const auto& answer = std::get<WeekAnswer>(document.answer);
    print::WeekSheets sheets{
        document.title, document.about, {}, document.roomColors, document.date};
    if (answer.subject) {
        sheets.week =
            answers::weekGrid(*document.occupancy, answer.subject, answer.week, answer.items);
    } else {
        sheets.week =
            answers::roomWeeks(*document.occupancy, answer.week, answer.items, answer.rooms);
    }
    return sheets;
}

QByteArray weekAsPdf(const AnswerDocument& document)
{
    return print::pdfOf(weekSheetsOf(document));
}

} // namespace files
