#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>
#include <QString>

namespace test
{

/// A PDF document as other programs read it (poppler's).
class Pdf
{
public:
    explicit Pdf(const QByteArray& bytes);

    /// The text of a page, counted from 1, line ends as blanks; of all pages when it is 0.
    [[nodiscard]] QString text(int page = 0) const;
    [[nodiscard]] int pageCount() const;
    /// What the document says about itself: "Title", "CreationDate", "Page size".
    [[nodiscard]] QString fact(const QString& name) const;
    /// The fonts' names that are not embedded.
    [[nodiscard]] QStringList missingFonts() const;
    [[nodiscard]] QStringList fonts() const;
    /// A picture of a page.
    [[nodiscard]] QImage picture(int page = 1, int dotsPerInch = 72) const;
    /// The smallest rectangle of the page that holds all that is not white, in millimetres.
    [[nodiscard]] QRectF printed(int page = 1) const;

private:
    QString m_path;
};

} // namespace test
