#pragma once

#include <QPainter>
#include <QRectF>

namespace paint
{

/// The picture of `Image5`, a class that is absent: a red disc with a white cross. Drawn, not
/// stored, so that it is clear at 13 pixels and at 48.
void paintClassAbsent(QPainter& surface, const QRectF& place);

/// The picture of `Image6`, students who are absent: an orange triangle with a person in it. It
/// differs from the other picture in shape, not only in colour.
void paintStudentAbsent(QPainter& surface, const QRectF& place);

} // namespace paint
