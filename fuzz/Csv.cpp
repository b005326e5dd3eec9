// CSV files, read back by a strict reader, and cut as a spreadsheet may cut them.
#include "files/CsvExport.h"

#include "fuzz/Input.h"
#include "fuzz/PlanInput.h"
#include "fuzz/Require.h"
#include "fuzz/Texts.h"
#include "plan/BoxLines.h"

#include <vector>

using fuzz::require;

namespace
{

/// Reads lines that end with CR LF, of cells between semicolons, which stand in quotes where they
/// hold a semicolon, a quote or a line end.
class StrictReader
{
public:
    explicit StrictReader(const QString& text) : m_text(text) {}

    [[nodiscard]] std::vector<QStringList> lines()
    {
        std::vector<QStringList> lines;
        while (m_position < m_text.size()) {
            lines.push_back({cell()});
            while (take(u';')) {
                lines.back() << cell();
            }
            require(take(u'\r') && take(u'\n'), "a line ends with CR LF", m_text);
        }
        return lines;
    }

private:
    [[nodiscard]] bool take(QChar character)
    {
        const bool isThere = m_position < m_text.size() && m_text[m_position] == character;
        m_position += isThere ? 1 : 0;
        return isThere;
    }
    [[nodiscard]] QString cell() { return take(u'"') ? quotedCell() : plainCell(); }
    [[nodiscard]] QString plainCell()
    {
        const qsizetype start = m_position;
        while (m_position < m_text.size() &&
               !QStringLiteral(";\r\n").contains(m_text[m_position])) {
            require(m_text[m_position] != u'"', "a quote stands in quotes", m_text);
            ++m_position;
        }
        return m_text.sliced(start, m_position - start);
    }
    [[nodiscard]] QString quotedCell()
    {
        QString cell;
        for (;;) {
            require(m_position < m_text.size(), "quotes are closed", m_text);
            const QChar character = m_text[m_position++];
            if (character == u'"' && !take(u'"')) {
                return cell;
            }
            cell += character;
        }
    }

    const QString& m_text;
    qsizetype m_position = 0;
};

/// The cells that a spreadsheet makes of a line. Where quotes count, one at the beginning of a cell
/// encloses it up to the next that is not doubled; what follows belongs to the cell as it stands.
QStringList piecesOf(const QString& line, QChar separator, bool quotesCount)
{
    QStringList pieces{QString()};
    bool atStart = true;
    bool enclosed = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        if (enclosed && c == u'"' && i + 1 < line.size() && line[i + 1] == u'"') {
            pieces.last() += line[++i];
        } else if (quotesCount && c == u'"' && (atStart || enclosed)) {
            enclosed = !enclosed;
        } else if (c == separator && !enclosed) {
            pieces << QString();
            atStart = true;
            continue;
        } else {
            pieces.last() += c;
        }
        atStart = false;
    }
    return pieces;
}

/// A sign alone is none, and neither is the hyphen of initials.
bool isFormula(const QString& cell)
{
    const bool isInitial = cell.size() == 2 && cell[0] == u'-' && cell[1].isUpper();
    return cell.size() > 1 && !isInitial &&
           QStringLiteral("=+-@\t\r＝＋－＠").contains(cell.front());
}

void checkNoFormula(const QString& line, QChar separator)
{
    if (separator.isLetterOrNumber() || separator.isMark() || separator == u'\'' ||
        separator == u'\n') {
        return; // these end no cell
    }
    for (const bool quotesCount : {false, true}) {
        for (const QString& piece : piecesOf(line.chopped(2), separator, quotesCount)) {
            require(!isFormula(piece), "no cell is a formula", line, piece);
        }
    }
}

/// Whether `read` is `cell` with apostrophes put in.
bool isGuarded(const QString& read, const QString& cell)
{
    qsizetype next = 0;
    for (const QChar character : read) {
        if (next < cell.size() && character == cell[next]) {
            ++next;
        } else if (character != u'\'') {
            return false;
        }
    }
    return next == cell.size();
}

/// A separator, then the cells of a line.
void checkLine(fuzz::Input& input)
{
    const QString separators = input.text().left(3) + QStringLiteral(";,\t| ");
    QStringList cells;
    while (!input.isAtEnd()) {
        cells << input.text();
    }
    if (cells.isEmpty()) {
        return;
    }
    const QString line = files::csvLine(cells);
    const std::vector<QStringList> lines = StrictReader(line).lines();
    require(lines.size() == 1 && lines.front().size() == cells.size(), "a line has its cells",
            line);
    for (qsizetype index = 0; index < cells.size(); ++index) {
        const QString& read = lines.front()[index];
        require(isGuarded(read, cells[index]), "a cell is read again", cells[index], read);
        require(files::csvLine({read}) == files::csvLine({cells[index]}), "a cell is guarded once",
                cells[index], read);
    }
    for (const QChar separator : separators) {
        checkNoFormula(line, separator);
    }
}

/// The cells of a line that tell what the plan shows there.
void checkCells(const QStringList& line, const QStringList& expected)
{
    constexpr int firstCell = 3;
    for (qsizetype index = 0; index < expected.size(); ++index) {
        require(isGuarded(line[firstCell + index], fuzz::throughUtf8(expected[index])),
                "a cell tells what the plan shows", expected[index], line[firstCell + index]);
    }
}

void checkPlan(fuzz::Input& input)
{
    const files::PlanDocument document = fuzz::planFrom(input);
    const QByteArray bytes = files::planAsCsv(document);
    require(bytes.startsWith("\xef\xbb\xbf"), "a mark stands in front");
    const QString text = QString::fromUtf8(bytes.mid(3));
    const std::vector<QStringList> lines = StrictReader(text).lines();
    auto line = lines.begin();
    const qsizetype columns = line->size();
    for (const plan::PlanRow& row : document.pages.front().content.rows) {
        for (const plan::PlanBox& box : row.boxes) {
            require(++line != lines.end() && line->size() == columns, "each box has its line");
            const lookup::RoomCell& cell = box.cell;
            const QString words = plan::writtenLines(cell.CellText).join(QStringLiteral(", "));
            checkCells(*line, {row.room, row.places, QString::number(box.slot), cell.CellStart,
                               cell.CellDuration, words});
            constexpr int teacher = 12;
            require(isGuarded((*line)[teacher], fuzz::throughUtf8(cell.CellTeacher)),
                    "a teacher is read again", cell.CellTeacher);
        }
        for (const plan::UnknownCell& cell : row.unknown) {
            require(++line != lines.end() && line->size() == columns, "what is unknown is told");
            checkCells(*line, {row.room, row.places, QString::number(cell.slot), cell.start,
                               QString::number(cell.minutes), QStringLiteral("inconnu")});
        }
    }
    require(++line == lines.end(), "there are no further lines");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    if (input.bytes() == "plan") {
        checkPlan(input);
    } else {
        checkLine(input);
    }
    return 0;
}
