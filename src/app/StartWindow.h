#pragma once

#include <QDialog>
#include <functional>

class QLabel;

namespace app
{

/// What stands on the screen while the program waits for its database before its own window can be
/// shown: what it connects to, and a way out.
class StartWindow : public QDialog
{
public:
    /// `cancel` is run by "Annuler", by Escape and by the window's own closing.
    explicit StartWindow(std::function<void()> cancel);

    /// Shows that the database of this name is being connected to.
    void showConnecting(const QString& databaseName);

    void reject() override;

private:
    std::function<void()> m_cancel;
    QLabel* m_text;
};

} // namespace app
