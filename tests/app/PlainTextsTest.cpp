// What comes from the database, or is the name of a file, is shown letter by letter.

#include "app/PlainTexts.h"

#include "app/WindowDesk.h"
#include "support/TestFolder.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

using namespace test;

namespace
{

// A file's name cannot hold a slash; the toolkit takes this much for markup as well.
const QString kFileName = "<h1>Titre";
const QString kName = "<h1>Titre</h1>";

/// What a tooltip given this text shows.
QString shownBy(const QString& toolTip)
{
    if (!Qt::mightBeRichText(toolTip)) {
        return toolTip;
    }
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
}

QString descriptionOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
}

/// The window on a timetable whose every name is a heading.
class HeadingsForNames : public TheWindow
{
protected:
    HeadingsForNames()
    {
        for (const char* statement : {"UPDATE etablissement SET Nom = '%1', Université = '%1'",
                                      "UPDATE tranche SET Tranche = '%1' WHERE ident = 1",
                                      "UPDATE Département SET Ident = '%1' WHERE Ident = 'INFO'",
                                      "UPDATE matière SET Nom = '%1' WHERE Nom = 'Physique'",
                                      "UPDATE emplois SET Classe = '%1' WHERE Classe = 'G2'",
                                      "UPDATE salle SET Nom = 'C%1' WHERE Nom = 'C1'"}) {
            database.execute(QString(statement).arg(kName));
        }
        writeFile(setup.path("Styles/" + kFileName + ".mpl"), "0\tcouleur\t1\t2\t3\r\n");
        setup.set("Palette", setup.path("Styles/" + kFileName + ".mpl"));
    }
};

} // namespace

TEST_F(HeadingsForNames, areNoHeadingsInAnyLabel)
{
    open();
    int labels = 0;
    for (const QLabel* label : window().findChildren<QLabel*>()) {
        ++labels;
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
    }
    EXPECT_GE(labels, 21);
    EXPECT_EQ(control<QLabel>("Label5")->text(), kFileName);
    EXPECT_EQ(control<QLabel>("Label4_4")->text(), kName);
    EXPECT_EQ(control<QLabel>("PeriodName")->text(), kName);
    EXPECT_EQ(control<QLabel>("PageInfo")->text(), "Salles 2–5 sur 5, page 1/1");
    EXPECT_EQ(control<QLabel>("PageInfo")->toolTip(),
              app::plainToolTip("De « A2 » à « C" + kName + " »"));
}

TEST_F(HeadingsForNames, haveTheHeightOfALineOnTheScreen)
{
    open();
    auto* label = control<QLabel>("Label5");
    EXPECT_LE(label->sizeHint().height(), label->fontMetrics().height() + 4);
}

TEST_F(HeadingsForNames, areToldWholeByTheTooltipsOfTheLists)
{
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("Combo1"), 0));
    form().Check1.setChecked(true);
    window().forward([this] {
        form().Cb_Mat.setListIndex(static_cast<int>(form().Cb_Mat.items().indexOf(kName)));
    });
    for (const auto& [name, toolTip] :
         {std::pair("CbTranche", "Période affichée : "), std::pair("Combo1", "Département : "),
          std::pair("Cb_Mat", "Matière montrée : ")}) {
        auto* list = control<QComboBox>(name);
        EXPECT_EQ(list->currentText(), kName) << name;
        EXPECT_EQ(shownBy(list->toolTip()), toolTip + kName);
        EXPECT_EQ(descriptionOf(list), toolTip + kName);
    }
    EXPECT_EQ(descriptionOf(control<QWidget>("CbJour")), "Jour affiché : Lundi");
    EXPECT_EQ(control<QWidget>("CbJour")->toolTip(), "Jour affiché : Lundi");
}

TEST_F(HeadingsForNames, areToldWholeByTheTooltipOfABox)
{
    open();
    const QRectF box = overlays(2, 0).ZAbs; // B2
    const QPointF place(box.left() + box.width() / 4, box.center().y());
    const QPoint point = view()->toViewport(place).toPoint();
    QHelpEvent event(QEvent::ToolTip, point, view()->viewport()->mapToGlobal(point));
    QApplication::sendEvent(view()->viewport(), &event);
    EXPECT_TRUE(shownBy(QToolTip::text()).contains(kName)) << QToolTip::text().toStdString();
}

TEST_F(HeadingsForNames, areToldWholeByTheBoxOfAGroup)
{
    open();
    QString text;
    const DialogAnswer answer([&](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        text = box.text();
        for (const QLabel* label : box.findChildren<QLabel*>()) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
        }
        box.accept();
    });
    hands.click(counterOnScreen(1, 0)); // B1 holds two classes together
    ASSERT_TRUE(until([&] { return answer.count() == 1; }));
    EXPECT_TRUE(text.contains(kName + "\tMartin")) << text.toStdString();
}

TEST(PlainToolTip, showsWhatItIsGiven)
{
    for (const QString& text : {kName, QString("A < B & C > D"),
                                QString("A2 – 8h30, 90 min\n<b>G1</b>\n\n  &amp;"), QString()}) {
        EXPECT_EQ(shownBy(app::plainToolTip(text)), text);
    }
    EXPECT_EQ(app::plainToolTip("A < B"), "A < B"); // nothing that the toolkit would guess at
}

TEST(PlainMessageBox, showsItsSecondTextAsItStandsToo)
{
    QMessageBox box(QMessageBox::Critical, "Tempora", kName);
    box.setInformativeText(kName);
    app::showPlainly(box);
    int shown = 0;
    for (const QLabel* label : box.findChildren<QLabel*>()) {
        shown += label->text() == kName ? 1 : 0;
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
    }
    EXPECT_EQ(shown, 2);
}
