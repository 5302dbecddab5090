#include "tests/unit/ScriptHost.h"

#include "teskara/core/CUIManager.h"
#include "tests/unit/FreshProcess.h"

void WithHost(const std::function<void(ScriptHost&)>& body)
{
    InFreshProcess([&] {
        ScriptHost host;
        F1(&host);
        body(host);
        g_UIManager.Shutdown(); // after which the manager's end leaves the host alone
    });
}

void WithToolkit(const std::function<void(ScriptHost&)>& body)
{
    WithHost([&](ScriptHost& host) {
        g_UIManager.Initialize();
        body(host);
    });
}
