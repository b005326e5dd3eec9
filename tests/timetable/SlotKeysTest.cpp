#include "timetable/SlotKeys.h"

#include "support/RuntimeMatchers.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace timetable;

namespace
{

SlotKeys keysFor(std::initializer_list<QStringView> texts)
{
    TextPool pool;
    for (const QStringView text : texts) {
        pool.add(text);
    }
    return SlotKeys(pool);
}

/// What the key means; nothing where it is not among them.
SlotKey meaningOf(const SlotKeys& keys, const QString& key)
{
    const auto found = std::find(keys.texts().begin(), keys.texts().end(), key);
    return found == keys.texts().end()
               ? SlotKey()
               : keys.meaning(static_cast<int>(found - keys.texts().begin()));
}

} // namespace

TEST(SlotNumber, isAllDigitsOfTheKeyReadAsOneNumber)
{
    EXPECT_EQ(slotNumber("Lundi3"), 3);
    EXPECT_EQ(slotNumber("S1A2"), 12);
    EXPECT_EQ(slotNumber("-2,5"), 25);
    EXPECT_EQ(slotNumber("Lundi99999"), 99999);
    EXPECT_EQ(slotNumber("Lundi"), 0);
}

TEST(SlotKeys, areEveryDayWithEachNumberThatComesUp)
{
    const SlotKeys keys = keysFor({u"mardi3", u"Lundi11", u"JEUDI3"});
    EXPECT_EQ(keys.texts().size(), 14U);
    EXPECT_EQ(meaningOf(keys, "Lundi3"), (SlotKey{0, 3}));
    EXPECT_EQ(meaningOf(keys, "Samedi11"), (SlotKey{5, 11}));
    EXPECT_EQ(meaningOf(keys, "Dimanche3"), (SlotKey{6, 3}));
}

TEST(SlotKeys, takeTheNumberAsItIsWritten)
{
    const SlotKeys keys = keysFor({u"Lundi03", u"Mercredi"});
    EXPECT_EQ(meaningOf(keys, "Lundi03"), (SlotKey{0, 3}));
    EXPECT_EQ(meaningOf(keys, "Mercredi"), (SlotKey{2, 0}));
}

TEST(SlotKeys, nameNoSlotByANumberThatIsTooLarge)
{
    EXPECT_EQ(meaningOf(keysFor({u"Lundi99999"}), "Lundi99999"), (SlotKey{0, 0}));
}

TEST(SlotKeys, areNoneWithoutTexts)
{
    EXPECT_TRUE(keysFor({}).texts().empty());
}
