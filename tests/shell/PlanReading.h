#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

namespace test
{

/// The texts of the boxes that the plan shows in a room, by slot; empty when it shows no such room.
[[nodiscard]] inline QMap<int, QString> boxTexts(const QJsonObject& plan, const QString& room)
{
    QMap<int, QString> texts;
    for (const QJsonValue row : plan["rows"].toArray()) {
        if (row["room"].toString() == room) {
            for (const QJsonValue box : row["boxes"].toArray()) {
                texts[box["slot"].toInt()] = box["text"].toString();
            }
        }
    }
    return texts;
}

/// The rooms that the plan shows, from row 1 on.
[[nodiscard]] inline QStringList shownRooms(const QJsonObject& plan)
{
    QStringList rooms;
    for (const QJsonValue row : plan["rows"].toArray()) {
        rooms.append(row["room"].toString());
    }
    return rooms;
}

/// The colours of the rows that the plan shows, from row 1 on.
[[nodiscard]] inline QStringList rowColors(const QJsonObject& plan)
{
    QStringList colors;
    for (const QJsonValue row : plan["rows"].toArray()) {
        colors.append(row["color"].toString());
    }
    return colors;
}

/// The totals line, "-" for a hidden total.
[[nodiscard]] inline QStringList totals(const QJsonObject& plan)
{
    QStringList captions;
    for (const QJsonValue total : plan["totals"].toArray()) {
        captions.append(total.toString("-"));
    }
    return captions;
}

} // namespace test
