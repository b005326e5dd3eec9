#include "plan/Marqueur.h"

namespace plan
{

QString studentAbsentToolTip(const Marqueur& marker)
{
    return marker.Classes + QStringLiteral(" Absent");
}

} // namespace plan
