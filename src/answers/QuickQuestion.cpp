#include "answers/QuickQuestion.h"

#include "answers/SearchText.h"
#include "runtime/FrenchDate.h"
#include "timetable/DaySlot.h"
#include "timetable/ReadTimes.h"

#include <QRegularExpression>
#include <QStringList>

namespace answers
{
namespace
{

using timetable::Week;

constexpr qsizetype kLeastOfADay = 3;
constexpr int kMostPlaces = 99999;

/// Reads word by word; what a word means may depend on the one before it.
class LineReader
{
public:
    explicit LineReader(QDate today) : m_today(today) {}

    void read(const QString& word)
    {
        const QString form = searchForm(word);
        const bool isRead = readAfter(std::exchange(m_before, form), form) || readDay(form) ||
                            readTime(form) || readDate(word) || readPlaces(form) ||
                            readSmallWord(form);
        if (!isRead) {
            m_unread << word;
        }
    }
    QuickQuestion take()
    {
        m_question.unread = m_unread.join(u' ');
        return m_question;
    }

private:
    /// What "zone" and "semaine" announce.
    bool readAfter(const QString& before, const QString& form)
    {
        if (before == u"zone") {
            m_question.zone = timetable::readNumber(form);
            return m_question.zone.has_value();
        }
        const bool isWeek = before == u"semaine" || before == u"sem" || before == u"semaines";
        if (isWeek && (form == u"a" || form == u"b")) {
            m_question.week = form == u"a" ? Week::A : Week::B;
            return true;
        }
        return false;
    }
    bool readDay(const QString& form)
    {
        if (form == u"demain" || form.startsWith(QStringLiteral("aujourd"))) {
            m_question.date = m_today.addDays(form == u"demain" ? 1 : 0);
            return true;
        }
        int day = timetable::kMonday;
        for (const QString& name : runtime::frenchDayNames()) {
            if (form.size() >= kLeastOfADay && searchForm(name).startsWith(form)) {
                m_question.day = day;
                return true;
            }
            ++day;
        }
        return false;
    }
    bool readTime(const QString& form)
    {
        static const QRegularExpression isTime(QStringLiteral("^\\d{1,2}[h:](\\d{2})?$"));
        const auto time = isTime.match(form).hasMatch() ? timetable::readTime(form) : std::nullopt;
        if (!time) {
            return false;
        }
        (m_question.from ? m_question.to : m_question.from) = time;
        return true;
    }
    bool readDate(const QString& word)
    {
        static const QRegularExpression isDate(
            QStringLiteral("^\\d{1,2}[/.]\\d{1,2}([/.]\\d{2,4})?$"));
        const QDate date =
            isDate.match(word).hasMatch() ? runtime::fromTypedDate(word, m_today) : QDate();
        if (!date.isValid()) {
            return false;
        }
        m_question.date = date;
        return true;
    }
    bool readPlaces(const QString& form)
    {
        static const QRegularExpression isPlaces(
            QStringLiteral("^(\\d{1,5})(p|pl|places|personnes)?$"));
        const auto match = isPlaces.match(form);
        if (!match.hasMatch()) {
            return false;
        }
        m_question.places = std::min(match.captured(1).toInt(), kMostPlaces);
        return true;
    }
    /// Words that belong to a sentence and say nothing of their own.
    static bool readSmallWord(const QString& form)
    {
        static const QStringList words{
            "a",       "au",     "de",     "des",       "du",   "et",      "en",      "le",
            "la",      "les",    "une",    "un",        "pour", "salle",   "salles",  "libre",
            "libres",  "place",  "places", "personnes", "zone", "sem",     "semaine", "etudiants",
            "jusqu'a", "jusqua", "entre",  "dans",      "avec", "semaines"};
        return words.contains(form);
    }

    QDate m_today;
    QString m_before; ///< the word before, as it is searched for
    QStringList m_unread;
    QuickQuestion m_question;
};

} // namespace

QuickQuestion quickQuestion(const QString& line, QDate today)
{
    static const QRegularExpression between(QStringLiteral("[\\s,;–—]+|(?<=[hH0-9])-(?=\\d)"));
    LineReader reader(today);
    for (const QString& word : line.split(between, Qt::SkipEmptyParts)) {
        reader.read(word);
    }
    return reader.take();
}

} // namespace answers
