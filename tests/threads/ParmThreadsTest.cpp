// Answers of the host from many threads while the window's thread types:
// each answer must reach the window's thread exactly once, and the zone's
// lists must hold up (run this suite under the thread sanitizer).
#include <algorithm>
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "completion/OpenParmComp.h"
#include "completion/ParmCompSet.h"
#include "support/ParmZoneTest.h"

namespace {

class ParmThreadsTest : public ParmZoneTest {};

TEST_F(ParmThreadsTest, EightHostThreadsAnswerWhileTheUserTypes) {
    constexpr int kThreads = 8;
    constexpr int kPerThread = 40;
    std::atomic<bool> go{false};
    std::vector<std::thread> hosts;
    for (int t = 0; t < kThreads; ++t) {
        hosts.emplace_back([&, t] {
            while (!go.load())
                std::this_thread::yield();
            for (int i = 0; i < kPerThread; ++i) {
                const std::string name = "r" + std::to_string(t * kPerThread + i);
                m_zone.AddParmCompletionSet(1, name.c_str(), name.c_str(), "a,b", nullptr);
            }
        });
    }
    // The user calls the same routines meanwhile, asking for what has not
    // come yet; the window's loop runs between key presses.
    go = true;
    for (int n = 0; n < kThreads * kPerThread; n += 7) {
        Type(("r" + std::to_string(n) + "(1,").c_str());
        Type(")\n");
    }
    for (std::thread& host : hosts)
        host.join();
    Pump();

    ASSERT_EQ(m_zone.m_parmSets.size(), static_cast<size_t>(kThreads * kPerThread));
    for (CParmCompSet* pSet : m_zone.m_parmSets)
        EXPECT_EQ(m_zone.m_deliveries[reinterpret_cast<std::int64_t>(pSet)], 1)
            << pSet->strName.c_str();
    EXPECT_EQ(m_zone.m_deliveries.size(), m_zone.m_parmSets.size());
    // Every question whose answer came is gone from the list; each routine
    // was asked at most once.
    std::vector<std::string> asked = m_zone.m_requests;
    std::sort(asked.begin(), asked.end());
    EXPECT_EQ(std::adjacent_find(asked.begin(), asked.end()), asked.end());
    EXPECT_TRUE(m_zone.m_parmRequests.empty());

    // All are known now: a call shows its tooltip at once.
    Type("r5(");
    EXPECT_EQ(Shown(), "r5 ( |a|,b )");
}

TEST_F(ParmThreadsTest, AnAnswerFromInsideTheQuestionIsNoDeadlock) {
    // The lock is not held while the host is asked.
    m_zone.m_onRequest = [this](int nKind, const char* pName) {
        std::thread([&] { m_zone.AddParmCompletionSet(nKind, pName, pName, "x", "x"); }).join();
    };
    Type("f(");
    EXPECT_EQ(Shown(), "f ( |x| )");
}

}  // namespace
