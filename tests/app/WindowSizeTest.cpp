#include "app/WindowDesk.h"

#include <QScrollBar>
#include <QStyleOptionComboBox>

using test::TheWindow;

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
