#pragma once

#include "app/SavedLink.h"
#include "app/asking/AnswerDesk.h"
#include "files/AnswerFormat.h"
#include "shell/Destination.h"

#include <QWidget>

class QAbstractButton;
class QLabel;

namespace app
{

/// What the windows that answer questions have in common: each asks the desk, says when the
/// timetable was read, exports its answer, and closes with Escape. It stays open beside the plan
/// and closes with the plan's window. Its answer is made anew when the window is turned to after
/// the plan has been drawn again.
class AnswerWindow : public QWidget
{
public:
    /// What a window asks of the plan's.
    struct Ties {
        std::function<void(const shell::Destination&)> go;
        std::function<void(const answers::Subject&)> showWeekOf;
        FileOpener open; ///< opens files that were saved
    };

    AnswerWindow(AnswerDesk& desk, Ties ties, const QString& title, QWidget* parent);

    /// Comes to the front and answers.
    void present();

protected:
    /// Shows the answer of the inquiry, which has just been asked for.
    virtual void showAnswer(const shell::Inquiry& inquiry) = 0;
    /// Shows nothing: what was shown is no longer known.
    virtual void clearAnswer() = 0;

    /// Asks, and shows the answer or why there is none.
    void answer();
    /// The line at the bottom: a sentence, and when the timetable was read. A warning is one that
    /// nobody should overlook.
    void tell(const QString& sentence, bool isWarning = false);
    /// Tells there of a file that was saved, with a link that opens it.
    void tellSaved(const QString& path);
    /// Lets the user choose a file, and writes the answer into it.
    void exportAnswer(files::AnswerKind kind, const files::AnswerDocument& document);

    [[nodiscard]] AnswerDesk& desk() const { return m_desk; }
    [[nodiscard]] const Ties& ties() const { return m_ties; }
    /// The line at the bottom, to be put below the answer.
    [[nodiscard]] QWidget* statusLine() const { return m_line; }

    bool event(QEvent* event) override;

private:
    AnswerDesk& m_desk;
    Ties m_ties;
    QWidget* m_line;
    QLabel* m_status;
    SavedLink* m_saved;
    bool m_isPresented = false;
};

/// The date's week for whoever asks by date: "semaine A", or that nobody knows.
[[nodiscard]] QString rhythmWords(const timetable::WeekRhythm& rhythm, QDate date);

} // namespace app
