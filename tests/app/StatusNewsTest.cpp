#include "app/StatusNews.h"

#include "support/TestFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QStatusBar>
#include <gtest/gtest.h>

using app::StatusNews;

namespace
{

class TheNews : public testing::Test
{
protected:
    TheNews()
    {
        bar.resize(600, 24);
        bar.show();
    }

    [[nodiscard]] QToolButton* link() { return news.findChild<QToolButton*>("OpenSaved"); }

    QStatusBar bar;
    QStringList opened;
    bool opens = true;
    StatusNews news{&bar, [this](const QString& path) {
                        opened << path;
                        return opens;
                    }};
};

} // namespace

TEST_F(TheNews, areHiddenWhileThereAreNone)
{
    EXPECT_FALSE(news.isVisible());
    news.tell("Fait");
    EXPECT_TRUE(news.isVisible());
    EXPECT_EQ(news.sentence(), "Fait");
    EXPECT_FALSE(link()->isVisible());
    news.tell({});
    EXPECT_FALSE(news.isVisible());
}

TEST_F(TheNews, offerToOpenASavedFile)
{
    news.tellSaved("/tmp/plan.pdf");
    EXPECT_EQ(news.sentence(), "Enregistré : " + QDir::toNativeSeparators("/tmp/plan.pdf"));
    ASSERT_TRUE(link()->isVisible());
    EXPECT_EQ(link()->text(), "Ouvrir");
    EXPECT_EQ(link()->focusPolicy(), Qt::StrongFocus);
    link()->click();
    EXPECT_EQ(opened, QStringList({"/tmp/plan.pdf"}));
}

TEST_F(TheNews, sayThatNoProgramOpensTheFile)
{
    opens = false;
    news.tellSaved("/tmp/plan.pdf");
    link()->click();
    EXPECT_EQ(news.sentence(),
              "Aucun programme n’ouvre ce fichier : " + QDir::toNativeSeparators("/tmp/plan.pdf"));
    EXPECT_FALSE(link()->isVisible());
}

TEST_F(TheNews, lieOverTheLeftOfTheBarAndNeverBeyondIt)
{
    news.tell("Fait");
    EXPECT_EQ(news.pos(), QPoint(0, 0));
    EXPECT_LT(news.width(), bar.width());
    news.tellSaved("/tmp/" + QString(300, 'x') + ".pdf");
    EXPECT_EQ(news.width(), bar.width());
    bar.resize(400, 24);
    EXPECT_EQ(news.width(), 400);
    EXPECT_TRUE(news.rect().contains(link()->geometry()));
}

TEST_F(TheNews, coverWhatIsToldOnTheLeftAndNotOnTheRight)
{
    auto* left = new QLabel("Salles 2–20 sur 64, page 1/4");
    bar.addWidget(left);
    auto* right = new QLabel("Période n°");
    right->setObjectName("PeriodCaption");
    bar.addPermanentWidget(right);
    bar.resize(700, 24);
    QCoreApplication::processEvents();
    news.tell("Fait");
    EXPECT_TRUE(news.geometry().contains(left->geometry().center()));
    EXPECT_EQ(news.geometry().right() + 1, right->x());
    auto* week = new QLabel("Semaine d’examen 1"); // exams are chosen while the news are shown
    bar.addPermanentWidget(week);
    QCoreApplication::processEvents();
    EXPECT_EQ(news.geometry().right() + 1, right->x());
    EXPECT_LT(right->geometry().right(), week->x());
}

TEST_F(TheNews, giveWayToWhatTheBarItselfHasToSay)
{
    news.tell("Fait");
    bar.showMessage("Lecture…");
    EXPECT_FALSE(news.isVisible());
}

TEST_F(TheNews, showNamesOfFilesLetterByLetter)
{
    news.tellSaved("/tmp/<h1>plan</h1>.pdf");
    EXPECT_EQ(news.findChild<QLabel*>("NewsText")->textFormat(), Qt::PlainText);
}
