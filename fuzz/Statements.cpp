// Names in statements: read back from them by a reader of SQL's own rules, they are what they were,
// and nothing else in the statement depends on them.
#include "db/SqlDialect.h"

#include "db/DeletionSql.h"
#include "db/EqualTextsSql.h"
#include "db/MatchMasks.h"
#include "db/SqliteProduct.h"
#include "db/SqliteSql.h"
#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "fuzz/Texts.h"
#include "lookup/RoomQuestion.h"
#include "runtime/RunTimeError.h"

#include <QRegularExpression>

using db::SqlDialect;
using fuzz::require;

namespace
{

/// A statement, taken apart.
struct Parts {
    QString words;     ///< all but the texts, each of which has left an L
    QStringList texts; ///< as the database reads them
};

/// What a server takes the character behind a backslash for.
QChar behindBackslash(QChar letter)
{
    switch (letter.unicode()) {
    case u'0':
        return u'\0';
    case u'b':
        return u'\b';
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    case u'Z':
        return u'\x1a';
    default:
        return letter;
    }
}

Parts partsOf(const QString& sql, bool backslashEscapes)
{
    Parts parts;
    for (qsizetype i = 0; i < sql.size(); ++i) {
        if (sql[i] != u'\'') {
            parts.words += sql[i];
            continue;
        }
        QString text;
        for (++i; i < sql.size(); ++i) {
            if (backslashEscapes && sql[i] == u'\\' && i + 1 < sql.size()) {
                text += behindBackslash(sql[++i]);
            } else if (sql[i] != u'\'') {
                text += sql[i];
            } else if (i + 1 < sql.size() && sql[i + 1] == u'\'') {
                text += sql[++i];
            } else {
                break;
            }
        }
        require(i < sql.size(), "each text ends", sql);
        parts.words += u'L';
        parts.texts << text;
    }
    return parts;
}

/// Texts in their hexadecimal form become plain ones.
Parts withoutHexadecimal(Parts parts)
{
    static const QRegularExpression form(QStringLiteral("cast\\(xL as text\\)|_utf8mb4 xL|L"));
    qsizetype index = 0;
    auto matches = form.globalMatch(parts.words);
    while (matches.hasNext()) {
        QString& text = parts.texts[index++];
        if (matches.next().capturedLength() > 1) {
            text = QString::fromUtf8(QByteArray::fromHex(text.toLatin1()));
        }
    }
    parts.words.replace(form, QStringLiteral("L"));
    return parts;
}

/// As many texts that nothing could be wrong with.
QStringList plainOnes(const QStringList& texts)
{
    QStringList plain;
    while (plain.size() < texts.size()) {
        plain << QStringLiteral("N%1").arg(plain.size());
    }
    return plain;
}

/// A dialect and whether its server takes backslashes for more than themselves.
struct Reading {
    SqlDialect dialect;
    bool backslashEscapes;
};

/// One of all that there are; a run for each input with each of them would be slow.
Reading reading(std::size_t choice)
{
    constexpr std::size_t products = 4;
    const SqlDialect access(false, choice / products % 2 == 0 ? SqlDialect::Quotes::AsTheyStand
                                                              : SqlDialect::Quotes::Doubled);
    switch (choice % products) {
    case 0:
        return {access.ofMySql(true), true};
    case 1:
        return {access.ofMySql(false), false};
    case 2:
        return {access.withoutBackslashes(), false};
    default:
        return {access, false};
    }
}

void checkLiterals(const QStringList& texts, const Reading& reading)
{
    for (const QString& text : texts) {
        require(reading.dialect.isOneLiteral(text) == !reading.dialect.askable({text}).isEmpty(),
                "a text can be asked about or not", text);
        if (reading.dialect.isOneLiteral(text)) {
            const Parts parts =
                partsOf(reading.dialect.literal(text) + u' ', reading.backslashEscapes);
            require(parts.words == u"L " && parts.texts.size() == 1,
                    "what is one literal is read as one", text, parts.words);
        }
        require(!reading.dialect.isRefused(text) || !reading.dialect.isOneLiteral(text),
                "one literal is not refused", text);
    }
    QStringList held = texts;
    held.removeIf([&reading](const QString& text) { return !reading.dialect.holds(text); });
    held.removeDuplicates();
    for (const QString& text : held) {
        const Parts parts = partsOf(reading.dialect.literal(text) + u' ', reading.backslashEscapes);
        require(parts.words == u"L " && parts.texts == QStringList(text), "a literal is its text",
                text, parts.words);
    }
    if (held.isEmpty()) {
        return;
    }
    const db::MatchMasks masks(QStringLiteral("Salle"), held, reading.dialect);
    const db::MatchMasks plain(QStringLiteral("Salle"), plainOnes(held), reading.dialect);
    const QString alias = QStringLiteral("a");
    const Parts list = partsOf(masks.selectList(alias), reading.backslashEscapes);
    const Parts any = partsOf(masks.anyOf(), reading.backslashEscapes);
    require(list.texts == held && any.texts == held, "each name is asked about");
    require(list.words == partsOf(plain.selectList(alias), false).words &&
                any.words == partsOf(plain.anyOf(), false).words,
            "no name changes the masks", list.words);
}

QString roomSql(const QString& room, const QString& key, const SqlDialect& dialect)
{
    lookup::RoomQuestion question{lookup::RoomQuestion::Table::ratrap, room, key, {}, {}, {}};
    question.tranche = QStringLiteral("3");
    question.date = QDate(2007, 3, 15);
    return question.sql(dialect);
}

/// The plan's own question, also in SQLite's words, and what becomes of such conditions when a row
/// is deleted.
void checkQuestion(const QString& room, const QString& key, const Reading& reading)
{
    if (room.isEmpty() || !reading.dialect.holds(room) || !reading.dialect.holds(key)) {
        return;
    }
    const QString sql = roomSql(room, key, reading.dialect);
    const QString plain = roomSql(QStringLiteral("R"), QStringLiteral("K"), reading.dialect);
    const Parts parts = partsOf(sql, reading.backslashEscapes);
    require(parts.words == partsOf(plain, false).words && parts.texts.contains(room) &&
                parts.texts.contains(key),
            "no name changes a question", sql);
    const db::DeletionSql deletion(sql);
    const db::DeletionSql ofPlain(plain);
    require(
        partsOf(deletion.deletingFirst(), reading.backslashEscapes).words ==
                partsOf(ofPlain.deletingFirst(), false).words &&
            partsOf(deletion.deletingRowId(QStringLiteral("1")), reading.backslashEscapes).words ==
                partsOf(ofPlain.deletingRowId(QStringLiteral("1")), false).words,
        "no name changes what is deleted", sql);
    if (!reading.backslashEscapes) {
        const Parts adapted = partsOf(db::adaptToSqlite(sql), false);
        const Parts adaptedPlain = partsOf(db::adaptToSqlite(plain), false);
        require(adapted.words == adaptedPlain.words && adapted.texts.contains(room) &&
                    adapted.texts.contains(key),
                "no name changes when SQLite is asked", db::adaptToSqlite(sql));
    }
}

void checkEqualTexts(const QStringList& texts)
{
    const std::vector<QString> asked(texts.begin(), texts.end());
    const QStringList plainTexts = plainOnes(texts);
    const std::vector<QString> plain(plainTexts.begin(), plainTexts.end());
    const auto check = [&](const QString& sql, const QString& plainSql) {
        for (const bool backslashEscapes : {false, true}) {
            const Parts parts = withoutHexadecimal(partsOf(sql, backslashEscapes));
            require(parts.words == partsOf(plainSql, false).words &&
                        (parts.texts.isEmpty() || parts.texts == texts),
                    "no name changes which names are equal", sql);
        }
    };
    const QString table = QStringLiteral("emplois");
    const QString column = QStringLiteral("Salle");
    check(db::sqliteEqualTextsSql({{table, column, asked}}),
          db::sqliteEqualTextsSql({{table, column, plain}}));
    for (const auto columns : {db::TextColumns::AsTheyAre, db::TextColumns::InUnicode}) {
        check(db::serverEqualTextsSql({{table, column, asked}}, columns),
              db::serverEqualTextsSql({{table, column, plain}}, columns));
    }
}

/// The texts of the statement stand in that for SQLite, too, in their order.
void checkTextsStay(const QString& sql, const QString& adapted)
{
    const QStringList texts = partsOf(sql, false).texts;
    qsizetype next = 0;
    for (const QString& text : partsOf(adapted, false).texts) {
        next += next < texts.size() && texts[next] == text ? 1 : 0;
    }
    require(next == texts.size(), "SQLite is asked about the same texts", sql, adapted);
}

/// A whole statement into which names have brought what they like.
void checkAnyStatement(const QString& sql)
{
    const QString adapted = db::adaptToSqlite(sql);
    // A date right behind a text would grow together with it; no database takes such a statement.
    static const QRegularExpression otherQuotes(QStringLiteral("[\"`\\[]|'#|#'"));
    if (!sql.contains(otherQuotes) && sql.count(u'\'') % 2 == 0) {
        checkTextsStay(sql, adapted);
    }
    require(adapted.size() <= 3 * sql.size(), "a statement stays as long as it is", sql);
    const bool isAllowed =
        runtime::skipOnError([&] { static_cast<void>(db::SqliteProduct().adapted(sql)); });
    require(isAllowed != sql.contains(u"load_extension", Qt::CaseInsensitive),
            "no statement loads a library", sql);
    runtime::skipOnError([&] { static_cast<void>(db::DeletionSql(sql).selectingRowId()); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    const QByteArray kind = input.bytes();
    if (kind == "sql") {
        checkAnyStatement(input.text());
        return 0;
    }
    constexpr int mostTexts = 40;
    QStringList texts;
    while (!input.isAtEnd() && texts.size() < mostTexts) {
        texts << fuzz::throughUtf8(input.text());
    }
    texts.removeDuplicates();
    const Reading chosen = reading(size);
    checkLiterals(texts, chosen);
    checkQuestion(texts.value(0), texts.value(1), chosen);
    checkEqualTexts(texts);
    return 0;
}
