// A palette that is tried on another table, and the way back to "Défaut".

#include "appearance/IdlePlan.h"
#include "appearance/Palette.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <set>

using appearance::Palette;
using form::Colour;

namespace
{

/// A folder of palettes.
class PaletteTrial : public testing::Test
{
protected:
    [[nodiscard]] QString write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }
    /// A Components file of four colours, of which the last two come again.
    [[nodiscard]] QString fourColors() const
    {
        return write("Bleu.mpl", "a\tb\t1\t2\t3\r\na\tb\t4\t5\t6\r\n"
                                 "a\tb\t7\t8\t9\r\na\tb\t10\t11\t12\r\n");
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(PaletteTrial, fillsATableAndNothingElse)
{
    plan::RowColors colors;
    EXPECT_TRUE(Palette::fill(colors, fourColors()));
    EXPECT_EQ(colors.at(1), Colour::fromRgb(4, 5, 6));
    EXPECT_EQ(colors.at(4), Colour::fromRgb(7, 8, 9));
    EXPECT_EQ(colors.at(5), Colour::fromRgb(10, 11, 12));
    EXPECT_EQ(colors.PaletteName, QString());
}

TEST_F(PaletteTrial, isNoneWhereTheFileIsNone)
{
    plan::RowColors colors;
    EXPECT_FALSE(Palette::fill(colors, "/nowhere/Bleu.mpl"));
    EXPECT_FALSE(Palette::fill(colors, write("Court.mpl", "255\r\n65535\r\n")));
}

TEST_F(PaletteTrial, isForgottenWithTheDefault)
{
    test::IdlePlan plan;
    form::PlanForm form;
    plan::RowColors colors(runtime::RandomSource(1));
    QString answer = fourColors();
    Palette palette(colors, form, plan, {}, [&](const QString&, const QString&) { return answer; });
    palette.Choisir_Palette();
    colors.RedrawMode = true;
    ASSERT_EQ(form.Label5.caption, "Bleu");
    palette.useDefault();
    EXPECT_EQ(form.Label5.caption, "Défaut");
    EXPECT_EQ(colors.PaletteName, QString());
    EXPECT_FALSE(colors.RedrawMode); // the next redraw draws its colours by lot
    std::set<std::uint32_t> found;
    for (int entry = 0; entry < plan::RowColors::kColors; ++entry) {
        found.insert(colors.at(entry).value);
    }
    EXPECT_GT(found.size(), 200U);
    answer.clear(); // Cancel, which would load the file again
    palette.Choisir_Palette();
    EXPECT_EQ(form.Label5.caption, "Défaut");
}
