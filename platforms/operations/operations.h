#pragma once

#include "operations/description.h"

#include <string_view>

namespace calvix::operations
{

using platform::Clock;
using platform::DebuggerOutput;
using platform::Internet;
using platform::LastError;
using platform::Power;
using platform::Processes;
using platform::Security;
using platform::ServiceControl;
using platform::WlanService;

// Every operation of the platform, facility by facility, in the order of their declarations. Call log, fault injection,
// recording, replay and the tests' doubles all take from here what they know of an operation.

// As few lines for an operation as it takes.
// clang-format off

inline constexpr Row kWlanService{
    Describe<&WlanService::WlanOpenHandle>("WlanOpenHandle", Fails::withErrorNumber, Number{"clientVersion"},
        Reserved(), NumberOut{"negotiatedVersion"}, HandleOut<HandleFamily::client>{"client"}),
    Describe<&WlanService::WlanCloseHandle>("WlanCloseHandle", Fails::withErrorNumber, Client(), Reserved()),
    Describe<&WlanService::WlanEnumInterfaces>("WlanEnumInterfaces", Fails::withErrorNumber, Client(), Reserved(),
        ListOut{"list"}),
    Describe<&WlanService::WlanScan>("WlanScan", Fails::withErrorNumber, Client(), Adapter(), Ssid{"ssid"},
        Pointer{"ieData"}, Reserved()),
    Describe<&WlanService::WlanGetAvailableNetworkList>("WlanGetAvailableNetworkList", Fails::withErrorNumber,
        Client(), Adapter(), Number{"flags"}, Reserved(), ListOut{"list"}),
    Describe<&WlanService::WlanGetNetworkBssList>("WlanGetNetworkBssList", Fails::withErrorNumber, Client(),
        Adapter(), Ssid{"ssid"}, Number{"bssType"}, Flag{"securityEnabled"}, Reserved(), ListOut{"list"}),
    Describe<&WlanService::WlanQueryInterface>("WlanQueryInterface", Fails::withErrorNumber, Client(), Adapter(),
        Opcode{"opcode"}, Reserved(), AnswerSize{"dataSize"}, AnswerOut{"data"}, NumberOut{"valueType"}),
    Describe<&WlanService::WlanSetInterface>("WlanSetInterface", Fails::withErrorNumber, Client(), Adapter(),
        Opcode{"opcode"}, SettingSize{"dataSize"}, Setting{"data"}, Reserved()),
    Describe<&WlanService::WlanQueryAutoConfigParameter>("WlanQueryAutoConfigParameter", Fails::withErrorNumber,
        Client(), Opcode{"opcode"}, Reserved(), AnswerSize{"dataSize"}, AnswerOut{"data"}, NumberOut{"valueType"}),
    Describe<&WlanService::WlanGetProfileList>("WlanGetProfileList", Fails::withErrorNumber, Client(), Adapter(),
        Reserved(), ListOut{"list"}),
    Describe<&WlanService::WlanGetProfile>("WlanGetProfile", Fails::withErrorNumber, Client(), Adapter(),
        ProfileName{"name"}, Reserved(), ProfileTextOut{"xml"}, NumberExchanged{"flags"},
        NumberOverwritten{"grantedAccess"}),
    Describe<&WlanService::WlanSetProfile>("WlanSetProfile", Fails::withErrorNumber, Client(), Adapter(),
        Number{"flags"}, ProfileText{"xml"}, Text{"allUserProfileSecurity"}, Flag{"overwrite"}, Reserved(),
        ReasonOut{"reasonCode"}),
    Describe<&WlanService::WlanDeleteProfile>("WlanDeleteProfile", Fails::withErrorNumber, Client(), Adapter(),
        ProfileName{"name"}, Reserved()),
    Describe<&WlanService::WlanSetProfilePosition>("WlanSetProfilePosition", Fails::withErrorNumber, Client(),
        Adapter(), ProfileName{"name"}, Number{"position"}, Reserved()),
    Describe<&WlanService::WlanConnect>("WlanConnect", Fails::withErrorNumber, Client(), Adapter(),
        Record{"parameters"}, Reserved()),
    Describe<&WlanService::WlanDisconnect>("WlanDisconnect", Fails::withErrorNumber, Client(), Adapter(), Reserved()),
    Describe<&WlanService::WlanRegisterNotification>("WlanRegisterNotification", Fails::withErrorNumber, Client(),
        Number{"source"}, Flag{"ignoreDuplicate"}, Callback{"callback"}, Context{"context"}, Reserved(),
        NumberOut{"previousSource"}),
    Describe<&WlanService::WlanIhvControl>("WlanIhvControl", Fails::withErrorNumber, Client(), Adapter(),
        Number{"type"}, UnrecordedNumber{"inputSize"}, Bytes<before>{"input"}, Number{"outputSize"},
        BytesOut{"output"}, BytesCountOut{"bytesReturned"}),
    Describe<&WlanService::WlanSetSecuritySettings>("WlanSetSecuritySettings", Fails::withErrorNumber, Client(),
        Number{"object"}, Text{"sddl"}),
    Describe<&WlanService::WlanReasonCodeToString>("WlanReasonCodeToString", Fails::withErrorNumber,
        Number{"reasonCode"}, Number{"bufferSize"}, TextOut<before>{"buffer"}, Reserved()),
    Describe<&WlanService::WlanFreeMemory>("WlanFreeMemory", Fails::never, Block{"memory"}),
};

inline constexpr Row kServiceControl{
    Describe<&ServiceControl::OpenSCManagerA>("OpenSCManagerA", Fails::withNothing, Text{"machine"}, Text{"database"},
        Number{"access"}),
    Describe<&ServiceControl::OpenServiceA>("OpenServiceA", Fails::withNothing, Service{"manager"}, Text{"name"},
        Number{"access"}),
    Describe<&ServiceControl::QueryServiceStatus>("QueryServiceStatus", Fails::withNothing, Service{"service"},
        RecordOut{"status"}),
    Describe<&ServiceControl::StartServiceA>("StartServiceA", Fails::withNothing, Service{"service"},
        Number{"argumentCount"}, UnrecordedPointer{"arguments"}),
    Describe<&ServiceControl::CloseServiceHandle>("CloseServiceHandle", Fails::withNothing, Service{"handle"}),
};

inline constexpr Row kPower{
    Describe<&Power::CallNtPowerInformation>("CallNtPowerInformation", Fails::withStatus, Opcode{"level"},
        Bytes<after>{"input"}, UnrecordedNumber{"inputSize"}, InformationOut{"output"}, InformationRoom{"outputSize"}),
    Describe<&Power::GetActivePwrScheme>("GetActivePwrScheme", Fails::withNothing, NumberOut{"schemeId"}),
    Describe<&Power::ReadPwrScheme>("ReadPwrScheme", Fails::withNothing, Number{"schemeId"}, WholeRecordOut{"policy"}),
    Describe<&Power::WritePwrScheme>("WritePwrScheme", Fails::withNothing, SchemeExchanged{"schemeId"}, Text{"name"},
        Text{"description"}, WholeRecord{"policy"}),
    Describe<&Power::SetActivePwrScheme>("SetActivePwrScheme", Fails::withNothing, Number{"schemeId"},
        Pointer{"globalPolicy"}, WholeRecord{"policy"}),
    Describe<&Power::PowerEnumerate>("PowerEnumerate", Fails::withErrorNumber, UnrecordedPointer{"root"},
        Guid{"scheme"}, Guid{"subgroup"}, Number{"access"}, Number{"index"}, Buffer{"buffer"},
        BufferSize{"bufferSize"}),
    Describe<&Power::PowerReadFriendlyName>("PowerReadFriendlyName", Fails::withErrorNumber,
        UnrecordedPointer{"root"}, Guid{"scheme"}, Guid{"subgroup"}, Guid{"setting"}, Buffer{"buffer"},
        BufferSize{"bufferSize"}),
    Describe<&Power::PowerGetActiveScheme>("PowerGetActiveScheme", Fails::withErrorNumber, UnrecordedPointer{"root"},
        SchemeOut{"scheme"}),
    Describe<&Power::PowerDuplicateScheme>("PowerDuplicateScheme", Fails::withErrorNumber, UnrecordedPointer{"root"},
        Guid{"source"}, SchemeOut{"duplicate"}),
    Describe<&Power::PowerWriteFriendlyName>("PowerWriteFriendlyName", Fails::withErrorNumber,
        UnrecordedPointer{"root"}, Guid{"scheme"}, Guid{"subgroup"}, Guid{"setting"}, FriendlyName{"buffer"},
        UnrecordedNumber{"bufferSize"}),
    Describe<&Power::PowerWriteACValueIndex>("PowerWriteACValueIndex", Fails::withErrorNumber,
        UnrecordedPointer{"root"}, Guid{"scheme"}, Guid{"subgroup"}, Guid{"setting"}, Number{"value"}),
    Describe<&Power::PowerSetActiveScheme>("PowerSetActiveScheme", Fails::withErrorNumber, UnrecordedPointer{"root"},
        Guid{"scheme"}),
    Describe<&Power::IsPwrSuspendAllowed>("IsPwrSuspendAllowed", Fails::withNo),
    Describe<&Power::IsPwrHibernateAllowed>("IsPwrHibernateAllowed", Fails::withNo),
    Describe<&Power::IsPwrShutdownAllowed>("IsPwrShutdownAllowed", Fails::withNo),
    Describe<&Power::SetSuspendState>("SetSuspendState", Fails::withNothing, Flag{"hibernate"}, Flag{"force"},
        Flag{"wakeupEventsDisabled"}),
    Describe<&Power::IsSystemResumeAutomatic>("IsSystemResumeAutomatic", Fails::withNo),
    Describe<&Power::LocalFree>("LocalFree", Fails::never, Block{"memory"}),
};

inline constexpr Row kSecurity{
    Describe<&Security::OpenProcessToken>("OpenProcessToken", Fails::withNothing, Object{"process"}, Number{"access"},
        HandleOut<HandleFamily::object>{"token"}),
    Describe<&Security::LookupPrivilegeValueA>("LookupPrivilegeValueA", Fails::withNothing, Text{"system"},
        Text{"name"}, RecordOut{"luid"}),
    Describe<&Security::AdjustTokenPrivileges>("AdjustTokenPrivileges", Fails::withNothing, Object{"token"},
        Flag{"disableAll"}, Record{"newState"}, UnrecordedNumber{"previousSize"}, RecordOut{"previous"},
        NumberOut{"returnLength"}),
};

inline constexpr Row kProcesses{
    Describe<&Processes::GetCurrentProcess>("GetCurrentProcess", Fails::never),
    Describe<&Processes::CreateProcessA>("CreateProcessA", Fails::withNothing, Text{"application"},
        CommandLine{"commandLine"}, UnrecordedPointer{"processAttributes"}, UnrecordedPointer{"threadAttributes"},
        Flag{"inheritHandles"}, Number{"creationFlags"}, UnrecordedPointer{"environment"}, Text{"currentDirectory"},
        Record{"startup"}, RecordOut{"information"}),
    Describe<&Processes::WaitForSingleObject>("WaitForSingleObject", Fails::withAllBits, Object{"handle"},
        Number{"milliseconds"}),
    Describe<&Processes::OpenProcess>("OpenProcess", Fails::withNothing, Number{"access"}, Flag{"inheritHandle"},
        Number{"processId"}),
    Describe<&Processes::TerminateProcess>("TerminateProcess", Fails::withNothing, Object{"process"},
        Number{"exitCode"}),
    Describe<&Processes::CloseHandle>("CloseHandle", Fails::withNothing, Object{"handle"}),
    Describe<&Processes::GetModuleFileNameA>("GetModuleFileNameA", Fails::withNothing, Module{"module"},
        ModulePathOut{"fileName"}, Number{"size"}),
    Describe<&Processes::GetModuleHandleA>("GetModuleHandleA", Fails::withNothing, Text{"moduleName"}),
    Describe<&Processes::GetProcAddress>("GetProcAddress", Fails::withNothing, Module{"module"}, Text{"name"}),
};

inline constexpr Row kInternet{
    Describe<&Internet::InternetSetOptionA>("InternetSetOptionA", Fails::withNothing, Pointer{"internet"},
        Number{"option"}, OptionValue{"buffer"}, OptionSize{"bufferSize"}),
    Describe<&Internet::InternetCheckConnectionA>("InternetCheckConnectionA", Fails::withNothing, Text{"url"},
        Number{"flags"}, UnrecordedNumber{"reserved"}),
};

inline constexpr Row kText{
    Describe<&platform::Text::MultiByteToWideChar>("MultiByteToWideChar", Fails::withNothing, Number{"codePage"},
        Number{"flags"}, Source{"source"}, SourceLength{"sourceLength"}, DestinationOut{"destination"},
        DestinationRoom{"destinationLength"}),
    Describe<&platform::Text::WideCharToMultiByte>("WideCharToMultiByte", Fails::withNothing, Number{"codePage"},
        Number{"flags"}, Source{"source"}, SourceLength{"sourceLength"}, DestinationOut{"destination"},
        DestinationRoom{"destinationLength"}, Text{"defaultCharacter"}, NumberOut{"usedDefaultCharacter"}),
    Describe<&platform::Text::StringFromGUID2>("StringFromGUID2", Fails::withNothing, Guid{"guid"},
        TextOut<after>{"text"}, Number{"capacity"}),
};

inline constexpr Row kClock{
    Describe<&Clock::Sleep>("Sleep", Fails::never, Number{"milliseconds"}),
    Describe<&Clock::FileTimeToSystemTime>("FileTimeToSystemTime", Fails::withNothing, Record{"fileTime"},
        RecordOut{"systemTime"}),
};

inline constexpr Row kDebuggerOutput{
    Describe<&DebuggerOutput::OutputDebugStringA>("OutputDebugStringA", Fails::never, Text{"text"}),
};

inline constexpr Row kLastError{
    Describe<&LastError::GetLastError>("GetLastError", Fails::withErrorNumber),
};

// clang-format on

/// Calls `visit(description)` for every operation of the platform.
template <typename Visit>
void ForEachOperation(Visit visit)
{
    const auto visitFacility = [&visit](const auto& facility)
    { Apply([&visit](const auto&... descriptions) { (visit(descriptions), ...); }, facility); };
    visitFacility(kWlanService);
    visitFacility(kServiceControl);
    visitFacility(kPower);
    visitFacility(kSecurity);
    visitFacility(kProcesses);
    visitFacility(kInternet);
    visitFacility(kText);
    visitFacility(kClock);
    visitFacility(kDebuggerOutput);
    visitFacility(kLastError);
}

/// What is known about the operation of this name; null if there is none.
const Facts* FactsOf(std::string_view name);

} // namespace calvix::operations
