// The frame around what somebody looks for, on the tiny faculty's Monday.

#include "app/PlanView.h"
#include "shell/ShellDesk.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <gtest/gtest.h>
#include <memory>

using namespace test;

namespace
{

class TheFrame : public testing::Test
{
protected:
    TheFrame()
    {
        createTinyFaculty(database);
        desk.load();
        view = std::make_unique<app::PlanView>(
            desk.shell(), [](const std::function<void()>& action) { action(); }, [](int) {});
        view->resize(1366, 500);
        view->show();
        view->fit();
        desk.shell().Form_Activate();
        view->showAll();
    }
    [[nodiscard]] QImage shown() const { return view->viewport()->grab().toImage(); }

    TestDatabase database{DatabaseKind::Sqlite};
    ShellDesk desk{database};
    std::unique_ptr<app::PlanView> view;
};

} // namespace

TEST_F(TheFrame, coversNothingOfItsBoxButTheEdge)
{
    const QImage before = shown();
    view->frame("A2", 1);
    const QImage after = shown();
    ASSERT_FALSE(view->framed().isEmpty());
    const QRect box = view->framed().toAlignedRect();
    const QRect words = box.adjusted(2, 2, -2, -2);
    EXPECT_EQ(after.copy(words), before.copy(words));
    // It is there all the same: a dark red line on all four sides.
    const auto isRed = [&](int x, int y) {
        const QColor color = after.pixelColor(x, y);
        return color.red() > 150 && color.green() < 90 && color.blue() < 90;
    };
    const QPoint middle = box.center();
    EXPECT_TRUE(isRed(box.left() - 1, middle.y()));
    EXPECT_TRUE(isRed(box.right() + 2, middle.y()));
    EXPECT_TRUE(isRed(middle.x(), box.top() - 1));
    EXPECT_TRUE(isRed(middle.x(), box.bottom() + 2));
}

TEST_F(TheFrame, goesWithoutATrace)
{
    const QImage before = shown();
    view->frame("A2", 1);
    EXPECT_NE(shown(), before);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(view.get(), &escape);
    EXPECT_EQ(shown(), before);
    EXPECT_TRUE(view->framed().isEmpty());
}
