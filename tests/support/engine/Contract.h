// What the engine and the control panel have agreed on: keys, values and file names. The double has
// them from docs/engine-contract.md and not from the control panel's code, so that a slip on either
// side shows.
#ifndef VANTREL_TESTS_SUPPORT_ENGINE_CONTRACT_H_
#define VANTREL_TESTS_SUPPORT_ENGINE_CONTRACT_H_

#include <array>
#include <cstddef>
#include <cstdint>

namespace vantrel::engine {

// Under HKEY_LOCAL_MACHINE; the engine works while this key stands.
inline constexpr const char* EntryKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects\\"
    "{911C4A8E-0F75-4B83-BEB9-02BDDF29D11E}";
inline constexpr const char* PathValue = "Path";

// Under HKEY_CURRENT_USER.
inline constexpr const char* SettingsKey = "Software\\Qorvel Softwares\\Block Settings";
inline constexpr const char* CountersKey = "Software\\Qorvel Softwares\\Block Log";
inline constexpr const char* KeepLogValue = "KeepaLog";
inline constexpr const char* DisabledValue = "GDisabled";

// In the folder that Path names.
inline constexpr const char* AllowListFile = "AllowList.txt";
inline constexpr const char* LogFile = "log.txt";

// The five kinds of advertisement. The order is that of the flags in the allow list.
struct Kind {
  const char* setting;
  const char* counter;
};
inline constexpr std::array<Kind, 5> Kinds = {{
    {"Popup", "Popup"},
    {"DHTML", "DHTML"},
    {"WebDialog", "WebDialog"},
    {"Banner", "BannerAds"},
    {"Flash", "Flash"},
}};

// The control panel shows an error instead of a counter above this.
inline constexpr std::uint32_t HighestShownCount = 32767;

}  // namespace vantrel::engine

#endif  // VANTREL_TESTS_SUPPORT_ENGINE_CONTRACT_H_
