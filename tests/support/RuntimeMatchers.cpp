#include "support/RuntimeMatchers.h"

namespace test
{

runtime::RunTimeError errorOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const runtime::RunTimeError& error) {
        return error;
    }
    ADD_FAILURE() << "no run-time error";
    return {runtime::ErrorNumber{}, QStringLiteral("no error")};
}

runtime::ErrorNumber errorNumberOf(const std::function<void()>& action)
{
    return errorOf(action).number();
}

} // namespace test

void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}

void PrintTo(QDate date, std::ostream* stream)
{
    *stream << (date.isValid() ? date.toString(Qt::ISODate).toStdString() : "no date");
}

void runtime::PrintTo(ErrorNumber number, std::ostream* stream)
{
    *stream << static_cast<int>(number) << " " << platformErrorText(number).toStdString();
}
