// Web pages, read back as XML: every text is where it belongs and nothing became markup.
#include "files/HtmlExport.h"

#include "files/HtmlText.h"
#include "fuzz/Input.h"
#include "fuzz/PlanInput.h"
#include "fuzz/Require.h"
#include "fuzz/Texts.h"
#include "plan/BoxLines.h"
#include "plan/SlotColumns.h"

#include <QSet>
#include <QXmlStreamReader>
#include <optional>
#include <vector>

using fuzz::asShown;
using fuzz::require;

namespace
{

/// A cell of the table.
struct Cell {
    QString cssClass;
    QString text;
    QStringList lines; ///< the <div>s without a class
    int columns = 1;
};

/// A page, taken apart by the toolkit's XML reader, which is none of the writer's.
class Page
{
public:
    explicit Page(const QByteArray& bytes) : m_reader(bytes)
    {
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            if (m_reader.isStartElement()) {
                startElement();
            } else if (m_reader.isCharacters()) {
                addText();
            } else if (m_reader.isEndElement()) {
                m_open.removeLast();
            }
        }
        require(!m_reader.hasError(), "a page is well-formed", m_reader.errorString(),
                QString::fromUtf8(bytes));
    }

    [[nodiscard]] const QString& title() const { return m_title; }
    [[nodiscard]] const QString& heading() const { return m_heading; }
    [[nodiscard]] const std::vector<std::vector<Cell>>& rows() const { return m_rows; }

private:
    void startElement();
    void addText();
    void checkMarkup() const;

    QXmlStreamReader m_reader;
    QStringList m_open; ///< elements, the outermost first, with their classes: "div.note"
    QString m_title;
    QString m_heading;
    std::vector<std::vector<Cell>> m_rows; ///< of the table, the heads included
};

void Page::checkMarkup() const
{
    static const QSet<QString> elements{
        QStringLiteral("html"),  QStringLiteral("head"),   QStringLiteral("meta"),
        QStringLiteral("title"), QStringLiteral("style"),  QStringLiteral("body"),
        QStringLiteral("main"),  QStringLiteral("header"), QStringLiteral("h1"),
        QStringLiteral("div"),   QStringLiteral("table"),  QStringLiteral("caption"),
        QStringLiteral("thead"), QStringLiteral("tbody"),  QStringLiteral("tfoot"),
        QStringLiteral("tr"),    QStringLiteral("th"),     QStringLiteral("td"),
        QStringLiteral("p"),     QStringLiteral("strong")};
    static const QSet<QString> attributes{
        QStringLiteral("lang"),    QStringLiteral("charset"), QStringLiteral("name"),
        QStringLiteral("content"), QStringLiteral("class"),   QStringLiteral("style"),
        QStringLiteral("scope"),   QStringLiteral("colspan"), QStringLiteral("role")};
    require(elements.contains(m_reader.name().toString()), "a page has the plan's elements alone",
            m_reader.name().toString());
    for (const QXmlStreamAttribute& attribute : m_reader.attributes()) {
        require(attributes.contains(attribute.name().toString()),
                "a page has the plan's attributes alone", attribute.name().toString());
    }
}

void Page::startElement()
{
    checkMarkup();
    const QString name = m_reader.name().toString();
    const QString cssClass = m_reader.attributes().value(QStringLiteral("class")).toString();
    m_open << name + (cssClass.isEmpty() ? QString() : u'.' + cssClass);
    if (name == u"tr") {
        m_rows.emplace_back();
    } else if (name == u"td" || name == u"th") {
        const int columns = m_reader.attributes().value(QStringLiteral("colspan")).toInt();
        m_rows.back().push_back({cssClass, {}, {}, std::max(columns, 1)});
    } else if (m_open.last() == u"div" && !m_rows.empty()) {
        m_rows.back().back().lines << QString();
    }
}

void Page::addText()
{
    const QString text = m_reader.text().toString();
    const QString& element = m_open.constLast();
    if (element == u"title") {
        m_title += text;
    } else if (element == u"h1") {
        m_heading += text;
    } else if (element == u"div" && !m_rows.empty()) {
        m_rows.back().back().lines.last() += text;
    } else if (element == u"td" || element == u"th" || element.startsWith(u"td.")) {
        m_rows.back().back().text += text;
    }
}

QStringList linesOf(const plan::PlanBox& box)
{
    QStringList lines;
    for (const QString& line : plan::writtenLines(plan::SanitizeCellText(box.cell.CellText))) {
        lines << asShown(line, u' ');
    }
    return lines;
}

/// The boxes that a table can show: the first of each slot, in the order of the slots.
std::vector<QStringList> linesOfBoxes(const plan::PlanRow& row)
{
    std::vector<QStringList> lines;
    for (int slot = 1; slot <= context::DaySlots::kSlots; ++slot) {
        if (const plan::PlanBox* box = plan::boxAt(row, slot)) {
            lines.push_back(linesOf(*box));
        }
    }
    return lines;
}

void checkRow(const std::vector<Cell>& cells, const plan::PlanRow& row, int columns)
{
    require(cells.size() > 2 || columns == 2, "a row has a room and its places");
    require(cells[0].text == asShown(row.room, u' '), "a room is read again", row.room,
            cells[0].text);
    require(cells[1].text == asShown(row.places, u' '), "its places are", row.places,
            cells[1].text);
    std::vector<QStringList> boxes;
    int width = 0;
    for (const Cell& cell : cells) {
        width += cell.columns;
        if (cell.cssClass.startsWith(u"box")) {
            boxes.push_back(cell.lines);
        }
    }
    require(width == columns, "a row is as wide as the table", row.room);
    require(boxes == linesOfBoxes(row), "the texts of its boxes are read again", row.room);
}

void checkPlan(fuzz::Input& input)
{
    const files::PlanDocument document = fuzz::planFrom(input);
    const Page page(files::planAsHtml(document));
    const QString title = asShown(document.state().form.title(), u' ');
    require(page.title() == title && page.heading() == title, "the title is read again", title,
            page.heading());
    const std::vector<plan::PlanRow>& rows = document.pages.front().content.rows;
    if (rows.empty()) {
        require(page.rows().empty(), "without a room there is no table");
        return;
    }
    require(page.rows().size() > rows.size(), "each row is there");
    const auto columns = static_cast<int>(page.rows().front().size());
    for (std::size_t index = 0; index < rows.size(); ++index) {
        checkRow(page.rows()[index + 1], rows[index], columns);
    }
}

/// A text by itself, between tags and in an attribute.
void checkText(const QString& text)
{
    const QString written = files::escaped(text);
    require(!written.contains(u'<') && !written.contains(u'>') && !written.contains(u'"'),
            "a text holds no markup", text, written);
    QXmlStreamReader reader(QStringLiteral("<a b=\"") + written + QStringLiteral("\">") + written +
                            QStringLiteral("</a>"));
    require(reader.readNextStartElement(), "an element begins", reader.errorString(), written);
    require(reader.attributes().value(QStringLiteral("b")) == asShown(text, u' '),
            "an attribute is read again", text);
    require(reader.readElementText() == asShown(text, u' '), "a text is read again", text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    if (input.bytes() == "plan") {
        checkPlan(input);
    } else {
        checkText(fuzz::throughUtf8(input.text()));
    }
    return 0;
}
