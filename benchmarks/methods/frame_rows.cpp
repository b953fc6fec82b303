#include "methods/method_row.h"

namespace calvix::benchmarks
{

namespace
{

/// An object of the side's class, all zero. No second one can be made.
template <typename Side>
const Side& AnotherOf(const Side&, const Scene& scene)
{
    static_assert(sizeof(Side) <= sizeof(scene.anotherObject));
    return reinterpret_cast<const Side&>(scene.anotherObject);
}

void WINAPI Ignore(PWLAN_NOTIFICATION_DATA, PVOID) {}

} // namespace

Rows FrameRows()
{
    return {
        Row("Get()", [](auto& side, Scene&) { return side.Get() != nullptr; }),
        Row("Delete()", [](auto& side, Scene&) { side.Delete(); }, {.everyTime = StartAnew}),
        Row("operator=(CWirelessManage const&)", [](auto& side, Scene& s) { side = AnotherOf(side, s); }),
        Row("__autoclassinit2(unsigned long long)",
            [](auto& side, Scene&) { side.__autoclassinit2(sizeof(CWirelessManage)); }),
        Row("RegisterNotification(WLAN_NOTIFICATION_CALLBACK, void*)",
            [](auto& side, Scene&) { return side.RegisterNotification(Ignore, nullptr); }),
        Row("UnRegisterNotification(WLAN_NOTIFICATION_CALLBACK, void*)",
            [](auto& side, Scene&) { return side.UnRegisterNotification(Ignore, nullptr); }),
    };
}

} // namespace calvix::benchmarks
