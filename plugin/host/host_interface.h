#pragma once

// All that a host of the plug-in VLK_Device_R-7106 needs; the numbers, records and the table of all messages
// come with it from link/messages.h. Qt Core alone; host and plug-in must be built with one ABI of Qt,
// because QString, QByteArray and QDateTime cross the boundary as they are.
//
// The calling order:
//   1. Create the QApplication, load the library (its device object is built then).
//   2. IsVlkLibraryV, then GetLibraryInfo with a LibraryInfo; keep its `handle`.
//   3. Initialize with a HostCallback that stays valid while the library is loaded. No message before this.
//   4. SetPaths, SetIdentity if the identity is to change, SetHostMode.
//   5. TrackerAttached when a tracker of this model is there, TrackerDetached when it goes.
//   6. OpenConfiguration, OpenTelemetry, ShowStoredFile.
//   7. LanguageChanged after a change of language, CloseWindows before the library goes.
//
// Threads: every call in both directions runs on the thread of the QApplication. Nothing blocks: a request of
// the plug-in comes with an even number, and the host answers, whenever it likes, with the next odd number
// (`answer` in the table of messages). An unanswered request leaves the asking window waiting without harm.
//
// Ownership: none passes. A parameter is a plain value that travels in the pointer, or the address of a value
// in the caller's frame that is valid during the call only; the receiver copies what it keeps. All windows
// belong to the library and live as long as the process.
//
// Extensions, from number 7106001 on, are for a host that looks after a save that the tracker keeps waiting,
// tells what a configuration would change, reports it or applies a preset to it, or confirms what it has
// written: messages.h tells what they do and how their records survive other versions. GetExtensions says
// which of them are there.
//
// There are no error codes: a wrong handle, an unknown number, a null address or a missing window end the
// call silently.

#include "../link/messages.h" // by a path that holds whatever folders the host's build searches

#include <cstddef>
#include <cstdint>

namespace vlk {

// The library information record, 538 bytes without padding, little-endian.
#pragma pack(push, 1)
struct LibraryInfo
{
    // First argument of ReceiveMessage: the address of the device object. Where pointers are wider than this
    // field it is the address's low half; ReceiveMessage takes it zero-extended, or the full address that the
    // callback gets as `device`.
    std::uint32_t handle;
    char modelName[255];   // UTF-8, NUL-terminated
    char displayName[255]; // local 8-bit encoding, NUL-terminated
    std::int32_t versionMajor;
    std::int32_t versionMinor;
    std::int32_t versionPatch;
    std::int32_t versionFourth;
    std::int32_t reserved;
    std::int32_t interfaceValue;
};
#pragma pack(pop)
static_assert(sizeof(LibraryInfo) == 538);
static_assert(offsetof(LibraryInfo, displayName) == 259 && offsetof(LibraryInfo, versionMajor) == 514 &&
              offsetof(LibraryInfo, interfaceValue) == 534);

// The host's function. `device` is the address of the device object. The result is not used.
using HostCallback = void (*)(void* device, std::uint32_t id, void* p1, void* p2);

// The four exports, by name and type, for QLibrary::resolve.
using IsVlkLibraryVFunction = bool (*)();
using GetLibraryInfoFunction = void (*)(LibraryInfo* info);
using InitializeFunction = void (*)(HostCallback callback);
using ReceiveMessageFunction = void (*)(void* handle, std::uint32_t id, void* p1, void* p2);

} // namespace vlk
