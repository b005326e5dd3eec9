// Fields as a driver brings them, one by one or packed into one text, and what is asked of them.
#include "db/FetchedFields.h"

#include "db/PackedRow.h"
#include "db/Row.h"
#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "fuzz/Texts.h"
#include "runtime/RunTimeError.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <array>

using fuzz::require;

namespace
{

/// The type of a column by a letter.
db::FieldForm formOf(char letter)
{
    switch (letter) {
    case 'b':
        return {SQL_BIT, SQL_C_BIT};
    case 'i':
        return {SQL_INTEGER, SQL_C_CHAR};
    case 'I':
        return {SQL_BIGINT, SQL_C_WCHAR};
    case 'r':
        return {SQL_DOUBLE, SQL_C_CHAR};
    case 'd':
        return {SQL_TYPE_TIMESTAMP, SQL_C_CHAR};
    case 'o':
        return {SQL_BIT, SQL_C_CHAR};
    case 'w':
        return {SQL_WVARCHAR, SQL_C_WCHAR};
    default:
        return {SQL_VARCHAR, SQL_C_BINARY};
    }
}

/// The text of the bytes, taken one by one.
QString textOf(const QByteArray& bytes, SQLSMALLINT cType)
{
    if (cType != SQL_C_WCHAR) {
        return fuzz::textOfUtf8(bytes); // a mark at its beginning is part of a name
    }
    constexpr int byteBits = 8;
    QString text;
    for (qsizetype i = 0; i + 1 < bytes.size(); i += 2) {
        text += QChar(static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                            static_cast<unsigned char>(bytes[i + 1]) << byteBits));
    }
    return text;
}

/// Whatever is asked of a value, the answer is one or a run-time error, and the answers agree.
void checkQuestions(const db::Value& value)
{
    runtime::skipOnError([&] {
        const auto narrow = value.toInt16();
        require(value.toInt32() == narrow, "16 bits and 32 agree", value.toText());
    });
    runtime::skipOnError([&] {
        const bool isTrue = value.toInt32() != 0;
        require(!isTrue || value.toBoolean(), "a number is true", value.toText());
    });
    runtime::skipOnError([&] { require(value.toDate().isValid(), "a date is one"); });
    require(value.isNull() == !runtime::skipOnError([&] { static_cast<void>(value.toText()); }),
            "all but a null is a text");
}

/// The value of a field with these bytes.
void checkField(const db::Value& value, const QByteArray& bytes, const db::FieldForm& form)
{
    checkQuestions(value);
    if (form.cType == SQL_C_BIT) {
        require(value == db::Value(!bytes.isEmpty() && bytes.front() != 0), "a bit is a bit");
        return;
    }
    const QString text = textOf(bytes, form.cType);
    const bool isText = std::holds_alternative<QString>(value.variant());
    require(!isText || value.toText() == text, "a text is what was sent", text);
    require(isText || formOf('v').type != form.type, "a text stays one", text);
    if (std::holds_alternative<QDate>(value.variant())) {
        require(text.startsWith(value.toText()), "a date is as it was sent", text);
    }
    if (const auto* integer = std::get_if<std::int64_t>(&value.variant())) {
        require(text.toLongLong() == *integer, "an integer is as it was sent", text);
    }
}

/// Forms of the columns, a letter each, then fields row by row; one that is "~" is null.
void checkFetched(fuzz::Input& input)
{
    std::vector<db::FieldForm> forms;
    QStringList names;
    for (const char letter : input.bytes().left(40)) {
        forms.push_back(formOf(letter));
        names << QString::number(names.size());
    }
    if (forms.empty()) {
        return;
    }
    const auto fields =
        std::make_shared<db::FetchedFields>(std::make_shared<db::Columns>(names), forms);
    QByteArrayList sent;
    while (!input.isAtEnd() || static_cast<std::size_t>(sent.size()) % forms.size() != 0) {
        const QByteArray bytes = sent.emplace_back(input.bytes());
        const auto size = static_cast<std::size_t>(bytes.size());
        if (bytes == "~") {
            fields->endNull();
            continue;
        }
        fields->append(bytes.constData(), size / 3); // a driver brings long ones in pieces
        fields->append(bytes.constData() + size / 3, size - size / 3);
        fields->end();
    }
    for (qsizetype index = 0; index < sent.size(); ++index) {
        const std::size_t column = static_cast<std::size_t>(index) % forms.size();
        const db::Row row(fields, static_cast<std::size_t>(index) / forms.size());
        const db::Value value = row.field(static_cast<int>(column));
        if (sent[index] == "~") {
            require(value.isNull(), "a null is null");
        } else {
            checkField(value, sent[index], forms[column]);
        }
    }
}

