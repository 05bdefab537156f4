#include "vxutil/login/WindowService.h"

namespace vx {
namespace {

// Without a toolkit there are no windows to act on.
class NoWindowService : public WindowService {
public:
    CGNString GetCaption(WindowHandle) override { return {}; }
    void SetCaption(WindowHandle, const CGNString&) override {}
    void CentreOnParent(WindowHandle) override {}
};

WindowService* g_installedService = nullptr;

}  // namespace

WindowService::~WindowService() = default;

WindowService& WindowService::Current() {
    static NoWindowService none;
    return g_installedService != nullptr ? *g_installedService : none;
}

WindowService* WindowService::SetCurrent(WindowService* service) {
    WindowService* previous = g_installedService;
    g_installedService = service;
    return previous;
}

}  // namespace vx
