#include "methods/method_row.h"

namespace calvix::benchmarks
{

namespace
{

/// The profile that the call before has deleted.
void PutProfileBack(Scene& scene)
{
    scene.direct->SetProfile(&scene.guid, scene.xml.c_str());
}

constexpr wchar_t kDeleted[] = L"Network"; // of ProfileXml

} // namespace

Rows ProfileRows()
{
    return {
        Row("GetWlanProfile(GUID const*, char const*)",
            [](auto& side, Scene& s) { return side.GetWlanProfile(&s.guid, s.narrowProfile); }),
        Row("DeleteProfile(GUID const*, char const*)",
            [](auto& side, Scene& s) { return side.DeleteProfile(&s.guid, "Network"); },
            {.onComputer = PutProfileBack}),
        Row("DeleteProfile(GUID const*, wchar_t const*)",
            [](auto& side, Scene& s) { return side.DeleteProfile(&s.guid, kDeleted); }, {.onComputer = PutProfileBack}),
        Row("ResetProfilePosition(GUID const*, char const*)",
            [](auto& side, Scene& s) { return side.ResetProfilePosition(&s.guid, s.narrowProfile); }),
        Row("SetProfilePosition(GUID const*, wchar_t const*)",
            [](auto& side, Scene& s) { return side.SetProfilePosition(&s.guid, s.profile); }),
        Row("GetProfileCount(GUID const*)", [](auto& side, Scene& s) { return side.GetProfileCount(&s.guid); }),
        Row("GetProfile(GUID const*, wchar_t const*, wchar_t*, int)",
            [](auto& side, Scene& s) { return side.GetProfile(&s.guid, s.profile, s.out.plain.wide, 2048); }),
        Row("GetProfile(GUID const*, wchar_t const*, char*, int)",
            [](auto& side, Scene& s) { return side.GetProfile(&s.guid, s.profile, s.out.plain.text, 2048); }),
        Row("GetProfile(GUID const*, wchar_t const*)",
            [](auto& side, Scene& s) { return side.GetProfile(&s.guid, s.profile); }),
        Row("SetProfile(GUID const*, wchar_t const*)",
            [](auto& side, Scene& s) { return side.SetProfile(&s.guid, s.xml.c_str()); }),
        Row("IsAutoConnMode2(GUID const*, wchar_t const*)",
            [](auto& side, Scene& s) { return side.IsAutoConnMode2(&s.guid, s.profile); }),
    };
}

} // namespace calvix::benchmarks
