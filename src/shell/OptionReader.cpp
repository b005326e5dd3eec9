#include "shell/OptionReader.h"

#include "shell/CommandLine.h"

#include <QRegularExpression>
#include <algorithm>

namespace shell
{

QString optionTable(const std::vector<OptionText>& options)
{
    QString text;
    for (const OptionText& option : options) {
        QString left = QStringLiteral("  --") + QString::fromLatin1(option.name);
        if (!option.value.isNull()) {
            left += u' ' + option.value;
        }
        text += left.leftJustified(48) + u' ' + option.meaning + u'\n';
    }
    return text;
}

OptionReader::OptionReader(const QStringList& arguments, const std::vector<OptionText>& options)
    : m_options(options)
{
    m_parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const OptionText& text : m_options) {
        QCommandLineOption option(QString::fromLatin1(text.name));
        if (!text.value.isNull()) {
            option.setValueName(text.value);
        }
        m_parser.addOption(option);
    }
    // Qt's own choice of platform plugin, for machines where the environment cannot make it.
    m_parser.addOption(QCommandLineOption(QStringLiteral("platform"), {}, {QStringLiteral("p")}));
    if (!m_parser.parse(arguments)) {
        failToParse(arguments);
    }
    refuseOptionsAsValues();
    if (!m_parser.positionalArguments().isEmpty()) {
        throw UsageError(QStringLiteral("Argument inattendu : « %1 » ; voir --help")
                             .arg(m_parser.positionalArguments().constFirst()));
    }
}

bool OptionReader::has(const char* name) const
{
    return m_parser.isSet(QString::fromLatin1(name));
}

QString OptionReader::text(const char* name) const
{
    return m_parser.value(QString::fromLatin1(name));
}

std::optional<QString> OptionReader::optionalText(const char* name) const
{
    return has(name) ? std::optional(text(name)) : std::nullopt;
}

std::optional<int> OptionReader::number(const char* name, int least, int most) const
{
    if (!has(name)) {
        return std::nullopt;
    }
    bool ok = false;
    const int value = text(name).toInt(&ok);
    if (!ok || value < least || value > most) {
        failWithValue(name);
    }
    return value;
}

std::optional<int> OptionReader::word(const char* name, const QStringList& words) const
{
    if (!has(name)) {
        return std::nullopt;
    }
    const auto index = static_cast<int>(words.indexOf(text(name)));
    if (index < 0) {
        failWithValue(name);
    }
    return index;
}

void OptionReader::require(const char* needed, const std::vector<const char*>& options) const
{
    for (const char* option : options) {
        if (has(option) && !has(needed)) {
            fail(option, QStringLiteral("demande --") + QString::fromLatin1(needed));
        }
    }
}

void OptionReader::exclude(const char* name, const std::vector<const char*>& others) const
{
    for (const char* other : others) {
        if (has(name) && has(other)) {
            fail(name, QStringLiteral("ne va pas avec --") + QString::fromLatin1(other));
        }
    }
}

void OptionReader::fail(const char* name, const QString& problem) const
{
    fail(QString::fromLatin1(name), problem);
}

void OptionReader::fail(const QString& name, const QString& problem) const
{
    for (const OptionText& option : m_options) {
        if (!option.value.isNull() && name == QLatin1String(option.name)) {
            throw UsageError(QStringLiteral("--%1 : %2 ; valeurs acceptées : %3")
                                 .arg(name, problem, option.value));
        }
    }
    throw UsageError(QStringLiteral("--%1 : %2").arg(name, problem));
}

void OptionReader::failWithValue(const char* name) const
{
    fail(name, QStringLiteral("valeur « %1 » refusée").arg(text(name)));
}

bool OptionReader::takesValue(const QString& name) const
{
    return std::any_of(m_options.begin(), m_options.end(), [&](const OptionText& option) {
        return !option.value.isNull() && name == QLatin1String(option.name);
    });
}

/// The parser's own complaint in one line that names the option and what it accepts.
void OptionReader::failToParse(const QStringList& arguments) const
{
    if (!m_parser.unknownOptionNames().isEmpty()) {
        throw UsageError(QStringLiteral("Option inconnue : --%1 ; options acceptées : voir --help")
                             .arg(m_parser.unknownOptionNames().constFirst()));
    }
    for (const QString& argument : arguments) {
        const QString switched = argument.section(u'=', 0, 0).mid(2);
        if (argument.startsWith(u"--") && argument.contains(u'=') && !takesValue(switched)) {
            fail(switched, QStringLiteral("n’accepte pas de valeur"));
        }
    }
    static const QRegularExpression dashes(QStringLiteral("^-+"));
    QString last = arguments.constLast();
    fail(last.remove(dashes), QStringLiteral("il manque une valeur"));
}

/// The parser takes whatever follows an option for its value, the next option included.
void OptionReader::refuseOptionsAsValues() const
{
    for (const OptionText& option : m_options) {
        if (text(option.name).startsWith(u"--")) {
            fail(option.name, QStringLiteral("il manque une valeur"));
        }
    }
}

} // namespace shell
