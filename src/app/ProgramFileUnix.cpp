#include "app/ProgramFile.h"

namespace app
{

QString programFile(const QString& folder, const QString& name)
{
    return folder + u'/' + name;
}

} // namespace app
