#include "files/AnswerTable.h"

#include "answers/ClashSentence.h"
#include "answers/HolderWords.h"
#include "answers/Words.h"
#include "files/RoomUseTable.h"
#include "timetable/DateRules.h"

#include <algorithm>
#include <utility>

namespace files
{
namespace
{

using timetable::HoldingId;
using timetable::Occupancy;

const QString kDate = QStringLiteral("dd/MM/yyyy");

QString counted(const QString& heading, std::size_t count)
{
    return QStringLiteral("%1 (%2)").arg(heading).arg(count);
}

/// Nothing where none are told.
QString placesText(int places)
{
    return places > 0 ? QString::number(places) : QString();
}

QString withCapital(QString text)
{
    if (!text.isEmpty()) {
        text[0] = text.at(0).toUpper();
    }
    return text;
}

/// Under "Semaine"; what has a date of its own is of no week, unless A or B is told.
QString weekTitle(timetable::Week week, QDate date)
{
    return week == timetable::Week::A   ? QStringLiteral("A")
           : week == timetable::Week::B ? QStringLiteral("B")
           : date.isValid()             ? QString()
                                        : QStringLiteral("toutes");
}

TableRow rowOf(const QStringList& texts)
{
    TableRow row;
    for (const QString& text : texts) {
        row.push_back({text, std::nullopt});
    }
    return row;
}

/// The date of a holding in the week of a date.
QDate dateOf(const timetable::Holder& holder, QDate inWeek)
{
    return holder.date.isValid() || holder.day == timetable::kNoDay
               ? holder.date
               : timetable::MondayOnOrBefore(inWeek).addDays(holder.day);
}

/// The columns of what holds a room. Without a week of some date there is none to tell.
std::vector<TableColumn> itemColumns(bool isDated)
{
    std::vector<TableColumn> columns{{QStringLiteral("Jour")}};
    if (isDated) {
        columns.push_back({QStringLiteral("Date")});
    }
    for (const char* title :
         {"Début", "Fin", "Salle", "Classe", "Enseignant", "Matière", "Semaine", "Nature"}) {
        columns.push_back({QString::fromUtf8(title)});
    }
    return columns;
}

QStringList itemTexts(const Occupancy& occupancy, HoldingId id, QDate inWeek)
{
    const timetable::Holder holder = occupancy.describe(occupancy.holding(id));
    const QString comma = QStringLiteral(", ");
    QStringList texts{dayTitle(holder.day)};
    if (inWeek.isValid()) {
        texts << dateOf(holder, inWeek).toString(kDate);
    }
    const QString kind = answers::kindWords(holder.kind);
    return texts << (holder.time ? answers::clockWords(holder.time->start) : QString())
                 << (holder.time ? answers::clockWords(holder.time->end()) : QString())
                 << holder.rooms.join(comma) << holder.className << holder.teachers.join(comma)
                 << holder.subject << weekTitle(holder.weeks, holder.date)
                 << (kind.isEmpty() ? QStringLiteral("cours") : kind);
}

/// Fills a table with an answer of any kind.
struct Filling {
    const AnswerDocument& document;
    TableUse use;
    AnswerTable& table;

    [[nodiscard]] const Occupancy& occupancy() const { return *document.occupancy; }
    [[nodiscard]] const timetable::Room& room(timetable::RoomId id) const
    {
        return document.timetable().room(id);
    }

    void operator()(const answers::FreeRooms& free)
    {
        table.labelTitle = QStringLiteral("État");
        addFree(free);
        addTaken(free);
        addUnknown(free);
        table.notes << QStringLiteral(
                           "Une salle est libre quand aucune séance n’y tient, ne serait-ce "
                           "qu’une minute, pendant le temps demandé ; « libre de … à » : "
                           "jusqu’aux séances d’avant et d’après, entre le premier et le "
                           "dernier créneau du jour.")
                    << QStringLiteral("Les salles qui ont juste assez de places viennent d’abord.");
        addDateNote();
    }

