#include "vxutil/runtime/RLockWindowUpdate.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

// Records the lock calls; refuses to lock the windows it is told to.
class RecordingLocker : public vx::WindowUpdateLocker {
public:
    RecordingLocker() { m_previous = RLockWindowUpdate::SetLocker(this); }
    ~RecordingLocker() override { RLockWindowUpdate::SetLocker(m_previous); }

    bool Lock(vx::WindowHandle window) override {
        calls.push_back("lock " + std::to_string(*static_cast<int*>(window)));
        return window != refused;
    }
    void Unlock() override { calls.push_back("unlock"); }

    std::vector<std::string> calls;
    vx::WindowHandle refused = nullptr;

private:
    vx::WindowUpdateLocker* m_previous;
};

TEST(LockWindowUpdateTest, OnlyTheOutermostScopeLocksAndTheLastOneUnlocks) {
    RecordingLocker locker;
    int first = 1, second = 2;
    {
        RLockWindowUpdate outer(&first);
        EXPECT_EQ(RLockWindowUpdate::IsLocked(), 1);
        {
            RLockWindowUpdate sameWindow(&first);
            RLockWindowUpdate otherWindow(&second);
            RLockWindowUpdate none(nullptr);
        }
        EXPECT_EQ(RLockWindowUpdate::IsLocked(), 1);
    }
    EXPECT_EQ(RLockWindowUpdate::IsLocked(), 0);
    EXPECT_EQ(locker.calls, (std::vector<std::string>{"lock 1", "unlock"}));
}

TEST(LockWindowUpdateTest, FailedLockLocksNothingWhileScopesStillNest) {
    RecordingLocker locker;
    int first = 1, second = 2;
    locker.refused = &first;
    {
        RLockWindowUpdate outer(&first);
        EXPECT_EQ(RLockWindowUpdate::IsLocked(), 0);
        {
            // Nothing is locked, so the next scope tries its own window.
            RLockWindowUpdate inner(&second);
            EXPECT_EQ(RLockWindowUpdate::IsLocked(), 1);
        }
        // The count still nests: the inner scope's window stays locked until the outer ends.
        EXPECT_EQ(RLockWindowUpdate::IsLocked(), 1);
    }
    EXPECT_EQ(RLockWindowUpdate::IsLocked(), 0);
    EXPECT_EQ(locker.calls, (std::vector<std::string>{"lock 1", "lock 2", "unlock"}));
}

#ifdef _WIN32
HWND MakeWindow() {
    return ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                             ::GetModuleHandleA(nullptr), nullptr);
}

TEST(LockWindowUpdateTest, LocksTheWindowForRealOnWindows) {
    HWND first = MakeWindow();
    HWND second = MakeWindow();
    ASSERT_NE(first, nullptr);
    {
        RLockWindowUpdate outer(first);
        EXPECT_EQ(RLockWindowUpdate::IsLocked(), 1);
        { RLockWindowUpdate inner(second); }
        // Windows allows one locked window: while the first is, the second cannot be.
        EXPECT_FALSE(::LockWindowUpdate(second));
    }
    EXPECT_EQ(RLockWindowUpdate::IsLocked(), 0);
    EXPECT_TRUE(::LockWindowUpdate(second));
    ::LockWindowUpdate(nullptr);
    ::DestroyWindow(first);
    ::DestroyWindow(second);
}
#endif

}  // namespace
