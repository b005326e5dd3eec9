#include "files/JsonWriter.h"

#include "support/RuntimeMatchers.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

using files::JsonWriter;

namespace
{

QByteArray indented(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

} // namespace

TEST(JsonWriter, writesAnObjectAsQtDoes)
{
    JsonWriter json;
    json.beginObject();
    json.key("count");
    json.number(-12);
    json.key("list");
    json.beginArray();
    json.beginObject();
    json.key("name");
    json.text(u"A101");
    json.endObject();
    json.number(1);
    json.null();
    json.endArray();
    json.key("share");
    json.number(0.1);
    json.endObject();
    EXPECT_EQ(json.take(),
              indented({{"count", -12},
                        {"list", QJsonArray{QJsonObject{{"name", "A101"}}, 1, QJsonValue()}},
                        {"share", 0.1}}));
}

TEST(JsonWriter, writesWhatIsEmptyAsQtDoes)
{
    JsonWriter json;
    json.beginObject();
    json.key("list");
    json.beginArray();
    json.endArray();
    json.key("text");
    json.text(QStringView());
    json.endObject();
    EXPECT_EQ(json.take(), indented({{"list", QJsonArray()}, {"text", ""}}));
}

TEST(JsonWriter, writesEveryCharacterAsQtDoes)
{
    QString all;
    for (int code = 0; code <= 0xffff; ++code) { // halves of characters on their own, too
        all += QChar(code);
        all += u'.';
    }
    all += QString::fromUcs4(U"\U0001f600");
    for (const QString& text : {all, all.left(0x40), QString("aé€ß\u07ff\u0800\uffff")}) {
        JsonWriter json;
        json.beginObject();
        json.key("text");
        json.text(text);
        json.endObject();
        EXPECT_EQ(json.take(), indented({{"text", text}}));
    }
    JsonWriter json;
    json.beginArray();
    QJsonArray expected;
    for (int code = 0; code <= 0xffff; ++code) {
        const QString text = QString(QChar(code));
        json.text(text);
        expected.append(text);
    }
    json.endArray();
    EXPECT_EQ(json.take(), QJsonDocument(expected).toJson(QJsonDocument::Indented));
}

TEST(JsonWriter, writesNumbersAsQtDoes)
{
    const std::vector<double> numbers{0, 0.5, 1, 12, 1.0 / 3, 0.0625, 1e-9, 123456.75, 2.0 / 7};
    JsonWriter json;
    json.beginArray();
    QJsonArray expected;
    for (const double number : numbers) {
        json.number(number);
        expected.append(number);
    }
    json.orNull(std::optional<int>());
    expected.append(QJsonValue());
    json.orNull(std::optional(7));
    expected.append(7);
    json.endArray();
    EXPECT_EQ(json.take(), QJsonDocument(expected).toJson(QJsonDocument::Indented));
}

TEST(JsonWriter, repeatsAnElementAmongOthersAndAsTheFirstOne)
{
    const auto writeList = [](JsonWriter& json, auto writeFirst, auto writeSecond) {
        json.beginArray();
        writeFirst();
        writeSecond();
        json.endArray();
    };
    JsonWriter json;
    qsizetype begin = 0;
    qsizetype end = 0;
    const auto write = [&] {
        begin = json.beginOfElement();
        json.beginObject();
        json.key("room");
        json.text(u"A101");
        json.endObject();
        end = json.size();
    };
    const auto repeat = [&] { json.repeatElement(begin, end); };
    json.beginArray();
    writeList(
        json, [&] { json.null(); }, write);
    writeList(json, repeat, repeat);
    json.endArray();
    const QJsonObject room{{"room", "A101"}};
    const QJsonArray expected{QJsonArray{QJsonValue(), room}, QJsonArray{room, room}};
    EXPECT_EQ(json.take(), QJsonDocument(expected).toJson(QJsonDocument::Indented));
}