    void addFree(const answers::FreeRooms& free)
    {
        TableSection section{counted(QStringLiteral("Salles libres"), free.rooms.size()),
                             QStringLiteral("libre"),
                             QStringLiteral("Aucune salle n’est libre."),
                             {{QStringLiteral("Salle")},
                              {QStringLiteral("Places"), ColumnLook::Number},
                              {QStringLiteral("Zone")},
                              {QStringLiteral("Département")},
                              {QStringLiteral("Libre de")},
                              {QStringLiteral("à")}},
                             {}};
        for (const answers::FreeRoom& each : free.rooms) {
            const timetable::Room& known = room(each.room);
            section.rows.push_back(rowOf({known.name, placesText(known.places),
                                          known.zone ? QString::number(*known.zone) : QString(),
                                          known.department.value_or(QString()),
                                          answers::clockWords(each.stretch.start),
                                          answers::clockWords(each.stretch.end())}));
        }
        table.sections.push_back(std::move(section));
    }

    void addTaken(const answers::FreeRooms& free)
    {
        TableSection section{counted(QStringLiteral("Salles occupées"), free.taken.size()),
                             QStringLiteral("occupée"),
                             {},
                             {{QStringLiteral("Salle")},
                              {QStringLiteral("Places"), ColumnLook::Number},
                              {QStringLiteral("Par"), ColumnLook::Sentence}},
                             {}};
        for (const answers::HeldRoom& held : free.taken) {
            section.rows.push_back(rowOf({room(held.room).name, placesText(room(held.room).places),
                                          answers::holdersWords(occupancy(), held.by)}));
        }
        table.sections.push_back(std::move(section));
    }

    void addUnknown(const answers::FreeRooms& free)
    {
        TableSection section{
            counted(QStringLiteral("Salles dont on ne sait rien"), free.unknown.size()),
            QStringLiteral("inconnue"),
            {},
            {{QStringLiteral("Salle")},
             {QStringLiteral("Places"), ColumnLook::Number},
             {QStringLiteral("Pourquoi"), ColumnLook::Sentence}},
            {}};
        for (const answers::HeldRoom& held : free.unknown) {
            section.rows.push_back(rowOf({room(held.room).name, placesText(room(held.room).places),
                                          answers::whyUnknown(occupancy(), held.by)}));
        }
        table.sections.push_back(std::move(section));
    }

    void operator()(const WeekAnswer& week)
    {
        const QDate date = week.week.date;
        TableSection section{
            {}, {}, QStringLiteral("Rien cette semaine."), itemColumns(date.isValid()), {}};
        for (const HoldingId id : week.items) {
            section.rows.push_back(rowOf(itemTexts(occupancy(), id, date)));
        }
        table.sections.push_back(std::move(section));
    }

    void operator()(const HitList& hits)
    {
        if (use == TableUse::Page) {
            addNames(hits);
            addWeeks(hits);
        } else {
            addHits(hits);
        }
        addDateNote();
    }

    /// What was found, without the weeks.
    void addNames(const HitList& hits)
    {
        TableSection section{counted(QStringLiteral("Trouvés"), hits.size()),
                             {},
                             QStringLiteral("Aucun nom ne contient ce texte."),
                             {{QStringLiteral("Nom")},
                              {QStringLiteral("Quoi")},
                              {QStringLiteral("Séances"), ColumnLook::Number}},
                             {}};
        for (const answers::Hit& hit : hits) {
            section.rows.push_back(rowOf(
                {hit.name, answers::kindWords(hit.subject), QString::number(hit.items.size())}));
        }
        table.sections.push_back(std::move(section));
    }

    /// A list for each that was found.
    void addWeeks(const HitList& hits)
    {
        for (const answers::Hit& hit : hits) {
            TableSection section{QStringLiteral("%1 (%2)").arg(
                                     hit.name.trimmed(), answers::kindWords(hit.subject).toLower()),
                                 {},
                                 {},
                                 itemColumns(document.date.isValid()),
                                 {}};
            for (const HoldingId id : hit.items) {
                section.rows.push_back(rowOf(itemTexts(occupancy(), id, document.date)));
            }
            table.sections.push_back(std::move(section));
        }
    }

