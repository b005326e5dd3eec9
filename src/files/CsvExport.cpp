#include "files/CsvExport.h"

#include "plan/BoxLines.h"
#include "plan/ClassList.h"

#include <QRegularExpression>

namespace files
{
namespace
{

/// Whether the character makes a formula of a cell that begins with it. Spreadsheets take wide
/// forms for the signs themselves, and skip a tab or line end to find one.
bool beginsFormulas(QChar character)
{
    static const QString signs = QStringLiteral("=+-@\t\r＝＋－＠");
    return signs.contains(character);
}

/// Whether the sign there would begin a cell, if a spreadsheet cut the text at what stands before.
/// Whoever opens the file may have told it any separator; letters, digits and apostrophes are none.
bool mayBeginCell(const QString& text, qsizetype sign)
{
    if (sign == 0) {
        return true;
    }
    const QChar before = text.at(sign - 1);
    if (before.isLetterOrNumber() || before.isMark() || before == u'\'' ||
        before == text.at(sign)) {
        return false;
    }
    // Everyday names stay as they are. "G1 - G2" leaves a sign alone, "J.-P. Martin" a sign and one
    // letter at most: neither is a formula that does anything.
    static const QRegularExpression harmless(QStringLiteral("^(?: [=+@-] |\\.-\\p{Lu}\\.)"));
    return !harmless.match(text.mid(sign - 1, 4)).hasMatch();
}

QString withoutFormulas(const QString& text)
{
    QString safe;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (beginsFormulas(text.at(i)) && mayBeginCell(text, i)) {
            safe += u'\'';
        }
        safe += text.at(i);
    }
    return safe;
}

QString cellOf(const QString& cell)
{
    QString text = withoutFormulas(cell);
    const bool quoted =
        text.contains(u';') || text.contains(u'"') || text.contains(u'\n') || text.contains(u'\r');
    return quoted ? u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"' : text;
}

QString yesNo(bool value)
{
    return value ? QStringLiteral("oui") : QStringLiteral("non");
}

QStringList titles()
{
    return {QStringLiteral("Date"),           QStringLiteral("Jour"),
            QStringLiteral("Période"),        QStringLiteral("Salle"),
            QStringLiteral("Places"),         QStringLiteral("Séance"),
            QStringLiteral("Début"),          QStringLiteral("Durée (min)"),
            QStringLiteral("Texte"),          QStringLiteral("Classes"),
            QStringLiteral("Étudiants"),      QStringLiteral("Capacité"),
            QStringLiteral("Enseignant"),     QStringLiteral("Matière"),
            QStringLiteral("Rattrapage"),     QStringLiteral("Dépassement"),
            QStringLiteral("Classe absente"), QStringLiteral("Étudiants absents")};
}

/// Several lines in one cell are hard to sort and to search: they become one.
QString oneLine(const QString& text)
{
    return plan::writtenLines(text).join(QStringLiteral(", "));
}

QStringList cellsOf(const PlanDocument& document, const plan::PlanRow& row,
                    const plan::PlanBox& box)
{
    const lookup::RoomCell& cell = box.cell;
    return {document.date.toString(QStringLiteral("dd/MM/yyyy")),
            document.state().form.CbJour.text(),
            document.state().form.CbTranche.text(),
            row.room,
            row.places,
            QString::number(box.slot),
            cell.CellStart,
            cell.CellDuration,
            oneLine(cell.CellText),
            plan::classWords(cell.CellClassList).join(QStringLiteral(", ")),
            QString::number(cell.CellStudents),
            QString::number(cell.CellCapacity),
            cell.CellTeacher,
            cell.CellSubject,
            yesNo(box.makeUp),
            yesNo(box.group && box.group->overfull),
            yesNo(box.classAbsent),
            yesNo(box.studentAbsent)};
}

/// A line for what is not known: without it the room would look free.
QStringList unknownCells(const PlanDocument& document, const plan::PlanRow& row,
                         const plan::UnknownCell& cell)
{
    QStringList cells{document.date.toString(QStringLiteral("dd/MM/yyyy")),
                      document.state().form.CbJour.text(),
                      document.state().form.CbTranche.text(),
                      row.room,
                      row.places,
                      QString::number(cell.slot),
                      cell.start,
                      QString::number(cell.minutes),
                      QStringLiteral("inconnu")};
    while (cells.size() < titles().size()) {
        cells << QString();
    }
    return cells;
}

} // namespace

QString csvLine(const QStringList& cells)
{
    QStringList written;
    for (const QString& cell : cells) {
        written.append(cellOf(cell));
    }
    return written.join(u';') + QStringLiteral("\r\n");
}

QByteArray planAsCsv(const PlanDocument& document)
{
    QString text = QString(QChar(QChar::ByteOrderMark)) + csvLine(titles());
    for (const plan::PlanPage& page : document.pages) {
        for (const plan::PlanRow& row : page.content.rows) {
            for (const plan::PlanBox& box : row.boxes) {
                text += csvLine(cellsOf(document, row, box));
            }
            for (const plan::UnknownCell& cell : row.unknown) {
                text += csvLine(unknownCells(document, row, cell));
            }
        }
    }
    return text.toUtf8();
}

} // namespace files
