#include "app/StartWindow.h"

#include "app/PlainTexts.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace app
{
namespace
{

/// Pixels; a long name goes on in the next line.
constexpr int kWidth = 360;

} // namespace

StartWindow::StartWindow(std::function<void()> cancel)
    : m_cancel(std::move(cancel)), m_text(plainLabel())
{
    setObjectName(QStringLiteral("StartWindow"));
    setWindowTitle(QStringLiteral("Tempora"));
    setFixedWidth(kWidth);
    auto* column = new QVBoxLayout(this);
    m_text->setObjectName(QStringLiteral("Connecting"));
    m_text->setWordWrap(true);
    column->addWidget(m_text);
    auto* activity = new QProgressBar; // without an end: nobody knows how long it takes
    activity->setRange(0, 0);
    activity->setTextVisible(false);
    column->addWidget(activity);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(QStringLiteral("Annuler"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &StartWindow::reject);
    column->addWidget(buttons);
}

void StartWindow::showConnecting(const QString& databaseName)
{
    m_text->setText(QStringLiteral("Connexion à « %1 »…").arg(databaseName));
    show();
}

void StartWindow::reject()
{
    QDialog::reject();
    m_cancel();
}

} // namespace app
