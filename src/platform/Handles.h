// Plain integers that stand for the system's handles and codes on both sides of the seam.
#ifndef VANTREL_PLATFORM_HANDLES_H_
#define VANTREL_PLATFORM_HANDLES_H_

#include <cstdint>

namespace vantrel::platform {

using KeyHandle = std::uint32_t;      // a registry key; 0 is none
using WindowHandle = std::uintptr_t;  // a window; 0 is none
using IconHandle = std::uintptr_t;    // an icon; 0 is none

// The system's error codes that the program or its tests distinguish.
inline constexpr std::int32_t ErrorSuccess = 0;
inline constexpr std::int32_t ErrorFileNotFound = 2;
inline constexpr std::int32_t ErrorPathNotFound = 3;
inline constexpr std::int32_t ErrorAccessDenied = 5;
inline constexpr std::int32_t ErrorInvalidHandle = 6;
inline constexpr std::int32_t ErrorNotEnoughMemory = 8;
inline constexpr std::int32_t ErrorSharingViolation = 32;
inline constexpr std::int32_t ErrorInvalidParameter = 87;
inline constexpr std::int32_t ErrorDiskFull = 112;
inline constexpr std::int32_t ErrorInvalidName = 123;
inline constexpr std::int32_t ErrorDirectoryNotEmpty = 145;
inline constexpr std::int32_t ErrorMoreData = 234;
inline constexpr std::int32_t ErrorNoMoreItems = 259;
inline constexpr std::int32_t ErrorDirectory = 267;  // a file in a folder's place
inline constexpr std::int32_t ErrorElevationRequired = 740;
inline constexpr std::int32_t ErrorKeyDeleted = 1018;

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_HANDLES_H_
