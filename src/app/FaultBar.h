#pragma once

#include <QFrame>
#include <functional>

class QLabel;

namespace app
{

/// The line above the plan that says what could not be read, and since when; hidden while the plan
/// lacks nothing. Red: a room that looks free need not be.
class FaultBar : public QFrame
{
public:
    /// `retry` is run by the button "Réessayer".
    explicit FaultBar(std::function<void()> retry);

    /// `sentence` is empty where nothing is missing; `details` are the database's own words.
    void tell(const QString& sentence, const QString& details);

private:
    QLabel* m_text;
};

} // namespace app
