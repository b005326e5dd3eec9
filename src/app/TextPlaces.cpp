#include "app/TextPlaces.h"

#include "answers/SearchText.h"

namespace app
{
namespace
{

/// A text as it is searched, and which character of the text each of its own comes from.
struct Searched {
    QString form;
    std::vector<int> origins;
};

QString formOf(QChar character)
{
    if (character == u'’' || character == u'‘') {
        return QStringLiteral("'");
    }
    return character.isSpace() ? QStringLiteral(" ") : answers::searchForm(character);
}

Searched searched(const QString& text)
{
    Searched result;
    for (int position = 0; position < text.size(); ++position) {
        const QString form = formOf(text.at(position));
        result.form += form;
        result.origins.insert(result.origins.end(), static_cast<std::size_t>(form.size()),
                              position);
    }
    return result;
}

} // namespace

std::vector<TextPlace> placesOf(const QString& text, const QString& wanted)
{
    const QString sought = searched(wanted.trimmed()).form;
    std::vector<TextPlace> places;
    if (sought.isEmpty()) {
        return places;
    }
    const Searched all = searched(text);
    qsizetype found = all.form.indexOf(sought);
    while (found >= 0) {
        const auto first = static_cast<std::size_t>(found);
        const int start = all.origins[first];
        const int last = all.origins[first + static_cast<std::size_t>(sought.size()) - 1];
        places.push_back({start, last - start + 1});
        found = all.form.indexOf(sought, found + sought.size());
    }
    return places;
}

} // namespace app
