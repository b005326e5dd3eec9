#include "files/HtmlText.h"

namespace files
{
namespace
{

QString styleSheet()
{
    return QStringLiteral(R"(
body { margin: 0; padding: 1rem; background: #fff; color: #1c2733;
       font: clamp(14px, 0.85vw, 32px)/1.3 Arial, "Liberation Sans", Helvetica, sans-serif; }
h1 { margin: 0 0 0.2rem; font-size: 1.8em; }
.name { font-weight: bold; }
main { margin-top: 0.8rem; overflow-x: auto; }
table { border-collapse: separate; border-spacing: 2px 3px; width: 100%; min-width: 72em;
        table-layout: fixed; }
caption { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); }
th, td { padding: 0.25em 0.4em; vertical-align: top; text-align: left;
         overflow-wrap: break-word; }
thead th { background: #1f3a5f; color: #fff; }
thead th:nth-child(1) { width: 8em; }
thead th:nth-child(1), tbody th { position: sticky; left: 0; }
thead th:nth-child(2) { width: 3.6em; }
tbody th, .places, .box { background: var(--fill); color: var(--ink); }
.places { text-align: right; }
tbody td { border-bottom: 1px solid #d5dbe4; }
.box { border: 1px solid #3c3c3c; }
.makeup { background-image: repeating-linear-gradient(45deg, transparent 0 7px,
          rgba(127, 127, 127, 0.28) 7px 8px), repeating-linear-gradient(-45deg, transparent 0 7px,
          rgba(127, 127, 127, 0.28) 7px 8px); }
.note { font-size: 0.85em; }
.remark { display: inline-block; margin: 0.15em 0.3em 0 0; padding: 0 0.3em; font-size: 0.85em;
          font-weight: bold; background: #1c2733; color: #fff; }
tfoot th, tfoot td { border-top: 2px solid #1f3a5f; font-weight: bold; }
@page { size: A4 landscape; margin: 8mm; }
@media print {
  body { padding: 0; font-size: 7pt; }
  main { overflow: visible; }
  tr { break-inside: avoid; }
  tfoot { display: table-row-group; }
  * { -webkit-print-color-adjust: exact; print-color-adjust: exact; }
}
)");
}

QString documentWith(const QString& metas, const QString& title, const QString& body,
                     const QString& style)
{
    return QStringLiteral("<!DOCTYPE html>\n<html lang=\"fr\">\n<head>\n"
                          "<meta charset=\"utf-8\"/>\n"
                          "<meta name=\"viewport\" content=\"width=device-width, "
                          "initial-scale=1\"/>\n") +
           metas + QStringLiteral("<title>") + escaped(title) +
           QStringLiteral("</title>\n<style>") + style +
           QStringLiteral("</style>\n</head>\n<body>\n") + body +
           QStringLiteral("</body>\n</html>\n");
}

} // namespace

QString escaped(const QString& text)
{
    QString result = text.toHtmlEscaped();
    for (QChar& character : result) {
        if (character.category() == QChar::Other_Control || character.isNonCharacter()) {
            character = u' ';
        }
    }
    return result;
}

QString colorText(form::Colour color)
{
    return QStringLiteral("#%1%2%3")
        .arg(color.red(), 2, 16, QLatin1Char('0'))
        .arg(color.green(), 2, 16, QLatin1Char('0'))
        .arg(color.blue(), 2, 16, QLatin1Char('0'));
}

QString htmlDocument(const QString& title, const QString& body)
{
    return htmlDocument(title, body, styleSheet());
}

QString refreshingHtmlDocument(const QString& title, const QString& body, int seconds)
{
    return documentWith(
        QStringLiteral("<meta http-equiv=\"refresh\" content=\"%1\"/>\n").arg(seconds), title, body,
        styleSheet() + QStringLiteral(".past { opacity: 0.45; }\n"
                                      "thead .now { box-shadow: inset 0 -0.25em #d0021b; }\n"));
}

QString htmlDocument(const QString& title, const QString& body, const QString& style)
{
    return documentWith({}, title, body, style);
}

} // namespace files
