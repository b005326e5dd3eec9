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

QString firstClass(const QString& classes)
{
    return runtime::trimBlanks(classNames(classes).first());
}

} // namespace plan
