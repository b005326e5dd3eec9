#pragma once

#include <QByteArray>
#include <QStringView>
#include <cstddef>
#include <optional>

namespace files
{

/// Writes JSON member by member, byte for byte as Qt's QJsonDocument indents it. Long lists take a
/// tenth of the time that building the document first would.
///
/// Whoever writes says what comes next: in an object a key, then its value. Keys come in the order
/// of their characters, as Qt's objects have them; nobody checks that.
class JsonWriter
{
public:
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }
    /// ASCII without quotes and backslashes.
    void key(const char* name);

    void text(QStringView text);
    void number(int number);
    void number(double number); ///< finite
    void null();

    template <typename Number>
    void orNull(const std::optional<Number>& value)
    {
        value ? number(*value) : null();
    }

    /// How much is written, for `repeat`.
    [[nodiscard]] qsizetype size() const { return m_bytes.size(); }
    /// Where a value of an array that is written next begins.
    [[nodiscard]] qsizetype beginOfElement() const { return size() + (m_isFirst ? 0 : 2); }
    /// Writes the element of an array again that lies between these two places. Requires: it is as
    /// deep as this one.
    void repeatElement(qsizetype begin, qsizetype end);

    /// The whole text.
    [[nodiscard]] QByteArray take();

private:
    void begin(char bracket);
    void end(char bracket);
    void beginLine();
    void beginValue();
    void indent();

    QByteArray m_bytes;
    int m_depth = 0;
    bool m_isFirst = true; ///< nothing stands yet in the innermost array or object
    bool m_hasKey = false; ///< a key waits for its value
};

} // namespace files
