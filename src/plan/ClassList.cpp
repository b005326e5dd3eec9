#include "plan/ClassList.h"

#include "plan/BoxLines.h"
#include "runtime/Numbers.h"

namespace plan
{

QStringList classNames(const QString& classes)
{
    QStringList names = classes.split(u'\t');
    names.last() = runtime::trimBlanks(names.last());
    return names;
}

QStringList classWords(const QString& classes)
{
    return writtenLines(classNames(classes).join(u'\n'));
}

QString fewNames(const QStringList& names)
{
    constexpr qsizetype most = 12;
    const QString first = names.mid(0, most).join(QStringLiteral(", "));
    const qsizetype others = names.size() - most;
    return others <= 0 ? first
                       : first + QStringLiteral(" et %1 ").arg(others) +
                             (others == 1 ? QStringLiteral("autre") : QStringLiteral("autres"));
}

QString firstClass(const QString& classes)
{
    return runtime::trimBlanks(classNames(classes).first());
}

} // namespace plan
