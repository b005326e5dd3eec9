#include "app/WrappedText.h"

#include <QStringList>
#include <QTextLayout>

namespace app
{
namespace
{

/// Adds the lines that one line of the text takes.
void addWrapped(QStringList& lines, const QString& line, const QFont& font, int width)
{
    QTextLayout layout(line, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine part = layout.createLine(); part.isValid(); part = layout.createLine()) {
        part.setLineWidth(width);
        lines << line.mid(part.textStart(), part.textLength()).trimmed();
    }
    layout.endLayout();
}

} // namespace

QString wrapped(const QString& text, const QFont& font, int width)
{
    QStringList lines;
    for (const QString& line : text.split(u'\n')) {
        if (line.isEmpty()) {
            lines << line;
        } else {
            addWrapped(lines, line, font, width);
        }
    }
    return lines.join(u'\n');
}

} // namespace app