/// Names of columns; the last one is looked for.
void checkColumns(fuzz::Input& input)
{
    QStringList names;
    while (!input.isAtEnd()) {
        names << input.text();
    }
    if (names.isEmpty()) {
        return;
    }
    const QString wanted = names.takeLast();
    const db::Columns columns(names);
    for (qsizetype index = 0; index < names.size(); ++index) {
        require(columns.position(names[index]) == names.indexOf(names[index]),
                "a column is found by its name", names[index]);
    }
    const auto folded = [](const QString& name) {
        return name.normalized(QString::NormalizationForm_C).toCaseFolded();
    };
    int position = -1;
    const bool isFound = runtime::skipOnError([&] { position = columns.position(wanted); });
    const bool isThere = std::any_of(names.begin(), names.end(), [&](const QString& name) {
        return folded(name) == folded(wanted);
    });
    require(isFound == isThere, "a column is found when it is there", wanted);
    require(!isFound || folded(names[position]) == folded(wanted), "it is the one", wanted);
}

/// An array of JSON that a row could be: texts, numbers and nulls, without blanks between them.
/// None with a byte order mark, which the toolkit's reader drops at the beginning of a text.
std::optional<QJsonArray> plainArray(const QString& text)
{
    static const QString blanks = QStringLiteral(" \t\r\n");
    const bool hasBlanks =
        std::any_of(text.begin(), text.end(), [](QChar c) { return blanks.contains(c); });
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    const bool hasMark = text.contains(QChar(QChar::ByteOrderMark));
    if (hasBlanks || hasMark || !document.isArray() || fuzz::throughUtf8(text) != text) {
        return std::nullopt;
    }
    const QJsonArray array = document.array();
    const bool isPlain =
        std::all_of(array.begin(), array.end(), [](const QJsonValueConstRef& value) {
            return value.isString() || value.isDouble() || value.isNull();
        });
    return isPlain && !array.isEmpty() ? std::optional(array) : std::nullopt;
}

/// How many fields there should be, then a row as the database packs it.
void checkPacked(db::Packing packing, fuzz::Input& input)
{
    const int count = input.number(1, 40);
    const QString row = input.text();
    db::PackedRow packed(packing, static_cast<std::size_t>(count));
    const bool isOne = packed.unpack(row);
    for (const QStringView field : packed.fields()) {
        require(!isOne || field.size() <= row.size(), "a field is part of its row", row);
    }
    const auto array = packing == db::Packing::Json ? plainArray(row) : std::nullopt;
    if (!array) {
        return;
    }
    require(isOne == (array->size() == count), "a row has as many fields as columns", row);
    for (int index = 0; isOne && index < count; ++index) {
        const QStringView field = packed.fields()[static_cast<std::size_t>(index)];
        const QJsonValue value = array->at(index);
        require(field.isNull() == value.isNull(), "a null is null", row);
        require(!value.isString() || field == value.toString(), "a text is what was packed", row,
                field.toString());
        require(!value.isDouble() || field.toDouble() == value.toDouble(),
                "a number is what was packed", row, field.toString());
    }
}

/// Fields, packed as a database does it.
void checkBothPackings(fuzz::Input& input)
{
    QStringList separated;
    QJsonArray array;
    std::vector<std::optional<QString>> fields;
    while (!input.isAtEnd()) {
        const QString text = fuzz::throughUtf8(input.text().remove(u'\x1f').remove(u'\x1e'));
        const bool isNull = text == u"~";
        fields.push_back(isNull ? std::nullopt : std::optional(text));
        separated << (isNull ? QStringLiteral("\x1e") : text);
        array << (isNull ? QJsonValue() : QJsonValue(text));
    }
    if (fields.empty()) {
        return;
    }
    const std::array rows{QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact)),
                          separated.join(u'\x1f')};
    for (const db::Packing packing : {db::Packing::Json, db::Packing::Separated}) {
        const QString& row = rows.at(static_cast<std::size_t>(packing));
        db::PackedRow packed(packing, fields.size());
        require(packed.unpack(row), "a row is one", row);
        for (std::size_t index = 0; index < fields.size(); ++index) {
            const QStringView field = packed.fields()[index];
            require(field.isNull() == !fields[index] && field == fields[index].value_or(QString()),
                    "a field is what was packed", row, field.toString());
        }
        require(!db::PackedRow(packing, fields.size() + 1).unpack(row),
                "a row has no more fields than were packed", row);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    const QByteArray kind = input.bytes();
    if (kind == "fetched") {
        checkFetched(input);
    } else if (kind == "columns") {
        checkColumns(input);
    } else if (kind == "json") {
        checkPacked(db::Packing::Json, input);
    } else if (kind == "separated") {
        checkPacked(db::Packing::Separated, input);
    } else {
        checkBothPackings(input);
    }
    return 0;
}
