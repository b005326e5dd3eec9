#include "app/asking/AnswerWindow.h"

#include "answers/Words.h"
#include "app/PlainTexts.h"
#include "app/SaveDialog.h"
#include "files/WholeFile.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QShortcut>
#include <QStyle>
#include <utility>

namespace app
{

namespace
{

/// That so many meetings play no part in any answer.
QString noDayWords(std::size_t count)
{
    return count == 0   ? QString()
           : count == 1 ? QStringLiteral("  ·  1 séance sans jour ne compte pas")
                        : QStringLiteral("  ·  %1 séances sans jour ne comptent pas").arg(count);
}

} // namespace

AnswerWindow::AnswerWindow(AnswerDesk& desk, Ties ties, const QString& title, QWidget* parent)
    : QWidget(parent, Qt::Window), m_desk(desk), m_ties(std::move(ties)), m_line(new QWidget),
      m_status(plainLabel()),
      m_saved(new SavedLink(m_ties.open, [this](const QString& sentence) { tell(sentence); }))
{
    setWindowTitle(title);
    m_status->setObjectName(QStringLiteral("AnswerStatus"));
    m_status->setWordWrap(true);
    m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* row = new QHBoxLayout(m_line);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_status, 1);
    row->addWidget(m_saved);
    auto* close = new QShortcut(Qt::Key_Escape, this);
    connect(close, &QShortcut::activated, this, &QWidget::close);
}

void AnswerWindow::present()
{
    m_isPresented = true;
    show();
    raise();
    activateWindow();
    answer();
}

void AnswerWindow::answer()
{
    m_desk.ask([this] {
        const shell::Inquiry* inquiry = m_desk.inquiry();
        if (inquiry == nullptr) {
            clearAnswer();
            tell(m_desk.fault(), true);
        } else if (!inquiry->hasCourses()) {
            clearAnswer();
            tell(QStringLiteral("La période « %1 » n’a aucun cours.").arg(inquiry->period()), true);
        } else if (const QString noRoom = inquiry->whyNoRoom({}); !noRoom.isEmpty()) {
            clearAnswer();
            tell(noRoom + u'.', true);
        } else {
            showAnswer(*inquiry);
        }
    });
}

void AnswerWindow::tell(const QString& sentence, bool isWarning)
{
    const shell::Inquiry* inquiry = m_desk.inquiry();
    QString text = sentence;
    QString details;
    if (inquiry != nullptr) {
        text += QStringLiteral("  ·  période %1, lue à %2")
                    .arg(inquiry->period(), inquiry->readAt().toString(QStringLiteral("HH'h'mm")));
        details = inquiry->whatHasNoDay();
        text += noDayWords(inquiry->occupancy().unplaced().size());
    }
    m_saved->offer({});
    m_status->setText(text);
    m_status->setAccessibleName(text);
    setPlainToolTip(m_status, details);
    m_status->setProperty("warning", isWarning);
    m_status->style()->unpolish(m_status); // its look depends on the property
    m_status->style()->polish(m_status);
}

void AnswerWindow::tellSaved(const QString& path)
{
    tell(savedWords(path));
    m_saved->offer(path);
}

void AnswerWindow::exportAnswer(files::AnswerKind kind, const files::AnswerDocument& document)
{
    QStringList endings = files::answerEndings(kind);
    endings.move(0, endings.size() - 1); // JSON, for other programs, comes last
    const QString name = QString(document.title).replace(u'/', u'-');
    const QString path = askWhereToSave(this, QStringLiteral("Exporter"), name, endings);
    if (path.isEmpty()) {
        return;
    }
    const files::AnswerFormat& format = *files::answerFormatOf(kind, path);
    try {
        const shell::Inquiry* inquiry = m_desk.inquiry();
        const QString open =
            format.isDated && inquiry != nullptr ? inquiry->whyOpen(true) : QString();
        if (!open.isEmpty()) {
            throw files::ExportError(open + QStringLiteral(" : le fichier n’est pas écrit."));
        }
        files::writeWholeFile(path, format.write(document));
        tellSaved(path);
    } catch (const files::ExportError& error) {
        QMessageBox box(QMessageBox::Warning, windowTitle(), QString::fromUtf8(error.what()),
                        QMessageBox::Ok, this);
        showPlainly(box);
        box.exec();
    }
}

bool AnswerWindow::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && m_isPresented && m_desk.isOld()) {
        answer();
    }
    return QWidget::event(event);
}

QString rhythmWords(const timetable::WeekRhythm& rhythm, QDate date)
{
    return rhythm.isKnown() ? answers::weekWords(rhythm.weekOf(date))
                            : QStringLiteral("semaines A et B (« SemaineA » n’est pas réglée)");
}

} // namespace app
