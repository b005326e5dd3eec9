#include "app/HelpSearch.h"

#include "app/PlainTexts.h"
#include "app/WindowStyle.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>
#include <QToolButton>

namespace app
{
namespace
{

constexpr int kFieldWidth = 232; // what it is for, when it is empty
// Black letters can be read on both.
constexpr QColor kPlace(255, 235, 150);
constexpr QColor kCurrentPlace(255, 165, 60);

QToolButton* stepButton(const QString& name, const QString& text, const QString& help)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setText(text);
    button->setToolTip(help);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

HelpSearch::HelpSearch(QTextBrowser* text)
    : m_text(text), m_field(new QLineEdit), m_count(plainLabel()),
      m_previous(stepButton(QStringLiteral("HelpPrevious"), QStringLiteral("Précédent"),
                            QStringLiteral("Occurrence précédente (Maj+F3)"))),
      m_next(stepButton(QStringLiteral("HelpNext"), QStringLiteral("Suivant"),
                        QStringLiteral("Occurrence suivante (F3 ou Entrée)")))
{
    m_field->setObjectName(QStringLiteral("HelpWanted"));
    setHint(m_field, QStringLiteral("Chercher dans l’aide (Ctrl+F)"));
    m_field->setAccessibleName(QStringLiteral("Chercher dans l’aide"));
    m_field->setClearButtonEnabled(true);
    m_field->setFixedWidth(kFieldWidth);
    m_field->installEventFilter(this);
    m_count->setObjectName(QStringLiteral("HelpCount"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_field);
    row->addWidget(m_previous);
    row->addWidget(m_next);
    row->addWidget(m_count, 1);
    connect(m_field, &QLineEdit::textChanged, this, [this] { search(); });
    connect(m_previous, &QToolButton::clicked, this, [this] { step(-1); });
    connect(m_next, &QToolButton::clicked, this, [this] { step(1); });
    search();
}

void HelpSearch::begin()
{
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
}

bool HelpSearch::end()
{
    if (m_field->text().isEmpty()) {
        return false;
    }
    m_field->clear();
    m_text->setFocus();
    return true;
}

void HelpSearch::searchAnew()
{
    m_text->moveCursor(QTextCursor::Start);
    search();
}

void HelpSearch::search()
{
    m_places = placesOf(m_text->document()->toPlainText(), m_field->text());
    m_current = firstFrom(m_text->textCursor().selectionStart());
    show();
}

int HelpSearch::firstFrom(int position) const
{
    int index = 0;
    for (const TextPlace& place : m_places) {
        if (place.start >= position) {
            return index;
        }
        ++index;
    }
    return 0;
}

void HelpSearch::step(int places)
{
    const int count = static_cast<int>(m_places.size());
    if (count > 0) {
        m_current = (m_current + places % count + count) % count;
        show();
    }
}

void HelpSearch::show()
{
    QList<QTextEdit::ExtraSelection> marks;
    int index = 0;
    for (const TextPlace& place : m_places) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(m_text->document());
        mark.cursor.setPosition(place.start);
        mark.cursor.setPosition(place.start + place.length, QTextCursor::KeepAnchor);
        mark.format.setBackground(index == m_current ? kCurrentPlace : kPlace);
        mark.format.setForeground(Qt::black);
        if (index++ == m_current) {
            QTextCursor there(m_text->document());
            there.setPosition(place.start); // without a selection, which would hide the mark
            m_text->setTextCursor(there);
            m_text->ensureCursorVisible();
        }
        marks << mark;
    }
    m_text->setExtraSelections(marks);
    m_previous->setEnabled(m_places.size() > 1);
    m_next->setEnabled(m_places.size() > 1);
    const bool isWanted = !m_field->text().trimmed().isEmpty();
    const QString count = !isWanted ? QString()
                          : m_places.empty()
                              ? QStringLiteral("Rien trouvé")
                              : QStringLiteral("%1 sur %2").arg(m_current + 1).arg(m_places.size());
    m_count->setText(count);
    m_count->setProperty("warning", isWanted && m_places.empty());
    if (!count.isEmpty()) {
        QAccessibleEvent alert(m_count, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

/// Enter in the field leads on, with Shift back.
bool HelpSearch::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_field && event->type() == QEvent::KeyPress) {
        const auto& key = dynamic_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
            step(key.modifiers() & Qt::ShiftModifier ? -1 : 1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace app
