#include "app/Application.h"

#include "support/RuntimeMatchers.h"

#include <QEvent>
#include <QScopeGuard>
#include <stdexcept>

using runtime::ErrorNumber;

namespace
{

/// An object whose event handler fails.
class Failing : public QObject
{
public:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::User) {
            throw std::out_of_range("no such row");
        }
        if (event->type() == QEvent::ParentChange) {
            throw runtime::RunTimeError(ErrorNumber::Overflow);
        }
        return QObject::event(event);
    }
};

} // namespace

TEST(Application, tellsOfWhateverLeavesAnEventHandler)
{
    auto& application = dynamic_cast<app::Application&>(*QCoreApplication::instance());
    const auto usual = application.onFault;
    const auto restore = qScopeGuard([&] { application.onFault = usual; });
    std::vector<runtime::RunTimeError> told;
    application.onFault = [&told](const runtime::RunTimeError& fault) { told.push_back(fault); };
    Failing object;
    QEvent unexpected(QEvent::User);
    QCoreApplication::sendEvent(&object, &unexpected);
    QEvent expected(QEvent::ParentChange);
    QCoreApplication::sendEvent(&object, &expected);
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0].number(), ErrorNumber::InternalError);
    EXPECT_EQ(told[0].activity(), "Faute inattendue du programme : no such row");
    EXPECT_EQ(told[1].number(), ErrorNumber::Overflow);
}
