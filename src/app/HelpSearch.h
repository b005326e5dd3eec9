#pragma once

#include "app/TextPlaces.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QTextBrowser;
class QToolButton;

namespace app
{

/// The search in the help: a field, the way to the next and the previous place, and how many there
/// are. All places are marked in the text, the current one stronger; what is typed leads to the
/// first one from where the text stands.
class HelpSearch : public QWidget
{
public:
    /// `text` outlives this.
    explicit HelpSearch(QTextBrowser* text);

    /// Turns to the field, with what it holds selected.
    void begin();
    /// The text has another content: looks for the same in it.
    void searchAnew();
    /// Goes so many places on, or back, and around at the end.
    void step(int places);
    /// Takes the search away. False where there is none.
    bool end();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void search();
    void show();
    [[nodiscard]] int firstFrom(int position) const;

    QTextBrowser* m_text;
    QLineEdit* m_field;
    QLabel* m_count;
    QToolButton* m_previous;
    QToolButton* m_next;
    std::vector<TextPlace> m_places;
    int m_current = 0; ///< among the places
};

} // namespace app
