#include "timetable/EqualNames.h"

#include "runtime/RunTimeError.h"

namespace timetable
{

std::vector<NameGroups> askEqualNames(db::Connection& connection,
                                      const std::vector<NameQuestion>& questions)
{
    std::vector<db::TextQuestion> asked;
    asked.reserve(questions.size());
    for (const NameQuestion& question : questions) {
        asked.push_back({question.table, question.column, question.texts.texts()});
    }
    return runtime::during(QStringLiteral("Comparaison des noms de l’emploi du temps"),
                           [&] { return connection.equalTexts(asked); });
}

} // namespace timetable
