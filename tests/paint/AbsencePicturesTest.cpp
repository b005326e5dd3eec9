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

namespace
{

/// A picture of 100 by 100 pixels at 0, 0: a pixel is a hundredth of its side.
Canvas large(void (*paintPicture)(QPainter&, const QRectF&))
{
    Canvas canvas(100, 100);
    canvas.draw([&](QPainter& painter) { paintPicture(painter, QRectF(0, 0, 100, 100)); });
    return canvas;
}

} // namespace

TEST(ClassAbsentPicture, isAWhiteCrossOnARedDiscWithAWhiteEdge)
{
    const Canvas disc = large(paint::paintClassAbsent);
    const QColor white(255, 255, 255);
    const QColor red(190, 20, 30);
    EXPECT_EQ(disc.at(50, 50), white); // the cross: arms of 22 hundredths, 14 thick
    for (const int arm : {36, 64}) {
        EXPECT_EQ(disc.at(arm, arm), white) << arm;
        EXPECT_EQ(disc.at(arm, 100 - arm), white) << arm;
    }
    EXPECT_EQ(disc.at(22, 22), red); // behind its ends
    EXPECT_EQ(disc.at(78, 78), red);
    for (const int near : {10, 30}) { // between its arms
        EXPECT_EQ(disc.at(near, 50), red) << near;
        EXPECT_EQ(disc.at(100 - near, 50), red) << near;
        EXPECT_EQ(disc.at(50, near), red) << near;
        EXPECT_EQ(disc.at(50, 100 - near), red) << near;
    }
    EXPECT_EQ(disc.at(2, 50), white); // the edge
    EXPECT_EQ(disc.at(97, 50), white);
    EXPECT_EQ(disc.at(50, 2), white);
    EXPECT_EQ(disc.at(50, 97), white);
    for (const int corner : {5, 94}) {
        EXPECT_FALSE(disc.isTouched(corner, 5));
        EXPECT_FALSE(disc.isTouched(corner, 94));
    }
}

TEST(StudentAbsentPicture, isAPersonOnAnOrangeTriangle)
{
    const Canvas triangle = large(paint::paintStudentAbsent);
    const QColor orange(255, 170, 0);
    const QColor person(60, 30, 0);
    EXPECT_EQ(triangle.at(50, 50), person); // the head: 11 hundredths around the middle
    EXPECT_EQ(triangle.at(50, 42), person);
    EXPECT_EQ(triangle.at(58, 50), person);
    EXPECT_EQ(triangle.at(50, 34), orange);
    EXPECT_EQ(triangle.at(64, 50), orange);
    // The shoulders: the upper half of an ellipse from 29 to 71 across and 64 to 114 down.
    EXPECT_EQ(triangle.at(50, 68), person);
    EXPECT_EQ(triangle.at(50, 85), person);
    EXPECT_EQ(triangle.at(34, 85), person);
    EXPECT_EQ(triangle.at(66, 85), person);
    EXPECT_EQ(triangle.at(34, 68), orange); // round
    EXPECT_EQ(triangle.at(66, 68), orange);
    EXPECT_EQ(triangle.at(50, 92), orange); // below them
    EXPECT_EQ(triangle.at(24, 85), orange);
    EXPECT_EQ(triangle.at(76, 85), orange);
    const QColor edge(90, 45, 0);
    EXPECT_EQ(triangle.at(50, 97), edge);
    EXPECT_EQ(triangle.at(27, 50), edge); // half way up its sides
    EXPECT_EQ(triangle.at(73, 50), edge);
    EXPECT_FALSE(triangle.isTouched(10, 50));
    EXPECT_FALSE(triangle.isTouched(90, 50));
}

TEST(AbsencePicturesInAWidePlace, areSquareAndCentred)
{
    Canvas canvas;
    canvas.draw([](QPainter& painter) { paint::paintClassAbsent(painter, {100, 50, 80, 20}); });
    EXPECT_TRUE(QRect(130, 50, 20, 20).contains(canvas.touched()));
}
