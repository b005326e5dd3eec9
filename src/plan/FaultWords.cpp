#include "plan/FaultWords.h"

#include <algorithm>

namespace plan
{
namespace
{

using lookup::ReadFault;

QString sinceWords(const QDateTime& since)
{
    const bool today = since.date() == QDate::currentDate();
    return QStringLiteral(" depuis ") +
           since.toString(today ? QStringLiteral("HH:mm") : QStringLiteral("dd/MM/yyyy HH:mm"));
}

bool hasUnknownCells(const PlanContent& content)
{
    return std::any_of(content.rows.begin(), content.rows.end(),
                       [](const PlanRow& row) { return !row.unknown.empty(); });
}

} // namespace

QString unheldNames(const std::vector<ReadFault>& faults, qsizetype most)
{
    QStringList names;
    for (const ReadFault& fault : faults) {
        if (!fault.name.isEmpty()) {
            names << QStringLiteral("« ") + fault.name + QStringLiteral(" »");
        }
    }
    if (names.isEmpty()) {
        return {};
    }
    const qsizetype others = std::max<qsizetype>(names.size() - most, 0);
    QString list = names.mid(0, most).join(QStringLiteral(", "));
    if (others > 0) {
        list += QStringLiteral(" et %1 %2")
                    .arg(QString::number(others),
                         others == 1 ? QStringLiteral("autre") : QStringLiteral("autres"));
    }
    return (names.size() == 1 ? QStringLiteral("Nom impossible à chercher : ")
                              : QStringLiteral("Noms impossibles à chercher : ")) +
           list + QStringLiteral(". Le réglage « Apostrophes=True » y remédie.");
}

QString faultSentence(const PlanContent& content, qsizetype mostNames)
{
    const auto failed = std::find_if(content.faults.begin(), content.faults.end(),
                                     [](const ReadFault& fault) { return fault.name.isEmpty(); });
    QStringList sentences;
    if (failed != content.faults.end()) {
        const QString since = content.failingSince ? sinceWords(*content.failingSince) : QString();
        sentences << QStringLiteral("Plan incomplet") + since + QStringLiteral(" : ") +
                         db::failureWords(failed->failure) + u'.';
    }
    const QString names = unheldNames(content.faults, mostNames);
    if (!names.isEmpty()) {
        sentences << names;
    }
    if (hasUnknownCells(content)) {
        sentences << QStringLiteral("Les cases « ? » sont inconnues, et non libres.");
    }
    return sentences.join(u' ');
}

QString faultDetails(const PlanContent& content)
{
    QStringList texts;
    for (const ReadFault& fault : content.faults) {
        texts << fault.text;
    }
    texts.removeDuplicates();
    return texts.join(u'\n');
}

} // namespace plan
