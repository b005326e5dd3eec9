#pragma once

#include <QString>

class QLabel;
class QMessageBox;
class QWidget;

/// Texts of the database and names of files are shown letter by letter. The toolkit guesses: where
/// nobody tells it otherwise, a room named "<h1>A</h1>" is a heading and may fetch a picture. So
/// every label, tooltip and box of the program is made here.
namespace app
{

/// A label without a parent that shows whatever it is told as it stands.
[[nodiscard]] QLabel* plainLabel(const QString& text = {});

/// What a tooltip is given to show `text` as it stands.
[[nodiscard]] QString plainToolTip(const QString& text);

/// Gives the widget a tooltip, and screen readers the same text as its description: they would
/// else be told what `plainToolTip` makes of it.
void setPlainToolTip(QWidget* widget, const QString& text);

/// Makes a message box show all its texts as they stand. For a box that has them all: its second
/// text gets a label of its own.
void showPlainly(QMessageBox& box);

} // namespace app
