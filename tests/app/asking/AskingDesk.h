#pragma once

#include "app/WindowDesk.h"

#include <QMenu>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace test
{

/// The window with those that answer questions.
class TheAnswers : public TheWindow
{
protected:
    explicit TheAnswers(DatabaseKind kind = DatabaseKind::Sqlite) : TheWindow(kind) {}

    /// Presses the keys and waits for the window of that name.
    template <typename Window>
    [[nodiscard]] Window* ask(const QStringList& keys, const char* name)
    {
        hands.press(keys);
        Window* found = nullptr;
        EXPECT_TRUE(until([&] {
            found = window().findChild<Window*>(QString::fromLatin1(name));
            return found != nullptr && found->isActiveWindow() &&
                   found->windowHandle()->isExposed();
        })) << name;
        return found;
    }
    /// The texts of a list's rows, top down, their cells joined by "|".
    [[nodiscard]] QStringList rows(const char* list)
    {
        QStringList texts;
        for (QTreeWidgetItemIterator item(control<QTreeWidget>(list)); *item != nullptr; ++item) {
            QStringList cells;
            for (int column = 0; column < (*item)->columnCount(); ++column) {
                cells << (*item)->text(column);
            }
            texts << cells.join('|');
        }
        return texts;
    }
    /// What the window says at its bottom.
    [[nodiscard]] static QString status(const QWidget& answers)
    {
        return answers.findChild<QLabel*>("AnswerStatus")->text();
    }
    /// Waits until the list has these rows.
    void expectRows(const char* list, const QStringList& expected)
    {
        static_cast<void>(until([&] { return rows(list) == expected; }));
        EXPECT_EQ(rows(list), expected);
    }
    [[nodiscard]] QString day() { return form().CbJour.text(); }
};

} // namespace test
