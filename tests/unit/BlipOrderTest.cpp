#include "teskara/windows/BlipOrder.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

namespace {

using Numbers = std::vector<u32>;

// A blip is any object here.
class BlipOrderTest : public testing::Test
{
protected:
    int& Blip(u32 id) { return m_Blips[id]; }

    void Enter(Numbers ids)
    {
        for (const u32 id : ids)
            m_Order.Enter(id, Blip(id));
    }

    static Numbers Walk(const BlipOrder<int>& order)
    {
        Numbers ids;
        for (std::size_t place = 0; place < order.Places(); ++place) {
            if (order.At(place).Element)
                ids.push_back(order.At(place).ID);
        }
        return ids;
    }

    // Many are entered and leave at random.
    static void ExpectAsInAPlainMap(u32 (*idOf)(u32 number))
    {
        std::minstd_rand random;
        int blips[300];
        BlipOrder<int> order;
        std::map<u32, int*> model;
        for (int step = 0; step < 20000; ++step) {
            const u32 number = static_cast<u32>(random() % 300);
            const u32 id = idOf(number);
            if (random() % 2 == 0) {
                order.Enter(id, blips[number]);
                model[id] = &blips[number];
            } else {
                EXPECT_EQ(model.erase(id) != 0, order.Leave(id));
            }
            const u32 asked = idOf(static_cast<u32>(random() % 300));
            ASSERT_EQ(model.count(asked) != 0 ? model[asked] : nullptr, order.Find(asked));
            if (step % 100 == 0)
                ExpectSameWalk(model, order);
        }
    }

    BlipOrder<int> m_Order;

private:
    static void ExpectSameWalk(const std::map<u32, int*>& model, const BlipOrder<int>& order)
    {
        Numbers ids;
        for (const auto& [id, blip] : model)
            ids.push_back(id);
        ASSERT_EQ(ids, Walk(order));
    }

    std::map<u32, int> m_Blips;
};

} // namespace

TEST_F(BlipOrderTest, ANewOrderIsEmpty)
{
    EXPECT_EQ(0u, m_Order.Places());
    EXPECT_EQ(nullptr, m_Order.Find(0));
    EXPECT_EQ(nullptr, m_Order.Find(7));
    EXPECT_FALSE(m_Order.Leave(7));
    EXPECT_EQ(0u, m_Order.PlaceBehind(7));
}

TEST_F(BlipOrderTest, BlipsAreWalkedInTheOrderOfTheirIDs)
{
    Enter({5, 9, 2, 7, 4294967295u});
    EXPECT_EQ((Numbers{2, 5, 7, 9, 4294967295u}), Walk(m_Order));
    EXPECT_EQ(&Blip(7), m_Order.Find(7));
    EXPECT_EQ(&Blip(4294967295u), m_Order.Find(4294967295u));
    EXPECT_EQ(nullptr, m_Order.Find(6));
    EXPECT_EQ(nullptr, m_Order.Find(10));
}

TEST_F(BlipOrderTest, OneThatLeavesIsNeitherFoundNorWalked)
{
    Enter({1, 2, 3});
    EXPECT_TRUE(m_Order.Leave(2));
    EXPECT_FALSE(m_Order.Leave(2));
    EXPECT_EQ(nullptr, m_Order.Find(2));
    EXPECT_EQ((Numbers{1, 3}), Walk(m_Order));
}

TEST_F(BlipOrderTest, OneThatComesBackTakesItsPlace)
{
    Enter({1, 2, 3});
    m_Order.Leave(2);
    m_Order.Enter(2, Blip(20));
    EXPECT_EQ(&Blip(20), m_Order.Find(2));
    m_Order.Enter(3, Blip(30));
    EXPECT_EQ(&Blip(30), m_Order.Find(3));
    EXPECT_EQ(3u, m_Order.Places());
}

TEST_F(BlipOrderTest, AWalkGoesOnBehindWhatItHasReached)
{
    Enter({10, 20, 30});
    EXPECT_EQ(2u, m_Order.PlaceBehind(20));
    Enter({5, 25});
    EXPECT_EQ(3u, m_Order.PlaceBehind(20));
    EXPECT_EQ(5u, m_Order.PlaceBehind(30));
    EXPECT_EQ(5u, m_Order.PlaceBehind(4294967295u));
}

TEST_F(BlipOrderTest, EmptyPlacesDoNotPileUp)
{
    for (u32 id = 1; id <= 100000; ++id) {
        m_Order.Enter(id, Blip(id % 100));
        if (id > 50)
            m_Order.Leave(id - 50);
        ASSERT_LT(m_Order.Places(), 130u);
    }
}

TEST_F(BlipOrderTest, ItHoldsWhatAPlainMapHolds)
{
    ExpectAsInAPlainMap([](u32 number) { return number; });
}

TEST_F(BlipOrderTest, SoItDoesWhereTheIDsLieFarApart)
{
    ExpectAsInAPlainMap([](u32 number) { return number * number * 47000; });
    ExpectAsInAPlainMap([](u32 number) { return 4294967295u - number % 16 - (number / 16) * 200000000; });
}
