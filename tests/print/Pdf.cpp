#include "print/Pdf.h"

#include "support/ChildProgram.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace test
{
namespace
{

QByteArray poppler(const QString& program, const QStringList& arguments)
{
    return runProgram(findProgram(program), arguments);
}

} // namespace

Pdf::Pdf(const QByteArray& bytes)
{
    static int counter = 0;
    m_path = processFolder() + QString("/document%1.pdf").arg(++counter);
    QDir().mkpath(processFolder());
    QFile file(m_path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(bytes);
    }
}

QString Pdf::text(int page) const
{
    QStringList arguments{"-enc", "UTF-8"};
    if (page > 0) {
        arguments << "-f" << QString::number(page) << "-l" << QString::number(page);
    }
    return QString::fromUtf8(poppler("pdftotext", arguments << m_path << "-")).simplified();
}

QString Pdf::fact(const QString& name) const
{
    const QString all = QString::fromUtf8(poppler("pdfinfo", {"-isodates", m_path}));
    for (const QString& line : all.split('\n')) {
        if (line.startsWith(name + ':')) {
            return line.mid(name.size() + 1).trimmed();
        }
    }
    return {};
}

int Pdf::pageCount() const
{
    return fact("Pages").toInt();
}

QStringList Pdf::fonts() const
{
    QStringList lines = QString::fromUtf8(poppler("pdffonts", {m_path})).split('\n');
    lines.removeAll("");
    return lines.mid(2);
}

QStringList Pdf::missingFonts() const
{
    static const QRegularExpression embedded("\\s(yes|no)\\s+(yes|no)\\s+(yes|no)\\s");
    QStringList missing;
    for (const QString& line : fonts()) {
        if (embedded.match(line).captured(1) != "yes") {
            missing << line.section(' ', 0, 0);
        }
    }
    return missing;
}

QImage Pdf::picture(int page, int dotsPerInch) const
{
    const QByteArray bytes =
        poppler("pdftoppm", {"-r", QString::number(dotsPerInch), "-f", QString::number(page), "-l",
                             QString::number(page), "-png", m_path});
    return QImage::fromData(bytes, "PNG");
}

QRectF Pdf::printed(int page) const
{
    constexpr int dotsPerInch = 96;
    constexpr double millimetres = 25.4 / dotsPerInch;
    const QImage image = picture(page, dotsPerInch).convertToFormat(QImage::Format_RGB32);
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != qRgb(255, 255, 255)) {
                found |= QRect(x, y, 1, 1);
            }
        }
    }
    return {found.x() * millimetres, found.y() * millimetres, found.width() * millimetres,
            found.height() * millimetres};
}

} // namespace test
