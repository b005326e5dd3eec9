#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace shell
{

/// One option as the parser and --help know it.
struct OptionText {
    const char* name;
    QString value;   ///< what it accepts; null for a switch
    QString meaning; ///< in French
};

/// The options as --help lists them, one a line.
[[nodiscard]] QString optionTable(const std::vector<OptionText>& options);

/// Reads the values of known options out of the program's arguments. Every mistake is a UsageError
/// that names the option and what it accepts.
class OptionReader
{
public:
    /// `arguments` starts with the program's name; `options` outlive the reader. Error: UsageError
    /// for an unknown option, a missing value, one that is not wanted, and for whatever is no
    /// option.
    OptionReader(const QStringList& arguments, const std::vector<OptionText>& options);

    [[nodiscard]] bool has(const char* name) const;
    /// Empty where the option is not given.
    [[nodiscard]] QString text(const char* name) const;
    [[nodiscard]] std::optional<QString> optionalText(const char* name) const;
    [[nodiscard]] std::optional<int> number(const char* name, int least, int most) const;
    /// Position of the value in the list of words that the option accepts.
    [[nodiscard]] std::optional<int> word(const char* name, const QStringList& words) const;
    /// Refuses options that go with another one alone.
    void require(const char* needed, const std::vector<const char*>& options) const;
    /// Refuses options that do not go with this one, where it is given.
    void exclude(const char* name, const std::vector<const char*>& others) const;

    [[noreturn]] void fail(const char* name, const QString& problem) const;
    [[noreturn]] void failWithValue(const char* name) const;

private:
    [[noreturn]] void fail(const QString& name, const QString& problem) const;
    [[noreturn]] void failToParse(const QStringList& arguments) const;
    [[nodiscard]] bool takesValue(const QString& name) const;
    void refuseOptionsAsValues() const;

    const std::vector<OptionText>& m_options;
    QCommandLineParser m_parser;
};

} // namespace shell
