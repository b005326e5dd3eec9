#include "app/asking/AskingLine.h"

#include <QKeyEvent>

namespace app
{

void AskingLine::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down && event->modifiers() == Qt::NoModifier && onDown) {
        onDown();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace app
