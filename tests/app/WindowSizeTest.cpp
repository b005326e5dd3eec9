#include "app/WindowDesk.h"

#include <QScrollBar>
#include <QStyleOptionComboBox>

using test::TheWindow;
using test::until;

TEST_F(TheWindow, fitsAScreenOf1366PixelsWhateverItShows)
{
    constexpr int screenWidth = 1366;
    open();
    form().Check2.setChecked(true);
    form().ElemDep.setChecked(true);
    form().Check1.setChecked(true);
    const auto width = [this] {
        window().forward([] {}); // brings the widgets up to date
        QCoreApplication::sendPostedEvents();
        return window().minimumSizeHint().width();
    };
    EXPECT_LE(width(), screenWidth);
    form().OpExam().select();
    EXPECT_LE(width(), screenWidth);
}

TEST_F(TheWindow, keepsItsGroupsWhereTheyAreWhenOneSubjectIsShown)
{
    open();
    const auto* group = control<QWidget>("Check1")->parentWidget();
    const int width = group->width();
    window().forward([this] { form().Check1.setChecked(true); });
    ASSERT_TRUE(until([this] { return control<QComboBox>("Cb_Mat")->isVisible(); }));
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(group->width(), width);
}

TEST_F(TheWindow, showsTheNameOfAPeriodWhole)
{
    const QString name = "Semestre 1 2026-2027";
    database.execute("UPDATE tranche SET Tranche = '" + name + "' WHERE ident = 1");
    open({1366, 740});
    auto* list = control<QComboBox>("CbTranche");
    EXPECT_EQ(list->currentText(), name);
    EXPECT_EQ(list->toolTip(), "Période affichée : " + name);
    QStyleOptionComboBox option;
    option.initFrom(list);
    const QRect field = list->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, list);
    EXPECT_GE(field.width(), list->fontMetrics().horizontalAdvance(name));
}

TEST_F(TheWindow, scrollsNeitherWayWhenAllRowsFit)
{
    open({1366, 740});
    EXPECT_EQ(view()->horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(view()->verticalScrollBar()->maximum(), 0);
    for (int width = 1280; width <= 1440; width += 7) {
        window().resize(width, 740);
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(view()->horizontalScrollBar()->maximum(), 0) << width;
    }
}

TEST_F(TheWindow, shows29RowsAtOnceOnASmallScreen)
{
    for (int room = 1; room <= 30; ++room) {
        database.execute(QString("INSERT INTO salle (Nom, Zone, places) VALUES ('S%1', 1, 30)")
                             .arg(room, 2, 10, QChar('0')));
    }
    open({1366, 740});
    window().forward([this] { form().Total_L_P.setText("29"); });
    ASSERT_EQ(window().shell().engine().state().page.RowsShown, 29);
    EXPECT_EQ(view()->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(view()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(TheWindow, isUsableFrom900By600PixelsOn)
{
    open({900, 600});
    ASSERT_TRUE(test::until([this] { return window().size() == QSize(900, 600); }));
    EXPECT_LE(window().minimumSizeHint().width(), 900);
    EXPECT_LE(window().minimumSizeHint().height(), 600);
    for (const char* name : {"CbTranche", "Command1", "Aide", "Questions", "Colorer"}) {
        const auto* widget = control<QWidget>(name);
        const QRect place(widget->mapTo(&window(), QPoint(0, 0)), widget->size());
        EXPECT_TRUE(window().rect().contains(place)) << name;
    }
    EXPECT_GE(view()->viewport()->height(), 160);
}

TEST_F(TheWindow, wrapsItsGroupsOnlyWhereItMust)
{
    open({1366, 740});
    const auto top = [this](const char* name) {
        return control<QWidget>(name)->mapTo(&window(), QPoint(0, 0)).y();
    };
    ASSERT_TRUE(test::until([this] { return window().width() == 1366; }));
    EXPECT_EQ(top("CbTranche"), top("CbJour"));
    EXPECT_LT(top("Command1") - top("CbTranche"), 30); // in one row with it
    window().resize(1200, 740);
    EXPECT_TRUE(test::until([&] { return top("Command1") - top("CbTranche") > 80; }));
    EXPECT_LE(control<QPushButton>("Command4")->width(), 260); // does not stretch
}

TEST_F(TheWindow, fillsItsWidthWithTheHoursThatHaveSomething)
{
    database.execute("UPDATE emplois SET Debut = '7h30' WHERE Salle = 'A2' AND Seance = 'Lundi1'");
    open({1366, 740});
    const paint::OverlayPlaces early = overlays(0, 0); // A2
    const QPoint corner = view()->toViewport(early.ZAbs.topLeft()).toPoint();
    EXPECT_EQ(corner.x(), static_cast<int>(view()->target().toPixelsX(2040) + 0.5));
    EXPECT_TRUE(view()->toolTipAt(corner + QPoint(4, 4)).startsWith("A2 – 7h30"));
    // The last slot ends at 17h15, beside the places.
    const QPointF end = view()->toViewport({view()->target().onAxis(16840), 0});
    const double places = view()->target().toPixelsX(form().Cap[1].place.left);
    EXPECT_NEAR(end.x(), places - view()->target().toPixelsX(60), 2);
    // On Tuesday nothing is early: the day begins with the first slot.
    window().forward([this] { form().CbJour.setListIndex(1); });
    EXPECT_NEAR(view()->target().onAxis(2840), view()->target().toPixelsX(2040), 1);
    EXPECT_EQ(view()->horizontalScrollBar()->maximum(), 0);
}

namespace
{

/// Nineteen rooms with classes, teachers and subjects in their boxes.
class NineteenRooms : public TheWindow
{
protected:
    NineteenRooms()
    {
        for (int room = 1; room <= 30; ++room) {
            database.execute(QString("INSERT INTO salle (Nom, Zone, places) VALUES ('S%1', 1, 30)")
                                 .arg(room, 2, 10, QChar('0')));
        }
    }
    /// Rows that are seen whole below the greyed one.
    [[nodiscard]] int rowsInSight()
    {
        int rows = 0;
        const double bottom = view()->viewport()->height();
        for (std::size_t row = 1; row <= 19; ++row) {
            const QRectF place = view()->target().toPixels(form().Salle[row].place);
            rows += place.bottom() <= bottom ? 1 : 0;
        }
        return rows;
    }
    void showParts(int parts)
    {
        window().forward([this, parts] {
            form().XOpCl.setChecked(parts >= 1);
            form().XOpEns.setChecked(parts >= 2);
            form().XpMat.setChecked(parts >= 3);
            form().Total_L_P.setText("19");
        });
        ASSERT_EQ(window().shell().engine().state().page.RowsShown, 19);
    }
    /// Pixels that a row is high.
    [[nodiscard]] double rowHeight()
    {
        return view()->target().toPixelsY(form().Salle[1].place.height);
    }
};

} // namespace

TEST_F(NineteenRooms, showThirteenOfTheirRowsOnASmallScreen)
{
    open({1366, 740});
    for (const int parts : {3, 2, 1}) {
        showParts(parts);
        EXPECT_GE(rowsInSight(), 13) << parts;
    }
}

TEST_F(NineteenRooms, showAllTheirRowsWithLegibleTextsOnAFullScreen)
{
    open({1920, 1050});
    for (const auto& [parts, least] : {std::pair(3, 35), std::pair(2, 30), std::pair(1, 17)}) {
        showParts(parts);
        EXPECT_EQ(rowsInSight(), 19) << parts;
        EXPECT_GE(rowHeight(), least) << parts;
    }
}
