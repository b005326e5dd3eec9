#include "paint/AbsencePictures.h"

#include "paint/Canvas.h"
#include "support/RuntimeMatchers.h"

using test::Canvas;

namespace
{

/// Both pictures, drawn into a square of that side at 20, 30.
struct Pictures {
    explicit Pictures(int side) : place(20, 30, side, side)
    {
        classAbsent.draw([&](QPainter& painter) { paint::paintClassAbsent(painter, place); });
        studentAbsent.draw([&](QPainter& painter) { paint::paintStudentAbsent(painter, place); });
    }
    /// Whether the picture covers the point, given in shares of the side.
    [[nodiscard]] bool covers(const Canvas& picture, double x, double y) const
    {
        return picture.isTouched(place.left() + static_cast<int>(x * place.width()),
                                 place.top() + static_cast<int>(y * place.height()));
    }

    QRect place;
    Canvas classAbsent;
    Canvas studentAbsent;
};

class AbsencePictures : public testing::TestWithParam<int>
{
};

} // namespace

TEST_P(AbsencePictures, stayInTheirPlace)
{
    const Pictures pictures(GetParam());
    for (const Canvas* picture : {&pictures.classAbsent, &pictures.studentAbsent}) {
        EXPECT_TRUE(pictures.place.contains(picture->touched()));
        EXPECT_GE(picture->touched().width(), GetParam() - 2);
    }
}

TEST_P(AbsencePictures, differInShape)
{
    const Pictures pictures(GetParam());
    // A disc reaches its sides at half height, a triangle its lower corners.
    EXPECT_TRUE(pictures.covers(pictures.classAbsent, 0.12, 0.5));
    EXPECT_FALSE(pictures.covers(pictures.studentAbsent, 0.12, 0.5));
    EXPECT_FALSE(pictures.covers(pictures.classAbsent, 0.08, 0.9));
    EXPECT_TRUE(pictures.covers(pictures.studentAbsent, 0.08, 0.9));
}

INSTANTIATE_TEST_SUITE_P(At, AbsencePictures, testing::Values(13, 20, 48),
                         [](const auto& size) { return std::to_string(size.param) + "pixels"; });

TEST(AbsencePicturesInAWidePlace, areSquareAndCentred)
{
    Canvas canvas;
    canvas.draw([](QPainter& painter) { paint::paintClassAbsent(painter, {100, 50, 80, 20}); });
    EXPECT_TRUE(QRect(130, 50, 20, 20).contains(canvas.touched()));
}
