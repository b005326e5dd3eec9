#include "app/WrappedText.h"

#include "support/RuntimeMatchers.h"

#include <QFontMetricsF>

using app::wrapped;

namespace
{

const QFont font("Arial", 10);

[[nodiscard]] double widest(const QString& text)
{
    double width = 0;
    for (const QString& line : text.split('\n')) {
        width = std::max(width, QFontMetricsF(font).horizontalAdvance(line));
    }
    return width;
}

} // namespace

TEST(WrappedText, leavesWhatIsNarrowAsItIs)
{
    EXPECT_EQ(wrapped("A1 – 8h30, 90 min\nL1\n\nMaj + clic", font),
              "A1 – 8h30, 90 min\nL1\n\nMaj + clic");
    EXPECT_EQ(wrapped("", font), "");
}

TEST(WrappedText, breaksALongLineBetweenItsWords)
{
    const QString words = QString("classe L1 INFO, ").repeated(40).trimmed();
    const QString lines = wrapped(words, font);
    EXPECT_GT(lines.count('\n'), 3);
    EXPECT_LE(widest(lines), app::kToolTipWidth);
    EXPECT_EQ(QString(lines).replace('\n', ' '), words);
}

TEST(WrappedText, breaksAWordThatIsTooWideByItself)
{
    const QString word = QString("x").repeated(300);
    const QString lines = wrapped(word, font);
    EXPECT_LE(widest(lines), app::kToolTipWidth);
    EXPECT_EQ(QString(lines).remove('\n'), word);
}
