#include "core/WorkList.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

namespace orlamo {
namespace {

struct Numbered : AXUIElement {
    explicit Numbered(std::size_t number) : number(number) {}
    bool isSameElement(const AXUIElement& other) const override {
        ++comparisons;
        return static_cast<const Numbered&>(other).number == number;
    }
    std::size_t hash() const override { return number; }

    std::size_t number;
    inline static std::size_t comparisons = 0;
};

AXUIElementRef reference(std::size_t number) {
    return std::make_shared<Numbered>(number);
}
std::size_t numberOf(const AXUIElementRef& element) {
    return static_cast<const Numbered&>(*element).number;
}

TEST(WorkList, TakesTheSameElementsAsAListThatIsScanned) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        std::mt19937 random(seed);
        const std::size_t distinct = 1 + random() % 12;
        WorkList queue, pending;
        std::vector<std::size_t> expectedQueue, expectedPending;
        for (int step = 0; step < 400; ++step) {
            const auto choice = random() % 100;
            if (choice < 55) {
                const std::size_t number = random() % distinct;
                queue.append(reference(number));
                expectedQueue.push_back(number);
            } else if (choice < 90) {
                if (expectedQueue.empty()) continue;
                const std::size_t front = expectedQueue.front();
                ASSERT_EQ(numberOf(queue.take()), front) << "seed " << seed;
                std::erase(expectedQueue, front);
            } else {
                std::swap(queue, pending);
                std::swap(expectedQueue, expectedPending);
            }
            ASSERT_EQ(queue.empty(), expectedQueue.empty()) << "seed " << seed;
            ASSERT_EQ(pending.empty(), expectedPending.empty()) << "seed " << seed;
        }
    }
}

TEST(WorkList, AVisitCostsNoScanAndAnEmptiedListHoldsNothing) {
    constexpr std::size_t elements = 100'000;
    WorkList list;
    Numbered::comparisons = 0;
    for (std::size_t i = 0; i < 2 * elements; ++i) list.append(reference(i % elements));
    for (std::size_t i = 0; i < elements; ++i) ASSERT_EQ(numberOf(list.take()), i);
    EXPECT_TRUE(list.empty());
    const AXUIElementRef last = reference(elements);
    list.append(last);
    list.take();
    EXPECT_EQ(last.use_count(), 1);
    EXPECT_LT(Numbered::comparisons, 10 * elements);
}

}  // namespace
}  // namespace orlamo
