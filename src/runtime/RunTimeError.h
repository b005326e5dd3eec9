#pragma once

#include <QString>
#include <exception>
#include <type_traits>
#include <utility>

namespace runtime
{

/// Numbers of the run-time errors that the program can end with, as the legacy platform counts
/// them. Their texts come from `platformErrorText`; database errors carry the driver's own text.
enum class ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    InternalError = 51, ///< a fault of the program itself or of a library
    FileNotFound = 53,
    PathFileAccess = 75,
    InvalidUseOfNull = 94,
    InvalidFileFormat = 321,
    PrinterError = 482,
    ItemNotFound = 3265,
    DatabaseFailure = -2147467259,  ///< 80004005: no connection, or the driver failed
    StatementRefused = -2147217900, ///< 80040E14: the database refuses the statement
    TableMissing = -2147217865,     ///< 80040E37
};

/// The platform's own text of an error number; empty for the database errors.
[[nodiscard]] QString platformErrorText(ErrorNumber number);

/// What an error number means, as a sentence in French for the user.
[[nodiscard]] QString explanationOf(ErrorNumber number);

/// A text of a length that a message can show: of a longer one, its beginning, "…" and its end; of
/// many lines, the first ones.
[[nodiscard]] QString shortened(const QString& text);

/// A fault that nothing traps: it travels to the one place that shows it and ends the program.
/// Copies share nothing that can throw while the exception is in flight.
class RunTimeError : public std::exception
{
public:
    explicit RunTimeError(ErrorNumber number);
    RunTimeError(ErrorNumber number, const QString& text);

    [[nodiscard]] ErrorNumber number() const { return m_number; }
    /// The platform's or the driver's text, shortened. Never holds a password.
    [[nodiscard]] const QString& text() const { return m_text; }
    /// What the fault means, as a sentence in French: as the number has it, unless told by
    /// `explain`, which takes the sentence without its capital letter and its full stop.
    [[nodiscard]] const QString& explanation() const { return m_explanation; }
    void explain(const QString& words);
    /// What was being done and with which value, in French, for the user, shortened; may be empty.
    [[nodiscard]] const QString& activity() const { return m_activity; }
    /// The innermost activity stays: it names the value at fault.
    void addActivity(const QString& activity);
    /// Where in the plan that was, on a line of its own behind the activity.
    void addPlace(const QString& place);

    /// "Run-time error '13':", an empty line and the text.
    [[nodiscard]] QString numberAndText() const;
    /// The same, an empty line and the activity when there is one.
    [[nodiscard]] QString message() const;
    [[nodiscard]] const char* what() const noexcept override { return m_what.constData(); }

private:
    ErrorNumber m_number;
    QString m_text;
    QString m_explanation;
    QString m_activity;
    QByteArray m_what; // UTF-8 of the text, kept so that what() cannot fail
};

/// The exception that is being handled, whatever its type, as a run-time error: what no code
/// expects is told like all else. Requires: called from a catch block.
[[nodiscard]] RunTimeError faultInFlight();

/// Runs `action`; a run-time error that leaves it is told what was being done.
template <typename Action>
decltype(auto) during(const QString& activity, Action&& action)
{
    try {
        return std::forward<Action>(action)();
    } catch (RunTimeError& error) {
        error.addActivity(activity);
        throw;
    }
}

/// Runs `step` and skips it when it fails with a run-time error: the rule "a step that fails is
/// skipped and the next one runs" of the routines that trap errors. Tells whether it succeeded.
template <typename Step>
bool skipOnError(Step&& step)
{
    try {
        std::forward<Step>(step)();
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

} // namespace runtime
