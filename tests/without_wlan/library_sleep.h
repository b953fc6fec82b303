#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>

namespace calvix::test::without_wlan_test
{

/// While this object exists, calvix.dll does not sleep: its calls of Sleep return at once and are added up. One at a
/// time.
class LibrarySleep
{
public:
    LibrarySleep()
    {
        s_milliseconds = 0;
        m_original = Exchange(reinterpret_cast<ULONG_PTR>(CountSleep));
    }
    ~LibrarySleep() { Exchange(m_original); }
    LibrarySleep(const LibrarySleep&) = delete;
    LibrarySleep& operator=(const LibrarySleep&) = delete;

    DWORD Milliseconds() const { return s_milliseconds; }

private:
    static void WINAPI CountSleep(DWORD milliseconds) { s_milliseconds += milliseconds; }

    template <typename Record>
    static Record* At(unsigned char* image, ULONG_PTR offset)
    {
        return reinterpret_cast<Record*>(image + offset);
    }

    /// Where calvix.dll keeps the address of the Sleep that it calls.
    static ULONG_PTR* FindSleepImport()
    {
        auto* const image = reinterpret_cast<unsigned char*>(::GetModuleHandleW(L"calvix.dll"));
        const auto* const header =
            At<IMAGE_NT_HEADERS64>(image, static_cast<ULONG_PTR>(At<IMAGE_DOS_HEADER>(image, 0)->e_lfanew));
        const DWORD imports = header->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
        for (auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(image, imports); library->FirstThunk != 0; ++library)
        {
            auto* name = At<IMAGE_THUNK_DATA64>(image, library->OriginalFirstThunk);
            auto* address = At<ULONG_PTR>(image, library->FirstThunk);
            for (; name->u1.AddressOfData != 0; ++name, ++address)
                if (!IMAGE_SNAP_BY_ORDINAL64(name->u1.Ordinal) &&
                    std::strcmp(At<IMAGE_IMPORT_BY_NAME>(image, name->u1.AddressOfData)->Name, "Sleep") == 0)
                    return address;
        }
        return nullptr;
    }

    static ULONG_PTR Exchange(ULONG_PTR address)
    {
        ULONG_PTR* const import = FindSleepImport();
        if (import == nullptr)
        {
            ADD_FAILURE() << "calvix.dll does not import Sleep";
            return address;
        }
        const ULONG_PTR former = *import;
        DWORD protection = 0;
        ::VirtualProtect(import, sizeof(*import), PAGE_READWRITE, &protection);
        *import = address;
        ::VirtualProtect(import, sizeof(*import), protection, &protection);
        return former;
    }

    static inline DWORD s_milliseconds = 0;

    ULONG_PTR m_original = 0;
};

} // namespace calvix::test::without_wlan_test