    /// All in one list; who has nothing in the week has a row without it.
    void addHits(const HitList& hits)
    {
        TableSection section{{}, {}, {}, {{QStringLiteral("Quoi")}, {QStringLiteral("Nom")}}, {}};
        for (const TableColumn& column : itemColumns(document.date.isValid())) {
            section.columns.push_back(column);
        }
        for (const answers::Hit& hit : hits) {
            const QStringList name{answers::kindWords(hit.subject), hit.name};
            for (const HoldingId id : hit.items) {
                section.rows.push_back(rowOf(name + itemTexts(occupancy(), id, document.date)));
            }
            if (hit.items.empty()) {
                section.rows.push_back(rowOf(name));
                section.rows.back().resize(section.columns.size());
            }
        }
        table.sections.push_back(std::move(section));
    }

    void addDateNote()
    {
        if (!document.date.isValid()) {
            table.notes << QStringLiteral("Sans date, seuls les cours comptent : ni rattrapages, "
                                          "ni examens.");
        }
    }

    void operator()(const ClashList& clashes)
    {
        if (use == TableUse::Page) {
            addKinds(clashes);
        } else {
            addClashes(clashes);
        }
        table.notes << QStringLiteral("Les plus graves d’abord. Comptent les cours de la période, "
                                      "les rattrapages et les examens.")
                    << QStringLiteral("Plusieurs classes dans une salle ne font pas un conflit "
                                      "quand elles commencent ensemble avec le même enseignant et "
                                      "la même matière : c’est un cours commun.");
    }

    /// A list for each kind; what it is about need not be told twice in a row.
    void addKinds(const ClashList& clashes)
    {
        for (auto first = clashes.begin(); first != clashes.end();) {
            const auto last = std::find_if(first, clashes.end(), [&](const answers::Clash& clash) {
                return clash.kind != first->kind;
            });
            TableSection section{
                counted(answers::kindWords(first->kind), static_cast<std::size_t>(last - first)),
                {},
                {},
                {{QStringLiteral("Nom")},
                 {QStringLiteral("Jour")},
                 {QStringLiteral("Heure")},
                 {QStringLiteral("Semaine")},
                 {QStringLiteral("Ce qui ne va pas"), ColumnLook::Sentence}},
                {}};
            for (; first != last; ++first) {
                const QString date = first->date.toString(kDate);
                section.rows.push_back(rowOf(
                    {first->name, dayTitle(first->day) + (date.isEmpty() ? date : u' ' + date),
                     first->time ? answers::spanWords(*first->time) : QString(),
                     weekTitle(first->weeks, first->date),
                     answers::clashFault(occupancy(), *first)}));
            }
            table.sections.push_back(std::move(section));
        }
        if (clashes.empty()) {
            table.sections.push_back(
                {QStringLiteral("Conflits"), {}, QStringLiteral("Aucun conflit."), {}, {}});
        }
    }

    void addClashes(const ClashList& clashes)
    {
        TableSection section{{},
                             {},
                             {},
                             {{QStringLiteral("Conflit")},
                              {QStringLiteral("Nom")},
                              {QStringLiteral("Jour")},
                              {QStringLiteral("Date")},
                              {QStringLiteral("Heure")},
                              {QStringLiteral("Semaine")},
                              {QStringLiteral("Ce qui ne va pas"), ColumnLook::Sentence}},
                             {}};
        for (const answers::Clash& clash : clashes) {
            section.rows.push_back(rowOf({answers::kindWords(clash.kind), clash.name,
                                          dayTitle(clash.day), clash.date.toString(kDate),
                                          clash.time ? answers::spanWords(*clash.time) : QString(),
                                          weekTitle(clash.weeks, clash.date),
                                          answers::clashSentence(occupancy(), clash)}));
        }
        table.sections.push_back(std::move(section));
    }

    void operator()(const answers::RoomUse& rooms)
    {
        addRoomUse(table, document.timetable(), rooms, use);
    }
};

} // namespace

QString dayTitle(int day)
{
    return day == timetable::kNoDay ? QString() : withCapital(answers::dayWords(day));
}

AnswerTable answerTable(const AnswerDocument& document, TableUse use)
{
    AnswerTable table{document.title, {}, {}, {}, {}};
    for (const QString& line : document.about) {
        table.about << withCapital(line);
    }
    std::visit(Filling{document, use, table}, document.answer);
    return table;
}

} // namespace files
