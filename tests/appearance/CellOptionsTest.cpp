#include "appearance/CellOptions.h"

#include "support/RuntimeMatchers.h"

using namespace test;

namespace
{

constexpr int centred = 37;
constexpr int wordBreak = 16;

/// How the boxes are fitted to the options, and what the lines-per-page box then holds.
struct Fitted {
    int lines = 0; ///< text lines per box
    int height = 0;
    QString separator;
    int format = 0;
    QString roomsPerPage;

    friend bool operator==(const Fitted&, const Fitted&) = default;
};

std::ostream& operator<<(std::ostream& out, const Fitted& fitted)
{
    return out << fitted.lines << " lines, " << fitted.height << " twips, separator of "
               << fitted.separator.size() << ", format " << fitted.format << ", "
               << fitted.roomsPerPage.toStdString() << " rooms";
}

/// The display options, ticked in every order that gives that many lines.
std::vector<std::array<bool, 3>> choicesOf(int lines)
{
    switch (lines) {
    case 0:
        return {{false, false, false}};
    case 1:
        return {{true, false, false}, {false, true, false}, {false, false, true}};
    case 2:
        return {{true, true, false}, {true, false, true}, {false, true, true}};
    default:
        return {{true, true, true}};
    }
}

Fitted fit(const QString& roomsPerPage, const std::array<bool, 3>& shown, int formatBefore)
{
    form::PlanForm form;
    plan::CellLayout layout;
    layout.CellSeparator = "before";
    layout.CellTextFormat = formatBefore;
    form.Total_L_P.setText(roomsPerPage);
    form.XpMat.setChecked(shown[0]);
    form.XOpEns.setChecked(shown[1]);
    form.XOpCl.setChecked(shown[2]);
    appearance::Adapter_Cellules(form, layout);
    return {layout.displayStyle, form.Salle[0].place.height, layout.CellSeparator,
            layout.CellTextFormat, form.Total_L_P.text()};
}

struct Case {
    QString roomsPerPage;
    std::array<Fitted, 4> fitted; ///< by the number of options ticked, 0 to 3
};

const std::vector<Case>& cases()
{
    // Pages of fewer than 20 rooms have rows of 300, 400 or 700 twips and parts on lines of their
    // own; from 19 rooms on texts are centred, whatever they hold.
    static const std::vector<Case> list{
        {"18",
         {{{0, 300, "\r\n", centred, "18"},
           {1, 300, "\r\n", centred, "18"},
           {2, 400, "\r\n", wordBreak, "18"},
           {3, 700, "\r\n", wordBreak, "18"}}}},
        {"19",
         {{{0, 300, "\r\n", centred, "19"},
           {1, 300, "\r\n", centred, "19"},
           {2, 400, "\r\n", centred, "19"},
           {3, 700, "\r\n", centred, "19"}}}},
        {"20",
         {{{0, 200, "", centred, "20"},
           {1, 200, "", centred, "20"},
           {2, 200, "", centred, "20"},
           {3, 200, "", centred, "20"}}}},
        {"29",
         {{{0, 200, "", centred, "29"},
           {1, 200, "", centred, "29"},
           {2, 200, "", centred, "29"},
           {3, 200, "", centred, "29"}}}},
        {"35",
         {{{0, 200, "", centred, "29"},
           {1, 200, "", centred, "29"},
           {2, 200, "", centred, "29"},
           {3, 200, "", centred, "29"}}}},
    };
    return list;
}

} // namespace

TEST(CellOptions, fitTheBoxesToWhatTheyShowAndToTheRoomsOfAPage)
{
    for (const Case& each : cases()) {
        for (std::size_t lines = 0; lines < each.fitted.size(); ++lines) {
            for (const auto& shown : choicesOf(static_cast<int>(lines))) {
                for (const int formatBefore : {centred, wordBreak}) {
                    EXPECT_EQ(fit(each.roomsPerPage, shown, formatBefore), each.fitted.at(lines));
                }
            }
        }
    }
}

TEST(CellOptions, readTheNumberThatTheLinesPerPageBeginWith)
{
    EXPECT_EQ(fit("", {true, true, true}, centred), (Fitted{3, 700, "\r\n", wordBreak, ""}));
    EXPECT_EQ(fit("12 salles", {true, true, false}, centred),
              (Fitted{2, 400, "\r\n", wordBreak, "12 salles"}));
    EXPECT_EQ(fit("30", {}, centred), (Fitted{0, 200, "", centred, "29"}));
}

TEST(CellOptions, hideTheRowsThatAPageDoesNotHave)
{
    form::PlanForm form;
    plan::CellLayout layout;
    for (std::size_t row = 0; row < form.Salle.size(); ++row) {
        form.Salle[row].visible = true;
        form.Cap[row].visible = true;
    }
    form.Total_L_P.setText("18");
    appearance::Adapter_Cellules(form, layout);
    EXPECT_TRUE(form.Salle[18].visible);
    EXPECT_TRUE(form.Cap[18].visible);
    EXPECT_FALSE(form.Salle[19].visible);
    EXPECT_FALSE(form.Cap[19].visible);
    EXPECT_FALSE(form.Salle[29].visible);
}
