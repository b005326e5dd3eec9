#pragma once

#include <QByteArray>
#include <QString>

namespace files
{

/// Collects the content lines of an iCalendar file (RFC 5545): UTF-8, each ended by CR LF and
/// folded so that no line is longer than 75 bytes and no character is torn.
class IcsLines
{
public:
    /// A property with its parameters, such as "DTSTART;VALUE=DATE", and a value that is written as
    /// it stands. Requires: neither holds a line break.
    void add(const QString& property, const QString& value);
    /// A property whose value is a text: what has a meaning in the file is escaped.
    void addText(const QString& property, const QString& text) { add(property, escaped(text)); }

    [[nodiscard]] const QByteArray& bytes() const { return m_bytes; }

    /// A text as it stands in a value. Line breaks of any kind become \n; other control characters
    /// but the tab, which no calendar may hold, are left out.
    [[nodiscard]] static QString escaped(const QString& text);

private:
    QByteArray m_bytes;
};

} // namespace files
