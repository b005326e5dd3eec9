#include "print/PdfDocument.h"

#include "print/Paper.h"
#include "print/PrintJob.h"
#include "runtime/RunTimeError.h"

#include <QBuffer>
#include <QHashSeed>
#include <QPageSize>
#include <QRegularExpression>
#include <utility>

namespace print
{
namespace
{

/// The writer embeds the fonts in the order of a hash table, which differs from run to run unless
/// its seed is fixed.
class FixedHashOrder
{
public:
    FixedHashOrder() { QHashSeed::setDeterministicGlobalSeed(); }
    ~FixedHashOrder() { QHashSeed::resetRandomGlobalSeed(); }
    FixedHashOrder(const FixedHashOrder&) = delete;
    FixedHashOrder& operator=(const FixedHashOrder&) = delete;
};

/// Where the number stands that tells the position of the table "xref": its first byte, and the one
/// behind it.
std::pair<qsizetype, qsizetype> tableNumber(const QByteArray& pdf)
{
    static const QByteArray key = "startxref\n";
    const qsizetype start = pdf.lastIndexOf(key) + key.size();
    return {start, pdf.indexOf('\n', start)};
}

/// Moves the positions of the table "xref" that lie behind `from` by `distance` bytes.
QByteArray movedPositions(QByteArray pdf, qsizetype from, qsizetype distance)
{
    constexpr qsizetype kDigits = 10;
    static const QRegularExpression entry(QStringLiteral("^(\\d{10}) \\d{5} n ?\\r?$"),
                                          QRegularExpression::MultilineOption);
    const qsizetype table = pdf.lastIndexOf("\nxref");
    if (table < 0) {
        return pdf;
    }
    // One byte is one character here, so that positions agree.
    const QString text = QString::fromLatin1(pdf.mid(table));
    for (auto match = entry.globalMatch(text); match.hasNext();) {
        const auto found = match.next();
        const qlonglong position = found.captured(1).toLongLong();
        if (position > from) {
            pdf.replace(table + found.capturedStart(1), kDigits,
                        QByteArray::number(position + distance).rightJustified(kDigits, '0'));
        }
    }
    const auto [start, end] = tableNumber(pdf);
    return pdf.replace(start, end - start, QByteArray::number(table + 1));
}

} // namespace

bool isWholePdf(const QByteArray& pdf)
{
    const auto [start, end] = tableNumber(pdf);
    return pdf.endsWith("%%EOF\n") &&
           pdf.mid(pdf.mid(start, end - start).toLongLong()).startsWith("xref\n");
}

QByteArray withCreationDate(const QByteArray& pdf, QDate date)
{
    static const QByteArray key = "/CreationDate (";
    const qsizetype start = pdf.indexOf(key) + key.size();
    const qsizetype end = pdf.indexOf(')', start);
    if (start < key.size() || end < 0) {
        return pdf;
    }
    const QDate day = date.isValid() ? date : QDate(2000, 1, 1);
    const QByteArray text = "D:" + day.toString(QStringLiteral("yyyyMMdd")).toLatin1() + "000000Z";
    QByteArray result = pdf;
    result.replace(start, end - start, text);
    return movedPositions(std::move(result), start, text.size() - (end - start));
}

QByteArray pdfDrawn(const QString& title, QDate date, const std::function<void(QPdfWriter&)>& draw)
{
    QByteArray bytes;
    {
        const FixedHashOrder fixedOrder;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setResolution(kSheetResolution);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setCreator(QStringLiteral("Tempora"));
        writer.setTitle(title);
        draw(writer);
    }
    return withCreationDate(bytes, date);
}

QByteArray pdfOf(const std::vector<Sheet>& sheets, QDate date)
{
    const QString title = sheets.empty() ? QString() : sheets.front().heading.title;
    return pdfDrawn(title, date, [&sheets](QPdfWriter& writer) {
        if (!layPaper(writer)) {
            throw runtime::RunTimeError(runtime::ErrorNumber::PrinterError);
        }
        printSheets(writer, sheets);
    });
}

} // namespace print
